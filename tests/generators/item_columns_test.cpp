// Items never wider than their columns: the column set follows the measured width of the
// items, in the statement and in the solution each on its own.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generators/item_drill.h"
#include "typesetter/width_model.h"

namespace {
GeneratorWorkspace SeededWorkspace(int seed) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(seed);
    return ws;
}

// The number of column marks in the first row of a text, after its head line.
int MarksInFirstRow(const std::string& text) {
    const std::size_t head = text.find("&LF");
    const std::size_t end = text.find("&LF", head + 3);
    int marks = 0;
    for (std::size_t at = text.find("&SP=", head); at != std::string::npos && at < end; at = text.find("&SP=", at + 1))
        ++marks;
    return marks;
}

const std::string kLongSum = "(-11) + (-12) - (-13) + (-14)"; // a third of the line
} // namespace

TEST(ColumnPercent, ReadsTheLeftPosition) {
    EXPECT_DOUBLE_EQ(ColumnPercent("&SP=29:"), 29);
    EXPECT_DOUBLE_EQ(ColumnPercent("&SP=37.5:"), 37.5);
}

TEST(ItemsFitColumns, MeasuresEachItemAgainstItsOwnColumn) {
    TypesetterState model;
    const double sum = ModelMarkupWidth(model, "&+Ba)&-B&+I " + kLongSum + "&-I");
    ASSERT_GT(sum, 0.24 * kItemTextWidth);
    ASSERT_LT(sum, 0.38 * kItemTextWidth - kItemGap);
    EXPECT_TRUE(ItemsFitColumns({"&+Ba)&-B 1 + 2", "&+Bb)&-B 3 + 4"}, kStatementColumns4));
    EXPECT_FALSE(ItemsFitColumns({"&+Ba)&-B&+I " + kLongSum + "&-I"}, kStatementColumns4));
    EXPECT_TRUE(ItemsFitColumns({"&+Ba)&-B&+I " + kLongSum + "&-I"}, kStatementColumns2));
    // The third column of the three-column set reaches the right margin.
    EXPECT_TRUE(ItemsFitColumns({"&+Ba)&-B 1", "&+Bb)&-B 2", "&+Bc)&-B&+I " + kLongSum + "&-I"}, kStatementColumns3));
    EXPECT_FALSE(ItemsFitColumns({"&+Ba)&-B 1", "&+Bb)&-B 2", "&+Bc)&-B&+I " + kLongSum + "&-I"}, kStatementColumns4));
}

TEST(FitColumns, KeepsThePreferredSetWhenItFitsAndTakesFewerColumnsOtherwise) {
    const std::vector<std::string> narrow = {"&+Ba)&-B 1", "&+Bb)&-B 2"};
    EXPECT_EQ(&FitColumns(narrow, kStatementColumns4, kStatementColumnSets), &kStatementColumns4);
    const std::vector<std::string> wide = {"&+Ba)&-B 1", "&+Bb)&-B " + kLongSum};
    EXPECT_EQ(&FitColumns(wide, kStatementColumns4, kStatementColumnSets), &kStatementColumns2);
    const std::string line(200, 'x');
    EXPECT_EQ(&FitColumns({line}, kStatementColumns4, kStatementColumnSets), &kStatementColumns1);
    // Never more columns than preferred.
    EXPECT_EQ(&FitColumns(narrow, kStatementColumns2, kStatementColumnSets), &kStatementColumns2);
}

TEST(ItemDrillColumns, WideItemsTakeFewerColumnsInStatementAndSolutionEachOnItsOwn) {
    GeneratorWorkspace ws = SeededWorkspace(3);
    ws.ItemCount = 4;
    ws.Solution = "before ";
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    drill.AddItem(kLongSum, "1");
    drill.AddItem("1 + 1", "2");
    drill.AddItem("2 + 2", kLongSum);
    drill.AddItem("3 + 3", "6");
    drill.WriteStatement({"Head.&LF"});
    EXPECT_EQ(ws.Statement, "Head.&LF&SP=5:&+Ba)&-B&+I " + kLongSum + "&-I&SP=43:&+Bb)&-B&+I 1 + 1&-I&LF" +
                                "&SP=5:&+Bc)&-B&+I 2 + 2&-I&SP=43:&+Bd)&-B&+I 3 + 3&-I&LF&LF");
    EXPECT_EQ(ws.Solution, "before &SP=10:&-I&+Ba)&-B 1&SP=50:&-I&+Bb)&-B 2&LF&SP=10:&-I&+Bc)&-B " + kLongSum +
                               "&SP=50:&-I&+Bd)&-B 6&LF");
    EXPECT_EQ(MarksInFirstRow(ws.Statement), 2);
}

TEST(ItemDrillColumns, NarrowItemsKeepTheRoutinesColumns) {
    GeneratorWorkspace ws = SeededWorkspace(3);
    ws.ItemCount = 4;
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    for (const char* item : {"1 + 1", "2 + 2", "3 + 3", "4 + 4"}) drill.AddItem(item, "2");
    drill.WriteStatement({"Head.&LF"});
    EXPECT_EQ(MarksInFirstRow(ws.Statement), 4);
    EXPECT_EQ(ws.Solution.rfind("&SP=10:", 0), 0u);
    EXPECT_NE(ws.Solution.find("&SP=70:"), std::string::npos);
}

TEST(WriteTwoColumnItems, AWideItemGetsALineOfItsOwn) {
    GeneratorWorkspace ws;
    WriteTwoColumnItems(ws, {"&+Ba)&-B x = 1", "&+Bb)&-B x = 2"}, {"&+Ba)&-B 1", "&+Bb)&-B 2"});
    EXPECT_EQ(ws.Statement, "&SP=5:&+Ba)&-B x = 1&SP=50:&+Bb)&-B x = 2&LF");
    EXPECT_EQ(ws.Solution, "&SP=10:&+Ba)&-B 1&SP=50:&+Bb)&-B 2&LF");
    GeneratorWorkspace wide;
    const std::string half(80, 'x');
    WriteTwoColumnItems(wide, {"&+Ba)&-B " + half, "&+Bb)&-B x"}, {"&+Ba)&-B 1", "&+Bb)&-B 2"});
    EXPECT_EQ(wide.Statement, "&SP=5:&+Ba)&-B " + half + "&LF&SP=5:&+Bb)&-B x&LF");
    EXPECT_EQ(wide.Solution, "&SP=10:&+Ba)&-B 1&SP=50:&+Bb)&-B 2&LF");
}
