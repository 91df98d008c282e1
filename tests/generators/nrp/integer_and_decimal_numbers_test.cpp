#include <gtest/gtest.h>

#include <cmath>
#include <regex>
#include <set>

#include "generators/hub.h"
#include "generators/nrp/nrp_test_helpers.h"
#include "support/markup_reader.h"
#include "mathservices/arithmetic.h"

namespace {
// Each item's statement and answer read as numbers agree.
void ExpectItemsEqualAnswers(const GeneratedProblem& p,
                             const std::function<void(const std::string&, double)>& more = {}) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedItems(p)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        double left = 0, right = 0;
        ASSERT_NO_THROW(left = ReadMarkupReal(items[i])) << p.code << " " << items[i];
        ASSERT_NO_THROW(right = ReadMarkupReal(answers[i])) << p.code << " " << answers[i];
        EXPECT_TRUE(SameValue(left, right)) << p.code << " " << items[i] << " = " << answers[i] << " (" << left << ")";
        if (more) more(items[i], right);
    }
}

// A minus sign that belongs to a number stands inside parentheses: "(-5)".
void ExpectNegativesInParentheses(const std::string& item) {
    for (std::size_t at = item.find('-'); at != std::string::npos; at = item.find('-', at + 1)) {
        const bool ofNumber = at + 1 < item.size() && std::isdigit(static_cast<unsigned char>(item[at + 1]));
        if (ofNumber) {
            EXPECT_TRUE(at > 0 && item[at - 1] == '(') << item;
        }
    }
}

// A decimal of the text whose last place is 0.
bool EndsInZero(const std::string& item) {
    static const std::regex zero(R"(&\.\d*0(\D|$))");
    return std::regex_search(item, zero);
}

std::set<std::string> HeadLines(int routine) {
    GeneratorHub hub;
    std::set<std::string> heads;
    for (int seed = 0; seed < 200; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 0, seed, 2, 1, 1});
        heads.insert(p.statement.substr(0, p.statement.find("&LF") + 3));
    }
    return heads;
}

std::set<std::string> Wordings(const std::string& kind) {
    return {"Calculate the following expressions involving " + kind + " numbers.&LF",
            "Calculate the following expressions.&LF", "Calculate these expressions involving " + kind + " numbers.&LF",
            "Calculate these expressions.&LF"};
}
} // namespace

TEST(IntegerNumberDrills, SumsAndDifferencesAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 10, 2500, [](const GeneratedProblem& p) {
        ExpectItemsEqualAnswers(p, [](const std::string& item, double value) {
            ExpectNegativesInParentheses(item);
            EXPECT_TRUE(IsWhole(value)) << item;
            for (long long x : WholeNumbers(item)) {
                EXPECT_GE(x, 1) << item;
                EXPECT_LE(x, 15) << item;
            }
        });
    });
}

TEST(IntegerNumberDrills, ProductsAndQuotientsAreWhole) {
    SweepRoutine("KVOL_MATH_NRP", 11, 2500, [](const GeneratedProblem& p) {
        ExpectItemsEqualAnswers(p, [](const std::string& item, double value) {
            ExpectNegativesInParentheses(item);
            EXPECT_TRUE(IsWhole(value)) << item;
        });
    });
}

TEST(IntegerNumberDrills, FormsGoRound) {
    // Form 1 of routine 10 has two numbers, form 2 three, forms 3 to 5 parentheses or
    // brackets; the forms of a problem alternate, so five items show all of them.
    GeneratorHub hub;
    for (int seed = 0; seed < 50; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {10, 0, seed, 5, 1, 1});
        int brackets = 0, parentheses = 0, two = 0;
        for (const auto& item : StatementItems(p.statement)) {
            if (item.find("[ ") != std::string::npos) ++brackets;
            else if (item.find("( ") != std::string::npos) ++parentheses;
            else if (WholeNumbers(item).size() == 2) ++two;
        }
        EXPECT_EQ(brackets, 1) << p.statement;
        EXPECT_EQ(parentheses, 2) << p.statement;
        EXPECT_EQ(two, 1) << p.statement;
    }
}

TEST(IntegerNumberDrills, SignDrawNeverGivesZero) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(4321);
    int minus = 0, plus = 0;
    for (int i = 0; i < 20000; ++i) {
        const double s = RandomInRange(ws, -1, 1, 1, 1);
        ASSERT_TRUE(s == -1 || s == 1) << s;
        (s < 0 ? minus : plus) += 1;
    }
    EXPECT_GT(minus, 8000);
    EXPECT_GT(plus, 8000);
}

TEST(IntegerNumberDrills, HeadLines) {
    EXPECT_EQ(HeadLines(10), Wordings("integer"));
    EXPECT_EQ(HeadLines(11), Wordings("integer"));
}

TEST(DecimalNumberDrills, SumsAndDifferencesAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 14, 2500, [](const GeneratedProblem& p) {
        ExpectItemsEqualAnswers(p, [](const std::string& item, double value) {
            EXPECT_GT(value, 0) << item;
            EXPECT_NE(item.find("&."), std::string::npos) << item;
            // No decimal ends in 0.
            EXPECT_FALSE(EndsInZero(item)) << item;
        });
    });
}

TEST(DecimalNumberDrills, ProductsAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 15, 2500, [](const GeneratedProblem& p) {
        ExpectItemsEqualAnswers(p, [](const std::string& item, double) {
            EXPECT_NE(item.find("&."), std::string::npos) << item;
            EXPECT_FALSE(EndsInZero(item)) << item;
        });
    });
}

TEST(DecimalNumberDrills, QuotientsEnd) {
    SweepRoutine("KVOL_MATH_NRP", 2, 2500, [](const GeneratedProblem& p) {
        const auto answers = SolutionItems(p.solution);
        ExpectItemsEqualAnswers(p, [](const std::string& item, double quotient) {
            // The quotient is an ending decimal of at most two places.
            EXPECT_TRUE(IsWhole(std::round(quotient * 100 * 1e6) / 1e6)) << item << " " << quotient;
            EXPECT_NE(item.find(" : "), std::string::npos) << item;
        });
        for (const auto& a : answers) EXPECT_EQ(a.find("E"), std::string::npos) << a;
    });
}

TEST(DecimalNumberDrills, HeadLines) {
    EXPECT_EQ(HeadLines(14), Wordings("decimal"));
    EXPECT_EQ(HeadLines(15), Wordings("decimal"));
    EXPECT_EQ(HeadLines(2), Wordings("decimal"));
}
