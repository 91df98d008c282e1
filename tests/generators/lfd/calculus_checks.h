#pragma once
#include <string>

#include "support/markup_reader.h"

// Calculus answers checked numerically on the formulas read back from the markup.

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
