#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "generators/item_drill.h"
#include "generators/nrp/drill_numbers.h"
#include "generators/nrp/power_drill.h"
#include "mathservices/arithmetic.h"
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
    const std::pair<std::string, std::string> cases[] = {
        {"  sin x  ", "sin x"}, {"a", "a"}, {"   ", ""}, {"", ""}, {" 2\u00B0 ", "2\u00B0"}};
    for (const auto& [text, trimmed] : cases) EXPECT_EQ(TrimBlanks(text), trimmed) << "'" << text << "'";
}

namespace {
// Checks over 200 seeds that apply(ws, x, coins) takes one draw a coin and does step to x
// once for every coin of 0.6 that falls; returns the numbers of fallen coins seen.
template <typename Apply, typename Step>
std::set<int> CheckCoinSteps(Apply apply, Step step, double x, int coins) {
    std::set<int> fallenCounts;
    for (int seed = 0; seed < 200; ++seed) {
        GeneratorWorkspace ws = SeededWorkspace(seed);
        GeneratorWorkspace replay = SeededWorkspace(seed);
        const double result = apply(ws, x, coins);
        double expected = x;
        int fallen = 0;
        for (int coin = 0; coin < coins; ++coin) {
            if (replay.stream.Draw() > 0.6f) {
                expected = step(expected);
                ++fallen;
            }
        }
        EXPECT_EQ(result, expected) << "seed " << seed;
        // The streams stay in step.
        EXPECT_EQ(ws.stream.Draw(), replay.stream.Draw()) << "seed " << seed;
        fallenCounts.insert(fallen);
    }
    return fallenCounts;
}
} // namespace

TEST(DropDigits, EachFallingCoinCutsOneDigit) {
    const auto cut = [](double v) { return std::floor(v / 10); };
    EXPECT_EQ(CheckCoinSteps(DropDigits, cut, 987654, 3), (std::set<int>{0, 1, 2, 3}));
    GeneratorWorkspace ws = SeededWorkspace(3);
    const double x = DropDigits(ws, 987654, 3);
    EXPECT_TRUE(x == 987654 || x == 98765 || x == 9876 || x == 987) << x;
}

TEST(ShiftDecimalPoint, EachFallingCoinMovesThePointOnePlace) {
    MathWorkspace rounding;
    const auto shift = [&rounding](double v) { return RoundAtPosition(rounding, v / 10, -6); };
    EXPECT_EQ(CheckCoinSteps(ShiftDecimalPoint, shift, 4321, 2), (std::set<int>{0, 1, 2}));
    GeneratorWorkspace ws = SeededWorkspace(3);
    const double x = ShiftDecimalPoint(ws, 4321, 2);
    EXPECT_TRUE(x == 4321 || x == 432.1 || x == 43.21) << x;
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
    AddNewItem(drill, [] { return ItemTexts{"1 + 1", "2"}; });
    const std::vector<ItemTexts> script = {{"", "refused"}, {"1 + 1", "repeat"}, {"2 + 2", "4"}};
    std::size_t calls = 0;
    AddNewItem(drill, [&] { return script[calls++]; });
    EXPECT_EQ(calls, 3u);
    EXPECT_EQ(ws.Solution, "&SP=10:&-I&+Ba)&-B 2&SP=50:&-I&+Bb)&-B 4&LF");
    drill.WriteStatement({"Head.&LF"});
    EXPECT_EQ(ws.Statement, "Head.&LF&SP=5:&+Ba)&-B&+I 1 + 1&-I&SP=43:&+Bb)&-B&+I 2 + 2&-I&LF&LF");
}

TEST(ItemDrillAddNewItem, ADrawThatNeverSucceedsIsAFault) {
    GeneratorWorkspace ws = SeededWorkspace(5);
    ws.ItemCount = 1;
    ItemDrill drill(ws, kStatementColumns1, kSolutionColumns1);
    EXPECT_THROW(AddNewItem(drill, [] { return ItemTexts{}; }), GeneratorFault);
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
