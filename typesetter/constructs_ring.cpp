// Ring figures: a regular polygon as the skeleton of a chemical ring, with substituents
// at its vertices; and the open-chain atom with up to four bonds.
#include <cmath>

#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"
#include "typesetter/text_util.h"

namespace {
struct Vertex {
    double x, y;     // relative to the ring's centre
    double theta;    // clockwise from straight up
    bool hasText = false;
    int box = 0;
    char32_t bond = U'S';
    std::u32string text;
};

// Where a substituent's text stands, from the vertex P and the text's box.
void PlaceText(double px, double py, double theta, const LayoutBox& s, double H, double& x, double& y) {
    const double c = std::cos(theta), d = std::sin(theta);
    const double threshold = std::sqrt(0.501);
    if (c >= 0 && std::fabs(c) > threshold) {
        x = px - 0.3 * H + s.lead;
        y = py - 0.45 * H - s.bottom;
    } else if (c < 0 && std::fabs(c) > threshold) {
        x = px - 0.3 * H + s.lead;
        y = py + 0.5 * H + s.over;
    } else if (d >= 0) {
        x = px + 0.7 * H + s.lead;
        y = py - 0.55 * H;
    } else {
        x = px - 0.65 * H - s.width;
        y = py - 0.55 * H;
    }
}

// The bond from a vertex towards its text: radial, as long as the text's side asks.
void DrawBond(DrawingSurface& s, double px, double py, double theta, char32_t kind, double H) {
    const double c = std::cos(theta), d = std::sin(theta);
    const bool vertical = std::fabs(c) > std::sqrt(0.501);
    // Horizontal sides reach 0.6 H across; vertical ones stop short of the text above or below.
    const double length = vertical ? 0.3 * H / std::fabs(c) : 0.6 * H / std::max(std::fabs(d), 0.2);
    const double ux = d, uy = -c;
    const double ex = px + ux * length, ey = py + uy * length;
    if (kind == U'D') {
        const double ox = -uy * 0.075 * H, oy = ux * 0.075 * H;
        s.Line(px + ox, py + oy, ex + ox, ey + oy);
        s.Line(px - ox, py - oy, ex - ox, ey - oy);
    } else {
        s.Line(px, py, ex, ey);
    }
}

// "#R" i "(" text "#R" i ")" of the rest of the body, or nothing.
bool Substituent(const std::u32string& rest, int i, std::u32string& text) {
    const std::u32string digit(1, static_cast<char32_t>(U'0' + i));
    const std::u32string open = U"#R" + digit + U"(", close = U"#R" + digit + U")";
    if (rest.find(open) == std::u32string::npos) return false;
    text = InnerText(ExtractBalanced(rest, open, close), 4, 4);
    return true;
}
} // namespace

void RingHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    const double H = f.H, pi = st.PiValue;
    int n = 6;
    bool withCircle = false;
    char32_t k = U'V';
    if (piece.size() >= 5 && piece[1] == U'B') {
        withCircle = true;
        k = piece[3];
    } else if (piece.size() >= 5) {
        n = static_cast<int>(piece[2] - U'0');
        k = piece[3];
    }
    if (n < 3 || n > 9) n = 6;
    const std::u32string body = TrimBlanks(InnerText(piece, 5, 5));
    const double R = std::max(1.5 * H, 15.0), edge = std::max(0.0323 * H, 15.0), heavy = std::max(0.05 * H, 15.0);
    const double step = 2 * pi / n;
    const double theta0 = k == U'V' ? 0 : (k == U'L' || k == U'H') ? step / 2 : k == U'I' ? -pi / 2 : k == U'D' ? pi / 2 : 0;

    std::vector<Vertex> v(n);
    double reachLeft = 0, reachDown = 0;
    for (int i = 0; i < n; ++i) {
        v[i].theta = i * step + theta0;
        v[i].x = R * std::sin(v[i].theta);
        v[i].y = -R * std::cos(v[i].theta);
        reachLeft = std::max(reachLeft, -R * std::sin(v[i].theta));
        reachDown = std::max(reachDown, R * std::cos(v[i].theta));
    }
    std::u32string edges(n, U'S');
    const std::size_t ec = body.find(U"&EC=");
    if (ec != std::u32string::npos) {
        for (int i = 0; i < n && ec + 4 + i < body.size(); ++i) edges[i] = body[ec + 4 + i];
    }
    const std::u32string rest = body.size() > static_cast<std::size_t>(n) ? body.substr(n) : U"";
    for (int i = 0; i < n && i < kMaxChildren; ++i) {
        if (static_cast<std::size_t>(i) < body.size()) v[i].bond = body[i];
        v[i].hasText = Substituent(rest, i + 1, v[i].text);
    }

    const double cx = f.X + reachLeft, cy = f.Y + 0.574 * H;
    if (!st.DrawPass) {
        double left = 0, right = 0, up = 0, down = 0;
        for (int i = 0; i < n; ++i) {
            if (!v[i].hasText) continue;
            const int box = f.Piece(i + 1, v[i].text, 0, 0);
            const LayoutBox& b = st.BoxTable[box];
            double x = 0, y = 0;
            PlaceText(reachLeft + v[i].x, 0.574 * H + v[i].y, v[i].theta, b, H, x, y);
            left = std::max(left, -(x - b.lead));
            right = std::max(right, x + b.width - 2 * reachLeft);
            up = std::max(up, -(y - b.over) - (reachDown - 0.574 * H));
            down = std::max(down, y + b.bottom - (reachDown + 0.574 * H));
        }
        f.WriteBox(left, 2 * reachLeft + heavy + right, reachDown - 0.574 * H + heavy + up, 0.574 * H,
                   reachDown + 0.574 * H + heavy + down, piece);
    } else {
        std::vector<LayoutBox> boxes(n);
        for (int i = 0; i < n; ++i)
            if (v[i].hasText) boxes[i] = f.Child(i + 1);
        for (int i = 0; i < n; ++i) {
            if (!v[i].hasText) continue;
            double x = 0, y = 0;
            PlaceText(cx + v[i].x, cy + v[i].y, v[i].theta, boxes[i], H, x, y);
            f.Piece(i + 1, v[i].text, x, y);
        }
        SetStrokeWidth(st, s, edge);
        for (int i = 0; i < n; ++i) {
            const Vertex& a = v[i];
            const Vertex& b = v[(i + 1) % n];
            s.Line(cx + a.x, cy + a.y, cx + b.x, cy + b.y);
        }
        if (withCircle) {
            s.SetFillStyle(1);
            s.Circle(cx, cy, 0.62 * R);
        } else {
            const double d2 = 0.18 * H * (n == 3 ? 1.6 : n == 4 ? 1.3 : 1.0);
            for (int i = 0; i < n; ++i) {
                const int lines = edges[i] == U'D' ? 1 : edges[i] == U'T' ? 2 : 0;
                for (int j = 1; j <= lines; ++j) {
                    const double r = R - j * d2;
                    const double t1 = v[i].theta, t2 = v[(i + 1) % n].theta;
                    s.Line(cx + r * std::sin(t1), cy - r * std::cos(t1), cx + r * std::sin(t2), cy - r * std::cos(t2));
                }
            }
        }
        SetStrokeWidth(st, s, 0.8 * heavy);
        for (int i = 0; i < n; ++i)
            if (v[i].hasText) DrawBond(s, cx + v[i].x, cy + v[i].y, v[i].theta, v[i].bond, H);
    }
    s.SetDrawWidth(1);
    s.SetForeColor(0);
    f.RestoreFont();
}

void OpenChainHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    // One atom with up to four bonds: the kinds of the bonds up, right, down and left are
    // the first characters; a bond of kind "S", "D" or "T" leads to the substituent of its
    // place, "#R1(" up to "#R4(". The lone-pair piece "#LP(" stands above the atom.
    ConstructFrame f(st, s);
    const double H = f.H, R = std::max(1.5 * H, 15.0), heavy = std::max(0.05 * H, 15.0);
    const std::u32string body = TrimBlanks(InnerText(piece, 5, 5));
    const std::u32string kinds = body.substr(0, std::min<std::size_t>(3, body.size()));
    std::u32string rest = body.size() > 3 ? body.substr(3) : U"";
    const std::size_t firstTag = rest.find(U"#");
    const std::u32string atom = rest.substr(0, firstTag);
    std::u32string lonePair;
    const bool hasLonePair = rest.find(U"#LP(") != std::u32string::npos;
    if (hasLonePair) lonePair = InnerText(ExtractBalanced(rest, U"#LP(", U"#LP)"), 4, 4);
    std::u32string subs[4];
    bool has[4] = {};
    for (int i = 0; i < 4; ++i) has[i] = Substituent(rest, i + 1, subs[i]);
    const double bondLength = 0.5 * R;
    // Up, right, down, left.
    const double dirX[4] = {0, 1, 0, -1}, dirY[4] = {-1, 0, 1, 0};
    const LayoutBox atomBox = f.Child(1);
    const double ax = f.X, ay = f.Y;
    f.Piece(1, atom, ax, ay);
    const LayoutBox a = st.DrawPass ? atomBox : f.Child(1);
    const double midX = ax + a.width / 2, midY = ay + 0.574 * H;
    double left = 0, right = a.width, top = -a.over, bottom = a.bottom;
    std::vector<LayoutBox> boxes(4);
    if (st.DrawPass)
        for (int i = 0; i < 4; ++i)
            if (has[i]) boxes[i] = f.Child(i + 2);
    for (int i = 0; i < 4; ++i) {
        if (!has[i]) continue;
        const LayoutBox b = st.DrawPass ? boxes[i] : LayoutBox{};
        // Ends of the bond: from the atom's edge outwards.
        const double sx = i == 1 ? ax + a.width + 0.1 * H : i == 3 ? ax - 0.1 * H : midX;
        const double sy = i == 0 ? ay - a.over : i == 2 ? ay + a.bottom : midY;
        const double ex = sx + dirX[i] * bondLength, ey = sy + dirY[i] * bondLength;
        double tx = 0, ty = 0;
        if (st.DrawPass) {
            tx = i == 1 ? ex + 0.1 * H : i == 3 ? ex - 0.1 * H - b.width : ex - (b.lead + b.width) / 2;
            ty = i == 0 ? ey - b.bottom : i == 2 ? ey + b.over : ay;
            f.Piece(i + 2, subs[i], tx, ty);
            SetStrokeWidth(st, s, 0.8 * heavy);
            const char32_t kind = i < static_cast<int>(kinds.size()) ? kinds[i] : U'S';
            const int count = kind == U'T' ? 3 : kind == U'D' ? 2 : 1;
            for (int j = 0; j < count; ++j) {
                const double off = (j - (count - 1) / 2.0) * 0.15 * H;
                s.Line(sx + dirY[i] * off, sy + dirX[i] * off, ex + dirY[i] * off, ey + dirX[i] * off);
            }
        } else {
            const int box = f.Piece(i + 2, subs[i], 0, 0);
            const LayoutBox& m = st.BoxTable[box];
            if (i == 0) top = std::min(top, ey - ay - m.bottom - m.over);
            if (i == 2) bottom = std::max(bottom, ey - ay + m.over + m.bottom);
            if (i == 1) right = std::max(right, ex - ax + 0.1 * H + m.width);
            if (i == 3) left = std::min(left, ex - ax - 0.1 * H - m.width);
        }
    }
    if (hasLonePair) {
        // Beside the atom on the first side that has no bond: up, right, left, down.
        const LayoutBox lp = st.DrawPass ? f.Child(6) : LayoutBox{};
        int side = 0;
        while (side < 4 && has[side]) ++side;
        double x = midX - (lp.lead + lp.width) / 2, y = ay - a.over - lp.bottom;
        if (side == 1) { x = ax + a.width + 0.05 * H; y = ay; }
        else if (side == 2) { x = midX - (lp.lead + lp.width) / 2; y = ay + a.bottom + lp.over; }
        else if (side == 3 || side == 4) { x = ax - 0.05 * H - lp.width; y = ay; }
        const int box = f.Piece(6, lonePair, x, y);
        if (!st.DrawPass) {
            const LayoutBox& b = st.BoxTable[box];
            if (side == 0) top = std::min(top, -a.over - b.bottom - b.over);
            else if (side == 1) right = std::max(right, a.width + 0.05 * H + b.width);
            else if (side == 2) bottom = std::max(bottom, a.bottom + b.over + b.bottom);
            else left = std::min(left, -0.05 * H - b.width);
        }
    }
    if (!st.DrawPass) f.WriteBox(-left, right + heavy, -top + heavy, 0.574 * H, bottom + heavy, piece);
    s.SetDrawWidth(1);
    s.SetForeColor(0);
    f.RestoreFont();
}
