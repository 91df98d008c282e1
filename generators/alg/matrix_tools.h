#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// Small matrices of whole numbers and their markup in the array tags.

using Matrix = std::vector<std::vector<double>>;
using TextMatrix = std::vector<std::vector<std::string>>;

Matrix ZeroMatrix(int rows, int columns);
Matrix Multiply(const Matrix& a, const Matrix& b);
Matrix Scaled(double k, const Matrix& a);
Matrix Sum(const Matrix& a, const Matrix& b);
// The determinant of a 1×1, 2×2 or 3×3 matrix (the 2×2 rule, Sarrus's rule).
double Determinant(const Matrix& m);
// The adjugate (transposed cofactors) of a 2×2 or 3×3 matrix: m · adj(m) = det(m) · I.
Matrix Adjugate(const Matrix& m);

// "#NES(()#RWS(C#RW1(" entries " #RW1)" ... "#RWS)#NES)"
std::string MatrixMarkup(const TextMatrix& entries);
std::string MatrixMarkup(const Matrix& m);

// An entry of -9..9 kept easy to read: a coin makes four in ten of them small, another
// makes one in ten of them 0.
double DrawEntry(GeneratorWorkspace& ws);
Matrix DrawMatrix(GeneratorWorkspace& ws, int rows, int columns);
