#include "generators/module_router.h"
#include "generators/nrp/nrp_routines.h"

// Numbers, powers and roots, polynomials, angles and complex numbers.
GeneratorModule MakeKvolMathNrp() {
    return {"KVOL_MATH_NRP",
            39,
            {
                {3, AlgebraicFractionsProducts},
                {4, AlgebraicFractionsSums},
                {12, AdditionAndSubtractionOfNaturalNumbers},
                {16, AdditionAndSubtractionOfPolynomials},
                {17, MultiplicationAndPowerOfBinomials},
                {18, FactoringPolynomials},
                {19, DivisionOfPolynomials},
                {20, DivisionOfPolynomialsInvolvingParameters},
                {26, SimplifyingAlgebraicFractions},
                {27, AddingAngleMeasures},
                {28, SubtractingAngleMeasures},
                {29, MultiplyingAngleMeasures},
                {30, DividingAngleMeasures},
                {31, ComplementaryAndSupplementaryAngles},
                {32, AnglesInTrianglesAndShapes},
                {33, AddingAndSubtractingComplexNumbers},
                {34, MultiplyingAndDividingComplexNumbers},
                {35, CartesianPolarConversions},
                {36, MultiplyingAndDividingComplexNumbersInPolarForm},
                {37, PowersOfComplexNumbers},
                {38, RootsOfComplexNumbers},
                {39, ComplexNumberParameter},
            }};
}
