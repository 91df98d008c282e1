#include "generators/pes/pes_tables.h"

#include <algorithm>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

std::string RoundedMarkup(MathWorkspace& ws, double x, int decimals) {
    return NumberToMarkup(RoundAtPosition(ws, x, -1 - decimals));
}

const TableLook kFrequencyTableLook{"28.2", "&+Ix&-I_i", "&+I&FA&-I_i", "&SP=11:", "&SP=20:"};
// The band is as wide as the heads with room behind the second one (38.8 mm: "Interval" is
// the widest first head).
const TableLook kClassTableLook{"38.8", "Interval", "&+I&FA&-I_i", "&SP=11:", "&SP=23:"};
const TableLook kPairTableLook{"28.2", "&+Ix&-I_i", "&+Iy&-I_i", "&SP=11:", "&SP=20:"};

std::string TableMarkup(const TableLook& look, const std::vector<TableRow>& rows) {
    // The head band and its rule are filled boxes from the pen at the line's top: the black
    // box first, the band over it, so that a rule of 0.2 mm shows at the band's foot. The
    // heads are written once, at the columns' tabs, over their columns; the page's text
    // then holds each head once.
    std::string text = "&SP=10:&BC=0;0;0:&FF=REC," + look.bandWidth + ",5.7:&BC=230;230;250:&FF=REC," +
                       look.bandWidth + ",5.5:" + look.firstColumn + look.firstHead + look.secondColumn +
                       look.secondHead + "&LF";
    for (const TableRow& row : rows) {
        text += look.firstColumn + row.first + look.secondColumn + row.second + "&LF";
    }
    // The closing rule under the last row, as wide as the band.
    text += "&SP=10:&BC=0;0;0:&FF=REC," + look.bandWidth + ",0.2: &LF";
    return text;
}

namespace {
// A length inside a code's value: a plain decimal with its leading zero.
std::string Millimetres(double mm) {
    std::string text = PlainNumberText(mm);
    if (text.rfind(".", 0) == 0) text = "0" + text;
    return text;
}
} // namespace

std::string BarChartMarkup(const BarChart& chart) {
    const double top = *std::max_element(chart.heights.begin(), chart.heights.end());
    const int count = static_cast<int>(chart.heights.size());
    // 4 mm a unit of frequency: a line of the 9-point ticks is about that high.
    std::string text = "&SP=10:&FS=9:&+I&FA&-I_i &LF";
    for (int tick = static_cast<int>(top); tick >= 1; --tick) {
        text += "&SP=10:" + PlainNumberText(tick) + "&LF";
    }
    // The bars stand at percentages of the text width, but a rule's length is in mm: an
    // axis of 6.5 mm a bar stops short of the last bars on a wide page. So the axis is two
    // rules: one from the origin, as long as the bars reach on the narrowest text width,
    // and one that ends 3 mm behind the last bar and reaches back as far as the widest text
    // width could leave a gap. Together they cover every bar, never pass the origin, for
    // any text width between kNarrowestTextMm and kWidestTextMm.
    constexpr double kNarrowestTextMm = 120, kWidestTextMm = 240;
    const double reach = chart.barStep * count;  // percent from the origin to the last bar's edge
    text += "&SP=12:&BC=96;96;128:&FF=REC,0.2,-" + Millimetres(4 * top) + ":&FF=REC," +
            Millimetres(reach * kNarrowestTextMm / 100) + ",0.2:";
    text += "&SP=" + Millimetres(12 + reach) + ":&FF=REC,-" +
            Millimetres(reach * (kWidestTextMm - kNarrowestTextMm) / 100) + ",0.2:&FF=REC,3,0.2:";
    static const char* const kColours[] = {"&BC=128;128;255:", "&BC=80;200;80:", "&BC=220;90;90:"};
    text += kColours[std::clamp(chart.colour, 1, 3) - 1];
    for (int i = 0; i < count; ++i) {
        const double left = 12 + chart.barStep * (i + 1);
        text += "&SP=" + Millimetres(left) + ":&FF=REC,-" + Millimetres(chart.barWidth) + ",-" +
                Millimetres(4 * chart.heights[i]) + ":";
    }
    text += "&LF";
    // Under a bar chart each value stands under its bar; under a histogram (one label
    // more than bars) each class limit stands under the edge between two bars.
    const bool edges = chart.labels.size() == chart.heights.size() + 1;
    for (int i = 0; i < static_cast<int>(chart.labels.size()); ++i) {
        const double left = edges ? 12 + chart.barStep * i : 12 + chart.barStep * (i + 1) - 2;
        text += "&SP=" + Millimetres(left) + ":" + chart.labels[i];
    }
    text += " &+Ix&-I_i&FS=12:&LF";
    return text;
}

std::string OrdinalText(int n) {
    std::string suffix = "th";
    const int lastTwo = n % 100;
    if (lastTwo < 11 || lastTwo > 13) {
        if (n % 10 == 1) suffix = "st";
        else if (n % 10 == 2) suffix = "nd";
        else if (n % 10 == 3) suffix = "rd";
    }
    return std::to_string(n) + suffix;
}
