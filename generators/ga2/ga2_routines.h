#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_GA2, by the number the router gives them.
void VectorsOne(GeneratorWorkspace& ws);   // 1
void VectorsTwo(GeneratorWorkspace& ws);   // 2
void LinesOne(GeneratorWorkspace& ws);     // 3
void LinesTwo(GeneratorWorkspace& ws);     // 4
void Circle(GeneratorWorkspace& ws);       // 5
void Ellipse(GeneratorWorkspace& ws);      // 6
void Hyperbola(GeneratorWorkspace& ws);    // 7
void Parabola(GeneratorWorkspace& ws);     // 8
