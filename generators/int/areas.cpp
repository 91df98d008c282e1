#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "generators/int/int_routines.h"
#include "generators/shared/sum_terms.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kX = "&+Ix&-I";

std::string Num(double v) { return PlainNumberText(v); }

// The rounded value that follows an exact area.
// "&iorden" prints the sign "approximately equal" (≈); "&aprox" would print the
// congruence sign (≅), which reads wrong here.
std::string Approximately(MathWorkspace& ws, double value) {
    return " &iorden " + NumberToMarkup(RoundAtPosition(ws, value, -3));
}

std::string Closing() { return " u^2.&LF"; }

// a·e^n written as the reader expects: 1 for n = 0, e for n = 1.
std::string PowerOfE(double n) {
    if (n == 0) return "1";
    if (n == 1) return "&+Ie&-I";
    return "#EXP( " + Num(n) + "#EXP)";
}

// The integral of a polynomial (coefficients by degree) from a to b, as an exact
// fraction over 720, enough for degrees up to 3 and whole limits: the numerator is
// returned, the denominator is 720.
double PolynomialIntegral720(const std::vector<double>& c, double a, double b) {
    double total = 0;
    for (std::size_t k = 0; k < c.size(); ++k) {
        total += c[k] * (std::pow(b, k + 1) - std::pow(a, k + 1)) * (720.0 / (k + 1));
    }
    return std::round(total);
}

// Coefficients by degree of k·(x - r1)(x - r2)... for the given roots.
std::vector<double> FromRoots(double k, const std::vector<double>& roots) {
    std::vector<double> c = {k};
    for (double r : roots) {
        std::vector<double> next(c.size() + 1, 0.0);
        for (std::size_t i = 0; i < c.size(); ++i) {
            next[i + 1] += c[i];
            next[i] -= r * c[i];
        }
        c = next;
    }
    return c;
}

std::string PolynomialText(const std::vector<double>& c) {
    std::vector<double> d(5, 0.0);
    for (std::size_t k = 0; k < c.size() && k < 5; ++k) d[k] = c[k];
    return PolynomialToMarkup(d[4], d[3], d[2], d[1], d[0], kX);
}

std::string CrossingPoints(const std::vector<double>& roots) {
    std::string text = "The curve cuts the &+IX&-I axis at  " + kX + "& =& ";
    for (std::size_t i = 0; i < roots.size(); ++i) text += (i ? ",  " : "") + Num(roots[i]);
    return text + ".&LF";
}

struct OneFunctionArea {
    std::string function;       // the right side of y =
    double low = 0, high = 0;   // the vertical lines; unused for the parabola and the axis
    bool betweenLines = true;   // false: the parabola and the X axis alone
    std::string solution;
};

// Types 4, 5, 6, 8: parabolas and cubics whose crossing points split the area.
OneFunctionArea PolynomialArea(GeneratorWorkspace& ws, int type) {
    OneFunctionArea out;
    std::vector<double> roots;
    double k = 1, low = 0, high = 0;
    RetryBound bound;
    while (true) {
        const double r1 = RandomInRange(ws, -2, 2, 1, 1);
        const double r2 = RandomInRange(ws, -5, 5, 1, 0);
        const double gap = RandomInRange(ws, 1, 6, 1, 1);
        k = RandomInRange(ws, -3, 3, 1, 1);
        const double extra = RandomInRange(ws, 1, 3, 1, 1);
        if (type == 4) {
            // A parabola, one root inside the lines, the other on the right line.
            roots = {r1, r1 + gap};
            low = r1 - extra;
            high = r1 + gap;
        } else if (type == 5) {
            // A cubic between its outer roots.
            roots = {r1, r2, r1 + gap};
            low = std::min(r1, r2);
            high = std::max(r2, r1 + gap);
        } else if (type == 6) {
            // A parabola with both roots between the lines: three parts.
            roots = {r1, r1 + gap};
            low = r1 - extra;
            high = r1 + gap + 1;
        } else {
            roots = {r1, r1 + gap};
            low = r1;
            high = r1 + gap;
        }
        bool distinct = true;
        for (std::size_t i = 0; i < roots.size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                if (roots[i] == roots[j]) distinct = false;
        // A cubic's coefficients grow fast: keep them readable.
        const auto c = FromRoots(type == 5 ? (k > 0 ? 1 : -1) : k, roots);
        bool small = true;
        for (double v : c) small = small && std::fabs(v) <= 60;
        if (distinct && small) break;
        bound.Next();
    }
    if (type == 5) k = k > 0 ? 1 : -1;
    std::sort(roots.begin(), roots.end());
    const auto c = FromRoots(k, roots);
    // The parts between the lines, split at the crossing points, each counted positive.
    std::vector<double> cuts = {low};
    for (double r : roots)
        if (r > low && r < high) cuts.push_back(r);
    cuts.push_back(high);
    double exact720 = 0;
    for (std::size_t i = 1; i < cuts.size(); ++i) exact720 += std::fabs(PolynomialIntegral720(c, cuts[i - 1], cuts[i]));
    out.function = PolynomialText(c);
    out.low = low;
    out.high = high;
    out.betweenLines = type != 8;
    out.solution = CrossingPoints(roots) + "Area = " + FractionToMarkup(ws, exact720, 720) + Closing();
    return out;
}

OneFunctionArea PowerAndReciprocalArea(GeneratorWorkspace& ws) {
    // Type 1: y = p·x + q / x + c on positive limits: positive, no crossing.
    const double p = RandomInRange(ws, 1, 8, 1, 1);
    const double q = RandomInRange(ws, 1, 8, 1, 1);
    const double c = RandomInRange(ws, 0, 10, 1, 0);
    const double a = RandomInRange(ws, 1, 5, 1, 1);
    RandomInRange(ws, 1, 5, 1, 1);  // drawn with the limits; the width below decides
    const double w = RandomInRange(ws, 2, 6, 1, 1);
    const double b = a + w;
    OneFunctionArea out;
    out.function = (p == 1 ? kX : Num(p) + kX) + "& +& #COC(" + Num(q) + "#N)(" + kX + "#COC)" +
                   (c ? "& +& " + Num(c) : "");
    out.low = a;
    out.high = b;
    // p(b² - a²)/2 + c(b - a) + q·ln(b/a)
    std::string exact;
    AppendTerm(ws, exact, p * (b * b - a * a) + 2 * c * (b - a), 2, "");
    const double g = Gcd(ws, b, a);
    const std::string ratio = a / g == 1 ? Num(b / g) : "#COC(" + Num(b / g) + "#N)(" + Num(a / g) + "#COC)";
    AppendTerm(ws, exact, q, 1, "_ ln_ " + ratio);
    const double value = p * (b * b - a * a) / 2 + c * (b - a) + q * std::log(b / a);
    out.solution = "Area = " + exact + Approximately(ws, value) + Closing();
    return out;
}

OneFunctionArea ExponentialArea(GeneratorWorkspace& ws) {
    // Type 2: y = a·e^(kx) + c with c not negative: above the axis everywhere.
    const double a = RandomInRange(ws, 1, 6, 1, 1);
    const double c = std::fabs(RandomInRange(ws, -7, 7, 1, 0));
    const double k = RandomInRange(ws, 1, 3, 1, 1);
    const double w = RandomInRange(ws, 1, 3, 1, 1);
    const double low = RandomInRange(ws, -2, 2, 1, 0);
    const double high = low + w;
    OneFunctionArea out;
    out.function = (a == 1 ? "" : Num(a)) + "#EXP( " + (k == 1 ? kX : Num(k) + kX) + "#EXP)" + (c ? "& +& " + Num(c) : "");
    out.low = low;
    out.high = high;
    // (a/k)(e^(k·high) - e^(k·low)) + c(high - low)
    const std::string bracket = "(" + PowerOfE(k * high) + " - " + PowerOfE(k * low) + ")";
    std::string exact;
    AppendTerm(ws, exact, a, k, bracket);
    AppendTerm(ws, exact, c * (high - low), 1, "");
    const double value = a / k * (std::exp(k * high) - std::exp(k * low)) + c * (high - low);
    out.solution = "Area = " + exact + Approximately(ws, value) + Closing();
    return out;
}

OneFunctionArea LogarithmArea(GeneratorWorkspace& ws) {
    // Type 3: y = a·ln x from x = low ≥ 1: not negative there.
    const double a = RandomInRange(ws, 2, 8, 2, 1);
    RandomInRange(ws, -4, 10, 1, 0);  // drawn with the others; the curve has no constant term
    const double low = RandomInRange(ws, 1, 3, 1, 1);
    const double w = RandomInRange(ws, 1, 4, 1, 1);
    RandomInRange(ws, 1, 4, 1, 1);
    const double high = low + w;
    OneFunctionArea out;
    out.function = Num(a) + "_ ln_ " + kX;
    out.low = low;
    out.high = high;
    // a(high·ln high - high) - a(low·ln low - low)
    std::string exact;
    AppendTerm(ws, exact, a * high, 1, "_ ln_ " + Num(high));
    if (low != 1) AppendTerm(ws, exact, -a * low, 1, "_ ln_ " + Num(low));
    AppendTerm(ws, exact, -a * (high - low), 1, "");
    const double value = a * (high * std::log(high) - high) - a * (low * std::log(low) - low);
    out.solution = "Area = " + exact + Approximately(ws, value) + Closing();
    return out;
}

OneFunctionArea HyperbolaArea(GeneratorWorkspace& ws) {
    // Type 7: y = a / (x + b) + c between lines on one branch, the constant c of a sign
    // that keeps the curve on one side of the axis there.
    const double a = RandomInRange(ws, -9, 9, 1, 1);
    const double b = RandomInRange(ws, -8, 8, 1, 0);
    const double s = RandomInRange(ws, 1, 5, 1, 1);
    const double w = RandomInRange(ws, 2, 6, 1, 1);
    const double low = -b + s, high = low + w;
    OneFunctionArea out;
    out.function = "#COC(" + Num(a) + "#N)(" + ShiftedVariable(kX, b) + "#COC)";
    out.low = low;
    out.high = high;
    // |a|·ln((s + w) / s)
    const double g = Gcd(ws, s + w, s);
    const std::string ratio = s / g == 1 ? Num((s + w) / g) : "#COC(" + Num((s + w) / g) + "#N)(" + Num(s / g) + "#COC)";
    std::string exact;
    AppendTerm(ws, exact, std::fabs(a), 1, "_ ln_ " + ratio);
    const double value = std::fabs(a) * std::log((s + w) / s);
    out.solution = "Area = " + exact + Approximately(ws, value) + Closing();
    return out;
}
} // namespace

// Routine 3: the area between one curve and the X axis, in three bands of difficulty
// through the group.
void AreaInvolvingOneFunction(GeneratorWorkspace& ws) {
    const double g = ws.GroupSize, i = ws.GroupIndex;
    int type;
    if (g == 1) {
        type = static_cast<int>(RandomInRange(ws, 1, 8, 1, 1));
    } else {
        // A group size of 0 divides by zero here; the hub reports it as the problem's text.
        const double p = Int(100 * i / g);
        const int index = static_cast<int>(i);
        if (p <= 33) {
            type = 4 + index % 3;
            if (type == 6) type = 8;
        } else if (p <= 66) {
            type = 6 + index % 2;
        } else {
            type = 1 + index % 3;
        }
    }
    OneFunctionArea area;
    switch (type) {
    case 1: area = PowerAndReciprocalArea(ws); break;
    case 2: area = ExponentialArea(ws); break;
    case 3: area = LogarithmArea(ws); break;
    case 7: area = HyperbolaArea(ws); break;
    default: area = PolynomialArea(ws, type); break;
    }
    std::string statement;
    if (!area.betweenLines) {
        statement = "Calculate the area between the parabola  &+Iy&-I& =& " + area.function +
                    " and the &+IX&-I axis.&LF";
    } else {
        switch (static_cast<int>(i) % 4) {
        case 0:
            statement = "Calculate the area between the curve  &+Iy&-I& =& " + area.function + ",  the &+IX&-I axis";
            break;
        case 1:
            statement = "Let the curve  &+Iy&-I& =& " + area.function +
                        ",  find the area between this curve, the &+IX&-I axis";
            break;
        case 2:
            statement = "Use a definite integral to calculate the area between the &+IX&-I axis,  the curve  "
                        "&+Iy&-I& =& " + area.function;
            break;
        default:
            statement = "Find the area between the &+IX&-I axis,  the curve  &+Iy&-I& =& " + area.function;
            break;
        }
        statement += ws.VariantNumber % 2 == 0 ? " and the vertical lines" : " and the lines";
        statement += "  " + kX + "& =& " + Num(area.low) + "  and  " + kX + "& =& " + Num(area.high) + ".&LF";
    }
    ws.Statement = statement;
    ws.Solution = area.solution;
}

namespace {
const char* const kParameterLetters = "ahkmnpqrw";
} // namespace

// Routine 4: the area between a parabola and a line or a hyperbola and its chord, or a
// parameter found from a given area; the type by the seed.
void AreaInvolvingTwoFunctions(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 4;
    if (type == 0) {
        // The crossing points first; the parabola is the line plus k(x - x1)(x - x2).
        const double k = RandomInRange(ws, -2, 2, 1, 1);
        const double x1 = RandomInRange(ws, -6, 4, 1, 0);
        const double x2 = x1 + RandomInRange(ws, 2, 5, 1, 1);
        const double m = RandomInRange(ws, -4, 4, 1, 0);
        const double q = RandomInRange(ws, -6, 6, 1, 0);
        const double c2 = k, c1 = m - k * (x1 + x2), c0 = q + k * x1 * x2;
        ws.Statement = "Calculate the area between the parabola  &+Iy&-I& =& " +
                       PolynomialToMarkup(0, 0, c2, c1, c0, kX) + " and the line  &+Iy&-I& =& " +
                       PolynomialToMarkup(0, 0, 0, m, q, kX) + ".&LF";
        const double width = x2 - x1;
        ws.Solution = "The curves cut at  " + kX + "& =& " + Num(x1) + "  and  " + kX + "& =& " + Num(x2) +
                      ".&LFArea = " + FractionToMarkup(ws, std::fabs(k) * width * width * width, 6) + Closing();
        return;
    }
    if (type == 1) {
        const double a = RandomInRange(ws, -9, 9, 1, 1);
        const double b = RandomInRange(ws, -8, 8, 1, 0);
        const double s = RandomInRange(ws, 1, 4, 1, 1);
        const double w = RandomInRange(ws, 2, 4, 1, 1);
        // Both points on the branch right of the asymptote x = -b.
        const double x1 = -b + s, x2 = x1 + w;
        // The chord through (x1, a/s) and (x2, a/(s + w)): slope -a/(s(s + w)).
        const double slopeNum = -a, slopeDen = s * (s + w);
        // y = slope·(x - x1) + a/s  ->  intercept = (a(s + w) + a·x1) / (s(s + w))
        const double interceptNum = a * (s + w) + a * x1;
        std::string line;
        AppendTerm(ws, line, slopeNum, slopeDen, kX);
        AppendTerm(ws, line, interceptNum, slopeDen, "");
        if (line.empty()) line = "0";
        ws.Statement = "Calculate the area between the hyperbola  &+Iy&-I& =& #COC(" + Num(a) + "#N)(" +
                       ShiftedVariable(kX, b) + "#COC) and the line that cuts this hyperbola at the points &+Ix&-I& =& " +
                       Num(x1) + "  and  &+Ix&-I& =& " + Num(x2) + ".&LF";
        // Trapezoid under the chord minus the curve's integral a·ln((s + w)/s); the
        // chord of a hyperbola's branch lies on its outer side, so the sign is that of a.
        const double trapezoidNum = a * (2 * s + w) * w, trapezoidDen = 2 * s * (s + w);
        const double g = Gcd(ws, s + w, s);
        const std::string ratio =
            s / g == 1 ? Num((s + w) / g) : "#COC(" + Num((s + w) / g) + "#N)(" + Num(s / g) + "#COC)";
        const double sign = a > 0 ? 1 : -1;
        std::string exact;
        AppendTerm(ws, exact, sign * trapezoidNum, trapezoidDen, "");
        AppendTerm(ws, exact, -sign * a, 1, "_ ln_ " + ratio);
        const double value = sign * (trapezoidNum / trapezoidDen - a * std::log((s + w) / s));
        ws.Solution = "The line:  &+Iy&-I& =& " + line + ".&LFArea = " + exact + Approximately(ws, value) + Closing();
        return;
    }
    const double value = RandomInRange(ws, 1, 9, 1, 1);
    const int letterIndex = static_cast<int>(RandomInRange(ws, 1, 9, 1, 1));
    const std::string letter = std::string(1, kParameterLetters[letterIndex - 1]);
    const std::string italic = "&+I" + letter + "&-I";
    if (type == 2) {
        // y = a·x - x² meets the axis at 0 and a: the area is a³/6.
        ws.Statement = "The area between the parabola  &+Iy&-I& =& &+I" + letter + "& x& -& x^2&-I" +
                       "  and the  &+IX&-I  axis is  " + FractionToMarkup(ws, value * value * value, 6) +
                       ".  Find the value of the parameter  " + italic + "  where  " + italic + "& >& 0.&LF";
    } else {
        // y = a·x² - x³ meets the axis at 0 and a: the area is a⁴/12.
        ws.Statement = "The curve  &+Iy&-I& =& &+I" + letter + "& x^2& -& x^3&-I" +
                       "  cuts the &+IX&-I axis at the points (0, 0)  and  (" + italic +
                       ",& 0). Find the value of the parameter  " + italic +
                       "  if the area between the curve and the  &+IX&-I axis is  " +
                       FractionToMarkup(ws, value * value * value * value, 12) + "  and  " + italic + "& >& 0.&LF";
    }
    ws.Solution = italic + " = " + Num(value) + ".&LF";
}
