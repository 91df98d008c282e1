#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "generators/hub.h"
#include "calculus_checks.h"
#include "support/generator_sweep.h"

namespace {
using Row = std::array<double, 4>;

Row ValueRow(double x) { return {1, x, x * x, x * x * x}; }
Row SlopeRow(double x) { return {0, 1, 2 * x, 3 * x * x}; }
Row BendRow(double x) { return {0, 0, 2, 6 * x}; }

double Apply(const Row& r, const Row& c) { return r[0] * c[0] + r[1] * c[1] + r[2] * c[2] + r[3] * c[3]; }

double Determinant(std::vector<std::vector<double>> m) {
    const int n = static_cast<int>(m.size());
    double det = 1;
    for (int col = 0; col < n; ++col) {
        int pivot = col;
        for (int r = col + 1; r < n; ++r)
            if (std::fabs(m[r][col]) > std::fabs(m[pivot][col])) pivot = r;
        if (std::fabs(m[pivot][col]) < 1e-12) return 0;
        if (pivot != col) std::swap(m[pivot], m[col]);
        det *= m[col][col];
        for (int r = col + 1; r < n; ++r) {
            const double f = m[r][col] / m[col][col];
            for (int k = col; k < n; ++k) m[r][k] -= f * m[col][k];
        }
    }
    return det;
}

double NumberAfter(const std::string& text, const std::string& head) {
    const auto at = text.find(head);
    EXPECT_NE(at, std::string::npos) << head << " in " << text;
    return std::stod(text.substr(at + head.size()));
}

// Reads "(x&, y)".
std::pair<double, double> PointIn(const std::string& text) {
    const auto open = text.find('(');
    const auto sep = text.find("&, ", open);
    return {std::stod(text.substr(open + 1)), std::stod(text.substr(sep + 3))};
}

void CheckConditions(const GeneratedProblem& p) {
    const bool cubic = p.statement.find("cx& +& d") != std::string::npos;
    const int unknowns = cubic ? 4 : 3;
    // The answer: a, b, c (, d) from the highest degree down.
    Row c{};
    const char* names[] = {"a", "b", "c", "d"};
    for (int i = 0; i < unknowns; ++i) c[unknowns - 1 - i] = NumberAfter(p.solution, std::string("&+I") + names[i] + "&-I = ");
    EXPECT_NE(c[unknowns - 1], 0) << p.code;
    const auto start = p.statement.find(" if the function ") + 17;
    std::string rest = p.statement.substr(start, p.statement.size() - 4 - start);
    std::vector<std::string> phrases;
    std::size_t pos = 0;
    while (pos <= rest.size()) {
        std::size_t next = std::min(rest.find(",  ", pos), rest.find("  and ", pos));
        if (next == std::string::npos) next = rest.size();
        phrases.push_back(rest.substr(pos, next - pos));
        pos = next + (rest.compare(next, 6, "  and ") == 0 ? 6 : 3);
    }
    std::vector<std::vector<double>> system;
    auto add = [&](const Row& r, double value) {
        EXPECT_NEAR(Apply(r, c), value, 1e-9) << p.code << "\n" << p.statement << "\n" << p.solution;
        system.push_back(std::vector<double>(r.begin(), r.begin() + unknowns));
    };
    for (const auto& phrase : phrases) {
        if (phrase.rfind("has an extrema at the point whose &+Ix&-I value is ", 0) == 0) {
            const double x = NumberAfter(phrase, "value is ");
            add(SlopeRow(x), 0);
            EXPECT_NE(Apply(BendRow(x), c), 0) << p.code << " not an extremum: " << phrase;
        } else if (phrase.rfind("has an extrema at the point  ", 0) == 0) {
            const auto [x, y] = PointIn(phrase);
            add(SlopeRow(x), 0);
            add(ValueRow(x), y);
            EXPECT_NE(Apply(BendRow(x), c), 0) << p.code << " not an extremum: " << phrase;
        } else if (phrase.rfind("passes through point  ", 0) == 0) {
            const auto [x, y] = PointIn(phrase);
            add(ValueRow(x), y);
        } else if (phrase.rfind("cuts Y-axis at the point whose &+Iy&-I value is ", 0) == 0) {
            add(ValueRow(0), NumberAfter(phrase, "value is "));
        } else if (phrase.rfind("has a tangent line of slope ", 0) == 0) {
            add(SlopeRow(NumberAfter(phrase, "value is ")), NumberAfter(phrase, "slope "));
        } else if (phrase.rfind("has the tangent line  ", 0) == 0) {
            const double x = NumberAfter(phrase, "value is ");
            const auto eq = phrase.find("& =& ") + 5;
            const std::string line = phrase.substr(eq, phrase.find("  at the") - eq);
            const double q = ReadMarkupAt(line, 0), m = ReadMarkupAt(line, 1) - q;
            add(SlopeRow(x), m);
            add(ValueRow(x), m * x + q);
        } else if (phrase.rfind("has an inflection point at  ", 0) == 0) {
            const auto [x, y] = PointIn(phrase);
            add(BendRow(x), 0);
            add(ValueRow(x), y);
        } else if (phrase.rfind("has an inflection point at the point whose &+Ix&-I value is ", 0) == 0) {
            add(BendRow(NumberAfter(phrase, "value is ")), 0);
        } else {
            ADD_FAILURE() << p.code << " unknown condition: " << phrase;
        }
    }
    // As many conditions as unknowns, and they fix the polynomial.
    ASSERT_EQ(static_cast<int>(system.size()), unknowns) << p.code << " " << p.statement;
    EXPECT_GT(std::fabs(Determinant(system)), 1e-9) << p.code << " " << p.statement;
}
} // namespace

TEST(PolynomialConditions, Sweep) { SweepRoutine("KVOL_MATH_LFD", 32, 3000, CheckConditions); }

TEST(PolynomialConditions, TwoLevelsThroughTheGroup) {
    GeneratorHub hub;
    for (int seed : {0, 123, 4567}) {
        for (int i = 1; i <= 4; ++i) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_LFD", {32, 0, seed + i, 0, 4, i});
            const bool cubic = p.statement.find("cx& +& d") != std::string::npos;
            EXPECT_EQ(cubic, i > 2) << p.code;  // 25 %, 50 % parabolas; 75 %, 100 % cubics
        }
    }
}
