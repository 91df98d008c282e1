#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <vector>

#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
struct Layout {
    int routine;
    std::set<std::string> heads;
    std::set<std::string> statementMarks;
    std::set<std::string> solutionMarks;
};

const std::set<std::string> kPolynomialHeads = {
    "Calculate the following expressions involving polynomials.&LF", "Calculate the following expressions.&LF",
    "Calculate these expressions involving polynomials.&LF", "Calculate these expressions.&LF"};
const std::set<std::string> kFractionHeads = {"Simplify the following expressions:&LF",
                                              "Simplify the following expressions with algebraic fractions:&LF"};
const std::set<std::string> kAngleHeads = {
    "Calculate these expressions.&LF", "Calculate these expressions involving angles.&LF",
    "Calculate the following expressions.&LF", "Calculate the following expressions involving angles.&LF"};
const std::set<std::string> kComplexHeads = {
    "Calculate the following expressions with complex numbers.&LF", "Calculate the following expressions.&LF",
    "Calculate these expressions involving complex numbers.&LF", "Calculate these expressions.&LF"};
const std::set<std::string> kFour = {"&SP=5:", "&SP=29:", "&SP=53:", "&SP=76:"};
const std::set<std::string> kSolutionFour = {"&SP=10:", "&SP=30:", "&SP=50:", "&SP=70:"};
const std::set<std::string> kAngleStatement = {"&SP=3:", "&SP=35:", "&SP=67:"};
const std::set<std::string> kAngleSolution = {"&SP=10:", "&SP=35:", "&SP=67:"};
const std::set<std::string> kComplexSolutionFour = {"&SP=10:", "&SP=32:", "&SP=54:", "&SP=76:"};

// The marks a drill may write: its own, or those of a standard set with fewer columns when
// its items are too wide for its own.
std::set<std::string> Allowed(const std::set<std::string>& own, bool statement) {
    const std::vector<std::set<std::string>> standard =
        statement ? std::vector<std::set<std::string>>{kFour, {"&SP=5:", "&SP=29:", "&SP=53:"}, {"&SP=5:", "&SP=43:"}, {"&SP=5:"}}
                  : std::vector<std::set<std::string>>{kSolutionFour, {"&SP=10:", "&SP=40:", "&SP=70:"},
                                                       {"&SP=10:", "&SP=50:"}, {"&SP=10:"}};
    std::set<std::string> allowed = own;
    for (const auto& set : standard)
        if (set.size() < own.size()) allowed.insert(set.begin(), set.end());
    return allowed;
}

std::set<std::string> Marks(const std::string& text) {
    std::set<std::string> out;
    static const std::regex mark("&SP=[0-9.]+:");
    for (std::sregex_iterator it(text.begin(), text.end(), mark), end; it != end; ++it) out.insert(it->str());
    return out;
}
} // namespace

// The head lines and the column marks of each drill, over many seeds.
TEST(AlgebraLayout, HeadLinesAndColumns) {
    const std::vector<Layout> layouts = {
        {16, kPolynomialHeads, {"&SP=5:"}, {"&SP=10:", "&SP=50:"}},
        {17, kPolynomialHeads, {"&SP=5:", "&SP=29:", "&SP=53:"}, {"&SP=10:", "&SP=50:"}},
        {18, {"Factorize these polynomials:&LF", "Factorize the following polynomials:&LF"}, {"&SP=5:"}, {"&SP=10:"}},
        {19,
         {"Calculate the quotient and the remainder of the following divisions:&LF",
          "Calculate quotient and remainder of these divisions:&LF",
          "Find the quotient and the remainder of the following divisions:&LF",
          "Find quotient and remainder of these divisions:&LF"},
         {"&SP=5:"},
         {"&SP=10:", "&SP=50:"}},
        {26, {"Simplify the following algebraic fractions:&LF"}, kFour, kSolutionFour},
        {3, kFractionHeads, {"&SP=5:", "&SP=37.5:"}, kSolutionFour},
        {4, kFractionHeads, {"&SP=5:", "&SP=37.5:"}, kSolutionFour},
        {27, kAngleHeads, kAngleStatement, kAngleSolution},
        {28, kAngleHeads, kAngleStatement, kAngleSolution},
        {29, kAngleHeads, kAngleStatement, kAngleSolution},
        {30, kAngleHeads, kAngleStatement, kAngleSolution},
        {31, {"Calculate the complementary and supplementary angle of the following angles:&LF"}, kFour,
         {"&SP=10:", "&SP=39:", "&SP=68:"}},
        {33, kComplexHeads, {"&SP=5:", "&SP=43:"}, kComplexSolutionFour},
        {34, kComplexHeads, {"&SP=5:", "&SP=43:"}, kComplexSolutionFour},
        {35, kComplexHeads, kFour, {"&SP=10:", "&SP=50:"}},
        {36, kComplexHeads, {"&SP=5:", "&SP=43:"}, {"&SP=10:", "&SP=50:"}},
        {37, kComplexHeads, kFour, {"&SP=10:", "&SP=50:"}},
        {38, kComplexHeads, kFour, {"&SP=10:"}},
    };
    GeneratorHub hub;
    for (const Layout& l : layouts) {
        std::set<std::string> heads, statementMarks, solutionMarks;
        for (int seed = 0; seed < 150; ++seed) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_NRP", {l.routine, seed, seed * 7, 12, 1, 1});
            heads.insert(p.statement.substr(0, p.statement.find("&LF") + 3));
            for (const auto& m : Marks(p.statement)) statementMarks.insert(m);
            for (const auto& m : Marks(p.solution)) solutionMarks.insert(m);
            // A blank line closes the statement.
            EXPECT_EQ(p.statement.substr(p.statement.size() - 6), "&LF&LF") << p.code;
        }
        EXPECT_EQ(heads, l.heads) << l.routine;
        const std::set<std::string> statementAllowed = Allowed(l.statementMarks, true);
        const std::set<std::string> solutionAllowed = Allowed(l.solutionMarks, false);
        EXPECT_FALSE(statementMarks.empty()) << l.routine;
        for (const auto& m : statementMarks) EXPECT_EQ(statementAllowed.count(m), 1u) << l.routine << " " << m;
        for (const auto& m : solutionMarks) EXPECT_EQ(solutionAllowed.count(m), 1u) << l.routine << " " << m;
    }
}

// The worded problems read no item count: the count changes nothing.
TEST(AlgebraLayout, WordedProblemsIgnoreTheItemCount) {
    GeneratorHub hub;
    for (int routine : {20, 32, 39}) {
        for (int seed : {0, 1, 2, 3, 4, 1234}) {
            const GeneratedProblem a = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 5, seed, 0, 1, 1});
            const GeneratedProblem b = GenerateProblem(hub, "KVOL_MATH_NRP", {routine, 5, seed, 17, 1, 1});
            EXPECT_EQ(a.statement, b.statement) << routine;
            EXPECT_EQ(a.solution, b.solution) << routine;
            EXPECT_EQ(a.statement.find("&+Ba)"), std::string::npos) << routine;
        }
    }
}

// Drills with the item count 27 of their catalogue line still write 26 lettered items.
TEST(AlgebraLayout, TwentySevenItemsAreClippedToTheLetters) {
    GeneratorHub hub;
    for (int routine : {27, 31, 33, 38}) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_NRP", MakeProblemCode({routine, 0, 77, 27, 1, 1}), statement, solution);
        EXPECT_NE(statement.find("&+Bz)"), std::string::npos) << routine;
        EXPECT_EQ(statement.find("&+B{"), std::string::npos) << routine;
    }
}
