#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "generators/ga3/space_problems.h"
#include "generators/hub.h"
#include "space_checks.h"
#include "support/generator_sweep.h"

namespace {
VectorsProblem Build(int seed) {
    GeneratorWorkspace ws;
    SeedWorkspace(ws, seed);
    return BuildVectorsProblem(ws, seed % 12);
}

Vec3 WithValue(Vec3 p, int column, double value) {
    p[column] = value;
    return p;
}

// Reads "5#SQR(17#SQR)" or "#SQR(78#SQR)" or "12" back as the square of its value.
double SquareOfRootText(const std::string& text) {
    const auto root = text.find("#SQR(");
    if (root == std::string::npos) return std::stod(text) * std::stod(text);
    const double outside = root == 0 ? 1 : std::stod(text.substr(0, root));
    return outside * outside * std::stod(text.substr(root + 5));
}
} // namespace

TEST(SpaceVectors, ConstructionsHoldTheirConditions) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        const VectorsProblem p = Build(seed);
        ASSERT_NE(p.h, p.k) << seed;
        switch (p.type) {
        case 3:
            EXPECT_NE(Triple(p.u, p.v, p.w), 0) << seed;
            EXPECT_EQ(p.answers[0] * p.u + p.answers[1] * p.v + p.answers[2] * p.w, p.s) << seed;
            break;
        case 4:
            EXPECT_EQ(Norm2(p.u), p.magnitude * p.magnitude) << seed;
            EXPECT_EQ(Dot(p.u, p.v), 0) << seed;
            EXPECT_GT(p.u.y, 0) << seed;
            EXPECT_EQ(p.u.y, p.answers[0]);
            EXPECT_EQ(p.v.z, p.answers[1]);
            break;
        case 5: {
            EXPECT_TRUE(AreParallel(Cross(p.u, p.v), p.w)) << seed;
            const double n = std::round(std::sqrt(Norm2(p.w)));
            EXPECT_EQ(n * n, Norm2(p.w)) << seed;
            break;
        }
        case 6:
            EXPECT_TRUE(AreParallel(p.u, WithValue(p.v, p.column, p.answers[0]))) << seed;
            EXPECT_EQ(Dot(p.u, WithValue(p.v, p.column, p.answers[1])), 0) << seed;
            EXPECT_EQ(Norm2(WithValue(p.v, p.column, p.answers[2])), p.magnitude2) << seed;
            EXPECT_EQ(Norm2(WithValue(p.v, p.column, -p.answers[2])), p.magnitude2) << seed;
            break;
        case 7:
            for (double h = -45; h <= 45; ++h)
                EXPECT_EQ(Triple(p.u, p.v, WithValue(p.w, p.column, h)) == 0, h == p.answers[0]) << seed << " " << h;
            break;
        case 11:
            EXPECT_NE(Triple(p.u, p.v, p.w), 0) << seed;
            break;
        default:
            EXPECT_FALSE(AreParallel(p.u, p.v)) << seed;
            break;
        }
    }
}

TEST(SpaceVectors, SweepAnglesAreasAndVolumesInTheText) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA3", 1, 2400, [&](const GeneratedProblem& g) {
        const VectorsProblem p = Build(g.fields.Seed);
        types.insert(p.type);
        if (p.type == 0 || p.type == 1) {
            // The whole degrees of the angle between u and v stand in the first answer.
            const double degrees = std::acos(Dot(p.u, p.v) / std::sqrt(Norm2(p.u) * Norm2(p.v))) * 180 / kPi;
            const double whole = std::floor(std::round(degrees * 360000) / 360000);
            EXPECT_TRUE(Contains(g.solution, "&alfa& =& " + std::to_string(static_cast<int>(whole)) + "\u00B0"))
                << g.code << " " << degrees;
        }
        if (p.type == 9) {
            const auto at = g.solution.rfind("& =& ");
            const auto end = g.solution.find(" u^2");
            EXPECT_EQ(SquareOfRootText(g.solution.substr(at + 5, end - at - 5)), Norm2(Cross(p.u, p.v))) << g.code;
        }
        if (p.type == 11) {
            EXPECT_TRUE(Contains(g.solution, "& =& " + std::to_string(static_cast<int>(std::fabs(Triple(p.u, p.v, p.w)))) +
                                                 " u^3.&LF"))
                << g.code;
        }
        if (p.type == 0) {
            EXPECT_TRUE(Contains(g.solution, "& =& " + std::to_string(static_cast<int>(Dot(p.u, p.v))) + "&LF")) << g.code;
        }
    });
    EXPECT_EQ(types.size(), 12u);
}
