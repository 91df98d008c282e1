#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>

#include "tests/typesetter/typesetter_test_util.h"
#include "typesetter/layout.h"

namespace {
struct Layout : ::testing::Test {
    TypesetterState st;
    RecordingSurface s;
    void SetUp() override { st.ScreenSurface = &s; }
    void Run(const std::string& text, double size = 12) {
        s.texts.clear();
        s.strokes.clear();
        LayoutText(st, text, size, s);
    }
    std::set<double> LineTops() const {
        std::set<double> ys;
        for (const auto& t : s.texts) ys.insert(t.y);
        return ys;
    }
};
constexpr double kLineAdvance = kH + kH / 5; // plain line: box height plus a fifth of "H"
} // namespace

TEST_F(Layout, ScreenGeometry) {
    Run("x");
    EXPECT_DOUBLE_EQ(st.PageWidth, (794 - 2) * 15.0);
    EXPECT_DOUBLE_EQ(st.PageHeight, (1123 - 2) * 15.0);
    EXPECT_DOUBLE_EQ(st.MarginLeft, 16 / 25.4 * 1440);
    EXPECT_DOUBLE_EQ(st.MarginBottom, 16 / 25.4 * 1440);
    ASSERT_EQ(s.texts.size(), 1u);
    EXPECT_DOUBLE_EQ(s.texts[0].x, st.MarginLeft + 1);
    EXPECT_DOUBLE_EQ(s.texts[0].y, st.MarginTop);
    st.ZoomScale = 2;
    Run("x", 24);
    EXPECT_DOUBLE_EQ(st.MarginTop, 2 * 16 / 25.4 * 1440);
}

TEST_F(Layout, PrinterMarginsAreTheScreenMarginsFromThePaperEdge) {
    RecordingSurface printer;
    printer.width = 11906;
    printer.height = 16838;
    st.PrinterSurface = &printer;
    st.ZoomScale = 1.7; // never applied to the printer's margins
    double size = 12;
    LayoutText(st, "x", size, printer);
    const double m = 16 / 25.4 * 1440;
    EXPECT_DOUBLE_EQ(st.PageWidth, 11906);
    EXPECT_DOUBLE_EQ(st.PageHeight, 16838);
    EXPECT_DOUBLE_EQ(st.MarginLeft, m);
    EXPECT_DOUBLE_EQ(st.MarginRight, m);
    EXPECT_DOUBLE_EQ(st.MarginTop, m);
    EXPECT_DOUBLE_EQ(st.MarginBottom, m);
}

TEST_F(Layout, NoPrinterKeepsTheLastMargins) {
    RecordingSurface printer;
    st.PrinterSurface = &printer;
    st.PrinterInstalled = false;
    Run("x"); // on the screen: 16 mm margins
    double size = 12;
    LayoutText(st, "y", size, printer);
    EXPECT_DOUBLE_EQ(st.MarginLeft, 16 / 25.4 * 1440);
    EXPECT_DOUBLE_EQ(st.MarginTop, 16 / 25.4 * 1440);
}

TEST_F(Layout, EmptyTextIsOneEmptyLine) {
    st.FlowResult = 99;
    st.MarkCount = 3;
    Run("");
    EXPECT_EQ(st.FlowResult, 0);
    EXPECT_EQ(st.MarkCount, 0);
    EXPECT_TRUE(s.texts.empty());
    EXPECT_DOUBLE_EQ(st.BoxTable[1].bottom, kH);
}

TEST_F(Layout, TrailingLineFeedAddsAnEmptyLine) {
    Run("#MARK=001&LFa");
    const double without = st.MarkBottom[0];
    Run("#MARK=001&LFa&LF");
    EXPECT_NEAR(st.MarkBottom[0] - without, kLineAdvance, 1e-9);
    EXPECT_NEAR(without, 2 * kLineAdvance + kH + kH, 1e-9);
}

TEST_F(Layout, ZeroSizeBecomesFiveTimesZoom) {
    double size = 0;
    st.ZoomScale = 2;
    LayoutText(st, "a", size, s);
    EXPECT_DOUBLE_EQ(size, 10);
    size = -3;
    LayoutText(st, "a", size, s);
    EXPECT_DOUBLE_EQ(size, 10);
    size = std::nan("");
    LayoutText(st, "a", size, s);
    EXPECT_DOUBLE_EQ(size, 10);
    EXPECT_DOUBLE_EQ(s.texts.back().size, 10);
}

TEST_F(Layout, MarksAtLineStartOnly) {
    Run("#MARK=004&LFtext&LF#MARK=007 more&LFand #MARK=009");
    EXPECT_EQ(st.MarkCount, 2);
    EXPECT_EQ(st.FlowResult, 7);
    EXPECT_EQ(st.MarkProblem[0], 4);
    EXPECT_EQ(st.MarkProblem[1], 7);
    EXPECT_FALSE(st.MarkSelected[0]);
    EXPECT_EQ(s.Joined(), "text moreand ");
    // The mark in the middle of the last line still writes the top of the mark in force.
    const double lastLineTop = *LineTops().rbegin();
    EXPECT_DOUBLE_EQ(st.MarkTop[1], lastLineTop);
    EXPECT_NEAR(st.MarkTop[0], st.MarginTop, 1e-9);
}

TEST_F(Layout, MarkBottomsFollowTheNextMark) {
    Run("#MARK=001&LFa&LF#MARK=002&LFb");
    EXPECT_EQ(st.MarkCount, 2);
    EXPECT_NEAR(st.MarkTop[1], st.MarginTop + 2 * kLineAdvance, 1e-9);
    EXPECT_NEAR(st.MarkBottom[0], st.MarkTop[1] - kH / 8, 1e-9);
    EXPECT_NEAR(st.MarkBottom[1], 4 * kLineAdvance + kH + kH, 1e-9);
}

TEST_F(Layout, CrLfMeansNothing) {
    Run("ab\r\ncd");
    EXPECT_EQ(s.Joined(), "abcd");
    EXPECT_EQ(LineTops().size(), 1u);
}

TEST_F(Layout, LineFeedsMakeLines) {
    Run("a&LFb&LF&LFc");
    const auto tops = LineTops();
    ASSERT_EQ(tops.size(), 3u);
    const std::vector<double> v(tops.begin(), tops.end());
    EXPECT_NEAR(v[1] - v[0], kLineAdvance, 1e-9);
    EXPECT_NEAR(v[2] - v[1], 2 * kLineAdvance, 1e-9);
}

TEST_F(Layout, IndentTagIsCutAndStays) {
    Run("ab&LSAN=12:cd&LFef");
    EXPECT_EQ(s.Joined(), "abcdef");
    const double indent = 0.98 * 12 / 25.4 * 1440;
    EXPECT_NEAR(st.LineIndent, indent, 1e-9);
    EXPECT_NEAR(s.texts[0].x, st.MarginLeft + indent + 1, 1e-9);
    EXPECT_NEAR(s.texts[4].x, st.MarginLeft + indent + 1, 1e-9);
    // Measured at the current size: larger text, larger indent.
    Run("&LSAN=12:x", 24);
    EXPECT_NEAR(st.LineIndent, 2 * indent, 1e-9);
    // Reset at the start of each call.
    Run("x");
    EXPECT_EQ(st.LineIndent, 0);
}

TEST_F(Layout, LongParagraphBreaksAtBlanks) {
    std::string words;
    for (int i = 0; i < 60; ++i) words += "word ";
    Run(words);
    const auto tops = LineTops();
    ASSERT_GE(tops.size(), 3u);
    // Every piece is whole words, and no text crosses the right margin.
    std::string joined = s.Joined();
    EXPECT_EQ(joined, words);
    const double right = st.PageWidth - st.MarginRight;
    double firstX = 1e18;
    for (std::size_t i = 0; i < s.texts.size(); ++i) {
        EXPECT_LE(s.texts[i].x + 0.5 * kEm, right + 1e-6);
        firstX = std::min(firstX, s.texts[i].x);
        // A line begins with a "w": the space stayed at the end of the previous piece.
        if (i > 0 && s.texts[i].y != s.texts[i - 1].y) {
            EXPECT_EQ(s.texts[i].text, "w");
        }
    }
}

TEST_F(Layout, SoftHyphenIsABreakPointAndPrintsAtTheCut) {
    std::string text;
    for (int i = 0; i < 40; ++i) text += "ab&_";
    Run(text);
    EXPECT_GE(LineTops().size(), 2u);
    // Each piece but the last ends in a printed hyphen.
    std::size_t hyphens = 0;
    for (const auto& t : s.texts)
        if (t.text == "-") ++hyphens;
    EXPECT_EQ(hyphens, LineTops().size());
}

TEST_F(Layout, WordLongerThanTheLineIsCutBetweenTokens) {
    const std::string word(150, 'x');
    Run(word);
    EXPECT_EQ(s.Joined(), word); // no hyphen
    const auto tops = LineTops();
    ASSERT_GE(tops.size(), 2u);
    // The first piece holds the characters that fit and the one that overflowed.
    const double perChar = 0.5 * kEm + 2;
    const int fit = static_cast<int>(std::floor((st.PageWidth - st.MarginLeft - st.MarginRight) / perChar));
    int firstLine = 0;
    for (const auto& t : s.texts)
        if (t.y == *tops.begin()) ++firstLine;
    EXPECT_EQ(firstLine, fit + 1);
}

TEST_F(Layout, FullPageGivesNegativeFlowResult) {
    std::string text = "#MARK=003&LF";
    for (int i = 0; i < 100; ++i) text += "line " + std::to_string(i) + "&LF";
    Run(text);
    EXPECT_EQ(st.FlowResult, -3);
    // Nothing below the bottom margin.
    for (const auto& t : s.texts) EXPECT_LE(t.y + kH, st.PageHeight - st.MarginBottom + 1e-6);
    // A text that fits ends with the mark's number.
    Run("#MARK=003&LFshort");
    EXPECT_EQ(st.FlowResult, 3);
}

TEST_F(Layout, FontStateCarriesOverLines) {
    Run("&+Ba&LFb&-B&LFc");
    ASSERT_EQ(s.texts.size(), 3u);
    EXPECT_TRUE(s.texts[0].bold);
    EXPECT_TRUE(s.texts[1].bold);
    EXPECT_FALSE(s.texts[2].bold);
}

TEST_F(Layout, MarginGuides) {
    st.ShowMarginGuides = true;
    Run("x");
    ASSERT_EQ(s.strokes.size(), 4u);
    for (const auto& k : s.strokes) EXPECT_EQ(k.color, Rgb(240, 240, 240));
    EXPECT_DOUBLE_EQ(s.strokes[0].x1, st.MarginLeft);
    EXPECT_DOUBLE_EQ(s.strokes[2].y1, 1123 * 15 - st.MarginTop);
    EXPECT_EQ(s.FillStyle(), 1);
}

TEST_F(Layout, YieldsBetweenLines) {
    int yields = 0;
    st.YieldToEvents = [&] { ++yields; };
    Run("a&LFb&LFc");
    EXPECT_EQ(yields, 3);
}

TEST_F(Layout, TooManyLinesMarksAndBoxesAreSafe) {
    st.PageHeight = 1e12;
    s.height = 1e11;
    std::string many;
    for (int i = 0; i < 10050; ++i) many += "&LF";
    Run(many);
    EXPECT_EQ(st.FlowResult, 0);

    std::string marks;
    for (int i = 0; i < 520; ++i) marks += "#MARK=" + std::to_string(100 + i % 900) + "&LF";
    Run(marks);
    EXPECT_EQ(st.MarkCount, kMaxMarks);

    std::string constructs;
    for (int i = 0; i < 80; ++i) constructs += "#COC(a#N)(b#COC)";
    Run(constructs + "&LFnext");
    EXPECT_NE(s.Joined().find("next"), std::string::npos);

    std::string nested = "x";
    for (int i = 0; i < 150; ++i) nested = "#COC(" + nested + "#N)(#SQR(y#SQR)#COC)";
    Run(nested + "&LFafter");
    EXPECT_NE(s.Joined().find("after"), std::string::npos);
}

namespace {
// A picture file that the stub loader reads as 400 by 300 pixels.
struct HungPicture : Layout {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "sumforge_hung_picture_test";
    void SetUp() override {
        Layout::SetUp();
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "fig.gif") << "x";
        st.PictureFolder = folder.string();
        st.LoadPicture = [](const std::string&, double& w, double& h) {
            w = 400;
            h = 300;
            return true;
        };
    }
    void TearDown() override { std::filesystem::remove_all(folder); }
    // The top of the first text run that begins with the letter.
    double TopOf(const std::string& letter) const {
        for (const auto& t : s.texts)
            if (t.text == letter) return t.y;
        return -1;
    }
};
const std::string kHung = "#IMG('fig.gif'DXmm=40:DYmm=-30:#IMG)";
} // namespace

TEST_F(HungPicture, TheNextLinesStartBelowItsFoot) {
    Run(kHung + " A&LFB&LFC");
    ASSERT_EQ(s.pictures.size(), 1u);
    const double foot = s.pictures[0].y; // the height is negative: the picture runs up from y
    EXPECT_LT(s.pictures[0].h, 0);
    EXPECT_GT(foot, TopOf("A") + 2 * kLineAdvance);
    EXPECT_GE(TopOf("B"), foot);
    EXPECT_NEAR(TopOf("C") - TopOf("B"), kLineAdvance, 1e-6);
}

TEST_F(HungPicture, ShortLinesFlowBesideIt) {
    Run("A&SP=60:" + kHung + "&LFB&LFC&LF&SP=70:D");
    ASSERT_EQ(s.pictures.size(), 1u);
    EXPECT_NEAR(TopOf("B") - TopOf("A"), kLineAdvance, 1e-6);
    EXPECT_NEAR(TopOf("C") - TopOf("B"), kLineAdvance, 1e-6);
    // D stands under the picture's columns: it waits for the picture's foot.
    EXPECT_GE(TopOf("D"), s.pictures[0].y);
}

TEST_F(HungPicture, APictureThatWouldRunOffThePageGoesToTheNextWithItsLine) {
    std::string lines = "#MARK=001x&LF";
    for (int i = 0; i < 40; ++i) lines += "x&LF";
    Run(lines + "#MARK=002y #IMG('fig.gif'DXmm=80:DYmm=-60:#IMG)&LFz");
    EXPECT_EQ(st.FlowResult, -2);
    EXPECT_TRUE(s.pictures.empty());
    // Without the picture the same line fits.
    Run(lines + "#MARK=002y&LFz");
    EXPECT_EQ(st.FlowResult, 2);
}

TEST_F(HungPicture, TheNextProblemNeverStandsBesideIt) {
    Run("#MARK=001A&SP=60:" + kHung + "&LF#MARK=002B");
    ASSERT_EQ(s.pictures.size(), 1u);
    EXPECT_GE(TopOf("B"), s.pictures[0].y);
    EXPECT_EQ(st.MarkCount, 2);
    EXPECT_GE(st.MarkTop[1], s.pictures[0].y);
}
