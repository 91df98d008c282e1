#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_ALG, by the number the router gives them.
void MatrixEquation(GeneratorWorkspace& ws);                 // 1
void SystemOfMatrixEquations(GeneratorWorkspace& ws);        // 2
void ParameterDeterminantAndInverse(GeneratorWorkspace& ws); // 3
void DiscussSystemWithoutParameter(GeneratorWorkspace& ws);  // 4
void DiscussSystemWithParameter(GeneratorWorkspace& ws);     // 5
