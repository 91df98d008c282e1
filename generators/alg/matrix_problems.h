#pragma once
#include <string>
#include <utility>
#include <vector>

#include "generators/alg/matrix_tools.h"

// The records the matrix problems are written from; the tests check their mathematics.

// A·X ± B = C, or X·A ± B = C.
struct MatrixEquationData {
    Matrix A, X, B, C;
    bool xFirst = false;  // X·A instead of A·X
    bool minus = false;   // "- B"
};
MatrixEquationData BuildMatrixEquation(GeneratorWorkspace& ws);

// a·X + b·Y = A, c·X + d·Y = B.
struct MatrixSystemData {
    double a = 0, b = 0, c = 0, d = 0;
    Matrix X, Y, A, B;
};
MatrixSystemData BuildMatrixSystem(GeneratorWorkspace& ws, int size);

// A 3×3 matrix with a letter in two cells; its determinant is a quadratic in the letter
// with the two whole roots.
struct ParameterMatrixData {
    std::string letter;
    Matrix m;  // the letter's cells hold 0
    std::vector<std::pair<int, int>> letterCells;
    double root1 = 0, root2 = 0;
    double stated = 0;  // a value that is not a root, for the inverse
};
ParameterMatrixData BuildParameterMatrix(GeneratorWorkspace& ws);
// The matrix with the letter replaced by a value.
Matrix WithLetter(const ParameterMatrixData& p, double value);
