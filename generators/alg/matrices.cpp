#include <algorithm>
#include <cmath>

#include "generators/alg/alg_routines.h"
#include "generators/alg/matrix_problems.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
bool AllWithin(const Matrix& m, double bound) {
    for (const auto& row : m)
        for (double v : row)
            if (std::fabs(v) > bound) return false;
    return true;
}

// "2&+IX&-I", "-&+IY&-I": a scalar times a matrix name, with its joiner when not first.
std::string ScalarTerm(double k, const std::string& name, bool first) {
    if (k == 0) return "";
    std::string out;
    if (first) out = k < 0 ? "-" : "";
    else out = k < 0 ? " - " : " + ";
    if (std::fabs(k) != 1) out += PlainNumberText(std::fabs(k));
    return out + "&+I" + name + "&-I";
}
} // namespace

MatrixEquationData BuildMatrixEquation(GeneratorWorkspace& ws) {
    MatrixEquationData e;
    // Four sizes: A of 2×2 or 3×3 (the outer values of the draw), X square or one column
    // (one row when X stands first).
    const double shape = RandomInRange(ws, -2, 2, 1, 0);
    const bool vectorX = Coin(ws, 0.6f);
    const int n = std::fabs(shape) == 2 ? 3 : 2;
    e.xFirst = shape < 0;
    e.minus = Coin(ws, 0.5f);
    RetryBound bound;
    while (true) {
        // A must be invertible, with a small determinant that keeps the work by hand short.
        e.A = DrawMatrix(ws, n, n);
        const double det = Determinant(e.A);
        if (det != 0 && std::fabs(det) <= 12) break;
        bound.Next();
    }
    const int other = vectorX ? 1 : n;
    RetryBound bound2;
    while (true) {
        e.X = e.xFirst ? DrawMatrix(ws, other, n) : DrawMatrix(ws, n, other);
        e.B = e.xFirst ? DrawMatrix(ws, other, n) : DrawMatrix(ws, n, other);
        const Matrix product = e.xFirst ? Multiply(e.X, e.A) : Multiply(e.A, e.X);
        e.C = Sum(product, Scaled(e.minus ? -1 : 1, e.B));
        bool nonZeroX = false;
        for (const auto& row : e.X)
            for (double v : row) nonZeroX = nonZeroX || v != 0;
        if (nonZeroX && AllWithin(e.C, 99)) break;
        bound2.Next();
    }
    return e;
}

// Routine 1: the matricial equation A·X + B = C (or X·A, or - B); X is drawn first and C
// is computed, so the answer is whole.
void MatrixEquation(GeneratorWorkspace& ws) {
    const MatrixEquationData e = BuildMatrixEquation(ws);
    ws.Statement = std::string("Solve the matricial equation  ") + (e.xFirst ? "&+IX\u00B7A" : "&+IA\u00B7X") +
                   (e.minus ? " - " : " + ") + "B" + " = C.&-I&LF " + "     Where   &+IA&-I = " + MatrixMarkup(e.A) +
                   ",  " + "  &+IB&-I = " + MatrixMarkup(e.B) + ",  " + "  &+IC&-I = " + MatrixMarkup(e.C) + "&LF";
    ws.Solution = "&SP=10:&+IX&-I = " + MatrixMarkup(e.X) + "&LF";
}

MatrixSystemData BuildMatrixSystem(GeneratorWorkspace& ws, int size) {
    MatrixSystemData s;
    RetryBound bound;
    while (true) {
        s.a = RandomInRange(ws, -4, 4, 1, 0);
        s.b = RandomInRange(ws, -4, 4, 1, 0);
        s.c = RandomInRange(ws, -4, 4, 1, 0);
        s.d = RandomInRange(ws, -4, 4, 1, 0);
        const int zeros = (s.a == 0) + (s.b == 0) + (s.c == 0) + (s.d == 0);
        if (s.a * s.d - s.b * s.c != 0 && zeros <= 1) break;
        bound.Next();
    }
    RetryBound bound2;
    while (true) {
        s.X = DrawMatrix(ws, size, size);
        s.Y = DrawMatrix(ws, size, size);
        s.A = Sum(Scaled(s.a, s.X), Scaled(s.b, s.Y));
        s.B = Sum(Scaled(s.c, s.X), Scaled(s.d, s.Y));
        if (AllWithin(s.A, 60) && AllWithin(s.B, 60) && s.X != s.Y) break;
        bound2.Next();
    }
    return s;
}

// Routine 2: a·X + b·Y = A, c·X + d·Y = B with scalar coefficients; X and Y are drawn
// first. The two sizes, 2×2 and 3×3, alternate with the seed.
void SystemOfMatrixEquations(GeneratorWorkspace& ws) {
    const MatrixSystemData s = BuildMatrixSystem(ws, ws.Seed % 2 == 0 ? 2 : 3);
    auto equation = [](double p, double q, const std::string& right) {
        const std::string first = ScalarTerm(p, "X", true);
        return first + ScalarTerm(q, "Y", first.empty()) + " = &+I" + right + "&-I";
    };
    ws.Statement = "Solve this system of matricial equations  #NES(X}#RWS(R#RW1(" + equation(s.a, s.b, "A") +
                   "#RW1)#RW2(" + equation(s.c, s.d, "B") + "#RW2)#RWS)#NES)&LF" + "      Where  &+IA&-I = " +
                   MatrixMarkup(s.A) + ",   &+IB&-I = " + MatrixMarkup(s.B) + "&LF";
    ws.Solution = "&SP=10:&+IX&-I = " + MatrixMarkup(s.X) + ",    &+IY&-I = " + MatrixMarkup(s.Y) + "&LF";
}

Matrix WithLetter(const ParameterMatrixData& p, double value) {
    Matrix m = p.m;
    for (const auto& [r, c] : p.letterCells) m[r][c] = value;
    return m;
}

ParameterMatrixData BuildParameterMatrix(GeneratorWorkspace& ws) {
    ParameterMatrixData p;
    const std::string letters = "kkpphknpq";
    const int at = static_cast<int>(RandomInRange(ws, 1, 9, 1, 1));
    p.letter = "&+I" + letters.substr(std::clamp(at, 1, 9) - 1, 1) + "&-I";
    // The letter's two cells lie in different rows and columns, so that the determinant
    // can hold its square.
    const int layout = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
    if (layout == 1) p.letterCells = {{0, 0}, {1, 1}};
    else if (layout == 2) p.letterCells = {{0, 0}, {2, 2}};
    else p.letterCells = {{1, 1}, {2, 2}};
    RetryBound bound;
    while (true) {
        p.m = ZeroMatrix(3, 3);
        for (auto& row : p.m)
            for (auto& v : row) {
                v = RandomInRange(ws, -9, 9, 1, 0);
                if (Coin(ws, 0.8f)) v = RandomInRange(ws, 0, 9, 1, 0);
            }
        for (const auto& [r, c] : p.letterCells) p.m[r][c] = 0;
        // det(k) = a·k² + b·k + c, read from three values.
        const double c = Determinant(WithLetter(p, 0));
        const double plus = Determinant(WithLetter(p, 1));
        const double minus = Determinant(WithLetter(p, -1));
        const double a = (plus + minus) / 2 - c;
        const double b = (plus - minus) / 2;
        const double disc = b * b - 4 * a * c;
        bool ok = a != 0 && disc > 0;
        if (ok) {
            const double root = std::sqrt(disc);
            ok = root == std::floor(root);
            if (ok) {
                p.root1 = (-b - root) / (2 * a);
                p.root2 = (-b + root) / (2 * a);
                if (p.root1 > p.root2) std::swap(p.root1, p.root2);
                ok = IsWhole(p.root1) && IsWhole(p.root2) && std::fabs(p.root1) <= 5 && std::fabs(p.root2) <= 5;
            }
        }
        // The inverse is asked at a value of -5..5 whose determinant is small, so that
        // its fractions stay short: there must be one.
        bool smallDeterminant = false;
        for (double v = -5; ok && v <= 5; ++v) {
            const double det = Determinant(WithLetter(p, v));
            smallDeterminant = smallDeterminant || (det != 0 && std::fabs(det) <= 20);
        }
        if (ok && smallDeterminant) break;
        bound.Next();
    }
    RetryBound bound2;
    while (true) {
        p.stated = RandomInRange(ws, -5, 5, 1, 0);
        const double det = Determinant(WithLetter(p, p.stated));
        if (det != 0 && std::fabs(det) <= 20) break;
        bound2.Next();
    }
    p.root1 = p.root1 == 0 ? 0 : p.root1;
    p.root2 = p.root2 == 0 ? 0 : p.root2;
    return p;
}

// Routine 3: a 3×3 matrix with a letter in two cells whose determinant vanishes at two
// whole values: the null determinant, the invertible matrix, or both parts with the
// inverse at a stated value, by the seed.
void ParameterDeterminantAndInverse(GeneratorWorkspace& ws) {
    const ParameterMatrixData p = BuildParameterMatrix(ws);
    TextMatrix t;
    for (int r = 0; r < 3; ++r) {
        t.emplace_back();
        for (int c = 0; c < 3; ++c) t.back().push_back(PlainNumberText(p.m[r][c]));
    }
    for (const auto& [r, c] : p.letterCells) t[r][c] = p.letter;
    const std::string matrix = MatrixMarkup(t);
    const std::string& k = p.letter;
    const std::string r1 = PlainNumberText(p.root1);
    const std::string r2 = PlainNumberText(p.root2);
    const std::string roots = k + "_1 = " + r1 + "   and   " + k + "_2 = " + r2;
    switch (ws.Seed % 3) {
    case 0: {
        // The determinant's bars instead of the matrix's brackets.
        std::string determinant = matrix;
        determinant.replace(0, 7, "#NES(||");
        ws.Statement = "Find the values of the parameter  " + k + "  for which the following determinant is null:&LF" +
                       "&SP=10:" + determinant + "&LF";
        ws.Solution = "&SP=10:" + roots + "&LF";
        break;
    }
    case 1:
        ws.Statement = "Calculate the values of the parameter  " + k + "  for which the &+IA&-I matrix is invertible:&LF"
                       "     &+IA&-I = " + matrix + "&LF";
        ws.Solution = "&SP=10:" + k + " &!= " + r1 + "   and   " + k + " &!= " + r2 + "&LF";
        break;
    default: {
        const Matrix at = WithLetter(p, p.stated);
        const double det = Determinant(at);
        const Matrix adj = Adjugate(at);
        TextMatrix inverse;
        for (const auto& row : adj) {
            inverse.emplace_back();
            for (double v : row) inverse.back().push_back(FractionToMarkup(ws, v, det));
        }
        ws.Statement = "For  &+IA&-I  matrix, calculate: &+Ba)&-B& The values of the parameter  " + k +
                       "  for which this matrix isn't invertible. &+Bb)&-B& The inverse matrix when the parameter " + k +
                       " = " + PlainNumberText(p.stated) + ".&LF     &+IA&-I = " + matrix + "&LF";
        ws.Solution = "&SP=10:&+Ba)&-B& " + roots + "&LF&SP=10:&+Bb)&-B& &+IA&-I^ ^-^1 = " + MatrixMarkup(inverse) + "&LF";
        break;
    }
    }
}
