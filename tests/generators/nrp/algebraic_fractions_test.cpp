#include <gtest/gtest.h>

#include <cmath>

#include "algebra_test_helpers.h"
#include "generators/hub.h"
#include "support/generator_sweep.h"
#include "support/markup_reader.h"

using namespace algebra_test;

namespace {
const double kSamples[] = {0.37, 1.93, -2.71, 11.5};

std::complex<double> ValueAt(const std::string& text, double x, const std::string& code) {
    return ExpectComplexValue(text, {{'x', x}}, code);
}

// The simplified answer has the value of the statement, and its numerator and
// denominator have no whole root in common (the fraction cannot be simplified further).
void CheckFractions(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), std::clamp(p.fields.ItemCount, 1, 26)) << p.code;
    ASSERT_EQ(answers.size(), items.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        for (double x : kSamples) {
            EXPECT_TRUE(NearlyEqual(ValueAt(items[i], x, p.code), ValueAt(answers[i], x, p.code), 1e-9))
                << p.code << ": " << items[i] << "  vs  " << answers[i] << " at " << x;
        }
        const std::string& a = answers[i];
        if (a.rfind("#COC(", 0) != 0) continue;
        const auto mid = a.find("#N)(");
        ASSERT_NE(mid, std::string::npos) << a;
        ASSERT_EQ(a.compare(a.size() - 5, 5, "#COC)"), 0) << a;
        const std::string top = a.substr(5, mid - 5);
        const std::string bottom = a.substr(mid + 4, a.size() - mid - 9);
        for (int t = -20; t <= 20; ++t) {
            if (std::abs(ValueAt(bottom, t, p.code)) < 1e-9) {
                EXPECT_GT(std::abs(ValueAt(top, t, p.code)), 1e-9) << p.code << ": " << a << " at " << t;
            }
        }
        // A denominator is never a bare 1 or a negative number.
        EXPECT_NE(bottom, "1") << a;
        EXPECT_NE(bottom.rfind("-", 0), 0u) << a;
    }
}
} // namespace

TEST(AlgebraicFractions, SingleFractionsSimplify) { SweepRoutine("KVOL_MATH_NRP", 26, 2000, CheckFractions); }
TEST(AlgebraicFractions, ProductsAndQuotientsSimplify) { SweepRoutine("KVOL_MATH_NRP", 3, 2000, CheckFractions); }
TEST(AlgebraicFractions, SumsAndDifferencesSimplify) { SweepRoutine("KVOL_MATH_NRP", 4, 2000, CheckFractions); }

TEST(AlgebraicFractions, StatementForms) {
    GeneratorHub hub;
    bool square = false, product = false, times = false, over = false;
    for (int seed = 0; seed < 200; ++seed) {
        for (int routine : {3, 4, 26}) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 0, seed, 8, 1, 1});
            square = square || p.statement.find(")^2#") != std::string::npos;
            product = product || p.statement.find(")_ (") != std::string::npos;
            times = times || p.statement.find("#COC) \u00B7 #COC(") != std::string::npos;
            over = over || p.statement.find("#COC) : #COC(") != std::string::npos;
            // The drill's own columns, or fewer when an item is too wide for its column.
            auto has = [&](const char* mark) { return p.statement.find(mark) != std::string::npos; };
            if (routine != 26) {
                EXPECT_TRUE(has("&SP=37.5:&+Bb)") || has("&SP=5:&+Bb)")) << p.code;
            } else {
                EXPECT_TRUE(has("&SP=76:&+Bd)") || has("&SP=43:&+Bd)") || has("&SP=5:&+Bd)")) << p.code;
            }
            EXPECT_NE(p.solution.find("&SP=70:&-I&+Bd)"), std::string::npos) << p.code;
        }
    }
    EXPECT_TRUE(square && product && times && over);
}
