// Lays out and draws whole A4 pages on the screen picture: the cost of one page turn.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <string>

#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
// About forty lines of mixed text: bold, italic, symbols, scripts, powers of ten.
std::string MixedPage() {
    std::string text;
    for (int i = 1; i <= 40; ++i) {
        if (i % 8 == 1) text += "#MARK=" + std::string(i < 10 ? "00" : "0") + std::to_string(i) + "&LF";
        text += "&+B" + std::to_string(i) + ".&-B Solve for &+Ix&-I: &alfa&+Ix&-I^2 + &beta_1&+Ix&-I &<= 10&E-3, "
                "with &+Ix&-I &perte &real and &pi &aprox 3.14 &oo&LF";
    }
    return text;
}

// The constructs: fractions, roots, powers, delimiters and rows.
std::string ConstructPage() {
    std::string text;
    for (int i = 1; i <= 12; ++i) {
        text += "#COC(1#N)(2#COC) + #COC(&+Ix&-I^2 - 1#N)(#SQR(&+Ix&-I + 1#SQR)#COC) = "
                "#RAD(#RI(3#RI)&+Ia&-I^5#RAD) + #POT(2#PB)(#COC(1#N)(3#COC)#POT) #EXP( 2&+Ix&-I#EXP)&LF";
        text += "#NES(X}#RWS(R#RW1(2&+Ix&-I + 3&+Iy&-I = 7#RW1)#RW2(&+Ix&-I - &+Iy&-I = 1#RW2)#RWS)#NES) "
                "#NES(()#RWS(C#RW1(1  2 #RW1)#RW2(3  4 #RW2)#RWS)#NES)&LF";
    }
    return text;
}

void RunPage(benchmark::State& bench, const std::string& text) {
    QImage image(794, 1123, QImage::Format_RGB32);
    QtSurface surface(image);
    TypesetterState state;
    state.ScreenSurface = &surface;
    for (auto _ : bench) {
        image.fill(Qt::white);
        double size = 12;
        LayoutText(state, text, size, surface);
        benchmark::DoNotOptimize(state.FlowResult);
    }
}

void BM_MixedTextPage(benchmark::State& bench) { RunPage(bench, MixedPage()); }
void BM_ConstructPage(benchmark::State& bench) { RunPage(bench, ConstructPage()); }
} // namespace

BENCHMARK(BM_MixedTextPage)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly(true);
BENCHMARK(BM_ConstructPage)->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly(true);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
