#include "generators/module_router.h"
#include "generators/alg/alg_routines.h"

// Matrices and linear systems.
GeneratorModule MakeKvolMathAlg() {
    return {"KVOL_MATH_ALG",
            5,
            {
                {1, MatrixEquation},
                {2, SystemOfMatrixEquations},
                {3, ParameterDeterminantAndInverse},
                {4, DiscussSystemWithoutParameter},
                {5, DiscussSystemWithParameter},
            }};
}
