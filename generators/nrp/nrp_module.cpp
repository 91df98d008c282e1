#include "generators/module_router.h"
#include "generators/nrp/nrp_routines.h"

// Numbers, powers and roots, polynomials, angles and complex numbers.
GeneratorModule MakeKvolMathNrp() {
    return {"KVOL_MATH_NRP",
            39,
            {
                {12, AdditionAndSubtractionOfNaturalNumbers},
            }};
}
