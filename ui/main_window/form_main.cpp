#include "ui/main_window/form_main.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QProcess>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <algorithm>
#include <cstdlib>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/editing.h"
#include "core/page_setup.h"
#include "generators/catalogue.h"
#include "ui/main_window/main_window_files.h"
#include "ui/screen_fit.h"

using namespace main_window;

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
        const auto answer = QMessageBox::question(this, ProgramName(), text,
                                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        return answer == QMessageBox::Yes ? 1 : answer == QMessageBox::No ? 2 : 0;
    };
    askAbortBusy = [this] {
        QMessageBox box(QMessageBox::Warning, ProgramName(),
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
        // A box without a title of its own takes the program's name: an empty one shows as "...".
        QMessageBox box(kind, title.isEmpty() ? ProgramName() : title, text, QMessageBox::Ok, this);
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
        return QMessageBox::question(this, ProgramName(), text, QMessageBox::Yes | QMessageBox::No,
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
    refitTimer_.setSingleShot(true);
    refitTimer_.setInterval(60);
    connect(&refitTimer_, &QTimer::timeout, this, [this] { RefitWidth(); });

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
    for (int i = ToolSave; i <= ToolCopy; ++i) app_.ToolEnabled[i] = false;
    // 5: the item starts opposite to the wanted state and its handler turns it.
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, kSettingsApplication, kSettingsApplication);
    const bool wanted = settings.value("Ver/EdicBotones", "N").toString() == "S";
    Item("mnu_Ver_BotEdic")->setChecked(!wanted);
    ToggleEditButtons();
    // 6
    setWindowTitle(QString::fromStdString(app_.ApplicationTitle));
    FitInsideScreen(*this, QSize(1100, 820));
    // 7
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    const QString defaultPrinter = QPrinterInfo::defaultPrinterName();
    const QStringList printers = PrinterNames();
    printer_ = printers.contains(defaultPrinter) && !defaultPrinter.isEmpty() ? defaultPrinter : printers.first();
    SetToolTip(ToolPrint, "Print (" + printer_.toStdString() + ")");
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
        app_.ToolEnabled[ToolPaste] = true;
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


// ---------------------------------------------------------------- activation and end

void FormMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) Activated();
    if (event->type() == QEvent::WindowStateChange) QTimer::singleShot(1, this, [this] {
            Geometry();
            RefitWidth();
        });
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


// The caption is made from the state, so that the modified mark and "Untitled" are never out of step.
void FormMain::SetCaption(const std::string&) { RefreshTitle(); }
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

bool FormMain::ShowWizard() {
    if (!launcher_.wizard) return false;
    return launcher_.wizard(app_, this);
}
bool FormMain::ShowProperties() {
    if (!launcher_.properties) return false;
    return launcher_.properties(app_, this);
}

std::int32_t FormMain::MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) {
    const QSize size(static_cast<int>(SheetPixelsWide(app_.Page.paper) * zoomScale), static_cast<int>(SheetPixelsHigh(app_.Page.paper) * zoomScale));
    if (!measure_ || measureImage_.size() != size) {
        measure_.reset();
        measureSurface_.reset();
        measureImage_ = QImage(size, QImage::Format_RGB32);
        measureImage_.fill(Qt::white);
        measureSurface_ = std::make_unique<QtSurface>(measureImage_);
        measure_ = std::make_unique<TypesetterMeasure>(measureTypesetter_, *measureSurface_);
    }
    return measure_->MeasurePage(text, zoomScale, pageNumberAtFoot);
}

void FormMain::StartPagination() { measureTypesetter_.FoundPictures.clear(); }

// ---------------------------------------------------------------- commands

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
    const QString folder = StartFolder();
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
    RefreshTitle();
    SetWaitCursor(false);
}

void FormMain::SaveAsCommand() {
    const QString folder = StartFolder();
    const QString proposed = app_.CurrentFileName.empty() ? QString() : recentPaths_[1];
    const QString name = WithExtension(fileDialog("Save problem collection", folder, proposed, true), ".col");
    if (name.isEmpty()) return;
    lastPath_ = QFileInfo(name).absolutePath();
    SetWaitCursor(true);
    const std::string kept = app_.CurrentFileName;
    app_.CurrentFileName = name.toStdString();
    if (SaveFile(app_)) {
        AddRecentFile(name.toStdString());
    } else {
        app_.CurrentFileName = kept;
    }
    RefreshTitle();
    SetWaitCursor(false);
}

void FormMain::CloseCollectionCommand() {
    if (app_.ProblemCount() == 0 || app_.BusyFlag) return;
    if (!AskSaving()) return;
    NoColeccion(app_);
    Geometry();
}

// The documents folder, not the program's data folder, is where a teacher's files live.
QString FormMain::StartFolder() const {
    if (!lastPath_.isEmpty() && QFileInfo(lastPath_).isDir()) return lastPath_;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void FormMain::RefreshTitle() {
    const QString program = QString::fromStdString(app_.ApplicationTitle);
    const bool collection = app_.ProblemCount() > 0;
    QString title = program;
    if (!app_.CurrentFileName.empty())
        title = QFileInfo(QString::fromStdString(app_.CurrentFileName)).fileName() + "[*]  -  " + program;
    else if (collection)
        title = "Untitled[*]  -  " + program;
    if (windowTitle() != title) setWindowTitle(title);
    setWindowModified(collection && app_.Modified && title.contains("[*]"));
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

void FormMain::ManualCommand() {
    const QString path = ProgramFolder() + "/Manual_" + QString::fromStdString(app_.ProductId) + ".pdf";
    if (!QFileInfo::exists(path) || !openUrl(QUrl::fromLocalFile(path).toString()))
        showMessage("Cannot find/open file " + path, "Error", MessageIcon::Warning);
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
        showMessage("El portapapeles no copia el texto", ProgramName(), MessageIcon::Exclamation);
        return;
    }
    showMessage("Lista de asignaturas copiadas al portapapeles", ProgramName(), MessageIcon::None);
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
        showMessage("El portapapeles no copia el texto", ProgramName(), MessageIcon::Exclamation);
        return;
    }
    showMessage(withIds ? "Listado de TEMAS copiados al portapapeles"
                        : "Listado de TEMAS (SIN NUMEROS ID) copiados al portapapeles",
                ProgramName(), MessageIcon::None);
}

void FormMain::DeveloperProductData() {
    const std::string report = "IDPROD = " + app_.ProductId + "\r\nAPP.EXEname = " +
                               QFileInfo(QCoreApplication::applicationFilePath()).baseName().toStdString() +
                               "\r\nAPP.title = " + app_.ApplicationTitle +
                               "\r\nAPP.path = " + QCoreApplication::applicationDirPath().toStdString() + "\r\n";
    SetText(report);
    if (Text() != report) {
        showMessage("El portapapeles no copia el texto", ProgramName(), MessageIcon::Exclamation);
        return;
    }
    showMessage("<Datos copiados al portapapeles>", ProgramName(), MessageIcon::None);
}

