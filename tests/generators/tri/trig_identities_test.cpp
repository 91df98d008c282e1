#include <cmath>
#include <map>
#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <regex>

#include "generators/hub.h"
#include "generators/tri/trig_identity_templates.h"
#include "generators/tri/tri_routines.h"
#include "mathservices/number_markup.h"
#include "support/generator_sweep.h"
#include "support/markup_lint.h"
#include "support/markup_reader.h"

// Every identity of the table is checked as mathematics: both sides, read back from the
// expanded markup, agree at random angles.
namespace {
double Side(const std::string& markup, double x, double a, double b) {
    return ReadMarkupReal(markup, {{'x', x}, {'a', a}, {'b', b}});
}
} // namespace

TEST(TrigIdentityTable, EveryIdentityHoldsAtRandomAngles) {
    std::mt19937 random(12345);
    std::uniform_real_distribution<double> angle(-3, 3);
    for (int k = 0; k < kTrigIdentityCount; ++k) {
        const std::string text = ExpandTrigIdentity(kTrigIdentityTemplates[static_cast<std::size_t>(k)], "x", "a", "b");
        const auto eq = text.find('=');
        ASSERT_NE(eq, std::string::npos) << text;
        int checked = 0;
        for (int trial = 0; trial < 40; ++trial) {
            const double x = angle(random), a = angle(random), b = angle(random);
            double left = 0, right = 0;
            ASSERT_NO_THROW(left = Side(text.substr(0, eq), x, a, b)) << text;
            ASSERT_NO_THROW(right = Side(text.substr(eq + 1), x, a, b)) << text;
            // Points near a pole of either side say nothing.
            if (!std::isfinite(left) || !std::isfinite(right) || std::fabs(left) > 1e4 || std::fabs(right) > 1e4) continue;
            ++checked;
            EXPECT_NEAR(left, right, 1e-7 * std::max(1.0, std::fabs(left))) << "row " << k + 1 << ": " << text;
        }
        EXPECT_GT(checked, 20) << text;
    }
}

TEST(TrigIdentities, DrillShowsDistinctIdentitiesThatHold) {
    SweepRoutine("KVOL_MATH_TRI", 3, 2000, [](const GeneratedProblem& p) {
        const int n = std::clamp(p.fields.ItemCount, 1, 26);
        const auto items = LetteredItems(p.statement);
        ASSERT_EQ(static_cast<int>(items.size()), n) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) EXPECT_NE(items[i], items[j]) << p.code;
        }
        EXPECT_EQ(p.solution, "&SP=10: -&LF");
        const std::string head = p.statement.substr(0, p.statement.find("&LF") + 3);
        EXPECT_TRUE(head == "&-I&-BGive a proof of the following trigonometric identities.&LF" ||
                    head == "&-I&-BProve the following trigonometric identities.&LF")
            << head;
    });
}

TEST(TrigIdentities, ItemsHoldWhateverTheLetters) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(99);
    std::mt19937 random(7);
    std::uniform_real_distribution<double> angle(-3, 3);
    for (int i = 0; i < 400; ++i) {
        const int k = 1 + i % kTrigIdentityCount;
        std::string text = TrigIdentityItem(ws, k);
        // One letter stands for the variable, two for the angles of a sum.
        text = ReplaceAll(ReplaceAll(ReplaceAll(ReplaceAll(text, "&theta", "x"), "&alfa", "a"), "&beta", "b"), "&+It&-I", "&+Ix&-I");
        if (text.find("&+Ib&-I") == std::string::npos) text = ReplaceAll(text, "&+Ia&-I", "&+Ix&-I");
        const auto eq = text.find('=');
        for (int trial = 0; trial < 5; ++trial) {
            const double x = angle(random), a = angle(random), b = angle(random);
            const double left = Side(text.substr(0, eq), x, a, b), right = Side(text.substr(eq + 1), x, a, b);
            if (!std::isfinite(left) || !std::isfinite(right) || std::fabs(left) > 1e4 || std::fabs(right) > 1e4) continue;
            EXPECT_NEAR(left, right, 1e-7 * std::max(1.0, std::fabs(left))) << text;
        }
        EXPECT_EQ(LintMarkup(text), "") << text;
    }
}

TEST(TrigIdentities, OneItemStandsAloneOnItsLine) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_TRI", {3, 0, 321, 1, 1, 1});
    const auto at = p.statement.find("&SP=1:&+Ba)&-B ");
    ASSERT_NE(at, std::string::npos) << p.statement;
    EXPECT_EQ(p.statement.find("&SP=48:"), std::string::npos);
    EXPECT_EQ(p.statement.substr(p.statement.size() - 6), "&LF&LF");
    EXPECT_EQ(p.statement.find("&+Bb)"), std::string::npos);
}

TEST(TrigIdentities, TwentySixItemsAreAllDifferentRows) {
    GeneratorHub hub;
    for (int seed : {0, 17, 8999}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_TRI", {3, 0, seed, 26, 1, 1});
        const auto items = LetteredItems(p.statement);
        ASSERT_EQ(items.size(), 26u);
        EXPECT_EQ(std::set<std::string>(items.begin(), items.end()).size(), 26u);
        // Two to a line: b), d), ... end their line, a blank line after each.
        EXPECT_NE(p.statement.find("&LF&LF&SP=1:&+Bc)&-B "), std::string::npos);
        EXPECT_TRUE(std::regex_search(p.statement, std::regex("&SP=(1|48):&\\+Bz\\)&-B "))) << p.statement;
    }
}
