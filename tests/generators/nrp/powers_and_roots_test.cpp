#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <regex>
#include <set>

#include "generators/hub.h"
#include "generators/nrp/drill_items.h"
#include "generators/nrp/nrp_test_helpers.h"
#include "support/markup_reader.h"
#include "mathservices/arithmetic.h"

namespace {
bool Prime(long long x) {
    if (x < 2) return false;
    for (long long d = 2; d * d <= x; ++d) {
        if (x % d == 0) return false;
    }
    return true;
}

bool PerfectSquare(long long x) {
    const auto r = static_cast<long long>(std::llround(std::sqrt(static_cast<double>(x))));
    return r * r == x;
}

// The items of a powers and roots drill: as many as asked, none repeated, each statement
// equal to its answer as a number. Returns the answers.
std::vector<std::string> ExpectUprightDrill(const GeneratedProblem& p, int maxAmount = 26) {
    const auto items = UprightItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    EXPECT_EQ(static_cast<int>(items.size()), ExpectedItems(p, maxAmount)) << p.code;
    EXPECT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size() && i < answers.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) EXPECT_NE(items[i], items[j]) << p.code;
        double left = 0, right = 0;
        EXPECT_NO_THROW(left = ReadMarkupReal(items[i])) << p.code << " " << items[i];
        EXPECT_NO_THROW(right = ReadMarkupReal(answers[i])) << p.code << " " << answers[i];
        EXPECT_TRUE(SameValue(left, right)) << p.code << " " << items[i] << " = " << answers[i] << " (" << left
                                            << " against " << right << ")";
    }
    // Every row of both ends in a blank line, the last one too.
    EXPECT_EQ(p.statement.substr(p.statement.size() - 6), "&LF&LF") << p.code;
    EXPECT_EQ(p.solution.substr(p.solution.size() - 6), "&LF&LF") << p.code;
    return answers;
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
} // namespace

TEST(SquareRootSums, AreRight) {
    static const std::regex answer(R"(^(-& )?(\d*)#SQR\((\d+)#SQR\)$)");
    SweepRoutine("KVOL_MATH_NRP", 25, 2500, [](const GeneratedProblem& p) {
        for (const auto& a : ExpectUprightDrill(p)) {
            std::smatch m;
            ASSERT_TRUE(std::regex_match(a, m, answer)) << p.code << " " << a;
            EXPECT_TRUE(Prime(std::stoll(m[3]))) << a;
            EXPECT_LE(std::stoll(m[3]), 7) << a;
        }
    });
}

TEST(SquareRootSums, TermsCombine) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        ws.stream.SeedStream(seed);
        const int terms = 2 + seed % 3;
        const SquareRootSumItem item = DrawSquareRootSum(ws, terms);
        if (item.texts.statement.empty()) continue;
        ASSERT_EQ(static_cast<int>(item.coefficients.size()), terms);
        double total = 0;
        bool factor = false;
        for (int j = 0; j < terms; ++j) {
            total += item.coefficients[j] * item.factors[j];
            factor = factor || item.factors[j] > 1;
            EXPECT_GE(std::fabs(item.coefficients[j]), 1);
            EXPECT_LE(std::fabs(item.coefficients[j]), 6);
            for (int i = 0; i < j; ++i) {
                EXPECT_FALSE(item.factors[i] == item.factors[j] &&
                             std::fabs(item.coefficients[i]) == std::fabs(item.coefficients[j]))
                    << item.texts.statement;
            }
        }
        EXPECT_TRUE(factor) << item.texts.statement;
        EXPECT_EQ(total, item.total);
        EXPECT_NE(total, 0);
        EXPECT_TRUE(SameValue(ReadMarkupReal(item.texts.statement), total * std::sqrt(item.prime)))
            << item.texts.statement;
    }
}

TEST(SingleRoots, StatementAlwaysReducesToOneRoot) {
    static const std::regex answer(R"(^(?:#SQR\((.*)#SQR\)|#RAD\(#RI\((\d+)#RI\)(.*)#RAD\))$)");
    static const std::regex power(R"(^(?:(\d+)|#POT\((\d+)#PB\)\((\d+)#POT\))$)");
    SweepRoutine("KVOL_MATH_NRP", 5, 2500, [](const GeneratedProblem& p) {
        for (const auto& a : ExpectUprightDrill(p)) {
            std::smatch m;
            ASSERT_TRUE(std::regex_match(a, m, answer)) << p.code << " " << a;
            const long long index = m[1].matched ? 2 : std::stoll(m[2]);
            const std::string radicand = m[1].matched ? m[1].str() : m[3].str();
            std::smatch r;
            ASSERT_TRUE(std::regex_match(radicand, r, power)) << a;
            const long long base = r[1].matched ? std::stoll(r[1]) : std::stoll(r[2]);
            const long long exponent = r[1].matched ? 1 : std::stoll(r[3]);
            EXPECT_TRUE(Prime(base)) << a;
            EXPECT_GE(index, 2) << a;
            EXPECT_EQ(std::gcd(index, exponent), 1) << a;
        }
    });
}

TEST(SingleRoots, EveryTypeDrawsItsRecord) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        ws.stream.SeedStream(seed);
        const SingleRootItem item = DrawSingleRoot(ws, 1 + seed % 6);
        if (item.texts.statement.empty()) continue;
        EXPECT_TRUE(SameValue(ReadMarkupReal(item.texts.statement), std::pow(item.prime, item.exponent / item.index)))
            << item.texts.statement;
        EXPECT_EQ(std::gcd(static_cast<long long>(item.index), static_cast<long long>(item.exponent)), 1);
        EXPECT_GE(item.index, 2);
    }
}

TEST(NaturalPowers, SimplifyToOnePowerOfAPrime) {
    static const std::regex answer(R"(^#POT\((\d+)#PB\)\((\d+)#POT\)$)");
    SweepRoutine("KVOL_MATH_NRP", 6, 2500, [](const GeneratedProblem& p) {
        for (const auto& a : ExpectUprightDrill(p)) {
            std::smatch m;
            ASSERT_TRUE(std::regex_match(a, m, answer)) << p.code << " " << a;
            EXPECT_TRUE(Prime(std::stoll(m[1]))) << a;
            EXPECT_LE(std::stoll(m[1]), 13) << a;
            EXPECT_GE(std::stoll(m[2]), 2) << a;
        }
    });
}

TEST(NaturalPowers, EightColumnsOfAnswers) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {6, 0, 11, 9, 1, 1});
    std::string marks;
    for (std::size_t at = p.solution.find("&SP="); at != std::string::npos; at = p.solution.find("&SP=", at + 1)) {
        marks += p.solution.substr(at, p.solution.find(':', at) - at + 1);
    }
    EXPECT_EQ(marks, "&SP=10:&SP=20:&SP=30:&SP=40:&SP=50:&SP=60:&SP=70:&SP=80:&SP=10:");
    EXPECT_NE(p.solution.find("&+Bh)&-B #POT("), std::string::npos);
    EXPECT_NE(p.solution.find("&LF&LF&SP=10:&-I&+Bi)&-B "), std::string::npos);
}

TEST(RationalPowers, SimplifyToOnePowerWithPositiveExponent) {
    static const std::regex answer(R"(^#POT\(#NES\(\(\)#COC\((\d+)#N\)\((\d+)#COC\)#NES\)#PB\)\((\d+)#POT\)$)");
    SweepRoutine("KVOL_MATH_NRP", 7, 2500, [](const GeneratedProblem& p) {
        for (const auto& a : ExpectUprightDrill(p, 12)) {
            std::smatch m;
            ASSERT_TRUE(std::regex_match(a, m, answer)) << p.code << " " << a;
            EXPECT_TRUE(Prime(std::stoll(m[1]))) << a;
            EXPECT_TRUE(Prime(std::stoll(m[2]))) << a;
            EXPECT_NE(m[1], m[2]) << a;
            EXPECT_GE(std::stoll(m[3]), 2) << a;
        }
    });
}

TEST(RationalPowers, TwentySixItemsAskedMakeTwelve) {
    GeneratorHub hub;
    for (int seed : {0, 1234, 8999}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {7, 0, seed, 26, 1, 1});
        EXPECT_EQ(UprightItems(p.statement).size(), 12u) << p.code;
        EXPECT_EQ(SolutionItems(p.solution).size(), 12u) << p.code;
    }
}

TEST(RationalPowers, SixColumnsOfAnswers) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {7, 0, 21, 7, 1, 1});
    for (const char* mark : {"&SP=10:&-I&+Ba)", "&SP=24:&-I&+Bb)", "&SP=38:&-I&+Bc)", "&SP=52:&-I&+Bd)",
                             "&SP=66:&-I&+Be)", "&SP=80:&-I&+Bf)", "&LF&LF&SP=10:&-I&+Bg)"}) {
        EXPECT_NE(p.solution.find(mark), std::string::npos) << mark;
    }
}

TEST(PowersAndRoots, HeadLines) {
    EXPECT_EQ(HeadLines(25), (std::set<std::string>{"Calculate the following expressions:&LF"}));
    EXPECT_EQ(HeadLines(5), (std::set<std::string>{"Simplify these expressions into a single root:&LF",
                                                   "Simplify the following expressions into a single root:&LF"}));
    EXPECT_EQ(HeadLines(6), (std::set<std::string>{"Simplify these expressions into a single power:&LF",
                                                   "Simplify the following expressions into a single power:&LF"}));
    EXPECT_EQ(HeadLines(7),
              (std::set<std::string>{
                  "Simplify these expressions into a single power with positive exponent:&LF",
                  "Simplify the following expressions into a single power with positive exponent:&LF"}));
}

TEST(SquareRootRationalisation, AnswersAreRightWithoutRootsBelow) {
    static const std::regex below(R"(#N\)\((.*)#COC\)$)");
    static const std::regex root(R"(#SQR\((\d+)#SQR\))");
    SweepRoutine("KVOL_MATH_NRP", 23, 2500, [](const GeneratedProblem& p) {
        const auto items = UprightItems(p.statement);
        const auto answers = ExpectUprightDrill(p);
        for (std::size_t i = 0; i < answers.size(); ++i) {
            std::smatch m;
            ASSERT_TRUE(std::regex_search(answers[i], m, below)) << answers[i];
            const std::string denominator = m[1];
            EXPECT_EQ(denominator.find("#SQR"), std::string::npos) << answers[i];
            EXPECT_NE(denominator, "1") << answers[i];
            // No root of the statement's denominator is a perfect square.
            std::smatch s;
            ASSERT_TRUE(std::regex_search(items[i], s, below)) << items[i];
            const std::string lower = s[1];
            for (auto it = std::sregex_iterator(lower.begin(), lower.end(), root); it != std::sregex_iterator(); ++it) {
                EXPECT_FALSE(PerfectSquare(std::stoll((*it)[1]))) << items[i];
            }
        }
    });
}

TEST(SquareRootRationalisation, EveryTypeGivesReducedAnswers) {
    // "#COC(" a "_ " root, a sign and a whole number, or a whole number, a sign and b "_ "
    // root, over a whole denominator.
    static const std::regex conjugate(R"(^#COC\((-?\d+)(?:_ #SQR\(\d+#SQR\) [+-] (\d+)| [+-] (\d+)_ #SQR\(\d+#SQR\)))"
                                      R"(#N\)\((\d+)#COC\)$)");
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    int made[7] = {};
    for (int seed = 0; seed < 6000; ++seed) {
        ws.stream.SeedStream(seed);
        const int type = 1 + seed % 6;
        const ItemTexts item = DrawSquareRootRationalisation(ws, type);
        if (item.statement.empty()) continue;
        ++made[type];
        EXPECT_TRUE(SameValue(ReadMarkupReal(item.statement), ReadMarkupReal(item.solution))) << item.statement;
        if (type >= 4) {
            std::smatch m;
            ASSERT_TRUE(std::regex_match(item.solution, m, conjugate)) << item.solution;
            const long long first = std::llabs(std::stoll(m[1]));
            const long long second = std::stoll(m[2].matched ? m[2].str() : m[3].str());
            const long long denominator = std::stoll(m[4]);
            EXPECT_GT(denominator, 1) << item.solution;
            EXPECT_EQ(std::gcd(std::gcd(first, second), denominator), 1) << item.solution;
        }
    }
    for (int type = 1; type <= 6; ++type) EXPECT_GT(made[type], 50) << type;
}

TEST(SquareRootRationalisation, EveryRootIsInSimplestForm) {
    // A root such as the square root of 28 or of 4, in the statement or the answer, is one the
    // pupil would still have to simplify: neither may show one.
    static const std::regex root(R"(#SQR\((\d+)#SQR\))");
    const auto squareFree = [](long long n) {
        for (long long d = 2; d * d <= n; ++d) {
            if (n % (d * d) == 0) return false;
        }
        return true;
    };
    int roots = 0;
    SweepRoutine("KVOL_MATH_NRP", 23, 2500, [&](const GeneratedProblem& p) {
        for (const std::string* text : {&p.statement, &p.solution}) {
            for (auto it = std::sregex_iterator(text->begin(), text->end(), root); it != std::sregex_iterator(); ++it) {
                ++roots;
                EXPECT_TRUE(squareFree(std::stoll((*it)[1]))) << p.code << " " << (*it)[0];
            }
        }
    });
    EXPECT_GT(roots, 1000);
}

TEST(NthRootRationalisation, AnswersAreRightWithoutRootsBelow) {
    static const std::regex below(R"(#N\)\((.*)#COC\)$)");
    SweepRoutine("KVOL_MATH_NRP", 24, 2500, [](const GeneratedProblem& p) {
        for (const auto& a : ExpectUprightDrill(p)) {
            std::smatch m;
            if (std::regex_search(a, m, below)) {
                EXPECT_EQ(m[1].str().find("#RAD"), std::string::npos) << a;
                EXPECT_TRUE(Prime(std::stoll(m[1]))) << a;
            }
            EXPECT_NE(a.find("#RAD(#RI("), std::string::npos) << a;
        }
    });
}

TEST(NthRootRationalisation, BothTypes) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    int powers = 0, values = 0;
    for (int seed = 0; seed < 3000; ++seed) {
        ws.stream.SeedStream(seed);
        const int type = 1 + seed % 2;
        const ItemTexts item = DrawNthRootRationalisation(ws, type);
        if (item.statement.empty()) continue;
        EXPECT_TRUE(SameValue(ReadMarkupReal(item.statement), ReadMarkupReal(item.solution))) << item.statement;
        const bool power = item.statement.find('^') != std::string::npos;
        EXPECT_EQ(power, type == 1) << item.statement;
        (power ? powers : values) += 1;
    }
    EXPECT_GT(powers, 100);
    EXPECT_GT(values, 30);
}

TEST(Rationalisation, HeadLinesAndColumns) {
    EXPECT_EQ(HeadLines(23), (std::set<std::string>{"Rationalize the following expressions:&LF"}));
    EXPECT_EQ(HeadLines(24), (std::set<std::string>{"Rationalize the following expressions:&LF"}));
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {23, 0, 3, 5, 1, 1});
    EXPECT_EQ(p.statement.rfind("Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(", 0), 0u);
    for (const char* mark : {"&SP=29:&+Bb)&-B ", "&SP=53:&+Bc)&-B ", "&SP=76:&+Bd)&-B ", "&LF&LF&SP=5:&+Be)&-B "}) {
        EXPECT_NE(p.statement.find(mark), std::string::npos) << mark;
    }
    for (const char* mark : {"&SP=10:&-I&+Ba)&-B ", "&SP=32:&-I&+Bb)&-B ", "&SP=54:&-I&+Bc)&-B ",
                             "&SP=76:&-I&+Bd)&-B ", "&LF&LF&SP=10:&-I&+Be)&-B "}) {
        EXPECT_NE(p.solution.find(mark), std::string::npos) << mark;
    }
}
