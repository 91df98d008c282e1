#include "generators/module_router.h"
#include "generators/int/int_routines.h"

// Integrals and areas.
GeneratorModule MakeKvolMathInt() {
    return {"KVOL_MATH_INT",
            6,
            {
                {1, IntegralsOfRationalFunctionsI,
                 {"160", "Indefinite integrals", "015", "2", "026", "Integrals of rational functions (I)",
                  "Integrals of rational functions, by decomposing the rational function into a sum of small "
                  "rational functions) (2 types)"}},
                {2, IntegralsOfRationalFunctionsII,
                 {"160", "Indefinite integrals", "020", "2", "026", "Integrals of rational functions (II)",
                  "Integrals of rational functions (with a quadratic denominator that cannot be factorised) (1 type)"}},
                {3, AreaInvolvingOneFunction,
                 {"170", "Definite integrals", "005", "3", "", "Area calculation involving one function",
                  "&DPArea calculation involving one function using definite integrals. (8 types)"}},
                {4, AreaInvolvingTwoFunctions,
                 {"170", "Definite integrals", "015", "3", "",
                  "Area calculation involving two functions and/or parameters",
                  "Area calculation involving two functions and/or a parameter using definite integrals. (4 types)"}},
                {5, IntegrationByParts,
                 {"160", "Indefinite integrals", "030", "2", "026", "Integration by parts",
                  "Exercises to solve indefinite integrals using 'integration by parts' method. (23 types)"}},
                {6, IntegrationBySubstitution,
                 {"160", "Indefinite integrals", "027", "2", "026", "Integration by substitution or direct methods",
                  "Exercises to solve indefinite integrals using substitution or direct methods. (32 types)"}},
            }};
}
