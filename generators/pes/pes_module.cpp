#include "generators/module_router.h"
#include "generators/pes/pes_routines.h"

// Statistics and probability.
GeneratorModule MakeKvolMathPes() {
    return {"KVOL_MATH_PES",
            4,
            {
                {1, UngroupedDataStatistics},
                {2, GroupedDataStatistics},
                {3, LinearRegression},
                {4, NormalDistribution},
            }};
}
