#pragma once
#include "generators/generator_contract.h"

// The routines of KVOL_MATH_GDE, by the number the router gives them.

void PythagoreanTheorem(GeneratorWorkspace& ws);   // 1
void Similarity(GeneratorWorkspace& ws);           // 2
void PlaneShapesStraight(GeneratorWorkspace& ws);  // 3
void PlaneShapesCurved(GeneratorWorkspace& ws);    // 4
void SpatialShapesPlane(GeneratorWorkspace& ws);   // 5
void SpatialShapesCurved(GeneratorWorkspace& ws);  // 6
