#include "ui/wizard/topic_tree_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <algorithm>

namespace tree_pictures {

void DrawExpander(QPainter& painter, const QRectF& box, bool expanded) {
    const QRectF square(box.center().x() - 4.5, box.center().y() - 4.5, 9, 9);
    painter.setPen(QPen(QColor(128, 128, 140), 1));
    painter.setBrush(QColor(250, 250, 252));
    painter.drawRect(square);
    painter.setPen(QPen(QColor(40, 40, 60), 1.2));
    const QPointF c = square.center();
    painter.drawLine(QPointF(c.x() - 2.5, c.y()), QPointF(c.x() + 2.5, c.y()));
    if (!expanded) painter.drawLine(QPointF(c.x(), c.y() - 2.5), QPointF(c.x(), c.y() + 2.5));
}

void DrawDots(QPainter& painter, const QRectF& box) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(128, 128, 128));
    for (double x = box.left() + 1; x < box.right(); x += 2)
        if (static_cast<int>(x - box.left()) % 4 == 1) painter.drawRect(QRectF(x, box.center().y(), 1, 1));
}

void DrawFolder(QPainter& painter, const QRectF& box, bool open) {
    const QRectF b = box.adjusted(1, 3, -1, -2);
    painter.setPen(QPen(QColor(176, 130, 30), 1));
    painter.setBrush(QColor(240, 196, 80));
    QPainterPath back;
    back.moveTo(b.left(), b.bottom());
    back.lineTo(b.left(), b.top());
    back.lineTo(b.left() + b.width() * 0.4, b.top());
    back.lineTo(b.left() + b.width() * 0.5, b.top() + 2);
    back.lineTo(b.right(), b.top() + 2);
    back.lineTo(b.right(), b.bottom());
    back.closeSubpath();
    painter.drawPath(back);
    painter.setBrush(QColor(255, 222, 120));
    if (open) {
        QPainterPath front;
        front.moveTo(b.left(), b.bottom());
        front.lineTo(b.left() + 3, b.top() + 5);
        front.lineTo(b.right() + 1, b.top() + 5);
        front.lineTo(b.right() - 2, b.bottom());
        front.closeSubpath();
        painter.drawPath(front);
    } else {
        painter.drawRect(QRectF(b.left(), b.top() + 4, b.width(), b.height() - 4));
    }
}

void DrawTick(QPainter& painter, const QRectF& box, bool on) {
    const QRectF square(box.center().x() - 6.5, box.center().y() - 6.5, 13, 13);
    painter.setPen(QPen(on ? QColor(50, 90, 190) : QColor(120, 120, 132), 1));
    painter.setBrush(on ? QColor(66, 110, 215) : QColor(255, 255, 255));
    painter.drawRoundedRect(square, 2, 2);
    if (on) {
        painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF c = square.center();
        const QPointF tick[3] = {{c.x() - 3.5, c.y()}, {c.x() - 1, c.y() + 3}, {c.x() + 3.8, c.y() - 3}};
        painter.drawPolyline(tick, 3);
    }
}

void DrawKind(QPainter& painter, const QRectF& box, int kind) {
    static const QColor kColours[5] = {{0, 0, 0}, {52, 120, 200}, {46, 150, 90}, {214, 120, 40}, {130, 80, 180}};
    static const char* kLetters[5] = {"", "Q", "E", "P", "T"};
    if (kind < 1 || kind > 4) return;
    const QRectF badge(box.center().x() - 7, box.center().y() - 7, 14, 14);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kColours[kind]);
    painter.drawRoundedRect(badge, 3, 3);
    QFont font = painter.font();
    font.setPixelSize(10);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, kLetters[kind]);
}

}  // namespace tree_pictures

TopicTreeView::TopicTreeView(std::vector<TopicNode>& tree, QWidget* parent) : QAbstractScrollArea(parent), tree_(tree) {
    setObjectName("Picture1");
    verticalScrollBar()->setObjectName("VScroll1");
    horizontalScrollBar()->setObjectName("HScroll1");
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAutoFillBackground(true);
    QPalette palette = viewport()->palette();
    palette.setColor(QPalette::Window, Qt::white);
    viewport()->setPalette(palette);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void TopicTreeView::ActualizaTree() {
    rows_.clear();
    int skipLevel = 9999;
    for (int i = 0; i < static_cast<int>(tree_.size()); ++i) {
        const TopicNode& node = tree_[i];
        if (node.level == skipLevel) skipLevel = 9999;
        if (node.level > skipLevel) continue;
        if (node.isFolder && !node.expanded) skipLevel = node.level;
        if (static_cast<int>(rows_.size()) >= kRowCapacity) break;
        rows_.push_back(i);
    }
    if (currentRow_ > RowCount()) currentRow_ = std::max(1, RowCount());
    UpdateScrollBars();
    viewport()->update();
}

void TopicTreeView::ActualizaSeleccion() {
    const QRect row(0, (currentRow_ - 1) * kRowHeight, 1, kRowHeight);
    QScrollBar* v = verticalScrollBar();
    if (row.top() < v->value())
        v->setValue(row.top());
    else if (row.bottom() + 1 > v->value() + viewport()->height())
        v->setValue(row.bottom() + 1 - viewport()->height());
    viewport()->update();
}

int TopicTreeView::RowOfNode(int node) const {
    const auto it = std::find(rows_.begin(), rows_.end(), node);
    return it == rows_.end() ? 0 : static_cast<int>(it - rows_.begin()) + 1;
}

int TopicTreeView::CurrentNode() const {
    if (currentRow_ < 1 || currentRow_ > RowCount()) return -1;
    return rows_[currentRow_ - 1];
}

void TopicTreeView::SetCurrentRow(int row) {
    if (row < 1 || row > std::max(1, RowCount())) return;
    currentRow_ = row;
    ActualizaSeleccion();
    emit CurrentChanged();
}

int TopicTreeView::LabelLeft(int node) const {
    const int x0 = 4 + tree_[node].level * kIndent;
    return tree_[node].isFolder ? x0 + 36 : x0 + 54;
}

QRect TopicTreeView::PartRect(int row, Part part) const {
    const int node = NodeOfRow(row);
    const int x0 = 4 + tree_[node].level * kIndent - horizontalScrollBar()->value();
    const int y = (row - 1) * kRowHeight - verticalScrollBar()->value();
    switch (part) {
        case Part::Expander: return {x0, y, 16, kRowHeight};
        case Part::Head: return {x0 + 16, y, 18, kRowHeight};
        case Part::Kind: return {x0 + 34, y, 18, kRowHeight};
        case Part::Label: {
            const int left = LabelLeft(node) - horizontalScrollBar()->value();
            QFont font = this->font();
            font.setBold(tree_[node].kind == kNodeSubject);
            const int width = QFontMetrics(font).horizontalAdvance(QString::fromStdString(tree_[node].label)) + 8;
            return {left - 2, y, width, kRowHeight};
        }
    }
    return {};
}

QSize TopicTreeView::ContentSize() const {
    int width = 0;
    for (int node : rows_)
        width = std::max(width, LabelLeft(node) + fontMetrics().horizontalAdvance(QString::fromStdString(tree_[node].label)) + 24);
    return {width, RowCount() * kRowHeight};
}

void TopicTreeView::UpdateScrollBars() {
    const QSize content = ContentSize();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(kRowHeight);
    verticalScrollBar()->setRange(0, std::max(0, content.height() - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(20);
    horizontalScrollBar()->setRange(0, std::max(0, content.width() - viewport()->width()));
}

void TopicTreeView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    UpdateScrollBars();
}

void TopicTreeView::scrollContentsBy(int, int) { viewport()->update(); }

void TopicTreeView::ToggleExpanded(int node) {
    if (!tree_[node].isFolder) return;
    tree_[node].expanded = !tree_[node].expanded;
    ActualizaTree();
}

void TopicTreeView::ToggleSelected(int node) {
    if (tree_[node].isFolder) return;
    tree_[node].selected = !tree_[node].selected;
    viewport()->update();
    emit SelectionToggled();
}

void TopicTreeView::ClickRow(int row, Part part, bool left) {
    if (row < 1 || row > RowCount()) return;
    const int node = NodeOfRow(row);
    switch (part) {
        case Part::Label:
        case Part::Kind:
            currentRow_ = row;
            if (tree_[node].isFolder) {
                ToggleExpanded(node);
                emit CurrentChanged();
            } else {
                ToggleSelected(node);
                ActualizaSeleccion();
            }
            break;
        case Part::Head:
            if (tree_[node].isFolder)
                ToggleExpanded(node);
            else
                ToggleSelected(node);
            break;
        case Part::Expander:
            if (left) ToggleExpanded(node);
            break;
    }
}

void TopicTreeView::mousePressEvent(QMouseEvent* event) {
    setFocus();
    const QPoint p = event->position().toPoint();
    const int row = (p.y() + verticalScrollBar()->value()) / kRowHeight + 1;
    if (row < 1 || row > RowCount()) return;
    for (Part part : {Part::Expander, Part::Head, Part::Kind, Part::Label}) {
        if (part == Part::Kind && tree_[NodeOfRow(row)].isFolder) continue;
        if (PartRect(row, part).contains(p)) {
            ClickRow(row, part, event->button() == Qt::LeftButton);
            return;
        }
    }
}

void TopicTreeView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            ClickRow(currentRow_, Part::Label);
            return;
        case Qt::Key_Left:
        case Qt::Key_Up:
            if (currentRow_ > 1) SetCurrentRow(currentRow_ - 1);
            return;
        case Qt::Key_Right:
        case Qt::Key_Down:
            if (currentRow_ < RowCount()) SetCurrentRow(currentRow_ + 1);
            return;
        default:
            QAbstractScrollArea::keyPressEvent(event);
    }
}

void TopicTreeView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const int dx = horizontalScrollBar()->value();
    const int dy = verticalScrollBar()->value();
    // The dotted connectors: from the sibling above (or the parent) down to each node.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(128, 128, 128));
    for (int row = 2; row <= RowCount(); ++row) {
        const TopicNode& node = tree_[NodeOfRow(row)];
        if (node.level == 0) continue;
        int from = row - 1;
        while (from > 1 && tree_[NodeOfRow(from)].level > node.level) --from;
        const double x = 4 + (node.level - 1) * kIndent + 8 - dx;
        const double yFrom = (from - 1) * kRowHeight + kRowHeight / 2.0 + 6 - dy;
        const double yTo = (row - 1) * kRowHeight + kRowHeight / 2.0 - dy;
        for (double y = yFrom; y <= yTo; y += 2) painter.drawRect(QRectF(x, y, 1, 1));
        for (double xx = x + 2; xx < 4 + node.level * kIndent + 3 - dx; xx += 2) painter.drawRect(QRectF(xx, yTo, 1, 1));
    }
    const QPalette pal = palette();
    for (int row = 1; row <= RowCount(); ++row) {
        const TopicNode& node = tree_[NodeOfRow(row)];
        const int y = (row - 1) * kRowHeight - dy;
        if (y + kRowHeight < 0 || y > viewport()->height()) continue;
        const QRectF expander = PartRect(row, Part::Expander);
        if (node.isFolder)
            tree_pictures::DrawExpander(painter, expander, node.expanded);
        else
            tree_pictures::DrawDots(painter, expander);
        if (node.isFolder) {
            tree_pictures::DrawFolder(painter, PartRect(row, Part::Head), node.expanded);
        } else {
            tree_pictures::DrawTick(painter, PartRect(row, Part::Head), node.selected);
            tree_pictures::DrawKind(painter, PartRect(row, Part::Kind), node.kind);
        }
        const QRect label = PartRect(row, Part::Label);
        const bool current = row == currentRow_;
        if (current) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(hasFocus() ? pal.color(QPalette::Highlight) : QColor(210, 216, 236));
            painter.drawRect(label.adjusted(0, 1, 0, -1));
        }
        QFont font = this->font();
        font.setBold(node.kind == kNodeSubject);
        painter.setFont(font);
        painter.setPen(current && hasFocus() ? pal.color(QPalette::HighlightedText) : QColor(0, 0, 0));
        painter.drawText(label.adjusted(3, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, QString::fromStdString(node.label));
    }
}
