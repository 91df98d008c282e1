#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "generators/item_drill.h"

// The numbers behind single items of the drills, drawn apart from their texts so that
// their mathematics can be checked on its own.

// Two or three numbers that share prime factors, with their lcm and gcm.
struct LcmGcmItem {
    std::vector<double> numbers;
    double lcm = 0;
    double gcm = 0;
};
LcmGcmItem DrawLcmGcmNumbers(GeneratorWorkspace& ws, int count);

// One item of the square-root rationalisation drill of the given type (1 to 6), or an
// empty statement when the draw is refused.
ItemTexts DrawSquareRootRationalisation(GeneratorWorkspace& ws, int type);

// A decimal (ending, purely repeating or mixed repeating by shape 1 to 3) with the
// fraction it equals, not reduced; an empty text when the draw is refused.
struct DecimalToFractionItem {
    std::string text;
    double numerator = 0;
    double denominator = 1;
};
DecimalToFractionItem DrawDecimalToFraction(GeneratorWorkspace& ws, int shape);
// One item of the n-th root rationalisation drill of type 1 or 2, or an empty statement
// when the draw is refused.
ItemTexts DrawNthRootRationalisation(GeneratorWorkspace& ws, int type);

// A sum of square roots that all reduce to multiples of the root of one prime: term j is
// coefficients[j] times the root of factors[j]² × prime; the sum is total times its root.
struct SquareRootSumItem {
    ItemTexts texts;
    double prime = 0;
    std::vector<double> coefficients;
    std::vector<double> factors;
    double total = 0;
};
SquareRootSumItem DrawSquareRootSum(GeneratorWorkspace& ws, int terms);

// An expression of roots of a prime that simplifies into the index-th root of
// prime^exponent (type 1 to 6).
struct SingleRootItem {
    ItemTexts texts;
    double prime = 0;
    double index = 0;
    double exponent = 0;
};
SingleRootItem DrawSingleRoot(GeneratorWorkspace& ws, int type);

// An expression of powers of a prime equal to base^exponent (type 1 to 7).
struct SinglePowerItem {
    ItemTexts texts;
    double base = 0;
    double exponent = 0;
};
SinglePowerItem DrawNaturalSinglePower(GeneratorWorkspace& ws, int type);

// An expression of powers of a fraction of two primes equal to (upper/lower)^exponent,
// exponent positive (type 1 to 7).
struct RationalPowerItem {
    ItemTexts texts;
    double upper = 0;
    double lower = 0;
    double exponent = 0;
};
RationalPowerItem DrawRationalSinglePower(GeneratorWorkspace& ws, int type);
