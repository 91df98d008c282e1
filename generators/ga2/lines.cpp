#include <cmath>
#include <string>

#include "generators/ga2/ga2_common.h"
#include "generators/ga2/ga2_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"
#include "mathservices/poly_markup.h"

namespace {
struct Vec2 {
    double x = 0, y = 0;
};

Vec2 operator+(Vec2 a, Vec2 b) { return {a.x + b.x, a.y + b.y}; }
Vec2 operator-(Vec2 a, Vec2 b) { return {a.x - b.x, a.y - b.y}; }
Vec2 operator*(double k, Vec2 a) { return {k * a.x, a.y * k}; }
double Cross(Vec2 a, Vec2 b) { return a.x * b.y - a.y * b.x; }
double Dot(Vec2 a, Vec2 b) { return a.x * b.x + a.y * b.y; }
Vec2 Turn(Vec2 a) { return {-a.y, a.x}; }

const std::string kParameter = "&+It&-I";

Vec2 DrawPoint(GeneratorWorkspace& ws, double low, double high) {
    const double x = RandomInRange(ws, low, high, 1, 0);
    const double y = RandomInRange(ws, low, high, 1, 0);
    return {x, y};
}
Vec2 DrawStep(GeneratorWorkspace& ws, double low, double high) {
    const double x = RandomInRange(ws, low, high, 1, 1);
    const double y = RandomInRange(ws, low, high, 1, 1);
    return {x, y};
}
int DrawForm(GeneratorWorkspace& ws) { return static_cast<int>(RandomInRange(ws, 0, 4, 1, 0)); }

// The line through p with direction v in one of its forms.
std::string Line(GeneratorWorkspace& ws, Vec2 p, Vec2 v, int form) {
    LineData line;
    line.point = {p.x, p.y, 0};
    line.direction = {v.x, v.y, 0};
    return VectorFormToMarkup(ws, line, static_cast<LineForm>(form), kParameter);
}
std::string General(GeneratorWorkspace& ws, Vec2 p, Vec2 v) { return Line(ws, p, v, 3); }

// a·x + b·y + c = 0 of the line through p with direction v, reduced.
void GeneralCoefficients(GeneratorWorkspace& ws, Vec2 p, Vec2 v, double& a, double& b, double& c) {
    a = v.y;
    b = -v.x;
    c = -(a * p.x + b * p.y);
    double unused = 0;
    ReduceTerms(ws, a, b, unused, c);
}

std::string Point(GeneratorWorkspace& ws, const std::string& label, Vec2 p) { return PointMarkup(ws, label, p.x, p.y); }

// The distance from q to the line through p with direction v, as a reduced root fraction.
std::string Distance(GeneratorWorkspace& ws, Vec2 q, Vec2 p, Vec2 v) {
    const double top = std::fabs(Cross(v, q - p));
    const double v2 = Dot(v, v);
    return RootFractionMarkup(ws, top, v2, v2);
}

// The acute angle between two directions, in degrees, minutes and seconds.
std::string AcuteAngle(Vec2 u, Vec2 v) {
    const double cosine = std::fabs(Dot(u, v)) / std::sqrt(Dot(u, u) * Dot(v, v));
    return AngleToDegreeMarkup(ArcCosine(std::fmin(1, cosine)) * 180 / kPi);
}

// Three points that are not aligned.
void Triangle(GeneratorWorkspace& ws, double low, double high, Vec2& a, Vec2& b, Vec2& c) {
    RetryBound bound;
    while (true) {
        a = DrawPoint(ws, low, high);
        b = DrawPoint(ws, low, high);
        c = DrawPoint(ws, low, high);
        if (Cross(b - a, c - a) != 0) return;
        bound.Next();
    }
}

// Two points that differ.
void TwoPoints(GeneratorWorkspace& ws, double low, double high, Vec2& a, Vec2& b) {
    RetryBound bound;
    while (true) {
        a = DrawPoint(ws, low, high);
        b = DrawPoint(ws, low, high);
        if (a.x != b.x || a.y != b.y) return;
        bound.Next();
    }
}

// The direction from a to b shortened by the common divisor.
Vec2 Shortened(GeneratorWorkspace& ws, Vec2 d) {
    const double g = std::fabs(Gcd(ws, d.x, d.y));
    return {d.x / g, d.y / g};
}
} // namespace

// Routine 3, by Seed mod 11: the five forms of a line; sides and area of a triangle;
// perpendicular bisector; parallel and perpendicular through a point; the line through
// two points; distance from a point; medians and barycentre; altitude and its length;
// distance between parallel lines; angle between two lines.
void LinesOne(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 11;
    Vec2 a, b, c;
    switch (type) {
    case 0: {
        const Vec2 p = DrawPoint(ws, -15, 19);
        const Vec2 v{RandomInRange(ws, -15, 15, 1, 1), RandomInRange(ws, -15, 15, 1, 0)};
        ws.Statement = "Find the equation of a line (vector, parametric, symmetric, general and  slope-intercept "
                       "forms) that passes through the point  " + Point(ws, "P", p) + "  and is parallel to vector  " +
                       VectorMarkup(ws, "v", v.x, v.y) + ".&LF";
        ws.Solution.clear();
        for (int form = 0; form < 5; ++form) ws.Solution += "&SP=10:" + Line(ws, p, v, form) + "&LF";
        break;
    }
    case 1:
        Triangle(ws, -15, 19, a, b, c);
        ws.Statement = "Let a triangle whose vertices are  " + Point(ws, "A", a) + ",  " + Point(ws, "B", b) + "  and  " +
                       Point(ws, "C", c) + ",  calculate:&LF" +
                       "    &+Ba)&-B The general equation of the line of each side.   &+Bb)&-B Area.&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  &+IAB&-I:& " + General(ws, a, b - a) + "     &+IBC&-I:& " +
                      General(ws, b, c - b) + "     &+ICA&-I:& " + General(ws, c, a - c) + "&LF&SP=10:&+Bb)&-B  Area& =& " +
                      TrimBlanks(FractionToMarkup(ws, std::fabs(Cross(b - a, c - a)), 2)) + "&LF";
        break;
    case 2: {
        // B differs from A by even steps, so that the midpoint is whole.
        a = DrawPoint(ws, -15, 19);
        const Vec2 half = DrawStep(ws, -8, 8);
        b = a + 2 * half;
        ws.Statement = "Find the general equation of the penpendicular bisector to the line segment whose end points "
                       "are " + Point(ws, "A", a) + "  and  " + Point(ws, "B", b) + ".&LF";
        ws.Solution = "&SP=10:" + General(ws, a + half, Turn(half)) + "&LF";
        break;
    }
    case 3:
    case 4:
    case 6: {
        TwoPoints(ws, -15, 19, a, b);
        const Vec2 q = DrawPoint(ws, -15, 15);
        const int form = type == 3 ? 3 : DrawForm(ws);
        const Vec2 v = Shortened(ws, b - a);
        const std::string line = Line(ws, a, v, form);
        if (type == 3) {
            ws.Statement = "Find the general equation of a line that is parallel to the line  " + line +
                           "  and passes through the point  " + Point(ws, "P", q) + ".&LF";
            ws.Solution = "&SP=10:" + General(ws, q, v) + "&LF";
        } else if (type == 4) {
            ws.Statement = "Find the general equation of a line that is perpendicular to the line  " + line +
                           "  and passes through the point  " + Point(ws, "P", q) + ".&LF";
            ws.Solution = "&SP=10:" + General(ws, q, Turn(v)) + "&LF";
        } else {
            ws.Statement = "Calculate the distance between the point  " + Point(ws, "P", q) + "  and the line  " + line +
                           ".&LF";
            ws.Solution = "&SP=10:&+Id&-I& =& " + Distance(ws, q, a, v) + "&LF";
        }
        break;
    }
    case 5: {
        // Not along an axis, so that the symmetric form exists.
        RetryBound bound;
        while (true) {
            TwoPoints(ws, -15, 19, a, b);
            if (a.x != b.x && a.y != b.y) break;
            bound.Next();
        }
        const Vec2 v = Shortened(ws, b - a);
        ws.Statement = "Find the equation of a line (symmetric, general and  slope-intercept forms) that passes "
                       "through the points  " + Point(ws, "A", a) + "  and  " + Point(ws, "B", b) + ".&LF";
        ws.Solution = "&SP=10:" + Line(ws, a, v, 2) + "&LF&SP=10:" + Line(ws, a, v, 3) + "&LF&SP=10:" + Line(ws, a, v, 4) +
                      "&LF";
        break;
    }
    case 7: {
        Triangle(ws, -15, 19, a, b, c);
        const Vec2 g = a + b + c;
        ws.Statement = "Let a triangle whose vertices are  " + Point(ws, "A", a) + ",  " + Point(ws, "B", b) + "  and  " +
                       Point(ws, "C", c) + ",  find:&LF" +
                       " &+Ba)&-B General equation of the median that passes through vertex  &+IA&-I.&LF" +
                       " &+Bb)&-B General equation of the median that passes through vertex  &+IB&-I.&LF" +
                       " &+Bc)&-B Barycenter.&LF";
        // Twice the step from a vertex to the middle of the opposite side stays whole.
        ws.Solution = "&SP=10:&+Ba)&-B  " + General(ws, a, b + c - 2 * a) + "     &+Bb)&-B  " +
                      General(ws, b, a + c - 2 * b) + "     &+Bc)&-B  &+IBaryc.&-I& #NES(()" +
                      FractionToMarkup(ws, g.x, 3) + ",& & " + FractionToMarkup(ws, g.y, 3) + "#NES)&LF";
        break;
    }
    case 8: {
        RetryBound bound;
        while (true) {
            a = DrawPoint(ws, -15, 19);
            b = DrawPoint(ws, -10, 15);
            c = DrawPoint(ws, -5, 19);
            if (Cross(b - a, c - a) != 0) break;
            bound.Next();
        }
        ws.Statement = "A triangle has the vertices  " + Point(ws, "A", a) + ",  " + Point(ws, "B", b) + "  and  " +
                       Point(ws, "C", c) +
                       ",  calculate the equation of the altitude that passes through  &+IA&-I and its length.&LF";
        ws.Solution = "&SP=10:" + General(ws, a, Turn(c - b)) + "     &+Ih&-I& =& " + Distance(ws, a, b, c - b) + "&LF";
        break;
    }
    case 9: {
        // Parallel lines: the second direction is a multiple of the first, its point off
        // the first line.
        Vec2 p, q, v;
        double k = 1;
        RetryBound bound;
        while (true) {
            p = DrawPoint(ws, -15, 19);
            v = DrawStep(ws, -5, 19);
            q = DrawPoint(ws, -10, 15);
            k = RandomInRange(ws, -2, 2, 1, 1);
            if (Cross(v, q - p) != 0) break;
            bound.Next();
        }
        const int form1 = DrawForm(ws), form2 = DrawForm(ws);
        ws.Statement = "Calculate the distance between the lines  &+IL_1:&-I& " + Line(ws, p, v, form1) +
                       "   and   &+IL_2:&-I& " + Line(ws, q, k * v, form2) + ".&LF";
        ws.Solution = "&SP=10:The lines are parallel:  &+Id&-I& =& " + Distance(ws, q, p, v) + "&LF";
        break;
    }
    default: {
        Vec2 p, q, u, v;
        RetryBound bound;
        while (true) {
            p = DrawPoint(ws, -15, 19);
            u = DrawStep(ws, -5, 19);
            q = DrawPoint(ws, -10, 15);
            v = DrawStep(ws, -5, 19);
            if (Cross(u, v) != 0) break;
            bound.Next();
        }
        const int form1 = DrawForm(ws), form2 = DrawForm(ws);
        ws.Statement = "Find the angle between the lines  &+IL_1:&-I& " + Line(ws, p, u, form1) +
                       "   and   &+IL_2:&-I& " + Line(ws, q, v, form2) + ".&LF";
        ws.Solution = "&SP=10:" + AcuteAngle(u, v) + "&LF";
        break;
    }
    }
}

// Routine 4, by Seed mod 9: relative position of two lines; a parameter for parallel,
// perpendicular lines and a line through a point; a line through a point; a point at a
// given distance; three aligned points; two parameters for parallel or perpendicular
// lines through a point; the point of a line equidistant from two points; intersection
// and angle; the constant of a line at a given distance.
void LinesTwo(GeneratorWorkspace& ws) {
    const std::string letter = DrawParameterLetter(ws);
    const int type = ws.Seed % 9;
    switch (type) {
    case 0: {
        // Intersecting at a whole point (70 %), parallel or the same line.
        Vec2 p{RandomInRange(ws, -12, 12, 1, 0), RandomInRange(ws, -15, 12, 1, 0)};
        const Vec2 u = DrawStep(ws, -5, 15);
        Vec2 q = DrawPoint(ws, -10, 15);
        Vec2 v = DrawStep(ws, -5, 15);
        const int form1 = DrawForm(ws), form2 = DrawForm(ws);
        const double s = RandomInRange(ws, -3, 3, 1, 1);
        std::string answer;
        if (Coin(ws, 0.3f)) {
            if (Cross(u, v) == 0) v = Turn(v);
            // The second line passes through a whole point of the first.
            const Vec2 meet = p + s * u;
            q = meet + s * v;
            answer = "&SP=10: Lines intersect at point " + Point(ws, "P", meet);
        } else if (Coin(ws, 0.5f)) {
            v = s * u;
            if (Cross(u, q - p) == 0) q = q + Turn(u);
            answer = "&SP=10: Lines are parallel: they do not intersect";
        } else {
            v = s * u;
            q = p + (s + 4) * u;
            answer = "&SP=10: The lines are coincident: every point of one is a point of the other";
        }
        ws.Statement = "Find the relative position of the lines  &+IL_1:&-I& " + Line(ws, p, u, form1) +
                       "  and  &+IL_2:&-I& " + Line(ws, q, v, form2) +
                       "  and calculate the intersection point if possible.&LF";
        ws.Solution = answer + "&LF";
        break;
    }
    case 1: {
        // L1: a·x + b·y + c = 0; L2: k·x + e·y + f = 0.
        double a = 0, b = 0, c = 0;
        Vec2 p, u;
        RetryBound bound;
        while (true) {
            p = DrawPoint(ws, -12, 12);
            u = DrawStep(ws, -5, 15);
            GeneralCoefficients(ws, p, u, a, b, c);
            if (a != 0 && b != 0) break;
            bound.Next();
        }
        const double e = RandomInRange(ws, -9, 9, 1, 1), f = RandomInRange(ws, -12, 12, 1, 0);
        const Vec2 point{RandomInRange(ws, -12, 12, 1, 1), RandomInRange(ws, -15, 12, 1, 1)};
        ws.Statement = "Consider the lines  &+IL&-I_1:& " + LinearFormToMarkup(a, b, 0, c, true) + "  and  &+IL&-I_2:& " +
                       LinearFormToMarkup(Coefficient(0, letter), e, 0, f, true) + ".   Find the value of parameter  " +
                       letter + "  for each of the following cases:" +
                       "  &+Ba)&-B& Lines are parallel.   &+Bb)&-B& Lines are perpendicular (orthogonal).   " +
                       "&+Bc)&-B& Line  &+IL_2&-I  passes through the point  " + Point(ws, "P", point) + ".&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  " + letter + "& =& " + TrimBlanks(FractionToMarkup(ws, a * e, b)) + "     &+Bb)&-B  " + letter +
                      "& =& " + TrimBlanks(FractionToMarkup(ws, -b * e, a)) + "     &+Bc)&-B  " + letter + "& =& " +
                      TrimBlanks(FractionToMarkup(ws, -(e * point.y + f), point.x)) + "&LF";
        break;
    }
    case 2: {
        const double b = RandomInRange(ws, -9, 9, 1, 1), c = RandomInRange(ws, -15, 15, 1, 0);
        const Vec2 point{RandomInRange(ws, -12, 12, 1, 1), RandomInRange(ws, -12, 12, 1, 0)};
        ws.Statement = "Find the value of parameter  " + letter + "  for which the line  " +
                       LinearFormToMarkup(Coefficient(0, letter), b, 0, c, true) + "   passes through the point  " +
                       Point(ws, "P", point) + ".&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + TrimBlanks(FractionToMarkup(ws, -(b * point.y + c), point.x)) + "&LF";
        break;
    }
    case 3: {
        // P = (px, letter) at a distance from a·x + b·y + c = 0 that the value k1 gives.
        double a = 0, b = 0, c = 0, px = 0, k1 = 0, top = 0;
        RetryBound bound;
        while (true) {
            a = RandomInRange(ws, -15, 15, 1, 0);
            b = RandomInRange(ws, -15, 12, 1, 1);
            c = RandomInRange(ws, -5, 18, 1, 1);
            px = RandomInRange(ws, -10, 20, 1, 1);
            k1 = RandomInRange(ws, 2, 20, 1, 1);
            double unused = 0;
            ReduceTerms(ws, a, b, unused, c);
            top = a * px + b * k1 + c;
            if (top != 0) break;
            bound.Next();
        }
        const double n2 = a * a + b * b;
        // The other value mirrors k1 in the foot of the line: a·px + b·k + c = -top.
        const double k2num = -top - a * px - c;
        ws.Statement = "Calculate the values of parameter  " + letter + "  for which the distance between the line  " +
                       LinearFormToMarkup(a, b, 0, c, true) + "  and the point& & &+IP&-I&(" + NumberToMarkup(px) +
                       ",& & " + letter + ")  is& & " + RootFractionMarkup(ws, std::fabs(top), n2, n2) + ".&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + NumberToMarkup(k1) + kOr + letter + "& =& " +
                      TrimBlanks(FractionToMarkup(ws, k2num, b)) + "&LF";
        break;
    }
    case 4: {
        const Vec2 a = DrawPoint(ws, -12, 12);
        Vec2 d = DrawStep(ws, -7, 8);
        const double t = RandomInRange(ws, 1, 3, 1, 1);
        const Vec2 b = a + d, c = b + t * d;
        ws.Statement = "Calculate the value of parameter  " + letter + "  for which the points  " + Point(ws, "A", a) +
                       ",  " + Point(ws, "B", b) + "  and  &+IC&-I&(" + letter + ",& & " + NumberToMarkup(c.y) +
                       ")  are aligned and find the equation of the line that passes through the points.&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + NumberToMarkup(c.x) + "     " + General(ws, a, d) + "&LF";
        break;
    }
    case 5: {
        // L1: a·x + letter·y + c = 0; L2: b·x + e·y + second = 0.
        const std::string second = DrawSecondParameterLetter(ws, letter);
        const double a = RandomInRange(ws, -22, 22, 1, 1), c = RandomInRange(ws, -25, 22, 1, 1);
        const double b = RandomInRange(ws, -12, 29, 1, 1), e = RandomInRange(ws, -25, 29, 1, 1);
        const Vec2 point{RandomInRange(ws, -15, 30, 1, 1), RandomInRange(ws, -15, 30, 1, 1)};
        const bool parallel = Coin(ws, 0.5f);
        ws.Statement = "Consider the lines   &+IL&-I_1:& " +
                       LinearFormToMarkup(a, Coefficient(0, letter), 0, c, true) + "  and  &+IL&-I_2:& " +
                       LinearFormToMarkup(b, e, 0, Coefficient(0, second), true) + ",   find the values of parameters  " +
                       letter + "  and  " + second + " for which the lines are " +
                       (parallel ? "parallel" : "perpendicular (orthogonal)") +
                       " and the line& &+IL_2&-I  passes through the point& & " + Point(ws, "P", point) + ".&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " +
                      TrimBlanks(parallel ? FractionToMarkup(ws, a * e, b) : FractionToMarkup(ws, -a * b, e)) + ",   " + second +
                      "& =& " + NumberToMarkup(-(b * point.x + e * point.y)) + "&LF";
        break;
    }
    case 6: {
        // A and B = X + the step turned by a right angle are as far from X; the line
        // through X must cross the perpendicular bisector of AB.
        Vec2 x, w, u;
        RetryBound bound;
        while (true) {
            x = DrawPoint(ws, -10, 12);
            w = DrawStep(ws, -9, 9);
            u = DrawStep(ws, -6, 9);
            if (Dot(u, Turn(w) - w) != 0) break;
            bound.Next();
        }
        const int form = DrawForm(ws);
        ws.Statement = "Consider the line  " + Line(ws, x, u, form) +
                       ". Calculate a point of this line that is equidistant from the points  " + Point(ws, "A", x + w) +
                       "  and  " + Point(ws, "B", x + Turn(w)) + ".&LF";
        ws.Solution = "&SP=10:" + Point(ws, "P", x) + "&LF";
        break;
    }
    case 7: {
        Vec2 meet, u, v;
        RetryBound bound;
        while (true) {
            meet = DrawPoint(ws, -10, 12);
            u = DrawStep(ws, -6, 9);
            v = DrawStep(ws, -6, 9);
            if (Cross(u, v) != 0) break;
            bound.Next();
        }
        const double s = RandomInRange(ws, -3, 3, 1, 1), t = RandomInRange(ws, -3, 3, 1, 1);
        const int form1 = DrawForm(ws), form2 = DrawForm(ws);
        ws.Statement = "Find the intersection point and the angle between the following pairs of lines:&LF" +
                       std::string("    &+IL_1:&-I& ") + Line(ws, meet + s * u, u, form1) + ";     &+IL_2:&-I& " +
                       Line(ws, meet + t * v, v, form2) + "&LF";
        ws.Solution = "&SP=10:" + Point(ws, "P", meet) + "     " + AcuteAngle(u, v) + "&LF";
        break;
    }
    default: {
        // a·x + b·y + letter = 0 with a² + b² a square, so both values are whole.
        double a = 0, b = 0, s = 0;
        PlaneTriple(ws, 25, a, b, s);
        if (RandomInRange(ws, -24, 24, 1, 1) < 0) b = -b;
        const Vec2 p{RandomInRange(ws, -10, 20, 1, 1), RandomInRange(ws, -14, 20, 1, 1)};
        const double d = RandomInRange(ws, 2, 12, 1, 1);
        const double base = -(a * p.x + b * p.y);
        ws.Statement = "Calculate the value(s) of parameter  " + letter + "  for which the distance between the line  " +
                       LinearFormToMarkup(a, b, 0, Coefficient(0, letter), true) + "   and the point  " +
                       Point(ws, "P", p) + "  is " + NumberToMarkup(d) + ".&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + NumberToMarkup(base + d * s) + kOr + letter + "& =& " +
                      NumberToMarkup(base - d * s) + "&LF";
        break;
    }
    }
}
