#include "generators/ga3/ga3_routines.h"
#include "generators/ga3/three_equation_systems.h"

// Routine 5: a plane and a line (as two planes) that meet in a point, hold each other or
// are parallel, by the seed.
void PlaneAndLineWithoutParameter(GeneratorWorkspace& ws) {
    if (ws.DescribeMode) {
        Describe(ws, {"130", "Space analytical geometry", "050", "3", "",
                      "Relative position of planes and lines (without parameter)",
                      "Discuss relative position of planes and lines (without parameter): Intersect, parallel, lies. "
                      "(3 types)"});
        return;
    }
    SolveSystemWithoutParameter(ws, 1);
}

// Routine 6: the same with a letter in the plane's equation.
void PlaneAndLineWithParameter(GeneratorWorkspace& ws) {
    if (ws.DescribeMode) {
        Describe(ws, {"130", "Space analytical geometry", "060", "3", "",
                      "Relative position of planes and lines (with parameter)",
                      "Discuss relative position of planes and lines according to the values of a parameter. (2 types)"});
        return;
    }
    SolveSystemWithParameter(ws, 1);
}
