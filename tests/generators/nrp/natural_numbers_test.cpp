#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
// Reads a grouped number such as "12_ 345" back.
long long ReadGrouped(const std::string& text) {
    std::string digits;
    for (char c : text) {
        if (c >= '0' && c <= '9') digits += c;
        else if (c != '_' && c != ' ') ADD_FAILURE() << "unexpected character in number: " << text;
    }
    return std::stoll(digits);
}

struct Operation {
    long long left;
    char op;
    long long right;
};

Operation ReadItem(const std::string& item) {
    const auto plus = item.find(" + ");
    const auto minus = item.find(" - ");
    const auto at = plus != std::string::npos ? plus : minus;
    EXPECT_NE(at, std::string::npos) << item;
    return {ReadGrouped(item.substr(0, at)), item[at + 1], ReadGrouped(item.substr(at + 3))};
}
} // namespace

TEST(NaturalNumbers, SweepAdditionAndSubtraction) {
    SweepRoutine("KVOL_MATH_NRP", 12, 9000, [](const GeneratedProblem& p) {
        const int n = std::clamp(p.fields.ItemCount, 1, 26);
        const auto items = StatementItems(p.statement);
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), n) << p.code;
        ASSERT_EQ(static_cast<int>(answers.size()), n) << p.code;
        for (int i = 0; i < n; ++i) {
            const Operation o = ReadItem(items[i]);
            const long long result = ReadGrouped(answers[i]);
            if (o.op == '+') {
                EXPECT_EQ(result, o.left + o.right) << p.code << " " << items[i];
            } else {
                // The larger number comes first: a difference is never negative.
                EXPECT_GE(o.left, o.right) << p.code << " " << items[i];
                EXPECT_EQ(result, o.left - o.right) << p.code << " " << items[i];
            }
            EXPECT_GE(o.left, 100) << p.code;
            EXPECT_LT(o.right, 2000000) << p.code;
        }
    });
}

TEST(NaturalNumbers, EveryItemCountUpToThirty) {
    GeneratorHub hub;
    for (int count = 0; count <= 30; ++count) {
        for (int seed : {0, 4567, 8999}) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {12, 0, seed, count, 1, 1});
            EXPECT_EQ(static_cast<int>(StatementItems(p.statement).size()), std::clamp(count, 1, 26)) << p.code;
        }
    }
}

TEST(NaturalNumbers, FiveItemsMakeARowOfFourAndOne) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {12, 123, 4567, 5, 1, 1});
    // Four items, a line break, the fifth, its line break, and the blank line.
    const auto firstBreak = p.statement.find("&LF", p.statement.find("&SP="));
    ASSERT_NE(firstBreak, std::string::npos);
    const std::string firstRow = p.statement.substr(0, firstBreak);
    EXPECT_NE(firstRow.find("&+Bd)&-B"), std::string::npos);
    EXPECT_EQ(firstRow.find("&+Be)&-B"), std::string::npos);
    EXPECT_EQ(p.statement.substr(p.statement.size() - 6), "&LF&LF");
    EXPECT_NE(p.statement.find("&SP=5:&+Be)&-B&+I "), std::string::npos);
    // The solution has the same letters in the same order, in rows of its own.
    std::string letters;
    for (char c : std::string("abcde")) {
        const auto at = p.solution.find(std::string("&-I&+B") + c + ")&-B ");
        ASSERT_NE(at, std::string::npos) << c;
        letters += c;
    }
    EXPECT_NE(p.solution.find("&SP=10:&-I&+Ba)&-B "), std::string::npos);
    EXPECT_NE(p.solution.find("&SP=70:&-I&+Bd)&-B "), std::string::npos);
    EXPECT_NE(p.solution.find("&SP=10:&-I&+Be)&-B "), std::string::npos);
}

TEST(NaturalNumbers, HeadLineIsOneOfFour) {
    GeneratorHub hub;
    std::set<std::string> heads;
    for (int seed = 0; seed < 200; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {12, 0, seed, 3, 1, 1});
        heads.insert(p.statement.substr(0, p.statement.find("&LF") + 3));
    }
    EXPECT_EQ(heads, (std::set<std::string>{"Calculate the following expressions involving natural numbers.&LF",
                                             "Calculate the following expressions.&LF",
                                             "Calculate these expressions involving natural numbers.&LF",
                                             "Calculate these expressions.&LF"}));
}

TEST(NaturalNumbers, EverySeedAndItemCount) {
    // The loop draws the same items whatever the count: the items of a shorter problem are
    // the first items of the longest one, so checking the longest checks them all.
    GeneratorHub hub;
    for (int seed = 0; seed <= 8999; ++seed) {
        const GeneratedProblem full = GenerateProblem(hub, "KVOL_MATH_NRP", {12, 0, seed, 26, 1, 1});
        const auto fullItems = StatementItems(full.statement);
        const auto fullAnswers = SolutionItems(full.solution);
        ASSERT_EQ(fullItems.size(), 26u) << full.code;
        for (int count = 0; count <= 30; ++count) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {12, 0, seed, count, 1, 1});
            const auto items = StatementItems(p.statement);
            const auto answers = SolutionItems(p.solution);
            const std::size_t n = static_cast<std::size_t>(std::clamp(count, 1, 26));
            ASSERT_EQ(items.size(), n) << p.code;
            ASSERT_TRUE(std::equal(items.begin(), items.end(), fullItems.begin())) << p.code;
            ASSERT_TRUE(std::equal(answers.begin(), answers.end(), fullAnswers.begin())) << p.code;
            ASSERT_EQ(p.statement.find("<ERROR"), std::string::npos) << p.code;
        }
    }
}
