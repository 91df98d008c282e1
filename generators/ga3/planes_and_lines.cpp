#include <cmath>

#include "generators/ga3/ga3_routines.h"
#include "generators/ga3/space_problems.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
bool Within(const Vec3& v, double bound) {
    return std::fabs(v.x) <= bound && std::fabs(v.y) <= bound && std::fabs(v.z) <= bound;
}

bool NoZero(const Vec3& v) { return v.x != 0 && v.y != 0 && v.z != 0; }

// A direction of a plane: components 0..10 or -3..5.
Vec3 DrawDirection(GeneratorWorkspace& ws) {
    if (Coin(ws, 0.5f)) return DrawVector(ws, 0, 10, 0);
    return DrawVector(ws, -3, 5, 0);
}

std::string PlaneAnswer(const Plane& p) { return "&SP=10:&+I&pi&-I& :& " + PlaneMarkup(p) + "&LF"; }

// A plane with the normal n through a point off the plane `avoid`.
Plane OtherPlane(GeneratorWorkspace& ws, const Vec3& normal, const Plane& avoid) {
    Plane p;
    RetryBound bound;
    while (true) {
        p = PlaneThrough(ws, DrawVector(ws, -9, 12, 0), normal);
        if (!(p.normal == avoid.normal && p.d == avoid.d)) break;
        bound.Next();
    }
    return p;
}
} // namespace

int ProgressiveType(GeneratorWorkspace& ws, int typeCount) {
    const double g = ws.GroupSize;
    const double i = ws.GroupIndex;
    const double p = std::floor(100 * i / g);
    const bool planes = typeCount == 13;
    if (g == 1) return static_cast<int>(RandomInRange(ws, 1, planes ? 13 : 8, 1, 1));
    if (g == 2) {
        if (i <= 1) return static_cast<int>(RandomInRange(ws, 1, planes ? 7 : 4, 1, 1));
        return static_cast<int>(RandomInRange(ws, planes ? 8 : 5, planes ? 13 : 8, 1, 1));
    }
    const int turn = static_cast<int>(g + i);
    if (p <= 33) return planes ? 1 + turn % 4 : 1 + turn % 3;
    if (p <= 66) return planes ? 5 + turn % 4 : 4 + turn % 3;
    return planes ? 9 + turn % 5 : 7 + turn % 2;
}

PlaneProblem BuildPlaneProblem(GeneratorWorkspace& ws, int type) {
    PlaneProblem q;
    q.type = type;
    RetryBound bound;
    while (true) {
        const Vec3 p = DrawVector(ws, -9, 12, 0);
        const Vec3 u = DrawDirection(ws);
        const Vec3 v = DrawDirection(ws);
        bool ok = !IsNull(u) && !IsNull(v) && !AreParallel(u, v);
        if (ok) {
            q.answer = PlaneThrough(ws, p, Cross(u, v));
            const Vec3 n = q.answer.normal;
            // A point off the answer plane, for lines that are only parallel to it.
            const Vec3 off = p + DrawVector(ws, -3, 3, 0);
            const Vec3 off2 = p + DrawVector(ws, -3, 3, 0);
            const double factor = RandomInRange(ws, -3, 3, 1, 1);
            q.points.clear();
            q.vectors.clear();
            q.lines.clear();
            switch (type) {
            case 1: q.points = {p}; q.vectors = {v, u}; break;
            case 2: q.points = {p, p + v}; q.vectors = {u}; break;
            case 3: q.points = {p, p + u, p + v}; break;
            case 4: q.points = {p}; q.given = OtherPlane(ws, n, q.answer); break;
            case 5: q.points = {p}; q.normal = factor * n; break;
            case 6: q.points = {p}; q.lines = {{off, factor * n}}; break;
            case 7: q.points = {p}; q.lines = {{p + v, u}}; break;
            case 8:
                q.points = {p, p + v};
                q.lines = {{off, u}};
                ok = PlaneValue(q.answer, off) != 0;
                break;
            case 9: {
                q.points = {p, p + v};
                q.given = PlaneThrough(ws, off, u);
                break;
            }
            case 10: q.lines = {{p, u}, {p + factor * u, v}}; break;
            case 11: q.lines = {{p, u}, {p + v, factor * u}}; break;
            case 12:
                q.lines = {{p, u}, {off, v}};
                ok = PlaneValue(q.answer, off) != 0;
                break;
            default:
                q.points = {p};
                q.lines = {{off, u}, {off2, v}};
                ok = PlaneValue(q.answer, off) != 0 && PlaneValue(q.answer, off2) != 0;
                break;
            }
            for (const auto& x : q.points) ok = ok && Within(x, 25);
            for (const auto& l : q.lines) ok = ok && Within(l.point, 25) && Within(l.direction, 30);
            ok = ok && std::fabs(q.answer.d) <= 200;
        }
        if (ok) break;
        bound.Next();
    }
    return q;
}

// Routine 2: the equation of a plane from points, vectors, lines and planes; the types
// grow harder through a group.
void PlaneCalculations(GeneratorWorkspace& ws) {
    const int type = ProgressiveType(ws, 13);
    const PlaneProblem q = BuildPlaneProblem(ws, type);
    std::string lines[2];
    for (std::size_t i = 0; i < q.lines.size(); ++i)
        lines[i] = LineMarkup(ws, q.lines[i], DrawLineForm(ws, 4), i == 0 ? "&+I&lambda&-I" : "&+I&mu&-I");
    auto point = [&](int i) { return PointMarkup(ws, std::string(1, static_cast<char>('A' + i)), q.points[i]); };
    const std::string start = "Find the equation of the plane that ";
    switch (type) {
    case 1:
        ws.Statement = start + "contains the point  " + point(0) + "  and is parallel to vectors " +
                       VectorMarkup(ws, "v", q.vectors[0]) + "  and  #VED(&+Iu&-I#VED)" + TupleMarkup(ws, q.vectors[1]);
        break;
    case 2:
        ws.Statement = start + "passes through the points  " + point(0) + "  and  " + point(1) +
                       "  and is parallel to the vector  #VED(&+Iu&-I#VED)" + TupleMarkup(ws, q.vectors[0]);
        break;
    case 3:
        ws.Statement = start + "passes through the points  " + point(0) + ",  " + point(1) + "  and  " + point(2);
        break;
    case 4:
        ws.Statement = start + "passes through the point  " + point(0) + "  and is parallel " +
                       "to the plane  &+I&pi&-I& :& " + PlaneMarkup(q.given);
        break;
    case 5:
        ws.Statement = start + "contains the point  " + point(0) + "  and " + "is perpendicular to the vector  #VED(&+Iv&-I#VED)(" +
                       CoordinateMarkup(ws, q.normal.x) + "&,& " + CoordinateMarkup(ws, q.normal.y) + "&,& " +
                       CoordinateMarkup(ws, q.normal.z) + ")";
        break;
    case 6:
        ws.Statement = start + "passes through the point  " + point(0) + "  and " + "is perpendicular to the line  &+IL&-I& :& " +
                       lines[0];
        break;
    case 7:
        ws.Statement = start + "passes through the point  " + point(0) + "  and " + "contains the line &+IL&-I& :& " + lines[0];
        break;
    case 8:
        ws.Statement = start + "passes through the points  " + point(0) + "  and  " + point(1) + "  and " +
                       "is parallel to the line  &+IL&-I& :& " + lines[0];
        break;
    case 9:
        ws.Statement = start + "contains the points  " + point(0) + "  and  " + point(1) + "  and " +
                       "is perpendicular to the plane  &+I&pi&-I& :& " + PlaneMarkup(q.given);
        break;
    case 10:
    case 11:
        ws.Statement = start + "contains the lines  &+IL&-I_1& :& " + lines[0] + "  and  &+IL&-I_2& :& " + lines[1];
        break;
    case 12:
        ws.Statement = start + "contains the line  &+IL&-I_1& :& " + lines[0] + "  and is parallel to the line  &+IL&-I_2& :& " +
                       lines[1];
        break;
    default:
        ws.Statement = start + "contains the point  " + point(0) + " and is parallel to the lines  &+IL&-I_1& :& " +
                       lines[0] + "  and  &+IL&-I_2& :& " + lines[1];
        break;
    }
    ws.Statement += ".&LF";
    ws.Solution = PlaneAnswer(q.answer);
}

LineProblem BuildLineProblem(GeneratorWorkspace& ws, int type) {
    LineProblem q;
    q.type = type;
    RetryBound bound;
    while (true) {
        const Vec3 p = DrawVector(ws, -9, 12, 0);
        const Vec3 d = Reduced(ws, DrawVector(ws, -6, 6, 1), true);
        q.answer = {p, d};
        q.points.clear();
        q.lines.clear();
        const double factor = RandomInRange(ws, -3, 3, 1, 1);
        const Vec3 r1 = DrawVector(ws, -3, 3, 0);
        const Vec3 r2 = DrawVector(ws, -3, 3, 0);
        bool ok = true;
        switch (type) {
        case 1: q.points = {p}; q.vector = factor * d; break;
        case 2: q.points = {p, p + factor * d}; break;
        case 3:
        case 4: q.points = {p}; q.lines = {{p + r1, factor * d}}; ok = !AreParallel(r1, d); break;
        case 5: q.points = {p}; q.plane = PlaneThrough(ws, p + r1, d); break;
        case 6:
            // The line through the point across the plane meets L at p + factor·d.
            q.points = {p};
            q.plane = PlaneThrough(ws, p + r1, d);
            q.lines = {{p + factor * d, r2}};
            ok = !AreParallel(r2, d);
            break;
        case 7: {
            // Perpendicular to L and parallel to the plane: d is across both normals.
            const Vec3 a = Reduced(ws, Cross(d, r1), false);
            const Vec3 n = Reduced(ws, Cross(d, r2), false);
            q.points = {p};
            q.lines = {{p + r2 + r1, a}};
            q.plane = PlaneThrough(ws, p + r1, n);
            ok = !IsNull(a) && !IsNull(n) && !AreParallel(a, n) && PlaneValue(q.plane, p) != 0;
            break;
        }
        default: {
            // Lines through two points of the answer, off its direction, in two planes
            // through it that differ.
            const double t2 = RandomInRange(ws, -3, 3, 1, 1);
            q.points = {p};
            q.lines = {{p + factor * d, r1}, {p + t2 * d, r2}};
            ok = t2 != factor && !AreParallel(r1, d) && !AreParallel(r2, d) && !AreParallel(Cross(d, r1), Cross(d, r2));
            break;
        }
        }
        ok = ok && NoZero(d);
        for (const auto& x : q.points) ok = ok && Within(x, 25);
        for (const auto& l : q.lines) ok = ok && Within(l.point, 25) && Within(l.direction, 30) && !IsNull(l.direction);
        ok = ok && std::fabs(q.plane.d) <= 200;
        if (ok) break;
        bound.Next();
    }
    return q;
}

// Routine 3: the symmetric form of a line from points, vectors, lines and planes; the
// types grow harder through a group.
void LineCalculations(GeneratorWorkspace& ws) {
    const int type = ProgressiveType(ws, 8);
    const LineProblem q = BuildLineProblem(ws, type);
    std::string lines[2];
    for (std::size_t i = 0; i < q.lines.size(); ++i) {
        // Type 4 gives the line as two planes; type 3 in one of the other forms.
        const LineForm form = type == 4 ? LineForm::General
                                        : (type == 3 ? static_cast<LineForm>(RandomInRange(ws, 0, 2, 1, 0))
                                                     : DrawLineForm(ws, 4));
        lines[i] = LineMarkup(ws, q.lines[i], form, i == 0 ? "&+I&lambda&-I" : "&+I&mu&-I");
    }
    const std::string start = "Find the symmetric form equation of the line that ";
    const std::string point = q.points.empty() ? "" : PointMarkup(ws, "P", q.points[0]);
    switch (type) {
    case 1:
        ws.Statement = start + "contains the point  " + point + "  and is parallel to the vector  #VED(&+Iv&-I#VED)" +
                       TupleMarkup(ws, q.vector);
        break;
    case 2:
        ws.Statement = start + "passes through the points  " + PointMarkup(ws, "A", q.points[0]) + "  and  " +
                       PointMarkup(ws, "B", q.points[1]);
        break;
    case 3:
    case 4:
        ws.Statement = start + "contains the point  " + point + "  and is parallel to the line  &+IL&-I:& " + lines[0];
        break;
    case 5:
        ws.Statement = start + "contains the point  " + point + "  and is perpendicular " + "to the plane  &+I&pi&-I& :& " +
                       PlaneMarkup(q.plane);
        break;
    case 6:
        ws.Statement = start + "passes through the point  " + point + "  and is perpendicular " +
                       "to the plane  &+I&pi&-I& :& " + PlaneMarkup(q.plane) + "  and cuts the line  &+IL&-I:& " + lines[0];
        break;
    case 7:
        // Perpendicular to a line and parallel to a plane fix the direction only: the
        // point is given too.
        ws.Statement = start + "is perpendicular to the line  &+IL&-I:& " + lines[0] +
                       "  and is parallel to the plane  &+I&pi&-I& :& " + PlaneMarkup(q.plane) + ",  through the point  " +
                       point;
        break;
    default:
        ws.Statement = start + "contains the point  " + point + ",  and cuts the lines &+IL&-I_1& :& " + lines[0] +
                       "   and   &+IL&-I_2& :& " + lines[1];
        break;
    }
    ws.Statement += ".&LF";
    ws.Solution = "&SP=10:&+IL&-I& :& " + SymmetricLineMarkup(ws, q.answer) + "&LF";
}
