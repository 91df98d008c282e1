// Whole problems laid out on the recording surface, every drawing call written one per line
// and compared exactly with a checked-in text (tests/typesetter/drawing_goldens/NAME.txt).
// The markup of each problem stands in drawing_goldens/problems.txt, one "NAME<tab>markup"
// a line, so that these pictures pin the typesetter alone. After an intended change of the
// drawing, scripts/renew_drawing_goldens.sh writes the texts again: read the diff first.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/typesetter/gui_application.h"
#include "tests/typesetter/recording_surface.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
const std::string kGoldenFolder = SUMFORGE_SOURCE_DIR "/tests/typesetter/drawing_goldens";

std::string Number(double v) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.2f", v);
    std::string s = buffer;
    return s == "-0.00" ? "0.00" : s;
}

std::string Colour(std::uint32_t c) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%06X", c);
    return buffer;
}

std::string BaseName(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The recording surface, noting every drawing call in the order made.
class DrawingLog : public RecordingSurface {
public:
    std::vector<std::string> lines;

    void PrintText(const std::string& text) override {
        lines.push_back("T " + Number(CurrentX()) + " " + Number(CurrentY()) + " \"" + text + "\" " + FontName() + " " +
                        Number(FontSize()) + (FontBold() ? " B" : "") + (FontItalic() ? " I" : "") +
                        (FontUnderline() ? " U" : "") + (FontStrikethru() ? " S" : "") + " #" + Colour(ForeColor()));
        RecordingSurface::PrintText(text);
    }
    void Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> c) override {
        lines.push_back("L " + Number(x1) + " " + Number(y1) + " " + Number(x2) + " " + Number(y2) + " #" +
                        Colour(c.value_or(ForeColor())) + " w" + std::to_string(DrawWidth()));
        RecordingSurface::Line(x1, y1, x2, y2, c);
    }
    void FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> c) override {
        lines.push_back("F " + Number(x) + " " + Number(y) + " " + Number(dx) + " " + Number(dy) + " #" +
                        Colour(c.value_or(ForeColor())));
        RecordingSurface::FilledBox(x, y, dx, dy, c);
    }
    void Circle(double cx, double cy, double r) override {
        lines.push_back("C " + Number(cx) + " " + Number(cy) + " " + Number(r) + " #" + Colour(ForeColor()) + " w" +
                        std::to_string(DrawWidth()) + " fill" + std::to_string(FillStyle()));
        RecordingSurface::Circle(cx, cy, r);
    }
    bool PaintPicture(const std::string& file, double x, double y, double w, double h) override {
        lines.push_back("P " + BaseName(file) + " " + Number(x) + " " + Number(y) + " " + Number(w) + " " + Number(h));
        return RecordingSurface::PaintPicture(file, x, y, w, h);
    }
};

struct Problem {
    std::string name;
    std::string markup;
};

std::vector<Problem> ReadProblems() {
    std::vector<Problem> problems;
    std::ifstream in(kGoldenFolder + "/problems.txt", std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
        const std::size_t tab = line.find('\t');
        if (tab == std::string::npos) continue;
        problems.push_back({line.substr(0, tab), line.substr(tab + 1)});
    }
    return problems;
}

// The problem laid out on an A4 screen page at zoom 1, at 12 points, with the program's own
// pictures, and what LayoutText returned: the flow result and the marks.
std::vector<std::string> DrawingOf(const Problem& problem) {
    EnsureGuiApplication();
    TypesetterState st;
    DrawingLog surface;
    st.ScreenSurface = &surface;
    st.LoadPicture = ReadPictureSize;
    st.PictureFolder = SUMFORGE_SOURCE_DIR "/data/img";
    double size = 12;
    // The problem opens on a mark, as composition lays it out.
    LayoutText(st, "#MARK=001" + problem.markup, size, surface);
    std::vector<std::string> lines = surface.lines;
    std::string marks = "R flow " + std::to_string(st.FlowResult) + " marks " + std::to_string(st.MarkCount);
    for (int i = 0; i < st.MarkCount; ++i)
        marks += " " + std::to_string(st.MarkProblem[i]) + ":" + Number(st.MarkTop[i]) + "-" + Number(st.MarkBottom[i]);
    lines.push_back(marks);
    return lines;
}

std::vector<std::string> ReadLines(const std::string& path) {
    std::vector<std::string> lines;
    std::ifstream in(path, std::ios::binary);
    std::string line;
    while (std::getline(in, line)) lines.push_back(line);
    return lines;
}

bool Renewing() {
    const char* renew = std::getenv("SUMFORGE_RENEW_DRAWING_GOLDENS");
    return renew != nullptr && std::string(renew) == "1";
}
} // namespace

TEST(DrawingGoldens, AboutTwentyProblemsAreListed) {
    const std::vector<Problem> problems = ReadProblems();
    EXPECT_GE(problems.size(), 20u);
    for (const Problem& p : problems) EXPECT_FALSE(p.markup.empty()) << p.name;
}

TEST(DrawingGoldens, EveryProblemDrawsAsItsGolden) {
    for (const Problem& problem : ReadProblems()) {
        const std::vector<std::string> drawn = DrawingOf(problem);
        const std::string path = kGoldenFolder + "/" + problem.name + ".txt";
        if (Renewing()) {
            std::ofstream out(path, std::ios::binary | std::ios::trunc);
            for (const std::string& line : drawn) out << line << '\n';
            continue;
        }
        const std::vector<std::string> golden = ReadLines(path);
        ASSERT_FALSE(golden.empty()) << "no golden drawing " << path;
        // A problem that draws nothing is no test of the drawing.
        EXPECT_GE(drawn.size(), 10u) << problem.name;
        const std::size_t common = std::min(drawn.size(), golden.size());
        std::size_t first = common;
        for (std::size_t i = 0; i < common; ++i) {
            if (drawn[i] != golden[i]) {
                first = i;
                break;
            }
        }
        if (first < common) {
            ADD_FAILURE() << problem.name << ".txt line " << (first + 1) << ":\n  golden: " << golden[first]
                          << "\n  drawn:  " << drawn[first];
        } else {
            EXPECT_EQ(drawn.size(), golden.size()) << problem.name << ": lines drawn against lines of the golden";
        }
    }
}

// The same problem drawn twice by fresh states gives the same lines: the goldens depend
// on nothing but the markup.
TEST(DrawingGoldens, DrawingIsRepeatable) {
    const std::vector<Problem> problems = ReadProblems();
    ASSERT_FALSE(problems.empty());
    EXPECT_EQ(DrawingOf(problems.front()), DrawingOf(problems.front()));
}
