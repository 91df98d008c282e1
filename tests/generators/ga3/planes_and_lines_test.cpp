#include <gtest/gtest.h>

#include <set>

#include "generators/ga3/space_problems.h"
#include "generators/hub.h"
#include "space_checks.h"
#include "support/generator_sweep.h"

namespace {
bool OnPlane(const Plane& p, const Vec3& q) { return PlaneValue(p, q) == 0; }
bool InPlane(const Plane& p, const Line3& l) { return OnPlane(p, l.point) && Dot(p.normal, l.direction) == 0; }
bool ParallelOff(const Plane& p, const Line3& l) { return !OnPlane(p, l.point) && Dot(p.normal, l.direction) == 0; }
bool OnLine(const Line3& l, const Vec3& q) { return AreParallel(q - l.point, l.direction); }
// Two lines that meet in one point.
bool Meet(const Line3& a, const Line3& b) {
    return !AreParallel(a.direction, b.direction) && Triple(b.point - a.point, a.direction, b.direction) == 0;
}

// The plane is fixed by what its statement gives: a normal, or two independent
// directions within it, and a point.
void ExpectDetermined(const PlaneProblem& q, int seed) {
    std::vector<Vec3> within;
    Vec3 normal;
    for (std::size_t i = 1; i < q.points.size(); ++i) within.push_back(q.points[i] - q.points[0]);
    for (const auto& v : q.vectors) within.push_back(v);
    // The line of type 6 is across the plane; all other lines lie along it.
    if (q.type != 6)
        for (const auto& l : q.lines) within.push_back(l.direction);
    switch (q.type) {
    case 4: normal = q.given.normal; break;
    case 5: normal = q.normal; break;
    case 6: normal = q.lines[0].direction; break;
    case 7: within.push_back(q.lines[0].point - q.points[0]); break;
    case 9: within.push_back(q.given.normal); break;
    case 10:
    case 11: within.push_back(q.lines[1].point - q.lines[0].point); break;
    default: break;
    }
    if (IsNull(normal)) {
        for (std::size_t i = 0; i < within.size() && IsNull(normal); ++i)
            for (std::size_t j = i + 1; j < within.size() && IsNull(normal); ++j) normal = Cross(within[i], within[j]);
    }
    ASSERT_FALSE(IsNull(normal)) << "underdetermined, seed " << seed << " type " << q.type;
    for (const auto& w : within) EXPECT_EQ(Dot(normal, w), 0) << seed << " type " << q.type;
    EXPECT_TRUE(AreParallel(normal, q.answer.normal)) << seed << " type " << q.type;
}
} // namespace

TEST(PlaneCalculations, EveryTypeBuildsThePlaneItDescribes) {
    for (int seed = 0; seed < SweepSeedCount(2600); ++seed) {
        const int type = 1 + seed % 13;
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const PlaneProblem q = BuildPlaneProblem(ws, type);
        const Plane& a = q.answer;
        for (const auto& p : q.points) EXPECT_TRUE(OnPlane(a, p)) << seed;
        for (const auto& v : q.vectors) EXPECT_EQ(Dot(a.normal, v), 0) << seed;
        switch (type) {
        case 4: EXPECT_TRUE(AreParallel(q.given.normal, a.normal) && !OnPlane(q.given, q.points[0])) << seed; break;
        case 5: EXPECT_TRUE(AreParallel(q.normal, a.normal)) << seed; break;
        case 6: EXPECT_TRUE(AreParallel(q.lines[0].direction, a.normal)) << seed; break;
        case 7: EXPECT_TRUE(InPlane(a, q.lines[0])) << seed; break;
        case 8: EXPECT_TRUE(ParallelOff(a, q.lines[0])) << seed; break;
        case 9: EXPECT_EQ(Dot(q.given.normal, a.normal), 0) << seed; break;
        case 10:
            EXPECT_TRUE(InPlane(a, q.lines[0]) && InPlane(a, q.lines[1]) && Meet(q.lines[0], q.lines[1])) << seed;
            break;
        case 11:
            EXPECT_TRUE(InPlane(a, q.lines[0]) && InPlane(a, q.lines[1])) << seed;
            EXPECT_TRUE(AreParallel(q.lines[0].direction, q.lines[1].direction)) << seed;
            EXPECT_FALSE(OnLine(q.lines[0], q.lines[1].point)) << seed;
            break;
        case 12: EXPECT_TRUE(InPlane(a, q.lines[0]) && ParallelOff(a, q.lines[1])) << seed; break;
        case 13: EXPECT_TRUE(ParallelOff(a, q.lines[0]) && ParallelOff(a, q.lines[1])) << seed; break;
        default: break;
        }
        ExpectDetermined(q, seed);
    }
}

TEST(LineCalculations, EveryTypeBuildsTheLineItDescribes) {
    for (int seed = 0; seed < SweepSeedCount(2400); ++seed) {
        const int type = 1 + seed % 8;
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const LineProblem q = BuildLineProblem(ws, type);
        const Line3& a = q.answer;
        const Vec3& d = a.direction;
        // The symmetric form needs every component.
        EXPECT_TRUE(d.x != 0 && d.y != 0 && d.z != 0) << seed;
        for (const auto& p : q.points) EXPECT_TRUE(OnLine(a, p)) << seed;
        switch (type) {
        case 1: EXPECT_TRUE(AreParallel(q.vector, d) && !IsNull(q.vector)) << seed; break;
        case 2: EXPECT_NE(q.points[0], q.points[1]) << seed; break;
        case 3:
        case 4: EXPECT_TRUE(AreParallel(q.lines[0].direction, d) && !OnLine(q.lines[0], a.point)) << seed; break;
        case 5: EXPECT_TRUE(AreParallel(q.plane.normal, d)) << seed; break;
        case 6: EXPECT_TRUE(AreParallel(q.plane.normal, d) && Meet(a, q.lines[0])) << seed; break;
        case 7:
            EXPECT_EQ(Dot(q.lines[0].direction, d), 0) << seed;
            EXPECT_EQ(Dot(q.plane.normal, d), 0) << seed;
            EXPECT_FALSE(AreParallel(q.lines[0].direction, q.plane.normal)) << seed;
            EXPECT_FALSE(OnPlane(q.plane, a.point)) << seed;
            break;
        default:
            EXPECT_TRUE(Meet(a, q.lines[0]) && Meet(a, q.lines[1])) << seed;
            // The planes through the point and each line differ, so the answer is the only one.
            EXPECT_FALSE(AreParallel(Cross(q.lines[0].point - a.point, q.lines[0].direction),
                                     Cross(q.lines[1].point - a.point, q.lines[1].direction)))
                << seed;
            break;
        }
    }
}

namespace {
int TypeFor(int seed, int g, int i, int typeCount) {
    GeneratorWorkspace ws;
    SeedWorkspace(ws, seed);
    ws.GroupSize = g;
    ws.GroupIndex = i;
    return ProgressiveType(ws, typeCount);
}
} // namespace

TEST(ProgressiveTypes, GroupOfTwoGoesFromEasyToHard) {
    for (int seed = 0; seed < 300; ++seed) {
        EXPECT_LE(TypeFor(seed, 2, 1, 13), 7);
        EXPECT_GE(TypeFor(seed, 2, 2, 13), 8);
        EXPECT_LE(TypeFor(seed, 2, 1, 8), 4);
        EXPECT_GE(TypeFor(seed, 2, 2, 8), 5);
        const int any = TypeFor(seed, 1, 1, 13);
        EXPECT_TRUE(any >= 1 && any <= 13);
    }
}

TEST(ProgressiveTypes, GroupOfSixEndsInTheTopBand) {
    for (int i : {5, 6}) {
        EXPECT_GE(TypeFor(0, 6, i, 13), 9);
        EXPECT_GE(TypeFor(0, 6, i, 8), 7);
    }
    EXPECT_LE(TypeFor(0, 6, 1, 13), 4);
    EXPECT_LE(TypeFor(0, 6, 1, 8), 3);
}

TEST(ProgressiveTypes, ConsecutiveProblemsOfABigGroupDiffer) {
    for (int g = 3; g <= 10; ++g)
        for (int i = 1; i < g; ++i) EXPECT_NE(TypeFor(0, g, i, 13), TypeFor(0, g, i + 1, 13)) << g << " " << i;
}

TEST(ProgressiveTypes, GroupSizeZeroIsAnErrorText) {
    GeneratorHub hub;
    std::string statement, solution;
    hub.RunGenerator("KVOL_MATH_GA3", "0020001234000001", statement, solution);
    EXPECT_EQ(statement.rfind("<ERROR>  Number= ", 0), 0u) << statement;
}

TEST(PlaneCalculations, SweepTextIsTheAnswer) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA3", 2, 2000, [&](const GeneratedProblem& g) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, g.fields.Seed);
        ws.GroupSize = g.fields.GroupSize;
        ws.GroupIndex = g.fields.GroupIndex;
        const int type = ProgressiveType(ws, 13);
        types.insert(type);
        const PlaneProblem q = BuildPlaneProblem(ws, type);
        EXPECT_EQ(g.solution, "&SP=10:&+I&pi&-I& :& " + PlaneMarkup(q.answer) + "&LF") << g.code;
        EXPECT_TRUE(Contains(g.statement, "Find the equation of the plane that ")) << g.code;
    });
    EXPECT_EQ(types.size(), 13u);
}

TEST(LineCalculations, SweepTextIsTheAnswer) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA3", 3, 2000, [&](const GeneratedProblem& g) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, g.fields.Seed);
        ws.GroupSize = g.fields.GroupSize;
        ws.GroupIndex = g.fields.GroupIndex;
        const int type = ProgressiveType(ws, 8);
        types.insert(type);
        const LineProblem q = BuildLineProblem(ws, type);
        EXPECT_EQ(g.solution, "&SP=10:&+IL&-I& :& " + SymmetricLineMarkup(ws, q.answer) + "&LF") << g.code;
        EXPECT_FALSE(Contains(g.solution, "#N)(0#COC)")) << g.code;
    });
    EXPECT_EQ(types.size(), 8u);
}
