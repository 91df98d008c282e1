#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "generators/item_drill.h"
#include "generators/nrp/nrp_routines.h"
#include "generators/nrp/polynomial_tools.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// A polynomial kept by its factors: constant · (x - r1) · (x - r2) ...
struct Factored {
    double constant = 1;
    std::vector<double> roots;
};

// How a factored polynomial is shown in a statement.
enum class Look {
    Expanded,  // through the polynomial writer
    Product,   // "(x - 2)_ (x + 3)", with "_ " as the thin space between factors
    Square,    // "(x - 2)^2"
};

struct Shown {
    Factored value;
    Look look = Look::Expanded;
};

const ColumnMarks kFractionSolutionColumns = {"&SP=10:", "&SP=30:", "&SP=50:", "&SP=70:"};
const ColumnMarks kWideFractionColumns = {"&SP=5:", "&SP=37.5:"};

Shown E(double constant, std::vector<double> roots) { return {{constant, std::move(roots)}, Look::Expanded}; }
Shown P(double constant, std::vector<double> roots) { return {{constant, std::move(roots)}, Look::Product}; }
Shown S(double root) { return {{1, {root, root}}, Look::Square}; }

Coefficients Expand(const Factored& f) { return PolyFromRoots(f.constant, f.roots); }

// Degree 4 at most: the fourth-degree writer of the single-fraction drill.
std::string ExpandedText(GeneratorWorkspace& ws, const Factored& f, bool fourthDegreeWriter) {
    const Coefficients c = Expand(f);
    if (fourthDegreeWriter && PolyDegree(c) <= 4) return PolynomialToMarkup(c[4], c[3], c[2], c[1], c[0], "");
    return PolyText(ws, c);
}

std::string ConstantPrefix(double constant) {
    if (constant == 1) return "";
    if (constant == -1) return "-";
    return PlainNumberText(constant);
}

// Factors in order of first appearance, a repeated one with its exponent.
std::string ProductText(const Factored& f) {
    const std::vector<RootCount> groups = GroupRoots(f.roots);
    if (groups.empty()) return PlainNumberText(f.constant);
    if (groups.size() == 1 && groups[0].count == 1 && f.constant == 1) return BinomialText(groups[0].value);
    std::string text = ConstantPrefix(f.constant);
    bool first = true;
    for (const RootCount& g : groups) {
        if (!first) text += "_ ";
        first = false;
        const std::string power = g.count > 1 ? "^" + std::to_string(g.count) : "";
        if (g.value == 0) text += "&+Ix&-I" + power;
        else text += "(" + BinomialText(g.value) + ")" + power;
    }
    return text;
}

std::string ShownText(GeneratorWorkspace& ws, const Shown& s, bool fourthDegreeWriter) {
    switch (s.look) {
    case Look::Product: return ProductText(s.value);
    case Look::Square: return ConstantPrefix(s.value.constant) + "(" + BinomialText(s.value.roots[0]) + ")^2";
    default: return ExpandedText(ws, s.value, fourthDegreeWriter);
    }
}

std::string FractionText(const std::string& numerator, const std::string& denominator) {
    return "#COC(" + numerator + "#N)(" + denominator + "#COC)";
}

Factored Times(const Factored& a, const Factored& b) {
    Factored r{a.constant * b.constant, a.roots};
    r.roots.insert(r.roots.end(), b.roots.begin(), b.roots.end());
    return r;
}

// Cancels the common factors of a quotient of factored polynomials and reduces the
// constants; the denominator's constant ends positive.
void Cancel(GeneratorWorkspace& ws, Factored& numerator, Factored& denominator) {
    std::vector<double> kept;
    for (double r : numerator.roots) {
        const auto at = std::find(denominator.roots.begin(), denominator.roots.end(), r);
        if (at != denominator.roots.end()) denominator.roots.erase(at);
        else kept.push_back(r);
    }
    numerator.roots = kept;
    const double g = Gcd(ws, numerator.constant, denominator.constant);
    numerator.constant /= g;
    denominator.constant /= g;
    if (denominator.constant < 0) {
        numerator.constant = -numerator.constant;
        denominator.constant = -denominator.constant;
    }
}

// The simplified quotient: a polynomial, a polynomial over a number, or a fraction.
std::string SimplifiedText(GeneratorWorkspace& ws, const Factored& numerator, const Factored& denominator,
                           bool fourthDegreeWriter) {
    const std::string top = ExpandedText(ws, numerator, fourthDegreeWriter);
    if (denominator.roots.empty() && denominator.constant == 1) return top;
    return FractionText(top, ExpandedText(ws, denominator, fourthDegreeWriter));
}

// Values in -9 to 9, none zero, no two of the same size (so that neither r nor -r of one
// is a root of another).
std::vector<double> DistinctRoots(GeneratorWorkspace& ws, int count) {
    std::vector<double> roots;
    while (static_cast<int>(roots.size()) < count) {
        RetryBound bound;
        while (true) {
            const double r = RandomInRange(ws, -9, 9, 1, 1);
            const bool used = std::any_of(roots.begin(), roots.end(), [r](double u) { return std::fabs(u) == std::fabs(r); });
            if (!used) {
                roots.push_back(r);
                break;
            }
            bound.Next();
        }
    }
    return roots;
}

// The type walks on by one, with a chance of one more step, through the wrapping list.
void NextType(GeneratorWorkspace& ws, double& type, int count) {
    type += 1;
    if (type > count) type = 1;
    if (Coin(ws, 0.7f)) {
        type += 1;
        if (type > count) type = 1;
    }
}
} // namespace

// Routine 26: one algebraic fraction whose numerator and denominator share a factor.
//   1  (x-p)(x-q) / (x-p)(x-s), both expanded          ->  (x-q)/(x-s)
//   2  k(x-p) / (x-p)(x-q), expanded                     ->  k/(x-q)
//   3  (x² - p²) / (x-p)^2                               ->  (x+p)/(x-p)
//   4  x²(x-p) / (x-p)(x-q), expanded                    ->  x²/(x-q)
//   5  k(x-p)(x-q) / m(x-p), expanded                    ->  k(x-q)/m
//   6  (x² - p²) / (x+p)(x-q), expanded                  ->  (x-p)/(x-q)
void SimplifyingAlgebraicFractions(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kFractionSolutionColumns);
    double type = RandomInRange(ws, 1, 6, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextType(ws, type, 6);
        AddNewItem(drill, [&] {
            const std::vector<double> r = DistinctRoots(ws, 3);
            const double p = r[0], q = r[1], s = r[2];
            const double k = RandomInRange(ws, 1, 6, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
            Shown top, bottom;
            switch (static_cast<int>(type)) {
            case 1: top = E(1, {p, q}); bottom = E(1, {p, s}); break;
            case 2: top = E(k, {p}); bottom = E(1, {p, q}); break;
            case 3: top = E(1, {p, -p}); bottom = S(p); break;
            case 4: top = E(1, {0, 0, p}); bottom = E(1, {p, q}); break;
            case 5: top = E(k, {p, q}); bottom = E(RandomInRange(ws, 2, 6, 1, 1), {p}); break;
            default: top = E(1, {p, -p}); bottom = E(1, {-p, q}); break;
            }
            const std::string text = FractionText(ShownText(ws, top, true), ShownText(ws, bottom, true));
            Factored n = top.value, d = bottom.value;
            Cancel(ws, n, d);
            return ItemTexts{text, SimplifiedText(ws, n, d, true)};
        });
    }
    drill.WriteStatement({"Simplify the following algebraic fractions:&LF"});
}

namespace {
// One product or quotient of two fractions: (a/b) · (c/d) or (a/b) : (c/d).
struct FractionPair {
    Shown a, b, c, d;
    bool quotient = false;
};
} // namespace

// Routine 3: products and quotients of two algebraic fractions that simplify.
//   1  (x²-p²)/(x-q) · (x-q)/(x+p)(x-s)                  ->  (x-p)/(x-s)
//   2  k(x-p)/(x-q)^2 · (x-q)/m(x-p)                     ->  k/m(x-q)
//   3  (x-p)(x-q)/(x-s) : (x-p)/(x-s)(x-t)               ->  (x-q)(x-t)
//   4  (x-p)^2/k(x-q) · m(x-q)/(x-p)                     ->  m(x-p)/k
//   5  (x-p)_ (x-q)/(x-s)_ (x-t) · (x-s)/(x-p), factored ->  (x-q)/(x-t)
//   6  x(x-p)/(x-q) : x/(x-q)(x-s)                       ->  (x-p)(x-s)
//   7  (x-p)^2/(x²-q²) : (x-p)/(x-q)                     ->  (x-p)/(x+q)
//   8  k(x-p)/(x-q) · (x-q)(x-s)/(x-p)(x-t)              ->  k(x-s)/(x-t)
//   9  (x²-p²)/k(x-q) : (x+p)/m(x-q)                     ->  m(x-p)/k
//  10  (x-p)(x-q)/(x-p)(x-s) · (x-s)/(x-t)               ->  (x-q)/(x-t)
void AlgebraicFractionsProducts(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kWideFractionColumns, kFractionSolutionColumns);
    double type = RandomInRange(ws, 1, 10, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextType(ws, type, 10);
        AddNewItem(drill, [&] {
            const std::vector<double> r = DistinctRoots(ws, 4);
            const double p = r[0], q = r[1], s = r[2], t = r[3];
            const double k = RandomInRange(ws, 2, 9, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
            const double m = RandomInRange(ws, 2, 9, 1, 1);
            FractionPair f;
            switch (static_cast<int>(type)) {
            case 1: f = {E(1, {p, -p}), E(1, {q}), E(1, {q}), E(1, {-p, s}), false}; break;
            case 2: f = {E(k, {p}), S(q), E(1, {q}), E(m, {p}), false}; break;
            case 3: f = {E(1, {p, q}), E(1, {s}), E(1, {p}), E(1, {s, t}), true}; break;
            case 4: f = {S(p), E(k, {q}), E(m, {q}), E(1, {p}), false}; break;
            case 5: f = {P(1, {p, q}), P(1, {s, t}), P(1, {s}), P(1, {p}), false}; break;
            case 6: f = {E(1, {0, p}), E(1, {q}), E(1, {0}), E(1, {q, s}), true}; break;
            case 7: f = {S(p), E(1, {q, -q}), E(1, {p}), E(1, {q}), true}; break;
            case 8: f = {E(k, {p}), E(1, {q}), E(1, {q, s}), E(1, {p, t}), false}; break;
            case 9: f = {E(1, {p, -p}), E(k, {q}), E(1, {-p}), E(m, {q}), true}; break;
            default: f = {E(1, {p, q}), E(1, {p, s}), E(1, {s}), E(1, {t}), false}; break;
            }
            const std::string text = FractionText(ShownText(ws, f.a, false), ShownText(ws, f.b, false)) +
                                     (f.quotient ? " : " : " · ") +
                                     FractionText(ShownText(ws, f.c, false), ShownText(ws, f.d, false));
            Factored n = f.quotient ? Times(f.a.value, f.d.value) : Times(f.a.value, f.c.value);
            Factored d = f.quotient ? Times(f.b.value, f.c.value) : Times(f.b.value, f.d.value);
            Cancel(ws, n, d);
            return ItemTexts{text, SimplifiedText(ws, n, d, false)};
        });
    }
    drill.WriteStatement({"Simplify the following expressions:&LF",
                          "Simplify the following expressions with algebraic fractions:&LF"});
}

namespace {
// A fraction of a sum: a numerator polynomial over a monic factored denominator.
struct SumTerm {
    Coefficients numerator{};
    Shown denominator;
};

Coefficients Constant(double c) { return PolyMonomial(c, 0); }
Coefficients Linear(double a, double b) {
    Coefficients p{};
    p[1] = a;
    p[0] = b;
    return p;
}

// The roots of the least common denominator: each root as often as the larger count.
std::vector<double> CommonRoots(const std::vector<double>& a, const std::vector<double>& b) {
    std::vector<double> out = a;
    std::vector<double> rest = a;
    for (double r : b) {
        const auto at = std::find(rest.begin(), rest.end(), r);
        if (at != rest.end()) rest.erase(at);
        else out.push_back(r);
    }
    return out;
}

std::vector<double> Without(std::vector<double> all, const std::vector<double>& part) {
    for (double r : part) all.erase(std::find(all.begin(), all.end(), r));
    return all;
}
} // namespace

// Routine 4: sums and differences of two algebraic fractions, brought to the least
// common denominator and simplified.
//   1  a/(x-p) ± b/(x-q)
//   2  a/(x-p) - b/(x-p)^2
//   3  (x+c)/(x²-p²) + a/(x+p)
//   4  a·x/(x²-p²) - b/(x-p)
//   5  (x+c)/(x-p) - (x+d)/(x-q)
//   6  a/x ± b/(x-p)
void AlgebraicFractionsSums(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kWideFractionColumns, kFractionSolutionColumns);
    double type = RandomInRange(ws, 1, 6, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextType(ws, type, 6);
        AddNewItem(drill, [&] {
            const std::vector<double> r = DistinctRoots(ws, 2);
            const double p = r[0], q = r[1];
            const double a = RandomInRange(ws, 1, 9, 1, 1);
            const double b = RandomInRange(ws, 1, 9, 1, 1);
            const double c = RandomInRange(ws, -9, 9, 1, 1);
            const double d = RandomInRange(ws, -9, 9, 1, 1);
            bool minus = Coin(ws, 0.5f);
            SumTerm first, second;
            switch (static_cast<int>(type)) {
            case 1: first = {Constant(a), E(1, {p})}; second = {Constant(b), E(1, {q})}; break;
            case 2: first = {Constant(a), E(1, {p})}; second = {Constant(b), S(p)}; minus = true; break;
            case 3: first = {Linear(1, c), E(1, {p, -p})}; second = {Constant(a), E(1, {-p})}; minus = false; break;
            case 4: first = {Linear(a, 0), E(1, {p, -p})}; second = {Constant(b), E(1, {p})}; minus = true; break;
            case 5: first = {Linear(1, c), E(1, {p})}; second = {Linear(1, d), E(1, {q})}; minus = true; break;
            default: first = {Constant(a), E(1, {0})}; second = {Constant(b), E(1, {p})}; break;
            }
            const std::string text = FractionText(PolyText(ws, first.numerator), ShownText(ws, first.denominator, false)) +
                                     (minus ? " - " : " + ") +
                                     FractionText(PolyText(ws, second.numerator), ShownText(ws, second.denominator, false));
            // Over the least common denominator, then every factor of it that divides the
            // numerator is cancelled.
            const std::vector<double>& rootsA = first.denominator.value.roots;
            const std::vector<double>& rootsB = second.denominator.value.roots;
            std::vector<double> common = CommonRoots(rootsA, rootsB);
            const Coefficients partA = MultiplyPolys(first.numerator, PolyFromRoots(1, Without(common, rootsA)));
            const Coefficients partB = MultiplyPolys(second.numerator, PolyFromRoots(1, Without(common, rootsB)));
            Coefficients numerator = minus ? SubtractPolys(partA, partB) : AddPolys(partA, partB);
            for (std::size_t j = 0; j < common.size();) {
                if (!IsZeroPoly(numerator) && EvaluatePoly(numerator, common[j]) == 0) {
                    Coefficients quotient, remainder;
                    DividePolys(numerator, Linear(1, -common[j]), quotient, remainder);
                    numerator = quotient;
                    common.erase(common.begin() + static_cast<long>(j));
                } else {
                    ++j;
                }
            }
            if (IsZeroPoly(numerator)) return ItemTexts{};
            return ItemTexts{text, common.empty() ? PolyText(ws, numerator)
                                                  : FractionText(PolyText(ws, numerator), ProductText({1, common}))};
        });
    }
    drill.WriteStatement({"Simplify the following expressions:&LF",
                          "Simplify the following expressions with algebraic fractions:&LF"});
}
