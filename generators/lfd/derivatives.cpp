#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "generators/item_drill.h"
#include "generators/lfd/derivative_items.h"
#include "generators/lfd/lfd_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kX = "&+Ix&-I";

std::string Num(double v) { return PlainNumberText(v); }

std::string XPower(double k) {
    if (k == 0) return "1";
    if (k == 1) return kX;
    // "^" raises one character: larger exponents need the power tag.
    if (k >= 10) return "#POT(" + kX + "#PB)(" + Num(k) + "#POT)";
    return kX + "^" + Num(k);
}

// "k·body" with the factor 1 left out.
std::string Times(double k, const std::string& body) {
    if (k == 1) return body;
    if (k == -1) return "-" + body;
    return Num(k) + body;
}

// a·x² + b·x + c
struct Quadratic {
    double a = 0, b = 0, c = 0;
    std::string Text() const { return PolynomialToMarkup(0, 0, a, b, c, kX); }
    Quadratic Derivative() const { return {0, 2 * a, b}; }
    bool IsConstant() const { return a == 0 && b == 0; }
    int Terms() const { return (a != 0) + (b != 0) + (c != 0); }
    // As an argument or a factor: in brackets when it has more than one term or a sign.
    std::string Bracketed() const {
        const double lead = a != 0 ? a : b != 0 ? b : c;
        return Terms() > 1 || lead < 0 ? "(" + Text() + ")" : Text();
    }
    Quadratic Scaled(double k) const { return {a * k, b * k, c * k}; }
};

// The inner polynomial of the easy forms: linear or quadratic, never constant.
Quadratic DrawInner(GeneratorWorkspace& ws) {
    Quadratic p;
    p.a = RandomInRange(ws, 0, 4, 1, 0);
    p.b = RandomInRange(ws, -4, 9, 1, 1);
    p.c = RandomInRange(ws, -4, 12, 1, 0);
    if (Coin(ws, 0.6f)) p.a = 0;
    return p;
}

// The factor p' in front of an outer derivative: a number, or a bracket.
std::string Factor(const Quadratic& d) {
    if (d.IsConstant()) return d.c == 1 ? "" : d.c == -1 ? "-" : Num(d.c) + "_ ";
    return "(" + d.Text() + ")_ ";
}

// Divides the coefficients of both polynomials by their common divisor, and makes the
// lead of the second positive.
void Reduce(MathWorkspace& ws, Quadratic& top, Quadratic& bottom) {
    double g = 0;
    for (double v : {top.a, top.b, top.c, bottom.a, bottom.b, bottom.c}) g = Gcd(ws, g, std::fabs(v));
    if (g == 0) g = 1;
    const double lead = bottom.a != 0 ? bottom.a : bottom.b != 0 ? bottom.b : bottom.c;
    if (lead < 0) g = -g;
    top = top.Scaled(1 / g);
    bottom = bottom.Scaled(1 / g);
}

std::string Fraction(const std::string& top, const std::string& bottom) {
    return "#COC(" + top + "#N)(" + bottom + "#COC)";
}

std::string Root(double n, const std::string& radicand) {
    return "#RAD(#RI(" + Num(n) + "#RI)" + radicand + "#RAD)";
}

std::string PowerOf(const std::string& bracket, double k) { return k == 1 ? bracket : bracket + "^" + Num(k); }
} // namespace

// The easy drill. Each type is a textbook form with a short derivative:
//  1 sin p, 2 cos p, 3 ln p, 4 n-th root of p, 5 1/p, 6 1/p^k, 7 n-th root of p over a
//  number, 8 e^p, 9 a^p, 10 (ax + b)/(cx + d), 11 a quadratic over a linear polynomial,
//  12-15 x^n times sin x, cos x, e^x, ln x, 16 a polynomial, 17 the n-th root of x^m,
//  18 ln(a·x^k), 19 (bx + c)^k.
DerivativeItem MakeEasyDerivative(GeneratorWorkspace& ws, int type) {
    const Quadratic p = DrawInner(ws);
    const Quadratic d = p.Derivative();
    const double n = RandomInRange(ws, 2, 9, 1, 1);
    const double index = RandomInRange(ws, 3, 8, 1, 1);
    const double k = RandomInRange(ws, 2, 5, 1, 1);
    const std::string arg = p.Bracketed();
    DerivativeItem item;
    switch (type) {
    case 1:
        item.function = "sin_ " + arg;
        item.derivative = Factor(d) + "cos_ " + arg;
        break;
    case 2:
        item.function = "cos_ " + arg;
        item.derivative = Factor(d.Scaled(-1)) + "sin_ " + arg;
        break;
    case 3: {
        Quadratic top = d, bottom = p;
        Reduce(ws, top, bottom);
        item.function = "ln_ " + arg;
        item.derivative = Fraction(top.Text(), bottom.Text());
        break;
    }
    case 4:
    case 7: {
        // root(index, p) / m: p' / (m·index·root(index, p^(index - 1)))
        const double m = type == 7 ? k : 1;
        Quadratic top = d, scale = {0, 0, m * index};
        Reduce(ws, top, scale);
        const std::string root = Root(index, PowerOf("(" + p.Text() + ")", index - 1));
        item.function = type == 7 ? Fraction(Root(index, p.Text()), Num(m)) : Root(index, p.Text());
        item.derivative = Fraction(top.Text(), (scale.c == 1 ? "" : Num(scale.c) + "_ ") + root);
        break;
    }
    case 5:
        item.function = Fraction("1", p.Text());
        item.derivative = Fraction(d.Scaled(-1).Text(), "(" + p.Text() + ")^2");
        break;
    case 6:
        item.function = Fraction("1", "(" + p.Text() + ")^" + Num(k));
        item.derivative = Fraction(d.Scaled(-k).Text(), "(" + p.Text() + ")^" + Num(k + 1));
        break;
    case 8:
        item.function = "#EXP( " + p.Text() + "#EXP)";
        item.derivative = Factor(d) + "#EXP( " + p.Text() + "#EXP)";
        break;
    case 9: {
        const std::string power = "#POT(" + Num(n) + "#PB)(_ " + p.Text() + "#POT)";
        item.function = power;
        if (d.IsConstant()) {
            // A number in front: its sign leads, its size joins the product.
            item.derivative = (d.c < 0 ? "-" : "") + power + "_ ·_ " +
                              (std::fabs(d.c) == 1 ? "" : Num(std::fabs(d.c)) + "_ ·_ ") + "ln_ " + Num(n);
        } else {
            item.derivative = power + "_ ·_ " + d.Bracketed() + "_ ·_ ln_ " + Num(n);
        }
        break;
    }
    case 10: {
        // (p.b·x + p.c) / (x + k'): (p.b·k' - p.c) / (x + k')²
        const Quadratic top = {0, p.b, p.c}, bottom = {0, 1, index - 5};
        const double numerator = p.b * bottom.c - p.c;
        if (numerator == 0) return MakeEasyDerivative(ws, 11);
        item.function = Fraction(top.Text(), bottom.Text());
        item.derivative = Fraction(Num(numerator), "(" + bottom.Text() + ")^2");
        break;
    }
    case 11: {
        // (a'x² + bx + c) / (x + e): (a'x² + 2a'e·x + be - c) / (x + e)²
        const double a2 = p.a == 0 ? 1 : p.a, e = index - 5;
        const Quadratic top = {a2, p.b, p.c}, bottom = {0, 1, e};
        const Quadratic numerator = {a2, 2 * a2 * e, p.b * e - p.c};
        item.function = Fraction(top.Text(), bottom.Text());
        item.derivative = Fraction(numerator.Text(), "(" + bottom.Text() + ")^2");
        break;
    }
    case 12:
        item.function = XPower(n) + "_ sin_ " + kX;
        item.derivative = Times(n, XPower(n - 1)) + "_ sin_ " + kX + " + " + XPower(n) + "_ cos_ " + kX;
        break;
    case 13:
        item.function = XPower(n) + "_ cos_ " + kX;
        item.derivative = Times(n, XPower(n - 1)) + "_ cos_ " + kX + " - " + XPower(n) + "_ sin_ " + kX;
        break;
    case 14:
        item.function = XPower(n) + "_ #EXP( " + kX + "#EXP)";
        item.derivative = "#EXP( " + kX + "#EXP)_ (" + XPower(n) + " + " + Times(n, XPower(n - 1)) + ")";
        break;
    case 15:
        item.function = XPower(n) + "_ ln_ " + kX;
        item.derivative = Times(n, XPower(n - 1)) + "_ ln_ " + kX + " + " + XPower(n - 1);
        break;
    case 16: {
        const double c4 = RandomInRange(ws, 0, 4, 1, 0), c3 = RandomInRange(ws, -4, 9, 1, 0);
        const double c0 = RandomInRange(ws, -36, 36, 1, 0);
        const double lead = c4 == 0 && c3 == 0 ? n : c4;
        item.function = PolynomialToMarkup(lead, c3, p.a, p.b, c0, kX);
        item.derivative = PolynomialToMarkup(0, 4 * lead, 3 * c3, 2 * p.a, p.b, kX);
        break;
    }
    case 17: {
        // root(index, x^m) with m below the index and prime to it: m / (index·root(index, x^(index - m)))
        double m = std::fmod(n, index - 1) + 1;
        while (Gcd(ws, m, index) != 1) m -= 1;
        const double g = Gcd(ws, m, index);
        item.function = Root(index, XPower(m));
        item.derivative = Fraction(Num(m / g), Num(index / g) + "_ " + Root(index, XPower(index - m)));
        break;
    }
    case 18:
        item.function = "ln_ " + Times(std::fabs(p.b), XPower(n));
        item.derivative = Fraction(Num(n), "_ " + kX);
        break;
    default: {
        // (bx + c)^k: k·b·(bx + c)^(k - 1)
        const Quadratic linear = {0, p.b, p.c == 0 ? 1 : p.c};
        item.function = "(" + linear.Text() + ")^" + Num(k);
        item.derivative = Num(k * p.b) + "_ " + PowerOf("(" + linear.Text() + ")", k - 1);
        break;
    }
    }
    return item;
}

// The harder drill: inverse functions, logarithms of trigonometric functions, products
// and quotients with a chain:
//  1 arctan(bx + c), 2 arcsin(bx), 3 arccos(bx), 4 ln sin(bx + c), 5 ln cos(bx + c),
//  6 arctan x^n, 7 arcsin √x, 8 e^(ax)·sin bx, 9 e^(ax)·cos bx, 10 ln((x + a)/(x + c)),
//  11 sin^n(bx + c), 12 x·arctan x, 13 √(ax² + c), 14 ln(x² + a), 15 e^(ax²),
//  16 tan(bx + c), 17 x / ln x, 18 sin x / (1 + cos x), 19 ln(x + √(x² + a)).
DerivativeItem MakeHardDerivative(GeneratorWorkspace& ws, int type) {
    const double a = RandomInRange(ws, 2, 12, 1, 1);
    const double b = RandomInRange(ws, 1, 9, 1, 1) * (Coin(ws, 0.7f) ? -1 : 1);
    const double c = RandomInRange(ws, -9, 9, 1, 0);
    const double n = RandomInRange(ws, 2, 5, 1, 1);
    const double s = RandomInRange(ws, 1, 19, 1, 1);
    const Quadratic inner = {0, b, c};
    const std::string arg = inner.Bracketed();
    // A plain argument bx is written with a positive b.
    const std::string bx = Times(std::fabs(b), kX);
    DerivativeItem item;
    switch (type) {
    case 1:
        item.function = "arctan_ " + arg;
        item.derivative = Fraction(Num(b), "1 + (" + inner.Text() + ")^2");
        break;
    case 2:
        item.function = "arcsin_ " + bx;
        item.derivative = Fraction(Num(std::fabs(b)), "#SQR(1 - " + Times(b * b, XPower(2)) + "#SQR)");
        break;
    case 3:
        item.function = "arccos_ " + bx;
        item.derivative = Fraction(Num(-std::fabs(b)), "#SQR(1 - " + Times(b * b, XPower(2)) + "#SQR)");
        break;
    case 4:
        item.function = "ln sin_ (" + inner.Text() + ")";
        item.derivative = Fraction(Times(b, "cos_ (" + inner.Text() + ")"), "sin_ (" + inner.Text() + ")");
        break;
    case 5:
        item.function = "ln cos_ (" + inner.Text() + ")";
        item.derivative = Fraction(Times(-b, "sin_ (" + inner.Text() + ")"), "cos_ (" + inner.Text() + ")");
        break;
    case 6:
        item.function = "arctan_ " + XPower(n);
        item.derivative = Fraction(Times(n, XPower(n - 1)), "1 + " + XPower(2 * n));
        break;
    case 7:
        item.function = "arcsin_ #SQR(" + kX + "#SQR)";
        item.derivative = Fraction("1", "2#SQR(" + kX + "#SQR)_ #SQR(1 - " + kX + "#SQR)");
        break;
    case 8: {
        const std::string e = "#EXP( " + Times(a, kX) + "#EXP)";
        item.function = e + "_ sin_ " + bx;
        item.derivative = e + "_ (" + Num(a) + "_ sin_ " + bx + " + " + Times(std::fabs(b), std::fabs(b) == 1 ? "cos_ " : "_ cos_ ") +
                          bx + ")";
        break;
    }
    case 9: {
        const std::string e = "#EXP( " + Times(a, kX) + "#EXP)";
        item.function = e + "_ cos_ " + bx;
        item.derivative = e + "_ (" + Num(a) + "_ cos_ " + bx + " - " + Times(std::fabs(b), std::fabs(b) == 1 ? "sin_ " : "_ sin_ ") +
                          bx + ")";
        break;
    }
    case 10: {
        // ln((x + a)/(x + c)): (c - a) / ((x + a)(x + c))
        const double cc = c == a ? c + 1 : c;
        const Quadratic top = {0, 1, a}, bottom = {0, 1, cc};
        item.function = "ln_ " + Fraction(top.Text(), bottom.Text());
        item.derivative = Fraction(Num(cc - a), "(" + top.Text() + ")_ (" + bottom.Text() + ")");
        break;
    }
    case 11: {
        const std::string power = n - 1 == 1 ? "sin_ " : "sin^" + Num(n - 1) + "_ ";
        item.function = "sin^" + Num(n) + "_ (" + inner.Text() + ")";
        item.derivative = Num(n * b) + "_ " + power + "(" + inner.Text() + ")_ cos_ (" + inner.Text() + ")";
        break;
    }
    case 12:
        item.function = kX + "_ arctan_ " + kX;
        item.derivative = "arctan_ " + kX + " + " + Fraction(kX, "1 + " + XPower(2));
        break;
    case 13: {
        // √(a·x² + s): a·x / √(a·x² + s)
        const std::string radicand = PolynomialToMarkup(0, 0, a, 0, s, kX);
        item.function = "#SQR(" + radicand + "#SQR)";
        item.derivative = Fraction(Times(a, kX), "#SQR(" + radicand + "#SQR)");
        break;
    }
    case 14: {
        const std::string quadratic = PolynomialToMarkup(0, 0, 1, 0, s, kX);
        item.function = "ln_ (" + quadratic + ")";
        item.derivative = Fraction("2" + kX, quadratic);
        break;
    }
    case 15: {
        const std::string e = "#EXP( " + Times(b, XPower(2)) + "#EXP)";
        item.function = e;
        item.derivative = Times(2 * b, kX) + "_ " + e;
        break;
    }
    case 16:
        item.function = "tan_ " + arg;
        item.derivative = Fraction(Num(b), "cos^2_ " + arg);
        break;
    case 17:
        item.function = Fraction(kX, "ln_ " + kX);
        item.derivative = Fraction("ln_ " + kX + " - 1", "ln^2_ " + kX);
        break;
    case 18:
        item.function = Fraction("sin_ " + kX, "1 + cos_ " + kX);
        item.derivative = Fraction("1", "1 + cos_ " + kX);
        break;
    default: {
        const std::string root = "#SQR(" + PolynomialToMarkup(0, 0, 1, 0, s, kX) + "#SQR)";
        item.function = "ln_ (" + kX + " + " + root + ")";
        item.derivative = Fraction("1", root);
        break;
    }
    }
    return item;
}

namespace {
const ColumnMarks kDerivativeColumns = {"&SP=5:", "&SP=50:"};
// The solution's rows begin after the word "Solution:", which the first statement column
// would run into.
const ColumnMarks kDerivativeSolutionColumns = {"&SP=10:", "&SP=55:"};
const ColumnMarks kDerivativeColumn = {"&SP=5:"};
const ColumnMarks kDerivativeSolutionColumn = {"&SP=10:"};

// The drill of derivatives: the type counter runs round the 19 types, a coin draws it
// anew; two columns in statement and solution.
void DerivativeDrill(GeneratorWorkspace& ws, DerivativeItem (*make)(GeneratorWorkspace&, int)) {
    const int count = DrillItemCount(ws, 20);
    std::vector<std::string> statements, solutions;
    int type = static_cast<int>(RandomInRange(ws, 1, kDerivativeTypes, 1, 1));
    for (int i = 1; i <= count; ++i) {
        type = type == kDerivativeTypes ? 1 : type + 1;
        if (Coin(ws, 0.6f)) type = static_cast<int>(RandomInRange(ws, 1, kDerivativeTypes, 1, 1));
        RetryBound bound;
        DerivativeItem item;
        while (true) {
            item = make(ws, type);
            if (std::find(statements.begin(), statements.end(), item.function) == statements.end()) break;
            bound.Next();
            type = static_cast<int>(RandomInRange(ws, 1, kDerivativeTypes, 1, 1));
        }
        statements.push_back(item.function);
        solutions.push_back(item.derivative);
    }
    std::vector<std::string> statementItems, solutionItems;
    for (int i = 1; i <= count; ++i) {
        statementItems.push_back("&+B" + ItemLetter(i) + ")&-B  &+Iy =&-I " + statements[i - 1]);
        solutionItems.push_back("&+B" + ItemLetter(i) + ")&-B  &+Iy&-I_ ' = " + solutions[i - 1]);
    }
    // A derivative too wide for half the line gets a line of its own.
    const ColumnMarks& statementColumns = FitColumns(statementItems, kDerivativeColumns, {&kDerivativeColumn});
    const ColumnMarks& solutionColumns =
        FitColumns(solutionItems, kDerivativeSolutionColumns, {&kDerivativeSolutionColumn});
    ws.Statement = "Find the derivative of the following functions:&LF" +
                   ItemRows(statementItems, statementColumns, "&LF") + "&LF";
    ws.Solution = ItemRows(solutionItems, solutionColumns, "&LF");
}
} // namespace

// Routine 1: derivatives of the easy forms.
void DerivativeOfFunctionsI(GeneratorWorkspace& ws) {
    DerivativeDrill(ws, MakeEasyDerivative);
}

// Routine 2: derivatives of the harder forms.
void DerivativeOfFunctionsII(GeneratorWorkspace& ws) {
    DerivativeDrill(ws, MakeHardDerivative);
}
