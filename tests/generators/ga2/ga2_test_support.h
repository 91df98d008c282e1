#pragma once
#include <string>
#include <vector>

// Reading the plane geometry problems back: exact numbers, points and equations.

// A number as the exact writer gives it: "-3", "2&.5", "#COC(-3#N)(4#COC)", "3#SQR(5#SQR)",
// "#COC(#SQR(2#SQR)#N)(2#COC)", "-& 2#SQR(3#SQR)". Fails the test on anything else.
double ReadExact(const std::string& text);

struct Point2 {
    double x, y;
    std::string label;  // the italic text just before the bracket, "" when none
};
// Every "(" x ",& & " y ")" of the text, in order.
std::vector<Point2> PointsIn(const std::string& text);

// A·x² + C·y² + D·x + E·y + F = 0 read from an equation in the textbook forms the
// general writer gives (both sides; terms in x², y², x, y and constants).
struct General2 {
    double A = 0, C = 0, D = 0, E = 0, F = 0;
    double At(double x, double y) const { return A * x * x + C * y * y + D * x + E * y + F; }
};
General2 ReadGeneral(const std::string& equation, const std::string& parameter = "", double parameterValue = 0);

// The text between from (excluded) and the next "&LF", or to the end.
std::string Between(const std::string& text, const std::string& from, const std::string& to = "&LF",
                    std::size_t start = 0);

// A line of the plane in any of the five forms of the line writer (vector, parametric,
// symmetric, general, slope-intercept), as D·x + E·y + F = 0 in a General2.
General2 ReadLine(const std::string& text, const std::string& parameter = "", double value = 0);

// An ellipse or hyperbola in a reduced or cleared form: sums of squared shifts, each with
// a factor or over a denominator, equal to a number; expanded into a General2.
General2 ReadSquaredForm(const std::string& equation);

// An angle written "d° m' s.ss\"" (or "d°" alone for a whole angle) in degrees.
double ReadDegrees(const std::string& text);
