// The collection core at its limit: 500 problems created, composed and paginated; the
// .col file of them opened and saved; one page drawn.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <filesystem>
#include <memory>

#include "core/col_file.h"
#include "core/editing.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/page_render.h"
#include "typesetter/qt_surface.h"

namespace {
// A state whose pages are measured on the hidden screen picture, as the program's are.
struct Bench {
    QImage sheet{796, 1125, QImage::Format_RGB32};
    TypesetterState typesetter;
    QtSurface surface{sheet};
    TypesetterMeasure measure{typesetter, surface};
    ApplicationState app;

    Bench() {
        app.measure = &measure;
        app.ClockSeed = [] { return 2024; };
    }

    // 500 problems of the natural-number drill, 8 items each, in five groups of 100.
    void MarkTree() {
        TopicNode root;
        root.kind = kNodeSubject;
        app.TopicTree = {root};
        for (int g = 0; g < 5; ++g) {
            TopicNode leaf;
            leaf.kind = kNodeExercises;
            leaf.level = 2;
            leaf.module = "KVOL_MATH_NRP";
            leaf.routine = 12;
            leaf.selected = true;
            leaf.amount = 100;
            leaf.itemsPerProblem = 8;
            app.TopicTree.push_back(leaf);
        }
    }

    void Create() {
        MarkTree();
        app.Settings.Sorted = false;
        app.Settings.SolutionPosition = 1;
        app.Settings.Title = "Practice";
        app.Reseed();
        app.ModuleNames.clear();
        Arbol_to_Var(app);
        CrearColeccion(app, 1);
    }
};

std::string FilePath(const char* name) { return (std::filesystem::temp_directory_path() / name).string(); }

void BM_Create500AndCompose(benchmark::State& state) {
    Bench b;
    for (auto _ : state) {
        b.Create();
        benchmark::DoNotOptimize(b.app.PageCount);
    }
    state.counters["pages"] = b.app.PageCount;
}

void BM_Compose500(benchmark::State& state) {
    Bench b;
    b.Create();
    for (auto _ : state) {
        ComposeDocument(b.app, true, 1);
        benchmark::DoNotOptimize(b.app.PageCount);
    }
}

void BM_Save500(benchmark::State& state) {
    Bench b;
    b.Create();
    b.app.CurrentFileName = FilePath("sumforge_bench_save.col");
    for (auto _ : state) {
        if (!SaveFile(b.app)) state.SkipWithError("save failed");
    }
    std::filesystem::remove(b.app.CurrentFileName);
}

// Opening reads, checks and composes: the pages are found again on the typesetter.
void BM_Open500(benchmark::State& state) {
    Bench b;
    b.Create();
    const std::string path = FilePath("sumforge_bench_open.col");
    b.app.CurrentFileName = path;
    SaveFile(b.app);
    Bench reader;
    for (auto _ : state) {
        reader.app.CurrentFileName = path;
        if (!OpenFile(reader.app)) state.SkipWithError("open failed");
    }
    std::filesystem::remove(path);
}

void BM_DrawOnePage(benchmark::State& state) {
    Bench b;
    b.Create();
    QImage image(796, 1125, QImage::Format_RGB32);
    QtSurface screen(image);
    TypesetterState typesetter;
    b.app.CurrentPage = 2;
    for (auto _ : state) {
        image.fill(Qt::white);
        DrawCurrentPage(b.app, typesetter, screen);
        benchmark::DoNotOptimize(b.app.Marks.MarkCount);
    }
}
} // namespace

BENCHMARK(BM_Create500AndCompose)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_Compose500)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_Open500)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_Save500)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_DrawOnePage)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
