#include "generators/module_router.h"
#include "generators/pes/pes_routines.h"

// Statistics and probability.
GeneratorModule MakeKvolMathPes() {
    return {"KVOL_MATH_PES",
            4,
            {
                {1, UngroupedDataStatistics,
                 {"180", "Statistic and probability", "010", "3", "", "Single variable statistic for ungrouped data",
                  "Calculation of mean, median, mode, standard deviation, "
                  "histogram and bar charts for one variable statistic with ungrouped data. (1 type, 3 sizes)"}},
                {2, GroupedDataStatistics,
                 {"180", "Statistic and probability", "012", "3", "", "Single variable statistic for grouped data",
                  "Calculation of mean, median, mode, standard deviation, quartiles, "
                  "percentiles and histogram chart for one variable statistic with grouped data. (2 types)"}},
                {3, LinearRegression,
                 {"180", "Statistic and probability", "020", "3", "",
                  "Two variable statistic: Linear regression analysis",
                  "Linear regression analysis using the Least Squares Method. (4 types)"}},
                {4, NormalDistribution,
                 {"180", "Statistic and probability", "050", "3", "", "Normal distribution",
                  "&DPProbability calculations using the Gauss' Normal distribution. (7 types)"}},
            }};
}
