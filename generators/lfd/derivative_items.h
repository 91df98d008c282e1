#pragma once
#include <string>

#include "generators/generator_contract.h"

// One item of a derivative drill: a function and its derivative, as markup.
struct DerivativeItem {
    std::string function;
    std::string derivative;
};

inline constexpr int kDerivativeTypes = 19;

// Draws the numbers of one item of the given type (1 to 19) of the easy and of the harder
// drill, and writes the function and its derivative.
DerivativeItem MakeEasyDerivative(GeneratorWorkspace& ws, int type);
DerivativeItem MakeHardDerivative(GeneratorWorkspace& ws, int type);
