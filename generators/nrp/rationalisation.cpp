#include <cmath>

#include "generators/nrp/drill_items.h"
#include "generators/nrp/nrp_routines.h"
#include "generators/nrp/power_drill.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
bool IsPerfectSquare(double p) {
    const double root = Int(std::sqrt(p) + 0.5);
    return root * root == p;
}

// No square above 1 divides p: its root is already in simplest form, so neither the
// statement nor the answer shows a root that a pupil would still be asked to simplify.
bool IsSquareFree(double p) {
    for (double d = 2; d * d <= p; ++d) {
        if (std::fmod(p, d * d) == 0) return false;
    }
    return true;
}

std::string Plain(double x) { return PlainNumberText(x); }
std::string Root(double x) { return "#SQR(" + Plain(x) + "#SQR)"; }
std::string Frac(const std::string& upper, const std::string& lower) {
    return "#COC(" + upper + "#N)(" + lower + "#COC)";
}
} // namespace

ItemTexts DrawSquareRootRationalisation(GeneratorWorkspace& ws, int type) {
    ItemTexts item;
    if (type <= 3) {
        // A number over a root: a/√r, a·m/√(r·m), √a/√r.
        double a = RandomInRange(ws, 1, 20, 1, 1);
        if (type == 3) a += 1;
        const double r = RandomInRange(ws, 2, 15, 1, 1);
        double m = RandomInRange(ws, 2, 5, 1, 1);
        if (type != 2) m = 1;
        if (Gcd(ws, a, r) != 1 || !IsPrime(ws, r)) return item;
        if (type == 2 && (IsPerfectSquare(r * m) || IsPerfectSquare(m))) return item;
        if (type == 3 && (IsPerfectSquare(r * a) || !IsSquareFree(a))) return item;
        if (type == 3) {
            item.statement = Frac(Root(a), Root(r * m));
            item.solution = Frac(Root(r * a), Plain(r));
        } else {
            item.statement = Frac(Plain(a * m), Root(r * m));
            item.solution = Frac((a == 1 ? "" : Plain(a) + "_ ") + Root(r * m), Plain(r));
        }
        return item;
    }
    if (type <= 5) {
        // A number over a root and a number: a/(√r + c) and a/(√r - c).
        const double a = RandomInRange(ws, 2, 20, 1, 1);
        const double r = RandomInRange(ws, 2, 50, 1, 1);
        const double c = RandomInRange(ws, 1, 9, 1, 1);
        if (!IsSquareFree(r) || c * c == r) return item;
        const double d = std::fabs(r - c * c);
        const double g = std::fabs(Gcd(ws, a, d));
        const double a1 = a / g;
        const double d1 = d / g;
        if (d1 == 1 || a1 == 1) return item;
        const double s = r - c * c >= 0 ? 1 : -1;
        std::string statementSign = type == 4 ? " + " : " - ";
        std::string solutionSign = type == 4 ? " - " : " + ";
        if (s < 0) solutionSign = solutionSign == " + " ? " - " : " + ";
        item.statement = Frac(Plain(a), Root(r) + statementSign + Plain(c));
        item.solution = Frac(Plain(s * a1) + "_ " + Root(r) + solutionSign + Plain(c * a1), Plain(d1));
        return item;
    }
    // A root over a root less a number: √r/(√r - c).
    const double r = RandomInRange(ws, 2, 50, 1, 1);
    const double c = RandomInRange(ws, 2, 9, 1, 1);
    if (!IsSquareFree(r) || c * c == r || std::fabs(r - c * c) == 1) return item;
    const double s = r - c * c >= 0 ? 1 : -1;
    const double g = Gcd(ws, Gcd(ws, r, c), std::fabs(r - c * c));
    const double r1 = r / g;
    const double c1 = c / g;
    const double d1 = std::fabs(r - c * c) / g;
    if (d1 == 1 || c1 == 1) return item;
    item.statement = Frac(Root(r), Root(r) + " - " + Plain(c));
    item.solution = Frac(Plain(s * r1) + (s < 0 ? " - " : " + ") + Plain(c1) + "_ " + Root(r), Plain(d1));
    return item;
}

// Routine 23: rationalising denominators with square roots, in six types that go round
// and now and then jump.
void RationalizationWithSquareRoots(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kPowerStatementColumns4, kPowerSolutionColumns4, 26, kPowerItems);
    double type = RandomInRange(ws, 1, 6, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        type += 1;
        if (type > 6) type = 1;
        if (Coin(ws, 0.8f)) type = RandomInRange(ws, 1, 6, 1, 1);
        AddNewItem(drill, [&] { return DrawSquareRootRationalisation(ws, static_cast<int>(type)); });
    }
    drill.WriteStatement({"Rationalize the following expressions:&LF"});
}

namespace {
// b^e under a root: with the one-character power mark, or as its value.
std::string Radicand(double b, double e, bool asValue) {
    if (asValue) return Plain(std::pow(b, e));
    if (e == 1) return Plain(b);
    return Plain(b) + "^" + Plain(e);
}

std::string NthRoot(double index, const std::string& radicand) {
    return "#RAD(#RI(" + Plain(index) + "#RI)" + radicand + "#RAD)";
}
} // namespace

ItemTexts DrawNthRootRationalisation(GeneratorWorkspace& ws, int type) {
    // a over the n-th root of b^k, with b a prime and k below n and prime to it, so that
    // the root is in its simplest form; multiplying by the n-th root of b^(n-k) leaves b
    // in the denominator. Type 1 writes the radicand as a power, type 2 as its value.
    ItemTexts item;
    const double a = RandomInRange(ws, 1, 40, 1, 1);
    const double b = RandomInRange(ws, 2, 40, 1, 1);
    const double n = RandomInRange(ws, 3, 9, 1, 1);
    const double k = RandomInRange(ws, 2, 5, 1, 1);
    if (!IsPrime(ws, b) || k >= n || Gcd(ws, n, k) != 1) return item;
    const bool asValue = type == 2;
    if (asValue && (std::pow(b, k) > 1000 || std::pow(b, n - k) > 1000)) return item;
    const double g = Gcd(ws, a, b);
    const double a1 = a / g;
    const double b1 = b / g;
    item.statement = Frac(Plain(a), NthRoot(n, Radicand(b, k, asValue)));
    const std::string numerator = (a1 == 1 ? "" : Plain(a1) + "_ ") + NthRoot(n, Radicand(b, n - k, asValue));
    item.solution = b1 == 1 ? numerator : Frac(numerator, Plain(b1));
    return item;
}

// Routine 24: rationalising denominators with an n-th root, the radicand written as a
// power (type 1) or as a number (type 2).
void RationalizationWithNthRoots(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kPowerStatementColumns4, kPowerSolutionColumns4, 26, kPowerItems);
    double type = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        // The types alternate, with a chance of a repeat; both coins are always drawn.
        type = type == 1 ? 2 : 1;
        const bool toSecond = Coin(ws, 0.7f);
        if (type == 1 && toSecond) type = 2;
        const bool toFirst = Coin(ws, 0.8f);
        if (type == 2 && toFirst) type = 1;
        AddNewItem(drill, [&] { return DrawNthRootRationalisation(ws, static_cast<int>(type)); });
    }
    drill.WriteStatement({"Rationalize the following expressions:&LF"});
}
