#include "ui/main_window/export_actions.h"

#include <QAction>
#include <QBuffer>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

#include "core/col_file.h"
#include "core/editing.h"
#include "ui/main_window/form_main.h"

namespace {
const char* kSettingsName = "Sumforge RUQ7";

QSettings Store() { return QSettings(QSettings::IniFormat, QSettings::UserScope, kSettingsName, kSettingsName); }

// The window's folder of pictures asks for the folder and the kind of pictures.
bool AskPictures(QWidget* parent, QString& folder, PictureExportOptions& options) {
    QDialog dialog(parent);
    dialog.setObjectName("FrmExportPictures");
    dialog.setWindowTitle("Export pictures");
    auto* layout = new QVBoxLayout(&dialog);
    auto* row = new QHBoxLayout;
    auto* path = new QLineEdit(folder, &dialog);
    path->setObjectName("TxFolder");
    auto* browse = new QPushButton("Folder...", &dialog);
    row->addWidget(new QLabel("Folder:", &dialog));
    row->addWidget(path, 1);
    row->addWidget(browse);
    layout->addLayout(row);
    auto* perProblem = new QRadioButton("One picture per problem", &dialog);
    auto* perPage = new QRadioButton("One picture per page", &dialog);
    (options.perPage ? perPage : perProblem)->setChecked(true);
    auto* svg = new QCheckBox("SVG drawings", &dialog);
    auto* png = new QCheckBox("PNG pictures (300 dpi)", &dialog);
    auto* solution = new QCheckBox("With the solution", &dialog);
    auto* clear = new QCheckBox("Transparent background (PNG)", &dialog);
    svg->setChecked(options.svg);
    png->setChecked(options.png);
    solution->setChecked(options.withSolution);
    clear->setChecked(options.transparent);
    for (QWidget* w : std::initializer_list<QWidget*>{perProblem, perPage, svg, png, solution, clear}) layout->addWidget(w);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(browse, &QPushButton::clicked, &dialog, [&] {
        const QString chosen = QFileDialog::getExistingDirectory(&dialog, "Folder for the pictures", path->text());
        if (!chosen.isEmpty()) path->setText(chosen);
    });
    QObject::connect(perPage, &QRadioButton::toggled, solution, [solution](bool pages) { solution->setEnabled(!pages); });
    solution->setEnabled(!options.perPage);
    if (dialog.exec() != QDialog::Accepted || path->text().trimmed().isEmpty()) return false;
    folder = path->text().trimmed();
    options.perPage = perPage->isChecked();
    options.svg = svg->isChecked();
    options.png = png->isChecked();
    options.withSolution = solution->isChecked();
    options.transparent = clear->isChecked();
    return options.svg || options.png;
}

QByteArray PngBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}
} // namespace

QMimeData* ProblemPictureMimeData(const ApplicationState& app, int problem, bool withSolution, bool transparent) {
    ProblemPictureOptions options;
    options.withSolution = withSolution;
    options.transparent = transparent;
    options.dpi = 300;
    const QImage png = ProblemPng(app, problem, options);
    if (png.isNull()) return nullptr;
    auto* mime = new QMimeData;
    mime->setData("image/png", PngBytes(png));
    mime->setData("image/svg+xml", ProblemSvg(app, problem, options));
    // The program's own text stays on the clipboard, so that Paste inserts the problem.
    mime->setText(QString::fromStdString(ProblemClipboardText(app.Problems[problem])));
    return mime;
}

ExportActions::ExportActions(FormMain& window, QMenu* file, QAction* fileBefore, QMenu* edit, QAction* editBefore)
    : QObject(&window), window_(window) {
    setObjectName("ExportActions");
    auto* exportMenu = new QMenu("E&xport", file);
    exportMenu->setObjectName("mnu_File_Export");
    QAction* pictures = exportMenu->addAction("&Pictures...");
    pictures->setObjectName("mnu_File_Export_Pictures");
    QAction* latex = exportMenu->addAction("&LaTeX...");
    latex->setObjectName("mnu_File_Export_LaTeX");
    file->insertMenu(fileBefore, exportMenu);
    connect(pictures, &QAction::triggered, this, [this] { ExportPicturesCommand(); });
    connect(latex, &QAction::triggered, this, [this] { ExportLatexCommand(); });
    // Offered when there is a collection to export, as printing is.
    connect(file, &QMenu::aboutToShow, exportMenu, [this, exportMenu] {
        const ApplicationState& app = window_.App();
        exportMenu->menuAction()->setEnabled(app.ProblemCount() > 0 && !app.BusyFlag);
    });

    auto* copy = new QAction("Copy as P&icture", edit);
    copy->setObjectName("mnu_Edicion_CopyPicture");
    auto* options = new QMenu("Picture options", edit);
    options->setObjectName("mnu_Edicion_PictureOptions");
    withSolution = options->addAction("With the solution");
    withSolution->setObjectName("mnu_Edicion_PictureSolution");
    withSolution->setCheckable(true);
    transparent = options->addAction("Transparent background");
    transparent->setObjectName("mnu_Edicion_PictureTransparent");
    transparent->setCheckable(true);
    edit->insertAction(editBefore, copy);
    edit->insertMenu(editBefore, options);
    connect(copy, &QAction::triggered, this, [this] { CopyAsPictureCommand(); });
    connect(edit, &QMenu::aboutToShow, copy, [this, copy] { copy->setEnabled(SelectedProblem(window_.App()) != 0); });
    QSettings store = Store();
    withSolution->setChecked(store.value("Export/PictureSolution", false).toBool());
    transparent->setChecked(store.value("Export/PictureTransparent", false).toBool());
    lastFolder_ = store.value("Export/LastFolder").toString();
    connect(withSolution, &QAction::toggled, this, [this] { Remember(); });
    connect(transparent, &QAction::toggled, this, [this] { Remember(); });

    texDialog = [this](const QString& title, const QString& folder, const QString& proposed) {
        return QFileDialog::getSaveFileName(&window_, title, QDir(folder).filePath(proposed), "LaTeX document (*.tex)");
    };
    picturesDialog = [this](QString& folder, PictureExportOptions& o) { return AskPictures(&window_, folder, o); };
}

void ExportActions::Remember() {
    QSettings store = Store();
    store.setValue("Export/PictureSolution", withSolution->isChecked());
    store.setValue("Export/PictureTransparent", transparent->isChecked());
    store.setValue("Export/LastFolder", lastFolder_);
}

void ExportActions::CopyAsPictureCommand() {
    ApplicationState& app = window_.App();
    const int problem = SelectedProblem(app);
    if (problem == 0 || app.BusyFlag) return;
    QMimeData* mime = ProblemPictureMimeData(app, problem, withSolution->isChecked(), transparent->isChecked());
    if (!mime) return;
    if (QClipboard* clipboard = QGuiApplication::clipboard()) clipboard->setMimeData(mime);
    else delete mime;
    app.menus->SetEnabled("mnu_Edicion_Paste", true);
    app.ToolEnabled[8] = true;
    app.menus->ActualizarBotones();
}

namespace {
QString Proposed(const ApplicationState& app, const QString& extension) {
    const QString file = QString::fromStdString(app.CurrentFileName);
    const QString base = file.isEmpty() ? QString("collection") : QFileInfo(file).completeBaseName();
    return base + extension;
}
} // namespace

void ExportActions::ExportLatexCommand() {
    ApplicationState& app = window_.App();
    if (app.ProblemCount() == 0 || app.BusyFlag) return;
    const QString folder = !lastFolder_.isEmpty() ? lastFolder_ : window_.LastPath();
    QString name = texDialog("Export as LaTeX", folder, Proposed(app, ".tex"));
    if (name.isEmpty()) return;
    if (!name.endsWith(".tex", Qt::CaseInsensitive)) name += ".tex";
    // A collection is never written over by its export.
    if (name.endsWith(".col", Qt::CaseInsensitive)) return;
    lastFolder_ = QFileInfo(name).absolutePath();
    Remember();
    std::string error;
    std::vector<std::string> leftOut;
    window_.SetWaitCursor(true);
    const bool ok = WriteLatex(app, name.toStdString(), error, &leftOut);
    window_.SetWaitCursor(false);
    if (!ok) {
        window_.showMessage(QString::fromStdString(error), window_.windowTitle(), MessageIcon::Exclamation);
        return;
    }
    if (!leftOut.empty())
        window_.showMessage(QString("%1 constructs have no LaTeX form; the document says where, in comments.")
                                .arg(leftOut.size()),
                            window_.windowTitle(), MessageIcon::None);
}

void ExportActions::ExportPicturesCommand() {
    ApplicationState& app = window_.App();
    if (app.ProblemCount() == 0 || app.BusyFlag) return;
    QString folder = !lastFolder_.isEmpty() ? lastFolder_ : window_.LastPath();
    PictureExportOptions options;
    options.withSolution = withSolution->isChecked();
    options.transparent = transparent->isChecked();
    if (!picturesDialog(folder, options)) return;
    lastFolder_ = folder;
    Remember();
    std::string error;
    int count = 0;
    window_.SetWaitCursor(true);
    const bool ok = WritePictures(app, folder.toStdString(), options, count, error);
    window_.SetWaitCursor(false);
    if (!ok) window_.showMessage(QString::fromStdString(error), window_.windowTitle(), MessageIcon::Exclamation);
}
