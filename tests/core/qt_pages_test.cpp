#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <chrono>
#include <memory>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/page_render.h"
#include "core_fakes.h"
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

// Lays every page out on the screen picture itself, drawing included.
class DrawingMeasure : public PageMeasurePort {
public:
    DrawingMeasure(TypesetterState& t, QtSurface& s) : typesetter(t), surface(s) {}
    std::int32_t MeasurePage(const std::string& text, double zoom, bool pageNumberAtFoot) override {
        typesetter.ZoomScale = zoom;
        typesetter.PageNumberAtFoot = pageNumberAtFoot;
        typesetter.ScreenSurface = &surface;
        double size = 12 * zoom;
        LayoutText(typesetter, text, size, surface);
        return typesetter.FlowResult;
    }
    TypesetterState& typesetter;
    QtSurface& surface;
};

std::vector<int> PagesOf(const ApplicationState& app) {
    std::vector<int> pages;
    for (int b = 1; b <= app.BlockCount; ++b) pages.push_back(app.Blocks[b].page);
    return pages;
}
} // namespace

// Pagination measures without painting; the pages must be those that drawing finds.
TEST(QtPages, MeasuringWithoutPaintingFindsTheSamePages) {
    EnsureGui();
    for (int position = 0; position <= 3; ++position) {
        ApplicationState app;
        app.ClockSeed = [] { return 99; };
        app.Reseed();
        TopicNode leaf;
        leaf.module = "KVOL_MATH_NRP";
        leaf.routine = 12;
        leaf.selected = true;
        leaf.amount = 40;
        leaf.itemsPerProblem = 6 + position * 5;
        app.TopicTree = {TopicNode{}, leaf};
        app.Settings.SolutionPosition = position;
        app.Settings.Title = "Pages";
        Arbol_to_Var(app);

        QImage sheet(796, 1125, QImage::Format_RGB32);
        QtSurface surface(sheet);
        TypesetterState typesetter;
        TypesetterMeasure measuring(typesetter, surface);
        app.measure = &measuring;
        CrearColeccion(app, 1);
        const std::vector<int> measured = PagesOf(app);
        const int pageCount = app.PageCount;
        EXPECT_GT(pageCount, 2) << position;

        TypesetterState drawingState;
        DrawingMeasure drawing(drawingState, surface);
        app.measure = &drawing;
        ComposeDocument(app, true, 1);
        EXPECT_EQ(PagesOf(app), measured) << position;
        EXPECT_EQ(app.PageCount, pageCount) << position;
    }
}

// A statement as long as a file may hold is composed in a moment: it takes a page of its
// own, cut at the page's foot, and the problem behind it follows on the next page.
TEST(QtPages, LongestStatementIsComposedQuickly) {
    EnsureGui();
    QImage sheet(796, 1125, QImage::Format_RGB32);
    QtSurface surface(sheet);
    TypesetterState typesetter;
    TypesetterMeasure measure(typesetter, surface);
    TestBench bench;
    bench.app.measure = &measure;
    std::string words;
    while (words.size() + 5 <= kMaxProblemTextBytes) words += "word ";
    bench.SetProblems({{words, "a"}, {"short", "b"}});
    bench.app.Settings.SolutionPosition = 0;
    const auto start = std::chrono::steady_clock::now();
    ComposeDocument(bench.app, true, 0);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    // It took 40 seconds when the block was measured again for every page there may be.
    EXPECT_LT(seconds, 10.0);
    EXPECT_EQ(bench.app.PageCount, 2);
    EXPECT_EQ(PagesOf(bench.app), (std::vector<int>{1, 2}));
}
