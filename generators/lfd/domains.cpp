#include <algorithm>
#include <cmath>
#include <string>

#include "generators/item_drill.h"
#include "generators/lfd/lfd_routines.h"
#include "generators/shared/sum_terms.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kX = "&+Ix&-I";
constexpr int kDomainTypes = 16;

std::string Num(double v) { return PlainNumberText(v); }

std::string Fraction(const std::string& top, const std::string& bottom) {
    return "#COC(" + top + "#N)(" + bottom + "#COC)";
}

struct DomainItem {
    std::string function;
    std::string domain;
};

// The forms, each with the roots a < b of its polynomial drawn first:
//  1 a cubic; 2 k/(x - a); 3 k/((x - a)(x - b)); 4 √(x - a); 5 √(a - x);
//  6 √((x - a)(x - b)); 7 √(-(x - a)(x - b)); 8 k/√(x - a); 9 k/√(a - x); 10 ln(x - a);
//  11 ln(a - x); 12 ln((x - a)(x - b)); 13 (x + c)/cos x; 14 (x + c)/sin x;
//  15 √(x - a)/(x - b); 16 k/(x² + s).
DomainItem MakeDomainItem(GeneratorWorkspace& ws, int type) {
    const double k = RandomInRange(ws, 1, 4, 1, 1);
    const double a = RandomInRange(ws, -9, 9, 1, 0);
    const double s = RandomInRange(ws, 1, 29, 1, 1);
    const double gap = RandomInRange(ws, 1, 9, 1, 1);
    const double c = RandomInRange(ws, -6, 6, 1, 0);
    const bool sign = Coin(ws, 0.5f);
    const double b = a + gap;
    const std::string ka = Num(a), kb = Num(b);
    const std::string quadratic = PolynomialToMarkup(0, 0, 1, -(a + b), a * b, kX);
    const std::string negated = PolynomialToMarkup(0, 0, -1, a + b, -a * b, kX);
    const std::string xa = ShiftedVariable(kX, -a);
    const std::string ax = a == 0 ? "-" + kX : ka + " - " + kX;
    const std::string top = Num(sign ? -k : k);
    DomainItem item;
    switch (type) {
    case 1:
        item.function = PolynomialToMarkup(0, sign ? -k : k, c, a, s, kX);
        item.domain = "&real";
        break;
    case 2:
        item.function = Fraction(top, xa);
        item.domain = "&real - { " + ka + " }";
        break;
    case 3:
        item.function = Fraction(top, quadratic);
        item.domain = "&real - { " + ka + ",  " + kb + " }";
        break;
    case 4:
        item.function = "#SQR(" + xa + "#SQR)";
        item.domain = "[ " + ka + " ,  +&oo &)";
        break;
    case 5:
        item.function = "#SQR(" + ax + "#SQR)";
        item.domain = "&( -&oo ,  " + ka + " ]";
        break;
    case 6:
        item.function = "#SQR(" + quadratic + "#SQR)";
        item.domain = "&( -&oo ,  " + ka + " ] &union [ " + kb + " ,  +&oo &)";
        break;
    case 7:
        item.function = "#SQR(" + negated + "#SQR)";
        item.domain = "[ " + ka + " ,  " + kb + " ]";
        break;
    case 8:
        item.function = Fraction(top, "#SQR(" + xa + "#SQR)");
        item.domain = "&( " + ka + " ,  +&oo &)";
        break;
    case 9:
        item.function = Fraction(top, "#SQR(" + ax + "#SQR)");
        item.domain = "&( -&oo ,  " + ka + " &)";
        break;
    case 10:
        item.function = "ln_ (" + xa + ")";
        item.domain = "&( " + ka + " ,  +&oo &)";
        break;
    case 11:
        item.function = "ln_ (" + ax + ")";
        item.domain = "&( -&oo ,  " + ka + " &)";
        break;
    case 12:
        item.function = "ln_ (" + quadratic + ")";
        item.domain = "&( -&oo ,  " + ka + " &) &union &( " + kb + " ,  +&oo &)";
        break;
    case 13:
        item.function = "#COC(" + PolynomialToMarkup(0, 0, 0, 1, c, kX) + "#N)(&-Icos &+Ix&-I#COC)";
        item.domain = "&real - { (&+I2k&-I + 1) &pi/2 },  &+Ik&-I &perte&+I Z&-I";
        break;
    case 14:
        item.function = "#COC(" + PolynomialToMarkup(0, 0, 0, 1, c, kX) + "#N)(&-Isin &+Ix&-I#COC)";
        item.domain = "&real - { &+Ik&-I &pi },  &+Ik&-I &perte&+I Z&-I";
        break;
    case 15:
        item.function = Fraction("#SQR(" + xa + "#SQR)", ShiftedVariable(kX, -b));
        item.domain = "[ " + ka + " ,  " + kb + " &) &union &( " + kb + " ,  +&oo &)";
        break;
    default:
        item.function = Fraction(top, PolynomialToMarkup(0, 0, 1, 0, s, kX));
        item.domain = "&real";
        break;
    }
    return item;
}
} // namespace

// Routine 67: the domain of sixteen forms of function; the form counter runs round and
// a coin draws it anew.
void DomainOfAFunction(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns2, kSolutionColumns2, 20);
    int type = static_cast<int>(RandomInRange(ws, 1, kDomainTypes, 1, 1));
    for (int i = 1; i <= drill.Count(); ++i) {
        type = type == kDomainTypes ? 1 : type + 1;
        if (Coin(ws, 0.8f)) type = static_cast<int>(RandomInRange(ws, 1, kDomainTypes, 1, 1));
        AddNewItem(drill, [&] {
            const DomainItem item = MakeDomainItem(ws, type);
            return ItemTexts{"&+If&-I (&+Ix&-I) = " + item.function, item.domain};
        });
    }
    drill.WriteStatement({"Find the domain of the following functions:&LF"});
}
