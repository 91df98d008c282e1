#include "ui/main_window/form_main.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <algorithm>
#include <cmath>

#include "core/editing.h"
#include "typesetter/qt_surface.h"
#include "ui/main_window/main_window_files.h"

// The page view: the sheet, its place in the work area, the page buttons, keys and wheel.

using namespace main_window;

namespace {
constexpr int kShadowOffset = 2;
constexpr int kPicture3Width = 20;
constexpr int kPicture2Height = 25;
constexpr int kScrollStep = 40;
const QColor kWorkArea(52, 56, 62);
} // namespace

// ---------------------------------------------------------------- the sheet

SheetView::SheetView(FormMain& form, QWidget* parent) : QWidget(parent), form_(form) {
    setObjectName("Picture1");
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SheetView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (!picture.isNull()) p.drawImage(QPointF(0, 0), picture);
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    form_.SheetMouseDown(event->position().toPoint(), event->button());
}
void SheetView::mouseMoveEvent(QMouseEvent* event) { form_.SheetMouseMove(event->position().toPoint()); }

void SheetView::dragEnterEvent(QDragEnterEvent* event) {
    const auto urls = event->mimeData()->urls();
    if (!urls.isEmpty() && EndsWithCol(urls.first().toLocalFile())) event->acceptProposedAction();
    else event->ignore();
}
void SheetView::dragMoveEvent(QDragMoveEvent* event) {
    const auto urls = event->mimeData()->urls();
    if (!urls.isEmpty() && EndsWithCol(urls.first().toLocalFile())) event->acceptProposedAction();
    else event->ignore();
}
void SheetView::dropEvent(QDropEvent* event) {
    QStringList files;
    for (const QUrl& url : event->mimeData()->urls()) files << url.toLocalFile();
    event->acceptProposedAction();
    form_.DropFiles(files);
}


void FormMain::BuildClientArea() {
    client_ = new QWidget(this);
    client_->setObjectName("WorkArea");
    client_->setAutoFillBackground(true);
    QPalette palette = client_->palette();
    palette.setColor(QPalette::Window, kWorkArea);
    client_->setPalette(palette);
    setCentralWidget(client_);
    client_->installEventFilter(this);

    shapeShadow_ = new QFrame(client_);
    shapeShadow_->setObjectName("ShapeShadow");
    shapeShadow_->setStyleSheet("background: rgb(40, 40, 40);");
    picture1_ = new SheetView(*this, client_);

    picture3_ = new QWidget(client_);
    picture3_->setObjectName("Picture3");
    picture3_->setAutoFillBackground(true);
    vscroll1_ = new QScrollBar(Qt::Vertical, picture3_);
    vscroll1_->setObjectName("VScroll1");
    vscroll1_->setInvertedAppearance(true);
    vscroll1_->setInvertedControls(true);
    vscroll1_->setSingleStep(kScrollStep);
    vscroll1_->setFocusPolicy(Qt::NoFocus);

    picture2_ = new QWidget(client_);
    picture2_->setObjectName("Picture2");
    picture2_->setAutoFillBackground(true);
    picture2_->setStyleSheet("#Picture2 { background: rgb(236, 238, 241); border-top: 1px solid rgb(205, 208, 214); }"
                             "#LbPage { color: rgb(40, 44, 52); }");
    imgLPage_ = new QToolButton(picture2_);
    imgLPage_->setObjectName("ImgLPage");
    imgLPage_->setArrowType(Qt::LeftArrow);
    imgLPage_->setAutoRaise(true);
    imgLPage_->setToolTip("Previous page");
    imgLPage_->setFocusPolicy(Qt::NoFocus);
    imgRPage_ = new QToolButton(picture2_);
    imgRPage_->setObjectName("ImgRPage");
    imgRPage_->setArrowType(Qt::RightArrow);
    imgRPage_->setAutoRaise(true);
    imgRPage_->setToolTip("Next page");
    imgRPage_->setFocusPolicy(Qt::NoFocus);
    lbPage_ = new QLabel(picture2_);
    lbPage_->setObjectName("LbPage");
    lbPage_->setAlignment(Qt::AlignCenter);
    hscroll1_ = new QScrollBar(Qt::Horizontal, picture2_);
    hscroll1_->setObjectName("HScroll1");
    hscroll1_->setInvertedAppearance(true);
    hscroll1_->setInvertedControls(true);
    hscroll1_->setSingleStep(kScrollStep);
    hscroll1_->setFocusPolicy(Qt::NoFocus);
    hscroll1_->hide();
    connect(imgLPage_, &QToolButton::clicked, this, [this] { PreviousPage(); });
    connect(imgRPage_, &QToolButton::clicked, this, [this] { NextPage(); });
    // The value is the sheet's place itself.
    connect(vscroll1_, &QScrollBar::valueChanged, this, [this](int value) {
        picture1_->move(picture1_->x(), value);
        shapeShadow_->move(shapeShadow_->x(), value + kShadowOffset);
    });
    connect(hscroll1_, &QScrollBar::valueChanged, this, [this](int value) {
        picture1_->move(value, picture1_->y());
        shapeShadow_->move(value + kShadowOffset, shapeShadow_->y());
    });
}


// ---------------------------------------------------------------- page view

void FormMain::DrawCurrentPage() {
    const double zoom = app_.ZoomScale;
    // The picture has the screen's own pixels, so that it stays sharp on dense screens.
    const double ratio = std::max(1.0, devicePixelRatioF());
    QImage image(static_cast<int>(std::lround(kSheetPixelsWide * zoom * ratio)),
                 static_cast<int>(std::lround(kSheetPixelsHigh * zoom * ratio)), QImage::Format_RGB32);
    image.fill(Qt::white);
    app_.ZoomScale = zoom * ratio;
    {
        QtSurface surface(image);
        surface.UsePictures(typesetter_);
        typesetter_.ScreenSurface = &surface;
        ::DrawCurrentPage(app_, typesetter_, surface);
        typesetter_.ScreenSurface = nullptr;
    }
    app_.ZoomScale = zoom;
    image.setDevicePixelRatio(ratio);
    picture1_->picture = image;
    picture1_->update();
    picture1_->tag = "Normal";
    picture1_->unsetCursor();
}

void FormMain::ZoomCommand(const QString& item, double scale) {
    for (const char* name : {"mnu_zoomANCHO", "mnu_zoom50", "mnu_zoom75", "mnu_zoom100", "mnu_zoom150", "mnu_zoom200"})
        Item(name)->setChecked(false);
    Item(item)->setChecked(true);
    app_.ZoomScale = scale;
    ResizeHandler();
    ResizeHandler();
    DrawCurrentPage();
}

void FormMain::FitWidthCommand() {
    firstActivation_ = false;
    const double scale = (client_->width() - kPicture3Width - 28) / static_cast<double>(kSheetPixelsWide);
    ZoomCommand("mnu_zoomANCHO", std::max(0.5, scale));
}

void FormMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    Geometry();
}

bool FormMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == client_ && event->type() == QEvent::Resize) Geometry();
    return QMainWindow::eventFilter(watched, event);
}

void FormMain::ResizeHandler() {
    if (x() < 0 || y() < 0) move(std::max(0, x()), std::max(0, y()));
    Geometry();
}

void FormMain::Geometry() {
    if (!client_ || !toolbar_) return;
    const int W = client_->width();
    const int H = client_->height();
    const int T = kToolbarHeight;
    const int P = static_cast<int>(kSheetPixelsWide * app_.ZoomScale);
    const int Q = static_cast<int>(kSheetPixelsHigh * app_.ZoomScale);
    picture1_->resize(P, Q);
    toolbar_->setGeometry(0, 0, W, T);
    picture3_->setGeometry(W - kPicture3Width, T, kPicture3Width, H - T - kPicture2Height);
    vscroll1_->setGeometry(1, 0, 18, H - T - kPicture2Height);
    picture2_->setGeometry(0, H - kPicture2Height, W, kPicture2Height);
    imgLPage_->setGeometry(5, 2, 22, 21);
    lbPage_->setGeometry(28, 2, 90, 21);
    imgRPage_->setGeometry(120, 2, 22, 21);
    hscroll1_->setGeometry(144, 4, std::max(10, W - 144 - kPicture3Width - 4), 17);

    int left = 8;
    if (W - kPicture3Width - 8 <= P) {
        const QSignalBlocker block(hscroll1_);
        hscroll1_->setRange(W - 8 - P - 26, 8);
        hscroll1_->setPageStep(std::max(1, W - kPicture3Width));
        hscroll1_->setValue(8);
        hscroll1_->show();
    } else {
        left = (W - kPicture3Width - 8 - P) / 2;
        hscroll1_->hide();
    }
    int top = T + 5;
    if (H - T - kPicture2Height - 8 <= Q) {
        const QSignalBlocker block(vscroll1_);
        vscroll1_->setRange(H - 30 - Q, T + 5);
        vscroll1_->setPageStep(std::max(1, H - T - kPicture2Height));
        vscroll1_->setValue(T + 5);
        verticalNeeded_ = true;
        vscroll1_->setVisible(app_.ProblemCount() > 0);
    } else {
        verticalNeeded_ = false;
        top = T + 5 + (H - T - kPicture2Height - 8 - Q) / 2;
        vscroll1_->hide();
    }
    picture1_->move(left, top);
    shapeShadow_->setGeometry(left + kShadowOffset, top + kShadowOffset, P, Q);
    picture1_->setVisible(app_.ProblemCount() > 0);
    shapeShadow_->setVisible(app_.ProblemCount() > 0);
    shapeShadow_->lower();
    toolbar_->raise();
    picture2_->raise();
    picture3_->raise();
}

void FormMain::PreviousPage() {
    if (!app_.BusyFlag && app_.PageCount != 0 && app_.CurrentPage > 1) {
        app_.CurrentPage -= 1;
        PageChanged();
    } else {
        QApplication::beep();
    }
}

void FormMain::NextPage() {
    if (!app_.BusyFlag && app_.PageCount != 0 && app_.CurrentPage < app_.PageCount) {
        app_.CurrentPage += 1;
        PageChanged();
    } else {
        QApplication::beep();
    }
}

void FormMain::PageChanged() {
    vscroll1_->setValue(vscroll1_->maximum());
    app_.BusyFlag = true;
    shapeShadow_->setStyleSheet("background: white;");
    picture1_->hide();
    DrawCurrentPage();
    shapeShadow_->setStyleSheet("background: rgb(40, 40, 40);");
    picture1_->setVisible(app_.ProblemCount() > 0);
    app_.BusyFlag = false;
    picture1_->setFocus();
}

void FormMain::keyPressEvent(QKeyEvent* event) {
    if (app_.BusyFlag) {
        event->accept();
        return;
    }
    auto step = [](QScrollBar* bar, int delta) {
        bar->setValue(std::clamp(bar->value() + delta, bar->minimum(), bar->maximum()));
    };
    switch (event->key()) {
    case Qt::Key_PageUp: PreviousPage(); break;
    case Qt::Key_PageDown: NextPage(); break;
    case Qt::Key_Home:
        app_.CurrentPage = 2;
        PreviousPage();
        break;
    case Qt::Key_End:
        app_.CurrentPage = app_.PageCount - 1;
        NextPage();
        break;
    case Qt::Key_Down:
        if (vscroll1_->isHidden() || vscroll1_->value() == vscroll1_->minimum()) NextPage();
        else step(vscroll1_, -vscroll1_->singleStep());
        break;
    case Qt::Key_Up:
        if (vscroll1_->isHidden() || vscroll1_->value() == vscroll1_->maximum()) PreviousPage();
        else step(vscroll1_, vscroll1_->singleStep());
        break;
    case Qt::Key_Left:
        if (!hscroll1_->isHidden()) step(hscroll1_, hscroll1_->singleStep());
        break;
    case Qt::Key_Right:
        if (!hscroll1_->isHidden()) step(hscroll1_, -hscroll1_->singleStep());
        break;
    case Qt::Key_Space:
        if (event->modifiers() & Qt::ShiftModifier) ShowDeveloperItems();
        else QMainWindow::keyPressEvent(event);
        return;
    default: QMainWindow::keyPressEvent(event); return;
    }
    event->accept();
}

void FormMain::wheelEvent(QWheelEvent* event) {
    MouseWheel(event->angleDelta().y());
    event->accept();
}

void FormMain::MouseWheel(int rotation) {
    if (vscroll1_->isHidden()) return;
    const int s = vscroll1_->minimum() - vscroll1_->maximum() < 0 ? -1 : 1;
    const int small = vscroll1_->singleStep();
    if (rotation <= 0) vscroll1_->setValue(std::max(vscroll1_->value() + s * small, vscroll1_->minimum()));
    else vscroll1_->setValue(std::min(vscroll1_->value() - s * small, vscroll1_->maximum()));
}

void FormMain::SheetMouseMove(QPoint position) {
    const double margin = 16.0 / 25.4 * 96.0 * app_.ZoomScale;
    if (app_.Marks.MarkCount == 0 || app_.ProblemCount() == 0) {
        picture1_->tag = "Normal";
        picture1_->unsetCursor();
        return;
    }
    if (position.x() >= margin) {
        if (picture1_->tag == QString::fromUtf8("Edici\u00F3n")) {
            picture1_->tag = "Normal";
            picture1_->unsetCursor();
        }
    } else if (picture1_->tag == "Normal") {
        picture1_->tag = QString::fromUtf8("Edici\u00F3n");
        picture1_->setCursor(Qt::PointingHandCursor);
    }
}

void FormMain::InvertBand(int mark) {
    QImage& image = picture1_->picture;
    if (image.isNull()) return;
    const double ratio = image.devicePixelRatio();
    const double margin = 16.0 / 25.4 * 1440.0 * app_.ZoomScale * ratio / 15.0;
    const double top = app_.Marks.MarkTop[mark] / 15.0;
    const double bottom = app_.Marks.MarkBottom[mark] / 15.0;
    QPainter p(&image);
    p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    const QRect band(QPoint(static_cast<int>(margin / ratio), static_cast<int>(top / ratio)),
                     QPoint(static_cast<int>((image.width() - 2 - margin) / ratio), static_cast<int>(bottom / ratio)));
    p.fillRect(band, Qt::white);
    p.end();
    picture1_->update();
}

void FormMain::ClearSelection() {
    for (int i = 0; i < app_.Marks.MarkCount; ++i)
        if (app_.Marks.MarkSelected[i]) {
            InvertBand(i);
            app_.Marks.MarkSelected[i] = false;
        }
}

void FormMain::SheetMouseDown(QPoint position, Qt::MouseButton button) {
    if (app_.Marks.MarkCount == 0 || app_.ProblemCount() == 0) return;
    if (button == Qt::RightButton) {
        PrepareEditMenu(app_);
        cmnuEdicion_->popup(picture1_->mapToGlobal(position));
        return;
    }
    if (picture1_->tag == "Normal") {
        ClearSelection();
        app_.ToolEnabled[ToolCut] = app_.ToolEnabled[ToolCopy] = false;
        ActualizarBotones();
        return;
    }
    const double ratio = picture1_->picture.isNull() ? 1.0 : picture1_->picture.devicePixelRatio();
    const double y = position.y() * 15.0 * ratio;
    int hit = -1;
    for (int i = 0; i < app_.Marks.MarkCount; ++i)
        if (app_.Marks.MarkTop[i] <= y && y <= app_.Marks.MarkBottom[i]) {
            hit = i;
            break;
        }
    if (hit < 0) return;
    if (!app_.Marks.MarkSelected[hit]) {
        ClearSelection();
        InvertBand(hit);
        app_.Marks.MarkSelected[hit] = true;
        app_.ToolEnabled[ToolCut] = app_.ToolEnabled[ToolCopy] = true;
    } else {
        InvertBand(hit);
        app_.Marks.MarkSelected[hit] = false;
        app_.ToolEnabled[ToolCut] = app_.ToolEnabled[ToolCopy] = false;
    }
    ActualizarBotones();
}

