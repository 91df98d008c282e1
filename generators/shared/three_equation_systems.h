#pragma once
#include <string>

#include "generators/shared/space_tools.h"
#include "generators/generator_contract.h"

// The two solvers of systems of three linear equations. Each writes either a system of
// three equations (mode 0, the matrices module) or, with the same mathematics, a plane
// and a line given as two planes (mode 1, the space geometry module). The system is
// built backwards from its answer, so the case is known before anything is printed.

enum class SystemCase { Determinate = 0, Indeterminate = 1, Incompatible = 2 };

// a·(x, y, z) = d; a parameter letter may stand in one column.
struct LinearRow {
    Vec3 a;
    double d = 0;
    int letterColumn = -1;  // the column of the letter, -1 for none
};

// Rows 0 and 1 are independent; row 2 is the third equation (the plane in mode 1).
struct ThreeEquationSystem {
    SystemCase kind = SystemCase::Determinate;
    LinearRow rows[3];
    Vec3 solution;        // the one solution (with a parameter: the one at the stated value)
    Line3 solutionLine;   // the line of solutions of an indeterminate system
    // With a parameter: the letter, the value where the rank drops, and the stated value.
    std::string letter;
    double criticalValue = 0;
    double statedValue = 0;
};

// Without a parameter; the case comes from the caller.
ThreeEquationSystem BuildSystemWithoutParameter(GeneratorWorkspace& ws, SystemCase kind);
// With a parameter in one coefficient of the third row: the rank drops at criticalValue,
// where the system is Incompatible or Indeterminate (kind); elsewhere it is determinate,
// with the solution `solution` at statedValue.
ThreeEquationSystem BuildSystemWithParameter(GeneratorWorkspace& ws, SystemCase kind, const std::string& letters);

// The whole problems. mode 0: a system; mode 1: a plane and a line.
void SolveSystemWithoutParameter(GeneratorWorkspace& ws, int mode);
void SolveSystemWithParameter(GeneratorWorkspace& ws, int mode);

// "3 - 2λ" style: constant + coefficient·variable.
std::string AffineMarkup(double constant, double coefficient, const std::string& variable);
