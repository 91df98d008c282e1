#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "generators/hub.h"
#include "generators/lfd/derivative_items.h"
#include "calculus_checks.h"
#include "support/generator_sweep.h"

namespace {
const std::string kFunctionHead = " &+Iy =&-I ";
const std::string kDerivativeHead = " &+Iy&-I_ ' = ";

std::string After(const std::string& item, const std::string& head) {
    EXPECT_EQ(item.rfind(head, 0), 0u) << item;
    return item.substr(head.size());
}

void CheckDerivativeDrill(const GeneratedProblem& p) {
    const int n = std::clamp(p.fields.ItemCount, 1, 20);
    const auto items = LetteredItems(p.statement);
    const auto answers = LetteredItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), n) << p.code;
    ASSERT_EQ(static_cast<int>(answers.size()), n) << p.code;
    std::set<std::string> seen;
    for (int i = 0; i < n; ++i) {
        EXPECT_TRUE(seen.insert(items[i]).second) << p.code << " repeats " << items[i];
        if (i >= 3) continue;
        EXPECT_EQ(CheckDerivative(After(items[i], kFunctionHead), After(answers[i], kDerivativeHead), 2), "")
            << p.code << " item " << i + 1 << ": " << items[i] << "  ->  " << answers[i];
    }
}
} // namespace

TEST(Derivatives, SweepEasy) { SweepRoutine("KVOL_MATH_LFD", 1, 2000, CheckDerivativeDrill); }
TEST(Derivatives, SweepHard) { SweepRoutine("KVOL_MATH_LFD", 2, 2000, CheckDerivativeDrill); }

TEST(Derivatives, EveryTypeDifferentiatesRight) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    for (int round = 0; round < 40; ++round) {
        for (int type = 1; type <= kDerivativeTypes; ++type) {
            const DerivativeItem easy = MakeEasyDerivative(ws, type);
            EXPECT_EQ(CheckDerivative(easy.function, easy.derivative, 2), "")
                << "easy " << type << ": " << easy.function << " -> " << easy.derivative;
            const DerivativeItem hard = MakeHardDerivative(ws, type);
            EXPECT_EQ(CheckDerivative(hard.function, hard.derivative, 2), "")
                << "hard " << type << ": " << hard.function << " -> " << hard.derivative;
        }
    }
}

TEST(Derivatives, LayoutInTwoColumns) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_LFD", {1, 0, 321, 3, 1, 1});
    EXPECT_EQ(p.statement.rfind("Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I ", 0), 0u);
    EXPECT_NE(p.statement.find("&SP=50:&+Bb)&-B  &+Iy =&-I "), std::string::npos);
    EXPECT_NE(p.statement.find("&LF&SP=5:&+Bc)&-B  &+Iy =&-I "), std::string::npos);
    EXPECT_EQ(p.statement.substr(p.statement.size() - 6), "&LF&LF");
    EXPECT_EQ(p.solution.rfind("&SP=10:&+Ba)&-B  &+Iy&-I_ ' = ", 0), 0u);
    EXPECT_NE(p.solution.find("&SP=55:&+Bb)&-B  &+Iy&-I_ ' = "), std::string::npos);
    // At most twenty items.
    EXPECT_EQ(LetteredItems(GenerateProblem(hub, "KVOL_MATH_LFD", {2, 0, 321, 26, 1, 1}).statement).size(), 20u);
}
