#include <gtest/gtest.h>

#include <regex>

#include <cmath>

#include "algebra_test_helpers.h"
#include "generators/hub.h"
#include "generators/nrp/algebra_items.h"
#include "mathservices/number_markup.h"
#include "support/generator_sweep.h"

using namespace algebra_test;

namespace {
// Checks one angle drill: each item recomputed from its text.
void CheckAngleDrill(const GeneratedProblem& p, int operation) {
    const auto items = LetteredItems(p.statement, ")&-B ");
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), std::clamp(p.fields.ItemCount, 1, 26)) << p.code;
    ASSERT_EQ(answers.size(), items.size()) << p.code;
    EXPECT_TRUE(AllDistinct(items)) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::string& t = items[i];
        const double result = ReadSeconds(answers[i]);
        double expected = std::nan("");
        switch (operation) {
        case 1: {
            const auto at = t.find("  +  ");
            ASSERT_NE(at, std::string::npos) << t;
            expected = ReadSeconds(t.substr(0, at)) + ReadSeconds(t.substr(at + 5));
            break;
        }
        case 2: {
            const auto at = t.find("  -  (");
            ASSERT_NE(at, std::string::npos) << t;
            const double a = ReadSeconds(t.substr(0, at));
            const double b = ReadSeconds(t.substr(at + 6, t.size() - at - 7));
            EXPECT_GE(a, b) << t;
            expected = a - b;
            EXPECT_GE(result, 0) << t;
            break;
        }
        case 3: {
            const auto at = t.find("  \u00D7  (");
            ASSERT_NE(at, std::string::npos) << t;
            const double f = std::stod(t.substr(0, at));
            EXPECT_TRUE(f >= 2 && f <= 5) << t;
            expected = f * ReadSeconds(t.substr(at + 7, t.size() - at - 8));
            break;
        }
        default: {
            const auto at = t.find(")  :  ");
            ASSERT_EQ(t[0], '(') << t;
            ASSERT_NE(at, std::string::npos) << t;
            const double f = std::stod(t.substr(at + 6));
            const double a = ReadSeconds(t.substr(1, at - 1));
            EXPECT_EQ(std::fmod(a, f), 0) << t;
            expected = a / f;
            break;
        }
        }
        EXPECT_EQ(result, expected) << p.code << ": " << t << " = " << answers[i];
        // Zero minutes or seconds are left out; degrees always stand.
        EXPECT_EQ(answers[i].find(" 0'"), std::string::npos) << answers[i];
        EXPECT_EQ(answers[i].find(" 0\""), std::string::npos) << answers[i];
        EXPECT_NE(answers[i].find("\u00B0"), std::string::npos) << answers[i];
    }
    // The first item opens its row at a column mark of whichever set its items fit.
    EXPECT_TRUE(std::regex_search(p.statement, std::regex("&SP=[0-9.]+:&\\+Ba\\)&-B "))) << p.statement;
}
} // namespace

TEST(Angles, Additions) { SweepRoutine("KVOL_MATH_NRP", 27, 2000, [](const GeneratedProblem& p) { CheckAngleDrill(p, 1); }); }
TEST(Angles, Subtractions) { SweepRoutine("KVOL_MATH_NRP", 28, 2000, [](const GeneratedProblem& p) { CheckAngleDrill(p, 2); }); }
TEST(Angles, Multiplications) { SweepRoutine("KVOL_MATH_NRP", 29, 2000, [](const GeneratedProblem& p) { CheckAngleDrill(p, 3); }); }
TEST(Angles, Divisions) { SweepRoutine("KVOL_MATH_NRP", 30, 2000, [](const GeneratedProblem& p) { CheckAngleDrill(p, 4); }); }

TEST(Angles, ComplementAndSupplement) {
    SweepRoutine("KVOL_MATH_NRP", 31, 2000, [](const GeneratedProblem& p) {
        const auto items = LetteredItems(p.statement, ")&-B ");
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), std::clamp(p.fields.ItemCount, 1, 26)) << p.code;
        ASSERT_EQ(answers.size(), items.size()) << p.code;
        EXPECT_TRUE(AllDistinct(items)) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            const double a = ReadSeconds(items[i]);
            const auto comma = answers[i].find(",  ");
            ASSERT_NE(comma, std::string::npos) << answers[i];
            EXPECT_EQ(ReadSeconds(answers[i].substr(0, comma)) + a, 90 * 3600) << answers[i];
            EXPECT_EQ(ReadSeconds(answers[i].substr(comma + 3)) + a, 180 * 3600) << answers[i];
        }
    });
}

TEST(Angles, MissingAngleOfAFigure) {
    SweepRoutine("KVOL_MATH_NRP", 32, 2000, [](const GeneratedProblem& p) {
        static const char* kPictures[] = {"'m_ang_abc180.gif'DXmm=46:DYmm=-23.46:", "'m_ang_abc90.gif'DXmm=23:DYmm=-21.275:",
                                          "'m_trian_recsl.gif'", "'m_trian_sl.gif'", "'m_pllg_sl.gif'"};
        static const double kTotals[] = {180, 90, 90, 180, 180};
        const int shape = p.fields.Seed % 5;
        EXPECT_NE(p.statement.find(std::string("&SP=60:#IMG(") + kPictures[shape]), std::string::npos) << p.statement;
        // The given angles stand between "is " and the next " and" or ".".
        double given = 0;
        std::size_t pos = 0;
        int count = 0;
        while ((pos = p.statement.find(" is ", pos)) != std::string::npos) {
            pos += 4;
            auto end = std::min(p.statement.find(" and ", pos), p.statement.find(".&LF", pos));
            given += ReadSeconds(p.statement.substr(pos, end - pos));
            ++count;
        }
        EXPECT_EQ(count, shape == 2 || shape == 4 ? 1 : 2) << p.statement;
        const std::string head = "&SP=10:&-I&-B  &+IA&-I = ";
        ASSERT_EQ(p.solution.rfind(head, 0), 0u) << p.solution;
        const double answer = ReadSeconds(p.solution.substr(head.size(), p.solution.size() - head.size() - 3));
        EXPECT_GT(answer, 0) << p.code;
        EXPECT_EQ(answer + given, kTotals[shape] * 3600) << p.code << ": " << p.statement << p.solution;
    });
}

TEST(Angles, ZeroMinutesAndSecondsAreLeftOut) {
    EXPECT_EQ(SecondsToDegreeMarkup(3600), "1\u00B0& ");
    AngleItem item;
    item.first = 7200;
    item.second = 3630;
    EXPECT_EQ(AngleItemText(item, 1), "2\u00B0&   +  1\u00B0& 30\"");
}

TEST(Angles, SubtractionIsNeverNegative) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        GeneratorWorkspace ws;
        ws.stream.Draw(-1);
        ws.stream.SeedStream(seed);
        const AngleItem item = MakeAngleItem(ws, 2);
        EXPECT_GE(item.first, item.second);
        EXPECT_EQ(item.result, item.first - item.second);
        EXPECT_GE(item.result, 0);
    }
}
