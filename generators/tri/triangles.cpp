#include <cmath>

#include "generators/tri/tri_records.h"
#include "generators/tri/tri_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
constexpr double kDegree = kPi / 180;

double AngleFromSides(double opposite, double s1, double s2) {
    return ArcCosine((s1 * s1 + s2 * s2 - opposite * opposite) / (2 * s1 * s2)) / kDegree;
}
} // namespace

// The types, by the parts given (A, B, C the angles, a, b, c the opposite sides):
//   0  b, c and A: a by the law of cosines, B by the law of cosines, C = 180° − A − B
//   1  a, b, c: the three angles by the law of cosines
//   2  A, B and a: C = 180° − A − B, b and c by the law of sines
//   3  A, a, b with B acute: B by the law of sines, C = 180° − A − B, c by the law of sines
TriangleRecord MakeTriangle(GeneratorWorkspace& ws, int type) {
    TriangleRecord rec;
    rec.type = type;
    rec.vertexNames = {"&+IA&-I", "&+IB&-I", "&+IC&-I"};
    rec.sideNames = {"&+Ia&-I", "&+Ib&-I", "&+Ic&-I"};
    constexpr int kPairs[3][2] = {{0, 1}, {1, 2}, {0, 2}};
    for (int i = 0; i < 6; ++i) {
        if (Coin(ws, 0.5f)) {
            const auto [x, y] = kPairs[i % 3];
            std::swap(rec.vertexNames[static_cast<std::size_t>(x)], rec.vertexNames[static_cast<std::size_t>(y)]);
            std::swap(rec.sideNames[static_cast<std::size_t>(x)], rec.sideNames[static_cast<std::size_t>(y)]);
        }
    }
    RetryBound bound;
    std::array<double, 3> s{};
    double angleA = 0, angleB = 0;
    while (true) {
        const double u = RandomInRange(ws, 1, 5, 1, 1);
        for (double& side : s) side = u * RandomInRange(ws, 9, 20, 1, 1);
        angleA = RandomInRange(ws, 30, 80, 1, 1);
        angleB = RandomInRange(ws, 30, 80, 1, 1);
        const bool triangle = s[0] + s[1] - 3 > s[2] && s[1] + s[2] - 3 > s[0] && s[0] + s[2] - 3 > s[1];
        // With A, a and b given, b·sin A < a leaves one acute B (and a clear margin to 90°).
        const bool acute = type != 3 || s[1] * std::sin(angleA * kDegree) / s[0] < 0.97;
        if (triangle && acute) break;
        bound.Next();
    }
    switch (type) {
    case 0: {
        const double b = s[1], c = s[2];
        const double a = std::sqrt(b * b + c * c - 2 * b * c * std::cos(angleA * kDegree));
        rec.sides = {a, b, c};
        const double B = AngleFromSides(b, a, c);
        rec.angles = {angleA, B, 180 - angleA - B};
        break;
    }
    case 1:
        rec.sides = s;
        rec.angles = {AngleFromSides(s[0], s[1], s[2]), AngleFromSides(s[1], s[0], s[2]), 0};
        rec.angles[2] = 180 - rec.angles[0] - rec.angles[1];
        break;
    case 2: {
        const double C = 180 - angleA - angleB;
        const double k = s[0] / std::sin(angleA * kDegree);
        rec.angles = {angleA, angleB, C};
        rec.sides = {s[0], k * std::sin(angleB * kDegree), k * std::sin(C * kDegree)};
        break;
    }
    default: {
        const double B = std::asin(s[1] * std::sin(angleA * kDegree) / s[0]) / kDegree;
        const double C = 180 - angleA - B;
        rec.angles = {angleA, B, C};
        rec.sides = {s[0], s[1], s[0] / std::sin(angleA * kDegree) * std::sin(C * kDegree)};
        break;
    }
    }
    return rec;
}

namespace {
std::string Length(GeneratorWorkspace& ws, double x) { return NumberToMarkup(RoundAtPosition(ws, x, -3)); }
std::string Degrees(GeneratorWorkspace& ws, double x) { return NumberToMarkup(RoundAtPosition(ws, x, -3)) + "\u00B0"; }
} // namespace

// Routine 5: a triangle from three of its parts; the letters are shuffled. Type by the seed.
void SolvingTriangles(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 4;
    const TriangleRecord t = MakeTriangle(ws, type);
    const auto& V = t.vertexNames;
    const auto& S = t.sideNames;
    auto side = [&](int i) { return S[static_cast<std::size_t>(i)] + " = " + Length(ws, t.sides[static_cast<std::size_t>(i)]); };
    auto angle = [&](int i) { return V[static_cast<std::size_t>(i)] + " = " + Degrees(ws, t.angles[static_cast<std::size_t>(i)]); };
    // The given angles are whole degrees, written without the degree sign that the
    // sentence puts after them.
    auto givenAngle = [&](int i) {
        return V[static_cast<std::size_t>(i)] + " = " + PlainNumberText(t.angles[static_cast<std::size_t>(i)]);
    };
    std::vector<std::string> answers;
    switch (type) {
    case 0:
        ws.Statement = "Triangle &+IABC&-I, has sides " + side(1) + "& cm,  " + side(2) + "& cm  and angle " +
                       givenAngle(0) + "\u00B0. Calculate side " + S[0] + " and angles  " + V[1] + "  and  " + V[2] +
                       ".&LF";
        answers = {side(0) + "& cm", angle(1), angle(2)};
        break;
    case 1:
        ws.Statement = "Triangle &+IABC&-I has sides  " + side(0) + "& cm,  " + side(1) + "& cm  and  " + side(2) +
                       "& cm.  Find all angles of the triangle.&LF";
        answers = {angle(0), angle(1), angle(2)};
        break;
    case 2:
        ws.Statement = "Consider the triangle &+IABC&-I. If angles  " + givenAngle(0) + "\u00B0  and  " + givenAngle(1) +
                       "\u00B0  and side  " + S[0] + " has a length of " + Length(ws, t.sides[0]) +
                       "& cm,  calculate angle  " + V[2] + "  and length of sides  " + S[1] + "  and  " + S[2] + ".&LF";
        answers = {angle(2), side(1) + "& cm", side(2) + "& cm"};
        break;
    default:
        ws.Statement = "Triangle &+IABC&-I has angle " + givenAngle(0) + "\u00B0,  sides  " + side(0) + "& cm  and  " +
                       side(1) + "& cm. If angle  " + V[1] + "  is acute, find angles  " + V[1] + "  and  " + V[2] +
                       "  and length of side  " + S[2] + ".&LF";
        answers = {angle(1), angle(2), side(2) + "& cm"};
        break;
    }
    ws.Solution = "&SP=10:";
    for (std::size_t i = 0; i < answers.size(); ++i) ws.Solution += (i > 0 ? ";    " : "") + answers[i];
    ws.Solution += "&LF";
}
