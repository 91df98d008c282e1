#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "ga2_test_support.h"
#include "generators/hub.h"
#include "support/exact_forms.h"
#include "support/generator_sweep.h"

namespace {
constexpr double kEps = 1e-9;

// Empty when the text is the exact magnitude |dot| / √v2 of a projection (whole dot and
// v2), a non-negative a√r/b with a²·r·v2 = dot²·b²; otherwise what is wrong.
std::string MagnitudeFault(const std::string& text, double dot, double v2) {
    const auto f = ReadRootFraction(text);
    if (!f) return "not an exact number: " + text;
    if (f->a < 0) return "negative magnitude: " + text;
    const long long d = std::llround(dot), w = std::llround(v2);
    if (f->a * f->a * f->r * w != d * d * f->b * f->b) return "not |u·v| / |v|: " + text;
    return "";
}

double AngleOf(const Point2& u, const Point2& v) {
    const double cosine = (u.x * v.x + u.y * v.y) / (std::hypot(u.x, u.y) * std::hypot(v.x, v.y));
    return std::acos(std::clamp(cosine, -1.0, 1.0)) * 180 / M_PI;
}
} // namespace

TEST(Ga2Vectors, VectorsOneSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 1, 2700, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 9;
        types.insert(type);
        const auto given = PointsIn(p.statement);
        const auto found = PointsIn(p.solution);
        switch (type) {
        case 0: {
            const std::string letter = Between(p.statement, "parameter ", " for each");
            const double a = ReadExact(Between(p.statement, letter + ",& & ", ")"));
            const Point2 v = given.at(0);
            const double magnitude = ReadExact(Between(p.statement, "#VEC) is ", ".  "));
            const double l = ReadExact(Between(p.solution, letter + "& =& ±& ", "     "));
            EXPECT_NEAR(l * l + a * a, magnitude * magnitude, 1e-6) << p.code;
            const double parallel = ReadExact(Between(p.solution, "&+Bb)&-B  " + letter + "& =& ", "     "));
            EXPECT_NEAR(parallel * v.y - a * v.x, 0, kEps) << p.code;
            const double orthogonal = ReadExact(Between(p.solution, "&+Bc)&-B  " + letter + "& =& ", "&LF"));
            EXPECT_NEAR(orthogonal * v.x + a * v.y, 0, kEps) << p.code;
            break;
        }
        case 1: {
            const Point2 u = given.at(0), v = given.at(1);
            EXPECT_NEAR(ReadExact(Between(p.solution, "|#VEC(&+Iu&-I#VEC)|& =& ", ",")), std::hypot(u.x, u.y), 1e-9);
            EXPECT_EQ(ReadExact(Between(p.solution, "#VEC(&+Iv&-I#VEC)& =& ", "     ")), u.x * v.x + u.y * v.y);
            EXPECT_NEAR(ReadDegrees(Between(p.solution, "&+Bc)&-B  ")), AngleOf(u, v), 1e-4) << p.code;
            break;
        }
        case 2:
            ASSERT_EQ(given.size(), 4u);
            EXPECT_NEAR(ReadDegrees(Between(p.solution, "&+Ba)&-B  ", "     ")), AngleOf(given[0], given[1]), 1e-4);
            EXPECT_NEAR(ReadDegrees(Between(p.solution, "&+Bb)&-B  ")), AngleOf(given[2], given[3]), 1e-4);
            break;
        case 3:
            for (int part = 0; part < 2; ++part) {
                const std::string answer = Between(p.solution, part == 0 ? "&+Ba)&-B  " : "&+Bb)&-B  ",
                                                   part == 0 ? "     " : "&LF");
                const double factor = ReadExact(answer.substr(0, answer.find("#NES(()")));
                const std::string inside = Between(answer, "#NES(()", "#NES)");
                const double x = ReadExact(inside.substr(0, inside.find(",& & ")));
                const double y = ReadExact(inside.substr(inside.find(",& & ") + 5));
                EXPECT_NEAR(std::hypot(factor * x, factor * y), 1, 1e-12) << p.code;
                EXPECT_NEAR(factor * x * given[part].y - factor * y * given[part].x, 0, 1e-9) << p.code;
                EXPECT_GT(factor * (x * given[part].x + y * given[part].y), 0) << p.code;
            }
            break;
        case 4: {
            ASSERT_EQ(given.size(), 3u);
            const double x = ReadExact(Between(p.solution, "&+Ix&-I& =& ", ","));
            const double y = ReadExact(Between(p.solution, "&+Iy&-I& =& "));
            EXPECT_EQ(x * given[1].x + y * given[2].x, given[0].x) << p.code;
            EXPECT_EQ(x * given[1].y + y * given[2].y, given[0].y) << p.code;
            EXPECT_NE(given[1].x * given[2].y - given[1].y * given[2].x, 0);
            break;
        }
        case 5: {
            const Point2 u = given.at(0), v = given.at(1);
            const double dot = u.x * v.x + u.y * v.y, v2 = v.x * v.x + v.y * v.y;
            // The magnitude |u·v| / |v| exactly, never negative, in its simplest form.
            const std::string magnitude = Between(p.solution, "projection& =& ", "     ");
            EXPECT_EQ(MagnitudeFault(magnitude, dot, v2), "") << p.code;
            EXPECT_EQ(FirstUnsimplifiedForm(p.solution), "") << p.code;
            ASSERT_EQ(found.size(), 1u) << p.solution;
            EXPECT_NEAR(found[0].x, dot * v.x / v2, 1e-9);
            EXPECT_NEAR(found[0].y, dot * v.y / v2, 1e-9);
            break;
        }
        case 6: {
            const Point2 u = given.at(0);
            const std::string first = Between(p.statement, "parameters  ", "  and");
            const double h = ReadExact(Between(p.solution, first + "& =& ", ","));
            const std::string rest = Between(p.solution, ",   ");
            const double k = ReadExact(rest.substr(rest.find("& =& ") + 5));
            EXPECT_EQ(h * u.x + k * u.y, 0) << p.code;
            EXPECT_GT(h, 0);
            const double magnitude = ReadExact(Between(p.statement, "#VEC)  is ", "  and"));
            EXPECT_NEAR(std::hypot(h, k), magnitude, 1e-9) << p.code;
            break;
        }
        case 7: {
            const double f = p.statement.find("twice") != std::string::npos ? 2 : 3;
            ASSERT_EQ(found.size(), 4u);
            for (int i = 0; i < 4; ++i) {
                const Point2& u = given.at(i / 2);
                EXPECT_EQ(found[i].x * u.x + found[i].y * u.y, 0) << p.code;
                EXPECT_NEAR(std::hypot(found[i].x, found[i].y), f * std::hypot(u.x, u.y), 1e-9) << p.code;
            }
            break;
        }
        default: {
            const Point2 u = given.at(0), v = given.at(1), w = found.at(0);
            EXPECT_EQ(w.x * u.x + w.y * u.y, 0) << p.code;
            EXPECT_EQ(w.x * v.x + w.y * v.y, ReadExact(Between(p.statement, "#VEC)& =& ", ".&LF"))) << p.code;
            break;
        }
        }
    });
    EXPECT_EQ(types.size(), 9u);
}

TEST(Ga2Vectors, VectorsTwoSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 2, 2400, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 8;
        types.insert(type);
        const auto given = PointsIn(p.statement);
        const auto found = PointsIn(p.solution);
        auto cross = [](const Point2& a, const Point2& b, const Point2& c) {
            return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
        };
        switch (type) {
        case 0: {
            const std::string letter = Between(p.statement, "parameter  ", "  for");
            const Point2 a = given.at(0), b = given.at(1);
            const double cy = ReadExact(Between(p.statement, letter + ",& & ", ")"));
            const double cx = ReadExact(Between(p.solution, letter + " = "));
            EXPECT_EQ(cross(a, b, {cx, cy, ""}), 0) << p.code;
            EXPECT_FALSE(a.x == b.x && a.y == b.y);
            break;
        }
        case 1:
            EXPECT_EQ(2 * found.at(0).x, given.at(0).x + given.at(1).x) << p.code;
            EXPECT_EQ(2 * found.at(0).y, given.at(0).y + given.at(1).y) << p.code;
            break;
        case 2:
            EXPECT_EQ(2 * given.at(1).x, given.at(0).x + found.at(0).x) << p.code;
            EXPECT_EQ(2 * given.at(1).y, given.at(0).y + found.at(0).y) << p.code;
            break;
        case 3: {
            const Point2 a = given.at(0), b = given.at(1), ab = found.at(0);
            EXPECT_EQ(ab.x, b.x - a.x);
            EXPECT_EQ(ab.y, b.y - a.y);
            const double d = ReadExact(Between(p.solution, "&+IB&-I)& =& "));
            EXPECT_NEAR(d, std::hypot(ab.x, ab.y), 1e-9) << p.code;
            break;
        }
        case 4:
            ASSERT_EQ(given.size(), 6u);
            for (int part = 0; part < 2; ++part) {
                const bool aligned = cross(given[3 * part], given[3 * part + 1], given[3 * part + 2]) == 0;
                const std::string answer = Between(p.solution, part == 0 ? "&+Ba)&-B " : "&+Bb)&-B ",
                                                   part == 0 ? "     " : "&LF");
                EXPECT_EQ(answer, aligned ? "Aligned" : "Non-aligned") << p.code;
            }
            break;
        case 5: {
            const Point2 a = given.at(0), c = given.at(1), b = found.at(0), d = found.at(1);
            // ABCD: four equal sides and equal diagonals.
            auto d2 = [](const Point2& p1, const Point2& p2) {
                return (p1.x - p2.x) * (p1.x - p2.x) + (p1.y - p2.y) * (p1.y - p2.y);
            };
            EXPECT_EQ(d2(a, b), d2(b, c));
            EXPECT_EQ(d2(b, c), d2(c, d));
            EXPECT_EQ(d2(c, d), d2(d, a));
            EXPECT_EQ(d2(a, c), d2(b, d));
            EXPECT_GT(d2(a, b), 0);
            break;
        }
        case 6: {
            const Point2 a = given.at(0), b = given.at(1), c = given.at(2);
            EXPECT_EQ((b.x - a.x) * (c.x - a.x) + (b.y - a.y) * (c.y - a.y), 0) << p.code;
            EXPECT_NEAR(ReadExact(Between(p.solution, "Area& =& ")), std::fabs(cross(a, b, c)) / 2, 1e-9);
            break;
        }
        default: {
            const std::string letter = Between(p.statement, "parameter  ", "  for");
            const Point2 a = given.at(0);
            const double by = ReadExact(Between(p.statement, letter + ",& & ", ")"));
            const double distance = ReadExact(Between(p.statement, ")  is ", ".&LF"));
            const double x1 = ReadExact(Between(p.solution, letter + "& =& ", "     "));
            const double x2 = ReadExact(Between(p.solution, "&+Ior&-I     " + letter + "& =& "));
            EXPECT_NE(x1, x2);
            for (double x : {x1, x2}) EXPECT_NEAR(std::hypot(x - a.x, by - a.y), distance, 1e-9) << p.code;
            break;
        }
        }
    });
    EXPECT_EQ(types.size(), 8u);
}

// A group of nine "Vectors I" problems shows each type once.
TEST(Ga2Vectors, GroupOfNineWalksAllTypes) {
    GeneratorHub hub;
    const char* const kMarks[] = {"for each of the following cases", "Find:&LF", "pairs of vectors", "unit vector",
                                  "linear combination", "vector projection", "Find the values of parameters",
                                  "perpendicular vector whose", "Find a vector"};
    std::set<int> seen;
    for (int i = 0; i < 9; ++i) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_GA2", {1, 100 + i, 4000 + i, 0, 9, i + 1});
        for (int t = 0; t < 9; ++t) {
            if (p.statement.find(kMarks[t]) != std::string::npos) seen.insert(t);
        }
    }
    EXPECT_EQ(seen.size(), 9u);
}

TEST(Ga2Vectors, ProjectionMagnitudeCheckRefusesWrongValues) {
    // u·v = -107, |v|² = 353: the magnitude is 107√353 / 353.
    EXPECT_EQ(MagnitudeFault("#COC(107#SQR(353#SQR)#N)(353#COC)", -107, 353), "");
    EXPECT_NE(MagnitudeFault("-& #COC(107#SQR(353#SQR)#N)(353#COC)", -107, 353), "");
    EXPECT_NE(MagnitudeFault("#COC(106#SQR(353#SQR)#N)(353#COC)", -107, 353), "");
    EXPECT_NE(MagnitudeFault("#COC(107#SQR(353#SQR)#N)(352#COC)", -107, 353), "");
}

TEST(Ga2Vectors, ReportedProjectionIsNotNegative) {
    GeneratorHub hub;
    std::string statement, solution;
    hub.RunGenerator("KVOL_MATH_GA2", "0017547502010101", statement, solution);
    const auto given = PointsIn(statement);
    ASSERT_EQ(given.size(), 2u) << statement;
    const Point2 u = given[0], v = given[1];
    EXPECT_EQ(MagnitudeFault(Between(solution, "projection& =& ", "     "), u.x * v.x + u.y * v.y, v.x * v.x + v.y * v.y),
              "")
        << solution;
}
