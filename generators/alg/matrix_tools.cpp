#include "generators/alg/matrix_tools.h"

#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

Matrix ZeroMatrix(int rows, int columns) { return Matrix(rows, std::vector<double>(columns, 0.0)); }

Matrix Multiply(const Matrix& a, const Matrix& b) {
    Matrix c = ZeroMatrix(static_cast<int>(a.size()), static_cast<int>(b.at(0).size()));
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b[0].size(); ++j)
            for (std::size_t k = 0; k < b.size(); ++k) c[i][j] += a[i].at(k) * b[k][j];
    return c;
}

Matrix Scaled(double k, const Matrix& a) {
    Matrix c = a;
    for (auto& row : c)
        for (auto& v : row) v = k * v == 0 ? 0 : k * v;
    return c;
}

Matrix Sum(const Matrix& a, const Matrix& b) {
    Matrix c = a;
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < a[i].size(); ++j) c[i][j] += b.at(i).at(j);
    return c;
}

double Determinant(const Matrix& m) {
    if (m.size() == 1) return m[0][0];
    if (m.size() == 2) return m[0][0] * m[1][1] - m[0][1] * m[1][0];
    return m[0][0] * m[1][1] * m[2][2] + m[0][1] * m[1][2] * m[2][0] + m[0][2] * m[1][0] * m[2][1] -
           m[0][2] * m[1][1] * m[2][0] - m[0][0] * m[1][2] * m[2][1] - m[0][1] * m[1][0] * m[2][2];
}

Matrix Adjugate(const Matrix& m) {
    const int n = static_cast<int>(m.size());
    Matrix adj = ZeroMatrix(n, n);
    if (n == 2) {
        adj = {{m[1][1], -m[0][1]}, {-m[1][0], m[0][0]}};
    } else {
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) {
                const int r0 = (i + 1) % 3, r1 = (i + 2) % 3, c0 = (j + 1) % 3, c1 = (j + 2) % 3;
                // The cyclic order of the minor's rows and columns carries the cofactor's sign.
                adj[j][i] = m[r0][c0] * m[r1][c1] - m[r0][c1] * m[r1][c0];
            }
    }
    for (auto& row : adj)
        for (auto& v : row) v = v == 0 ? 0 : v;
    return adj;
}

std::string MatrixMarkup(const TextMatrix& entries) {
    std::string out = "#NES(()#RWS(C";
    for (std::size_t r = 0; r < entries.size(); ++r) {
        const std::string n = std::to_string(r + 1);
        out += "#RW" + n + "(";
        for (std::size_t c = 0; c < entries[r].size(); ++c) {
            if (c > 0) out += "&|"; // a cell of its column: the columns stand aligned
            out += entries[r][c];
        }
        out += " #RW" + n + ")";
    }
    return out + "#RWS)#NES)";
}

std::string MatrixMarkup(const Matrix& m) {
    TextMatrix t;
    for (const auto& row : m) {
        t.emplace_back();
        for (double v : row) t.back().push_back(PlainNumberText(v));
    }
    return MatrixMarkup(t);
}

double DrawEntry(GeneratorWorkspace& ws) {
    double v = RandomInRange(ws, -9, 9, 1, 0);
    if (Coin(ws, 0.6f)) v = std::trunc(v / 3);
    if (Coin(ws, 0.9f)) v = 0;
    return v == 0 ? 0 : v;
}

Matrix DrawMatrix(GeneratorWorkspace& ws, int rows, int columns) {
    Matrix m = ZeroMatrix(rows, columns);
    for (auto& row : m)
        for (auto& v : row) v = DrawEntry(ws);
    return m;
}
