#pragma once
#include <string>

#include "generators/generator_contract.h"
#include "generators/item_drill.h"

// One item of a list of integrals: the integral as the statement shows it and its
// antiderivative with the constant.
using IntegralItem = ItemTexts;

inline constexpr int kByPartsRows = 23;
inline constexpr int kSubstitutionRows = 35;

// Draws the constants of one item and writes the integral of the given row (1-based).
IntegralItem MakeByPartsItem(GeneratorWorkspace& ws, int row);
IntegralItem MakeSubstitutionItem(GeneratorWorkspace& ws, int row);

// The markup pieces these integrals share.
namespace integral_text {
std::string X();                      // the variable
std::string XPower(double k);         // x^k, through a power tag from 10 on
std::string Linear(double a);         // "ax", "x" for a = 1, "-x" for a = -1
std::string Exp(const std::string& exponent);
std::string Fraction(MathWorkspace& ws, const std::string& numerator, double numeratorFactor, double denominator);
std::string Integral(const std::string& integrand);
std::string WithConstant(const std::string& antiderivative);
} // namespace integral_text
