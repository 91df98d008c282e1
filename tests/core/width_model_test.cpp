// The width model that generators choose their columns by is never narrower than the Qt
// surface that draws the pages, over every piece of text that the generators write. When
// this fails after a change of fonts, scripts/make_width_table.sh measures them again.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <cstdio>

#include "generators/hub.h"
#include "typesetter/markup.h"
#include "typesetter/qt_surface.h"
#include "typesetter/text_util.h"
#include "typesetter/width_model.h"

namespace {
void EnsureGui() {
    if (QGuiApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "core_tests";
    static char* argv[] = {name, nullptr};
    new QGuiApplication(argc, argv);
}

// The measure pass of one line on the real surface, on a page too wide to break it.
double SurfaceWidth(TypesetterState& st, QtSurface& surface, const std::string& markup) {
    st.ScreenSurface = &surface;
    st.ZoomScale = 1;
    st.PageWidth = st.PageHeight = 1e12;
    st.MarginLeft = st.MarginRight = st.MarginTop = st.MarginBottom = 0;
    st.LineIndent = 0;
    st.BoxCounter = 1;
    st.FractionDepth = st.ScriptDepth = 0;
    st.BoxOverflow = false;
    st.DrawPass = false;
    surface.SetFontName("Times New Roman");
    surface.SetFontSize(12);
    surface.SetFontBold(false);
    surface.SetFontItalic(false);
    std::u32string head;
    InterpretMarkup(st, ExpandLocaleCodes(st, ToU32(markup)), surface, head);
    return st.BoxTable[1].lead + st.BoxTable[1].width;
}

// The pieces of a text between column marks and line ends.
std::vector<std::string> Pieces(const std::string& text) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t sp = text.find("&SP=", start), lf = text.find("&LF", start);
        const std::size_t end = std::min(sp, lf);
        pieces.push_back(text.substr(start, end == std::string::npos ? std::string::npos : end - start));
        if (end == std::string::npos) break;
        start = end == lf ? lf + 3 : text.find(':', sp) + 1;
        if (start == 0) break;
    }
    return pieces;
}

std::string Code(int routine, int seed, int items) {
    char code[17];
    std::snprintf(code, sizeof code, "%03d%03d%04d%02d0101", routine, seed % 1000, seed, items);
    return code;
}
} // namespace

TEST(WidthModel, NeverNarrowerThanTheSurface) {
    EnsureGui();
    QImage sheet(796, 1125, QImage::Format_RGB32);
    QtSurface surface(sheet);
    TypesetterState real, model;
    GeneratorHub hub;
    const std::vector<std::pair<std::string, std::vector<int>>> modules = {
        {"KVOL_MATH_ALG", {1, 2, 3, 4, 5}}, {"KVOL_MATH_ECU", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
        {"KVOL_MATH_INT", {1, 2, 3}},       {"KVOL_MATH_LFD", {1, 2, 25, 26, 27, 68, 69}},
        {"KVOL_MATH_PES", {1, 2}},          {"KVOL_MATH_TRI", {1, 2, 3, 4, 5}},
    };
    std::vector<std::pair<std::string, std::vector<int>>> all = modules;
    std::vector<int> nrp;
    for (int r = 1; r <= 39; ++r) nrp.push_back(r);
    all.push_back({"KVOL_MATH_NRP", nrp});
    int pieces = 0;
    double worst = 10;
    for (const auto& [module, routines] : all) {
        for (int routine : routines) {
            for (int seed : {1, 2, 77}) {
                std::string statement, solution;
                hub.RunGenerator(module, Code(routine, seed, 26), statement, solution);
                for (const std::string& text : {statement, solution}) {
                    for (const std::string& piece : Pieces(text)) {
                        const double drawn = SurfaceWidth(real, surface, piece);
                        const double modelled = ModelMarkupWidth(model, piece);
                        ++pieces;
                        if (drawn > 1) worst = std::min(worst, modelled / drawn);
                        ASSERT_GE(modelled + 0.01, drawn) << module << " " << routine << " " << seed << ": " << piece;
                    }
                }
            }
        }
    }
    EXPECT_GT(pieces, 1000);
    EXPECT_GE(worst, 1.0);
}
