#include "ui/settings_pages/section_frame.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QVBoxLayout>

void DrawSectionHeading(QPainter& painter, const QRect& frame, const QString& caption) {
    painter.save();
    QFont font("Arial");
    font.setPointSize(10);
    font.setBold(true);
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const bool headed = caption != "-";
    const int top = frame.top() + (headed ? metrics.height() / 2 : 0);
    const int captionLeft = frame.left() + 10;
    const int captionWidth = headed ? metrics.horizontalAdvance(caption) + 8 : 0;
    const QRect box(frame.left(), top, frame.width() - 1, frame.bottom() - top);
    // A light line beside the dark one gives the border its shade.
    for (int pass = 0; pass < 2; ++pass) {
        painter.setPen(pass == 0 ? QColor(104, 104, 108) : QColor(255, 255, 255));
        const QRect r = box.translated(pass, pass);
        if (headed) {
            painter.drawLine(r.left(), r.top(), captionLeft - 4, r.top());
            painter.drawLine(captionLeft + captionWidth, r.top(), r.right() - 1, r.top());
        } else {
            painter.drawLine(r.left(), r.top(), r.right() - 1, r.top());
        }
        painter.drawLine(r.left(), r.top(), r.left(), r.bottom() - 1);
        painter.drawLine(r.left(), r.bottom() - 1, r.right() - 1, r.bottom() - 1);
        painter.drawLine(r.right() - 1, r.top(), r.right() - 1, r.bottom() - 1);
    }
    if (headed) {
        painter.setPen(QColor(64, 64, 128));
        painter.drawText(QRect(captionLeft, frame.top(), captionWidth, metrics.height()), Qt::AlignCenter, caption);
    }
    painter.restore();
}

SectionFrame::SectionFrame(const QString& caption, QWidget* parent) : QFrame(parent), caption_(caption) {
    setFrameShape(QFrame::NoFrame);
    QFont font("Arial");
    font.setPointSize(10);
    font.setBold(true);
    const int head = caption == "-" ? 8 : QFontMetrics(font).height() + 6;
    setContentsMargins(14, head, 14, 10);
}

void SectionFrame::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    DrawSectionHeading(painter, rect(), caption_);
}
