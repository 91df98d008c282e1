#include "generators/module_router.h"
#include "generators/gde/gde_routines.h"

// Basic geometry.
GeneratorModule MakeKvolMathGde() {
    return {"KVOL_MATH_GDE",
            6,
            {
                {1, PythagoreanTheorem},
                {2, Similarity},
                {3, PlaneShapesStraight},
                {4, PlaneShapesCurved},
                {5, SpatialShapesPlane},
                {6, SpatialShapesCurved},
            },
            NotFoundWording::Spanish};
}
