#include <gtest/gtest.h>

#include "mathservices/utf8_text.h"

TEST(Utf8Text, UpperTouchesOnlyAsciiLetters) {
    EXPECT_EQ(Upper("kvol_math_nrp.col"), "KVOL_MATH_NRP.COL");
    EXPECT_EQ(Upper("caf\u00E9 1+x"), "CAF\u00E9 1+X");
    EXPECT_EQ(Upper(""), "");
}

TEST(Utf8Text, LeadingNumberPassesOverBlanksInsideTheNumber) {
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks("12abc"), 12);
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks("abc"), 0);
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks(" 1 2.5x"), 12.5);
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks("- 3"), -3);
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks("+7.25.3"), 7.25);
    // No exponent: "1E5" is 1.
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks("1E5"), 1);
    EXPECT_DOUBLE_EQ(LeadingNumberSkippingBlanks(""), 0);
}

TEST(Utf8Text, ZeroFilledKeepsTheRightmostCharacters) {
    EXPECT_EQ(ZeroFilled(7, 3), "007");
    EXPECT_EQ(ZeroFilled(903, 3), "903");
    EXPECT_EQ(ZeroFilled(12345, 4), "2345");
    EXPECT_EQ(ZeroFilled(0, 2), "00");
}
