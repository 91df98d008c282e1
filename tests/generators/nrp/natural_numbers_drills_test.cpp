#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <set>

#include "generators/hub.h"
#include "generators/nrp/drill_items.h"
#include "generators/nrp/nrp_test_helpers.h"
#include "mathservices/arithmetic.h"

namespace {
// Items and answers in the same number, as many as the code asks for.
void ExpectItemCounts(const GeneratedProblem& p, std::vector<std::string>& items, std::vector<std::string>& answers) {
    items = StatementItems(p.statement);
    answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedItems(p)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
}
} // namespace

TEST(NaturalNumberDrills, MultiplicationProductsAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 13, 2500, [](const GeneratedProblem& p) {
        std::vector<std::string> items, answers;
        ExpectItemCounts(p, items, answers);
        for (std::size_t i = 0; i < items.size(); ++i) {
            const auto numbers = WholeNumbers(items[i]);
            ASSERT_EQ(numbers.size(), 2u) << items[i];
            // Three to five digits times two to four.
            const long long big = std::max(numbers[0], numbers[1]);
            const long long small = std::min(numbers[0], numbers[1]);
            EXPECT_GE(big, 100) << items[i];
            EXPECT_LE(big, 99999) << items[i];
            EXPECT_GE(small, 10) << items[i];
            const auto product = WholeNumbers(answers[i]);
            ASSERT_EQ(product.size(), 1u) << answers[i];
            EXPECT_EQ(product[0], numbers[0] * numbers[1]) << p.code << " " << items[i];
        }
    });
}

TEST(NaturalNumberDrills, DivisionQuotientAndRemainder) {
    SweepRoutine("KVOL_MATH_NRP", 1, 2500, [](const GeneratedProblem& p) {
        std::vector<std::string> items, answers;
        ExpectItemCounts(p, items, answers);
        for (std::size_t i = 0; i < items.size(); ++i) {
            const auto numbers = WholeNumbers(items[i]);
            ASSERT_EQ(numbers.size(), 2u) << items[i];
            ASSERT_NE(answers[i].find("&+I q = "), std::string::npos) << answers[i];
            ASSERT_NE(answers[i].find(",  r = &-I"), std::string::npos) << answers[i];
            const auto qr = WholeNumbers(answers[i]);
            ASSERT_EQ(qr.size(), 2u) << answers[i];
            const long long a = numbers[0];
            const long long b = numbers[1];
            EXPECT_EQ(qr[0] * b + qr[1], a) << p.code << " " << items[i];
            EXPECT_GE(qr[1], 0) << items[i];
            EXPECT_LT(qr[1], b) << items[i];
            EXPECT_GE(b, 10) << items[i];
            EXPECT_GE(a, 1000) << items[i];
        }
    });
}

TEST(NaturalNumberDrills, LcmAndGcmAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 21, 2500, [](const GeneratedProblem& p) {
        std::vector<std::string> items, answers;
        ExpectItemCounts(p, items, answers);
        for (std::size_t i = 0; i < items.size(); ++i) {
            const auto numbers = WholeNumbers(items[i]);
            ASSERT_TRUE(numbers.size() == 2 || numbers.size() == 3) << items[i];
            long long lcm = numbers[0];
            long long gcd = numbers[0];
            for (std::size_t k = 1; k < numbers.size(); ++k) {
                lcm = std::lcm(lcm, numbers[k]);
                gcd = std::gcd(gcd, numbers[k]);
            }
            EXPECT_EQ(answers[i], std::to_string(lcm) + ",  " + std::to_string(gcd)) << p.code << " " << items[i];
        }
    });
}

TEST(NaturalNumberDrills, LcmNumbersAreDistinctAndNotTrivial) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    int threes = 0;
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        ws.stream.SeedStream(seed);
        const int count = seed % 2 == 0 ? 2 : 3;
        const LcmGcmItem item = DrawLcmGcmNumbers(ws, count);
        ASSERT_EQ(static_cast<int>(item.numbers.size()), count);
        for (int k = 0; k < count; ++k) {
            EXPECT_GE(item.numbers[k], 10) << seed;
            // Built from 2, 3, 5 and 7 only.
            double rest = item.numbers[k];
            for (double prime : {2.0, 3.0, 5.0, 7.0}) {
                while (std::fmod(rest, prime) == 0) rest /= prime;
            }
            EXPECT_EQ(rest, 1) << seed << " " << item.numbers[k];
            for (int j = 0; j < k; ++j) EXPECT_NE(item.numbers[k], item.numbers[j]) << seed;
        }
        const auto whole = [](double x) { return static_cast<long long>(x); };
        long long lcm = whole(item.numbers[0]);
        long long gcd = whole(item.numbers[0]);
        for (int k = 1; k < count; ++k) {
            lcm = std::lcm(lcm, whole(item.numbers[k]));
            gcd = std::gcd(gcd, whole(item.numbers[k]));
        }
        EXPECT_EQ(whole(item.lcm), lcm) << seed;
        EXPECT_EQ(whole(item.gcm), gcd) << seed;
        if (count == 3) ++threes;
    }
    EXPECT_GT(threes, 0);
}

TEST(NaturalNumberDrills, LcmDrillSometimesHasThreeNumbers) {
    GeneratorHub hub;
    int withThree = 0;
    for (int seed = 0; seed < 300; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {21, 0, seed, 10, 1, 1});
        for (const auto& item : StatementItems(p.statement)) {
            if (WholeNumbers(item).size() == 3) ++withThree;
        }
    }
    // One item in twenty, roughly: 150 of 3000.
    EXPECT_GT(withThree, 60);
    EXPECT_LT(withThree, 300);
}

TEST(NaturalNumberDrills, HeadLines) {
    GeneratorHub hub;
    std::set<std::string> heads13, heads1, heads21;
    for (int seed = 0; seed < 200; ++seed) {
        for (auto [routine, heads] : {std::pair{13, &heads13}, std::pair{1, &heads1}, std::pair{21, &heads21}}) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 0, seed, 3, 1, 1});
            heads->insert(p.statement.substr(0, p.statement.find("&LF") + 3));
        }
    }
    const std::set<std::string> natural = {"Calculate the following expressions involving natural numbers.&LF",
                                           "Calculate the following expressions.&LF",
                                           "Calculate these expressions involving natural numbers.&LF",
                                           "Calculate these expressions.&LF"};
    EXPECT_EQ(heads13, natural);
    EXPECT_EQ(heads1, natural);
    EXPECT_EQ(heads21, (std::set<std::string>{"Calculate the least common multiple and the greatest common divisor "
                                              "(LCM and GCD) of the following numbers:&LF",
                                              "Find the least common multiple and the greatest common divisor (LCM "
                                              "and GCD) of the following numbers:&LF"}));
}

TEST(NaturalNumberDrills, ThreeColumnsOfAnswers) {
    GeneratorHub hub;
    for (int routine : {13, 1}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 5, 77, 4, 1, 1});
        EXPECT_EQ(p.solution.find("&SP=10:&-I&+Ba)&-B "), 0u) << p.solution;
        EXPECT_NE(p.solution.find("&SP=40:&-I&+Bb)&-B "), std::string::npos) << p.solution;
        EXPECT_NE(p.solution.find("&SP=70:&-I&+Bc)&-B "), std::string::npos) << p.solution;
        EXPECT_NE(p.solution.find("&LF&SP=10:&-I&+Bd)&-B "), std::string::npos) << p.solution;
        EXPECT_NE(p.statement.find("&SP=76:&+Bd)&-B&+I "), std::string::npos) << p.statement;
    }
}

TEST(NaturalNumberDrills, SameCodeSameTextWhateverCameBetween) {
    GeneratorHub hub;
    const int routines[] = {1, 2, 5, 6, 7, 8, 9, 10, 11, 13, 14, 15, 21, 22, 23, 24, 25};
    for (int routine : routines) {
        const std::string code = MakeProblemCode({routine, 12, 3456, 7, 2, 1});
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_NRP", code, statement, solution);
        // Another problem of each drill in between.
        for (int other : routines) {
            std::string s, t;
            hub.RunGenerator("KVOL_MATH_NRP", MakeProblemCode({other, 1, 77, 26, 1, 1}), s, t);
        }
        std::string again, againSolution;
        hub.RunGenerator("KVOL_MATH_NRP", code, again, againSolution);
        EXPECT_EQ(again, statement) << code;
        EXPECT_EQ(againSolution, solution) << code;
        EXPECT_FALSE(statement.empty()) << code;
    }
}
