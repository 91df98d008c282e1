#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "generators/pes/pes_routines.h"
#include "generators/pes/pes_tables.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
// Frequencies 1..9, all different, so that the mode is never ambiguous.
std::vector<double> DistinctFrequencies(GeneratorWorkspace& ws, int count) {
    std::vector<double> freqs;
    for (int i = 0; i < count; ++i) {
        RetryBound bound;
        while (true) {
            const double f = RandomInRange(ws, 1, 9, 1, 1);
            if (std::find(freqs.begin(), freqs.end(), f) == freqs.end()) {
                freqs.push_back(f);
                break;
            }
            bound.Next();
        }
    }
    return freqs;
}

// Index order of the rows by rising value.
std::vector<int> RisingOrder(const std::vector<double>& keys) {
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) { return keys[a] < keys[b]; });
    return order;
}

// The class (of rising classes) where the cumulated frequency reaches position, and the
// point found by interpolation inside it.
double InterpolatedPoint(const std::vector<double>& lows, const std::vector<double>& freqs, double width,
                         double position) {
    const std::vector<int> order = RisingOrder(lows);
    double below = 0;
    for (int i : order) {
        if (below + freqs[i] >= position) return lows[i] + (position - below) / freqs[i] * width;
        below += freqs[i];
    }
    return lows[order.back()] + width;
}
} // namespace

// Routine 1: a table of values in arithmetic series (rising or falling) with distinct
// frequencies; mean, median, mode, standard deviation (population) and a bar chart.
void UngroupedDataStatistics(GeneratorWorkspace& ws) {
    const int n = static_cast<int>(RandomInRange(ws, 4, 6, 1, 1));
    // The chart's own draw: how far apart the bars stand, in percent of the width.
    const double barStep = RandomInRange(ws, 4, 6, 1, 1);
    std::vector<double> values;
    double value = RandomInRange(ws, 0, 30, 1, 0);
    double difference = RandomInRange(ws, 1, 10, 1, 1);
    if (Coin(ws, 0.7f)) difference = -difference;
    for (int i = 0; i < n; ++i) {
        values.push_back(value);
        value += difference;
    }
    const std::vector<double> freqs = DistinctFrequencies(ws, n);
    const int colour = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));

    double total = 0, sum = 0, squares = 0;
    for (int i = 0; i < n; ++i) {
        total += freqs[i];
        sum += freqs[i] * values[i];
        squares += freqs[i] * values[i] * values[i];
    }
    const double mean = sum / total;
    const double deviation = std::sqrt(std::fabs(squares / total - mean * mean));
    // Median: walk the cumulated frequencies of the values in rising order to half the
    // total; a half that falls on a boundary takes the middle of the two values.
    const std::vector<int> order = RisingOrder(values);
    double median = values[order.back()];
    double cumulated = 0;
    for (std::size_t j = 0; j < order.size(); ++j) {
        cumulated += freqs[order[j]];
        if (cumulated == total / 2) {
            median = (values[order[j]] + values[order[j + 1]]) / 2;
            break;
        }
        if (cumulated > total / 2) {
            median = values[order[j]];
            break;
        }
    }
    const int modal = static_cast<int>(std::max_element(freqs.begin(), freqs.end()) - freqs.begin());

    std::vector<TableRow> rows;
    for (int i = 0; i < n; ++i) rows.push_back({NumberToMarkup(values[i]), NumberToMarkup(freqs[i])});
    ws.Statement = "Calculate mean, median, mode, standard deviation and bar chart based on the following table, "
                   "where &+I&FA&-I_i denotes the absolute frequency of each value &+Ix&-I_i.&LF" +
                   TableMarkup(kFrequencyTableLook, rows);

    BarChart chart;
    chart.heights = freqs;
    for (double x : values) chart.labels.push_back(NumberToMarkup(x));
    chart.barWidth = 3;
    chart.barStep = barStep;
    chart.colour = colour;
    ws.Solution = "&SP=10: #SED(&+Ix&-I#SED) = " + RoundedMarkup(ws, mean, 2) + "    &+IMe&-I = " +
                  RoundedMarkup(ws, median, 2) + "    &+IMo&-I = " + NumberToMarkup(values[modal]) +
                  "    &+I&DT&-I = " + RoundedMarkup(ws, deviation, 2) + "&LF" + BarChartMarkup(chart);
}

// Routine 2: classes of equal width (rising or falling) with distinct frequencies; mean,
// median, mode, standard deviation, and either the percentage of data below a point or a
// percentile or quartile; a histogram.
void GroupedDataStatistics(GeneratorWorkspace& ws) {
    const int n = static_cast<int>(RandomInRange(ws, 4, 6, 1, 1));
    const double width = RandomInRange(ws, 5, 20, 1, 1);
    const double start = RandomInRange(ws, 0, 90, 5, 0);
    const std::vector<double> freqs = DistinctFrequencies(ws, n);
    const bool falling = Coin(ws, 0.7f);
    // Class i of the table; a falling table lists the classes from the top down.
    std::vector<double> lows;
    for (int i = 0; i < n; ++i) lows.push_back(falling ? start + (n - 1 - i) * width : start + i * width);

    double total = 0, sum = 0, squares = 0;
    for (int i = 0; i < n; ++i) {
        const double mid = lows[i] + width / 2;
        total += freqs[i];
        sum += freqs[i] * mid;
        squares += freqs[i] * mid * mid;
    }
    const double mean = sum / total;
    const double deviation = std::sqrt(std::fabs(squares / total - mean * mean));
    const double median = InterpolatedPoint(lows, freqs, width, total / 2);
    // Mode: inside the class of the largest frequency, drawn towards the larger of its
    // neighbours' frequencies (a missing neighbour counts 0).
    const int modal = static_cast<int>(std::max_element(freqs.begin(), freqs.end()) - freqs.begin());
    auto frequencyAt = [&](double low) {
        for (int i = 0; i < n; ++i) {
            if (lows[i] == low) return freqs[i];
        }
        return 0.0;
    };
    const double rise = freqs[modal] - frequencyAt(lows[modal] - width);
    const double fall = freqs[modal] - frequencyAt(lows[modal] + width);
    const double mode = lows[modal] + rise / (rise + fall) * width;

    std::string measure;
    std::string answer;
    if (Coin(ws, 0.5f)) {
        const double point = RandomInRange(ws, start + 1, start + n * width - 1, 1, 0);
        // The data below the point: whole classes below it and the share of its own class.
        double below = 0;
        for (int i = 0; i < n; ++i) {
            if (lows[i] + width <= point) below += freqs[i];
            else if (lows[i] < point) below += freqs[i] * (point - lows[i]) / width;
        }
        ws.Statement = "Calculate mean, median, mode, standard deviation, percentage of data below &+Ix&-I& =& " +
                       NumberToMarkup(point);
        answer = "&SP=10:Percentage of data below &+Ix&-I& =& " + NumberToMarkup(point) + ": " +
                 RoundedMarkup(ws, below / total * 100, 2) + "%&LF";
    } else {
        int order = 0;
        double position = 0;
        if (Coin(ws, 0.5f)) {
            order = static_cast<int>(RandomInRange(ws, 5, 95, 1, 1));
            measure = OrdinalText(order) + " percentile";
            position = total * order / 100;
        } else {
            order = static_cast<int>(RandomInRange(ws, 1, 3, 2, 1));
            measure = OrdinalText(order) + " quartile";
            position = total * order / 4;
        }
        ws.Statement = "Calculate mean, median, mode, standard deviation, " + measure;
        answer = "&SP=10:" + measure + " = " + RoundedMarkup(ws, InterpolatedPoint(lows, freqs, width, position), 2) +
                 "&LF";
    }
    ws.Statement += " and histogram chart based on the following table, where &+I&FA&-I_i denotes the absolute "
                    "frequency:&LF";
    std::vector<TableRow> rows;
    for (int i = 0; i < n; ++i) {
        rows.push_back({"[" + NumberToMarkup(lows[i]) + ", " + NumberToMarkup(lows[i] + width) + ")",
                        NumberToMarkup(freqs[i])});
    }
    ws.Statement += TableMarkup(kClassTableLook, rows);

    // The histogram shows the classes rising, bars touching, limits under the bars.
    BarChart chart;
    for (int i : RisingOrder(lows)) {
        chart.heights.push_back(freqs[i]);
        chart.labels.push_back(NumberToMarkup(lows[i]));
    }
    chart.labels.push_back(NumberToMarkup(start + n * width));
    chart.barWidth = 6.5;
    chart.barStep = 4;
    chart.colour = 1 + ws.Seed % 3;
    ws.Solution = "&SP=10: #SED(&+Ix&-I#SED) = " + RoundedMarkup(ws, mean, 2) + "    &+IMe&-I = " +
                  RoundedMarkup(ws, median, 2) + "    &+IMo&-I = " + RoundedMarkup(ws, mode, 2) +
                  "    &+I&DT&-I = " + RoundedMarkup(ws, deviation, 2) + "&LF" + answer + BarChartMarkup(chart);
}
