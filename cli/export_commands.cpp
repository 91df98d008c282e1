#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <iostream>
#include <memory>

#include "cli/cli_commands.h"
#include "core/col_file.h"
#include "core/collection.h"
#include "core/editing.h"
#include "core/page_render.h"
#include "export/picture_export.h"
#include "typesetter/qt_surface.h"

namespace {
bool EndsWithCol(const std::string& name) { return name.size() >= 4 && Upper(name.substr(name.size() - 4)) == ".COL"; }

// A collection file opened and composed as the window would show it.
struct OpenedCollection {
    std::unique_ptr<QGuiApplication> gui = StartGui();
    ApplicationState app;
    QImage sheet{796, 1125, QImage::Format_RGB32};
    TypesetterState typesetter;
    std::unique_ptr<QtSurface> surface;
    std::unique_ptr<TypesetterMeasure> measure;

    OpenedCollection() {
        sheet.fill(Qt::white);
        surface = std::make_unique<QtSurface>(sheet);
        measure = std::make_unique<TypesetterMeasure>(typesetter, *surface);
        SetFolders(app, typesetter);
        app.measure = measure.get();
    }

    bool Open(const std::string& file, const char* command) {
        app.CurrentFileName = file;
        std::string message;
        if (OpenFile(app, &message)) return true;
        if (message.rfind("Cannot open ", 0) == 0)
            std::cerr << "sumforge-cli " << command << ": c" << message.substr(1) << "\n";
        else
            std::cerr << "sumforge-cli " << command << ": cannot open '" << file
                      << "': " << (message.empty() ? "Bad file." : message) << "\n";
        return false;
    }
};
} // namespace

int RunLatexCommand(const CliArguments& args) {
    std::string colFile, texFile;
    bool wrong = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "-o" && i + 1 < args.size()) texFile = args[++i];
        else if (colFile.empty() && !a.empty() && a[0] != '-') colFile = a;
        else wrong = true;
    }
    if (wrong || colFile.empty() || texFile.empty()) {
        std::cerr << "Usage: sumforge-cli latex FILE.col -o OUT.tex\n";
        return kUsageError;
    }
    if (!EndsWithCol(colFile)) {
        std::cerr << "sumforge-cli latex: not a collection file (.col): '" << colFile << "'\n";
        return kUsageError;
    }
    if (!CheckOutputFile(texFile, "latex")) return 1;
    OpenedCollection c;
    if (!c.Open(colFile, "latex")) return 1;
    std::string error;
    std::vector<std::string> leftOut;
    if (!WriteLatex(c.app, texFile, error, &leftOut)) {
        std::cerr << "sumforge-cli latex: " << error << "\n";
        return 1;
    }
    std::cout << c.app.ProblemCount() << " problems";
    if (!leftOut.empty()) std::cout << ", " << leftOut.size() << " constructs without a LaTeX form (see the % comments)";
    std::cout << "\n";
    return 0;
}

int RunPicturesCommand(const CliArguments& args) {
    std::string colFile, folder;
    PictureExportOptions options;
    bool svg = false, png = false, wrong = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--pages") options.perPage = true;
        else if (a == "--svg") svg = true;
        else if (a == "--png") png = true;
        else if (a == "--solutions") options.withSolution = true;
        else if (a == "--transparent") options.transparent = true;
        else if (a == "--dpi" && i + 1 < args.size()) {
            const double dpi = LeadingNumberSkippingBlanks(args[++i]);
            if (!(dpi >= 24 && dpi <= 1200)) wrong = true;
            options.dpi = dpi;
        } else if (colFile.empty() && !a.empty() && a[0] != '-') colFile = a;
        else if (folder.empty() && !a.empty() && a[0] != '-') folder = a;
        else wrong = true;
    }
    if (wrong || colFile.empty() || folder.empty()) {
        std::cerr << "Usage: sumforge-cli pictures FILE.col DIR [--pages] [--svg] [--png] [--solutions] "
                     "[--transparent] [--dpi N]\n";
        return kUsageError;
    }
    if (!EndsWithCol(colFile)) {
        std::cerr << "sumforge-cli pictures: not a collection file (.col): '" << colFile << "'\n";
        return kUsageError;
    }
    // Neither named: both.
    options.svg = svg || !png;
    options.png = png || !svg;
    OpenedCollection c;
    if (!c.Open(colFile, "pictures")) return 1;
    std::string error;
    int count = 0;
    if (!WritePictures(c.app, folder, options, count, error)) {
        std::cerr << "sumforge-cli pictures: " << error << "\n";
        return 1;
    }
    std::cout << count << " pictures\n";
    return 0;
}
