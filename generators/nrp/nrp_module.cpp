#include "generators/module_router.h"
#include "generators/nrp/nrp_routines.h"

// Numbers, powers and roots, polynomials, angles and complex numbers.
GeneratorModule MakeKvolMathNrp() {
    return {"KVOL_MATH_NRP",
            39,
            {
                {1, DivisionOfNaturalNumbers},
                {2, DivisionOfDecimalNumbers},
                {5, SimplifyingNthRoots},
                {6, SimplifyingPowersOfNaturalNumbers},
                {7, SimplifyingPowersOfRationalNumbers},
                {8, AdditionAndSubtractionOfFractions},
                {9, FourOperationsWithFractions},
                {10, AdditionAndSubtractionOfIntegerNumbers},
                {11, MultiplicationAndDivisionOfIntegerNumbers},
                {12, AdditionAndSubtractionOfNaturalNumbers},
                {13, MultiplicationOfNaturalNumbers},
                {14, AdditionAndSubtractionOfDecimalNumbers},
                {15, MultiplicationOfDecimalNumbers},
                {21, LcmAndGcmOfNaturalNumbers},
                {22, ConvertingDecimalNumbersToFractions},
                {23, RationalizationWithSquareRoots},
                {24, RationalizationWithNthRoots},
                {25, AdditionAndSubtractionOfSquareRoots},
            }};
}
