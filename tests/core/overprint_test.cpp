// Every routine of every module laid out on finished pages, on the screen picture and on
// PDF paper, for each place of the solutions: no two items (nor a figure and text not its
// own) may print over each other, and nothing may cross the margins. A spread of seeds
// runs here; SUMFORGE_OVERPRINT_SEEDS=N sweeps N seeds of each placement with every item
// count.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <cstdlib>
#include <memory>
#include <sstream>

#include "core/answer_key.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/page_render.h"
#include "support/ink_recorder.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
void EnsureGui() {
    if (QGuiApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "core_tests";
    static char* argv[] = {name, nullptr};
    new QGuiApplication(argc, argv);
}

struct Module {
    const char* name;
    std::vector<int> routines;
};

std::vector<int> Range(int first, int last) {
    std::vector<int> r;
    for (int i = first; i <= last; ++i) r.push_back(i);
    return r;
}

const std::vector<Module>& Modules() {
    static const std::vector<Module> modules = {
        {"KVOL_MATH_ALG", Range(1, 5)},  {"KVOL_MATH_ECU", Range(1, 14)}, {"KVOL_MATH_GA2", Range(1, 8)},
        {"KVOL_MATH_GA3", Range(1, 8)},  {"KVOL_MATH_GDE", Range(1, 6)},  {"KVOL_MATH_INT", Range(1, 6)},
        {"KVOL_MATH_LFD", {1, 2, 25, 26, 27, 29, 32, 33, 67, 68, 69, 77}},
        {"KVOL_MATH_NRP", Range(1, 39)}, {"KVOL_MATH_PES", Range(1, 4)},  {"KVOL_MATH_TRI", Range(1, 6)},
    };
    return modules;
}

void UsePictures(TypesetterState& t) {
    t.LoadPicture = ReadPictureSize;
    t.PictureFolder = SUMFORGE_SOURCE_DIR "/data/img";
}

// Half a line of 12 points between the page number at the foot and the text above it.
constexpr double kFooterGap = 6 * 20;

// The item count of a routine in a run: the sweep's seed walks through 1 to 26.
int ItemsFor(int routine, int seed) { return (routine * 7 + seed * 11) % 26 + 1; }

// How the pages are set up and what is printed: the sheets or their answer key.
struct Variant {
    PageSetup page;
    bool key = false;
    const char* name = "";
};

class PaginationOnSheet {
public:
    explicit PaginationOnSheet(PaperSize paper)
        : sheet_(SheetPixelsWide(paper), SheetPixelsHigh(paper), QImage::Format_RGB32), surface_(sheet_),
          measure_(typesetter_, surface_) {
        UsePictures(typesetter_);
    }
    PageMeasurePort* Port() { return &measure_; }

private:
    QImage sheet_;
    QtSurface surface_;
    TypesetterState typesetter_;
    TypesetterMeasure measure_;
};

std::string Where(const std::string& module, int position, int seed, const char* geometry, int page,
                  const Variant& variant) {
    std::ostringstream out;
    out << module << " " << variant.name << " solutions " << position << " seed " << seed << " " << geometry
        << " page " << page << ": ";
    return out.str();
}

// Composes one collection of every routine of the module and checks each page on both
// surfaces; returns the faults found.
std::vector<std::string> CheckModule(const Module& module, int position, int seed, const QString& pdfPath,
                                     const Variant& variant = {}) {
    ApplicationState app;
    app.Page = variant.page;
    app.ClockSeed = [seed] { return seed; };
    app.Reseed();
    app.TopicTree = {TopicNode{}};
    for (int routine : module.routines) {
        TopicNode leaf;
        leaf.module = module.name;
        leaf.routine = routine;
        leaf.selected = true;
        leaf.amount = 2;
        leaf.itemsPerProblem = ItemsFor(routine, seed);
        app.TopicTree.push_back(leaf);
    }
    app.Settings.SolutionPosition = position;
    app.Settings.Title = "Sheet";
    app.Settings.Sorted = true;
    Arbol_to_Var(app);
    PaginationOnSheet pagination(app.Page.paper);
    app.measure = pagination.Port();
    CrearColeccion(app, 1);
    if (variant.key) ComposeAnswerKey(app);
    const int wide = SheetPixelsWide(app.Page.paper), high = SheetPixelsHigh(app.Page.paper);

    std::vector<std::string> faults;
    auto note = [&](const std::string& where, const std::vector<std::string>& found) {
        for (const auto& f : found)
            if (faults.size() < 30) faults.push_back(where + f);
    };
    for (int page = 1; page <= app.PageCount; ++page) {
        QImage sheet(wide, high, QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QtSurface screen(sheet);
        TypesetterState t;
        UsePictures(t);
        InkRecorder recorder(screen, t, 1.0);
        app.CurrentPage = page;
        app.ZoomScale = 1.0;
        DrawCurrentPage(app, t, recorder);
        const double w = (wide - 2) * 15.0, h = (high - 2) * 15.0;
        note(Where(module.name, position, seed, "screen", page, variant),
             OverprintFaults(recorder.inks, t.MarginLeft, t.MarginTop, w - t.MarginRight, h - t.MarginBottom, 15));
        note(Where(module.name, position, seed, "screen", page, variant), FooterFaults(recorder.inks, kFooterGap));
    }
    {
        QPdfWriter writer(pdfPath);
        writer.setPageSize(QPageSize(app.Page.paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(1200);
        QtSurface paper(writer);
        for (int page = 1; page <= app.PageCount; ++page) {
            if (page > 1) paper.NewPage();
            TypesetterState t;
            UsePictures(t);
            InkRecorder recorder(paper, t, 1.0);
            t.PrinterInstalled = true;
            PrintOnePage(app, t, recorder, page);
            note(Where(module.name, position, seed, "paper", page, variant),
                 OverprintFaults(recorder.inks, t.MarginLeft, t.MarginTop, t.PageWidth - t.MarginRight,
                                 t.PageHeight - t.MarginBottom, 15));
            note(Where(module.name, position, seed, "paper", page, variant), FooterFaults(recorder.inks, kFooterGap));
        }
        paper.End();
    }
    return faults;
}

int SweepSeeds() {
    const char* value = std::getenv("SUMFORGE_OVERPRINT_SEEDS");
    return value != nullptr ? std::max(1, std::atoi(value)) : 0;
}

void CheckAll(const Module& module) {
    EnsureGui();
    QTemporaryDir dir;
    const QString pdf = dir.filePath("sheet.pdf");
    const int wide = SweepSeeds();
    for (int position = 0; position <= 3; ++position) {
        // The spread: one seed for each placement, another item count for each routine.
        const int seeds = wide > 0 ? wide : 1;
        for (int k = 0; k < seeds; ++k) {
            const int seed = wide > 0 ? k + 1 : position + 1;
            const std::vector<std::string> faults = CheckModule(module, position, seed, pdf);
            for (const auto& f : faults) ADD_FAILURE() << f;
        }
    }
}

// Letter paper with a name line on every page, and the answer keys on both papers.
void CheckPageSetups(const Module& module) {
    EnsureGui();
    QTemporaryDir dir;
    const QString pdf = dir.filePath("sheet.pdf");
    const int wide = SweepSeeds();
    const Variant variants[] = {
        {{PaperSize::Letter, NameLinePlace::EveryPage}, false, "letter, name line"},
        {{PaperSize::A4, NameLinePlace::FirstPage}, false, "a4, name line on the first page"},
        {{PaperSize::A4, NameLinePlace::None}, true, "a4 key"},
        {{PaperSize::Letter, NameLinePlace::None}, true, "letter key"},
    };
    const int seeds = wide > 0 ? wide : 1;
    for (const Variant& variant : variants)
        for (int k = 0; k < seeds; ++k) {
            const int seed = wide > 0 ? k + 1 : 5;
            const int position = variant.key ? 2 : 1 + k % 3;
            for (const auto& f : CheckModule(module, position, seed, pdf, variant)) ADD_FAILURE() << f;
        }
}
} // namespace

class Overprint : public ::testing::TestWithParam<int> {};

TEST_P(Overprint, NoItemPrintsOverAnotherAndNothingCrossesTheMargins) { CheckAll(Modules()[GetParam()]); }

TEST_P(Overprint, LetterPagesNameLinesAndAnswerKeysPrintNothingOverAnotherItem) {
    CheckPageSetups(Modules()[GetParam()]);
}

INSTANTIATE_TEST_SUITE_P(EveryModule, Overprint, ::testing::Range(0, 10), [](const auto& info) {
    return std::string(Modules()[info.param].name + 10);
});

// The checker itself: two items in one place fail, as does ink beyond a margin.
TEST(OverprintCheck, FindsOverlapsOfDifferentGroupsAndInkOutsideTheMargins) {
    using Ink = InkRecorder::Ink;
    const std::vector<Ink> clean = {{100, 100, 200, 150, 1, 'T', "a"}, {210, 100, 300, 150, 2, 'T', "b"},
                                    {150, 120, 260, 140, 1, 'L', "own rule"}};
    // The rule of group 1 crosses into "b" of group 2.
    EXPECT_EQ(OverprintFaults(clean, 0, 0, 1000, 1000, 5).size(), 1u);
    const std::vector<Ink> apart = {{100, 100, 200, 150, 1, 'T', "a"}, {210, 100, 300, 150, 2, 'T', "b"}};
    EXPECT_TRUE(OverprintFaults(apart, 0, 0, 1000, 1000, 5).empty());
    EXPECT_EQ(OverprintFaults(apart, 0, 0, 250, 1000, 5).size(), 1u);
    EXPECT_EQ(OverprintFaults(apart, 0, 120, 1000, 1000, 5).size(), 2u);
}

// The page number at the foot keeps its gap from the last line above it.
TEST(OverprintCheck, FindsALineTooNearThePageNumberAtTheFoot) {
    using Ink = InkRecorder::Ink;
    const Ink number = {500, 900, 540, 950, -2, 'T', "7"};
    const std::vector<Ink> near = {{100, 800, 400, 890, 1, 'T', "last line"}, number};
    EXPECT_EQ(FooterFaults(near, 120).size(), 1u);
    const std::vector<Ink> apart = {{100, 700, 400, 760, 1, 'T', "last line"}, number};
    EXPECT_TRUE(FooterFaults(apart, 120).empty());
}
