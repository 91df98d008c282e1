#include <cmath>

#include "generators/ecu/ecu_common.h"
#include "generators/ecu/ecu_items.h"
#include "generators/ecu/ecu_routines.h"
#include "generators/item_drill.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"

namespace {
std::string Separator(const std::string& relation) {
    return relation == "=" ? kEquals : "& " + relation + "& ";
}

// A sign coin: three times in ten a coefficient turns negative.
double WithSign(GeneratorWorkspace& ws, double value) { return Coin(ws, 0.3f) ? value : -value; }

// "a(x + b)" for a coefficient a of magnitude 2 or more.
std::string TimesParenthesis(double a, double b) {
    return PlainNumberText(a) + "(" + LinearSide(1, b) + ")";
}

void Reduce(GeneratorWorkspace& ws, LinearItem& item) {
    double n = -item.q, d = item.p;
    const double g = Gcd(ws, n, d);
    n /= g;
    d /= g;
    if (d < 0) {
        n = -n;
        d = -d;
    }
    item.numerator = n == 0 ? 0 : n;
    item.denominator = d;
}

// (a·x + b) / d as a stacked fraction.
std::string FractionTerm(double a, double b, double d) {
    return "#COC(" + LinearSide(a, b) + "#N)(" + PlainNumberText(d) + "#COC)";
}
} // namespace

// The forms, with the solution s drawn first:
//   1  a·x + b = c             2  a·x + b = c·x + d
//   3  a(x + b) = c            4  a(x + b) = c·x + d
LinearItem IntegerLinearItem(GeneratorWorkspace& ws, const std::string& relation) {
    LinearItem item;
    item.relation = relation;
    const int form = static_cast<int>(RandomInRange(ws, 1, 4, 1, 1));
    const double s = RandomInRange(ws, -12, 12, 1, 0);
    const double a = WithSign(ws, RandomInRange(ws, 2, 10, 1, 1));
    const std::string sep = Separator(relation);
    switch (form) {
    case 1: {
        const double b = RandomInRange(ws, -12, 12, 1, 1);
        const double c = a * s + b;
        item.text = LinearSide(a, b) + sep + PlainNumberText(c);
        item.p = a;
        item.q = b - c;
        break;
    }
    case 2: {
        double c = RandomInRange(ws, -2, 8, 1, 1);
        if (c == a) c = -c;
        const double b = RandomInRange(ws, -12, 12, 1, 0);
        const double d = a * s + b - c * s;
        item.text = LinearSide(a, b) + sep + LinearSide(c, d);
        item.p = a - c;
        item.q = b - d;
        break;
    }
    case 3: {
        const double b = RandomInRange(ws, -2, 8, 1, 1);
        const double c = a * (s + b);
        item.text = TimesParenthesis(a, b) + sep + PlainNumberText(c);
        item.p = a;
        item.q = a * b - c;
        break;
    }
    default: {
        const double b = RandomInRange(ws, -2, 8, 1, 1);
        double c = RandomInRange(ws, -2, 8, 1, 1);
        if (c == a) c = -c;
        const double d = a * (s + b) - c * s;
        item.text = TimesParenthesis(a, b) + sep + LinearSide(c, d);
        item.p = a - c;
        item.q = a * b - d;
        break;
    }
    }
    Reduce(ws, item);
    return item;
}

// The forms, each side multiplied by the common denominator L to check the answer:
//   1  (a₁x + b₁)/d₁ = (a₂x + b₂)/d₂
//   2  (a₁x + b₁)/d₁ − (a₂x + b₂)/d₂ = k
//   3  n/d₁ · (x + b₁) = (a₂x + b₂)/d₂ + k
// k is whole, or with a coin a fraction. Draws that give a solution with a large
// numerator or denominator are drawn again.
LinearItem RationalLinearItem(GeneratorWorkspace& ws, const std::string& relation) {
    LinearItem item;
    item.relation = relation;
    const std::string sep = Separator(relation);
    RetryBound bound;
    while (true) {
        const int form = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
        const double a1 = RandomInRange(ws, -9, 9, 1, 1);
        const double b1 = RandomInRange(ws, -8, 8, 1, 1);
        const double d1 = RandomInRange(ws, 2, 10, 1, 1);
        const double a2 = RandomInRange(ws, -9, 9, 1, 1);
        const double b2 = RandomInRange(ws, -8, 8, 1, 1);
        const double d2 = RandomInRange(ws, 2, 10, 1, 1);
        const double n = RandomInRange(ws, -19, 19, 1, 1);
        double kn = RandomInRange(ws, -9, 9, 1, 0);
        double kd = 1;
        if (Coin(ws, 0.4f)) kd = RandomInRange(ws, 2, 10, 1, 1);
        const double g = Gcd(ws, kn, kd);
        kn /= g;
        kd /= g;
        // Each fraction of the statement is in lowest terms and not a whole number.
        const bool tidy = Gcd(ws, Gcd(ws, a1, b1), d1) == 1 && Gcd(ws, Gcd(ws, a2, b2), d2) == 1 &&
                          Gcd(ws, n, d1) == 1;
        const double L = Lcm(ws, Lcm(ws, d1, d2), kd);
        // L·(left − right) = P·x + Q
        double P = 0, Q = 0;
        std::string text;
        const std::string kText = FractionToMarkup(ws, std::fabs(kn), kd);
        if (form == 1) {
            P = L / d1 * a1 - L / d2 * a2;
            Q = L / d1 * b1 - L / d2 * b2;
            text = FractionTerm(a1, b1, d1) + sep + FractionTerm(a2, b2, d2);
        } else if (form == 2) {
            P = L / d1 * a1 - L / d2 * a2;
            Q = L / d1 * b1 - L / d2 * b2 - L * kn / kd;
            text = FractionTerm(a1, b1, d1) + "& -& " + FractionTerm(a2, b2, d2) + sep +
                   (kn < 0 ? "-" : "") + kText;
        } else {
            P = L / d1 * n - L / d2 * a2;
            Q = L / d1 * n * b1 - L / d2 * b2 - L * kn / kd;
            text = (n < 0 ? "-" : "") + FractionToMarkup(ws, std::fabs(n), d1) + "(" + LinearSide(1, b1) + ")" +
                   sep + FractionTerm(a2, b2, d2) + (kn == 0 ? "" : SignedTail(kn, kText));
        }
        if (tidy && P != 0) {
            item.text = text;
            item.p = P;
            item.q = Q;
            Reduce(ws, item);
            if (item.denominator <= 12 && std::fabs(item.numerator) <= 60) return item;
        }
        bound.Next();
    }
}

std::string LinearAnswer(GeneratorWorkspace& ws, const LinearItem& item) {
    // A negative fraction comes padded; beside the relation one blank is enough.
    const std::string value = TrimBlanks(FractionToMarkup(ws, item.numerator, item.denominator));
    if (item.relation == "=") return "&+I x&-I = " + value;
    const std::string relation = item.p < 0 ? FlippedRelation(item.relation) : item.relation;
    return "&+I x&-I " + relation + " " + value;
}

namespace {
void LinearDrill(GeneratorWorkspace& ws, bool rational, bool inequation, int maxAmount,
                 const ColumnMarks& statementColumns, const ColumnMarks& solutionColumns) {
    ItemDrill drill(ws, statementColumns, solutionColumns, maxAmount);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            const std::string relation = inequation ? DrawRelation(ws) : "=";
            const LinearItem item = rational ? RationalLinearItem(ws, relation) : IntegerLinearItem(ws, relation);
            return ItemTexts{item.text, LinearAnswer(ws, item)};
        });
    }
    const std::string what = inequation ? "inequations:&LF" : "equations:&LF";
    drill.WriteStatement({"Solve these linear " + what, "Solve the following linear " + what});
}
} // namespace

// Routine 1.
void LinearEquationsInteger(GeneratorWorkspace& ws) {
    LinearDrill(ws, false, false, 26, kStatementColumns3, kSolutionColumns3);
    // This drill's answers follow the letter without the usual blank.
    ws.Solution = ReplaceAll(ws.Solution, ")&-B &+I x&-I", ")&-B&+I x&-I");
}

// Routine 8.
void LinearInequationsInteger(GeneratorWorkspace& ws) {
    LinearDrill(ws, false, true, 26, kStatementColumns3, kSolutionColumns3);
}

// Routine 6.
void LinearEquationsRational(GeneratorWorkspace& ws) {
    LinearDrill(ws, true, false, 24, kStatementColumns2, kSolutionColumns2);
}

// Routine 7.
void LinearInequationsRational(GeneratorWorkspace& ws) {
    LinearDrill(ws, true, true, 26, kStatementColumns2, kSolutionColumns2);
}
