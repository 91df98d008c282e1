#include "generators/shared/three_equation_systems.h"

#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// A coefficient of -6..6; a coin keeps four in ten of them small, for a system that is
// solved by hand.
double DrawCoefficient(GeneratorWorkspace& ws) {
    double v = RandomInRange(ws, -6, 6, 1, 0);
    if (Coin(ws, 0.6f)) v = std::trunc(v / 2);
    return v == 0 ? 0 : v;
}

Vec3 DrawCoefficients(GeneratorWorkspace& ws) {
    Vec3 a;
    for (int i = 0; i < 3; ++i) a[i] = DrawCoefficient(ws);
    return a;
}

bool RowFits(const LinearRow& row) {
    if (IsNull(row.a)) return false;
    for (int i = 0; i < 3; ++i) {
        if (std::fabs(row.a[i]) > 15) return false;
    }
    return std::fabs(row.d) <= 99;
}

LinearRow Combination(double alpha, const LinearRow& r0, double beta, const LinearRow& r1) {
    LinearRow r;
    r.a = alpha * r0.a + beta * r1.a;
    r.d = alpha * r0.d + beta * r1.d;
    return r;
}

// The first two rows: drawn coefficients, with the right sides that the point p solves.
void DrawRowsThrough(GeneratorWorkspace& ws, ThreeEquationSystem& s, const Vec3& p) {
    for (int i = 0; i < 2; ++i) {
        s.rows[i].a = DrawCoefficients(ws);
        s.rows[i].d = Dot(s.rows[i].a, p);
    }
}

// The third row as a combination of the first two, with multiples of -3..3 but 0.
LinearRow DrawCombination(GeneratorWorkspace& ws, const ThreeEquationSystem& s) {
    const double alpha = RandomInRange(ws, -3, 3, 1, 1);
    const double beta = RandomInRange(ws, -3, 3, 1, 1);
    return Combination(alpha, s.rows[0], beta, s.rows[1]);
}

std::string RowMarkup(const LinearRow& row, const std::string& letter) {
    Coefficient c[3] = {row.a.x, row.a.y, row.a.z};
    if (row.letterColumn >= 0) c[row.letterColumn] = Coefficient(0, letter);
    return LinearFormToMarkup(c[0], c[1], c[2], row.d, false);
}

// Three rows in the brace of a system.
std::string SystemMarkup(const ThreeEquationSystem& s, int rotation) {
    std::string out = "#NES(X}#RWS(R";
    for (int i = 0; i < 3; ++i) {
        const std::string n = std::to_string(i + 1);
        out += "#RW" + n + "(" + RowMarkup(s.rows[(i + rotation) % 3], s.letter) + "#RW" + n + ")";
    }
    return out + "#RWS)#NES)&LF";
}

// The plane (the third row) and the line (the first two).
std::string PlaneAndLineMarkup(const ThreeEquationSystem& s) {
    return " &+I&pi&-I :  " + RowMarkup(s.rows[2], s.letter) + ",           &+IL&-I& :  #NES({X#RWS(L#RW1(" +
           RowMarkup(s.rows[0], s.letter) + "#RW1)#RW2(" + RowMarkup(s.rows[1], s.letter) +
           "#RW2)#RWS)#NES)&LF";
}

std::string Number(double v) { return PlainNumberText(v); }

std::string SolutionPointText(const Vec3& p) {
    return Number(p.x) + ",  " + Number(p.y) + ",  " + Number(p.z);
}

// The three co-ordinates of a solution as the literal writes them.
std::string SolutionValues(const Vec3& p) {
    return "&+I x = " + Number(p.x) + ",   y = " + Number(p.y) + ",   z = &-I" + Number(p.z);
}
} // namespace

std::string AffineMarkup(double constant, double coefficient, const std::string& variable) {
    std::string out = constant != 0 ? PlainNumberText(constant) : "";
    if (coefficient == 0) return out.empty() ? "0" : out;
    const std::string term =
        (std::fabs(coefficient) == 1 ? "" : PlainNumberText(std::fabs(coefficient))) + variable;
    if (out.empty()) return (coefficient < 0 ? "-" : "") + term;
    return out + (coefficient < 0 ? " - " : " + ") + term;
}

ThreeEquationSystem BuildSystemWithoutParameter(GeneratorWorkspace& ws, SystemCase kind) {
    ThreeEquationSystem s;
    s.kind = kind;
    RetryBound bound;
    while (true) {
        bool ok = true;
        if (kind == SystemCase::Determinate) {
            s.solution = DrawVector(ws, -8, 8, 0);
            for (auto& row : s.rows) {
                row.a = DrawCoefficients(ws);
                row.d = Dot(row.a, s.solution);
            }
            ok = Triple(s.rows[0].a, s.rows[1].a, s.rows[2].a) != 0;
        } else if (kind == SystemCase::Indeterminate) {
            // The line x = x0 + u·λ, y = y0 + w·λ, z = λ, and two planes through it.
            const double x0 = RandomInRange(ws, -8, 8, 1, 0);
            const double y0 = RandomInRange(ws, -8, 8, 1, 0);
            const double u = RandomInRange(ws, -3, 3, 1, 0);
            const double w = RandomInRange(ws, -3, 3, 1, 0);
            s.solutionLine = {{x0, y0, 0}, {u, w, 1}};
            for (int i = 0; i < 2; ++i) {
                const double a = DrawCoefficient(ws);
                const double b = DrawCoefficient(ws);
                s.rows[i].a = {a, b, -(a * u + b * w)};
                s.rows[i].d = a * x0 + b * y0;
            }
            s.rows[2] = DrawCombination(ws, s);
            ok = !AreParallel(s.rows[0].a, s.rows[1].a);
        } else {
            const Vec3 p = DrawVector(ws, -8, 8, 0);
            DrawRowsThrough(ws, s, p);
            s.rows[2] = DrawCombination(ws, s);
            const double shift = RandomInRange(ws, 1, 5, 1, 1);
            s.rows[2].d += Coin(ws, 0.5f) ? shift : -shift;
            ok = !AreParallel(s.rows[0].a, s.rows[1].a);
        }
        for (const auto& row : s.rows) ok = ok && RowFits(row);
        if (ok) break;
        bound.Next();
    }
    return s;
}

ThreeEquationSystem BuildSystemWithParameter(GeneratorWorkspace& ws, SystemCase kind, const std::string& letters) {
    ThreeEquationSystem s;
    s.kind = kind;
    s.letter = DrawParameterLetter(ws, letters);
    const int column = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1)) - 1;
    s.statedValue = RandomInRange(ws, 1, 5, 1, 1);
    RetryBound bound;
    while (true) {
        Vec3 p = DrawVector(ws, -9, 9, 0);
        // Where the rank drops to an indeterminate system, the stated solution must not
        // depend on the letter: its co-ordinate under the letter is 0.
        if (kind == SystemCase::Indeterminate) p[column] = 0;
        DrawRowsThrough(ws, s, p);
        s.rows[2] = DrawCombination(ws, s);
        s.rows[2].letterColumn = column;
        s.criticalValue = s.rows[2].a[column];
        // At the stated value the third row is the combination plus (stated - critical)
        // in the letter's column; the right side follows so that p solves it.
        s.rows[2].d += (s.statedValue - s.criticalValue) * p[column] * (kind == SystemCase::Incompatible ? 1 : 0);
        s.solution = p;
        const Vec3 normal = Cross(s.rows[0].a, s.rows[1].a);
        bool ok = normal[column] != 0 && std::fabs(s.criticalValue) <= 9 && s.criticalValue != s.statedValue;
        if (kind == SystemCase::Incompatible) ok = ok && p[column] != 0;
        for (const auto& row : s.rows) ok = ok && RowFits(row);
        if (ok) {
            s.solutionLine = {p, Reduced(ws, normal, true)};
            break;
        }
        bound.Next();
    }
    return s;
}

void SolveSystemWithoutParameter(GeneratorWorkspace& ws, int mode) {
    const int remainder = ws.Seed % 3;
    const SystemCase kind = static_cast<SystemCase>(remainder);
    const ThreeEquationSystem s = BuildSystemWithoutParameter(ws, kind);
    if (mode == 0) {
        // The combination row is not always the last one.
        const int rotation = static_cast<int>(RandomInRange(ws, 0, 2, 1, 0));
        ws.Statement = "Discuss and solve the following system of linear equations:&LF&SP=10:" + SystemMarkup(s, rotation);
        switch (kind) {
        case SystemCase::Determinate:
            ws.Solution = "&SP=10:&-ICompatible determinate system.  " + SolutionValues(s.solution) + "&LF";
            break;
        case SystemCase::Indeterminate: {
            const Line3& l = s.solutionLine;
            ws.Solution = "&SP=10:&-ICompatible indeterminate system.  &+I x = " +
                          AffineMarkup(l.point.x, l.direction.x, "&lambda") + ",   y = " +
                          AffineMarkup(l.point.y, l.direction.y, "&lambda") +
                          ",   z = &lambda,     &lambda &-I&perte &real&LF";
            break;
        }
        case SystemCase::Incompatible:
            ws.Solution = "&SP=10:&-IIncompatible (contradictory) system.&LF";
            break;
        }
        return;
    }
    ws.Statement = "Discuss the intersection of the following plane and line. Find the intersection point if possible.&LF"
                   "&SP=10:" + PlaneAndLineMarkup(s);
    switch (kind) {
    case SystemCase::Determinate:
        ws.Solution = "&SP=10:&-IThey intersect at the point  &+IP&-I (" + SolutionPointText(s.solution) + ")&LF";
        break;
    case SystemCase::Indeterminate:
        ws.Solution = "&SP=10:&-IThe line lies in the plane.&LF";
        break;
    case SystemCase::Incompatible:
        ws.Solution = "&SP=10:&-IThe line is parallel to the plane.&LF";
        break;
    }
}

void SolveSystemWithParameter(GeneratorWorkspace& ws, int mode) {
    const SystemCase kind = ws.Seed % 2 == 0 ? SystemCase::Incompatible : SystemCase::Indeterminate;
    const ThreeEquationSystem s = BuildSystemWithParameter(ws, kind, mode == 0 ? "akmnpq" : "ahkmnpqrw");
    const std::string& k = s.letter;
    const std::string critical = Number(s.criticalValue);
    const std::string stated = Number(s.statedValue);
    if (mode == 0) {
        const int rotation = static_cast<int>(RandomInRange(ws, 0, 2, 1, 0));
        if (kind == SystemCase::Incompatible) {
            // Off the critical value the solution depends on the letter, so one value is stated.
            ws.Statement = "Discuss and solve the following system of linear equations according to the values of "
                           "parameter  " + k + ".  Solve it when parameter is  " + stated + ".&LF&SP=10:" +
                           SystemMarkup(s, rotation);
            ws.Solution = "&SP=10:&-IIncompatible if  " + k + " = " + critical + ".   Compatible determinate if  " + k +
                          " &!= " + critical + ".&LF" + "&SP=10:When  " + k + " = " + stated + ":  " +
                          SolutionValues(s.solution) + "&LF";
        } else {
            ws.Statement = "Discuss the following system of linear equations according to the values of parameter  " + k +
                           "  and solve the system if possible.&LF&SP=10:" + SystemMarkup(s, rotation);
            const Line3& l = s.solutionLine;
            ws.Solution = "&SP=10:&-ICompatible indeterminate if  " + k + " = " + critical + ":  &+I x = " +
                          AffineMarkup(l.point.x, l.direction.x, "&lambda") + ",   y = " +
                          AffineMarkup(l.point.y, l.direction.y, "&lambda") + ",   z = " +
                          AffineMarkup(l.point.z, l.direction.z, "&lambda") +
                          ",     &lambda &-I&perte &real.&LF" + "&SP=10:&-ICompatible determinate if  " + k + " &!= " +
                          critical + ":  " + SolutionValues(s.solution) + "&LF";
        }
        return;
    }
    ws.Statement = "Discuss the intersection of the following plane and line according to the values of parameter  " +
                   k + ".  Find the intersection point (if possible) when parameter is  " + stated + ".&LF&SP=10:" +
                   PlaneAndLineMarkup(s);
    const std::string meeting = ".   They intersect at a point if  " + k + " &!= " + critical + ".&LF";
    ws.Solution = (kind == SystemCase::Incompatible ? "&SP=10:&-ILine parallel to the plane if " + k + " = "
                                                    : "&SP=10:&-ILine lies in the plane if  " + k + " = ") +
                  critical + meeting + "&SP=10:When  " + k + " = " + stated +
                  "  they intersect at the point  &+IP&-I (" + SolutionPointText(s.solution) + ")&LF";
}
