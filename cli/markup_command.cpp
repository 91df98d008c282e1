#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "cli/cli_commands.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
struct MarkupOptions {
    std::string text;
    std::string pngFile;
    std::string pdfFile;
    double size = 12;
    double zoom = 1;
};

bool ReadNumber(const std::string& word, double& value) {
    char* end = nullptr;
    value = std::strtod(word.c_str(), &end);
    return end != word.c_str() && *end == '\0' && value > 0 && value < 1000;
}

// The offscreen platform's note about a missing runtime folder is no news to a user of the
// command line; every other message goes through.
void QuietMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))) return;
    std::cerr << qPrintable(qFormatLogMessage(type, context, message)) << "\n";
}

void Usage() {
    std::cerr << "sumforge-cli markup: expected TEXT -o OUT.png [--pdf OUT.pdf] [--size POINTS] [--zoom FACTOR]\n";
}

// A4 at 96 dpi, enlarged by the zoom: the screen picture of one page.
constexpr double kMinZoom = 0.5, kMaxZoom = 8;
constexpr double kA4WidthMm = 210.0, kA4HeightMm = 297.0;

int RenderPng(const MarkupOptions& o) {
    const int w = static_cast<int>(std::lround(kA4WidthMm / 25.4 * 96 * o.zoom));
    const int h = static_cast<int>(std::lround(kA4HeightMm / 25.4 * 96 * o.zoom));
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        TypesetterState state;
        UseQtPictures(state);
        state.ZoomScale = o.zoom;
        QtSurface surface(image);
        surface.UsePictures(state);
        state.ScreenSurface = &surface;
        double size = o.size * o.zoom;
        LayoutText(state, o.text, size, surface);
    }
    return SavePng(o.pngFile, image, "markup") ? 0 : 1;
}

int RenderPdf(const MarkupOptions& o) {
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(1200);
        writer.setCreator("Sumforge");
        TypesetterState state;
        UseQtPictures(state);
        state.ZoomScale = 1;
        QtSurface surface(writer);
        surface.UsePictures(state);
        state.PrinterSurface = &surface;
        state.PrinterInstalled = true;
        double size = o.size;
        LayoutText(state, o.text, size, surface);
        surface.End();
    }
    return SaveOutputFile(o.pdfFile, bytes, "markup") ? 0 : 1;
}
} // namespace

int RunMarkupCommand(const CliArguments& args) {
    MarkupOptions o;
    bool haveText = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if ((a == "-o" || a == "--output") && hasValue) {
            o.pngFile = args[++i];
        } else if (a == "--pdf" && hasValue) {
            o.pdfFile = args[++i];
        } else if (a == "--size" && hasValue) {
            if (!ReadNumber(args[++i], o.size)) {
                std::cerr << "sumforge-cli markup: --size needs a positive number of points\n";
                return kUsageError;
            }
        } else if (a == "--zoom" && hasValue) {
            // The window never draws below half size; 8 is more than any screen's width needs.
            if (!ReadNumber(args[++i], o.zoom) || o.zoom < kMinZoom || o.zoom > kMaxZoom) {
                std::cerr << "sumforge-cli markup: --zoom needs a factor from 0.5 to 8\n";
                return kUsageError;
            }
        } else if (!haveText && (a.empty() || a[0] != '-' || a.size() == 1 || a[1] != '-')) {
            o.text = a;
            haveText = true;
        } else {
            Usage();
            return kUsageError;
        }
    }
    if (!haveText || (o.pngFile.empty() && o.pdfFile.empty())) {
        Usage();
        return kUsageError;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(QuietMessages);
    std::unique_ptr<QGuiApplication> app;
    if (!QGuiApplication::instance()) {
        static int argc = 1;
        static char name[] = "sumforge-cli";
        static char* argv[] = {name, nullptr};
        app = std::make_unique<QGuiApplication>(argc, argv);
    }
    // A file that can't be written is said once, before any drawing.
    if (!o.pngFile.empty() && !CheckOutputFile(o.pngFile, "markup")) return 1;
    if (!o.pdfFile.empty() && !CheckOutputFile(o.pdfFile, "markup")) return 1;
    int status = 0;
    if (!o.pngFile.empty()) status = RenderPng(o);
    if (status == 0 && !o.pdfFile.empty()) status = RenderPdf(o);
    return status;
}
