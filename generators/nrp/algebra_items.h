#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "generators/nrp/polynomial_tools.h"

// The numbers of one item of the polynomial, angle and complex-number drills: the record
// from which the item's texts are written. Each Make function makes the draws of one item.

struct PolynomialSumItem {  // routine 16
    int operation = 1;      // 1 sum, 2 difference
    Coefficients a{}, b{}, result{};
};
PolynomialSumItem MakePolynomialSumItem(GeneratorWorkspace& ws, double operation);

struct BinomialProductItem {  // routine 17
    int form = 1;
    Coefficients a{}, b{}, result{};
};
BinomialProductItem MakeBinomialProductItem(GeneratorWorkspace& ws, int form);

struct FactoringItem {  // routine 18
    std::vector<double> roots;
    double factor = 1;
    Coefficients polynomial{};
    std::vector<RootCount> groups;
};
FactoringItem MakeFactoringItem(GeneratorWorkspace& ws);
std::string FactoredText(const FactoringItem& item);

struct DivisionItem {  // routine 19
    int type = 1;      // 1 by x - a, 2 by a quadratic
    Coefficients dividend{}, divisor{}, quotient{}, remainder{};
};
DivisionItem MakeDivisionItem(GeneratorWorkspace& ws, int type);

struct ParameterDivisionItem {  // routine 20
    std::string letter;
    double value = 0;  // of the parameter
    double root = 0;   // the divisor is x - root
    int degree = 3;
    int parameterDegree = 1;
    Coefficients coefficients{};  // with the parameter's value in its degree
    bool exact = true;
    double remainder = 0;
};
ParameterDivisionItem MakeParameterDivisionItem(GeneratorWorkspace& ws);

struct AngleItem {  // routines 27 to 31
    double first = 0;   // seconds of arc
    double second = 0;  // seconds of arc (operations 1 and 2)
    double factor = 1;  // operations 3 and 4
    double result = 0;  // seconds of arc
};
// operation 1 adds, 2 subtracts, 3 multiplies, 4 divides.
AngleItem MakeAngleItem(GeneratorWorkspace& ws, int operation);
std::string AngleItemText(const AngleItem& item, int operation);

struct ShapeAngles {  // routine 32
    int shape = 0;               // Seed modulo 5
    std::vector<double> given;   // seconds of arc
    double answer = 0;           // seconds of arc
    double total = 0;            // the sum that the angles make, in seconds
};
ShapeAngles MakeShapeAngles(GeneratorWorkspace& ws, int shape);

struct ComplexParameterProblem {  // routine 39
    int type = 0;        // Seed modulo 5
    std::string letter;  // the parameter
    double zRe = 0, zIm = 0, wRe = 0, wIm = 0;  // with the parameter's value in its place
    double value = 0;    // of the parameter
};
ComplexParameterProblem MakeComplexParameterProblem(GeneratorWorkspace& ws, int type);
