#include "generators/alg/alg_routines.h"
#include "generators/shared/three_equation_systems.h"

// Routine 4: a system of three linear equations whose case (one solution, a line of
// solutions, none) is fixed by the seed before the system is built.
void DiscussSystemWithoutParameter(GeneratorWorkspace& ws) {
    SolveSystemWithoutParameter(ws, 0);
}

// Routine 5: a system with a letter in one coefficient; the rank drops at one value of it.
void DiscussSystemWithParameter(GeneratorWorkspace& ws) {
    SolveSystemWithParameter(ws, 0);
}
