#include "ui/main_window/frm_imprimir.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <cmath>
#include <vector>

#include "core/collection.h"
#include "ui/screen_fit.h"

namespace {
// Cuts at "," into at most limit parts; the last part keeps the rest of the text.
std::vector<std::string> SplitLimited(const std::string& text, std::size_t limit) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        if (parts.size() + 1 == limit) {
            parts.push_back(text.substr(start));
            break;
        }
        const auto comma = text.find(',', start);
        if (comma == std::string::npos) {
            parts.push_back(text.substr(start));
            break;
        }
        parts.push_back(text.substr(start, comma - start));
        start = comma + 1;
    }
    return parts;
}

long long PageNumberOf(const std::string& text) {
    return static_cast<long long>(std::floor(std::fabs(LeadingNumberSkippingBlanks(text))));
}

// Two small drawings of stacked sheets: collated sets 1 2 3 / 1 2 3, or 1 1 / 2 2 / 3 3.
QPixmap CollatePicture(bool collate) {
    const qreal ratio = qApp ? qApp->devicePixelRatio() : 1.0;
    QPixmap pixmap(QSize(96, 40) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    QFont font = p.font();
    font.setPixelSize(10);
    p.setFont(font);
    const int order[2][6] = {{1, 2, 3, 1, 2, 3}, {1, 1, 2, 2, 3, 3}};
    for (int i = 0; i < 6; ++i) {
        const int set = i / 3, k = i % 3;
        const QRectF sheet(4 + set * 48 + k * 8, 4 + k * 4, 20, 26);
        p.setPen(QColor(90, 90, 90));
        p.setBrush(Qt::white);
        p.drawRect(sheet);
        p.drawText(sheet, Qt::AlignCenter, QString::number(order[collate ? 0 : 1][i]));
    }
    return pixmap;
}
} // namespace

bool ReadPageList(const std::string& text, std::array<bool, kPageFlagCount>& flags) {
    for (const std::string& raw : SplitLimited(text, 100)) {
        const std::string part = TrimBlanks(raw);
        if (part.empty()) continue;
        const long long a = PageNumberOf(part);
        const auto dash = part.find('-');
        if (dash == std::string::npos) {
            if (a < 1 || a > kPageFlagCount) return false;
            flags[a - 1] = true;
            continue;
        }
        const long long b = PageNumberOf(part.substr(dash + 1));
        const long long step = a > b ? -1 : 1;
        for (long long page = a;; page += step) {
            if (page < 1 || page > kPageFlagCount) return false;
            flags[page - 1] = true;
            if (page == b) break;
        }
    }
    return true;
}

FrmImprimir::FrmImprimir(PrintOptions& options, int currentPage, const QStringList& printers, const QString& current,
                         QWidget* parent)
    : QDialog(parent), options_(options), currentPage_(currentPage) {
    setObjectName("frmImprimir");
    setWindowTitle("Print");
    message = [this](const QString& text, const QString& title) {
        QMessageBox::warning(this, title, text);
    };
    beep = [] { QApplication::beep(); };

    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("Label3");

    auto* printerPage = new QWidget;
    printerPage->setObjectName("Image7");
    auto* printerLayout = new QGridLayout(printerPage);
    label2_ = new QLabel(current + " ", printerPage);
    label2_->setObjectName("Label2");
    QFont bold = label2_->font();
    bold.setBold(true);
    label2_->setFont(bold);
    combo1_ = new QComboBox(printerPage);
    combo1_->setObjectName("Combo1");
    combo1_->addItems(printers);
    combo1_->setCurrentIndex(std::max(0, static_cast<int>(printers.indexOf(current))));
    combo1_->setEnabled(!printers.isEmpty());
    auto* label1 = new QLabel("Number of copies:", printerPage);
    label1->setObjectName("Label1");
    text1_ = new QLineEdit(" 1", printerPage);
    text1_->setObjectName("Text1");
    text1_->setMaximumWidth(70);
    vscroll1_ = new QScrollBar(Qt::Vertical, printerPage);
    vscroll1_->setObjectName("VScroll1");
    vscroll1_->setRange(1, 1999);
    vscroll1_->setInvertedControls(true);
    vscroll1_->setInvertedAppearance(true);
    vscroll1_->setValue(1);
    vscroll1_->setFixedHeight(text1_->sizeHint().height());
    chkCollate_ = new QCheckBox("Collate", printerPage);
    chkCollate_->setObjectName("ChkCOLLATE");
    imgCollate_ = new QLabel(printerPage);
    imgCollate_->setObjectName("ImgCOLLATE");
    printerLayout->addWidget(label2_, 0, 0, 1, 3);
    printerLayout->addWidget(combo1_, 1, 0, 1, 3);
    printerLayout->addWidget(label1, 2, 0);
    auto* copies = new QHBoxLayout;
    copies->addWidget(text1_);
    copies->addWidget(vscroll1_);
    copies->addStretch();
    printerLayout->addLayout(copies, 2, 1, 1, 2);
    printerLayout->addWidget(chkCollate_, 3, 0);
    printerLayout->addWidget(imgCollate_, 3, 1, 1, 2);
    printerLayout->setRowStretch(4, 1);
    tabs_->addTab(printerPage, "Printer");

    auto* pagesPage = new QWidget;
    pagesPage->setObjectName("Image8");
    auto* pagesLayout = new QGridLayout(pagesPage);
    option1_ = new QRadioButton("All pages", pagesPage);
    option1_->setObjectName("Option1");
    option3_ = new QRadioButton("Current page", pagesPage);
    option3_->setObjectName("Option3");
    option2_ = new QRadioButton("Pages:", pagesPage);
    option2_->setObjectName("Option2");
    text2_ = new QLineEdit(pagesPage);
    text2_->setObjectName("Text2");
    auto* label5 = new QLabel("Type page numbers and/or page ranges separated by commas, for example 1, 3, 5-12.",
                              pagesPage);
    label5->setObjectName("Label5");
    label5->setWordWrap(true);
    pagesLayout->addWidget(option1_, 0, 0, 1, 2);
    pagesLayout->addWidget(option3_, 1, 0, 1, 2);
    pagesLayout->addWidget(option2_, 2, 0);
    pagesLayout->addWidget(text2_, 2, 1);
    pagesLayout->addWidget(label5, 3, 0, 1, 2);
    pagesLayout->setRowStretch(4, 1);
    tabs_->addTab(pagesPage, "Pages");

    auto* print = new QPushButton("Print", this);
    print->setObjectName("cmdImprimir");
    print->setDefault(true);
    auto* cancel = new QPushButton("Cancel", this);
    cancel->setObjectName("CmdCancelar");
    auto* label6 = new QLabel("Close this window", this);
    label6->setObjectName("Label6");
    label6->setVisible(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(print);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    layout->addLayout(buttons);
    FitInsideScreen(*this, QSize(420, 260));

    // Loading: not accepted, one copy, all pages.
    options_.accepted = false;
    option1_->setChecked(true);
    ShowCollatePicture();

    connect(print, &QPushButton::clicked, this, &FrmImprimir::CmdImprimirClick);
    connect(cancel, &QPushButton::clicked, this, &FrmImprimir::CmdCancelarClick);
    connect(chkCollate_, &QCheckBox::toggled, this, [this] { ShowCollatePicture(); });
    connect(text1_, &QLineEdit::textChanged, this, [this] { Text1Changed(); });
    connect(vscroll1_, &QScrollBar::valueChanged, this, [this](int value) {
        if (syncing_) return;
        syncing_ = true;
        text1_->setText(QString::number(value));
        syncing_ = false;
    });
    connect(text2_, &QLineEdit::textChanged, this, [this] { option2_->setChecked(true); });
    connect(combo1_, &QComboBox::activated, this, [this] {
        label2_->setText(combo1_->currentText() + " ");
        if (printerChosen) printerChosen(combo1_->currentText());
    });
    text1_->installEventFilter(this);
}

QString FrmImprimir::ChosenPrinter() const { return combo1_->currentText(); }

void FrmImprimir::ShowCollatePicture() { imgCollate_->setPixmap(CollatePicture(chkCollate_->isChecked())); }

void FrmImprimir::Text1Changed() {
    if (syncing_) return;
    syncing_ = true;
    if (text1_->text().isEmpty()) text1_->setText("1");
    const double value = LeadingNumberSkippingBlanks(text1_->text().toStdString());
    if (value >= 1 && value <= 1999) vscroll1_->setValue(static_cast<int>(value));
    syncing_ = false;
}

bool FrmImprimir::eventFilter(QObject* watched, QEvent* event) {
    if (watched == text1_ && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Down: vscroll1_->setValue(vscroll1_->value() - 1); return true;
        case Qt::Key_Up: vscroll1_->setValue(vscroll1_->value() + 1); return true;
        case Qt::Key_Left: case Qt::Key_Right: case Qt::Key_Delete: case Qt::Key_Backspace:
        case Qt::Key_Return: case Qt::Key_Enter: case Qt::Key_Tab: case Qt::Key_Escape:
            return false;
        default:
            if (key->key() >= Qt::Key_0 && key->key() <= Qt::Key_9) return false;
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FrmImprimir::CmdImprimirClick() {
    options_.accepted = true;
    options_.collate = chkCollate_->isChecked();
    const double copies = LeadingNumberSkippingBlanks(text1_->text().toStdString());
    if (copies < 1 || copies > 1999) {
        message("The number of copies isn't valid. Max. 1999 copies.", "Error");
        return;
    }
    options_.copies = static_cast<int>(copies);
    if (option1_->isChecked()) {
        options_.pageFlags.fill(true);
    } else if (option3_->isChecked()) {
        options_.pageFlags.fill(false);
        if (currentPage_ >= 1 && currentPage_ <= kPageFlagCount) options_.pageFlags[currentPage_ - 1] = true;
    } else {
        options_.pageFlags.fill(false);
        const std::string list = TrimBlanks(text2_->text().toStdString());
        if (list.empty()) {
            beep();
            message("You must type page numbers and/or page ranges.", "Print");
            return;
        }
        if (!ReadPageList(list, options_.pageFlags)) {
            beep();
            message("The page numbers and/or page ranges are not valid.", "Print");
            return;
        }
    }
    accept();
}

void FrmImprimir::CmdCancelarClick() {
    options_.accepted = false;
    reject();
}
