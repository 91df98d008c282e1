#include <cmath>

#include "generators/ecu/ecu_common.h"
#include "generators/ecu/ecu_items.h"
#include "generators/ecu/ecu_routines.h"
#include "generators/item_drill.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
std::string Power(double base, const std::string& exponent) {
    return "#POT(" + PlainNumberText(base) + "#PB)(" + exponent + "#POT)";
}

std::string OneAnswer(double x) { return "&+Ix = &-I" + PlainNumberText(x); }

std::string TwoAnswers(double x1, double x2) {
    return "&+Ix_1 = &-I" + PlainNumberText(x1) + ",   &+Ix_2 = &-I" + PlainNumberText(x2);
}

// "log_b" for a one-digit base, "log" for the common logarithm.
std::string Log(double base) { return base == 10 ? "log" : "log_" + PlainNumberText(base); }
} // namespace

// The exponent first, with a base b of 2 to 5:
//   1  b^(p·x + q) = b^e, one root
//   2  b^(x² + u·x) = b^v (v may be negative: a fraction), roots x₁, x₂
//   3  b^(x + 1) ± b^x = (b ± 1)·b^s, one root s
//   4  b^(2x) − (b^s₁ + b^s₂)·b^x + b^(s₁ + s₂) = 0, roots s₁, s₂
RootsItem ExponentialItem(GeneratorWorkspace& ws) {
    RootsItem item;
    const int form = static_cast<int>(RandomInRange(ws, 1, 4, 1, 1));
    RetryBound bound;
    while (true) {
        const double b = RandomInRange(ws, 2, 5, 1, 1);
        const double s1 = RandomInRange(ws, -3, 4, 1, 0);
        const double s2 = RandomInRange(ws, -3, 4, 1, 0);
        const double e = RandomInRange(ws, 0, 4, 1, 0);
        if (form == 1) {
            const double p = RandomInRange(ws, 1, 3, 1, 1);
            const double q = e - p * s1;
            const double value = std::pow(b, e);
            if (value <= 1000) {
                item.text = Power(b, LinearSide(p, q)) + kEquals + PlainNumberText(value);
                item.solutions = {s1};
                item.answer = OneAnswer(s1);
                return item;
            }
        } else if (form == 2) {
            const double u = -(s1 + s2);
            const double v = -s1 * s2;
            const double value = std::pow(b, std::fabs(v));
            if (s1 < s2 && u != 0 && value <= 1000) {
                const std::string right = v >= 0 ? PlainNumberText(value) : "#COC(1#N)(" + PlainNumberText(value) + "#COC)";
                item.text = Power(b, PolynomialToMarkup(0, 0, 1, u, 0, "&+Ix&-I")) + kEquals + right;
                item.solutions = {s1, s2};
                item.answer = TwoAnswers(s1, s2);
                return item;
            }
        } else if (form == 3) {
            const bool plus = Coin(ws, 0.5f);
            const double value = (plus ? b + 1 : b - 1) * std::pow(b, e);
            if (value <= 1000 && value != 1) {
                item.text = Power(b, LinearSide(1, 1)) + (plus ? "& +& " : "& -& ") + Power(b, "&+Ix&-I") + kEquals +
                            PlainNumberText(value);
                item.solutions = {e};
                item.answer = OneAnswer(e);
                return item;
            }
        } else {
            if (s1 >= 0 && s2 > s1 && s1 + s2 <= 4 && std::pow(b, s1 + s2) <= 1000) {
                const double sum = std::pow(b, s1) + std::pow(b, s2);
                const double product = std::pow(b, s1 + s2);
                item.text = Power(b, "2&+Ix&-I") + "& -& " + PlainNumberText(sum) + "\u00B7" + Power(b, "&+Ix&-I") +
                            "& +& " + PlainNumberText(product) + kEquals + "0";
                item.solutions = {s1, s2};
                item.answer = TwoAnswers(s1, s2);
                return item;
            }
        }
        bound.Next();
    }
}

// The value first:
//   1  log_b(a·x + c) = k, so that a·x + c = b^k
//   2  log x + log(x + a) = log N with N = s·(s + a); the negative root is no solution
//   3  2·log x = log(a·x + c) with roots s > 0 and t < 0 of x² − a·x − c; t is no solution
RootsItem LogarithmicItem(GeneratorWorkspace& ws) {
    RootsItem item;
    const int form = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
    RetryBound bound;
    while (true) {
        const double s = RandomInRange(ws, 1, 9, 1, 1);
        if (form == 1) {
            const double b = RandomInRange(ws, 2, 7, 1, 1);
            const double k = RandomInRange(ws, 0, 3, 1, 0);
            const double a = RandomInRange(ws, 2, 3, 1, 1);
            const double value = std::pow(b, k);
            const double c = value - a * s;
            if (value <= 99 && c != 0) {
                item.text = Log(b) + "(" + LinearSide(a, c) + ")" + kEquals + PlainNumberText(k);
                item.solutions = {s};
                break;
            }
        } else if (form == 2) {
            const double a = RandomInRange(ws, 1, 99, 1, 1);
            const double n = s * (s + a);
            if (n <= 999) {
                item.text = "log& &+Ix&-I& +& log(" + LinearSide(1, a) + ")" + kEquals + "log& " + PlainNumberText(n);
                item.solutions = {s};
                break;
            }
        } else {
            const double t = -RandomInRange(ws, 1, 9, 1, 1);
            const double a = s + t;
            const double c = -s * t;
            if (a != 0) {
                item.text = "2& log& &+Ix&-I" + kEquals + "log(" + LinearSide(a, c) + ")";
                item.solutions = {s};
                break;
            }
        }
        bound.Next();
    }
    // The drill sets its items in italics; "log" is a function name and stands upright.
    item.text = "&-I" + item.text;
    item.answer = "&+Ix =&-I " + PlainNumberText(item.solutions[0]);
    return item;
}

// Routine 10.
void ExponentialEquations(GeneratorWorkspace& ws) {
    EquationDrill(ws, ExponentialItem, 26, kStatementColumns2, kSolutionColumns2,
                  {"Solve the following exponential equations:&LF", "Solve these exponential equations:&LF"});
}

// Routine 13.
void LogarithmicEquations(GeneratorWorkspace& ws) {
    EquationDrill(ws, LogarithmicItem, 26, kStatementColumns2, kSolutionColumns2,
                  {"Solve the following logarithmic equations:&LF", "Solve these logarithmic equations:&LF"});
}
