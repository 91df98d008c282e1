#include "generators/module_router.h"
#include "generators/ecu/ecu_routines.h"

// Equations, inequations and systems.
GeneratorModule MakeKvolMathEcu() {
    return {"KVOL_MATH_ECU",
            14,
            {
                {14, TrigonometricEquations},
            }};
}
