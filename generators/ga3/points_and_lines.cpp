#include <cmath>

#include "generators/ga3/ga3_routines.h"
#include "generators/ga3/space_problems.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
const char kLetters[] = "ahkmnpqrw";

bool Within(const Vec3& v, double bound) {
    return std::fabs(v.x) <= bound && std::fabs(v.y) <= bound && std::fabs(v.z) <= bound;
}

std::array<std::string, 3> LetterAt(int column, const std::string& letter) {
    std::array<std::string, 3> texts;
    texts[column] = letter;
    return texts;
}

// A distance with its unit: "1 unit", "3 units".
std::string Units(double distance) { return PlainNumberText(distance) + (distance == 1 ? " unit" : " units"); }

std::string MeetingPoint(const Vec3& p) {
    return PlainNumberText(p.x) + ",  " + PlainNumberText(p.y) + ",  " + PlainNumberText(p.z) + ")&LF";
}
} // namespace

PointsProblem BuildPointsProblem(GeneratorWorkspace& ws, int type) {
    PointsProblem p;
    p.type = type;
    p.letter = DrawParameterLetter(ws, kLetters);
    p.column = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1)) - 1;
    RetryBound bound;
    while (true) {
        bool ok = true;
        if (type == 0) {
            p.A = DrawVector(ws, -9, 12, 0);
            p.B = DrawVector(ws, -9, 12, 0);
            p.C = DrawVector(ws, -9, 12, 0);
            const double r = RandomInRange(ws, -3, 3, 1, 1);
            const double s = RandomInRange(ws, -3, 3, 1, 1);
            p.D = p.A + r * (p.B - p.A) + s * (p.C - p.A);
            // The letter's column of the normal of ABC is its coefficient: not 0, or every
            // value (or none) would do.
            const Vec3 normal = Cross(p.B - p.A, p.C - p.A);
            ok = !IsNull(normal) && normal[p.column] != 0 && Within(p.D, 30);
            p.value1 = p.D[p.column];
        } else if (type == 1) {
            p.A = DrawVector(ws, -9, 12, 0);
            p.B = DrawVector(ws, -9, 12, 0);
            const double f = RandomInRange(ws, -3, 3, 1, 1);
            p.C = p.A + f * (p.B - p.A);
            // Another co-ordinate must fix the factor of C along AB.
            const Vec3 ab = p.B - p.A;
            ok = f != 1 && !IsNull(ab) && (ab[(p.column + 1) % 3] != 0 || ab[(p.column + 2) % 3] != 0) &&
                 Within(p.C, 30);
            p.value1 = p.C[p.column];
        } else {
            // A normal whose length is whole, so that distances are whole.
            Vec3 n = DrawVector(ws, -9, 12, 1);
            const double length = std::round(std::sqrt(Norm2(n)));
            p.A = DrawVector(ws, -9, 12, 0);
            p.distance = RandomInRange(ws, 1, 6, 1, 1);
            const double side = Coin(ws, 0.5f) ? 1 : -1;
            ok = length * length == Norm2(n);
            // n·P + d = side·distance·|n| at the answer; the other answer is across the plane.
            p.plane.normal = n;
            p.plane.d = side * p.distance * length - Dot(n, p.A);
            p.value1 = p.A[p.column];
            p.value2 = p.value1 - 2 * side * p.distance * length / n[p.column];
            ok = ok && IsWhole(p.value2) && std::fabs(p.value2) <= 30 && std::fabs(p.plane.d) <= 99;
            double g = 0;
            for (int i = 0; i < 3; ++i) g = Gcd(ws, g, std::fabs(n[i]));
            ok = ok && Gcd(ws, g, std::fabs(p.plane.d)) == 1;
            // One answer: only one of the two is positive.
            if (type == 3) {
                if (p.value1 <= 0 && p.value2 > 0) std::swap(p.value1, p.value2);
                ok = ok && p.value1 > 0 && p.value2 <= 0;
            }
            p.value2 = p.value2 == 0 ? 0 : p.value2;
        }
        if (ok) break;
        bound.Next();
    }
    return p;
}

// Routine 4: a parameter in one co-ordinate of the last point; coplanar or aligned points,
// or a point at a given distance from a plane, by the seed.
void AlignmentCoplanarityDistance(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 4;
    const PointsProblem p = BuildPointsProblem(ws, type);
    const auto texts = LetterAt(p.column, p.letter);
    const std::string& k = p.letter;
    switch (type) {
    case 0:
        ws.Statement = "Calculate the value of parameter  " + k + "  for which the points  " + PointMarkup(ws, "A", p.A) +
                       ",  " + PointMarkup(ws, "B", p.B) + ",  " + PointMarkup(ws, "C", p.C) + "  and  " +
                       PointMarkup(ws, "D", p.D, texts) + "  are coplanar.&LF";
        break;
    case 1:
        ws.Statement = "Find the value of parameter  " + k + "  for which the points  " + PointMarkup(ws, "A", p.A) +
                       ",  " + PointMarkup(ws, "B", p.B) + "  and  " + PointMarkup(ws, "C", p.C, texts) +
                       "  are aligned.&LF";
        break;
    case 2:
        ws.Statement = "Calculate the value of parameter  " + k + "  for which the distance between the point  " +
                       PointMarkup(ws, "P", p.A, texts) + "  and the plane &+I&pi&-I& :& & " + PlaneMarkup(p.plane) +
                       "  is  " + Units(p.distance) + ".&LF";
        ws.Solution = "&SP=10: " + k + "_1 = " + PlainNumberText(p.value1) + ",    " + k + "_2 = " +
                      PlainNumberText(p.value2) + "&LF";
        return;
    default:
        // Of the two points at that distance, the condition on the sign keeps one.
        ws.Statement = "Find the value of parameter  " + k + "  for which the distance between the point  " +
                       PointMarkup(ws, "P", p.A, texts) + "  and the plane &+I&pi&-I& :& & " + PlaneMarkup(p.plane) +
                       "  is  " + Units(p.distance) + ", with  " + k + "& >& 0.&LF";
        break;
    }
    ws.Solution = "&SP=10: " + k + " = " + PlainNumberText(p.value1) + "&LF";
}

TwoLines BuildTwoLines(GeneratorWorkspace& ws, int kind) {
    TwoLines t;
    t.kind = kind;
    RetryBound bound;
    while (true) {
        bool ok = true;
        const Vec3 v1 = DrawVector(ws, -9, 10, 1);
        if (kind == 0 || kind == 1) {
            const Vec3 p1 = DrawVector(ws, -9, 12, 0);
            const double factor = RandomInRange(ws, -3, 3, 1, 1);
            Vec3 p2;
            if (kind == 0) {
                p2 = p1 + RandomInRange(ws, -3, 3, 1, 1) * v1;
            } else {
                p2 = DrawVector(ws, -9, 12, 0);
                ok = !AreParallel(p2 - p1, v1);
            }
            t.first = {p1, v1};
            t.second = {p2, factor * v1};
            ok = ok && Within(p2, 30) && Within(t.second.direction, 30);
        } else {
            const Vec3 v2 = DrawVector(ws, -9, 10, 1);
            ok = !AreParallel(v1, v2);
            if (kind == 2) {
                t.meeting = DrawVector(ws, -9, 12, 0);
                const double t1 = RandomInRange(ws, -2, 2, 1, 1);
                const double t2 = RandomInRange(ws, -2, 2, 1, 1);
                t.first = {t.meeting + t1 * v1, v1};
                t.second = {t.meeting + t2 * v2, v2};
            } else {
                t.first = {DrawVector(ws, -9, 12, 0), v1};
                t.second = {DrawVector(ws, -9, 12, 0), v2};
                ok = ok && Triple(t.second.point - t.first.point, v1, v2) != 0;
            }
            ok = ok && Within(t.first.point, 30) && Within(t.second.point, 30);
        }
        if (ok) break;
        bound.Next();
    }
    return t;
}

// Routine 7: two lines built in the relative position that the seed names.
void TwoLinesWithoutParameter(GeneratorWorkspace& ws) {
    const int kind = ws.Seed % 4;
    const TwoLines t = BuildTwoLines(ws, kind);
    const LineForm f1 = DrawLineForm(ws, 3);
    const LineForm f2 = DrawLineForm(ws, 3);
    ws.Statement = "Discuss the relative position of the following lines. Find the intersection point if possible.&LF"
                   "&SP=10:&+IL&-I_1& :& & " + LineMarkup(ws, t.first, f1, "&+I&lambda&-I") +
                   ",        &+IL&-I_2& :& & " + LineMarkup(ws, t.second, f2, "&+I&mu&-I") + "&LF";
    switch (kind) {
    case 0: ws.Solution = "&SP=10:The lines are coincident.&LF"; break;
    case 1: ws.Solution = "&SP=10:The lines are parallel.&LF"; break;
    case 2: ws.Solution = "&SP=10:Intersect at the point  &+IP&-I (" + MeetingPoint(t.meeting); break;
    default: ws.Solution = "&SP=10:Don't intersect and not parallel.&LF"; break;
    }
}

TwoLinesWithLetter BuildTwoLinesWithLetter(GeneratorWorkspace& ws, int kind) {
    TwoLinesWithLetter t;
    t.kind = kind;
    t.letter = Coin(ws, 0.5f) ? "&+I&lambda&-I" : DrawParameterLetter(ws, kLetters);
    t.column = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1)) - 1;
    RetryBound bound;
    while (true) {
        bool ok = true;
        const Vec3 v1 = DrawVector(ws, -9, 10, 1);
        if (kind == 0) {
            const Vec3 v2 = DrawVector(ws, -9, 10, 1);
            t.meeting = DrawVector(ws, -9, 12, 0);
            const double t1 = RandomInRange(ws, -2, 2, 1, 1);
            const double t2 = RandomInRange(ws, -2, 2, 1, 1);
            t.first = {t.meeting + t1 * v1, v1};
            t.second = {t.meeting + t2 * v2, v2};
            t.critical = t.second.point[t.column];
            // Moving the point along the letter's axis must take the lines apart.
            ok = !AreParallel(v1, v2) && Cross(v1, v2)[t.column] != 0;
        } else {
            const Vec3 p1 = DrawVector(ws, -9, 12, 0);
            const double factor = RandomInRange(ws, -3, 3, 1, 1);
            Vec3 p2;
            if (kind == 1) {
                p2 = p1 + RandomInRange(ws, -3, 3, 1, 1) * v1;
            } else {
                p2 = DrawVector(ws, -9, 12, 0);
                Vec3 axis;
                axis[t.column] = 1;
                ok = !AreParallel(p2 - p1, v1) && Triple(p2 - p1, v1, axis) != 0;
            }
            t.first = {p1, v1};
            t.second = {p2, factor * v1};
            t.meeting = p2;
            t.critical = t.second.direction[t.column];
        }
        ok = ok && Within(t.first.point, 30) && Within(t.second.point, 30) && Within(t.second.direction, 30);
        if (ok) break;
        bound.Next();
    }
    return t;
}

// Routine 8: the second line carries a letter; the position changes at one value of it.
void TwoLinesWithParameter(GeneratorWorkspace& ws) {
    // The remainder picks the wording; the kind that has a meeting point at the critical
    // value goes with the wording that asks for it.
    const int remainder = ws.Seed % 3;
    const int kind = remainder == 2 ? 0 : remainder + 1;
    const TwoLinesWithLetter t = BuildTwoLinesWithLetter(ws, kind);
    const std::string& k = t.letter;
    const std::string critical = PlainNumberText(t.critical);
    const LineForm f1 = DrawLineForm(ws, 3);
    const LineForm f2 = DrawLineForm(ws, 2);
    const auto texts = LetterAt(t.column, k);
    const std::string second = kind == 0 ? LineMarkup(ws, t.second, f2, "&+Is&-I", texts, {})
                                         : LineMarkup(ws, t.second, f2, "&+Is&-I", {}, texts);
    const std::string openings[3] = {
        "Calculate the relative position of the following lines according to the values of parameter  " + k + ".&LF",
        "Find out the relative position of the following lines according to the values of parameter  " + k + ".&LF",
        "Discuss the relative position of the following lines according to the values of parameter  " + k +
            "  and calculate the intersection point if possible.&LF"};
    ws.Statement = openings[remainder] + "&SP=10:&+IL&-I_1& :& & " + LineMarkup(ws, t.first, f1, "&+It&-I") +
                   ",        &+IL&-I_2& :& & " + second + "&LF";
    switch (kind) {
    case 0:
        ws.Solution = "&SP=10:Intersect if  " + k + " = " + critical + ".   Intersect at the point &+IP&-I (" +
                      MeetingPoint(t.meeting) + "&SP=10:Don't intersect and not parallel if  " + k + " &!= " +
                      critical + ".&LF";
        break;
    case 1:
        ws.Solution = "&SP=10:Coincident if  " + k + " = " + critical + ".&LF&SP=10:Intersect if  " + k + " &!= " +
                      critical + ".   Intersect at the point &+IP&-I (" + MeetingPoint(t.meeting);
        break;
    default:
        ws.Solution = "&SP=10:Parallel if  " + k + " = " + critical + ".&LF&SP=10:Don't intersect and not parallel if  " +
                      k + " &!= " + critical + ".&LF";
        break;
    }
    // The lines again at the critical value.
    ws.Solution += "&SP=10:&+IL&-I_1 : " + LineMarkup(ws, t.first, f1, "&+It&-I") + ",     &+IL&-I_2 : " +
                   LineMarkup(ws, t.second, f2, "&+Is&-I") + "     (" + k + " = " + critical + ")&LF";
}
