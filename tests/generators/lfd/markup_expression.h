#pragma once
#include <string>

// Reads back the formula a generator wrote as markup and evaluates it at a value of x,
// so that tests check the text a reader sees, not only the numbers it was built from.
// It knows the forms the calculus generators write: sums and implicit products, "^" with
// one digit, stacked fractions, square and n-th roots, powers of e and general powers,
// delimiters, absolute bars, and sin, cos, tan, ln, arcsin, arccos, arctan (with an
// optional power after the name) whose argument runs to the next function or operator.
// Throws std::runtime_error on a text it cannot read.
double EvaluateMarkup(const std::string& markup, double x);

// The markup with the switches and spacing codes removed, as the evaluator sees it.
std::string CleanMarkup(const std::string& markup);

#include <vector>

// The lettered items of a list written "&+B" letter ")&-B " text, each without its column
// mark and line breaks.
std::vector<std::string> LetteredItems(const std::string& text);

// The integrand of "#INT(" ... "dx" ... "#INT)".
std::string IntegrandOf(const std::string& item);
// An antiderivative without its constant " + C" (plain or italic).
std::string WithoutConstant(const std::string& answer);

// Checks F' = f by central differences at sample points where both are defined and f is
// not near a pole; returns "" when it holds, else what went wrong. At least minPoints
// sample points must be usable.
std::string CheckAntiderivative(const std::string& integrand, const std::string& antiderivative,
                                int minPoints = 3);
// Checks that the derivative markup equals the numeric derivative of the function markup.
std::string CheckDerivative(const std::string& function, const std::string& derivative, int minPoints = 3);
