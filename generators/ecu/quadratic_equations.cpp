#include <algorithm>
#include <cmath>

#include "generators/ecu/ecu_common.h"
#include "generators/ecu/ecu_items.h"
#include "generators/ecu/ecu_routines.h"
#include "generators/item_drill.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kNoRealSolution = "&+I No real solution.&-I";

std::string PolynomialEquation(const RootsItem& item) {
    return PolynomialToMarkup(item.c4, item.c3, item.c2, item.c1, item.c0, Unknown(item.letter)) + kEquals + "0";
}

// "x = a;    x = b" for the listed values.
std::string ListAnswer(const std::string& letter, const std::vector<std::string>& values) {
    std::string out;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) out += ";    ";
        // A negative fraction comes padded; beside "=" one blank is enough.
        out += Unknown(letter) + " = " + TrimBlanks(values[i]);
    }
    return out;
}

bool IsSquare(double n) {
    if (n < 0) return false;
    const double r = Int(std::sqrt(n) + 0.5);
    return r * r == n;
}
} // namespace

// Forms, the roots first:
//   1  a·x² − a·r² = 0, roots ±r
//   2  a·x² + b·x = 0, roots 0 and −b/a
//   3  a·x² + c = 0 with a and c of one sign: no real root
//   4  q²·x² − p² = 0, roots ±p/q
RootsItem IncompleteQuadraticItem(GeneratorWorkspace& ws) {
    RootsItem item;
    item.letter = DrawUnknownLetter(ws);
    const int form = static_cast<int>(RandomInRange(ws, 1, 4, 1, 1));
    const double a = RandomInRange(ws, 1, 10, 1, 1);
    switch (form) {
    case 1: {
        const double r = RandomInRange(ws, 1, 10, 1, 1);
        item.c2 = a;
        item.c0 = -a * r * r;
        item.solutions = {r, -r};
        item.answer = ListAnswer(item.letter, {PlainNumberText(r), PlainNumberText(-r)});
        break;
    }
    case 2: {
        const double b = RandomInRange(ws, -20, 20, 1, 1);
        item.c2 = a;
        item.c1 = b;
        item.solutions = {0, -b / a};
        item.answer = ListAnswer(item.letter, {"0", FractionToMarkup(ws, -b, a)});
        break;
    }
    case 3: {
        const double c = RandomInRange(ws, 1, 20, 1, 1);
        const bool negative = Coin(ws, 0.5f);
        item.c2 = negative ? -a : a;
        item.c0 = negative ? -c : c;
        item.answer = kNoRealSolution;
        break;
    }
    default: {
        RetryBound bound;
        double p = 0, q = 0;
        while (true) {
            p = RandomInRange(ws, 1, 10, 1, 1);
            q = RandomInRange(ws, 2, 5, 1, 1);
            if (Gcd(ws, p, q) == 1) break;
            bound.Next();
        }
        item.c2 = q * q;
        item.c0 = -p * p;
        item.solutions = {p / q, -p / q};
        item.answer = ListAnswer(item.letter, {FractionToMarkup(ws, p, q), FractionToMarkup(ws, -p, q)});
        break;
    }
    }
    item.text = PolynomialEquation(item);
    return item;
}

// Two rational roots r₁ = p/q and r₂ (the polynomial (q·x − p)(x − r₂), leading sign by a
// coin); or, by a coin, a discriminant that is not a square; or, by another, none at all.
// All three coefficients are non-zero: the equation is complete.
RootsItem CompleteQuadraticItem(GeneratorWorkspace& ws) {
    RootsItem item;
    item.letter = DrawUnknownLetter(ws);
    const bool noReal = Coin(ws, 0.8f);
    const bool irrational = !Coin(ws, 0.3f);
    RetryBound bound;
    while (true) {
        if (noReal || irrational) {
            const double a = RandomInRange(ws, 1, 3, 1, 1);
            const double b = RandomInRange(ws, -10, 10, 1, 1);
            const double c = RandomInRange(ws, -10, 10, 1, 1);
            const double d = b * b - 4 * a * c;
            const bool fits = noReal ? d < 0 : d > 0 && !IsSquare(d);
            if (fits) {
                item.c2 = a;
                item.c1 = b;
                item.c0 = c;
                if (noReal) {
                    item.answer = kNoRealSolution;
                } else {
                    // d = s²·r with r free of squares: x = (−b ± s√r) / 2a, reduced.
                    double s = 1, r = d;
                    for (double k = 2; k * k <= r; ++k) {
                        while (IsWhole(r / (k * k))) {
                            r /= k * k;
                            s *= k;
                        }
                    }
                    const double g = Gcd(ws, Gcd(ws, b, s), 2 * a);
                    const double top = -b / g, root = s / g, bottom = 2 * a / g;
                    std::string value = PlainNumberText(top) + "& &pm& " + (root == 1 ? "" : PlainNumberText(root)) +
                                        "#SQR(" + PlainNumberText(r) + "#SQR)";
                    if (bottom != 1) value = "#COC(" + value + "#N)(" + PlainNumberText(bottom) + "#COC)";
                    item.answer = Unknown(item.letter) + " = " + value;
                    item.solutions = {(-b + std::sqrt(d)) / (2 * a), (-b - std::sqrt(d)) / (2 * a)};
                }
                break;
            }
        } else {
            double p = RandomInRange(ws, -10, 10, 1, 1);
            double q = 1;
            if (Coin(ws, 0.7f)) q = RandomInRange(ws, 2, 7, 1, 1);
            const double r2 = RandomInRange(ws, -10, 10, 1, 1);
            const double sign = Coin(ws, 0.8f) ? -1 : 1;
            const double b = -(q * r2 + p);
            if (Gcd(ws, p, q) == 1 && b != 0 && std::fabs(p * r2) <= 60) {
                item.c2 = sign * q;
                item.c1 = sign * b;
                item.c0 = sign * p * r2;
                if (p / q == r2) {
                    item.solutions = {r2};
                    item.answer = ListAnswer(item.letter, {PlainNumberText(r2)});
                } else {
                    item.solutions = {p / q, r2};
                    item.answer = ListAnswer(item.letter, {FractionToMarkup(ws, p, q), PlainNumberText(r2)});
                }
                break;
            }
        }
        bound.Next();
    }
    item.text = PolynomialEquation(item);
    return item;
}

// x² = t first, for the two values of t:
//   1  t₁ = r₁², t₂ = r₂²: four roots
//   2  t₁ = r₁², t₂ = −m: two roots
//   3  t₁ = r₁², t₂ = m, not a square: four roots, two of them roots of m
// With a coin the whole equation is multiplied by 2 to 7 when its numbers stay small.
RootsItem BiquadraticItem(GeneratorWorkspace& ws) {
    RootsItem item;
    item.letter = DrawUnknownLetter(ws);
    const int form = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
    RetryBound bound;
    double r1 = 0, t2 = 0;
    while (true) {
        r1 = RandomInRange(ws, 1, 10, 1, 1);
        if (form == 1) {
            const double r2 = RandomInRange(ws, 1, 10, 1, 1);
            t2 = r2 * r2;
            if (r2 != r1 && r1 * r2 <= 30) break;
        } else {
            const double m = RandomInRange(ws, 1, 20, 1, 1);
            t2 = form == 2 ? -m : m;
            if (r1 <= 6 && (form == 2 || !IsSquare(m))) break;
        }
        bound.Next();
    }
    const double t1 = r1 * r1;
    double factor = 1;
    if (!Coin(ws, 0.7f)) {
        const double k = RandomInRange(ws, 2, 7, 1, 1);
        if (std::fabs(t1 * t2) <= 100) factor = k;
    }
    item.c4 = factor;
    item.c2 = -factor * (t1 + t2);
    item.c0 = factor * t1 * t2;
    std::vector<std::string> values = {"± " + PlainNumberText(r1)};
    item.solutions = {r1, -r1};
    if (form == 1) {
        values.push_back("± " + PlainNumberText(std::sqrt(t2)));
        item.solutions.push_back(std::sqrt(t2));
        item.solutions.push_back(-std::sqrt(t2));
    } else if (form == 3) {
        values.push_back("± " + RootFractionToMarkup(ws, 1, t2, 1));
        item.solutions.push_back(std::sqrt(t2));
        item.solutions.push_back(-std::sqrt(t2));
    }
    item.answer.clear();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) item.answer += ";    ";
        item.answer += Unknown(item.letter) + " = " + values[i];
    }
    item.text = PolynomialEquation(item);
    return item;
}

// √(a·x + b) = x + c, or with a coin √(a·x + b) − x = c. The roots x₁, x₂ of the squared
// equation come first: a = 2c + x₁ + x₂ and b = c² − x₁·x₂. A root with x + c < 0 belongs
// to the squared equation only and is left out; an item without a true root is redrawn.
RootsItem RootEquationItem(GeneratorWorkspace& ws) {
    RootsItem item;
    RetryBound bound;
    while (true) {
        const double x1 = RandomInRange(ws, -10, 10, 1, 0);
        const double x2 = RandomInRange(ws, -10, 10, 1, 0);
        const double c = RandomInRange(ws, -9, 10, 1, 0);
        const bool moved = Coin(ws, 0.5f);
        const double a = 2 * c + x1 + x2;
        const double b = c * c - x1 * x2;
        std::vector<double> roots;
        for (double x : {std::min(x1, x2), std::max(x1, x2)}) {
            if (x + c >= 0 && (roots.empty() || roots.back() != x)) roots.push_back(x);
        }
        if (a != 0 && !roots.empty() && std::fabs(a) <= 12 && std::fabs(b) <= 99) {
            const std::string root = "#SQR(" + LinearSide(a, b) + "#SQR)";
            item.text = moved ? root + "& -& " + Unknown("x") + kEquals + PlainNumberText(c)
                              : root + kEquals + LinearSide(1, c);
            item.solutions = roots;
            for (std::size_t i = 0; i < roots.size(); ++i) {
                item.answer += (i == 0 ? "&+I x = &-I" : ";    &+Ix = &-I") + PlainNumberText(roots[i]);
            }
            return item;
        }
        bound.Next();
    }
}

// Routine 11.
void IncompleteQuadraticEquations(GeneratorWorkspace& ws) {
    EquationDrill(ws, IncompleteQuadraticItem, 26, kStatementColumns3, kSolutionColumns2,
                  {"Solve the following incomplete quadratic equations:&LF",
                   "Solve these incomplete quadratic equations:&LF"});
}

// Routine 2.
void CompleteQuadraticEquations(GeneratorWorkspace& ws) {
    EquationDrill(ws, CompleteQuadraticItem, 26, kStatementColumns3, kSolutionColumns2,
                  {"Solve the following quadratic equations:&LF",
                   "Find all real solutions of the following quadratic equations:&LF",
                   "Solve these quadratic equations:&LF", "Find all real solutions of these quadratic equations:&LF"});
}

// Routine 12.
void BiquadraticEquations(GeneratorWorkspace& ws) {
    EquationDrill(ws, BiquadraticItem, 26, kStatementColumns2, kSolutionColumns2,
                  {"Solve the following biquadratic equations:&LF", "Solve these biquadratic equations:&LF"});
}

// Routine 3.
void EquationsInvolvingRoots(GeneratorWorkspace& ws) {
    EquationDrill(ws, RootEquationItem, 26, kStatementColumns2, kSolutionColumns2,
                  {"Solve the following equations:&LF", "Find all real solutions of the following equations:&LF",
                   "Solve these equations:&LF", "Find all real solutions of these equations:&LF"});
}
