#include <gtest/gtest.h>

#include "generators/hub.h"
#include "generators/int/integral_items.h"
#include "integral_list_test_support.h"

TEST(IntegrationBySubstitution, Sweep) {
    SweepRoutine("KVOL_MATH_INT", 6, 2000, [](const GeneratedProblem& p) {
        CheckIntegralList(p, 2, 3);
        const auto items = LetteredItems(p.statement);
        for (std::size_t i = 1; i < items.size(); ++i)
            EXPECT_NE(MaskNumbers(items[i]), MaskNumbers(items[i - 1])) << p.code << " item " << i + 1;
    });
}

TEST(IntegrationBySubstitution, EveryRowDifferentiatesBack) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    for (int round = 0; round < 40; ++round) {
        for (int row = 1; row <= kSubstitutionRows; ++row) {
            const IntegralItem item = MakeSubstitutionItem(ws, row);
            EXPECT_EQ(CheckAntiderivative(IntegrandOf(item.statement), WithoutConstant(item.solution), 2), "")
                << "row " << row << ": " << item.statement << " -> " << item.solution;
        }
    }
}

TEST(IntegrationBySubstitution, TemplatesFollowInTurn) {
    GeneratorHub hub;
    // The first eight rows have no constants: a walk through them is a fixed sequence.
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {6, 0, 1234, 26, 1, 1});
    const auto items = LetteredItems(p.statement);
    std::size_t tan2 = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i] == "#INT(1 + tan^2_ &+Ix&-I_ &+Idx&-I#INT)") tan2 = i;
    }
    ASSERT_GT(tan2, 0u);
    ASSERT_LT(tan2 + 1, items.size());
    EXPECT_EQ(items[tan2 + 1], "#INT(tan^2_ &+Ix&-I_ &+Idx&-I#INT)");
    EXPECT_EQ(items[tan2 - 1].rfind("#INT(#COC(1#N)(&+Ix&-I_ (1 + ln^2_ &+Ix&-I)", 0), 0u);
}
