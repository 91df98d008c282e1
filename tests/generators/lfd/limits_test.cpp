#include <gtest/gtest.h>

#include <cmath>

#include "generators/hub.h"
#include "calculus_checks.h"
#include "support/generator_sweep.h"

namespace {
std::string Between(const std::string& text, const std::string& open, const std::string& close) {
    const auto at = text.find(open);
    if (at == std::string::npos) return "";
    const auto start = at + open.size();
    const auto end = text.rfind(close);
    if (end == std::string::npos || end < start) return "";
    return text.substr(start, end - start);
}

// The answer's value; infinities as ±HUGE_VAL.
double AnswerValue(const std::string& solution) {
    std::string v = Between(solution, "&SP=10:", "&LF");
    if (v == "+&oo" || v == "&oo") return HUGE_VAL;
    if (v == "-&oo") return -HUGE_VAL;
    return ReadMarkupAt(v, 0);
}

void ExpectNearLimit(const GeneratedProblem& p, double near, double expected) {
    if (std::isinf(expected)) {
        EXPECT_GT(near * (expected > 0 ? 1 : -1), 1e4) << p.code << "\n" << p.statement << "\n" << p.solution;
    } else {
        EXPECT_NEAR(near, expected, 1e-3 * std::max(1.0, std::fabs(expected)))
            << p.code << "\n" << p.statement << "\n" << p.solution;
    }
}

// The expression of the statement evaluated near its point (or far out, at infinity)
// agrees with the answer.
void CheckLimit(const GeneratedProblem& p) {
    const std::string point = Between(p.statement, "&ars ", "#ST1)");
    std::string body;
    if (p.statement.find("#POT(#NES(()") != std::string::npos) {
        body = p.statement.substr(p.statement.find("#POT(#NES(()"));
        body = body.substr(0, body.rfind("&LF"));
    } else {
        body = Between(p.statement, "#TST)#NES(()", "#NES)");
    }
    ASSERT_FALSE(body.empty()) << p.statement;
    const double expected = AnswerValue(p.solution);
    const std::string trimmed = point.substr(0, point.find_last_not_of(' ') + 1);
    if (trimmed == "&oo") {
        ExpectNearLimit(p, ReadMarkupAt(body, 1e6), expected);
    } else {
        const double a = std::stod(trimmed);
        // The expression is not defined at the point itself: the text hides a 0/0.
        EXPECT_FALSE(std::isfinite(ReadMarkupAt(body, a))) << p.code << " " << p.statement;
        ExpectNearLimit(p, ReadMarkupAt(body, a + 1e-6), expected);
        ExpectNearLimit(p, ReadMarkupAt(body, a - 1e-6), expected);
    }
    // The answer never shows a division by zero.
    EXPECT_EQ(p.solution.find("#N)(0#COC)"), std::string::npos) << p.code;
}
} // namespace

TEST(Limits, SweepRationalFunctions) {
    SweepRoutine("KVOL_MATH_LFD", 27, 2500, [](const GeneratedProblem& p) {
        CheckLimit(p);
        const int remainder = p.fields.GroupIndex % 3;
        const bool atInfinity = p.statement.find("&ars &oo") != std::string::npos;
        EXPECT_EQ(atInfinity, remainder == 2) << p.code;
    });
}

TEST(Limits, SweepRoots) { SweepRoutine("KVOL_MATH_LFD", 26, 2500, CheckLimit); }
TEST(Limits, SweepSubtractionOfRoots) { SweepRoutine("KVOL_MATH_LFD", 77, 2500, CheckLimit); }
TEST(Limits, SweepPowersOfE) { SweepRoutine("KVOL_MATH_LFD", 25, 2500, CheckLimit); }

TEST(Limits, LeadByVariantNumber) {
    GeneratorHub hub;
    const char* leads[] = {"Calculate the limit:  #TST(", "Calculate  #TST(", "Find the value of this limit:  #TST("};
    for (int variant = 0; variant < 6; ++variant) {
        for (int routine : {25, 26, 27, 77}) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_LFD", {routine, variant, 100, 0, 1, 1});
            EXPECT_EQ(p.statement.rfind(leads[variant % 3], 0), 0u) << p.statement;
        }
    }
}

TEST(Limits, RationalTypesGoRoundTheGroup) {
    GeneratorHub hub;
    for (int i = 1; i <= 6; ++i) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_LFD", {27, 0, 40 + i, 0, 6, i});
        const std::string numerator = p.statement.substr(p.statement.find("#COC("));
        const bool cubic = numerator.substr(0, numerator.find("#N)(")).find("^3") != std::string::npos;
        EXPECT_EQ(cubic, i % 3 == 0) << p.statement;
    }
}

TEST(Limits, SparseNumbersOnly) {
    GeneratorHub hub;
    for (int routine : {0, 3, 24, 28, 66, 70, 76, 78, 79}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_LFD", {routine, 0, 1, 0, 1, 1});
        char id[4];
        std::snprintf(id, sizeof id, "%03d", routine);
        EXPECT_EQ(p.statement, std::string("<ERROR IN MODULE KVOL_MATH_LFD:. THE ROUTINE ID = ") + id +
                                   " IS NOT FOUND>&LF");
        EXPECT_EQ(p.solution, "&LF");
    }
}

TEST(Limits, TypesFollowTheSeed) {
    GeneratorHub hub;
    for (int seed = 100; seed < 130; ++seed) {
        // Roots: the root stands above the bar for even seeds, below it for odd ones.
        const GeneratedProblem r = GenerateProblem(hub, "KVOL_MATH_LFD", {26, 0, seed, 0, 1, 1});
        const auto bar = r.statement.find("#N)(");
        EXPECT_EQ(r.statement.find("#SQR(") < bar, seed % 2 == 0) << r.statement;
        // Powers of e: 1 + a/(bx) for seeds divisible by 3, quotients otherwise.
        const GeneratedProblem e = GenerateProblem(hub, "KVOL_MATH_LFD", {25, 0, seed, 0, 1, 1});
        const bool plain = e.statement.find("#NES(()1 + #COC(") != std::string::npos ||
                           e.statement.find("#NES(()1 - #COC(") != std::string::npos;
        EXPECT_EQ(plain, seed % 3 == 0) << e.statement;
    }
}
