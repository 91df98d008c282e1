#include <cmath>
#include <string>
#include <vector>

#include "generators/item_drill.h"
#include "generators/nrp/drill_numbers.h"
#include "generators/nrp/algebra_items.h"
#include "generators/nrp/nrp_routines.h"
#include "generators/nrp/polynomial_tools.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// A polynomial of the given degree: a nonzero lead, the other terms in -9 to 29, each of
// which vanishes on a coin.
Coefficients DrawSumPolynomial(GeneratorWorkspace& ws, int degree) {
    Coefficients p{};
    p[degree] = RandomInRange(ws, -9, 29, 1, 1);
    for (int k = degree - 1; k >= 0; --k) {
        p[k] = RandomInRange(ws, -9, 29, 1, 0);
        if (Coin(ws, 0.7f)) p[k] = 0;
    }
    return p;
}

std::string ParenthesisedText(GeneratorWorkspace& ws, const Coefficients& p) { return "(" + PolyText(ws, p) + ")"; }
} // namespace

PolynomialSumItem MakePolynomialSumItem(GeneratorWorkspace& ws, double operation) {
    PolynomialSumItem item;
    item.operation = static_cast<int>(operation);
    const int degreeA = static_cast<int>(RandomInRange(ws, 1, 4, 1, 1));
    const int degreeB = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
    item.a = DrawSumPolynomial(ws, degreeA);
    item.b = DrawSumPolynomial(ws, degreeB);
    item.result = operation == 1 ? AddPolys(item.a, item.b) : SubtractPolys(item.a, item.b);
    return item;
}

// Routine 16: sums and differences of two polynomials of degree up to 4; the operations
// alternate as in the natural-number drill.
void AdditionAndSubtractionOfPolynomials(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, {"&SP=5:"}, {"&SP=10:", "&SP=50:"});
    double operation = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        operation = NextAddOrSubtract(ws, operation);
        AddNewItem(drill, [&] {
            const PolynomialSumItem item = MakePolynomialSumItem(ws, operation);
            const std::string text = "( " + PolyText(ws, item.a) + (operation == 1 ? " )  +  ( " : " )  -  ( ") +
                                     PolyText(ws, item.b) + " )";
            if (IsZeroPoly(item.result)) return ItemTexts{};
            return ItemTexts{text, PolyText(ws, item.result)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("polynomials"));
}

// The four forms of routine 17:
//   1  (a·x^p + b)(c·x^q + d)     product of two binomials
//   2  (a·x^p + b)^2              square of a binomial
//   3  (a·x^p + b)(a·x^p - b)     sum by difference
//   4  (a·x + b)^3                cube of a binomial
BinomialProductItem MakeBinomialProductItem(GeneratorWorkspace& ws, int form) {
    BinomialProductItem item;
    item.form = form;
    auto binomial = [&ws](int power) {
        Coefficients p{};
        p[power] = Coin(ws, 0.7f) ? RandomInRange(ws, -5, 9, 1, 1) : 1;
        p[0] = RandomInRange(ws, -4, 8, 1, 1);
        return p;
    };
    const int p = Coin(ws, 0.5f) ? 2 : 1;
    switch (form) {
    case 1: {
        item.a = binomial(p);
        item.b = binomial(Coin(ws, 0.8f) ? 2 : 1);
        item.result = MultiplyPolys(item.a, item.b);
        break;
    }
    case 2:
        item.a = binomial(p);
        item.result = MultiplyPolys(item.a, item.a);
        break;
    case 3:
        item.a = binomial(p);
        item.b = item.a;
        item.b[0] = -item.b[0];
        item.result = MultiplyPolys(item.a, item.b);
        break;
    default: {
        item.a = Coefficients{};
        item.a[1] = Coin(ws, 0.8f) ? RandomInRange(ws, 2, 3, 1, 1) : 1;
        item.a[0] = RandomInRange(ws, -4, 5, 1, 1);
        item.result = MultiplyPolys(MultiplyPolys(item.a, item.a), item.a);
        break;
    }
    }
    return item;
}

// Routine 17: products of binomials and powers of a binomial, expanded.
void MultiplicationAndPowerOfBinomials(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns3, kSolutionColumns2);
    double form = RandomInRange(ws, 1, 4, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        form += 1;
        if (form > 4) form = 1;
        if (Coin(ws, 0.9f)) form = form == 4 ? 1 : form + 1;
        AddNewItem(drill, [&] {
            const BinomialProductItem item = MakeBinomialProductItem(ws, static_cast<int>(form));
            std::string text;
            if (item.form == 2) text = ParenthesisedText(ws, item.a) + "^2";
            else if (item.form == 4) text = ParenthesisedText(ws, item.a) + "^3";
            else text = ParenthesisedText(ws, item.a) + ParenthesisedText(ws, item.b);
            return ItemTexts{text, PolyText(ws, item.result)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("polynomials"));
}

FactoringItem MakeFactoringItem(GeneratorWorkspace& ws) {
    FactoringItem item;
    const int count = static_cast<int>(RandomInRange(ws, 2, 4, 1, 1));
    // A common factor x for about a third of the items: the first root is 0.
    const bool commonX = !Coin(ws, 0.3f);
    const bool zeroAllowed = Coin(ws, 0.5f);
    for (int k = 0; k < count; ++k) {
        if (k == 0 && commonX) item.roots.push_back(0);
        else if (zeroAllowed) item.roots.push_back(RandomInRange(ws, -5, 5, 1, 0));
        else item.roots.push_back(RandomInRange(ws, -3, 3, 1, 1));
    }
    item.factor = 1;
    if (Coin(ws, 0.8f)) {
        item.factor = Coin(ws, 0.5f) ? RandomInRange(ws, 1, 5, 1, 0) : RandomInRange(ws, 2, 6, 1, 1);
        if (item.factor == 0) item.factor = 1;
    }
    ExpandRoots(ws.polyWork, item.roots);
    for (auto& c : ws.polyWork.coefficients) c *= item.factor;
    item.polynomial = ws.polyWork.coefficients;
    item.groups = GroupRoots(item.roots);
    return item;
}

std::string FactoredText(const FactoringItem& item) {
    std::string text = item.factor != 1 ? PlainNumberText(item.factor) + " " : "";
    for (const RootCount& g : item.groups) {
        const std::string power = g.count > 1 ? "^" + std::to_string(g.count) : "";
        if (g.value == 0) text += "&+Ix&-I" + power + " ";
        else text += "( " + BinomialText(g.value) + " )" + power + " ";
    }
    return text.substr(0, text.size() - 1);
}

// Routine 18: polynomials with whole roots, built from their roots, to be factorized by
// Ruffini's rule.
void FactoringPolynomials(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns1, kSolutionColumns1);
    const double form = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            const FactoringItem item = MakeFactoringItem(ws);
            const std::string text = PolyWorkToMarkup(ws.polyWork, "&+Ix&-I");
            return ItemTexts{text, FactoredText(item)};
        });
    }
    const std::vector<std::string> heads = {"Factorize these polynomials:&LF",
                                            "Factorize the following polynomials:&LF"};
    // The wording was drawn before the items: one wording left, so no further draw.
    drill.WriteStatement({heads[static_cast<std::size_t>(form) - 1]});
}

// Two types: a synthetic division by x - a, and a long division by a quadratic. The
// quotient and the remainder are drawn first; the dividend is made from them.
DivisionItem MakeDivisionItem(GeneratorWorkspace& ws, int type) {
    DivisionItem item;
    item.type = type;
    item.divisor = {};
    item.quotient = {};
    item.remainder = {};
    if (type == 1) {
        item.divisor[1] = 1;
        item.divisor[0] = -RandomInRange(ws, -4, 9, 1, 1);
        const int degree = static_cast<int>(RandomInRange(ws, 2, 3, 1, 1));
        item.quotient[degree] = RandomInRange(ws, -9, 15, 1, 1);
        for (int k = degree - 1; k >= 0; --k) item.quotient[k] = RandomInRange(ws, -9, 15, 1, 0);
        item.remainder[0] = RandomInRange(ws, -49, 49, 1, 0);
    } else {
        item.divisor[2] = Coin(ws, 0.8f) ? RandomInRange(ws, 2, 3, 1, 1) : 1;
        item.divisor[1] = RandomInRange(ws, -9, 9, 1, 0);
        item.divisor[0] = RandomInRange(ws, -9, 9, 1, 1);
        const int degree = static_cast<int>(RandomInRange(ws, 1, 2, 1, 1));
        item.quotient[degree] = RandomInRange(ws, -9, 15, 1, 1);
        for (int k = degree - 1; k >= 0; --k) item.quotient[k] = RandomInRange(ws, -9, 15, 1, 0);
        item.remainder[1] = RandomInRange(ws, -9, 9, 1, 0);
        item.remainder[0] = RandomInRange(ws, -80, 80, 1, 0);
    }
    item.dividend = AddPolys(MultiplyPolys(item.quotient, item.divisor), item.remainder);
    return item;
}

// Routine 19: quotient and remainder of a division of polynomials; the two types
// alternate from a drawn start.
void DivisionOfPolynomials(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns1, kSolutionColumns2);
    double type = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        type = type == 1 ? 2 : 1;
        AddNewItem(drill, [&] {
            const DivisionItem item = MakeDivisionItem(ws, static_cast<int>(type));
            const std::string text = "( " + PolyText(ws, item.dividend) + " ) : ( " + PolyText(ws, item.divisor) + " )";
            return ItemTexts{text, " &+Iq&-I = " + PolyText(ws, item.quotient) + ",  &+Ir&-I = " +
                                       PolyText(ws, item.remainder)};
        });
    }
    drill.WriteStatement({"Calculate the quotient and the remainder of the following divisions:&LF",
                          "Calculate quotient and remainder of these divisions:&LF",
                          "Find the quotient and the remainder of the following divisions:&LF",
                          "Find quotient and remainder of these divisions:&LF"});
}

// The value of the parameter is drawn first, then the divisor x - a, the other
// coefficients and the wanted remainder; the constant term is what makes P(a) equal it.
ParameterDivisionItem MakeParameterDivisionItem(GeneratorWorkspace& ws) {
    static const std::string kLetters = "abcdhkmnpqr";
    ParameterDivisionItem item;
    item.letter = kLetters.substr(static_cast<std::size_t>(RandomInRange(ws, 1, 11, 1, 1)) - 1, 1);
    RetryBound bound;
    while (true) {
        item.value = RandomInRange(ws, -9, 15, 1, 1);
        item.root = RandomInRange(ws, -9, 9, 1, 1);
        item.degree = Coin(ws, 0.5f) ? 4 : 3;
        item.coefficients = {};
        item.coefficients[item.degree] = RandomInRange(ws, -9, 15, 1, 1);
        for (int k = item.degree - 1; k >= 1; --k) {
            item.coefficients[k] = RandomInRange(ws, -9, 15, 1, 0);
            if (Coin(ws, 0.7f)) item.coefficients[k] = 0;
        }
        item.parameterDegree = static_cast<int>(RandomInRange(ws, 1, item.degree, 1, 1));
        item.coefficients[item.parameterDegree] = item.value;
        item.exact = !Coin(ws, 0.6f);
        item.remainder = item.exact ? 0 : RandomInRange(ws, -80, 80, 1, 1);
        double others = 0;
        for (int k = item.degree; k >= 1; --k) others += item.coefficients[k] * std::pow(item.root, k);
        item.coefficients[0] = item.remainder - others;
        // Small roots keep the constant term of a size a pupil can check by hand.
        if (std::fabs(item.coefficients[0]) <= 999) break;
        bound.Next();
    }
    return item;
}

// Routine 20: the value of a parameter for which a division by x - a is exact or leaves
// a given remainder (the remainder theorem).
void DivisionOfPolynomialsInvolvingParameters(GeneratorWorkspace& ws) {
    const ParameterDivisionItem item = MakeParameterDivisionItem(ws);
    const std::string letter = "&+I" + item.letter + "&-I";
    const bool calculate = Coin(ws, 0.4f);
    ClearPoly(ws.polyWork);
    for (int k = 0; k <= 9; ++k) ws.polyWork.coefficients[k] = item.coefficients[k];
    ws.polyWork.texts[item.parameterDegree] = letter;
    const std::string dividend = PolyWorkToMarkup(ws.polyWork, "&+Ix&-I");
    Coefficients divisor{};
    divisor[1] = 1;
    divisor[0] = -item.root;
    ws.Statement = std::string(calculate ? "Calculate" : "Find") + " the value of parameter  " + letter;
    if (item.exact) ws.Statement += "  for which the following division is exact (remainder is zero).&LF";
    else ws.Statement += "  for which the remainder of the following division is " + NumberToMarkup(item.remainder) + ".&LF";
    ws.Statement += "&SP=10:( " + dividend + " ) : ( " + PolyText(ws, divisor) + " )&LF";

    // P(a) written as a linear expression in the parameter.
    const double weight = std::pow(item.root, item.parameterDegree);
    double rest = 0;
    for (int k = 0; k <= item.degree; ++k) {
        if (k != item.parameterDegree) rest += item.coefficients[k] * std::pow(item.root, k);
    }
    ws.Solution = "&SP=10:&+IP&-I(" + NumberToMarkup(item.root) + ") = " +
                  PolynomialToMarkup(0, 0, 0, weight, rest, letter) + " = " + NumberToMarkup(item.remainder) +
                  "&LF&SP=10:" + letter + " = " + NumberToMarkup(item.value) + "&LF";
}
