#include <string>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "generators/module_router.h"

// The describe blocks of both modules, as the catalogue lists them.
namespace {
struct Entry {
    int number;
    const char* topicId;
    const char* topicName;
    const char* subtopicId;
    const char* kind;
    const char* maxAmount;
    const char* title;
    const char* description;
};

void ExpectEntries(const GeneratorModule& module, const std::vector<Entry>& entries) {
    ASSERT_EQ(module.routines.size(), entries.size());
    for (const Entry& e : entries) {
        GeneratorWorkspace ws;
        ws.DescribeMode = -1;
        const GeneratorRoutine routine = module.Find(e.number);
        ASSERT_NE(routine, nullptr) << e.number;
        routine(ws);
        EXPECT_EQ(ws.Subject, "Mathematics");
        EXPECT_EQ(ws.TopicId, e.topicId) << e.number;
        EXPECT_EQ(ws.TopicName, e.topicName) << e.number;
        EXPECT_EQ(ws.SubtopicId, e.subtopicId) << e.number;
        EXPECT_EQ(ws.Kind, e.kind) << e.number;
        EXPECT_EQ(ws.MaxAmount, e.maxAmount) << e.number;
        EXPECT_EQ(ws.Title, e.title) << e.number;
        EXPECT_EQ(ws.Description, e.description) << e.number;
        // Describing draws nothing.
        EXPECT_TRUE(ws.Statement.empty() && ws.Solution.empty());
    }
}
} // namespace

TEST(EcuCatalogue, DescribeBlocks) {
    ExpectEntries(MakeKvolMathEcu(),
                  {{1, "070", "Equations", "005", "2", "026", "Linear equations with integer coefficients",
                    "Exercises about linear equations with integer coefficients (3 types)"},
                   {6, "070", "Equations", "007", "2", "024", "Linear equations with rational coefficients",
                    "Exercises about linear equations with rational coefficients and parentheses (3 types)"},
                   {11, "070", "Equations", "014", "2", "026", "Incomplete quadratic equations",
                    "Exercises about incomplete quadratic equations ax\u00B2+bx+c=0 where b=0 or c=0. (4 types)"},
                   {2, "070", "Equations", "015", "2", "026", "Complete quadratic equations",
                    "Exercises about complete quadratic equations ax\u00B2+bx+c=0. (3 types)"},
                   {12, "070", "Equations", "017", "2", "026", "Biquadratic equations",
                    "Exercises about biquadratic equations. (3 types)"},
                   {3, "070", "Equations", "020", "2", "026", "Equations involving roots",
                    "Exercises about equations involving roots. (1 type)"},
                   {10, "070", "Equations", "025", "2", "026", "Exponential equations",
                    "Exercises about exponential equations. (4 types)"},
                   {13, "070", "Equations", "030", "2", "026", "Logarithmic equations",
                    "Exercises about logarithmic equations. (3 types)"},
                   {14, "070", "Equations", "035", "2", "026", "Trigonometric equations",
                    "Trigonometric equations. (138 types)"},
                   {8, "080", "Inequations", "007", "2", "026", "Linear inequations with integer coefficients",
                    "Exercises about linear inequations with integer coefficients (3 types)"},
                   {7, "080", "Inequations", "009", "2", "026", "Linear inequations with rational coefficients",
                    "Exercises about linear inequations with rational coefficients and parentheses (3 types)"},
                   {4, "090", "Systems of equations", "001", "2", "026", "Systems of 2\u00D72 linear equations",
                    "Exercises about systems of 2\u00D72 linear equations. (1 type)"},
                   {5, "090", "Systems of equations", "010", "2", "026", "Systems of 3\u00D73 linear equations",
                    "Exercises about systems of 3\u00D73 linear equations. (1 type)"},
                   {9, "090", "Systems of equations", "021", "2", "021",
                    "Systems of 2\u00D72 equations (linear and quadratic)",
                    "Exercises about nonlinear systems of 2\u00D72 equations (linear and quadratic) with integer "
                    "coefficients. (1 type)"}});
}

TEST(TriCatalogue, DescribeBlocks) {
    ExpectEntries(MakeKvolMathTri(),
                  {{1, "110", "Trigonometry", "010", "3", "026", "Trigonometric values from another one",
                    "Calculate trigonometric values when we know another one. (3 types)"},
                   {2, "110", "Trigonometry", "020", "3", "027", "Trigonometric values from two other known",
                    "Calculation of trigonometric values from two other known (5 types)"},
                   {3, "110", "Trigonometry", "030", "2", "024", "Trigonometric identities",
                    "Exercises for making proofs of trigonometric identities (34 types)."},
                   {4, "110", "Trigonometry", "040", "2", "026", "Trigonometric equations",
                    "Exercises to solve trigonometric equations. (138 types)"},
                   {5, "110", "Trigonometry", "050", "3", "027", "Solving triangles",
                    "Solving triangles: Finding missing sides and/or angles given some information about a "
                    "triangle. (4 types)"},
                   {6, "110", "Trigonometry", "060", "3", "027", "Solving plane shapes.",
                    "Solving plane shapes. Triangle, rhombus, parallelogram and trapezoid. (11 types)"}});
}

TEST(TriCatalogue, UnknownRoutineGivesTheModuleErrorText) {
    GeneratorHub hub;
    std::string statement, solution;
    hub.RunGenerator("KVOL_MATH_TRI", "0070001234050101", statement, solution);
    EXPECT_EQ(statement, "<ERROR IN MODULE KVOL_MATH_TRI:. THE ROUTINE ID = 007 IS NOT FOUND>&LF");
    EXPECT_EQ(solution, "&LF");
    hub.RunGenerator("kvol_math_ecu", "0150001234050101", statement, solution);
    EXPECT_EQ(statement, "<ERROR IN MODULE KVOL_MATH_ECU:. THE ROUTINE ID = 015 IS NOT FOUND>&LF");
}
