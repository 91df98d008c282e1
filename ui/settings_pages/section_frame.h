#pragma once
#include <QFrame>
#include <QString>

class QPainter;

// Draws a section heading on the top edge of a frame, with a shaded border that leaves a
// gap for the caption. The caption "-" stands for a frame with no heading line.
void DrawSectionHeading(QPainter& painter, const QRect& frame, const QString& caption);

// A frame drawn with its heading; its children go inside the margins.
class SectionFrame : public QFrame {
    Q_OBJECT
public:
    SectionFrame(const QString& caption, QWidget* parent = nullptr);
    QString Caption() const { return caption_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString caption_;
};
