#include "support/ink_recorder.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace {
constexpr std::uint32_t kWhite = 0xFFFFFF;

bool Blank(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c == ' '; });
}

std::string Describe(const InkRecorder::Ink& ink) {
    std::ostringstream out;
    out << ink.kind << " '" << ink.what << "' [" << std::lround(ink.x0) << "," << std::lround(ink.y0) << " - "
        << std::lround(ink.x1) << "," << std::lround(ink.y1) << "] group " << ink.group;
    return out.str();
}

// Text that stands wholly on a filled box (a table's head band) is set on it, not over it.
bool SetOnBand(const InkRecorder::Ink& band, const InkRecorder::Ink& text, double tolerance) {
    return band.kind == 'F' && text.kind == 'T' && text.x0 >= band.x0 - tolerance && text.x1 <= band.x1 + tolerance &&
           text.y0 >= band.y0 - tolerance && text.y1 <= band.y1 + tolerance;
}
} // namespace

double InkRecorder::StrokeTwips() const { return inner_.DrawWidth() * inner_.TwipsPerPixelX(); }

void InkRecorder::Add(Ink ink) {
    // Runs of one group on one line, one after the other, make one box.
    if (ink.kind == 'T' && !inks.empty()) {
        Ink& last = inks.back();
        if (last.kind == 'T' && last.group == ink.group && last.y0 == ink.y0 && last.y1 == ink.y1 &&
            std::fabs(last.x1 - ink.x0) < 1) {
            last.x1 = std::max(last.x1, ink.x1);
            last.what += ink.what;
            return;
        }
    }
    inks.push_back(std::move(ink));
}

// Text in a colour too pale to read on paper (the table heads written in their band's
// colour, only to size its underline) is no ink a reader sees.
bool TooPaleToRead(std::uint32_t color) {
    return (color & 0xFF) >= 0xE0 && ((color >> 8) & 0xFF) >= 0xE0 && ((color >> 16) & 0xFF) >= 0xE0;
}

void InkRecorder::PrintText(const std::string& text) {
    if (!Blank(text) && !TooPaleToRead(inner_.ForeColor())) {
        const double x = inner_.CurrentX(), y = inner_.CurrentY();
        const double w = inner_.TextWidth(text), h = inner_.TextHeight(text);
        // The line box less the room above the capitals and below the descenders.
        Add({x, y + 0.18 * h, x + w, y + 0.95 * h, Group(), 'T', text});
    }
    inner_.PrintText(text);
}

void InkRecorder::Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> color) {
    const std::uint32_t c = color.value_or(inner_.ForeColor());
    if (c != kWhite) {
        const double half = StrokeTwips() / 2;
        Add({std::min(x1, x2) - half, std::min(y1, y2) - half, std::max(x1, x2) + half, std::max(y1, y2) + half,
             Group(), 'L', "line"});
    }
    inner_.Line(x1, y1, x2, y2, color);
}

void InkRecorder::FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> color) {
    const std::uint32_t c = color.value_or(inner_.ForeColor());
    const double x0 = std::min(x, x + dx), x1 = std::max(x, x + dx);
    const double y0 = std::min(y, y + dy), y1 = std::max(y, y + dy);
    if (c != kWhite) {
        Add({x0, y0, x1, y1, Group(), 'F', "box"});
    } else {
        // White over the tail of a coloured box (the number box) cuts that box short.
        for (Ink& ink : inks) {
            if (ink.kind == 'F' && y0 <= ink.y0 && y1 >= ink.y1 && x0 > ink.x0 && x0 < ink.x1 && x1 >= ink.x1)
                ink.x1 = x0;
        }
    }
    inner_.FilledBox(x, y, dx, dy, color);
}

void InkRecorder::Circle(double cx, double cy, double r) {
    Add({cx - r, cy - r, cx + r, cy + r, Group(), 'L', "circle"});
    inner_.Circle(cx, cy, r);
}

bool InkRecorder::PaintPicture(const std::string& file, double x, double y, double w, double h) {
    double top = std::min(y, y + h);
    const double bottom = std::max(y, y + h);
    // A hung picture: its top line of text height is clear, for the line above.
    if (h < 0) top += 1.108 * 12 * 20 * zoom_;
    const std::string name = file.substr(file.find_last_of('/') + 1);
    Add({std::min(x, x + w), top, std::max(x, x + w), bottom, Group(), 'P', name});
    return inner_.PaintPicture(file, x, y, w, h);
}

std::vector<std::string> OverprintFaults(const std::vector<InkRecorder::Ink>& inks, double left, double top,
                                         double right, double bottom, double tolerance) {
    std::vector<std::string> faults;
    for (const auto& ink : inks) {
        if (ink.x0 < left - tolerance || ink.x1 > right + tolerance || ink.y0 < top - tolerance ||
            ink.y1 > bottom + tolerance)
            faults.push_back("outside the margins: " + Describe(ink));
    }
    std::vector<const InkRecorder::Ink*> order;
    for (const auto& ink : inks) order.push_back(&ink);
    std::sort(order.begin(), order.end(), [](const auto* a, const auto* b) { return a->y0 < b->y0; });
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto& a = *order[i];
        for (std::size_t j = i + 1; j < order.size() && order[j]->y0 < a.y1 - tolerance; ++j) {
            const auto& b = *order[j];
            // What is drawn outside the layout (title rule, page number) is only held to the
            // margins here.
            if (a.group == b.group || a.group < 0 || b.group < 0) continue;
            if (SetOnBand(a, b, tolerance) || SetOnBand(b, a, tolerance)) continue;
            const double overlapX = std::min(a.x1, b.x1) - std::max(a.x0, b.x0);
            const double overlapY = std::min(a.y1, b.y1) - std::max(a.y0, b.y0);
            if (overlapX > tolerance && overlapY > tolerance)
                faults.push_back("overprint: " + Describe(a) + " and " + Describe(b));
        }
    }
    return faults;
}

std::vector<std::string> FooterFaults(const std::vector<InkRecorder::Ink>& inks, double gap) {
    std::vector<std::string> faults;
    if (inks.empty()) return faults;
    const InkRecorder::Ink& number = inks.back();
    if (number.kind != 'T' || number.group >= 0) return faults;
    for (std::size_t i = 0; i + 1 < inks.size(); ++i) {
        const InkRecorder::Ink& ink = inks[i];
        if (ink.y1 > number.y0 - gap)
            faults.push_back("too near the page number " + Describe(number) + ": " + Describe(ink));
    }
    return faults;
}
