#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/typesetter/recording_surface.h"
#include "typesetter/markup.h"
#include "typesetter/text_util.h"
#include "typesetter/typesetter_state.h"

// A state for calling the interpreter directly, on a page too wide to break lines.
inline void WidePage(TypesetterState& st) {
    st.PageWidth = 1e9;
    st.PageHeight = 1e9;
    st.MarginLeft = st.MarginRight = st.MarginTop = st.MarginBottom = 0;
}

// The measure pass over one string, as the driver runs it: box 1 is the string's.
inline LayoutBox MeasureString(TypesetterState& st, DrawingSurface& s, const std::string& text,
                               std::u32string* head = nullptr) {
    st.BoxCounter = 1;
    st.FractionDepth = 0;
    st.ScriptDepth = 0;
    st.BoxOverflow = false;
    st.DrawPass = false;
    std::u32string h;
    InterpretMarkup(st, ToU32(text), s, h);
    if (head) *head = h;
    return st.BoxTable[1];
}

// The measure pass and then the draw pass from (x, y), with the font state put back in
// between as the driver does.
inline void MeasureAndDraw(TypesetterState& st, RecordingSurface& s, const std::string& text, double x = 0,
                           double y = 0);

// The draw pass from (x, y), after a measure pass.
inline void DrawString(TypesetterState& st, DrawingSurface& s, const std::string& text, double x = 0, double y = 0) {
    st.BoxCounter = 1;
    st.FractionDepth = 0;
    st.ScriptDepth = 0;
    st.BoxOverflow = false;
    st.DrawPass = true;
    s.SetCurrentX(x);
    s.SetCurrentY(y);
    std::u32string scratch;
    InterpretMarkup(st, ToU32(text), s, scratch);
    st.DrawPass = false;
}

// Recording surface at 12 points: em 240, H = TextHeight 276, ascent 216 twips.
inline constexpr double kEm = 240;
inline constexpr double kH = 1.15 * 240;

inline void MeasureAndDraw(TypesetterState& st, RecordingSurface& s, const std::string& text, double x, double y) {
    const std::string name = s.FontName();
    const double size = s.FontSize();
    const bool bold = s.FontBold(), italic = s.FontItalic();
    const std::uint32_t color = s.ForeColor();
    MeasureString(st, s, text);
    s.SetFontName(name);
    s.SetFontSize(size);
    s.SetFontBold(bold);
    s.SetFontItalic(italic);
    s.SetForeColor(color);
    s.texts.clear();
    s.strokes.clear();
    s.pictures.clear();
    s.circles.clear();
    DrawString(st, s, text, x, y);
}

// The fixture of the construct tests: a fresh state on a wide page and a recording surface,
// with the lookups those tests share.
struct ConstructFixture : ::testing::Test {
    TypesetterState st;
    RecordingSurface s;
    void SetUp() override { WidePage(st); }
    LayoutBox Measure(const std::string& text) { return MeasureString(st, s, text); }
    void Draw(const std::string& text, double x = 1000, double y = 1000) { MeasureAndDraw(st, s, text, x, y); }
    // The first run of exactly this text, or nullptr.
    const RecordingSurface::Text* Find(const std::string& t) const {
        for (const auto& x : s.texts)
            if (x.text == t) return &x;
        return nullptr;
    }
    // Horizontal strokes, in the order drawn.
    std::vector<RecordingSurface::Stroke> Horizontal() const {
        std::vector<RecordingSurface::Stroke> out;
        for (const auto& k : s.strokes)
            if (k.y1 == k.y2 && k.x1 != k.x2) out.push_back(k);
        return out;
    }
    double H() { return s.TextHeight("Hp"); }
    // The thickness of a frame or cross-out line.
    double T() { return std::max(0.04 * H(), 1.0); }
};
