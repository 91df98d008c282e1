// Growing delimiters drawn stroke by stroke, and columns of rows.
#include <cmath>
#include <vector>

#include "typesetter/constructs.h"

#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"

namespace {
constexpr int kArcSegments = 6;

// Part of a circle as six lines whose width runs from w1 to w2 (twips): the taper of a
// printed parenthesis. Angles in degrees, counter-clockwise, y downwards.
void DrawArc(const TypesetterState& st, DrawingSurface& s, double cx, double cy, double r, double a1, double a2,
             double w1, double w2) {
    while (a2 < a1) a2 += 360;
    const double tpp = StrokeTwipsPerPixel(st, s);
    const double least = (&s == st.PrinterSurface) ? 2 : 1;
    const double p1 = std::max(w1 / tpp, least), p2 = std::max(w2 / tpp, least);
    const double rad = st.PiValue / 180;
    for (int i = 0; i < kArcSegments; ++i) {
        const double from = a1 + (a2 - a1) * i / kArcSegments;
        const double to = a1 + (a2 - a1) * (i + 1) / kArcSegments;
        const double w = std::max(p1 + (p2 - p1) * i / kArcSegments, least);
        s.SetDrawWidth(static_cast<int>(std::min(w, 10000.0)));
        s.Line(cx + r * std::cos(from * rad), cy - r * std::sin(from * rad), cx + r * std::cos(to * rad),
               cy - r * std::sin(to * rad));
    }
}

void DrawLeft(const TypesetterState& st, DrawingSurface& s, char32_t d, double X, double Y, const LayoutBox& b,
              double t, double h) {
    const double xL = X - b.lead - 2 * h - t / 2;
    const double yT = Y - b.over - h, yB = Y + b.bottom + h, span = b.over + b.bottom + 2 * h;
    const double yMid = Y - b.over / 2 + b.bottom / 2, half = b.over / 2 + b.bottom / 2 - 4 * h;
    switch (d) {
    case U'|':
        s.LineBy(xL, yT, 0, span);
        break;
    case U'[':
        s.LineBy(xL, yT, 2 * h, 0);
        s.LineBy(xL, yT, 0, span);
        s.LineBy(xL, yB, 2 * h, 0);
        break;
    case U'(': {
        const double cx = X - b.lead + 2 * h - t / 2;
        DrawArc(st, s, cx, Y - b.over + 2 * h, 4 * h, 120, 180, t / 3, t);
        SetStrokeWidth(st, s, t);
        s.LineBy(xL, Y - b.over + 2 * h, 0, b.over + b.bottom - 4 * h);
        DrawArc(st, s, cx, Y + b.bottom - 2 * h, 4 * h, 180, 240, t, t / 3);
        break;
    }
    case U'{': {
        const double cx = X - b.lead + h - t / 2;
        DrawArc(st, s, cx, Y - b.over + h, 3 * h, 105, 180, t / 3, t);
        SetStrokeWidth(st, s, t);
        s.LineBy(xL, Y - b.over + h, 0, half);
        const double cm = X - b.lead - 5 * h - t / 2;
        DrawArc(st, s, cm, yMid - 3 * h, 3 * h, 285, 360, t / 3, t);
        DrawArc(st, s, cm, yMid + 3 * h, 3 * h, 0, 75, t, t / 3);
        SetStrokeWidth(st, s, t);
        s.LineBy(xL, yMid + 3 * h, 0, half);
        DrawArc(st, s, cx, Y + b.bottom - h, 3 * h, 180, 255, t, t / 3);
        break;
    }
    default:
        break;
    }
}

void DrawRight(const TypesetterState& st, DrawingSurface& s, char32_t d, double X, double Y, const LayoutBox& b,
               double t, double h) {
    const double xR = X + b.width + 2 * h + t / 2;
    const double yT = Y - b.over - h, yB = Y + b.bottom + h, span = b.over + b.bottom + 2 * h;
    const double yMid = Y - b.over / 2 + b.bottom / 2, half = b.over / 2 + b.bottom / 2 - 4 * h;
    switch (d) {
    case U'|':
        s.LineBy(xR, yT, 0, span);
        break;
    case U']':
        s.LineBy(xR, yT, -2 * h, 0);
        s.LineBy(xR, yT, 0, span);
        s.LineBy(xR, yB, -2 * h, 0);
        break;
    case U')': {
        const double cx = X + b.width - 2 * h + t / 2;
        DrawArc(st, s, cx, Y - b.over + 2 * h, 4 * h, 0, 60, t, t / 3);
        SetStrokeWidth(st, s, t);
        s.LineBy(xR, Y - b.over + 2 * h, 0, b.over + b.bottom - 4 * h);
        DrawArc(st, s, cx, Y + b.bottom - 2 * h, 4 * h, 300, 360, t / 3, t);
        break;
    }
    case U'}': {
        const double cx = X + b.width - h + t / 2;
        DrawArc(st, s, cx, Y - b.over + h, 3 * h, 0, 75, t, t / 3);
        SetStrokeWidth(st, s, t);
        s.LineBy(xR, Y - b.over + h, 0, half);
        const double cm = X + b.width + 5 * h + t / 2;
        DrawArc(st, s, cm, yMid - 3 * h, 3 * h, 180, 255, t, t / 3);
        DrawArc(st, s, cm, yMid + 3 * h, 3 * h, 105, 180, t / 3, t);
        SetStrokeWidth(st, s, t);
        s.LineBy(xR, yMid + 3 * h, 0, half);
        DrawArc(st, s, cx, Y + b.bottom - h, 3 * h, 285, 360, t / 3, t);
        break;
    }
    default:
        break;
    }
}
} // namespace

void DelimiterHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string& fittedHead) {
    ConstructFrame f(st, s);
    char32_t left = U' ', right = U' ';
    std::u32string body;
    if (IsBalanceError(piece)) {
        body = ErrorDisplayText(piece);
    } else {
        if (piece.size() > 5) left = piece[5];
        if (piece.size() > 6) right = piece[6];
        body = piece.size() > 12 ? piece.substr(7, piece.size() - 12) : U"";
    }
    const double t = std::max(0.04 * f.H, 1.0);
    const double h = 0.1 * f.H;
    const double extraLeft = left == U'{' ? 2 * h : 0;
    const double extraRight = right == U'}' ? 2 * h : 0;
    // The caller's head goes down to the body: a cut inside the delimiters is a cut of the
    // line.
    const LayoutBox b = f.Child(1);
    if (st.DrawPass) {
        s.SetCurrentX(f.X);
        s.SetCurrentY(f.Y);
    }
    InterpretPiece(st, f.myBox, 1, body, s, fittedHead);
    if (!st.DrawPass) {
        const LayoutBox& m = f.Child(1);
        f.WriteBox(3 * h + m.lead + t + extraLeft, 3 * h + m.width + t + extraRight, 2 * h + m.over, m.axis,
                   2 * h + m.bottom, piece);
    } else {
        SetStrokeWidth(st, s, t);
        DrawLeft(st, s, left, f.X, f.Y, b, t, h);
        SetStrokeWidth(st, s, t);
        DrawRight(st, s, right, f.X, f.Y, b, t, h);
    }
    s.SetDrawWidth(1);
    f.RestoreFont();
}

namespace {
// The cells of one row: the row cut at every "&|" that stands outside a construct, each
// cell without the plain spaces around it. One cell when the row has no "&|".
std::vector<std::u32string> RowCells(const std::u32string& row) {
    std::vector<std::u32string> cells(1);
    std::size_t p = 0;
    while (p < row.size()) {
        if (row[p] == U'#') {
            if (const ConstructTag* tag = FindConstructTag(row, p)) {
                const std::u32string piece = ExtractBalancedAt(row, p, tag->open, tag->close);
                if (!IsBalanceError(piece) && row.compare(p, piece.size(), piece) == 0) {
                    cells.back() += piece;
                    p += piece.size();
                    continue;
                }
            }
        } else if (row[p] == U'&' && p + 1 < row.size()) {
            if (row[p + 1] == U'|') {
                cells.emplace_back();
                p += 2;
                continue;
            }
            cells.back() += row.substr(p, 2); // "&&" and the like stay whole
            p += 2;
            continue;
        }
        cells.back().push_back(row[p]);
        p += 1;
    }
    if (cells.size() > 1) {
        for (auto& c : cells) {
            while (!c.empty() && c.front() == U' ') c.erase(0, 1);
            while (!c.empty() && c.back() == U' ') c.pop_back();
        }
    }
    return cells;
}

// The gap above row i + 1. Rows that reach past their line of text (a fraction, a root)
// take the room a printed matrix gives them, or their fractions nearly touch.
double RowGap(double gap, double bottomAbove, double overBelow, double H) {
    if (bottomAbove > H + 0.5 || overBelow > 0.5) return std::max(gap, 0.15 * H);
    return gap;
}

// Rows whose entries are cut into cells by "&|": a grid whose columns are as wide as their
// widest cell, each cell aligned in its column by the construct's alignment letter and on
// the text axis of its row. The rows stack as plain rows do.
void GridRows(ConstructFrame& f, const std::u32string& piece, const std::vector<std::vector<std::u32string>>& cells,
              char32_t align) {
    TypesetterState& st = f.st;
    DrawingSurface& s = f.s;
    const double gap = std::max(0.0354 * f.H, 1.0);
    const double columnGap = 0.8 * f.H; // about an em between columns, as a printed matrix has
    const double axis = 0.574 * f.H;
    const std::size_t n = cells.size();
    std::size_t columns = 0;
    for (const auto& row : cells) columns = std::max(columns, row.size());

    std::vector<int>& boxes = st.CellTable[f.myBox];
    if (!st.DrawPass) {
        boxes.clear();
        for (const auto& row : cells)
            for (const auto& cell : row) boxes.push_back(InterpretPiece(st, f.myBox, 0, cell, s));
    }
    std::vector<std::vector<LayoutBox>> box(n);
    std::size_t k = 0;
    for (std::size_t r = 0; r < n; ++r)
        for (std::size_t c = 0; c < cells[r].size(); ++c, ++k)
            box[r].push_back(k < boxes.size() ? st.BoxTable[boxes[k]] : LayoutBox{0, 0, 0, axis, f.H, U"", 0, 0});

    std::vector<double> columnWidth(columns, 0), over(n, 0), bottom(n, f.H);
    for (std::size_t r = 0; r < n; ++r) {
        double top = axis, low = f.H - axis; // a row is at least a line of plain text
        for (std::size_t c = 0; c < box[r].size(); ++c) {
            const LayoutBox& b = box[r][c];
            columnWidth[c] = std::max(columnWidth[c], b.lead + b.width);
            top = std::max(top, b.over + b.axis);
            low = std::max(low, b.bottom - b.axis);
        }
        over[r] = top - axis;
        bottom[r] = low + axis;
    }
    std::vector<double> columnX(columns, 0);
    double width = 0;
    for (std::size_t c = 0; c < columns; ++c) {
        columnX[c] = width;
        width += columnWidth[c] + (c + 1 < columns ? columnGap : 0);
    }
    if (!st.DrawPass) {
        double sum = -over[0];
        for (std::size_t r = 0; r < n; ++r) {
            sum += over[r] + bottom[r];
            if (r + 1 < n) sum += RowGap(gap, bottom[r], over[r + 1], f.H);
        }
        if (n == 1) f.WriteBox(0, width, over[0], axis, bottom[0], piece);
        else f.WriteBox(0, width, over[0], (sum - over[0]) / 2, sum, piece);
        return;
    }
    double rowTop = f.Y - over[0]; // the ink of the first row begins where the box says
    k = 0;
    for (std::size_t r = 0; r < n; ++r) {
        const double nominal = rowTop + over[r];
        for (std::size_t c = 0; c < cells[r].size(); ++c, ++k) {
            const LayoutBox& b = box[r][c];
            const double wide = b.lead + b.width;
            double x = f.X + columnX[c] + b.lead;
            if (align == U'C') x += (columnWidth[c] - wide) / 2;
            else if (align == U'R') x += columnWidth[c] - wide;
            s.SetCurrentX(x);
            s.SetCurrentY(nominal + axis - b.axis);
            InterpretPiece(st, f.myBox, 0, cells[r][c], s);
        }
        if (r + 1 < n) rowTop += over[r] + bottom[r] + RowGap(gap, bottom[r], over[r + 1], f.H);
    }
}
} // namespace

void RowsHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    std::vector<std::u32string> rows;
    char32_t align = U'L';
    if (IsBalanceError(piece)) {
        rows.push_back(ErrorDisplayText(piece));
    } else {
        if (piece.size() > 5) align = piece[5];
        if (align >= U'a' && align <= U'z') align = align - U'a' + U'A';
        std::u32string rest = piece.size() > 6 ? piece.substr(6) : U"";
        for (int i = 1; i <= kMaxChildren; ++i) {
            std::u32string trimmed = rest;
            while (!trimmed.empty() && trimmed.front() == U' ') trimmed.erase(0, 1);
            if (trimmed.empty() || trimmed.compare(0, 5, U"#RWS)") == 0) break;
            const std::u32string digit(1, static_cast<char32_t>(U'0' + i));
            const std::u32string open = U"#RW" + digit + U"(", close = U"#RW" + digit + U")";
            const std::u32string row = ExtractBalanced(rest, open, close);
            rows.push_back(InnerText(row, 5, 5));
            if (IsBalanceError(row)) break; // a gap in the numbers: the error, and no more rows
            rest = rest.substr(rest.find(open) + row.size());
        }
    }
    std::vector<std::vector<std::u32string>> cells;
    bool grid = false;
    for (const auto& row : rows) {
        cells.push_back(RowCells(row));
        grid = grid || cells.back().size() > 1;
    }
    if (grid) {
        GridRows(f, piece, cells, align);
        f.RestoreFont();
        return;
    }
    const double gap = std::max(0.0354 * f.H, 1.0);
    const int n = static_cast<int>(rows.size());
    if (!st.DrawPass) {
        for (int i = 0; i < n; ++i) f.Piece(i + 1, rows[i], 0, 0);
        if (n == 0) {
            f.WriteBox(0, 0, 0, 0.574 * f.H, f.H, piece);
        } else {
            const LayoutBox& r1 = f.Child(1);
            double width = 0, sumTall = 0;
            for (int i = 1; i <= n; ++i) {
                width = std::max(width, f.Child(i).width);
                sumTall += f.Child(i).over + f.Child(i).bottom;
                if (i < n) sumTall += RowGap(gap, f.Child(i).bottom, f.Child(i + 1).over, f.H);
            }
            if (n == 1) {
                f.WriteBox(r1.lead, width, r1.over, r1.axis, r1.bottom, piece);
            } else {
                const double sum = sumTall - r1.over;
                f.WriteBox(r1.lead, width, r1.over, (sum - r1.over) / 2, sum, piece);
            }
        }
    } else {
        std::vector<LayoutBox> r;
        double maxWide = 0;
        for (int i = 1; i <= n; ++i) {
            r.push_back(f.Child(i));
            maxWide = std::max(maxWide, r.back().lead + r.back().width);
        }
        // The rows start at the box's own top, where its metrics say the ink begins: set a
        // gap lower, as first written, a first row with a fraction hung out of the
        // delimiters drawn from those metrics.
        double acc = r.empty() ? 0 : -r[0].over;
        for (int i = 0; i < n; ++i) {
            const double wide = r[i].lead + r[i].width;
            double x = f.X + r[i].lead;
            if (align == U'C') x = f.X + (maxWide - wide) / 2 + r[i].lead;
            else if (align == U'R') x = f.X + maxWide - r[i].width;
            f.Piece(i + 1, rows[i], x, f.Y + acc + r[i].over);
            acc += r[i].over + r[i].bottom;
            if (i + 1 < n) acc += RowGap(gap, r[i].bottom, r[i + 1].over, f.H);
        }
    }
    f.RestoreFont();
}
