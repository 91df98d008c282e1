#pragma once
#include <string>

#include "generators/generator_contract.h"

// Writers and draws shared by the plane geometry problems.

// A point with its label: "&+IA&-I&(" x ",& & " y ")"; an empty label writes the
// bracket alone. Co-ordinates are exact: whole numbers, fractions or roots.
std::string PointMarkup(MathWorkspace& ws, const std::string& label, double x, double y);
// A vector with its name: "#VEC(&+Iu&-I#VEC)(" x ",& & " y ")".
std::string VectorMarkup(MathWorkspace& ws, const std::string& name, double x, double y);
// The components alone: "(" x ",& & " y ")".
std::string PairMarkup(MathWorkspace& ws, double x, double y);
// "Calculate", a quarter of the time "Find", half of the time "Determine": two coins.
std::string DrawVerb(GeneratorWorkspace& ws);
// One of the letters h k m n p q r w, drawn; in italics.
std::string DrawParameterLetter(GeneratorWorkspace& ws);
// A second letter, drawn again until it differs from the first.
std::string DrawSecondParameterLetter(GeneratorWorkspace& ws, const std::string& first);
// "variable - c" or "variable + |c|"; the variable alone for c = 0.
std::string ShiftedMarkup(MathWorkspace& ws, const std::string& variable, double c);
// The square root of a whole number, simplified ("2#SQR(5#SQR)").
std::string RootMarkup(MathWorkspace& ws, double square);
// a·√square / b, the root simplified and the fraction reduced.
std::string RootFractionMarkup(MathWorkspace& ws, double a, double square, double b);
// square = outside² · inside with inside free of squares.
void SplitSquare(double square, double& outside, double& inside);

inline const std::string kItalicX = "&+Ix&-I";
inline const std::string kItalicY = "&+Iy&-I";
inline const std::string kOr = "     &+Ior&-I     ";
