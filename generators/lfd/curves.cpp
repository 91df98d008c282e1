#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "generators/item_drill.h"
#include "generators/lfd/curve_items.h"
#include "generators/lfd/lfd_routines.h"
#include "generators/shared/sum_terms.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kX = "&+Ix&-I";

std::string Num(double v) { return PlainNumberText(v); }

// m·x + q with m = mn/md and q = qn/qd, reduced; "0" when both vanish.
std::string LineText(MathWorkspace& ws, double mn, double md, double qn, double qd) {
    std::string s;
    AppendTerm(ws, s, mn, md, kX);
    AppendTerm(ws, s, qn, qd, "");
    return s.empty() ? "0" : s;
}

std::string FractionText(MathWorkspace& ws, double n, double d) {
    std::string s;
    AppendTerm(ws, s, n, d, "");
    return s.empty() ? "0" : s;
}
} // namespace

// The curves: 1 a parabola, 2 a cubic, 3 a hyperbola k/(x + h), 4 √(x + h) where the
// radicand is a square, 5 k·e^(x + h) at x = -h, 6 k·ln(x + h) at x = 1 - h. Value and
// slope at the point are rational, so both lines have short coefficients.
CurveItem MakeTangentItem(GeneratorWorkspace& ws, int type) {
    const double x0 = RandomInRange(ws, -2, 9, 1, 0);
    const double a = RandomInRange(ws, -9, 9, 1, 1);
    const double b = RandomInRange(ws, -9, 16, 1, 0);
    const double k = RandomInRange(ws, -4, 9, 1, 1);
    const bool unit = Coin(ws, 0.6f);
    const bool small = Coin(ws, 0.5f);
    std::string f;
    double yn = 0, yd = 1, mn = 0, md = 1;  // value and slope at x0
    double px = x0;
    switch (type) {
    case 1: {
        // A parabola about the origin's neighbourhood: the point moved into -4..5.
        px = x0 - 4;
        const double lead = unit ? (a > 0 ? 1 : -1) : std::fmod(a, 3) == 0 ? 2 : std::fmod(a, 3);
        f = PolynomialToMarkup(0, 0, lead, k, b, kX);
        yn = lead * px * px + k * px + b;
        mn = 2 * lead * px + k;
        break;
    }
    case 2: {
        px = small ? x0 / 3 - std::fmod(x0, 3) / 3 - 1 : std::fmod(x0, 4) - 1;
        const double lead = a > 0 ? 1 : -1;
        f = PolynomialToMarkup(0, lead, 0, k, b, kX);
        yn = lead * px * px * px + k * px + b;
        mn = 3 * lead * px * px + k;
        break;
    }
    case 3: {
        // k/(x + h) with x0 + h = s, s never 0.
        const double s = unit ? 1 : (small ? -1 : 2);
        const double h = s - x0;
        f = "#COC(" + Num(k) + "#N)(" + ShiftedVariable(kX, h) + "#COC)";
        yn = k;
        yd = s;
        mn = -k;
        md = s * s;
        break;
    }
    case 4: {
        // √(x + h) with x0 + h = s²
        const double s = std::fabs(std::fmod(k, 4)) + 1;
        const double h = s * s - x0;
        f = "#SQR(" + ShiftedVariable(kX, h) + "#SQR)";
        yn = s;
        mn = 1;
        md = 2 * s;
        break;
    }
    case 5: {
        const double h = -x0;
        f = (k == 1 ? "" : k == -1 ? "-" : Num(k)) + "#EXP( " + ShiftedVariable(kX, h) + "#EXP)";
        yn = k;
        mn = k;
        break;
    }
    default: {
        const double h = 1 - x0;
        f = (k == 1 ? "" : k == -1 ? "-" : Num(k)) + "ln_ (" + ShiftedVariable(kX, h) + ")";
        yn = 0;
        mn = k;
        break;
    }
    }
    CurveItem item;
    item.statement = "&+Iy&-I = " + f + ",     &+Ix&-I_0 = " + Num(px);
    if (mn == 0) {
        // A horizontal tangent: the normal is the vertical line through the point.
        item.solution = "&+Iy&-I = " + FractionText(ws, yn, yd) + ",     &+Ix&-I = " + Num(px);
    } else {
        // Tangent: y = m·x + (y0 - m·x0); normal: y = -x/m + (y0 + x0/m).
        const std::string tangent = LineText(ws, mn, md, yn * md - mn * px * yd, yd * md);
        const std::string normal = LineText(ws, -md, mn, yn * mn + md * px * yd, yd * mn);
        item.solution = "&+Iy&-I = " + tangent + ",     &+Iy&-I = " + normal;
    }
    return item;
}

CurveItem MakeExtremaItem(GeneratorWorkspace& ws, int type) {
    std::vector<double> c(5, 0.0);  // by degree
    std::vector<double> critical;
    double lead = 0;
    RetryBound bound;
    while (true) {
        const double p = RandomInRange(ws, -9, 9, 1, 0);
        const double q = RandomInRange(ws, -8, 8, 1, 0);
        lead = RandomInRange(ws, -2, 2, 1, 1);
        const double d = RandomInRange(ws, -9, 9, 1, 0);
        if (type == 1) {
            // f' = 3·lead·(x - x1)(x - x2): the critical points first, of one parity so
            // that the coefficients are whole.
            const double x1 = std::fmod(p, 5), x2 = std::fmod(q, 5);
            if (x1 == x2 || std::fmod(x1 + x2, 2) != 0) {
                bound.Next();
                continue;
            }
            c = {d, 3 * lead * x1 * x2, -1.5 * lead * (x1 + x2), lead, 0};
            critical = {std::min(x1, x2), std::max(x1, x2)};
        } else {
            // f = lead·(x⁴ - 2r²x²) + d: critical at -r, 0, r.
            const double r = std::fabs(std::fmod(p, 2)) + 1;
            c = {d, 0, -2 * lead * r * r, 0, lead};
            critical = {-r, 0, r};
        }
        break;
    }
    auto value = [&](double x) { return (((c[4] * x + c[3]) * x + c[2]) * x + c[1]) * x + c[0]; };
    auto second = [&](double x) { return 12 * c[4] * x * x + 6 * c[3] * x + 2 * c[2]; };
    CurveItem item;
    item.statement = "&+Iy&-I = " + PolynomialToMarkup(c[4], c[3], c[2], c[1], c[0], kX);
    for (std::size_t i = 0; i < critical.size(); ++i) {
        const double x = critical[i];
        item.solution += std::string(i ? ",   " : "") + (second(x) > 0 ? "Min" : "Max") + " (" + Num(x) + "&, " +
                         Num(value(x)) + ")";
    }
    return item;
}

// Routine 29: tangent and normal lines at a point of six kinds of curve.
void TangentAndNormalLines(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns2, kSolutionColumns1, 20);
    int type = static_cast<int>(RandomInRange(ws, 1, kTangentTypes, 1, 1));
    for (int i = 1; i <= drill.Count(); ++i) {
        type = type == kTangentTypes ? 1 : type + 1;
        AddNewItem(drill, [&] { return MakeTangentItem(ws, type); });
    }
    drill.WriteStatement({"Calculate the tangent and normal lines to the following curves at the given points:&LF"});
}

// Routine 33: maximums and minimums of cubics and biquadratic quartics.
void MaximumsAndMinimums(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns2, kSolutionColumns1, 21);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            // Mostly cubics; about one in three a quartic.
            const int type = Coin(ws, 0.7f) ? 2 : 1;
            return MakeExtremaItem(ws, type);
        });
    }
    drill.WriteStatement({"Find the maximums and minimums of these functions:&LF"});
}
