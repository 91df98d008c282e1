#include "ui/main_window/form_main.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/page_render.h"
#include "core/page_setup.h"
#include "core/safe_write.h"
#include "typesetter/qt_surface.h"
#include "ui/main_window/main_window_files.h"
#include "ui/screen_fit.h"

// Printing: the printer, the "PDF file" entry and the pages sent to either.

using namespace main_window;

QStringList FormMain::PrinterNames() const {
    QStringList names = QPrinterInfo::availablePrinterNames();
    names << kPdfPrinterName;
    return names;
}

void FormMain::SetPrinter(const QString& device) {
    if (!PrinterNames().contains(device)) return;
    printer_ = device;
    QCoreApplication::processEvents();
    SetToolTip(ToolPrint, "Print (" + device.toStdString() + ")");
}

QString FormMain::ProgramFolder() const { return ProgramDataFolder(); }

// ---------------------------------------------------------------- printing

void FormMain::PrintCommand() {
    if (app_.BlockCount == 0 || app_.ProblemCount() == 0) return;
    PrintOptions options;
    printDialog(options);
    if (!options.accepted) return;
    if (printer_ == kPdfPrinterName) {
        QString target = pdfTarget;
        if (target.isEmpty()) target = ChoosePdfFile("Print to PDF file");
        if (target.isEmpty()) return;
        WritePdf(target, options);
        return;
    }
    QPrinter printer(QPrinterInfo::printerInfo(printer_), QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(app_.Page.paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
    printer.setDocName(QString::fromStdString(app_.Settings.Title));
    PrintPages(printer, options);
}

namespace {
PrintOptions EveryPageOnce() {
    PrintOptions options;
    options.accepted = true;
    options.copies = 1;
    options.pageFlags.fill(true);
    return options;
}
} // namespace

// Straight to a PDF file: the same pages and the same safety as the "PDF file" printer.
void FormMain::ExportPdfCommand() {
    if (app_.BlockCount == 0 || app_.ProblemCount() == 0 || app_.BusyFlag) return;
    const QString target = ChoosePdfFile("Export as PDF");
    if (target.isEmpty()) return;
    WritePdf(target, EveryPageOnce());
}

// The preview is drawn by the printing code itself, so that it shows what prints.
void FormMain::PrintPreviewCommand() {
    if (app_.BlockCount == 0 || app_.ProblemCount() == 0 || app_.BusyFlag) return;
    QPrinter printer(QPrinter::HighResolution);
    if (printer_ != kPdfPrinterName && QPrinterInfo::availablePrinterNames().contains(printer_))
        printer.setPrinterName(printer_);
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(app_.Page.paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
    printer.setDocName(QString::fromStdString(app_.Settings.Title));
    QPrintPreviewDialog dialog(&printer, this);
    dialog.setObjectName("PrintPreviewDialog");
    dialog.setWindowTitle("Print Preview");
    const PrintOptions options = EveryPageOnce();
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
            [this, &options](QPrinter* target) { PrintPages(*target, options); });
    FitInsideScreen(dialog, QSize(900, 1000));
    dialog.exec();
}

// Made in memory and written whole before it takes the name, so that a full disk or a
// protected file never leaves a broken PDF in place of a good one.
void FormMain::WritePdf(const QString& target, const PrintOptions& options) {
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(app_.Page.paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
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
}

// The PDF file to print to: its own dialog, ".pdf" added when missing, never a collection.
QString FormMain::ChoosePdfFile(const QString& title) {
    const QString folder = !lastPdfPath_.isEmpty() ? lastPdfPath_ : StartFolder();
    const QString chosen = pdfDialog(title, folder);
    if (chosen.isEmpty()) return QString();
    if (IsCollectionFile(chosen)) {
        showMessage(QFileInfo(chosen).fileName() +
                        " is a problem collection: the PDF file is not written over it.\nPlease choose "
                        "another name.",
                    ProgramName(), MessageIcon::Exclamation);
        return QString();
    }
    const QString name = WithExtension(chosen, ".pdf");
    if (name.isEmpty()) return QString();
    if (IsCollectionFile(name)) {
        showMessage(QFileInfo(name).fileName() + " is a problem collection: the PDF file is not written over it.",
                    ProgramName(), MessageIcon::Exclamation);
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

