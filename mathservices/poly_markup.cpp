#include "mathservices/poly_markup.h"

#include <array>
#include <cmath>
#include <vector>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
const std::string kX = "&+Ix&-I";
const std::string kY = "&+Iy&-I";
const std::string kZ = "&+Iz&-I";

std::string Trim(const std::string& s) {
    const auto first = s.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    const auto last = s.find_last_not_of(' ');
    return s.substr(first, last - first + 1);
}

// Blanks become fixed spaces and the decimal point the locale's mark.
std::string Finish(const std::string& text) {
    return ReplaceAll(ReplaceAll(Trim(text), " ", "& "), ".", "&.");
}

bool StartsWith(const std::string& s, const std::string& prefix) { return s.rfind(prefix, 0) == 0; }

// "x - 3", "x + 2" or "x" for a coordinate minus a point's coordinate.
std::string ShiftedVariable(MathWorkspace& ws, const std::string& variable, double value, const std::string& text) {
    if (!text.empty()) {
        if (StartsWith(text, "-")) return variable + "& +& " + text.substr(1);
        return variable + "& -& " + text;
    }
    if (value == 0) return variable;
    return variable + (value > 0 ? "& -& " : "& +& ") + NumberToExactMarkup(ws, std::fabs(value));
}

std::string CoordinateText(MathWorkspace& ws, double value, const std::string& text) {
    return text.empty() ? NumberToExactMarkup(ws, value) : text;
}

// p + v·parameter, as a textbook writes one coordinate of a parametric line.
std::string ParametricExpression(MathWorkspace& ws, double p, const std::string& pText, double v,
                                 const std::string& vText, const std::string& parameter) {
    std::string out;
    if (!pText.empty()) out = pText;
    else if (p != 0) out = NumberToExactMarkup(ws, p);
    std::string term;
    bool negative = false;
    if (!vText.empty()) {
        negative = StartsWith(vText, "-");
        term = (negative ? vText.substr(1) : vText) + parameter;
    } else if (v != 0) {
        negative = v < 0;
        term = (std::fabs(v) == 1 ? "" : NumberToExactMarkup(ws, std::fabs(v))) + parameter;
    }
    if (term.empty()) return out.empty() ? "0" : out;
    if (out.empty()) return (negative ? "-" : "") + term;
    return out + (negative ? "& -& " : "& +& ") + term;
}

std::string ListOf(MathWorkspace& ws, int dimension, const std::array<double, 3>& values,
                   const std::array<std::string, 3>& texts) {
    std::string out;
    for (int i = 0; i < dimension; ++i) {
        if (i > 0) out += ",& ";
        out += CoordinateText(ws, values[i], texts[i]);
    }
    return out;
}

// Two of the planes a·x + b·y + c·z + d = 0 whose normals are not parallel, in the first
// such order of (1, 2), (1, 3), (2, 3), as the rows of a brace.
std::string LinePlanePair(MathWorkspace& ws, std::array<std::array<double, 4>, 3> planes) {
    for (auto& q : planes) ReduceTerms(ws, q[0], q[1], q[2], q[3]);
    auto independent = [&](int i, int j) {
        const auto& a = planes[i];
        const auto& b = planes[j];
        return a[1] * b[2] - a[2] * b[1] != 0 || a[2] * b[0] - a[0] * b[2] != 0 || a[0] * b[1] - a[1] * b[0] != 0;
    };
    const int pairs[3][2] = {{0, 1}, {0, 2}, {1, 2}};
    std::string rows;
    for (const auto& pair : pairs) {
        if (!independent(pair[0], pair[1])) continue;
        for (int r = 0; r < 2; ++r) {
            const auto& q = planes[pair[r]];
            const std::string row = std::to_string(r + 1);
            rows += "#RW" + row + "(" + LinearFormToMarkup(q[0], q[1], q[2], q[3], true) + "#RW" + row + ")";
        }
        break;
    }
    return rows;
}
} // namespace

// Coefficients are written with a zero before a leading decimal point ("0.5x"), as a book
// does; the plain number text alone would give ".5x".
std::string PolynomialToMarkup(double c4, double c3, double c2, double c1, double c0, std::string variable) {
    if (variable.empty()) variable = kX;
    const double c[5] = {c0, c1, c2, c3, c4};
    std::string text;
    bool first = true;
    for (int degree = 4; degree >= 0; --degree) {
        const double value = c[degree];
        if (value == 0) continue;
        if (first) text += value < 0 ? "-" : "";
        else text += value < 0 ? " - " : " + ";
        first = false;
        const double magnitude = std::fabs(value);
        if (magnitude != 1 || degree == 0) text += DecimalText(magnitude);
        if (degree >= 1) text += variable;
        if (degree >= 2) text += "^" + std::to_string(degree);
    }
    if (first) return "0";
    return Finish(text);
}

std::string PolyWorkToMarkup(const PolyWork& poly, const std::string& variable) {
    std::string text;
    std::string joiner;
    for (int k = 9; k >= 0; --k) {
        if (!poly.texts[k].empty()) {
            text += joiner + poly.texts[k];
            if (k >= 1) text += variable;
            // A parameter coefficient keeps its power like any other term.
            if (k >= 2) text += "^" + std::to_string(k);
        } else {
            const double value = poly.coefficients[k];
            if (value == 0) continue;
            text += value < 0 ? " - " : joiner;
            const double magnitude = std::fabs(value);
            if (magnitude != 1) text += DecimalText(magnitude);
            else if (k == 0) text += "1";
            if (k >= 1) text += variable;
            if (k >= 2) text += "^" + std::to_string(k);
        }
        joiner = " + ";
    }
    if (Trim(text).empty()) return "0";
    return Finish(text);
}

std::string LinearFormToMarkup(const Coefficient& a, const Coefficient& b, const Coefficient& c,
                               const Coefficient& d, bool equalsZero) {
    const Coefficient* terms[3] = {&a, &b, &c};
    const std::string letters[3] = {kX, kY, kZ};
    std::string text;
    bool first = true;
    auto appendTerm = [&](const Coefficient& coefficient, const std::string& letter) {
        std::string body;
        bool negative = false;
        if (!coefficient.text.empty()) {
            negative = StartsWith(coefficient.text, "-");
            body = negative ? coefficient.text.substr(1) : coefficient.text;
        } else {
            if (coefficient.value == 0) return;
            negative = coefficient.value < 0;
            const double magnitude = std::fabs(coefficient.value);
            if (magnitude != 1 || letter.empty()) body = DecimalText(magnitude);
        }
        if (first) text += negative ? "-" : "";
        else text += negative ? " - " : " + ";
        text += body + letter;
        first = false;
    };
    for (int i = 0; i < 3; ++i) appendTerm(*terms[i], letters[i]);
    if (equalsZero) {
        appendTerm(d, "");
        if (first) text = "0";
        text += " = 0";
    } else {
        if (first) text = "0";
        text += " = " + (d.text.empty() ? DecimalText(d.value) : d.text);
    }
    return Finish(text);
}

std::string VectorFormToMarkup(MathWorkspace& ws, const LineData& line, LineForm form, const std::string& parameter) {
    const bool space = line.dimension == 3;
    const int n = space ? 3 : 2;
    const std::string variables[3] = {kX, kY, kZ};
    if (form == LineForm::SlopeIntercept && (space || line.direction[0] == 0)) form = LineForm::General;
    // A plane line along an axis has no symmetric form (it would divide by 0): the
    // general form stands in for it.
    if (form == LineForm::Continuous && !space && (line.direction[0] == 0 || line.direction[1] == 0) &&
        line.directionTexts[0].empty() && line.directionTexts[1].empty())
        form = LineForm::General;
    switch (form) {
    case LineForm::Vector:
        return std::string(space ? "(&+Ix,& y,& z&-I)& =& (" : "(&+Ix,& y&-I)& =& (") +
               ListOf(ws, n, line.point, line.pointTexts) + ")& +& " + parameter + "& (" +
               ListOf(ws, n, line.direction, line.directionTexts) + ")";
    case LineForm::Parametric: {
        std::string out = "#NES({X#RWS(L";
        for (int i = 0; i < n; ++i) {
            const std::string row = std::to_string(i + 1);
            out += "#RW" + row + "(" + variables[i] + "& =& " +
                   ParametricExpression(ws, line.point[i], line.pointTexts[i], line.direction[i],
                                        line.directionTexts[i], parameter) +
                   "#RW" + row + ")";
        }
        return out + "#RWS)#NES)";
    }
    case LineForm::Continuous: {
        std::string out;
        for (int i = 0; i < n; ++i) {
            if (i > 0) out += "& =& ";
            out += "#COC(" + ShiftedVariable(ws, variables[i], line.point[i], line.pointTexts[i]) + "#N)(" +
                   CoordinateText(ws, line.direction[i], line.directionTexts[i]) + "#COC)";
        }
        return out;
    }
    case LineForm::General: {
        if (!space) {
            double a = line.direction[1];
            double b = -line.direction[0];
            double c = -(a * line.point[0] + b * line.point[1]);
            double unused = 0;
            ReduceTerms(ws, a, b, unused, c);
            return LinearFormToMarkup(a, b, 0, c, true);
        }
        // In space a line is the meeting of two planes, taken from the continuous form.
        // Of the three planes below, the first two are parallel when v1 is 0 (a line of
        // constant y would read the same plane twice): take the first two whose normals
        // are independent, which always exist for a non-zero direction.
        const auto& p = line.point;
        const auto& v = line.direction;
        const std::array<std::array<double, 4>, 3> planes = {{
            {v[1], -v[0], 0, -v[1] * p[0] + v[0] * p[1]},
            {0, v[2], -v[1], -v[2] * p[1] + v[1] * p[2]},
            {v[2], 0, -v[0], -v[2] * p[0] + v[0] * p[2]},
        }};
        return "#NES({X#RWS(L" + LinePlanePair(ws, planes) + "#RWS)#NES)";
    }
    case LineForm::SlopeIntercept: {
        const double vx = line.direction[0], vy = line.direction[1];
        const double px = line.point[0], py = line.point[1];
        const double m = vy / vx;
        const double q = py - m * px;
        // With whole data slope and intercept are fractions: written as such, never
        // guessed from their decimals (which could pass for a multiple of pi).
        const bool whole = IsWhole(vx) && IsWhole(vy) && IsWhole(px) && IsWhole(py);
        auto magnitude = [&](double top, double bottom, double value) {
            return whole ? FractionToMarkup(ws, std::fabs(top), std::fabs(bottom))
                         : NumberToExactMarkup(ws, std::fabs(value));
        };
        std::string right;
        if (m != 0) {
            if (m < 0) right = "-";
            if (std::fabs(m) != 1) right += magnitude(vy, vx, m);
            right += kX;
        }
        if (q != 0 || right.empty()) {
            const std::string qText = magnitude(py * vx - vy * px, vx, q);
            if (right.empty()) right = (q < 0 ? "-" : "") + qText;
            else right += (q < 0 ? "& -& " : "& +& ") + qText;
        }
        return kY + "& =& " + right;
    }
    }
    return "";
}

namespace {
// Terms joined the textbook way: no coefficient 1 beside a letter, no zero term, no "+ -".
std::string JoinTerms(const std::vector<std::pair<double, std::string>>& terms) {
    std::string text;
    for (const auto& [value, letter] : terms) {
        if (value == 0) continue;
        const double magnitude = std::fabs(value);
        if (text.empty()) text = value < 0 ? "-" : "";
        else text += value < 0 ? "& -& " : "& +& ";
        if (magnitude != 1 || letter.empty()) text += NumberToMarkup(magnitude);
        text += letter;
    }
    return text.empty() ? "0" : text;
}
} // namespace

ConicGeneral ConicGeneralCoefficients(MathWorkspace& ws, const ConicData& conic) {
    double A = 0, C = 0, D = 0, E = 0, F = 0;
    const double h = conic.h, k = conic.k;
    switch (conic.kind) {
    case ConicKind::Circle:
        A = 1; C = 1; D = -2 * h; E = -2 * k; F = h * h + k * k - conic.a2;
        break;
    case ConicKind::Ellipse:
        A = conic.b2; C = conic.a2; D = -2 * h * conic.b2; E = -2 * k * conic.a2;
        F = conic.b2 * h * h + conic.a2 * k * k - conic.a2 * conic.b2;
        break;
    case ConicKind::Hyperbola: {
        // b²(x - h)² - a²(y - k)² = a²b², or b²(y - k)² - a²(x - h)² = a²b² opening up and down.
        A = conic.vertical ? -conic.a2 : conic.b2;
        C = conic.vertical ? conic.b2 : -conic.a2;
        D = -2 * h * A; E = -2 * k * C;
        F = A * h * h + C * k * k - conic.a2 * conic.b2;
        break;
    }
    case ConicKind::Parabola:
        if (conic.vertical) { A = 1; D = -2 * h; E = -conic.a2; F = h * h + conic.a2 * k; }
        else { C = 1; E = -2 * k; D = -conic.a2; F = k * k + conic.a2 * h; }
        break;
    }
    // Whole coefficients are divided by their common divisor, the lead made positive.
    const double values[5] = {A, C, D, E, F};
    bool whole = true;
    for (double v : values) whole = whole && v == std::floor(v);
    if (whole) {
        double g = 0;
        for (double v : values) g = Gcd(ws, g, std::fabs(v));
        if (A < 0 || (A == 0 && C < 0)) g = -g;
        if (g != 0) { A /= g; C /= g; D /= g; E /= g; F /= g; }
    }
    return {A, C, D, E, F};
}

std::string ConicToMarkup(MathWorkspace& ws, const ConicData& conic, ConicStyle style) {
    if (style == ConicStyle::General || style == ConicStyle::ConstantRight) {
        const ConicGeneral g = ConicGeneralCoefficients(ws, conic);
        if (style == ConicStyle::General) {
            return JoinTerms({{g.A, kX + "^2"}, {g.C, kY + "^2"}, {g.D, kX}, {g.E, kY}, {g.F, ""}}) + "& =& 0";
        }
        if (conic.kind == ConicKind::Parabola) {
            // The squared variable on the left, the linear one on the right.
            if (conic.vertical) return JoinTerms({{g.A, kX + "^2"}, {g.D, kX}, {g.F, ""}}) + "& =& " +
                                       JoinTerms({{-g.E, kY}});
            return JoinTerms({{g.C, kY + "^2"}, {g.E, kY}, {g.F, ""}}) + "& =& " + JoinTerms({{-g.D, kX}});
        }
        return JoinTerms({{g.A, kX + "^2"}, {g.C, kY + "^2"}, {g.D, kX}, {g.E, kY}}) + "& =& " +
               NumberToMarkup(-g.F == 0 ? 0 : -g.F);
    }
    auto shifted = [&](const std::string& variable, double centre) {
        if (centre == 0) return variable;
        return variable + (centre > 0 ? "& -& " : "& +& ") + NumberToExactMarkup(ws, std::fabs(centre));
    };
    auto squared = [&](const std::string& variable, double centre) {
        if (centre == 0) return variable + "^2";
        return "(" + shifted(variable, centre) + ")^2";
    };
    auto over = [&](const std::string& top, double bottom) {
        return "#COC( " + top + "#N)(" + NumberToExactMarkup(ws, bottom) + "#COC)";
    };
    auto times = [&](double factor, const std::string& what) {
        return (factor == 1 ? "" : NumberToExactMarkup(ws, factor)) + what;
    };
    const bool cleared = style == ConicStyle::Cleared;
    switch (conic.kind) {
    case ConicKind::Circle:
        return squared(kX, conic.h) + "& +& " + squared(kY, conic.k) + "& =& " + NumberToExactMarkup(ws, conic.a2);
    case ConicKind::Ellipse:
        if (cleared) {
            return times(conic.b2, squared(kX, conic.h)) + "& +& " + times(conic.a2, squared(kY, conic.k)) + "& =& " +
                   NumberToExactMarkup(ws, conic.a2 * conic.b2);
        }
        return over(squared(kX, conic.h), conic.a2) + "& +& " + over(squared(kY, conic.k), conic.b2) + "& =& 1";
    case ConicKind::Hyperbola: {
        const std::string xPart = squared(kX, conic.h), yPart = squared(kY, conic.k);
        const std::string first = conic.vertical ? yPart : xPart, second = conic.vertical ? xPart : yPart;
        if (cleared) {
            return times(conic.b2, first) + "& -& " + times(conic.a2, second) + "& =& " +
                   NumberToExactMarkup(ws, conic.a2 * conic.b2);
        }
        return over(first, conic.a2) + "& -& " + over(second, conic.b2) + "& =& 1";
    }
    case ConicKind::Parabola: {
        // a2 holds the factor 4p: (y - k)² = 4p(x - h), or (x - h)² = 4p(y - k).
        const std::string square = conic.vertical ? squared(kX, conic.h) : squared(kY, conic.k);
        const std::string linear = conic.vertical ? shifted(kY, conic.k) : shifted(kX, conic.h);
        if (cleared) return linear + "& =& " + (conic.a2 < 0 ? "-" : "") + over(square, std::fabs(conic.a2));
        const std::string factor = conic.a2 == -1 ? "-" : conic.a2 == 1 ? "" : NumberToExactMarkup(ws, conic.a2);
        const bool bare = conic.vertical ? conic.k == 0 : conic.h == 0;
        return square + "& =& " + factor + (bare ? linear : "(" + linear + ")");
    }
    }
    return "";
}
