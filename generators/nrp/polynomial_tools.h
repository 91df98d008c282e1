#pragma once
#include <array>
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "mathservices/poly_work.h"

// Small polynomial routines shared by the polynomial and algebraic-fraction drills.
// Coefficients are indexed by degree, 0 to 18; whole numbers held in doubles.

using Coefficients = std::array<double, 19>;

// A root together with how many times it occurs.
struct RootCount {
    double value = 0;
    int count = 0;
};

// Empties the coefficient and the text arrays of the scratch polynomial.
void ClearPoly(PolyWork& poly);
// Clears the scratch polynomial and multiplies the factors (x - root) into it, in order,
// starting from the constant 1.
void ExpandRoots(PolyWork& poly, const std::vector<double>& roots);
// The product of two polynomials (degrees 0 to 18 of the result).
Coefficients MultiplyPolys(const Coefficients& a, const Coefficients& b);
// Sum and difference, term by term, for degrees 0 to 9.
Coefficients AddPolys(const Coefficients& a, const Coefficients& b);
Coefficients SubtractPolys(const Coefficients& a, const Coefficients& b);
// The distinct values of a list of roots (at most 9) with their counts, in order of first
// appearance.
std::vector<RootCount> GroupRoots(const std::vector<double>& roots);

// c · (x - r1) · (x - r2) ...
Coefficients PolyFromRoots(double constant, const std::vector<double>& roots);
// a·x^k as a polynomial.
Coefficients PolyMonomial(double a, int k);
Coefficients ScalePoly(const Coefficients& a, double factor);
int PolyDegree(const Coefficients& a);  // -1 for the zero polynomial
bool IsZeroPoly(const Coefficients& a);
double EvaluatePoly(const Coefficients& a, double x);
// Long division: dividend = quotient · divisor + remainder, deg remainder < deg divisor.
void DividePolys(const Coefficients& dividend, const Coefficients& divisor, Coefficients& quotient,
                 Coefficients& remainder);
// The greatest common divisor of all the coefficients (positive), 0 for the zero polynomial.
double PolyContent(GeneratorWorkspace& ws, const Coefficients& a);

// Writes a polynomial of degree at most 9 through the scratch polynomial, in x.
std::string PolyText(GeneratorWorkspace& ws, const Coefficients& a);
// "x - 3", "x + 2", or "x" for the root 0.
std::string BinomialText(double root);
