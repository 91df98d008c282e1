#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_NRP, by the number the router gives them.

void AdditionAndSubtractionOfNaturalNumbers(GeneratorWorkspace& ws);  // 12
