#include "generators/module_router.h"
#include "generators/tri/tri_routines.h"

// Trigonometry.
GeneratorModule MakeKvolMathTri() {
    return {"KVOL_MATH_TRI",
            6,
            {
                {1, TrigValuesFromAnother,
                 {"110", "Trigonometry", "010", "3", "026", "Trigonometric values from another one",
                  "Calculate trigonometric values when we know another one. (3 types)"}},
                {2, TrigValuesFromTwoOthers,
                 {"110", "Trigonometry", "020", "3", "027", "Trigonometric values from two other known",
                  "Calculation of trigonometric values from two other known (5 types)"}},
                {3, TrigonometricIdentities,
                 {"110", "Trigonometry", "030", "2", "024", "Trigonometric identities",
                  "Exercises for making proofs of trigonometric identities (34 types)."}},
                {4, TrigonometricEquationsList,
                 {"110", "Trigonometry", "040", "2", "026", "Trigonometric equations",
                  "Exercises to solve trigonometric equations. (138 types)"}},
                {5, SolvingTriangles,
                 {"110", "Trigonometry", "050", "3", "027", "Solving triangles",
                  "Solving triangles: Finding missing sides and/or angles given some information about a triangle. "
                  "(4 types)"}},
                {6, SolvingPlaneShapes,
                 {"110", "Trigonometry", "060", "3", "027", "Solving plane shapes.",
                  "Solving plane shapes. Triangle, rhombus, parallelogram and trapezoid. (11 types)"}},
            }};
}
