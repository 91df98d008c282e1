#include "generators/module_router.h"
#include "generators/lfd/lfd_routines.h"

// Limits, functions and derivatives.
GeneratorModule MakeKvolMathLfd() {
    return {"KVOL_MATH_LFD",
            79,
            {
                {1, DerivativeOfFunctionsI},
                {2, DerivativeOfFunctionsII},
                {25, LimitsOfPowersInvolvingE},
                {26, LimitsInvolvingRoots},
                {27, LimitsInvolvingRationalFunctions},
                {29, TangentAndNormalLines},
                {32, FindingPolynomialFunctions},
                {33, MaximumsAndMinimums},
                {67, DomainOfAFunction},
                {68, ContinuityOfAFunction},
                {69, DerivabilityOfAFunction},
                {77, LimitsInvolvingSubtractionOfRoots},
            }};
}
