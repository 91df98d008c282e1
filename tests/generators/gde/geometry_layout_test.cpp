#include <string>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
const std::string kModule = "KVOL_MATH_GDE";

int Count(const std::string& text, const std::string& what) {
    int n = 0;
    for (std::size_t pos = text.find(what); pos != std::string::npos; pos = text.find(what, pos + what.size())) ++n;
    return n;
}

// What every problem of the module holds: one figure in the line of its first question
// (none for the three prisms drawn without a picture), the letters a), b), ... of its
// questions in the statement and again in the one solution line.
void SweepWithLayout(int routine, int types) {
    SweepRoutine(kModule, routine, 2500, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % types;
        const bool pictureless = routine == 5 && (type == 1 || type == 9 || type == 11);
        EXPECT_EQ(Count(p.statement, "#IMG('"), pictureless ? 0 : 1) << p.code;
        EXPECT_EQ(Count(p.solution, "#IMG("), 0) << p.code;
        const int letters = Count(p.statement, ")&-B  ");
        const bool single = letters == 0;
        if (single) {
            EXPECT_EQ(Count(p.statement, "&SP=3:"), 1) << p.code;
            EXPECT_EQ(Count(p.solution, "&+Ba)&-B  "), routine == 4 ? 1 : 0) << p.code;
        } else {
            EXPECT_GE(letters, 2) << p.code;
            EXPECT_EQ(Count(p.solution, ")&-B  "), letters) << p.code;
            EXPECT_EQ(Count(p.statement, "&SP=3:"), 0) << p.code;
        }
        if (!pictureless) {
            const std::string mark = routine <= 2 ? (single ? "&SP=69:#IMG(" : "&SP=66:#IMG(") : "&SP=75:#IMG(";
            EXPECT_EQ(Count(p.statement, mark), 1) << p.code;
        }
        EXPECT_EQ(p.solution.rfind("&SP=10: ", 0), 0u) << p.code;
        EXPECT_EQ(p.solution.substr(p.solution.size() - 4), ".&LF") << p.code;
        EXPECT_EQ(p.statement.find("<ERROR"), std::string::npos) << p.code;
    });
}
} // namespace

TEST(BasicGeometrySweep, PythagoreanTheorem) { SweepWithLayout(1, 10); }
TEST(BasicGeometrySweep, Similarity) { SweepWithLayout(2, 9); }
TEST(BasicGeometrySweep, StraightShapes) { SweepWithLayout(3, 18); }
TEST(BasicGeometrySweep, CurvedShapes) { SweepWithLayout(4, 8); }
TEST(BasicGeometrySweep, PlaneSolids) { SweepWithLayout(5, 12); }
TEST(BasicGeometrySweep, CurvedSolids) { SweepWithLayout(6, 9); }

TEST(BasicGeometryEdges, RectangleDiagonalFromATripleIsAlwaysWhole) {
    // Rectangle rows of routines 1 and 3: the diagonal (given or asked) is a whole number.
    GeneratorHub hub;
    for (int seed = 0; seed < SweepSeedCount(3000); ++seed) {
        for (int routine : {1, 3}) {
            const int types = routine == 1 ? 10 : 18;
            const int type = seed % types;
            const bool rectangle = routine == 1 ? (type == 1 || type == 3 || type == 5 || type == 7)
                                                : (type == 10 || type == 15);
            if (!rectangle) continue;
            const GeneratedProblem p = GenerateProblem(hub, kModule, {routine, 0, seed, 0, 1, 1});
            // Every number of a rectangle problem is whole: no decimal mark anywhere.
            EXPECT_EQ(p.statement.find("&."), std::string::npos) << p.code << p.statement;
            EXPECT_EQ(p.solution.find("&."), std::string::npos) << p.code << p.solution;
        }
    }
}

TEST(BasicGeometryEdges, SingleQuestionHasNoLetterInStraightShapesButKeepsItInCurvedShapes) {
    GeneratorHub hub;
    // Routine 3, the triangle row (remainder 17): no letter in statement nor solution.
    const GeneratedProblem straight = GenerateProblem(hub, kModule, {3, 5, 17, 0, 1, 1});
    EXPECT_NE(straight.statement.find("&SP=3:Area.&SP=75:#IMG('m_TRI_ESCA.GIF'"), std::string::npos)
        << straight.statement;
    EXPECT_EQ(straight.statement.find("a)"), std::string::npos);
    EXPECT_EQ(straight.solution.find("a)"), std::string::npos);
    EXPECT_EQ(straight.solution.rfind("&SP=10: ", 0), 0u);
    EXPECT_NE(straight.solution.find(" cm^2.&LF"), std::string::npos);
    // Routine 4, the sector of given area (remainder 5): no letter in the statement, but
    // "a)" before the only answer.
    const GeneratedProblem curved = GenerateProblem(hub, kModule, {4, 5, 13, 0, 1, 1});
    EXPECT_NE(curved.statement.find("&SP=3:Radius &+Ir&-I.&SP=75:#IMG('m_SECTOR.GIF'"), std::string::npos)
        << curved.statement;
    EXPECT_EQ(curved.statement.find("a)"), std::string::npos);
    EXPECT_EQ(curved.solution.rfind("&SP=10: &+Ba)&-B  ", 0), 0u) << curved.solution;
}

TEST(BasicGeometryEdges, UnknownRoutineAnswersInTheOtherLanguage) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, kModule, {7, 0, 1, 0, 1, 1});
    EXPECT_EQ(p.statement.rfind("<ERROR EN MODULO KVOL_MATH_GDE", 0), 0u) << p.statement;
}

TEST(BasicGeometryEdges, SameCodeSameText) {
    GeneratorHub hub;
    for (int routine = 1; routine <= 6; ++routine) {
        const GeneratedProblem first = GenerateProblem(hub, kModule, {routine, 12, 345, 3, 2, 1});
        GenerateProblem(hub, kModule, {routine, 99, 8000, 1, 1, 1});
        const GeneratedProblem again = GenerateProblem(hub, kModule, {routine, 12, 345, 3, 2, 1});
        EXPECT_EQ(first.statement, again.statement);
        EXPECT_EQ(first.solution, again.solution);
    }
}
