#include <cmath>

#include "generators/int/int_routines.h"
#include "generators/int/integral_items.h"
#include "generators/int/integral_list.h"
#include "generators/shared/sum_terms.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

using namespace integral_text;

namespace {
std::string Num(double v) { return PlainNumberText(v); }
std::string Times(double a, const std::string& body) {
    if (a == 1) return body;
    if (a == -1) return "-" + body;
    return Num(a) + body;
}
// A bracketed base to a whole power, through a power tag from 10 on.
std::string PowerOf(const std::string& base, double k) {
    if (k == 1) return base;
    if (k < 10) return base + "^" + Num(k);
    return "#POT(" + base + "#PB)(" + Num(k) + "#POT)";
}
} // namespace

IntegralItem MakeSubstitutionItem(GeneratorWorkspace& ws, int row) {
    const double a = RandomInRange(ws, 1, 8, 1, 1);
    const double b = RandomInRange(ws, 2, 9, 1, 1);
    const double k = RandomInRange(ws, 2, 18, 1, 1);
    const double c = RandomInRange(ws, -9, 9, 1, 1);
    double m = RandomInRange(ws, 3, 8, 1, 1);
    const double n = RandomInRange(ws, 3, 8, 1, 1);
    const double base = RandomInRange(ws, 2, 8, 1, 1);
    const std::string x = X(), ex = Exp(x);
    const std::string inner = PolynomialToMarkup(0, 0, 0, b, c, x);  // bx + c
    const std::string lnx = "ln_ " + x;
    std::string f, F;
    switch (row) {
    case 1: f = "#COC(sin_ (arctan_ " + x + ")#N)(1 + " + XPower(2) + "#COC)"; F = "-cos_ (arctan_ " + x + ")"; break;
    case 2: f = "#COC(1#N)(" + x + "_ (1 + ln^2_ " + x + ")#COC)"; F = "arctan_ (" + lnx + ")"; break;
    case 3: f = "1 + tan^2_ " + x; F = "tan_ " + x; break;
    case 4: f = "tan^2_ " + x; F = "tan_ " + x + " - " + x; break;
    case 5: f = "tan_ " + x; F = "-ln|cos_ " + x + "|"; break;
    case 6: f = "#COC(1#N)(" + x + "_ #SQR(1 - ln^2_ " + x + "#SQR)#COC)"; F = "arcsin_ (" + lnx + ")"; break;
    case 7: f = "#COC(1#N)(cos^2_ " + x + "#COC)"; F = "tan_ " + x; break;
    case 8: f = "#SQR(" + x + "#SQR)"; F = "#COC(2#SQR(" + XPower(3) + "#SQR)#N)(3#COC)"; break;
    case 9: f = "#COC(" + Num(a) + "#N)(" + inner + "#COC)"; F = Fraction(ws, "ln|" + inner + "|", a, b); break;
    case 10:
        f = "#COC(" + Num(a) + "#N)(1 + (" + inner + ")^2#COC)";
        F = Fraction(ws, "arctan_ (" + inner + ")", a, b);
        break;
    case 11:
        f = "#COC(" + Num(a) + "#N)(#SQR(1 - (" + inner + ")^2#SQR)#COC)";
        F = Fraction(ws, "arcsin_ (" + inner + ")", a, b);
        break;
    case 12: f = "#COC(" + Num(a) + "#N)(#SQR(" + x + "#SQR)#COC)"; F = Times(2 * a, "#SQR(" + x + "#SQR)"); break;
    case 13:
        f = Times(a, "(" + inner + ")^" + Num(m));
        F = Fraction(ws, "(" + inner + ")^" + Num(m + 1), a, b * (m + 1));
        break;
    case 14: f = Times(a, Exp(inner)); F = Fraction(ws, Exp(inner), a, b); break;
    case 15: f = Times(a, "sin_ (" + inner + ")"); F = Fraction(ws, "cos_ (" + inner + ")", -a, b); break;
    case 16: f = Times(a, "cos_ (" + inner + ")"); F = Fraction(ws, "sin_ (" + inner + ")", a, b); break;
    case 17: {
        // An even root of an even power would be a root of |bx + c|, whose antiderivative
        // this form is not; and a power that the root would swallow whole is no exercise.
        // Either is taken one higher.
        if (std::fmod(n, 2) == 0 && std::fmod(m, 2) == 0) m += 1;
        if (std::fmod(m, n) == 0) m += 1;
        const std::string bracket = "(" + inner + ")";
        f = Times(a, "#RAD(#RI(" + Num(n) + "#RI)" + PowerOf(bracket, m) + "#RAD)");
        F = Fraction(ws, "#RAD(#RI(" + Num(n) + "#RI)" + PowerOf(bracket, m + n) + "#RAD)", a * n, b * (m + n));
        break;
    }
    case 18: {
        const std::string quadratic = PolynomialToMarkup(0, 0, b, 0, c, x);
        f = "#COC(" + Linear(2 * a * b) + "#N)(" + quadratic + "#COC)";
        F = Times(a, "ln|" + quadratic + "|");
        break;
    }
    case 19:
        f = "cos^" + Num(n) + "_ " + x + "_ sin_ " + x;
        F = "-#COC(cos^" + Num(n + 1) + "_ " + x + "#N)(" + Num(n + 1) + "#COC)";
        break;
    case 20:
        f = "sin^" + Num(n) + "_ " + x + "_ cos_ " + x;
        F = "#COC(sin^" + Num(n + 1) + "_ " + x + "#N)(" + Num(n + 1) + "#COC)";
        break;
    case 21: {
        const std::string bottom = Num(b) + (c > 0 ? " + " : " - ") + Times(std::fabs(c), ex);
        f = "#COC(" + Times(a, ex) + "#N)(" + bottom + "#COC)";
        F = Fraction(ws, "ln|" + bottom + "|", a, c);
        break;
    }
    case 22:
        f = "#COC(ln^" + Num(n) + "_ " + x + "#N)(" + x + "#COC)";
        F = "#COC(ln^" + Num(n + 1) + "_ " + x + "#N)(" + Num(n + 1) + "#COC)";
        break;
    case 23: {
        const std::string argument = "(" + Times(a, lnx) + ")";
        f = "#COC(sin_ " + argument + "#N)(" + x + "#COC)";
        F = Fraction(ws, "cos_ " + argument, -1, a);
        break;
    }
    case 24: {
        const std::string argument = "(" + Times(a, lnx) + ")";
        f = "#COC(cos_ " + argument + "#N)(" + x + "#COC)";
        F = Fraction(ws, "sin_ " + argument, 1, a);
        break;
    }
    case 25: {
        const std::string power = Exp(Times(a, lnx));
        f = "#COC(" + power + "#N)(" + x + "#COC)";
        F = Fraction(ws, power, 1, a);
        break;
    }
    case 26: {
        const std::string power = "#POT(" + Num(base) + "#PB)(_ ln_ " + x + "#POT)";
        f = "#COC(" + power + "#N)(" + x + "#COC)";
        F = "#COC(" + power + "#N)(ln_ " + Num(base) + "#COC)";
        break;
    }
    case 27: {
        // (a·x² + b·x + c) / x = a·x + b + c / x
        f = "#COC(" + PolynomialToMarkup(0, 0, a, b, c, x) + "#N)(" + x + "#COC)";
        AppendTerm(ws, F, a, 2, XPower(2));
        AppendTerm(ws, F, b, 1, x);
        AppendTerm(ws, F, c, 1, "ln|" + x + "|");
        break;
    }
    case 28: {
        const std::string bottom = Num(b) + (c > 0 ? " + " : " - ") + Times(std::fabs(c), "sin_ " + x);
        f = "#COC(" + Times(a, "cos_ " + x) + "#N)(" + bottom + "#COC)";
        F = Fraction(ws, "ln|" + bottom + "|", a, c);
        break;
    }
    case 29: {
        const std::string power = Exp(Times(b, "sin_ " + x));
        // The exponential first, so that the cosine's argument is plainly x.
        f = Times(a, power + "_ cos_ " + x);
        F = Fraction(ws, power, a, b);
        break;
    }
    case 30: {
        // The variable after the constant, with a minus: the inner derivative is negative.
        const std::string bottom = Num(k) + " - " + Linear(b);
        f = "#COC(" + Num(a) + "#N)(" + bottom + "#COC)";
        F = Fraction(ws, "ln|" + bottom + "|", -a, b);
        break;
    }
    case 31: {
        const std::string argument = Times(b, XPower(2));
        f = Times(a, x + "_ sin_ " + argument);
        F = Fraction(ws, "cos_ " + argument, -a, 2 * b);
        break;
    }
    case 32: {
        const std::string argument = Times(b, XPower(2));
        f = Times(a, x + "_ cos_ " + argument);
        F = Fraction(ws, "sin_ " + argument, a, 2 * b);
        break;
    }
    case 33:
        f = "#COC(" + Times(a, ex) + "#N)(1 + " + Times(b * b, Exp("2" + x)) + "#COC)";
        F = Fraction(ws, "arctan_ (" + Times(b, ex) + ")", a, b);
        break;
    case 34:
        f = "#COC(" + Times(a, XPower(m - 1)) + "#N)(1 + " + Times(b * b, XPower(2 * m)) + "#COC)";
        F = Fraction(ws, "arctan_ (" + Times(b, XPower(m)) + ")", a, b * m);
        break;
    default:
        f = "#COC(" + Times(a, XPower(m - 1)) + "#N)(#SQR(1 - " + Times(b * b, XPower(2 * m)) + "#SQR)#COC)";
        F = Fraction(ws, "arcsin_ (" + Times(b, XPower(m)) + ")", a, b * m);
        break;
    }
    return {Integral(f), WithConstant(F)};
}

// Routine 6: integrals that a substitution or a direct rule solves; 35 templates walked
// in turn from a drawn first one.
void IntegrationBySubstitution(GeneratorWorkspace& ws) {
    IntegralList list(ws, 2, kIntegralStatementColumns);
    int row = 0;
    for (int i = 1; i <= list.Count(); ++i) {
        if (i == 1) row = static_cast<int>(RandomInRange(ws, 1, kSubstitutionRows, 1, 1));
        else row = row == kSubstitutionRows ? 1 : row + 1;
        AddNewItem(list, [&] { return MakeSubstitutionItem(ws, row); });
    }
    list.Write();
}
