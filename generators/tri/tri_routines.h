#pragma once
#include <string>

#include "generators/generator_contract.h"

// The routines of KVOL_MATH_TRI, by the number the router gives them.

void TrigValuesFromAnother(GeneratorWorkspace& ws);       // 1
void TrigValuesFromTwoOthers(GeneratorWorkspace& ws);     // 2
void TrigonometricIdentities(GeneratorWorkspace& ws);     // 3
void TrigonometricEquationsList(GeneratorWorkspace& ws);  // 4
void SolvingTriangles(GeneratorWorkspace& ws);            // 5
void SolvingPlaneShapes(GeneratorWorkspace& ws);          // 6

// One identity of the proof drill with its letters drawn, sides swapped by a coin.
std::string TrigIdentityItem(GeneratorWorkspace& ws, int templateNumber);
