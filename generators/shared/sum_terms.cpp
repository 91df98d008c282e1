#include "generators/shared/sum_terms.h"

#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

std::string ShiftedVariable(const std::string& variable, double p) {
    if (p == 0) return variable;
    return variable + (p > 0 ? " + " : " - ") + PlainNumberText(std::fabs(p));
}

void AppendTerm(MathWorkspace& ws, std::string& sum, double num, double den, const std::string& body) {
    if (num == 0) return;
    if (den < 0) {
        num = -num;
        den = -den;
    }
    const double g = Gcd(ws, std::fabs(num), den);
    num /= g;
    den /= g;
    const bool negative = num < 0;
    std::string coefficient;
    if (std::fabs(num) != 1 || den != 1 || body.empty()) coefficient = FractionToMarkup(ws, std::fabs(num), den);
    if (sum.empty()) sum = negative ? "-" : "";
    else sum += negative ? " - " : " + ";
    sum += coefficient + body;
}
