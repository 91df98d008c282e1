#include "generators/module_router.h"
#include "generators/int/int_routines.h"

// Integrals and areas.
GeneratorModule MakeKvolMathInt() {
    return {"KVOL_MATH_INT",
            6,
            {
                {1, IntegralsOfRationalFunctionsI},
                {2, IntegralsOfRationalFunctionsII},
                {3, AreaInvolvingOneFunction},
                {4, AreaInvolvingTwoFunctions},
                {5, IntegrationByParts},
                {6, IntegrationBySubstitution},
            }};
}
