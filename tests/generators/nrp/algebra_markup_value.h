#pragma once
#include <complex>
#include <optional>
#include <string>
#include <vector>

namespace algebra_test {

// Reads the value of an expression written in markup, independently of the writers that
// made it: numbers, x, the imaginary unit, pi, + - · × :, juxtaposition, "^" with one
// digit, parentheses, stacked fractions, "#NES(" delimiters, square roots, n-th roots and
// polar forms with an angle in degrees or radians. Nothing is returned for text that it
// cannot read.
std::optional<std::complex<double>> MarkupValue(const std::string& markup, std::complex<double> x = {0, 0});

// The texts after each lettered item mark "&+B<letter>" + tail, up to the next column
// mark or line break.
std::vector<std::string> LetteredTexts(const std::string& text, const std::string& tail);

// Angle text "12°& 3'& 4"" in seconds of arc.
double ReadSeconds(const std::string& text);

bool Near(std::complex<double> a, std::complex<double> b, double relative);

// True when no two texts are equal.
bool AllDistinct(const std::vector<std::string>& texts);

} // namespace algebra_test
