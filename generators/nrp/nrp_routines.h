#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_NRP, by the number the router gives them.

void DivisionOfNaturalNumbers(GeneratorWorkspace& ws);  // 1
void DivisionOfDecimalNumbers(GeneratorWorkspace& ws);  // 2
void SimplifyingNthRoots(GeneratorWorkspace& ws);  // 5
void SimplifyingPowersOfNaturalNumbers(GeneratorWorkspace& ws);  // 6
void SimplifyingPowersOfRationalNumbers(GeneratorWorkspace& ws);  // 7
void AdditionAndSubtractionOfFractions(GeneratorWorkspace& ws);  // 8
void FourOperationsWithFractions(GeneratorWorkspace& ws);  // 9
void AdditionAndSubtractionOfIntegerNumbers(GeneratorWorkspace& ws);  // 10
void MultiplicationAndDivisionOfIntegerNumbers(GeneratorWorkspace& ws);  // 11
void AdditionAndSubtractionOfNaturalNumbers(GeneratorWorkspace& ws);  // 12
void MultiplicationOfNaturalNumbers(GeneratorWorkspace& ws);  // 13
void AdditionAndSubtractionOfDecimalNumbers(GeneratorWorkspace& ws);  // 14
void MultiplicationOfDecimalNumbers(GeneratorWorkspace& ws);  // 15
void LcmAndGcmOfNaturalNumbers(GeneratorWorkspace& ws);  // 21
void ConvertingDecimalNumbersToFractions(GeneratorWorkspace& ws);  // 22
void RationalizationWithSquareRoots(GeneratorWorkspace& ws);  // 23
void RationalizationWithNthRoots(GeneratorWorkspace& ws);  // 24
void AdditionAndSubtractionOfSquareRoots(GeneratorWorkspace& ws);  // 25
