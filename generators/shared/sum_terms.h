#pragma once
#include <string>

#include "mathservices/math_workspace.h"

// Terms of sums as the integrals and the curves of functions write them.

// "x + p" with the sign of p written out ("x" alone for p = 0); variable as given.
std::string ShiftedVariable(const std::string& variable, double p);

// Appends the term (num / den)·body to a sum: the first term carries its own sign, later
// ones are joined by " + " or " - "; a coefficient 1 is not written. A zero term adds
// nothing.
void AppendTerm(MathWorkspace& ws, std::string& sum, double num, double den, const std::string& body);
