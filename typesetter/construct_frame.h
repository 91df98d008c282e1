#pragma once
#include <algorithm>
#include <string>

#include "typesetter/markup.h"

// What every construct handler does on entry and on leaving: its box is the one taken by
// the interpreter; in the draw pass it notes where it was entered; it keeps font name,
// size and italic and gives them back when it ends.
struct ConstructFrame {
    ConstructFrame(TypesetterState& st, DrawingSurface& s) : st(st), s(s) {
        myBox = st.BoxCounter;
        X = s.CurrentX();
        Y = s.CurrentY();
        if (st.DrawPass) {
            st.BoxTable[myBox].drawX = X;
            st.BoxTable[myBox].drawY = Y;
        }
        fontName = s.FontName();
        fontSize = s.FontSize();
        italic = s.FontItalic();
        H = s.TextHeight("Hp");
    }
    void RestoreFont() {
        s.SetFontName(fontName);
        s.SetFontSize(fontSize);
        s.SetFontItalic(italic);
    }
    // The metrics of child place (1..9), as the measure pass left them.
    const LayoutBox& Child(int place) const { return st.BoxTable[ChildBox(st, myBox, place)]; }
    // Interprets a piece at (x, y) in the draw pass, or measures it.
    int Piece(int place, const std::u32string& text, double x, double y) {
        if (st.DrawPass) {
            s.SetCurrentX(x);
            s.SetCurrentY(y);
        }
        return InterpretPiece(st, myBox, place, text, s);
    }
    LayoutBox& Box() { return st.BoxTable[myBox]; }
    void WriteBox(double lead, double width, double over, double axis, double bottom, const std::u32string& source) {
        LayoutBox& b = Box();
        b.lead = lead;
        b.width = width;
        b.over = over;
        b.axis = axis;
        b.bottom = bottom;
        b.source = source;
    }

    TypesetterState& st;
    DrawingSurface& s;
    int myBox;
    double X, Y, H;
    std::string fontName;
    double fontSize;
    bool italic;
};

// A value below 15 twips becomes 15.
inline double Clamped(double v) { return v < 15.0 ? 15.0 : v; }

// The text between a tag of headLength characters and a closer of tailLength; an error text
// from ExtractBalanced becomes the red error shown in its place.
inline std::u32string InnerText(const std::u32string& piece, std::size_t headLength, std::size_t tailLength) {
    if (IsBalanceError(piece)) return ErrorDisplayText(piece);
    if (piece.size() < headLength + tailLength) return U"";
    return piece.substr(headLength, piece.size() - headLength - tailLength);
}

// Cuts "open" first "mid(" second "close": the closer of the first part, mid, is reused as
// the opener of the second, midOpen.
inline void CutTwoParts(const std::u32string& text, const std::u32string& open, const std::u32string& mid,
                        const std::u32string& midOpen, const std::u32string& close, std::u32string& first,
                        std::u32string& second) {
    const std::u32string a = ExtractBalanced(text, open, mid);
    first = InnerText(a, open.size(), mid.size());
    if (IsBalanceError(a)) {
        second.clear();
        return;
    }
    const std::size_t start = text.find(open) + a.size() - mid.size();
    const std::u32string rest = start < text.size() ? text.substr(start) : std::u32string();
    const std::u32string b = ExtractBalanced(rest, midOpen, close);
    second = InnerText(b, midOpen.size(), close.size());
}
