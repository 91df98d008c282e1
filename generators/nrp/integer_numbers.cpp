#include <cmath>

#include "generators/item_drill.h"
#include "generators/nrp/drill_numbers.h"
#include "generators/nrp/nrp_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
// A number of the statement: below 0 it stands in parentheses.
std::string Term(double x) {
    const std::string text = PlainNumberText(x);
    return x < 0 ? "(" + text + ")" : text;
}

std::string Sign(double s) { return s < 0 ? " - " : " + "; }

// The next form of an integer drill: the forms alternate, wrapping from the last to 1.
double NextForm(double form, double formCount) {
    form += 1;
    return form > formCount ? 1 : form;
}
} // namespace

// Routine 10: sums and differences of integers, in five forms:
//   1  a ± b                 2  a ± b ± c               3  a ± ( b ± c )
//   4  [-] ( a ± b ) ± c     5  [-] [ a ± ( b ± c ) ]
// where [-] is the third sign, written only when it is a minus.
void AdditionAndSubtractionOfIntegerNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    double form = RandomInRange(ws, 1, 5, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        form = NextForm(form, 5);
        AddNewItem(drill, [&] {
            std::string text;
            double value = 0;
            const double a = RandomInRange(ws, -15, 15, 1, 1);
            const double b = RandomInRange(ws, -15, 15, 1, 1);
            const double c = RandomInRange(ws, -15, 15, 1, 1);
            const double s1 = RandomInRange(ws, -1, 1, 1, 1);
            const double s2 = RandomInRange(ws, -1, 1, 1, 1);
            const double s3 = RandomInRange(ws, -1, 1, 1, 1);
            const std::string lead = s3 < 0 ? "- " : "";
            switch (static_cast<int>(form)) {
            case 1:
                text = Term(a) + Sign(s1) + Term(b);
                value = a + s1 * b;
                break;
            case 2:
                text = Term(a) + Sign(s1) + Term(b) + Sign(s2) + Term(c);
                value = a + s1 * b + s2 * c;
                break;
            case 3:
                text = Term(a) + Sign(s1) + "( " + Term(b) + Sign(s2) + Term(c) + " )";
                value = a + s1 * (b + s2 * c);
                break;
            case 4:
                text = lead + "( " + Term(a) + Sign(s1) + Term(b) + " )" + Sign(s2) + Term(c);
                value = s3 * (a + s1 * b) + s2 * c;
                break;
            default:
                text = lead + "[ " + Term(a) + Sign(s1) + "( " + Term(b) + Sign(s2) + Term(c) + " ) ]";
                value = s3 * (a + s1 * (b + s2 * c));
                break;
            }
            return ItemTexts{text, PlainNumberText(value)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("integer numbers"));
}

// Routine 11: products and quotients of integers, with sums inside parentheses and
// brackets. Every quotient is drawn from its result, so that it is whole. Forms:
//   1  a × b                 2  a × b × c               3  D : d
//   4  a × ( b ± c )         5  D : ( b ± c )           6  D : d × a
//   7  a × b ± c × e         8  D : d ± a × b           9  a × [ b ± c × e ]
//   10 D : [ b ± c × e ]
void MultiplicationAndDivisionOfIntegerNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    double form = RandomInRange(ws, 1, 10, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        form = NextForm(form, 10);
        // A divisor of 2 to 10; most of them positive, a coin makes one in five negative.
        const auto divisor = [&ws]() {
            const double d = RandomInRange(ws, 2, 10, 1, 1);
            return Coin(ws, 0.2f) ? d : -d;
        };
        AddNewItem(drill, [&] {
            std::string text;
            double value = 0;
            bool refused = false;
            switch (static_cast<int>(form)) {
            case 1: {
                const double a = RandomInRange(ws, -10, 10, 1, 1);
                const double b = RandomInRange(ws, -10, 10, 1, 1);
                text = Term(a) + " × " + Term(b);
                value = a * b;
                break;
            }
            case 2: {
                const double a = RandomInRange(ws, -8, 8, 1, 1);
                const double b = RandomInRange(ws, -8, 8, 1, 1);
                const double c = RandomInRange(ws, -8, 8, 1, 1);
                text = Term(a) + " × " + Term(b) + " × " + Term(c);
                value = a * b * c;
                break;
            }
            case 3: {
                const double q = RandomInRange(ws, -20, 20, 1, 1);
                const double d = divisor();
                text = Term(q * d) + " : " + Term(d);
                value = q;
                break;
            }
            case 4: {
                const double a = RandomInRange(ws, -9, 9, 1, 1);
                const double b = RandomInRange(ws, -6, 6, 1, 1);
                const double c = RandomInRange(ws, -6, 6, 1, 1);
                const double s = RandomInRange(ws, -1, 1, 1, 1);
                text = Term(a) + " × ( " + Term(b) + Sign(s) + Term(c) + " )";
                value = a * (b + s * c);
                refused = b + s * c == 0;
                break;
            }
            case 5: {
                const double q = RandomInRange(ws, -20, 20, 1, 1);
                const double b = RandomInRange(ws, -9, 9, 1, 1);
                const double c = RandomInRange(ws, -9, 9, 1, 1);
                const double s = RandomInRange(ws, -1, 1, 1, 1);
                const double d = b + s * c;
                text = Term(q * d) + " : ( " + Term(b) + Sign(s) + Term(c) + " )";
                value = q;
                refused = std::abs(d) < 2 || std::abs(d) > 10;
                break;
            }
            case 6: {
                const double q = RandomInRange(ws, -20, 20, 1, 1);
                const double d = divisor();
                const double a = RandomInRange(ws, -9, 9, 1, 1);
                text = Term(q * d) + " : " + Term(d) + " × " + Term(a);
                value = q * a;
                break;
            }
            case 7: {
                const double a = RandomInRange(ws, -6, 6, 1, 1);
                const double b = RandomInRange(ws, -6, 6, 1, 1);
                const double c = RandomInRange(ws, -6, 6, 1, 1);
                const double e = RandomInRange(ws, -6, 6, 1, 1);
                const double s = RandomInRange(ws, -1, 1, 1, 1);
                text = Term(a) + " × " + Term(b) + Sign(s) + Term(c) + " × " + Term(e);
                value = a * b + s * c * e;
                break;
            }
            case 8: {
                const double q = RandomInRange(ws, -20, 20, 1, 1);
                const double d = divisor();
                const double a = RandomInRange(ws, -6, 6, 1, 1);
                const double b = RandomInRange(ws, -6, 6, 1, 1);
                const double s = RandomInRange(ws, -1, 1, 1, 1);
                text = Term(q * d) + " : " + Term(d) + Sign(s) + Term(a) + " × " + Term(b);
                value = q + s * a * b;
                break;
            }
            case 9: {
                const double a = RandomInRange(ws, -9, 9, 1, 1);
                const double b = RandomInRange(ws, -6, 6, 1, 1);
                const double c = RandomInRange(ws, -6, 6, 1, 1);
                const double e = RandomInRange(ws, -6, 6, 1, 1);
                const double s = RandomInRange(ws, -1, 1, 1, 1);
                const double inner = b + s * c * e;
                text = Term(a) + " × [ " + Term(b) + Sign(s) + Term(c) + " × " + Term(e) + " ]";
                value = a * inner;
                refused = inner == 0;
                break;
            }
            default: {
                const double q = RandomInRange(ws, -20, 20, 1, 1);
                const double b = RandomInRange(ws, -9, 9, 1, 1);
                const double c = RandomInRange(ws, -6, 6, 1, 1);
                const double e = RandomInRange(ws, -6, 6, 1, 1);
                const double s = RandomInRange(ws, -1, 1, 1, 1);
                const double d = b + s * c * e;
                text = Term(q * d) + " : [ " + Term(b) + Sign(s) + Term(c) + " × " + Term(e) + " ]";
                value = q;
                refused = std::abs(d) < 2 || std::abs(d) > 10;
                break;
            }
            }
            if (refused) return ItemTexts{};
            return ItemTexts{text, PlainNumberText(value)};
        });
    }
    drill.WriteStatement(ExpressionHeadLines("integer numbers"));
}
