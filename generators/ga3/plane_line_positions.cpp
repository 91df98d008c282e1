#include "generators/ga3/ga3_routines.h"
#include "generators/shared/three_equation_systems.h"

// Routine 5: a plane and a line (as two planes) that meet in a point, hold each other or
// are parallel, by the seed.
void PlaneAndLineWithoutParameter(GeneratorWorkspace& ws) {
    SolveSystemWithoutParameter(ws, 1);
}

// Routine 6: the same with a letter in the plane's equation.
void PlaneAndLineWithParameter(GeneratorWorkspace& ws) {
    SolveSystemWithParameter(ws, 1);
}
