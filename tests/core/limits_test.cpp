// The collection at each of its fixed sizes: 500 problems, 1024 blocks, 500 stored
// solutions, 256 tree nodes, 999 module names, 500 pages. A command that would pass a size
// refuses, a file that passes it is a bad file, and composition places what fits.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core_fakes.h"

namespace fs = std::filesystem;

namespace {
std::string Repeat(char c, int n) { return std::string(static_cast<std::size_t>(n), c); }

void FillProblems(TestBench& bench, int count, const std::string& statement, const std::string& solution) {
    bench.SetProblems(std::vector<std::pair<std::string, std::string>>(count, {statement, solution}));
}

std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

struct Folder {
    Folder() {
        path = fs::temp_directory_path() /
               ("sumforge_limits_" + std::to_string(::getpid()) + "_" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(path);
        fs::create_directories(path);
    }
    ~Folder() { fs::remove_all(path); }
    std::string operator/(const std::string& name) const { return (path / name).string(); }
    fs::path path;
};
} // namespace

TEST(Limits, FiveHundredProblemsSaveAndOpen) {
    Folder folder;
    TestBench bench;
    FillProblems(bench, kMaxProblems, "s&LF", "a");
    bench.app.CurrentFileName = folder / "full.col";
    ASSERT_TRUE(SaveFile(bench.app));
    TestBench other;
    other.app.CurrentFileName = folder / "full.col";
    ASSERT_TRUE(OpenFile(other.app));
    EXPECT_EQ(other.app.ProblemCount(), kMaxProblems);
    EXPECT_EQ(other.app.Problems[kMaxProblems].Statement, "s&LF");
    EXPECT_EQ(other.app.Problems[kMaxProblems].VariantNumber, kMaxProblems);
}

TEST(Limits, FileWithMoreThanFiveHundredProblemsIsABadFile) {
    Folder folder;
    TestBench bench;
    FillProblems(bench, kMaxProblems, "s", "a");
    bench.app.CurrentFileName = folder / "full.col";
    ASSERT_TRUE(SaveFile(bench.app));
    // One more problem line in the head and one more element: 501 problems.
    std::string bytes = ReadAll(folder / "full.col");
    const std::size_t lines = bytes.find("#PROPARAM)");
    ASSERT_NE(lines, std::string::npos);
    const std::string extraLine = bytes.substr(lines - 102, 102);
    bytes.insert(lines, extraLine);
    bytes += "#PRO501(#ENU(s#ENU)#SOL(a#SOL)#PRO501)";
    std::ofstream(folder / "over.col", std::ios::binary) << bytes;
    TestBench other;
    other.app.CurrentFileName = folder / "over.col";
    EXPECT_FALSE(OpenFile(other.app));
    EXPECT_EQ(other.app.ProblemCount(), 0);
    ASSERT_FALSE(other.window.messages.empty());
    EXPECT_EQ(other.window.messages.back(), "Error: Bad file.");
}

TEST(Limits, PasteAndInsertRefuseTheFiveHundredAndFirst) {
    TestBench bench;
    FillProblems(bench, kMaxProblems, "s", "a");
    ComposeDocument(bench.app, true, 0);
    bench.SelectProblem(1);
    CopyCommand(bench.app);
    ASSERT_TRUE(IsProblemClipboardText(bench.clipboard.text));
    PasteCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxProblems);
    InsertSimilarCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxProblems);
    // One below the limit the same paste is taken.
    bench.app.Settings.ProblemCount = kMaxProblems - 1;
    ComposeDocument(bench.app, true, 0);
    PasteCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxProblems);
}

TEST(Limits, BlocksOfFiveHundredProblemsStayWithinTheTable) {
    // Long texts give two blocks a problem in position 1; positions 2 and 3 add a block for
    // each stored solution. None passes 1000, below the table's 1024.
    const std::string longText = Repeat('l', 600);
    for (int position = 0; position <= 3; ++position) {
        TestBench bench;
        FillProblems(bench, kMaxProblems, longText, longText);
        bench.app.Settings.SolutionPosition = position;
        ComposeDocument(bench.app, true, 0);
        EXPECT_EQ(bench.app.BlockCount, position == 0 ? kMaxProblems : 2 * kMaxProblems) << position;
        EXPECT_LE(bench.app.BlockCount, kMaxBlocks);
    }
}

TEST(Limits, FiveHundredStoredSolutionsAllGetTheirBlock) {
    TestBench bench;
    std::vector<std::pair<std::string, std::string>> texts;
    for (int i = 1; i <= kMaxProblems; ++i) texts.push_back({"s" + std::to_string(i), "answer" + std::to_string(i)});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 3;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 2 * kMaxProblems);
    const DocumentBlock& last = bench.app.Blocks[2 * kMaxProblems];
    EXPECT_EQ(last.problem, -kMaxProblems);
    EXPECT_NE(last.text.find("answer500"), std::string::npos);
    EXPECT_EQ(bench.app.Blocks[kMaxProblems + 1].problem, -1);
}

TEST(Limits, FiveHundredPagesAndTheBlocksBeyondStayUnplaced) {
    // Every block is two lines and a page holds three: one block a page. 500 problems with
    // long solutions make 1000 blocks, so the page run stops at page 500.
    TestBench bench(3);
    FillProblems(bench, kMaxProblems, "s&LFt", Repeat('l', 600) + "&LFm");
    bench.app.Settings.SolutionPosition = 1;
    bench.app.Settings.PagePositionCode = 0;
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 2 * kMaxProblems);
    EXPECT_EQ(bench.measure.texts.size(), static_cast<std::size_t>(kMaxPages));
    EXPECT_EQ(bench.app.Blocks[1].page, 1);
    EXPECT_EQ(bench.app.Blocks[kMaxPages].page, kMaxPages);
    EXPECT_EQ(bench.app.Blocks[kMaxPages + 1].page, 0);
    EXPECT_EQ(PageOfProblem(bench.app, kMaxProblems), 0);
    EXPECT_EQ(PageBlocksText(bench.app, kMaxPages), bench.app.Blocks[kMaxPages].text);
    EXPECT_GE(bench.app.PageCount, 1);
    EXPECT_LE(bench.app.PageCount, kMaxPages);
}

TEST(Limits, TopicTreeOfMoreThan256NodesMakesProblemsOfTheFirst256Only) {
    TestBench bench;
    for (int i = 1; i <= kMaxTopicNodes + 44; ++i) {
        TopicNode node;
        node.label = "t" + std::to_string(i);
        node.module = "KVOL_TEST";
        node.routine = i % 999;
        node.selected = true;
        node.amount = 1;
        bench.app.TopicTree.push_back(node);
    }
    Arbol_to_Var(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxTopicNodes);
    EXPECT_EQ(bench.app.Problems[kMaxTopicNodes].RoutineId, kMaxTopicNodes);
}

TEST(Limits, TopicTreeAskingForMoreThanFiveHundredProblemsStopsAtFiveHundred) {
    TestBench bench;
    for (int i = 1; i <= 3; ++i) {
        TopicNode node;
        node.module = "KVOL_TEST";
        node.routine = i;
        node.selected = true;
        node.amount = 200;
        bench.app.TopicTree.push_back(node);
    }
    Arbol_to_Var(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxProblems);
    EXPECT_EQ(bench.app.Problems[kMaxProblems].RoutineId, 3);
    EXPECT_EQ(bench.app.Problems[kMaxProblems].GroupIndex, 100);
}

TEST(Limits, NineHundredNinetyNineModuleNames) {
    ApplicationState app;
    for (int i = 1; i <= kMaxModuleNames + 50; ++i) AddModuleName(app, "KVOL_M" + std::to_string(i));
    ASSERT_EQ(app.ModuleNames.size(), static_cast<std::size_t>(kMaxModuleNames));
    EXPECT_EQ(app.ModuleNames.back(), "KVOL_M999");
    // Names already known are not added again, at the limit or below it.
    AddModuleName(app, "KVOL_M1");
    EXPECT_EQ(app.ModuleNames.size(), static_cast<std::size_t>(kMaxModuleNames));
}

TEST(Limits, OpeningFilesKeepsModuleNamesWithinTheirLimit) {
    // Opening does not clear the names, so files of many modules, one after another, fill
    // the list up to its end and no further.
    Folder folder;
    TestBench bench;
    for (int file = 0; file < 3; ++file) {
        std::vector<std::pair<std::string, std::string>> texts(kMaxProblems, {"s", "a"});
        bench.SetProblems(texts);
        for (int i = 1; i <= kMaxProblems; ++i) bench.app.Problems[i].ModuleName = "KVOL_F" + std::to_string(file * 1000 + i);
        bench.app.CurrentFileName = folder / "m.col";
        ASSERT_TRUE(SaveFile(bench.app));
        ASSERT_TRUE(OpenFile(bench.app));
    }
    EXPECT_EQ(bench.app.ModuleNames.size(), static_cast<std::size_t>(kMaxModuleNames));
}
