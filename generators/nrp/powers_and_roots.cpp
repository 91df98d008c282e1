#include <cmath>

#include "generators/nrp/drill_items.h"
#include "generators/nrp/nrp_routines.h"
#include "generators/nrp/power_drill.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
std::string Plain(double x) { return PlainNumberText(x); }

// base^e as a power; the exponent 1 is not written.
std::string Power(const std::string& base, double e) {
    if (e == 1) return base;
    return "#POT(" + base + "#PB)(" + Plain(e) + "#POT)";
}

// The root of the given index; index 2 is the plain square root.
std::string RootOf(double index, const std::string& radicand) {
    if (index == 2) return "#SQR(" + radicand + "#SQR)";
    return "#RAD(#RI(" + Plain(index) + "#RI)" + radicand + "#RAD)";
}

std::string Frac(const std::string& upper, const std::string& lower) {
    return "#COC(" + upper + "#N)(" + lower + "#COC)";
}

// A prime drawn from low to high, drawn again until it is one.
double DrawPrime(GeneratorWorkspace& ws, double low, double high) {
    RetryBound bound;
    while (true) {
        const double p = RandomInRange(ws, low, high, 1, 1);
        if (IsPrime(ws, p)) return p;
        bound.Next();
    }
}

// Types go round, wrapping from the last to 1; a coin that falls draws one at random.
double NextType(GeneratorWorkspace& ws, double type, double typeCount, float threshold) {
    type += 1;
    if (type > typeCount) type = 1;
    if (Coin(ws, threshold)) type = RandomInRange(ws, 1, typeCount, 1, 1);
    return type;
}
} // namespace

SquareRootSumItem DrawSquareRootSum(GeneratorWorkspace& ws, int terms) {
    SquareRootSumItem item;
    item.prime = DrawPrime(ws, 2, 7);
    bool anyFactor = false;
    for (int j = 0; j < terms; ++j) {
        double k = RandomInRange(ws, 1, 5, 1, 1);
        double c = j == 0 ? RandomInRange(ws, 1, 6, 1, 1) : RandomInRange(ws, -6, 6, 1, 1);
        // The first term is positive but one time in ten; three coefficients in ten are
        // a bare sign; one root in five has no square factor.
        if (j == 0 && Coin(ws, 0.9f)) c = -c;
        if (Coin(ws, 0.7f)) c = c < 0 ? -1 : 1;
        if (!Coin(ws, 0.2f)) k = 1;
        if (k > 1) anyFactor = true;
        item.coefficients.push_back(c);
        item.factors.push_back(k);
    }
    double total = 0;
    for (int j = 0; j < terms; ++j) {
        total += item.coefficients[j] * item.factors[j];
        // Two terms that cancel or repeat as they stand teach nothing.
        for (int i = 0; i < j; ++i) {
            if (item.factors[i] == item.factors[j] &&
                std::fabs(item.coefficients[i]) == std::fabs(item.coefficients[j]))
                return {};
        }
    }
    // Something must come out of a root, and the sum must not vanish.
    if (!anyFactor || total == 0) return {};
    item.total = total;
    for (int j = 0; j < terms; ++j) {
        const double c = item.coefficients[j];
        if (j == 0) {
            item.texts.statement += c < 0 ? "-" : "";
        } else {
            item.texts.statement += c < 0 ? " - " : " + ";
        }
        if (std::fabs(c) != 1) item.texts.statement += Plain(std::fabs(c));
        const double k = item.factors[j];
        item.texts.statement += "#SQR(" + Plain(k * k * item.prime) + "#SQR)";
    }
    item.texts.solution = RootFractionToMarkup(ws, total, item.prime, 1);
    return item;
}

// Routine 25: sums of two to four square roots that all reduce to one root of a prime,
// by the form 1 to 3 of the item.
void AdditionAndSubtractionOfSquareRoots(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kPowerStatementColumns4, kPowerSolutionColumns4, 26, kPowerItems);
    double form = RandomInRange(ws, 1, 3, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        form += 1;
        if (form > 3) form = 1;
        AddNewItem(drill, [&] { return DrawSquareRootSum(ws, static_cast<int>(form) + 1).texts; });
    }
    drill.WriteStatement({"Calculate the following expressions:&LF"});
}

SingleRootItem DrawSingleRoot(GeneratorWorkspace& ws, int type) {
    // Types, p a prime:
    //   1  n-th root of p^a × m-th root of p^b     2  the same divided
    //   3  k-th root of the n-th root of p^a        4  the n-th root of p^a to the k
    //   5  p^j × n-th root of p^a                   6  k-th root of p^j × n-th root of p^a
    SingleRootItem item;
    const double p = DrawPrime(ws, 2, 19);
    const double n = RandomInRange(ws, 2, 7, 1, 1);
    const double a = RandomInRange(ws, 1, 4, 1, 1);
    const std::string base = Plain(p);
    const std::string first = RootOf(n, Power(base, a));
    // Every root of the statement is in its simplest form itself.
    bool simplest = a < n && Gcd(ws, n, a) == 1;
    double index = 0;
    double exponent = 0;
    switch (type) {
    case 1:
    case 2: {
        const double m = RandomInRange(ws, 2, 9, 1, 1);
        const double b = RandomInRange(ws, 1, 4, 1, 1);
        simplest = simplest && b < m && Gcd(ws, m, b) == 1;
        index = Lcm(ws, n, m);
        const double sign = type == 1 ? 1 : -1;
        exponent = a * index / n + sign * b * index / m;
        const std::string second = RootOf(m, Power(base, b));
        item.texts.statement = type == 1 ? first + " × " + second : Frac(first, second);
        break;
    }
    case 3: {
        const double k = RandomInRange(ws, 2, 4, 1, 1);
        index = k * n;
        exponent = a;
        item.texts.statement = RootOf(k, first);
        break;
    }
    case 4: {
        const double k = RandomInRange(ws, 2, 4, 1, 1);
        index = n;
        exponent = a * k;
        item.texts.statement = Power("#NES(()" + first + "#NES)", k);
        break;
    }
    case 5: {
        const double j = RandomInRange(ws, 1, 4, 1, 1);
        index = n;
        exponent = n * j + a;
        item.texts.statement = Power(base, j) + " × " + first;
        break;
    }
    default: {
        const double k = RandomInRange(ws, 2, 4, 1, 1);
        const double j = RandomInRange(ws, 1, 4, 1, 1);
        index = k * n;
        exponent = n * j + a;
        item.texts.statement = RootOf(k, Power(base, j) + " × " + first);
        break;
    }
    }
    // The answer is the root in lowest terms; one that comes out whole is refused.
    if (!simplest || exponent <= 0) return {};
    const double g = Gcd(ws, index, exponent);
    index /= g;
    exponent /= g;
    if (index == 1) return {};
    item.prime = p;
    item.index = index;
    item.exponent = exponent;
    item.texts.solution = RootOf(index, Power(base, exponent));
    return item;
}

// Routine 5: products, quotients, roots and powers of roots of a prime, simplified into
// a single root.
void SimplifyingNthRoots(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kPowerStatementColumns4, kPowerSolutionColumns4, 26, kPowerItems);
    double type = RandomInRange(ws, 1, 6, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        type = NextType(ws, type, 6, 0.7f);
        AddNewItem(drill, [&] { return DrawSingleRoot(ws, static_cast<int>(type)).texts; });
    }
    drill.WriteStatement({"Simplify these expressions into a single root:&LF",
                          "Simplify the following expressions into a single root:&LF"});
}

SinglePowerItem DrawNaturalSinglePower(GeneratorWorkspace& ws, int type) {
    // Types, p a prime:
    //   1  p^a × p^b       2  p^a : p^b          3  (p^a)^k          4  p^a × p^b × p^c
    //   5  (p^a × p^b)^k   6  (p^a)^k × p^b over p^c                 7  (p^a : p^b)^k
    SinglePowerItem item;
    const double p = DrawPrime(ws, 2, 13);
    const double a = RandomInRange(ws, 2, 9, 1, 1);
    const double b = RandomInRange(ws, 2, 9, 1, 1);
    const double k = RandomInRange(ws, 2, 4, 1, 1);
    const double c = RandomInRange(ws, 2, 5, 1, 1);
    const std::string base = Plain(p);
    const std::string pa = Power(base, a);
    const std::string pb = Power(base, b);
    const std::string pc = Power(base, c);
    double e = 0;
    std::string& text = item.texts.statement;
    switch (type) {
    case 1: text = pa + " × " + pb; e = a + b; break;
    case 2: text = pa + " : " + pb; e = a - b; break;
    case 3: text = Power("(" + pa + ")", k); e = a * k; break;
    case 4: text = pa + " × " + pb + " × " + pc; e = a + b + c; break;
    case 5: text = Power("(" + pa + " × " + pb + ")", k); e = (a + b) * k; break;
    case 6: text = Frac(Power("(" + pa + ")", k) + " × " + pb, pc); e = a * k + b - c; break;
    default: text = Power("(" + pa + " : " + pb + ")", k); e = (a - b) * k; break;
    }
    if (e < 2) return {};
    item.base = p;
    item.exponent = e;
    item.texts.solution = Power(base, e);
    return item;
}

// Routine 6: products, quotients and powers of powers of a prime, into a single power.
void SimplifyingPowersOfNaturalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kPowerStatementColumns4,
                    {"&SP=10:", "&SP=20:", "&SP=30:", "&SP=40:", "&SP=50:", "&SP=60:", "&SP=70:", "&SP=80:"}, 26,
                    kPowerItems);
    double type = RandomInRange(ws, 1, 7, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        type = NextType(ws, type, 7, 0.7f);
        AddNewItem(drill, [&] { return DrawNaturalSinglePower(ws, static_cast<int>(type)).texts; });
    }
    drill.WriteStatement({"Simplify these expressions into a single power:&LF",
                          "Simplify the following expressions into a single power:&LF"});
}

namespace {
std::string FractionBase(double upper, double lower) {
    return "#NES(()" + Frac(Plain(upper), Plain(lower)) + "#NES)";
}
} // namespace

RationalPowerItem DrawRationalSinglePower(GeneratorWorkspace& ws, int type) {
    // x = P/Q with two primes. Types:
    //   1  x^a × x^b       2  x^a : x^b          3  [x^a]^k          4  x^a × x^b × x^c
    //   5  [x^a × x^b]^k   6  x^a × x^b over x^c                     7  [x^a]^k over x^b
    // Exponents carry a sign; a factor is now and then written with the base turned
    // upside down and the sign of its exponent changed, which is the same power.
    RationalPowerItem item;
    const double P = DrawPrime(ws, 2, 13);
    const double Q = DrawPrime(ws, 2, 13);
    double exps[3] = {RandomInRange(ws, 2, 9, 1, 1), RandomInRange(ws, 2, 9, 1, 1), RandomInRange(ws, 2, 5, 1, 1)};
    std::string factors[3];
    for (int f = 0; f < 3; ++f) {
        exps[f] *= RandomInRange(ws, -1, 1, 1, 1);
        const bool turned = Coin(ws, 0.7f);
        factors[f] = turned ? Power(FractionBase(Q, P), -exps[f]) : Power(FractionBase(P, Q), exps[f]);
    }
    const double k = RandomInRange(ws, 2, 4, 1, 1) * RandomInRange(ws, -1, 1, 1, 1);
    if (P == Q) return {};
    const double a = exps[0];
    const double b = exps[1];
    const double c = exps[2];
    const std::string& xa = factors[0];
    const std::string& xb = factors[1];
    const std::string& xc = factors[2];
    double e = 0;
    std::string& text = item.texts.statement;
    switch (type) {
    case 1: text = xa + " × " + xb; e = a + b; break;
    case 2: text = xa + " : " + xb; e = a - b; break;
    case 3: text = Power("#NES([]" + xa + "#NES)", k); e = a * k; break;
    case 4: text = xa + " × " + xb + " × " + xc; e = a + b + c; break;
    case 5: text = Power("#NES([]" + xa + " × " + xb + "#NES)", k); e = (a + b) * k; break;
    case 6: text = Frac(xa + " × " + xb, xc); e = a + b - c; break;
    default: text = Frac(Power("#NES([]" + xa + "#NES)", k), xb); e = a * k - b; break;
    }
    if (std::fabs(e) < 2) return {};
    // The answer has a positive exponent: a negative one turns the base upside down.
    item.upper = e > 0 ? P : Q;
    item.lower = e > 0 ? Q : P;
    item.exponent = std::fabs(e);
    item.texts.solution = Power(FractionBase(item.upper, item.lower), item.exponent);
    return item;
}

// Routine 7: products, quotients and powers of powers of a fraction of two primes, into
// a single power with a positive exponent. At most twelve items: they are wide.
void SimplifyingPowersOfRationalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, {"&SP=5:", "&SP=37:", "&SP=69:"},
                    {"&SP=10:", "&SP=24:", "&SP=38:", "&SP=52:", "&SP=66:", "&SP=80:"}, 12, kPowerItems);
    double type = RandomInRange(ws, 1, 7, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        type = NextType(ws, type, 7, 0.7f);
        AddNewItem(drill, [&] { return DrawRationalSinglePower(ws, static_cast<int>(type)).texts; });
    }
    drill.WriteStatement({"Simplify these expressions into a single power with positive exponent:&LF",
                          "Simplify the following expressions into a single power with positive exponent:&LF"});
}
