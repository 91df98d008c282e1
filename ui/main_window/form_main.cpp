#include "ui/main_window/form_main.h"
#include "ui/main_window/export_actions.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QScrollBar>
#include <QSettings>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <cmath>
#include <cstdlib>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core/safe_write.h"
#include "generators/catalogue.h"
#include "typesetter/qt_surface.h"
#include "ui/main_window/form_splash.h"

namespace {
constexpr int kShadowOffset = 2;
constexpr int kPicture3Width = 20;
constexpr int kPicture2Height = 25;
constexpr int kScrollStep = 40;
const QColor kWorkArea(52, 56, 62);
const QColor kShadow(64, 64, 64);
// Organisation and application both, so that the window and the wizard share one store.
const char* kSettingsApplication = "Sumforge RUQ7";

bool EndsWithCol(const QString& name) { return name.endsWith(".col", Qt::CaseInsensitive); }

// A collection file by its name or by its first bytes, whatever it is called.
bool IsCollectionFile(const QString& path) {
    if (EndsWithCol(path)) return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    return file.read(10) == "#CABECERA(";
}

// On this system a name is already long; a leading "~" is the home folder.
QString HallaNombreLargo(const QString& name) {
    if (name == "~") return QDir::homePath();
    if (name.startsWith("~/")) return QDir::homePath() + name.mid(1);
    return name;
}

struct ToolInfo {
    const char* tag;
    const char* tip;
    const char* caption;
    QStyle::StandardPixmap icon;
};
const ToolInfo kTools[kToolCount] = {
    {"Abrir", "Open a saved problems collection", "Open", QStyle::SP_DialogOpenButton},
    {"Nueva", "Start the wizard to create a new problems collection", "New", QStyle::SP_FileIcon},
    {"Guardar", "Save the current problems collection", "Save", QStyle::SP_DialogSaveButton},
    {"Regenerar", "Create a new collection/problem of the same type", "Re-create", QStyle::SP_BrowserReload},
    {"Deshacer", "Undo last action", "Undo", QStyle::SP_ArrowBack},
    {"Rehacer", "Redo last action", "Redo", QStyle::SP_ArrowForward},
    {"Cortar", "Cut the selection to the clipboard", "Cut", QStyle::SP_DialogDiscardButton},
    {"Copiar", "Copy the selection to the clipboard", "Copy", QStyle::SP_FileDialogDetailedView},
    {"Pegar", "Paste a problem from the clipboard", "Paste", QStyle::SP_FileDialogContentsView},
    {"Imprimir", "Print", "Print", QStyle::SP_DriveFDIcon},
    {"Zoom", "Set the zoom ", "Zoom", QStyle::SP_FileDialogListView},
    {"Ayuda", "Show help", "Help", QStyle::SP_DialogHelpButton},
};
} // namespace

QStringList ReadCommandLine(const QString& line) {
    QStringList files;
    QString rest = line.trimmed();
    if (rest.isEmpty()) return files;
    if (!rest.startsWith('"')) return {rest};
    while (!rest.isEmpty()) {
        rest = rest.mid(1);
        const int quote = rest.indexOf('"', 1);
        if (quote < 0) break;
        const QString name = rest.left(quote).trimmed();
        if (EndsWithCol(name) && files.size() < kPendingCapacity) files << name;
        rest = rest.mid(quote + 1).trimmed();
    }
    return files;
}

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

// ---------------------------------------------------------------- load

FormMain::FormMain(ApplicationState& app, DialogLauncher launcher, const QString& commandLine, QWidget* parent)
    : QMainWindow(parent), app_(app), launcher_(std::move(launcher)) {
    setObjectName("FormMain");
    app_.clipboard = this;
    app_.menus = this;
    app_.window = this;
    app_.measure = this;
    UseQtPictures(typesetter_);
    UseQtPictures(measureTypesetter_);
    app_.ImageFolder = typesetter_.PictureFolder;
    app_.TempFolder = typesetter_.TempPictureFolder;

    askSave = [this](const QString& text) {
        const auto answer = QMessageBox::question(this, windowTitle(), text,
                                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        return answer == QMessageBox::Yes ? 1 : answer == QMessageBox::No ? 2 : 0;
    };
    askAbortBusy = [this] {
        QMessageBox box(QMessageBox::Warning, windowTitle(),
                        "This application is busy.\nDo you want to abort it now?.\nYou can lost or damage some "
                        "files.\nPress 'Yes' to abort now.\nPress 'No' to wait.",
                        QMessageBox::Yes | QMessageBox::No, this);
        box.setDefaultButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes;
    };
    showMessage = [this](const QString& text, const QString& title, MessageIcon icon) {
        QMessageBox::Icon kind = QMessageBox::NoIcon;
        if (icon == MessageIcon::Exclamation || icon == MessageIcon::Warning) kind = QMessageBox::Warning;
        else if (icon == MessageIcon::Stop) kind = QMessageBox::Critical;
        else if (icon == MessageIcon::Question) kind = QMessageBox::Question;
        QMessageBox box(kind, title.isEmpty() ? windowTitle() : title, text, QMessageBox::Ok, this);
        box.exec();
    };
    fileDialog = [this](const QString& title, const QString& folder, const QString& proposed, bool save) {
        if (!save)
            return QFileDialog::getOpenFileName(this, title, folder, "Problem collection  (*.col);;All files  (*)");
        QFileDialog dialog(this, title, proposed.isEmpty() ? folder : proposed,
                           "Problem collection (*.col);;All files (*)");
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setDefaultSuffix("col");
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return QString();
        return dialog.selectedFiles().first();
    };
    pdfDialog = [this](const QString& title, const QString& folder) {
        QFileDialog dialog(this, title, folder, "PDF document (*.pdf)");
        dialog.setObjectName("PdfFileDialog");
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setDefaultSuffix("pdf");
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return QString();
        return dialog.selectedFiles().first();
    };
    askReplace = [this](const QString& text) {
        return QMessageBox::question(this, windowTitle(), text, QMessageBox::Yes | QMessageBox::No,
                                     QMessageBox::No) == QMessageBox::Yes;
    };
    startProcess = [](const QString& file) {
        return QProcess::startDetached(QCoreApplication::applicationFilePath(), {file});
    };
    openUrl = [](const QString& url) { return QDesktopServices::openUrl(QUrl(url)); };
    printDialog = [this](PrintOptions& options) {
        FrmImprimir dialog(options, app_.CurrentPage, PrinterNames(), printer_, this);
        dialog.printerChosen = [this](const QString& device) { SetPrinter(device); };
        dialog.exec();
    };

    BuildMenus();
    BuildClientArea();
    BuildToolbar();

    // 1..2: disabled while loading; the re-create item and the developer items hidden.
    setEnabled(false);
    Item("mnu_File_Repetir")->setVisible(false);
    for (const char* item : {"mnu_PROGRAMADOR_LISTATEMASUB", "mnu_PROGRAMADOR_LISTAASIG", "mnu_PROGRAMADOR_VERIDPROD",
                             "mnu_PROGRAMADOR_LISTAT_S_SIM"})
        Item(item)->setVisible(false);
    if (std::string(kBuildMark) == "BRIX") Item("mnu_Ayuda_WEB")->setVisible(false);
    // 3..4
    app_.BlockCount = 0;
    app_.Settings.ProblemCount = 0;
    app_.ZoomScale = 1.0;
    firstActivation_ = true;
    app_.ToolVisible.fill(true);
    app_.ToolEnabled.fill(true);
    for (int i = 2; i <= 7; ++i) app_.ToolEnabled[i] = false;
    // 5: the item starts opposite to the wanted state and its handler turns it.
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, kSettingsApplication, kSettingsApplication);
    const bool wanted = settings.value("Ver/EdicBotones", "N").toString() == "S";
    Item("mnu_Ver_BotEdic")->setChecked(!wanted);
    ToggleEditButtons();
    // 6
    setWindowTitle(QString::fromStdString(app_.ApplicationTitle));
    resize(1100, 820);
    // 7
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    const QString defaultPrinter = QPrinterInfo::defaultPrinterName();
    const QStringList printers = PrinterNames();
    printer_ = printers.contains(defaultPrinter) && !defaultPrinter.isEmpty() ? defaultPrinter : printers.first();
    SetToolTip(9, "Print (" + printer_.toStdString() + ")");
    // 8
    lbPage_->setText("Pag. 1/1");
    app_.CurrentFileName.clear();
    // 9..10
    ReadSettings();
    // 11
    pendingFiles_.clear();
    if (!commandLine.trimmed().isEmpty()) pendingFiles_ = ReadCommandLine(commandLine);
    // 12
    QCoreApplication::processEvents();
    setEnabled(true);
    // 13
    Item("mnu_Edicion_Paste")->setEnabled(false);
    if (HasText() && IsProblemClipboardText(Text())) {
        Item("mnu_Edicion_Paste")->setEnabled(true);
        app_.ToolEnabled[8] = true;
    }
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { FollowClipboard(); });
    // 14
    NoColeccion(app_);
    vscroll1_->hide();
    Geometry();
    // One geometry pass after start, once the window has its final size.
    QTimer::singleShot(2000, this, [this] { ResizeHandler(); });
}

FormMain::~FormMain() = default;

QAction* FormMain::AddItem(QMenu* menu, const QString& name, const QString& caption, std::function<void()> handler) {
    auto* action = menu->addAction(caption);
    action->setObjectName(name);
    if (handler) connect(action, &QAction::triggered, this, [handler] { handler(); });
    items_[name] = action;
    return action;
}

QAction* FormMain::Item(const QString& name) const {
    const auto found = items_.find(name);
    if (found != items_.end()) return found->second;
    const auto menu = menus_.find(name);
    return menu != menus_.end() ? menu->second->menuAction() : nullptr;
}

void FormMain::BuildMenus() {
    auto menu = [this](const QString& name, const QString& caption) {
        QMenu* m = menuBar()->addMenu(caption);
        m->setObjectName(name);
        menus_[name] = m;
        return m;
    };
    QMenu* file = menu("mnu_File", "&File");
    AddItem(file, "mnu_File_New", "&New collection...", [this] { NewCommand(); });
    AddItem(file, "mnu_File_Open", "&Open...", [this] { OpenCommand(); });
    AddItem(file, "mnu_File_Repetir", "&Re-create collection", [this] { RecreateCollectionCommand(app_); });
    file->addSeparator();
    AddItem(file, "mnu_File_Save", "&Save", [this] { SaveCommand(); });
    AddItem(file, "mnu_File_SaveAs", "Save &as...", [this] { SaveAsCommand(); });
    file->addSeparator();
    AddItem(file, "mnu_File_Print", "&Print...", [this] { PrintCommand(); });
    zep04_ = file->addSeparator();
    zep04_->setObjectName("zep04");
    items_["zep04"] = zep04_;
    for (int i = 1; i <= kRecentCount; ++i)
        recent_[i] = AddItem(file, QString("mnu_File_Reciente_%1").arg(i), QString(), [this, i] { RecentCommand(i); });
    file->addSeparator();
    AddItem(file, "mnu_File_Exit", "&Exit", [this] { close(); });

    QMenu* edit = menu("mnu_Edicion", "&Edit");
    cmnuEdicion_ = new QMenu("CEdit", this);
    cmnuEdicion_->setObjectName("cmnu_edicion");
    menus_["cmnu_edicion"] = cmnuEdicion_;
    struct EditItem {
        const char* ending;
        const char* caption;
        std::function<void()> handler;
        bool separatorAfter;
    };
    const std::vector<EditItem> editItems = {
        {"Undo", "Cannot undo", [this] { UndoCommand(app_); }, false},
        {"Redo", "Cannot redo", [this] { RedoCommand(app_); }, true},
        {"Cut", "Cu&t", [this] { CutCommand(app_); }, false},
        {"Copy", "&Copy", [this] { CopyCommand(app_); }, false},
        {"Paste", "&Paste", [this] { PasteCommand(app_); }, false},
        {"Del", "&Delete", [this] { DeleteCommand(app_); }, true},
        {"Mover_0", "Move to the &beginning", [this] { MoveCommand(app_, 0); }, false},
        {"Mover_1", "Move to the &end", [this] { MoveCommand(app_, 1); }, false},
        {"Mover_2", "Move &up", [this] { MoveCommand(app_, 2); }, false},
        {"Mover_3", "Move do&wn", [this] { MoveCommand(app_, 3); }, true},
        {"REGEN1", "R&e-create this problem", [this] { RecreateProblemCommand(app_); }, false},
        {"INS", "In&sert another similar problem", [this] { InsertSimilarCommand(app_); }, false},
    };
    for (const auto& e : editItems) {
        const QString name = QString("mnu_Edicion_") + e.ending;
        AddItem(edit, name, e.caption, e.handler);
        // The popup's twin calls the menu's item.
        AddItem(cmnuEdicion_, "c" + name, e.caption, [this, name] { Item(name)->trigger(); });
        if (e.separatorAfter) {
            edit->addSeparator();
            cmnuEdicion_->addSeparator();
        }
    }
    new ExportActions(*this, file, zep04_, edit, Item("mnu_Edicion_Paste"));
    cmnuEdicion_->addSeparator();
    AddItem(cmnuEdicion_, "cmnu_Edicion_COLEC_Prop", "Properties of the collection...",
            [this] { Item("mnu_COLEC_Prop")->trigger(); });
    connect(edit, &QMenu::aboutToShow, this, [this] { PrepareEditMenu(app_); });

    QMenu* colec = menu("mnu_COLEC", "&Collection");
    AddItem(colec, "mnu_COLEC_RECREAR", "Re-create collection", [this] { RecreateCollectionCommand(app_); });
    colec->addSeparator();
    const char* positions[4] = {"No solutions", "Solutions after each problem", "Solutions together at the end",
                                "Solutions in a separate page"};
    for (int i = 0; i < 4; ++i) {
        QAction* a = AddItem(colec, kPositionItems[i], positions[i], [this, i] { SolutionPositionCommand(app_, i); });
        a->setCheckable(true);
    }
    colec->addSeparator();
    AddItem(colec, "mnu_COLEC_Prop", "Properties of the collection...", [this] { CollectionPropertiesCommand(app_); });

    QMenu* view = menu("mnu_Ver", "&View");
    QAction* botEdic = AddItem(view, "mnu_Ver_BotEdic", "Editing buttons", [this] { ToggleEditButtons(); });
    botEdic->setCheckable(true);
    // The handler toggles the check itself.
    disconnect(botEdic, &QAction::triggered, nullptr, nullptr);
    connect(botEdic, &QAction::triggered, this, [this, botEdic] {
        botEdic->setChecked(!botEdic->isChecked());
        ToggleEditButtons();
    });
    zoomMenu_ = view->addMenu("Zoom");
    zoomMenu_->setObjectName("mnu_zoom");
    menus_["mnu_zoom"] = zoomMenu_;
    QAction* fit = AddItem(zoomMenu_, "mnu_zoomANCHO", "Fit to page width", [this] { FitWidthCommand(); });
    fit->setCheckable(true);
    const std::pair<const char*, double> zooms[5] = {
        {"mnu_zoom50", 0.5}, {"mnu_zoom75", 0.75}, {"mnu_zoom100", 1.0}, {"mnu_zoom150", 1.5}, {"mnu_zoom200", 2.0}};
    for (const auto& [name, scale] : zooms) {
        QAction* a = AddItem(zoomMenu_, name, QString("%1 %").arg(scale * 100), [this, name, scale] {
            ZoomCommand(name, scale);
        });
        a->setCheckable(true);
    }

    helpMenu_ = menu("mnu_Help", "&Help");
    QAction* manual = AddItem(helpMenu_, "mnu_Help_Manual", "User's Manual (PDF document)...", [this] { ManualCommand(); });
    manual->setShortcut(QKeySequence(Qt::Key_F1));
    AddItem(helpMenu_, "mnu_Ayuda_WEB", "Sumforge on the web...", [this] {
        const QString readme = QDir(ProgramFolder()).filePath("README.md");
        if (!openUrl(QUrl::fromLocalFile(readme).toString()))
            showMessage("Cannot open the Sumforge page " + readme, "Error", MessageIcon::Warning);
    });
    helpMenu_->addSeparator();
    AddItem(helpMenu_, "mnu_Help_About", "&About...", [this] {
        FormSplash about(QString::fromStdString(app_.ApplicationTitle), this);
        about.Timer1()->stop();
        about.exec();
    });
    helpMenu_->addSeparator();
    AddItem(helpMenu_, "mnu_PROGRAMADOR_LISTAASIG", "Lista Asignaturas", [this] { DeveloperListSubjects(); });
    AddItem(helpMenu_, "mnu_PROGRAMADOR_LISTAT_S_SIM", "Lista Temas y subtemas (SIN #ID)",
            [this] { DeveloperListTopics(false); });
    AddItem(helpMenu_, "mnu_PROGRAMADOR_LISTATEMASUB", "Lista Temas y subtemas", [this] { DeveloperListTopics(true); });
    AddItem(helpMenu_, "mnu_PROGRAMADOR_VERIDPROD", "Ver IDPROD APP etc", [this] { DeveloperProductData(); });
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

void FormMain::BuildToolbar() {
    toolbar_ = new QWidget(client_);
    toolbar_->setObjectName("tbToolbar1");
    toolbar_->setAutoFillBackground(true);
    // 15529204: red 244, green 244, blue 236.
    toolbar_->setStyleSheet("#tbToolbar1 { background: rgb(244, 244, 236); border-bottom: 1px solid rgb(210, 210, 200); }"
                            "QToolButton { border: 1px solid transparent; border-radius: 6px; font-size: 11px; "
                            "color: rgb(40, 44, 52); }"
                            "QToolButton:hover { background: rgb(226, 232, 240); border-color: rgb(190, 200, 215); }"
                            "QToolButton:pressed { background: rgb(205, 215, 230); }"
                            "QToolButton:disabled { color: rgb(160, 160, 160); }");
    for (int i = 0; i < kToolCount; ++i) {
        auto* button = new QToolButton(toolbar_);
        button->setObjectName(QString("PicToolB_%1").arg(i));
        button->setProperty("tag", kTools[i].tag);
        button->setToolTip(kTools[i].tip);
        button->setText(kTools[i].caption);
        button->setIcon(style()->standardIcon(kTools[i].icon));
        button->setIconSize(QSize(24, 24));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, i] { ToolClick(i); });
        tools_[i] = button;
    }
}

void FormMain::ToolClick(int index) {
    const QString tag = tools_[index]->property("tag").toString();
    if (tag == "Abrir") OpenCommand();
    else if (tag == "Nueva") NewCommand();
    else if (tag == "Guardar") SaveCommand();
    else if (tag == "Regenerar") RecreateButton(app_);
    else if (tag == "Deshacer") UndoCommand(app_);
    else if (tag == "Rehacer") RedoCommand(app_);
    else if (tag == "Cortar") CutCommand(app_);
    else if (tag == "Copiar") CopyCommand(app_);
    else if (tag == "Pegar") PasteCommand(app_);
    else if (tag == "Imprimir") PrintCommand();
    else if (tag == "Zoom") zoomMenu_->popup(tools_[index]->mapToGlobal(QPoint(0, tools_[index]->height())));
    else if (tag == "Ayuda") helpMenu_->popup(tools_[index]->mapToGlobal(QPoint(0, tools_[index]->height())));
}

void FormMain::ReadSettings() {
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, kSettingsApplication, kSettingsApplication);
    zep04_->setVisible(false);
    bool any = false;
    for (int i = 1; i <= kRecentCount; ++i) {
        recent_[i]->setVisible(false);
        const QString title = settings.value(QString("Reciente/Titulo%1").arg(i)).toString();
        recentPaths_[i] = settings.value(QString("Reciente/Archivo%1").arg(i)).toString();
        recent_[i]->setText(title);
        if (!recentPaths_[i].isEmpty()) {
            recent_[i]->setVisible(true);
            any = true;
        }
    }
    zep04_->setVisible(any);
    lastPath_ = settings.value("LastPath/Path").toString();
    lastPdfPath_ = settings.value("LastPath/PdfPath").toString();
}

void FormMain::WriteSettings() {
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, kSettingsApplication, kSettingsApplication);
    settings.setValue("Ver/EdicBotones", Item("mnu_Ver_BotEdic")->isChecked() ? "S" : "N");
    for (int i = 1; i <= kRecentCount; ++i) {
        settings.setValue(QString("Reciente/Titulo%1").arg(i), recent_[i]->text());
        settings.setValue(QString("Reciente/Archivo%1").arg(i), recentPaths_[i]);
    }
    settings.setValue("LastPath/Path", lastPath_);
    settings.setValue("LastPath/PdfPath", lastPdfPath_);
    settings.sync();
}

QStringList FormMain::RecentPaths() const {
    QStringList paths;
    for (int i = 1; i <= kRecentCount; ++i) paths << recentPaths_[i];
    return paths;
}
QStringList FormMain::RecentTitles() const {
    QStringList titles;
    for (int i = 1; i <= kRecentCount; ++i) titles << recent_[i]->text();
    return titles;
}

QStringList FormMain::PrinterNames() const {
    QStringList names = QPrinterInfo::availablePrinterNames();
    names << kPdfPrinterName;
    return names;
}

void FormMain::SetPrinter(const QString& device) {
    if (!PrinterNames().contains(device)) return;
    printer_ = device;
    QCoreApplication::processEvents();
    SetToolTip(9, "Print (" + device.toStdString() + ")");
}

QString FormMain::ProgramFolder() const { return ProgramDataFolder(); }

// ---------------------------------------------------------------- activation and end

void FormMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Activated();
    if (event->type() == QEvent::WindowStateChange) QTimer::singleShot(1, this, [this] { Geometry(); });
}

void FormMain::Activated() {
    if (firstActivation_) FitWidthCommand();
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == "FormSplash" && widget->isVisible() && !static_cast<QDialog*>(widget)->isModal())
            widget->close();
    OpenDRAGDROPFiles_Command();
}

bool FormMain::AskSaving() {
    if (!app_.Modified) return true;
    // A collection never saved has no name to ask about.
    const std::string name = app_.CurrentFileName.empty() ? "Untitled" : app_.CurrentFileName;
    const int answer = askSave(QString::fromStdString("Do you want to save changes to " + name + "?"));
    if (answer == 0) return false;
    if (answer == 1) {
        SaveCommand();
        if (app_.Modified) return false;
    }
    return true;
}

void FormMain::closeEvent(QCloseEvent* event) {
    if (!AskSaving()) {
        event->ignore();
        return;
    }
    if (app_.BusyFlag) {
        if (askAbortBusy()) std::_Exit(0);
        event->ignore();
        return;
    }
    WriteSettings();
    event->accept();
}

// ---------------------------------------------------------------- ports

bool FormMain::HasText() {
    const QClipboard* clipboard = QGuiApplication::clipboard();
    return clipboard && !clipboard->text().isEmpty();
}
std::string FormMain::Text() {
    const QClipboard* clipboard = QGuiApplication::clipboard();
    return clipboard ? clipboard->text().toStdString() : std::string();
}
void FormMain::Clear() {
    if (QClipboard* clipboard = QGuiApplication::clipboard()) clipboard->clear();
}
void FormMain::SetText(const std::string& text) {
    if (QClipboard* clipboard = QGuiApplication::clipboard()) clipboard->setText(QString::fromStdString(text));
}

void FormMain::SetCaption(const std::string& item, const std::string& caption) {
    const QString name = QString::fromStdString(item);
    if (QAction* a = Item(name)) a->setText(QString::fromStdString(caption));
    if (name.startsWith("mnu_Edicion_"))
        if (QAction* twin = Item("c" + name)) twin->setText(QString::fromStdString(caption));
}
void FormMain::SetEnabled(const std::string& item, bool enabled) {
    const QString name = QString::fromStdString(item);
    if (name == "tbToolbar1") {
        toolbar_->setEnabled(enabled);
        return;
    }
    if (QAction* a = Item(name)) a->setEnabled(enabled);
    if (name.startsWith("mnu_Edicion_"))
        if (QAction* twin = Item("c" + name)) twin->setEnabled(enabled);
}
void FormMain::SetVisible(const std::string& item, bool visible) {
    const QString name = QString::fromStdString(item);
    if (name == "tbToolbar1") {
        toolbar_->setVisible(visible);
        return;
    }
    if (QAction* a = Item(name)) a->setVisible(visible);
}
void FormMain::SetChecked(const std::string& item, bool checked) {
    if (QAction* a = Item(QString::fromStdString(item))) {
        a->setCheckable(true);
        a->setChecked(checked);
    }
}
void FormMain::SetToolTip(int index, const std::string& text) {
    if (index >= 0 && index < kToolCount) tools_[index]->setToolTip(QString::fromStdString(text));
}

void FormMain::ActualizarBotones() {
    int x = 0;
    for (int i = 0; i < kToolCount; ++i) {
        if (app_.ToolVisible[i]) {
            tools_[i]->setGeometry(x + 20, 1, 60, 53);
            tools_[i]->setEnabled(app_.ToolEnabled[i]);
            x += 60;
        }
        tools_[i]->setVisible(app_.ToolVisible[i]);
    }
    // The sheet, its shadow and its scroll bar exist only with a collection.
    const bool shown = app_.ProblemCount() > 0;
    picture1_->setVisible(shown);
    shapeShadow_->setVisible(shown);
    vscroll1_->setVisible(shown && verticalNeeded_);
}

void FormMain::SetCaption(const std::string& caption) { setWindowTitle(QString::fromStdString(caption)); }
void FormMain::SetPageLabel(const std::string& text) { lbPage_->setText(QString::fromStdString(text)); }
void FormMain::ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    showMessage(QString::fromStdString(text), QString::fromStdString(title), icon);
}
void FormMain::YieldEvents() { QCoreApplication::processEvents(); }

void FormMain::SetBusy(bool busy) {
    app_.BusyFlag = busy;
    busyUi_ = busy;
    toolbar_->setEnabled(!busy);
    menus_["mnu_File"]->menuAction()->setEnabled(!busy);
    menus_["mnu_Help"]->menuAction()->setEnabled(!busy);
    imgLPage_->setVisible(!busy);
    imgRPage_->setVisible(!busy);
}

void FormMain::SetWaitCursor(bool wait) {
    if (wait && !QApplication::overrideCursor()) QApplication::setOverrideCursor(Qt::WaitCursor);
    else if (!wait)
        while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
}

int FormMain::VerticalScroll() { return vscroll1_->value(); }
void FormMain::SetVerticalScroll(int value) { vscroll1_->setValue(value); }
void FormMain::ScrollToTop() { vscroll1_->setValue(vscroll1_->maximum()); }
void FormMain::RunSaveAs() { SaveAsCommand(); }

void FormMain::AddRecentFile(const std::string& path) {
    const QString name = QString::fromStdString(path);
    int k = kRecentCount;
    for (int i = 1; i <= kRecentCount; ++i)
        if (recentPaths_[i].compare(name, Qt::CaseInsensitive) == 0) {
            k = i;
            break;
        }
    for (int i = k - 1; i >= 1; --i) {
        recent_[i + 1]->setText(recent_[i]->text());
        recentPaths_[i + 1] = recentPaths_[i];
        if (!recentPaths_[i + 1].isEmpty()) {
            recent_[i + 1]->setVisible(true);
            zep04_->setVisible(true);
        }
    }
    recent_[1]->setText(QFileInfo(name).fileName());
    recentPaths_[1] = name;
    // Shown at once: a file just saved belongs in the list now, not after a restart.
    recent_[1]->setVisible(true);
    zep04_->setVisible(true);
}

bool FormMain::ShowWizard() {
    if (!launcher_.wizard) return false;
    return launcher_.wizard(app_, this);
}
bool FormMain::ShowProperties() {
    if (!launcher_.properties) return false;
    return launcher_.properties(app_, this);
}

std::int32_t FormMain::MeasurePage(const std::string& text, double zoomScale) {
    const QSize size(static_cast<int>(kSheetPixelsWide * zoomScale), static_cast<int>(kSheetPixelsHigh * zoomScale));
    if (!measure_ || measureImage_.size() != size) {
        measure_.reset();
        measureSurface_.reset();
        measureImage_ = QImage(size, QImage::Format_RGB32);
        measureImage_.fill(Qt::white);
        measureSurface_ = std::make_unique<QtSurface>(measureImage_);
        measure_ = std::make_unique<TypesetterMeasure>(measureTypesetter_, *measureSurface_);
    }
    return measure_->MeasurePage(text, zoomScale);
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
        app_.ToolEnabled[6] = app_.ToolEnabled[7] = false;
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
        app_.ToolEnabled[6] = app_.ToolEnabled[7] = true;
    } else {
        InvertBand(hit);
        app_.Marks.MarkSelected[hit] = false;
        app_.ToolEnabled[6] = app_.ToolEnabled[7] = false;
    }
    ActualizarBotones();
}

// ---------------------------------------------------------------- commands

void FormMain::ToggleEditButtons() {
    QAction* item = Item("mnu_Ver_BotEdic");
    item->setChecked(!item->isChecked());
    app_.EditButtonsShown = item->isChecked();
    if (app_.ProblemCount() > 0)
        for (int i = 4; i <= 8; ++i) app_.ToolVisible[i] = app_.EditButtonsShown;
    ActualizarBotones();
}

void FormMain::NewCommand() {
    if (!AskSaving()) return;
    SetWaitCursor(true);
    NewCollectionCommand(app_);
    if (!app_.SettingsAccepted || WantedProblemCount(app_) < 1) ActualizarBotones();
    SetWaitCursor(false);
    Geometry();
}

void FormMain::OpenCommand() {
    if (!AskSaving()) return;
    const QString folder = lastPath_.isEmpty() ? ProgramFolder() : lastPath_;
    const QString name = fileDialog("Open", folder, QString(), false);
    if (name.isEmpty()) return;
    SetWaitCursor(true);
    const std::string kept = app_.CurrentFileName;
    app_.CurrentFileName = name.toStdString();
    lastPath_ = QFileInfo(name).absolutePath();
    if (!OpenFile(app_) && app_.ProblemCount() > 0) {
        // Refused: the collection on screen stays as it was, its name and undo included.
        app_.CurrentFileName = kept;
        ShowFileCaption(app_);
        SetWaitCursor(false);
        return;
    }
    SetUNDO(app_, "");
    ActualizarBotones();
    SetWaitCursor(false);
    Geometry();
}

void FormMain::SaveCommand() {
    if (app_.BlockCount == 0 || app_.ProblemCount() == 0) return;
    if (app_.CurrentFileName.empty()) {
        SaveAsCommand();
        return;
    }
    SetWaitCursor(true);
    SaveFile(app_);
    if (windowTitle().endsWith('*')) setWindowTitle(windowTitle().chopped(1));
    SetWaitCursor(false);
}

void FormMain::SaveAsCommand() {
    const QString folder = lastPath_.isEmpty() ? ProgramFolder() : lastPath_;
    const QString proposed = app_.CurrentFileName.empty() ? QString() : recentPaths_[1];
    const QString name = WithExtension(fileDialog("Save problem collection", folder, proposed, true), ".col");
    if (name.isEmpty()) return;
    lastPath_ = QFileInfo(name).absolutePath();
    SetWaitCursor(true);
    const std::string kept = app_.CurrentFileName;
    app_.CurrentFileName = name.toStdString();
    if (SaveFile(app_)) {
        setWindowTitle(QFileInfo(name).fileName() + "  -  " + QString::fromStdString(app_.ApplicationTitle));
        AddRecentFile(name.toStdString());
    } else {
        app_.CurrentFileName = kept;
    }
    SetWaitCursor(false);
}

void FormMain::RecentCommand(int index) {
    if (!AskSaving()) return;
    SetWaitCursor(true);
    const QString path = recentPaths_[index];
    if (!path.isEmpty() && QFileInfo::exists(path)) {
        const std::string kept = app_.CurrentFileName;
        app_.CurrentFileName = path.toStdString();
        // A file that is refused leaves the collection on screen with its own name.
        if (!OpenFile(app_) && app_.ProblemCount() > 0) {
            app_.CurrentFileName = kept;
            ShowFileCaption(app_);
        }
    } else {
        SetWaitCursor(false);
        showMessage("Error: File no exist.", windowTitle(), MessageIcon::Warning);
    }
    SetWaitCursor(false);
    Geometry();
}

void FormMain::OpenDRAGDROPFiles_Command() {
    if (pendingFiles_.isEmpty()) return;
    if (app_.Modified && !AskSaving()) {
        pendingFiles_.clear();
        return;
    }
    QString first = pendingFiles_.first();
    if (first.contains('~')) first = HallaNombreLargo(first);
    app_.CurrentFileName = first.toStdString();
    const QStringList others = pendingFiles_.mid(1);
    pendingFiles_.clear();
    OpenFile(app_);
    for (const QString& file : others) startProcess(file);
    Geometry();
}

void FormMain::DropFiles(const QStringList& files) {
    if (files.isEmpty()) return;
    pendingFiles_.clear();
    for (const QString& file : files)
        if (EndsWithCol(file) && pendingFiles_.size() < kPendingCapacity) pendingFiles_ << file;
    OpenDRAGDROPFiles_Command();
}

void FormMain::FollowClipboard() {
    QAction* paste = Item("mnu_Edicion_Paste");
    const bool holds = HasText() && IsProblemClipboardText(Text());
    if (paste->isEnabled() && !holds) {
        SetEnabled("mnu_Edicion_Paste", false);
        app_.ToolEnabled[8] = false;
        ActualizarBotones();
    } else if (!paste->isEnabled() && holds) {
        SetEnabled("mnu_Edicion_Paste", true);
        app_.ToolEnabled[8] = true;
        ActualizarBotones();
    }
}

void FormMain::ManualCommand() {
    const QString path = ProgramFolder() + "/Manual_" + QString::fromStdString(app_.ProductId) + ".pdf";
    if (!QFileInfo::exists(path) || !openUrl(QUrl::fromLocalFile(path).toString()))
        showMessage("Cannot find/open file " + path, "Error", MessageIcon::Warning);
}

// ---------------------------------------------------------------- printing

void FormMain::PrintCommand() {
    if (app_.BlockCount == 0 || app_.ProblemCount() == 0) return;
    PrintOptions options;
    printDialog(options);
    if (!options.accepted) return;
    if (printer_ == kPdfPrinterName) {
        QString target = pdfTarget;
        if (target.isEmpty()) target = ChoosePdfFile();
        if (target.isEmpty()) return;
        // Made in memory and written whole before it takes the name, so that a full disk
        // or a protected file never leaves a broken PDF in place of a good one.
        QByteArray bytes;
        {
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter writer(&buffer);
            writer.setPageSize(QPageSize(QPageSize::A4));
            writer.setPageMargins(QMarginsF(0, 0, 0, 0));
            writer.setResolution(1200);
            writer.setCreator("Sumforge");
            writer.setTitle(QString::fromStdString(app_.Settings.Title));
            PrintPages(writer, options);
        }
        const SafeWriteResult written = WriteFileSafely(target.toStdString(), bytes.toStdString());
        if (!written.ok())
            showMessage("We are sorry, can't save the file" + QString(written.writeProtected ? ": Write-protected." : ".") +
                            "\r\nFilename: " + target + "\r\n" + QString::fromStdString(written.reason),
                        "", MessageIcon::Stop);
        return;
    }
    QPrinter printer(QPrinterInfo::printerInfo(printer_), QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setDocName(QString::fromStdString(app_.Settings.Title));
    PrintPages(printer, options);
}

// The PDF file to print to: its own dialog, ".pdf" added when missing, never a collection.
QString FormMain::ChoosePdfFile() {
    const QString folder = !lastPdfPath_.isEmpty() ? lastPdfPath_ : lastPath_.isEmpty() ? ProgramFolder() : lastPath_;
    const QString chosen = pdfDialog("Print to PDF file", folder);
    if (chosen.isEmpty()) return QString();
    if (IsCollectionFile(chosen)) {
        showMessage(QFileInfo(chosen).fileName() +
                        " is a problem collection: the PDF file is not written over it.\nPlease choose "
                        "another name.",
                    windowTitle(), MessageIcon::Exclamation);
        return QString();
    }
    const QString name = WithExtension(chosen, ".pdf");
    if (name.isEmpty()) return QString();
    if (IsCollectionFile(name)) {
        showMessage(QFileInfo(name).fileName() + " is a problem collection: the PDF file is not written over it.",
                    windowTitle(), MessageIcon::Exclamation);
        return QString();
    }
    lastPdfPath_ = QFileInfo(name).absolutePath();
    return name;
}

// name with the extension added when it lacks it; an existing file of the longer name is
// replaced only when the teacher says so ("" when not).
QString FormMain::WithExtension(const QString& name, const QString& extension) {
    if (name.isEmpty() || name.endsWith(extension, Qt::CaseInsensitive)) return name;
    const QString full = name + extension;
    if (QFileInfo::exists(full) &&
        !askReplace(QFileInfo(full).fileName() + " already exists.\nDo you want to replace it?"))
        return QString();
    return full;
}

void FormMain::PrintPages(QPagedPaintDevice& device, const PrintOptions& options) {
    const double keptZoom = app_.ZoomScale;
    const int keptPage = app_.CurrentPage;
    const int outer = options.collate ? options.copies : 1;
    const int inner = options.collate ? 1 : options.copies;
    TypesetterState printing;
    UseQtPictures(printing);
    {
        QtSurface surface(device);
        surface.UsePictures(printing);
        printing.PrinterSurface = &surface;
        printing.PrinterInstalled = true;
        bool first = true;
        for (int pass = 0; pass < outer; ++pass)
            for (int p = 1; p <= app_.PageCount; ++p) {
                if (p <= kPageFlagCount && !options.pageFlags[p - 1]) continue;
                app_.CurrentPage = p;
                app_.ZoomScale = keptZoom;
                ResizeHandler();
                for (int copy = 0; copy < inner; ++copy) {
                    DrawCurrentPage();
                    app_.ZoomScale = 1.0;
                    if (!first) surface.NewPage();
                    first = false;
                    PrintOnePage(app_, printing, surface, p);
                }
            }
        surface.End();
    }
    app_.CurrentPage = keptPage;
    app_.ZoomScale = keptZoom;
    ResizeHandler();
    DrawCurrentPage();
}

// ---------------------------------------------------------------- developer listings

void FormMain::ShowDeveloperItems() {
    for (const char* item : {"mnu_PROGRAMADOR_LISTATEMASUB", "mnu_PROGRAMADOR_LISTAASIG", "mnu_PROGRAMADOR_VERIDPROD",
                             "mnu_PROGRAMADOR_LISTAT_S_SIM"})
        Item(item)->setVisible(true);
}

namespace {
std::vector<CatalogueEntry> CatalogueEntries(GeneratorHub& hub) {
    if (hub.CatalogueList().empty()) hub.ReadCatalogue();
    std::vector<CatalogueEntry> entries;
    for (const std::string& line : hub.CatalogueList()) entries.push_back(ReadCatalogueEntry(line));
    return entries;
}

std::vector<std::string> SubjectsOf(const std::vector<CatalogueEntry>& entries) {
    std::vector<std::string> subjects;
    for (const auto& e : entries) {
        const std::string s = TrimBlanks(e.Subject);
        if (!s.empty() && std::find(subjects.begin(), subjects.end(), s) == subjects.end()) subjects.push_back(s);
    }
    return subjects;
}
} // namespace

void FormMain::DeveloperListSubjects() {
    const auto subjects = SubjectsOf(CatalogueEntries(app_.hub));
    std::string report = "LISTA DE ASIGNATURAS\r\n" + std::string(40, '=') + "\r\n";
    for (const auto& s : subjects) report += s + "\r\n";
    report += "\r\nTOTAL = " + std::to_string(subjects.size()) + " ASIGNATURAS\r\n";
    SetText(report);
    if (Text() != report) {
        showMessage("El portapapeles no copia el texto", windowTitle(), MessageIcon::Exclamation);
        return;
    }
    showMessage("Lista de asignaturas copiadas al portapapeles", windowTitle(), MessageIcon::None);
}

void FormMain::DeveloperListTopics(bool withIds) {
    const auto entries = CatalogueEntries(app_.hub);
    const auto subjects = SubjectsOf(entries);
    std::string report;
    for (const auto& subject : subjects) {
        report += subject + "\r\n" + std::string(subject.size(), '=') + "\r\n";
        int topics = 0;
        for (const auto& e : entries) {
            if (TrimBlanks(e.Subject) != subject) continue;
            const bool header = TrimBlanks(e.Kind) == "5";
            std::string line = header ? "" : "    ";
            if (withIds) line += "#" + TrimBlanks(e.TopicId) + "." + TrimBlanks(e.SubtopicId) + " ";
            line += header ? TrimBlanks(e.TopicName) : TrimBlanks(e.Title);
            if (withIds && !header) line += "  [" + TrimBlanks(e.moduleName) + " " + TrimBlanks(e.RoutineId) + "]";
            report += line + "\r\n";
            if (header) ++topics;
        }
        report += "Temas en esta asignatura = " + std::to_string(topics) + "\r\n\r\n";
    }
    report += "TOTAL asignaturas = " + std::to_string(subjects.size()) + "\r\n";
    SetText(report);
    if (Text() != report) {
        showMessage("El portapapeles no copia el texto", windowTitle(), MessageIcon::Exclamation);
        return;
    }
    showMessage(withIds ? "Listado de TEMAS copiados al portapapeles"
                        : "Listado de TEMAS (SIN NUMEROS ID) copiados al portapapeles",
                windowTitle(), MessageIcon::None);
}

void FormMain::DeveloperProductData() {
    const std::string report = "IDPROD = " + app_.ProductId + "\r\nAPP.EXEname = " +
                               QFileInfo(QCoreApplication::applicationFilePath()).baseName().toStdString() +
                               "\r\nAPP.title = " + app_.ApplicationTitle +
                               "\r\nAPP.path = " + QCoreApplication::applicationDirPath().toStdString() + "\r\n";
    SetText(report);
    if (Text() != report) {
        showMessage("El portapapeles no copia el texto", windowTitle(), MessageIcon::Exclamation);
        return;
    }
    showMessage("<Datos copiados al portapapeles>", windowTitle(), MessageIcon::None);
}
