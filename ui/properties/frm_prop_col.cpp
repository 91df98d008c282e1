#include "ui/properties/frm_prop_col.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/settings_pages/section_frame.h"
#include "ui/settings_pages/settings_controls.h"

TabLabel::TabLabel(const QString& caption, QWidget* parent) : QLabel(caption, parent) {
    setCursor(Qt::PointingHandCursor);
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
        Frame1[tab]->setObjectName(QString("Frame1_%1").arg(tab));
        stack->addWidget(Frame1[tab]);
    }
    tabs->addStretch();
    body->addLayout(tabs);
    body->addWidget(stack, 1);
    outer->addLayout(body, 1);

    auto* buttons = new QHBoxLayout;
    CmdNext = new QPushButton("&Aceptar");
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

    stack_ = stack;
    controls->LoadControls();
    ShowTab(1);
    resize(680, 340);
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
