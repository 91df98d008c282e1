#include <gtest/gtest.h>

#include "core/composition.h"
#include "core_fakes.h"

namespace {
std::string Repeat(char c, int n) { return std::string(static_cast<std::size_t>(n), c); }
} // namespace

TEST(Composition, MarksWrapAtThreeDigits) {
    EXPECT_EQ(BlockMark(1), "001");
    EXPECT_EQ(BlockMark(999), "999");
    EXPECT_EQ(BlockMark(1000), "000");
    EXPECT_EQ(BlockMark(1001), "001");
    EXPECT_EQ(BlockMark(1024), "024");
}

TEST(Composition, NumberBoxSplitsTheColour) {
    CollectionSettings s;
    s.NumberColour = 192 + 224 * 256 + 255 * 65536;
    s.NumberPrefix = "P";
    s.NumberSuffix = ".";
    EXPECT_EQ(NumberBox(s, 12), "&BC=192;224;255:&FF=REC,20,5.5:P12. &BC=Blanco:&FF=REC,20,5.5:");
}

TEST(Composition, OneProblemWithoutSolutionsIsOneBlockOnOnePage) {
    TestBench bench;
    bench.SetProblems({{"Statement", "Answer"}});
    bench.app.Settings.SolutionPosition = 0;
    bench.app.Settings.NumberColour = 255;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.BlockCount, 1);
    EXPECT_EQ(bench.app.PageCount, 1);
    EXPECT_EQ(bench.app.Blocks[1].page, 1);
    EXPECT_EQ(bench.app.Blocks[1].problem, 1);
    EXPECT_EQ(bench.app.Blocks[1].text,
              "#MARK=001&+B&BC=255;0;0:&FF=REC,20,5.5:1) &BC=Blanco:&FF=REC,20,5.5:&-B& Statement&LF");
    EXPECT_TRUE(bench.app.Modified);
    EXPECT_EQ(bench.window.draws, 1);
}

TEST(Composition, SolutionAfterProblemKeepsTogetherBelow513Characters) {
    TestBench bench;
    bench.SetProblems({{"S", Repeat('x', 512)}});
    bench.app.Settings.SolutionPosition = 1;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 1);
    EXPECT_NE(bench.app.Blocks[1].text.find("&+ISolution&-I:& " + Repeat('x', 512) + "&LF"), std::string::npos);

    bench.SetProblems({{"S", Repeat('x', 513)}});
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 2);
    EXPECT_EQ(bench.app.Blocks[2].problem, -1);
    EXPECT_EQ(bench.app.Blocks[2].text, "#MARK=002&+ISolution&-I:& " + Repeat('x', 513) + "&LF");
    // A long statement parts from its solution too; characters count, not bytes.
    bench.SetProblems({{Repeat('y', 300) + std::string(213, '\xB0') , "s"}});
    bench.app.Problems[1].Statement = Repeat('y', 511) + "\u00B0";  // 512 characters, 513 bytes
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.BlockCount, 1);
}

TEST(Composition, SolutionsTogetherRunOnAsOneParagraph) {
    TestBench bench;
    bench.SetProblems({{"A", "a"}, {"B", "b"}});
    bench.app.Settings.SolutionPosition = 2;
    bench.app.Settings.NumberColour = 0;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 4);
    const std::string box1 = "&BC=0;0;0:&FF=REC,20,5.5:1) &BC=Blanco:&FF=REC,20,5.5:";
    const std::string box2 = "&BC=0;0;0:&FF=REC,20,5.5:2) &BC=Blanco:&FF=REC,20,5.5:";
    EXPECT_EQ(bench.app.Blocks[3].text, "#MARK=003&+BSolutions:&-B&LF &+B" + box1 + "&-B& a");
    EXPECT_EQ(bench.app.Blocks[4].text, "#MARK=004 &+B" + box2 + "&-B& b");
    EXPECT_EQ(bench.app.Blocks[3].problem, -1);
    EXPECT_EQ(bench.app.Blocks[4].problem, -2);
}

TEST(Composition, ARunOnSolutionWithColumnsEndsItsLine) {
    TestBench bench;
    bench.SetProblems({{"A", "&SP=10: -"}, {"B", "&SP=10: -&LF"}, {"C", "c"}});
    bench.app.Settings.SolutionPosition = 2;
    bench.app.Settings.NumberColour = 0;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 6);
    const std::string& first = bench.app.Blocks[4].text;
    EXPECT_EQ(first.substr(first.size() - 12), "&SP=10: -&LF");
    const std::string& second = bench.app.Blocks[5].text;
    EXPECT_EQ(second.substr(second.size() - 12), "&SP=10: -&LF");
    const std::string& third = bench.app.Blocks[6].text;
    EXPECT_EQ(third.substr(third.size() - 6), "&-B& c");
}

TEST(Composition, EmptySolutionShiftsTheSolutionNumbers) {
    TestBench bench;
    // Generators end their solutions with a line end, so every solution mark opens a line.
    bench.SetProblems({{"1", "a&LF"}, {"2", "b&LF"}, {"3", ""}, {"4", "d&LF"}, {"5", "e&LF"}});
    bench.app.Settings.SolutionPosition = 2;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 9);
    for (int k = 1; k <= 4; ++k) EXPECT_EQ(bench.app.Blocks[5 + k].problem, -k);
    // A click on the last solution selects problem 4, not 5.
    bench.DrawMarks();
    ASSERT_EQ(bench.app.Marks.MarkCount, 9);
    bench.app.Marks.MarkSelected[8] = true;
    EXPECT_EQ(std::abs(bench.app.Blocks[bench.app.Marks.MarkProblem[8]].problem), 4);
}

TEST(Composition, SeparatePageWithAllSolutionsEmptyMakesNoSolutionPage) {
    TestBench bench;
    bench.SetProblems({{"1", ""}, {"2", ""}});
    bench.app.Settings.SolutionPosition = 3;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.BlockCount, 2);
    EXPECT_EQ(bench.app.PageCount, 1);
    EXPECT_EQ(bench.app.Blocks[2].page, 1);
}

TEST(Composition, SeparatePageStartsTheSolutionsOnANewPage) {
    TestBench bench(10);
    bench.SetProblems({{"1", "a&LF"}, {"2", "b&LF"}});
    bench.app.Settings.SolutionPosition = 3;
    bench.app.Settings.PagePositionCode = 0;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 4);
    EXPECT_EQ(bench.app.Blocks[1].page, 1);
    EXPECT_EQ(bench.app.Blocks[2].page, 1);
    EXPECT_EQ(bench.app.Blocks[3].page, 2);
    EXPECT_EQ(bench.app.Blocks[4].page, 2);
    EXPECT_EQ(bench.app.PageCount, 2);
    ASSERT_EQ(bench.measure.texts.size(), 2u);
    EXPECT_EQ(bench.measure.texts[1].rfind("#MARK=003", 0), 0u);
}

TEST(Composition, SolutionMarksInsideALineAreNotCountedByTheMeasure) {
    TestBench bench;
    bench.SetProblems({{"A", "a"}, {"B", "b"}});
    bench.app.Settings.SolutionPosition = 2;
    ComposeDocument(bench.app, true, 0);
    // The second solution runs on in the line of the first: its mark is not met at a line
    // start, so the page ends with the first solution block and the other stays unplaced.
    EXPECT_EQ(bench.app.Blocks[3].page, 1);
    EXPECT_EQ(bench.app.Blocks[4].page, 0);
}

TEST(Composition, FirstNumberPrefixAndSuffix) {
    TestBench bench;
    bench.SetProblems({{"a", ""}, {"b", ""}});
    bench.app.Settings.FirstProblemNumber = 7;
    bench.app.Settings.NumberPrefix = "";
    bench.app.Settings.NumberSuffix = ")";
    ComposeDocument(bench.app, true, 0);
    EXPECT_NE(bench.app.Blocks[1].text.find(":7) &BC=Blanco:"), std::string::npos);
    EXPECT_NE(bench.app.Blocks[2].text.find(":8) &BC=Blanco:"), std::string::npos);
}

TEST(Composition, PageNumberLineKeepsItsRoom) {
    TestBench bench;
    bench.SetProblems({{"a", ""}});
    bench.app.Settings.Title = "T";
    bench.app.Settings.PagePositionCode = 0;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.measure.texts.back(), "&+BT&-B&LF&LF" + bench.app.Blocks[1].text);
    EXPECT_FALSE(bench.measure.numberAtFoot.back());
    // At the foot, the layout keeps the number's room on every page, not a blank last line.
    bench.app.Settings.PagePositionCode = 9;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.measure.texts.back(), "&+BT&-B&LF&LF" + bench.app.Blocks[1].text);
    EXPECT_TRUE(bench.measure.numberAtFoot.back());
    bench.app.Settings.PagePositionCode = 1;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.measure.texts.back(), " &LF&+BT&-B&LF&LF" + bench.app.Blocks[1].text);
    EXPECT_FALSE(bench.measure.numberAtFoot.back());
}

TEST(Composition, PagesBreakWhereTheMeasureSays) {
    TestBench bench(3);  // three lines a page
    std::vector<std::pair<std::string, std::string>> texts(7, {"x", ""});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 0;
    bench.app.Settings.PagePositionCode = 0;
    ComposeDocument(bench.app, true, 5);
    // Each block is one line: three blocks a page, the last page with the empty last line.
    EXPECT_EQ(bench.app.PageCount, 3);
    EXPECT_EQ(bench.app.Blocks[1].page, 1);
    EXPECT_EQ(bench.app.Blocks[3].page, 1);
    EXPECT_EQ(bench.app.Blocks[4].page, 2);
    EXPECT_EQ(bench.app.Blocks[7].page, 3);
    EXPECT_EQ(bench.app.CurrentPage, 2);
    EXPECT_EQ(PageOfProblem(bench.app, 7), 3);
    EXPECT_EQ(PageOfProblem(bench.app, 99), 1);
    EXPECT_EQ(bench.window.pageLabel, "Pag. 1/2");
    EXPECT_EQ(PageBlocksText(bench.app, 2),
              bench.app.Blocks[4].text + bench.app.Blocks[5].text + bench.app.Blocks[6].text);
    // The second page's layout started at the block that did not fit.
    EXPECT_EQ(bench.measure.texts[1].rfind("#MARK=004", 0), 0u);
}

TEST(Composition, AtMost49BlocksArePlacedOnOnePage) {
    TestBench bench(10000);
    std::vector<std::pair<std::string, std::string>> texts(60, {"x", ""});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 0;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.PageCount, 1);
    EXPECT_EQ(bench.app.Blocks[49].page, 1);
    EXPECT_EQ(bench.app.Blocks[50].page, 0);
}

TEST(Composition, BlockTallerThanAPageTakesAPageOfItsOwn) {
    // Measured once, not again for each of the 500 pages there may be; the problems
    // behind it keep their pages.
    TestBench bench(1);
    bench.SetProblems({{"x&LFy&LFz", ""}, {"w", ""}});
    bench.app.Settings.SolutionPosition = 0;
    bench.app.Settings.PagePositionCode = 0;
    bench.app.PageCount = 0;
    ComposeDocument(bench.app, true, 0);
    EXPECT_LE(bench.measure.texts.size(), 3u);
    EXPECT_EQ(bench.app.Blocks[1].page, 1);
    EXPECT_EQ(bench.app.Blocks[2].page, 2);
    EXPECT_EQ(bench.app.PageCount, 2);
}

TEST(Composition, CurrentPageStaysWhenInRange) {
    TestBench bench(3);
    std::vector<std::pair<std::string, std::string>> texts(6, {"x", ""});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 0;
    bench.app.Settings.PagePositionCode = 0;
    bench.app.CurrentPage = 2;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.CurrentPage, 2);
    bench.app.CurrentPage = 9;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.CurrentPage, 1);
}

TEST(Composition, PositionOutsideTheRangeGivesEmptyBlocks) {
    TestBench bench;
    bench.SetProblems({{"a", "b"}});
    bench.app.Settings.SolutionPosition = 7;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.BlockCount, 1);
    EXPECT_EQ(bench.app.Blocks[1].text, "");
    EXPECT_EQ(bench.app.Blocks[1].problem, 1);
}

TEST(Composition, FiveHundredLongProblemsStayWithinTheBlocks) {
    TestBench bench;
    std::vector<std::pair<std::string, std::string>> texts(500, {Repeat('s', 600), Repeat('l', 600)});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 1;
    ComposeDocument(bench.app, true, 0);
    EXPECT_EQ(bench.app.BlockCount, 1000);
    // Block 1000 carries its whole number: a wrapped "000" would read as no mark at all.
    EXPECT_EQ(bench.app.Blocks[1000].text.rfind("#MARK=1000&+I", 0), 0u);
}
