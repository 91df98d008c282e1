#include <gtest/gtest.h>

#include <functional>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core_fakes.h"

namespace {
// A created collection of five problems of the echo routine, composed.
void Create(TestBench& bench, int count = 5, bool sorted = true) {
    bench.SetProblems(std::vector<std::pair<std::string, std::string>>(count, {"", ""}));
    bench.app.Settings.Sorted = sorted;
    CrearColeccion(bench.app, 1);
    HayColeccion(bench.app);
}

std::vector<std::string> Statements(const ApplicationState& app) {
    std::vector<std::string> s;
    for (int i = 1; i <= app.ProblemCount(); ++i) s.push_back(app.Problems[i].Statement);
    return s;
}
} // namespace

TEST(Undo, SetUndoRecordsAndClears) {
    TestBench bench;
    Create(bench);
    SetUNDO(bench.app, "  delete ");
    EXPECT_EQ(bench.app.UndoCaption, "Undo delete");
    EXPECT_EQ(bench.menus.captions["mnu_Edicion_Undo"], "Undo delete");
    EXPECT_EQ(bench.menus.tooltips[4], "Undo delete");
    EXPECT_TRUE(bench.app.ToolEnabled[4]);
    EXPECT_EQ(bench.menus.captions["mnu_Edicion_Redo"], "Cannot redo");
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Redo"]);
    EXPECT_EQ(bench.app.UndoSnapshot.problems.size(), 5u);
    SetUNDO(bench.app, "");
    EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
    EXPECT_FALSE(bench.app.UndoSnapshot.available);
    EXPECT_FALSE(bench.app.ToolEnabled[4]);
}

// Every command, undone, restores exactly the records and settings of before; redone, those
// of after; and undone again, those of before.
TEST(Undo, EveryCommandIsUndoneAndRedoneExactly) {
    struct Case {
        const char* description;
        std::function<void(TestBench&)> run;
    };
    const std::vector<Case> cases = {
        {"move to the beginning", [](TestBench& b) { b.SelectProblem(3); MoveCommand(b.app, 0); }},
        {"move to the end", [](TestBench& b) { b.SelectProblem(3); MoveCommand(b.app, 1); }},
        {"move up", [](TestBench& b) { b.SelectProblem(3); MoveCommand(b.app, 2); }},
        {"mover down", [](TestBench& b) { b.SelectProblem(3); MoveCommand(b.app, 3); }},
        {"delete", [](TestBench& b) { b.SelectProblem(2); DeleteCommand(b.app); }},
        {"delete", [](TestBench& b) { b.SelectProblem(2); CutCommand(b.app); }},
        {"paste", [](TestBench& b) { b.SelectProblem(4); CopyCommand(b.app); b.SelectProblem(2); PasteCommand(b.app); }},
        {"insert another similar problem", [](TestBench& b) { b.SelectProblem(2); InsertSimilarCommand(b.app); }},
        {"re-create problem", [](TestBench& b) { b.SelectProblem(5); RecreateProblemCommand(b.app); }},
        {"re-create collection", [](TestBench& b) { RecreateCollectionCommand(b.app); }},
        {"no solutions", [](TestBench& b) { SolutionPositionCommand(b.app, 0); }},
        {"new collection", [](TestBench& b) {
             TopicNode leaf;
             leaf.module = "KVOL_TEST";
             leaf.routine = 2;
             leaf.selected = true;
             leaf.amount = 2;
             b.app.TopicTree = {TopicNode{}, leaf};
             b.window.wizardAccepts = true;
             b.window.wizardEdit = [&b] { b.app.Settings.Title = "Another"; };
             NewCollectionCommand(b.app);
         }},
        {"solutions together at the end", [](TestBench& b) { SolutionPositionCommand(b.app, 2); }},
        {"solutions in a separate page", [](TestBench& b) { SolutionPositionCommand(b.app, 3); }},
        {"change properties of the collection", [](TestBench& b) {
             b.window.propertiesAccept = true;
             b.window.propertiesEdit = [&b] {
                 b.app.Settings.Title = "New title";
                 b.app.Settings.FirstProblemNumber = 10;
                 b.app.Settings.NumberColour = 255;
             };
             CollectionPropertiesCommand(b.app);
         }},
    };
    for (const Case& c : cases) {
        TestBench bench;
        Create(bench, 5, false);
        const CollectionImage before = ImageOf(bench.app);
        c.run(bench);
        const CollectionImage after = ImageOf(bench.app);
        EXPECT_FALSE(after == before) << c.description;
        EXPECT_EQ(bench.app.UndoCaption, std::string("Undo ") + c.description);
        UndoCommand(bench.app);
        EXPECT_EQ(ImageOf(bench.app), before) << c.description;
        EXPECT_EQ(bench.app.RedoCaption, std::string("Redo ") + c.description);
        EXPECT_EQ(bench.menus.tooltips[5], std::string("Redo ") + c.description);
        EXPECT_TRUE(bench.app.ToolEnabled[5]);
        EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
        RedoCommand(bench.app);
        EXPECT_EQ(ImageOf(bench.app), after) << c.description;
        EXPECT_EQ(bench.app.UndoCaption, std::string("Undo ") + c.description);
        EXPECT_EQ(bench.app.RedoCaption, "Cannot redo");
        UndoCommand(bench.app);
        EXPECT_EQ(ImageOf(bench.app), before) << c.description;
    }
}

TEST(Undo, NewEditEndsRedo) {
    TestBench bench;
    Create(bench);
    bench.SelectProblem(1);
    DeleteCommand(bench.app);
    UndoCommand(bench.app);
    EXPECT_TRUE(bench.app.RedoSnapshot.available);
    bench.SelectProblem(2);
    DeleteCommand(bench.app);
    EXPECT_FALSE(bench.app.RedoSnapshot.available);
    EXPECT_EQ(bench.app.RedoCaption, "Cannot redo");
    const CollectionImage now = ImageOf(bench.app);
    RedoCommand(bench.app);
    EXPECT_EQ(ImageOf(bench.app), now);
}

TEST(Undo, UndoOfTheFirstNewCollectionGoesBackToNoCollection) {
    TestBench bench;
    bench.window.wizardAccepts = true;
    bench.app.TopicTree = {TopicNode{}};
    TopicNode leaf;
    leaf.module = "KVOL_TEST";
    leaf.routine = 1;
    leaf.selected = true;
    leaf.amount = 3;
    bench.app.TopicTree.push_back(leaf);
    NewCollectionCommand(bench.app);
    ASSERT_EQ(bench.app.ProblemCount(), 3);
    UndoCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 0);
    EXPECT_EQ(bench.app.BlockCount, 0);
    EXPECT_FALSE(bench.app.UndoSnapshot.available);
    // The step can be redone: the empty window keeps the Edit menu for it.
    EXPECT_TRUE(bench.app.RedoSnapshot.available);
    EXPECT_EQ(bench.app.RedoCaption, "Redo new collection");
    EXPECT_TRUE(bench.menus.visible["mnu_Edicion"]);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Redo"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Del"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Paste"]);
    RedoCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 3);
    EXPECT_GT(bench.app.BlockCount, 0);
    EXPECT_EQ(bench.app.UndoCaption, "Undo new collection");
    // The collection is back with its whole window: File commands and the Edit menu.
    EXPECT_TRUE(bench.menus.enabled["mnu_File_Save"]);
    EXPECT_TRUE(bench.menus.visible["mnu_Edicion"]);
}

TEST(Editing, DeletingTheOnlyProblemCanBeUndoneAndRedone) {
    TestBench bench;
    Create(bench, 1);
    bench.app.CurrentFileName = "/tmp/one.col";
    const CollectionImage before = ImageOf(bench.app);
    bench.SelectProblem(1);
    DeleteCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 0);
    EXPECT_EQ(bench.app.BlockCount, 0);
    EXPECT_TRUE(bench.app.UndoSnapshot.available);
    EXPECT_EQ(bench.app.UndoCaption, "Undo delete");
    EXPECT_TRUE(bench.menus.visible["mnu_Edicion"]);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Undo"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_File_Save"]);
    UndoCommand(bench.app);
    EXPECT_EQ(ImageOf(bench.app), before);
    EXPECT_EQ(bench.app.CurrentFileName, "/tmp/one.col");
    EXPECT_EQ(bench.window.caption, "one.col  -  " + bench.app.ApplicationTitle);
    EXPECT_GT(bench.app.BlockCount, 0);
    EXPECT_TRUE(bench.menus.enabled["mnu_File_Save"]);
    EXPECT_EQ(bench.app.RedoCaption, "Redo delete");
    RedoCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 0);
    EXPECT_EQ(bench.app.UndoCaption, "Undo delete");
    EXPECT_TRUE(bench.menus.visible["mnu_Edicion"]);
    UndoCommand(bench.app);
    EXPECT_EQ(ImageOf(bench.app), before);
}

TEST(Editing, PasteIntoTheEmptyWindowDoesNothing) {
    TestBench bench;
    Create(bench, 1);
    bench.SelectProblem(1);
    CutCommand(bench.app);
    ASSERT_EQ(bench.app.ProblemCount(), 0);
    PasteCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 0);
    EXPECT_EQ(bench.app.UndoCaption, "Undo delete");
}

TEST(Editing, RecreateCollectionKeepsTheFileNameAndUndoBringsBackADroppedOne) {
    TestBench bench;
    Create(bench, 3);
    bench.app.CurrentFileName = "/tmp/kept.col";
    RecreateCollectionCommand(bench.app);
    EXPECT_EQ(bench.app.CurrentFileName, "/tmp/kept.col");
    EXPECT_EQ(bench.window.caption, "kept.col  -  " + bench.app.ApplicationTitle);
    // Re-creating one problem drops the name; Undo brings it back, Redo drops it again.
    bench.SelectProblem(2);
    RecreateProblemCommand(bench.app);
    EXPECT_EQ(bench.app.CurrentFileName, "");
    UndoCommand(bench.app);
    EXPECT_EQ(bench.app.CurrentFileName, "/tmp/kept.col");
    EXPECT_EQ(bench.window.caption, "kept.col  -  " + bench.app.ApplicationTitle);
    RedoCommand(bench.app);
    EXPECT_EQ(bench.app.CurrentFileName, "");
    EXPECT_EQ(bench.window.caption, bench.app.ApplicationTitle);
}

TEST(Editing, CancelledWizardKeepsSettingsAndTheUndoPoint) {
    TestBench bench;
    Create(bench, 3);
    bench.SelectProblem(2);
    DeleteCommand(bench.app);
    UndoCommand(bench.app);
    const CollectionImage before = ImageOf(bench.app);
    bench.window.wizardAccepts = false;
    NewCollectionCommand(bench.app);
    EXPECT_EQ(ImageOf(bench.app), before);
    EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
    EXPECT_EQ(bench.app.RedoCaption, "Redo delete");
    EXPECT_TRUE(bench.app.RedoSnapshot.available);
    RedoCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 2);
}

TEST(Editing, CommandsNeedExactlyOneSelectedMark) {
    TestBench bench;
    Create(bench);
    const CollectionImage before = ImageOf(bench.app);
    bench.DrawMarks();
    CutCommand(bench.app);
    EXPECT_FALSE(bench.clipboard.holdsText);
    DeleteCommand(bench.app);
    MoveCommand(bench.app, 1);
    InsertSimilarCommand(bench.app);
    RecreateProblemCommand(bench.app);
    bench.app.Marks.MarkSelected[0] = bench.app.Marks.MarkSelected[1] = true;
    DeleteCommand(bench.app);
    EXPECT_EQ(ImageOf(bench.app), before);
    EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
}

TEST(Editing, MoverProblemaShiftsTheRecordsBetween) {
    TestBench bench;
    bench.SetProblems({{"1", ""}, {"2", ""}, {"3", ""}, {"4", ""}});
    EXPECT_TRUE(MoverProblema(bench.app, 1, 3));
    EXPECT_EQ(Statements(bench.app), (std::vector<std::string>{"2", "3", "1", "4"}));
    EXPECT_TRUE(MoverProblema(bench.app, 4, 1));
    EXPECT_EQ(Statements(bench.app), (std::vector<std::string>{"4", "2", "3", "1"}));
    EXPECT_FALSE(MoverProblema(bench.app, 2, 2));
    EXPECT_FALSE(MoverProblema(bench.app, 0, 2));
    EXPECT_FALSE(MoverProblema(bench.app, 2, 5));
}

TEST(Editing, MoveThatMovesNothingStillLeavesTheUndoPoint) {
    TestBench bench;
    Create(bench);
    const CollectionImage before = ImageOf(bench.app);
    bench.SelectProblem(1);
    MoveCommand(bench.app, 2);
    EXPECT_EQ(ImageOf(bench.app), before);
    EXPECT_EQ(bench.app.UndoCaption, "Undo move up");
    EXPECT_FALSE(bench.app.ToolEnabled[6]);
}

TEST(Editing, MoveGoesToThePageOfTheTarget) {
    TestBench bench(3);
    bench.app.Settings.SolutionPosition = 0;
    bench.app.Settings.PagePositionCode = 0;
    Create(bench, 9);
    const std::string moved = bench.app.Problems[1].Statement;
    bench.SelectProblem(1);
    MoveCommand(bench.app, 1);
    EXPECT_EQ(bench.app.Problems[9].Statement, moved);
    EXPECT_GT(bench.app.PageCount, 1);
    EXPECT_EQ(bench.app.CurrentPage, PageOfProblem(bench.app, 9));
    EXPECT_GT(bench.app.CurrentPage, 1);
}

TEST(Editing, DeleteOfTheLastShowsTheNewLast) {
    TestBench bench;
    Create(bench, 3);
    const auto s = Statements(bench.app);
    bench.SelectProblem(3);
    DeleteCommand(bench.app);
    EXPECT_EQ(Statements(bench.app), (std::vector<std::string>{s[0], s[1]}));
    EXPECT_EQ(bench.app.UndoCaption, "Undo delete");
}

TEST(Editing, CopyAndPastePutTheProblemBeforeTheSelection) {
    TestBench bench;
    Create(bench, 3);
    const auto s = Statements(bench.app);
    bench.SelectProblem(3);
    CopyCommand(bench.app);
    EXPECT_EQ(bench.clipboard.text, ProblemClipboardText(bench.app.Problems[3]));
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Paste"]);
    EXPECT_TRUE(bench.app.ToolEnabled[8]);
    bench.window.scroll = -77;
    bench.SelectProblem(2);
    PasteCommand(bench.app);
    EXPECT_EQ(Statements(bench.app), (std::vector<std::string>{s[0], s[2], s[1], s[2]}));
    EXPECT_EQ(bench.app.Problems[2], bench.app.Problems[4]);
    EXPECT_EQ(bench.window.scroll, -77);
    // Without a selection the problem goes first.
    bench.app.Marks.Clear();
    PasteCommand(bench.app);
    EXPECT_EQ(bench.app.Problems[1], bench.app.Problems[3]);
    EXPECT_EQ(bench.app.ProblemCount(), 5);
}

TEST(Editing, PasteOfOtherTextDisablesPaste) {
    TestBench bench;
    Create(bench, 2);
    bench.clipboard.SetText("GENPROB:NPROB=002:whatever");
    bench.menus.enabled["mnu_Edicion_Paste"] = true;
    PasteCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 2);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Paste"]);
    EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
}

TEST(Editing, PasteAndInsertStopSilentlyAtFiveHundred) {
    TestBench bench;
    Create(bench, 500);
    bench.SelectProblem(10);
    CopyCommand(bench.app);
    PasteCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 500);
    InsertSimilarCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 500);
    EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
    EXPECT_TRUE(bench.window.messages.empty());
}

TEST(Editing, InsertSimilarMakesASiblingBeforeTheSelection) {
    TestBench bench;
    Create(bench, 3);
    bench.app.CurrentFileName = "/tmp/some.col";
    const ProblemRecord old = bench.app.Problems[2];
    bench.SelectProblem(2);
    RandomStream expected = bench.app.hub.Workspace().stream;
    InsertSimilarCommand(bench.app);
    ASSERT_EQ(bench.app.ProblemCount(), 4);
    EXPECT_EQ(bench.app.Problems[3], old);
    const ProblemRecord& fresh = bench.app.Problems[2];
    EXPECT_EQ(fresh.RoutineId, old.RoutineId);
    EXPECT_EQ(fresh.ModuleName, old.ModuleName);
    // Seed first, then variant, from the reseeded source.
    expected.SeedStream(4242);
    EXPECT_EQ(fresh.Seed, static_cast<int>(expected.Draw() * 9000.0));
    EXPECT_EQ(fresh.VariantNumber, static_cast<int>(expected.Draw() * 900.0));
    EXPECT_EQ(fresh.Statement.rfind("Echo " + std::to_string(fresh.VariantNumber) + "/" + std::to_string(fresh.Seed), 0), 0u);
    EXPECT_EQ(bench.app.CurrentFileName, "");
}

TEST(Editing, RecreateProblemKeepsTheScrollPosition) {
    TestBench bench;
    Create(bench, 3);
    bench.window.scroll = -40;
    bench.SelectProblem(2);
    RecreateProblemCommand(bench.app);
    EXPECT_EQ(bench.window.scroll, -40);
    EXPECT_EQ(bench.app.UndoCaption, "Undo re-create problem");
}

TEST(Editing, RecreateCollectionKeepsSeedDistancesAndUnsortedChangesOrder) {
    TestBench bench;
    bench.SetProblems(std::vector<std::pair<std::string, std::string>>(30, {"", ""}));
    for (int i = 1; i <= 30; ++i) {
        bench.app.Problems[i].Seed = 8990 + i;
        bench.app.Problems[i].VariantNumber = 880 + i;
        bench.app.Problems[i].GroupIndex = i;
    }
    bench.app.Settings.Sorted = false;
    const CollectionImage before = ImageOf(bench.app);
    RandomStream expected = bench.app.hub.Workspace().stream;
    RecreateCollectionCommand(bench.app);
    expected.SeedStream(4242);
    const int a = static_cast<int>(expected.Draw() * 9000.0);
    const int b = static_cast<int>(expected.Draw() * 900.0);
    int reordered = 0;
    for (int i = 1; i <= 30; ++i) {
        const ProblemRecord& r = bench.app.Problems[i];
        const int k = r.GroupIndex;
        int seed = 8990 + k + a;
        if (seed >= 9000) seed -= 9000;
        int variant = 880 + k + b;
        if (variant >= 900) variant -= 900;
        EXPECT_EQ(r.Seed, seed);
        EXPECT_EQ(r.VariantNumber, variant);
        if (k != i) ++reordered;
    }
    EXPECT_GT(reordered, 0);
    EXPECT_NE(Statements(bench.app), std::vector<std::string>(before.problems.size(), ""));
}

TEST(Editing, RecreateButtonPicksProblemOrCollection) {
    TestBench bench;
    Create(bench, 3);
    bench.SelectProblem(1);
    RecreateButton(bench.app);
    EXPECT_EQ(bench.app.UndoCaption, "Undo re-create problem");
    bench.app.Marks.Clear();
    RecreateButton(bench.app);
    EXPECT_EQ(bench.app.UndoCaption, "Undo re-create collection");
}

TEST(Editing, SolutionPositionChecksItsItemAndIgnoresTheSame) {
    TestBench bench;
    Create(bench, 2);
    SolutionPositionCommand(bench.app, 1);
    EXPECT_EQ(bench.app.UndoCaption, "Cannot undo");
    SolutionPositionCommand(bench.app, 3);
    EXPECT_EQ(bench.app.UndoCaption, "Undo solutions in a separate page");
    EXPECT_TRUE(bench.menus.checked["mnu_COLEC_SolPagAparte"]);
    EXPECT_FALSE(bench.menus.checked["mnu_COLEC_SolDespPro"]);
    SolutionPositionCommand(bench.app, 1);
    EXPECT_EQ(bench.app.UndoCaption, "Undo solutions after each problem");
}

TEST(Editing, CancelledPropertiesChangeNothingTheUndoPointIncluded) {
    TestBench bench;
    Create(bench, 3);
    bench.SelectProblem(2);
    DeleteCommand(bench.app);
    const CollectionImage before = ImageOf(bench.app);
    const std::vector<ProblemRecord> undoRecords = bench.app.UndoSnapshot.problems;
    bench.window.propertiesAccept = false;
    CollectionPropertiesCommand(bench.app);
    EXPECT_EQ(ImageOf(bench.app), before);
    EXPECT_EQ(bench.app.UndoCaption, "Undo delete");
    EXPECT_EQ(bench.menus.captions["mnu_Edicion_Undo"], "Undo delete");
    EXPECT_TRUE(bench.app.ToolEnabled[4]);
    EXPECT_EQ(bench.app.UndoSnapshot.problems, undoRecords);
    UndoCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 3);
    // A redo point survives a cancelled dialog as well.
    bench.window.propertiesAccept = false;
    CollectionPropertiesCommand(bench.app);
    EXPECT_EQ(bench.app.RedoCaption, "Redo delete");
    RedoCommand(bench.app);
    EXPECT_EQ(bench.app.ProblemCount(), 2);
}

TEST(Editing, EditMenuFollowsTheSelection) {
    TestBench bench;
    Create(bench, 3);
    bench.DrawMarks();
    PrepareEditMenu(bench.app);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Cut"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Mover_1"]);
    bench.SelectProblem(1);
    PrepareEditMenu(bench.app);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Cut"]);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_REGEN1"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Mover_0"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Mover_2"]);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Mover_1"]);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Mover_3"]);
    bench.SelectProblem(3);
    PrepareEditMenu(bench.app);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Mover_0"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Mover_1"]);
    EXPECT_FALSE(bench.menus.enabled["mnu_Edicion_Mover_3"]);
}

TEST(Editing, SelectionOfASolutionBlockActsOnItsProblem) {
    TestBench bench;
    bench.app.Settings.SolutionPosition = 1;
    bench.SetProblems({{std::string(600, 's'), std::string(600, 'l')}, {"b", "c"}});
    ComposeDocument(bench.app, true, 0);
    ASSERT_EQ(bench.app.BlockCount, 3);
    bench.DrawMarks();
    bench.app.Marks.MarkSelected[1] = true;  // the solution block of problem 1
    EXPECT_EQ(SelectedProblem(bench.app), 1);
}

TEST(Editing, HayColeccionOffersPasteForAProblemOnTheClipboard) {
    TestBench bench;
    bench.clipboard.SetText(std::string(kClipboardHead) + "x");
    Create(bench, 1);
    EXPECT_TRUE(bench.menus.enabled["mnu_Edicion_Paste"]);
    EXPECT_TRUE(bench.app.ToolEnabled[8]);
    NoColeccion(bench.app);
    EXPECT_FALSE(bench.app.ToolEnabled[8]);
    EXPECT_FALSE(bench.app.ToolVisible[4]);
}
