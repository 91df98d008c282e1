#include "generators/module_router.h"
#include "generators/ga3/ga3_routines.h"

// Space analytical geometry.
GeneratorModule MakeKvolMathGa3() {
    return {"KVOL_MATH_GA3",
            8,
            {
                {1, SpaceVectors},
                {2, PlaneCalculations},
                {3, LineCalculations},
                {4, AlignmentCoplanarityDistance},
                {5, PlaneAndLineWithoutParameter},
                {6, PlaneAndLineWithParameter},
                {7, TwoLinesWithoutParameter},
                {8, TwoLinesWithParameter},
            }};
}
