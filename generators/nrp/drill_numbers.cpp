#include "generators/nrp/drill_numbers.h"

#include "mathservices/arithmetic.h"

double DropDigits(GeneratorWorkspace& ws, double x, int coins) {
    for (int coin = 0; coin < coins; ++coin) {
        if (Coin(ws, 0.6f)) x = Int(x / 10);
    }
    return x;
}

double ShiftDecimalPoint(GeneratorWorkspace& ws, double x, int coins) {
    for (int coin = 0; coin < coins; ++coin) {
        if (Coin(ws, 0.6f)) x = RoundAtPosition(ws, x / 10, -6);
    }
    return x;
}

std::vector<std::string> ExpressionHeadLines(const std::string& involving) {
    return {"Calculate the following expressions involving " + involving + ".&LF",
            "Calculate the following expressions.&LF", "Calculate these expressions involving " + involving + ".&LF",
            "Calculate these expressions.&LF"};
}
