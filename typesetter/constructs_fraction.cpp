// Fractions, arrows with texts and stacked pairs: one piece above another, on the axis of
// the text around them.
#include <algorithm>

#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"

namespace {
struct TwoPartMetrics {
    double rule, gapBelow, gapAbove, overhang;
    double upperShift = 0, lowerShift = 0, total = 0;
    void Centre(const LayoutBox& u, const LayoutBox& l) {
        const double shift = ((l.lead + l.width) - (u.lead + u.width)) / 2;
        if (shift <= 0) {
            lowerShift = -shift;
            upperShift = 0;
            total = 2 * overhang + u.lead + u.width;
        } else {
            upperShift = shift;
            lowerShift = 0;
            total = 2 * overhang + l.lead + l.width;
        }
    }
};

TwoPartMetrics Metrics(double H, double rule) {
    return {Clamped(rule), Clamped(0.0354 * H), Clamped(0.0354 * H), Clamped(0.09 * H)};
}

// A part whose ink reaches past its line of plain text (a root's bar above a denominator,
// a root's foot or a subscript below a numerator) would touch the rule at the standard
// gaps and read as a double rule: such a part keeps the clearance a printed fraction gives.
void ClearOfTheRule(TwoPartMetrics& m, const LayoutBox& upper, const LayoutBox& lower, double H) {
    const double clearance = 0.12 * H;
    if (upper.bottom > H + 0.5) m.gapAbove = std::max(m.gapAbove, clearance);
    if (lower.over > 0.5) m.gapBelow = std::max(m.gapBelow, clearance);
}

// The fraction and the arrow share their cutting and their measure.
void StackedOnRule(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, bool arrow) {
    ConstructFrame f(st, s);
    std::u32string upperText, lowerText;
    if (arrow) CutTwoParts(piece, U"#ATX(", U"#T)", U"#T)(", U"#ATX)", upperText, lowerText);
    else CutTwoParts(piece, U"#COC(", U"#N)", U"#N)(", U"#COC)", upperText, lowerText);
    st.FractionDepth += 1;
    const double ruleWidth = (!arrow && st.FractionDepth == 1) ? 0.04 * f.H : 0.02 * f.H;
    TwoPartMetrics m = Metrics(f.H, ruleWidth);

    if (!st.DrawPass) {
        f.Piece(1, upperText, 0, 0);
        f.Piece(2, lowerText, 0, 0);
        const LayoutBox& u = f.Child(1);
        const LayoutBox& l = f.Child(2);
        if (!arrow) ClearOfTheRule(m, u, l, f.H);
        m.Centre(u, l);
        const double over = u.over;
        const double axis = m.gapAbove + u.bottom + m.rule / 2;
        const double bottom = m.gapAbove + u.bottom + m.rule + m.gapBelow + l.over + l.bottom;
        if (arrow) f.WriteBox(7 * m.overhang, 7 * m.overhang + m.total, over, axis, bottom, piece);
        else f.WriteBox(0, m.total, over, axis, bottom, piece);
    } else {
        const LayoutBox u = f.Child(1);
        const LayoutBox l = f.Child(2);
        if (!arrow) ClearOfTheRule(m, u, l, f.H);
        m.Centre(u, l);
        const double X = f.X, Y = f.Y;
        f.Piece(1, upperText, X + m.upperShift + m.overhang + u.lead, arrow ? Y - 2 * m.overhang : Y);
        f.Piece(2, lowerText, X + m.lowerShift + m.overhang + l.lead,
                Y + u.bottom + m.gapAbove + m.rule + m.gapBelow + l.over);
        SetStrokeWidth(st, s, m.rule);
        const double y = Y + u.bottom + m.gapAbove + m.rule / 2;
        if (arrow) {
            const double o = m.overhang;
            s.LineBy(X + m.rule / 2 - 6 * o, y, m.total - m.rule + 12 * o, 0);
            const double tipX = X - m.rule / 2 + 6 * o + m.total;
            s.LineBy(tipX, y, -4 * o, -3 * o);
            s.LineBy(tipX, y, -4 * o, 3 * o);
        } else {
            s.LineBy(X + m.rule / 2, y, m.total - m.rule, 0);
        }
        s.SetDrawWidth(1);
    }
    f.RestoreFont();
    // Only the fraction gives its level back; the arrow keeps later rules thin until the
    // next pass.
    if (!arrow) st.FractionDepth -= 1;
}
} // namespace

void FractionHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    StackedOnRule(st, piece, s, false);
}

void ArrowTextHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    StackedOnRule(st, piece, s, true);
}

void StackedPairHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    std::u32string upperText, lowerText;
    CutTwoParts(piece, U"#SPB(", U"#T)", U"#T)(", U"#SPB)", upperText, lowerText);
    char32_t align = U'L';
    if (!upperText.empty() && !IsBalanceError(upperText)) {
        align = upperText[0];
        if (align >= U'a' && align <= U'z') align = align - U'a' + U'A';
        upperText.erase(0, 1);
    }
    st.FractionDepth += 1;
    st.ScriptDepth += 1;
    s.SetFontSize(st.ScriptDepth == 1 ? f.fontSize * 8 / 12 : f.fontSize * 6 / 8);
    const double h = s.TextHeight("Hp");

    if (!st.DrawPass) {
        f.Piece(1, upperText, 0, 0);
        f.Piece(2, lowerText, 0, 0);
        const LayoutBox& u = f.Child(1);
        const LayoutBox& l = f.Child(2);
        const double total = std::max(u.lead + u.width, l.lead + l.width);
        f.WriteBox(0, total, u.over + u.bottom - h, u.bottom, u.bottom + l.over + l.bottom, piece);
    } else {
        const LayoutBox u = f.Child(1);
        const LayoutBox l = f.Child(2);
        const double wideUpper = u.lead + u.width, wideLower = l.lead + l.width;
        const double total = std::max(wideUpper, wideLower);
        const double X = f.X, Y = f.Y;
        double ux = X + u.lead;
        if (align == U'R' && wideUpper < wideLower) ux = X + total - u.width;
        if (align == U'C' && wideUpper < wideLower) ux = X + (wideLower - wideUpper) / 2 + u.lead;
        double lx = X + l.lead;
        if (align == U'R' && wideLower < wideUpper) lx = X + total - l.width;
        if (align == U'C' && wideLower < wideUpper) lx = X + (wideUpper - wideLower) / 2 + l.lead;
        f.Piece(1, upperText, ux, Y - u.bottom + h);
        f.Piece(2, lowerText, lx, Y + u.bottom + l.over);
    }
    st.ScriptDepth -= 1;
    f.RestoreFont();
}
