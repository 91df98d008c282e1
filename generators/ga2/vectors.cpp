#include <cmath>
#include <string>

#include "generators/ga2/ga2_common.h"
#include "generators/ga2/ga2_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"

namespace {
std::string AngleBetween(MathWorkspace& ws, double ux, double uy, double vx, double vy) {
    const double cosine = (ux * vx + uy * vy) / std::sqrt((ux * ux + uy * uy) * (vx * vx + vy * vy));
    (void)ws;
    return AngleToDegreeMarkup(ArcCosine(std::fmax(-1, std::fmin(1, cosine))) * 180 / kPi);
}

// (1/|u|)·u with the root in the denominator.
std::string UnitVector(MathWorkspace& ws, double x, double y) {
    // Shortened by the common divisor first: (6, 8)/10 is (3, 4)/5.
    const double g = std::fabs(Gcd(ws, x, y));
    x /= g;
    y /= g;
    return "#COC(1#N)(" + RootMarkup(ws, x * x + y * y) + "#COC)#NES(()" + NumberToMarkup(x) + ",& & " +
           NumberToMarkup(y) + "#NES)";
}

const std::string kU = "#VEC(&+Iu&-I#VEC)";
const std::string kV = "#VEC(&+Iv&-I#VEC)";
const std::string kW = "#VEC(&+Iw&-I#VEC)";
} // namespace

// Routine 1, by Seed mod 9: a parameter for a given magnitude, parallel and orthogonal
// vectors; magnitudes, dot product and angle; angles of two pairs; unit vectors; the
// coefficients of a linear combination; scalar and vector projection; two parameters of
// an orthogonal vector of given magnitude; perpendicular vectors of a multiple of the
// magnitude; the vector orthogonal to one with a given dot product with another.
void VectorsOne(GeneratorWorkspace& ws) {
    const std::string letter = DrawParameterLetter(ws);
    const int type = ws.Seed % 9;
    switch (type) {
    case 0: {
        // u = (letter, a), v = (b, c): |u|² = L0² + a² gives ±L0; parallel at a·b/c;
        // orthogonal at -a·c/b.
        const double a = RandomInRange(ws, -15, 19, 1, 1);
        const double b = RandomInRange(ws, -15, 15, 1, 1);
        const double c = RandomInRange(ws, -15, 15, 1, 1);
        const double l0 = RandomInRange(ws, 2, 14, 1, 1);
        ws.Statement = "Consider the vectors  " + kU + "(" + letter + ",& & " + NumberToMarkup(a) + ")  and  " +
                       VectorMarkup(ws, "v", b, c) + ".  Find the value(s) of parameter " + letter +
                       " for each of the following cases:" + " &+Ba)&-B& Magnitude of vector " + kU + " is " +
                       RootMarkup(ws, l0 * l0 + a * a) + ".  &+Bb)&-B&  Vectors are parallel." +
                       "  &+Bc)&-B& Vectors are orthogonal (perpendicular).&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  " + letter + "& =& ±& " + NumberToMarkup(std::fabs(l0)) +
                      "     &+Bb)&-B  " + letter + "& =& " + TrimBlanks(FractionToMarkup(ws, a * b, c)) + "     &+Bc)&-B  " +
                      letter + "& =& " + TrimBlanks(FractionToMarkup(ws, -a * c, b)) + "&LF";
        break;
    }
    case 1: {
        const double ux = RandomInRange(ws, -31, 31, 1, 1), uy = RandomInRange(ws, -31, 31, 1, 1);
        const double vx = RandomInRange(ws, -31, 31, 1, 1), vy = RandomInRange(ws, -31, 31, 1, 1);
        ws.Statement = "Consider the vectors  " + VectorMarkup(ws, "u", ux, uy) + "  and  " +
                       VectorMarkup(ws, "v", vx, vy) + ".  Find:&LF" +
                       "  &+Ba)&-B& Magnitude of each vector.  &+Bb)&-B& Scalar product (dot product)." +
                       "  &+Bc)&-B& Angle between these vectors.&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  |" + kU + "|& =& " + RootMarkup(ws, ux * ux + uy * uy) + ",   |" + kV +
                      "|& =& " + RootMarkup(ws, vx * vx + vy * vy) + "     &+Bb)&-B  " + kU + "& ·& " + kV + "& =& " +
                      NumberToMarkup(ux * vx + uy * vy) + "     &+Bc)&-B  " + AngleBetween(ws, ux, uy, vx, vy) + "&LF";
        break;
    }
    case 2: {
        ws.Statement = "Calculate the angle between the following pairs of vectors:&LF";
        ws.Solution = "&SP=10:";
        for (int part = 0; part < 2; ++part) {
            const double ux = RandomInRange(ws, -25, 26, 1, 1), uy = RandomInRange(ws, -25, 26, 1, 1);
            const double vx = RandomInRange(ws, -25, 26, 1, 1), vy = RandomInRange(ws, -25, 26, 1, 1);
            const std::string label = part == 0 ? "&+Ba)&-B " : "&+Bb)&-B ";
            ws.Statement += "&SP=5:" + label + VectorMarkup(ws, "u", ux, uy) + "  and  " +
                            VectorMarkup(ws, "v", vx, vy) + "&LF";
            ws.Solution += (part == 0 ? "" : "     ") + label + " " + AngleBetween(ws, ux, uy, vx, vy);
        }
        ws.Solution += "&LF";
        break;
    }
    case 3: {
        const double ux = RandomInRange(ws, -45, 45, 1, 1), uy = RandomInRange(ws, -45, 45, 1, 1);
        const double vx = RandomInRange(ws, -45, 45, 1, 1), vy = RandomInRange(ws, -45, 45, 1, 1);
        ws.Statement = "Find the unit vector of each of the following vectors:&LF&SP=5:&+Ba)&-B " +
                       VectorMarkup(ws, "u", ux, uy) + "     &+Bb)&-B " + VectorMarkup(ws, "v", vx, vy) + "&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  " + UnitVector(ws, ux, uy) + "     &+Bb)&-B  " + UnitVector(ws, vx, vy) + "&LF";
        break;
    }
    case 4: {
        // w = p·u + q·v with u and v not parallel, so that p and q are the one answer.
        double ux = 0, uy = 0, vx = 0, vy = 0;
        RetryBound bound;
        while (true) {
            ux = RandomInRange(ws, -10, 12, 1, 1);
            uy = RandomInRange(ws, -10, 12, 1, 1);
            vx = RandomInRange(ws, -10, 12, 1, 1);
            vy = RandomInRange(ws, -10, 12, 1, 1);
            if (ux * vy - uy * vx != 0) break;
            bound.Next();
        }
        const double p = RandomInRange(ws, 2, 7, 1, 1), q = RandomInRange(ws, 2, 7, 1, 1);
        ws.Statement = "Find the value of  &+Ix&-I  and  &+Iy&-I  for which verify the following linear combination:  " +
                       PairMarkup(ws, p * ux + q * vx, p * uy + q * vy) + "& =& &+Ix&-I& " + PairMarkup(ws, ux, uy) +
                       "& +& &+Iy&-I& " + PairMarkup(ws, vx, vy) + "&LF";
        ws.Solution = "&SP=10:&+Ix&-I& =& " + NumberToMarkup(p) + ",   &+Iy&-I& =& " + NumberToMarkup(q) + "&LF";
        break;
    }
    case 5: {
        double ux = RandomInRange(ws, -31, 31, 1, 1), uy = RandomInRange(ws, -31, 31, 1, 1);
        double vx = RandomInRange(ws, -31, 31, 1, 1), vy = RandomInRange(ws, -31, 31, 1, 1);
        const double gu = std::fabs(Gcd(ws, ux, uy)), gv = std::fabs(Gcd(ws, vx, vy));
        ux /= gu; uy /= gu; vx /= gv; vy /= gv;
        const double dot = ux * vx + uy * vy, v2 = vx * vx + vy * vy;
        ws.Statement = "Calculate magnitude and vector projection of  " + VectorMarkup(ws, "u", ux, uy) +
                       "  in the direction of  " + VectorMarkup(ws, "v", vx, vy) + ".&LF";
        // A magnitude is never negative: the length of the projection, whatever the side.
        ws.Solution = "&SP=10:Magnitude of the projection& =& " + RootFractionMarkup(ws, std::fabs(dot), v2, v2) +
                      "     Vector projection& =& (" + TrimBlanks(FractionToMarkup(ws, dot * vx, v2)) + ",& & " +
                      FractionToMarkup(ws, dot * vy, v2) + ")&LF";
        break;
    }
    case 6: {
        // v = (h, k) orthogonal to u, of magnitude t times the shortest whole one, h > 0.
        const std::string second = DrawSecondParameterLetter(ws, letter);
        const double a = RandomInRange(ws, -35, 29, 1, 1);
        const double t = RandomInRange(ws, 3, 35, 1, 1);
        const double c = RandomInRange(ws, -35, 35, 1, 1);
        const double g = std::fabs(Gcd(ws, a, c));
        double h = -c / g * t, k = a / g * t;
        if (h < 0) { h = -h; k = -k; }
        ws.Statement = "Consider the vectors  " + VectorMarkup(ws, "u", a, c) + "  and  " + kV + "(" + letter +
                       ",& & " + second + ").  Find the values of parameters  " + letter + "  and  " + second +
                       " for which  " + kU + "  and  " + kV + "  are perpendicular (orthogonal), magnitude of  " + kV +
                       "  is " + RootMarkup(ws, h * h + k * k) + "  and  " + letter + "& >& 0.&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + NumberToMarkup(h) + ",   " + second + "& =& " + NumberToMarkup(k) +
                      "&LF";
        break;
    }
    case 7: {
        const double ux = RandomInRange(ws, -15, 25, 1, 1), uy = RandomInRange(ws, -15, 25, 1, 1);
        const double vx = RandomInRange(ws, -15, 25, 1, 1), vy = RandomInRange(ws, -15, 25, 1, 1);
        const double f = RandomInRange(ws, 2, 3, 1, 1);
        ws.Statement = std::string("For each vector, calculate a perpendicular vector whose magnitude is ") +
                       (f == 2 ? "twice" : "three times") + " the magnitude of each vector.&LF&SP=5:&+Ba)&-B " +
                       VectorMarkup(ws, "u", ux, uy) + "     &+Bb)&-B " + VectorMarkup(ws, "v", vx, vy) + "&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  " + PairMarkup(ws, -f * uy, f * ux) + "  &+Ior&-I  " +
                      PairMarkup(ws, f * uy, -f * ux) + "     &+Bb)&-B  " + PairMarkup(ws, -f * vy, f * vx) +
                      "  &+Ior&-I  " + PairMarkup(ws, f * vy, -f * vx) + "&LF";
        break;
    }
    default: {
        // w = t·(-b, a)/g is orthogonal to u = (a, b); its dot product with v is given.
        double a = 0, b = 0, c = 0, d = 0, t = 0, dot = 0, wx = 0, wy = 0;
        RetryBound bound;
        while (true) {
            a = RandomInRange(ws, -25, 35, 1, 1);
            b = RandomInRange(ws, -25, 35, 1, 1);
            c = RandomInRange(ws, -25, 35, 1, 1);
            d = RandomInRange(ws, -25, 35, 1, 1);
            t = RandomInRange(ws, -4, 4, 1, 1);
            const double g = std::fabs(Gcd(ws, a, b));
            wx = -b / g * t;
            wy = a / g * t;
            dot = wx * c + wy * d;
            if (dot != 0) break;
            bound.Next();
        }
        ws.Statement = "Consider the vectors  " + VectorMarkup(ws, "u", a, b) + "  and  " + VectorMarkup(ws, "v", c, d) +
                       ".  Find a vector " + kW + " perpendicular (orthogonal) to  " + kU + "  and verifies  " + kW +
                       "& ·& " + kV + "& =& " + NumberToMarkup(dot) + ".&LF";
        ws.Solution = "&SP=10:" + VectorMarkup(ws, "w", wx, wy) + "&LF";
        break;
    }
    }
}

// Routine 2, by Seed mod 8: the parameter that aligns three points; midpoint; the other
// end from the midpoint; vector and distance; aligned or not; the other vertices of a
// square; the area of a right triangle; the parameter for a given distance.
void VectorsTwo(GeneratorWorkspace& ws) {
    const std::string letter = DrawParameterLetter(ws);
    const int type = ws.Seed % 8;
    auto point = [&](double low, double high, double& x, double& y) {
        x = RandomInRange(ws, low, high, 1, 0);
        y = RandomInRange(ws, low, high, 1, 0);
    };
    auto step = [&](double low, double high, double& x, double& y) {
        x = RandomInRange(ws, low, high, 1, 1);
        y = RandomInRange(ws, low, high, 1, 1);
    };
    double ax = 0, ay = 0, dx = 0, dy = 0;
    switch (type) {
    case 0: {
        point(-5, 5, ax, ay);
        step(-7, 8, dx, dy);
        const double t = RandomInRange(ws, 1, 4, 1, 1);
        const double bx = ax + dx, by = ay + dy, cx = bx + t * dx, cy = by + t * dy;
        ws.Statement = "Find the value of parameter  " + letter + "  for which the points  " +
                       PointMarkup(ws, "A", ax, ay) + ",  " + PointMarkup(ws, "B", bx, by) + "  and  &+IC&-I&(" +
                       letter + ",& & " + NumberToExactMarkup(ws, cy) + ")  are aligned.&LF";
        ws.Solution = "&SP=10:" + letter + " = " + NumberToMarkup(cx) + "&LF";
        break;
    }
    case 1:
    case 2: {
        point(-8, 12, ax, ay);
        step(-15, 15, dx, dy);
        const std::string a = PointMarkup(ws, "A", ax, ay), b = PointMarkup(ws, "B", ax + 2 * dx, ay + 2 * dy);
        const std::string m = PointMarkup(ws, "M", ax + dx, ay + dy);
        if (type == 1) {
            ws.Statement = "Calculate the midpoint  &+IM&-I  of the line segment whose end points are  " + a + "  and  " +
                           b + ".&LF";
            ws.Solution = "&SP=10:" + m + "&LF";
        } else {
            ws.Statement = "Consider the line segment  &+IAB&-I, the end point  " + a + "  and the midpoint  " + m +
                           ".  Find the other end point &+IB&-I.&LF";
            ws.Solution = "&SP=10:" + b + "&LF";
        }
        break;
    }
    case 3:
        point(-8, 12, ax, ay);
        step(-25, 25, dx, dy);
        ws.Statement = "We know the points  " + PointMarkup(ws, "A", ax, ay) + "  and  " +
                       PointMarkup(ws, "B", ax + dx, ay + dy) +
                       ".  Calculate vector #VEC(&+IAB&-I#VEC) and the distance between these points.&LF";
        ws.Solution = "&SP=10:" + VectorMarkup(ws, "AB", dx, dy) + ",   &+Id&-I(&+IA&-I,& &+IB&-I)& =& " +
                      RootMarkup(ws, dx * dx + dy * dy) + "&LF";
        break;
    case 4: {
        ws.Statement = "Determine if the following points are or are not aligned.:&LF";
        ws.Solution = "&SP=10:";
        for (int part = 0; part < 2; ++part) {
            point(-15, 15, ax, ay);
            step(-7, 8, dx, dy);
            const double t = RandomInRange(ws, 1, 4, 1, 1);
            const double shift = RandomInRange(ws, 1, 7, 1, 1);
            const bool aligned = Coin(ws, 0.5f);
            const double bx = ax + dx, by = ay + dy, cx = bx + t * dx, cy = by + t * dy + (aligned ? 0 : shift);
            const std::string label = part == 0 ? "&+Ba)&-B " : "&+Bb)&-B ";
            ws.Statement += "&SP=5:" + label + PointMarkup(ws, "A", ax, ay) + ",  " + PointMarkup(ws, "B", bx, by) +
                            ",  " + PointMarkup(ws, "C", cx, cy) + "&LF";
            ws.Solution += (part == 0 ? "" : "     ") + label + (aligned ? "Aligned" : "Non-aligned");
        }
        ws.Solution += "&LF";
        break;
    }
    case 5: {
        // Opposite vertices A and C = A + 2d; B and D are the centre plus and minus d
        // turned by a right angle.
        point(-8, 12, ax, ay);
        step(-15, 15, dx, dy);
        const double mx = ax + dx, my = ay + dy;
        ws.Statement = "The points  " + PointMarkup(ws, "A", ax, ay) + "  and  " +
                       PointMarkup(ws, "C", ax + 2 * dx, ay + 2 * dy) +
                       " are opposite vertices of the square &+IABCD&-I.  Find the other two vertices &+IB&-I  and  "
                       "&+ID&-I.&LF";
        ws.Solution = "&SP=10:" + PointMarkup(ws, "B", mx + dy, my - dx) + ",  " + PointMarkup(ws, "D", mx - dy, my + dx) +
                      "&LF";
        break;
    }
    case 6: {
        point(-8, 12, ax, ay);
        step(-10, 10, dx, dy);
        const double k = RandomInRange(ws, 2, 4, 1, 1);
        ws.Statement = "The vertices of a right triangle are  " + PointMarkup(ws, "A", ax, ay) + ",  " +
                       PointMarkup(ws, "B", ax + dx, ay + dy) + "  and  " +
                       PointMarkup(ws, "C", ax - k * dy, ay + k * dx) +
                       ".  If the right angle is at the point &+IA&-I, calculate the area of this triangle.&LF";
        ws.Solution = "&SP=10:Area& =& " + TrimBlanks(FractionToMarkup(ws, k * (dx * dx + dy * dy), 2)) + "&LF";
        break;
    }
    default: {
        point(-8, 12, ax, ay);
        step(-25, 25, dx, dy);
        ws.Statement = "Calculate the value of parameter  " + letter + "  for which the distance between the points  " +
                       PointMarkup(ws, "A", ax, ay) + "  and  &+IB&-I&(" + letter + ",& & " +
                       NumberToExactMarkup(ws, ay + dy) + ")  is " + RootMarkup(ws, dx * dx + dy * dy) + ".&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + NumberToMarkup(ax + dx) + kOr + letter + "& =& " +
                      NumberToMarkup(ax - dx) + "&LF";
        break;
    }
    }
}
