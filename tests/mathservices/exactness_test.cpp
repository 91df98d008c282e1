#include <gtest/gtest.h>

#include <cmath>

#include "mathservices/number_markup.h"

// Exact forms are named only when they are exact, and roots are written in their
// simplest form.

TEST(ExactForms, NearMultipleOfPiIsADecimal) {
    MathWorkspace ws;
    // 4·atan(1/8) lies within 10^-6 of 19π/120 without being it.
    const std::string near = NumberToExactMarkup(ws, 4 * std::atan(1.0 / 8));
    EXPECT_EQ(near.find("&pi"), std::string::npos) << near;
    EXPECT_EQ(NumberToExactMarkup(ws, 19 * kPi / 120), "#COC(19&pi#N)(120#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, 3 * std::atan(1.0)), "#COC(3&pi#N)(4#COC)");
}

TEST(ExactForms, PolarArgumentOfWholePartsIsPiOnlyOnAxesAndDiagonals) {
    MathWorkspace ws;
    EXPECT_EQ(ComplexPolarToMarkup(ws, -3, 3, 0), "3#SQR(2#SQR)#SPB(L #T)(#COC(3&pi#N)(4#COC) rad#SPB)");
    EXPECT_EQ(ComplexPolarToMarkup(ws, 0, -2, 0), "2#SPB(L #T)(#COC(3&pi#N)(2#COC) rad#SPB)");
    EXPECT_EQ(ComplexPolarToMarkup(ws, 3713, 2016, 0), "4225#SPB(L #T)(0&.49742 rad#SPB)");
}

TEST(ExactForms, RootsLoseEverySquareFactor) {
    MathWorkspace ws;
    EXPECT_EQ(RootFractionToMarkup(ws, 1, 12, 1), "2#SQR(3#SQR)");
    EXPECT_EQ(RootFractionToMarkup(ws, 1, 18, 1), "3#SQR(2#SQR)");
    EXPECT_EQ(RootFractionToMarkup(ws, 9, 18, 18), "#COC(3#SQR(2#SQR)#N)(2#COC)");
    EXPECT_EQ(RootFractionToMarkup(ws, -2, 8, 3), "-& #COC(4#SQR(2#SQR)#N)(3#COC)");
    EXPECT_EQ(RootFractionToMarkup(ws, 1, 37 * 37 * 2, 1), "37#SQR(2#SQR)");
    EXPECT_EQ(RootFractionToMarkup(ws, 3, 16, 6), "2");
}
