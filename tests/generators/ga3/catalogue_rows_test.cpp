#include <gtest/gtest.h>

#include "generators/alg/alg_routines.h"
#include "generators/ga3/ga3_routines.h"
#include "generators/module_router.h"

namespace {
struct Row {
    GeneratorRoutine routine;
    const char* topicId;
    const char* topicName;
    const char* subtopic;
    const char* maxAmount;  // "" when the routine sets none
    const char* title;
    const char* description;
};

const Row kRows[] = {
    {MatrixEquation, "100", "Algebra", "008", "026", "Matricial equations: type AX+B=C",
     "Solving matricial equations type AX+B=C, where A, X, B and C are matrices. (4 types of size)"},
    {SystemOfMatrixEquations, "100", "Algebra", "010", "026", "Systems of 2\u00D72 matricial linear equations",
     "Problems about systems of 2\u00D72 matricial linear equations. (2 types of size)"},
    {ParameterDeterminantAndInverse, "100", "Algebra", "017", "", "Determinant and inverse matrix with a parameter",
     "Calculation of parameter for which a determinant is null or a matrix has/hasn't inverse. (3 types)"},
    {DiscussSystemWithoutParameter, "100", "Algebra", "028", "",
     "Discuss and solve of system of 3\u00D73 linear equations (without parameter)",
     "Discuss and solve of a system of 3\u00D73 linear equations (without parameter): Compatible / incompatible, "
     "determinate / indeterminate. (3 types)"},
    {DiscussSystemWithParameter, "100", "Algebra", "029", "",
     "Discuss and solve system of 3\u00D73 linear equations (with parameter)",
     "Discuss and solve systems of 3\u00D73 linear equations according to the values of a parameter. (2 types)"},
    {SpaceVectors, "130", "Space analytical geometry", "010", "", "Vectors",
     "Vectors calculations: Scalar product, vector product, magnitud, angle, linear combination, parameters "
     "calculation... (12 types)"},
    {PlaneCalculations, "130", "Space analytical geometry", "020", "", "Plane calculations",
     "&DPCalculate equations of planes in the space. (13 types)"},
    {LineCalculations, "130", "Space analytical geometry", "030", "", "Line calculations",
     "Calculate equations of lines in the space. (8 types)"},
    {AlignmentCoplanarityDistance, "130", "Space analytical geometry", "040", "",
     "Alignment, coplanarity and distance of points",
     "Discuss coplanarity and alignment of points according to a parameter. Distance from a point to a plane "
     "study according to a parameter. (4 types)"},
    {PlaneAndLineWithoutParameter, "130", "Space analytical geometry", "050", "",
     "Relative position of planes and lines (without parameter)",
     "Discuss relative position of planes and lines (without parameter): Intersect, parallel, lies. (3 types)"},
    {PlaneAndLineWithParameter, "130", "Space analytical geometry", "060", "",
     "Relative position of planes and lines (with parameter)",
     "Discuss relative position of planes and lines according to the values of a parameter. (2 types)"},
    {TwoLinesWithoutParameter, "130", "Space analytical geometry", "070", "",
     "Relative position of two lines (without parameters)",
     "Discuss relative position of two lines in the space (without parameters). (4 types)"},
    {TwoLinesWithParameter, "130", "Space analytical geometry", "080", "", "Relative position of two lines (with parameters)",
     "Discuss relative position of two lines in the space according to a parameter. (3 types)"},
};
} // namespace

TEST(MatricesAndSpaceCatalogue, DescribeBlocksAreTheCatalogueRows) {
    for (const Row& row : kRows) {
        GeneratorWorkspace ws;
        ws.DescribeMode = -1;
        ws.MaxAmount = "inherited";
        const auto stateBefore = ws.stream.State();
        row.routine(ws);
        EXPECT_EQ(ws.stream.State(), stateBefore) << row.title;  // describing draws nothing
        EXPECT_EQ(ws.Subject, "Mathematics");
        EXPECT_EQ(ws.TopicId, row.topicId);
        EXPECT_EQ(ws.TopicName, row.topicName);
        EXPECT_EQ(ws.SubtopicId, row.subtopic);
        EXPECT_EQ(ws.Kind, "3");
        EXPECT_EQ(ws.MaxAmount, row.maxAmount[0] ? row.maxAmount : "inherited") << row.title;
        EXPECT_EQ(ws.Title, row.title);
        EXPECT_EQ(ws.Description, row.description);
        EXPECT_TRUE(ws.Statement.empty());
    }
}
