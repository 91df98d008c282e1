// Pages with pictures: a 500-problem collection with figures printed to PDF, against Qt
// alone drawing the same lines of text and the same pictures into a PDF; and its .col file
// opened (read and composed) against the same file without its pictures. Times are CPU
// time of this process, medians of runs that alternate the two sides, so that both see
// the same load on a shared machine. Prints the ratios and the PDF sizes.
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/col_file.h"
#include "core/editing.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/page_render.h"
#include "typesetter/qt_surface.h"

namespace {
double CpuSeconds() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::string TempPath(const char* name) { return (std::filesystem::temp_directory_path() / name).string(); }

long long FileSize(const std::string& path) { return QFileInfo(QString::fromStdString(path)).size(); }

// The composing machinery of the window: pages measured on a hidden screen picture, with
// the program's pictures.
struct Session {
    QImage sheet{796, 1125, QImage::Format_RGB32};
    TypesetterState typesetter;
    std::unique_ptr<QtSurface> surface;
    std::unique_ptr<TypesetterMeasure> measure;
    ApplicationState app;

    Session() {
        sheet.fill(Qt::white);
        surface = std::make_unique<QtSurface>(sheet);
        measure = std::make_unique<TypesetterMeasure>(typesetter, *surface);
        UseQtPictures(typesetter);
        app.ImageFolder = typesetter.PictureFolder;
        app.TempFolder = TempPath("sumforge_bench_temp");
        typesetter.TempPictureFolder = app.TempFolder;
        app.measure = measure.get();
        app.ClockSeed = [] { return 2024; };
    }
};

struct Choice {
    const char* module;
    int routine;
    int amount;
};

// 500 problems, about half with a figure: angles of the number drill, plane shapes,
// Pythagoras, similarity and solids, and between them number and algebra drills.
const Choice kChoices[] = {
    {"KVOL_MATH_NRP", 12, 60}, {"KVOL_MATH_GDE", 1, 60}, {"KVOL_MATH_GDE", 2, 60},
    {"KVOL_MATH_GDE", 3, 60},  {"KVOL_MATH_GDE", 4, 60}, {"KVOL_MATH_GDE", 5, 60},
    {"KVOL_MATH_NRP", 20, 60}, {"KVOL_MATH_ALG", 1, 80},
};

void CreateCollection(ApplicationState& app) {
    TopicNode root;
    root.kind = kNodeSubject;
    app.TopicTree = {root};
    for (const Choice& c : kChoices) {
        TopicNode leaf;
        leaf.kind = kNodeExercises;
        leaf.level = 2;
        leaf.module = c.module;
        leaf.routine = c.routine;
        leaf.selected = true;
        leaf.amount = c.amount;
        leaf.itemsPerProblem = 4;
        app.TopicTree.push_back(leaf);
    }
    app.Settings.Sorted = false;
    app.Settings.SolutionPosition = 1;
    app.Settings.Title = "Figures";
    app.Reseed();
    app.ModuleNames.clear();
    Arbol_to_Var(app);
    CrearColeccion(app, 1);
}

// Takes the picture tags out of a text.
std::string WithoutPictures(std::string text) {
    for (;;) {
        const std::size_t open = text.find("#IMG(");
        if (open == std::string::npos) return text;
        const std::size_t close = text.find("#IMG)", open + 5);
        text.erase(open, close == std::string::npos ? std::string::npos : close + 5 - open);
    }
}

void StartPdf(QPdfWriter& writer) {
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(1200);
    writer.setCreator("Sumforge");
}

// What the pages put on paper, recorded while they are printed: the text pieces with their
// place and font, and the pictures with their rectangles.
struct PrintedPiece {
    int page;
    double x, y;
    std::string text;
    std::string font;
    double size;
    bool bold, italic;
};
struct PrintedPicture {
    int page;
    std::string file;
    double x, y, w, h;
};

class RecordingPrinter : public MeasuringSurface {
public:
    explicit RecordingPrinter(QtSurface& inner) : MeasuringSurface(inner), inner_(inner) {}
    void PrintText(const std::string& text) override {
        pieces.push_back({page, inner_.CurrentX(), inner_.CurrentY(), text, inner_.FontName(), inner_.FontSize(),
                          inner_.FontBold(), inner_.FontItalic()});
        inner_.PrintText(text);
    }
    bool PaintPicture(const std::string& file, double x, double y, double w, double h) override {
        pictures.push_back({page, file, x, y, w, h});
        return inner_.PaintPicture(file, x, y, w, h);
    }
    int page = 1;
    std::vector<PrintedPiece> pieces;
    std::vector<PrintedPicture> pictures;

private:
    QtSurface& inner_;
};

// One line of text as Qt alone would draw it: the pieces of one page at one height, joined.
struct PlainLine {
    int page;
    double x, y;
    QString text;
};

std::vector<PlainLine> JoinLines(const std::vector<PrintedPiece>& pieces) {
    std::vector<PlainLine> lines;
    for (const PrintedPiece& p : pieces) {
        bool joined = false;
        for (auto it = lines.rbegin(); it != lines.rend() && it->page == p.page; ++it)
            if (std::abs(it->y - p.y) < 1) {
                it->text += QString::fromStdString(p.text);
                joined = true;
                break;
            }
        if (!joined) lines.push_back({p.page, p.x, p.y, QString::fromStdString(p.text)});
    }
    return lines;
}

// The program's print of every page to a PDF, pictures read through a fresh state.
void PrintCollection(ApplicationState& app, const std::string& path) {
    QPdfWriter writer(QString::fromStdString(path));
    StartPdf(writer);
    TypesetterState typesetter;
    UseQtPictures(typesetter);
    QtSurface surface(writer);
    surface.UsePictures(typesetter);
    typesetter.PrinterSurface = &surface;
    for (int page = 1; page <= app.PageCount; ++page) {
        if (page > 1) surface.NewPage();
        PrintOnePage(app, typesetter, surface, page);
    }
    surface.End();
}

// Qt alone: the same lines in the text face, and the same pictures, each read once.
void DrawPlain(const std::vector<PlainLine>& lines, const std::vector<PrintedPicture>& pictures, int pages,
               const std::string& path) {
    QPdfWriter writer(QString::fromStdString(path));
    StartPdf(writer);
    QPainter painter(&writer);
    const double twipsPerDot = 1440.0 / writer.resolution();
    painter.scale(1.0 / twipsPerDot, 1.0 / twipsPerDot);
    QFont font("Liberation Serif");
    font.setPointSizeF(12 * 1440.0 / writer.resolution());
    painter.setFont(font);
    const double ascent = QFontMetricsF(font, &writer).ascent();
    QHash<QString, QImage> decoded;
    std::size_t l = 0, p = 0;
    for (int page = 1; page <= pages; ++page) {
        if (page > 1) writer.newPage();
        for (; l < lines.size() && lines[l].page == page; ++l)
            painter.drawText(QPointF(lines[l].x, lines[l].y + ascent), lines[l].text);
        for (; p < pictures.size() && pictures[p].page == page; ++p) {
            const PrintedPicture& pic = pictures[p];
            const QString file = QString::fromStdString(pic.file);
            auto found = decoded.find(file);
            if (found == decoded.end()) found = decoded.insert(file, QImage(file));
            painter.save();
            painter.translate(pic.x, pic.y);
            painter.scale(pic.w < 0 ? -1 : 1, pic.h < 0 ? -1 : 1);
            painter.drawImage(QRectF(0, 0, std::abs(pic.w), std::abs(pic.h)), *found);
            painter.restore();
        }
    }
    painter.end();
}

// Runs a and b alternately, runs times each; the median CPU seconds of each.
std::pair<double, double> Paired(int runs, const std::function<void()>& a, const std::function<void()>& b) {
    std::vector<double> ta, tb;
    for (int i = 0; i < runs; ++i) {
        double t = CpuSeconds();
        a();
        ta.push_back(CpuSeconds() - t);
        t = CpuSeconds();
        b();
        tb.push_back(CpuSeconds() - t);
    }
    return {Median(ta), Median(tb)};
}

double LoadAverage() {
    double load = 0;
    if (FILE* f = std::fopen("/proc/loadavg", "r")) {
        if (std::fscanf(f, "%lf", &load) != 1) load = 0;
        std::fclose(f);
    }
    return load;
}
} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
    // "print" or "open" runs that side only (for a profiler); both by default.
    const std::string only = argc > 2 ? argv[2] : "";
    const bool doPrint = only != "open", doOpen = only != "print";
    std::printf("load average at the start: %.2f\n", LoadAverage());

    Session made;
    CreateCollection(made.app);
    int withFigures = 0;
    for (int i = 1; i <= made.app.ProblemCount(); ++i)
        if (made.app.Problems[i].Statement.find("#IMG(") != std::string::npos) ++withFigures;
    std::printf("collection: %d problems, %d with a figure, %d pages\n", made.app.ProblemCount(), withFigures,
                made.app.PageCount);
    if (made.app.ProblemCount() != 500 || withFigures == 0) {
        std::printf("the collection is not the one this benchmark wants\n");
        return 1;
    }

    // What the program prints, recorded once, for Qt alone to draw.
    const std::string ours = TempPath("sumforge_bench_ours.pdf");
    const std::string plain = TempPath("sumforge_bench_plain.pdf");
    std::vector<PlainLine> lines;
    std::vector<PrintedPicture> pictures;
    if (doPrint) {
        QPdfWriter writer(QString::fromStdString(plain));
        StartPdf(writer);
        TypesetterState typesetter;
        UseQtPictures(typesetter);
        QtSurface surface(writer);
        surface.UsePictures(typesetter);
        RecordingPrinter recorder(surface);
        typesetter.PrinterSurface = &recorder;
        for (int page = 1; page <= made.app.PageCount; ++page) {
            if (page > 1) surface.NewPage();
            recorder.page = page;
            PrintOnePage(made.app, typesetter, recorder, page);
        }
        surface.End();
        lines = JoinLines(recorder.pieces);
        pictures = recorder.pictures;
        std::printf("printed: %zu text pieces in %zu lines, %zu pictures\n", recorder.pieces.size(), lines.size(),
                    pictures.size());
    }

    if (doPrint) {
        const auto [printTime, plainTime] = Paired(
            runs, [&] { PrintCollection(made.app, ours); },
            [&] { DrawPlain(lines, pictures, made.app.PageCount, plain); });
        std::printf("PDF of %d pages: %.3f s, Qt alone %.3f s, ratio %.2f (goal 1.5)\n", made.app.PageCount,
                    printTime, plainTime, printTime / plainTime);
        std::printf("PDF size: %lld bytes, Qt alone line by line %lld bytes, ratio %.2f\n", FileSize(ours),
                    FileSize(plain), static_cast<double>(FileSize(ours)) / static_cast<double>(FileSize(plain)));
    }

    // The file with its pictures, and the same file with the picture tags taken out.
    const std::string withPath = TempPath("sumforge_bench_pictures.col");
    const std::string withoutPath = TempPath("sumforge_bench_nopictures.col");
    made.app.CurrentFileName = withPath;
    if (!SaveFile(made.app)) return 1;
    for (int i = 1; i <= made.app.ProblemCount(); ++i) {
        made.app.Problems[i].Statement = WithoutPictures(made.app.Problems[i].Statement);
        made.app.Problems[i].Solution = WithoutPictures(made.app.Problems[i].Solution);
    }
    made.app.CurrentFileName = withoutPath;
    if (!SaveFile(made.app)) return 1;
    int withPages = 0, withoutPages = 0;
    auto open = [](const std::string& path, int& pages) {
        Session reader;
        reader.app.CurrentFileName = path;
        if (!OpenFile(reader.app)) std::printf("cannot open %s\n", path.c_str());
        pages = reader.app.PageCount;
    };
    if (doOpen) {
        const auto [openWith, openWithout] =
            Paired(runs, [&] { open(withPath, withPages); }, [&] { open(withoutPath, withoutPages); });
        std::printf(
            "open 500 problems: with pictures %.3f s (%d pages), without %.3f s (%d pages), ratio %.2f (goal 1.2)\n",
            openWith, withPages, openWithout, withoutPages, openWith / openWithout);
    }
    std::printf("load average at the end: %.2f\n", LoadAverage());
    for (const std::string& path : {ours, plain, withPath, withoutPath}) std::filesystem::remove(path);
    return 0;
}
