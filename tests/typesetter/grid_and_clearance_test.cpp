#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/typesetter/typesetter_test_util.h"

// Matrices as grids, delimiters around every row, and the clearances between the parts of
// a formula.
namespace {
struct Grid : ConstructFixture {
    std::vector<const RecordingSurface::Text*> All(const std::string& t) const {
        std::vector<const RecordingSurface::Text*> out;
        for (const auto& x : s.texts)
            if (x.text == t) out.push_back(&x);
        return out;
    }
    double Width(const RecordingSurface::Text& t) {
        const double size = s.FontSize();
        s.SetFontSize(t.size);
        const double w = s.TextWidth(t.text);
        s.SetFontSize(size);
        return w;
    }
    // The vertical reach of all strokes, and of all text (each text as high as its line).
    void StrokeSpan(double& top, double& bottom) const {
        top = 1e18;
        bottom = -1e18;
        for (const auto& k : s.strokes) {
            top = std::min({top, k.y1, k.y2});
            bottom = std::max({bottom, k.y1, k.y2});
        }
    }
    void TextSpan(double& top, double& bottom) const {
        top = 1e18;
        bottom = -1e18;
        for (const auto& t : s.texts) {
            top = std::min(top, t.y);
            bottom = std::max(bottom, t.y + 1.15 * 20 * t.size);
        }
    }
    // Horizontal strokes (fraction rules, root bars).
    std::vector<RecordingSurface::Stroke> Horizontal() const {
        std::vector<RecordingSurface::Stroke> out;
        for (const auto& k : s.strokes)
            if (k.y1 == k.y2 && k.x1 != k.x2) out.push_back(k);
        return out;
    }
};
} // namespace

TEST_F(Grid, CellsOfAColumnShareTheirCentre) {
    Draw("#NES(()#RWS(C#RW1(1&|-22 #RW1)#RW2(333&|4 #RW2)#RWS)#NES)");
    const auto* one = Find("1");
    const auto* threes = Find("3");
    ASSERT_TRUE(one && threes);
    const auto twos = All("2");
    ASSERT_EQ(twos.size(), 2u);
    const auto* four = Find("4");
    ASSERT_TRUE(four);
    // Column 1: "1" is centred over "333".
    const double threeLeft = All("3").front()->x, threeRight = All("3").back()->x + Width(*All("3").back());
    EXPECT_NEAR(one->x + Width(*one) / 2, (threeLeft + threeRight) / 2, 1.5);
    // Column 2: "4" is centred under "-22", and the whole column stands right of column 1.
    const auto* minus = Find("\u2212");
    ASSERT_TRUE(minus);
    // The cell's ink: the minus sign carries its operator bearing, a digit one twip.
    const double left2 = minus->x - 0.04 * kH, right2 = twos.back()->x + Width(*twos.back()) + 1;
    EXPECT_NEAR(four->x + Width(*four) / 2, (left2 + right2) / 2, 1.5);
    EXPECT_GT(left2, threeRight + 0.5 * kH);
    // Rows: the second below the first.
    EXPECT_GT(four->y, twos.front()->y + kH * 0.9);
}

TEST_F(Grid, RightAlignedColumnsEndTogether) {
    Draw("#RWS(R#RW1(1&|22#RW1)#RW2(333&|4#RW2)#RWS)");
    const auto* four = Find("4");
    const auto* lastTwo = All("2").back();
    EXPECT_NEAR(four->x + Width(*four), lastTwo->x + Width(*lastTwo), 1.5);
    const auto* one = Find("1");
    const auto* lastThree = All("3").back();
    EXPECT_NEAR(one->x + Width(*one), lastThree->x + Width(*lastThree), 1.5);
}

TEST_F(Grid, RowsWithoutCellSeparatorsStayOneColumn) {
    // A row without "&|", entries parted by spaces: a single centred column.
    Draw("#RWS(C#RW1(a#RW1)#RW2(bbb#RW2)#RWS)");
    const auto bs = All("b");
    ASSERT_EQ(bs.size(), 3u);
    EXPECT_NEAR(Find("a")->x, bs[1]->x, 1e-9);
}

TEST_F(Grid, SeparatorInsideANestedConstructBelongsToIt) {
    // The inner matrix has two columns; the outer row has two cells: the inner matrix and c.
    Draw("#RWS(L#RW1(#NES(()#RWS(C#RW1(a&|b#RW1)#RWS)#NES)&|c#RW1)#RW2(d&|e#RW2)#RWS)");
    const auto* a = Find("a");
    const auto* b = Find("b");
    const auto* c = Find("c");
    const auto* d = Find("d");
    const auto* e = Find("e");
    ASSERT_TRUE(a && b && c && d && e);
    EXPECT_GT(b->x, a->x + 0.5 * kEm);
    EXPECT_NEAR(c->x, e->x, 1e-6); // left-aligned in the second column
    EXPECT_GT(c->x, b->x);
}

TEST_F(Grid, SeparatorOutsideAGridIsASpace) {
    EXPECT_DOUBLE_EQ(Measure("a&|b").width, Measure("a& b").width);
    Draw("a&|b");
    EXPECT_EQ(s.Joined(), "a b");
}

TEST_F(Grid, ParenthesesCoverEveryRowWhenTheFirstHoldsAFraction) {
    for (const char* text : {"#NES(()#RWS(C#RW1(#COC(1#N)(4#COC) 2#RW1)#RW2(3 4#RW2)#RWS)#NES)",
                             "#NES(()#RWS(C#RW1(#COC(1#N)(4#COC)&|2#RW1)#RW2(3&|4#RW2)#RWS)#NES)",
                             "#NES(()#RWS(C#RW1(1&|2#RW1)#RW2(3&|#COC(1#N)(4#COC)#RW2)#RWS)#NES)"}) {
        Draw(text);
        double strokeTop, strokeBottom, textTop, textBottom;
        StrokeSpan(strokeTop, strokeBottom);
        // Only the parentheses: leave out the fraction rule.
        strokeTop = 1e18;
        strokeBottom = -1e18;
        for (const auto& k : s.strokes) {
            if (k.y1 == k.y2) continue;
            strokeTop = std::min({strokeTop, k.y1, k.y2});
            strokeBottom = std::max({strokeBottom, k.y1, k.y2});
        }
        TextSpan(textTop, textBottom);
        EXPECT_LE(strokeTop, textTop) << text;
        EXPECT_GE(strokeBottom, textBottom - 0.25 * kH) << text; // the last line's descent is empty
        // The box that the line reserves holds the whole matrix.
        const LayoutBox line = Measure(text);
        EXPECT_LE(1000 - line.over, strokeTop + 1) << text;
        EXPECT_GE(1000 + line.bottom, strokeBottom - 1) << text;
    }
}

TEST_F(Grid, FractionsOfAColumnStandOnTheirRowsAxis) {
    Draw("#RWS(C#RW1(#COC(1#N)(2#COC)&|5#RW1)#RWS)");
    const auto rules = Horizontal();
    ASSERT_EQ(rules.size(), 1u);
    const auto* five = Find("5");
    ASSERT_TRUE(five);
    // The plain cell's axis is the rule's height.
    EXPECT_NEAR(five->y + 0.574 * kH, rules[0].y1, 1e-6);
}

TEST_F(Grid, GridBoxIsAsWideAsItsColumns) {
    const LayoutBox line = Measure("#RWS(C#RW1(1&|2&|3#RW1)#RWS)");
    const double cell = 0.5 * kEm + 2;
    EXPECT_NEAR(line.width, 3 * cell + 2 * 0.8 * kH, 1e-6);
}

namespace {
struct Clearance : Grid {};
} // namespace

TEST_F(Clearance, RootInADenominatorStandsClearOfTheRule) {
    Draw("#COC(1#N)(#SQR(2#SQR)#COC)");
    auto rules = Horizontal();
    ASSERT_GE(rules.size(), 2u);
    std::sort(rules.begin(), rules.end(), [](const auto& a, const auto& b) { return a.y1 < b.y1; });
    // The fraction rule lies above the root's bar, a clear gap between them.
    const double rule = rules[0].y1, bar = rules[1].y1;
    const double ruleHalf = std::max(0.04 * kH, 15.0) / 2, barHalf = std::max(0.0323 * kH, 15.0) / 2;
    EXPECT_GE((bar - barHalf) - (rule + ruleHalf), 0.1 * kH);
}

TEST_F(Clearance, PlainFractionsKeepTheirGaps) {
    // Parts that stay inside their lines of text keep the standard gaps.
    const LayoutBox b = Measure("#COC(1#N)(2#COC)");
    (void)b;
    const LayoutBox& frac = st.BoxTable[2];
    const double gap = std::max(0.0354 * kH, 15.0), rule = std::max(0.04 * kH, 15.0);
    EXPECT_NEAR(frac.axis, gap + kH + rule / 2, 1e-9);
    EXPECT_NEAR(frac.bottom, gap + kH + rule + gap + kH, 1e-9);
}

TEST_F(Clearance, RootFootInANumeratorStandsClearOfTheRule) {
    Measure("#COC(#SQR(2#SQR)#N)(3#COC)");
    const LayoutBox frac = st.BoxTable[2];
    const LayoutBox root = st.BoxTable[4];
    // The rule's upper edge lies a clear gap below the root's foot.
    const double rule = std::max(0.04 * kH, 15.0);
    EXPECT_GE(frac.axis - rule / 2 - (root.bottom + root.over - root.over), 0.1 * kH);
}

TEST_F(Clearance, RootIndexKeepsClearOfAParenthesisBeforeIt) {
    Draw("(#RAD(#RI(3#RI)x#RAD)");
    const auto* paren = Find("(");
    const auto* three = Find("3");
    ASSERT_TRUE(paren && three);
    EXPECT_GE(three->x - (paren->x + Width(*paren)), 0.08 * kH);
    // And the root's hook too.
    double left = 1e18;
    for (const auto& k : s.strokes) left = std::min({left, k.x1, k.x2});
    EXPECT_GT(left, paren->x + Width(*paren));
}

TEST_F(Clearance, ClosingParenthesisClearsAnItalicLetter) {
    Draw("(&+Ix&-I)");
    const auto* open = Find("(");
    const auto* x = Find("x");
    const auto* close = Find(")");
    ASSERT_TRUE(open && x && close);
    // Upright x: one twip of bearing on either side of each character.
    const double uprightGap = 2;
    EXPECT_NEAR(close->x - (x->x + Width(*x)), uprightGap + 0.06 * kH, 1e-9);
    EXPECT_NEAR(x->x - (open->x + Width(*open)), uprightGap + 0.03 * kH, 1e-9);
    // The measure makes the same room.
    EXPECT_NEAR(Measure("(&+Ix&-I)").width, Measure("(x)").width + 0.09 * kH, 1e-9);
    // Upright letters keep the plain spacing.
    Draw("(x)");
    EXPECT_NEAR(Find(")")->x - (Find("x")->x + Width(*Find("x"))), uprightGap, 1e-9);
}

TEST_F(Clearance, ThirdLevelExponentIsSmallerThanTheSecond) {
    Draw("#POT(a#PB)(#POT(b#PB)(#POT(c#PB)(d#POT)#POT)#POT)");
    const auto* b = Find("b");
    const auto* c = Find("c");
    const auto* d = Find("d");
    ASSERT_TRUE(b && c && d);
    EXPECT_LT(c->size, b->size);
    EXPECT_LT(d->size, c->size);
    EXPECT_NEAR(d->size, c->size * 6 / 8, 1e-9);
}

TEST_F(Clearance, EveryMinusIsTheTrueMinusSign) {
    Draw("-3 - x&E-5 #POT(2#PB)(-1#POT)");
    int minus = 0;
    for (const auto& t : s.texts) {
        EXPECT_EQ(t.text.find("\u2013"), std::string::npos) << t.text;
        EXPECT_EQ(t.text.find('-'), std::string::npos) << t.text;
        if (t.text.find("\u2212") != std::string::npos) ++minus;
    }
    EXPECT_EQ(minus, 4);
    // Minus and plus stand at one height.
    Draw("a+b-c");
    EXPECT_DOUBLE_EQ(s.texts[1].y, s.texts[3].y);
    // A dash inside a word of upright text is a hyphen, not a minus.
    Draw("two non-parallel sides");
    int hyphens = 0;
    for (const auto& t : s.texts) {
        EXPECT_EQ(t.text.find("\u2212"), std::string::npos) << t.text;
        if (t.text.find("\u2010") != std::string::npos) ++hyphens;
    }
    EXPECT_EQ(hyphens, 1);
}

TEST_F(Clearance, SignsStandUprightAndGreekLettersFollowTheText) {
    Draw("&+Ix &perte &alfa &union&-I");
    const auto* element = Find("\u2208");
    const auto* alpha = Find("\u03B1");
    const auto* cup = Find("\u222A");
    ASSERT_TRUE(element && alpha && cup);
    EXPECT_FALSE(element->italic);
    EXPECT_FALSE(cup->italic);
    EXPECT_TRUE(alpha->italic);
    EXPECT_TRUE(Find("x")->italic);
    // Italic is back on after the sign.
    Draw("&+I&perte x");
    EXPECT_TRUE(Find("x")->italic);
}

TEST_F(Grid, RowsOfFractionsKeepRoomBetweenThem) {
    for (const char* text : {"#RWS(C#RW1(#COC(1#N)(2#COC)&|3#RW1)#RW2(#COC(4#N)(5#COC)&|6#RW2)#RWS)",
                             "#RWS(C#RW1(#COC(1#N)(2#COC)#RW1)#RW2(#COC(4#N)(5#COC)#RW2)#RWS)"}) {
        Draw(text);
        const auto* two = Find("2");
        const auto* four = Find("4");
        ASSERT_TRUE(two && four) << text;
        // From the bottom of the first denominator's line to the top of the next numerator's.
        EXPECT_GE(four->y - (two->y + kH), 0.15 * kH - 1e-9) << text;
        // Plain rows keep the small gap.
        Draw("#RWS(C#RW1(1&|2#RW1)#RW2(3&|4#RW2)#RWS)");
        EXPECT_NEAR(Find("3")->y - (Find("1")->y + kH), 0.0354 * kH, 1e-9);
    }
}
