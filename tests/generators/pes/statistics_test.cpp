#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

#include "generators/hub.h"
#include "generators/pes/normal_law.h"
#include "generators/pes/pes_tables.h"
#include "pes_test_support.h"
#include "support/generator_sweep.h"

namespace {
constexpr double kHalfCent = 0.005 + 1e-9;

double Reference(double x) { return 0.5 * std::erfc(-x / std::sqrt(2.0)); }
double ReferenceInverse(double p) {
    double lo = -10, hi = 10;
    for (int i = 0; i < 200; ++i) (Reference((lo + hi) / 2) < p ? lo : hi) = (lo + hi) / 2;
    return (lo + hi) / 2;
}

// The median of the data written out one by one.
double MedianOfList(std::vector<double> data) {
    std::sort(data.begin(), data.end());
    const std::size_t n = data.size();
    return n % 2 ? data[n / 2] : (data[n / 2 - 1] + data[n / 2]) / 2;
}
} // namespace

TEST(NormalLaw, KnownValues) {
    EXPECT_NEAR(NormalCDF(0), 0.5, 1e-9);
    EXPECT_NEAR(NormalCDF(1), 0.8413, 5e-5);
    EXPECT_NEAR(NormalCDF(1.96), 0.9750, 5e-5);
    EXPECT_NEAR(NormalCDF(-1.645), 0.0500, 5e-5);
    EXPECT_NEAR(NormalCDF(2.5), 0.9938, 5e-5);
    EXPECT_NEAR(NormalCDF(-3), 0.00135, 5e-6);
    EXPECT_NEAR(NormalInverse(0.95), 1.6449, 5e-5);
    EXPECT_NEAR(NormalInverse(0.975), 1.9600, 5e-5);
    EXPECT_NEAR(NormalInverse(0.05), -1.6449, 5e-5);
    EXPECT_NEAR(NormalInverse(0.15), -1.0364, 5e-5);
    EXPECT_NEAR(NormalInverse(0.8413), 1.0, 2e-4);
}

TEST(NormalLaw, Ends) {
    EXPECT_EQ(NormalCDF(30.5), 1);
    EXPECT_EQ(NormalCDF(-30.5), 0);
    EXPECT_TRUE(std::isfinite(NormalCDF(30)));
    EXPECT_TRUE(std::isfinite(NormalCDF(-30)));
    EXPECT_NEAR(NormalCDF(30), 1, 1e-12);
    EXPECT_NEAR(NormalCDF(-30), 0, 1e-12);
    EXPECT_EQ(NormalInverse(0.5), 0.0);
    EXPECT_EQ(NormalInverse(1e-200), -30);
    EXPECT_EQ(NormalInverse(0.9999999999999995), 9);
}

TEST(NormalLaw, AgreesWithTheStandardNormalOverItsRange) {
    for (double x = -6; x <= 6; x += 0.01) EXPECT_NEAR(NormalCDF(x), Reference(x), 1e-8) << x;
    for (double p = 0.01; p < 0.995; p += 0.005) {
        const double x = NormalInverse(p);
        EXPECT_NEAR(Reference(x), p, 1e-6) << p;
    }
}

TEST(PesTables, Ordinals) {
    EXPECT_EQ(OrdinalText(1), "1st");
    EXPECT_EQ(OrdinalText(2), "2nd");
    EXPECT_EQ(OrdinalText(3), "3rd");
    EXPECT_EQ(OrdinalText(4), "4th");
    EXPECT_EQ(OrdinalText(11), "11th");
    EXPECT_EQ(OrdinalText(12), "12th");
    EXPECT_EQ(OrdinalText(13), "13th");
    EXPECT_EQ(OrdinalText(21), "21st");
    EXPECT_EQ(OrdinalText(52), "52nd");
    EXPECT_EQ(OrdinalText(93), "93rd");
}

TEST(PesStatistics, Describe) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    int found = 0;
    for (const std::string& entry : hub.CatalogueList()) {
        if (entry.rfind("KVOL_MATH_PES:", 0) != 0) continue;
        const std::string line = entry.substr(14);
        if (line.substr(0, 6) == "180000") {
            EXPECT_NE(line.find("Statistic and probability"), std::string::npos);
            continue;
        }
        ++found;
        EXPECT_EQ(line.substr(231, 1), "3");
        if (line.substr(232, 3) == "004") {
            EXPECT_EQ(line.substr(238, 4), "&DPP");
            EXPECT_EQ(line.substr(3, 3), "050");
        }
    }
    EXPECT_EQ(found, 4);
}

TEST(PesStatistics, UngroupedSweep) {
    std::set<double> reversed;
    SweepRoutine("KVOL_MATH_PES", 1, 2500, [&](const GeneratedProblem& p) {
        const auto cells = TableCells(p.statement, "&SP=11:", "&SP=20:");
        ASSERT_GE(cells.size(), 4u) << p.code;
        ASSERT_LE(cells.size(), 6u) << p.code;
        std::vector<double> x, f, data;
        for (const auto& [value, freq] : cells) {
            x.push_back(ReadMarkupNumber(value));
            f.push_back(ReadMarkupNumber(freq));
        }
        // Values in arithmetic series, distinct frequencies 1..9.
        const double d = x[1] - x[0];
        EXPECT_NE(d, 0) << p.code;
        reversed.insert(d < 0 ? -1 : 1);
        for (std::size_t i = 1; i < x.size(); ++i) EXPECT_EQ(x[i] - x[i - 1], d) << p.code;
        EXPECT_EQ(std::set<double>(f.begin(), f.end()).size(), f.size()) << p.code;
        double n = 0, sum = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            EXPECT_GE(f[i], 1);
            EXPECT_LE(f[i], 9);
            for (int k = 0; k < f[i]; ++k) data.push_back(x[i]);
            n += f[i];
            sum += f[i] * x[i];
        }
        const double mean = sum / n;
        double squares = 0;
        for (double v : data) squares += (v - mean) * (v - mean);
        const double sd = std::sqrt(squares / n);
        const double mode = x[std::max_element(f.begin(), f.end()) - f.begin()];
        EXPECT_NEAR(NumberAfter(p.solution, "#SED(&+Ix&-I#SED) = "), mean, kHalfCent) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+IMe&-I = "), MedianOfList(data), kHalfCent) << p.code;
        EXPECT_EQ(NumberAfter(p.solution, "&+IMo&-I = "), mode) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+I&DT&-I = "), sd, kHalfCent) << p.code;
        // One bar a value, 4 mm a unit of frequency, in the table's order.
        std::size_t at = 0;
        for (double freq : f) {
            at = p.solution.find(":&FF=REC,-3,-", at);
            ASSERT_NE(at, std::string::npos) << p.code;
            at += 13;
            EXPECT_EQ(ReadMarkupNumber(p.solution.substr(at)), 4 * freq) << p.code;
        }
        EXPECT_NE(p.solution.find("&FF=REC,0.2,-" + std::to_string(static_cast<int>(4 * *std::max_element(f.begin(), f.end()))) + ":"),
                  std::string::npos) << p.code;
    });
    EXPECT_EQ(reversed.size(), 2u);
}

TEST(PesStatistics, GroupedSweep) {
    std::set<std::string> measures;
    SweepRoutine("KVOL_MATH_PES", 2, 2500, [&](const GeneratedProblem& p) {
        const auto cells = TableCells(p.statement, "&SP=11:", "&SP=23:");
        ASSERT_GE(cells.size(), 4u) << p.code;
        ASSERT_LE(cells.size(), 6u) << p.code;
        std::vector<double> low, high, f;
        for (const auto& [interval, freq] : cells) {
            ASSERT_EQ(interval.front(), '[') << p.code;
            low.push_back(ReadMarkupNumber(interval.substr(1)));
            high.push_back(ReadMarkupNumber(interval.substr(interval.find(", ") + 2)));
            f.push_back(ReadMarkupNumber(freq));
        }
        EXPECT_EQ(std::set<double>(f.begin(), f.end()).size(), f.size()) << p.code;
        // Sort the classes rising; they must join without gaps, all of one width.
        std::vector<int> order(low.size());
        std::iota(order.begin(), order.end(), 0);
        std::sort(order.begin(), order.end(), [&](int a, int b) { return low[a] < low[b]; });
        const double w = high[0] - low[0];
        EXPECT_GE(w, 5);
        EXPECT_LE(w, 20);
        for (std::size_t j = 0; j < order.size(); ++j) {
            EXPECT_EQ(high[order[j]] - low[order[j]], w) << p.code;
            if (j) {
                EXPECT_EQ(low[order[j]], high[order[j - 1]]) << p.code;
            }
        }
        double n = 0, sum = 0;
        for (std::size_t i = 0; i < f.size(); ++i) {
            n += f[i];
            sum += f[i] * (low[i] + high[i]) / 2;
        }
        const double mean = sum / n;
        double squares = 0;
        for (std::size_t i = 0; i < f.size(); ++i) squares += f[i] * std::pow((low[i] + high[i]) / 2 - mean, 2);
        // The point below which a share of the data lies, by interpolation in its class.
        auto quantile = [&](double share) {
            const double target = share * n;
            double below = 0;
            for (int i : order) {
                if (below + f[i] >= target) return low[i] + (target - below) / f[i] * w;
                below += f[i];
            }
            return high[order.back()];
        };
        auto shareBelow = [&](double x) {
            double below = 0;
            for (std::size_t i = 0; i < f.size(); ++i) below += f[i] * std::clamp((x - low[i]) / w, 0.0, 1.0);
            return below / n;
        };
        EXPECT_NEAR(NumberAfter(p.solution, "#SED(&+Ix&-I#SED) = "), mean, kHalfCent) << p.code;
        const double median = NumberAfter(p.solution, "&+IMe&-I = ");
        EXPECT_NEAR(median, quantile(0.5), kHalfCent) << p.code;
        EXPECT_NEAR(shareBelow(median), 0.5, 1e-3) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+I&DT&-I = "), std::sqrt(squares / n), kHalfCent) << p.code;
        // The mode lies in the class of the largest frequency.
        const int modal = static_cast<int>(std::max_element(f.begin(), f.end()) - f.begin());
        const double mode = NumberAfter(p.solution, "&+IMo&-I = ");
        EXPECT_GE(mode, low[modal] - 0.005) << p.code;
        EXPECT_LE(mode, high[modal] + 0.005) << p.code;
        // The histogram: one bar a class, rising, 4 mm a unit of frequency, bars touching.
        std::size_t bar = 0;
        for (int i : order) {
            bar = p.solution.find(":&FF=REC,-6.5,-", bar);
            ASSERT_NE(bar, std::string::npos) << p.code;
            bar += 15;
            EXPECT_EQ(ReadMarkupNumber(p.solution.substr(bar)), 4 * f[i]) << p.code;
        }
        EXPECT_EQ(p.solution.find(":&FF=REC,-6.5,-", bar), std::string::npos) << p.code;
        if (p.statement.find("percentage of data below") != std::string::npos) {
            measures.insert("percentage");
            const double x = NumberAfter(p.statement, "below &+Ix&-I& =& ");
            EXPECT_GT(x, low[order.front()]);
            EXPECT_LT(x, high[order.back()]);
            EXPECT_NE(p.statement.find(" and histogram chart"), std::string::npos);
            const auto at = p.solution.find("Percentage of data below &+Ix&-I& =& ");
            ASSERT_NE(at, std::string::npos) << p.code;
            EXPECT_NEAR(NumberAfter(p.solution, ": ", at), 100 * shareBelow(x), kHalfCent) << p.code;
        } else {
            const bool percentile = p.statement.find(" percentile and histogram chart") != std::string::npos;
            const bool quartile = p.statement.find(" quartile and histogram chart") != std::string::npos;
            ASSERT_TRUE(percentile || quartile) << p.statement;
            measures.insert(percentile ? "percentile" : "quartile");
            const double k = NumberAfter(p.statement, "standard deviation, ");
            if (quartile) EXPECT_TRUE(k == 1 || k == 3) << p.code;
            else EXPECT_TRUE(k >= 5 && k <= 95) << p.code;
            EXPECT_NEAR(NumberAfter(p.solution, percentile ? "percentile = " : "quartile = "),
                        quantile(k / (percentile ? 100 : 4)), kHalfCent) << p.code;
        }
    });
    EXPECT_EQ(measures.size(), 3u);
}

TEST(PesStatistics, RegressionSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_PES", 3, 2500, [&](const GeneratedProblem& p) {
        types.insert(p.fields.Seed % 4);
        const auto cells = TableCells(p.statement, "&SP=11:", "&SP=20:");
        ASSERT_GE(cells.size(), 4u) << p.code;
        ASSERT_LE(cells.size(), 6u) << p.code;
        std::vector<double> x, y;
        for (const auto& [a, b] : cells) {
            x.push_back(ReadMarkupNumber(a));
            y.push_back(ReadMarkupNumber(b));
        }
        const double n = static_cast<double>(x.size());
        const double mx = std::accumulate(x.begin(), x.end(), 0.0) / n;
        const double my = std::accumulate(y.begin(), y.end(), 0.0) / n;
        double vx = 0, vy = 0, cxy = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            vx += (x[i] - mx) * (x[i] - mx) / n;
            vy += (y[i] - my) * (y[i] - my) / n;
            cxy += (x[i] - mx) * (y[i] - my) / n;
        }
        EXPECT_GT(vx, 0) << p.code;
        EXPECT_GT(vy, 0) << p.code;
        const double r = cxy / std::sqrt(vx * vy);
        // The data follow a line: a strong correlation.
        EXPECT_GT(std::fabs(r), 0.8) << p.code;
        const double slope = cxy / vx;
        const double intercept = my - slope * mx;
        EXPECT_NEAR(NumberAfter(p.solution, "#SED(&+Ix&-I#SED) = "), mx, kHalfCent) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "#SED(&+Iy&-I#SED) = "), my, kHalfCent) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+I&DT_x&-I = "), std::sqrt(vx), kHalfCent) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+I&DT_y&-I = "), std::sqrt(vy), kHalfCent) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+I&DT_x_y&-I = "), cxy, kHalfCent) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "&+Ir&-I = "), r, 0.00005 + 1e-9) << p.code;
        // The line "y = b x + a".
        const auto lineAt = p.solution.find("&+Iy&-I& =& ");
        ASSERT_NE(lineAt, std::string::npos);
        const std::string line = p.solution.substr(lineAt + 12, p.solution.find("&LF", lineAt) - lineAt - 12);
        const auto xAt = line.find("&+Ix&-I");
        ASSERT_NE(xAt, std::string::npos) << line;
        const std::string slopeText = line.substr(0, xAt);
        const double b = slopeText.empty() ? 1 : slopeText == "-" ? -1 : ReadMarkupNumber(slopeText);
        EXPECT_NEAR(b, slope, 0.00005 + 1e-9) << p.code;
        double a = 0;
        const std::string rest = line.substr(xAt + 7);
        if (rest.rfind("& +& ", 0) == 0) a = ReadMarkupNumber(rest.substr(5));
        else if (rest.rfind("& -& ", 0) == 0) a = -ReadMarkupNumber(rest.substr(5));
        else EXPECT_TRUE(rest.empty()) << line;
        EXPECT_NEAR(a, intercept, 0.00005 + 1e-9) << p.code;
        // The estimate at the point the statement names, inside the data's range.
        const auto cAt = p.statement.find("&+Bc)&-B");
        ASSERT_NE(cAt, std::string::npos);
        const std::string partC = p.statement.substr(cAt);
        const auto digits = partC.find_first_of("-0123456789", partC.find("#AND(&+Ix&-I#AND)") != std::string::npos
                                                                ? partC.find("#AND(&+Ix&-I#AND)") + 17
                                                                : partC.find("is ") + 3);
        const double at = ReadMarkupNumber(partC.substr(digits));
        EXPECT_GE(at, *std::min_element(x.begin(), x.end())) << p.code;
        EXPECT_LE(at, *std::max_element(x.begin(), x.end())) << p.code;
        EXPECT_NEAR(NumberAfter(p.solution, "#AND(&+Iy&-I#AND) = "), intercept + slope * at, kHalfCent) << p.code;
        const char* const kUnits[] = {"&LF", " kg&LF", " cm&LF", " g&LF"};
        const std::string ending = p.solution.substr(p.solution.rfind("#AND) = "));
        const std::string unit = kUnits[p.fields.Seed % 4];
        EXPECT_EQ(ending.substr(ending.size() - unit.size()), unit) << p.code;
    });
    EXPECT_EQ(types.size(), 4u);
}

TEST(PesStatistics, NormalDistributionSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_PES", 4, 2500, [&](const GeneratedProblem& p) {
        const std::string& s = p.statement;
        double mean = 0, sd = 0;
        if (s.find("with a mean of& ") != std::string::npos) {
            mean = NumberAfter(s, "with a mean of& ");
            sd = NumberAfter(s, "standard deviation of& ");
        } else {
            mean = NumberAfter(s, "&+IN&-I(");
            sd = NumberAfter(s, ",& ", s.find("&+IN&-I("));
        }
        ASSERT_GT(sd, 0) << p.code;
        double sample = 1;
        if (s.find("random sample of ") != std::string::npos) sample = NumberAfter(s, "random sample of ");
        const double scale = sd / std::sqrt(sample);
        auto below = [&](double limit) { return Reference((limit - mean) / scale); };
        auto percent = [&](const char* label) {
            const auto at = p.solution.find(label);
            EXPECT_NE(at, std::string::npos) << label << " " << p.code;
            return ReadMarkupNumber(p.solution.substr(at + std::string(label).size()));
        };
        int type = 0;
        if (s.rfind("The random variable &+Ix&-I follows", 0) == 0) {
            type = 1;
            EXPECT_NEAR(percent("&+Ba)&-B "), 100 * below(NumberAfter(s, "value below ")), kHalfCent) << p.code;
            EXPECT_NEAR(percent("&+Bb)&-B "), 100 * (1 - below(NumberAfter(s, "value above "))), kHalfCent) << p.code;
            const double lo = NumberAfter(s, "value between ");
            const double hi = NumberAfter(s, " and ", s.find("value between "));
            EXPECT_LT(lo, hi);
            EXPECT_NEAR(percent("&+Bc)&-B "), 100 * (below(hi) - below(lo)), kHalfCent) << p.code;
        } else if (s.rfind("If the random variable", 0) == 0) {
            type = 2;
            EXPECT_NEAR(percent("&+Ba)&-B "), 100 * (1 - below(NumberAfter(s, "value exceeding "))), kHalfCent);
            const double q = NumberAfter(s, "lower probability of ") / 100;
            const double x = NumberAfter(p.solution, "&+Bb)&-B &+Ix&-I = ");
            EXPECT_NEAR(x, mean + sd * ReferenceInverse(q), kHalfCent + 1e-5 * sd) << p.code;
        } else if (s.rfind("The random variable  &+Ix&-I  follows", 0) == 0) {
            type = 3;
            EXPECT_NEAR(percent("&+Ba)&-B "), 100 * below(NumberAfter(s, "value below ")), kHalfCent) << p.code;
            const double q = NumberAfter(s, "upper probability of ") / 100;
            const double x = NumberAfter(p.solution, "&+Bb)&-B &+Ix&-I = ");
            EXPECT_NEAR(x, mean + sd * ReferenceInverse(1 - q), kHalfCent + 1e-5 * sd) << p.code;
        } else if (s.find("We select at random a fruit.") != std::string::npos ||
                   s.find("average weight of the sample takes a value exceeding") != std::string::npos) {
            type = sample > 1 ? 5 : 4;
            EXPECT_NEAR(percent("&+Ba)&-B "), 100 * (1 - below(NumberAfter(s, "value exceeding "))), kHalfCent);
            const double lo = NumberAfter(s, "value between ");
            const double hi = NumberAfter(s, " g  and ", s.find("value between "));
            EXPECT_LT(lo, hi);
            EXPECT_NEAR(percent("&+Bb)&-B "), 100 * (below(hi) - below(lo)), kHalfCent) << p.code;
        } else if (s.rfind("In a country", 0) == 0) {
            type = 6;
            EXPECT_NEAR(percent("&+Ba)&-B "), 100 * below(NumberAfter(s, "value below ")), kHalfCent) << p.code;
        } else if (s.rfind("We know that the ", 0) == 0) {
            type = 7;
            EXPECT_NEAR(percent("&+Ba)&-B "), 100 * (1 - below(NumberAfter(s, "value exceeding "))), kHalfCent);
        }
        ASSERT_NE(type, 0) << s;
        types.insert(type);
        // The progressive order: the last third of a group takes the sample-mean types.
        const int g = p.fields.GroupSize, i = p.fields.GroupIndex;
        if (g == 1) EXPECT_EQ(type, 1 + p.fields.Seed % 7) << p.code;
        else if (100 * i / g <= 66) EXPECT_EQ(type, 1 + p.fields.Seed % 4) << p.code;
        else EXPECT_EQ(type, 5 + p.fields.Seed % 3) << p.code;
    });
    EXPECT_EQ(types.size(), 7u);
}

TEST(PesStatistics, NormalDistributionGroupOfZeroIsAFault) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_PES", {4, 0, 17, 1, 0, 1});
    EXPECT_EQ(p.statement.rfind("<ERROR>  Number= ", 0), 0u) << p.statement;
}

// A falling series of values still has its median found among the sorted values.
TEST(PesStatistics, FallingSeriesMedian) {
    GeneratorHub hub;
    int falling = 0;
    for (int seed = 0; seed < 200 && falling < 20; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_PES", {1, 0, seed, 0, 1, 1});
        const auto cells = TableCells(p.statement, "&SP=11:", "&SP=20:");
        std::vector<double> data;
        for (const auto& [value, freq] : cells) {
            for (int k = 0; k < ReadMarkupNumber(freq); ++k) data.push_back(ReadMarkupNumber(value));
        }
        if (ReadMarkupNumber(cells[1].first) > ReadMarkupNumber(cells[0].first)) continue;
        ++falling;
        EXPECT_NEAR(NumberAfter(p.solution, "&+IMe&-I = "), MedianOfList(data), 1e-9) << p.code;
    }
    EXPECT_EQ(falling, 20);
}

namespace {
// The filled rectangles of a chart line, each at the tab (percent of the text width) where
// it is drawn: "&SP=p:" ... "&FF=REC,w,h:" in mm.
struct Rect {
    double tab, width, height;
};
std::vector<Rect> ChartRects(const std::string& line) {
    std::vector<Rect> rects;
    double tab = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line.compare(i, 4, "&SP=") == 0) tab = std::stod(line.substr(i + 4));
        if (line.compare(i, 8, "&FF=REC,") == 0) {
            const std::size_t comma = line.find(',', i + 8);
            rects.push_back({tab, std::stod(line.substr(i + 8)), std::stod(line.substr(comma + 1))});
        }
    }
    return rects;
}

// Every bar of a chart lies over its horizontal axis, whatever the text width.
void ExpectAxisUnderEveryBar(const std::string& solution, const std::string& code) {
    const auto from = solution.find("&SP=12:&BC=96;96;128:");
    ASSERT_NE(from, std::string::npos) << code;
    const std::vector<Rect> rects = ChartRects(solution.substr(from, solution.find("&LF", from) - from));
    for (double textMm : {177.5, 186.7, 210.0}) {
        // The axis pieces are the rules 0.2 mm high; the bars hang upwards (negative height).
        std::vector<std::pair<double, double>> axis, bars;
        for (const Rect& r : rects) {
            const double x = r.tab / 100 * textMm;
            auto& into = r.height == 0.2 ? axis : bars;
            if (r.height < 0 && r.width == 0.2) continue;  // the frequency axis
            into.emplace_back(std::min(x, x + r.width), std::max(x, x + r.width));
        }
        ASSERT_FALSE(axis.empty()) << code;
        std::sort(axis.begin(), axis.end());
        double reach = axis.front().first;
        EXPECT_NEAR(reach, 12.0 / 100 * textMm, 1e-9) << code << ": the axis starts at the origin";
        for (const auto& [left, right] : axis) {
            EXPECT_LE(left, reach + 1e-9) << code << ": a gap in the axis at " << textMm << " mm";
            reach = std::max(reach, right);
        }
        for (const auto& [left, right] : bars) {
            EXPECT_GE(left, axis.front().first - 1e-9) << code;
            EXPECT_LE(right, reach + 1e-9) << code << ": a bar past the axis at " << textMm << " mm";
        }
    }
}

std::size_t Occurrences(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + piece.size())) ++count;
    return count;
}

// The heads of a table stand at the tabs of its columns, on its band, and are written once:
// the band, its rule and the closing rule are filled boxes, so that no hidden copy of a
// head sizes them (a copied PDF text would show it twice).
void ExpectHeadsOverTheirColumns(const std::string& statement, const TableLook& look, const std::string& code) {
    const std::string band = "&BC=230;230;250:&FF=REC," + look.bandWidth + ",5.5:";
    const auto header = statement.find(band);
    ASSERT_NE(header, std::string::npos) << code;
    const std::string line = statement.substr(header, statement.find("&LF", header) - header);
    EXPECT_EQ(line.find(band + look.firstColumn + look.firstHead + look.secondColumn + look.secondHead), 0u)
        << code << ": " << line;
    // The words before the table may name a head; the table writes each once.
    const std::string table = statement.substr(header);
    EXPECT_EQ(Occurrences(table, look.secondHead), 1u) << code;
    EXPECT_EQ(Occurrences(table, "&FF=REC," + look.bandWidth + ",0.2:"), 1u) << code << ": the closing rule";
}
} // namespace

TEST(PesStatistics, ChartsHaveAnAxisUnderEveryBarAndTablesTheirHeadsOverTheColumns) {
    SweepRoutine("KVOL_MATH_PES", 1, 300, [](const GeneratedProblem& p) {
        ExpectAxisUnderEveryBar(p.solution, p.code);
        ExpectHeadsOverTheirColumns(p.statement, kFrequencyTableLook, p.code);
    });
    SweepRoutine("KVOL_MATH_PES", 2, 300, [](const GeneratedProblem& p) {
        ExpectAxisUnderEveryBar(p.solution, p.code);
        ExpectHeadsOverTheirColumns(p.statement, kClassTableLook, p.code);
    });
    SweepRoutine("KVOL_MATH_PES", 3, 100, [](const GeneratedProblem& p) {
        ExpectHeadsOverTheirColumns(p.statement, kPairTableLook, p.code);
    });
}
