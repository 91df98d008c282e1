#include "generators/ga2/ga2_common.h"

#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"

std::string PairMarkup(MathWorkspace& ws, double x, double y) {
    return "(" + NumberToExactMarkup(ws, x) + ",& & " + NumberToExactMarkup(ws, y) + ")";
}

std::string PointMarkup(MathWorkspace& ws, const std::string& label, double x, double y) {
    const std::string head = label.empty() ? "" : "&+I" + label + "&-I";
    return head + "&(" + NumberToExactMarkup(ws, x) + ",& & " + NumberToExactMarkup(ws, y) + ")";
}

std::string VectorMarkup(MathWorkspace& ws, const std::string& name, double x, double y) {
    return "#VEC(&+I" + name + "&-I#VEC)" + PairMarkup(ws, x, y);
}

std::string DrawVerb(GeneratorWorkspace& ws) {
    std::string verb = "Calculate";
    if (Coin(ws, 0.5f)) verb = "Find";
    if (Coin(ws, 0.5f)) verb = "Determine";
    return verb;
}

namespace {
const char kLetters[] = "hkmnpqrw";
}

std::string DrawParameterLetter(GeneratorWorkspace& ws) {
    const int i = static_cast<int>(RandomInRange(ws, 1, 8, 1, 1));
    return std::string("&+I") + kLetters[i - 1] + "&-I";
}

std::string DrawSecondParameterLetter(GeneratorWorkspace& ws, const std::string& first) {
    RetryBound bound;
    while (true) {
        const std::string second = DrawParameterLetter(ws);
        if (second != first) return second;
        bound.Next();
    }
}

std::string ShiftedMarkup(MathWorkspace& ws, const std::string& variable, double c) {
    if (c == 0) return variable;
    return variable + (c > 0 ? "& -& " : "& +& ") + NumberToExactMarkup(ws, std::fabs(c));
}

void SplitSquare(double square, double& outside, double& inside) {
    outside = 1;
    inside = std::fabs(square);
    for (double d = 2; d * d <= inside; ++d) {
        while (std::fmod(inside, d * d) == 0) {
            inside /= d * d;
            outside *= d;
        }
    }
}

std::string RootFractionMarkup(MathWorkspace& ws, double a, double square, double b) {
    double outside = 1, inside = 1;
    SplitSquare(square, outside, inside);
    // A negative fraction comes padded; it stands after "=" or a word, where one blank is enough.
    return TrimBlanks(RootFractionToMarkup(ws, a * outside, inside, b));
}

std::string RootMarkup(MathWorkspace& ws, double square) { return RootFractionMarkup(ws, 1, square, 1); }
