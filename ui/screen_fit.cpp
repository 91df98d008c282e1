#include "ui/screen_fit.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace {
// Room for the window manager's frame and title bar around the client area.
constexpr int kFrameAllowance = 40;

QScreen* ScreenOf(const QWidget& window) {
    if (const QWidget* parent = window.parentWidget())
        if (QScreen* screen = parent->window()->screen()) return screen;
    if (QScreen* screen = window.screen()) return screen;
    return QGuiApplication::primaryScreen();
}

void Place(QWidget& window, const QRect& area) {
    QRect frame(QPoint(0, 0), window.size());
    const QWidget* parent = window.parentWidget() ? window.parentWidget()->window() : nullptr;
    frame.moveCenter(parent && parent->isVisible() ? parent->frameGeometry().center() : area.center());
    // Inside the area, the top-left corner winning when the window is larger.
    frame.moveLeft(std::max(area.left(), std::min(frame.left(), area.right() - frame.width() + 1)));
    frame.moveTop(std::max(area.top(), std::min(frame.top(), area.bottom() - frame.height() - kFrameAllowance / 2 + 1)));
    window.move(frame.topLeft());
}
} // namespace

void FitInsideScreen(QWidget& window, QSize wanted) {
    QScreen* screen = ScreenOf(window);
    if (!screen) {
        window.resize(wanted);
        return;
    }
    const QRect area = screen->availableGeometry();
    const QSize room(std::max(200, area.width() - kFrameAllowance / 2), std::max(150, area.height() - kFrameAllowance));
    const QSize size = wanted.boundedTo(room);
    // A layout's minimum must not hold the window larger than the screen either: the
    // controls get a little tighter rather than the buttons going off the screen.
    const QSize minimum = window.minimumSizeHint().expandedTo(window.minimumSize());
    if (minimum.width() > size.width() || minimum.height() > size.height())
        window.setMinimumSize(minimum.boundedTo(size));
    window.resize(size);
    Place(window, area);
}

void KeepInsideScreen(QWidget& window) { FitInsideScreen(window, window.size()); }
