#include "generators/item_drill.h"
#include "generators/nrp/drill_items.h"
#include "generators/nrp/drill_numbers.h"
#include "generators/nrp/nrp_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

// Routine 12: rows of additions and subtractions of natural numbers of three to six
// digits; the operations alternate, with a small chance of a repeat.
void AdditionAndSubtractionOfNaturalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    double operation = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        operation = NextAddOrSubtract(ws, operation);
        // An item equal to an earlier one is drawn anew (the numbers too: building the
        // same numbers again could only give the same text).
        AddNewItem(drill, [&] {
            double a = RandomInRange(ws, 100000, 999999, 1, 1);
            double b = RandomInRange(ws, 100000, 999999, 1, 1);
            b = DropDigits(ws, b, 3);
            a = DropDigits(ws, a, 3);
            if (operation == 2) b = a + b;
            const std::string aText = GroupDigits(PlainNumberText(a));
            const std::string bText = GroupDigits(PlainNumberText(b));
            const double result = operation == 1 ? a + b : b - a;
            return ItemTexts{bText + (operation == 1 ? " + " : " - ") + aText, GroupDigits(PlainNumberText(result))};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("natural numbers"));
}

// Routine 13: products of a number of three to five digits by one of two to four digits.
void MultiplicationOfNaturalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns3);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            double a = RandomInRange(ws, 10000, 99999, 1, 1);
            double b = RandomInRange(ws, 1000, 9999, 1, 1);
            // Two coins shorten each number by a digit; the last one puts the shorter first.
            a = DropDigits(ws, a, 2);
            b = DropDigits(ws, b, 2);
            const bool shorterFirst = Coin(ws, 0.5f);
            const std::string aText = GroupDigits(PlainNumberText(a));
            const std::string bText = GroupDigits(PlainNumberText(b));
            return ItemTexts{shorterFirst ? bText + " × " + aText : aText + " × " + bText,
                             GroupDigits(PlainNumberText(a * b))};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("natural numbers"));
}

// Routine 1: long division of a number of four to six digits by one of two or three
// digits, with quotient and remainder.
void DivisionOfNaturalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns3);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            double a = RandomInRange(ws, 100000, 999999, 1, 1);
            double b = RandomInRange(ws, 100, 999, 1, 1);
            b = DropDigits(ws, b, 1);
            a = DropDigits(ws, a, 2);
            const double q = Int(a / b);
            const double r = a - q * b;
            return ItemTexts{GroupDigits(PlainNumberText(a)) + " : " + GroupDigits(PlainNumberText(b)),
                             "&+I q = " + GroupDigits(PlainNumberText(q)) + ",  r = &-I" +
                                 GroupDigits(PlainNumberText(r))};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("natural numbers"));
}

namespace {
// The primes of the lcm and gcm drill with the coin that multiplies a number by each and
// the limit above which a number takes no more of it.
struct PrimeRound {
    double prime;
    float threshold;
    double limit;
};
constexpr PrimeRound kPrimeRounds[] = {{2, 0.5f, 500}, {3, 0.6f, 300}, {5, 0.7f, 200}, {7, 0.8f, 140}};
// What a number left at 1, or below 10, becomes after a round: no item is trivial.
constexpr double kInsteadOfOne[] = {30, 36, 40};
constexpr double kInsteadOfSmall[] = {16, 45, 54};
} // namespace

LcmGcmItem DrawLcmGcmNumbers(GeneratorWorkspace& ws, int count) {
    LcmGcmItem item;
    double numbers[3] = {1, 1, 1};
    for (int round = 0; round < 4; ++round) {
        for (const PrimeRound& p : kPrimeRounds) {
            for (double& x : numbers) {
                if (Coin(ws, p.threshold) && x < p.limit) x *= p.prime;
            }
        }
        for (int k = 0; k < 3; ++k) {
            if (numbers[k] == 1) numbers[k] = kInsteadOfOne[k];
            if (numbers[k] < 10) numbers[k] = kInsteadOfSmall[k];
        }
    }
    // Numbers of an item differ: the first of an equal pair is doubled, until none is left.
    RetryBound bound;
    while (true) {
        bool changed = false;
        for (int k = 0; k < count && !changed; ++k) {
            for (int j = k + 1; j < count && !changed; ++j) {
                if (numbers[k] == numbers[j]) {
                    numbers[k] *= 2;
                    changed = true;
                }
            }
        }
        if (!changed) break;
        bound.Next();
    }
    item.numbers.assign(numbers, numbers + count);
    item.lcm = Lcm(ws, numbers[0], numbers[1]);
    item.gcm = Gcd(ws, numbers[0], numbers[1]);
    if (count == 3) {
        item.lcm = Lcm(ws, item.lcm, numbers[2]);
        item.gcm = Gcd(ws, item.gcm, numbers[2]);
    }
    return item;
}

// Routine 21: LCM and GCD of two numbers, now and then of three, built from the primes
// 2, 3, 5 and 7 so that they share factors. The texts say "greatest common divisor" and
// "LCM and GCD", as English school books do (not "gcm").
void LcmAndGcmOfNaturalNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    for (int i = 1; i <= drill.Count(); ++i) {
        // Both coins are always drawn: three numbers one time in twenty.
        int countChoice = 1;
        if (Coin(ws, 0.9f)) countChoice = 2;
        if (Coin(ws, 0.5f)) countChoice = 1;
        const int count = countChoice == 2 ? 3 : 2;
        AddNewItem(drill, [&] {
            const LcmGcmItem item = DrawLcmGcmNumbers(ws, count);
            std::string text;
            for (std::size_t k = 0; k < item.numbers.size(); ++k) {
                if (k > 0) text += ",  ";
                text += PlainNumberText(item.numbers[k]);
            }
            return ItemTexts{text, PlainNumberText(item.lcm) + ",  " + PlainNumberText(item.gcm)};
        });
    }
    drill.WriteStatement({"Calculate the least common multiple and the greatest common divisor (LCM and GCD) of the "
                          "following numbers:&LF",
                          "Find the least common multiple and the greatest common divisor (LCM and GCD) of the "
                          "following numbers:&LF"});
}
