#include <algorithm>
#include <cmath>

#include "generators/gde/gde_problem.h"
#include "generators/gde/gde_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
const char* const kSquare = "#IMG('m_CUADRADO.GIF'DXmm=21.056:DYmm=-20.992:#IMG)";
const char* const kRhombus = "#IMG('m_ROMBO.GIF'DXmm=13.8:DYmm=-21.72:#IMG)";
const char* const kHexagon = "#IMG('m_HEXAGONO.GIF'DXmm=21.72:DYmm=-21.18:#IMG)";
const char* const kEquilateral = "#IMG('m_TRI_EQUI.GIF'DXmm=22.8:DYmm=-20.976:#IMG)";
const char* const kRightTrapezoid = "#IMG('m_TRAPEREC.GIF'DXmm=24:DYmm=-21:#IMG)";
const char* const kIsosceles = "#IMG('m_TRI_ISOS.GIF'DXmm=22:DYmm=-21.065:#IMG)";
const char* const kTrapezoid = "#IMG('m_TRAPECIO.GIF'DXmm=24:DYmm=-21.06:#IMG)";
const char* const kRectangle = "#IMG('m_RECTANGU.GIF'DXmm=28:DYmm=-20.8:#IMG)";
const char* const kRhomboid = "#IMG('m_PARALELO.GIF'DXmm=29.52:DYmm=-20.8:#IMG)";
const char* const kOctagon = "#IMG('m_OCTAGONO.GIF'DXmm=19.314:DYmm=-21.75:#IMG)";
const char* const kScalene = "#IMG('m_TRI_ESCA.GIF'DXmm=23.2:DYmm=-21.112:#IMG)";

const char* const kCircle = "#IMG('m_CIRCULO.GIF'DXmm=21.808:DYmm=-21.866:#IMG)";
const char* const kSector = "#IMG('m_SECTOR.GIF'DXmm=21:DYmm=-21:#IMG)";
const char* const kCircularTrapezoid = "#IMG('m_TRAPECIR.GIF'DXmm=24:DYmm=-21:#IMG)";
const char* const kAnnulus = "#IMG('m_CORONA.GIF'DXmm=22.04:DYmm=-21.982:#IMG)";
const char* const kAnnulusSmall = "#IMG('m_CORONA.GIF'DXmm=20.9:DYmm=-20.845:#IMG)";

constexpr int kStraightTypes = 18;
constexpr int kCurvedTypes = 8;
const double kRoot2 = std::sqrt(2.0);
const double kRoot3 = std::sqrt(3.0);

std::string Degrees(double angle) { return PlainNumberText(angle) + "\u00B0"; }
} // namespace

// Types: 0 square from its side; 1 rhombus from side and major diagonal; 2 regular
// hexagon from its side; 3 equilateral triangle from its side; 4 right trapezoid from
// bases and area; 5 square from its area; 6 rhombus from its diagonals; 7 isosceles
// triangle from base and sides; 8 equilateral triangle from its area; 9 isosceles
// trapezoid from bases and sides; 10 rectangle from base and diagonal; 11 rhomboid from
// base, side and height; 12 isosceles triangle from base and area; 13 right trapezoid
// from bases and slanted side; 14 isosceles trapezoid from bases and height; 15
// rectangle from area and base; 16 regular octagon from side and apothem; 17 triangle
// from base and height (its area, the one question).
// The triple x² + y² = z² makes the slanted sides whole: the half diagonals and side of
// a rhombus, the legs and hypotenuse of the triangle cut off a trapezoid (an isosceles
// trapezoid has one at each end), the half base, altitude and side of an isosceles
// triangle, the sides and diagonal of a rectangle. Trapezoid and triangle rows draw a
// further number k: the short base, the side of an equilateral triangle (half of it
// when the area is given as k²√3) or a height. Roots in answers are rounded.
GeometryProblem BuildStraightShapeProblem(GeneratorWorkspace& ws) {
    double x = 0, y = 0, z = 0;
    PlaneTriple(ws, 30, x, y, z);
    GeometryProblem p;
    p.type = ws.Seed % kStraightTypes;
    const auto m = [&](double v) { return MeasureText(ws, v); };
    const int t = p.type;
    double k = 0;
    if (t == 3 || t == 4 || t == 8 || t == 9 || t == 13 || t == 14 || t == 17) k = RandomInRange(ws, 3, 12, 1, 1);
    const double big = std::max(x, y), small = std::min(x, y);
    const std::string side = "Length of the side " + Label("l");
    const std::string height = "Height " + Label("h");
    switch (t) {
    case 0:
        p.opening = "A square has a side of " + m(x) + " cm length. Calculate:&LF";
        p.figure = kSquare;
        p.parts = {{"Perimeter", 4 * x, kCm}, {"Area", x * x, kCm2}, {"Diagonal " + Label("d"), x * kRoot2, kCm}};
        p.shape = {{"l", x}};
        break;
    case 1:
        p.opening = "The side of a rhombus is " + GivenCm(ws, z) + " and its diagonal " + Label("D") + " is " +
                    m(2 * big) + "& cm length. Find:&LF";
        p.figure = kRhombus;
        p.parts = {{"Diagonal " + Label("d"), 2 * small, kCm}, {"Perimeter", 4 * z, kCm}, {"Area", 2 * big * small, kCm2}};
        p.shape = {{"D", 2 * big}, {"d", 2 * small}};
        break;
    case 2:
        p.opening = "Consider a regular hexagon whose side is " + m(x) + " cm length. Determine:&LF";
        p.figure = kHexagon;
        p.parts = {{"Perimeter", 6 * x, kCm}, {"Apothem " + Label("a"), x * kRoot3 / 2, kCm},
                   {"Area", 3 * kRoot3 / 2 * x * x, kCm2}};
        p.shape = {{"l", x}};
        break;
    case 3:
        p.opening = "An equilateral triangle has a side of " + m(k) + " cm length. Calculate:&LF";
        p.figure = kEquilateral;
        p.parts = {{height, k * kRoot3 / 2, kCm}, {"Perimeter", 3 * k, kCm}, {"Area", k * k * kRoot3 / 4, kCm2}};
        p.shape = {{"l", k}};
        break;
    case 4: {
        const double bigBase = k + x, area = (bigBase + k) * y / 2;
        p.opening = "Consider a right trapezoid whose bases are " + GivenCm(ws, bigBase) + " and " + GivenCm(ws, k) +
                    ", and whose area is " + m(area) + " cm^2. Find:&LF";
        p.figure = kRightTrapezoid;
        p.parts = {{height, y, kCm}, {side, z, kCm}, {"Perimeter", bigBase + k + y + z, kCm}};
        p.shape = {{"B", bigBase}, {"b", k}, {"h", y}};
        break;
    }
    case 5:
        p.opening = "The area of a square is " + m(x * x) + " cm^2. Determine:&LF";
        p.figure = kSquare;
        p.parts = {{side, x, kCm}, {"Perimeter", 4 * x, kCm}, {"Diagonal " + Label("d"), x * kRoot2, kCm}};
        p.shape = {{"l", x}};
        break;
    case 6:
        p.opening = "A rhombus has diagonals of " + GivenCm(ws, 2 * big) + " and " + m(2 * small) +
                    "& cm length. Calculate:&LF";
        p.figure = kRhombus;
        p.parts = {{side, z, kCm}, {"Perimeter", 4 * z, kCm}, {"Area", 2 * big * small, kCm2}};
        p.shape = {{"D", 2 * big}, {"d", 2 * small}};
        break;
    case 7:
        p.opening = "Consider an isosceles triangle. The base (non-equal side) is " + GivenCm(ws, 2 * x) +
                    " and the other two sides are " + m(z) + "& cm length each. Find:&LF";
        p.figure = kIsosceles;
        p.parts = {{height, y, kCm}, {"Area", x * y, kCm2}, {"Perimeter", 2 * x + 2 * z, kCm}};
        p.shape = {{"b", 2 * x}, {"h", y}};
        break;
    case 8:
        // Side 2k: area k²·√3, written exactly.
        p.opening = "The area of an equilateral triangle is " + NumberToMarkup(k * k) + "#SQR(3#SQR)" +
                    " cm^2. Determine:&LF";
        p.figure = kEquilateral;
        p.parts = {{side, 2 * k, kCm}, {"Perimeter", 6 * k, kCm}, {height, k * kRoot3, kCm}};
        p.shape = {{"l", 2 * k}};
        break;
    case 9: {
        const double bigBase = k + 2 * x;
        p.opening = "A trapezoid has bases of " + GivenCm(ws, bigBase) + " and " + GivenCm(ws, k) +
                    ", and its two non-parallel sides are " + m(z) + "& cm length each. Calculate:&LF";
        p.figure = kTrapezoid;
        p.parts = {{height, y, kCm}, {"Area", (bigBase + k) * y / 2, kCm2}, {"Perimeter", bigBase + k + 2 * z, kCm}};
        p.shape = {{"B", bigBase}, {"b", k}, {"h", y}};
        break;
    }
    case 10:
        p.opening = "Consider a rectangle whose base is " + GivenCm(ws, x) + " and whose diagonal is " + m(z) +
                    " cm length. Find:&LF";
        p.figure = kRectangle;
        p.parts = {{height, y, kCm}, {"Perimeter", 2 * (x + y), kCm}, {"Area", x * y, kCm2}};
        p.shape = {{"b", x}, {"h", y}};
        break;
    case 11: {
        const double base = x + z;
        p.opening = "A rhomboid has a base of " + GivenCm(ws, base) + ", a side of " + GivenCm(ws, z) +
                    " and a height of " + m(y) + "& cm length. Calculate:&LF";
        p.figure = kRhomboid;
        p.parts = {{"Area", base * y, kCm2}, {"Perimeter", 2 * (base + z), kCm}};
        p.shape = {{"b", base}, {"l", z}, {"h", y}};
        break;
    }
    case 12:
        p.opening = "An isosceles triangle has a base (non-equal side) of " + GivenCm(ws, 2 * x) + " and an area of " +
                    m(x * y) + "& cm^2. Calculate:&LF";
        p.figure = kIsosceles;
        p.parts = {{height, y, kCm}, {side, z, kCm}, {"Perimeter", 2 * x + 2 * z, kCm}};
        p.shape = {{"b", 2 * x}, {"h", y}};
        break;
    case 13: {
        const double bigBase = k + x;
        p.opening = "Consider a right trapezoid whose bases are " + GivenCm(ws, bigBase) + " and " + GivenCm(ws, k) +
                    ", and whose slanted side " + Label("l") + " is " + m(z) + "& cm. Find:&LF";
        p.figure = kRightTrapezoid;
        p.parts = {{height, y, kCm}, {"Area", (bigBase + k) * y / 2, kCm2}, {"Perimeter", bigBase + k + y + z, kCm}};
        p.shape = {{"B", bigBase}, {"b", k}, {"h", y}};
        break;
    }
    case 14: {
        const double bigBase = k + 2 * x;
        p.opening = "Consider a trapezoid whose bases are " + GivenCm(ws, bigBase) + " and " + GivenCm(ws, k) +
                    ". Its two non-parallel sides are equal and its height is " + m(y) + "& cm. Calculate:&LF";
        p.figure = kTrapezoid;
        p.parts = {{side, z, kCm}, {"Area", (bigBase + k) * y / 2, kCm2}, {"Perimeter", bigBase + k + 2 * z, kCm}};
        p.shape = {{"B", bigBase}, {"b", k}, {"h", y}};
        break;
    }
    case 15:
        p.opening = "The area of a rectangle is " + GivenCm2(ws, x * y) + " and its base is " + m(x) +
                    " cm length. Calculate:&LF";
        p.figure = kRectangle;
        p.parts = {{height, y, kCm}, {"Diagonal " + Label("d"), z, kCm}, {"Perimeter", 2 * (x + y), kCm}};
        p.shape = {{"b", x}, {"h", y}};
        break;
    case 16: {
        // The apothem is given rounded, and the area is taken from it as perimeter ×
        // apothem / 2, as the pupil does.
        const double apothem = RoundAtPosition(ws, x * (1 + kRoot2) / 2, -3);
        p.opening = "A regular octagon has a side of " + GivenCm(ws, x) + " and an apothem of " + m(apothem) +
                    "& cm length. Find:&LF";
        p.figure = kOctagon;
        p.parts = {{"Perimeter", 8 * x, kCm}, {"Area", 4 * x * apothem, kCm2}};
        p.shape = {{"l", x}, {"a", apothem}};
        break;
    }
    default:
        p.opening = "A triangle has a base of " + GivenCm(ws, x) + " and a height of " + m(k) + "& cm. Calculate:&LF";
        p.figure = kScalene;
        p.parts = {{"Area", x * k / 2, kCm2}};
        p.shape = {{"b", x}, {"h", k}};
        break;
    }
    return p;
}

// Routine 3: squares, rhombi, regular polygons, triangles, trapezoids, rectangles and
// rhomboids.
void PlaneShapesStraight(GeneratorWorkspace& ws) {
    WriteGeometryProblem(ws, BuildStraightShapeProblem(ws), {"&SP=75:", "&SP=75:", false});
}

// Types: 0 circle from its radius; 1 sector from radius and angle; 2 circular trapezoid
// from radii and angle; 3 circle from its perimeter; 4 annulus from its radii; 5 sector
// from area and angle (its radius, the one question); 6 circle from its area; 7 annulus
// from major radius and area.
// A radius R, a smaller radius r and an angle α in degrees. Given areas and perimeters
// are written as exact multiples of pi, so that the radius found from them is whole.
GeometryProblem BuildCurvedShapeProblem(GeneratorWorkspace& ws) {
    double bigRadius = 0, smallRadius = 0, angle = 0;
    {
        RetryBound bound;
        while (true) {
            bigRadius = RandomInRange(ws, 5, 40, 1, 1);
            smallRadius = RandomInRange(ws, 5, 20, 1, 1);
            if (smallRadius < bigRadius) break;
            bound.Next();
        }
    }
    angle = RandomInRange(ws, 20, 160, 1, 1);
    GeometryProblem p;
    p.type = ws.Seed % kCurvedTypes;
    const auto m = [&](double v) { return MeasureText(ws, v); };
    const double R = bigRadius, r = smallRadius;
    const std::string alpha = "&alfa";
    switch (p.type) {
    case 0:
        p.opening = "The radius of a circle is " + m(R) + " cm length. Calculate:&LF";
        p.figure = kCircle;
        p.parts = {{"Perimeter", 2 * kPi * R, kCm}, {"Area", kPi * R * R, kCm2}};
        p.shape = {{"r", R}};
        break;
    case 1:
        p.opening = "A circular sector has a radius of " + GivenCm(ws, R) + " and an angle " + alpha + " of " +
                    Degrees(angle) + ". Calculate:&LF";
        p.figure = kSector;
        p.parts = {{"Area", kPi * R * R * angle / 360, kCm2}, {"Perimeter", 2 * R + 2 * kPi * R * angle / 360, kCm}};
        p.shape = {{"r", R}, {"angle", angle}};
        break;
    case 2:
        p.opening = "A circular trapezoid has radii of " + GivenCm(ws, R) + " and " + GivenCm(ws, r) + ", and an angle " +
                    alpha + " of " + Degrees(angle) + ". Calculate:&LF";
        p.figure = kCircularTrapezoid;
        p.parts = {{"Area", kPi * (R * R - r * r) * angle / 360, kCm2},
                   {"Perimeter", 2 * (R - r) + 2 * kPi * (R + r) * angle / 360, kCm}};
        p.shape = {{"R", R}, {"r", r}, {"angle", angle}};
        break;
    case 3:
        p.opening = "The perimeter of a circle is " + PiMultiple(2 * R) + " cm. Calculate:&LF";
        p.figure = kCircle;
        p.parts = {{"Radius " + Label("r"), R, kCm}, {"Area", kPi * R * R, kCm2}};
        p.shape = {{"r", R}};
        break;
    case 4:
        p.opening = "An annulus has radii of " + GivenCm(ws, R) + " and " + GivenCm(ws, r) + ". Calculate:&LF";
        p.figure = kAnnulus;
        p.parts = {{"Area", kPi * (R * R - r * r), kCm2}, {"Perimeter", 2 * kPi * (R + r), kCm}};
        p.shape = {{"R", R}, {"r", r}};
        break;
    case 5: {
        // The area R²·α/360 times pi must be a whole multiple of pi: radius and angle are
        // drawn again until it is.
        RetryBound bound;
        while (std::fmod(bigRadius * bigRadius * angle, 360) != 0) {
            bound.Next();
            bigRadius = RandomInRange(ws, 5, 40, 1, 1);
            angle = RandomInRange(ws, 20, 160, 1, 1);
        }
        const double radius = bigRadius;
        p.opening = "Consider a circular sector whose area is " + PiMultiple(radius * radius * angle / 360) +
                    "& cm^2 and whose angle " + alpha + " is " + Degrees(angle) + ". Calculate:&LF";
        p.figure = kSector;
        p.parts = {{"Radius " + Label("r"), radius, kCm}};
        p.shape = {{"r", radius}, {"angle", angle}};
        break;
    }
    case 6:
        p.opening = "A circle has an area of " + PiMultiple(R * R) + " cm^2. Calculate:&LF";
        p.figure = kCircle;
        p.parts = {{"Radius " + Label("r"), R, kCm}, {"Perimeter", 2 * kPi * R, kCm}};
        p.shape = {{"r", R}};
        break;
    default:
        p.opening = "Consider an annulus whose major radius is " + GivenCm(ws, R) + " and whose area is " +
                    PiMultiple(R * R - r * r) + "& cm^2. Calculate:&LF";
        p.figure = kAnnulusSmall;
        p.parts = {{"Radius " + Label("r"), r, kCm}, {"Perimeter", 2 * kPi * (R + r), kCm}};
        p.shape = {{"R", R}, {"r", r}};
        break;
    }
    return p;
}

// Routine 4: circles, circular sectors and trapezoids, annuli. Its single answer keeps
// the letter "a)".
void PlaneShapesCurved(GeneratorWorkspace& ws) {
    WriteGeometryProblem(ws, BuildCurvedShapeProblem(ws), {"&SP=75:", "&SP=75:", true});
}
