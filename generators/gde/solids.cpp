#include <algorithm>
#include <cmath>

#include "generators/gde/gde_problem.h"
#include "generators/gde/gde_routines.h"
#include "mathservices/arithmetic.h"

namespace {
const char* const kCube = "#IMG('m_CUBO.GIF'DXmm=20.898:DYmm=-21.006:#IMG)";
const char* const kPyramid = "#IMG('m_PIRAMIDE.GIF'DXmm=20.304:DYmm=-21.006:#IMG)";
const char* const kCuboid = "#IMG('m_ORTOEDRO.GIF'DXmm=15.876:DYmm=-20.952:#IMG)";
const char* const kCylinder = "#IMG('m_CILINDRO.GIF'DXmm=17.766:DYmm=-20.952:#IMG)";
const char* const kCone = "#IMG('m_CONO.GIF'DXmm=19.215:DYmm=-20.916:#IMG)";
const char* const kSphere = "#IMG('m_ESFERA.GIF'DXmm=21.147:DYmm=-20.976:#IMG)";

constexpr int kPlaneSolidTypes = 12;
constexpr int kCurvedSolidTypes = 9;
const double kRoot3 = std::sqrt(3.0);

// Of the two legs of a Pythagorean triple one is always a multiple of 3: it is taken as
// the altitude of a pyramid or cone (so that a third of base times altitude is whole) or
// as the radius of a sphere (so that 4/3·r³ is whole).
void SplitByThree(double x, double y, double& multipleOfThree, double& other) {
    if (std::fmod(y, 3) == 0) {
        multipleOfThree = y;
        other = x;
    } else {
        multipleOfThree = x;
        other = y;
    }
}
} // namespace

// Types: 0 cube from its edge; 1 square prism from edge and volume; 2 pyramid from base
// edge and slant height; 3 cube from its volume; 4 rectangular prism from its edges;
// 5 pyramid from altitude and volume; 6 cube from its surface area; 7 rectangular prism
// from base edges and volume; 8 pyramid from base edge and volume; 9 square prism from
// edge and altitude; 10 rectangular prism from base edges and space diagonal; 11
// hexagonal prism from edge and altitude.
// The plane triple makes a cube's edge, and a square pyramid whose half base edge,
// altitude h and slant height g are the triple (base edge a = twice the first), and the
// hexagonal prism's edge and altitude. The spatial triple makes the edges a, b, c of a
// rectangular prism with a whole space diagonal D; for the square prisms it is drawn
// with a = b. Seed mod 3 turns the three edges of a rectangular prism round.
GeometryProblem BuildPlaneSolidProblem(GeneratorWorkspace& ws) {
    double x = 0, y = 0, z = 0;
    PlaneTriple(ws, 30, x, y, z);
    GeometryProblem p;
    p.type = ws.Seed % kPlaneSolidTypes;
    const bool squarePrism = p.type == 1 || p.type == 9;
    double e1 = 0, e2 = 0, e3 = 0, d = 0;
    SpatialTriple(ws, 25, squarePrism, false, e1, e2, e3, d);
    double a = e1, b = e2, c = e3;
    if (!squarePrism) {
        const int turn = ws.Seed % 3;
        if (turn == 1) {
            a = e2, b = e3, c = e1;
        } else if (turn == 2) {
            a = e3, b = e1, c = e2;
        }
    }
    double h = 0, half = 0;
    SplitByThree(x, y, h, half);
    const double base = 2 * half, g = z;  // the pyramid
    const auto m = [&](double v) { return MeasureText(ws, v); };
    const std::string edge = "Length of its edge " + Label("a");
    const std::string spaceDiagonal = "Space diagonal " + Label("D");
    const std::string altitude = "Length of its altitude " + Label("h");
    const std::string slant = "Slant height " + Label("g");
    const double pyramidArea = base * base + 2 * base * g, pyramidVolume = base * base * h / 3;
    const double cuboidArea = 2 * (a * b + b * c + c * a), cuboidVolume = a * b * c;
    switch (p.type) {
    case 0:
        p.opening = "The edge of a cube is " + m(x) + " cm length. Calculate:&LF";
        p.figure = kCube;
        p.parts = {{"Surface area", 6 * x * x, kCm2}, {"Volume", x * x * x, kCm3}, {spaceDiagonal, x * kRoot3, kCm}};
        p.shape = {{"a", x}, {"b", x}, {"c", x}};
        break;
    case 1:
        p.opening = "The base of a prism is a square whose edge is " + GivenCm(ws, a) + " and its volume is " +
                    m(a * a * c) + " cm^3. Find:&LF";
        // No picture: no labels.
        p.parts = {{"Length of its altitude", c, kCm}, {"Space diagonal", d, kCm}, {"Surface area", cuboidArea, kCm2}};
        p.shape = {{"a", a}, {"b", b}, {"c", c}};
        break;
    case 2:
        p.opening = "The base of a pyramid is a square whose edge is " + GivenCm(ws, base) + " and its slant height " +
                    Label("g") + " is " + m(g) + " cm. Determine:&LF";
        p.figure = kPyramid;
        p.parts = {{altitude, h, kCm}, {"Surface area", pyramidArea, kCm2}, {"Volume", pyramidVolume, kCm3}};
        p.shape = {{"a", base}, {"h", h}};
        break;
    case 3:
        p.opening = "A cube has a volume of " + m(x * x * x) + " cm^3. Calculate:&LF";
        p.figure = kCube;
        p.parts = {{edge, x, kCm}, {"Surface area", 6 * x * x, kCm2}, {spaceDiagonal, x * kRoot3, kCm}};
        p.shape = {{"a", x}, {"b", x}, {"c", x}};
        break;
    case 4:
        p.opening = "The edges of a right prism are " + GivenCm(ws, a) + ",  " + GivenCm(ws, b) + " and " + m(c) +
                    "& cm. Find:&LF";
        p.figure = kCuboid;
        p.parts = {{spaceDiagonal, d, kCm}, {"Surface area", cuboidArea, kCm2}, {"Volume", cuboidVolume, kCm3}};
        p.shape = {{"a", a}, {"b", b}, {"c", c}};
        break;
    case 5:
        p.opening = "A pyramid has a square base, its altitude is " + GivenCm(ws, h) + " and its volume is " +
                    m(pyramidVolume) + " cm^3. Determine:&LF";
        p.figure = kPyramid;
        p.parts = {{edge, base, kCm}, {slant, g, kCm}, {"Surface area", pyramidArea, kCm2}};
        p.shape = {{"a", base}, {"h", h}};
        break;
    case 6:
        p.opening = "The surface area of a cube is " + m(6 * x * x) + " cm^2. Calculate:&LF";
        p.figure = kCube;
        p.parts = {{edge, x, kCm}, {"Volume", x * x * x, kCm3}, {spaceDiagonal, x * kRoot3, kCm}};
        p.shape = {{"a", x}, {"b", x}, {"c", x}};
        break;
    case 7:
        p.opening = "A right prism has a base whose edges are " + GivenCm(ws, a) + " and " + GivenCm(ws, b) +
                    ", and its volume is " + m(cuboidVolume) + "& cm^3. Find:&LF";
        p.figure = kCuboid;
        p.parts = {{"Length of its altitude " + Label("c"), c, kCm}, {spaceDiagonal, d, kCm},
                   {"Surface area", cuboidArea, kCm2}};
        p.shape = {{"a", a}, {"b", b}, {"c", c}};
        break;
    case 8:
        p.opening = "The base of a pyramid is a square whose edge is " + GivenCm(ws, base) + " and its volume is " +
                    m(pyramidVolume) + " cm^3. Determine:&LF";
        p.figure = kPyramid;
        p.parts = {{altitude, h, kCm}, {slant, g, kCm}, {"Surface area", pyramidArea, kCm2}};
        p.shape = {{"a", base}, {"h", h}};
        break;
    case 9:
        p.opening = "The base of a prism is a square whose edge is " + GivenCm(ws, a) + " and its altitude is " +
                    m(c) + " cm length. Calculate:&LF";
        p.parts = {{"Space diagonal", d, kCm}, {"Surface area", cuboidArea, kCm2}, {"Volume", cuboidVolume, kCm3}};
        p.shape = {{"a", a}, {"b", b}, {"c", c}};
        break;
    case 10:
        p.opening = "The base of a prism is a rectangle whose edges are " + GivenCm(ws, a) + " and " + GivenCm(ws, b) +
                    ", and its space diagonal " + Label("D") + " is " + m(d) + "& cm length. Find:&LF";
        p.figure = kCuboid;
        p.parts = {{"Length of its altitude " + Label("c"), c, kCm}, {"Volume", cuboidVolume, kCm3},
                   {"Surface area", cuboidArea, kCm2}};
        p.shape = {{"a", a}, {"b", b}, {"c", c}};
        break;
    default:
        p.opening = "The base of a prism is a regular hexagon whose edge is " + GivenCm(ws, x) + " and its altitude is " +
                    m(y) + " cm. Determine:&LF";
        p.parts = {{"Surface area", 6 * x * y + 3 * kRoot3 * x * x, kCm2}, {"Volume", 3 * kRoot3 / 2 * x * x * y, kCm3}};
        p.shape = {{"l", x}, {"h", y}};
        break;
    }
    return p;
}

// Routine 5: cubes, prisms and square pyramids.
void SpatialShapesPlane(GeneratorWorkspace& ws) {
    WriteGeometryProblem(ws, BuildPlaneSolidProblem(ws), {"&SP=75:", "&SP=75:", false});
}

// Types: 0 cylinder from radius and altitude; 1 cone from radius and altitude; 2 sphere
// from its radius; 3 cylinder from radius and volume; 4 cone from radius and volume;
// 5 sphere from its volume; 6 cylinder from altitude and volume; 7 cone from slant
// height and radius; 8 sphere from its surface area.
// The triple gives a cylinder's radius and altitude, and a cone whose radius r, altitude
// h and slant height g are the triple. Given volumes and areas with pi are written as
// exact multiples of pi, so that the measures found from them are whole.
GeometryProblem BuildCurvedSolidProblem(GeneratorWorkspace& ws) {
    double x = 0, y = 0, z = 0;
    PlaneTriple(ws, 30, x, y, z);
    GeometryProblem p;
    p.type = ws.Seed % kCurvedSolidTypes;
    double third = 0, other = 0;
    SplitByThree(x, y, third, other);
    const auto m = [&](double v) { return MeasureText(ws, v); };
    // Cylinder r = x, h = y; cone r = other, h = third, g = z; sphere r = third.
    const double coneR = other, coneH = third, coneG = z, sphereR = third;
    const std::string radius = "Radius " + Label("r");
    const std::string altitude = "Length of its altitude " + Label("h");
    const std::string slant = "Slant height " + Label("g");
    const double cylinderArea = 2 * kPi * x * (x + y), cylinderVolume = kPi * x * x * y;
    const double coneArea = kPi * coneR * (coneR + coneG), coneVolume = kPi * coneR * coneR * coneH / 3;
    const double sphereArea = 4 * kPi * sphereR * sphereR, sphereVolume = 4 * kPi * sphereR * sphereR * sphereR / 3;
    switch (p.type) {
    case 0:
        p.opening = "A cylinder has a radius of " + GivenCm(ws, x) + " and an altitude of " + m(y) + " cm. Calculate:&LF";
        p.figure = kCylinder;
        p.parts = {{"Surface area", cylinderArea, kCm2}, {"Volume", cylinderVolume, kCm3}};
        p.shape = {{"r", x}, {"h", y}};
        break;
    case 1:
        p.opening = "The radius of a cone is " + GivenCm(ws, coneR) + " and its altitude is " + m(coneH) + " cm. Find:&LF";
        p.figure = kCone;
        p.parts = {{slant, coneG, kCm}, {"Surface area", coneArea, kCm2}, {"Volume", coneVolume, kCm3}};
        p.shape = {{"r", coneR}, {"h", coneH}};
        break;
    case 2:
        p.opening = "A sphere has a radius of " + m(sphereR) + " cm. Determine:&LF";
        p.figure = kSphere;
        p.parts = {{"Surface area", sphereArea, kCm2}, {"Volume", sphereVolume, kCm3}};
        p.shape = {{"r", sphereR}};
        break;
    case 3:
        p.opening = "The radius of a cylinder is " + GivenCm(ws, x) + " and its volume is " + PiMultiple(x * x * y) +
                    " cm^3. Calculate:&LF";
        p.figure = kCylinder;
        p.parts = {{altitude, y, kCm}, {"Surface area", cylinderArea, kCm2}};
        p.shape = {{"r", x}, {"h", y}};
        break;
    case 4:
        p.opening = "A cone has a radius of " + GivenCm(ws, coneR) + " and a volume of " +
                    PiMultiple(coneR * coneR * coneH / 3) + " cm^3. Find:&LF";
        p.figure = kCone;
        p.parts = {{altitude, coneH, kCm}, {slant, coneG, kCm}, {"Surface area", coneArea, kCm2}};
        p.shape = {{"r", coneR}, {"h", coneH}};
        break;
    case 5:
        p.opening = "The volume of a sphere is " + PiMultiple(4 * sphereR * sphereR * sphereR / 3) +
                    " cm^3. Determine:&LF";
        p.figure = kSphere;
        p.parts = {{radius, sphereR, kCm}, {"Surface area", sphereArea, kCm2}};
        p.shape = {{"r", sphereR}};
        break;
    case 6:
        p.opening = "A cylinder has an altitude of " + GivenCm(ws, y) + " and a volume of " + PiMultiple(x * x * y) +
                    " cm^3. Calculate:&LF";
        p.figure = kCylinder;
        p.parts = {{radius, x, kCm}, {"Surface area", cylinderArea, kCm2}};
        p.shape = {{"r", x}, {"h", y}};
        break;
    case 7:
        p.opening = "The slant height of a cone is " + GivenCm(ws, coneG) + " and its radius is " + m(coneR) +
                    " cm. Find:&LF";
        p.figure = kCone;
        p.parts = {{altitude, coneH, kCm}, {"Surface area", coneArea, kCm2}, {"Volume", coneVolume, kCm3}};
        p.shape = {{"r", coneR}, {"h", coneH}};
        break;
    default:
        p.opening = "A sphere has a surface area of " + PiMultiple(4 * sphereR * sphereR) + " cm^2. Determine:&LF";
        p.figure = kSphere;
        p.parts = {{radius, sphereR, kCm}, {"Volume", sphereVolume, kCm3}};
        p.shape = {{"r", sphereR}};
        break;
    }
    return p;
}

// Routine 6: cylinders, cones and spheres.
void SpatialShapesCurved(GeneratorWorkspace& ws) {
    WriteGeometryProblem(ws, BuildCurvedSolidProblem(ws), {"&SP=75:", "&SP=75:", false});
}
