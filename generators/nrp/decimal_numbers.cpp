#include "generators/item_drill.h"
#include "generators/nrp/drill_numbers.h"
#include "generators/nrp/nrp_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
// A whole number ending in 0 gets a last digit of 1 to 9, so that the decimal made from
// it shows all its places.
double EndInDigit(GeneratorWorkspace& ws, double x) {
    if (x == Int(x / 10) * 10) x += RandomInRange(ws, 1, 9, 1, 1);
    return x;
}

bool HasDecimals(double x) { return !IsWhole(x); }
} // namespace

// Routine 14: sums and differences of decimals with up to three decimal places; the
// operations alternate as in the natural-number drill.
void AdditionAndSubtractionOfDecimalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    double operation = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        operation = NextAddOrSubtract(ws, operation);
        AddNewItem(drill, [&] {
            double a = RandomInRange(ws, 100000, 999999, 1, 1);
            double b = RandomInRange(ws, 100000, 999999, 1, 1);
            a = DropDigits(ws, a, 3);
            b = DropDigits(ws, b, 3);
            a = EndInDigit(ws, a);
            b = EndInDigit(ws, b);
            a = ShiftDecimalPoint(ws, a, 3);
            b = ShiftDecimalPoint(ws, b, 3);
            // A difference is never negative: mostly the minuend is made as the sum of the
            // two, which keeps the subtrahend; otherwise the larger number goes first.
            const bool keepSubtrahend = Coin(ws, 0.6f);
            if (operation == 2) {
                if (keepSubtrahend && a > 1) {
                    b = RoundAtPosition(ws, a + b, -6);
                } else if (b < a) {
                    std::swap(a, b);
                }
            }
            const double result = RoundAtPosition(ws, operation == 1 ? b + a : b - a, -6);
            if (a == b || (!HasDecimals(a) && !HasDecimals(b))) return ItemTexts{};
            return ItemTexts{NumberToMarkup(b) + (operation == 1 ? " + " : " - ") + NumberToMarkup(a),
                             NumberToMarkup(result)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("decimal numbers"));
}

// Routine 15: products of two decimals of four digits with up to three decimal places.
void MultiplicationOfDecimalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            double a = EndInDigit(ws, RandomInRange(ws, 1000, 9999, 1, 1));
            double b = EndInDigit(ws, RandomInRange(ws, 1000, 9999, 1, 1));
            a = ShiftDecimalPoint(ws, a, 2);
            b = ShiftDecimalPoint(ws, b, 2);
            // One of the two always has a decimal more, so that no item is whole.
            if (Coin(ws, 0.5f)) {
                a = RoundAtPosition(ws, a / 10, -6);
            } else {
                b = RoundAtPosition(ws, b / 10, -6);
            }
            const double product = RoundAtPosition(ws, a * b, -9);
            return ItemTexts{NumberToMarkup(a) + " × " + NumberToMarkup(b), NumberToMarkup(product)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("decimal numbers"));
}

// Routine 2: quotients of decimals that end: the dividend is made from divisor and
// quotient.
void DivisionOfDecimalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            double divisor = RandomInRange(ws, 1000, 9999, 1, 1);
            double quotient = RandomInRange(ws, 1000, 9999, 1, 1);
            // The divisor loses up to two digits, then both end in a digit that is not 0.
            divisor = DropDigits(ws, divisor, 2);
            divisor = EndInDigit(ws, divisor);
            quotient = EndInDigit(ws, quotient);
            divisor = ShiftDecimalPoint(ws, divisor, 1);
            quotient = ShiftDecimalPoint(ws, quotient, 2);
            if (!HasDecimals(divisor) && !HasDecimals(quotient)) quotient = RoundAtPosition(ws, quotient / 10, -6);
            const double dividend = RoundAtPosition(ws, divisor * quotient, -9);
            return ItemTexts{NumberToMarkup(dividend) + " : " + NumberToMarkup(divisor), NumberToMarkup(quotient)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("decimal numbers"));
}
