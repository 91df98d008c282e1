#include <cmath>

#include "generators/tri/tri_records.h"
#include "generators/tri/tri_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
constexpr double kDegree = kPi / 180;
double Sin(double degrees) { return std::sin(degrees * kDegree); }
double Cos(double degrees) { return std::cos(degrees * kDegree); }
double Tan(double degrees) { return std::tan(degrees * kDegree); }
double Atan2(double y, double x) { return std::atan2(y, x) / kDegree; }
double Even(double x) { return 2 * Int(x / 2); }

enum Unit { kCm = 0, kSquareCm = 1, kDegrees = 2 };

// The figures, with the letters the statements use.
constexpr const char* kTriangleWithHeight = "#IMG('m_trigo_tria_hch.gif'DXmm=46:DYmm=-30.94:#IMG)";
constexpr const char* kTwoRightTriangles = "#IMG('m_trigo_tria_hhc.gif'DXmm=37:DYmm=-26.825:#IMG)";
constexpr const char* kRhomboid = "#IMG('m_trigo_romde.gif'DXmm=49:DYmm=-20.59:#IMG)";
constexpr const char* kRhombus = "#IMG('m_trigo_rombo.gif'DXmm=42:DYmm=-26.985:#IMG)";
constexpr const char* kTrapezoid = "#IMG('m_trigo_trape.gif'DXmm=42:DYmm=-22.019:#IMG)";
} // namespace

// The types. u (1 to 4) scales every length drawn.
//   0  triangle ABC with the height AD onto BC: AD, angle B, DC given;
//      AB = AD / sin B, BC = AD / tan B + DC, C = atan(AD / DC)
//   1  right triangles ABC and ABD (right angle at B; C between B and D): CD, angle D,
//      angle ACB given; AB = CD / (cot D − cot C), BC = AB / tan C, AD = AB / sin D
//   2  rhomboid ABCD: AB, AD, angle A given; height onto AB = AD·sin A, area AB·AD·sin A,
//      diagonal BD² = AB² + AD² − 2·AB·AD·cos A
//   3  rhombus ABCD: side and angle A given; BD = 2·side·sin(A/2), AC = 2·side·cos(A/2),
//      area side²·sin A
//   4  right trapezoid ABCD (right angles at B and C): AB, angle A, AD given;
//      height AD·sin A, upper base DC = AB − AD·cos A, area (AB + DC)·height / 2
//   5  triangle ABC with the height AD onto BC: area, BC (even), angle B given;
//      AD = 2·area / BC, AB = AD / sin B, C from BD = AD / tan B and DC = BC − BD
//      (D inside BC)
//   6  rhomboid ABCD on the base AB: AB (even), area, angle A given; height area / AB,
//      AD = height / sin A, diagonal BD² = AB² + AD² − 2·AB·AD·cos A
//   7  rhombus ABCD: the diagonals AC and BD given; side √((AC/2)² + (BD/2)²),
//      angle A = 2·atan(BD / AC), area AC·BD / 2
//   8  right trapezoid ABCD: area, AB, DC given; height 2·area / (AB + DC),
//      angle A = atan(height / (AB − DC)), AD = √(height² + (AB − DC)²)
//   9  right triangles ABC and ABD: AB, angle D, angle ACB given; BC = AB / tan C,
//      BD = AB / tan D, CD = BD − BC
//   10 rhombus ABCD: the minor diagonal BD (even) and the side given; AC =
//      2·√(side² − (BD/2)²), angle A = 2·atan(BD / AC), area AC·BD / 2
ShapeRecord MakeShape(GeneratorWorkspace& ws, int type) {
    ShapeRecord rec;
    rec.type = type;
    const double u = RandomInRange(ws, 1, 4, 1, 1);
    RetryBound bound;
    while (true) {
        switch (type) {
        case 0: {
            const double h = u * RandomInRange(ws, 5, 18, 1, 1);
            const double B = RandomInRange(ws, 18, 42, 1, 1);
            const double dc = u * RandomInRange(ws, 5, 12, 1, 1);
            rec.given = {h, B, dc};
            rec.answers = {h / Sin(B), h / Tan(B) + dc, Atan2(h, dc)};
            rec.units = {kCm, kCm, kDegrees};
            return rec;
        }
        case 1:
        case 9: {
            const double length = u * RandomInRange(ws, 5, 18, 1, 1);
            const double D = RandomInRange(ws, 18, 42, 1, 1);
            const double C = RandomInRange(ws, 48, 70, 1, 1);
            rec.given = {length, D, C};
            if (type == 1) {
                const double ab = length / (1 / Tan(D) - 1 / Tan(C));
                rec.answers = {ab, ab / Tan(C), ab / Sin(D)};
            } else {
                rec.answers = {length / Tan(C), length / Tan(D), length / Tan(D) - length / Tan(C)};
            }
            rec.units = {kCm, kCm, kCm};
            return rec;
        }
        case 2: {
            const double ab = u * RandomInRange(ws, 5, 18, 1, 1);
            const double A = RandomInRange(ws, 18, 60, 1, 1);
            const double ad = u * RandomInRange(ws, 2, 7, 1, 1);
            rec.given = {ab, ad, A};
            rec.answers = {ad * Sin(A), ab * ad * Sin(A), std::sqrt(ab * ab + ad * ad - 2 * ab * ad * Cos(A))};
            rec.units = {kCm, kSquareCm, kCm};
            return rec;
        }
        case 3: {
            const double side = u * RandomInRange(ws, 5, 18, 1, 1);
            const double A = RandomInRange(ws, 18, 60, 1, 1);
            rec.given = {side, A};
            rec.answers = {2 * side * Sin(A / 2), 2 * side * Cos(A / 2), side * side * Sin(A)};
            rec.units = {kCm, kCm, kSquareCm};
            return rec;
        }
        case 4: {
            const double ab = u * RandomInRange(ws, 5, 18, 1, 1);
            const double A = RandomInRange(ws, 20, 65, 1, 1);
            const double ad = u * RandomInRange(ws, 5, 18, 1, 1);
            const double dc = ab - ad * Cos(A);
            // The upper base must be a real one, not shorter than a fifth of the lower.
            if (dc >= ab / 5) {
                const double h = ad * Sin(A);
                rec.given = {ab, A, ad};
                rec.answers = {h, dc, (ab + dc) * h / 2};
                rec.units = {kCm, kCm, kSquareCm};
                return rec;
            }
            break;
        }
        case 5: {
            const double bc = u * Even(RandomInRange(ws, 5, 18, 1, 1));
            const double B = RandomInRange(ws, 18, 42, 1, 1);
            const double h = u * RandomInRange(ws, 5, 12, 1, 1);
            const double area = bc * h / 2;
            const double bd = h / Tan(B);
            // The foot D of the height lies inside BC, as the figure shows it.
            if (bd < bc) {
                rec.given = {area, bc, B};
                rec.answers = {h, h / Sin(B), Atan2(h, bc - bd)};
                rec.units = {kCm, kCm, kDegrees};
                return rec;
            }
            break;
        }
        case 6: {
            const double ab = u * Even(RandomInRange(ws, 5, 18, 1, 1));
            const double h = u * RandomInRange(ws, 2, 7, 1, 1);
            const double A = RandomInRange(ws, 30, 75, 1, 1);
            const double ad = h / Sin(A);
            rec.given = {ab, ab * h, A};
            rec.answers = {h, ad, std::sqrt(ab * ab + ad * ad - 2 * ab * ad * Cos(A))};
            rec.units = {kCm, kCm, kCm};
            return rec;
        }
        case 7: {
            const double ac = u * RandomInRange(ws, 5, 18, 1, 1);
            const double bd = u * RandomInRange(ws, 2, 7, 1, 1);
            rec.given = {ac, bd};
            rec.answers = {std::sqrt(ac * ac / 4 + bd * bd / 4), 2 * Atan2(bd, ac), ac * bd / 2};
            rec.units = {kCm, kDegrees, kSquareCm};
            return rec;
        }
        case 8: {
            const double ab = u * RandomInRange(ws, 5, 18, 1, 1);
            const double dc = u * RandomInRange(ws, 5, 18, 1, 1);
            const double h = u * RandomInRange(ws, 2, 7, 1, 1);
            // The lower base is the longer one; the area is whole.
            if (dc < ab && IsWhole((ab + dc) * h / 2)) {
                rec.given = {(ab + dc) * h / 2, ab, dc};
                rec.answers = {h, Atan2(h, ab - dc), std::sqrt(h * h + (ab - dc) * (ab - dc))};
                rec.units = {kCm, kDegrees, kCm};
                return rec;
            }
            break;
        }
        default: {
            const double side = u * RandomInRange(ws, 6, 18, 1, 1);
            const double bd = u * Even(2 * RandomInRange(ws, 3, 7, 1, 1));
            // The minor diagonal is shorter than the major one: BD < side·√2.
            if (bd * bd < 2 * side * side) {
                const double ac = 2 * std::sqrt(side * side - bd * bd / 4);
                rec.given = {bd, side};
                rec.answers = {ac, 2 * Atan2(bd, ac), ac * bd / 2};
                rec.units = {kCm, kDegrees, kSquareCm};
                return rec;
            }
            break;
        }
        }
        bound.Next();
    }
}

namespace {
std::string Num(double x) { return PlainNumberText(x); }

std::string Answer(GeneratorWorkspace& ws, double value, int unit) {
    constexpr const char* kUnits[3] = {" cm", " cm^2", "\u00B0"};
    return NumberToMarkup(RoundAtPosition(ws, value, -3)) + kUnits[unit];
}
} // namespace

// Routine 6: a figure, its data, and three questions a), b), c). Type by the seed.
void SolvingPlaneShapes(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 11;
    const ShapeRecord r = MakeShape(ws, type);
    const auto& g = r.given;
    std::string opening;
    const char* figure = kTriangleWithHeight;
    std::array<std::string, 3> parts;
    switch (type) {
    case 0:
        opening = "The triangle shown below has a height &+IAD&-I& =& " + Num(g[0]) + "& cm, the angle &+IB&-I& =& " +
                  Num(g[1]) + "\u00B0 and the segment &+IDC&-I& =& " + Num(g[2]) + "& cm.";
        parts = {"Find the side &+IAB&-I.", "Find the side &+IBC&-I.", "Find the angle &+IC&-I."};
        break;
    case 1:
        figure = kTwoRightTriangles;
        opening = "Consider the right triangles &+IABC&-I  and  &+IABD&-I shown below. The line segment  &+ICD&-I  "
                  "has a length of " + Num(g[0]) + "& cm, the angle &+ID&-I& =& " + Num(g[1]) +
                  "\u00B0 and the angle &+IACB&-I& =& " + Num(g[2]) + "\u00B0.";
        parts = {"Find the altitude &+IAB&-I.", "Find the segment &+IBC&-I.", "Find the hypotenuse &+IAD&-I."};
        break;
    case 2:
        figure = kRhomboid;
        opening = "Consider the rhomboid  &+IABCD&-I  shown below. The side  &+IAB&-I  has a length of  " + Num(g[0]) +
                  "& cm, the side &+IAD&-I& =& " + Num(g[1]) + "& cm and the angle &+IA&-I& =& " + Num(g[2]) + "\u00B0.";
        parts = {"Find the height onto the side &+IAB&-I.", "Find the area.", "Find the diagonal &+IBD&-I."};
        break;
    case 3:
        figure = kRhombus;
        opening = "The rhombus  &+IABCD&-I  shown below has side &+IAB&-I& =& " + Num(g[0]) +
                  "& cm and the angle &+IA&-I& =& " + Num(g[1]) + "\u00B0.";
        parts = {"Find the diagonal &+IBD&-I.", "Find the diagonal &+IAC&-I.", "Find the area."};
        break;
    case 4:
        figure = kTrapezoid;
        opening = "Consider the trapezoid  &+IABCD&-I  shown below. Side &+IAB&-I& =& " + Num(g[0]) +
                  "& cm, the angle &+IA&-I& =& " + Num(g[1]) + "\u00B0 and the side &+IAD&-I& =& " + Num(g[2]) +
                  "& cm; the angles &+IB&-I and &+IC&-I are right angles.";
        parts = {"Find the height.", "Find the base &+IDC&-I.", "Find the area."};
        break;
    case 5:
        opening = "The triangle  &+IABC&-I shown below has an area of " + Num(g[0]) + "& cm^2, the side &+IBC&-I& =& " +
                  Num(g[1]) + "& cm and the angle &+IB&-I& =& " + Num(g[2]) + "\u00B0.";
        parts = {"Find the height &+IAD&-I.", "Find the side &+IAB&-I.", "Find the angle &+IC&-I."};
        break;
    case 6:
        figure = kRhomboid;
        // The figure draws the height from D onto the base AB, so the base given is AB (the
        // letters of AB and AD swapped; the numbers are the same).
        opening = "The rhomboid  &+IABCD&-I  shown below has side &+IAB&-I& =& " + Num(g[0]) + "& cm, an area of " +
                  Num(g[1]) + "& cm^2 and the angle &+IA&-I& =& " + Num(g[2]) + "\u00B0.";
        parts = {"Find the height onto the side &+IAB&-I.", "Find the side &+IAD&-I.", "Find the diagonal &+IBD&-I."};
        break;
    case 7:
        figure = kRhombus;
        opening = "The diagonals of the rhombus  &+IABCD&-I  are  &+IAC&-I& =& " + Num(g[0]) +
                  "& cm  and  &+IBD&-I& =& " + Num(g[1]) + "& cm.";
        parts = {"Find the side.", "Find the angle &+IA&-I.", "Find the area."};
        break;
    case 8:
        figure = kTrapezoid;
        opening = "The trapezoid  &+IABCD&-I  shown below has an area of& " + Num(g[0]) + "& cm^2, the base &+IAB&-I& =& " +
                  Num(g[1]) + "& cm and the base &+IDC&-I& =& " + Num(g[2]) +
                  "& cm; the angles &+IB&-I and &+IC&-I are right angles.";
        parts = {"Find the height.", "Find the angle &+IA&-I.", "Find the side &+IAD&-I."};
        break;
    case 9:
        figure = kTwoRightTriangles;
        opening = "Consider the right triangles &+IABC&-I  and  &+IABD&-I shown below. The altitude  &+IAB&-I  is " +
                  Num(g[0]) + "& cm, the angle &+ID&-I& =& " + Num(g[1]) + "\u00B0 and the angle &+IACB&-I& =& " +
                  Num(g[2]) + "\u00B0.";
        parts = {"Find the segment &+IBC&-I.", "Find the segment &+IBD&-I.", "Find the segment &+ICD&-I."};
        break;
    default:
        figure = kRhombus;
        // The figure draws AC as the longer diagonal, through the acute angles A and C, so the
        // minor diagonal given is BD.
        opening = "The rhombus &+IABCD&-I shown below has a minor diagonal &+IBD&-I& =& " + Num(g[0]) +
                  "& cm and a side of " + Num(g[1]) + "& cm.";
        parts = {"Find the major diagonal &+IAC&-I.", "Find the angle &+IA&-I.", "Find the area."};
        break;
    }
    ws.Statement = opening + "&LF";
    const char* place = type == 9 ? "&SP=71:" : "&SP=66:";
    for (int i = 0; i < 3; ++i) {
        ws.Statement += "&SP=5:" + std::string(1, static_cast<char>('a' + i)) + ") " + parts[static_cast<std::size_t>(i)];
        if (i == 0) ws.Statement += place + std::string(figure);
        ws.Statement += "&LF";
    }
    ws.Solution = "&SP=10: ";
    for (int i = 0; i < 3; ++i) {
        if (i > 0) ws.Solution += ";    ";
        ws.Solution += std::string(1, static_cast<char>('a' + i)) + ") " +
                       Answer(ws, r.answers[static_cast<std::size_t>(i)], r.units[static_cast<std::size_t>(i)]);
    }
    ws.Solution += "&LF";
}
