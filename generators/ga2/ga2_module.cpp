#include "generators/module_router.h"
#include "generators/ga2/ga2_routines.h"

// Plane analytical geometry.
GeneratorModule MakeKvolMathGa2() {
    return {"KVOL_MATH_GA2",
            8,
            {
                {1, VectorsOne},
                {2, VectorsTwo},
                {3, LinesOne},
                {4, LinesTwo},
                {5, Circle},
                {6, Ellipse},
                {7, Hyperbola},
                {8, Parabola},
            }};
}
