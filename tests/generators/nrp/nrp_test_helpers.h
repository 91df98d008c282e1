#pragma once
#include <string>
#include <vector>

#include "support/generator_sweep.h"

// Helpers of the drill tests: small text parsers. Items are read as numbers with
// ReadMarkupReal.

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
