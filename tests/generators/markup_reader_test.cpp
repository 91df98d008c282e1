#include <cmath>
#include <complex>
#include <string>

#include <gtest/gtest.h>

#include "support/generator_sweep.h"
#include "support/markup_reader.h"

namespace {
using Complex = std::complex<double>;

double Real(const std::string& text, double x = 0) { return ReadMarkupReal(text, {{'x', x}}); }
}  // namespace

TEST(MarkupReader, Numbers) {
    EXPECT_EQ(Real("42"), 42);
    EXPECT_EQ(Real("1_ 234_ 567"), 1234567);
    EXPECT_EQ(Real("2&.5"), 2.5);
    EXPECT_EQ(Real("&.25"), 0.25);
    EXPECT_DOUBLE_EQ(Real("0&.#ARC(3#ARC)"), 1.0 / 3);
    EXPECT_DOUBLE_EQ(Real("1&.2#ARC(45#ARC)"), 1.2 + 45.0 / 99 / 10);
    EXPECT_DOUBLE_EQ(Real("2&.5&E-3"), 0.0025);
    EXPECT_DOUBLE_EQ(Real("4&E5"), 400000);
}

TEST(MarkupReader, SumsProductsAndQuotients) {
    EXPECT_EQ(Real("-3 + 5 - 1"), 1);
    EXPECT_EQ(Real("2& \u00B7& 3 \u00D7 4"), 24);
    EXPECT_EQ(Real("12 : 4 : 3"), 1);
    EXPECT_EQ(Real("9/3"), 3);
    EXPECT_EQ(Real("2 + 3 \u00D7 4"), 14);
    EXPECT_EQ(Real("3x", 5), 15);
    EXPECT_EQ(Real("2(x + 1)", 4), 10);
    EXPECT_EQ(ReadMarkupReal("ab - c", {{'a', 2}, {'b', 3}, {'c', 1}}), 5);
}

TEST(MarkupReader, BracketsBarsAndDelimiters) {
    EXPECT_EQ(Real("[2 - (3 - 5)] \u00B7 2"), 8);
    EXPECT_EQ(Real("|x - 5| + 1", 2), 4);
    EXPECT_EQ(Real("2|x|", -3), 6);
    EXPECT_EQ(Real("#NES(()2 + 1#NES)^2"), 9);
    EXPECT_EQ(Real("#NES([]4 - 1#NES)"), 3);
    EXPECT_EQ(Real("#NES(||1 - x#NES)", 4), 3);
}

TEST(MarkupReader, FractionsRootsAndPowers) {
    EXPECT_DOUBLE_EQ(Real("#COC(-3#N)(4#COC)"), -0.75);
    EXPECT_DOUBLE_EQ(Real("#COC(x + 1#N)(x - 1#COC)", 3), 2);
    EXPECT_DOUBLE_EQ(Real("3#SQR(5#SQR)"), 3 * std::sqrt(5.0));
    EXPECT_DOUBLE_EQ(Real("#RAD(#RI(3#RI)27#RAD)"), 3);
    EXPECT_DOUBLE_EQ(Real("#RAD(#RI(3 #RI)-8#RAD)"), -2);
    EXPECT_EQ(Real("x^2 - 2^3", 3), 1);
    EXPECT_EQ(Real("&+Ix&-I^2", 4), 16);
    EXPECT_EQ(Real("-x^2", 3), -9);
    EXPECT_DOUBLE_EQ(Real("#POT(8#PB)(#COC(2#N)(3#COC)#POT)"), 4);
    EXPECT_DOUBLE_EQ(Real("#EXP(2x#EXP)", 0.5), std::exp(1.0));
}

TEST(MarkupReader, ConstantsAndFunctions) {
    EXPECT_DOUBLE_EQ(Real("2&.5&pi"), 2.5 * kPi);
    EXPECT_DOUBLE_EQ(Real("\u03C0"), kPi);
    EXPECT_DOUBLE_EQ(Real("e^2"), std::exp(2.0));
    EXPECT_DOUBLE_EQ(Real("sin 3x", 0.2), std::sin(0.6));
    EXPECT_DOUBLE_EQ(Real("sin x cos x", 0.3), std::sin(0.3) * std::cos(0.3));
    EXPECT_DOUBLE_EQ(Real("cos^2 x + 1", 0.3), std::cos(0.3) * std::cos(0.3) + 1);
    EXPECT_DOUBLE_EQ(Real("sin^2^ x", 0.3), std::sin(0.3) * std::sin(0.3));
    EXPECT_DOUBLE_EQ(Real("tan (2x - 1)", 0.7), std::tan(0.4));
    EXPECT_DOUBLE_EQ(Real("sin x (3 - cos x)", 0.7), std::sin(0.7) * (3 - std::cos(0.7)));
    EXPECT_DOUBLE_EQ(Real("ln 2&pi x", 0.7), std::log(2 * kPi * 0.7));
    EXPECT_DOUBLE_EQ(Real("sin x^2", 0.7), std::sin(0.49));
    EXPECT_DOUBLE_EQ(Real("sin x #EXP(x#EXP)", 0.7), std::sin(0.7) * std::exp(0.7));
    EXPECT_DOUBLE_EQ(Real("cotan x + sec x + cosec x", 0.7),
                     1 / std::tan(0.7) + 1 / std::cos(0.7) + 1 / std::sin(0.7));
    EXPECT_DOUBLE_EQ(Real("ln|x + 1|", -3), std::log(2.0));
    EXPECT_DOUBLE_EQ(Real("log 1000"), 3);
    EXPECT_DOUBLE_EQ(Real("log_2 8"), 3);
    EXPECT_DOUBLE_EQ(Real("arcsin x + arccos x", 0.3), kPi / 2);
    EXPECT_DOUBLE_EQ(Real("arctan 1"), kPi / 4);
}

TEST(MarkupReader, Degrees) {
    EXPECT_DOUBLE_EQ(Real("sin 30\u00B0"), std::sin(kPi / 6));
    EXPECT_DOUBLE_EQ(Real("90\u00B0"), kPi / 2);
}

TEST(MarkupReader, SwitchesAndSpacingCarryNoValue) {
    EXPECT_EQ(Real("&+I&+Bx&-B&-I& +& 1&LF", 2), 3);
    EXPECT_EQ(Real("&SP=10:2_ x", 4), 8);
}

TEST(MarkupReader, ComplexNumbers) {
    EXPECT_EQ(ReadMarkupComplex("3 - 2i"), Complex(3, -2));
    EXPECT_EQ(ReadMarkupComplex("(1 + i)^2"), Complex(0, 2));
    EXPECT_EQ(ReadMarkupComplex("#COC(2#N)(i#COC)"), Complex(0, -2));
    EXPECT_EQ(ReadMarkupComplex("#SQR(-4#SQR)"), Complex(0, 2));
    EXPECT_TRUE(NearlyEqual(ReadMarkupComplex("2#SPB(L #T)(90\u00B0#SPB)"), Complex(0, 2)));
    EXPECT_TRUE(NearlyEqual(ReadMarkupComplex("#SQR(2#SQR)#SPB(L #T)(#COC(&pi#N)(4#COC) rad#SPB)"), Complex(1, 1)));
    EXPECT_EQ(ReadMarkupComplex("x^2 + 1", {{'x', Complex(0, 1)}}), Complex(0, 0));
}

TEST(MarkupReader, UndefinedValuesAreNaN) {
    EXPECT_TRUE(std::isnan(Real("#COC(1#N)(x#COC)", 0)));
    EXPECT_TRUE(std::isnan(Real("#SQR(x#SQR)", -1)));
    EXPECT_TRUE(std::isnan(Real("ln x", 0)));
    EXPECT_TRUE(std::isnan(Real("log_2 x", -4)));
    EXPECT_TRUE(std::isnan(Real("arcsin x", 1.5)));
    EXPECT_TRUE(std::isnan(Real("#RAD(#RI(4#RI)x#RAD)", -16)));
    EXPECT_TRUE(std::isnan(Real("4 : (2 - 2)")));
}

TEST(MarkupReader, RefusesWhatItCannotRead) {
    for (const char* text : {"", "2 +", "(1 + 2", "#COC(1#N)(2", "x^a", "x^12", "2 = 2", "3&pm1", "#NES({X1#NES)",
                             "#ABC(1#ABC)", "2*3", "1.5", "&.", "0&.#ARC(#ARC)", "|x| |", "#SPB(X#T)(1#SPB)",
                             "x &Q", "2&E", "2 3", "x 2", "2#COC(1#N)(3#COC)"}) {
        EXPECT_THROW(Real(text), UnreadableMarkup) << text;
    }
    EXPECT_THROW(Real("y"), UnreadableMarkup);
    EXPECT_THROW(Real("2i"), UnreadableMarkup);
    EXPECT_THROW(Real("2#SPB(L #T)(90\u00B0#SPB)"), UnreadableMarkup);
}

TEST(MarkupReader, CalculusFormulas) {
    EXPECT_DOUBLE_EQ(Real("3&+Ix&-I^2& -& 2&+Ix&-I& +& 1", 2), 9);
    EXPECT_DOUBLE_EQ(Real("#COC(1#N)(2#COC)&-Iln|&+Ix - 4|", 6), 0.5 * std::log(2));
    EXPECT_DOUBLE_EQ(Real("-&+Ix&-I_ cos_ &+Ix&-I& +& sin_ &+Ix&-I", 1), -std::cos(1) + std::sin(1));
    EXPECT_DOUBLE_EQ(Real("#EXP( 2&+Ix&-I#EXP)_ (&+Ix&-I - 1)", 0.5), std::exp(1.0) * -0.5);
    EXPECT_DOUBLE_EQ(Real("#SQR(1 - &+Ix&-I^2#SQR)", 0.6), 0.8);
    EXPECT_DOUBLE_EQ(Real("#RAD(#RI(3#RI)&+Ix&-I^2#RAD)", 8), 4);
    EXPECT_DOUBLE_EQ(Real("#POT(2#PB)(_ &+Ix&-I#POT)", 3), 8);
    EXPECT_DOUBLE_EQ(Real("sin^2 &+Ix&-I cos &+Ix&-I", 0.3), std::pow(std::sin(0.3), 2) * std::cos(0.3));
    EXPECT_DOUBLE_EQ(Real("&-Iarctan&+I #COC(x + 6#N)(7#COC)", 1), std::atan(1));
    EXPECT_DOUBLE_EQ(Real("#NES(()&+Ix&-I + 1#NES)^3", 1), 8);
    EXPECT_DOUBLE_EQ(Real("2&.5&pi", 0), 2.5 * 3.14159265358979323846);
    EXPECT_THROW(Real("#COC(1#N)(x", 1), UnreadableMarkup);
}

TEST(LetteredItems, TextsAfterTheMarksWithoutTheLayout) {
    const std::string text = "Head&LF&SP=5:&+Ba)&-B 1 + 2&SP=50:&+Bb)&-B &+Ix&-I&LF&LF&SP=5:&-I&+Bc)&-B 3";
    const auto items = LetteredItems(text);
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0], "1 + 2");
    EXPECT_EQ(items[1], "&+Ix&-I");
    EXPECT_EQ(items[2], "3");
    EXPECT_EQ(LetteredItems("&+Ba)&-B  x&+Bb)&-B  y", ")&-B  ").size(), 2u);
}
