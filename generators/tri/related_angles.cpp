#include <cmath>

#include "generators/tri/tri_records.h"
#include "generators/tri/tri_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
constexpr double kDegree = kPi / 180;

// An even angle in 20..70 other than 30 and 60 (and 45), whose values are not famous.
double DrawAngle(GeneratorWorkspace& ws) {
    RetryBound bound;
    while (true) {
        const double a = 2 * Int(RandomInRange(ws, 20, 70, 1, 1) / 2);
        if (a != 30 && a != 45 && a != 60) return a;
        bound.Next();
    }
}

std::string Value(GeneratorWorkspace& ws, double x) { return NumberToMarkup(RoundAtPosition(ws, x, -5)); }

std::string Given(GeneratorWorkspace& ws, double angle, double s, double c) {
    const std::string a = PlainNumberText(angle) + "\u00B0";
    return "sin_ " + a + " = " + Value(ws, s) + ",  cos_ " + a + " = " + Value(ws, c);
}
} // namespace

// The asked angles and how each follows from the given values:
//   0  sin(180° + A) = −sin A,  cos(90° + A) = −sin A,  sin 2A = 2·sin A·cos A
//   1  sin(90° + A) = cos A,  cos(180° − A) = −cos A,  cos 2A = cos²A − sin²A
//   2  sin(A + B),  sin(A − B),  cos(A + B) by the addition formulas (A > B)
//   3  cos(A + 60°),  cos(120° − A),  sin(A + 120°), with sin 60° = √3/2, cos 60° = 1/2
//   4  sin(A + B),  cos(A − B),  sin(90° + A + B) = cos(A + B)
RelatedAnglesRecord MakeRelatedAngles(GeneratorWorkspace& ws, int type) {
    RelatedAnglesRecord rec;
    rec.type = type;
    const bool two = type == 2 || type == 4;
    double a = DrawAngle(ws), b = 0;
    if (two) {
        RetryBound bound;
        while (true) {
            b = DrawAngle(ws);
            if (b != a) break;
            bound.Next();
        }
        if (b > a) std::swap(a, b);
    }
    // A sum of two angles that is a famous angle would give itself away.
    if (two && (std::fmod(a + b, 30) == 0 || std::fmod(a + b, 45) == 0)) {
        RetryBound bound;
        while (std::fmod(a + b, 30) == 0 || std::fmod(a + b, 45) == 0 || a == b) {
            b = DrawAngle(ws);
            bound.Next();
        }
        if (b > a) std::swap(a, b);
    }
    rec.a = a;
    rec.b = b;
    rec.sinA = RoundAtPosition(ws, std::sin(a * kDegree), -5);
    rec.cosA = RoundAtPosition(ws, std::cos(a * kDegree), -5);
    rec.sinB = two ? RoundAtPosition(ws, std::sin(b * kDegree), -5) : 0;
    rec.cosB = two ? RoundAtPosition(ws, std::cos(b * kDegree), -5) : 0;
    const double s = rec.sinA, c = rec.cosA, sb = rec.sinB, cb = rec.cosB;
    const double h = std::sqrt(3.0) / 2;
    switch (type) {
    case 0: rec.asked = {{{true, 180 + a, -s}, {false, 90 + a, -s}, {true, 2 * a, 2 * s * c}}}; break;
    case 1: rec.asked = {{{true, 90 + a, c}, {false, 180 - a, -c}, {false, 2 * a, c * c - s * s}}}; break;
    case 2:
        rec.asked = {{{true, a + b, s * cb + c * sb}, {true, a - b, s * cb - c * sb}, {false, a + b, c * cb - s * sb}}};
        break;
    case 3:
        rec.asked = {{{false, a + 60, c / 2 - s * h}, {false, 120 - a, -c / 2 + s * h}, {true, a + 120, -s / 2 + c * h}}};
        break;
    default:
        rec.asked = {{{true, a + b, s * cb + c * sb}, {false, a - b, c * cb + s * sb}, {true, 90 + a + b, c * cb - s * sb}}};
        break;
    }
    for (AskedValue& v : rec.asked) v.exact = v.sine ? std::sin(v.degrees * kDegree) : std::cos(v.degrees * kDegree);
    return rec;
}

// Routine 2: the sine and cosine of one or two angles given; the sine or cosine of
// related angles asked, from those values only. Type by the seed.
void TrigValuesFromTwoOthers(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 5;
    const RelatedAnglesRecord rec = MakeRelatedAngles(ws, type);
    std::string given = Given(ws, rec.a, rec.sinA, rec.cosA);
    if (type == 2 || type == 4) given += ",  " + Given(ws, rec.b, rec.sinB, rec.cosB);
    // The joiners of each type: before the first, second and third asked angle.
    constexpr const char* kJoiners[5][3] = {
        {",  calculate  sin_ ", "\u00B0,  cos_ ", "\u00B0  and  sin& "},
        {",  find the value of  sin_ ", "\u00B0,  cos_ ", "\u00B0  and  cos& "},
        {",  calculate sin_ ", "\u00B0,  sin_ ", "\u00B0  and  cos& "},
        {",  find cos_ ", "\u00B0,  cos_ ", "\u00B0  and  sin& "},
        {",  calculate the value of sin_ ", "\u00B0,  cos_ ", "\u00B0  and  sin& "}};
    constexpr const char* kOpenings[5] = {"Knowing that  ", "We know that  ", "Knowing that  ",
                                                 "If we know  ", "Knowing that  "};
    ws.Statement = kOpenings[type] + given;
    for (int i = 0; i < 3; ++i) ws.Statement += kJoiners[type][i] + PlainNumberText(rec.asked[static_cast<std::size_t>(i)].degrees);
    ws.Statement += "\u00B0.&LF";
    ws.Solution = "&SP=10:";
    for (int i = 0; i < 3; ++i) {
        const AskedValue& v = rec.asked[static_cast<std::size_t>(i)];
        if (i > 0) ws.Solution += ";    ";
        ws.Solution += std::string(v.sine ? "sin_ " : "cos_ ") + PlainNumberText(v.degrees) + "\u00B0 = " + Value(ws, v.exact);
    }
    ws.Solution += "&LF";
}
