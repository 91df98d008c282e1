#pragma once
#include <QDialog>

class QTimer;

// The start-up picture, also shown by Help > About. A click anywhere closes it.
class FormSplash : public QDialog {
    Q_OBJECT
public:
    explicit FormSplash(const QString& title, QWidget* parent = nullptr);
    // Started at start-up: once the main window is loaded it shows and this closes.
    QTimer* Timer1() const { return timer1_; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer* timer1_;
};
