// Growing delimiters drawn stroke by stroke, and columns of rows.
#include <cmath>

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
            }
            if (n == 1) {
                f.WriteBox(r1.lead, width, r1.over, r1.axis, r1.bottom, piece);
            } else {
                const double sum = (n - 1) * gap - r1.over + sumTall;
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
        double acc = gap;
        for (int i = 0; i < n; ++i) {
            const double wide = r[i].lead + r[i].width;
            double x = f.X + r[i].lead;
            if (align == U'C') x = f.X + (maxWide - wide) / 2 + r[i].lead;
            else if (align == U'R') x = f.X + maxWide - r[i].width;
            f.Piece(i + 1, rows[i], x, f.Y + acc + r[i].over);
            acc += r[i].over + r[i].bottom + gap;
        }
    }
    f.RestoreFont();
}
