#include "generators/module_router.h"
#include "generators/ga3/ga3_routines.h"

// Space analytical geometry.
GeneratorModule MakeKvolMathGa3() {
    return {"KVOL_MATH_GA3",
            8,
            {
                {1, SpaceVectors,
                 {"130", "Space analytical geometry", "010", "3", "", "Vectors",
                  "Vectors calculations: Scalar product, vector product, magnitud, angle, linear combination, "
                  "parameters calculation... (12 types)"}},
                {2, PlaneCalculations,
                 {"130", "Space analytical geometry", "020", "3", "", "Plane calculations",
                  "&DPCalculate equations of planes in the space. (13 types)"}},
                {3, LineCalculations,
                 {"130", "Space analytical geometry", "030", "3", "", "Line calculations",
                  "Calculate equations of lines in the space. (8 types)"}},
                {4, AlignmentCoplanarityDistance,
                 {"130", "Space analytical geometry", "040", "3", "", "Alignment, coplanarity and distance of points",
                  "Discuss coplanarity and alignment of points according to a parameter. "
                  "Distance from a point to a plane study according to a parameter. (4 types)"}},
                {5, PlaneAndLineWithoutParameter,
                 {"130", "Space analytical geometry", "050", "3", "",
                  "Relative position of planes and lines (without parameter)",
                  "Discuss relative position of planes and lines (without parameter): Intersect, parallel, lies. "
                  "(3 types)"}},
                {6, PlaneAndLineWithParameter,
                 {"130", "Space analytical geometry", "060", "3", "",
                  "Relative position of planes and lines (with parameter)",
                  "Discuss relative position of planes and lines according to the values of a parameter. (2 types)"}},
                {7, TwoLinesWithoutParameter,
                 {"130", "Space analytical geometry", "070", "3", "",
                  "Relative position of two lines (without parameters)",
                  "Discuss relative position of two lines in the space (without parameters). (4 types)"}},
                {8, TwoLinesWithParameter,
                 {"130", "Space analytical geometry", "080", "3", "",
                  "Relative position of two lines (with parameters)",
                  "Discuss relative position of two lines in the space according to a parameter. (3 types)"}},
            }};
}
