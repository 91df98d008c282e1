#pragma once
#include <optional>
#include <string>

// Reading the exact forms of printed answers as whole numbers, so that a test compares
// them with the true value in integer arithmetic rather than within a tolerance, and
// checks that each is written in its simplest form.

// a·√r / b with whole a, r, b (b > 0); r is 1 for a plain fraction or a whole number.
struct RootFraction {
    long long a = 0, r = 1, b = 1;
};

// One exact number as the writers print it: "-3", "#COC(-3#N)(4#COC)", "  #COC(-3#N)(4#COC)",
// "3#SQR(5#SQR)", "#COC(#SQR(2#SQR)#N)(2#COC)", "-& 2#SQR(3#SQR)", "-#COC(7#SQR(3#SQR)#N)(2#COC)".
// Nothing for any other text.
std::optional<RootFraction> ReadRootFraction(std::string text);

// n·pi/d from "&pi", "3&pi", "#COC(&pi#N)(4#COC)", "#COC(7&pi#N)(4#COC)", with a leading "-".
struct PiMultiple {
    long long n = 0, d = 1;
};
std::optional<PiMultiple> ReadPiMultiple(std::string text);

// Empty when every square root "#SQR(" of whole digits "#SQR)" in the text is free of
// square factors, every stacked fraction of two whole numbers is reduced with a
// denominator above 1, and every stacked a√r/b has a and b coprime; otherwise the first
// piece that is not in its simplest form.
std::string FirstUnsimplifiedForm(const std::string& text);

// True when both are the same number.
bool SameRootFraction(const RootFraction& x, const RootFraction& y);

long long WholeGcd(long long a, long long b);
