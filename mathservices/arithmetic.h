#pragma once
#include <string>

#include "mathservices/math_workspace.h"

// Arithmetic on doubles that hold whole numbers, and the one range draw of the generators.

// The greatest whole number not above x (Int of -1.5 is -2).
double Int(double x);
bool IsWhole(double x);

// A draw from low to high: on the grid of step (its two ends half as likely as the inner
// points), or continuous when step is tiny against the range. With nonZero set, 0 is
// drawn again; after 100000 rounds MathError becomes 1 and the result is 0.
double RandomInRange(MathWorkspace& ws, double low, double high, double step, double nonZero);
// Strips the noise of a floating multiplication from a value meant to be whole.
double SnapValue(double x);
// position -1 rounds to a whole number, -2 to one decimal, 0 to tens; ties go upward.
double RoundAtPosition(MathWorkspace& ws, double x, double position);
double FractionalPart(MathWorkspace& ws, double x);
double Gcd(MathWorkspace& ws, double a, double b);
double Lcm(MathWorkspace& ws, double a, double b);
bool IsPrime(MathWorkspace& ws, double x);
void CrossProduct(double a1, double a2, double a3, double b1, double b2, double b3,
                  double& x, double& y, double& z);
double ArcCosine(double x);
// Makes the coefficients of a linear form small and its lead positive.
void ReduceTerms(MathWorkspace& ws, double& a, double& b, double& c, double& d);
// Groups the digits of a plain number text in threes with "_ " between the groups.
std::string GroupDigits(const std::string& text);
// x² + y² = z², with 3 <= x, y and z <= maximum; does nothing for a maximum below 5.
void PlaneTriple(MathWorkspace& ws, double maximum, double& x, double& y, double& z);
// x² + y² + z² = d², d <= maximum; x equals y when equalPair is set, differs otherwise.
void SpatialTriple(MathWorkspace& ws, double maximum, bool equalPair, bool reduce,
                   double& x, double& y, double& z, double& d);
