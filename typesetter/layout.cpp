#include "typesetter/layout.h"

#include <cmath>
#include <vector>

#include "typesetter/markup.h"
#include "typesetter/text_util.h"

namespace {
const std::string kReferenceText = "Nuria es Magn\u00EDfico";

std::string RemoveCrLf(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            ++i;
            continue;
        }
        out.push_back(text[i]);
    }
    return out;
}

// The line that begins at pos, up to the next "&LF"; the last line is what is left,
// possibly empty. Lines are read one by one as layout reaches them: a page is measured
// with the text of the next 49 blocks, of which only a few fit.
bool NextLine(const std::string& text, std::size_t& pos, std::u32string& line) {
    if (pos == std::string::npos) return false;
    const std::size_t found = text.find("&LF", pos);
    line = ToU32(text.substr(pos, found == std::string::npos ? std::string::npos : found - pos));
    pos = found == std::string::npos ? std::string::npos : found + 3;
    return true;
}

int MarkNumber(const std::u32string& line) {
    // Val of the text from the seventh character: digits after optional blanks and sign.
    if (line.size() < 7) return 0;
    const double v = LeadingNumber(line.substr(6));
    if (!std::isfinite(v) || std::fabs(v) > 2.0e9) return 0;
    return static_cast<int>(std::trunc(v));
}

struct SavedFont {
    std::string name;
    double size;
    bool italic, bold, underline, strikethru;
    std::uint32_t color;
};

SavedFont SaveFont(DrawingSurface& s) {
    return {s.FontName(), s.FontSize(), s.FontItalic(), s.FontBold(), s.FontUnderline(), s.FontStrikethru(), s.ForeColor()};
}

// The top of a line (lineY, from the top margin) moved below every hung picture that it
// would touch; a line that stays clear of a picture's sides flows beside it, unless it opens
// the next problem, which never stands beside the picture of another.
double KeepClearOfPictures(const PageDevices& page, const FlowState& flow, double lineY, double left, double right,
                           double gapX, double gapY, bool opensProblem) {
    bool moved = true;
    while (moved) {
        moved = false;
        for (const FlowState::HungPicture& p : flow.HungPictures) {
            const bool beside = !opensProblem && (right + gapX <= p.left || left >= p.right + gapX);
            if (!beside && lineY + page.MarginTop < p.bottom + gapY) {
                lineY = p.bottom + gapY - page.MarginTop;
                moved = true;
            }
        }
    }
    return lineY;
}

void RestoreFont(DrawingSurface& s, const SavedFont& f) {
    s.SetFontName(f.name);
    s.SetFontSize(f.size);
    s.SetFontItalic(f.italic);
    s.SetFontBold(f.bold);
    s.SetForeColor(f.color);
    s.SetFontUnderline(f.underline);
    s.SetFontStrikethru(f.strikethru);
}
} // namespace

void LayoutText(TypesetterState& st, const std::string& utf8Text, double& baseSize, DrawingSurface& surface) {
    const double zoom = st.ZoomScale;
    if (!(baseSize > 0)) baseSize = 5 * zoom;

    st.MarkCount = 0;
    st.LineIndent = 0;
    st.LineColor = 0;
    const std::string text = RemoveCrLf(utf8Text);

    surface.SetFontName("Times New Roman");
    surface.SetFontItalic(false);
    surface.SetFontBold(false);
    surface.SetFontStrikethru(false);
    surface.SetFontUnderline(false);
    surface.SetForeColor(0);
    surface.SetFontSize(12 * zoom);
    const double refWidth = surface.TextWidth(kReferenceText);
    surface.SetFontSize(baseSize);

    if (&surface == st.ScreenSurface) {
        st.PageWidth = (surface.Width() - 2) * surface.TwipsPerPixelX();
        st.PageHeight = (surface.Height() - 2) * surface.TwipsPerPixelY();
        st.MarginLeft = st.MarginRight = st.MarginTop = st.MarginBottom = kPageMargin * zoom;
    } else if (st.PrinterInstalled) {
        if (&surface == st.PrinterSurface) {
            st.PageWidth = surface.Width();
            st.PageHeight = surface.Height();
        }
        // The printer and PDF surfaces start at the paper's edge (full page), so the margins
        // are the screen page's 16 mm from the edge on every side, never zoomed. Margins less
        // a printer's unreachable border put the text off centre and let a hole punch
        // through the problem numbers.
        st.MarginLeft = st.MarginRight = st.MarginTop = st.MarginBottom = kPageMargin;
    }

    // Room for the page number at the foot (Times New Roman 11, as it is printed) and half
    // a line of 12 points between it and the last line above.
    double footRoom = 0;
    if (st.PageNumberAtFoot) {
        surface.SetFontName("Times New Roman");
        surface.SetFontSize(11 * zoom);
        footRoom = surface.TextHeight("0") + 6 * 20 * zoom;
        surface.SetFontSize(baseSize);
    }
    const double textBottom = st.PageHeight - st.MarginBottom - footRoom;

    st.FlowResult = 0;
    st.HungPictures.clear();
    double lineY = 0;
    double th = 0;
    std::size_t nextLine = 0;
    std::u32string rawLine;
    // Lines beyond the table's size are left out.
    for (int lineCount = 0; lineCount < kMaxLines && NextLine(text, nextLine, rawLine); ++lineCount) {
        std::u32string line = ExpandLocaleCodes(st, rawLine);
        bool opensProblem = false;
        if (line.compare(0, 5, U"#MARK") == 0) {
            opensProblem = true;
            st.FlowResult = MarkNumber(line);
            // Marks beyond the table are not taken: the caller's limit, kept safely.
            if (st.MarkCount < kMaxMarks) {
                st.MarkCount += 1;
                st.MarkSelected[st.MarkCount - 1] = false;
                st.MarkProblem[st.MarkCount - 1] = st.FlowResult;
            }
        }
        const std::size_t indentAt = line.find(U"&LSAN=");
        if (indentAt != std::u32string::npos) {
            const std::size_t colon = line.find(U':', indentAt + 6);
            const std::u32string value =
                line.substr(indentAt + 6, colon == std::u32string::npos ? std::u32string::npos : colon - indentAt - 6);
            line.erase(indentAt, colon == std::u32string::npos ? std::u32string::npos : colon + 1 - indentAt);
            st.LineIndent = 0.98 * (LeadingNumber(value) / 25.4 * 1440) * surface.TextWidth(kReferenceText) / refWidth;
        }
        bool pageFull = false;
        std::u32string head;
        do {
            StartLine(st);
            const SavedFont saved = SaveFont(surface);
            th = surface.TextHeight("H");
            InterpretMarkup(st, line, surface, head);

            StartPass(st, true);
            RestoreFont(surface, saved);
            const LayoutBox& box = st.BoxTable[1];
            if (!st.HungPictures.empty()) {
                const double left = st.LineIndent + st.MarginLeft;
                lineY = KeepClearOfPictures(st, st, lineY, left, left + box.lead + box.width, th / 2, th / 5, opensProblem);
                opensProblem = false;
            }
            surface.SetCurrentX(box.lead + st.LineIndent + st.MarginLeft);
            surface.SetCurrentY(box.over + lineY + st.MarginTop);
            // A line whose hung picture would reach below the page goes to the next page
            // with it, so that the picture is not cut off at the foot of the sheet.
            const bool pictureFits = st.LineHang <= 0 || lineY == 0 || surface.CurrentY() + st.LineHang <= textBottom;
            if (surface.CurrentY() >= textBottom - (box.bottom + box.over) || !pictureFits) {
                st.FlowResult = -st.FlowResult;
                pageFull = true;
                break;
            }
            st.InkGroup += 1;
            std::u32string scratch;
            if (head.empty()) {
                InterpretMarkup(st, line, surface, scratch);
            } else {
                InterpretMarkup(st, head, surface, scratch);
                line.erase(0, std::min(head.size(), line.size()));
            }
            st.DrawPass = false;
            if (st.YieldToEvents) st.YieldToEvents();
            lineY += st.BoxTable[1].over + st.BoxTable[1].bottom + th / 5;
        } while (!head.empty());
        if (pageFull) break;
    }
    st.DrawPass = false;

    if (st.MarkCount > 0) st.MarkBottom[st.MarkCount - 1] = lineY + st.BoxTable[1].bottom + th;

    if (&surface == st.ScreenSurface && st.ShowMarginGuides) {
        surface.SetFillStyle(1);
        const std::uint32_t guide = Rgb(240, 240, 240);
        const double w = surface.Width() * surface.TwipsPerPixelX();
        const double h = surface.Height() * surface.TwipsPerPixelY();
        surface.Line(st.MarginLeft, 0, st.MarginLeft, h, guide);
        surface.Line(0, st.MarginTop, w, st.MarginTop, guide);
        surface.Line(0, h - st.MarginTop, w, h - st.MarginTop, guide);
        surface.Line(w - st.MarginRight, 0, w - st.MarginRight, h, guide);
    }
}
