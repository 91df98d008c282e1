#include "generators/module_router.h"
#include "generators/tri/tri_routines.h"

// Trigonometry.
GeneratorModule MakeKvolMathTri() {
    return {"KVOL_MATH_TRI",
            6,
            {
                {1, TrigValuesFromAnother},
                {2, TrigValuesFromTwoOthers},
                {3, TrigonometricIdentities},
                {4, TrigonometricEquationsList},
                {5, SolvingTriangles},
                {6, SolvingPlaneShapes},
            }};
}
