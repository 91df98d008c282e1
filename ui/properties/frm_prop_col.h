#pragma once
#include <QDialog>
#include <QLabel>
#include <array>

#include "core/application_state.h"

class QPushButton;
class SettingsControls;

// One tab of the properties dialog: a caption on a coloured band that is clicked.
class TabLabel : public QLabel {
    Q_OBJECT
public:
    TabLabel(const QString& caption, QWidget* parent = nullptr);
    void SetSelected(bool selected);
    bool Selected() const { return selected_; }
signals:
    void Clicked();
    // Up (-1) or Down (+1) on a tab with the focus.
    void Step(int step);

protected:
    void mousePressEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent*) override;

private:
    bool selected_ = false;
};

// Changes the settings of the collection in hand: title, sorting, solutions, problem
// numbers and page numbers, as five tabs over the controls the wizard shares.
class FrmPropCol : public QDialog {
    Q_OBJECT
public:
    FrmPropCol(ApplicationState& app, QWidget* parent = nullptr);

    void ShowTab(int tab);
    int CurrentTab() const { return tab_; }
    void CmdNextClick();
    void CmdCancelClick();
    void reject() override;
    void FocusTab();

    SettingsControls* controls;
    std::array<TabLabel*, 6> LblTAB{};
    std::array<QWidget*, 6> Frame1{};
    QPushButton* CmdNext;
    QPushButton* CmdCancel;

private:
    ApplicationState& app_;
    CollectionSettings savedSettings_;
    int tab_ = 1;
    class QStackedWidget* stack_ = nullptr;
};
