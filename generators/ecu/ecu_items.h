#pragma once
#include <array>
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// The records from which the equation drills write their items: the numbers of an item
// and its texts, so that the mathematics can be checked apart from the markup.

// An equation or inequation in one unknown that reduces to p·x + q (relation) 0, where
// p·x + q is the left side minus the right side, multiplied by a positive number.
struct LinearItem {
    std::string text;      // the statement, with the relation between the sides
    std::string relation;  // "=" for an equation, else "<", ">", "&<=", "&>="
    double p = 0;
    double q = 0;
    double numerator = 0;  // the boundary value -q/p, reduced, denominator positive
    double denominator = 1;
};

// Routines 1 and 8: whole coefficients and a whole solution. relation "=" for equations.
LinearItem IntegerLinearItem(GeneratorWorkspace& ws, const std::string& relation);
// Routines 6 and 7: fractions and parentheses, a rational solution.
LinearItem RationalLinearItem(GeneratorWorkspace& ws, const std::string& relation);

// The answer of a linear item: "x = 5", "x > 3/4" and the like.
std::string LinearAnswer(GeneratorWorkspace& ws, const LinearItem& item);

// An equation in one unknown with its real solutions. For the polynomial equations,
// coefficients c4..c0 of the left side minus the right side.
struct RootsItem {
    std::string text;
    std::string answer;
    std::string letter = "x";
    std::vector<double> solutions;  // distinct, in the order the answer lists them
    double c4 = 0, c3 = 0, c2 = 0, c1 = 0, c0 = 0;
};

RootsItem IncompleteQuadraticItem(GeneratorWorkspace& ws);  // routine 11
RootsItem CompleteQuadraticItem(GeneratorWorkspace& ws);    // routine 2
RootsItem BiquadraticItem(GeneratorWorkspace& ws);          // routine 12
RootsItem RootEquationItem(GeneratorWorkspace& ws);         // routine 3
RootsItem ExponentialItem(GeneratorWorkspace& ws);          // routine 10
RootsItem LogarithmicItem(GeneratorWorkspace& ws);          // routine 13

// A system of equations with its solutions (x, y, z; z unused in the plane).
struct SystemItem {
    std::string text;
    std::string answer;
    std::vector<std::string> rows;
    std::vector<std::array<double, 3>> solutions;
    std::vector<std::array<double, 4>> coefficients;  // linear rows: a, b, c and the right side
};

SystemItem LinearSystem2Item(GeneratorWorkspace& ws);  // routine 4
SystemItem LinearSystem3Item(GeneratorWorkspace& ws);  // routine 5
SystemItem NonlinearSystemItem(GeneratorWorkspace& ws);  // routine 9

// The rows in a brace, as the systems are written.
std::string SystemText(const std::vector<std::string>& rows);
