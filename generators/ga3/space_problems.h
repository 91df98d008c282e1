#pragma once
#include <string>
#include <vector>

#include "generators/shared/space_tools.h"

// The records that the space geometry problems are written from; the tests check their
// mathematics.

// Routine 4. type 0: coplanar points A, B, C, D; 1: aligned points A, B, C; 2 and 3: the
// distance from P to a plane (two answers; one answer with the letter positive).
struct PointsProblem {
    int type = 0;
    std::string letter;
    int column = 0;       // the co-ordinate of the last point that the letter replaces
    Vec3 A, B, C, D;      // D is the last point of type 0, C of type 1, P = A of types 2 and 3
    Plane plane;          // types 2 and 3
    double distance = 0;  // types 2 and 3
    double value1 = 0;    // the answer (types 2, 3: the answer kept by type 3)
    double value2 = 0;    // the second answer of type 2, the rejected one of type 3
};
PointsProblem BuildPointsProblem(GeneratorWorkspace& ws, int type);

// Routine 7: 0 coincident, 1 parallel, 2 meeting in a point, 3 crossing.
struct TwoLines {
    int kind = 0;
    Line3 first, second;
    Vec3 meeting;  // kind 2
};
TwoLines BuildTwoLines(GeneratorWorkspace& ws, int kind);

// Routine 8: a letter in the second line. kind 0: in a co-ordinate of its point (meet at
// the critical value, cross elsewhere); 1: in its direction with the point on the first
// line (coincident at the critical value, meet elsewhere); 2: in its direction with the
// point off the first line (parallel at the critical value, cross elsewhere).
struct TwoLinesWithLetter {
    int kind = 0;
    std::string letter;
    int column = 0;
    Line3 first, second;  // second holds the critical value in the letter's place
    double critical = 0;
    Vec3 meeting;  // kinds 0 and 1
};
TwoLinesWithLetter BuildTwoLinesWithLetter(GeneratorWorkspace& ws, int kind);

// Routine 1, by the remainder of the seed by 12 (type):
//  0 magnitudes, dot product and angle of u, v;  1 angles of u, v and of a, b;
//  2 unit vectors of u and a;  3 s = x·u + y·v + z·w, answers x, y, z;
//  4 u(u0, h, u2) ⟂ v(v0, v1, k) with |u| = magnitude and h > 0, answers h, k;
//  5 a unit vector perpendicular to u and v;  6 v = factor·u with the letter h in column:
//    answers parallel, orthogonal, and ±(value) for |v|² = magnitude2;
//  7 u, v, w with the letter in w's column: independent unless h = answers[0];
//  8 u × v and a × b;  9 parallelogram on u, v;  10 triangle on u, v;  11 volume on u, v, w.
struct VectorsProblem {
    int type = 0;
    std::string h, k;  // the two letters
    Vec3 u, v, w, s, a, b;
    int column = 0;
    double factor = 0;
    double magnitude = 0;   // type 4: |u|
    double magnitude2 = 0;  // type 6: |v|² asked
    double answers[3] = {0, 0, 0};
};
VectorsProblem BuildVectorsProblem(GeneratorWorkspace& ws, int type);

// The type of a progressive routine (planes: 13 types, lines: 8) from the group size and
// the place in the group; a group size of 0 divides by zero, a fault that the hub reports
// as the problem's text.
int ProgressiveType(GeneratorWorkspace& ws, int typeCount);

// Routine 2: the plane that the statement describes, and the data of the statement.
//  points: the points it contains; vectors: directions it is parallel to;
//  lines[0], lines[1]: the lines of the statement; given: the plane of types 4 and 9;
//  normal: the vector of type 5.
struct PlaneProblem {
    int type = 1;
    Plane answer;
    std::vector<Vec3> points;
    std::vector<Vec3> vectors;
    std::vector<Line3> lines;
    Plane given;
    Vec3 normal;
};
PlaneProblem BuildPlaneProblem(GeneratorWorkspace& ws, int type);

// Routine 3: the line that the statement describes (its direction without zero
// components), and the data of the statement.
struct LineProblem {
    int type = 1;
    Line3 answer;
    std::vector<Vec3> points;
    Vec3 vector;
    std::vector<Line3> lines;
    Plane plane;
};
LineProblem BuildLineProblem(GeneratorWorkspace& ws, int type);
