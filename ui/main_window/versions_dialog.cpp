#include "ui/main_window/versions_dialog.h"

#include <algorithm>

#include <QBuffer>
#include <QLabel>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QInputDialog>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "core/answer_key.h"
#include "core/col_file.h"
#include "core/composition.h"
#include "core/page_render.h"
#include "core/safe_write.h"
#include "typesetter/qt_surface.h"
#include "ui/main_window/form_main.h"

VersionsDialog::VersionsDialog(VersionChoice& choice, QWidget* parent) : QDialog(parent), choice_(choice) {
    setObjectName("FrmVersions");
    setWindowTitle("Versions");
    count_ = new QSpinBox(this);
    count_->setObjectName("SpinVersions");
    count_->setRange(2, kMaxVersions);
    count_->setValue(std::clamp(choice.count, 2, kMaxVersions));
    auto* what = new QGroupBox("What to make", this);
    both_ = new QRadioButton("Sheets and answer keys", what);
    both_->setObjectName("OptBoth");
    sheets_ = new QRadioButton("Sheets only", what);
    sheets_->setObjectName("OptSheets");
    keys_ = new QRadioButton("Answer keys only", what);
    keys_->setObjectName("OptKeys");
    (choice.sheets && choice.keys ? both_ : choice.sheets ? sheets_ : keys_)->setChecked(true);
    auto* whatLayout = new QVBoxLayout(what);
    whatLayout->addWidget(both_);
    whatLayout->addWidget(sheets_);
    whatLayout->addWidget(keys_);
    auto* form = new QFormLayout;
    form->addRow("Number of versions (A, B, C...):", count_);
    auto* hint = new QLabel("Version A is the collection as it is; the others have the same problems with other "
                            "numbers. Each title carries its letter.",
                            this);
    hint->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* print = buttons->addButton("&Print", QDialogButtonBox::AcceptRole);
    print->setObjectName("CmdPrint");
    QPushButton* pdf = buttons->addButton("&Export PDF...", QDialogButtonBox::AcceptRole);
    pdf->setObjectName("CmdPdf");
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName("CmdCancel");
    connect(print, &QPushButton::clicked, this, [this] { Finish(VersionChoice::Action::Print); });
    connect(pdf, &QPushButton::clicked, this, [this] { Finish(VersionChoice::Action::Pdf); });
    connect(cancel, &QPushButton::clicked, this, [this] { Finish(VersionChoice::Action::None); });
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(what);
    layout->addWidget(hint);
    layout->addWidget(buttons);
}

void VersionsDialog::Finish(VersionChoice::Action action) {
    choice_.count = count_->value();
    choice_.sheets = !keys_->isChecked();
    choice_.keys = !sheets_->isChecked();
    choice_.action = action;
    if (action == VersionChoice::Action::None) reject();
    else accept();
}

// ---------------------------------------------------------------- documents

struct VersionDocument {
    ApplicationState state;
    QImage sheet;
    TypesetterState measuring;
    std::unique_ptr<QtSurface> surface;
    std::unique_ptr<TypesetterMeasure> measure;

    VersionDocument(const ApplicationState& source, const CollectionValue& version)
        : sheet(SheetPixelsWide(source.Page.paper), SheetPixelsHigh(source.Page.paper), QImage::Format_RGB32) {
        sheet.fill(Qt::white);
        UseQtPictures(measuring);
        surface = std::make_unique<QtSurface>(sheet);
        measure = std::make_unique<TypesetterMeasure>(measuring, *surface);
        state.measure = measure.get();
        state.Page = source.Page;
        state.ImageFolder = source.ImageFolder;
        state.TempFolder = source.TempFolder;
        state.fileWriter = source.fileWriter;
        LoadCollection(state, version);
    }
};

VersionDocuments::VersionDocuments() = default;
VersionDocuments::~VersionDocuments() = default;
VersionDocuments::VersionDocuments(VersionDocuments&&) noexcept = default;
ApplicationState& VersionDocuments::State(std::size_t i) { return documents[i]->state; }

VersionDocuments MakeVersionDocuments(ApplicationState& app, const VersionChoice& choice) {
    VersionDocuments out;
    const std::vector<CollectionValue> versions = MakeVersions(app.hub, CollectionOf(app), choice.count);
    for (int pass = 0; pass < 2; ++pass) {
        const bool key = pass == 1;
        if ((key && !choice.keys) || (!key && !choice.sheets)) continue;
        for (std::size_t v = 0; v < versions.size(); ++v) {
            auto document = std::make_unique<VersionDocument>(app, versions[v]);
            if (key) ComposeAnswerKey(document->state);
            else ComposeDocument(document->state, true, 1);
            out.tails.push_back("-" + QString::fromStdString(VersionLetter(static_cast<int>(v))) + (key ? "-key" : ""));
            out.documents.push_back(std::move(document));
        }
    }
    return out;
}

namespace {
QPageSize PageSizeOf(PaperSize paper) { return QPageSize(paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4); }

// Every page of the documents on one device; first says whether a sheet was begun yet.
void PrintDocuments(VersionDocuments& documents, std::size_t from, std::size_t to, QPagedPaintDevice& device) {
    TypesetterState printing;
    UseQtPictures(printing);
    QtSurface surface(device);
    surface.UsePictures(printing);
    printing.PrinterSurface = &surface;
    printing.PrinterInstalled = true;
    bool first = true;
    for (std::size_t d = from; d < to; ++d) {
        ApplicationState& state = documents.State(d);
        for (int page = 1; page <= state.PageCount; ++page) {
            if (!first) surface.NewPage();
            first = false;
            PrintOnePage(state, printing, surface, page);
        }
    }
    surface.End();
}
} // namespace

void PrintVersionDocuments(VersionDocuments& documents, QPagedPaintDevice& device) {
    PrintDocuments(documents, 0, documents.documents.size(), device);
}

QStringList ExportVersionPdfs(VersionDocuments& documents, const QString& base, PaperSize paper, QString& error) {
    QStringList written;
    for (std::size_t d = 0; d < documents.documents.size(); ++d) {
        const QString file = base + documents.tails[d] + ".pdf";
        QByteArray bytes;
        {
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter writer(&buffer);
            writer.setPageSize(PageSizeOf(paper));
            writer.setPageMargins(QMarginsF(0, 0, 0, 0));
            writer.setResolution(1200);
            writer.setCreator("Sumforge");
            writer.setTitle(QString::fromStdString(documents.State(d).Settings.Title));
            PrintDocuments(documents, d, d + 1, writer);
        }
        const SafeWriteResult result = WriteFileSafely(file.toStdString(), bytes.toStdString());
        if (!result.ok()) {
            error = "We are sorry, can't save the file" + QString(result.writeProtected ? ": Write-protected." : ".") +
                    "\r\nFilename: " + file + "\r\n" + QString::fromStdString(result.reason);
            return written;
        }
        written << file;
    }
    return written;
}

// ---------------------------------------------------------------- commands

void RunVersionChoice(FormMain& form, const VersionChoice& choice, QString base) {
    ApplicationState& app = form.App();
    if (app.ProblemCount() == 0 || app.BlockCount == 0 || choice.action == VersionChoice::Action::None) return;
    if (!choice.sheets && !choice.keys) return;
    const bool toPdf = choice.action == VersionChoice::Action::Pdf || form.CurrentPrinter() == kPdfPrinterName;
    if (toPdf && base.isEmpty()) {
        const QString folder = !form.LastPdfPath().isEmpty() ? form.LastPdfPath() : form.LastPath();
        const QString chosen = form.pdfDialog("Export versions to PDF", folder);
        if (chosen.isEmpty()) return;
        base = chosen.endsWith(".pdf", Qt::CaseInsensitive) ? chosen.left(chosen.size() - 4) : chosen;
        bool exists = false;
        for (int v = 0; v < choice.count; ++v) {
            const QString letter = QString::fromStdString(VersionLetter(v));
            exists = exists || QFileInfo::exists(base + "-" + letter + ".pdf") ||
                     QFileInfo::exists(base + "-" + letter + "-key.pdf");
        }
        if (exists && !form.askReplace(QFileInfo(base).fileName() +
                                       "-A.pdf and the other files of the versions already exist.\nDo you want "
                                       "to replace them?"))
            return;
    }
    form.SetWaitCursor(true);
    VersionDocuments documents = MakeVersionDocuments(app, choice);
    form.SetWaitCursor(false);
    if (toPdf) {
        QString error;
        ExportVersionPdfs(documents, base, app.Page.paper, error);
        if (!error.isEmpty()) form.showMessage(error, "", MessageIcon::Stop);
        return;
    }
    QPrinter printer(QPrinterInfo::printerInfo(form.CurrentPrinter()), QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setPageSize(PageSizeOf(app.Page.paper));
    printer.setDocName(QString::fromStdString(app.Settings.Title));
    PrintVersionDocuments(documents, printer);
}

void VersionsCommand(FormMain& form) {
    if (form.App().ProblemCount() == 0 || form.App().BlockCount == 0) return;
    VersionChoice choice;
    VersionsDialog dialog(choice, &form);
    dialog.exec();
    RunVersionChoice(form, choice);
}

bool SaveVersionAs(FormMain& form, char letter, const QString& file) {
    ApplicationState& app = form.App();
    if (app.ProblemCount() == 0 || file.isEmpty()) return false;
    ApplicationState doc;
    doc.ImageFolder = app.ImageFolder;
    doc.TempFolder = app.TempFolder;
    doc.fileWriter = app.fileWriter;
    LoadCollection(doc, MakeVersion(app.hub, CollectionOf(app), letter));
    doc.CurrentFileName = file.toStdString();
    if (SaveFile(doc)) return true;
    const std::string& message = static_cast<QuietWindow*>(doc.window)->lastMessage;
    form.showMessage(QString::fromStdString(message.empty() ? "We are sorry, can't save the file." : message), "",
                     MessageIcon::Stop);
    return false;
}

void SaveVersionCommand(FormMain& form) {
    ApplicationState& app = form.App();
    if (app.ProblemCount() == 0) return;
    QStringList letters;
    for (int v = 0; v < kMaxVersions; ++v) letters << QString::fromStdString(VersionLetter(v));
    bool ok = false;
    const QString letter = QInputDialog::getItem(&form, "Save version as", "Version:", letters, 1, false, &ok);
    if (!ok || letter.isEmpty()) return;
    const QString current = QString::fromStdString(app.CurrentFileName);
    const QString stem = current.isEmpty() ? "collection" : QFileInfo(current).completeBaseName();
    const QString folder = current.isEmpty() ? form.LastPath() : QFileInfo(current).absolutePath();
    const QString proposed = folder.isEmpty() ? QString() : folder + "/" + stem + "-" + letter + ".col";
    QString file = form.fileDialog("Save version " + letter + " as", folder, proposed, true);
    if (file.isEmpty()) return;
    if (!file.endsWith(".col", Qt::CaseInsensitive)) file += ".col";
    SaveVersionAs(form, letter.toStdString()[0], file);
}
