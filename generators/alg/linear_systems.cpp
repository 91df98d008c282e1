#include "generators/alg/alg_routines.h"
#include "generators/ga3/three_equation_systems.h"

// Routine 4: a system of three linear equations whose case (one solution, a line of
// solutions, none) is fixed by the seed before the system is built.
void DiscussSystemWithoutParameter(GeneratorWorkspace& ws) {
    if (ws.DescribeMode) {
        Describe(ws, {"100", "Algebra", "028", "3", "",
                      "Discuss and solve of system of 3\u00D73 linear equations (without parameter)",
                      "Discuss and solve of a system of 3\u00D73 linear equations (without parameter): Compatible / "
                      "incompatible, determinate / indeterminate. (3 types)"});
        return;
    }
    SolveSystemWithoutParameter(ws, 0);
}

// Routine 5: a system with a letter in one coefficient; the rank drops at one value of it.
void DiscussSystemWithParameter(GeneratorWorkspace& ws) {
    if (ws.DescribeMode) {
        Describe(ws, {"100", "Algebra", "029", "3", "",
                      "Discuss and solve system of 3\u00D73 linear equations (with parameter)",
                      "Discuss and solve systems of 3\u00D73 linear equations according to the values of a parameter. "
                      "(2 types)"});
        return;
    }
    SolveSystemWithParameter(ws, 0);
}
