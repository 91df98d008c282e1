#include "ui/main_window/form_main.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
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

#include "core/composition.h"
#include "core/editing.h"
#include "core/page_setup.h"
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
// The width of a number box at zoom 1, with a little room: the handle of a drag.
constexpr double kNumberBoxPixels = 48.0;
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
    // The selection as the platform marks one: its highlight colour, translucent, so that
    // the problem stays readable under it.
    QColor fill = palette().color(QPalette::Active, QPalette::Highlight);
    QColor edge = fill;
    fill.setAlpha(70);
    edge.setAlpha(160);
    p.setPen(QPen(edge, 1));
    p.setBrush(fill);
    for (const QRectF& band : selection) p.drawRect(band.adjusted(0.5, 0.5, -0.5, -0.5));
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    dragStart_ = event->position().toPoint();
    dragProblem_ = event->button() == Qt::LeftButton ? form_.ProblemAtNumberBox(dragStart_) : 0;
    form_.SheetMouseDown(event->position().toPoint(), event->button());
}

void SheetView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (dragProblem_ > 0 && (event->buttons() & Qt::LeftButton) &&
        (at - dragStart_).manhattanLength() >= QApplication::startDragDistance()) {
        const int problem = dragProblem_;
        dragProblem_ = 0;
        auto* data = new QMimeData;
        data->setData(kProblemMimeType, QByteArray::number(problem));
        QDrag drag(this);
        drag.setMimeData(data);
        const QRectF band = form_.ProblemBand(problem);
        if (!band.isEmpty() && !picture.isNull()) {
            const double ratio = picture.devicePixelRatio();
            QImage piece = picture.copy(QRectF(band.topLeft() * ratio, band.size() * ratio).toRect());
            piece.setDevicePixelRatio(ratio);
            QPixmap pixmap = QPixmap::fromImage(piece);
            if (pixmap.height() > 160 * ratio) pixmap = pixmap.copy(0, 0, pixmap.width(), static_cast<int>(160 * ratio));
            drag.setPixmap(pixmap);
            drag.setHotSpot((dragStart_ - band.topLeft()).toPoint());
        }
        drag.exec(Qt::MoveAction);
        return;
    }
    form_.SheetMouseMove(at);
}

void SheetView::mouseReleaseEvent(QMouseEvent*) { dragProblem_ = 0; }

namespace {
bool AcceptsDrop(const QMimeData* data) {
    if (data->hasFormat(kProblemMimeType)) return true;
    const auto urls = data->urls();
    return !urls.isEmpty() && EndsWithCol(urls.first().toLocalFile());
}
} // namespace

void SheetView::dragEnterEvent(QDragEnterEvent* event) {
    if (AcceptsDrop(event->mimeData())) event->acceptProposedAction();
    else event->ignore();
}
void SheetView::dragMoveEvent(QDragMoveEvent* event) {
    if (AcceptsDrop(event->mimeData())) event->acceptProposedAction();
    else event->ignore();
}
void SheetView::dropEvent(QDropEvent* event) {
    if (event->mimeData()->hasFormat(kProblemMimeType)) {
        const int from = event->mimeData()->data(kProblemMimeType).toInt();
        event->setDropAction(Qt::MoveAction);
        event->accept();
        form_.MoveProblemTo(from, form_.ProblemAtHeight(event->position().toPoint().y()));
        return;
    }
    QStringList files;
    for (const QUrl& url : event->mimeData()->urls()) files << url.toLocalFile();
    event->acceptProposedAction();
    form_.DropFiles(files);
}


// What the empty window offers: the first step, in words and as two buttons.
void FormMain::BuildStartScreen() {
    startScreen_ = new QWidget(client_);
    startScreen_->setObjectName("StartScreen");
    startScreen_->setStyleSheet("#StartScreen QLabel { color: rgb(225, 228, 234); }");
    auto* layout = new QVBoxLayout(startScreen_);
    layout->setSpacing(14);
    auto* text = new QLabel(QString::fromUtf8("File \u2192 New to make a collection, or open a .col file"));
    text->setObjectName("LbStart");
    text->setAlignment(Qt::AlignCenter);
    QFont font = text->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    text->setFont(font);
    layout->addWidget(text);
    auto* row = new QHBoxLayout;
    auto* startNew = new QPushButton("&New collection...");
    startNew->setObjectName("CmdStartNew");
    auto* startOpen = new QPushButton("&Open...");
    startOpen->setObjectName("CmdStartOpen");
    for (QPushButton* button : {startNew, startOpen}) button->setMinimumWidth(150);
    row->addStretch();
    row->addWidget(startNew);
    row->addSpacing(12);
    row->addWidget(startOpen);
    row->addStretch();
    layout->addLayout(row);
    connect(startNew, &QPushButton::clicked, this, [this] { NewCommand(); });
    connect(startOpen, &QPushButton::clicked, this, [this] { OpenCommand(); });
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
    BuildStartScreen();

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
    QImage image(static_cast<int>(std::lround(SheetPixelsWide(app_.Page.paper) * zoom * ratio)),
                 static_cast<int>(std::lround(SheetPixelsHigh(app_.Page.paper) * zoom * ratio)), QImage::Format_RGB32);
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
    picture1_->selection.clear();
    picture1_->update();
    picture1_->tag = "Normal";
    picture1_->unsetCursor();
    RefreshTitle();
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
    const double scale = (client_->width() - kPicture3Width - 28) / static_cast<double>(SheetPixelsWide(app_.Page.paper));
    ZoomCommand("mnu_zoomANCHO", std::max(0.5, scale));
}

void FormMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    Geometry();
    if (event->oldSize().width() != event->size().width()) refitTimer_.start();
}

// With "Fit to page width" chosen, a resized or maximised window gets the page fitted to
// its new width.
void FormMain::RefitWidth() {
    QAction* fit = Item("mnu_zoomANCHO");
    if (!fit || !fit->isChecked() || firstActivation_ || app_.BusyFlag) return;
    const double scale = std::max(0.5, (client_->width() - kPicture3Width - 28) / static_cast<double>(SheetPixelsWide(app_.Page.paper)));
    if (std::abs(scale - app_.ZoomScale) < 0.002) return;
    FitWidthCommand();
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
    const int P = static_cast<int>(SheetPixelsWide(app_.Page.paper) * app_.ZoomScale);
    const int Q = static_cast<int>(SheetPixelsHigh(app_.Page.paper) * app_.ZoomScale);
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
    const QSize start = startScreen_->sizeHint();
    startScreen_->setGeometry((W - start.width()) / 2, T + std::max(0, (H - T - kPicture2Height - start.height()) / 3),
                              start.width(), start.height());
    startScreen_->setVisible(app_.ProblemCount() == 0 && !app_.BusyFlag);
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

// Home and End step from the page beside the end, so that a single page works too.
void FormMain::FirstPage() {
    if (app_.BusyFlag) return;
    app_.CurrentPage = 2;
    PreviousPage();
}

void FormMain::LastPage() {
    if (app_.BusyFlag) return;
    app_.CurrentPage = app_.PageCount - 1;
    NextPage();
}

void FormMain::ZoomStep(int direction) {
    const std::pair<const char*, double> zooms[5] = {
        {"mnu_zoom50", 0.5}, {"mnu_zoom75", 0.75}, {"mnu_zoom100", 1.0}, {"mnu_zoom150", 1.5}, {"mnu_zoom200", 2.0}};
    const double now = app_.ZoomScale;
    if (direction > 0) {
        for (const auto& [name, scale] : zooms)
            if (scale > now + 1e-9) return ZoomCommand(name, scale);
    } else {
        for (int i = 4; i >= 0; --i)
            if (zooms[i].second < now - 1e-9) return ZoomCommand(zooms[i].first, zooms[i].second);
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
    case Qt::Key_Home: FirstPage(); break;
    case Qt::Key_End: LastPage(); break;
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
        // Over a number box the pointer says that the problem can be dragged.
        if (ProblemAtNumberBox(position) > 0) picture1_->setCursor(Qt::OpenHandCursor);
        else picture1_->unsetCursor();
    } else if (picture1_->tag == "Normal") {
        picture1_->tag = QString::fromUtf8("Edici\u00F3n");
        picture1_->setCursor(Qt::PointingHandCursor);
    }
}

// The problem of mark i (its statement's block), 0 for a mark of no problem.
int FormMain::MarkedProblem(int mark) const {
    const int block = app_.Marks.MarkProblem[mark];
    if (block < 1 || block > app_.BlockCount) return 0;
    const int problem = std::abs(app_.Blocks[block].problem);
    return problem <= app_.ProblemCount() ? problem : 0;
}

// The band of mark i on the sheet, in the sheet's pixels.
QRectF FormMain::MarkBand(int mark) const {
    const QImage& image = picture1_->picture;
    if (image.isNull()) return QRectF();
    const double ratio = image.devicePixelRatio();
    const double margin = 16.0 / 25.4 * 96.0 * app_.ZoomScale;
    const double top = app_.Marks.MarkTop[mark] / 15.0 / ratio;
    const double bottom = app_.Marks.MarkBottom[mark] / 15.0 / ratio;
    return QRectF(QPointF(margin, top), QPointF(image.width() / ratio - margin, bottom));
}

// Every band of a problem on this page: its statement and a solution block of its own.
QRectF FormMain::ProblemBand(int problem) const {
    QRectF band;
    for (int i = 0; i < app_.Marks.MarkCount; ++i)
        if (problem > 0 && MarkedProblem(i) == problem) band = band.isNull() ? MarkBand(i) : band.united(MarkBand(i));
    return band;
}

// The selected problem is marked over its statement and the solution that belongs to it;
// the page's picture itself stays untouched, so that no second drawing is needed to clear it.
void FormMain::ShowSelection() {
    picture1_->selection.clear();
    for (int i = 0; i < app_.Marks.MarkCount; ++i) {
        if (!app_.Marks.MarkSelected[i]) continue;
        const int problem = MarkedProblem(i);
        const QRectF band = problem > 0 ? ProblemBand(problem) : MarkBand(i);
        if (!band.isEmpty()) picture1_->selection.push_back(band);
    }
    picture1_->update();
}

void FormMain::ClearSelection() {
    for (int i = 0; i < app_.Marks.MarkCount; ++i) app_.Marks.MarkSelected[i] = false;
    ShowSelection();
}

// The number box and the margin before it are the handle of a drag.
int FormMain::ProblemAtNumberBox(QPoint position) const {
    if (app_.Marks.MarkCount == 0 || app_.ProblemCount() == 0 || app_.BusyFlag) return 0;
    const double margin = 16.0 / 25.4 * 96.0 * app_.ZoomScale;
    if (position.x() > margin + kNumberBoxPixels * app_.ZoomScale) return 0;
    const double ratio = picture1_->picture.isNull() ? 1.0 : picture1_->picture.devicePixelRatio();
    const double y = position.y() * 15.0 * ratio;
    for (int i = 0; i < app_.Marks.MarkCount; ++i)
        if (app_.Marks.MarkTop[i] <= y && y <= app_.Marks.MarkBottom[i]) return MarkedProblem(i);
    return 0;
}

// The problem a drop at height y lands on: the one whose band holds y, else the nearest above
// it, else the first of the page.
int FormMain::ProblemAtHeight(int y) const {
    const double ratio = picture1_->picture.isNull() ? 1.0 : picture1_->picture.devicePixelRatio();
    const double twips = y * 15.0 * ratio;
    int found = 0;
    int first = 0;
    for (int i = 0; i < app_.Marks.MarkCount; ++i) {
        const int problem = MarkedProblem(i);
        if (problem == 0) continue;
        if (first == 0) first = problem;
        if (app_.Marks.MarkTop[i] <= twips) found = problem;
    }
    return found ? found : first;
}

// A problem dragged to another place: one undoable step, as the Move commands make it.
void FormMain::MoveProblemTo(int from, int to) {
    const int n = app_.ProblemCount();
    if (app_.BusyFlag || from < 1 || from > n || to < 1 || to > n || from == to) return;
    SetUNDO(app_, kMoveDescriptions[to < from ? 2 : 3]);
    if (MoverProblema(app_, from, to)) ComposeDocument(app_, true, to);
    app_.ToolEnabled[ToolCut] = app_.ToolEnabled[ToolCopy] = false;
    ActualizarBotones();
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
        app_.Marks.MarkSelected[hit] = true;
        app_.ToolEnabled[ToolCut] = app_.ToolEnabled[ToolCopy] = true;
    } else {
        app_.Marks.MarkSelected[hit] = false;
        app_.ToolEnabled[ToolCut] = app_.ToolEnabled[ToolCopy] = false;
    }
    ShowSelection();
    ActualizarBotones();
}

