#pragma once
#include <string>

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
