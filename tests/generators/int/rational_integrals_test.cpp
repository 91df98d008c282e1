#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "../lfd/calculus_checks.h"
#include "generators/hub.h"
#include "generators/int/rational_integrals.h"
#include "support/generator_sweep.h"
#include "support/markup_lint.h"

#include "integral_list_test_support.h"

TEST(RationalIntegrals, SweepPartialFractions) {
    SweepRoutine("KVOL_MATH_INT", 1, 2000, [](const GeneratedProblem& p) { CheckIntegralList(p, 1); });
}

TEST(RationalIntegrals, SweepQuadraticDenominators) {
    SweepRoutine("KVOL_MATH_INT", 2, 2000, [](const GeneratedProblem& p) { CheckIntegralList(p, 1); });
}

TEST(RationalIntegrals, ShapesFollowTheItemNumber) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    for (int round = 0; round < 300; ++round) {
        const RationalIntegral simple = MakePartialFractionIntegral(ws, 1);
        // Two distinct simple roots: the discriminant is a positive square.
        const double disc = simple.d1 * simple.d1 - 4 * simple.d0;
        EXPECT_EQ(simple.d2, 1);
        EXPECT_GT(disc, 0) << simple.statement;
        const RationalIntegral twice = MakePartialFractionIntegral(ws, 2);
        EXPECT_EQ(twice.d1 * twice.d1 - 4 * twice.d0, 0) << twice.statement;
        EXPECT_NE(twice.solution.find("#COC("), std::string::npos);
        const RationalIntegral quotient = MakePartialFractionIntegral(ws, 0);
        EXPECT_EQ(quotient.d2, 0);
        EXPECT_NE(quotient.n1, 0);
        const RationalIntegral quadratic = MakeQuadraticDenominatorIntegral(ws);
        EXPECT_LT(quadratic.d1 * quadratic.d1 - 4 * quadratic.d0, 0) << quadratic.statement;
        EXPECT_NE(quadratic.solution.find("ln|") == std::string::npos &&
                      quadratic.solution.find("arctan") == std::string::npos,
                  true);
    }
}

TEST(RationalIntegrals, LayoutInRowsOfThreeAndTwo) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {1, 0, 1234, 4, 1, 1});
    EXPECT_EQ(p.statement.rfind("&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(", 0), 0u);
    EXPECT_NE(p.statement.find("&SP=35:&-I&+Bb)&-B "), std::string::npos);
    EXPECT_NE(p.statement.find("#INT)&-I&LF&LF&SP=5:&-I&+Bd)&-B "), std::string::npos);
    EXPECT_EQ(p.statement.substr(p.statement.size() - 17), " dx#INT)&-I&LF&LF");
    EXPECT_EQ(p.solution.rfind("&SP=10:&-I&+Ba)&-B ", 0), 0u);
    EXPECT_NE(p.solution.find(" + C&-I&SP=55:&-I&+Bb)&-B "), std::string::npos);
    EXPECT_NE(p.solution.find(" + C&-I&LF&SP=10:&-I&+Bc)&-B "), std::string::npos);
    EXPECT_EQ(p.solution.substr(p.solution.size() - 10), " + C&-I&LF");
}

TEST(RationalIntegrals, ItemCountZeroGivesOneItemAndThirtyGivesTwentySix) {
    GeneratorHub hub;
    for (int routine : {1, 2}) {
        EXPECT_EQ(LetteredItems(GenerateProblem(hub, "KVOL_MATH_INT", {routine, 5, 77, 0, 1, 1}).statement).size(), 1u);
        EXPECT_EQ(LetteredItems(GenerateProblem(hub, "KVOL_MATH_INT", {routine, 5, 77, 30, 1, 1}).statement).size(),
                  26u);
    }
}
