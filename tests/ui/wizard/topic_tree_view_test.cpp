#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <gtest/gtest.h>

#include "ui/wizard/topic_tree_view.h"

namespace {

TopicNode Folder(int level, const std::string& label, bool expanded) {
    TopicNode n;
    n.level = level;
    n.isFolder = true;
    n.expanded = expanded;
    n.label = label;
    n.kind = level == 0 ? kNodeSubject : kNodeFolder;
    return n;
}

TopicNode Leaf(const std::string& label, int kind = kNodeProblems) {
    TopicNode n;
    n.level = 2;
    n.label = label;
    n.kind = kind;
    return n;
}

void Key(QWidget* w, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(w, &press);
}

}  // namespace

TEST(TopicTreeView, ShowsOnlyWhatOpenFoldersHold) {
    std::vector<TopicNode> tree = {Folder(0, "Mathematics", true), Folder(1, "A", false), Leaf("a1"), Leaf("a2"),
                                   Folder(1, "B", true), Leaf("b1"), Folder(1, "C", false)};
    TopicTreeView view(tree);
    view.resize(300, 200);
    view.ActualizaTree();
    ASSERT_EQ(view.RowCount(), 5);
    EXPECT_EQ(view.NodeOfRow(2), 1);
    EXPECT_EQ(view.NodeOfRow(3), 4);
    EXPECT_EQ(view.NodeOfRow(4), 5);
    EXPECT_EQ(view.RowOfNode(2), 0);
    // 17 high, 20 a level.
    EXPECT_EQ(view.PartRect(4, TopicTreeView::Part::Expander), QRect(4 + 2 * 20, 3 * 17, 16, 17));
    // The expander needs the left button; the folder picture toggles too.
    view.ClickRow(2, TopicTreeView::Part::Expander, false);
    EXPECT_FALSE(tree[1].expanded);
    view.ClickRow(2, TopicTreeView::Part::Expander, true);
    EXPECT_TRUE(tree[1].expanded);
    EXPECT_EQ(view.RowCount(), 7);
    view.ClickRow(2, TopicTreeView::Part::Head);
    EXPECT_FALSE(tree[1].expanded);
    // A label click on a folder makes it current and toggles it.
    view.ClickRow(2, TopicTreeView::Part::Label);
    EXPECT_EQ(view.CurrentRow(), 2);
    EXPECT_TRUE(tree[1].expanded);
    // On a leaf: label and kind picture make it current and tick it; the tick only ticks.
    view.ClickRow(3, TopicTreeView::Part::Kind);
    EXPECT_EQ(view.CurrentRow(), 3);
    EXPECT_TRUE(tree[2].selected);
    view.ClickRow(4, TopicTreeView::Part::Head);
    EXPECT_TRUE(tree[3].selected);
    EXPECT_EQ(view.CurrentRow(), 3);
    // Collapsing the root hides everything under it.
    view.ClickRow(1, TopicTreeView::Part::Expander);
    EXPECT_EQ(view.RowCount(), 1);
}

TEST(TopicTreeView, KeysMoveAndActOnTheCurrentRow) {
    std::vector<TopicNode> tree = {Folder(0, "Mathematics", true), Folder(1, "A", false), Leaf("a1"),
                                   Folder(1, "B", false)};
    TopicTreeView view(tree);
    view.resize(300, 200);
    view.ActualizaTree();
    int changes = 0;
    QObject::connect(&view, &TopicTreeView::CurrentChanged, [&] { ++changes; });
    view.SetCurrentRow(1);
    Key(&view, Qt::Key_Down);
    EXPECT_EQ(view.CurrentRow(), 2);
    Key(&view, Qt::Key_Return);
    EXPECT_TRUE(tree[1].expanded);
    Key(&view, Qt::Key_Right);
    EXPECT_EQ(view.CurrentNode(), 2);
    Key(&view, Qt::Key_Space);
    EXPECT_TRUE(tree[2].selected);
    Key(&view, Qt::Key_Down);
    Key(&view, Qt::Key_Down);
    EXPECT_EQ(view.CurrentRow(), 4);
    Key(&view, Qt::Key_Up);
    Key(&view, Qt::Key_Left);
    EXPECT_EQ(view.CurrentRow(), 2);
    Key(&view, Qt::Key_Up);
    Key(&view, Qt::Key_Up);
    EXPECT_EQ(view.CurrentRow(), 1);
    EXPECT_GE(changes, 6);
}

TEST(TopicTreeView, HoldsAtMost132RowsAndScrollsToTheCurrentOne) {
    std::vector<TopicNode> tree = {Folder(0, "Mathematics", true), Folder(1, "Long", true)};
    for (int i = 0; i < 200; ++i) tree.push_back(Leaf("Leaf " + std::to_string(i)));
    TopicTreeView view(tree);
    view.resize(200, 170);
    view.ActualizaTree();
    EXPECT_EQ(view.RowCount(), TopicTreeView::kRowCapacity);
    EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
    view.SetCurrentRow(100);
    const int top = view.verticalScrollBar()->value();
    EXPECT_LE(top, 99 * 17);
    EXPECT_GE(top + view.viewport()->height(), 100 * 17);
    // A mouse click lands on the row under it.
    const QRect label = view.PartRect(100, TopicTreeView::Part::Label);
    QMouseEvent click(QEvent::MouseButtonPress, QPointF(label.center()), QPointF(label.center()), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &click);
    EXPECT_TRUE(tree[view.NodeOfRow(100)].selected);
}
