// The typesetter at each of its table sizes: 10,000 lines a call, 500 marks, 200 boxes a
// line, 50 constructs a string. Past a table's end the layout draws what fits and goes on
// with the next line; nothing is written outside the tables (the sanitized run checks that).
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "tests/typesetter/typesetter_test_util.h"
#include "typesetter/layout.h"

namespace {
// The recording surface keeps one text a character, so the checks count single letters.
struct Limits : ::testing::Test {
    TypesetterState st;
    RecordingSurface s;
    void SetUp() override {
        st.ScreenSurface = &s;
        // A sheet tall and wide enough that no line breaks and no page ends.
        s.width = 1e8;
        s.height = 1e9;
    }
    void Run(const std::string& text) {
        s.texts.clear();
        s.strokes.clear();
        double size = 12;
        LayoutText(st, text, size, s);
    }
    int Drawn(const std::string& text) const {
        return static_cast<int>(std::count_if(s.texts.begin(), s.texts.end(),
                                              [&](const RecordingSurface::Text& t) { return t.text == text; }));
    }
    static std::string Repeat(const std::string& piece, int n) {
        std::string out;
        for (int i = 0; i < n; ++i) out += piece;
        return out;
    }
};
} // namespace

TEST_F(Limits, TenThousandLinesAreAllLaidOut) {
    Run(Repeat("a&LF", kMaxLines - 1) + "Z");
    EXPECT_EQ(Drawn("a"), kMaxLines - 1);
    EXPECT_EQ(Drawn("Z"), 1);
    EXPECT_EQ(st.FlowResult, 0);
}

TEST_F(Limits, LinesBeyondTenThousandAreLeftOut) {
    Run(Repeat("a&LF", kMaxLines) + "Y&LFY");
    EXPECT_EQ(Drawn("a"), kMaxLines);
    EXPECT_EQ(Drawn("Y"), 0);
}

TEST_F(Limits, FiveHundredMarksAreKeptAndLaterOnesIgnored) {
    std::string text;
    for (int i = 1; i <= kMaxMarks + 20; ++i) text += "#MARK=" + std::to_string(100 + i % 900) + "m&LF";
    Run(text + "E");
    EXPECT_EQ(st.MarkCount, kMaxMarks);
    EXPECT_EQ(st.MarkProblem[kMaxMarks - 1], 100 + kMaxMarks % 900);
    // The lines after the last mark kept are still drawn.
    EXPECT_EQ(Drawn("m"), kMaxMarks + 20);
    EXPECT_EQ(Drawn("E"), 1);
    // The last mark met is the flow result even when it found no room in the tables.
    EXPECT_EQ(st.FlowResult, 100 + (kMaxMarks + 20) % 900);
}

TEST_F(Limits, FiftyConstructsInOneStringAndTheRestLeftOut) {
    // Three boxes a fraction: 50 fractions take 151 boxes, so the construct limit comes first.
    Run(Repeat("#COC(a#N)(b#COC)", kMaxSegments + 10) + "&LFN");
    EXPECT_EQ(Drawn("a"), kMaxSegments);
    EXPECT_EQ(Drawn("b"), kMaxSegments);
    EXPECT_EQ(Drawn("N"), 1);
    EXPECT_LE(st.BoxCounter, kMaxBoxes);
}

TEST_F(Limits, TwoHundredBoxesInOneLineAndTheRestLeftOut) {
    // Six boxes an item (a fraction in a fraction) and 40 items: 241 boxes wanted, fewer
    // than 50 constructs in each string, so the box table is what runs out.
    Run(Repeat("#COC(#COC(a#N)(b#COC)#N)(c#COC)", 40) + "&LF#COC(x#N)(y#COC)");
    const int items = Drawn("c");
    EXPECT_GE(items, (kMaxBoxes - 1) / 6 - 1);
    EXPECT_LE(items, (kMaxBoxes - 1) / 6);
    EXPECT_LE(Drawn("a"), items + 1);
    // The next line starts with an empty table again.
    EXPECT_EQ(Drawn("x"), 1);
    EXPECT_EQ(Drawn("y"), 1);
}

TEST_F(Limits, DeepNestingStopsAtTheBoxTable) {
    std::string nested = "K";
    for (int i = 0; i < 2 * kMaxBoxes; ++i) nested = "#SQR(" + nested + "#SQR)";
    Run(nested + "&LFW");
    EXPECT_EQ(Drawn("K"), 0);
    EXPECT_EQ(Drawn("W"), 1);
}

TEST_F(Limits, DeepNestingShowsTheRedErrorAndStaysLinear) {
    const int depth = 10000;
    const auto start = std::chrono::steady_clock::now();
    Run(Repeat("#SQR(", depth) + "x" + Repeat("#SQR)", depth) + "Z");
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    // Quadratic balancing took over a minute here; the bound leaves room for a busy machine.
    EXPECT_LT(seconds, 20.0);
    // The innermost text lies beyond the depth followed; the error stands in its place,
    // in red, and the text behind the construct goes on.
    EXPECT_EQ(Drawn("x"), 0);
    EXPECT_EQ(Drawn("Z"), 1);
    const auto red = std::count_if(s.texts.begin(), s.texts.end(), [](const RecordingSurface::Text& t) {
        return t.text == "E" && t.color == Rgb(255, 0, 0);
    });
    EXPECT_GE(red, 1);
}

TEST_F(Limits, NestingWithinTheDepthIsDrawnWhole) {
    Run(Repeat("#SQR(", kMaxConstructDepth) + "x" + Repeat("#SQR)", kMaxConstructDepth) + "Z");
    EXPECT_EQ(Drawn("x"), 1);
    EXPECT_EQ(Drawn("Z"), 1);
    EXPECT_EQ(Drawn("E"), 0);
}

TEST_F(Limits, BalancingALongConstructIsLinear) {
    const int depth = 100000;
    const std::u32string text = ToU32(Repeat("#SQR(", depth) + "x" + Repeat("#SQR)", depth));
    const auto start = std::chrono::steady_clock::now();
    const std::u32string piece = ExtractBalanced(text, U"#SQR(", U"#SQR)");
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(piece, text);
    EXPECT_LT(seconds, 5.0);
}
