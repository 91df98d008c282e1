#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/typesetter/typesetter_test_util.h"
#include "typesetter/construct_frame.h"
#include "typesetter/constructs.h"
#include "typesetter/layout.h"

// The fixture is shared with the other construct tests.
struct Constructs : ConstructFixture {};

TEST_F(Constructs, FractionBoxFollowsTheFormulas) {
    s.SetFontSize(36); // H = 828: no metric is clamped
    const double h = 1.15 * 720;
    const LayoutBox b = Measure("#COC(ab#N)(c#COC)");
    const LayoutBox& frac = st.BoxTable[2];
    const double rule = 0.04 * h, gap = 0.0354 * h, overhang = 0.09 * h;
    const double upperWidth = 2 * (0.5 * 720 + 2);
    EXPECT_NEAR(frac.width, 2 * overhang + upperWidth, 1e-9);
    EXPECT_NEAR(frac.over, 0, 1e-9);
    EXPECT_NEAR(frac.axis, gap + h + rule / 2, 1e-9);
    EXPECT_NEAR(frac.bottom, gap + h + rule + gap + 0 + h, 1e-9);
    // On the axis of the line: the line's box grows above and below.
    EXPECT_NEAR(b.over, frac.axis - 0.574 * h, 1e-9);
    EXPECT_NEAR(b.bottom, frac.bottom - frac.axis + 0.574 * h, 1e-9);
}

TEST_F(Constructs, FractionRuleLiesOnTheTextAxis) {
    Draw("a#COC(1#N)(2#COC)b", 1000, 1000);
    const auto rules = Horizontal();
    ASSERT_EQ(rules.size(), 1u);
    EXPECT_NEAR(rules[0].y1, 1000 + 0.574 * H(), 1e-9);
    const auto* one = Find("1");
    const auto* two = Find("2");
    ASSERT_TRUE(one && two);
    EXPECT_LE(one->y + H(), rules[0].y1);
    EXPECT_GE(two->y, rules[0].y1);
    // The narrower part is centred on the wider one: equal widths, same x.
    EXPECT_NEAR(one->x, two->x, 1e-9);
    // b comes after the rule's end.
    EXPECT_GE(Find("b")->x, std::max(rules[0].x1, rules[0].x2));
}

TEST_F(Constructs, NarrowerPartIsCentred) {
    Draw("#COC(1#N)(222#COC)");
    const auto* one = Find("1");
    std::vector<double> twos;
    for (const auto& t : s.texts)
        if (t.text == "2") twos.push_back(t.x);
    ASSERT_TRUE(one);
    ASSERT_EQ(twos.size(), 3u);
    EXPECT_NEAR(one->x - twos[0], (twos[2] - twos[0]) / 2, 1e-9);
}

TEST_F(Constructs, InnerFractionHasHalfTheRule) {
    s.tpp = 1; // a pixel per twip: DrawWidth shows the thickness
    s.SetFontSize(36);
    Draw("#COC(#COC(1#N)(2#COC)#N)(3#COC)");
    auto rules = Horizontal();
    ASSERT_EQ(rules.size(), 2u);
    const double h = 1.15 * 720;
    // The inner one is drawn first.
    EXPECT_EQ(rules[0].width, static_cast<int>(0.02 * h));
    EXPECT_EQ(rules[1].width, static_cast<int>(0.04 * h));
    EXPECT_EQ(s.DrawWidth(), 1);
}

TEST_F(Constructs, FractionAfterAnArrowIsThin) {
    s.tpp = 1;
    s.SetFontSize(36);
    Draw("#ATX(a#T)(b#ATX)#COC(1#N)(2#COC)");
    const double h = 1.15 * 720;
    bool thinRule = false;
    for (const auto& k : Horizontal())
        if (k.width == static_cast<int>(0.02 * h) && std::abs(k.x2 - k.x1) < 2000) thinRule = true;
    EXPECT_TRUE(thinRule);
    EXPECT_EQ(st.FractionDepth, 1); // the arrow's level is never given back
}

TEST_F(Constructs, TinyTextKeepsAFifteenTwipRule) {
    s.tpp = 1;
    s.SetFontSize(2);
    Draw("#COC(1#N)(2#COC)");
    const auto rules = Horizontal();
    ASSERT_EQ(rules.size(), 1u);
    EXPECT_EQ(rules[0].width, 15);
}

TEST_F(Constructs, FractionWithoutSeparatorShowsTheError) {
    Draw("#COC(a#COC)z");
    EXPECT_NE(s.Joined().find("*ERROR*"), std::string::npos);
}

TEST_F(Constructs, ArrowWithTexts) {
    const LayoutBox b = Measure("#ATX(a#T)(b#ATX)");
    const LayoutBox& arrow = st.BoxTable[2];
    const double o = Clamped(0.09 * H());
    EXPECT_NEAR(arrow.lead, 7 * o, 1e-9);
    EXPECT_NEAR(b.width, arrow.lead + arrow.width, 1e-9);
    Draw("#ATX(a#T)(b#ATX)");
    EXPECT_EQ(s.strokes.size(), 3u); // shaft and two strokes of the head
    EXPECT_LT(Find("a")->y, Find("b")->y);
}

TEST_F(Constructs, StackedPairIsSmallAndAligned) {
    Draw("#SPB(Rn=1#T)(10000#SPB)");
    const auto* n = Find("n");
    ASSERT_TRUE(n);
    EXPECT_DOUBLE_EQ(n->size, 8);
    // Right aligned: the upper text ends where the lower one ends.
    const auto& last = s.texts.back();
    const auto* one = Find("1");
    EXPECT_NEAR(one->x + 0.5 * 160 + 1, last.x + 0.5 * 160 + 1, 1e-9);
    EXPECT_LT(n->y, last.y);
}

TEST_F(Constructs, EmptySquareRootHasTheHeightOfText) {
    const LayoutBox b = Measure("#SQR(#SQR)");
    const LayoutBox& root = st.BoxTable[2];
    EXPECT_NEAR(root.over, Clamped(0.0354 * H()) + Clamped(0.0323 * H()), 1e-9);
    EXPECT_NEAR(root.bottom, H() + Clamped(0.0754 * H()), 1e-9);
    Draw("#SQR(#SQR)");
    EXPECT_EQ(s.strokes.size(), 4u);
    (void)b;
}

TEST_F(Constructs, RadicandStandsUnderItsBar) {
    Draw("#SQR(x+1#SQR)");
    const auto bars = Horizontal();
    ASSERT_EQ(bars.size(), 1u);
    const auto* x = Find("x");
    EXPECT_LT(bars[0].y1, x->y);
    EXPECT_LE(std::min(bars[0].x1, bars[0].x2), x->x);
    EXPECT_GE(std::max(bars[0].x1, bars[0].x2), Find("1")->x + 0.5 * kEm);
}

TEST_F(Constructs, RootIndexIsSmallAndPlainRootWithoutIt) {
    Draw("#RAD(#RI(4#RI)x#RAD)");
    ASSERT_TRUE(Find("4"));
    EXPECT_DOUBLE_EQ(Find("4")->size, 8);
    EXPECT_LT(Find("4")->x, Find("x")->x);
    Draw("#RAD(x#RAD)");
    EXPECT_EQ(s.Joined(), "x");
    const LayoutBox plain = Measure("#RAD(x#RAD)");
    const LayoutBox square = Measure("#SQR(x#SQR)");
    EXPECT_DOUBLE_EQ(plain.width, square.width);
    Draw("#CUR(y#CUR)");
    EXPECT_EQ(s.Joined(), "y3");
}

TEST_F(Constructs, WideIndexWidensTheLead) {
    Measure("#RAD(#RI(4#RI)x#RAD)");
    const double narrow = st.BoxTable[2].lead;
    Measure("#RAD(#RI(12345#RI)x#RAD)");
    const double wide = st.BoxTable[2].lead;
    EXPECT_GT(wide, narrow);
    Draw("a#RAD(#RI(12345#RI)x#RAD)");
    EXPECT_GT(Find("1")->x, Find("a")->x + 0.5 * kEm);
}

TEST_F(Constructs, RootLeavesTheColourBlack) {
    Draw("&FC=Rojo:#SQR(x#SQR)y");
    EXPECT_EQ(Find("x")->color, Rgb(255, 0, 0));
    EXPECT_EQ(Find("y")->color, 0u);
}

TEST_F(Constructs, PowerExponentBottomAtTwoThirds) {
    Draw("#POT(x#PB)(2#POT)", 1000, 1000);
    const auto* two = Find("2");
    ASSERT_TRUE(two);
    EXPECT_DOUBLE_EQ(two->size, 8);
    EXPECT_NEAR(two->y + 1.15 * 160, 1000 + (8.0 / 12) * H(), 1e-9);
    EXPECT_NEAR(two->x, Find("x")->x + 0.5 * kEm + 1 + 1, 1e-9);
}

TEST_F(Constructs, ExponentialIsAnItalicEAndLeavesItalicOff) {
    s.SetFontItalic(true);
    Draw("#EXP(x#EXP)z");
    ASSERT_TRUE(Find("e"));
    EXPECT_TRUE(Find("e")->italic);
    EXPECT_FALSE(Find("z")->italic);
}

TEST_F(Constructs, DeepPowersShrinkInBothPasses) {
    Draw("#POT(a#PB)(#POT(b#PB)(#POT(c#PB)(d#POT)#POT)#POT)");
    EXPECT_DOUBLE_EQ(Find("b")->size, 8);
    EXPECT_DOUBLE_EQ(Find("c")->size, 6);
    EXPECT_DOUBLE_EQ(Find("d")->size, 4.5); // depth 3 is drawn at the size the measure made room for
}

TEST_F(Constructs, ParenthesesReachBeyondTheBody) {
    const LayoutBox line = Measure("#NES(()x#NES)");
    const LayoutBox& nes = st.BoxTable[2];
    const double h = 0.1 * H();
    EXPECT_NEAR(nes.over, 2 * h, 1e-9);
    EXPECT_NEAR(nes.bottom, H() + 2 * h, 1e-9);
    (void)line;
    Draw("#NES(()x#NES)", 1000, 1000);
    double top = 1e18, bottom = -1e18;
    for (const auto& k : s.strokes) {
        top = std::min({top, k.y1, k.y2});
        bottom = std::max({bottom, k.y1, k.y2});
    }
    EXPECT_LT(top, 1000);
    EXPECT_GT(bottom, 1000 + H());
    const auto* x = Find("x");
    double left = 1e18, right = -1e18;
    for (const auto& k : s.strokes) {
        left = std::min({left, k.x1, k.x2});
        right = std::max({right, k.x1, k.x2});
    }
    EXPECT_LT(left, x->x);
    EXPECT_GT(right, x->x + 0.5 * kEm);
}

TEST_F(Constructs, AbsoluteValueBars) {
    Draw("#NES(||x#NES)", 1000, 1000);
    ASSERT_EQ(s.strokes.size(), 2u);
    const double h = 0.1 * H();
    for (const auto& k : s.strokes) {
        EXPECT_EQ(k.x1, k.x2);
        EXPECT_NEAR(k.y1, 1000 - h, 1e-9);
        EXPECT_NEAR(k.y2, 1000 + H() + h, 1e-9);
    }
}

TEST_F(Constructs, OneSidedBraceAddsOnlyItsRoom) {
    Measure("#NES({ x#NES)");
    const LayoutBox one = st.BoxTable[2];
    Measure("#NES(  x#NES)");
    const LayoutBox none = st.BoxTable[2];
    const double h = 0.1 * H();
    EXPECT_NEAR(one.lead - none.lead, 2 * h, 1e-9);
    EXPECT_NEAR(one.width, none.width, 1e-9);
}

TEST_F(Constructs, CentredRowsAndOneRowAxis) {
    Draw("#RWS(C#RW1(a#RW1)#RW2(bbb#RW2)#RWS)");
    std::vector<double> bx;
    for (const auto& t : s.texts)
        if (t.text == "b") bx.push_back(t.x);
    ASSERT_EQ(bx.size(), 3u);
    EXPECT_NEAR(Find("a")->x, bx[1], 1e-9);
    Measure("#RWS(L#RW1(a_1#RW1)#RWS)");
    EXPECT_DOUBLE_EQ(st.BoxTable[2].axis, st.BoxTable[3].axis);
    EXPECT_DOUBLE_EQ(st.BoxTable[2].bottom, 1.1 * H());
}

TEST_F(Constructs, BraceAroundTwoRowsIsAsTallAsTheRows) {
    Draw("#NES({ #RWS(L#RW1(x + y = 1#RW1)#RW2(x - y = 3#RW2)#RWS)#NES)", 1000, 1000);
    double top = 1e18, bottom = -1e18;
    for (const auto& k : s.strokes) {
        top = std::min({top, k.y1, k.y2});
        bottom = std::max({bottom, k.y1, k.y2});
    }
    double textTop = 1e18, textBottom = -1e18;
    for (const auto& t : s.texts) {
        textTop = std::min(textTop, t.y);
        textBottom = std::max(textBottom, t.y + H());
    }
    EXPECT_LE(top, textTop);
    EXPECT_GE(bottom, textBottom - H() * 0.1);
    EXPECT_GT(bottom - top, 2 * H());
}

TEST_F(Constructs, MatrixRowsInParentheses) {
    Draw("#NES(()#RWS(C#RW1(1  2 #RW1)#RW2(3  4 #RW2)#RWS)#NES)");
    EXPECT_LT(Find("1")->y, Find("3")->y);
    EXPECT_NEAR(Find("1")->x, Find("3")->x, 1e-9);
}

TEST_F(Constructs, NestingGrowsTheLine) {
    const LayoutBox plain = Measure("x");
    const LayoutBox one = Measure("#COC(1#N)(2#COC)");
    const LayoutBox two = Measure("#COC(#COC(1#N)(2#COC)#N)(3#COC)");
    const LayoutBox root = Measure("#SQR(#COC(1#N)(2#COC)#SQR)");
    EXPECT_GT(one.over + one.bottom, plain.over + plain.bottom);
    EXPECT_GT(two.over + two.bottom, one.over + one.bottom);
    EXPECT_GT(root.over + root.bottom, one.over + one.bottom);
}

TEST_F(Constructs, MalformedInputNeverCrashes) {
    for (const auto& tag : ConstructTags()) {
        const std::string open = ToUtf8(tag.open);
        const std::string close = ToUtf8(tag.close);
        for (const std::string& text : std::vector<std::string>{open + "x", open + "a#N)(b#T)(c" + close, close + "x" + open, open + close,
                                        open + "#RI(3" + close, open + "C#RW1(a#RW1)#RW3(b#RW3)" + close}) {
            Draw(text);
            if (text.find(close) == std::string::npos) {
                EXPECT_NE(s.Joined().find("*ERROR*"), std::string::npos) << text;
            }
        }
    }
    for (const std::string& text : std::vector<std::string>{"#COC(a#COC)", "#COC(a#N)(b", "#ATX(a#ATX)", "#SPB(Ca#SPB)", "#POT(a#POT)",
                                    "#RAD(#RI(3#RAD)", "#RWS(L#RW2(a#RW2)#RWS)"}) {
        Draw(text);
        EXPECT_NE(s.Joined().find("*ERROR*"), std::string::npos) << text;
    }
    for (const char* tagName : {"COC", "SQR", "POT", "NES", "RWS", "ATX", "SPB", "RAD"}) {
        std::string text = "x";
        const std::string t = tagName;
        for (int i = 0; i < 20; ++i) {
            if (t == "COC") text = "#COC(" + text + "#N)(2#COC)";
            else if (t == "POT") text = "#POT(" + text + "#PB)(2#POT)";
            else if (t == "NES") text = "#NES(()" + text + "#NES)";
            else if (t == "RWS") text = "#RWS(C#RW1(" + text + "#RW1)#RWS)";
            else if (t == "ATX") text = "#ATX(" + text + "#T)(b#ATX)";
            else if (t == "SPB") text = "#SPB(C" + text + "#T)(b#SPB)";
            else if (t == "RAD") text = "#RAD(#RI(3#RI)" + text + "#RAD)";
            else text = "#" + t + "(" + text + "#" + t + ")";
        }
        Draw(text);
        EXPECT_NE(s.Joined().find("x"), std::string::npos) << t;
        // Every closer removed from the deep text.
        std::string broken = text;
        const std::string close = t == "RWS" ? "#RWS)" : "#" + t + ")";
        for (std::size_t p; (p = broken.find(close)) != std::string::npos;) broken.erase(p, close.size());
        Draw(broken);
        EXPECT_NE(s.Joined().find("*ERROR*"), std::string::npos) << t;
    }
}

TEST_F(Constructs, MeasureAndDrawAgreeOnEveryBox) {
    const std::string text =
        "#COC(1#N)(#SQR(x#SQR)#COC) #RAD(#RI(3#RI)a^5#RAD) #POT(2#PB)(#COC(1#N)(3#COC)#POT) #EXP(2x#EXP) "
        "#NES(X}#RWS(R#RW1(2x + 3y = 7#RW1)#RW2(x - y = 1#RW2)#RWS)#NES) #SPB(Ca#T)(b#SPB) #ATX(u#T)(v#ATX)";
    MeasureString(st, s, text);
    const int measured = st.BoxCounter;
    std::vector<LayoutBox> boxes(st.BoxTable.begin(), st.BoxTable.begin() + measured + 1);
    DrawString(st, s, text, 500, 700);
    EXPECT_EQ(st.BoxCounter, measured);
    // The draw pass reads the boxes and never writes their metrics.
    for (int i = 1; i <= measured; ++i) {
        const LayoutBox& after = st.BoxTable[i];
        EXPECT_EQ(after.lead, boxes[i].lead) << "box " << i;
        EXPECT_EQ(after.width, boxes[i].width) << "box " << i;
        EXPECT_EQ(after.over, boxes[i].over) << "box " << i;
        EXPECT_EQ(after.axis, boxes[i].axis) << "box " << i;
        EXPECT_EQ(after.bottom, boxes[i].bottom) << "box " << i;
        EXPECT_TRUE(after.source == boxes[i].source) << "box " << i;
    }
    // Each construct was entered where its parent's pen stood plus its lead: inside the
    // line's box, never left of where the line began.
    for (int i = 2; i <= measured; ++i) {
        if (st.BoxTable[i].drawX == 0 && st.BoxTable[i].drawY == 0) continue;
        EXPECT_GE(st.BoxTable[i].drawX, 500) << "box " << i;
        EXPECT_LE(st.BoxTable[i].drawX, 500 + boxes[1].width) << "box " << i;
    }
    // Every construct noted where the draw pass entered it.
    int drawn = 0;
    for (int i = 2; i <= measured; ++i)
        if (st.BoxTable[i].drawX != 0 || st.BoxTable[i].drawY != 0) ++drawn;
    EXPECT_EQ(drawn, 10); // the ten constructs; the strings of their pieces note nothing
    // A second measure pass gives every box again, to the last bit.
    MeasureString(st, s, text);
    EXPECT_EQ(st.BoxCounter, measured);
    for (int i = 1; i <= measured; ++i) {
        EXPECT_EQ(st.BoxTable[i].width, boxes[i].width) << "box " << i;
        EXPECT_EQ(st.BoxTable[i].over, boxes[i].over) << "box " << i;
        EXPECT_EQ(st.BoxTable[i].bottom, boxes[i].bottom) << "box " << i;
    }
}

TEST_F(Constructs, CutInsideDelimitersIsCountedFromTheBody) {
    st.PageWidth = 2000;
    std::u32string head;
    MeasureString(st, s, "#NES(()aa bb cc dd ee ff gg hh#NES)", &head);
    // The head is a piece of the body, handed up through the delimiters.
    ASSERT_FALSE(head.empty());
    EXPECT_EQ(head.substr(0, 3), U"aa ");
    EXPECT_EQ(std::u32string(U"aa bb cc dd ee ff gg hh#NES)").compare(0, head.size(), head), 0);
    // Other constructs end their piece early and don't cut the line.
    MeasureString(st, s, "#SQR(aa bb cc dd ee ff gg hh#SQR)", &head);
    EXPECT_NE(head.substr(0, 5), U"aa bb");
}
