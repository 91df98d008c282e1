#pragma once
#include <array>
#include <optional>
#include <string>

#include "mathservices/math_workspace.h"

// Polynomials, linear forms, lines and conics written the way a textbook does: no
// coefficient 1, no term with coefficient 0, no "+ -".

// A polynomial of degree at most 4; an empty variable means "&+Ix&-I".
std::string PolynomialToMarkup(double c4, double c3, double c2, double c1, double c0, std::string variable);
// The polynomial in the workspace's PolyWork, from degree 9 down to 0.
std::string PolyWorkToMarkup(const PolyWork& poly, const std::string& variable);

// One coefficient of a linear form: a number, or a text (a parameter) that replaces it.
struct Coefficient {
    double value = 0;
    std::string text;
    Coefficient(double v = 0) : value(v) {}
    Coefficient(double v, std::string t) : value(v), text(std::move(t)) {}
};

// a·x + b·y + c·z, then either "+ d = 0" (equalsZero) or " = d".
std::string LinearFormToMarkup(const Coefficient& a, const Coefficient& b, const Coefficient& c,
                               const Coefficient& d, bool equalsZero);

// The forms of a line through a point with a direction.
enum class LineForm { Vector = 0, Parametric = 1, Continuous = 2, General = 3, SlopeIntercept = 4 };

// A line of the plane (point and direction with two coordinates) or of space (three).
// A coordinate's text, when not empty, replaces its number.
struct LineData {
    int dimension = 2;
    std::array<double, 3> point{};
    std::array<double, 3> direction{};
    std::array<std::string, 3> pointTexts{};
    std::array<std::string, 3> directionTexts{};
};
std::string VectorFormToMarkup(MathWorkspace& ws, const LineData& line, LineForm form, const std::string& parameter);

// A conic given by its centre (or vertex) and its squared semi-axes.
enum class ConicKind { Circle, Ellipse, Hyperbola, Parabola };
// Reduced: the textbook form ((x - h)²/a² + (y - k)²/b² = 1, (y - k)² = 4p(x - h)).
// General: A·x² + C·y² + D·x + E·y + F = 0. Cleared: the reduced form without fractions
// (b²(x - h)² + a²(y - k)² = a²b²; for a parabola x - h = (y - k)²/4p). ConstantRight: the
// general form with the constant (of a parabola: the linear term) on the right.
enum class ConicStyle { Reduced, General, Cleared, ConstantRight };
struct ConicData {
    ConicKind kind = ConicKind::Circle;
    double h = 0;   // centre or vertex, x
    double k = 0;   // centre or vertex, y
    double a2 = 0;  // radius² of a circle; a² (under x) of an ellipse, a² of a hyperbola; 4p of a parabola
    double b2 = 0;  // b² (under y) of an ellipse; b² of a hyperbola
    bool vertical = false;  // hyperbola opening up and down, or parabola x² = 2p·y
};
std::string ConicToMarkup(MathWorkspace& ws, const ConicData& conic, ConicStyle style);
// The coefficients of the general form, whole ones divided by their common divisor with
// A (or C when A is 0) positive.
struct ConicGeneral {
    double A, C, D, E, F;
};
ConicGeneral ConicGeneralCoefficients(MathWorkspace& ws, const ConicData& conic);
