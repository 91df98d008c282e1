#include <gtest/gtest.h>

#include <cmath>

#include "tests/typesetter/typesetter_test_util.h"

namespace {
// The shared fixture, drawing from the page's corner.
struct Fixture : ConstructFixture {
    void Draw(const std::string& text, double x = 0, double y = 0) { MeasureAndDraw(st, s, text, x, y); }
};
using Interpreter = Fixture;
constexpr char32_t kMinus = U'\u2212';
} // namespace

TEST_F(Interpreter, EmptyStringBox) {
    const LayoutBox b = Measure("");
    EXPECT_EQ(b.width, 0);
    EXPECT_EQ(b.lead, 0);
    EXPECT_EQ(b.over, 0);
    EXPECT_DOUBLE_EQ(b.axis, 0.574 * kH);
    EXPECT_DOUBLE_EQ(b.bottom, kH);
}

TEST_F(Interpreter, PlainTextWidthHasOneTwipBearingEachSide) {
    const LayoutBox b = Measure("ab c");
    EXPECT_DOUBLE_EQ(b.width, 4 * (0.5 * kEm + 2));
    EXPECT_EQ(b.over, 0);
    EXPECT_DOUBLE_EQ(b.bottom, kH);
    EXPECT_EQ(b.source, U"ab c");
}

TEST_F(Interpreter, OperatorsTakeShiftAndBearing) {
    // H = 276 is size class 2: "+" and the minus sign move 0.07 H, "=" 0.07 H.
    const LayoutBox b = Measure("+");
    EXPECT_DOUBLE_EQ(b.width, 0.5 * kEm + 2 * 0.04 * kH);
    Draw("a+b-c=d");
    ASSERT_EQ(s.texts.size(), 7u);
    EXPECT_EQ(s.texts[1].text, "+");
    EXPECT_NEAR(s.texts[1].y, 0.07f * kH, 1e-9);
    EXPECT_EQ(ToU32(s.texts[3].text), std::u32string(1, kMinus));
    EXPECT_NEAR(s.texts[3].y, 0.07f * kH, 1e-9);
    EXPECT_NEAR(s.texts[5].y, 0.07f * kH, 1e-9);
    // The bearing of "+" is 0.04 H on each side.
    EXPECT_NEAR(s.texts[1].x - (s.texts[0].x + 0.5 * kEm + 1), 0.04 * kH, 1e-9);
}

TEST_F(Interpreter, OperatorShiftBySizeClass) {
    s.SetFontSize(4); // H = 92: class 1
    Draw("-");
    EXPECT_NEAR(s.texts[0].y, 0.072f * 1.15 * 80, 1e-9); // the minus sign stands as "+" does
    s.SetFontSize(12);
    s.SetFontSize(20); // H = 460: class 3
    Draw("+");
    EXPECT_NEAR(s.texts[0].y, 0.072f * 1.15 * 400, 1e-9);
}

TEST_F(Interpreter, DigitsStayUprightInItalic) {
    Draw("&+I12x(y)&-I");
    ASSERT_EQ(s.texts.size(), 6u);
    EXPECT_FALSE(s.texts[0].italic);
    EXPECT_FALSE(s.texts[1].italic);
    EXPECT_TRUE(s.texts[2].italic);
    EXPECT_FALSE(s.texts[3].italic);
    EXPECT_TRUE(s.texts[4].italic);
    EXPECT_FALSE(s.texts[5].italic);
}

TEST_F(Interpreter, SubscriptIsSmallerLoweredAndUprightDigit) {
    Draw("&+Ia_2&-I");
    ASSERT_EQ(s.texts.size(), 2u);
    EXPECT_EQ(s.texts[1].text, "2");
    EXPECT_DOUBLE_EQ(s.texts[1].size, 12.0 * 8 / 12);
    EXPECT_FALSE(s.texts[1].italic);
    EXPECT_NEAR(s.texts[1].y, 1.15 * 8 * 20 / 1.4, 1e-9);
    EXPECT_DOUBLE_EQ(s.FontSize(), 12);
    const LayoutBox b = Measure("a_2");
    EXPECT_DOUBLE_EQ(b.width, 0.5 * kEm + 2 + 0.5 * 8 * 20);
    EXPECT_DOUBLE_EQ(b.bottom, 1.1 * kH);
}

TEST_F(Interpreter, SuperscriptIsSmallerAndNotMoved) {
    Draw("x^2");
    ASSERT_EQ(s.texts.size(), 2u);
    EXPECT_DOUBLE_EQ(s.texts[1].size, 8);
    EXPECT_EQ(s.texts[1].y, 0);
    const LayoutBox b = Measure("x^2");
    EXPECT_DOUBLE_EQ(b.bottom, kH);
}

TEST_F(Interpreter, DoubledScriptSignsAreLiteral) {
    Draw("a__2");
    EXPECT_EQ(s.Joined(), "a_2");
    for (const auto& t : s.texts) EXPECT_EQ(t.size, 12);
    Draw("x^^2");
    EXPECT_EQ(s.Joined(), "x^2");
    for (const auto& t : s.texts) EXPECT_EQ(t.size, 12);
}

TEST_F(Interpreter, EntityReturnsToTheFontAtEntry) {
    Draw("&FN=Arial:b&alfa c");
    ASSERT_EQ(s.texts.size(), 4u);
    EXPECT_EQ(s.texts[0].font, "Arial");
    EXPECT_EQ(s.texts[1].font, "Symbol");
    EXPECT_EQ(s.texts[2].font, "Times New Roman");
    // Out of the symbol font by way of the text font.
    bool courierBeforeReturn = false;
    for (std::size_t i = 1; i < s.fontNames.size(); ++i)
        if (s.fontNames[i - 1] == "Courier New" && s.fontNames[i] == "Times New Roman") courierBeforeReturn = true;
    EXPECT_TRUE(courierBeforeReturn);
}

TEST_F(Interpreter, EntityWidthHasNoBearing) {
    const LayoutBox b = Measure("&alfa");
    EXPECT_DOUBLE_EQ(b.width, 1.0 * kEm); // one wide character of the recording surface
}

TEST_F(Interpreter, ValueCodeWithoutColonEndsTheString) {
    Draw("ab&FS=14 cd");
    EXPECT_EQ(s.Joined(), "ab");
    EXPECT_EQ(s.FontSize(), 12);
    // The box of the measure pass is left as it was.
    st.BoxTable[1].width = 12345;
    MeasureString(st, s, "ab&FS=14 cd");
    EXPECT_EQ(st.BoxTable[1].width, 12345);
}

TEST_F(Interpreter, FontSizeChangeKeepsTheBaseline) {
    Draw("a&FS=24:b");
    ASSERT_EQ(s.texts.size(), 2u);
    EXPECT_DOUBLE_EQ(s.texts[1].size, 24);
    // Ascent 0.9 em: the top of the large letter stands higher by the difference.
    EXPECT_NEAR(s.texts[1].y + 0.9 * 480, s.texts[0].y + 0.9 * 240, 1e-9);
    s.SetFontSize(12);
    const LayoutBox b = Measure("a&FS=24:b");
    // The larger text reaches above the string's nominal top by the difference of ascents.
    EXPECT_NEAR(b.over, 0.9 * 240, 1e-9);
    EXPECT_NEAR(b.bottom, -0.9 * 240 + 1.15 * 480, 1e-9);
}

TEST_F(Interpreter, FontSizeScalesByZoom) {
    st.ZoomScale = 1.5;
    Draw("&FS=10:x");
    EXPECT_DOUBLE_EQ(s.texts[0].size, 15);
}

TEST_F(Interpreter, ColoursOnlyInTheDrawPass) {
    Draw("&FC=Rojo:a&FC=Negro:b");
    EXPECT_EQ(s.texts[0].color, Rgb(255, 0, 0));
    EXPECT_EQ(s.texts[1].color, 0u);
    st.FillColor = 7;
    MeasureString(st, s, "&BC=Azul:&FC=Azul:x");
    EXPECT_EQ(st.FillColor, 7u);
    EXPECT_EQ(s.ForeColor(), Rgb(0, 0, 0));
    MeasureString(st, s, "&LC=Azul:");
    EXPECT_EQ(st.LineColor, Rgb(0, 0, 255));
}

TEST_F(Interpreter, SwitchesSetTheFont) {
    Draw("&+Ba&-B&+Ub&-U&+Sc&-S");
    EXPECT_TRUE(s.texts[0].bold);
    EXPECT_FALSE(s.texts[1].bold);
    EXPECT_FALSE(s.FontUnderline());
    EXPECT_FALSE(s.FontStrikethru());
}

TEST_F(Interpreter, LoneHashAndAmpersandPrintNothing) {
    Draw("a#");
    EXPECT_EQ(s.Joined(), "a");
    Draw("a&");
    EXPECT_EQ(s.Joined(), "a");
    Draw("##&&");
    EXPECT_EQ(s.Joined(), "#&");
    Draw("#Xa&Yb");
    EXPECT_EQ(s.Joined(), "XaYb");
}

TEST_F(Interpreter, NonBreakingSpaceHasNoBearing) {
    EXPECT_DOUBLE_EQ(Measure("& ").width, 0.5 * kEm);
    Draw("a& b");
    EXPECT_EQ(s.Joined(), "a b");
}

TEST_F(Interpreter, SoftHyphenPrintsOnlyAtTheEnd) {
    Draw("ab&_cd");
    EXPECT_EQ(s.Joined(), "abcd");
    Draw("ab&_");
    EXPECT_EQ(s.Joined(), "ab-");
    // The measure pass counts it anyway.
    EXPECT_DOUBLE_EQ(Measure("ab&_cd").width, 4 * (0.5 * kEm + 2) + 0.5 * kEm);
}

TEST_F(Interpreter, PowerOfTen) {
    Draw("&+I5&E-3x");
    ASSERT_EQ(s.texts.size(), 4u);
    EXPECT_EQ(s.texts[1].text, "\u00B710");
    EXPECT_FALSE(s.texts[1].italic);
    EXPECT_EQ(s.texts[2].text, "\u22123");
    EXPECT_DOUBLE_EQ(s.texts[2].size, 8);
    EXPECT_EQ(s.texts[2].y, s.texts[1].y);
    EXPECT_TRUE(s.texts[3].italic);
    EXPECT_DOUBLE_EQ(s.texts[3].size, 12);
    Draw("&E+12");
    EXPECT_EQ(s.texts[1].text, "12");
    // Measure: "·10" (one wide, two narrow) plus the exponent at 8 points.
    EXPECT_DOUBLE_EQ(Measure("&E+12").width, 2.0 * kEm + 2 * 0.5 * 160);
}

TEST_F(Interpreter, DrawnSigns) {
    Draw("&=");
    ASSERT_EQ(s.strokes.size(), 2u);
    EXPECT_DOUBLE_EQ(s.strokes[0].x1, 20);
    EXPECT_DOUBLE_EQ(s.strokes[0].x2, 150);
    EXPECT_DOUBLE_EQ(s.strokes[0].y1, 0.351 * kH);
    EXPECT_DOUBLE_EQ(s.strokes[1].y1, 0.588 * kH);
    EXPECT_EQ(s.DrawWidth(), 1); // 0.05 H = 13.8 twips is less than a pixel
    Draw("&#");
    EXPECT_EQ(s.strokes.size(), 3u);
    Draw("&Q");
    ASSERT_EQ(s.strokes.size(), 4u);
    EXPECT_DOUBLE_EQ(s.strokes[1].x1, 240);
    EXPECT_DOUBLE_EQ(s.strokes[1].x2, 180);
    EXPECT_DOUBLE_EQ(s.CurrentX(), 4 * 0.5 * kEm);
    EXPECT_DOUBLE_EQ(Measure("&=").width, 3 * 0.5 * kEm);
}

TEST_F(Interpreter, TabSetsThePenFromTheTextWidth) {
    st.PageWidth = 10000;
    st.MarginLeft = 1000;
    st.MarginRight = 1000;
    Draw("ab&SP=50:c", 1000, 0);
    EXPECT_DOUBLE_EQ(s.texts[2].x, 1000 + 4000 + 1);
    // What stands left of the tab no longer counts.
    EXPECT_DOUBLE_EQ(Measure("abcdef&SP=10:c").width, 800 + 0.5 * kEm + 2);
}

TEST_F(Interpreter, MarkWritesItsTop) {
    st.MarkCount = 2;
    Draw("ab#MARK=002cd", 0, 500);
    EXPECT_EQ(s.Joined(), "abcd");
    EXPECT_DOUBLE_EQ(st.MarkTop[1], 500);
    EXPECT_DOUBLE_EQ(st.MarkBottom[0], 500 - kH / 8);
}

TEST_F(Interpreter, UnbalancedConstructShowsTheErrorInRed) {
    Draw("#SQR(x");
    EXPECT_NE(s.Joined().find("*ERROR*"), std::string::npos);
    EXPECT_NE(s.Joined().find("#SQR("), std::string::npos);
    bool red = false;
    for (const auto& t : s.texts)
        if (t.text == "*" && t.color == Rgb(255, 0, 0)) red = true;
    EXPECT_TRUE(red);
}

TEST(ExtractBalancedTest, Nesting) {
    EXPECT_EQ(ExtractBalanced(U"#SQR(a#SQR(b#SQR)c#SQR)d", U"#SQR(", U"#SQR)"), U"#SQR(a#SQR(b#SQR)c#SQR)");
    EXPECT_EQ(ExtractBalanced(U"x#SQR(a#SQR)", U"#SQR(", U"#SQR)"), U"#SQR(a#SQR)");
    EXPECT_EQ(ExtractBalanced(U"#SQR(a", U"#SQR(", U"#SQR)"), BalanceErrorText(U"#SQR("));
    EXPECT_EQ(ExtractBalanced(U"a#SQR)", U"#SQR(", U"#SQR)"), BalanceErrorText(U"#SQR("));
    EXPECT_EQ(ExtractBalanced(U"#SQR(#SQR(a#SQR)", U"#SQR(", U"#SQR)"), BalanceErrorText(U"#SQR("));
    EXPECT_EQ(BalanceErrorText(U"#SQR("), U"&FC=Rojo:*ERROR*&FC=Negro:#SQR(");
    // A two-part form: the closer needn't match the opener.
    EXPECT_EQ(ExtractBalanced(U"#COC(1#N)(2#COC)", U"#COC(", U"#N)"), U"#COC(1#N)");
}

namespace {
// The search as written first, on a copy of the rest of the text: the reference for the
// search that works in place.
std::u32string ReferenceBalanced(const std::u32string& text, const std::u32string& open, const std::u32string& close) {
    const std::size_t first = text.find(open);
    if (first == std::u32string::npos || text.find(close) == std::u32string::npos) return BalanceErrorText(open);
    int depth = 1;
    std::size_t pos = first + open.size();
    while (true) {
        const std::size_t c = text.find(close, pos);
        if (c == std::u32string::npos) return BalanceErrorText(open);
        const std::size_t o = text.find(open, pos);
        if (o != std::u32string::npos && o < c) {
            depth += 1;
            pos = o + open.size();
            continue;
        }
        if (--depth == 0) return text.substr(first, c + close.size() - first);
        pos = c + close.size();
    }
}
} // namespace

TEST(ExtractBalancedTest, InPlaceSearchAgreesWithTheSearchOnACopy) {
    // Random texts of tags, halves of tags and letters, searched from every position, for
    // pairs whose closer is a different tag and pairs that share a prefix.
    const std::pair<std::u32string, std::u32string> pairs[] = {
        {U"#COC(", U"#COC)"}, {U"#COC(", U"#N)"}, {U"(", U")"}, {U"#TST(", U"#TS)("}, {U"ab", U"ba"}};
    const std::u32string pieces[] = {U"#COC(", U"#COC)", U"#N)", U"(", U")", U"#TS", U"#TST(", U"#TS)(", U"a", U"b", U"#"};
    unsigned state = 12345;
    for (int round = 0; round < 3000; ++round) {
        std::u32string text;
        const int n = 1 + static_cast<int>(state % 12);
        for (int i = 0; i < n; ++i) {
            state = state * 1103515245u + 12345u;
            text += pieces[(state >> 16) % std::size(pieces)];
        }
        for (const auto& [open, close] : pairs) {
            for (std::size_t from = 0; from <= text.size(); ++from) {
                ASSERT_EQ(ExtractBalancedAt(text, from, open, close), ReferenceBalanced(text.substr(from), open, close))
                    << std::string(text.begin(), text.end()) << " from " << from;
            }
        }
    }
}

TEST(ParseFillListTest, KindWidthHeight) {
    std::u32string kind;
    double w = -1, h = -1;
    ParseFillList(U" REC ,12.5,7", kind, w, h);
    EXPECT_EQ(kind, U"REC");
    EXPECT_DOUBLE_EQ(w, 12.5);
    EXPECT_DOUBLE_EQ(h, 7);
    ParseFillList(U"REC,0", kind, w, h);
    EXPECT_EQ(w, 0);
    EXPECT_EQ(h, 0);
}

TEST(ExpandLocaleCodesTest, AllSix) {
    TypesetterState st;
    EXPECT_EQ(ExpandLocaleCodes(st, U"3&.5&,&(a&)&FA&DT"), U"3.5,(a)f&sigma");
    st.numberTexts.decimalSeparator = ",";
    EXPECT_EQ(ExpandLocaleCodes(st, U"3&.5"), U"3,5");
    // The texts are UTF-8; the line gets their characters.
    st.numberTexts.functionName = "\u0192";
    EXPECT_EQ(ExpandLocaleCodes(st, U"&FA(x)"), U"\u0192(x)");
}

TEST_F(Interpreter, MeasureAndDrawTakeTheSameBoxNumbers) {
    const std::string text = "a#COC(1#N)(2#COC)b#SQR(x#SQR)#POT(2#PB)(3#POT)#NES(()#RWS(C#RW1(1#RW1)#RW2(2#RW2)#RWS)#NES)";
    MeasureString(st, s, text);
    const int measured = st.BoxCounter;
    DrawString(st, s, text);
    EXPECT_EQ(st.BoxCounter, measured);
    EXPECT_GT(measured, 1);
}

TEST(LeadingNumberTest, DecimalWithAPointWhateverTheLocale) {
    EXPECT_DOUBLE_EQ(LeadingNumber(U"12.5:"), 12.5);
    EXPECT_DOUBLE_EQ(LeadingNumber(U" -3.25mm"), -3.25);
    EXPECT_DOUBLE_EQ(LeadingNumber(U"+7"), 7);
    EXPECT_DOUBLE_EQ(LeadingNumber(U".5"), 0.5);
    EXPECT_DOUBLE_EQ(LeadingNumber(U"007"), 7);
    EXPECT_DOUBLE_EQ(LeadingNumber(U"1,5"), 1);
    EXPECT_DOUBLE_EQ(LeadingNumber(U"abc"), 0);
    EXPECT_DOUBLE_EQ(LeadingNumber(U""), 0);
    EXPECT_DOUBLE_EQ(LeadingNumber(U"inf"), 0);
}

TEST_F(Interpreter, SeveralSizeChangesKeepTheLargestInk) {
    // 12 points, then 24, then 6: the box holds the 24-point text, above and below.
    const LayoutBox b = Measure("a&FS=24:b&FS=6:c");
    const double up24 = 0.9 * 480 - 0.9 * 240; // above the 12-point top
    EXPECT_NEAR(b.over, up24, 1e-9);
    EXPECT_NEAR(b.bottom, -up24 + 1.15 * 480, 1e-9);
    // The axis is that of the 6-point text, in the frame of the string's top.
    EXPECT_NEAR(b.axis, 0.9 * 240 - 0.9 * 120 + 0.574 * 1.15 * 120, 1e-9);
}
