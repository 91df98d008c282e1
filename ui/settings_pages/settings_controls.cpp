#include "ui/settings_pages/settings_controls.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "core/col_file.h"
#include "ui/settings_pages/section_frame.h"

std::vector<QColor> WizardColourTable() {
    return {{255, 255, 255}, {224, 192, 192}, {255, 192, 192}, {224, 255, 192}, {192, 255, 224}, {192, 255, 192},
            {192, 192, 255}, {192, 255, 255}, {255, 192, 255}, {255, 224, 224}, {255, 255, 192}, {255, 224, 192},
            {192, 192, 192}, {255, 255, 224}, {255, 224, 255}, {192, 224, 255}, {224, 224, 255}, {192, 224, 192},
            {224, 255, 255}, {192, 224, 255}, {224, 192, 255}, {192, 224, 224}};
}

std::vector<QColor> PropertiesColourTable() {
    return {{255, 255, 255}, {224, 224, 224}, {192, 192, 192}, {224, 224, 255}, {192, 192, 224}, {192, 192, 255},
            {192, 224, 255}, {192, 224, 224}, {192, 255, 255}, {224, 255, 255}, {192, 224, 192}, {192, 255, 192},
            {192, 255, 224}, {224, 255, 192}, {255, 255, 192}, {255, 255, 224}, {255, 224, 192}, {255, 192, 192},
            {255, 192, 255}, {224, 192, 255}, {255, 224, 255}, {255, 224, 224}};
}

std::int32_t ColourValue(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

int PagePositionFromText(const QString& positionText) {
    static const struct {
        const char* text;
        int code;
    } kTable[] = {{"Top Right", 1},
                  {"Top Left", 2},
                  {"Top Center", 3},
                  {"Top Odd right - even left", 4},
                  {"Top Odd left - even right", 5},
                  {"Bottom Right", 9},
                  {"Bottom Left", 10},
                  {"Bottom Center", 11},
                  {"Bottom Odd right - even left", 12},
                  {"Bottom Odd left - even right", 13}};
    for (const auto& entry : kTable)
        if (positionText == entry.text) return entry.code;
    return 0;
}

// ---- ColourStrip

ColourStrip::ColourStrip(std::vector<QColor> table, QWidget* parent) : QWidget(parent), table_(std::move(table)) {
    setObjectName("Picture2");
    setFixedSize(sizeHint());
    setCursor(Qt::PointingHandCursor);
}

void ColourStrip::SetMarker(int index) {
    marker_ = index;
    update();
}

void ColourStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int i = 0; i < static_cast<int>(table_.size()); ++i) {
        const QRect swatch(20 * i + 1, 1, 18, 18);
        painter.fillRect(swatch, table_[i]);
        painter.setPen(QColor(96, 96, 96));
        painter.drawRect(swatch.adjusted(0, 0, -1, -1));
    }
    // The marker: a small dark wedge under the chosen swatch.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(64, 64, 128));
    const double x = MarkerX();
    const QPointF wedge[3] = {{x + 8, 21}, {x + 2, 29}, {x + 14, 29}};
    painter.drawPolygon(wedge, 3);
}

void ColourStrip::mousePressEvent(QMouseEvent* event) {
    const int index = static_cast<int>(event->position().x()) / 20;
    if (index >= 0 && index < static_cast<int>(table_.size())) emit Chosen(index);
}

// ---- previews

namespace {

void DrawSheet(QPainter& painter, const QRectF& sheet) {
    painter.setPen(QPen(QColor(120, 120, 132), 1));
    painter.setBrush(Qt::white);
    painter.drawRect(sheet);
}

// A block of text lines: grey for statements, blue for solutions.
double DrawLines(QPainter& painter, const QRectF& sheet, double top, int lines, bool solution) {
    const QColor colour = solution ? QColor(90, 120, 210) : QColor(150, 150, 150);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::FlatCap));
    for (int i = 0; i < lines; ++i) {
        const double y = top + 4 * i;
        const double right = sheet.right() - 6 - (i == lines - 1 ? 10 : 0);
        painter.drawLine(QPointF(sheet.left() + (solution ? 9 : 6), y), QPointF(right, y));
    }
    return top + 4 * lines + 3;
}

}  // namespace

SolutionsPreview::SolutionsPreview(int sheet, QWidget* parent) : QWidget(parent), sheet_(sheet) {
    setObjectName(sheet == 0 ? "Image2" : "Image5");
    setFixedSize(sizeHint());
}

void SolutionsPreview::SetPosition(int position) {
    position_ = position;
    update();
}

void SolutionsPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF sheet(1.5, 1.5, width() - 3, height() - 3);
    DrawSheet(painter, sheet);
    double y = sheet.top() + 8;
    const double bottom = sheet.bottom() - 6;
    if (sheet_ == 0) {
        // The first page: statements, with solutions between them when they follow each one.
        while (y + 10 < bottom) {
            y = DrawLines(painter, sheet, y, 2, false);
            if (position_ == 1 && y + 8 < bottom) y = DrawLines(painter, sheet, y, 1, true);
        }
        return;
    }
    // The last page: how the collection ends.
    switch (position_) {
        case 0:
            for (int i = 0; i < 3; ++i) y = DrawLines(painter, sheet, y, 2, false);
            break;
        case 1:
            for (int i = 0; i < 3; ++i) {
                y = DrawLines(painter, sheet, y, 2, false);
                y = DrawLines(painter, sheet, y, 1, true);
            }
            break;
        case 2:
            for (int i = 0; i < 2; ++i) y = DrawLines(painter, sheet, y, 2, false);
            y += 3;
            while (y + 6 < bottom) y = DrawLines(painter, sheet, y, 1, true);
            break;
        default:
            while (y + 6 < bottom) y = DrawLines(painter, sheet, y, 1, true);
            break;
    }
}

PageNumberPreview::PageNumberPreview(QWidget* parent) : QWidget(parent) {
    setObjectName("Image4");
    setFixedSize(sizeHint());
}

void PageNumberPreview::SetCode(int code) {
    code_ = code;
    update();
}

std::vector<int> PageNumberPreview::MarkedPlaces() const {
    switch (code_ & 7) {
        case 1: return {2, 5};
        case 2: return {0, 3};
        case 3: return {1, 4};
        case 4: return {0, 5};
        case 5: return {2, 3};
        default: return {};
    }
}

void PageNumberPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double w = (width() - 6) / 2.0;
    const double h = height() - 3;
    const std::vector<int> marked = MarkedPlaces();
    for (int page = 0; page < 2; ++page) {
        const QRectF sheet(1.5 + page * (w + 3), 1.5, w, h);
        DrawSheet(painter, sheet);
        double y = sheet.top() + 14;
        while (y + 14 < sheet.bottom()) y = DrawLines(painter, sheet, y, 2, false);
        for (int place = 0; place < 3; ++place) {
            const double cx = sheet.left() + 9 + place * (w - 18) / 2.0;
            const double cy = AtBottom() ? sheet.bottom() - 6 : sheet.top() + 6;
            const bool on = std::find(marked.begin(), marked.end(), page * 3 + place) != marked.end();
            painter.setPen(on ? QPen(QColor(200, 60, 40), 1) : QPen(QColor(205, 205, 212), 1));
            painter.setBrush(on ? QColor(230, 90, 60) : QColor(238, 238, 244));
            painter.drawRoundedRect(QRectF(cx - 5, cy - 3.5, 10, 7), 1.5, 1.5);
        }
    }
}

// ---- the controls

SettingsControls::SettingsControls(CollectionSettings& settings, std::vector<QColor> colourTable, QWidget* owner)
    : QObject(owner), settings_(settings), owner_(owner) {
    TxTITULO = new QLineEdit;
    TxTITULO->setObjectName("TxTITULO");
    connect(TxTITULO, &QLineEdit::textChanged, this,
            [this](const QString& text) { settings_.Title = AsFileText(text.trimmed().toStdString(), kMaxTitleBytes); });

    Option12 = new QRadioButton("Unsorted");
    Option12->setObjectName("Option12");
    Option11 = new QRadioButton("Sorted by topics");
    Option11->setObjectName("Option11");
    auto* sortGroup = new QButtonGroup(this);
    sortGroup->addButton(Option12);
    sortGroup->addButton(Option11);
    connect(Option11, &QRadioButton::toggled, this, [this](bool on) {
        if (on) settings_.Sorted = true;
    });
    connect(Option12, &QRadioButton::toggled, this, [this](bool on) {
        if (on) settings_.Sorted = false;
    });

    Option1 = new QRadioButton("No solutions");
    Option1->setObjectName("Option1");
    Option13 = new QRadioButton("After each problem");
    Option13->setObjectName("Option13");
    Option19 = new QRadioButton("Together at the end");
    Option19->setObjectName("Option19");
    Option5 = new QRadioButton("Separate page");
    Option5->setObjectName("Option5");
    Image2 = new SolutionsPreview(0);
    Image5 = new SolutionsPreview(1);
    auto* solutionGroup = new QButtonGroup(this);
    QRadioButton* options[4] = {Option1, Option13, Option19, Option5};
    for (int position = 0; position < 4; ++position) {
        solutionGroup->addButton(options[position]);
        connect(options[position], &QRadioButton::toggled, this, [this, position](bool on) {
            if (on) SetSolutionPosition(position);
        });
    }

    TxNumProbINI = new QLineEdit;
    TxNumProbINI->setObjectName("TxNumProbINI");
    // Keystrokes other than digits are dropped.
    TxNumProbINI->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), TxNumProbINI));
    connect(TxNumProbINI, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty()) {
            settings_.FirstProblemNumber = 1;
            return;
        }
        bool ok = false;
        const int value = text.toInt(&ok);
        if (ok && value >= 1 && value <= 1999)
            settings_.FirstProblemNumber = value;
        else
            TxNumProbINI->setText(QString::number(settings_.FirstProblemNumber));
    });
    TxProPre = new QLineEdit;
    TxProPre->setObjectName("TxProPre");
    connect(TxProPre, &QLineEdit::textChanged, this,
            [this](const QString& text) { settings_.NumberPrefix = AsFileText(text.toStdString(), kMaxAffixBytes); });
    TxProSuf = new QLineEdit;
    TxProSuf->setObjectName("TxProSuf");
    connect(TxProSuf, &QLineEdit::textChanged, this,
            [this](const QString& text) { settings_.NumberSuffix = AsFileText(text.toStdString(), kMaxAffixBytes); });

    Picture2 = new ColourStrip(std::move(colourTable));
    connect(Picture2, &ColourStrip::Chosen, this, [this](int index) {
        settings_.NumberColour = ColourValue(Picture2->Table()[index]);
        Picture2->SetMarker(index);
    });

    Check1 = new QCheckBox("Insert page number");
    Check1->setObjectName("Check1");
    PagePositionFrame = new QWidget;
    PagePositionFrame->setObjectName("PagePositionFrame");
    TxINIPAG = new QLineEdit;
    TxINIPAG->setObjectName("TxINIPAG");
    TxINIPAG->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), TxINIPAG));
    connect(TxINIPAG, &QLineEdit::textChanged, this, [this](const QString& text) {
        bool ok = false;
        const int value = text.toInt(&ok);
        if (ok && value >= 1 && value <= 1999)
            settings_.FirstPageNumber = value;
        else
            TxINIPAG->setText(QString::number(settings_.FirstPageNumber));
    });
    Combo1 = new QComboBox;
    Combo1->setObjectName("Combo1");
    Combo2 = new QComboBox;
    Combo2->setObjectName("Combo2");
    guard = true;
    Combo1->addItems({"Top", "Bottom"});
    Combo2->addItems({"Left", "Center", "Right", "Odd right - even left", "Odd left - even right"});
    guard = false;
    connect(Combo1, &QComboBox::currentIndexChanged, this, [this](int) { PositionRoutine(); });
    connect(Combo2, &QComboBox::currentIndexChanged, this, [this](int) { PositionRoutine(); });
    Image4 = new PageNumberPreview;
    connect(Check1, &QCheckBox::toggled, this, [this](bool on) {
        PagePositionFrame->setVisible(on);
        if (on)
            PositionRoutine();
        else
            settings_.PagePositionCode = 0;
    });
}

void SettingsControls::SetSolutionPosition(int position) {
    settings_.SolutionPosition = position;
    Image2->SetPosition(position);
    Image5->SetPosition(position);
}

void SettingsControls::PositionRoutine() {
    if (guard) return;
    const QString text = Combo1->currentText() + " " + Combo2->currentText();
    settings_.PagePositionCode = PagePositionFromText(text);
    Image4->SetCode(settings_.PagePositionCode);
}

void SettingsControls::MarkCurrentColour() {
    const auto& table = Picture2->Table();
    for (int i = 0; i < static_cast<int>(table.size()); ++i)
        if (ColourValue(table[i]) == settings_.NumberColour) {
            Picture2->SetMarker(i);
            break;
        }
}

void SettingsControls::LoadControls() {
    const CollectionSettings loaded = settings_;
    TxTITULO->setText(QString::fromStdString(loaded.Title));
    (loaded.Sorted ? Option11 : Option12)->setChecked(true);
    QRadioButton* options[4] = {Option1, Option13, Option19, Option5};
    if (loaded.SolutionPosition >= 0 && loaded.SolutionPosition <= 3) {
        options[loaded.SolutionPosition]->setChecked(true);
        SetSolutionPosition(loaded.SolutionPosition);
    }
    TxProPre->setText(QString::fromStdString(loaded.NumberPrefix));
    TxProSuf->setText(QString::fromStdString(loaded.NumberSuffix));
    TxNumProbINI->setText(QString::number(loaded.FirstProblemNumber));
    MarkCurrentColour();
    const int code = loaded.PagePositionCode;
    if (code != 0) {
        guard = true;
        TxINIPAG->setText(QString::number(loaded.FirstPageNumber));
        Check1->setChecked(true);
        Combo1->setCurrentIndex((code & 8) ? 1 : 0);
        static const int kAlignment[6] = {-1, 2, 0, 1, 3, 4};
        const int low = code & 7;
        if (low >= 1 && low <= 5) Combo2->setCurrentIndex(kAlignment[low]);
        guard = false;
        PositionRoutine();
    } else {
        Check1->setChecked(false);
        PagePositionFrame->setVisible(false);
        settings_.PagePositionCode = 0;
    }
}

// ---- sections

namespace {
QLabel* Caption(const QString& text) {
    auto* label = new QLabel(text);
    return label;
}
}  // namespace

SectionFrame* SettingsControls::TitleSection(const QString& heading) {
    auto* frame = new SectionFrame(heading);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(TxTITULO);
    layout->addStretch();
    return frame;
}

SectionFrame* SettingsControls::SortSection() {
    auto* frame = new SectionFrame("Sorting method");
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(Option12);
    layout->addWidget(Option11);
    layout->addStretch();
    return frame;
}

SectionFrame* SettingsControls::SolutionsSection() {
    auto* frame = new SectionFrame("Position of solutions");
    auto* layout = new QHBoxLayout(frame);
    auto* column = new QVBoxLayout;
    column->addWidget(Option1);
    column->addWidget(Option13);
    column->addWidget(Option19);
    column->addWidget(Option5);
    column->addStretch();
    layout->addLayout(column, 1);
    layout->addWidget(Image2, 0, Qt::AlignTop);
    layout->addWidget(Image5, 0, Qt::AlignTop);
    return frame;
}

SectionFrame* SettingsControls::ProblemNumbersSection() {
    auto* frame = new SectionFrame("Problem numbers");
    auto* layout = new QGridLayout(frame);
    layout->addWidget(Caption("Start at:"), 0, 0);
    TxNumProbINI->setFixedWidth(70);
    layout->addWidget(TxNumProbINI, 0, 1);
    layout->addWidget(Caption("Prefix:"), 0, 2, Qt::AlignRight);
    TxProPre->setFixedWidth(70);
    layout->addWidget(TxProPre, 0, 3);
    layout->addWidget(Caption("Suffix:"), 0, 4, Qt::AlignRight);
    TxProSuf->setFixedWidth(70);
    layout->addWidget(TxProSuf, 0, 5);
    layout->setColumnStretch(6, 1);
    // The strip stands on its caption's line, and the rows keep to the top of the frame.
    auto* colour = new QHBoxLayout;
    QLabel* colourCaption = Caption("Highlight color for problem number");
    colourCaption->setWordWrap(true);
    colourCaption->setFixedWidth(colourCaption->fontMetrics().horizontalAdvance("Highlight color for") + 6);
    colour->addWidget(colourCaption);
    colour->addSpacing(8);
    colour->addWidget(Picture2, 0, Qt::AlignVCenter);
    colour->addStretch();
    layout->addLayout(colour, 1, 0, 1, 7);
    layout->setRowStretch(2, 1);
    return frame;
}

SectionFrame* SettingsControls::PageNumbersSection() {
    auto* frame = new SectionFrame("Page numbers");
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(Check1);
    auto* inner = new QHBoxLayout(PagePositionFrame);
    inner->setContentsMargins(20, 0, 0, 0);
    auto* form = new QFormLayout;
    TxINIPAG->setFixedWidth(70);
    form->addRow("Start at", TxINIPAG);
    form->addRow("Position", Combo1);
    form->addRow("Alignment", Combo2);
    inner->addLayout(form);
    inner->addSpacing(16);
    inner->addWidget(Image4, 0, Qt::AlignTop);
    inner->addStretch();
    layout->addWidget(PagePositionFrame);
    layout->addStretch();
    return frame;
}
