#pragma once
#include <array>
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// The records from which the worded trigonometry problems write their texts, so that the
// mathematics can be checked apart from the markup.

// Routine 1: one function given with a sign condition, the other five asked.
struct TrigValuesRecord {
    int type = 0;  // 0 sin given, 1 cos given, 2 tan given
    double p = 0, q = 0;
    double sine = 0, cosine = 0;  // the exact values, signs included
    // sin, cos, tan, cosec, sec, cotan as written.
    std::array<std::string, 6> texts;
    std::string condition;  // the function whose sign is stated, and the sign
};
TrigValuesRecord MakeTrigValues(GeneratorWorkspace& ws, int type);

// a·√r / b as markup, with the square factors of r taken out first.
std::string SimplifiedRoot(GeneratorWorkspace& ws, double a, double r, double b);

// Routine 2: sines and cosines of one or two angles given, rounded to four decimals; the
// sine or cosine of three related angles asked, computed from the given values only.
struct AskedValue {
    bool sine = true;     // sin or cos
    double degrees = 0;   // the angle asked
    double value = 0;     // from the rounded given values
    double exact = 0;     // the true value, which the answer shows rounded
};
struct RelatedAnglesRecord {
    int type = 0;
    double a = 0, b = 0;                 // the angles, b unused with one angle
    double sinA = 0, cosA = 0, sinB = 0, cosB = 0;  // as given, rounded
    std::array<AskedValue, 3> asked;
};
RelatedAnglesRecord MakeRelatedAngles(GeneratorWorkspace& ws, int type);

// Routine 5: a triangle solved from three of its parts. Index 0, 1, 2 are the vertices
// A, B, C and the opposite sides a, b, c (shown with shuffled letters).
struct TriangleRecord {
    int type = 0;
    std::array<double, 3> sides{};   // exact, in cm
    std::array<double, 3> angles{};  // exact, in degrees
    std::array<std::string, 3> vertexNames, sideNames;
};
TriangleRecord MakeTriangle(GeneratorWorkspace& ws, int type);

// Routine 6: a figure with its given data and three asked values a), b), c).
struct ShapeRecord {
    int type = 0;
    std::vector<double> given;       // the data as drawn, in the order the type lists them
    std::array<double, 3> answers{};  // exact
    std::array<int, 3> units{};       // 0 cm, 1 cm², 2 degrees
};
ShapeRecord MakeShape(GeneratorWorkspace& ws, int type);
