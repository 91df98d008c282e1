#pragma once
#include <array>
#include <string>

#include "generators/generator_contract.h"
#include "mathservices/poly_markup.h"

// Points, vectors, planes and lines of space, as numbers and as markup. Shared by the
// space geometry routines and by the two solvers of systems of three equations.

struct Vec3 {
    double x = 0, y = 0, z = 0;
    double& operator[](int i) { return i == 0 ? x : (i == 1 ? y : z); }
    double operator[](int i) const { return i == 0 ? x : (i == 1 ? y : z); }
    bool operator==(const Vec3&) const = default;
};

inline Vec3 operator+(const Vec3& a, const Vec3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vec3 operator-(const Vec3& a, const Vec3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vec3 operator*(double k, const Vec3& a) { return {k * a.x, k * a.y, k * a.z}; }
inline double Dot(const Vec3& a, const Vec3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec3 Cross(const Vec3& a, const Vec3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Norm2(const Vec3& a) { return Dot(a, a); }
inline bool IsNull(const Vec3& a) { return a.x == 0 && a.y == 0 && a.z == 0; }
inline bool AreParallel(const Vec3& a, const Vec3& b) { return IsNull(Cross(a, b)); }
// a · (b × c)
inline double Triple(const Vec3& a, const Vec3& b, const Vec3& c) { return Dot(a, Cross(b, c)); }

// A plane a·x + b·y + c·z + d = 0.
struct Plane {
    Vec3 normal;
    double d = 0;
};

// A line through a point with a direction.
struct Line3 {
    Vec3 point;
    Vec3 direction;
};

// Draws each co-ordinate in low..high (nonZero as the range draw takes it).
Vec3 DrawVector(GeneratorWorkspace& ws, double low, double high, double nonZero);
// Divides a whole vector by the common divisor of its components; the first non-zero
// component becomes positive when makePositive is set.
Vec3 Reduced(GeneratorWorkspace& ws, Vec3 v, bool makePositive);
// The plane through a point with a normal, its co-ordinates made small and its lead positive.
Plane PlaneThrough(GeneratorWorkspace& ws, const Vec3& point, const Vec3& normal);
inline double PlaneValue(const Plane& p, const Vec3& q) { return Dot(p.normal, q) + p.d; }

// A parameter letter in italics: one draw of 1..n, nz, from letters.
std::string DrawParameterLetter(GeneratorWorkspace& ws, const std::string& letters);

// One co-ordinate: a whole number, or the exact form of a fraction.
std::string CoordinateMarkup(GeneratorWorkspace& ws, double value);
// "&+IA&-I(" x "&,& " y "&,& " z ")"; a text in texts replaces its co-ordinate.
std::string PointMarkup(GeneratorWorkspace& ws, const std::string& name, const Vec3& p,
                        const std::array<std::string, 3>& texts = {});
// "#VED(&+Iu&-I#VED)(" x "&,& " y "&,& " z ")"
std::string VectorMarkup(GeneratorWorkspace& ws, const std::string& name, const Vec3& v,
                         const std::array<std::string, 3>& texts = {});
// Just the co-ordinates in brackets: "(" x "&,& " y "&,& " z ")".
std::string TupleMarkup(GeneratorWorkspace& ws, const Vec3& v, const std::array<std::string, 3>& texts = {});
// The general equation "a·x + b·y + c·z + d = 0".
std::string PlaneMarkup(const Plane& p);
// A line in one of the forms of the line writer. The continuous form needs a direction
// without zero components: such a line is written parametric instead.
std::string LineMarkup(GeneratorWorkspace& ws, const Line3& line, LineForm form, const std::string& parameter,
                       const std::array<std::string, 3>& pointTexts = {},
                       const std::array<std::string, 3>& directionTexts = {});
// The symmetric (continuous) form of a line, the textbook answer of a line.
std::string SymmetricLineMarkup(GeneratorWorkspace& ws, const Line3& line);
// A form for a line of a statement: one draw of 0..highest (vector, parametric,
// continuous, the pair of planes; 4 is the pair of planes too, since space has no
// slope-intercept form). Lines with a parameter in them take 0..2: the pair of planes is
// computed from numbers.
LineForm DrawLineForm(GeneratorWorkspace& ws, int highest);
