#pragma once
#include <string>
#include <vector>

#include "support/generator_sweep.h"

// Helpers of the drill tests: a numeric reading of the markup of an item, so that a
// statement and its answer can be compared as numbers, and small text parsers.

// The value of the markup of an expression: numbers with grouped digits, "&." and a
// repeating block under "#ARC(", + - × :, parentheses and brackets, "#COC(" fractions,
// "#SQR(", "#RAD(" roots, "#POT(" powers, "^" one-digit powers, "#NES(" delimiters,
// and a number standing before a root as a product. Throws on anything else.
double MarkupValue(const std::string& markup);

// True when a and b agree to a relative 1e-9.
bool SameValue(double a, double b);

// The items of a powers and roots statement (upright items: ")&-B " then the text).
std::vector<std::string> UprightItems(const std::string& statement);

// A plain or stacked fraction of whole numbers, as FractionToMarkup writes it.
bool ReadFraction(const std::string& text, long long& numerator, long long& denominator);

// The whole numbers in a text, in order, with grouped digits read as one number.
std::vector<long long> WholeNumbers(const std::string& text);

// The item count a drill of at most maxAmount items makes of the code's ItemCount.
int ExpectedItems(const GeneratedProblem& p, int maxAmount = 26);
