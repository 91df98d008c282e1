#include "ui/main_window/form_splash.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "core/application_state.h"
#include "sumforge_version.h"

FormSplash::FormSplash(const QString& title, QWidget* parent) : QDialog(parent) {
    setObjectName("FormSplash");
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowTitle(title);
    setFixedSize(460, 240);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 28, 32, 24);
    auto* name = new QLabel(title, this);
    name->setObjectName("LbTitle");
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.9);
    big.setBold(true);
    name->setFont(big);
    auto* subtitle = new QLabel("Collections of mathematics exercises, with their solutions", this);
    subtitle->setObjectName("LbSubtitle");
    auto* version = new QLabel(QString("Version: ") + kSumforgeVersion, this);
    version->setObjectName("LbVersion");
    auto* product = new QLabel(QString(kProductId), this);
    product->setObjectName("LbProduct");
    for (QLabel* label : {name, subtitle, version, product}) {
        label->setStyleSheet("color: white; background: transparent;");
        label->installEventFilter(this);
        layout->addWidget(label);
    }
    layout->addStretch();
    timer1_ = new QTimer(this);
    timer1_->setObjectName("Timer1");
    timer1_->setSingleShot(true);
    // No fixed wait: the main window shows as soon as it is loaded and the event loop runs;
    // the picture stays only while the program is still getting ready.
    timer1_->setInterval(0);
}

void FormSplash::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QLinearGradient gradient(0, 0, width(), height());
    gradient.setColorAt(0, QColor(36, 64, 104));
    gradient.setColorAt(1, QColor(20, 32, 52));
    p.fillRect(rect(), gradient);
}

void FormSplash::mousePressEvent(QMouseEvent*) { close(); }

bool FormSplash::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        close();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
