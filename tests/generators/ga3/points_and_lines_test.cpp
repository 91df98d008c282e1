#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "generators/ga3/space_problems.h"
#include "generators/hub.h"
#include "mathservices/number_markup.h"
#include "space_checks.h"
#include "support/generator_sweep.h"

namespace {
Vec3 WithValue(Vec3 p, int column, double value) {
    p[column] = value;
    return p;
}

double Distance(const Plane& plane, const Vec3& p) {
    return std::fabs(PlaneValue(plane, p)) / std::sqrt(Norm2(plane.normal));
}

// 0 coincident, 1 parallel, 2 meeting, 3 crossing, from the lines alone.
int Position(const Line3& a, const Line3& b) {
    const Vec3 w = b.point - a.point;
    if (AreParallel(a.direction, b.direction)) return AreParallel(w, a.direction) ? 0 : 1;
    return Triple(w, a.direction, b.direction) == 0 ? 2 : 3;
}

bool OnLine(const Line3& l, const Vec3& p) { return AreParallel(p - l.point, l.direction); }
} // namespace

TEST(PointsProblems, TheAnswerAndOnlyItSolvesTheCondition) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        const int type = seed % 4;
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const PointsProblem p = BuildPointsProblem(ws, type);
        for (double v = -40; v <= 40; ++v) {
            bool holds = false;
            if (type == 0) {
                const Vec3 d = WithValue(p.D, p.column, v);
                holds = Triple(p.B - p.A, p.C - p.A, d - p.A) == 0;
                ASSERT_FALSE(AreParallel(p.B - p.A, p.C - p.A)) << seed;
            } else if (type == 1) {
                const Vec3 c = WithValue(p.C, p.column, v);
                holds = AreParallel(p.B - p.A, c - p.A);
            } else {
                const Vec3 q = WithValue(p.A, p.column, v);
                holds = std::fabs(Distance(p.plane, q) - p.distance) < 1e-9;
                if (type == 3) holds = holds && v > 0;
            }
            const bool answer = v == p.value1 || (type == 2 && v == p.value2);
            EXPECT_EQ(holds, answer) << "seed " << seed << " value " << v;
        }
        if (type == 2) {
            EXPECT_NE(p.value1, p.value2) << seed;
        }
    }
}

TEST(PointsProblems, SweepTextShowsTheAnswer) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA3", 4, 2000, [&](const GeneratedProblem& g) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, g.fields.Seed);
        const int type = g.fields.Seed % 4;
        types.insert(type);
        const PointsProblem p = BuildPointsProblem(ws, type);
        EXPECT_TRUE(Contains(g.solution, p.letter + (type == 2 ? "_1 = " : " = ") + PlainNumberText(p.value1)))
            << g.code;
        // The letter stands in the last point and nowhere else of the statement's points.
        EXPECT_TRUE(Contains(g.statement, "parameter  " + p.letter + "  for which")) << g.code;
    });
    EXPECT_EQ(types.size(), 4u);
}

TEST(TwoLines, BuiltInThePositionAsked) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        const int kind = seed % 4;
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const TwoLines t = BuildTwoLines(ws, kind);
        EXPECT_EQ(Position(t.first, t.second), kind) << seed;
        if (kind == 2) {
            EXPECT_TRUE(OnLine(t.first, t.meeting)) << seed;
            EXPECT_TRUE(OnLine(t.second, t.meeting)) << seed;
        }
        if (kind <= 1) {
            // Parallel directions are multiples by a factor other than 0.
            EXPECT_FALSE(IsNull(t.second.direction)) << seed;
            EXPECT_FALSE(IsNull(t.first.direction)) << seed;
        }
    }
}

TEST(TwoLines, SweepAndEveryPositionOccurs) {
    std::set<std::string> answers;
    SweepRoutine("KVOL_MATH_GA3", 7, 2000, [&](const GeneratedProblem& g) {
        answers.insert(g.solution.substr(0, 22));
        GeneratorWorkspace ws;
        SeedWorkspace(ws, g.fields.Seed);
        const TwoLines t = BuildTwoLines(ws, g.fields.Seed % 4);
        if (t.kind == 2) {
            EXPECT_EQ(g.solution, "&SP=10:Intersect at the point  &+IP&-I (" + PlainNumberText(t.meeting.x) + ",  " +
                                      PlainNumberText(t.meeting.y) + ",  " + PlainNumberText(t.meeting.z) + ")&LF")
                << g.code;
        }
        EXPECT_TRUE(Contains(g.statement, "&SP=10:&+IL&-I_1& :& & ")) << g.code;
        EXPECT_FALSE(Contains(g.statement, "#N)(0#COC)")) << g.code;
    });
    EXPECT_EQ(answers.size(), 4u);
}

TEST(TwoLinesWithLetter, PositionChangesOnlyAtTheCriticalValue) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        const int kind = seed % 3;
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const TwoLinesWithLetter t = BuildTwoLinesWithLetter(ws, kind);
        for (double v = -12; v <= 12; ++v) {
            Line3 second = t.second;
            if (kind == 0) second.point[t.column] = v;
            else second.direction[t.column] = v;
            const int position = Position(t.first, second);
            const int atCritical = kind == 0 ? 2 : (kind == 1 ? 0 : 1);
            const int elsewhere = kind == 1 ? 2 : 3;
            EXPECT_EQ(position, v == t.critical ? atCritical : elsewhere) << seed << " v=" << v;
            if (position == 2) {
                EXPECT_TRUE(OnLine(t.first, t.meeting)) << seed;
                EXPECT_TRUE(OnLine(second, t.meeting)) << seed;
            }
        }
    }
}

TEST(TwoLinesWithLetter, SweepLetterInStatementAndSolution) {
    std::set<std::string> openings;
    SweepRoutine("KVOL_MATH_GA3", 8, 2000, [&](const GeneratedProblem& g) {
        openings.insert(g.statement.substr(0, 10));
        GeneratorWorkspace ws;
        SeedWorkspace(ws, g.fields.Seed);
        const int remainder = g.fields.Seed % 3;
        const TwoLinesWithLetter t = BuildTwoLinesWithLetter(ws, remainder == 2 ? 0 : remainder + 1);
        EXPECT_TRUE(Contains(g.statement, "parameter  " + t.letter)) << g.code;
        EXPECT_TRUE(Contains(g.solution, t.letter + " = " + PlainNumberText(t.critical))) << g.code;
        EXPECT_TRUE(Contains(g.solution, t.letter + " &!= " + PlainNumberText(t.critical))) << g.code;
    });
    EXPECT_EQ(openings.size(), 3u);
}
