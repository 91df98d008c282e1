#include "generators/module_router.h"
#include "generators/ecu/ecu_routines.h"

// Equations, inequations and systems.
GeneratorModule MakeKvolMathEcu() {
    return {"KVOL_MATH_ECU",
            14,
            {
                {1, LinearEquationsInteger},
                {2, CompleteQuadraticEquations},
                {3, EquationsInvolvingRoots},
                {4, LinearSystems2},
                {5, LinearSystems3},
                {6, LinearEquationsRational},
                {7, LinearInequationsRational},
                {8, LinearInequationsInteger},
                {9, NonlinearSystems},
                {10, ExponentialEquations},
                {11, IncompleteQuadraticEquations},
                {12, BiquadraticEquations},
                {13, LogarithmicEquations},
                {14, TrigonometricEquations},
            }};
}
