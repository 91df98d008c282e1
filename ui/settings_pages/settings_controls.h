#pragma once
#include <QColor>
#include <QObject>
#include <QString>
#include <QWidget>
#include <vector>

#include "core/application_state.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;
class SectionFrame;

// The two colour tables: the wizard's, and the properties dialog's in colour-wheel order.
std::vector<QColor> WizardColourTable();
std::vector<QColor> PropertiesColourTable();
// Red in the low byte, then green, then blue.
std::int32_t ColourValue(const QColor& colour);

// The page number position of the two texts joined by a blank, 0 when the text is unknown.
int PagePositionFromText(const QString& positionText);

// The strip of 22 colour swatches, 20 wide each, with the marker under the chosen one.
class ColourStrip : public QWidget {
    Q_OBJECT
public:
    ColourStrip(std::vector<QColor> table, QWidget* parent = nullptr);
    const std::vector<QColor>& Table() const { return table_; }
    int MarkerIndex() const { return marker_; }
    int MarkerX() const { return 20 * marker_ + 2; }
    void SetMarker(int index);
    QSize sizeHint() const override { return {22 * 20 + 2, 30}; }
signals:
    void Chosen(int index);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::vector<QColor> table_;
    int marker_ = 0;
};

// A small drawing of two pages that shows where the solutions go.
class SolutionsPreview : public QWidget {
    Q_OBJECT
public:
    SolutionsPreview(int sheet, QWidget* parent = nullptr);
    void SetPosition(int position);
    int Position() const { return position_; }
    QSize sizeHint() const override { return {64, 86}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    int sheet_;
    int position_ = 1;
};

// Two facing pages with the six places a page number can take: places 0..2 are left,
// centre and right of the even (left) page, 3..5 those of the odd (right) page.
class PageNumberPreview : public QWidget {
    Q_OBJECT
public:
    explicit PageNumberPreview(QWidget* parent = nullptr);
    void SetCode(int code);
    std::vector<int> MarkedPlaces() const;
    bool AtBottom() const { return (code_ & 8) != 0; }
    QSize sizeHint() const override { return {150, 96}; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    int code_ = 0;
};

// The controls of the problem and page numbers, sorting, solutions and title, built once
// and used by the wizard (pages 5 to 7) and the properties dialog (its five tabs). They
// edit the settings in place, control by control.
class SettingsControls : public QObject {
    Q_OBJECT
public:
    SettingsControls(CollectionSettings& settings, std::vector<QColor> colourTable, QWidget* owner);

    // The five sections; each is made once and then owned by whoever places it.
    SectionFrame* TitleSection(const QString& heading);
    SectionFrame* SortSection();
    SectionFrame* SolutionsSection();
    SectionFrame* ProblemNumbersSection();
    SectionFrame* PageNumbersSection();

    // Sets every control from the settings, the combos through the guard flag.
    void LoadControls();
    // Marks the settings' colour when the table holds it; otherwise the marker stays.
    void MarkCurrentColour();
    // Joins the combos' texts, sets the page number position and the previews.
    void PositionRoutine();

    bool guard = false;
    QLineEdit* TxTITULO;
    QRadioButton* Option12;
    QRadioButton* Option11;
    QRadioButton* Option1;
    QRadioButton* Option13;
    QRadioButton* Option19;
    QRadioButton* Option5;
    SolutionsPreview* Image2;
    SolutionsPreview* Image5;
    QLineEdit* TxNumProbINI;
    QLineEdit* TxProPre;
    QLineEdit* TxProSuf;
    ColourStrip* Picture2;
    QCheckBox* Check1;
    QWidget* PagePositionFrame;
    QLineEdit* TxINIPAG;
    QComboBox* Combo1;
    QComboBox* Combo2;
    PageNumberPreview* Image4;

private:
    void SetSolutionPosition(int position);
    CollectionSettings& settings_;
    QWidget* owner_;
};
