#include <cmath>

#include "generators/ecu/ecu_common.h"
#include "generators/ecu/ecu_items.h"
#include "generators/ecu/ecu_routines.h"
#include "generators/item_drill.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

std::string SystemText(const std::vector<std::string>& rows) {
    std::string text = "#NES(X}#RWS(R";
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string n = std::to_string(i + 1);
        text += "#RW" + n + "(" + rows[i] + "#RW" + n + ")";
    }
    return text + "#RWS)#NES)";
}

namespace {
double Det3(const std::array<std::array<double, 4>, 3>& m) {
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}
} // namespace

// The solution first, then the coefficients; the right sides follow from the solution.
// A singular system is drawn again from the start.
SystemItem LinearSystem2Item(GeneratorWorkspace& ws) {
    RetryBound bound;
    while (true) {
        const double x = RandomInRange(ws, -12, 12, 1, 0);
        const double y = RandomInRange(ws, -12, 12, 1, 0);
        double a1 = RandomInRange(ws, 1, 15, 1, 1);
        if (Coin(ws, 0.6f)) a1 = -a1;
        double b1 = RandomInRange(ws, 1, 15, 1, 1);
        if (Coin(ws, 0.6f)) b1 = -b1;
        double a2 = RandomInRange(ws, -9, 9, 1, 1);
        if (Coin(ws, 0.8f)) a2 = RandomInRange(ws, 1, 9, 1, 1);
        double b2 = RandomInRange(ws, -9, 9, 1, 1);
        if (Coin(ws, 0.8f)) b2 = RandomInRange(ws, 1, 9, 1, 1);
        if (a1 * b2 - a2 * b1 != 0) {
            SystemItem item;
            item.coefficients = {{a1, b1, 0, a1 * x + b1 * y}, {a2, b2, 0, a2 * x + b2 * y}};
            for (const auto& c : item.coefficients) item.rows.push_back(LinearFormToMarkup(c[0], c[1], 0, c[3], false));
            item.text = SystemText(item.rows);
            item.solutions = {{x, y, 0}};
            item.answer = "&+I  x = &-I" + PlainNumberText(x) + ",   &+Iy = &-I" + PlainNumberText(y);
            return item;
        }
        bound.Next();
    }
}

// x, y, z first; the first coefficient 1 to 15 (negative three times in ten), the other
// eight in -9 to 9 with zero allowed; a singular system is drawn again.
SystemItem LinearSystem3Item(GeneratorWorkspace& ws) {
    RetryBound bound;
    while (true) {
        const double x = RandomInRange(ws, -12, 12, 1, 0);
        const double y = RandomInRange(ws, -12, 12, 1, 0);
        const double z = RandomInRange(ws, -12, 12, 1, 0);
        std::array<std::array<double, 4>, 3> m{};
        for (auto& row : m) {
            for (int j = 0; j < 3; ++j) row[static_cast<std::size_t>(j)] = RandomInRange(ws, -9, 9, 1, 0);
        }
        m[0][0] = RandomInRange(ws, 1, 15, 1, 1);
        if (!Coin(ws, 0.7f)) m[0][0] = -m[0][0];
        if (Det3(m) != 0) {
            SystemItem item;
            for (auto& row : m) {
                row[3] = row[0] * x + row[1] * y + row[2] * z;
                item.coefficients.push_back(row);
                item.rows.push_back(LinearFormToMarkup(row[0], row[1], row[2], row[3], false));
            }
            item.text = SystemText(item.rows);
            item.solutions = {{x, y, z}};
            item.answer = "&+I  x = &-I" + PlainNumberText(x) + ",  &+I y =&-I " + PlainNumberText(y) +
                          ",  &+I z = &-I" + PlainNumberText(z);
            return item;
        }
        bound.Next();
    }
}

// Both solution points first:
//   a parabola y = x² + p·x + q and the line through its points at x₁ and x₂;
//   x + y = a + b with x·y = a·b, solutions (a, b) and (b, a);
//   x ± y = a ± b with x² + y² = a² + b², solutions (a, b) and (b, a) or (−b, −a).
SystemItem NonlinearSystemItem(GeneratorWorkspace& ws) {
    const std::string x = "&+Ix&-I", y = "&+Iy&-I";
    RetryBound bound;
    while (true) {
        const bool parabola = Coin(ws, 0.7f);
        const bool product = Coin(ws, 0.5f);
        const bool sum = Coin(ws, 0.8f);
        const double a = RandomInRange(ws, -6, 12, 1, 0);
        const double b = RandomInRange(ws, 1, 9, 1, 1);
        SystemItem item;
        if (parabola) {
            const double x1 = RandomInRange(ws, -6, 6, 1, 0);
            const double x2 = RandomInRange(ws, -6, 6, 1, 0);
            const double p = RandomInRange(ws, -9, 9, 1, 0);
            const double q = RandomInRange(ws, -9, 9, 1, 0);
            const double m = x1 + x2 + p, k = q - x1 * x2;
            if (x1 >= x2 || m == 0) {
                bound.Next();
                continue;
            }
            item.rows = {y + kEquals + PolynomialToMarkup(0, 0, 1, p, q, x), LinearFormToMarkup(m, -1, 0, -k, false)};
            for (double xi : {x1, x2}) item.solutions.push_back({xi, xi * xi + p * xi + q, 0});
        } else if (product) {
            if (a == b || a == 0) {
                bound.Next();
                continue;
            }
            item.rows = {LinearFormToMarkup(1, 1, 0, a + b, false), x + "\u00B7" + y + kEquals + PlainNumberText(a * b)};
            item.solutions = {{a, b, 0}, {b, a, 0}};
        } else {
            if ((sum && a == b) || (!sum && a == -b)) {
                bound.Next();
                continue;
            }
            item.rows = {LinearFormToMarkup(1, sum ? 1 : -1, 0, a + (sum ? b : -b), false),
                         x + "^2& +& " + y + "^2" + kEquals + PlainNumberText(a * a + b * b)};
            item.solutions = {{a, b, 0}, {sum ? b : -b, sum ? a : -a, 0}};
        }
        item.text = SystemText(item.rows);
        for (std::size_t i = 0; i < item.solutions.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            if (i > 0) item.answer += ";    ";
            item.answer += x + "_" + n + " = " + PlainNumberText(item.solutions[i][0]) + ",   " + y + "_" + n + " = " +
                           PlainNumberText(item.solutions[i][1]);
        }
        return item;
    }
}

// Routine 4.
void LinearSystems2(GeneratorWorkspace& ws) {
    EquationDrill(ws, LinearSystem2Item, 26, {"&SP=5:", "&SP=35:", "&SP=65:"}, {"&SP=10:", "&SP=38:", "&SP=66:"},
                  {"Solve the following systems of  2\u00D72  linear equations:&LF",
                   "Solve these systems of  2\u00D72  linear equations:&LF"});
    // This drill's answers follow the letter without the usual blank.
    ws.Solution = ReplaceAll(ws.Solution, ")&-B &+I  x = &-I", ")&-B&+I  x = &-I");
}

// Routine 5.
void LinearSystems3(GeneratorWorkspace& ws) {
    EquationDrill(ws, LinearSystem3Item, 26, kStatementColumns2, kSolutionColumns2,
                  {"Solve the following systems of  3\u00D73  linear equations:&LF",
                   "Solve these systems of  3\u00D73  linear equations:&LF"});
}

// Routine 9.
void NonlinearSystems(GeneratorWorkspace& ws) {
    EquationDrill(ws, NonlinearSystemItem, 21, kStatementColumns2, kSolutionColumns2,
                  {"Solve the following nonlinear systems of  2\u00D72  equations:&LF",
                   "Solve these nonlinear systems of  2\u00D72  equations:&LF"});
}
