// Marks over, under and across a body of text, and the integral sign.
#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"

void MarkHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    const std::u32string body = InnerText(piece, 5, 5);
    const std::u32string kind = piece.substr(0, 4);
    const double t = std::max(0.04 * f.H, 1.0);
    const double u = 0.18 * f.H;
    const LayoutBox b = f.Child(1);
    f.Piece(1, body, f.X + b.lead, f.Y);
    if (!st.DrawPass) {
        const LayoutBox& m = f.Child(1);
        f.WriteBox(m.lead + t, m.width + t, m.over + t, m.axis, m.bottom + t, piece);
    } else {
        const double X = f.X, Y = f.Y;
        const double xa = X - b.lead, xb = X + b.width, span = b.lead + b.width;
        const double yt = Y - b.over, yb = Y + b.bottom, tall = b.over + b.bottom;
        const std::uint32_t c = st.LineColor;
        SetStrokeWidth(st, s, t);
        auto line = [&](double x, double y, double dx, double dy) { s.LineBy(x, y, dx, dy, c); };
        auto above = [&] { line(xa - t / 2, yt - t / 2, span + t, 0); };
        auto below = [&] { line(xa - t / 2, yb + t / 2, span + t, 0); };
        if (kind == U"#VEC" || kind == U"#VED") {
            const double y = kind == U"#VEC" ? yt + u / 2 : yt + 1.33 * u;
            line(xa, y, span, 0);
            line(xb, y, -u, -u); // one barb, a half arrowhead
        } else if (kind == U"#SED") {
            line(xa, yt + 1.33 * u, span, 0);
        } else if (kind == U"#AND") {
            line(xa, yt + 1.33 * u, span / 2, -u);
            line(xb, yt + 1.33 * u, -span / 2, -u);
        } else if (kind == U"#ARC") {
            const double px[5] = {xa + u / 4, xa + span / 3, X + (b.width - b.lead) / 2, xb - span / 3, xb - u / 4};
            const double py[5] = {yt + 0.9 * u, yt + 0.2 * u, yt + 0.1 * u, yt + 0.2 * u, yt + 0.9 * u};
            for (int i = 0; i < 4; ++i) s.Line(px[i], py[i], px[i + 1], py[i + 1], c);
        } else if (kind == U"#TDD") {
            line(xa, yt, span, tall);
        } else if (kind == U"#TDU") {
            line(xa, yb, span, -tall);
        } else if (kind == U"#TDX") {
            line(xa, yt, span, tall);
            line(xa, yb, span, -tall);
        } else if (kind == U"#SEG") {
            above();
        } else if (kind == U"#UDL") {
            below();
        } else if (kind == U"#REC") {
            above();
            below();
            line(xa - t / 2, yb + t / 2, 0, -tall - t);
            line(xb + t / 2, yb + t / 2, 0, -tall - t);
        }
    }
    s.SetDrawWidth(1);
    f.RestoreFont();
}

void IntegralHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    const std::u32string body = InnerText(piece, 5, 5);
    const double left = std::max(0.6 * f.H, 1.0);
    const double rise = std::max(0.4 * f.H, 1.0);
    if (st.DrawPass) {
        const std::uint32_t color = s.ForeColor();
        s.SetCurrentX(f.X - left);
        s.SetCurrentY(f.Y - rise);
        s.SetFontName("Symbol");
        s.SetFontSize(f.fontSize * 2);
        s.SetFontItalic(false);
        s.SetForeColor(0); // the sign is always black
        s.PrintText("\u222B");
        s.SetFontName("Courier New");
        s.SetFontName(f.fontName);
        s.SetFontSize(f.fontSize);
        s.SetFontItalic(f.italic);
        s.SetForeColor(color);
    }
    f.Piece(1, body, f.X, f.Y);
    s.SetDrawWidth(1);
    if (!st.DrawPass) {
        const LayoutBox& b = f.Child(1);
        f.WriteBox(left + b.lead, b.width, 1.2 * rise + b.over, b.axis, 1.2 * rise + b.bottom, piece);
    }
    f.RestoreFont();
}

void HeadingHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    std::u32string head, lines[3];
    int count = 1;
    if (IsBalanceError(piece)) {
        head = ErrorDisplayText(piece);
    } else {
        const std::u32string headPiece = ExtractBalanced(piece, U"#TST(", U"#TS)(");
        head = InnerText(headPiece, 5, 5);
        std::u32string rest = IsBalanceError(headPiece) ? piece : piece.substr(piece.find(U"#TST(") + headPiece.size());
        for (int i = 1; i <= 3; ++i) {
            if (i > 1 && (rest.compare(0, 5, U"#TST)") == 0 || rest.empty())) break;
            const std::u32string digit(1, static_cast<char32_t>(U'0' + i));
            const std::u32string open = U"#ST" + digit + U"(", close = U"#ST" + digit + U")";
            const std::u32string line = ExtractBalanced(rest, open, close);
            lines[i - 1] = InnerText(line, 5, 5);
            count = i;
            if (IsBalanceError(line)) break;
            rest = rest.substr(rest.find(open) + line.size());
        }
    }
    const double gap = std::max(0.0354 * f.H, 1.0);
    auto reduce = [&] {
        st.ScriptDepth += 1;
        if (st.ScriptDepth == 1) s.SetFontSize(f.fontSize * 8 / 12);
        else if (st.ScriptDepth == 2) s.SetFontSize(f.fontSize * 6 / 8);
    };
    auto restore = [&] {
        s.SetFontSize(f.fontSize);
        st.ScriptDepth -= 1;
    };
    if (!st.DrawPass) {
        f.Piece(0, head, 0, 0);
        for (int i = 1; i <= count; ++i) {
            reduce();
            f.Piece(i, lines[i - 1], 0, 0);
            restore();
        }
        const LayoutBox& h = f.Child(0);
        double width = h.width, bottom = h.bottom;
        for (int i = 1; i <= count; ++i) {
            width = std::max(width, f.Child(i).width);
            bottom += gap + f.Child(i).over + f.Child(i).bottom;
        }
        f.WriteBox(h.lead, width, h.over, h.axis, bottom, piece);
    } else {
        const LayoutBox h = f.Child(0);
        LayoutBox r[3];
        for (int i = 1; i <= count; ++i) r[i - 1] = f.Child(i);
        f.Piece(0, head, f.X + h.lead, f.Y);
        double acc = h.bottom + gap;
        for (int i = 1; i <= count; ++i) {
            reduce();
            f.Piece(i, lines[i - 1], f.X + r[i - 1].lead, f.Y + acc + r[i - 1].over);
            restore();
            acc += r[i - 1].over + r[i - 1].bottom + gap;
        }
    }
    f.RestoreFont();
}
