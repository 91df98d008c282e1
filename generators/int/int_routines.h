#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_INT, by the number the router gives them.

void IntegralsOfRationalFunctionsI(GeneratorWorkspace& ws);   // 1
void IntegralsOfRationalFunctionsII(GeneratorWorkspace& ws);  // 2
void AreaInvolvingOneFunction(GeneratorWorkspace& ws);       // 3
void AreaInvolvingTwoFunctions(GeneratorWorkspace& ws);      // 4
void IntegrationByParts(GeneratorWorkspace& ws);             // 5
void IntegrationBySubstitution(GeneratorWorkspace& ws);      // 6
