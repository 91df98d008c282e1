#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_PES, by the number the router gives them.
void UngroupedDataStatistics(GeneratorWorkspace& ws);  // 1
void GroupedDataStatistics(GeneratorWorkspace& ws);    // 2
void LinearRegression(GeneratorWorkspace& ws);         // 3
void NormalDistribution(GeneratorWorkspace& ws);       // 4
