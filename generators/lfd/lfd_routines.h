#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_LFD, by the number the router gives them.

void DerivativeOfFunctionsI(GeneratorWorkspace& ws);             // 1
void DerivativeOfFunctionsII(GeneratorWorkspace& ws);            // 2
void TangentAndNormalLines(GeneratorWorkspace& ws);               // 29
void FindingPolynomialFunctions(GeneratorWorkspace& ws);          // 32
void MaximumsAndMinimums(GeneratorWorkspace& ws);                 // 33
void DomainOfAFunction(GeneratorWorkspace& ws);                   // 67
void ContinuityOfAFunction(GeneratorWorkspace& ws);               // 68
void DerivabilityOfAFunction(GeneratorWorkspace& ws);             // 69
void LimitsOfPowersInvolvingE(GeneratorWorkspace& ws);           // 25
void LimitsInvolvingRoots(GeneratorWorkspace& ws);               // 26
void LimitsInvolvingRationalFunctions(GeneratorWorkspace& ws);   // 27
void LimitsInvolvingSubtractionOfRoots(GeneratorWorkspace& ws);  // 77
