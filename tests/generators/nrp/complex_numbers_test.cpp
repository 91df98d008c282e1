#include <gtest/gtest.h>

#include <cmath>
#include <regex>

#include "algebra_test_helpers.h"
#include "generators/hub.h"
#include "generators/nrp/algebra_items.h"
#include "mathservices/number_markup.h"
#include "support/generator_sweep.h"
#include "support/markup_reader.h"

using namespace algebra_test;

namespace {
using Complex = std::complex<double>;

Complex Value(const std::string& text, const std::string& code) {
    return ExpectComplexValue(text, {}, code);
}

struct Drill {
    std::vector<std::string> items, answers;
};

Drill ReadDrill(const GeneratedProblem& p) {
    Drill d{LetteredItems(p.statement, ")&-B  "), SolutionItems(p.solution)};
    EXPECT_EQ(static_cast<int>(d.items.size()), std::clamp(p.fields.ItemCount, 1, 26)) << p.code;
    EXPECT_EQ(d.answers.size(), d.items.size()) << p.code;
    EXPECT_TRUE(AllDistinct(d.items)) << p.code;
    return d;
}

// An answer never shows a zero part: "0 + 3i" is written "3i", and 0 + 0i is "0".
void ExpectNoZeroPart(const std::string& answer) {
    EXPECT_EQ(answer.rfind("0& ", 0), std::string::npos) << answer;
    EXPECT_EQ(answer.find("& +& 0"), std::string::npos) << answer;
    EXPECT_EQ(answer.find("& -& 0"), std::string::npos) << answer;
}

// Every square root of an answer is free of square factors.
void ExpectSquareFreeRoots(const std::string& answer) {
    static const std::regex root("#SQR\\(([0-9]+)#SQR\\)");
    for (std::sregex_iterator it(answer.begin(), answer.end(), root), end; it != end; ++it) {
        const long r = std::stol((*it)[1].str());
        for (long d = 2; d * d <= r; ++d) EXPECT_NE(r % (d * d), 0) << answer;
    }
}

// "polar = cartesian" split in two.
std::pair<std::string, std::string> BothForms(const std::string& answer) {
    const auto at = answer.find(" = ");
    EXPECT_NE(at, std::string::npos) << answer;
    if (at == std::string::npos) return {answer, answer};
    return {answer.substr(0, at), answer.substr(at + 3)};
}
} // namespace

TEST(ComplexNumbers, SumsAndDifferences) {
    SweepRoutine("KVOL_MATH_NRP", 33, 2000, [](const GeneratedProblem& p) {
        const Drill d = ReadDrill(p);
        for (std::size_t i = 0; i < d.items.size() && i < d.answers.size(); ++i) {
            EXPECT_TRUE(NearlyEqual(Value(d.items[i], p.code), Value(d.answers[i], p.code), 1e-9))
                << p.code << ": " << d.items[i] << " = " << d.answers[i];
            ExpectNoZeroPart(d.answers[i]);
            EXPECT_EQ(d.items[i].rfind("#NES(()", 0), 0u) << d.items[i];
        }
    });
}

TEST(ComplexNumbers, ProductsAndQuotients) {
    SweepRoutine("KVOL_MATH_NRP", 34, 2000, [](const GeneratedProblem& p) {
        const Drill d = ReadDrill(p);
        for (std::size_t i = 0; i < d.items.size() && i < d.answers.size(); ++i) {
            EXPECT_TRUE(NearlyEqual(Value(d.items[i], p.code), Value(d.answers[i], p.code), 1e-9))
                << p.code << ": " << d.items[i] << " = " << d.answers[i];
            ExpectNoZeroPart(d.answers[i]);
        }
    });
}

TEST(ComplexNumbers, CartesianPolarConversions) {
    SweepRoutine("KVOL_MATH_NRP", 35, 2000, [](const GeneratedProblem& p) {
        const Drill d = ReadDrill(p);
        for (std::size_t i = 0; i < d.items.size() && i < d.answers.size(); ++i) {
            // One side is polar, the other cartesian.
            const bool polarItem = d.items[i].find("#SPB(") != std::string::npos;
            EXPECT_NE(polarItem, d.answers[i].find("#SPB(") != std::string::npos) << d.items[i] << d.answers[i];
            EXPECT_TRUE(NearlyEqual(Value(d.items[i], p.code), Value(d.answers[i], p.code), 2e-5))
                << p.code << ": " << d.items[i] << " = " << d.answers[i];
            ExpectSquareFreeRoots(d.answers[i]);
            if (polarItem) {
                ExpectNoZeroPart(d.answers[i]);
                EXPECT_EQ(d.answers[i].find("&."), std::string::npos) << d.answers[i];
            }
        }
    });
}

TEST(ComplexNumbers, PolarProductsAndQuotients) {
    SweepRoutine("KVOL_MATH_NRP", 36, 2000, [](const GeneratedProblem& p) {
        const Drill d = ReadDrill(p);
        for (std::size_t i = 0; i < d.items.size() && i < d.answers.size(); ++i) {
            const auto [polar, cartesian] = BothForms(d.answers[i]);
            const Complex v = Value(d.items[i], p.code);
            EXPECT_TRUE(NearlyEqual(v, Value(polar, p.code), 5e-5)) << p.code << ": " << d.items[i] << " = " << polar;
            EXPECT_TRUE(NearlyEqual(v, Value(cartesian, p.code), 5e-5)) << p.code << ": " << d.items[i] << " = " << cartesian;
            EXPECT_EQ(cartesian.find("#COC("), std::string::npos) << cartesian;
            ExpectSquareFreeRoots(polar);
        }
    });
}

TEST(ComplexNumbers, Powers) {
    SweepRoutine("KVOL_MATH_NRP", 37, 2000, [](const GeneratedProblem& p) {
        const Drill d = ReadDrill(p);
        for (std::size_t i = 0; i < d.items.size() && i < d.answers.size(); ++i) {
            const auto [polar, cartesian] = BothForms(d.answers[i]);
            const Complex v = Value(d.items[i], p.code);
            EXPECT_TRUE(NearlyEqual(v, Value(polar, p.code), 1e-4)) << p.code << ": " << d.items[i] << " = " << polar;
            EXPECT_TRUE(NearlyEqual(v, Value(cartesian, p.code), 1e-4)) << p.code << ": " << d.items[i] << " = " << cartesian;
            EXPECT_TRUE(std::regex_search(d.items[i], std::regex("\\)\\^[2-5]$"))) << d.items[i];
            ExpectSquareFreeRoots(polar);
        }
    });
}

TEST(ComplexNumbers, Roots) {
    SweepRoutine("KVOL_MATH_NRP", 38, 2000, [](const GeneratedProblem& p) {
        const Drill d = ReadDrill(p);
        for (std::size_t i = 0; i < d.items.size() && i < d.answers.size(); ++i) {
            static const std::regex shape("^#RAD\\(#RI\\(([2-5]) #RI\\)(.*)#RAD\\)$");
            std::smatch m;
            ASSERT_TRUE(std::regex_match(d.items[i], m, shape)) << d.items[i];
            const int n = std::stoi(m[1].str());
            const Complex z = Value(m[2].str(), p.code);
            std::vector<std::string> roots;
            std::string rest = d.answers[i];
            for (auto at = rest.find(",   "); at != std::string::npos; at = rest.find(",   ")) {
                roots.push_back(rest.substr(0, at));
                rest = rest.substr(at + 4);
            }
            roots.push_back(rest);
            ASSERT_EQ(static_cast<int>(roots.size()), n) << d.answers[i];
            std::vector<Complex> values;
            for (const std::string& r : roots) {
                const Complex w = Value(r, p.code);
                EXPECT_TRUE(NearlyEqual(std::pow(w, n), z, 1e-4)) << p.code << ": " << r << " ^" << n << " vs " << m[2].str();
                for (const Complex& u : values) EXPECT_FALSE(NearlyEqual(u, w, 1e-3)) << d.answers[i];
                values.push_back(w);
            }
        }
    });
}

TEST(ComplexNumbers, ParameterGivesTheAskedResult) {
    SweepRoutine("KVOL_MATH_NRP", 39, 2000, [](const GeneratedProblem& p) {
        static const std::regex answer("^&SP=10: &\\+I([a-z])&-I = (-?[0-9]+)&LF$");
        std::smatch m;
        ASSERT_TRUE(std::regex_match(p.solution, m, answer)) << p.solution;
        const std::string letter = "&+I" + m[1].str() + "&-I";
        const std::string s = p.statement;
        const std::string zMark = "Let the complex numbers  &+Iz&-I& =& ";
        const std::string wMark = "& ,  &+Iw&-I& =& ";
        ASSERT_EQ(s.rfind(zMark, 0), 0u) << s;
        const auto wAt = s.find(wMark);
        const auto end = s.find(". Find the value of " + letter + " so that ");
        ASSERT_TRUE(wAt != std::string::npos && end != std::string::npos) << s;
        std::string z = s.substr(zMark.size(), wAt - zMark.size());
        std::string w = s.substr(wAt + wMark.size(), end - wAt - wMark.size());
        for (std::string* t : {&z, &w}) {
            const auto at = t->find(letter);
            if (at != std::string::npos) t->replace(at, letter.size(), "(" + m[2].str() + ")");
        }
        EXPECT_EQ((z + w).find(letter), std::string::npos) << s;
        const Complex zv = Value(z, p.code), wv = Value(w, p.code);
        const bool quotient = s.find("the quotient") != std::string::npos;
        const Complex r = quotient ? zv / wv : zv * wv;
        if (s.find(" gives a real number.&LF") != std::string::npos) {
            EXPECT_NEAR(r.imag(), 0, 1e-9) << s << p.solution;
            EXPECT_GT(std::fabs(r.real()), 1e-9) << s;
        } else {
            ASSERT_NE(s.find(" gives a pure imaginary number.&LF"), std::string::npos) << s;
            EXPECT_NEAR(r.real(), 0, 1e-9) << s << p.solution;
            EXPECT_GT(std::fabs(r.imag()), 1e-9) << s;
        }
    });
}

TEST(ComplexNumbers, ZeroPartsAreLeftOut) {
    GeneratorWorkspace ws;
    EXPECT_EQ(ComplexToMarkup(ws, 0, 3), "3&+I& i&-I");
    EXPECT_EQ(ComplexToMarkup(ws, 0, 0), "0");
    EXPECT_EQ(ComplexToMarkup(ws, 4, 0), "4");
}
