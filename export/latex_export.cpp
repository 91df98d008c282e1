#include "export/latex_export.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>

#include "core/collection.h"
#include "core/composition.h"
#include "typesetter/markup.h"
#include "typesetter/text_util.h"

namespace {
using u32 = std::u32string;

bool At(const u32& text, std::size_t p, const u32& what) { return text.compare(p, what.size(), what) == 0; }

// The font state that the markup's codes switch, as far as LaTeX keeps it.
struct Style {
    bool italic = false, bold = false, underline = false, strike = false;
    double size = 0; // points; 0 is the text size
    int family = 0;  // 0 serif, 1 sans, 2 typewriter
    bool coloured = false;
    std::uint32_t colour = 0;
};

// Every construct of the markup: opening tag, closer.
struct Tag {
    u32 open, close;
};
const std::vector<Tag>& Tags() {
    static const std::vector<Tag> tags = [] {
        std::vector<Tag> t;
        for (const char32_t* n : {U"COC", U"ATX", U"SPB", U"SQR", U"CUR", U"RAD", U"POT", U"EXP", U"NES", U"RWS",
                                  U"CEQ", U"INT", U"UDB", U"IMG", U"TST", U"VEC", U"VED", U"SEG", U"UDL", U"SED",
                                  U"AND", U"ARC", U"TDX", U"TDU", U"TDD", U"REC", U"BCV", U"BCH"})
            t.push_back({U"#" + u32(n) + U"(", U"#" + u32(n) + U")"});
        for (char32_t k : {U'V', U'L', U'I', U'D'})
            for (char32_t n = U'3'; n <= U'9'; ++n) {
                const u32 name = u32(U"#A") + n + k;
                t.push_back({name + U"(", name + U")"});
            }
        return t;
    }();
    return tags;
}

const Tag* TagAt(const u32& text, std::size_t p) {
    for (const Tag& t : Tags())
        if (At(text, p, t.open)) return &t;
    return nullptr;
}

// The whole construct from p, or "" when its closer is missing.
u32 ConstructAt(const u32& text, std::size_t p, const Tag& tag) {
    const u32 piece = ExtractBalancedAt(text, p, tag.open, tag.close);
    if (IsBalanceError(piece)) return u32();
    return piece;
}

// Parts text at sep where it stands outside every construct.
std::vector<u32> SplitOutside(const u32& text, const u32& sep) {
    std::vector<u32> parts(1);
    std::size_t p = 0;
    while (p < text.size()) {
        if (text[p] == U'#') {
            if (const Tag* tag = TagAt(text, p)) {
                const u32 piece = ConstructAt(text, p, *tag);
                if (!piece.empty()) {
                    parts.back() += piece;
                    p += piece.size();
                    continue;
                }
            }
        }
        if (At(text, p, U"&&") || At(text, p, U"##")) {
            parts.back() += text.substr(p, 2);
            p += 2;
            continue;
        }
        if (At(text, p, sep)) {
            parts.emplace_back();
            p += sep.size();
            continue;
        }
        parts.back() += text[p];
        ++p;
    }
    return parts;
}

// A glyph as a math-mode command; "" when there is none.
std::string MathGlyph(char32_t c) {
    static const std::map<char32_t, std::string> table = {
        {U'\u03B1', "\\alpha"},   {U'\u03B2', "\\beta"},    {U'\u03B3', "\\gamma"},   {U'\u0393', "\\Gamma"},
        {U'\u03B4', "\\delta"},   {U'\u0394', "\\Delta"},   {U'\u03B5', "\\varepsilon"}, {U'\u03B6', "\\zeta"},
        {U'\u03B7', "\\eta"},     {U'\u03B8', "\\theta"},   {U'\u0398', "\\Theta"},   {U'\u03B9', "\\iota"},
        {U'\u03BA', "\\kappa"},   {U'\u03BB', "\\lambda"},  {U'\u039B', "\\Lambda"},  {U'\u03BC', "\\mu"},
        {U'\u00B5', "\\mu"},      {U'\u03BD', "\\nu"},      {U'\u03BE', "\\xi"},      {U'\u039E', "\\Xi"},
        {U'\u03C0', "\\pi"},      {U'\u03A0', "\\Pi"},      {U'\u03C1', "\\rho"},     {U'\u03C3', "\\sigma"},
        {U'\u03A3', "\\Sigma"},   {U'\u03C4', "\\tau"},     {U'\u03C5', "\\upsilon"}, {U'\u03D2', "\\Upsilon"},
        {U'\u03D5', "\\phi"},     {U'\u03C6', "\\varphi"},  {U'\u03A6', "\\Phi"},     {U'\u03C7', "\\chi"},
        {U'\u03C8', "\\psi"},     {U'\u03A8', "\\Psi"},     {U'\u03C9', "\\omega"},   {U'\u03A9', "\\Omega"},
        {U'\u21D0', "\\Leftarrow"}, {U'\u21D1', "\\Uparrow"}, {U'\u21D2', "\\Rightarrow"}, {U'\u21D3', "\\Downarrow"},
        {U'\u21D4', "\\Leftrightarrow"}, {U'\u2190', "\\leftarrow"}, {U'\u2191', "\\uparrow"},
        {U'\u2192', "\\rightarrow"}, {U'\u2193', "\\downarrow"}, {U'\u2194', "\\leftrightarrow"},
        {U'\u21CC', "\\rightleftharpoons"}, {U'\u00F7', "\\div"}, {U'\u2260', "\\neq"},
        {U'\u2205', "\\emptyset"}, {U'\u2248', "\\approx"}, {U'\u2245', "\\cong"}, {U'\u211D', "\\mathbb{R}"},
        {U'\u2115', "\\mathbb{N}"}, {U'\u2124', "\\mathbb{Z}"}, {U'\u211A', "\\mathbb{Q}"}, {U'\u2102', "\\mathbb{C}"},
        {U'\u211C', "\\Re"},      {U'\u2264', "\\leq"},     {U'\u2265', "\\geq"},     {U'\u221E', "\\infty"},
        {U'\u2208', "\\in"},      {U'\u2209', "\\notin"},   {U'\u2207', "\\nabla"},   {U'\u22A5', "\\perp"},
        {U'\u2225', "\\parallel"}, {U'\u2200', "\\forall"}, {U'\u2203', "\\exists"},  {U'\u2202', "\\partial"},
        {U'\u222B', "\\int"},     {U'\u00B1', "\\pm"},      {U'\u2213', "\\mp"},      {U'\u00D7', "\\times"},
        {U'\u2663', "\\clubsuit"}, {U'\u2666', "\\diamondsuit"}, {U'\u2665', "\\heartsuit"}, {U'\u2660', "\\spadesuit"},
        {U'\u2227', "\\wedge"},   {U'\u2228', "\\vee"},     {U'\u222A', "\\cup"},     {U'\u2229', "\\cap"},
        {U'\u2282', "\\subset"},  {U'\u2283', "\\supset"},  {U'\u2286', "\\subseteq"}, {U'\u2287', "\\supseteq"},
        {U'\u210F', "\\hbar"},    {U'\u2212', "-"},         {U'\u00B7', "\\cdot"},    {U'\u22C5', "\\cdot"},
        {U'\u00B0', "^{\\circ}"}, {U'\u2032', "'"},         {U'\u2033', "''"},        {U'\u221A', "\\surd"},
        {U'\u2220', "\\angle"},   {U'\u25B3', "\\triangle"}, {U'\u2261', "\\equiv"},  {U'\u223C', "\\sim"},
        {U'\u2218', "\\circ"},    {U'\u2026', "\\ldots"},   {U'\u00B2', "^{2}"},      {U'\u00B3', "^{3}"},
        {U'\u00B9', "^{1}"},      {U'\u00BD', "\\tfrac{1}{2}"}, {U'\u00BC', "\\tfrac{1}{4}"}, {U'\u00BE', "\\tfrac{3}{4}"},
        {U'\u00AC', "\\neg"},     {U'\u00AB', "\\ll"},      {U'\u00BB', "\\gg"},      {U'\u2016', "\\|"},
        {U'\u2225', "\\parallel"}, {U'\u2245', "\\cong"},   {U'\u2262', "\\not\\equiv"}, {U'\u2243', "\\simeq"},
        {U'\u221D', "\\propto"},  {U'\u2234', "\\therefore"}, {U'\u2213', "\\mp"},    {U'\u22C2', "\\bigcap"},
        {U'\u22C3', "\\bigcup"},  {U'\u2211', "\\sum"},     {U'\u220F', "\\prod"},    {U'\u2206', "\\Delta"},
    };
    const auto found = table.find(c);
    return found == table.end() ? std::string() : found->second;
}

// One character in text mode; known says whether LaTeX has it.
std::string TextChar(char32_t c, bool& known) {
    known = true;
    switch (c) {
    case U'#': return "\\#";
    case U'$': return "\\$";
    case U'%': return "\\%";
    case U'&': return "\\&";
    case U'~': return "\\textasciitilde{}";
    case U'_': return "\\_";
    case U'^': return "\\textasciicircum{}";
    case U'\\': return "\\textbackslash{}";
    case U'{': return "\\{";
    case U'}': return "\\}";
    case U'<': return "\\textless{}";
    case U'>': return "\\textgreater{}";
    case U'|': return "\\textbar{}";
    case U'\t': return " ";
    case U'\u00A0': return "~";
    case U'\u2010': return "-";
    case U'\u2011': return "-";
    case U'\u2013': return "--";
    case U'\u2014': return "---";
    case U'\u2018': return "`";
    case U'\u2019': return "'";
    case U'\u201C': return "``";
    case U'\u201D': return "''";
    case U'\u00BF': return "?`";
    case U'\u00A1': return "!`";
    case U'\u00BA': return "\\textsuperscript{o}";
    case U'\u00AA': return "\\textsuperscript{a}";
    case U'\u20AC': return "EUR";
    default: break;
    }
    if (c >= 0x20 && c < 0x7F) return std::string(1, static_cast<char>(c));
    // Latin letters with accents that LaTeX's own text fonts compose.
    static const u32 latin = U"\u00C0\u00C1\u00C2\u00C3\u00C4\u00C5\u00C7\u00C8\u00C9\u00CA\u00CB\u00CC\u00CD\u00CE"
                             U"\u00CF\u00D1\u00D2\u00D3\u00D4\u00D5\u00D6\u00D9\u00DA\u00DB\u00DC\u00DD\u00E0\u00E1"
                             U"\u00E2\u00E3\u00E4\u00E5\u00E7\u00E8\u00E9\u00EA\u00EB\u00EC\u00ED\u00EE\u00EF\u00F1"
                             U"\u00F2\u00F3\u00F4\u00F5\u00F6\u00F9\u00FA\u00FB\u00FC\u00FD\u00FF\u00DF\u00E6\u00C6"
                             U"\u00F8\u00D8\u0153\u0152";
    if (latin.find(c) != u32::npos) return ToUtf8(c);
    const std::string math = MathGlyph(c);
    if (!math.empty()) return "\\ensuremath{" + math + "}";
    known = false;
    return "?";
}

std::string Number(double v) {
    if (!std::isfinite(v)) v = 0;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.3f", v);
    std::string s = buffer;
    while (!s.empty() && s.back() == '0') s.pop_back();
    if (!s.empty() && s.back() == '.') s.pop_back();
    if (s == "-0" || s.empty()) s = "0";
    return s;
}

std::string RgbText(std::uint32_t c) {
    return std::to_string(c & 0xFF) + "," + std::to_string((c >> 8) & 0xFF) + "," + std::to_string((c >> 16) & 0xFF);
}

// A comment on its own line: TeX drops it, the reader of the .tex sees it.
std::string Comment(const std::string& what) {
    std::string clean;
    for (char c : what) clean += (c == '\n' || c == '\r') ? ' ' : c;
    return "%\n% " + clean + "\n";
}

// Plain text of a markup piece for a comment: tags and codes as they stand.
std::string CommentText(const u32& text) {
    std::string s = ToUtf8(text);
    if (s.size() > 120) s = s.substr(0, 117) + "...";
    return s;
}

std::string TrimCopy(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

// A tab stop of the line: where it stands (share of the text width) and what follows it.
struct Segment {
    double at = 0;
    std::string latex;
};

// Reads one string of markup and writes LaTeX, in text mode or (inside constructs) in math
// mode. Text is gathered in runs of one style; constructs become math.
class Walker {
public:
    Walker(LatexContext& context, bool math, Style style, int scriptDepth, int depth)
        : ctx_(context), math_(math), style_(style), scriptDepth_(scriptDepth), depth_(depth) {
        segments_.push_back({});
    }

    // The LaTeX of text; the tab stops met at the outer level are in Segments().
    std::string Convert(const u32& text);
    const std::vector<Segment>& Segments() const { return segments_; }
    const Style& FinalStyle() const { return style_; }

private:
    void Flush();
    void Emit(const std::string& latex) { segments_.back().latex += latex; }
    // A piece of math in the current style.
    void EmitMath(const std::string& math);
    // The LaTeX (math mode) of a piece of a construct.
    std::string Piece(const u32& text, bool script);
    std::string ConstructMath(const Tag& tag, const u32& piece);
    std::string Error(const u32& open);
    std::string TwoPart(const u32& piece, const u32& open, const u32& mid, const u32& midOpen, const u32& close,
                        u32& upper, u32& lower);
    std::string Fraction(const u32& piece);
    std::string Root(const Tag& tag, const u32& piece);
    std::string Power(const Tag& tag, const u32& piece);
    std::string Delimiters(const u32& piece);
    std::string Rows(const u32& piece, const std::string& open, const std::string& close);
    std::string Marks(const Tag& tag, const u32& piece);
    std::string Integral(const u32& piece);
    std::string Picture(const u32& piece);
    std::string Heading(const u32& piece);
    std::string Equation(const u32& piece);
    void Script(char32_t c, bool sub);
    void PowerOfTen(const u32& text, std::size_t& p);
    void Character(const u32& text, std::size_t p);
    std::string FilledRectangle(const u32& value);

    LatexContext& ctx_;
    bool math_;
    Style style_;
    int scriptDepth_;
    int depth_;
    std::string run_;
    std::vector<Segment> segments_;
    int spaces_ = 0; // spaces in a row just written
    // Scripts set on the last thing written: a second of a kind needs a base of its own.
    bool subSet_ = false, supSet_ = false;
    std::uint32_t fill_ = 0; // the colour of filled rectangles
};

bool UprightInItalic(char32_t c) {
    return (c >= U'0' && c <= U'9') || c == U'.' || c == U',' || c == U':' || c == U';' || c == U'(' || c == U')' ||
           c == U'[' || c == U']' || c == U'|' || c == U'{' || c == U'}' || c == U'+' || c == U'=';
}

std::string StylePrefix(const Style& s, bool inMath) {
    std::string p;
    if (s.coloured) p += "\\color[RGB]{" + RgbText(s.colour) + "}";
    if (s.size > 0 && !inMath) p += "\\fontsize{" + Number(s.size) + "}{" + Number(s.size * 1.2) + "}\\selectfont";
    if (s.family == 1) p += "\\sffamily";
    if (s.family == 2) p += "\\ttfamily";
    if (s.italic) p += "\\itshape";
    if (s.bold) p += "\\bfseries";
    if (!p.empty()) p += " ";
    return p;
}

void Walker::Flush() {
    if (run_.empty()) return;
    subSet_ = supSet_ = false;
    std::string content = run_;
    run_.clear();
    if (style_.underline) content = "\\underline{" + content + "}";
    if (style_.strike) content = "\\sfstrike{" + content + "}";
    const std::string prefix = StylePrefix(style_, false);
    if (math_) Emit("\\text{" + prefix + content + "}");
    else if (prefix.empty()) Emit(content);
    else Emit("{" + prefix + content + "}");
}

void Walker::EmitMath(const std::string& math) {
    Flush();
    spaces_ = 0;
    if (math.empty()) return;
    subSet_ = supSet_ = false;
    std::string m = math;
    if (style_.bold) m = "\\boldsymbol{" + m + "}";
    if (math_) {
        if (style_.coloured) Emit("{\\color[RGB]{" + RgbText(style_.colour) + "}" + m + "}");
        else Emit("{" + m + "}");
        return;
    }
    std::string prefix;
    if (style_.coloured) prefix += "\\color[RGB]{" + RgbText(style_.colour) + "}";
    if (style_.size > 0) prefix += "\\fontsize{" + Number(style_.size) + "}{" + Number(style_.size * 1.2) + "}\\selectfont";
    if (prefix.empty()) Emit("$" + m + "$");
    else Emit("{" + prefix + "$" + m + "$}");
}

std::string Walker::Piece(const u32& text, bool script) {
    if (depth_ >= kMaxConstructDepth) return "\\text{\\color{red}*ERROR*}";
    Walker inner(ctx_, true, style_, scriptDepth_ + (script ? 1 : 0), depth_ + 1);
    std::string latex = inner.Convert(text);
    return latex.empty() ? "{}" : latex;
}

std::string Walker::Error(const u32& open) {
    ctx_.leftOut.push_back(ToUtf8(open));
    return Comment("a damaged construct " + ToUtf8(open) + " is left out") + "\\text{\\color{red}*ERROR*}";
}

std::string Walker::TwoPart(const u32& piece, const u32& open, const u32& mid, const u32& midOpen, const u32& close,
                            u32& upper, u32& lower) {
    const u32 first = ExtractBalanced(piece, open, mid);
    if (IsBalanceError(first) || first.size() < open.size() + mid.size()) return Error(open);
    upper = first.substr(open.size(), first.size() - open.size() - mid.size());
    const u32 rest = piece.substr(first.size() - mid.size());
    const u32 second = ExtractBalanced(rest, midOpen, close);
    if (IsBalanceError(second) || second.size() < midOpen.size() + close.size()) return Error(open);
    lower = second.substr(midOpen.size(), second.size() - midOpen.size() - close.size());
    return "";
}

std::string Walker::Fraction(const u32& piece) {
    u32 upper, lower;
    if (const std::string e = TwoPart(piece, U"#COC(", U"#N)", U"#N)(", U"#COC)", upper, lower); !e.empty()) return e;
    // The markup's fractions keep the size of their text; in a script they are small.
    return std::string(scriptDepth_ == 0 ? "\\dfrac{" : "\\frac{") + Piece(upper, false) + "}{" + Piece(lower, false) +
           "}";
}

std::string Walker::Root(const Tag& tag, const u32& piece) {
    u32 inner = piece.substr(5, piece.size() - 10);
    std::string index;
    if (tag.open == U"#CUR(") index = "3";
    if (tag.open == U"#RAD(" && inner.find(U"#RI(") != u32::npos) {
        const u32 idx = ExtractBalanced(inner, U"#RI(", U"#RI)");
        if (IsBalanceError(idx) || idx.size() < 8) return Error(U"#RAD(");
        const std::size_t at = inner.find(U"#RI(");
        index = Piece(idx.substr(4, idx.size() - 8), true);
        inner = inner.substr(std::min(inner.size(), at + idx.size()));
    }
    return "\\sqrt" + (index.empty() ? std::string() : "[" + index + "]") + "{" + Piece(inner, false) + "}";
}

std::string Walker::Power(const Tag& tag, const u32& piece) {
    if (tag.open == U"#EXP(") return "e^{" + Piece(piece.substr(5, piece.size() - 10), true) + "}";
    u32 base, exponent;
    if (const std::string e = TwoPart(piece, U"#POT(", U"#PB)", U"#PB)(", U"#POT)", base, exponent); !e.empty()) return e;
    return "{" + Piece(base, false) + "}^{" + Piece(exponent, true) + "}";
}

// Rows of a "#RWS(" as an array (or the environment named by open, with its closer).
std::string Walker::Rows(const u32& piece, const std::string& open, const std::string& close) {
    if (piece.size() < 11) return Error(U"#RWS(");
    const char32_t a = piece[5];
    const char align = (a == U'L' || a == U'l') ? 'l' : (a == U'R' || a == U'r') ? 'r' : 'c';
    u32 rest = piece.substr(6, piece.size() - 6);
    std::vector<std::vector<std::string>> rows;
    std::size_t columns = 1;
    for (int i = 1; i <= 9 && !At(rest, 0, U"#RWS)"); ++i) {
        const u32 o = U"#RW" + u32(1, static_cast<char32_t>(U'0' + i)) + U"(";
        const u32 c = U"#RW" + u32(1, static_cast<char32_t>(U'0' + i)) + U")";
        const u32 row = ExtractBalanced(rest, o, c);
        if (IsBalanceError(row) || row.size() < 10) break;
        const std::size_t at = rest.find(o);
        std::vector<std::string> cells;
        for (const u32& cell : SplitOutside(row.substr(5, row.size() - 10), U"&|")) cells.push_back(Piece(cell, false));
        columns = std::max(columns, cells.size());
        rows.push_back(std::move(cells));
        rest = rest.substr(std::min(rest.size(), at + row.size()));
    }
    if (rows.empty()) return "{}";
    std::string body;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        if (r > 0) body += " \\\\ ";
        for (std::size_t k = 0; k < rows[r].size(); ++k) body += (k > 0 ? " & " : "") + rows[r][k];
    }
    // A system takes two columns at most, a matrix ten: wider ones are arrays in delimiters.
    if (open == "cases" && columns > 2)
        return "\\left\\{\\begin{array}{" + std::string(columns, align) + "}" + body + "\\end{array}\\right.";
    if (!open.empty() && columns > 10)
        return "\\left" + std::string(open == "bmatrix" ? "[" : open == "vmatrix" ? "|" : "(") + "\\begin{array}{" +
               std::string(columns, align) + "}" + body + "\\end{array}\\right" +
               std::string(open == "bmatrix" ? "]" : open == "vmatrix" ? "|" : ")");
    if (!open.empty()) return "\\begin{" + open + "}" + body + "\\end{" + close + "}";
    return "\\begin{array}{" + std::string(columns, align) + "}" + body + "\\end{array}";
}

std::string Walker::Delimiters(const u32& piece) {
    if (piece.size() < 12) return Error(U"#NES(");
    const u32 inner = piece.substr(5, piece.size() - 10);
    const char32_t l = inner[0], r = inner[1];
    const u32 body = inner.substr(2);
    // A matrix or a system: delimiters around nothing but rows.
    if (At(body, 0, U"#RWS(")) {
        const u32 rows = ConstructAt(body, 0, Tag{U"#RWS(", U"#RWS)"});
        if (!rows.empty() && rows.size() == body.size() && rows.size() > 6) {
            const char32_t a = rows[5];
            const bool centred = a == U'C' || a == U'c';
            const bool left = a == U'L' || a == U'l';
            if (centred && l == U'(' && r == U')') return Rows(rows, "pmatrix", "pmatrix");
            if (centred && l == U'[' && r == U']') return Rows(rows, "bmatrix", "bmatrix");
            if (centred && l == U'|' && r == U'|') return Rows(rows, "vmatrix", "vmatrix");
            if (left && l == U'{' && (r == U' ' || r == U'{')) return Rows(rows, "cases", "cases");
        }
    }
    auto side = [](char32_t c, bool isLeft) -> std::string {
        switch (c) {
        case U'(': return isLeft ? "(" : ".";
        case U')': return isLeft ? "." : ")";
        case U'[': return isLeft ? "[" : ".";
        case U']': return isLeft ? "." : "]";
        case U'{': return isLeft ? "\\{" : ".";
        case U'}': return isLeft ? "." : "\\}";
        case U'|': return "|";
        default: return ".";
        }
    };
    return "\\left" + side(l, true) + " " + Piece(body, false) + " \\right" + side(r, false);
}

std::string Walker::Marks(const Tag& tag, const u32& piece) {
    const std::string body = Piece(piece.substr(5, piece.size() - 10), false);
    const u32 name = tag.open.substr(0, 4);
    if (name == U"#VEC" || name == U"#VED") return "\\overrightarrow{" + body + "}";
    if (name == U"#SED" || name == U"#SEG") return "\\overline{" + body + "}";
    if (name == U"#UDL") return "\\underline{" + body + "}";
    if (name == U"#AND") return "\\widehat{" + body + "}";
    if (name == U"#ARC") return "\\overset{\\frown}{" + body + "}";
    if (name == U"#REC") return "\\boxed{" + body + "}";
    if (name == U"#TDD" || name == U"#TDU" || name == U"#TDX") return "\\sfcancel{" + body + "}";
    return body;
}

std::string Walker::Integral(const u32& piece) {
    u32 body = piece.substr(5, piece.size() - 10);
    // Limits written as scripts at the head of the body belong to the sign.
    std::string limits;
    while (body.size() >= 2 && (body[0] == U'_' || body[0] == U'^') && body[1] != body[0] && body[1] != U' ') {
        limits += std::string(body[0] == U'_' ? "_{" : "^{") + Piece(body.substr(1, 1), true) + "}";
        body = body.substr(2);
    }
    return "\\displaystyle\\int" + limits + " " + Piece(body, false);
}

std::string Walker::Heading(const u32& piece) {
    const u32 head = ExtractBalanced(piece, U"#TST(", U"#TS)(");
    if (IsBalanceError(head) || head.size() < 10) return Error(U"#TST(");
    u32 rest = piece.substr(head.size());
    std::vector<std::string> lines;
    for (int i = 1; i <= 3 && !rest.empty() && !At(rest, 0, U"#TST)"); ++i) {
        const u32 o = U"#ST" + u32(1, static_cast<char32_t>(U'0' + i)) + U"(";
        const u32 c = U"#ST" + u32(1, static_cast<char32_t>(U'0' + i)) + U")";
        const u32 line = ExtractBalanced(rest, o, c);
        if (IsBalanceError(line) || line.size() < 10) break;
        lines.push_back(Piece(line.substr(5, line.size() - 10), true));
        rest = rest.substr(std::min(rest.size(), rest.find(o) + line.size()));
    }
    const u32 headText = head.substr(5, head.size() - 10);
    if (TrimBlanks(headText) == U"lim" && lines.size() == 1) return "\\lim\\limits_{" + lines[0] + "}";
    std::string out = "\\begin{array}[t]{@{}l@{}}" + Piece(headText, false);
    for (const std::string& l : lines) out += " \\\\ \\scriptstyle " + l;
    return out + "\\end{array}";
}

std::string Walker::Equation(const u32& piece) {
    ctx_.leftOut.push_back("#CEQ(");
    const std::size_t q1 = piece.find(U'\'');
    const std::size_t q2 = q1 == u32::npos ? q1 : piece.find(U'\'', q1 + 1);
    const u32 equation = q2 == u32::npos ? u32() : piece.substr(q1 + 1, q2 - q1 - 1);
    return Comment("the notes under a chemical equation are left out") + Piece(equation, false);
}

std::string Walker::Picture(const u32& piece) {
    const u32 inner = TrimBlanks(UpperAscii(piece.substr(5, piece.size() - 10)));
    u32 name, options = inner;
    const std::size_t q1 = inner.find(U'\'');
    const std::size_t q2 = q1 == u32::npos ? q1 : inner.find(U'\'', q1 + 1);
    if (q2 != u32::npos) {
        name = inner.substr(q1 + 1, q2 - q1 - 1);
        options = inner.substr(0, q1) + inner.substr(q2 + 1);
    }
    auto option = [&](const u32& key) {
        const std::size_t at = options.find(key + U"=");
        if (at == u32::npos) return 0.0;
        const std::size_t start = at + key.size() + 1;
        const std::size_t colon = options.find(U':', start);
        return LeadingNumber(options.substr(start, colon == u32::npos ? u32::npos : colon - start));
    };
    double dx = option(U"DXMM"), dy = option(U"DYMM");
    if (dx == 0 || dy == 0) {
        dx = 25.4;
        dy = 19.05;
    }
    const std::string fileName = ToUtf8(name);
    double w = 0, h = 0;
    const bool found = !fileName.empty() && ctx_.pictureSize && ctx_.pictureSize(fileName, w, h) && w > 0 && h > 0;
    if (found && options.find(U"DIST") == u32::npos) {
        // The picture keeps its proportions and grows until it covers the size asked for.
        if (std::fabs(dy) >= std::fabs(dx) * h / w) dx = std::copysign(std::fabs(dy) * w / h, dx);
        else dy = std::copysign(std::fabs(dx) * h / w, dy);
    }
    const std::string size = "width=" + Number(std::fabs(dx)) + "mm,height=" + Number(std::fabs(dy)) + "mm";
    if (!found) {
        return Comment("picture " + fileName + " not found") + "\\text{\\fbox{\\parbox[b][" + Number(std::fabs(dy)) +
               "mm][c]{" + Number(std::fabs(dx)) + "mm}{\\centering\\color{red}" + EscapeLatexText(fileName) + "}}}";
    }
    const bool mirrored = dy < 0;
    std::string base;
    for (char c : fileName) base += (std::isalnum(static_cast<unsigned char>(c)) ? static_cast<char>(std::tolower(c)) : '-');
    const std::string file = "fig-" + base + (mirrored ? "-m" : "") + ".png";
    const bool known = std::any_of(ctx_.pictures.begin(), ctx_.pictures.end(),
                                   [&](const LatexPicture& p) { return p.file == file; });
    if (!known) ctx_.pictures.push_back({fileName, file, mirrored});
    const std::string frame = options.find(U"MARCO") != u32::npos ? "\\fbox" : "";
    // A picture hung from the line above stands beside its text on the page; here it
    // hangs from the line it is in, its top at the top of the text.
    const std::string graphic = frame + "{\\includegraphics[" + size + "]{" + file + "}}";
    return mirrored ? "\\text{\\raisebox{\\dimexpr\\ht\\strutbox-\\height\\relax}{" + graphic + "}}"
                    : "\\text{" + graphic + "}";
}

std::string Walker::ConstructMath(const Tag& tag, const u32& piece) {
    const u32& o = tag.open;
    if (o == U"#COC(") return Fraction(piece);
    if (o == U"#ATX(") {
        u32 upper, lower;
        if (const std::string e = TwoPart(piece, U"#ATX(", U"#T)", U"#T)(", U"#ATX)", upper, lower); !e.empty()) return e;
        return "\\xrightarrow[" + Piece(lower, true) + "]{" + Piece(upper, true) + "}";
    }
    if (o == U"#SPB(") {
        u32 upper, lower;
        if (const std::string e = TwoPart(piece, U"#SPB(", U"#T)", U"#T)(", U"#SPB)", upper, lower); !e.empty()) return e;
        char align = 'l';
        if (!upper.empty()) {
            const char32_t a = upper[0];
            align = (a == U'R' || a == U'r') ? 'r' : (a == U'C' || a == U'c') ? 'c' : 'l';
            upper = upper.substr(1);
        }
        return "\\begin{subarray}{" + std::string(1, align) + "}" + Piece(upper, true) + " \\\\ " + Piece(lower, true) +
               "\\end{subarray}";
    }
    if (o == U"#SQR(" || o == U"#CUR(" || o == U"#RAD(") return Root(tag, piece);
    if (o == U"#POT(" || o == U"#EXP(") return Power(tag, piece);
    if (o == U"#NES(") return Delimiters(piece);
    if (o == U"#RWS(") return Rows(piece, "", "");
    if (o == U"#CEQ(") return Equation(piece);
    if (o == U"#INT(") return Integral(piece);
    if (o == U"#IMG(") return Picture(piece);
    if (o == U"#TST(") return Heading(piece);
    const bool ring = o.size() > 2 && o[1] == U'A' && o[2] >= U'3' && o[2] <= U'9';
    if (o == U"#UDB(" || ring || o == U"#BCV(" || o == U"#BCH(") {
        ctx_.leftOut.push_back(ToUtf8(o));
        return Comment("a ring or chain figure has no LaTeX form here: " + CommentText(piece)) +
               "\\text{[" + EscapeLatexText(ToUtf8(o.substr(1, 3))) + "]}";
    }
    return Marks(tag, piece);
}

void Walker::Script(char32_t c, bool sub) {
    Style s = style_;
    if (c >= U'0' && c <= U'9') s.italic = false;
    bool known = true;
    std::string ch = TextChar(c, known);
    if (ch == " ") ch = "\\ ";
    const std::string prefix = StylePrefix(s, true);
    Flush();
    spaces_ = 0;
    if (math_) {
        const std::string& out = segments_.back().latex;
        const bool base = out.empty() || (sub ? subSet_ : supSet_);
        Emit(std::string(base ? "{}" : "") + (sub ? "_{" : "^{") + "\\text{" + prefix + ch + "}}");
        if (base) subSet_ = supSet_ = false;
        (sub ? subSet_ : supSet_) = true;
    } else {
        Emit(std::string(sub ? "\\textsubscript{" : "\\textsuperscript{") + (prefix.empty() ? ch : "{" + prefix + ch + "}") +
             "}");
    }
}

// "REC,w,h": a box of w by h millimetres in the fill colour from the pen (the top of the
// line), down for a positive h and left for a negative w; it takes no room in the line.
std::string Walker::FilledRectangle(const u32& value) {
    u32 kind;
    double w = 0, h = 0;
    ParseFillList(value, kind, w, h);
    if (kind != U"REC") return "";
    if (w == 0 || h == 0 || !std::isfinite(w) || !std::isfinite(h) || std::fabs(w) > 400 || std::fabs(h) > 400)
        return Comment("a coloured band across the page (" + ToUtf8(value) + ") is left out");
    const std::string raise = h > 0 ? "\\dimexpr\\ht\\strutbox-" + Number(h) + "mm\\relax" : "\\ht\\strutbox";
    std::string box = "\\makebox[0pt][l]{\\color[RGB]{" + RgbText(fill_) + "}";
    if (w < 0) box += "\\hspace*{-" + Number(-w) + "mm}";
    box += "\\rule[" + raise + "]{" + Number(std::fabs(w)) + "mm}{" + Number(std::fabs(h)) + "mm}}";
    // Smashed, so that a tall bar of a chart rises over the lines above it and does not push
    // its own line down.
    box = "\\smash{" + box + "}";
    return math_ ? "\\text{" + box + "}" : box;
}

void Walker::PowerOfTen(const u32& text, std::size_t& p) {
    std::size_t q = p + 2;
    u32 digits;
    if (q < text.size() && (text[q] == U'+' || text[q] == U'-')) digits += text[q++];
    while (q < text.size() && text[q] >= U'0' && text[q] <= U'9') digits += text[q++];
    p = q;
    std::string exponent;
    for (char32_t d : digits) {
        if (d == U'-') exponent += "-";
        else if (d != U'+') exponent += static_cast<char>(d);
    }
    EmitMath("\\cdot 10^{" + exponent + "}");
}

void Walker::Character(const u32& text, std::size_t p) {
    const char32_t c = text[p];
    if (c == U' ') {
        // Spaces in a row are kept, as the page keeps them.
        run_ += spaces_ == 0 ? " " : "\\ ";
        ++spaces_;
        return;
    }
    spaces_ = 0;
    if (c == U'-') {
        auto letter = [&](std::size_t i) {
            const char32_t x = i < text.size() ? text[i] : U' ';
            return (x >= U'a' && x <= U'z') || (x >= U'A' && x <= U'Z');
        };
        const bool hyphen = p >= 2 && !style_.italic && letter(p - 1) && letter(p - 2) && letter(p + 1) && letter(p + 2);
        run_ += hyphen ? "-" : "\\ensuremath{-}";
        return;
    }
    bool known = true;
    const std::string latex = TextChar(c, known);
    // Digits, signs and delimiters stand upright in italic text, as the page prints them.
    run_ += style_.italic && UprightInItalic(c) ? "{\\upshape " + latex + "}" : latex;
    if (!known) {
        Flush();
        Emit(Comment("no LaTeX form for the character U+" + [&] {
            char b[16];
            std::snprintf(b, sizeof b, "%04X", static_cast<unsigned>(c));
            return std::string(b);
        }()));
    }
}

std::string Walker::Convert(const u32& text) {
    const std::size_t len = text.size();
    std::size_t p = 0;
    while (p < len) {
        const char32_t c = text[p];
        if (c == U'#') {
            if (At(text, p, U"#MARK")) {
                p += 9;
                while (p < len && text[p] >= U'0' && text[p] <= U'9') ++p;
            } else if (At(text, p, U"##")) {
                run_ += "\\#";
                spaces_ = 0;
                p += 2;
            } else if (const Tag* tag = TagAt(text, p)) {
                const u32 piece = ConstructAt(text, p, *tag);
                if (piece.empty()) {
                    EmitMath("");
                    Emit(math_ ? Error(tag->open) : "\\ensuremath{" + Error(tag->open) + "}");
                    p += tag->open.size();
                } else {
                    const Style kept = style_;
                    EmitMath(ConstructMath(*tag, piece));
                    style_ = kept;
                    p += piece.size();
                }
            } else {
                p += 1; // an unknown tag loses its "#" only
            }
            continue;
        }
        if (c == U'&') {
            auto valueCode = [&](u32& value) {
                const std::size_t start = p + 4;
                const std::size_t colon = start <= len ? text.find(U':', start) : u32::npos;
                if (colon == u32::npos) return false;
                value = text.substr(start, colon - start);
                p = colon + 1;
                return true;
            };
            u32 value;
            auto styleChange = [&](auto change) {
                Flush();
                change();
            };
            if (At(text, p, U"&+I") || At(text, p, U"&-I")) {
                const bool on = text[p + 1] == U'+';
                if (style_.italic != on) styleChange([&] { style_.italic = on; });
                p += 3;
            } else if (At(text, p, U"&+B") || At(text, p, U"&-B")) {
                const bool on = text[p + 1] == U'+';
                if (style_.bold != on) styleChange([&] { style_.bold = on; });
                p += 3;
            } else if (At(text, p, U"&+U") || At(text, p, U"&-U")) {
                const bool on = text[p + 1] == U'+';
                if (style_.underline != on) styleChange([&] { style_.underline = on; });
                p += 3;
            } else if (At(text, p, U"&+S") || At(text, p, U"&-S")) {
                const bool on = text[p + 1] == U'+';
                if (style_.strike != on) styleChange([&] { style_.strike = on; });
                p += 3;
            } else if (At(text, p, U"&FS") || At(text, p, U"&FN") || At(text, p, U"&FC") || At(text, p, U"&BC") ||
                       At(text, p, U"&LC") || At(text, p, U"&FF") || At(text, p, U"&SP")) {
                const u32 code = text.substr(p, 3);
                // A value code with no ":" ends the text, as on the page.
                if (!valueCode(value)) break;
                if (code == U"&FS") {
                    const double size = LeadingNumber(value);
                    styleChange([&] { style_.size = (size > 0 && size != 12 && size < 200) ? size : 0; });
                } else if (code == U"&FN") {
                    const u32 name = UpperAscii(TrimBlanks(value));
                    const int family = name == U"ARIAL" ? 1 : name == U"COURIER NEW" ? 2 : 0;
                    styleChange([&] { style_.family = family; });
                } else if (code == U"&FC") {
                    const std::uint32_t colour = ParseColor(value);
                    styleChange([&] {
                        style_.coloured = colour != 0;
                        style_.colour = colour;
                    });
                } else if (code == U"&FF") {
                    Flush();
                    Emit(FilledRectangle(value));
                } else if (code == U"&BC") {
                    fill_ = ParseColor(value);
                } else if (code == U"&SP") {
                    Flush();
                    spaces_ = 0;
                    const double at = LeadingNumber(value) / 100;
                    if (depth_ == 0) segments_.push_back({std::isfinite(at) ? at : 0, ""});
                    else Emit(math_ ? "\\quad " : "\\quad{}");
                }
                // "&LC" colours the strokes of the marks only.
            } else {
                int entity = 0;
                if (ctx_.symbols)
                    for (int i = 1; i <= kSymbolCount; ++i)
                        if (At(text, p, ctx_.symbols->SymbolName[i])) {
                            entity = i;
                            break;
                        }
                if (entity != 0) {
                    const u32 glyph = ToU32(ctx_.symbols->SymbolGlyph[entity]);
                    const std::string math = glyph.empty() ? std::string() : MathGlyph(glyph[0]);
                    spaces_ = 0;
                    if (math.empty()) {
                        Flush();
                        Emit(Comment("no LaTeX form for " + ToUtf8(ctx_.symbols->SymbolName[entity])));
                    } else {
                        run_ += "\\ensuremath{" + math + "}";
                    }
                    p += ctx_.symbols->SymbolName[entity].size();
                } else if (At(text, p, U"& ") || At(text, p, U"&|")) {
                    run_ += "~";
                    spaces_ = 0;
                    p += 2;
                } else if (At(text, p, U"&Q")) {
                    run_ += "\\ensuremath{\\rightleftharpoons}";
                    p += 2;
                } else if (At(text, p, U"&=")) {
                    run_ += "\\ensuremath{=}";
                    p += 2;
                } else if (At(text, p, U"&#")) {
                    run_ += "\\ensuremath{\\equiv}";
                    p += 2;
                } else if (At(text, p, U"&_")) {
                    run_ += "\\-";
                    p += 2;
                } else if (At(text, p, U"&&")) {
                    run_ += "\\&";
                    spaces_ = 0;
                    p += 2;
                } else if (At(text, p, U"&E")) {
                    PowerOfTen(text, p);
                } else {
                    p += 1; // an unknown code loses its "&" only
                }
            }
            continue;
        }
        if (c == U'_' || c == U'^') {
            if (p + 1 < len && text[p + 1] == c) {
                run_ += c == U'_' ? "\\_" : "\\textasciicircum{}";
            } else if (p + 1 < len) {
                Script(text[p + 1], c == U'_');
            }
            p += 2;
            continue;
        }
        Character(text, p);
        ++p;
    }
    Flush();
    if (segments_.size() == 1) return segments_[0].latex;
    std::string all;
    for (const Segment& s : segments_) all += s.latex;
    return all;
}

// One line of the markup as a paragraph of its own; head (LaTeX) stands at its start. A
// font size set on a line holds on the lines after it, as on the page (a chart's ticks
// are lines of 9 points): size is the size the line starts with and the one it ends with.
std::string LineToLatex(LatexContext& context, u32 line, const std::string& head, double& size) {
    std::string indent;
    const std::size_t indentAt = line.find(U"&LSAN=");
    if (indentAt != u32::npos) {
        const std::size_t colon = line.find(U':', indentAt + 6);
        const u32 value = line.substr(indentAt + 6, colon == u32::npos ? u32::npos : colon - indentAt - 6);
        line.erase(indentAt, colon == u32::npos ? u32::npos : colon + 1 - indentAt);
        const double mm = LeadingNumber(value);
        if (std::isfinite(mm) && mm > 0 && mm < 400) indent = "\\hspace*{" + Number(mm) + "mm}";
    }
    Style start;
    start.size = size;
    Walker walker(context, false, start, 0, 0);
    const std::string whole = walker.Convert(line);
    size = walker.FinalStyle().size;
    const std::vector<Segment>& segments = walker.Segments();
    std::string body;
    if (segments.size() == 1) {
        body = head + whole;
    } else {
        // Columns: each part starts at its tab stop, a share of the text width from the
        // start of the line, as on the page; the last part may run on and wrap.
        double at = 0;
        for (std::size_t i = 0; i < segments.size(); ++i) {
            const double next = i + 1 < segments.size() ? segments[i + 1].at : at;
            if (i + 1 < segments.size()) {
                // The tab stops count from the start of the line, the head's text included.
                const std::string part = (i == 0 ? head : std::string()) + segments[i].latex;
                if (!part.empty()) body += "\\makebox[0pt][l]{" + part + "}";
                const double step = next - at;
                if (step != 0) body += "\\hspace{" + Number(step) + "\\linewidth}";
                at = next;
            } else {
                body += segments[i].latex;
            }
        }
    }
    // The line's own size sets its strut and its distance to the next line: the page's lines
    // stand 1.33 times their size apart (a chart's ticks at 9 points, about 4 mm, the unit of
    // its bars), the paragraph skip of 2 points included.
    const std::string open = start.size > 0 ? "{\\fontsize{" + Number(start.size) + "}{" +
                                                  Number(start.size * 1.33 - 2) + "pt}\\selectfont"
                                            : "";
    const std::string close = start.size > 0 ? "\\par}\n" : "\\par\n";
    if (TrimCopy(body).empty() && indent.empty()) return open + "\\noindent\\strut" + close;
    return open + "\\noindent" + indent + "\\strut " + body + close;
}
} // namespace

std::string EscapeLatexText(const std::string& text) {
    std::string out;
    for (char32_t c : ToU32(text)) {
        bool known = true;
        if (c == U'-') out += "-";
        else out += TextChar(c, known);
    }
    return out;
}

std::string InlineMarkupToLatex(LatexContext& context, const std::string& markup) {
    Walker walker(context, false, Style{}, 0, 1);
    const TypesetterState fallback;
    const TypesetterState& st = context.symbols ? *context.symbols : fallback;
    return walker.Convert(ExpandLocaleCodes(st, ToU32(markup)));
}

namespace {
std::string MarkupWithHead(LatexContext& context, const std::string& markup, const std::string& head) {
    const TypesetterState fallback;
    const TypesetterState& st = context.symbols ? *context.symbols : fallback;
    u32 text = ToU32(markup);
    std::string out;
    std::size_t pos = 0;
    double size = 0;
    while (true) {
        const std::size_t found = text.find(U"&LF", pos);
        const u32 line = text.substr(pos, found == u32::npos ? u32::npos : found - pos);
        // A text that ends with its line end has no empty line behind it.
        if (!(found == u32::npos && line.empty() && pos > 0))
            out += LineToLatex(context, ExpandLocaleCodes(st, line), pos == 0 ? head : std::string(), size);
        if (found == u32::npos) break;
        pos = found + 3;
    }
    return out;
}
} // namespace

std::string MarkupToLatex(LatexContext& context, const std::string& markup) { return MarkupWithHead(context, markup, ""); }

namespace {
// The framed number of a problem, in the collection's colour, prefix and suffix.
std::string LatexNumberBox(const CollectionSettings& settings, long long number) {
    const std::uint32_t c = static_cast<std::uint32_t>(settings.NumberColour) & 0xFFFFFF;
    const std::string label = EscapeLatexText(settings.NumberPrefix) + std::to_string(number) +
                              EscapeLatexText(settings.NumberSuffix);
    return "\\sfnumber{" + RgbText(c) + "}{" + label + "}";
}

} // namespace

std::string CollectionToLatex(const ApplicationState& app, LatexContext& context) {
    const CollectionSettings& s = app.Settings;
    std::string doc;
    doc += "% A collection of exercises made with Sumforge.\n";
    doc += "\\documentclass[12pt,a4paper]{article}\n";
    doc += "\\usepackage[utf8]{inputenc}\n";
    doc += "\\usepackage{amsmath,amssymb}\n";
    doc += "\\usepackage{graphicx}\n";
    doc += "\\usepackage{xcolor}\n";
    doc += "\\usepackage[margin=16mm]{geometry}\n";
    doc += "\\setlength{\\parindent}{0pt}\n";
    doc += "\\setlength{\\parskip}{2pt}\n";
    doc += "% The framed problem number: colour (R,G,B) and label.\n";
    doc += "\\newcommand{\\sfnumber}[2]{\\fcolorbox{black}[RGB]{#1}{\\textbf{#2}}}\n";
    doc += "% A term struck out.\n";
    doc += "\\newcommand{\\sfcancel}[1]{\\mathpalette\\sfcancelx{#1}}\n";
    doc += "\\newcommand{\\sfcancelx}[2]{\\ooalign{$#1#2$\\cr\\hidewidth$#1/$\\hidewidth\\cr}}\n";
    doc += "\\newcommand{\\sfstrike}[1]{\\ooalign{#1\\cr\\hidewidth/\\hidewidth\\cr}}\n";
    const int code = s.PagePositionCode;
    if (code == 0) doc += "\\pagestyle{empty}\n";
    doc += "\\begin{document}\n";
    if (code != 0) doc += "\\setcounter{page}{" + std::to_string(s.FirstPageNumber) + "}\n";
    if (!s.Title.empty())
        doc += "{\\sffamily\\bfseries " + EscapeLatexText(s.Title) + "\\par}\n\\vspace{2pt}\\hrule height 2pt\\vspace{8pt}\n";

    const std::string solutionWord = SolutionWord(kBuildLanguage);
    const std::string solutionsWord = SolutionsWord(kBuildLanguage);
    std::vector<std::string> stored;
    long long n = static_cast<long long>(s.FirstProblemNumber) - 1;
    for (int p = 1; p <= s.ProblemCount && p < static_cast<int>(app.Problems.size()); ++p) {
        ++n;
        const ProblemRecord& r = app.Problems[p];
        const std::string box = LatexNumberBox(s, n);
        doc += "% Problem " + std::to_string(n) + ": " + TrimCopy(r.ModuleName) + " routine " + std::to_string(r.RoutineId) +
               ", code " + ProblemCodeOf(r) + "\n";
        doc += "\\begin{samepage}\n" + MarkupWithHead(context, r.Statement, box + "~") + "\\end{samepage}\n";
        if (s.SolutionPosition == 1 && !r.Solution.empty())
            doc += MarkupWithHead(context, r.Solution, "\\textit{" + EscapeLatexText(solutionWord) + "}:~");
        if ((s.SolutionPosition == 2 || s.SolutionPosition == 3) && !r.Solution.empty())
            stored.push_back(MarkupWithHead(context, r.Solution, box + "~"));
        doc += "\\medskip\n";
    }
    if (!stored.empty()) {
        if (s.SolutionPosition == 3) doc += "\\newpage\n";
        doc += "\\bigskip\n\\noindent\\textbf{" + EscapeLatexText(solutionsWord) + ":}\\par\n";
        for (const std::string& text : stored) doc += text + "\\medskip\n";
    }
    doc += "\\end{document}\n";
    return doc;
}
