#include <gtest/gtest.h>

#include <cmath>

#include "tests/typesetter/typesetter_test_util.h"

namespace {
struct Rings : ConstructFixture {};
} // namespace

TEST_F(Rings, HexagonWithThreeDoubleEdges) {
    Draw("#A6V(SSSSSS&EC=SDSDSD#A6V)");
    EXPECT_EQ(s.strokes.size(), 9u); // six edges and three inner lines
    EXPECT_TRUE(s.circles.empty());
    // A vertex on top: the highest point is straight above the centre.
    const double R = 1.5 * H();
    double top = 1e18;
    for (const auto& k : s.strokes) top = std::min({top, k.y1, k.y2});
    EXPECT_NEAR(top, 1000 + 0.574 * H() - R, 1e-6);
}

TEST_F(Rings, RingWithCircleHasNoInnerLines) {
    Draw("#BCV(SSSSSS&EC=DDDDDD#BCV)");
    EXPECT_EQ(s.strokes.size(), 6u);
    ASSERT_EQ(s.circles.size(), 1u);
    EXPECT_NEAR(s.circles[0].r, 0.62 * 1.5 * H(), 1e-9);
    EXPECT_EQ(s.FillStyle(), 1);
}

TEST_F(Rings, OnlyVerticesWithTextHaveBonds) {
    Draw("#A6V(SSSSSS#R1(X#R1)#A6V)");
    EXPECT_EQ(s.strokes.size(), 7u);
    ASSERT_EQ(s.texts.size(), 1u);
    EXPECT_EQ(s.texts[0].text, "X");
    Draw("#A6V(DSSSSS#R1(O#R1)#R4(Y#R4)#A6V)");
    EXPECT_EQ(s.strokes.size(), 6u + 2u + 1u); // a double bond up, a single one down
}

TEST_F(Rings, EveryOrientationAndSize) {
    for (int n = 3; n <= 9; ++n) {
        for (char k : {'V', 'L', 'I', 'D'}) {
            const std::string tag = std::string("A") + static_cast<char>('0' + n) + k;
            const std::string text = "a#" + tag + "(" + std::string(n, 'S') + "#R1(Q#R1)#" + tag + ")b";
            const LayoutBox line = MeasureString(st, s, text);
            const LayoutBox& figure = st.BoxTable[2];
            EXPECT_GT(figure.width, 1.5 * H()) << tag;
            EXPECT_GT(line.over + line.bottom, 2 * H()) << tag;
            Draw(text);
            EXPECT_EQ(s.strokes.size(), static_cast<std::size_t>(n + 1)) << tag;
            // b stands right of the whole figure.
            double right = -1e18;
            for (const auto& st2 : s.strokes) right = std::max({right, st2.x1, st2.x2});
            EXPECT_GE(s.texts.back().x, right - 1e-6) << tag;
        }
    }
}

TEST_F(Rings, OpenChainAtom) {
    Draw("#UDB(SSDC#R1(H#R1)#R3(O#R3)#UDB)");
    EXPECT_EQ(s.strokes.size(), 3u); // a single bond up, a double one down
    EXPECT_EQ(s.Joined(), "CHO");
}

TEST_F(Rings, ChemicalEquationWithNotes) {
    Draw("#CEQ(1'2H_2 + O_2 = 2H_2O'#A11(a#A11)#A13(c#A13)#CEQ)");
    std::string joined = s.Joined();
    EXPECT_NE(joined.find("+"), std::string::npos);
    EXPECT_NE(joined.find("\u2192"), std::string::npos); // "=" is the arrow
    const RecordingSurface::Text* a = nullptr;
    const RecordingSurface::Text* c = nullptr;
    const RecordingSurface::Text* o = nullptr;
    for (const auto& t : s.texts) {
        if (t.text == "a") a = &t;
        if (t.text == "c") c = &t;
        if (t.text == "O" && !o) o = &t;
    }
    ASSERT_TRUE(a && c && o);
    EXPECT_GT(a->y, o->y);             // notes beneath the terms
    EXPECT_DOUBLE_EQ(a->size, 8);      // in reduced size
    EXPECT_GT(c->x, a->x);
    const LayoutBox line = MeasureString(st, s, "#CEQ(1'2H_2 + O_2 = 2H_2O'#A11(a#A11)#CEQ)");
    EXPECT_DOUBLE_EQ(st.BoxTable[2].axis, 0.574 * H());
    EXPECT_GT(line.bottom, 1.5 * H());
    Draw("#CEQ(0'A == B'#CEQ)");
    EXPECT_EQ(s.strokes.size(), 4u); // the drawn equilibrium arrows
    Draw("#CEQ(0'A &als B'#CEQ)");
    EXPECT_NE(s.Joined().find("\u2190"), std::string::npos);
}
