#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "ga2_test_support.h"
#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
constexpr double kEps = 1e-9;

bool On(const General2& line, const Point2& p) { return std::fabs(line.At(p.x, p.y)) < 1e-9; }
bool Parallel(const General2& a, const General2& b) { return std::fabs(a.D * b.E - a.E * b.D) < 1e-9; }
bool Perpendicular(const General2& a, const General2& b) { return std::fabs(a.D * b.D + a.E * b.E) < 1e-9; }
double DistanceTo(const General2& line, double x, double y) {
    return std::fabs(line.At(x, y)) / std::hypot(line.D, line.E);
}
double AcuteAngle(const General2& a, const General2& b) {
    const double c = std::fabs(a.D * b.D + a.E * b.E) / (std::hypot(a.D, a.E) * std::hypot(b.D, b.E));
    return std::acos(std::min(1.0, c)) * 180 / M_PI;
}
// The text of one labelled part of a solution line: from the label to the next blanks.
std::string Part(const std::string& text, const std::string& label) {
    return Between(text, label, "     ");
}
} // namespace

TEST(Ga2Lines, LinesOneSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 3, 2750, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 11;
        types.insert(type);
        const auto given = PointsIn(p.statement);
        const std::string s = p.statement, sol = p.solution;
        switch (type) {
        case 0: {
            const Point2 point = given.at(0), v = given.at(1);
            std::size_t at = 0;
            for (int form = 0; form < 5; ++form) {
                const std::string text = Between(sol, "&SP=10:", "&LF", at);
                at = sol.find("&SP=10:", at) + 7;
                const General2 line = ReadLine(text);
                EXPECT_TRUE(On(line, point)) << p.code << " " << text;
                EXPECT_NEAR(line.D * v.x + line.E * v.y, 0, kEps) << p.code << " " << text;
            }
            break;
        }
        case 1: {
            const Point2 a = given.at(0), b = given.at(1), c = given.at(2);
            const General2 ab = ReadLine(Part(sol, "&+IAB&-I:& ")), bc = ReadLine(Part(sol, "&+IBC&-I:& "));
            const General2 ca = ReadLine(Between(sol, "&+ICA&-I:& "));
            EXPECT_TRUE(On(ab, a) && On(ab, b) && On(bc, b) && On(bc, c) && On(ca, c) && On(ca, a)) << p.code;
            const double area = std::fabs((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)) / 2;
            EXPECT_NEAR(ReadExact(Between(sol, "Area& =& ")), area, kEps) << p.code;
            EXPECT_GT(area, 0);
            break;
        }
        case 2: {
            const Point2 a = given.at(0), b = given.at(1);
            const General2 line = ReadLine(Between(sol, "&SP=10:"));
            EXPECT_TRUE(On(line, {(a.x + b.x) / 2, (a.y + b.y) / 2, ""})) << p.code;
            EXPECT_NEAR(line.D * (b.y - a.y) - line.E * (b.x - a.x), 0, kEps) << p.code;
            break;
        }
        case 3:
        case 4: {
            const General2 given0 = ReadLine(Between(s, "the line  ", "  and passes"));
            const General2 answer = ReadLine(Between(sol, "&SP=10:"));
            EXPECT_TRUE(On(answer, given.back())) << p.code;
            EXPECT_TRUE(type == 3 ? Parallel(given0, answer) : Perpendicular(given0, answer)) << p.code;
            break;
        }
        case 5: {
            std::size_t at = 0;
            for (int form = 0; form < 3; ++form) {
                const std::string text = Between(sol, "&SP=10:", "&LF", at);
                at = sol.find("&SP=10:", at) + 7;
                const General2 line = ReadLine(text);
                EXPECT_TRUE(On(line, given.at(0)) && On(line, given.at(1))) << p.code << " " << text;
            }
            EXPECT_EQ(sol.find("&+Iy&-I& =& ") != std::string::npos, true);
            break;
        }
        case 6: {
            const General2 line = ReadLine(Between(s, "and the line  ", ".&LF"));
            const Point2 q = given.at(0);
            EXPECT_NEAR(ReadExact(Between(sol, "&+Id&-I& =& ")), DistanceTo(line, q.x, q.y), 1e-9) << p.code;
            break;
        }
        case 7: {
            const Point2 a = given.at(0), b = given.at(1), c = given.at(2);
            const General2 ma = ReadLine(Part(sol, "&+Ba)&-B  ")), mb = ReadLine(Part(sol, "&+Bb)&-B  "));
            EXPECT_TRUE(On(ma, a) && On(ma, {(b.x + c.x) / 2, (b.y + c.y) / 2, ""})) << p.code;
            EXPECT_TRUE(On(mb, b) && On(mb, {(a.x + c.x) / 2, (a.y + c.y) / 2, ""})) << p.code;
            const std::string g = Between(sol, "#NES(()", "#NES)");
            EXPECT_NEAR(ReadExact(g.substr(0, g.find(",& & "))), (a.x + b.x + c.x) / 3, kEps);
            EXPECT_NEAR(ReadExact(g.substr(g.find(",& & ") + 5)), (a.y + b.y + c.y) / 3, kEps);
            break;
        }
        case 8: {
            const Point2 a = given.at(0), b = given.at(1), c = given.at(2);
            const General2 altitude = ReadLine(Part(sol, "&SP=10:"));
            EXPECT_TRUE(On(altitude, a)) << p.code;
            EXPECT_NEAR(altitude.D * (c.y - b.y) - altitude.E * (c.x - b.x), 0, kEps) << p.code;
            General2 bc;
            bc.D = c.y - b.y;
            bc.E = -(c.x - b.x);
            bc.F = -(bc.D * b.x + bc.E * b.y);
            EXPECT_NEAR(ReadExact(Between(sol, "&+Ih&-I& =& ")), DistanceTo(bc, a.x, a.y), kEps) << p.code;
            break;
        }
        case 9: {
            const General2 l1 = ReadLine(Between(s, "&+IL_1:&-I& ", "   and")), l2 = ReadLine(Between(s, "&+IL_2:&-I& ", ".&LF"));
            EXPECT_TRUE(Parallel(l1, l2)) << p.code;
            // A point of the second line: its foot from the origin side.
            const double t = -l2.F / (l2.D * l2.D + l2.E * l2.E);
            EXPECT_NEAR(ReadExact(Between(sol, "&+Id&-I& =& ")), DistanceTo(l1, l2.D * t, l2.E * t), 1e-9) << p.code;
            EXPECT_GT(DistanceTo(l1, l2.D * t, l2.E * t), 0);
            break;
        }
        default: {
            const General2 l1 = ReadLine(Between(s, "&+IL_1:&-I& ", "   and")), l2 = ReadLine(Between(s, "&+IL_2:&-I& ", ".&LF"));
            EXPECT_NEAR(ReadDegrees(Between(sol, "&SP=10:")), AcuteAngle(l1, l2), 1e-4) << p.code;
            EXPECT_FALSE(Parallel(l1, l2));
            break;
        }
        }
    });
    EXPECT_EQ(types.size(), 11u);
}

TEST(Ga2Lines, LinesTwoSweep) {
    std::set<int> types;
    std::set<std::string> positions;
    SweepRoutine("KVOL_MATH_GA2", 4, 2700, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 9;
        types.insert(type);
        const std::string s = p.statement, sol = p.solution;
        const auto given = PointsIn(s);
        switch (type) {
        case 0: {
            const General2 l1 = ReadLine(Between(s, "&+IL_1:&-I& ", "  and")), l2 = ReadLine(Between(s, "&+IL_2:&-I& ", "  and calculate"));
            if (sol.find("intersect at point") != std::string::npos) {
                positions.insert("intersect");
                EXPECT_FALSE(Parallel(l1, l2)) << p.code;
                const Point2 m = PointsIn(sol).at(0);
                EXPECT_TRUE(On(l1, m) && On(l2, m)) << p.code;
            } else if (sol.find("parallel") != std::string::npos) {
                positions.insert("parallel");
                EXPECT_TRUE(Parallel(l1, l2)) << p.code;
                const double t = -l2.F / (l2.D * l2.D + l2.E * l2.E);
                EXPECT_GT(DistanceTo(l1, l2.D * t, l2.E * t), 1e-9) << p.code;
            } else {
                positions.insert("coincident");
                EXPECT_NE(sol.find("coincident"), std::string::npos);
                const double t = -l2.F / (l2.D * l2.D + l2.E * l2.E);
                EXPECT_TRUE(Parallel(l1, l2)) << p.code;
                EXPECT_NEAR(DistanceTo(l1, l2.D * t, l2.E * t), 0, 1e-9) << p.code;
            }
            break;
        }
        case 1: {
            const std::string letter = Between(s, "parameter  ", "  for");
            const General2 l1 = ReadLine(Between(s, "&+IL&-I_1:& ", "  and"));
            const std::string family = Between(s, "&+IL&-I_2:& ", ".   Find");
            const double a = ReadExact(Part(sol, "&+Ba)&-B  " + letter + "& =& "));
            const double b = ReadExact(Part(sol, "&+Bb)&-B  " + letter + "& =& "));
            const double c = ReadExact(Between(sol, "&+Bc)&-B  " + letter + "& =& "));
            EXPECT_TRUE(Parallel(l1, ReadLine(family, letter, a))) << p.code;
            EXPECT_TRUE(Perpendicular(l1, ReadLine(family, letter, b))) << p.code;
            EXPECT_TRUE(On(ReadLine(family, letter, c), given.at(0))) << p.code;
            break;
        }
        case 2: {
            const std::string letter = Between(s, "parameter  ", "  for");
            const double k = ReadExact(Between(sol, letter + "& =& "));
            EXPECT_TRUE(On(ReadLine(Between(s, "the line  ", "   passes"), letter, k), given.at(0))) << p.code;
            break;
        }
        case 3: {
            const std::string letter = Between(s, "parameter  ", "  for");
            const General2 line = ReadLine(Between(s, "the line  ", "  and the point"));
            const double px = ReadExact(Between(s, "&+IP&-I&(", ",& & "));
            const double d = ReadExact(Between(s, ")  is& & ", ".&LF"));
            const double k1 = ReadExact(Part(sol, letter + "& =& "));
            const double k2 = ReadExact(Between(sol, "&+Ior&-I     " + letter + "& =& "));
            EXPECT_NE(k1, k2);
            EXPECT_NEAR(DistanceTo(line, px, k1), d, 1e-9) << p.code;
            EXPECT_NEAR(DistanceTo(line, px, k2), d, 1e-9) << p.code;
            break;
        }
        case 4: {
            const std::string letter = Between(s, "parameter  ", "  for");
            const double cy = ReadExact(Between(s, letter + ",& & ", ")"));
            const double k = ReadExact(Part(sol, letter + "& =& "));
            const General2 line = ReadLine(Between(sol, "     "));
            EXPECT_TRUE(On(line, given.at(0)) && On(line, given.at(1)) && On(line, {k, cy, ""})) << p.code;
            break;
        }
        case 5: {
            const std::string first = Between(s, "parameters  ", "  and");
            const std::string second = Between(s, first + "  and  ", " for");
            const double k = ReadExact(Between(sol, first + "& =& ", ",   "));
            const double m = ReadExact(Between(sol, second + "& =& "));
            const General2 l1 = ReadLine(Between(s, "&+IL&-I_1:& ", "  and"), first, k);
            const General2 l2 = ReadLine(Between(s, "&+IL&-I_2:& ", ",   find"), second, m);
            if (s.find("are parallel") != std::string::npos) EXPECT_TRUE(Parallel(l1, l2)) << p.code;
            else EXPECT_TRUE(Perpendicular(l1, l2)) << p.code;
            EXPECT_TRUE(On(l2, given.at(0))) << p.code;
            break;
        }
        case 6: {
            const General2 line = ReadLine(Between(s, "Consider the line  ", ". Calculate"));
            const Point2 a = given.at(0), b = given.at(1), x = PointsIn(sol).at(0);
            EXPECT_TRUE(On(line, x)) << p.code;
            EXPECT_NEAR(std::hypot(x.x - a.x, x.y - a.y), std::hypot(x.x - b.x, x.y - b.y), 1e-9) << p.code;
            // One answer only: the line is not the perpendicular bisector's parallel.
            EXPECT_GT(std::fabs(line.E * (b.x - a.x) - line.D * (b.y - a.y)), 1e-9) << p.code;
            break;
        }
        case 7: {
            const General2 l1 = ReadLine(Between(s, "&+IL_1:&-I& ", ";")), l2 = ReadLine(Between(s, "&+IL_2:&-I& "));
            const Point2 x = PointsIn(sol).at(0);
            EXPECT_TRUE(On(l1, x) && On(l2, x)) << p.code;
            EXPECT_NEAR(ReadDegrees(Between(sol, ")     ")), AcuteAngle(l1, l2), 1e-4) << p.code;
            break;
        }
        default: {
            const std::string letter = Between(s, "parameter  ", "  for");
            const std::string family = Between(s, "the line  ", "   and the point");
            const Point2 q = given.at(0);
            const double d = ReadExact(Between(s, ")  is ", ".&LF"));
            const double k1 = ReadExact(Part(sol, letter + "& =& "));
            const double k2 = ReadExact(Between(sol, "&+Ior&-I     " + letter + "& =& "));
            EXPECT_NE(k1, k2);
            EXPECT_NEAR(DistanceTo(ReadLine(family, letter, k1), q.x, q.y), d, 1e-9) << p.code;
            EXPECT_NEAR(DistanceTo(ReadLine(family, letter, k2), q.x, q.y), d, 1e-9) << p.code;
            break;
        }
        }
    });
    EXPECT_EQ(types.size(), 9u);
    EXPECT_EQ(positions.size(), 3u);
}
