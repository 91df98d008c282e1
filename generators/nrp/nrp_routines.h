#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_NRP, by the number the router gives them.

void DivisionOfNaturalNumbers(GeneratorWorkspace& ws);  // 1
void DivisionOfDecimalNumbers(GeneratorWorkspace& ws);  // 2
void AlgebraicFractionsProducts(GeneratorWorkspace& ws);  // 3
void AlgebraicFractionsSums(GeneratorWorkspace& ws);  // 4
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
void AdditionAndSubtractionOfPolynomials(GeneratorWorkspace& ws);  // 16
void MultiplicationAndPowerOfBinomials(GeneratorWorkspace& ws);  // 17
void FactoringPolynomials(GeneratorWorkspace& ws);  // 18
void DivisionOfPolynomials(GeneratorWorkspace& ws);  // 19
void DivisionOfPolynomialsInvolvingParameters(GeneratorWorkspace& ws);  // 20
void LcmAndGcmOfNaturalNumbers(GeneratorWorkspace& ws);  // 21
void ConvertingDecimalNumbersToFractions(GeneratorWorkspace& ws);  // 22
void RationalizationWithSquareRoots(GeneratorWorkspace& ws);  // 23
void RationalizationWithNthRoots(GeneratorWorkspace& ws);  // 24
void AdditionAndSubtractionOfSquareRoots(GeneratorWorkspace& ws);  // 25
void SimplifyingAlgebraicFractions(GeneratorWorkspace& ws);  // 26
void AddingAngleMeasures(GeneratorWorkspace& ws);  // 27
void SubtractingAngleMeasures(GeneratorWorkspace& ws);  // 28
void MultiplyingAngleMeasures(GeneratorWorkspace& ws);  // 29
void DividingAngleMeasures(GeneratorWorkspace& ws);  // 30
void ComplementaryAndSupplementaryAngles(GeneratorWorkspace& ws);  // 31
void AnglesInTrianglesAndShapes(GeneratorWorkspace& ws);  // 32
void AddingAndSubtractingComplexNumbers(GeneratorWorkspace& ws);  // 33
void MultiplyingAndDividingComplexNumbers(GeneratorWorkspace& ws);  // 34
void CartesianPolarConversions(GeneratorWorkspace& ws);  // 35
void MultiplyingAndDividingComplexNumbersInPolarForm(GeneratorWorkspace& ws);  // 36
void PowersOfComplexNumbers(GeneratorWorkspace& ws);  // 37
void RootsOfComplexNumbers(GeneratorWorkspace& ws);  // 38
void ComplexNumberParameter(GeneratorWorkspace& ws);  // 39
