#include <array>
#include <cmath>
#include <string>

#include "generators/lfd/lfd_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kX = "&+Ix&-I";

std::string Num(double v) { return PlainNumberText(v); }

std::string Lead(const GeneratorWorkspace& ws) {
    switch (ws.VariantNumber % 3) {
    case 0: return "Calculate the limit:  ";
    case 1: return "Calculate  ";
    default: return "Find the value of this limit:  ";
    }
}

// The limit sign with x tending to the point, and the expression in brackets. "lim" is a
// function name and stands upright, as log and sin do.
std::string LimitOf(const std::string& point, const std::string& body) {
    return "#TST(lim#TS)(#ST1(&+Ix&-I &ars " + point + " #ST1)#TST)#NES(()" + body + "#NES)";
}

std::string Quotient(const std::string& numerator, const std::string& denominator) {
    return "#COC(" + numerator + "#N)(" + denominator + "#COC)";
}

// Coefficients by degree of the product of two polynomials given by degree.
std::array<double, 5> Times(const std::array<double, 5>& p, const std::array<double, 5>& q) {
    std::array<double, 5> r{};
    for (int i = 0; i < 5; ++i)
        for (int j = 0; i + j < 5; ++j) r[i + j] += p[i] * q[j];
    return r;
}

std::string Poly(const std::array<double, 5>& c) { return PolynomialToMarkup(c[4], c[3], c[2], c[1], c[0], kX); }

std::string Answer(const std::string& value) { return "&SP=10:" + value + "&LF"; }
} // namespace

// Routine 27: the limit of a quotient of polynomials. Type 1: a common factor (x - a) of
// two quadratics at the point a; type 2: a quotient at infinity, of equal or different
// degrees; type 3: a cubic over a quadratic with a common factor at the point.
void LimitsInvolvingRationalFunctions(GeneratorWorkspace& ws) {
    const int remainder = static_cast<int>(ws.GroupIndex) % 3;
    const int type = remainder == 0 ? 3 : remainder;
    std::string body, point, value;
    RetryBound bound;
    while (true) {
        const double a = RandomInRange(ws, -9, 9, 1, 0);
        const double r = RandomInRange(ws, -2, 4, 1, 0);
        const double c = RandomInRange(ws, -12, 12, 1, 0);
        const double s = RandomInRange(ws, -6, 9, 1, 0);
        const bool flip = Coin(ws, 0.5f);
        const bool square = Coin(ws, 0.6f);
        const bool lower = Coin(ws, 0.75f);
        const bool negative = Coin(ws, 0.7f);
        const bool scale = Coin(ws, 0.85f);
        const std::array<double, 5> common = {-a, 1, 0, 0, 0};
        if (type == 1) {
            // (x - a)(x - r) / ((x - a)(x - s)) -> (a - r)/(a - s); s = a would leave no limit.
            if (s == a || r == a || r == s) {
                bound.Next();
                continue;
            }
            const double k = scale ? 2 : 1;
            const std::array<double, 5> top = Times(common, {-r * k, k, 0, 0, 0});
            const std::array<double, 5> bottom = Times(common, {-s, 1, 0, 0, 0});
            body = Quotient(Poly(flip ? Times(top, {-1, 0, 0, 0, 0}) : top), Poly(bottom));
            point = Num(a);
            value = FractionToMarkup(ws, (flip ? -k : k) * (a - r), a - s);
        } else if (type == 2) {
            // At infinity: the degrees decide; equal degrees give the quotient of the leads.
            const double lead1 = (negative ? -1 : 1) * (std::fabs(r) + 1);
            const double lead2 = std::fabs(s) + 1;
            const int topDegree = square ? 2 : 1;
            const int bottomDegree = lower ? topDegree : (flip ? 2 : 1);
            std::array<double, 5> top{}, bottom{};
            top[topDegree] = lead1;
            top[topDegree - 1] = c;
            if (topDegree == 2) top[0] = a;
            bottom[bottomDegree] = lead2;
            bottom[0] = a - c;
            if (bottomDegree == 2) bottom[1] = r;
            body = Quotient(Poly(top), Poly(bottom));
            point = "&oo";
            if (topDegree == bottomDegree) value = FractionToMarkup(ws, lead1, lead2);
            else if (topDegree < bottomDegree) value = "0";
            else value = lead1 > 0 ? "+&oo" : "-&oo";
        } else {
            // (x - a)(x² + m·x + n) / ((x - a)(x - s)) -> (a² + m·a + n)/(a - s)
            if (s == a) {
                bound.Next();
                continue;
            }
            const double m = Int(c / 3), n = lower ? r : -r;
            const std::array<double, 5> top = Times(common, {n, m, 1, 0, 0});
            const std::array<double, 5> bottom = Times(common, {-s, 1, 0, 0, 0});
            body = Quotient(Poly(top), Poly(bottom));
            point = Num(a);
            value = FractionToMarkup(ws, a * a + m * a + n, a - s);
        }
        break;
    }
    ws.Statement = Lead(ws) + LimitOf(point, body) + "&LF";
    ws.Solution = Answer(value);
}

// Routine 26: a root minus a number over a polynomial, or the reverse, at the point
// where both vanish; the conjugate removes the common factor.
void LimitsInvolvingRoots(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 2;
    std::string body, value;
    double a = 0;
    RetryBound bound;
    while (true) {
        const double c = RandomInRange(ws, 1, 4, 1, 1);
        a = RandomInRange(ws, -6, 9, 1, 0);
        const double r = RandomInRange(ws, -6, 9, 1, 0);
        const bool linear = Coin(ws, 0.6f);
        const bool swap = Coin(ws, 0.75f);
        if (r == a) {
            bound.Next();
            continue;
        }
        // √(x + b) - c vanishes at a when b = c² - a; the factor (x - a) over
        // (√(x + b) + c) is what is left after the conjugate: 1 / (2c) at the point.
        const double b = c * c - a;
        const std::string root = "#SQR(" + PolynomialToMarkup(0, 0, 0, 1, b, kX) + "#SQR)& -& " + Num(c);
        // The other side: (x - a) or (x - a)(x - r).
        std::string polynomial;
        double rest = 1;
        if (linear && !swap) {
            polynomial = PolynomialToMarkup(0, 0, 0, 1, -a, kX);
        } else {
            polynomial = PolynomialToMarkup(0, 0, 1, -(a + r), a * r, kX);
            rest = a - r;
        }
        if (type == 0) {
            body = Quotient(root, polynomial);
            value = FractionToMarkup(ws, 1, 2 * c * rest);
        } else {
            body = Quotient(polynomial, root);
            value = FractionToMarkup(ws, 2 * c * rest, 1);
        }
        break;
    }
    ws.Statement = Lead(ws) + LimitOf(Num(a), body) + "&LF";
    ws.Solution = Answer(value);
}

// Routine 77: a difference of two square roots at infinity, or of a root and a linear
// term; the conjugate leaves the quotient of the linear coefficients.
void LimitsInvolvingSubtractionOfRoots(GeneratorWorkspace& ws) {
    std::string body, value;
    RetryBound bound;
    while (true) {
        const double p = RandomInRange(ws, -9, 15, 1, 0);
        const double q = RandomInRange(ws, -9, 9, 1, 0);
        const double r = RandomInRange(ws, -9, 15, 1, 0);
        const double s = RandomInRange(ws, -9, 9, 1, 0);
        const bool square = Coin(ws, 0.1f);
        const bool linear = Coin(ws, 0.75f);
        // The lead of both radicands is a², so that the x terms cancel.
        const double a = square ? 1 : 2;
        const double a2 = a * a;
        const std::string first = "#SQR(" + PolynomialToMarkup(0, 0, a2, p, q, kX) + "#SQR)";
        if (linear) {
            // √(a²x² + px + q) - (ax + k): (p - 2ak) / (2a), with k from s.
            const double k = s;
            body = first + " - " + (k == 0 ? PolynomialToMarkup(0, 0, 0, a, 0, kX)
                                           : "(" + PolynomialToMarkup(0, 0, 0, a, k, kX) + ")");
            value = FractionToMarkup(ws, p - 2 * a * k, 2 * a);
        } else {
            if (p == r && q == s) {
                bound.Next();
                continue;
            }
            // √(a²x² + px + q) - √(a²x² + rx + s): (p - r) / (2a).
            body = first + " - #SQR(" + PolynomialToMarkup(0, 0, a2, r, s, kX) + "#SQR)";
            value = FractionToMarkup(ws, p - r, 2 * a);
        }
        break;
    }
    ws.Statement = Lead(ws) + "#TST(lim#TS)(#ST1(&+Ix&-I &ars &oo#ST1)#TST)#NES(()" + body + "#NES)&LF";
    ws.Solution = Answer(value);
}

// Routine 25: a power whose base tends to 1 and whose exponent grows: the limit is
// e to the limit of (base - 1)·exponent.
void LimitsOfPowersInvolvingE(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 3;
    std::string base, exponent;
    double num = 0, den = 1;
    RetryBound bound;
    while (true) {
        const double a = RandomInRange(ws, -6, 6, 1, 1);
        const double b = RandomInRange(ws, 1, 6, 1, 1);
        const double c = RandomInRange(ws, -9, 9, 1, 0);
        const double d = RandomInRange(ws, 1, 4, 1, 1);
        const double e = RandomInRange(ws, -5, 5, 1, 0);
        if (type == 0) {
            // (1 + a/(bx))^(dx + e) -> e^(ad/b)
            base = "1 + " + Quotient(Num(a), PolynomialToMarkup(0, 0, 0, b, 0, kX));
            if (a < 0) base = "1 - " + Quotient(Num(-a), PolynomialToMarkup(0, 0, 0, b, 0, kX));
            num = a * d;
            den = b;
        } else if (type == 1) {
            // ((x + c)/(x + c - a))^(dx + e) -> e^(ad)
            base = Quotient(PolynomialToMarkup(0, 0, 0, 1, c, kX), PolynomialToMarkup(0, 0, 0, 1, c - a, kX));
            num = a * d;
            den = 1;
        } else {
            // ((bx + c)/(bx + c - a))^(dx + e) -> e^(ad/b)
            base = Quotient(PolynomialToMarkup(0, 0, 0, b, c, kX), PolynomialToMarkup(0, 0, 0, b, c - a, kX));
            num = a * d;
            den = b;
        }
        exponent = PolynomialToMarkup(0, 0, 0, d, e, kX);
        break;
    }
    ws.Statement = Lead(ws) + "#TST(lim#TS)(#ST1(&+Ix&-I &ars &oo #ST1)#TST)#POT(#NES(()" + base + "#NES)#PB)(" +
                   exponent + "#POT)&LF";
    const double g = Gcd(ws, std::fabs(num), den);
    num /= g;
    den /= g;
    if (num == 1 && den == 1) {
        ws.Solution = "&SP=10:&+Ie&-I&LF";
    } else {
        ws.Solution = "&SP=10:#EXP( " + Num(num) + (den == 1 ? "" : "/" + Num(den)) + "#EXP)&LF";
    }
}
