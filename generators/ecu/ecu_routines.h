#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_ECU, by the number the router gives them.

void LinearEquationsInteger(GeneratorWorkspace& ws);        // 1
void CompleteQuadraticEquations(GeneratorWorkspace& ws);    // 2
void EquationsInvolvingRoots(GeneratorWorkspace& ws);       // 3
void LinearSystems2(GeneratorWorkspace& ws);                // 4
void LinearSystems3(GeneratorWorkspace& ws);                // 5
void LinearEquationsRational(GeneratorWorkspace& ws);       // 6
void LinearInequationsRational(GeneratorWorkspace& ws);     // 7
void LinearInequationsInteger(GeneratorWorkspace& ws);      // 8
void NonlinearSystems(GeneratorWorkspace& ws);              // 9
void ExponentialEquations(GeneratorWorkspace& ws);          // 10
void IncompleteQuadraticEquations(GeneratorWorkspace& ws);  // 11
void BiquadraticEquations(GeneratorWorkspace& ws);          // 12
void LogarithmicEquations(GeneratorWorkspace& ws);          // 13
void TrigonometricEquations(GeneratorWorkspace& ws);        // 14
