#pragma once
#include <string>

#include "mathservices/math_workspace.h"

// Writing numbers as markup: decimal marks, stacked fractions, roots, multiples of pi,
// angles and complex numbers.

// The plain number text: fifteen significant digits, "0." written ".", "1E+20" for a
// large number, and a negative zero as "0".
std::string PlainNumberText(double x);
// The plain number text with a zero before a leading point, as a book writes it: "0.5", "-0.5".
std::string DecimalText(double x);

std::string NumberToMarkup(double x);
std::string NumberToSignificantMarkup(double x, double digits);
void FindFraction(MathWorkspace& ws, double x, double& numerator, double& denominator);
// The exact form of a result: a fraction, a root or a multiple of pi; else a decimal.
std::string NumberToExactMarkup(MathWorkspace& ws, double x);
std::string FractionToMarkup(MathWorkspace& ws, double numerator, double denominator);
// a·√r / b with r free of squares.
std::string RootFractionToMarkup(MathWorkspace& ws, double a, double r, double b);
std::string SecondsToDegreeMarkup(double seconds);
std::string AngleToDegreeMarkup(double degrees);
std::string ComplexToMarkup(MathWorkspace& ws, double re, double im);
// unit 1 writes the argument in degrees, 0 in radians.
std::string ComplexPolarToMarkup(MathWorkspace& ws, double re, double im, int unit);

// Replaces every occurrence of what by with.
std::string ReplaceAll(std::string text, const std::string& what, const std::string& with);
