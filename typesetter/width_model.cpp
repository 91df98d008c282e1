#include "typesetter/width_model.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "typesetter/markup.h"
#include "typesetter/text_util.h"

namespace {
struct WidthRow {
    char32_t code;
    int width[4];
};
struct FontRow {
    int height, ascent, widest;
};
#include "typesetter/width_table.inc"

constexpr int kFontCount = 4;
// The table's thousandths are rounded up; this covers what scaling a font may add.
constexpr double kSafety = 1.002;

int FontColumn(const std::string& name) {
    if (name == "Times New Roman") return 0;
    if (name == "Arial") return 1;
    if (name == "Courier New") return 2;
    if (name == "Symbol" || name == "MT Extra") return 3;
    return -1;
}

// Thousandths of the size: the table's entry, or the widest glyph of the font for a
// character it doesn't list; for an unknown font the widest of all fonts.
int Thousandths(char32_t c, int font) {
    const auto* end = std::end(kWidthRows);
    const auto* row = std::lower_bound(std::begin(kWidthRows), end, c,
                                       [](const WidthRow& r, char32_t code) { return r.code < code; });
    const bool listed = row != end && row->code == c;
    int widest = 0;
    for (int f = 0; f < kFontCount; ++f) {
        if (font >= 0 && f != font) continue;
        widest = std::max(widest, listed ? row->width[f] : kFontRows[f].widest);
    }
    return widest;
}

FontRow RowOf(int font) {
    if (font >= 0) return kFontRows[font];
    FontRow all{0, 0, 0};
    for (const FontRow& r : kFontRows) {
        all.height = std::max(all.height, r.height);
        all.ascent = std::max(all.ascent, r.ascent);
        all.widest = std::max(all.widest, r.widest);
    }
    return all;
}
} // namespace

void WidthModelSurface::SetFontName(const std::string& name) {
    name_ = name;
    font_ = FontColumn(name);
}

void WidthModelSurface::SetFontSize(double points) {
    if (!(points > 0) || !std::isfinite(points)) points = 0.05;
    size_ = std::min(points, 2000.0);
}

double WidthModelSurface::TextWidth(const std::string& text) {
    double thousandths = 0;
    for (char32_t c : ToU32(text)) thousandths += Thousandths(c, font_);
    return thousandths / 1000 * size_ * 20 * kSafety;
}

double WidthModelSurface::TextHeight(const std::string&) { return RowOf(font_).height / 1000.0 * size_ * 20; }

double WidthModelSurface::Ascent() { return RowOf(font_).ascent / 1000.0 * size_ * 20 / TwipsPerPixelY(); }

double ModelMarkupWidth(TypesetterState& st, const std::string& markup, double points) {
    WidthModelSurface surface;
    st.ScreenSurface = &surface;
    st.PrinterSurface = nullptr;
    st.ZoomScale = 1;
    // A page too wide to break the line.
    st.PageWidth = 1e12;
    st.PageHeight = 1e12;
    st.MarginLeft = st.MarginRight = st.MarginTop = st.MarginBottom = 0;
    st.LineIndent = 0;
    StartLine(st);
    surface.SetFontSize(points);
    std::u32string head;
    InterpretMarkup(st, ExpandLocaleCodes(st, ToU32(markup)), surface, head);
    const LayoutBox& box = st.BoxTable[1];
    st.ScreenSurface = nullptr;
    return box.lead + box.width;
}
