#include "ui/properties/frm_prop_col.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include "ui/screen_fit.h"
#include "ui/settings_pages/section_frame.h"
#include "ui/settings_pages/settings_controls.h"

TabLabel::TabLabel(const QString& caption, QWidget* parent) : QLabel(caption, parent) {
    setCursor(Qt::PointingHandCursor);
    // Reached with Tab like any control; Space or Enter opens it.
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(30);
    setMargin(6);
    QFont font = this->font();
    font.setBold(true);
    setFont(font);
}

void TabLabel::SetSelected(bool selected) {
    selected_ = selected;
    update();
}

void TabLabel::mousePressEvent(QMouseEvent*) { emit Clicked(); }

void TabLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter: emit Clicked(); break;
    case Qt::Key_Up: emit Step(-1); break;
    case Qt::Key_Down: emit Step(+1); break;
    default: QLabel::keyPressEvent(event); return;
    }
    event->accept();
}

void TabLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void TabLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void TabLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor band = selected_ ? QColor(111, 130, 231) : QColor(224, 224, 255);
    painter.setPen(Qt::NoPen);
    painter.setBrush(band);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    // A small marker at the left edge: filled for the tab in front.
    painter.setBrush(selected_ ? QColor(255, 255, 255) : QColor(160, 160, 210));
    painter.drawEllipse(QRectF(8, height() / 2.0 - 3.5, 7, 7));
    painter.setPen(QColor(64, 64, 128));
    painter.setFont(font());
    painter.drawText(rect().adjusted(18, 0, -4, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4, 4);
    }
}

FrmPropCol::FrmPropCol(ApplicationState& app, QWidget* parent) : QDialog(parent), app_(app) {
    setObjectName("FrmPropCol");
    setWindowTitle("Properties of the collection");
    savedSettings_ = app_.Settings;
    controls = new SettingsControls(app_.Settings, PropertiesColourTable(), this);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(14, 14, 14, 12);
    auto* body = new QHBoxLayout;
    auto* tabs = new QVBoxLayout;
    tabs->setSpacing(4);
    auto* stack = new QStackedWidget;
    const char* captions[6] = {"", " Title", " Sort", " Solutions", " Problem numbers", " Page numbers"};
    Frame1[1] = controls->TitleSection("Collection title");
    Frame1[2] = controls->SortSection();
    Frame1[3] = controls->SolutionsSection();
    Frame1[4] = controls->ProblemNumbersSection();
    Frame1[5] = controls->PageNumbersSection();
    for (int tab = 1; tab <= 5; ++tab) {
        LblTAB[tab] = new TabLabel(captions[tab]);
        LblTAB[tab]->setObjectName(QString("LblTAB_%1").arg(tab));
        LblTAB[tab]->setMinimumWidth(150);
        tabs->addWidget(LblTAB[tab]);
        connect(LblTAB[tab], &TabLabel::Clicked, this, [this, tab] { ShowTab(tab); });
        connect(LblTAB[tab], &TabLabel::Step, this, [this, tab](int step) {
            const int next = (tab - 1 + step + 5) % 5 + 1;
            ShowTab(next);
            LblTAB[next]->setFocus();
        });
        Frame1[tab]->setObjectName(QString("Frame1_%1").arg(tab));
        stack->addWidget(Frame1[tab]);
    }
    tabs->addStretch();
    body->addLayout(tabs);
    body->addWidget(stack, 1);
    outer->addLayout(body, 1);

    auto* buttons = new QHBoxLayout;
    // The English build's own word: the Spanish one was left on the form's design.
    CmdNext = new QPushButton("&OK");
    CmdNext->setObjectName("CmdNext");
    CmdCancel = new QPushButton("Cancel");
    CmdCancel->setObjectName("CmdCancel");
    for (QPushButton* button : {CmdNext, CmdCancel}) {
        button->setMinimumWidth(96);
        button->setAutoDefault(false);
    }
    buttons->addStretch();
    buttons->addWidget(CmdNext);
    buttons->addWidget(CmdCancel);
    outer->addLayout(buttons);
    connect(CmdNext, &QPushButton::clicked, this, &FrmPropCol::CmdNextClick);
    connect(CmdCancel, &QPushButton::clicked, this, &FrmPropCol::CmdCancelClick);

    // Ctrl+Tab and Ctrl+Shift+Tab step through the tabs, as in every tabbed dialog.
    auto step = [this](int delta) {
        ShowTab((tab_ - 1 + delta + 5) % 5 + 1);
        FocusTab();
    };
    for (const QKeySequence& key : {QKeySequence(Qt::CTRL | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageDown)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [step] { step(+1); });
    for (const QKeySequence& key : {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab),
                                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageUp)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [step] { step(-1); });

    stack_ = stack;
    controls->LoadControls();
    // Tab order: the tabs, then the controls of the tab in front, then the buttons.
    QList<QWidget*> order;
    for (int tab = 1; tab <= 5; ++tab) order << LblTAB[tab];
    for (int tab = 1; tab <= 5; ++tab)
        for (QWidget* child : Frame1[tab]->findChildren<QWidget*>())
            if (child->focusPolicy() & Qt::TabFocus) order << child;
    order << CmdNext << CmdCancel;
    for (int i = 0; i + 1 < order.size(); ++i) setTabOrder(order[i], order[i + 1]);
    ShowTab(1);
    // Wide enough for the colour strip beside its caption.
    FitInsideScreen(*this, QSize(820, 340));
}

// The first control of the tab in front takes the focus.
void FrmPropCol::FocusTab() {
    QWidget* frame = Frame1[tab_];
    for (QWidget* child : frame->findChildren<QWidget*>())
        if (child->isVisibleTo(frame) && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus)) {
            child->setFocus(Qt::TabFocusReason);
            return;
        }
}

void FrmPropCol::ShowTab(int tab) {
    if (tab < 1 || tab > 5) return;
    tab_ = tab;
    for (int i = 1; i <= 5; ++i) LblTAB[i]->SetSelected(i == tab);
    stack_->setCurrentWidget(Frame1[tab]);
    if (tab == 1) controls->TxTITULO->setFocus();
}

void FrmPropCol::CmdNextClick() {
    app_.SettingsAccepted = true;
    accept();
}

void FrmPropCol::CmdCancelClick() {
    app_.Settings = savedSettings_;
    app_.SettingsAccepted = false;
    QDialog::reject();
}

void FrmPropCol::reject() { CmdCancelClick(); }
