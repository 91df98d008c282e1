#include "generators/module_router.h"
#include "generators/gde/gde_routines.h"

// Basic geometry.
GeneratorModule MakeKvolMathGde() {
    return {"KVOL_MATH_GDE",
            6,
            {
                {1, PythagoreanTheorem,
                 {"105", "Basic geometry", "010", "3", "", "Pythagorean theorem",
                  "Problems with Pythagorean theorem: Right triangles, isosceles triangles and rectangles. "
                  "Catheti, hypotenuse, perimeter and area calculations (10 types)"}},
                {2, Similarity,
                 {"105", "Basic geometry", "020", "3", "", "Similarity",
                  "Problems of similarity of triangles (9 tipos)"}},
                {3, PlaneShapesStraight,
                 {"105", "Basic geometry", "030", "3", "", "Plane shapes (straight line segments)",
                  "Calculations with squares, rhombus, polygons, triangles, trapezoids, rectangles... Area, "
                  "perimeter, altitude... (18 types)"}},
                {4, PlaneShapesCurved,
                 {"105", "Basic geometry", "040", "3", "", "Plane shapes (curved line segments)",
                  "Calculations with circle, circular sector, annulus, circular trapezoid... area, perimeter, "
                  "radius (8 types)"}},
                {5, SpatialShapesPlane,
                 {"105", "Basic geometry", "050", "3", "", "Spatial shapes (plane surfaces)",
                  "Calculations of volume, surface area, altitude, edge, diagonal and slant height for cube, "
                  "prism and pyramid (12 types)"}},
                {6, SpatialShapesCurved,
                 {"105", "Basic geometry", "060", "3", "", "Spatial shapes (curved surfaces)",
                  "Calculations of volume, surface area, radius, altitude and slant height for sphere, "
                  "cone and cylinder (9 types)"}},
            },
            NotFoundWording::Spanish};
}
