#include "generators/shared/space_tools.h"

#include <algorithm>
#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

Vec3 DrawVector(GeneratorWorkspace& ws, double low, double high, double nonZero) {
    Vec3 v;
    v.x = RandomInRange(ws, low, high, 1, nonZero);
    v.y = RandomInRange(ws, low, high, 1, nonZero);
    v.z = RandomInRange(ws, low, high, 1, nonZero);
    return v;
}

Vec3 Reduced(GeneratorWorkspace& ws, Vec3 v, bool makePositive) {
    double g = 0;
    for (int i = 0; i < 3; ++i) {
        if (v[i] != 0) g = g == 0 ? std::fabs(v[i]) : Gcd(ws, g, std::fabs(v[i]));
    }
    if (g > 1) v = (1 / g) * v;
    for (int i = 0; i < 3; ++i) v[i] = SnapValue(v[i]);
    if (makePositive) {
        for (int i = 0; i < 3; ++i) {
            if (v[i] == 0) continue;
            if (v[i] < 0) v = -1.0 * v;
            break;
        }
        for (int i = 0; i < 3; ++i) v[i] = v[i] == 0 ? 0 : v[i];
    }
    return v;
}

Plane PlaneThrough(GeneratorWorkspace& ws, const Vec3& point, const Vec3& normal) {
    double a = normal.x, b = normal.y, c = normal.z;
    double d = -Dot(normal, point);
    ReduceTerms(ws, a, b, c, d);
    return {{a, b, c}, d};
}

std::string DrawParameterLetter(GeneratorWorkspace& ws, const std::string& letters) {
    const int n = static_cast<int>(letters.size());
    const int k = static_cast<int>(RandomInRange(ws, 1, n, 1, 1));
    return "&+I" + letters.substr(std::clamp(k, 1, n) - 1, 1) + "&-I";
}

std::string CoordinateMarkup(GeneratorWorkspace& ws, double value) {
    if (IsWhole(value)) return PlainNumberText(value);
    return NumberToExactMarkup(ws, value);
}

std::string TupleMarkup(GeneratorWorkspace& ws, const Vec3& v, const std::array<std::string, 3>& texts) {
    std::string out = "(";
    for (int i = 0; i < 3; ++i) {
        if (i > 0) out += "&,& ";
        out += texts[i].empty() ? CoordinateMarkup(ws, v[i]) : texts[i];
    }
    return out + ")";
}

std::string PointMarkup(GeneratorWorkspace& ws, const std::string& name, const Vec3& p,
                        const std::array<std::string, 3>& texts) {
    return "&+I" + name + "&-I" + TupleMarkup(ws, p, texts);
}

std::string VectorMarkup(GeneratorWorkspace& ws, const std::string& name, const Vec3& v,
                         const std::array<std::string, 3>& texts) {
    return "#VED(&+I" + name + "&-I#VED)" + TupleMarkup(ws, v, texts);
}

std::string PlaneMarkup(const Plane& p) {
    return LinearFormToMarkup(p.normal.x, p.normal.y, p.normal.z, p.d, true);
}

std::string LineMarkup(GeneratorWorkspace& ws, const Line3& line, LineForm form, const std::string& parameter,
                       const std::array<std::string, 3>& pointTexts,
                       const std::array<std::string, 3>& directionTexts) {
    LineData data;
    data.dimension = 3;
    for (int i = 0; i < 3; ++i) {
        data.point[i] = line.point[i];
        data.direction[i] = line.direction[i];
        data.pointTexts[i] = pointTexts[i];
        data.directionTexts[i] = directionTexts[i];
    }
    bool hasZero = false;
    bool hasText = false;
    for (int i = 0; i < 3; ++i) {
        if (line.direction[i] == 0 && directionTexts[i].empty()) hasZero = true;
        if (!pointTexts[i].empty() || !directionTexts[i].empty()) hasText = true;
    }
    if (form == LineForm::Continuous && hasZero) form = LineForm::Parametric;
    if ((form == LineForm::General || form == LineForm::SlopeIntercept) && hasText) form = LineForm::Parametric;
    if (form == LineForm::SlopeIntercept) form = LineForm::General;
    return VectorFormToMarkup(ws, data, form, parameter);
}

std::string SymmetricLineMarkup(GeneratorWorkspace& ws, const Line3& line) {
    return LineMarkup(ws, line, LineForm::Continuous, "&+I&lambda&-I");
}

LineForm DrawLineForm(GeneratorWorkspace& ws, int highest) {
    return static_cast<LineForm>(static_cast<int>(RandomInRange(ws, 0, highest, 1, 0)));
}
