#include <gtest/gtest.h>

#include "generators/hub.h"
#include "generators/nrp/nrp_routines.h"

// The describe blocks of the drills, as the catalogue lists them.
namespace {
struct Entry {
    void (*routine)(GeneratorWorkspace&);
    const char* topicId;
    const char* topicName;
    const char* subtopicId;
    const char* maxAmount;
    const char* title;
    const char* description;
};

const Entry kEntries[] = {
    {MultiplicationOfNaturalNumbers, "010", "Natural numbers", "002", "026", "Multiplication of natural numbers",
     "Exercises to practice multiplication of natural numbers (1 type)"},
    {DivisionOfNaturalNumbers, "010", "Natural numbers", "003", "026", "Division of natural numbers",
     "Exercises to practice division of natural numbers (1 type)"},
    {LcmAndGcmOfNaturalNumbers, "010", "Natural numbers", "020", "026", "Lcm and gcm of natural numbers",
     "Least common multiple and greatest common measure of natural numbers (2 types)"},
    {AdditionAndSubtractionOfIntegerNumbers, "020", "Integer numbers", "001", "026",
     "Addition and subtraction of integer numbers",
     "Exercises about addition and subtraction of integer numbers. (5 types)"},
    {MultiplicationAndDivisionOfIntegerNumbers, "020", "Integer numbers", "005", "026",
     "Multiplication and division of integer numbers",
     "Exercises of integer numbers: addition, subtraction, multiplication, division and parentheses. (10 types)"},
    {AdditionAndSubtractionOfDecimalNumbers, "030", "Decimal numbers", "001", "026",
     "Addition and subtraction of decimal numbers",
     "Exercises to practice addition and subtraction of decimal numbers (2 types)"},
    {MultiplicationOfDecimalNumbers, "030", "Decimal numbers", "002", "026", "Multiplication of decimal numbers",
     "Exercises to practice multiplication of decimal numbers (1 type)"},
    {DivisionOfDecimalNumbers, "030", "Decimal numbers", "003", "026", "Division of decimal numbers",
     "Exercises to practice division of decimal numbers (1 type)"},
    {AdditionAndSubtractionOfFractions, "040", "Rational numbers", "005", "026",
     "Addition and subtraction of fractions", "Exercises about addition and subtraction of fractions. (2 types)"},
    {FourOperationsWithFractions, "040", "Rational numbers", "010", "026",
     "Addition, subtraction, multiplication and division with fractions",
     "Exercises of fractions: addition, subtraction, multiplication and division. (7 types)"},
    {ConvertingDecimalNumbersToFractions, "040", "Rational numbers", "015", "026",
     "Converting decimal numbers to fractions",
     "Exercises to convert exact decimal numbers or repeating decimal numbers to fractions. (3 types)"},
    {SimplifyingPowersOfNaturalNumbers, "050", "Powers and roots", "012", "026",
     "Simplifying powers of natural numbers", "Exercises to simplify powers of natural numbers (7 types)"},
    {SimplifyingPowersOfRationalNumbers, "050", "Powers and roots", "014", "012",
     "Simplifying powers of rational numbers", "Exercises to simplify powers of rational numbers (7 types)"},
    {RationalizationWithSquareRoots, "050", "Powers and roots", "018", "026", "Rationalization I: (square roots)",
     "Exercises to rationalize expressions involving square roots (5 types)"},
    {RationalizationWithNthRoots, "050", "Powers and roots", "020", "026", "Rationalization II: (with n-th roots)",
     "Exercises to rationalize expressions involving n-th roots (2 types)"},
    {AdditionAndSubtractionOfSquareRoots, "050", "Powers and roots", "025", "026",
     "Addition and subtraction of square roots",
     "Exercises to calculate addition and subtraction of square roots (3 types)"},
    {SimplifyingNthRoots, "050", "Powers and roots", "035", "026", "Simplifying n-th roots",
     "Exercises to simplify n-th roots (6 types)"},
};
} // namespace

TEST(NrpDrillCatalogue, DescribeBlocks) {
    for (const Entry& e : kEntries) {
        GeneratorWorkspace ws;
        ws.DescribeMode = -1;
        ws.stream.Draw(-1);
        ws.stream.SeedStream(5);
        GeneratorWorkspace before = ws;
        e.routine(ws);
        EXPECT_EQ(ws.Subject, "Mathematics") << e.title;
        EXPECT_EQ(ws.TopicId, e.topicId) << e.title;
        EXPECT_EQ(ws.TopicName, e.topicName) << e.title;
        EXPECT_EQ(ws.SubtopicId, e.subtopicId) << e.title;
        EXPECT_EQ(ws.Kind, "2") << e.title;
        EXPECT_EQ(ws.MaxAmount, e.maxAmount) << e.title;
        EXPECT_EQ(ws.Title, e.title);
        EXPECT_EQ(ws.Description, e.description) << e.title;
        EXPECT_EQ(ws.Statement, "") << e.title;
        EXPECT_EQ(ws.Solution, "") << e.title;
        // Describing draws nothing.
        EXPECT_EQ(ws.stream.Draw(), before.stream.Draw()) << e.title;
    }
}

TEST(NrpDrillCatalogue, SameCodeSameTextWhateverCameBetween) {
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
