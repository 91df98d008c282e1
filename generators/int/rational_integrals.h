#pragma once
#include <string>

#include "generators/generator_contract.h"

// One integral of a rational function, built backwards from its answer.
struct RationalIntegral {
    // Integrand (n1·x + n0) / (d2·x² + d1·x + d0).
    double n1 = 0, n0 = 0, d2 = 0, d1 = 0, d0 = 0;
    std::string statement;  // the integral sign with the quotient
    std::string solution;   // the antiderivative, ending in " + C"
};

// Routine 1: shape 1 two simple roots, 2 a double root, 0 a root and a constant quotient.
RationalIntegral MakePartialFractionIntegral(GeneratorWorkspace& ws, int shape);
// Routine 2: a quadratic denominator (x - p)² + q² without real roots.
RationalIntegral MakeQuadraticDenominatorIntegral(GeneratorWorkspace& ws);
