#include <cmath>

#include "generators/int/int_routines.h"
#include "generators/int/integral_items.h"
#include "generators/int/integral_list.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace integral_text {
std::string X() { return "&+Ix&-I"; }

std::string XPower(double k) {
    if (k == 1) return X();
    if (k < 10) return X() + "^" + PlainNumberText(k);
    return "#POT(" + X() + "#PB)(" + PlainNumberText(k) + "#POT)";
}

std::string Linear(double a) {
    if (a == 1) return X();
    if (a == -1) return "-" + X();
    return PlainNumberText(a) + X();
}

std::string Exp(const std::string& exponent) { return "#EXP( " + exponent + "#EXP)"; }

// numeratorFactor·numerator / denominator, reduced; the factor is left out when it is 1
// and the bar when the denominator becomes 1. The numerator text must be one factor.
std::string Fraction(MathWorkspace& ws, const std::string& numerator, double numeratorFactor, double denominator) {
    const double g = Gcd(ws, std::fabs(numeratorFactor), std::fabs(denominator));
    double f = numeratorFactor / g, d = denominator / g;
    if (d < 0) {
        f = -f;
        d = -d;
    }
    std::string top = f == 1 ? numerator : f == -1 ? "-" + numerator : PlainNumberText(f) + numerator;
    if (numerator.empty()) top = PlainNumberText(f);
    if (d == 1) return top;
    return "#COC(" + top + "#N)(" + PlainNumberText(d) + "#COC)";
}

std::string Integral(const std::string& integrand) { return "#INT(" + integrand + "_ &+Idx&-I#INT)"; }

std::string WithConstant(const std::string& antiderivative) { return antiderivative + " + &+IC&-I"; }
} // namespace integral_text

using namespace integral_text;

namespace {
std::string Sin(const std::string& argument) { return "sin_ " + argument; }
std::string Cos(const std::string& argument) { return "cos_ " + argument; }
// "a·body", the factor left out when it is 1.
std::string Times(double a, const std::string& body) {
    if (a == 1) return body;
    if (a == -1) return "-" + body;
    return PlainNumberText(a) + body;
}
} // namespace

IntegralItem MakeByPartsItem(GeneratorWorkspace& ws, int row) {
    const double a = RandomInRange(ws, 1, 10, 1, 1);
    const double b = RandomInRange(ws, 1, 10, 1, 1);
    const double c = RandomInRange(ws, 1, 10, 1, 1);
    const double m = RandomInRange(ws, 2, 9, 1, 1);
    RandomInRange(ws, 2, 9, 1, 1);  // n: drawn with the others, no row of this table reads it
    const double d = RandomInRange(ws, -9, 9, 1, 1);
    RandomInRange(ws, 2, 8, 1, 1);  // e: the same
    const std::string x = X(), ex = Exp(x), ax = Linear(a), cx = Linear(c);
    std::string f, F;
    switch (row) {
    case 1: f = x + "_ " + ex; F = ex + "_ (" + x + " - 1)"; break;
    case 2: f = x + "_ " + Sin(x); F = "-" + x + "_ " + Cos(x) + " + " + Sin(x); break;
    case 3: f = x + "_ " + Cos(x); F = x + "_ " + Sin(x) + " + " + Cos(x); break;
    case 4:
        f = x + "_ ln_ " + x;
        F = "#COC(" + XPower(2) + "_ (2_ ln_ " + x + " - 1)#N)(4#COC)";
        break;
    case 5:
        f = "arctan_ " + x;
        F = "#COC(2" + x + "_ arctan_ " + x + " - ln|1 + " + XPower(2) + "|#N)(2#COC)";
        break;
    case 6: f = "arcsin_ " + x; F = x + "_ arcsin_ " + x + " + #SQR(1 - " + XPower(2) + "#SQR)"; break;
    case 7: f = "ln_ " + x; F = x + "_ (ln_ " + x + " - 1)"; break;
    case 8: f = ex + "_ " + Sin(x); F = "#COC(" + ex + "_ (" + Sin(x) + " - " + Cos(x) + ")#N)(2#COC)"; break;
    case 9: f = ex + "_ " + Cos(x); F = "#COC(" + ex + "_ (" + Sin(x) + " + " + Cos(x) + ")#N)(2#COC)"; break;
    case 10:
        f = x + "_ arctan_ " + x;
        F = "#COC((" + XPower(2) + " + 1)_ arctan_ " + x + " - " + x + "#N)(2#COC)";
        break;
    case 11: f = XPower(2) + "_ " + ex; F = ex + "_ (" + XPower(2) + " - 2" + x + " + 2)"; break;
    case 12: {
        const std::string top = ax + "_ arcsin_ " + ax + " + #SQR(1 - " + Times(a * a, XPower(2)) + "#SQR)";
        f = "arcsin_ " + ax;
        F = a == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(a) + "#COC)";
        break;
    }
    case 13: {
        const std::string top = Exp(ax) + "_ (" + ax + " - 1)";
        f = x + "_ " + Exp(ax);
        F = a == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(a * a) + "#COC)";
        break;
    }
    case 14: {
        const std::string top = Sin(ax) + " - " + ax + "_ " + Cos(ax);
        f = x + "_ " + Sin(ax);
        F = a == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(a * a) + "#COC)";
        break;
    }
    case 15: {
        const std::string top = Cos(ax) + " + " + ax + "_ " + Sin(ax);
        f = x + "_ " + Cos(ax);
        F = a == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(a * a) + "#COC)";
        break;
    }
    case 16:
        f = XPower(m) + "_ ln_ " + x;
        F = "#COC(" + XPower(m + 1) + "_ (" + PlainNumberText(m + 1) + "_ ln_ " + x + " - 1)#N)(" +
            PlainNumberText((m + 1) * (m + 1)) + "#COC)";
        break;
    case 17:
        // a·x·ln(bx) = a·x²(2 ln(bx) - 1) / 4
        f = ax + "_ ln_ " + Linear(b);
        F = Fraction(ws, XPower(2) + "_ (2_ ln_ " + Linear(b) + " - 1)", a, 4);
        break;
    case 18: {
        const std::string top = Linear(2 * a) + "_ arctan_ " + ax + " - ln|1 + " + Times(a * a, XPower(2)) + "|";
        f = "arctan_ " + ax;
        F = "#COC(" + top + "#N)(" + PlainNumberText(2 * a) + "#COC)";
        break;
    }
    case 19: {
        // (ax + d)·e^(cx) = e^(cx)(acx + cd - a) / c²
        const double g = Gcd(ws, Gcd(ws, a * c, std::fabs(c * d - a)), c * c);
        const std::string poly = PolynomialToMarkup(0, 0, 0, a * c / g, (c * d - a) / g, x);
        f = "(" + PolynomialToMarkup(0, 0, 0, a, d, x) + ")_ " + Exp(cx);
        const std::string top = Exp(cx) + "_ (" + poly + ")";
        F = c * c / g == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(c * c / g) + "#COC)";
        break;
    }
    case 20: {
        // (ax + d)·sin(cx) = (a·sin(cx) - (acx + cd)·cos(cx)) / c²
        const double g = Gcd(ws, Gcd(ws, a, c), c * c);
        const std::string top = Times(a / g, Sin(cx)) + " - (" + PolynomialToMarkup(0, 0, 0, a * c / g, c * d / g, x) +
                                ")_ " + Cos(cx);
        f = "(" + PolynomialToMarkup(0, 0, 0, a, d, x) + ")_ " + Sin(cx);
        F = c * c / g == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(c * c / g) + "#COC)";
        break;
    }
    case 21: {
        // (ax + d)·cos(cx) = ((acx + cd)·sin(cx) + a·cos(cx)) / c²
        const double g = Gcd(ws, Gcd(ws, a, c), c * c);
        const std::string top = "(" + PolynomialToMarkup(0, 0, 0, a * c / g, c * d / g, x) + ")_ " + Sin(cx) + " + " +
                                Times(a / g, Cos(cx));
        f = "(" + PolynomialToMarkup(0, 0, 0, a, d, x) + ")_ " + Cos(cx);
        F = c * c / g == 1 ? top : "#COC(" + top + "#N)(" + PlainNumberText(c * c / g) + "#COC)";
        break;
    }
    case 22:
        f = Exp(ax) + "_ " + Sin(x);
        F = "#COC(" + Exp(ax) + "_ (" + Times(a, Sin(x)) + " - " + Cos(x) + ")#N)(" + PlainNumberText(a * a + 1) +
            "#COC)";
        break;
    default:
        f = Exp(ax) + "_ " + Cos(x);
        F = "#COC(" + Exp(ax) + "_ (" + Times(a, Cos(x)) + " + " + Sin(x) + ")#N)(" + PlainNumberText(a * a + 1) +
            "#COC)";
        break;
    }
    return {Integral(f), WithConstant(F)};
}

namespace {
// The next template of a list of integrals by parts: one on from the last, and then
// the coins that favour the plain integrals of the first rows and keep the two
// exponential-trigonometric pairs rare.
int NextByPartsRow(GeneratorWorkspace& ws, int previous) {
    int row = previous + 1;
    if (row > kByPartsRows) row = 1;
    if (Coin(ws, 0.6f)) row = static_cast<int>(RandomInRange(ws, 1, kByPartsRows, 1, 1));
    if (row >= 11 && Coin(ws, 0.2f)) row = static_cast<int>(RandomInRange(ws, 1, kByPartsRows, 1, 1));
    if (row == 22 || (row == 23 && Coin(ws, 0.1f))) row = static_cast<int>(RandomInRange(ws, 1, kByPartsRows, 1, 1));
    if (row == 8 || (row == 9 && Coin(ws, 0.1f))) row = static_cast<int>(RandomInRange(ws, 1, kByPartsRows, 1, 1));
    return row;
}
} // namespace

// Routine 5: products of a power, an exponential, a trigonometric function, a logarithm
// or an inverse function, by parts; 23 templates.
void IntegrationByParts(GeneratorWorkspace& ws) {
    IntegralList list(ws, 2, kIntegralStatementColumns);
    int previous = 0;
    for (int i = 1; i <= list.Count(); ++i) {
        int row = i == 1 ? static_cast<int>(RandomInRange(ws, 1, kByPartsRows, 1, 1)) : NextByPartsRow(ws, previous);
        RetryBound bound;
        while (true) {
            // A template never follows itself, and an item never repeats an earlier one.
            if (row != previous) {
                const IntegralItem item = MakeByPartsItem(ws, row);
                if (!list.IsRepeat(item.statement)) {
                    list.AddItem(item.statement, item.solution);
                    break;
                }
            }
            bound.Next();
            row = static_cast<int>(RandomInRange(ws, 1, kByPartsRows, 1, 1));
        }
        previous = row;
    }
    list.Write();
}
