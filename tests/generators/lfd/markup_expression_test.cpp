#include <gtest/gtest.h>

#include <cmath>

#include "markup_expression.h"

// The reader of formulas that the calculus tests rely on must itself read right.
TEST(MarkupExpression, ReadsTheFormsOfTheGenerators) {
    EXPECT_DOUBLE_EQ(EvaluateMarkup("3&+Ix&-I^2& -& 2&+Ix&-I& +& 1", 2), 9);
    EXPECT_DOUBLE_EQ(EvaluateMarkup("#COC(1#N)(2#COC)&-Iln|&+Ix - 4|", 6), 0.5 * std::log(2));
    EXPECT_DOUBLE_EQ(EvaluateMarkup("-&+Ix&-I_ cos_ &+Ix&-I& +& sin_ &+Ix&-I", 1), -std::cos(1) + std::sin(1));
    EXPECT_DOUBLE_EQ(EvaluateMarkup("#EXP( 2&+Ix&-I#EXP)_ (&+Ix&-I - 1)", 0.5), std::exp(1.0) * -0.5);
    EXPECT_DOUBLE_EQ(EvaluateMarkup("#SQR(1 - &+Ix&-I^2#SQR)", 0.6), 0.8);
    EXPECT_DOUBLE_EQ(EvaluateMarkup("#RAD(#RI(3#RI)&+Ix&-I^2#RAD)", 8), 4);
    EXPECT_DOUBLE_EQ(EvaluateMarkup("#POT(2#PB)(_ &+Ix&-I#POT)", 3), 8);
    EXPECT_DOUBLE_EQ(EvaluateMarkup("sin^2 &+Ix&-I cos &+Ix&-I", 0.3), std::pow(std::sin(0.3), 2) * std::cos(0.3));
    EXPECT_DOUBLE_EQ(EvaluateMarkup("&-Iarctan&+I #COC(x + 6#N)(7#COC)", 1), std::atan(1));
    EXPECT_DOUBLE_EQ(EvaluateMarkup("#NES(()&+Ix&-I + 1#NES)^3", 1), 8);
    EXPECT_DOUBLE_EQ(EvaluateMarkup("2&.5&pi", 0), 2.5 * 3.14159265358979323846);
    EXPECT_THROW(EvaluateMarkup("#COC(1#N)(x", 1), std::runtime_error);
}

TEST(MarkupExpression, CatchesAWrongAntiderivative) {
    EXPECT_EQ(CheckAntiderivative("&+Ix&-I_ cos_ &+Ix&-I", "&+Ix&-I_ sin_ &+Ix&-I + cos_ &+Ix&-I"), "");
    EXPECT_NE(CheckAntiderivative("&+Ix&-I_ cos_ &+Ix&-I", "&+Ix&-I_ sin_ &+Ix&-I - cos_ &+Ix&-I"), "");
    EXPECT_NE(CheckDerivative("ln_ &+Ix&-I", "#COC(2#N)(&+Ix&-I#COC)"), "");
    EXPECT_EQ(CheckDerivative("ln_ &+Ix&-I^2", "#COC(2#N)(&+Ix&-I#COC)"), "");
}
