#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <gtest/gtest.h>

#include "core/collection.h"
#include "dialog_fixture.h"
#include "ui/settings_pages/settings_controls.h"
#include "ui/wizard/frm_wizard.h"
#include "ui/wizard/run_dialogs.h"
#include "ui/wizard/topic_tree_view.h"

namespace {

// Two exercise leaves of each of the first two topics that have two.
std::vector<int> TwoLeavesOfTwoTopics(const ApplicationState& app) {
    std::vector<int> picked;
    int topicsUsed = 0;
    for (int i = 0; i < static_cast<int>(app.TopicTree.size()) && topicsUsed < 2; ++i) {
        if (app.TopicTree[i].kind != kNodeFolder) continue;
        int leaves = 0;
        for (int j = i + 1; j < static_cast<int>(app.TopicTree.size()) && !app.TopicTree[j].isFolder; ++j)
            if (leaves < 2 && app.TopicTree[j].kind == kNodeExercises) {
                picked.push_back(j);
                ++leaves;
            }
        if (leaves == 2) {
            ++topicsUsed;
        } else {
            picked.resize(picked.size() - leaves);
        }
    }
    return picked;
}

}  // namespace

// The whole road with the program's own catalogue: wizard, records, generated problems.
TEST(NewCollectionRoad, ScriptedWalkMakesTheCollection) {
    TemporarySettings settings;
    ApplicationState app;
    app.ClockSeed = [] { return 1234; };
    std::vector<int> leaves;
    std::vector<int> amounts;
    ScriptModal([&](QWidget* modal) {
        auto* w = qobject_cast<FrmWizard*>(modal);
        ASSERT_NE(w, nullptr);
        w->warningBox = [](const QString& text) { ADD_FAILURE() << text.toStdString(); };
        w->Check2->setChecked(true);
        w->CmdNextClick();
        w->ChooseSubject(1);
        EXPECT_EQ(w->LblAsig->text(), "Mathematics");
        w->CmdNextClick();
        ASSERT_EQ(w->CurrentPage(), 3);
        w->CmdNextClick();
        ASSERT_EQ(w->CurrentPage(), 4);
        leaves = TwoLeavesOfTwoTopics(app);
        ASSERT_EQ(leaves.size(), 4u);
        int amount = 2;
        for (int node : leaves) {
            int folder = node;
            while (!app.TopicTree[folder].isFolder) --folder;
            if (!app.TopicTree[folder].expanded)
                w->Picture1->ClickRow(w->Picture1->RowOfNode(folder), TopicTreeView::Part::Head);
            w->Picture1->ClickRow(w->Picture1->RowOfNode(node), TopicTreeView::Part::Label);
            w->TxCan[0]->setText(QString::number(amount));
            if (!w->TxCan[1]->isHidden()) w->TxCan[1]->setText("3");
            amounts.push_back(amount++);
        }
        EXPECT_EQ(w->TxTOT->text(), "14");
        w->CmdNextClick();
        ASSERT_EQ(w->CurrentPage(), 5);
        w->controls->TxProPre->setText("N");
        w->controls->TxNumProbINI->setText("5");
        w->CmdNextClick();
        ASSERT_EQ(w->CurrentPage(), 6);
        w->controls->Option11->setChecked(true);
        w->controls->Option19->setChecked(true);
        w->CmdNextClick();
        ASSERT_EQ(w->CurrentPage(), 7);
        EXPECT_EQ(w->controls->TxTITULO->text(), "Exercises of Mathematics" );
        w->CmdNextClick();
    });
    ASSERT_TRUE(RunNewCollectionWizard(app, nullptr));
    EXPECT_EQ(app.Settings.ProblemCount, 14);
    EXPECT_EQ(app.Settings.NumberPrefix, "N");
    EXPECT_EQ(app.Settings.FirstProblemNumber, 5);
    EXPECT_EQ(app.Settings.SolutionPosition, 2);
    EXPECT_TRUE(app.Settings.Sorted);

    Arbol_to_Var(app);
    CrearColeccion(app, 1);
    HayColeccion(app);
    ASSERT_EQ(app.ProblemCount(), 14);
    // Sorted: the records come in tree order, each group numbered 1..amount.
    int record = 1;
    for (std::size_t k = 0; k < leaves.size(); ++k) {
        const TopicNode& leaf = app.TopicTree[leaves[k]];
        for (int place = 1; place <= amounts[k]; ++place, ++record) {
            const ProblemRecord& r = app.Problems[record];
            EXPECT_EQ(r.ModuleName, TrimBlanks(leaf.module));
            EXPECT_EQ(r.RoutineId, leaf.routine);
            EXPECT_EQ(r.GroupSize, amounts[k]);
            EXPECT_EQ(r.GroupIndex, place);
            const bool drill = leaf.kind == kNodeQuestions || leaf.kind == kNodeExercises;
            EXPECT_EQ(r.ItemCount, drill ? 3 : 0);
            EXPECT_FALSE(r.Statement.empty());
            EXPECT_EQ(r.Statement.find("<ERROR"), std::string::npos) << r.Statement;
        }
    }
    EXPECT_GT(app.BlockCount, 0);
}

TEST(NewCollectionRoad, CancelLeavesSettingsAndStoreUntouched) {
    TemporarySettings settings;
    ApplicationState app(GeneratorHub({FakeCatalogueModule()}));
    app.Settings.Title = "Kept";
    app.Settings.NumberColour = 255;
    app.Settings.FirstProblemNumber = 9;
    const CollectionSettings before = app.Settings;
    ScriptModal([&](QWidget* modal) {
        auto* w = qobject_cast<FrmWizard*>(modal);
        ASSERT_NE(w, nullptr);
        w->Check2->setChecked(true);
        w->CmdNextClick();
        w->ChooseSubject(1);
        w->CmdNextClick();
        w->CmdNextClick();
        w->Picture1->ClickRow(2, TopicTreeView::Part::Head);
        w->Picture1->ClickRow(3, TopicTreeView::Part::Label);
        w->CmdNextClick();
        w->controls->Picture2->Chosen(3);
        w->controls->TxProSuf->setText("]");
        w->controls->Check1->setChecked(false);
        w->CmdNextClick();
        w->controls->Option12->setChecked(true);
        w->controls->Option1->setChecked(true);
        w->CmdNextClick();
        w->controls->TxTITULO->setText("Other");
        w->CmdCancelClick();
    });
    EXPECT_FALSE(RunNewCollectionWizard(app, nullptr));
    EXPECT_EQ(app.Settings, before);
    EXPECT_FALSE(settings.Has("Ordena"));
    EXPECT_FALSE(settings.Has("Showavan"));
}
