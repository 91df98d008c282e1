#include <gtest/gtest.h>

#include <set>

#include "../ga3/space_checks.h"
#include "generators/hub.h"
#include "generators/shared/three_equation_systems.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"
#include "support/generator_sweep.h"

namespace {
std::array<Row4, 3> Matrix(const ThreeEquationSystem& s, double letterValue) {
    std::array<Row4, 3> m{};
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) m[r][c] = s.rows[r].a[c];
        if (s.rows[r].letterColumn >= 0) m[r][s.rows[r].letterColumn] = letterValue;
        m[r][3] = s.rows[r].d;
    }
    return m;
}

bool Solves(const std::array<Row4, 3>& m, const Vec3& p) {
    for (const auto& r : m) {
        if (r[0] * p.x + r[1] * p.y + r[2] * p.z != r[3]) return false;
    }
    return true;
}
} // namespace

TEST(ThreeEquationSystems, WithoutParameterEveryCaseHoldsItsRanks) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        const SystemCase kind = static_cast<SystemCase>(seed % 3);
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const ThreeEquationSystem s = BuildSystemWithoutParameter(ws, kind);
        const auto m = Matrix(s, 0);
        for (const auto& row : s.rows) ASSERT_FALSE(IsNull(row.a)) << "zero row, seed " << seed;
        // The two rows that make the line of a plane-and-line problem are never parallel.
        ASSERT_FALSE(AreParallel(s.rows[0].a, s.rows[1].a)) << seed;
        switch (kind) {
        case SystemCase::Determinate:
            EXPECT_EQ(Rank(m, false), 3) << seed;
            EXPECT_TRUE(Solves(m, s.solution)) << seed;
            break;
        case SystemCase::Indeterminate:
            EXPECT_EQ(Rank(m, false), 2) << seed;
            EXPECT_EQ(Rank(m, true), 2) << seed;
            for (double t : {-2.0, 0.0, 1.0, 3.0})
                EXPECT_TRUE(Solves(m, s.solutionLine.point + t * s.solutionLine.direction)) << seed;
            EXPECT_EQ(s.solutionLine.direction.z, 1) << seed;
            break;
        case SystemCase::Incompatible:
            EXPECT_EQ(Rank(m, false), 2) << seed;
            EXPECT_EQ(Rank(m, true), 3) << seed;
            break;
        }
    }
}

TEST(ThreeEquationSystems, WithParameterRankDropsOnlyAtTheCriticalValue) {
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        const SystemCase kind = seed % 2 == 0 ? SystemCase::Incompatible : SystemCase::Indeterminate;
        GeneratorWorkspace ws;
        SeedWorkspace(ws, seed);
        const ThreeEquationSystem s = BuildSystemWithParameter(ws, kind, "akmnpq");
        ASSERT_EQ(s.rows[2].letterColumn >= 0, true);
        EXPECT_NE(s.criticalValue, s.statedValue);
        const auto critical = Matrix(s, s.criticalValue);
        EXPECT_EQ(Rank(critical, false), 2) << seed;
        if (kind == SystemCase::Incompatible) {
            EXPECT_EQ(Rank(critical, true), 3) << seed;
        } else {
            EXPECT_EQ(Rank(critical, true), 2) << seed;
            for (double t : {-1.0, 2.0})
                EXPECT_TRUE(Solves(critical, s.solutionLine.point + t * s.solutionLine.direction)) << seed;
            // Off the critical value the one solution does not depend on the letter.
            for (double k = -10; k <= 10; ++k) {
                if (k != s.criticalValue) {
                    EXPECT_TRUE(Solves(Matrix(s, k), s.solution)) << seed;
                }
            }
        }
        // The determinant is linear in the letter and vanishes only at the critical value.
        for (double k = -10; k <= 10; ++k) {
            EXPECT_EQ(Rank(Matrix(s, k), false) == 3, k != s.criticalValue) << seed << " k=" << k;
        }
        EXPECT_TRUE(Solves(Matrix(s, s.statedValue), s.solution)) << seed;
    }
}

TEST(ThreeEquationSystems, AffineMarkup) {
    EXPECT_EQ(AffineMarkup(3, -2, "&lambda"), "3 - 2&lambda");
    EXPECT_EQ(AffineMarkup(0, -1, "&lambda"), "-&lambda");
    EXPECT_EQ(AffineMarkup(0, 0, "&lambda"), "0");
    EXPECT_EQ(AffineMarkup(-4, 1, "&lambda"), "-4 + &lambda");
    EXPECT_EQ(AffineMarkup(5, 0, "&lambda"), "5");
}

TEST(ThreeEquationSystems, SweepsAndEveryCaseOccurs) {
    std::set<std::string> systemCases, lineCases;
    SweepRoutine("KVOL_MATH_ALG", 4, 2000, [&](const GeneratedProblem& p) {
        systemCases.insert(p.solution.substr(0, 40));
        // The text shows the rows and the answer of the system that was built.
        GeneratorWorkspace ws;
        SeedWorkspace(ws, p.fields.Seed);
        const ThreeEquationSystem s = BuildSystemWithoutParameter(ws, static_cast<SystemCase>(p.fields.Seed % 3));
        for (const auto& row : s.rows)
            EXPECT_TRUE(Contains(p.statement, LinearFormToMarkup(row.a.x, row.a.y, row.a.z, row.d, false))) << p.code;
        if (s.kind == SystemCase::Determinate) {
            EXPECT_TRUE(Contains(p.solution, "&+I x = " + PlainNumberText(s.solution.x) + ",   y = " +
                                                 PlainNumberText(s.solution.y) + ",   z = &-I" +
                                                 PlainNumberText(s.solution.z)))
                << p.code;
        }
        if (s.kind == SystemCase::Indeterminate) {
            const Line3& l = s.solutionLine;
            EXPECT_TRUE(Contains(p.solution, "x = " + AffineMarkup(l.point.x, l.direction.x, "&lambda") + ",")) << p.code;
        }
        EXPECT_TRUE(Contains(p.statement, "#NES(X}#RWS(R#RW1(")) << p.code;
        // A row with every coefficient 0 would read "0 = d".
        EXPECT_FALSE(Contains(p.statement, "(0& =& ")) << p.code;
    });
    SweepRoutine("KVOL_MATH_GA3", 5, 2000, [&](const GeneratedProblem& p) {
        lineCases.insert(p.solution.substr(0, 30));
        EXPECT_TRUE(Contains(p.statement, ",           &+IL&-I& :  #NES({X#RWS(L#RW1(")) << p.code;
    });
    EXPECT_EQ(systemCases.size(), 3u);
    EXPECT_EQ(lineCases.size(), 3u);
}

TEST(ThreeEquationSystems, ParameterLetterIsTheSameInStatementAndSolution) {
    for (const char* module : {"KVOL_MATH_ALG", "KVOL_MATH_GA3"}) {
        const int routine = std::string(module) == "KVOL_MATH_ALG" ? 5 : 6;
        const std::string letters = routine == 5 ? "akmnpq" : "ahkmnpqrw";
        SweepRoutine(module, routine, 2000, [&](const GeneratedProblem& p) {
            const auto at = p.statement.find("parameter  &+I");
            ASSERT_NE(at, std::string::npos) << p.code;
            const char letter = p.statement[at + 14];
            EXPECT_NE(letters.find(letter), std::string::npos) << p.code;
            const std::string tag = std::string("&+I") + letter + "&-I";
            EXPECT_TRUE(Contains(p.solution, tag + " = ")) << p.code;
            EXPECT_TRUE(Contains(p.solution, tag + " &!= ")) << p.code;
            // The critical and the stated value of the system that was built.
            GeneratorWorkspace ws;
            SeedWorkspace(ws, p.fields.Seed);
            const SystemCase kind = p.fields.Seed % 2 == 0 ? SystemCase::Incompatible : SystemCase::Indeterminate;
            const ThreeEquationSystem s = BuildSystemWithParameter(ws, kind, letters);
            EXPECT_EQ(s.letter, tag) << p.code;
            const std::string excluded = tag + " &!= " + PlainNumberText(s.criticalValue);
            EXPECT_TRUE(Contains(p.solution, excluded + ".") || Contains(p.solution, excluded + ":")) << p.code;
            if (routine == 6 || kind == SystemCase::Incompatible) {
                EXPECT_TRUE(Contains(p.statement, "parameter is  " + PlainNumberText(s.statedValue) + ".&LF")) << p.code;
            }
            const std::string point = PlainNumberText(s.solution.x) + ",  " + PlainNumberText(s.solution.y) + ",  " +
                                      PlainNumberText(s.solution.z) + ")&LF";
            if (routine == 6) {
                EXPECT_TRUE(Contains(p.solution, "&+IP&-I (" + point)) << p.code;
            }
            for (char other : letters) {
                if (other != letter) {
                    EXPECT_FALSE(Contains(p.solution, std::string("&+I") + other + "&-I")) << p.code;
                }
            }
        });
    }
}
