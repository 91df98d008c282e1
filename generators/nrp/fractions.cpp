#include <cmath>

#include "generators/item_drill.h"
#include "generators/nrp/drill_items.h"
#include "generators/nrp/nrp_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
const std::vector<std::string> kRationalHeadLines = {
    "Calculate the following rational expressions.&LF", "Calculate the following expressions.&LF",
    "Calculate these rational expressions.&LF", "Calculate these expressions.&LF"};

// An exact fraction on whole doubles, kept reduced with a positive denominator.
struct Ratio {
    double n;
    double d;
};

Ratio Reduced(GeneratorWorkspace& ws, double n, double d) {
    if (n == 0) return {0, 1};
    const double g = Gcd(ws, std::fabs(n), std::fabs(d));
    n /= g;
    d /= g;
    if (d < 0) return {-n, -d};
    return {n, d};
}
Ratio Add(GeneratorWorkspace& ws, Ratio x, Ratio y) { return Reduced(ws, x.n * y.d + y.n * x.d, x.d * y.d); }
Ratio Mul(GeneratorWorkspace& ws, Ratio x, Ratio y) { return Reduced(ws, x.n * y.n, x.d * y.d); }
Ratio Div(GeneratorWorkspace& ws, Ratio x, Ratio y) { return Reduced(ws, x.n * y.d, x.d * y.n); }

// The size of a fraction as the statement shows it: its numerator without the sign.
std::string Magnitude(GeneratorWorkspace& ws, Ratio x) { return FractionToMarkup(ws, std::fabs(x.n), x.d); }

// A fraction as a term of a sum: " + " or " - " joins it to what stands before it, and
// the first term shows a minus as "- ".
std::string Joined(GeneratorWorkspace& ws, Ratio x, bool first) {
    if (first) return (x.n < 0 ? "- " : "") + Magnitude(ws, x);
    return (x.n < 0 ? " - " : " + ") + Magnitude(ws, x);
}

// A fraction as the right operand of a product or a quotient: a negative one stands in
// parentheses.
std::string Factor(GeneratorWorkspace& ws, Ratio x) {
    if (x.n < 0) return "#NES(()-" + Magnitude(ws, x) + "#NES)";
    return Magnitude(ws, x);
}
} // namespace

// Routine 8: sums and differences of fractions. The type goes by the seed: two fractions
// (even seeds) or three (odd seeds).
void AdditionAndSubtractionOfFractions(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, {"&SP=10:", "&SP=29:", "&SP=53:", "&SP=76:"});
    const int terms = ws.Seed % 2 == 0 ? 2 : 3;
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            Ratio x[3];
            x[0] = Reduced(ws, RandomInRange(ws, -12, 28, 1, 1), RandomInRange(ws, 1, 15, 1, 1));
            x[1] = Reduced(ws, RandomInRange(ws, -12, 28, 1, 1), RandomInRange(ws, 1, 12, 1, 1));
            x[2] = Reduced(ws, RandomInRange(ws, -12, 28, 1, 1), RandomInRange(ws, 1, 12, 1, 1));
            std::string text;
            Ratio sum{0, 1};
            bool whole = true;
            for (int k = 0; k < terms; ++k) {
                text += Joined(ws, x[k], k == 0);
                sum = Add(ws, sum, x[k]);
                if (x[k].d != 1) whole = false;
            }
            // A sum of whole numbers alone is no exercise on fractions.
            if (whole) return ItemTexts{};
            return ItemTexts{text, FractionToMarkup(ws, sum.n, sum.d)};
        });
    }
    drill.WriteStatement(kRationalHeadLines);
}

// Routine 9: the four operations with fractions, in seven forms, alternating:
//   1  a × b        2  a : b        3  a × b ± c        4  a : b ± c
//   5  a × ( b ± c )                6  a : ( b ± c )    7  a × b ± c : d
void FourOperationsWithFractions(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, {"&SP=5:", "&SP=35:", "&SP=65:"}, {"&SP=10:", "&SP=27:", "&SP=44:", "&SP=61:", "&SP=78:"});
    double form = RandomInRange(ws, 1, 7, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        form += 1;
        if (form > 7) form = 1;
        AddNewItem(drill, [&] {
            std::string text;
            Ratio value{0, 1};
            // The last fraction takes a smaller denominator.
            Ratio x[4];
            for (int k = 0; k < 4; ++k) {
                const double n = RandomInRange(ws, -12, 25, 1, 1);
                x[k] = Reduced(ws, n, RandomInRange(ws, 1, k < 3 ? 12 : 10, 1, 1));
            }
            const Ratio& a = x[0];
            const Ratio& b = x[1];
            const Ratio& c = x[2];
            const Ratio& d = x[3];
            const std::string first = Joined(ws, a, true);
            bool refused = false;
            switch (static_cast<int>(form)) {
            case 1:
                text = first + " × " + Factor(ws, b);
                value = Mul(ws, a, b);
                break;
            case 2:
                text = first + " : " + Factor(ws, b);
                value = Div(ws, a, b);
                break;
            case 3:
                text = first + " × " + Factor(ws, b) + Joined(ws, c, false);
                value = Add(ws, Mul(ws, a, b), c);
                break;
            case 4:
                text = first + " : " + Factor(ws, b) + Joined(ws, c, false);
                value = Add(ws, Div(ws, a, b), c);
                break;
            case 5:
                text = first + " × #NES(() " + Joined(ws, b, true) + Joined(ws, c, false) + " #NES)";
                value = Mul(ws, a, Add(ws, b, c));
                refused = Add(ws, b, c).n == 0;
                break;
            case 6:
                text = first + " : #NES(() " + Joined(ws, b, true) + Joined(ws, c, false) + " #NES)";
                refused = Add(ws, b, c).n == 0;
                if (!refused) value = Div(ws, a, Add(ws, b, c));
                break;
            default: {
                // The sign of c joins the quotient c : d to the product.
                const Ratio cd = Div(ws, c, d);
                text = first + " × " + Factor(ws, b) + Joined(ws, c, false) + " : " + Factor(ws, d);
                value = Add(ws, Mul(ws, a, b), cd);
                break;
            }
            }
            // Items made only of whole numbers are no exercise on fractions.
            const int used = form <= 2 ? 2 : form <= 6 ? 3 : 4;
            // and a factor of 1 or -1 is none.
            bool whole = true;
            for (int k = 0; k < used; ++k) {
                if (x[k].d != 1) whole = false;
                if (x[k].d == 1 && std::fabs(x[k].n) == 1) refused = true;
            }
            if (refused || whole) return ItemTexts{};
            return ItemTexts{text, FractionToMarkup(ws, value.n, value.d)};
        });
    }
    drill.WriteStatement(kRationalHeadLines);
}

namespace {
// The digits of value, with zeros in front up to count places.
std::string Digits(double value, int count) {
    std::string text = PlainNumberText(value);
    while (static_cast<int>(text.size()) < count) text = "0" + text;
    return text;
}

// A repeating block that is all nines is an ending decimal in disguise, and one that is
// a shorter block said twice ("11", "333") is written with the shorter block.
bool GoodPeriod(double period, int places) {
    const double nines = std::pow(10.0, places) - 1;
    if (period == nines) return false;
    if (places == 2 && std::fmod(period, 11) == 0) return false;
    if (places == 3 && std::fmod(period, 111) == 0) return false;
    return true;
}
} // namespace

DecimalToFractionItem DrawDecimalToFraction(GeneratorWorkspace& ws, int shape) {
    DecimalToFractionItem item;
    const double whole = RandomInRange(ws, 0, 12, 1, 0);
    const std::string head = PlainNumberText(whole) + "&.";
    if (shape == 1) {
        // An ending decimal of one to four places.
        const int places = static_cast<int>(RandomInRange(ws, 1, 4, 1, 1));
        const double scale = std::pow(10.0, places);
        const double digits = RandomInRange(ws, 1, scale - 1, 1, 1);
        if (std::fmod(digits, 10) == 0) return item;
        item.text = head + Digits(digits, places);
        item.numerator = whole * scale + digits;
        item.denominator = scale;
    } else if (shape == 2) {
        // A decimal that repeats a block of one to three digits from the point on.
        const int places = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
        const double nines = std::pow(10.0, places) - 1;
        const double period = RandomInRange(ws, 1, nines, 1, 1);
        if (!GoodPeriod(period, places)) return item;
        item.text = head + "#ARC(" + Digits(period, places) + "#ARC)";
        item.numerator = whole * nines + period;
        item.denominator = nines;
    } else {
        // One to three digits that don't repeat, then a repeating block of one to three.
        const int fixedPlaces = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
        const double scale = std::pow(10.0, fixedPlaces);
        const double fixed = RandomInRange(ws, 0, scale - 1, 1, 0);
        const int places = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
        const double nines = std::pow(10.0, places) - 1;
        const double period = RandomInRange(ws, 1, nines, 1, 1);
        if (!GoodPeriod(period, places)) return item;
        // The last fixed digit equal to the last repeating one would start the block a
        // place earlier: such a number has a shorter way of being written.
        if (std::fmod(fixed, 10) == std::fmod(period, 10)) return item;
        item.text = head + Digits(fixed, fixedPlaces) + "#ARC(" + Digits(period, places) + "#ARC)";
        item.numerator = (whole * scale + fixed) * nines + period;
        item.denominator = scale * nines;
    }
    return item;
}

// Routine 22: decimals to fractions, in three shapes that go round with the items: an
// ending decimal, a purely repeating one and a mixed repeating one.
void ConvertingDecimalNumbersToFractions(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    double shape = RandomInRange(ws, 1, 3, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        // The shapes go round; one time in ten a shape repeats, and else one time in
        // five the next one is drawn at random. Both coins are always drawn.
        const double previous = shape;
        shape += 1;
        if (shape > 3) shape = 1;
        const bool repeat = Coin(ws, 0.9f);
        const bool jump = Coin(ws, 0.8f);
        if (repeat && i > 1) {
            shape = previous;
        } else if (jump) {
            shape = RandomInRange(ws, 1, 3, 1, 1);
        }
        AddNewItem(drill, [&] {
            const DecimalToFractionItem item = DrawDecimalToFraction(ws, static_cast<int>(shape));
            if (item.text.empty()) return ItemTexts{};
            return ItemTexts{item.text, FractionToMarkup(ws, item.numerator, item.denominator)};
        });
    }
    drill.WriteStatement({"Convert the following values to fractions:&LF"});
}
