#include "mathservices/arithmetic.h"

#include <algorithm>
#include <cmath>

#include "mathservices/faults.h"

namespace {
// Euclid on doubles ends in a few dozen rounds for whole numbers; the bound only keeps
// a NaN or a non-whole argument from looping for ever.
constexpr int kEuclidRounds = 5000;

double EuclidLastDivisor(double u, double v) {
    for (int round = 0; round < kEuclidRounds; ++round) {
        const double r = u - Int(u / v) * v;
        if (r == 0) return v;
        u = v;
        v = r;
    }
    return v;
}
} // namespace

double Int(double x) { return std::floor(x); }

bool IsWhole(double x) { return std::isfinite(x) && std::floor(x) == x; }

double RandomInRange(MathWorkspace& ws, double low, double high, double step, double nonZero) {
    ws.MathError = 0;
    const double d = high - low;
    if (d == 0) return low;
    long rounds = 0;
    while (true) {
        double r;
        if (std::fabs(step / d) <= 0.000001) {
            r = d * static_cast<double>(ws.stream.Draw()) + low;
        } else {
            r = Int(static_cast<double>(ws.stream.Draw()) * d / step + 0.5) * step + low;
        }
        if (++rounds > 100000) break;
        r = SnapValue(r);
        if (nonZero == 0 || r != 0) return r;
    }
    ws.MathError = 1;
    return 0;
}

double SnapValue(double x) {
    if (Int(x * 10000000 + 0.5) == Int(x + 0.5) * 10000000) return Int(x + 0.5);
    return x;
}

double RoundAtPosition(MathWorkspace& ws, double x, double position) {
    ws.MathError = 0;
    const double p = std::pow(10.0, -1 - position);
    return Int(x * p + 0.5) / p;
}

double FractionalPart(MathWorkspace& ws, double x) {
    ws.MathError = 0;
    const double a = std::fabs(x);
    if (a > 1000000000000000.0) return 0;
    const double f = a - Int(a);
    return x < 0 ? -f : f;
}

double Gcd(MathWorkspace& ws, double a, double b) {
    ws.MathError = 0;
    if (a > 10000000000.0 || b > 10000000000.0) return 1;
    if (a == 0) return b;
    if (b == 0) return a;
    return std::fabs(EuclidLastDivisor(std::fabs(a), std::fabs(b)));
}

double Lcm(MathWorkspace& ws, double a, double b) {
    ws.MathError = 0;
    return a * b / EuclidLastDivisor(a, b);
}

bool IsPrime(MathWorkspace& ws, double x) {
    ws.MathError = 0;
    if (x > 1000000000.0 || x <= 0 || !IsWhole(x)) {
        ws.MathError = 5;
        return false;
    }
    if (x == 1) return false;
    if (x == 2 || x == 3 || x == 5 || x == 7) return true;
    if (std::fmod(x, 2.0) == 0) return false;
    const double m = Int(std::sqrt(x));
    for (double d = 3; d <= m; d += 2) {
        if (d * Int(x / d) == x) return false;
    }
    return true;
}

void CrossProduct(double a1, double a2, double a3, double b1, double b2, double b3,
                  double& x, double& y, double& z) {
    x = a2 * b3 - a3 * b2;
    y = a3 * b1 - a1 * b3;
    z = a1 * b2 - a2 * b1;
}

double ArcCosine(double x) {
    const double a = std::fabs(x);
    if (a == 1) return kPi / 2 * (1 - x);
    if (a < 1) return kPi / 2 - std::atan(x / std::sqrt(1 - x * x));
    return 0;
}

void ReduceTerms(MathWorkspace& ws, double& a, double& b, double& c, double& d) {
    if (a == 0 && b == 0 && c == 0) return;
    const double g = Gcd(ws, Gcd(ws, Gcd(ws, a, b), c), d);
    a /= g;
    b /= g;
    c /= g;
    d /= g;
    if (a < 0) {
        a = -a; b = -b; c = -c; d = -d;
    } else if (a == 0 && b < 0) {
        b = -b; c = -c; d = -d;
    } else if (a == 0 && b == 0 && c < 0) {
        c = -c; d = -d;
    }
}

namespace {
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Copies digits with a blank after every third one; the first non-digit is copied and
// ends the walk.
std::string WalkDigits(const std::string& digits) {
    std::string out;
    int count = 0;
    for (char c : digits) {
        out += c;
        if (!IsDigit(c)) break;
        if (++count % 3 == 0) out += ' ';
    }
    return out;
}

std::string Trim(const std::string& s) {
    const auto first = s.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    const auto last = s.find_last_not_of(' ');
    return s.substr(first, last - first + 1);
}
} // namespace

std::string GroupDigits(const std::string& text) {
    std::string upper = text;
    std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return std::toupper(c); });
    const auto e = upper.find('E');
    std::string mantissa = e == std::string::npos ? text : text.substr(0, e);
    const std::string exponent = e == std::string::npos ? "" : text.substr(e);
    std::string sign;
    if (!mantissa.empty() && mantissa[0] == '-') {
        sign = "-";
        mantissa.erase(0, 1);
    }
    std::string grouped;
    const auto dot = mantissa.find('.');
    if (dot != std::string::npos) {
        const std::string fraction = WalkDigits(mantissa.substr(dot + 1));
        std::string wholeReversed(mantissa.begin(), mantissa.begin() + static_cast<long>(dot));
        std::reverse(wholeReversed.begin(), wholeReversed.end());
        std::string whole = WalkDigits(wholeReversed);
        std::reverse(whole.begin(), whole.end());
        grouped = whole + "." + fraction;
    } else {
        std::string reversed = mantissa;
        std::reverse(reversed.begin(), reversed.end());
        grouped = WalkDigits(reversed);
        std::reverse(grouped.begin(), grouped.end());
    }
    grouped = Trim(grouped);
    if (grouped.size() >= 5) {
        // Only a four-digit whole part keeps its first digit unsplit ("1234"); a longer one
        // is grouped in threes from the right all the way ("1 438 743", not "1438 743").
        const bool fourDigits = grouped.size() == 5 || grouped[5] == '.';
        if (grouped[1] == ' ' && fourDigits) grouped.erase(1, 1);
        if (grouped[grouped.size() - 2] == ' ') grouped.erase(grouped.size() - 2, 1);
    }
    grouped = sign + grouped + exponent;
    std::string out;
    for (char c : grouped) {
        if (c == ' ') out += "_ ";
        else out += c;
    }
    return out;
}

void PlaneTriple(MathWorkspace& ws, double maximum, double& x, double& y, double& z) {
    if (maximum < 5) return;
    RetryBound bound;
    do {
        bound.Next();
        x = RandomInRange(ws, 3, maximum, 1, 1);
        y = RandomInRange(ws, 3, maximum, 1, 1);
        z = Int(std::sqrt(x * x + y * y) + 0.1);
    } while (!(z * z == x * x + y * y && z <= maximum));
}

void SpatialTriple(MathWorkspace& ws, double maximum, bool equalPair, bool reduce,
                   double& x, double& y, double& z, double& d) {
    RetryBound bound;
    while (true) {
        bound.Next();
        x = RandomInRange(ws, 1, maximum, 1, 1);
        y = RandomInRange(ws, 1, maximum, 1, 1);
        z = RandomInRange(ws, 1, maximum, 1, 1);
        d = Int(std::sqrt(x * x + y * y + z * z) + 0.5);
        const bool pairHolds = equalPair ? x == y : x != y;
        if (d * d == x * x + y * y + z * z && d <= maximum && pairHolds) break;
    }
    if (reduce) {
        const double g = Gcd(ws, Gcd(ws, Gcd(ws, x, y), z), d);
        x /= g;
        y /= g;
        z /= g;
        d /= g;
    }
}
