// Radical signs with an optional index, and powers.
#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"

void RootHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    std::u32string radicand = InnerText(piece, 5, 5);
    std::u32string index;
    bool hasIndex = false;
    if (piece.compare(0, 5, U"#CUR(") == 0) {
        index = U"3";
        hasIndex = true;
    } else if (piece.compare(0, 5, U"#RAD(") == 0 && radicand.find(U"#RI(") != std::u32string::npos) {
        // The index must stand first: what follows its length is the radicand.
        const std::u32string indexPiece = ExtractBalanced(radicand, U"#RI(", U"#RI)");
        index = InnerText(indexPiece, 4, 4);
        radicand = indexPiece.size() < radicand.size() ? radicand.substr(indexPiece.size()) : U"";
        hasIndex = true;
    }
    const double H = f.H;
    const double bar = Clamped(0.0323 * H), gapTop = Clamped(0.0354 * H), gapFoot = Clamped(0.0754 * H);
    const double indexRise = Clamped(0.04 * H), tickDrop = Clamped(0.067 * H), heavy = Clamped(0.05 * H);
    const double overhang = Clamped(0.09 * H), gapLeft = Clamped(0.08 * H), runLong = Clamped(0.215 * H);
    const double runHeavy = Clamped(0.175 * H), runTick = Clamped(0.12 * H), indexGap = Clamped(0.26 * H);

    if (!st.DrawPass) {
        f.Piece(1, radicand, 0, 0);
        if (hasIndex) {
            s.SetFontSize(f.fontSize * 8 / 12);
            f.Piece(2, index, 0, 0);
            s.SetFontSize(f.fontSize);
        }
        const LayoutBox& rad = f.Child(1);
        const double total = rad.over + rad.bottom + gapTop + bar + gapFoot;
        const double hook = std::max(0.4 * total, 1.0);
        double lead = gapLeft + rad.lead + runLong + runHeavy + runTick;
        double over = rad.over + gapTop + bar;
        if (hasIndex) {
            const LayoutBox& idx = f.Child(2);
            // The index keeps a little room on its left, so that it doesn't touch an
            // opening parenthesis before the root.
            lead = std::max(lead, rad.lead + indexGap + idx.width + idx.lead + 0.1 * H);
            over = std::max(over, (idx.over + idx.bottom) - (rad.bottom + gapFoot - hook - indexRise));
        }
        f.WriteBox(lead, overhang + rad.width, over, rad.axis, rad.bottom + gapFoot, piece);
    } else {
        const LayoutBox rad = f.Child(1);
        const LayoutBox idx = hasIndex ? f.Child(2) : LayoutBox{};
        const double X = f.X, Y = f.Y;
        const double total = rad.over + rad.bottom + gapTop + bar + gapFoot;
        const double hook = std::max(0.4 * total, 1.0);
        f.Piece(1, radicand, X + rad.lead, Y);
        if (hasIndex) {
            s.SetFontSize(f.fontSize * 8 / 12);
            f.Piece(2, index, X - rad.lead - indexGap - idx.width,
                    Y + rad.bottom + gapFoot - hook - indexRise - idx.bottom);
            s.SetFontSize(f.fontSize);
        }
        const double top = Y - rad.over;
        const double x0 = X - rad.lead - gapLeft;
        const double yBar = top - gapTop - bar / 2;
        const double yFoot = top + rad.over + rad.bottom + gapFoot;
        SetStrokeWidth(st, s, bar);
        s.Line(x0 + bar / 2, yBar, X + rad.width + overhang - bar / 2, yBar);
        SetStrokeWidth(st, s, heavy);
        s.Line(x0 - runLong - bar / 2, yFoot - heavy / 2, x0 - runLong - runHeavy, yFoot - hook);
        SetStrokeWidth(st, s, bar);
        s.Line(x0 - runLong, yFoot - bar / 2, x0, yBar);
        s.Line(x0 - runLong - runHeavy - runTick + bar / 2, yFoot - hook + tickDrop - bar / 1.5, x0 - runLong - runHeavy,
               yFoot - hook - bar / 1.5);
    }
    s.SetDrawWidth(1);
    // A root leaves the text colour black.
    s.SetForeColor(0);
    f.RestoreFont();
}

void PowerHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    const bool isExp = piece.compare(0, 5, U"#EXP(") == 0;
    std::u32string base, exponent;
    if (isExp) {
        base = U"&+Ie&-I";
        exponent = InnerText(piece, 5, 5);
    } else {
        CutTwoParts(piece, U"#POT(", U"#PB)", U"#PB)(", U"#POT)", base, exponent);
    }
    const double H = f.H;
    const LayoutBox b = f.Child(1);
    const LayoutBox e = f.Child(2);
    f.Piece(1, base, f.X + b.lead, f.Y);
    s.SetFontItalic(f.italic);
    st.ScriptDepth += 1;
    if (st.ScriptDepth == 1) s.SetFontSize(s.FontSize() * 8 / 12);
    // Deeper exponents shrink in the drawing as in the measure: drawn at the size of their
    // parent, a third-level exponent stood as large as its base and overran the room kept.
    else if (st.ScriptDepth >= 2) s.SetFontSize(s.FontSize() * 6 / 8);
    f.Piece(2, exponent, f.X + b.width + e.lead, f.Y - b.over - e.bottom + (8.0 / 12) * H);
    st.ScriptDepth -= 1;
    if (!st.DrawPass) {
        const LayoutBox& base1 = f.Child(1);
        const LayoutBox& expo = f.Child(2);
        f.WriteBox(base1.lead, expo.lead + base1.width + expo.width, (expo.over + expo.bottom) - (8.0 / 12) * H + base1.over,
                   base1.axis, base1.bottom, piece);
    }
    f.RestoreFont();
    // The italic e leaves italic off behind it.
    if (isExp) s.SetFontItalic(false);
}
