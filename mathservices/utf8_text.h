#pragma once
#include <string>

// Program strings are UTF-8; fixed-width texts count characters, not bytes.

std::size_t Utf8Length(const std::string& text);
// The first count characters of text.
std::string Utf8Left(const std::string& text, std::size_t count);
// The characters of text from the 0-based character index start on, at most count.
std::string Utf8Mid(const std::string& text, std::size_t start, std::size_t count = std::string::npos);
// Padded with blanks on the right, or cut, to exactly width characters.
std::string Utf8PadRight(const std::string& text, std::size_t width);
// text without the blanks at its start and at its end.
std::string TrimBlanks(const std::string& text);

// The text with its ASCII letters in upper case (other bytes as they are).
std::string Upper(std::string text);
// The number a text begins with, read as sign, digits and one point, passing over blanks
// anywhere inside it: " 1 2.5x" is 12.5, "12abc" is 12, "abc" is 0. No exponent.
double LeadingNumberSkippingBlanks(const std::string& text);
// value in decimal with zeros in front, cut to its rightmost width characters.
std::string ZeroFilled(long long value, int width);
