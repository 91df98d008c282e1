#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_ECU, by the number the router gives them.

void TrigonometricEquations(GeneratorWorkspace& ws);  // 14
