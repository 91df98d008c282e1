#include <cmath>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generators/item_drill.h"
#include "generators/nrp/drill_numbers.h"
#include "generators/nrp/power_drill.h"
#include "mathservices/faults.h"
#include "mathservices/utf8_text.h"

namespace {
GeneratorWorkspace SeededWorkspace(int seed) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(seed);
    return ws;
}
} // namespace

TEST(TrimBlanks, CutsBlanksAtBothEndsOnly) {
    EXPECT_EQ(TrimBlanks("  sin x  "), "sin x");
    EXPECT_EQ(TrimBlanks("a"), "a");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks(" 2\u00B0 "), "2\u00B0");
}

TEST(DropDigits, EachFallingCoinCutsOneDigit) {
    std::set<int> cuts;
    for (int seed = 0; seed < 200; ++seed) {
        GeneratorWorkspace ws = SeededWorkspace(seed);
        GeneratorWorkspace replay = SeededWorkspace(seed);
        const double x = DropDigits(ws, 987654, 3);
        double expected = 987654;
        int cut = 0;
        for (int coin = 0; coin < 3; ++coin) {
            if (replay.stream.Draw() > 0.6f) {
                expected = std::floor(expected / 10);
                ++cut;
            }
        }
        EXPECT_EQ(x, expected) << "seed " << seed;
        // Exactly one draw a coin: the streams stay in step.
        EXPECT_EQ(ws.stream.Draw(), replay.stream.Draw()) << "seed " << seed;
        cuts.insert(cut);
    }
    EXPECT_EQ(cuts, (std::set<int>{0, 1, 2, 3}));
}

TEST(ShiftDecimalPoint, EachFallingCoinMovesThePointOnePlace) {
    std::set<double> seen;
    for (int seed = 0; seed < 200; ++seed) {
        GeneratorWorkspace ws = SeededWorkspace(seed);
        GeneratorWorkspace replay = SeededWorkspace(seed);
        const double x = ShiftDecimalPoint(ws, 4321, 2);
        int shifts = 0;
        for (int coin = 0; coin < 2; ++coin) {
            if (replay.stream.Draw() > 0.6f) ++shifts;
        }
        const double expected[] = {4321, 432.1, 43.21};
        EXPECT_EQ(x, expected[shifts]) << "seed " << seed;
        EXPECT_EQ(ws.stream.Draw(), replay.stream.Draw()) << "seed " << seed;
        seen.insert(x);
    }
    EXPECT_EQ(seen.size(), 3u);
}

TEST(ExpressionHeadLines, NameWhatTheExpressionsInvolveInTwoOfFour) {
    const std::vector<std::string> expected = {
        "Calculate the following expressions involving integer numbers.&LF", "Calculate the following expressions.&LF",
        "Calculate these expressions involving integer numbers.&LF", "Calculate these expressions.&LF"};
    EXPECT_EQ(ExpressionHeadLines("integer numbers"), expected);
}

TEST(ItemDrillAddNewItem, DrawsAgainWhileRefusedOrRepeated) {
    GeneratorWorkspace ws = SeededWorkspace(5);
    ws.ItemCount = 2;
    ItemDrill drill(ws, kStatementColumns2, kSolutionColumns2);
    drill.AddNewItem([] { return ItemTexts{"1 + 1", "2"}; });
    const std::vector<ItemTexts> script = {{"", "refused"}, {"1 + 1", "repeat"}, {"2 + 2", "4"}};
    std::size_t calls = 0;
    drill.AddNewItem([&] { return script[calls++]; });
    EXPECT_EQ(calls, 3u);
    EXPECT_EQ(ws.Solution, "&SP=10:&-I&+Ba)&-B 2&SP=50:&-I&+Bb)&-B 4&LF");
    drill.WriteStatement({"Head.&LF"});
    EXPECT_EQ(ws.Statement, "Head.&LF&SP=5:&+Ba)&-B&+I 1 + 1&-I&SP=43:&+Bb)&-B&+I 2 + 2&-I&LF&LF");
}

TEST(ItemDrillAddNewItem, ADrawThatNeverSucceedsIsAFault) {
    GeneratorWorkspace ws = SeededWorkspace(5);
    ws.ItemCount = 1;
    ItemDrill drill(ws, kStatementColumns1, kSolutionColumns1);
    EXPECT_THROW(drill.AddNewItem([] { return ItemTexts{}; }), GeneratorFault);
}

TEST(ItemDrillLook, PowerRowsAreUprightWithABlankLineAfterEachRow) {
    GeneratorWorkspace ws = SeededWorkspace(5);
    ws.ItemCount = 3;
    ItemDrill drill(ws, kStatementColumns2, kSolutionColumns2, 26, kPowerItems);
    drill.AddItem("x", "1");
    drill.AddItem("y", "2");
    drill.AddItem("z", "3");
    drill.WriteStatement({"Head.&LF"});
    EXPECT_EQ(ws.Statement, "Head.&LF&SP=5:&+Ba)&-B x&SP=43:&+Bb)&-B y&LF&LF&SP=5:&+Bc)&-B z&LF&LF");
    EXPECT_EQ(ws.Solution,
              "&SP=10:&-I&+Ba)&-B 1&SP=50:&-I&+Bb)&-B 2&LF&LF&SP=10:&-I&+Bc)&-B 3&LF&LF");
}
