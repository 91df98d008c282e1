#include <cmath>

#include "generators/gde/gde_problem.h"
#include "generators/gde/gde_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"

namespace {
const char* const kRightTriangle = "#IMG('m_TRIANREC.GIF'DXmm=32:DYmm=-25.68:#IMG)";
const char* const kRectangle = "#IMG('m_RECTANGU.GIF'DXmm=35:DYmm=-26:#IMG)";
const char* const kIsosceles = "#IMG('m_TRI_ISOS.GIF'DXmm=28:DYmm=-26.81:#IMG)";
constexpr int kTypes = 10;
} // namespace

// Types: 0 right triangle from its altitude and a cathetus; 1 rectangle from diagonal
// and base; 2 right triangle from area and a cathetus; 3 rectangle from height and
// diagonal; 4 isosceles triangle from base and side; 5 rectangle from area and base;
// 6 right triangle from hypotenuse and a cathetus; 7 rectangle from perimeter and base;
// 8 right triangle from perimeter and a cathetus; 9 isosceles triangle from altitude
// and base.
// The triple gives every side whole: a right triangle with catheti b, c and hypotenuse
// a; a rectangle with base b, height h and diagonal d; an isosceles triangle whose half
// base, altitude and equal side l are the triple. The opening gives two measures and the
// parts ask for the others.
GeometryProblem BuildPythagoreanProblem(GeneratorWorkspace& ws) {
    double x = 0, y = 0, z = 0;
    PlaneTriple(ws, 30, x, y, z);
    GeometryProblem p;
    p.type = ws.Seed % kTypes;
    const auto m = [&](double v) { return MeasureText(ws, v); };
    const double b = x, c = y, a = z;  // right triangle and rectangle (c is the height)
    const double area = b * c / 2;
    const double altitude = b * c / a;
    const std::string otherCathetus = "Length of the other cathetus " + Label("c");
    const std::string hypotenuse = "Hypotenuse " + Label("a");
    const std::string altitudeQuestion = "Length of altitude " + Label("h");
    switch (p.type) {
    case 0: {
        // The altitude is given: only triples whose altitude ends within two decimals.
        RetryBound bound;
        while (std::fmod(x * y * 100, z) != 0) {
            bound.Next();
            PlaneTriple(ws, 30, x, y, z);
        }
        const double h = x * y / z;
        p.opening = "A right triangle has an altitude of " + GivenCm(ws, h) + " on the hypotenuse and a cathetus " +
                    Label("b") + "& =& " + m(x) + "& cm length. Calculate:&LF";
        p.figure = kRightTriangle;
        p.parts = {{otherCathetus, y, kCm}, {hypotenuse, z, kCm}, {"Area", x * y / 2, kCm2}, {"Perimeter", x + y + z, kCm}};
        p.shape = {{"b", x}, {"c", y}};
        break;
    }
    case 1:
        p.opening = "The diagonal of a rectangle is " + GivenCm(ws, a) + " and its base is " + m(b) +
                    "& cm length. Find:&LF";
        p.figure = kRectangle;
        p.parts = {{"Height " + Label("h"), c, kCm}, {"Area", b * c, kCm2}, {"Perimeter", 2 * (b + c), kCm}};
        p.shape = {{"b", b}, {"h", c}};
        break;
    case 2:
        p.opening = "A right triangle has an area of " + GivenCm2(ws, area) + " and one of its catheti is " + m(b) +
                    "& cm length. Determine:&LF";
        p.figure = kRightTriangle;
        p.parts = {{otherCathetus, c, kCm}, {hypotenuse, a, kCm}, {"Perimeter", a + b + c, kCm},
                   {altitudeQuestion, altitude, kCm}};
        p.shape = {{"b", b}, {"c", c}};
        break;
    case 3:
        p.opening = "Consider a rectangle whose height is " + GivenCm(ws, c) + " and whose diagonal is " + m(a) +
                    "& cm length. Calculate:&LF";
        p.figure = kRectangle;
        p.parts = {{"Length of its base " + Label("b"), b, kCm}, {"Area", b * c, kCm2}, {"Perimeter", 2 * (b + c), kCm}};
        p.shape = {{"b", b}, {"h", c}};
        break;
    case 4:
        p.opening = "The isosceles triangle shown below has a base of " + GivenCm(ws, 2 * x) + " and equal sides of " +
                    m(z) + "& cm length. Find:&LF";
        p.figure = kIsosceles;
        p.parts = {{altitudeQuestion, y, kCm}, {"Area", x * y, kCm2}, {"Perimeter", 2 * x + 2 * z, kCm}};
        p.shape = {{"b", 2 * x}, {"h", y}};
        break;
    case 5:
        p.opening = "A rectangle has an area of " + GivenCm2(ws, b * c) + " and a base of " + m(b) +
                    "& cm length. Determine:&LF";
        p.figure = kRectangle;
        p.parts = {{"Height " + Label("h"), c, kCm}, {"Diagonal " + Label("d"), a, kCm}, {"Perimeter", 2 * (b + c), kCm}};
        p.shape = {{"b", b}, {"h", c}};
        break;
    case 6:
        p.opening = "The hypotenuse of a right triangle is " + GivenCm(ws, a) + " and one of its catheti is " + m(b) +
                    "& cm length. Calculate:&LF";
        p.figure = kRightTriangle;
        p.parts = {{otherCathetus, c, kCm}, {"Area", area, kCm2}, {"Perimeter", a + b + c, kCm},
                   {altitudeQuestion, altitude, kCm}};
        p.shape = {{"b", b}, {"c", c}};
        break;
    case 7:
        p.opening = "A rectangle has a perimeter of " + GivenCm(ws, 2 * (b + c)) + " and a base of " + m(b) +
                    "& cm length. Find:&LF";
        p.figure = kRectangle;
        p.parts = {{"Height " + Label("h"), c, kCm}, {"Diagonal " + Label("d"), a, kCm}, {"Area", b * c, kCm2}};
        p.shape = {{"b", b}, {"h", c}};
        break;
    case 8:
        // From the perimeter and one cathetus: a + c and a - c = b² / (a + c).
        p.opening = "A right triangle has a perimeter of " + GivenCm(ws, a + b + c) + " and one of its catheti is " +
                    m(b) + "& cm length. Determine:&LF";
        p.figure = kRightTriangle;
        p.parts = {{otherCathetus, c, kCm}, {hypotenuse, a, kCm}, {"Area", area, kCm2}};
        p.shape = {{"b", b}, {"c", c}};
        break;
    default:
        p.opening = "The altitude of the isosceles triangle shown below is " + GivenCm(ws, y) + " and its base is " +
                    m(2 * x) + "& cm length. Calculate:&LF";
        p.figure = kIsosceles;
        p.parts = {{"Length of the side " + Label("l"), z, kCm}, {"Area", x * y, kCm2}, {"Perimeter", 2 * x + 2 * z, kCm}};
        p.shape = {{"b", 2 * x}, {"h", y}};
        break;
    }
    return p;
}

// Routine 1: right triangles, rectangles and isosceles triangles by the Pythagorean
// theorem.
void PythagoreanTheorem(GeneratorWorkspace& ws) {
    WriteGeometryProblem(ws, BuildPythagoreanProblem(ws), {"&SP=66:", "&SP=69:", false});
}
