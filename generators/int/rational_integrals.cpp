#include "generators/int/rational_integrals.h"

#include <cmath>

#include "generators/int/int_routines.h"
#include "generators/int/integral_list.h"
#include "generators/shared/sum_terms.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// Inside these integrals italic is open, so the variable is a plain "x"; it closes after
// the integral, so that the next item's letter stands upright.
const std::string kX = "x";

std::string IntegralOf(const RationalIntegral& r) {
    return "&+I#INT(#COC(" + PolynomialToMarkup(0, 0, 0, r.n1, r.n0, kX) + "#N)(" +
           PolynomialToMarkup(0, 0, r.d2, r.d1, r.d0, kX) + "#COC) dx#INT)&-I";
}

// The variables are italic and the function names upright: a logarithm or an arctangent
// switches italic on again behind its name, so every antiderivative ends with "&-I" to
// leave the text upright for what follows it.
std::string LogOf(const std::string& inner) { return "&-Iln|&+I" + inner + "|"; }
} // namespace

RationalIntegral MakePartialFractionIntegral(GeneratorWorkspace& ws, int shape) {
    RationalIntegral r;
    RetryBound bound;
    while (true) {
        const double p = RandomInRange(ws, -9, 9, 1, 0);
        const double q = RandomInRange(ws, -9, 9, 1, 1);
        double m = RandomInRange(ws, 0, 9, 1, 0);
        const double n = RandomInRange(ws, -10, 10, 1, 0);
        if (Coin(ws, 0.6f)) m = -m;
        std::string answer;
        bool ok = true;
        if (shape == 1) {
            // (m·x + n) / ((x + p)(x + q)) = A / (x + p) + B / (x + q)
            const double a = n - m * p, b = n - m * q;
            ok = p != q && a != 0 && b != 0;
            r.n1 = m;
            r.n0 = n;
            r.d2 = 1;
            r.d1 = p + q;
            r.d0 = p * q;
            if (ok) {
                AppendTerm(ws, answer, a, q - p, LogOf(ShiftedVariable(kX, p)));
                AppendTerm(ws, answer, b, p - q, LogOf(ShiftedVariable(kX, q)));
            }
        } else if (shape == 2) {
            // (m·x + n) / (x + p)² = m / (x + p) + B / (x + p)², B = n - m·p
            const double b = n - m * p;
            ok = m != 0 && b != 0;
            r.n1 = m;
            r.n0 = n;
            r.d2 = 1;
            r.d1 = 2 * p;
            r.d0 = p * p;
            if (ok) {
                AppendTerm(ws, answer, m, 1, LogOf(ShiftedVariable(kX, p)));
                answer += (b > 0 ? " - " : " + ") + std::string("#COC(") + PlainNumberText(std::fabs(b)) + "#N)(" +
                          ShiftedVariable(kX, p) + "#COC)";
            }
        } else {
            // (k·x + n) / (x + p) = k + (n - k·p) / (x + p); k is never 0 here
            const double k = m == 0 ? 1 : m;
            const double b = n - k * p;
            ok = b != 0;
            r.n1 = k;
            r.n0 = n;
            r.d2 = 0;
            r.d1 = 1;
            r.d0 = p;
            if (ok) {
                AppendTerm(ws, answer, k, 1, kX);
                AppendTerm(ws, answer, b, 1, LogOf(ShiftedVariable(kX, p)));
            }
        }
        if (ok) {
            r.statement = IntegralOf(r);
            r.solution = answer + " + C&-I";
            break;
        }
        bound.Next();
    }
    return r;
}

RationalIntegral MakeQuadraticDenominatorIntegral(GeneratorWorkspace& ws) {
    RationalIntegral r;
    RetryBound bound;
    while (true) {
        const double p = RandomInRange(ws, -9, 9, 1, 0);
        const double q = RandomInRange(ws, 1, 9, 1, 1);
        double m = RandomInRange(ws, 0, 9, 1, 0);
        const double n = RandomInRange(ws, -10, 10, 1, 0);
        if (Coin(ws, 0.6f)) m = -m;
        if (m == 0 && n == 0) {
            bound.Next();
            continue;
        }
        // (m·x + n) / ((x - p)² + q²) = (m/2)·D'/D + (n + m·p) / D
        r.n1 = m;
        r.n0 = n;
        r.d2 = 1;
        r.d1 = -2 * p;
        r.d0 = p * p + q * q;
        std::string answer;
        AppendTerm(ws, answer, m, 2, LogOf(PolynomialToMarkup(0, 0, 1, -2 * p, p * p + q * q, kX)));
        const std::string shifted = ShiftedVariable(kX, -p);
        std::string argument;
        if (q == 1) argument = p == 0 ? " x" : "(" + shifted + ")";
        else argument = " #COC(" + shifted + "#N)(" + PlainNumberText(q) + "#COC)";
        AppendTerm(ws, answer, n + m * p, q, "&-Iarctan&+I" + argument);
        r.statement = IntegralOf(r);
        r.solution = answer + " + C&-I";
        break;
    }
    return r;
}

// Routine 1: quotients whose denominators split into linear factors, by partial fractions.
void IntegralsOfRationalFunctionsI(GeneratorWorkspace& ws) {
    IntegralList list(ws, 1, kRationalStatementColumns);
    for (int i = 1; i <= list.Count(); ++i) {
        AddNewItem(list, [&] { return MakePartialFractionIntegral(ws, i % 3); });
    }
    list.Write();
}

// Routine 2: quadratic denominators without real roots give a logarithm and an arctangent.
void IntegralsOfRationalFunctionsII(GeneratorWorkspace& ws) {
    IntegralList list(ws, 1, kRationalStatementColumns);
    for (int i = 1; i <= list.Count(); ++i) {
        AddNewItem(list, [&] { return MakeQuadraticDenominatorIntegral(ws); });
    }
    list.Write();
}
