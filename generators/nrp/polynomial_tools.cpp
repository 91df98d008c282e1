#include "generators/nrp/polynomial_tools.h"

#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

void ClearPoly(PolyWork& poly) { poly.Clear(); }

void ExpandRoots(PolyWork& poly, const std::vector<double>& roots) {
    ClearPoly(poly);
    poly.coefficients[0] = 1;
    for (double root : roots) {
        // (x - root) · result, from the top degree down so that each entry is read once.
        for (int k = 18; k >= 0; --k) {
            const double below = k > 0 ? poly.coefficients[k - 1] : 0;
            poly.coefficients[k] = below - root * poly.coefficients[k];
        }
    }
}

Coefficients MultiplyPolys(const Coefficients& a, const Coefficients& b) {
    Coefficients r{};
    for (int i = 0; i <= 18; ++i) {
        if (a[i] == 0) continue;
        for (int j = 0; i + j <= 18; ++j) r[i + j] += a[i] * b[j];
    }
    return r;
}

Coefficients AddPolys(const Coefficients& a, const Coefficients& b) {
    Coefficients r{};
    for (int k = 0; k <= 9; ++k) r[k] = a[k] + b[k];
    return r;
}

Coefficients SubtractPolys(const Coefficients& a, const Coefficients& b) {
    Coefficients r{};
    for (int k = 0; k <= 9; ++k) r[k] = a[k] - b[k];
    return r;
}

std::vector<RootCount> GroupRoots(const std::vector<double>& roots) {
    std::vector<RootCount> groups;
    for (double root : roots) {
        bool found = false;
        for (auto& g : groups) {
            if (g.value == root) {
                ++g.count;
                found = true;
                break;
            }
        }
        if (!found && groups.size() < 9) groups.push_back({root, 1});
    }
    return groups;
}

Coefficients PolyFromRoots(double constant, const std::vector<double>& roots) {
    PolyWork work;
    ExpandRoots(work, roots);
    return ScalePoly(work.coefficients, constant);
}

Coefficients PolyMonomial(double a, int k) {
    Coefficients r{};
    r[k] = a;
    return r;
}

Coefficients ScalePoly(const Coefficients& a, double factor) {
    Coefficients r{};
    for (int k = 0; k <= 18; ++k) r[k] = a[k] * factor;
    return r;
}

int PolyDegree(const Coefficients& a) {
    for (int k = 18; k >= 0; --k) {
        if (a[k] != 0) return k;
    }
    return -1;
}

bool IsZeroPoly(const Coefficients& a) { return PolyDegree(a) < 0; }

double EvaluatePoly(const Coefficients& a, double x) {
    double v = 0;
    for (int k = 18; k >= 0; --k) v = v * x + a[k];
    return v;
}

void DividePolys(const Coefficients& dividend, const Coefficients& divisor, Coefficients& quotient,
                 Coefficients& remainder) {
    quotient = {};
    remainder = dividend;
    const int d = PolyDegree(divisor);
    const double lead = divisor[d];
    for (int k = PolyDegree(remainder); k >= d; --k) {
        const double factor = remainder[k] / lead;
        quotient[k - d] = factor;
        for (int j = 0; j <= d; ++j) remainder[k - d + j] -= factor * divisor[j];
        remainder[k] = 0;
    }
}

double PolyContent(GeneratorWorkspace& ws, const Coefficients& a) {
    double g = 0;
    for (double c : a) {
        if (c != 0) g = g == 0 ? std::fabs(c) : Gcd(ws, g, c);
    }
    return g;
}

std::string PolyText(GeneratorWorkspace& ws, const Coefficients& a) {
    ClearPoly(ws.polyWork);
    for (int k = 0; k <= 9; ++k) ws.polyWork.coefficients[k] = a[k];
    return PolyWorkToMarkup(ws.polyWork, "&+Ix&-I");
}

std::string BinomialText(double root) {
    if (root == 0) return "&+Ix&-I";
    return PolynomialToMarkup(0, 0, 0, 1, -root, "");
}

