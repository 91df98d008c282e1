#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "generators/lfd/lfd_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
std::string Num(double v) { return PlainNumberText(v); }

// The polynomial by degree, up to the cubic.
using Coefficients = std::array<double, 4>;

double Value(const Coefficients& c, double x) { return ((c[3] * x + c[2]) * x + c[1]) * x + c[0]; }
double Slope(const Coefficients& c, double x) { return (3 * c[3] * x + 2 * c[2]) * x + c[1]; }
double Bend(const Coefficients& c, double x) { return 6 * c[3] * x + 2 * c[2]; }

// One condition: its words and the row of the linear system it puts on the coefficients.
struct Condition {
    std::string words;
    std::vector<Coefficients> rows;
    // An extremum must be one: there the second derivative may not vanish.
    double extremumAt = NAN;
};

Coefficients ValueRow(double x) { return {1, x, x * x, x * x * x}; }
Coefficients SlopeRow(double x) { return {0, 1, 2 * x, 3 * x * x}; }
Coefficients BendRow(double x) { return {0, 0, 2, 6 * x}; }

std::string Point(double x, double y) { return "(" + Num(x) + "&, " + Num(y) + ")"; }

Condition Extremum(double x) {
    return {"has an extrema at the point whose &+Ix&-I value is " + Num(x), {SlopeRow(x)}, x};
}
Condition ExtremumPoint(const Coefficients& c, double x) {
    return {"has an extrema at the point  " + Point(x, Value(c, x)), {SlopeRow(x), ValueRow(x)}, x};
}
Condition Through(const Coefficients& c, double x) {
    return {"passes through point  " + Point(x, Value(c, x)), {ValueRow(x)}};
}
Condition CutsY(const Coefficients& c) {
    return {"cuts Y-axis at the point whose &+Iy&-I value is " + Num(c[0]), {ValueRow(0)}};
}
Condition TangentSlope(const Coefficients& c, double x) {
    return {"has a tangent line of slope " + Num(Slope(c, x)) + " at the point whose &+Ix&-I value is " + Num(x),
            {SlopeRow(x)}};
}
Condition TangentLine(const Coefficients& c, double x) {
    const double m = Slope(c, x), q = Value(c, x) - m * x;
    return {"has the tangent line  &+Iy&-I& =& " + PolynomialToMarkup(0, 0, 0, m, q, "&+Ix&-I") +
                "  at the point whose &+Ix&-I value is " + Num(x),
            {SlopeRow(x), ValueRow(x)}};
}
Condition Inflection(double x) {
    return {"has an inflection point at the point whose &+Ix&-I value is " + Num(x), {BendRow(x)}};
}
Condition InflectionPoint(const Coefficients& c, double x) {
    return {"has an inflection point at  " + Point(x, Value(c, x)), {BendRow(x), ValueRow(x)}};
}

// The determinant of the system of the conditions in the unknowns (degree + 1 of them).
double Determinant(const std::vector<Condition>& conditions, int unknowns) {
    std::vector<std::vector<double>> m;
    for (const auto& c : conditions)
        for (const auto& r : c.rows) m.push_back(std::vector<double>(r.begin(), r.begin() + unknowns));
    if (static_cast<int>(m.size()) != unknowns) return 0;
    double det = 1;
    for (int col = 0; col < unknowns; ++col) {
        int pivot = col;
        for (int r = col + 1; r < unknowns; ++r)
            if (std::fabs(m[r][col]) > std::fabs(m[pivot][col])) pivot = r;
        if (std::fabs(m[pivot][col]) < 1e-9) return 0;
        if (pivot != col) {
            std::swap(m[pivot], m[col]);
            det = -det;
        }
        det *= m[col][col];
        for (int r = col + 1; r < unknowns; ++r) {
            const double f = m[r][col] / m[col][col];
            for (int k = col; k < unknowns; ++k) m[r][k] -= f * m[col][k];
        }
    }
    return det;
}
} // namespace

// Routine 32: the coefficients of a parabola (types 1 to 5) or a cubic (6 to 10) from
// conditions on its values and derivatives. The polynomial is drawn first (where a
// condition needs a critical or inflection point, that point is drawn and the
// coefficients follow from it); the conditions are read off it and kept only when they
// determine it.
//  1 extremum at x0, a point, the Y cut          6 extrema at p and q, a point, the Y cut
//  2 slope at x1, a point, the Y cut             7 inflection point, extremum at x1, the Y cut
//  3 extremum with its value, a point            8 extremum with its value, a point, the Y cut
//  4 tangent line at x1, the Y cut               9 slope at x1, inflection at x2, a point, the Y cut
//  5 extremum at x0, slope at x1, the Y cut     10 extremum with its value, inflection at x2, the Y cut
void FindingPolynomialFunctions(GeneratorWorkspace& ws) {
    const int type = TwoLevelType(ws, 10) + 1;
    const bool cubic = type > 5;
    Coefficients c{};
    std::vector<Condition> conditions;
    RetryBound bound;
    while (true) {
        const double a = RandomInRange(ws, -2, 2, 1, 1);
        const double b = RandomInRange(ws, -5, 5, 1, 0);
        const double d = RandomInRange(ws, -16, 16, 1, 0);
        const double p = RandomInRange(ws, -7, 7, 1, 0);
        const double q = RandomInRange(ws, -6, 6, 1, 0);
        const double x1 = RandomInRange(ws, -6, 6, 1, 1);
        const bool unit = Coin(ws, 0.7f);
        const double lead = unit ? (a > 0 ? 1 : -1) : a;
        conditions.clear();
        if (!cubic) {
            c = {d, b, lead, 0};
            switch (type) {
            case 1:
                c[1] = -2 * lead * p;
                conditions = {Extremum(p), Through(c, x1), CutsY(c)};
                break;
            case 2: conditions = {TangentSlope(c, q), Through(c, x1), CutsY(c)}; break;
            case 3:
                c[1] = -2 * lead * p;
                conditions = {ExtremumPoint(c, p), Through(c, x1)};
                break;
            case 4: conditions = {TangentLine(c, x1), CutsY(c)}; break;
            default:
                c[1] = -2 * lead * p;
                conditions = {Extremum(p), TangentSlope(c, x1), CutsY(c)};
                break;
            }
        } else {
            c = {d, 0, b, lead};
            switch (type) {
            case 6: {
                // f' = 3·lead·(x - p)(x - q), whole when lead or p + q is even.
                const double pp = std::fmod(p, 4), qq = std::fmod(q, 4);
                if (pp == qq || std::fmod(lead * (pp + qq), 2) != 0) {
                    bound.Next();
                    continue;
                }
                c = {d, 3 * lead * pp * qq, -1.5 * lead * (pp + qq), lead};
                conditions = {Extremum(pp), Extremum(qq), Through(c, x1), CutsY(c)};
                break;
            }
            case 7: {
                const double x0 = std::fmod(q, 3);
                c[2] = -3 * lead * x0;
                c[1] = -3 * lead * x1 * x1 - 2 * c[2] * x1;
                conditions = {InflectionPoint(c, x0), Extremum(x1), CutsY(c)};
                break;
            }
            case 8: {
                const double pp = std::fmod(p, 4);
                c[1] = -3 * lead * pp * pp - 2 * b * pp;
                conditions = {ExtremumPoint(c, pp), Through(c, x1), CutsY(c)};
                break;
            }
            case 9: {
                const double x2 = std::fmod(q, 3);
                c[2] = -3 * lead * x2;
                c[1] = p;
                conditions = {TangentSlope(c, x1), Inflection(x2), Through(c, std::fmod(p, 3) + 3), CutsY(c)};
                break;
            }
            default: {
                const double x2 = std::fmod(q, 3), pp = std::fmod(p, 4);
                c[2] = -3 * lead * x2;
                c[1] = -3 * lead * pp * pp - 2 * c[2] * pp;
                conditions = {ExtremumPoint(c, pp), Inflection(x2), CutsY(c)};
                break;
            }
            }
        }
        // The conditions must fix the polynomial, and its numbers must stay readable.
        bool readable = true;
        for (double v : c) readable = readable && std::fabs(v) <= 60;
        for (const auto& condition : conditions)
            if (!std::isnan(condition.extremumAt) && Bend(c, condition.extremumAt) == 0) readable = false;
        if (readable && std::fabs(Determinant(conditions, cubic ? 4 : 3)) > 1e-6) break;
        bound.Next();
    }
    std::string statement = "Let the function  &+If& &-I(&+Ix&-I)& =& ";
    statement += cubic ? "&+Iax^3& +& bx^2& +& cx& +& d&-I. Find the values of  &+Ia&-I,  &+Ib&-I,  &+Ic&-I  and  "
                         "&+Id&-I"
                       : "&+Iax^2& +& bx& +& c&-I. Find the values of  &+Ia&-I,  &+Ib&-I  and  &+Ic&-I";
    statement += " if the function ";
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        if (i > 0) statement += i + 1 == conditions.size() ? "  and " : ",  ";
        statement += conditions[i].words;
    }
    ws.Statement = statement + ".&LF";
    std::string solution;
    const char* names[] = {"a", "b", "c", "d"};
    const int degree = cubic ? 3 : 2;
    for (int k = degree; k >= 0; --k) {
        solution += std::string(k == degree ? "" : ",   ") + "&+I" + names[degree - k] + "&-I = " + Num(c[k]);
    }
    ws.Solution = solution + "&LF&+If& &-I(&+Ix&-I)& =& " +
                  PolynomialToMarkup(0, c[3], c[2], c[1], c[0], "&+Ix&-I") + "&LF";
}
