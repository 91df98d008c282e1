#include "generators/module_router.h"
#include "generators/lfd/lfd_routines.h"

// Limits, functions and derivatives.
GeneratorModule MakeKvolMathLfd() {
    return {"KVOL_MATH_LFD",
            79,
            {
                {1, DerivativeOfFunctionsI,
                 {"150", "Functions and derivatives", "012", "2", "020", "Derivative of functions (I)",
                  "Exercises to find the derivative of a function. Easy level (19 types)"}},
                {2, DerivativeOfFunctionsII,
                 {"150", "Functions and derivatives", "013", "2", "020", "Derivative of functions (II)",
                  "Exercises to find the derivative of a function. More difficult level  (19 types)"}},
                {25, LimitsOfPowersInvolvingE,
                 {"140", "Limits", "040", "3", "", "Limits of powers involving the number e",
                  "Calculation of limits of powers involving the number e. (3 types)"}},
                {26, LimitsInvolvingRoots,
                 {"140", "Limits", "020", "3", "", "Limits involving roots",
                  "Calculation of limits involving divisions and roots. (2 types)"}},
                {27, LimitsInvolvingRationalFunctions,
                 {"140", "Limits", "010", "3", "", "Limits involving rational functions",
                  "Calculation of limits involving rational functions (the ratio of two polynomial functions). "
                  "(3 types)"}},
                {29, TangentAndNormalLines,
                 {"150", "Functions and derivatives", "015", "2", "020",
                  "Tangent and normal lines to a curve at a point",
                  "Calculate the tangent and normal lines to a curve at a point involving derivatives. "
                  "(6 types of functions)"}},
                {32, FindingPolynomialFunctions,
                 {"150", "Functions and derivatives", "020", "3", "",
                  "Finding polynomial functions involving derivatives",
                  "&DPFinding polynomial functions coefficients (quadratic and cubic) involving derivatives. "
                  "(10 types)"}},
                {33, MaximumsAndMinimums,
                 {"150", "Functions and derivatives", "035", "2", "021", "Maximums and minimums of a function",
                  "Calculation of maximums and minimums of a given function. (2 types of functions)"}},
                {67, DomainOfAFunction,
                 {"150", "Functions and derivatives", "010", "2", "020", "Domain of a function",
                  "Exercises to calculate the domain of a function. (16 types of functions)"}},
                {68, ContinuityOfAFunction,
                 {"150", "Functions and derivatives", "040", "3", "", "Continuity of a function",
                  "Study the continuity of a function at a point. (5 types of functions, 17 cases)"}},
                {69, DerivabilityOfAFunction,
                 {"150", "Functions and derivatives", "050", "3", "", "Derivability of a function",
                  "Study the continuity and derivability of a function at a point. (5 types of functions, 15 cases)"}},
                {77, LimitsInvolvingSubtractionOfRoots,
                 {"140", "Limits", "030", "3", "", "Limits involving subtraction of roots",
                  "Calculation of limits involving subtraction of roots. (1 type)"}},
            }};
}
