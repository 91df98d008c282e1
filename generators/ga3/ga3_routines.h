#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_GA3, by the number the router gives them.
void SpaceVectors(GeneratorWorkspace& ws);                   // 1
void PlaneCalculations(GeneratorWorkspace& ws);              // 2
void LineCalculations(GeneratorWorkspace& ws);               // 3
void AlignmentCoplanarityDistance(GeneratorWorkspace& ws);   // 4
void PlaneAndLineWithoutParameter(GeneratorWorkspace& ws);   // 5
void PlaneAndLineWithParameter(GeneratorWorkspace& ws);      // 6
void TwoLinesWithoutParameter(GeneratorWorkspace& ws);       // 7
void TwoLinesWithParameter(GeneratorWorkspace& ws);          // 8
