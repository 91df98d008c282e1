#pragma once
#include <QAbstractScrollArea>
#include <vector>

#include "core/application_state.h"

// The tree of topics and generators of the wizard's page 4: rows 17 high, 20 of indent a
// level, an expander, a folder picture or a tick, a kind picture and the label of each
// visible node. It paints the TopicTree it is given and changes only the flags of its nodes.
class TopicTreeView : public QAbstractScrollArea {
    Q_OBJECT
public:
    static constexpr int kRowHeight = 17;
    static constexpr int kIndent = 20;
    // The view holds this many rows; nodes past them are not shown.
    static constexpr int kRowCapacity = 132;

    enum class Part { Expander, Head, Kind, Label };

    TopicTreeView(std::vector<TopicNode>& tree, QWidget* parent = nullptr);

    // Walks the nodes for the visible ones and repaints (ActualizaTree).
    void ActualizaTree();
    // Repaints the highlight only and keeps the current row in view (ActualizaSeleccion).
    void ActualizaSeleccion();

    int RowCount() const { return static_cast<int>(rows_.size()); }
    // The node index (0-based into the tree) of visible row 1..RowCount.
    int NodeOfRow(int row) const { return rows_[row - 1]; }
    // The visible row of a node, 0 when hidden.
    int RowOfNode(int node) const;
    int CurrentRow() const { return currentRow_; }
    int CurrentNode() const;
    void SetCurrentRow(int row);

    // What a click on a part of a row does; left says the left button.
    void ClickRow(int row, Part part, bool left = true);
    // The rectangle of a part of a row, in viewport co-ordinates.
    QRect PartRect(int row, Part part) const;
    // How many pixels the content needs across and down.
    QSize ContentSize() const;

signals:
    // The current row changed, or a leaf's tick changed: the detail panel follows.
    void CurrentChanged();
    void SelectionToggled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void UpdateScrollBars();
    void ToggleExpanded(int node);
    void ToggleSelected(int node);
    int LabelLeft(int node) const;
    std::vector<TopicNode>& tree_;
    std::vector<int> rows_;
    int currentRow_ = 1;
};

// The small pictures of the tree, drawn at any density.
namespace tree_pictures {
void DrawExpander(QPainter& painter, const QRectF& box, bool expanded);
void DrawDots(QPainter& painter, const QRectF& box);
void DrawFolder(QPainter& painter, const QRectF& box, bool open);
void DrawTick(QPainter& painter, const QRectF& box, bool on);
void DrawKind(QPainter& painter, const QRectF& box, int kind);
}  // namespace tree_pictures
