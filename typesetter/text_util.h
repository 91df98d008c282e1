#pragma once
#include <string>

// The engine reads markup one character (code point) at a time; the surface takes UTF-8.
std::u32string ToU32(const std::string& utf8);
std::string ToUtf8(const std::u32string& text);
std::string ToUtf8(char32_t c);

// Number at the start of text as far as it reads as one (leading blanks skipped); 0 when none.
double LeadingNumber(const std::u32string& text);
std::u32string TrimBlanks(const std::u32string& text);
std::u32string UpperAscii(std::u32string text);
