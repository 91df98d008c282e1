#include <gtest/gtest.h>

#include <cmath>
#include <regex>

#include "algebra_test_helpers.h"
#include "generators/hub.h"
#include "generators/nrp/algebra_items.h"
#include "mathservices/poly_markup.h"
#include "support/generator_sweep.h"
#include "support/markup_reader.h"

using namespace algebra_test;

namespace {
const double kSamples[] = {0.37, 1.93, -2.71};

GeneratorWorkspace SeededWorkspace(int seed) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(seed);
    return ws;
}

// Reads a polynomial in x at a point, failing the test when the text is unreadable.
std::complex<double> ValueAt(const std::string& text, double x, const std::string& code) {
    return ExpectComplexValue(text, {{'x', x}}, code);
}

void ExpectSameValues(const std::string& left, const std::string& right, const std::string& code) {
    for (double x : kSamples) {
        EXPECT_TRUE(NearlyEqual(ValueAt(left, x, code), ValueAt(right, x, code), 1e-9))
            << code << ": " << left << "  vs  " << right << " at " << x;
    }
}

// No written term has the coefficient 0.
void ExpectNoZeroTerm(const std::string& text, const std::string& code) {
    static const std::regex zeroTerm("(^|[^0-9.])0&\\+Ix");
    EXPECT_FALSE(std::regex_search(text, zeroTerm)) << code << ": " << text;
}

int Items(const GeneratedProblem& p) { return std::clamp(p.fields.ItemCount, 1, 26); }
} // namespace

TEST(Polynomials, SumsAndDifferencesAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 16, 2000, [](const GeneratedProblem& p) {
        const auto items = StatementItems(p.statement);
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), Items(p)) << p.code;
        ASSERT_EQ(answers.size(), items.size()) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            ExpectSameValues(items[i], answers[i], p.code);
            ExpectNoZeroTerm(items[i], p.code);
            ExpectNoZeroTerm(answers[i], p.code);
            EXPECT_TRUE(items[i].find(" )  +  ( ") != std::string::npos || items[i].find(" )  -  ( ") != std::string::npos)
                << items[i];
        }
    });
}

TEST(Polynomials, ProductsAndPowersOfBinomialsAreRight) {
    SweepRoutine("KVOL_MATH_NRP", 17, 2000, [](const GeneratedProblem& p) {
        const auto items = StatementItems(p.statement);
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), Items(p)) << p.code;
        ASSERT_EQ(answers.size(), items.size()) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            ExpectSameValues(items[i], answers[i], p.code);
            ExpectNoZeroTerm(answers[i], p.code);
        }
    });
}

TEST(Polynomials, FactorizationsMultiplyBack) {
    SweepRoutine("KVOL_MATH_NRP", 18, 2000, [](const GeneratedProblem& p) {
        const auto items = StatementItems(p.statement);
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), Items(p)) << p.code;
        ASSERT_EQ(answers.size(), items.size()) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            ExpectSameValues(items[i], answers[i], p.code);
            ExpectNoZeroTerm(items[i], p.code);
            // Every factor is x or a binomial x - r with a whole r.
            static const std::regex factor("\\( &\\+Ix&-I& [-+]& [0-9]+ \\)");
            std::string rest = std::regex_replace(answers[i], factor, "F");
            rest = std::regex_replace(rest, std::regex("&\\+Ix&-I"), "F");
            EXPECT_TRUE(std::regex_match(rest, std::regex("([0-9]+ )?F(\\^[0-9])?( F(\\^[0-9])?)*"))) << answers[i];
        }
    });
}

TEST(Polynomials, RepeatedRootGivesAnExponentAndTheExpandedProduct) {
    int repeated = 0;
    for (int seed = 0; seed < 3000 && repeated < 50; ++seed) {
        GeneratorWorkspace ws = SeededWorkspace(seed);
        const FactoringItem item = MakeFactoringItem(ws);
        for (const RootCount& g : item.groups) {
            if (g.count < 2) continue;
            ++repeated;
            EXPECT_NE(FactoredText(item).find("^" + std::to_string(g.count)), std::string::npos) << seed;
        }
        // The polynomial is factor · product of (x - root), expanded.
        for (double x : kSamples) {
            double product = item.factor;
            for (double r : item.roots) product *= x - r;
            EXPECT_NEAR(EvaluatePoly(item.polynomial, x), product, 1e-9 * std::max(1.0, std::fabs(product))) << seed;
        }
    }
    EXPECT_GE(repeated, 50);
}

TEST(Polynomials, DivisionQuotientAndRemainder) {
    SweepRoutine("KVOL_MATH_NRP", 19, 2000, [](const GeneratedProblem& p) {
        const auto items = StatementItems(p.statement);
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), Items(p)) << p.code;
        ASSERT_EQ(answers.size(), items.size()) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            const auto split = items[i].find(" ) : ( ");
            ASSERT_NE(split, std::string::npos) << items[i];
            const std::string dividend = items[i].substr(2, split - 2);
            const std::string divisor = items[i].substr(split + 7, items[i].size() - split - 9);
            const std::string head = " &+Iq&-I = ";
            const auto comma = answers[i].find(",  &+Ir&-I = ");
            ASSERT_EQ(answers[i].rfind(head, 0), 0u) << answers[i];
            ASSERT_NE(comma, std::string::npos) << answers[i];
            const std::string quotient = answers[i].substr(head.size(), comma - head.size());
            const std::string remainder = answers[i].substr(comma + 13);
            // dividend = quotient · divisor + remainder, with the remainder of lower degree.
            for (double x : kSamples) {
                const auto d = ValueAt(dividend, x, p.code);
                const auto rebuilt = ValueAt(quotient, x, p.code) * ValueAt(divisor, x, p.code) +
                                     ValueAt(remainder, x, p.code);
                EXPECT_TRUE(NearlyEqual(d, rebuilt, 1e-9)) << p.code << ": " << items[i] << " / " << answers[i];
            }
            // By x - a the remainder is a number; by a quadratic it is at most linear.
            if (divisor.find("^2") == std::string::npos) {
                EXPECT_EQ(remainder.find("&+Ix"), std::string::npos) << answers[i];
            }
            EXPECT_EQ(remainder.find("^"), std::string::npos) << answers[i];
        }
    });
}

TEST(Polynomials, ParameterMakesTheRemainderRight) {
    SweepRoutine("KVOL_MATH_NRP", 20, 2000, [](const GeneratedProblem& p) {
        const std::string& s = p.statement;
        const auto open = s.find("&SP=10:( ");
        const auto split = s.find(" ) : ( ");
        const auto close = s.rfind(" )&LF");
        ASSERT_TRUE(open != std::string::npos && split != std::string::npos && close != std::string::npos) << s;
        std::string dividend = s.substr(open + 9, split - open - 9);
        const std::string divisor = s.substr(split + 7, close - split - 7);
        // The parameter and its value, from the solution's last line.
        static const std::regex last("&SP=10:&\\+I([a-z])&-I = (-?[0-9]+)&LF$");
        std::smatch m;
        ASSERT_TRUE(std::regex_search(p.solution, m, last)) << p.solution;
        const std::string letter = "&+I" + m[1].str() + "&-I";
        EXPECT_NE(s.find("the value of parameter  " + letter + "  for which"), std::string::npos) << s;
        // The letter stands once in the dividend, as a coefficient of a power of x.
        const auto at = dividend.find(letter);
        ASSERT_NE(at, std::string::npos) << dividend;
        EXPECT_EQ(dividend.find(letter, at + 1), std::string::npos) << dividend;
        EXPECT_EQ(dividend.compare(at + letter.size(), 7, "&+Ix&-I"), 0) << dividend;
        dividend.replace(at, letter.size(), "(" + m[2].str() + ")");
        double remainder = 0;
        const auto isAt = s.find("following division is ");
        if (s.find("is exact (remainder is zero).&LF") == std::string::npos) {
            ASSERT_NE(isAt, std::string::npos) << s;
            remainder = std::stod(s.substr(isAt + 22));
        }
        const double root = -ValueAt(divisor, 0, p.code).real();
        EXPECT_NEAR(ValueAt(dividend, root, p.code).real(), remainder, 1e-9) << p.code << ": " << s << p.solution;
        EXPECT_EQ(ValueAt(divisor, 1, p.code).real() - ValueAt(divisor, 0, p.code).real(), 1.0) << divisor;
    });
}

TEST(Polynomials, TextCoefficientKeepsItsDegree) {
    for (int seed = 0; seed < 500; ++seed) {
        GeneratorWorkspace ws = SeededWorkspace(seed);
        const ParameterDivisionItem item = MakeParameterDivisionItem(ws);
        PolyWork work;
        for (int k = 0; k <= 9; ++k) work.coefficients[k] = item.coefficients[k];
        work.texts[item.parameterDegree] = "&+Im&-I";
        const std::string text = PolyWorkToMarkup(work, "&+Ix&-I");
        const std::string expected =
            "&+Im&-I&+Ix&-I" + (item.parameterDegree >= 2 ? "^" + std::to_string(item.parameterDegree) : std::string());
        const auto at = text.find(expected);
        ASSERT_NE(at, std::string::npos) << text;
        if (item.parameterDegree == 1) {
            EXPECT_NE(text.compare(at + expected.size(), 1, "^"), 0) << text;
        }
        // The remainder theorem holds with the parameter's value in place.
        EXPECT_EQ(EvaluatePoly(item.coefficients, item.root), item.remainder) << seed;
    }
}

TEST(Polynomials, FactoringHeadLineIsOneOfTwoAndItemsHaveARowEach) {
    GeneratorHub hub;
    std::set<std::string> heads;
    for (int seed = 0; seed < 100; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {18, 0, seed, 3, 1, 1});
        heads.insert(p.statement.substr(0, p.statement.find("&LF") + 3));
        EXPECT_NE(p.statement.find("&SP=5:&+Bb)&-B&+I "), std::string::npos);
        EXPECT_NE(p.statement.find("&-I&LF&SP=5:&+Bc)"), std::string::npos);
        EXPECT_NE(p.solution.find("&LF&SP=10:&-I&+Bc)&-B "), std::string::npos);
    }
    EXPECT_EQ(heads, (std::set<std::string>{"Factorize these polynomials:&LF", "Factorize the following polynomials:&LF"}));
}
