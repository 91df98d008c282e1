#include "generators/module_router.h"
#include "generators/gde/gde_routines.h"

// Basic geometry.
GeneratorModule MakeKvolMathGde() {
    return {"KVOL_MATH_GDE",
            6,
            {
            },
            NotFoundWording::Spanish};
}
