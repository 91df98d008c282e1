#include <gtest/gtest.h>

#include <cmath>
#include <functional>
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

// Sweeps a drill of the module and hands each statement item with its answer to check,
// once the problem has as many answers as items and as many items as it asked for.
void SweepItemsAndAnswers(int routine,
                          const std::function<void(const std::string& item, const std::string& answer,
                                                   const std::string& code)>& check) {
    SweepRoutine("KVOL_MATH_NRP", routine, 2000, [&](const GeneratedProblem& p) {
        const auto items = StatementItems(p.statement);
        const auto answers = SolutionItems(p.solution);
        ASSERT_EQ(static_cast<int>(items.size()), Items(p)) << p.code;
        ASSERT_EQ(answers.size(), items.size()) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) check(items[i], answers[i], p.code);
    });
}
} // namespace

TEST(Polynomials, SumsAndDifferencesAreRight) {
    SweepItemsAndAnswers(16, [](const std::string& item, const std::string& answer, const std::string& code) {
        ExpectSameValues(item, answer, code);
        ExpectNoZeroTerm(item, code);
        ExpectNoZeroTerm(answer, code);
        EXPECT_TRUE(item.find(" )  +  ( ") != std::string::npos || item.find(" )  -  ( ") != std::string::npos)
            << item;
    });
}

TEST(Polynomials, ProductsAndPowersOfBinomialsAreRight) {
    SweepItemsAndAnswers(17, [](const std::string& item, const std::string& answer, const std::string& code) {
        ExpectSameValues(item, answer, code);
        ExpectNoZeroTerm(answer, code);
    });
}

TEST(Polynomials, FactorizationsMultiplyBack) {
    SweepItemsAndAnswers(18, [](const std::string& item, const std::string& answer, const std::string& code) {
        ExpectSameValues(item, answer, code);
        ExpectNoZeroTerm(item, code);
        // Every factor is x or a binomial x - r with a whole r.
        static const std::regex factor("\\( &\\+Ix&-I& [-+]& [0-9]+ \\)");
        std::string rest = std::regex_replace(answer, factor, "F");
        rest = std::regex_replace(rest, std::regex("&\\+Ix&-I"), "F");
        EXPECT_TRUE(std::regex_match(rest, std::regex("([0-9]+ )?F(\\^[0-9])?( F(\\^[0-9])?)*"))) << answer;
    });
}

TEST(Polynomials, RepeatedRootGivesAnExponentAndTheExpandedProduct) {
    int repeated = 0;
    for (int seed = 0; seed < SweepSeedCount(3000) && repeated < 50; ++seed) {
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
    SweepItemsAndAnswers(19, [](const std::string& item, const std::string& answer, const std::string& code) {
        const auto split = item.find(" ) : ( ");
        ASSERT_NE(split, std::string::npos) << item;
        const std::string dividend = item.substr(2, split - 2);
        const std::string divisor = item.substr(split + 7, item.size() - split - 9);
        const std::string head = " &+Iq&-I = ";
        const auto comma = answer.find(",  &+Ir&-I = ");
        ASSERT_EQ(answer.rfind(head, 0), 0u) << answer;
        ASSERT_NE(comma, std::string::npos) << answer;
        const std::string quotient = answer.substr(head.size(), comma - head.size());
        const std::string remainder = answer.substr(comma + 13);
        // dividend = quotient · divisor + remainder, with the remainder of lower degree.
        for (double x : kSamples) {
            const auto d = ValueAt(dividend, x, code);
            const auto rebuilt = ValueAt(quotient, x, code) * ValueAt(divisor, x, code) +
                                 ValueAt(remainder, x, code);
            EXPECT_TRUE(NearlyEqual(d, rebuilt, 1e-9)) << code << ": " << item << " / " << answer;
        }
        // By x - a the remainder is a number; by a quadratic it is at most linear.
        if (divisor.find("^2") == std::string::npos) {
            EXPECT_EQ(remainder.find("&+Ix"), std::string::npos) << answer;
        }
        EXPECT_EQ(remainder.find("^"), std::string::npos) << answer;
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
