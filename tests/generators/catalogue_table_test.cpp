#include <map>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "generators/catalogue.h"
#include "generators/hub.h"
#include "generators/module_router.h"
#include "mathservices/utf8_text.h"

// The whole catalogue as the program must describe it: every routine of every module with
// its topic, subtopic, kind, greatest item count (empty: the routine sets none), title and
// description, literally.
namespace {
struct CatalogueRow {
    const char* module;
    int routine;
    const char* topicId;
    const char* topicName;
    const char* subtopicId;
    const char* kind;
    const char* maxAmount;
    const char* title;
    const char* description;
};

const CatalogueRow kCatalogue[] = {
    {"KVOL_MATH_NRP", 12, "010", "Natural numbers", "001", "2", "026",
     "Addition and subtraction of natural numbers",
     "Exercises to practice addition and subtraction of natural numbers. (2 types)"},
    {"KVOL_MATH_NRP", 13, "010", "Natural numbers", "002", "2", "026",
     "Multiplication of natural numbers",
     "Exercises to practice multiplication of natural numbers (1 type)"},
    {"KVOL_MATH_NRP", 1, "010", "Natural numbers", "003", "2", "026",
     "Division of natural numbers",
     "Exercises to practice division of natural numbers (1 type)"},
    {"KVOL_MATH_NRP", 21, "010", "Natural numbers", "020", "2", "026",
     "LCM and GCD of natural numbers",
     "Least common multiple and greatest common divisor of natural numbers (2 types)"},
    {"KVOL_MATH_NRP", 10, "020", "Integer numbers", "001", "2", "026",
     "Addition and subtraction of integer numbers",
     "Exercises about addition and subtraction of integer numbers. (5 types)"},
    {"KVOL_MATH_NRP", 11, "020", "Integer numbers", "005", "2", "026",
     "Multiplication and division of integer numbers",
     "Exercises of integer numbers: addition, subtraction, multiplication, division and parentheses. (10 types)"},
    {"KVOL_MATH_NRP", 14, "030", "Decimal numbers", "001", "2", "026",
     "Addition and subtraction of decimal numbers",
     "Exercises to practice addition and subtraction of decimal numbers (2 types)"},
    {"KVOL_MATH_NRP", 15, "030", "Decimal numbers", "002", "2", "026",
     "Multiplication of decimal numbers",
     "Exercises to practice multiplication of decimal numbers (1 type)"},
    {"KVOL_MATH_NRP", 2, "030", "Decimal numbers", "003", "2", "026",
     "Division of decimal numbers",
     "Exercises to practice division of decimal numbers (1 type)"},
    {"KVOL_MATH_NRP", 8, "040", "Rational numbers", "005", "2", "026",
     "Addition and subtraction of fractions",
     "Exercises about addition and subtraction of fractions. (2 types)"},
    {"KVOL_MATH_NRP", 9, "040", "Rational numbers", "010", "2", "026",
     "Addition, subtraction, multiplication and division with fractions",
     "Exercises of fractions: addition, subtraction, multiplication and division. (7 types)"},
    {"KVOL_MATH_NRP", 22, "040", "Rational numbers", "015", "2", "026",
     "Converting decimal numbers to fractions",
     "Exercises to convert exact decimal numbers or repeating decimal numbers to fractions. (3 types)"},
    {"KVOL_MATH_NRP", 27, "045", "Angle calculations", "010", "2", "027",
     "Adding angle measures",
     "Exercises to calculate additions with angle measures (1 type)"},
    {"KVOL_MATH_NRP", 28, "045", "Angle calculations", "020", "2", "027",
     "Subtracting angle measures",
     "Exercises to calculate subtractions with angle measures (1 type)"},
    {"KVOL_MATH_NRP", 29, "045", "Angle calculations", "030", "2", "027",
     "Multiplying angle measures",
     "Exercises to calculate multiplications with angle measures (1 type)"},
    {"KVOL_MATH_NRP", 30, "045", "Angle calculations", "040", "2", "027",
     "Dividing angle measures",
     "Exercises to calculate divisions with angle measures (1 type)"},
    {"KVOL_MATH_NRP", 31, "045", "Angle calculations", "050", "2", "027",
     "Complementary and supplementary angle calculation",
     "Exercises to calculate the complementary and supplementary angles of a given angle (1 type)"},
    {"KVOL_MATH_NRP", 32, "045", "Angle calculations", "060", "3", "027",
     "Angle calculation in triangles and other shapes",
     "Problems to calculate angles in triangles, right triangles and other shapes (5 types)"},
    {"KVOL_MATH_NRP", 6, "050", "Powers and roots", "012", "2", "026",
     "Simplifying powers of natural numbers",
     "Exercises to simplify powers of natural numbers (7 types)"},
    {"KVOL_MATH_NRP", 7, "050", "Powers and roots", "014", "2", "012",
     "Simplifying powers of rational numbers",
     "Exercises to simplify powers of rational numbers (7 types)"},
    {"KVOL_MATH_NRP", 23, "050", "Powers and roots", "018", "2", "026",
     "Rationalization I: (square roots)",
     "Exercises to rationalize expressions involving square roots (5 types)"},
    {"KVOL_MATH_NRP", 24, "050", "Powers and roots", "020", "2", "026",
     "Rationalization II: (with n-th roots)",
     "Exercises to rationalize expressions involving n-th roots (2 types)"},
    {"KVOL_MATH_NRP", 25, "050", "Powers and roots", "025", "2", "026",
     "Addition and subtraction of square roots",
     "Exercises to calculate addition and subtraction of square roots (3 types)"},
    {"KVOL_MATH_NRP", 5, "050", "Powers and roots", "035", "2", "026",
     "Simplifying n-th roots",
     "Exercises to simplify n-th roots (6 types)"},
    {"KVOL_MATH_NRP", 16, "060", "Polynomials and algebraic fractions", "001", "2", "026",
     "Addition and subtraction of polynomials",
     "Exercises to practice addition and subtraction of polynomials (2 types)"},
    {"KVOL_MATH_NRP", 17, "060", "Polynomials and algebraic fractions", "002", "2", "026",
     "Multiplication and power of binomials",
     "Exercises to practice multiplication and power of binomials (4 types)"},
    {"KVOL_MATH_NRP", 18, "060", "Polynomials and algebraic fractions", "010", "2", "026",
     "Factoring polynomials",
     "Exercises to factorize polynomials (Ruffini's rule)."},
    {"KVOL_MATH_NRP", 19, "060", "Polynomials and algebraic fractions", "015", "2", "026",
     "Division of polynomials",
     "Exercises to practice division of polynomials: Polynomial long division and Synthetic division (division through Ruffini's rule). (2 types)"},
    {"KVOL_MATH_NRP", 20, "060", "Polynomials and algebraic fractions", "020", "3", "",
     "Division of polynomials involving parameters",
     "Problems of division of polynomials using parameters and the Polynomial remainder theorem (1 type)"},
    {"KVOL_MATH_NRP", 26, "060", "Polynomials and algebraic fractions", "030", "2", "026",
     "Algebraic fractions I: Simplifying algebraic fractions",
     "Exercises to simplify algebraic fractions (6 types)"},
    {"KVOL_MATH_NRP", 3, "060", "Polynomials and algebraic fractions", "035", "2", "026",
     "Algebraic fractions II: Simplifying algebraic fractions",
     "Exercises to simplify algebraic fractions involving multiplications and divisions. (10 types)"},
    {"KVOL_MATH_NRP", 4, "060", "Polynomials and algebraic fractions", "040", "2", "026",
     "Algebraic fractions III: Simplifying algebraic fractions",
     "Exercises to simplify algebraic fractions involving additions and subtractions (6 types)"},
    {"KVOL_MATH_ECU", 1, "070", "Equations", "005", "2", "026",
     "Linear equations with integer coefficients",
     "Exercises about linear equations with integer coefficients (3 types)"},
    {"KVOL_MATH_ECU", 6, "070", "Equations", "007", "2", "024",
     "Linear equations with rational coefficients",
     "Exercises about linear equations with rational coefficients and parentheses (3 types)"},
    {"KVOL_MATH_ECU", 11, "070", "Equations", "014", "2", "026",
     "Incomplete quadratic equations",
     "Exercises about incomplete quadratic equations ax²+bx+c=0 where b=0 or c=0. (4 types)"},
    {"KVOL_MATH_ECU", 2, "070", "Equations", "015", "2", "026",
     "Complete quadratic equations",
     "Exercises about complete quadratic equations ax²+bx+c=0. (3 types)"},
    {"KVOL_MATH_ECU", 12, "070", "Equations", "017", "2", "026",
     "Biquadratic equations",
     "Exercises about biquadratic equations. (3 types)"},
    {"KVOL_MATH_ECU", 3, "070", "Equations", "020", "2", "026",
     "Equations involving roots",
     "Exercises about equations involving roots. (1 type)"},
    {"KVOL_MATH_ECU", 10, "070", "Equations", "025", "2", "026",
     "Exponential equations",
     "Exercises about exponential equations. (4 types)"},
    {"KVOL_MATH_ECU", 13, "070", "Equations", "030", "2", "026",
     "Logarithmic equations",
     "Exercises about logarithmic equations. (3 types)"},
    {"KVOL_MATH_ECU", 14, "070", "Equations", "035", "2", "026",
     "Trigonometric equations",
     "Trigonometric equations. (138 types)"},
    {"KVOL_MATH_ECU", 8, "080", "Inequations", "007", "2", "026",
     "Linear inequations with integer coefficients",
     "Exercises about linear inequations with integer coefficients (3 types)"},
    {"KVOL_MATH_ECU", 7, "080", "Inequations", "009", "2", "026",
     "Linear inequations with rational coefficients",
     "Exercises about linear inequations with rational coefficients and parentheses (3 types)"},
    {"KVOL_MATH_ECU", 4, "090", "Systems of equations", "001", "2", "026",
     "Systems of 2×2 linear equations",
     "Exercises about systems of 2×2 linear equations. (1 type)"},
    {"KVOL_MATH_ECU", 5, "090", "Systems of equations", "010", "2", "026",
     "Systems of 3×3 linear equations",
     "Exercises about systems of 3×3 linear equations. (1 type)"},
    {"KVOL_MATH_ECU", 9, "090", "Systems of equations", "021", "2", "021",
     "Systems of 2×2 equations (linear and quadratic)",
     "Exercises about nonlinear systems of 2×2 equations (linear and quadratic) with integer coefficients. (1 type)"},
    {"KVOL_MATH_ALG", 1, "100", "Algebra", "008", "3", "026",
     "Matricial equations: type AX+B=C",
     "Solving matricial equations type AX+B=C, where A, X, B and C are matrices. (4 types of size)"},
    {"KVOL_MATH_ALG", 2, "100", "Algebra", "010", "3", "026",
     "Systems of 2×2 matricial linear equations",
     "Problems about systems of 2×2 matricial linear equations. (2 types of size)"},
    {"KVOL_MATH_ALG", 3, "100", "Algebra", "017", "3", "",
     "Determinant and inverse matrix with a parameter",
     "Calculation of parameter for which a determinant is null or a matrix has/hasn't inverse. (3 types)"},
    {"KVOL_MATH_ALG", 4, "100", "Algebra", "028", "3", "",
     "Discuss and solve of system of 3×3 linear equations (without parameter)",
     "Discuss and solve of a system of 3×3 linear equations (without parameter): Compatible / incompatible, determinate / indeterminate. (3 types)"},
    {"KVOL_MATH_ALG", 5, "100", "Algebra", "029", "3", "",
     "Discuss and solve system of 3×3 linear equations (with parameter)",
     "Discuss and solve systems of 3×3 linear equations according to the values of a parameter. (2 types)"},
    {"KVOL_MATH_GDE", 1, "105", "Basic geometry", "010", "3", "",
     "Pythagorean theorem",
     "Problems with Pythagorean theorem: Right triangles, isosceles triangles and rectangles. Catheti, hypotenuse, perimeter and area calculations (10 types)"},
    {"KVOL_MATH_GDE", 2, "105", "Basic geometry", "020", "3", "",
     "Similarity",
     "Problems of similarity of triangles (9 tipos)"},
    {"KVOL_MATH_GDE", 3, "105", "Basic geometry", "030", "3", "",
     "Plane shapes (straight line segments)",
     "Calculations with squares, rhombus, polygons, triangles, trapezoids, rectangles... Area, perimeter, altitude... (18 types)"},
    {"KVOL_MATH_GDE", 4, "105", "Basic geometry", "040", "3", "",
     "Plane shapes (curved line segments)",
     "Calculations with circle, circular sector, annulus, circular trapezoid... area, perimeter, radius (8 types)"},
    {"KVOL_MATH_GDE", 5, "105", "Basic geometry", "050", "3", "",
     "Spatial shapes (plane surfaces)",
     "Calculations of volume, surface area, altitude, edge, diagonal and slant height for cube, prism and pyramid (12 types)"},
    {"KVOL_MATH_GDE", 6, "105", "Basic geometry", "060", "3", "",
     "Spatial shapes (curved surfaces)",
     "Calculations of volume, surface area, radius, altitude and slant height for sphere, cone and cylinder (9 types)"},
    {"KVOL_MATH_TRI", 1, "110", "Trigonometry", "010", "3", "026",
     "Trigonometric values from another one",
     "Calculate trigonometric values when we know another one. (3 types)"},
    {"KVOL_MATH_TRI", 2, "110", "Trigonometry", "020", "3", "027",
     "Trigonometric values from two other known",
     "Calculation of trigonometric values from two other known (5 types)"},
    {"KVOL_MATH_TRI", 3, "110", "Trigonometry", "030", "2", "024",
     "Trigonometric identities",
     "Exercises for making proofs of trigonometric identities (34 types)."},
    {"KVOL_MATH_TRI", 4, "110", "Trigonometry", "040", "2", "026",
     "Trigonometric equations",
     "Exercises to solve trigonometric equations. (138 types)"},
    {"KVOL_MATH_TRI", 5, "110", "Trigonometry", "050", "3", "027",
     "Solving triangles",
     "Solving triangles: Finding missing sides and/or angles given some information about a triangle. (4 types)"},
    {"KVOL_MATH_TRI", 6, "110", "Trigonometry", "060", "3", "027",
     "Solving plane shapes.",
     "Solving plane shapes. Triangle, rhombus, parallelogram and trapezoid. (11 types)"},
    {"KVOL_MATH_NRP", 33, "115", "Complex numbers", "010", "2", "027",
     "Adding and subtracting complex numbers",
     "Exercises to calculate additions and subtractions of complex numbers in cartesian form (2 types)"},
    {"KVOL_MATH_NRP", 34, "115", "Complex numbers", "020", "2", "027",
     "Multiplying and dividing complex numbers in cartesian form",
     "Exercises to calculate multiplications and divisions of complex numbers in cartesian form (2 types)"},
    {"KVOL_MATH_NRP", 35, "115", "Complex numbers", "030", "2", "027",
     "Cartesian-polar conversions",
     "Exercises to convert complex numbers from the cartesian form to the polar form and vice versa (2 types)"},
    {"KVOL_MATH_NRP", 36, "115", "Complex numbers", "040", "2", "027",
     "Multiplying and dividing complex numbers in polar form",
     "Exercises to calculate multiplications and divisions of complex numbers in polar form (2 types)"},
    {"KVOL_MATH_NRP", 37, "115", "Complex numbers", "050", "2", "027",
     "Powers of complex numbers",
     "Exercises of powers of complex numbers in cartesian and polar forms (2 types)"},
    {"KVOL_MATH_NRP", 38, "115", "Complex numbers", "060", "2", "027",
     "Root extraction of complex numbers",
     "Exercises to calculate roots of complex numbers (2 types)"},
    {"KVOL_MATH_NRP", 39, "115", "Complex numbers", "070", "3", "027",
     "Calculation of a parameter",
     "Calculation of a parameter to give the required result of a complex numbers operation. (5 types)"},
    {"KVOL_MATH_GA2", 1, "120", "Plane analytical geometry", "010", "3", "",
     "Vectors I",
     "Vector calculations: Scalar product, magnitude, angle, linear combination, parameters calculation, projection... (9 types)"},
    {"KVOL_MATH_GA2", 2, "120", "Plane analytical geometry", "020", "3", "",
     "Vectors II",
     "Vectors, points, distances, parameters, line segments and midpoints calculations. (8 types)"},
    {"KVOL_MATH_GA2", 3, "120", "Plane analytical geometry", "030", "3", "",
     "Lines I",
     "Problems involving lines, points and distances. (11 types)"},
    {"KVOL_MATH_GA2", 4, "120", "Plane analytical geometry", "040", "3", "",
     "Lines II",
     "Find relative position of two lines according to the values of a parameter (9 types)"},
    {"KVOL_MATH_GA2", 5, "120", "Plane analytical geometry", "100", "3", "",
     "Conics I: Circle",
     "Calculation of circle equation, center, radius, line-circle and circle-circle intersections, parameters... (9 types)"},
    {"KVOL_MATH_GA2", 6, "120", "Plane analytical geometry", "120", "3", "",
     "Conics II: Ellipse",
     "Ellipse calculations: Equations, foci, vertices, semimajor/semiminor axis, eccentricity (9 types)"},
    {"KVOL_MATH_GA2", 7, "120", "Plane analytical geometry", "140", "3", "",
     "Conics III: Hyperbola",
     "Hyperbola calculations: Equations, foci, vertices, semi-axis, eccentricity, asymptotes. (9 types)"},
    {"KVOL_MATH_GA2", 8, "120", "Plane analytical geometry", "160", "3", "",
     "Conics IV: Parabola",
     "Parabola calculations: Equations, focus, vertex, directrix. (7 types)"},
    {"KVOL_MATH_GA3", 1, "130", "Space analytical geometry", "010", "3", "",
     "Vectors",
     "Vectors calculations: Scalar product, vector product, magnitud, angle, linear combination, parameters calculation... (12 types)"},
    {"KVOL_MATH_GA3", 2, "130", "Space analytical geometry", "020", "3", "",
     "Plane calculations",
     "&DPCalculate equations of planes in the space. (13 types)"},
    {"KVOL_MATH_GA3", 3, "130", "Space analytical geometry", "030", "3", "",
     "Line calculations",
     "Calculate equations of lines in the space. (8 types)"},
    {"KVOL_MATH_GA3", 4, "130", "Space analytical geometry", "040", "3", "",
     "Alignment, coplanarity and distance of points",
     "Discuss coplanarity and alignment of points according to a parameter. Distance from a point to a plane study according to a parameter. (4 types)"},
    {"KVOL_MATH_GA3", 5, "130", "Space analytical geometry", "050", "3", "",
     "Relative position of planes and lines (without parameter)",
     "Discuss relative position of planes and lines (without parameter): Intersect, parallel, lies. (3 types)"},
    {"KVOL_MATH_GA3", 6, "130", "Space analytical geometry", "060", "3", "",
     "Relative position of planes and lines (with parameter)",
     "Discuss relative position of planes and lines according to the values of a parameter. (2 types)"},
    {"KVOL_MATH_GA3", 7, "130", "Space analytical geometry", "070", "3", "",
     "Relative position of two lines (without parameters)",
     "Discuss relative position of two lines in the space (without parameters). (4 types)"},
    {"KVOL_MATH_GA3", 8, "130", "Space analytical geometry", "080", "3", "",
     "Relative position of two lines (with parameters)",
     "Discuss relative position of two lines in the space according to a parameter. (3 types)"},
    {"KVOL_MATH_LFD", 27, "140", "Limits", "010", "3", "",
     "Limits involving rational functions",
     "Calculation of limits involving rational functions (the ratio of two polynomial functions). (3 types)"},
    {"KVOL_MATH_LFD", 26, "140", "Limits", "020", "3", "",
     "Limits involving roots",
     "Calculation of limits involving divisions and roots. (2 types)"},
    {"KVOL_MATH_LFD", 77, "140", "Limits", "030", "3", "",
     "Limits involving subtraction of roots",
     "Calculation of limits involving subtraction of roots. (1 type)"},
    {"KVOL_MATH_LFD", 25, "140", "Limits", "040", "3", "",
     "Limits of powers involving the number e",
     "Calculation of limits of powers involving the number e. (3 types)"},
    {"KVOL_MATH_LFD", 67, "150", "Functions and derivatives", "010", "2", "020",
     "Domain of a function",
     "Exercises to calculate the domain of a function. (16 types of functions)"},
    {"KVOL_MATH_LFD", 1, "150", "Functions and derivatives", "012", "2", "020",
     "Derivative of functions (I)",
     "Exercises to find the derivative of a function. Easy level (19 types)"},
    {"KVOL_MATH_LFD", 2, "150", "Functions and derivatives", "013", "2", "020",
     "Derivative of functions (II)",
     "Exercises to find the derivative of a function. More difficult level  (19 types)"},
    {"KVOL_MATH_LFD", 29, "150", "Functions and derivatives", "015", "2", "020",
     "Tangent and normal lines to a curve at a point",
     "Calculate the tangent and normal lines to a curve at a point involving derivatives. (6 types of functions)"},
    {"KVOL_MATH_LFD", 32, "150", "Functions and derivatives", "020", "3", "",
     "Finding polynomial functions involving derivatives",
     "&DPFinding polynomial functions coefficients (quadratic and cubic) involving derivatives. (10 types)"},
    {"KVOL_MATH_LFD", 33, "150", "Functions and derivatives", "035", "2", "021",
     "Maximums and minimums of a function",
     "Calculation of maximums and minimums of a given function. (2 types of functions)"},
    {"KVOL_MATH_LFD", 68, "150", "Functions and derivatives", "040", "3", "",
     "Continuity of a function",
     "Study the continuity of a function at a point. (5 types of functions, 17 cases)"},
    {"KVOL_MATH_LFD", 69, "150", "Functions and derivatives", "050", "3", "",
     "Derivability of a function",
     "Study the continuity and derivability of a function at a point. (5 types of functions, 15 cases)"},
    {"KVOL_MATH_INT", 1, "160", "Indefinite integrals", "015", "2", "026",
     "Integrals of rational functions (I)",
     "Integrals of rational functions, by decomposing the rational function into a sum of small rational functions) (2 types)"},
    {"KVOL_MATH_INT", 2, "160", "Indefinite integrals", "020", "2", "026",
     "Integrals of rational functions (II)",
     "Integrals of rational functions (with a quadratic denominator that cannot be factorised) (1 type)"},
    {"KVOL_MATH_INT", 6, "160", "Indefinite integrals", "027", "2", "026",
     "Integration by substitution or direct methods",
     "Exercises to solve indefinite integrals using substitution or direct methods. (32 types)"},
    {"KVOL_MATH_INT", 5, "160", "Indefinite integrals", "030", "2", "026",
     "Integration by parts",
     "Exercises to solve indefinite integrals using 'integration by parts' method. (23 types)"},
    {"KVOL_MATH_INT", 3, "170", "Definite integrals", "005", "3", "",
     "Area calculation involving one function",
     "&DPArea calculation involving one function using definite integrals. (8 types)"},
    {"KVOL_MATH_INT", 4, "170", "Definite integrals", "015", "3", "",
     "Area calculation involving two functions and/or parameters",
     "Area calculation involving two functions and/or a parameter using definite integrals. (4 types)"},
    {"KVOL_MATH_PES", 1, "180", "Statistic and probability", "010", "3", "",
     "Single variable statistic for ungrouped data",
     "Calculation of mean, median, mode, standard deviation, histogram and bar charts for one variable statistic with ungrouped data. (1 type, 3 sizes)"},
    {"KVOL_MATH_PES", 2, "180", "Statistic and probability", "012", "3", "",
     "Single variable statistic for grouped data",
     "Calculation of mean, median, mode, standard deviation, quartiles, percentiles and histogram chart for one variable statistic with grouped data. (2 types)"},
    {"KVOL_MATH_PES", 3, "180", "Statistic and probability", "020", "3", "",
     "Two variable statistic: Linear regression analysis",
     "Linear regression analysis using the Least Squares Method. (4 types)"},
    {"KVOL_MATH_PES", 4, "180", "Statistic and probability", "050", "3", "",
     "Normal distribution",
     "&DPProbability calculations using the Gauss' Normal distribution. (7 types)"},
};

const CatalogueRow* FindRow(const std::string& module, int routine) {
    for (const auto& row : kCatalogue) {
        if (module == row.module && routine == row.routine) return &row;
    }
    return nullptr;
}
} // namespace

TEST(CatalogueTable, TheTableItself) {
    std::set<std::string> topics;
    for (const auto& row : kCatalogue) topics.insert(row.topicId);
    EXPECT_EQ(std::size(kCatalogue), 108u);
    EXPECT_EQ(topics.size(), 21u);
}

TEST(CatalogueTable, EveryDescribedRoutineMatchesItsRow) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    for (const auto& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (e.Kind == "5") continue;
        const CatalogueRow* row = FindRow(e.moduleName, std::stoi(e.RoutineId));
        ASSERT_NE(row, nullptr) << "a routine the catalogue does not know: " << line;
        EXPECT_EQ(e.TopicId, row->topicId) << line;
        EXPECT_EQ(e.TopicName, Utf8PadRight(row->topicName, 80)) << line;
        EXPECT_EQ(e.SubtopicId, row->subtopicId) << line;
        EXPECT_EQ(e.Kind, row->kind) << line;
        if (row->maxAmount[0] != '\0') {
            EXPECT_EQ(e.MaxAmount, row->maxAmount) << line;
        }
        EXPECT_EQ(e.Title, Utf8PadRight(row->title, 80)) << line;
        EXPECT_EQ(e.Description, Utf8PadRight(row->description, 160)) << line;
    }
}

TEST(CatalogueTable, EveryRoutineRunsAndDescribesItself) {
    // Each registered routine has its describe block, and each row that a module has
    // registered generates without the not-found text.
    GeneratorHub hub;
    hub.ReadCatalogue();
    std::set<std::pair<std::string, int>> described;
    for (const auto& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (e.Kind != "5") described.insert({e.moduleName, std::stoi(e.RoutineId)});
    }
    for (const auto& module : hub.Modules()) {
        for (const auto& entry : module.routines) {
            EXPECT_TRUE(described.count({module.name, entry.number}))
                << module.name << " " << entry.number << " has no describe block";
        }
    }
}

TEST(CatalogueTable, DescribingDrawsNothingAndADashLeavesTheItemCountAlone) {
    // Each routine's describe block fills only its catalogue fields, and without an item
    // count of its own the caller's stays; describing a whole module writes no text and
    // draws nothing from the stream.
    GeneratorHub hub;
    for (const auto& module : hub.Modules()) {
        for (const auto& entry : module.routines) {
            const CatalogueRow* row = FindRow(module.name, entry.number);
            ASSERT_NE(row, nullptr) << module.name << " " << entry.number;
            GeneratorWorkspace ws;
            ws.MaxAmount = "inherited";
            Describe(ws, entry.describe);
            EXPECT_EQ(ws.Subject, "Mathematics") << row->title;
            EXPECT_EQ(ws.MaxAmount, row->maxAmount[0] ? row->maxAmount : "inherited") << row->title;
        }
        GeneratorWorkspace ws;
        ws.stream.SeedStream(5);
        const auto stateBefore = ws.stream.State();
        std::string statement, solution;
        RunRouter(ws, module, "", statement, solution, -1);
        EXPECT_EQ(ws.stream.State(), stateBefore) << module.name;
        EXPECT_TRUE(ws.Statement.empty() && statement.empty()) << module.name;
        EXPECT_TRUE(ws.Solution.empty() && solution.empty()) << module.name;
    }
}

TEST(CatalogueTable, EachModuleHoldsExactlyItsRows) {
    GeneratorHub hub;
    std::map<std::string, int> rows;
    for (const auto& row : kCatalogue) ++rows[row.module];
    std::map<std::string, int> registered;
    for (const auto& module : hub.Modules()) registered[module.name] = static_cast<int>(module.routines.size());
    EXPECT_EQ(registered, rows);
}

TEST(CatalogueTable, HeadersAndEntriesAddUp) {
    // One header per topic per module that has routines of it; with every routine in
    // place that is 108 routines and 21 topics, 129 entries.
    GeneratorHub hub;
    hub.ReadCatalogue();
    std::set<std::pair<std::string, std::string>> moduleTopics;
    int routines = 0;
    int headers = 0;
    for (const auto& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (e.Kind == "5") ++headers;
        else {
            ++routines;
            moduleTopics.insert({e.moduleName, e.TopicId});
        }
    }
    EXPECT_EQ(headers, static_cast<int>(moduleTopics.size()));
    EXPECT_EQ(hub.CatalogueList().size(), static_cast<std::size_t>(routines + headers));
    if (routines == 108) {
        EXPECT_EQ(headers, 21);
        EXPECT_EQ(hub.CatalogueList().size(), 129u);
    }
}
