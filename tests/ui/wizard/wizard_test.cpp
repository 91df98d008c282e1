#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <gtest/gtest.h>

#include "core/collection.h"
#include "dialog_fixture.h"
#include "ui/settings_pages/settings_controls.h"
#include "ui/wizard/frm_wizard.h"
#include "ui/wizard/topic_tree_view.h"

namespace {

struct Bench {
    TemporarySettings settings;
    ApplicationState app{GeneratorHub({FakeCatalogueModule()})};
};

int NodeByLabel(const ApplicationState& app, const std::string& label) {
    for (int i = 0; i < static_cast<int>(app.TopicTree.size()); ++i)
        if (app.TopicTree[i].label == label) return i;
    return -1;
}

// Makes the leaf's row visible and current, and ticks it with the amount given.
void Tick(FrmWizard& w, ApplicationState& app, const std::string& label, int amount = 0) {
    const int node = NodeByLabel(app, label);
    ASSERT_GE(node, 0) << label;
    int folder = node;
    while (folder > 0 && !app.TopicTree[folder].isFolder) --folder;
    if (!app.TopicTree[folder].expanded) w.Picture1->ClickRow(w.Picture1->RowOfNode(folder), TopicTreeView::Part::Expander);
    const int row = w.Picture1->RowOfNode(node);
    ASSERT_GT(row, 0);
    w.Picture1->ClickRow(row, TopicTreeView::Part::Label);
    ASSERT_TRUE(app.TopicTree[node].selected);
    if (amount > 0) w.TxCan[0]->setText(QString::number(amount));
}

// Page 1 to page 4 with Mathematics.
void ToTopics(FrmWizard& w) {
    if (w.CurrentPage() == 1) w.CmdNextClick();
    ASSERT_EQ(w.CurrentPage(), 2);
    w.ChooseSubject(1);
    while (w.CurrentPage() < 4) w.CmdNextClick();
    ASSERT_EQ(w.CurrentPage(), 4);
}

void KeyClick(QWidget* widget, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
}

}  // namespace

TEST(Wizard, OpensWithDefaultsAndTheStartPage) {
    Bench b;
    b.app.Settings.Title = "Old";
    b.app.Settings.FirstPageNumber = 7;
    FrmWizard w(b.app, "");
    EXPECT_EQ(w.CurrentPage(), 1);
    EXPECT_TRUE(w.Check3->isChecked());
    EXPECT_FALSE(w.Check2->isChecked());
    EXPECT_FALSE(w.CmdBack->isEnabled());
    EXPECT_EQ(w.CmdNext->text(), "Next >");
    EXPECT_EQ(b.app.Settings.Title, "");
    EXPECT_EQ(b.app.Settings.FirstPageNumber, 1);
    EXPECT_EQ(b.app.Settings.PagePositionCode, 11);
    EXPECT_EQ(b.app.Settings.NumberSuffix, ")");
    EXPECT_EQ(b.app.Settings.NumberColour, 16777215);
    EXPECT_TRUE(b.app.Settings.Sorted);
    EXPECT_EQ(b.app.Settings.SolutionPosition, 1);
    EXPECT_TRUE(w.ChkTIP[1]->isChecked() && w.ChkTIP[2]->isChecked() && w.ChkTIP[3]->isChecked());
    EXPECT_FALSE(w.ChkTIP[4]->isChecked());
    EXPECT_TRUE(w.ChkTIP[4]->isHidden());
    EXPECT_EQ(w.ChkTIP[4]->text(), "Theory topics");
    // Five subjects, in order of first appearance, on the grid.
    ASSERT_EQ(w.LstAsig->count(), 5);
    EXPECT_EQ(w.LstAsig->item(0)->text(), "Mathematics");
    EXPECT_EQ(w.LblAsig->text(), "No subject selected");
    EXPECT_EQ(w.ImageASIG[4]->pos(), QPoint(80 + 210 * 1, 60 + 66 * 1));
}

TEST(Wizard, StartPageOffOpensOnSubjectsWithBothButtonsDisabled) {
    Bench b;
    b.settings.Set("Showini", "N");
    FrmWizard w(b.app, "");
    EXPECT_EQ(w.CurrentPage(), 2);
    EXPECT_FALSE(w.CmdNext->isEnabled());
    EXPECT_FALSE(w.CmdBack->isEnabled());
    w.CmdBackClick();
    EXPECT_EQ(w.CurrentPage(), 2);
    w.ChooseSubject(2);
    EXPECT_TRUE(w.CmdNext->isEnabled());
    EXPECT_EQ(w.LblAsig->text(), "Physics");
    // Ticking the start page while on page 2 lets Back go there.
    w.Check3->setChecked(true);
    EXPECT_TRUE(w.CmdBack->isEnabled());
    w.CmdBackClick();
    EXPECT_EQ(w.CurrentPage(), 1);
}

TEST(Wizard, WithoutAdvancedOptionsNextSkipsPagesThreeFiveAndSix) {
    Bench b;
    FrmWizard w(b.app, "");
    w.CmdNextClick();
    w.ChooseSubject(1);
    w.CmdNextClick();
    EXPECT_EQ(w.CurrentPage(), 4);
    EXPECT_FALSE(w.CmdNext->isEnabled());
    Tick(w, b.app, "Areas");
    EXPECT_TRUE(w.CmdNext->isEnabled());
    w.CmdNextClick();
    EXPECT_EQ(w.CurrentPage(), 7);
    EXPECT_EQ(w.CmdNext->text(), "Finish");
    w.CmdBackClick();
    EXPECT_EQ(w.CurrentPage(), 4);
    EXPECT_EQ(w.CmdNext->text(), "Next >");
    w.CmdBackClick();
    EXPECT_EQ(w.CurrentPage(), 2);
}

TEST(Wizard, SubjectKeysWalkTheGrid) {
    Bench b;
    b.settings.Set("Showini", "N");
    FrmWizard w(b.app, "");
    auto press = [&](int key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, mods);
        QCoreApplication::sendEvent(&w, &event);
        return w.LstAsig->currentRow() + 1;
    };
    w.ChooseSubject(1);
    EXPECT_EQ(press(Qt::Key_Left), 5);   // wraps to the last
    EXPECT_EQ(press(Qt::Key_Right), 1);  // wraps to the first
    EXPECT_EQ(press(Qt::Key_PageDown), 2);
    EXPECT_EQ(press(Qt::Key_Tab), 3);
    EXPECT_EQ(press(Qt::Key_Down), 3);   // no row below in column 3: 6 wraps to 3
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ShiftModifier), 2);
    EXPECT_EQ(press(Qt::Key_Down), 5);
    EXPECT_EQ(press(Qt::Key_Down), 2);   // 8 wraps to the column's first row
    EXPECT_EQ(press(Qt::Key_Up), 5);     // wraps to the column's last row
    EXPECT_EQ(press(Qt::Key_Up), 2);
    EXPECT_EQ(press(Qt::Key_End), 5);
    EXPECT_EQ(press(Qt::Key_Home), 1);
    EXPECT_EQ(press(Qt::Key_PageUp), 5);
    press(Qt::Key_Return);
    EXPECT_EQ(w.CurrentPage(), 4);
}

TEST(Wizard, FiveHundredProblemsPassAndFiveHundredOneStop) {
    Bench b;
    FrmWizard w(b.app, "");
    QStringList warnings;
    w.warningBox = [&](const QString& text) { warnings << text; };
    ToTopics(w);
    const char* leaves[6] = {"Areas", "Problem set 1", "Problem set 2", "Problem set 3", "Problem set 4", "Problem set 5"};
    for (int i = 0; i < 5; ++i) Tick(w, b.app, leaves[i], 99);
    Tick(w, b.app, leaves[5], 5);
    EXPECT_EQ(w.TxTOT->text(), "500");
    EXPECT_EQ(b.app.Settings.ProblemCount, 500);
    w.TxCan[0]->setText("6");
    EXPECT_EQ(w.TxTOT->text(), "501");
    w.CmdNextClick();
    EXPECT_EQ(w.CurrentPage(), 4);
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_EQ(warnings[0], "Too much problems. (Max: 500)");
    w.TxCan[0]->setText("5");
    w.CmdNextClick();
    EXPECT_EQ(w.CurrentPage(), 7);
    EXPECT_EQ(warnings.size(), 1);
}

TEST(Wizard, BackToTypesWithoutChangeKeepsTheTreeAndAnotherTypeClearsIt) {
    Bench b;
    b.settings.Set("Showavan", "S");
    FrmWizard w(b.app, "");
    EXPECT_TRUE(w.Check2->isChecked());
    ToTopics(w);
    Tick(w, b.app, "Areas", 4);
    w.CmdBackClick();
    EXPECT_EQ(w.CurrentPage(), 3);
    EXPECT_FALSE(w.LblWarning->isHidden());
    w.CmdNextClick();
    EXPECT_EQ(w.CurrentPage(), 4);
    EXPECT_TRUE(b.app.TopicTree[NodeByLabel(b.app, "Areas")].selected);
    EXPECT_EQ(w.TxTOT->text(), "4");
    EXPECT_TRUE(w.CmdNext->isEnabled());
    w.CmdBackClick();
    w.ChkTIP[1]->setChecked(false);
    EXPECT_TRUE(w.CmdNext->isEnabled());
    w.CmdNextClick();
    EXPECT_EQ(NodeByLabel(b.app, "Sums"), -1);
    EXPECT_FALSE(b.app.TopicTree[NodeByLabel(b.app, "Areas")].selected);
    EXPECT_EQ(w.TxTOT->text(), "0");
    EXPECT_FALSE(w.CmdNext->isEnabled());
    // No type ticked: Next stays off on page 3.
    w.CmdBackClick();
    for (int i = 1; i <= 4; ++i) w.ChkTIP[i]->setChecked(false);
    EXPECT_FALSE(w.CmdNext->isEnabled());
}

TEST(Wizard, UntickingALeafRemovesItsAmountAndReTickingBringsItBack) {
    Bench b;
    FrmWizard w(b.app, "");
    ToTopics(w);
    Tick(w, b.app, "Areas", 7);
    Tick(w, b.app, "Sums", 3);
    EXPECT_EQ(w.TxTOT->text(), "10");
    const int areas = w.Picture1->RowOfNode(NodeByLabel(b.app, "Areas"));
    w.Picture1->ClickRow(areas, TopicTreeView::Part::Head);
    EXPECT_EQ(w.TxTOT->text(), "3");
    EXPECT_EQ(b.app.TopicTree[NodeByLabel(b.app, "Areas")].amount, 7);
    w.Picture1->ClickRow(areas, TopicTreeView::Part::Head);
    EXPECT_EQ(w.TxTOT->text(), "10");
}

TEST(Wizard, TitleOfOneTopicOfAMixtureAndOfSeveralTopics) {
    Bench b;
    FrmWizard w(b.app, "");
    ToTopics(w);
    Tick(w, b.app, "Sums", 2);
    EXPECT_EQ(w.GetDefaultTitle(), "Questions of Numbers");
    Tick(w, b.app, "Products", 2);
    EXPECT_EQ(w.GetDefaultTitle(), "Problems of Numbers");
    Tick(w, b.app, "Areas", 2);
    EXPECT_EQ(w.GetDefaultTitle(), "Problems of Mathematics");
}

TEST(Wizard, ATypedTitleStaysAndAnEmptiedOneIsRefilledOnLeavingTopics) {
    Bench b;
    FrmWizard w(b.app, "");
    ToTopics(w);
    Tick(w, b.app, "Products", 2);
    w.CmdNextClick();
    EXPECT_EQ(w.controls->TxTITULO->text(), "Exercises of Numbers");
    w.controls->TxTITULO->setText("  My own  ");
    EXPECT_EQ(b.app.Settings.Title, "My own");
    w.CmdBackClick();
    Tick(w, b.app, "Areas", 1);
    w.CmdNextClick();
    EXPECT_EQ(w.controls->TxTITULO->text(), "  My own  ");
    w.controls->TxTITULO->clear();
    EXPECT_EQ(w.controls->TxTITULO->text(), "");
    w.CmdBackClick();
    EXPECT_EQ(w.controls->TxTITULO->text(), "");
    w.CmdNextClick();
    EXPECT_EQ(w.controls->TxTITULO->text(), "Problems of Mathematics");
}

TEST(Wizard, DetailPanelAmountsAndTheProgressiveMark) {
    Bench b;
    FrmWizard w(b.app, "");
    ToTopics(w);
    // The root row: no amounts.
    EXPECT_TRUE(w.TxCan[0]->isHidden());
    Tick(w, b.app, "Sums");
    EXPECT_FALSE(w.ImageProgre->isHidden());
    EXPECT_EQ(w.LblDescription->text(), "Add numbers in steps");
    EXPECT_FALSE(w.TxCan[0]->isHidden());
    EXPECT_EQ(w.LblCan[0]->text(), "Amount:");
    EXPECT_EQ(w.TxCan[0]->text(), "1");
    EXPECT_FALSE(w.TxCan[1]->isHidden());
    EXPECT_EQ(w.LblCan[1]->text(), QString::fromUtf8("N\u00BA of question for each one"));
    EXPECT_EQ(w.TxCan[1]->text(), "6");
    const int sums = NodeByLabel(b.app, "Sums");
    EXPECT_EQ(b.app.TopicTree[sums].itemsPerProblem, 6);
    // Above itemsMax (20) is cut to it; bad text falls back to the spin's value.
    w.TxCan[1]->setText("45");
    EXPECT_EQ(w.TxCan[1]->text(), "20");
    EXPECT_EQ(b.app.TopicTree[sums].itemsPerProblem, 20);
    w.TxCan[0]->setText("0");
    EXPECT_EQ(w.TxCan[0]->text(), "1");
    w.TxCan[0]->setText("150");
    EXPECT_EQ(w.TxCan[0]->text(), "1");
    // The spin and the arrow keys.
    w.VScroll2[0]->setValue(12);
    EXPECT_EQ(w.TxCan[0]->text(), "12");
    EXPECT_EQ(b.app.TopicTree[sums].amount, 12);
    KeyClick(w.TxCan[0], Qt::Key_Up);
    EXPECT_EQ(b.app.TopicTree[sums].amount, 13);
    KeyClick(w.TxCan[0], Qt::Key_Down);
    KeyClick(w.TxCan[0], Qt::Key_Down);
    EXPECT_EQ(w.TxCan[0]->text(), "11");
    // The up arrow of the spin raises the value.
    EXPECT_TRUE(w.VScroll2[0]->invertedAppearance());
    Tick(w, b.app, "Products");
    EXPECT_TRUE(w.ImageProgre->isHidden());
    EXPECT_EQ(w.LblDescription->text(), "Multiply numbers");
    EXPECT_EQ(w.LblCan[1]->text(), QString::fromUtf8("N\u00BA of exercises for each one"));
    // Kinds 3 and 4 never show the second box.
    Tick(w, b.app, "Areas");
    EXPECT_FALSE(w.TxCan[0]->isHidden());
    EXPECT_TRUE(w.TxCan[1]->isHidden());
    EXPECT_TRUE(w.VScroll2[1]->isHidden());
    // Unticked: no amount controls.
    w.Picture1->ClickRow(w.Picture1->CurrentRow(), TopicTreeView::Part::Label);
    EXPECT_TRUE(w.TxCan[0]->isHidden());
}

TEST(Wizard, AFolderWhoseLeavesAreFilteredStaysEmpty) {
    Bench b;
    FrmWizard w(b.app, "");
    ToTopics(w);
    const int folder = NodeByLabel(b.app, "Only theory");
    ASSERT_GE(folder, 0);
    EXPECT_TRUE(b.app.TopicTree[folder].isFolder);
    ASSERT_LT(folder + 1, static_cast<int>(b.app.TopicTree.size()));
    EXPECT_EQ(b.app.TopicTree[folder + 1].level, 1);
    w.Picture1->ClickRow(w.Picture1->RowOfNode(folder), TopicTreeView::Part::Head);
    EXPECT_TRUE(b.app.TopicTree[folder].expanded);
    EXPECT_EQ(w.Picture1->NodeOfRow(w.Picture1->RowOfNode(folder) + 1), folder + 1);
}

TEST(Wizard, FinishWritesTheSettingsAndCancelRestoresEverything) {
    {
        Bench b;
        b.app.Settings.Title = "Before";
        b.app.Settings.PagePositionCode = 3;
        const CollectionSettings before = b.app.Settings;
        FrmWizard w(b.app, "");
        w.Check2->setChecked(true);
        ToTopics(w);
        Tick(w, b.app, "Areas", 3);
        w.CmdNextClick();
        w.controls->Option5->setChecked(true);
        w.controls->TxProPre->setText("P");
        w.controls->Check1->setChecked(false);
        w.controls->Picture2->Chosen(4);
        w.CmdCancelClick();
        EXPECT_EQ(b.app.Settings, before);
        EXPECT_FALSE(b.app.SettingsAccepted);
        EXPECT_FALSE(b.settings.Has("Solpos"));
        EXPECT_FALSE(b.settings.Has("Asignatura"));
    }
    {
        Bench b;
        b.settings.Set("PagPos", "4");
        FrmWizard w(b.app, "");
        EXPECT_EQ(b.app.Settings.PagePositionCode, 4);
        EXPECT_EQ(w.controls->Combo1->currentText() + " " + w.controls->Combo2->currentText(), "Top Odd right - even left");
        ToTopics(w);
        Tick(w, b.app, "Areas", 3);
        w.controls->Option19->setChecked(true);
        w.controls->Option12->setChecked(true);
        w.controls->TxProSuf->setText(".-");
        w.controls->Picture2->Chosen(15);
        w.controls->Combo1->setCurrentIndex(1);
        w.CmdNextClick();
        ASSERT_EQ(w.CurrentPage(), 7);
        w.CmdNextClick();
        EXPECT_TRUE(b.app.SettingsAccepted);
        EXPECT_EQ(b.settings.Stored("Ordena"), "N");
        EXPECT_EQ(b.settings.Stored("Solpos"), "2");
        EXPECT_EQ(b.settings.Stored("Prosuf"), ".-");
        EXPECT_EQ(b.settings.Stored("Propre"), "");
        // Written with a small p only: no second key "PagPos" beside it.
        EXPECT_EQ(b.settings.Stored("Pagpos"), "12");
        EXPECT_FALSE(b.settings.Has("PagPos"));
        EXPECT_EQ(b.settings.Stored("Procol"), QString::number(192 + 256 * 224 + 65536 * 255));
        EXPECT_EQ(b.settings.Stored("Asignatura"), "Mathematics");
        EXPECT_EQ(b.settings.Stored("Showini"), "S");
        EXPECT_EQ(b.settings.Stored("Showavan"), "N");
    }
    {
        // The next run reads them back; the subject is not preselected.
        Bench b;
        b.settings.Set("Pagpos", "12");
        b.settings.Set("Ordena", "N");
        b.settings.Set("Asignatura", "Physics");
        FrmWizard w(b.app, "");
        EXPECT_EQ(b.app.Settings.PagePositionCode, 12);
        EXPECT_FALSE(b.app.Settings.Sorted);
        EXPECT_TRUE(w.controls->Option12->isChecked());
        EXPECT_EQ(w.LstAsig->currentRow(), -1);
    }
}

TEST(Wizard, EscapeActsAsCancel) {
    Bench b;
    b.app.Settings.NumberPrefix = "keep";
    FrmWizard w(b.app, "");
    w.show();
    w.controls->TxProPre->setText("x");
    KeyClick(&w, Qt::Key_Escape);
    EXPECT_EQ(b.app.Settings.NumberPrefix, "keep");
    EXPECT_EQ(w.result(), QDialog::Rejected);
}
