#include "generators/ecu/ecu_common.h"

#include "mathservices/arithmetic.h"
#include "mathservices/poly_markup.h"

std::string Unknown(const std::string& letter) { return "&+I" + letter + "&-I"; }

std::string DrawUnknownLetter(GeneratorWorkspace& ws) {
    if (!Coin(ws, 0.8f)) return "x";
    const std::string letters = "kmtyz";
    const int k = static_cast<int>(RandomInRange(ws, 1, 5, 1, 1));
    return letters.substr(static_cast<std::size_t>(k - 1), 1);
}

std::string LinearSide(double p, double q, const std::string& letter) {
    return PolynomialToMarkup(0, 0, 0, p, q, Unknown(letter));
}

std::string FlippedRelation(const std::string& relation) {
    if (relation == "<") return ">";
    if (relation == ">") return "<";
    if (relation == "&<=") return "&>=";
    return "&<=";
}

namespace {
constexpr const char* kRelations[] = {"<", ">", "&<=", "&>="};
} // namespace

std::string DrawRelation(GeneratorWorkspace& ws) {
    return kRelations[static_cast<int>(RandomInRange(ws, 1, 4, 1, 1)) - 1];
}

std::string SignedTail(double value, const std::string& magnitudeText) {
    return (value < 0 ? "& -& " : "& +& ") + magnitudeText;
}
