// Prints the advance widths of the fonts that the markup names, as the Qt surface measures
// them, for the width model (typesetter/width_model.cpp): per code point and font the
// widest of regular, bold, italic and bold italic, in thousandths of the size, rounded up.
// scripts/make_width_table.sh writes its output to typesetter/width_table.inc.
#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "typesetter/qt_surface.h"

namespace {
const char* const kFonts[] = {"Times New Roman", "Arial", "Courier New", "Symbol"};
constexpr double kPoints = 100;

std::string Utf8(char32_t c) { return QString::fromUcs4(&c, 1).toStdString(); }

// Widest of the four styles, in thousandths of the size.
int Widest(QtSurface& s, const std::string& glyph) {
    double widest = 0;
    for (int style = 0; style < 4; ++style) {
        s.SetFontBold(style & 1);
        s.SetFontItalic(style & 2);
        widest = std::max(widest, s.TextWidth(glyph));
    }
    return static_cast<int>(std::ceil(widest / (kPoints * 20) * 1000 - 1e-9));
}
} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    QImage image(10, 10, QImage::Format_ARGB32);
    QtSurface s(image);
    s.SetFontSize(kPoints);
    const std::pair<char32_t, char32_t> ranges[] = {{0x20, 0x7E},     {0xA0, 0x24F},   {0x370, 0x3FF},
                                                    {0x2010, 0x206F}, {0x20A0, 0x20CF}, {0x2100, 0x23FF},
                                                    {0x25A0, 0x25FF}, {0x27E8, 0x27EF}};
    std::printf("// Made by make_width_table (scripts/make_width_table.sh); do not edit.\n");
    std::printf("// code point, then per font (Times New Roman, Arial, Courier New, Symbol) the widest\n");
    std::printf("// advance of its four styles in thousandths of the size.\n");
    std::printf("const WidthRow kWidthRows[] = {\n");
    int widest[4] = {0, 0, 0, 0};
    for (const auto& [first, last] : ranges) {
        for (char32_t c = first; c <= last; ++c) {
            const std::string glyph = Utf8(c);
            int w[4];
            for (int f = 0; f < 4; ++f) {
                s.SetFontName(kFonts[f]);
                w[f] = Widest(s, glyph);
                widest[f] = std::max(widest[f], w[f]);
            }
            std::printf("{0x%04X, %d, %d, %d, %d},\n", static_cast<unsigned>(c), w[0], w[1], w[2], w[3]);
        }
    }
    std::printf("};\n");
    // Line height and ascent per font, thousandths of the size, the largest of the styles.
    for (int f = 0; f < 4; ++f) {
        s.SetFontName(kFonts[f]);
        double height = 0, ascent = 0;
        for (int style = 0; style < 4; ++style) {
            s.SetFontBold(style & 1);
            s.SetFontItalic(style & 2);
            height = std::max(height, s.TextHeight("Hp"));
            ascent = std::max(ascent, s.Ascent() * s.TwipsPerPixelY());
        }
        std::printf("%s{%d, %d, %d}%s", f == 0 ? "// line height, ascent, widest advance\nconst FontRow kFontRows[] = {" : " ",
                     static_cast<int>(std::ceil(height / (kPoints * 20) * 1000)),
                     static_cast<int>(std::ceil(ascent / (kPoints * 20) * 1000)), widest[f], f == 3 ? "};\n" : ",");
    }
    return 0;
}
