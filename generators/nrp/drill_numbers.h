#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// Draws and head lines that the arithmetic drills share.

// x loses its last digit on each of `coins` coins that falls (drawn one after another).
double DropDigits(GeneratorWorkspace& ws, double x, int coins);
// x moves its decimal point one place to the left on each of `coins` coins that falls.
double ShiftDecimalPoint(GeneratorWorkspace& ws, double x, int coins);
// The four wordings of "Calculate ... expressions", two of them naming what the
// expressions involve.
std::vector<std::string> ExpressionHeadLines(const std::string& involving);
