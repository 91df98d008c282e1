#include "generators/module_router.h"
#include "generators/alg/alg_routines.h"

// Matrices and linear systems.
GeneratorModule MakeKvolMathAlg() {
    return {"KVOL_MATH_ALG",
            5,
            {
                {1, MatrixEquation,
                 {"100", "Algebra", "008", "3", "026", "Matricial equations: type AX+B=C",
                  "Solving matricial equations type AX+B=C, where A, X, B and C are matrices. (4 types of size)"}},
                {2, SystemOfMatrixEquations,
                 {"100", "Algebra", "010", "3", "026", "Systems of 2\u00D72 matricial linear equations",
                  "Problems about systems of 2\u00D72 matricial linear equations. (2 types of size)"}},
                {3, ParameterDeterminantAndInverse,
                 {"100", "Algebra", "017", "3", "", "Determinant and inverse matrix with a parameter",
                  "Calculation of parameter for which a determinant is null or a matrix has/hasn't inverse. "
                  "(3 types)"}},
                {4, DiscussSystemWithoutParameter,
                 {"100", "Algebra", "028", "3", "",
                  "Discuss and solve of system of 3\u00D73 linear equations (without parameter)",
                  "Discuss and solve of a system of 3\u00D73 linear equations (without parameter): "
                  "Compatible / incompatible, determinate / indeterminate. (3 types)"}},
                {5, DiscussSystemWithParameter,
                 {"100", "Algebra", "029", "3", "",
                  "Discuss and solve system of 3\u00D73 linear equations (with parameter)",
                  "Discuss and solve systems of 3\u00D73 linear equations according to the values of a parameter. "
                  "(2 types)"}},
            }};
}
