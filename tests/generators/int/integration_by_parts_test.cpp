#include <gtest/gtest.h>

#include "generators/hub.h"
#include "generators/int/integral_items.h"
#include "integral_list_test_support.h"

TEST(IntegrationByParts, Sweep) {
    SweepRoutine("KVOL_MATH_INT", 5, 2000, [](const GeneratedProblem& p) {
        CheckIntegralList(p, 2);
        // The same template never comes twice in a row.
        const auto items = LetteredItems(p.statement);
        for (std::size_t i = 1; i < items.size(); ++i)
            EXPECT_NE(MaskNumbers(items[i]), MaskNumbers(items[i - 1])) << p.code << " item " << i + 1;
    });
}

TEST(IntegrationByParts, EveryRowDifferentiatesBack) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    for (int round = 0; round < 60; ++round) {
        for (int row = 1; row <= kByPartsRows; ++row) {
            const IntegralItem item = MakeByPartsItem(ws, row);
            EXPECT_EQ(CheckAntiderivative(IntegrandOf(item.statement), WithoutConstant(item.solution), 2), "")
                << "row " << row << ": " << item.statement << " -> " << item.solution;
        }
    }
}

TEST(IntegrationByParts, TwoItemsMakeOneRowWithTheThirdColumnEmpty) {
    GeneratorHub hub;
    for (int count : {0, 1, 2}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {5, 10, 321, count, 1, 1});
        EXPECT_EQ(LetteredItems(p.statement).size(), 2u) << p.code;
        EXPECT_EQ(p.statement.rfind("&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(", 0), 0u);
        EXPECT_NE(p.statement.find("&SP=41:&-I&+Bb)&-B #INT("), std::string::npos);
        EXPECT_EQ(p.statement.find("&SP=72:"), std::string::npos);
        EXPECT_EQ(p.statement.substr(p.statement.size() - 11), "#INT)&LF&LF") << p.statement;
        EXPECT_EQ(p.solution.find("&LF"), p.solution.size() - 3);
        EXPECT_NE(p.solution.find(" + &+IC&-I&SP=55:&-I&+Bb)&-B "), std::string::npos);
    }
}
