#include <gtest/gtest.h>

#include <set>

#include "../ga3/space_checks.h"
#include "generators/alg/matrix_problems.h"
#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
bool IsIdentityTimes(const Matrix& m, double k) {
    for (std::size_t i = 0; i < m.size(); ++i)
        for (std::size_t j = 0; j < m.size(); ++j)
            if (m[i][j] != (i == j ? k : 0)) return false;
    return true;
}
} // namespace

TEST(MatrixTools, AdjugateTimesMatrixIsTheDeterminant) {
    GeneratorWorkspace ws;
    SeedWorkspace(ws, 77);
    for (int i = 0; i < 500; ++i) {
        const int n = 2 + i % 2;
        const Matrix m = DrawMatrix(ws, n, n);
        EXPECT_TRUE(IsIdentityTimes(Multiply(m, Adjugate(m)), Determinant(m)));
        EXPECT_TRUE(IsIdentityTimes(Multiply(Adjugate(m), m), Determinant(m)));
    }
    EXPECT_EQ(Determinant({{1, 2, 3}, {0, 1, 4}, {5, 6, 0}}), 1);
    EXPECT_EQ(MatrixMarkup(Matrix{{1, -2}, {0, 3}}),
              "#NES(()#RWS(C#RW1(1&|-2 #RW1)#RW2(0&|3 #RW2)#RWS)#NES)");
}

TEST(MatrixEquation, MultiplyingBackGivesC) {
    std::set<std::pair<int, int>> shapes;
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const MatrixEquationData e = BuildMatrixEquation(ws);
        const double det = Determinant(e.A);
        ASSERT_NE(det, 0) << seed;
        // Solve from the statement's data alone: X = A⁻¹(C ∓ B) or (C ∓ B)A⁻¹, times det.
        const Matrix right = Sum(e.C, Scaled(e.minus ? 1 : -1, e.B));
        const Matrix detX = e.xFirst ? Multiply(right, Adjugate(e.A)) : Multiply(Adjugate(e.A), right);
        EXPECT_EQ(detX, Scaled(det, e.X)) << seed;
        shapes.insert({static_cast<int>(e.A.size()), static_cast<int>(e.xFirst ? e.X.size() : e.X[0].size())});
    }
    // The four sizes: A of 2×2 or 3×3, X square or a single column/row.
    EXPECT_EQ(shapes, (std::set<std::pair<int, int>>{{2, 1}, {2, 2}, {3, 1}, {3, 3}}));
}

TEST(MatrixEquation, TextShowsTheMatrices) {
    SweepRoutine("KVOL_MATH_ALG", 1, 2000, [](const GeneratedProblem& p) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, p.fields.Seed);
        const MatrixEquationData e = BuildMatrixEquation(ws);
        EXPECT_TRUE(Contains(p.statement, "&+IA&-I = " + MatrixMarkup(e.A))) << p.code;
        EXPECT_TRUE(Contains(p.statement, "&+IC&-I = " + MatrixMarkup(e.C))) << p.code;
        EXPECT_EQ(p.solution, "&SP=10:&+IX&-I = " + MatrixMarkup(e.X) + "&LF") << p.code;
    });
}

TEST(MatrixSystem, SubstitutingTheAnswerGivesAAndB) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const MatrixSystemData s = BuildMatrixSystem(ws, 2 + seed % 2);
        ASSERT_NE(s.a * s.d - s.b * s.c, 0) << seed;
        EXPECT_EQ(Sum(Scaled(s.a, s.X), Scaled(s.b, s.Y)), s.A) << seed;
        EXPECT_EQ(Sum(Scaled(s.c, s.X), Scaled(s.d, s.Y)), s.B) << seed;
        // Elimination from the data alone: det·X = d·A - b·B.
        EXPECT_EQ(Sum(Scaled(s.d, s.A), Scaled(-s.b, s.B)), Scaled(s.a * s.d - s.b * s.c, s.X)) << seed;
    }
}

TEST(MatrixSystem, SweepAndText) {
    SweepRoutine("KVOL_MATH_ALG", 2, 2000, [](const GeneratedProblem& p) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, p.fields.Seed);
        const MatrixSystemData s = BuildMatrixSystem(ws, 2 + p.fields.Seed % 2);
        EXPECT_EQ(p.solution, "&SP=10:&+IX&-I = " + MatrixMarkup(s.X) + ",    &+IY&-I = " + MatrixMarkup(s.Y) + "&LF")
            << p.code;
        EXPECT_TRUE(Contains(p.statement, "&+IA&-I = " + MatrixMarkup(s.A))) << p.code;
    });
}

TEST(ParameterMatrix, DeterminantVanishesExactlyAtTheTwoRoots) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const ParameterMatrixData p = BuildParameterMatrix(ws);
        ASSERT_NE(p.root1, p.root2);
        for (double k = -12; k <= 12; ++k) {
            const bool root = k == p.root1 || k == p.root2;
            EXPECT_EQ(Determinant(WithLetter(p, k)) == 0, root) << seed << " k=" << k;
        }
        const Matrix at = WithLetter(p, p.stated);
        EXPECT_NE(Determinant(at), 0) << seed;
        EXPECT_TRUE(IsIdentityTimes(Multiply(at, Adjugate(at)), Determinant(at))) << seed;
    }
}

TEST(ParameterMatrix, SweepAndTypes) {
    std::set<std::string> openings;
    SweepRoutine("KVOL_MATH_ALG", 3, 2000, [&](const GeneratedProblem& p) {
        openings.insert(p.statement.substr(0, 12));
        GeneratorWorkspace ws;
        SeedWorkspace(ws, p.fields.Seed);
        const ParameterMatrixData d = BuildParameterMatrix(ws);
        const std::string r1 = std::to_string(static_cast<int>(d.root1));
        const std::string r2 = std::to_string(static_cast<int>(d.root2));
        if (p.fields.Seed % 3 == 1) {
            EXPECT_EQ(p.solution, "&SP=10:" + d.letter + " &!= " + r1 + "   and   " + d.letter + " &!= " + r2 + "&LF");
        } else {
            EXPECT_TRUE(Contains(p.solution, d.letter + "_1 = " + r1 + "   and   " + d.letter + "_2 = " + r2)) << p.code;
        }
    });
    EXPECT_EQ(openings.size(), 3u);
}
