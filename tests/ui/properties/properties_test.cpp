#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

#include "core/collection.h"
#include "core/editing.h"
#include "../wizard/dialog_fixture.h"
#include "ui/properties/frm_prop_col.h"
#include "ui/settings_pages/section_frame.h"
#include "ui/settings_pages/settings_controls.h"
#include "ui/wizard/frm_wizard.h"
#include "ui/wizard/topic_tree_view.h"

namespace {
int TableIndex(const std::vector<QColor>& table, std::int32_t value) {
    for (int i = 0; i < static_cast<int>(table.size()); ++i)
        if (ColourValue(table[i]) == value) return i;
    return -1;
}
}  // namespace

TEST(Properties, ShowsTheSettingsOnItsFiveTabs) {
    CollectionBench b;
    b.app.Settings.Title = "Fractions";
    b.app.Settings.Sorted = false;
    b.app.Settings.SolutionPosition = 3;
    b.app.Settings.NumberPrefix = "Ex ";
    b.app.Settings.PagePositionCode = 5;
    b.app.Settings.FirstPageNumber = 40;
    FrmPropCol d(b.app);
    EXPECT_EQ(d.windowTitle(), "Properties of the collection");
    EXPECT_EQ(d.CmdNext->text(), "&OK");
    const char* captions[6] = {"", " Title", " Sort", " Solutions", " Problem numbers", " Page numbers"};
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(d.LblTAB[i]->text(), captions[i]);
    EXPECT_EQ(static_cast<SectionFrame*>(d.Frame1[1])->Caption(), "Collection title");
    EXPECT_EQ(d.controls->TxTITULO->text(), "Fractions");
    EXPECT_TRUE(d.controls->Option12->isChecked());
    EXPECT_TRUE(d.controls->Option5->isChecked());
    EXPECT_EQ(d.controls->Image2->Position(), 3);
    EXPECT_EQ(d.controls->TxProPre->text(), "Ex ");
    EXPECT_TRUE(d.controls->Check1->isChecked());
    EXPECT_EQ(d.controls->TxINIPAG->text(), "40");
    EXPECT_EQ(d.controls->Combo1->currentText(), "Top");
    EXPECT_EQ(d.controls->Combo2->currentText(), "Odd left - even right");
    EXPECT_EQ(d.controls->Image4->MarkedPlaces(), (std::vector<int>{2, 3}));
    EXPECT_EQ(d.CurrentTab(), 1);
    EXPECT_TRUE(d.LblTAB[1]->Selected());
    d.LblTAB[4]->Clicked();
    EXPECT_EQ(d.CurrentTab(), 4);
    EXPECT_TRUE(d.LblTAB[4]->Selected());
    EXPECT_FALSE(d.LblTAB[1]->Selected());
    EXPECT_TRUE(d.Frame1[1]->isHidden() || !d.Frame1[1]->isVisibleTo(&d));
}

TEST(Properties, CancelAfterSeveralTabsRestoresEveryField) {
    CollectionBench b;
    b.app.Settings.PagePositionCode = 9;
    b.app.Settings.FirstPageNumber = 3;
    const CollectionSettings before = b.app.Settings;
    FrmPropCol d(b.app);
    d.controls->TxTITULO->setText("Changed");
    d.ShowTab(2);
    d.controls->Option12->setChecked(true);
    d.ShowTab(3);
    d.controls->Option1->setChecked(true);
    d.ShowTab(4);
    d.controls->TxNumProbINI->setText("12");
    d.controls->TxProPre->setText("[");
    d.controls->TxProSuf->setText("]");
    d.controls->Picture2->Chosen(7);
    d.ShowTab(5);
    d.controls->TxINIPAG->setText("77");
    d.controls->Combo2->setCurrentIndex(3);
    EXPECT_EQ(b.app.Settings.PagePositionCode, 12);
    d.controls->Check1->setChecked(false);
    EXPECT_EQ(b.app.Settings.PagePositionCode, 0);
    EXPECT_NE(b.app.Settings, before);
    d.CmdCancelClick();
    EXPECT_EQ(b.app.Settings, before);
    EXPECT_FALSE(b.app.SettingsAccepted);
}

TEST(Properties, NumberBoxesKeepTheirLastGoodValue) {
    CollectionBench b;
    FrmPropCol d(b.app);
    d.controls->TxINIPAG->setText("1999");
    EXPECT_EQ(b.app.Settings.FirstPageNumber, 1999);
    EXPECT_EQ(d.controls->TxINIPAG->text(), "1999");
    d.controls->TxINIPAG->setText("2000");
    EXPECT_EQ(b.app.Settings.FirstPageNumber, 1999);
    EXPECT_EQ(d.controls->TxINIPAG->text(), "1999");
    d.controls->TxINIPAG->setText("");
    EXPECT_EQ(d.controls->TxINIPAG->text(), "1999");

    d.controls->TxNumProbINI->setText("25");
    EXPECT_EQ(b.app.Settings.FirstProblemNumber, 25);
    d.controls->TxNumProbINI->setText("");
    EXPECT_EQ(b.app.Settings.FirstProblemNumber, 1);
    EXPECT_EQ(d.controls->TxNumProbINI->text(), "");
    d.controls->TxNumProbINI->setText("3000");
    EXPECT_EQ(b.app.Settings.FirstProblemNumber, 1);
    EXPECT_EQ(d.controls->TxNumProbINI->text(), "1");
    // Prefix and suffix keep their blanks; the title is trimmed.
    d.controls->TxProSuf->setText(" ) ");
    EXPECT_EQ(b.app.Settings.NumberSuffix, " ) ");
    d.controls->TxTITULO->setText("  Title  ");
    EXPECT_EQ(b.app.Settings.Title, "Title");
}

TEST(Properties, TheColourMarkFollowsThisDialogsOwnTable) {
    const auto wizardTable = WizardColourTable();
    const auto ownTable = PropertiesColourTable();
    ASSERT_EQ(wizardTable.size(), 22u);
    ASSERT_EQ(ownTable.size(), 22u);
    EXPECT_EQ(wizardTable[15], wizardTable[19]);
    {
        // Held by both tables: marked at its place here.
        CollectionBench b;
        b.app.Settings.NumberColour = ColourValue(wizardTable[15]);
        FrmPropCol d(b.app);
        EXPECT_EQ(d.controls->Picture2->MarkerIndex(), TableIndex(ownTable, b.app.Settings.NumberColour));
        EXPECT_EQ(d.controls->Picture2->MarkerIndex(), 6);
        d.controls->Picture2->Chosen(17);
        EXPECT_EQ(b.app.Settings.NumberColour, 255 + 256 * 192 + 65536 * 192);
        EXPECT_EQ(d.controls->Picture2->MarkerX(), 20 * 17 + 2);
    }
    {
        // Only in the wizard's table: the marker stays where it was drawn.
        CollectionBench b;
        b.app.Settings.NumberColour = ColourValue(wizardTable[1]);
        ASSERT_EQ(TableIndex(ownTable, b.app.Settings.NumberColour), -1);
        FrmPropCol d(b.app);
        EXPECT_EQ(d.controls->Picture2->MarkerIndex(), 0);
    }
}

TEST(Properties, AcceptRecomposesAndKeepsTheUndoPoint) {
    CollectionBench b;
    b.app.Settings.PagePositionCode = 11;
    b.app.Settings.FirstPageNumber = 4;
    const CollectionSettings before = b.app.Settings;
    ScriptModal([](QWidget* modal) {
        auto* d = qobject_cast<FrmPropCol*>(modal);
        ASSERT_NE(d, nullptr);
        d->ShowTab(5);
        d->controls->Check1->setChecked(false);
        d->CmdNextClick();
    });
    const int measured = b.measure.calls;
    CollectionPropertiesCommand(b.app);
    EXPECT_TRUE(b.app.SettingsAccepted);
    EXPECT_EQ(b.app.Settings.PagePositionCode, 0);
    EXPECT_EQ(b.app.Settings.FirstPageNumber, 4);
    EXPECT_GT(b.measure.calls, measured);
    EXPECT_TRUE(b.app.UndoSnapshot.available);
    EXPECT_EQ(b.app.UndoSnapshot.settings, before);
    // The page number line is gone from what the pages print.
    EXPECT_EQ(b.app.ProblemCount(), 3);
}

TEST(Properties, AnAcceptWithoutChangeStillRecomposes) {
    CollectionBench b;
    const CollectionSettings before = b.app.Settings;
    const auto problems = b.app.Problems;
    ScriptModal([](QWidget* modal) { qobject_cast<FrmPropCol*>(modal)->CmdNextClick(); });
    const int measured = b.measure.calls;
    CollectionPropertiesCommand(b.app);
    EXPECT_TRUE(b.app.SettingsAccepted);
    EXPECT_GT(b.measure.calls, measured);
    EXPECT_EQ(b.app.Settings, before);
    // Nothing is generated again.
    EXPECT_EQ(b.app.Problems, problems);
}

TEST(Properties, CancelDropsTheUndoPoint) {
    CollectionBench b;
    ASSERT_FALSE(b.app.UndoSnapshot.available);
    const CollectionSettings before = b.app.Settings;
    ScriptModal([](QWidget* modal) {
        auto* d = qobject_cast<FrmPropCol*>(modal);
        d->controls->TxTITULO->setText("Not kept");
        d->controls->Option19->setChecked(true);
        d->CmdCancelClick();
    });
    const int measured = b.measure.calls;
    CollectionPropertiesCommand(b.app);
    EXPECT_FALSE(b.app.SettingsAccepted);
    EXPECT_EQ(b.app.Settings, before);
    EXPECT_FALSE(b.app.UndoSnapshot.available);
    EXPECT_EQ(b.measure.calls, measured);
}

TEST(Properties, CancelKeepsTheEarlierUndoAndRedoPoints) {
    CollectionBench b(4);
    SetUNDO(b.app, "delete");
    const CollectionSnapshot undo = b.app.UndoSnapshot;
    const CollectionSettings before = b.app.Settings;
    const auto problems = b.app.Problems;
    ScriptModal([](QWidget* modal) {
        auto* d = qobject_cast<FrmPropCol*>(modal);
        d->controls->TxTITULO->setText("Not kept");
        d->controls->Option5->setChecked(true);
        d->controls->TxProPre->setText("P");
        d->CmdCancel->click();
    });
    CollectionPropertiesCommand(b.app);
    EXPECT_FALSE(b.app.SettingsAccepted);
    EXPECT_EQ(b.app.Settings, before);
    EXPECT_EQ(b.app.Problems, problems);
    EXPECT_TRUE(b.app.UndoSnapshot.available);
    EXPECT_EQ(b.app.UndoCaption, "Undo delete");
    EXPECT_EQ(b.app.UndoSnapshot.settings, undo.settings);
    EXPECT_EQ(b.app.UndoSnapshot.problems, undo.problems);
}

TEST(Properties, NewCollectionCommandRunsTheWizardRoad) {
    CollectionBench b(2);
    ScriptModal([&](QWidget* modal) {
        auto* w = qobject_cast<FrmWizard*>(modal);
        ASSERT_NE(w, nullptr);
        w->CmdNextClick();
        w->ChooseSubject(1);
        w->CmdNextClick();
        // Numbers, then its Sums leaf.
        w->Picture1->ClickRow(2, TopicTreeView::Part::Head);
        w->Picture1->ClickRow(3, TopicTreeView::Part::Label);
        w->TxCan[0]->setText("4");
        w->TxCan[1]->setText("5");
        w->CmdNextClick();
        EXPECT_EQ(w->controls->TxTITULO->text(), "Questions of Numbers");
        w->CmdNextClick();
    });
    NewCollectionCommand(b.app);
    ASSERT_EQ(b.app.ProblemCount(), 4);
    EXPECT_EQ(b.app.Settings.Title, "Questions of Numbers");
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(b.app.Problems[i].ModuleName, "KVOL_FAKE");
        EXPECT_EQ(b.app.Problems[i].RoutineId, 1);
        EXPECT_EQ(b.app.Problems[i].ItemCount, 5);
        EXPECT_EQ(b.app.Problems[i].GroupSize, 4);
    }
    EXPECT_TRUE(b.app.UndoSnapshot.available);
}
