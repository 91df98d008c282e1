// The chemical equation: terms on one row with "+" between them and an arrow between the
// sides, and rows of notes centred beneath the terms.
#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"
#include "typesetter/text_util.h"

namespace {
std::vector<std::u32string> SplitTerms(const std::u32string& side) {
    std::vector<std::u32string> terms;
    std::size_t pos = 0;
    while (true) {
        const std::size_t plus = side.find(U" + ", pos);
        const std::u32string term = TrimBlanks(side.substr(pos, plus == std::u32string::npos ? std::u32string::npos : plus - pos));
        terms.push_back(U" " + term + U" ");
        if (plus == std::u32string::npos) break;
        pos = plus + 3;
    }
    return terms;
}

std::u32string Number(int i) { return ToU32(std::to_string(i)); }
} // namespace

void EquationHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    const double H = f.H;
    int noteRows = 0;
    std::u32string equation, notes;
    if (IsBalanceError(piece)) {
        equation = ErrorDisplayText(piece);
    } else {
        if (piece.size() > 5 && piece[5] >= U'0' && piece[5] <= U'9') noteRows = static_cast<int>(piece[5] - U'0');
        const std::u32string inner = InnerText(piece, 5, 5);
        const std::size_t a1 = inner.find(U'\'');
        const std::size_t a2 = a1 == std::u32string::npos ? a1 : inner.find(U'\'', a1 + 1);
        if (a2 != std::u32string::npos) {
            equation = TrimBlanks(inner.substr(a1 + 1, a2 - a1 - 1));
            notes = inner.substr(a2 + 1);
        } else {
            equation = TrimBlanks(inner.size() > 1 ? inner.substr(1) : U"");
        }
    }
    // The first separator found splits the sides; "=" stands for the arrow, "==" for the
    // equilibrium arrows.
    std::u32string arrow = U"&ars", left = equation, right;
    bool split = false;
    for (const std::u32string sep : {U"&Q", U"&ars", U"&als"}) {
        const std::size_t at = equation.find(sep);
        if (at != std::u32string::npos) {
            arrow = sep;
            left = equation.substr(0, at);
            right = equation.substr(at + sep.size());
            split = true;
            break;
        }
    }
    if (!split) {
        const std::size_t at = equation.find(U'=');
        if (at != std::u32string::npos) {
            const bool twice = equation.compare(at, 2, U"==") == 0;
            arrow = twice ? U"&Q" : U"&ars";
            left = equation.substr(0, at);
            right = equation.substr(at + (twice ? 2 : 1));
            split = true;
        }
    }
    std::vector<std::u32string> terms = SplitTerms(left);
    const std::size_t leftCount = terms.size();
    if (split)
        for (const auto& t : SplitTerms(right)) terms.push_back(t);
    const int m = static_cast<int>(terms.size());
    if (noteRows > 9) noteRows = 9;
    // Cells row by row: the terms, then each row of notes.
    std::vector<std::u32string> cells = terms;
    for (int i = 1; i <= noteRows; ++i) {
        for (int j = 1; j <= m; ++j) {
            const std::u32string open = U"#A" + Number(i) + Number(j) + U"(", close = U"#A" + Number(i) + Number(j) + U")";
            const std::u32string note = ExtractBalanced(notes, open, close);
            cells.push_back(IsBalanceError(note) ? U" " : InnerText(note, open.size(), close.size()));
        }
    }
    const double gap = std::max(0.0354 * H, 1.0);
    const double plusWidth = s.TextWidth("+");
    double arrowWidth = s.TextWidth("    ");
    std::string arrowGlyph;
    if (arrow != U"&Q") {
        arrowGlyph = arrow == U"&als" ? "\u2190" : "\u2192";
        s.SetFontName("Symbol");
        arrowWidth = s.TextWidth(arrowGlyph);
        s.SetFontName("Courier New");
        s.SetFontName(f.fontName);
    }
    auto separatorWidth = [&](int j) { return static_cast<std::size_t>(j) == leftCount ? arrowWidth : plusWidth; };

    std::vector<int>& boxes = st.CellTable[f.myBox];
    auto cellSize = [&](std::size_t index) {
        if (index >= terms.size()) s.SetFontSize(f.fontSize * 8 / 12);
        else s.SetFontSize(f.fontSize);
    };
    if (!st.DrawPass) {
        boxes.clear();
        for (std::size_t c = 0; c < cells.size(); ++c) {
            cellSize(c);
            boxes.push_back(InterpretPiece(st, f.myBox, 0, cells[c], s));
        }
        s.SetFontSize(f.fontSize);
    }
    auto cellBox = [&](std::size_t c) -> LayoutBox {
        return c < boxes.size() ? st.BoxTable[boxes[c]] : LayoutBox{};
    };
    // Columns and rows from the measured cells.
    std::vector<double> colWidth(m, 0);
    std::vector<double> rowOver(noteRows + 1, 0), rowBottom(noteRows + 1, 0);
    for (int r = 0; r <= noteRows; ++r) {
        for (int j = 0; j < m; ++j) {
            const LayoutBox b = cellBox(static_cast<std::size_t>(r * m + j));
            colWidth[j] = std::max(colWidth[j], b.lead + b.width);
            rowOver[r] = std::max(rowOver[r], b.over);
            rowBottom[r] = std::max(rowBottom[r], b.bottom);
        }
    }
    std::vector<double> colX(m, 0), rowY(noteRows + 1, 0);
    double x = 0;
    for (int j = 0; j < m; ++j) {
        colX[j] = x;
        x += colWidth[j];
        if (j + 1 < m) x += separatorWidth(j + 1);
    }
    const double total = x;
    double y = 0, low = rowBottom[0];
    for (int r = 1; r <= noteRows; ++r) {
        y = low + gap + rowOver[r];
        rowY[r] = y;
        low = y + rowBottom[r];
    }

    if (!st.DrawPass) {
        f.WriteBox(0, total, rowOver[0], 0.574 * H, low, piece);
    } else {
        std::size_t c = 0;
        for (int r = 0; r <= noteRows; ++r) {
            for (int j = 0; j < m; ++j, ++c) {
                const LayoutBox b = cellBox(c);
                cellSize(c);
                s.SetCurrentX(f.X + colX[j] + (colWidth[j] - b.lead - b.width) / 2 + b.lead);
                s.SetCurrentY(f.Y + rowY[r]);
                InterpretPiece(st, f.myBox, 0, cells[c], s);
            }
        }
        s.SetFontSize(f.fontSize);
        for (int j = 1; j < m; ++j) {
            const double sx = f.X + colX[j - 1] + colWidth[j - 1];
            s.SetCurrentX(sx);
            s.SetCurrentY(f.Y);
            if (static_cast<std::size_t>(j) != leftCount) {
                s.PrintText("+");
            } else if (arrow == U"&Q") {
                SetStrokeWidth(st, s, 0.05 * H);
                const double z = st.ZoomScale;
                const double y1 = f.Y + H / 2.5, y2 = f.Y + H / 1.7;
                s.LineBy(sx, y1, 240 * z, 0);
                s.LineBy(sx + 240 * z, y1, -60 * z, -50 * z);
                s.LineBy(sx, y2, 240 * z, 0);
                s.LineBy(sx, y2, 60 * z, 50 * z);
                s.SetDrawWidth(1);
            } else {
                const double textAscent = AscentTwips(st, s);
                s.SetFontName("Symbol");
                s.SetCurrentY(f.Y + textAscent - AscentTwips(st, s));
                s.PrintText(arrowGlyph);
                s.SetFontName("Courier New");
                s.SetFontName(f.fontName);
            }
        }
    }
    f.RestoreFont();
}
