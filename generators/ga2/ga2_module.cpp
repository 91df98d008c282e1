#include "generators/module_router.h"
#include "generators/ga2/ga2_routines.h"

// Plane analytical geometry.
GeneratorModule MakeKvolMathGa2() {
    return {"KVOL_MATH_GA2",
            8,
            {
                {1, VectorsOne,
                 {"120", "Plane analytical geometry", "010", "3", "", "Vectors I",
                  "Vector calculations: Scalar product, magnitude, angle, linear combination, "
                  "parameters calculation, projection... (9 types)"}},
                {2, VectorsTwo,
                 {"120", "Plane analytical geometry", "020", "3", "", "Vectors II",
                  "Vectors, points, distances, parameters, line segments and midpoints calculations. (8 types)"}},
                {3, LinesOne,
                 {"120", "Plane analytical geometry", "030", "3", "", "Lines I",
                  "Problems involving lines, points and distances. (11 types)"}},
                {4, LinesTwo,
                 {"120", "Plane analytical geometry", "040", "3", "", "Lines II",
                  "Find relative position of two lines according to the values of a parameter (9 types)"}},
                {5, Circle,
                 {"120", "Plane analytical geometry", "100", "3", "", "Conics I: Circle",
                  "Calculation of circle equation, center, radius, line-circle and circle-circle intersections, "
                  "parameters... (9 types)"}},
                {6, Ellipse,
                 {"120", "Plane analytical geometry", "120", "3", "", "Conics II: Ellipse",
                  "Ellipse calculations: Equations, foci, vertices, semimajor/semiminor axis, eccentricity (9 types)"}},
                {7, Hyperbola,
                 {"120", "Plane analytical geometry", "140", "3", "", "Conics III: Hyperbola",
                  "Hyperbola calculations: Equations, foci, vertices, semi-axis, eccentricity, asymptotes. (9 types)"}},
                {8, Parabola,
                 {"120", "Plane analytical geometry", "160", "3", "", "Conics IV: Parabola",
                  "Parabola calculations: Equations, focus, vertex, directrix. (7 types)"}},
            }};
}
