#include <cmath>

#include <gtest/gtest.h>

#include "mathservices/number_markup.h"

TEST(PlainNumberText, ShapeOfThePlatformText) {
    EXPECT_EQ(PlainNumberText(0.5), ".5");
    EXPECT_EQ(PlainNumberText(-0.5), "-.5");
    EXPECT_EQ(PlainNumberText(1e20), "1E+20");
    EXPECT_EQ(PlainNumberText(1e-5), "1E-05");
    EXPECT_EQ(PlainNumberText(0.1 + 0.2), ".3");
    EXPECT_EQ(PlainNumberText(-0.0), "0");
    EXPECT_EQ(PlainNumberText(12), "12");
    EXPECT_EQ(PlainNumberText(-7.25), "-7.25");
    EXPECT_EQ(PlainNumberText(123456789012345.0), "123456789012345");
    EXPECT_EQ(PlainNumberText(1.0 / 3), ".333333333333333");
}

TEST(NumberToMarkup, DecimalMarkAndPowers) {
    EXPECT_EQ(NumberToMarkup(0.5), "0&.5");
    EXPECT_EQ(NumberToMarkup(-1.5), "-1&.5");
    EXPECT_EQ(NumberToMarkup(12), "12");
    EXPECT_EQ(NumberToMarkup(1e20), "1&E+20");
    EXPECT_EQ(NumberToMarkup(1e-5), "1&E-5");
    EXPECT_EQ(NumberToMarkup(-2.5e-7), "-2&.5&E-7");
}

TEST(NumberToSignificantMarkup, RoundsAndGoesScientific) {
    EXPECT_EQ(NumberToSignificantMarkup(0, 5), "0");
    EXPECT_EQ(NumberToSignificantMarkup(123.456, 5), "123&.46");
    EXPECT_EQ(NumberToSignificantMarkup(-123.456, 5), "-123&.46");
    EXPECT_EQ(NumberToSignificantMarkup(1234567, 3), "1&.23&E6");
    EXPECT_EQ(NumberToSignificantMarkup(0.001234, 2), "1&.2&E-3");
    // A mantissa too short is filled with zeros up to digits + 1 characters, "&." counting two.
    EXPECT_EQ(NumberToSignificantMarkup(2000000, 3), "2&.0&E6");
}

TEST(FindFraction, SimpleFractions) {
    MathWorkspace ws;
    double n, d;
    FindFraction(ws, 0.75, n, d);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(d, 4);
    FindFraction(ws, -2.0 / 3, n, d);
    EXPECT_EQ(n, -2);
    EXPECT_EQ(d, 3);
    FindFraction(ws, 5, n, d);
    EXPECT_EQ(n, 5);
    EXPECT_EQ(d, 1);
    FindFraction(ws, 2e6, n, d);
    EXPECT_EQ(n, 2e6);
    EXPECT_EQ(d, 1);
}

TEST(NumberToExactMarkup, FractionsRootsAndPi) {
    MathWorkspace ws;
    EXPECT_EQ(NumberToExactMarkup(ws, 0.5), "#COC(1#N)(2#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, -0.75), "-#COC(3#N)(4#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, kPi / 2), "#COC(&pi#N)(2#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, kPi), "&pi");
    EXPECT_EQ(NumberToExactMarkup(ws, std::sqrt(2.0)), "#SQR(2#SQR)");
    EXPECT_EQ(NumberToExactMarkup(ws, std::sqrt(2.0) / 2), "#COC(#SQR(2#SQR)#N)(2#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, std::sqrt(3.0) / 2), "#COC(#SQR(3#SQR)#N)(2#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, 7), "7");
    EXPECT_EQ(NumberToExactMarkup(ws, -7), "-7");
    EXPECT_EQ(NumberToExactMarkup(ws, 0), "0");
}

TEST(NumberToExactMarkup, NoFractionGivesFiveSignificantDigits) {
    MathWorkspace ws;
    EXPECT_EQ(NumberToExactMarkup(ws, -std::exp(1.0)), "-2&.7183");
    // A close fraction is found even for a long decimal.
    EXPECT_EQ(NumberToExactMarkup(ws, 0.123456789), "#COC(10#N)(81#COC)");
    EXPECT_EQ(NumberToExactMarkup(ws, std::exp(1.0)), "2&.7183");
}

TEST(FractionToMarkup, ReducedStackedFractions) {
    MathWorkspace ws;
    EXPECT_EQ(FractionToMarkup(ws, 2, 4), "#COC(1#N)(2#COC)");
    EXPECT_EQ(FractionToMarkup(ws, 3, -6), "  #COC(-1#N)(2#COC)");
    EXPECT_EQ(FractionToMarkup(ws, 6, 3), "2");
    EXPECT_EQ(FractionToMarkup(ws, 0, 5), "0");
    EXPECT_EQ(FractionToMarkup(ws, -8, 4), "-2");
}

TEST(RootFractionToMarkup, SimplifiesTheRoot) {
    MathWorkspace ws;
    EXPECT_EQ(RootFractionToMarkup(ws, 1, 2, 1), "#SQR(2#SQR)");
    EXPECT_EQ(RootFractionToMarkup(ws, 3, 2, 1), "3#SQR(2#SQR)");
    EXPECT_EQ(RootFractionToMarkup(ws, 1, 8, 2), "#SQR(2#SQR)");
    EXPECT_EQ(RootFractionToMarkup(ws, 2, 3, 6), "#COC(#SQR(3#SQR)#N)(3#COC)");
    EXPECT_EQ(RootFractionToMarkup(ws, -1, 5, 2), "-& #COC(#SQR(5#SQR)#N)(2#COC)");
    EXPECT_EQ(RootFractionToMarkup(ws, 3, 4, 2), "3");
    EXPECT_EQ(RootFractionToMarkup(ws, 0, 3, 2), "0");
}

TEST(DegreeMarkup, SecondsAndAngles) {
    EXPECT_EQ(SecondsToDegreeMarkup(3600), "1\u00B0& ");
    EXPECT_EQ(SecondsToDegreeMarkup(3661), "1\u00B0& 1'& 1\"");
    EXPECT_EQ(SecondsToDegreeMarkup(-7200 - 120), "-2\u00B0& 2'& ");
    EXPECT_EQ(AngleToDegreeMarkup(30), "30\u00B0");
    EXPECT_EQ(AngleToDegreeMarkup(30.5), "30\u00B0 30' 0\"");
    EXPECT_EQ(AngleToDegreeMarkup(10.2583333333), "10\u00B0 15' 30\"");
    EXPECT_EQ(AngleToDegreeMarkup(1.0001), "1\u00B0 0' 0&.36\"");
}

TEST(ComplexToMarkup, BinomialForm) {
    MathWorkspace ws;
    EXPECT_EQ(ComplexToMarkup(ws, 0, 1), "&+I& i&-I");
    EXPECT_EQ(ComplexToMarkup(ws, 3, -1), "3& -& &+I& i&-I");
    EXPECT_EQ(ComplexToMarkup(ws, 0, 0), "0");
    EXPECT_EQ(ComplexToMarkup(ws, 2, 3), "2& +& 3&+I& i&-I");
    EXPECT_EQ(ComplexToMarkup(ws, -2, 0), "-2");
    EXPECT_EQ(ComplexToMarkup(ws, 0, -4), "& -& 4&+I& i&-I");
}

TEST(ComplexPolarToMarkup, ModulusWithArgumentBelow) {
    MathWorkspace ws;
    EXPECT_EQ(ComplexPolarToMarkup(ws, 0, 2, 1), "2#SPB(L #T)(90\u00B0#SPB)");
    EXPECT_EQ(ComplexPolarToMarkup(ws, 1, 1, 1), "#SQR(2#SQR)#SPB(L #T)(45\u00B0#SPB)");
    EXPECT_EQ(ComplexPolarToMarkup(ws, -1, 0, 0), "1#SPB(L #T)(&pi rad#SPB)");
    EXPECT_EQ(ComplexPolarToMarkup(ws, 0, -3, 1), "3#SPB(L #T)(270\u00B0#SPB)");
}

TEST(DecimalText, LeadingZero) {
    EXPECT_EQ(DecimalText(0.5), "0.5");
    EXPECT_EQ(DecimalText(-0.5), "-0.5");
    EXPECT_EQ(DecimalText(12.5), "12.5");
    EXPECT_EQ(DecimalText(0), "0");
}
