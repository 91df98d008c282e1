#include <gtest/gtest.h>

#include "core/collection.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core_fakes.h"
#include "generators/generator_contract.h"
#include "mathservices/utf8_text.h"

namespace {
// A clock value after which the first draw times 900 reaches 899.
std::int32_t ClockGivingVariant899() {
    for (std::int32_t n = 0; n < 2000000; ++n) {
        RandomStream s;
        s.SeedStream(n);
        if (static_cast<int>(s.Draw() * 900.0) == 899) return n;
    }
    return -1;
}

TopicNode Leaf(const std::string& module, int routine, int amount, int items) {
    TopicNode node;
    node.level = 2;
    node.kind = kNodeExercises;
    node.module = module + std::string(80 - module.size(), ' ');
    node.routine = routine;
    node.selected = true;
    node.amount = amount;
    node.itemsPerProblem = items;
    return node;
}
} // namespace

TEST(Creation, GroupOfFiveGetsConsecutiveSeedsPastTheFirstDrawRange) {
    TestBench bench;
    const std::int32_t clock = ClockGivingVariant899();
    ASSERT_GE(clock, 0);
    bench.app.ClockSeed = [clock] { return clock; };
    bench.app.Reseed();
    bench.app.TopicTree = {TopicNode{}, Leaf("KVOL_TEST", 1, 5, 4)};
    Arbol_to_Var(bench.app);
    ASSERT_EQ(bench.app.ProblemCount(), 5);
    const int seed = bench.app.Problems[1].Seed;
    EXPECT_EQ(bench.app.Problems[1].VariantNumber, 899);
    EXPECT_EQ(bench.app.Problems[5].VariantNumber, 903);
    for (int i = 1; i <= 5; ++i) {
        const ProblemRecord& r = bench.app.Problems[i];
        EXPECT_EQ(r.Seed, seed + i - 1);
        EXPECT_EQ(r.GroupSize, 5);
        EXPECT_EQ(r.GroupIndex, i);
        EXPECT_EQ(r.ItemCount, 4);
        EXPECT_EQ(r.RoutineId, 1);
        EXPECT_EQ(r.ModuleName, "KVOL_TEST");
    }
    // The variant is drawn before the seed.
    RandomStream replay;
    replay.SeedStream(clock);
    EXPECT_EQ(static_cast<int>(replay.Draw() * 900.0), 899);
    EXPECT_EQ(static_cast<int>(replay.Draw() * 9000.0), seed);
    // The code keeps the last three digits of 903.
    EXPECT_EQ(ProblemCodeOf(bench.app.Problems[5]).substr(3, 3), "903");
}

TEST(Creation, ArbolToVarClearsUnselectedNodesAndNamesModulesOnce) {
    TestBench bench;
    TopicNode off = Leaf("KVOL_TEST", 2, 3, 0);
    off.selected = false;
    TopicNode zero = Leaf("KVOL_TEST", 2, 0, 0);
    bench.app.TopicTree = {TopicNode{}, Leaf("KVOL_TEST", 1, 2, 1), off, zero, Leaf("KVOL_OTHER", 1, 1, 0),
                           Leaf("KVOL_TEST", 2, 1, 0)};
    Arbol_to_Var(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 4);
    EXPECT_EQ(bench.app.TopicTree[2].amount, 0);
    EXPECT_FALSE(bench.app.TopicTree[3].selected);
    EXPECT_EQ(bench.app.ModuleNames, (std::vector<std::string>{"KVOL_TEST", "KVOL_OTHER"}));
    EXPECT_EQ(bench.app.Problems[3].ModuleName, "KVOL_OTHER");
    EXPECT_EQ(bench.app.Problems[4].RoutineId, 2);
    // The records only: the command that asked for them brings the menus up to date.
    EXPECT_TRUE(bench.menus.checked.empty());
}

TEST(Creation, AppendProblemGroupGivesTheRecordsOfOneTreeNode) {
    TestBench fromTree;
    TestBench direct;
    for (TestBench* b : {&fromTree, &direct}) {
        b->app.ClockSeed = [] { return 4711; };
        b->app.Reseed();
    }
    fromTree.app.TopicTree = {TopicNode{}, Leaf("KVOL_TEST", 1, 3, 2), Leaf("KVOL_OTHER", 4, 2, 0)};
    Arbol_to_Var(fromTree.app);
    AppendProblemGroup(direct.app, "KVOL_TEST   ", 1, 3, 2);
    AppendProblemGroup(direct.app, " KVOL_OTHER", 4, 2, 0);
    ASSERT_EQ(direct.app.ProblemCount(), 5);
    ASSERT_EQ(fromTree.app.ProblemCount(), 5);
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(direct.app.Problems[i], fromTree.app.Problems[i]) << i;
    EXPECT_EQ(direct.app.ModuleNames, fromTree.app.ModuleNames);
    EXPECT_EQ(direct.app.Problems[4].ModuleName, "KVOL_OTHER");
    EXPECT_EQ(direct.app.Problems[5].GroupIndex, 2);
}

TEST(Creation, AppendProblemGroupStopsAtFiveHundred) {
    TestBench bench;
    for (int k = 0; k < 5; ++k) AppendProblemGroup(bench.app, "KVOL_TEST", 1, 99, 1);
    EXPECT_EQ(bench.app.ProblemCount(), 495);
    AppendProblemGroup(bench.app, "KVOL_TEST", 2, 20, 1);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxProblems);
    EXPECT_EQ(bench.app.Problems[kMaxProblems].GroupIndex, 5);
    EXPECT_EQ(bench.app.Problems[kMaxProblems].GroupSize, 20);
}

TEST(Creation, MoreThanFiveHundredWantedStopsAtFiveHundred) {
    TestBench bench;
    bench.app.TopicTree = {Leaf("KVOL_TEST", 1, 99, 1), Leaf("KVOL_TEST", 1, 99, 1), Leaf("KVOL_TEST", 1, 99, 1),
                           Leaf("KVOL_TEST", 1, 99, 1), Leaf("KVOL_TEST", 1, 99, 1), Leaf("KVOL_TEST", 1, 99, 1)};
    Arbol_to_Var(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), kMaxProblems);
}

TEST(Creation, GroupSizeOfHundredOrMoreShowsItsLastTwoDigits) {
    TestBench bench;
    ProblemRecord r;
    r.ModuleName = "KVOL_TEST";
    r.RoutineId = 1;
    r.VariantNumber = 1234;
    r.Seed = 12345;
    r.ItemCount = 7;
    r.GroupSize = 123;
    r.GroupIndex = 101;
    EXPECT_EQ(ProblemCodeOf(r), "0012342345072301");
    bench.app.Problems[1] = r;
    bench.app.Settings.ProblemCount = 1;
    CrearColeccion(bench.app, 1);
    // The generator sees the truncated numbers.
    EXPECT_EQ(bench.app.Problems[1].Statement, "Echo 234/2345/7/23/1&LF");
}

TEST(Creation, ShufflingOneRecordRunsTwiceAndChangesNothing) {
    TestBench bench;
    bench.SetProblems({{"a", "b"}});
    const ProblemRecord before = bench.app.Problems[1];
    RandomStream expected = bench.app.hub.Workspace().stream;
    for (int i = 0; i < 4; ++i) expected.Draw();
    Barajar(bench.app);
    EXPECT_EQ(bench.app.Problems[1], before);
    EXPECT_EQ(bench.app.hub.Workspace().stream.State(), expected.State());
}

TEST(Creation, ShuffleSwapsIdentitiesButNotTexts) {
    TestBench bench;
    std::vector<std::pair<std::string, std::string>> texts;
    for (int i = 1; i <= 40; ++i) texts.push_back({"S" + std::to_string(i), "L" + std::to_string(i)});
    bench.SetProblems(texts);
    Barajar(bench.app);
    std::vector<int> variants;
    int moved = 0;
    for (int i = 1; i <= 40; ++i) {
        EXPECT_EQ(bench.app.Problems[i].Statement, "S" + std::to_string(i));
        variants.push_back(bench.app.Problems[i].VariantNumber);
        if (bench.app.Problems[i].VariantNumber != i) ++moved;
    }
    std::sort(variants.begin(), variants.end());
    for (int i = 1; i <= 40; ++i) EXPECT_EQ(variants[i - 1], i);
    EXPECT_GT(moved, 10);
}

TEST(Creation, CrearColeccionGeneratesComposesAndClearsTheFileName) {
    TestBench bench;
    bench.app.TopicTree = {TopicNode{}, Leaf("KVOL_TEST", 1, 3, 2), Leaf("KVOL_TEST", 2, 2, 0)};
    bench.app.Settings.Sorted = true;
    bench.app.CurrentFileName = "/tmp/old.col";
    Arbol_to_Var(bench.app);
    CrearColeccion(bench.app, 1);
    EXPECT_EQ(bench.app.CurrentFileName, "");
    EXPECT_TRUE(bench.app.Modified);
    EXPECT_EQ(bench.window.caption, bench.app.ApplicationTitle);
    EXPECT_EQ(bench.app.Problems[1].Statement.rfind("Echo ", 0), 0u);
    EXPECT_EQ(bench.app.Problems[5].Statement.rfind("Silent ", 0), 0u);
    EXPECT_EQ(bench.app.Problems[5].Solution, "");
    EXPECT_EQ(bench.app.BlockCount, 5);
}

TEST(Creation, UnknownModuleGetsTheWrongVersionTexts) {
    TestBench bench;
    bench.SetProblems({{"", ""}});
    bench.app.Problems[1].ModuleName = "KVOL_GONE";
    CrearColeccion(bench.app, 1);
    EXPECT_EQ(bench.app.Problems[1].Statement, "<ERROR: Cannot re-create the problem.> Perhaps its a wrong version.&LF");
    EXPECT_EQ(bench.app.Problems[1].Solution, "<ERROR>&LF");
}

TEST(Creation, RealDrillMakesTheSameTextsAsItsCode) {
    ApplicationState app;
    app.ClockSeed = [] { return 77; };
    app.Reseed();
    app.Settings.Sorted = false;
    ProblemRecord& r = app.Problems[1];
    r.ModuleName = "KVOL_MATH_NRP";
    r.RoutineId = 12;
    r.VariantNumber = 123;
    r.Seed = 4567;
    r.ItemCount = 5;
    r.GroupSize = 1;
    r.GroupIndex = 1;
    app.Settings.ProblemCount = 1;
    CrearColeccion(app, 1);
    std::string statement, solution;
    GeneratorHub hub;
    hub.RunGenerator("KVOL_MATH_NRP", "0121234567050101", statement, solution);
    EXPECT_EQ(app.Problems[1].Statement, statement);
    EXPECT_EQ(app.Problems[1].Solution, solution);
}

TEST(Creation, RegToVarReadsLinesAndRefusesBadLengths) {
    TestBench bench;
    ProblemRecord r;
    r.ModuleName = "KVOL_MATH_NRP";
    r.RoutineId = 12;
    r.VariantNumber = 5;
    r.Seed = 6789;
    r.ItemCount = 8;
    r.GroupSize = 3;
    r.GroupIndex = 2;
    const std::string line = ProblemIdentity(r) + "0001\r\n";
    ASSERT_EQ(line.size(), 102u);
    REG_To_Var(bench.app, line + line);
    EXPECT_EQ(bench.app.ProblemCount(), 2);
    EXPECT_EQ(bench.app.Problems[2].ModuleName, "KVOL_MATH_NRP");
    EXPECT_EQ(bench.app.Problems[2].Seed, 6789);
    EXPECT_EQ(bench.app.Problems[2].GroupIndex, 2);
    EXPECT_EQ(bench.app.ModuleNames, std::vector<std::string>{"KVOL_MATH_NRP"});
    REG_To_Var(bench.app, line + " ");
    EXPECT_EQ(bench.app.ProblemCount(), 0);
    REG_To_Var(bench.app, "");
    EXPECT_EQ(bench.app.ProblemCount(), 0);
}

TEST(Creation, RegToVarKeepsDamagedColumnsInsideTheirDigits) {
    // Signs, points and junk in the code columns of a damaged file: every field stays
    // within what its columns can hold, and the code written back is 16 digits again.
    TestBench bench;
    const std::string module = Utf8PadRight("KVOL_MATH_PES", 80);
    REG_To_Var(bench.app, module + "001002-73*990101" + "0005\r\n" + module + "-1.5009e99-9-912" + "0006\r\n");
    ASSERT_EQ(bench.app.ProblemCount(), 2);
    const ProblemRecord& a = bench.app.Problems[1];
    EXPECT_EQ(a.RoutineId, 1);
    EXPECT_EQ(a.VariantNumber, 2);
    EXPECT_EQ(a.Seed, 0);
    EXPECT_EQ(a.ItemCount, 99);
    EXPECT_EQ(a.GroupSize, 1);
    EXPECT_EQ(a.GroupIndex, 1);
    const ProblemRecord& b = bench.app.Problems[2];
    EXPECT_EQ(b.RoutineId, 0);
    EXPECT_EQ(b.VariantNumber, 500);
    EXPECT_EQ(b.Seed, 9);
    EXPECT_EQ(b.ItemCount, 0);
    EXPECT_EQ(b.GroupSize, 0);
    EXPECT_EQ(b.GroupIndex, 12);
    for (int i = 1; i <= 2; ++i) EXPECT_TRUE(IsProblemCode(ProblemCodeOf(bench.app.Problems[i]))) << i;
}

TEST(Creation, NewCollectionCommandRunsTheWizardAndCreates) {
    TestBench bench;
    bench.window.wizardAccepts = true;
    bench.app.TopicTree = {TopicNode{}, Leaf("KVOL_TEST", 1, 2, 1)};
    bench.app.ModuleNames = {"KVOL_OLD"};
    NewCollectionCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 2);
    EXPECT_EQ(bench.app.ModuleNames, std::vector<std::string>{"KVOL_TEST"});
    EXPECT_EQ(bench.app.UndoCaption, "Undo new collection");
    EXPECT_TRUE(bench.menus.visible["mnu_Edicion"]);
    EXPECT_TRUE(bench.menus.checked["mnu_COLEC_SolDespPro"]);
}

// The topic tree of a subject.

TEST(TopicTree, BuildsFoldersAndLeavesInTeachingOrder) {
    TestBench bench;
    ASSERT_TRUE(LoadTOLISTBOX_BUILT_CODE(bench.app, "Mathematics", true, true, true, true));
    const auto& tree = bench.app.TopicTree;
    ASSERT_EQ(tree.size(), 6u);
    EXPECT_EQ(tree[0].kind, kNodeSubject);
    EXPECT_EQ(tree[0].label, "Mathematics");
    EXPECT_TRUE(tree[0].expanded);
    EXPECT_EQ(tree[1].kind, kNodeFolder);
    EXPECT_EQ(tree[1].label, "Test topic");
    EXPECT_FALSE(tree[1].expanded);
    EXPECT_EQ(tree[2].label, "Echo");
    EXPECT_EQ(tree[2].routine, 1);
    EXPECT_EQ(tree[2].itemsMax, 10);
    EXPECT_EQ(tree[2].description, "Writes its fields");
    EXPECT_EQ(tree[2].kind, kNodeExercises);
    EXPECT_EQ(tree[2].level, 2);
    EXPECT_EQ(tree[2].module, "KVOL_TEST" + std::string(71, ' '));
    EXPECT_EQ(tree[3].label, "Silent");
    EXPECT_EQ(tree[4].label, "Theory topic");
    EXPECT_EQ(tree[5].kind, kNodeTheory);
    EXPECT_EQ(bench.app.CandidateList.size(), 5u);
    EXPECT_TRUE(std::is_sorted(bench.app.CandidateList.begin(), bench.app.CandidateList.end()));
    EXPECT_EQ(tree[2].listIndex, 1);
}

TEST(TopicTree, FolderWhoseLeavesAreFilteredStays) {
    TestBench bench;
    ASSERT_TRUE(LoadTOLISTBOX_BUILT_CODE(bench.app, " mathematics ", false, true, false, false));
    const auto& tree = bench.app.TopicTree;
    ASSERT_EQ(tree.size(), 4u);
    EXPECT_EQ(tree[2].label, "Echo");
    EXPECT_EQ(tree[3].label, "Theory topic");
    EXPECT_TRUE(tree[3].isFolder);
}

TEST(TopicTree, OtherSubjectGivesOnlyTheRoot) {
    TestBench bench;
    ASSERT_TRUE(LoadTOLISTBOX_BUILT_CODE(bench.app, "Physics", true, true, true, true));
    EXPECT_EQ(bench.app.TopicTree.size(), 1u);
    EXPECT_TRUE(bench.app.CandidateList.empty());
}

namespace {
void ManyRoutine(GeneratorWorkspace& ws) { ws.Statement = "x"; }
} // namespace

TEST(TopicTree, MoreThan256NodesIsRefusedKeepingWhatFits) {
    GeneratorModule crowded{"KVOL_CROWD", 300, {}};
    for (int i = 1; i <= 300; ++i)
        crowded.routines.push_back({i, ManyRoutine, {"040", "Crowded topic", "001", "1", "", "Many", "One of many"}});
    TestBench bench(GeneratorHub({crowded}));
    EXPECT_FALSE(LoadTOLISTBOX_BUILT_CODE(bench.app, "Mathematics", true, false, false, false));
    EXPECT_EQ(bench.app.TopicTree.size(), static_cast<std::size_t>(kMaxTopicNodes));
}

TEST(TopicTree, RealCatalogueHasTheDrill) {
    ApplicationState app;
    ASSERT_TRUE(LoadTOLISTBOX_BUILT_CODE(app, "Mathematics", true, true, true, true));
    bool found = false;
    for (const auto& node : app.TopicTree)
        if (TrimBlanks(node.module) == "KVOL_MATH_NRP" && node.routine == 12) found = node.itemsMax == 26;
    EXPECT_TRUE(found);
}

TEST(ApplicationStateData, LimitsConstantsAndNumberTexts) {
    ApplicationState app;
    EXPECT_EQ(std::string(kBuildLanguage), "ENG");
    EXPECT_EQ(std::string(kBuildMark), "TOLM");
    EXPECT_EQ(app.ApplicationTitle, "Tolmen - Sumforge");
    EXPECT_EQ(app.Problems.size(), static_cast<std::size_t>(kMaxProblems + 1));
    EXPECT_EQ(app.Blocks.size(), static_cast<std::size_t>(kMaxBlocks + 1));
    EXPECT_EQ(app.numberTexts.timesTen, "\u00B710");
    EXPECT_EQ(app.numberTexts.deviationMarkup, "&sigma");
    EXPECT_EQ(app.hub.Workspace().symbols.decimalSeparator, ".");
    EXPECT_EQ(app.hub.Workspace().symbols.timesTen, "\u00B710");
    EXPECT_EQ(app.ZoomScale, 1.0);
    EXPECT_EQ(app.ProblemCount(), 0);
    EXPECT_EQ(SolutionWord("ENG"), "Solution");
    EXPECT_EQ(SolutionsWord("ESP"), "Soluciones");
    EXPECT_EQ(SolutionWord("ING"), "");
    EXPECT_EQ(SolutionsWord("SPA"), "");
    for (int i = 0; i < kToolCount; ++i) EXPECT_TRUE(app.ToolVisible[i]);
    EXPECT_FALSE(app.ToolEnabled[2]);
    EXPECT_FALSE(app.ToolEnabled[7]);
    EXPECT_TRUE(app.ToolEnabled[8]);
}
