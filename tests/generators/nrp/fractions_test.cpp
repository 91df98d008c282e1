#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <set>

#include "generators/hub.h"
#include "generators/nrp/drill_items.h"
#include "generators/nrp/nrp_test_helpers.h"
#include "support/markup_reader.h"
#include "mathservices/arithmetic.h"

namespace {
// The statement of each item and its answer agree, and the answer is one reduced fraction.
void ExpectReducedAnswers(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedItems(p)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        long long n = 0, d = 0;
        ASSERT_TRUE(ReadFraction(answers[i], n, d)) << p.code << " " << answers[i];
        EXPECT_GT(d, 0) << answers[i];
        EXPECT_EQ(std::gcd(n, d), n == 0 ? d : 1) << answers[i];
        double value = 0;
        ASSERT_NO_THROW(value = ReadMarkupReal(items[i])) << p.code << " " << items[i];
        EXPECT_TRUE(SameValue(value, static_cast<double>(n) / static_cast<double>(d)))
            << p.code << " " << items[i] << " = " << answers[i];
    }
}
} // namespace

TEST(FractionDrills, SumsAreRightAndReduced) {
    SweepRoutine("KVOL_MATH_NRP", 8, 2500, [](const GeneratedProblem& p) {
        ExpectReducedAnswers(p);
        // Two fractions for even seeds, three for odd ones.
        const std::size_t terms = p.fields.Seed % 2 == 0 ? 2 : 3;
        for (const auto& item : StatementItems(p.statement)) {
            std::size_t count = 0;
            for (std::size_t at = item.find(" + "); at != std::string::npos; at = item.find(" + ", at + 1)) ++count;
            for (std::size_t at = item.find(" - "); at != std::string::npos; at = item.find(" - ", at + 1)) ++count;
            EXPECT_EQ(count + 1, terms) << item;
            EXPECT_NE(item.find("#COC("), std::string::npos) << item;
        }
    });
}

TEST(FractionDrills, FourOperationsAreRightAndReduced) {
    SweepRoutine("KVOL_MATH_NRP", 9, 2500, [](const GeneratedProblem& p) { ExpectReducedAnswers(p); });
}

TEST(FractionDrills, FourOperationsColumns) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {9, 1, 2, 6, 1, 1});
    for (const char* mark : {"&SP=5:&+Ba)", "&SP=35:&+Bb)", "&SP=65:&+Bc)", "&SP=5:&+Bd)"}) {
        EXPECT_NE(p.statement.find(mark), std::string::npos) << mark << " " << p.statement;
    }
    for (const char* mark : {"&SP=10:&-I&+Ba)", "&SP=27:&-I&+Bb)", "&SP=44:&-I&+Bc)", "&SP=61:&-I&+Bd)",
                             "&SP=78:&-I&+Be)", "&LF&SP=10:&-I&+Bf)"}) {
        EXPECT_NE(p.solution.find(mark), std::string::npos) << mark << " " << p.solution;
    }
}

TEST(FractionDrills, DecimalsToFractionsAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 22, 2500, [](const GeneratedProblem& p) {
        ExpectReducedAnswers(p);
        for (const auto& item : StatementItems(p.statement)) {
            EXPECT_NE(item.find("&."), std::string::npos) << item;
            EXPECT_EQ(item.find("#ARC(9#ARC)"), std::string::npos) << item;
        }
    });
}

TEST(FractionDrills, DecimalShapes) {
    // Recomputes each fraction by long division of its numerator and compares the digits
    // with the text: the fixed places, then the repeating block.
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    int shapes[4] = {0, 0, 0, 0};
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        ws.stream.SeedStream(seed);
        const int shape = 1 + seed % 3;
        const DecimalToFractionItem item = DrawDecimalToFraction(ws, shape);
        if (item.text.empty()) continue;
        ++shapes[shape];
        const long long n = static_cast<long long>(item.numerator);
        const long long d = static_cast<long long>(item.denominator);
        // The digits after the point by long division, with the place where the
        // remainders start to repeat.
        std::string digits;
        std::vector<long long> seen;
        long long r = n % d;
        std::size_t start = std::string::npos;
        while (r != 0) {
            const auto at = std::find(seen.begin(), seen.end(), r);
            if (at != seen.end()) {
                start = static_cast<std::size_t>(at - seen.begin());
                break;
            }
            seen.push_back(r);
            digits += static_cast<char>('0' + (r * 10) / d);
            r = (r * 10) % d;
        }
        std::string expected = std::to_string(n / d) + "&.";
        if (start == std::string::npos) {
            expected += digits;
            EXPECT_EQ(shape, 1) << item.text;
        } else {
            expected += digits.substr(0, start) + "#ARC(" + digits.substr(start) + "#ARC)";
            EXPECT_EQ(shape, start == 0 ? 2 : 3) << item.text;
        }
        EXPECT_EQ(item.text, expected) << seed;
    }
    EXPECT_GT(shapes[1], 100);
    EXPECT_GT(shapes[2], 100);
    EXPECT_GT(shapes[3], 100);
}

TEST(FractionDrills, HeadLines) {
    GeneratorHub hub;
    const std::set<std::string> rational = {"Calculate the following rational expressions.&LF",
                                            "Calculate the following expressions.&LF",
                                            "Calculate these rational expressions.&LF",
                                            "Calculate these expressions.&LF"};
    for (int routine : {8, 9}) {
        std::set<std::string> heads;
        for (int seed = 0; seed < 200; ++seed) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 0, seed, 2, 1, 1});
            heads.insert(p.statement.substr(0, p.statement.find("&LF") + 3));
        }
        EXPECT_EQ(heads, rational) << routine;
    }
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {22, 0, 7, 2, 1, 1});
    EXPECT_EQ(p.statement.rfind("Convert the following values to fractions:&LF&SP=5:", 0), 0u) << p.statement;
}
