#include <cmath>

#include "generators/tri/tri_records.h"
#include "generators/tri/tri_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"

std::string SimplifiedRoot(GeneratorWorkspace& ws, double a, double r, double b) {
    for (double k = 2; k * k <= r; ++k) {
        while (IsWhole(r / (k * k))) {
            r /= k * k;
            a *= k;
        }
    }
    // A negative fraction comes padded; the value stands after "=", where one blank is enough.
    return TrimBlanks(RootFractionToMarkup(ws, a, r, b));
}

namespace {
// Pairs p/q with q² − p² a perfect square, so that all six values are rational.
constexpr double kPresets[8][2] = {{9, 41}, {40, 41}, {8, 17}, {15, 17}, {5, 13}, {12, 13}, {3, 5}, {4, 5}};
const char* const kNames[6] = {"sin &alfa = ", "cos &alfa = ", "tan &alfa = ",
                               "cosec &alfa = ", "sec &alfa = ", "cotan& &alfa& =& "};
} // namespace

// The right triangle behind the values has the sides p and √(q² − p²) and the hypotenuse
// q. With sin = aS·√rS / q and cos = aC·√rC / q (one of rS, rC is q² − p², the other 1):
// tan = aS·√(rS·rC) / (aC·rC), cosec = q·√rS / (aS·rS), sec = q·√rC / (aC·rC),
// cotan = aC·√(rS·rC) / (aS·rS).
TrigValuesRecord MakeTrigValues(GeneratorWorkspace& ws, int type) {
    TrigValuesRecord rec;
    rec.type = type;
    double p = 0, q = 0;
    RetryBound bound;
    while (true) {
        p = RandomInRange(ws, 1, 17, 1, 1);
        q = RandomInRange(ws, p + 1, 2 * p + 1, 1, 1);
        const double g = Gcd(ws, p, q);
        p /= g;
        q /= g;
        const double m = q * q - p * p;
        if (m != 0 && m < 300) break;
        bound.Next();
    }
    const double r = Int(1000 * Draw(ws));
    if (r < 400) {
        const int band = static_cast<int>(r / 50);
        p = kPresets[band][0];
        q = kPresets[band][1];
    }
    rec.p = p;
    rec.q = q;
    const double m = q * q - p * p;
    const double signSine = Coin(ws, 0.5f) ? -1 : 1;
    const double signCosine = Coin(ws, 0.5f) ? -1 : 1;
    double aS = p, rS = 1, aC = 1, rC = m;
    if (type == 1) {
        aS = 1;
        rS = m;
        aC = p;
        rC = 1;
    }
    aS *= signSine;
    aC *= signCosine;
    rec.sine = aS * std::sqrt(rS) / q;
    rec.cosine = aC * std::sqrt(rC) / q;
    rec.texts = {SimplifiedRoot(ws, aS, rS, q),
                 SimplifiedRoot(ws, aC, rC, q),
                 SimplifiedRoot(ws, aS, rS * rC, aC * rC),
                 SimplifiedRoot(ws, q, rS, aS * rS),
                 SimplifiedRoot(ws, q, rC, aC * rC),
                 SimplifiedRoot(ws, aC, rS * rC, aS * rS)};
    // The sign of a second function fixes the quadrant.
    if (type == 1) rec.condition = std::string("sin &alfa ") + (signSine < 0 ? "< 0" : "> 0");
    else rec.condition = std::string("cos &alfa ") + (signCosine < 0 ? "< 0" : "> 0");
    return rec;
}

// Routine 1: one trigonometric value and the sign of another; the other five asked.
// Type by the seed: sin, cos or tan given.
void TrigValuesFromAnother(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 3;
    const TrigValuesRecord rec = MakeTrigValues(ws, type);
    constexpr const char* kAsked[3] = {
        ", calculate the trigonometric functions cos, tan, cosec, sec and cotan.&LF",
        ", find the trigonometric functions sin, tan, sec, cosec and cotan.&LF",
        ", calculate the trigonometric functions sin, cos, cosec, sec and cotan.&LF"};
    // The order in which each type lists the asked values.
    constexpr int kOrder[3][5] = {{1, 2, 3, 4, 5}, {0, 2, 4, 3, 5}, {0, 1, 3, 4, 5}};
    ws.Statement = ws.VariantNumber % 2 == 0 ? "We know that  " : "If we know that  ";
    ws.Statement += std::string(kNames[type]) + rec.texts[static_cast<std::size_t>(type)] + "  and  " + rec.condition +
                    kAsked[type];
    ws.Solution = "&SP=10:";
    for (int i = 0; i < 5; ++i) {
        const int k = kOrder[type][i];
        if (i > 0) ws.Solution += ";    ";
        ws.Solution += std::string(kNames[k]) + rec.texts[static_cast<std::size_t>(k)];
    }
    ws.Solution += "&LF";
}
