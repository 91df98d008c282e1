#include "mathservices/number_markup.h"

#include <cmath>
#include <cstdio>

#include "mathservices/arithmetic.h"

namespace {
const std::string kDegree = "\u00B0";

bool StartsWith(const std::string& s, const std::string& prefix) { return s.rfind(prefix, 0) == 0; }
bool Contains(const std::string& s, const std::string& what) { return s.find(what) != std::string::npos; }

std::string WithLeadingZero(std::string text) {
    if (StartsWith(text, ".")) text = "0" + text;
    return text;
}

bool SqrtIsWhole(double x) { return IsWhole(std::sqrt(x)); }

// True when a is n·pi/d to within the rounding of a few operations on doubles.
bool IsPiMultiple(double a, double n, double d) { return std::fabs(n * kPi / d - a) <= 1e-10 * a; }
} // namespace

std::string ReplaceAll(std::string text, const std::string& what, const std::string& with) {
    if (what.empty()) return text;
    std::string::size_type pos = 0;
    while ((pos = text.find(what, pos)) != std::string::npos) {
        text.replace(pos, what.size(), with);
        pos += with.size();
    }
    return text;
}

std::string PlainNumberText(double x) {
    if (x == 0) return "0";
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.15G", x);
    std::string text = buffer;
    if (StartsWith(text, "0.")) text.erase(0, 1);
    else if (StartsWith(text, "-0.")) text.erase(1, 1);
    return text;
}

std::string DecimalText(double x) {
    std::string text = PlainNumberText(x);
    if (StartsWith(text, ".")) return "0" + text;
    if (StartsWith(text, "-.")) return "-0" + text.substr(1);
    return text;
}

std::string NumberToMarkup(double x) {
    std::string text = WithLeadingZero(PlainNumberText(std::fabs(x)));
    const auto e = text.find('E');
    if (e != std::string::npos) {
        std::string exponent = text.substr(e + 1);
        text = text.substr(0, e) + "&E";
        if (StartsWith(exponent, "-")) {
            text += "-";
            exponent.erase(0, 1);
        }
        if (StartsWith(exponent, "0")) exponent.erase(0, 1);
        text += exponent;
    }
    if (x < 0) text = "-" + text;
    return ReplaceAll(text, ".", "&.");
}

std::string NumberToSignificantMarkup(double x, double digits) {
    if (x == 0) return "0";
    MathWorkspace scratch;
    const double a = std::fabs(x);
    const double e = Int(std::log(a) / std::log(10.0));
    const double r = RoundAtPosition(scratch, a, e - digits);
    if (a < 100000 && a >= 0.01) return NumberToMarkup(x < 0 ? -r : r);
    const double m = r / std::pow(10.0, e);
    std::string s = NumberToMarkup(m);
    if (!Contains(s, "&.") && digits >= 2) s += "&.";
    while (static_cast<double>(s.size()) < digits + 1) s += "0";
    s += "&E" + PlainNumberText(e);
    if (x < 0) s = "-" + s;
    return s;
}

void FindFraction(MathWorkspace& ws, double x, double& numerator, double& denominator) {
    const double a = std::fabs(x);
    if (a > 1000000 || a < 0.0001) {
        numerator = x;
        denominator = 1;
        return;
    }
    double u = a;
    double v = 1;
    // Euclid on a real number: the remainder falls below the rounding in a few dozen
    // rounds; the bound only guards against a NaN.
    for (int round = 0; round < 5000; ++round) {
        const double r = u - Int(u / v) * v;
        if (RoundAtPosition(ws, r, -5) == 0) break;
        u = v;
        v = r;
    }
    numerator = RoundAtPosition(ws, a / v, -1);
    denominator = RoundAtPosition(ws, 1 / v, -1);
    if (numerator + denominator > 200000) {
        numerator = x;
        denominator = 1;
        return;
    }
    double g = Gcd(ws, numerator, denominator);
    numerator /= g;
    denominator /= g;
    if (std::fabs(numerator / denominator - a) < 0.000001) {
        if (x < 0) numerator = -numerator;
        return;
    }
    for (int i = -5; i <= 5; ++i) {
        for (int j = -5; j <= 5; ++j) {
            if (denominator + j == 0) continue;
            const double n = numerator + i;
            const double d = denominator + j;
            if (std::fabs(n / d - x) < 0.000001) {
                g = Gcd(ws, n, d);
                numerator = std::fabs(n / g);
                denominator = d / g;
                if (x < 0) numerator = -numerator;
                return;
            }
        }
    }
    numerator = x;
    denominator = 1;
}

std::string NumberToExactMarkup(MathWorkspace& ws, double x) {
    const double a = std::fabs(x);
    std::string numText = WithLeadingZero(PlainNumberText(a));
    std::string denText;
    if (!(IsWhole(a) || a >= 100000000000000.0)) {
        double n1, d1, n2, d2, n3, d3;
        FindFraction(ws, a, n1, d1);
        FindFraction(ws, a / kPi, n2, d2);
        FindFraction(ws, a * a, n3, d3);
        // The fraction search accepts anything within 10^-6: a value such as 4·atan(1/8)
        // would pass for 19π/120. A multiple of pi is named only when it holds to the
        // rounding of the double, as a value built from a multiple of pi does.
        if (n2 + d2 < 180 && IsWhole(n2) && n2 != 0 && IsPiMultiple(a, n2, d2)) {
            numText = (n2 == 1 ? "" : PlainNumberText(n2)) + "&pi";
            denText = d2 != 1 ? PlainNumberText(d2) : "";
        } else if (!((!SqrtIsWhole(n3) || !SqrtIsWhole(d3)) && n3 != 0 && IsWhole(n3) && n3 + d3 < 5000)) {
            numText = n1 == 0 ? "0" : PlainNumberText(n1);
            denText = d1 != 1 ? PlainNumberText(d1) : "";
        } else if (SqrtIsWhole(d3)) {
            for (int k = 2; k <= 60; ++k) {
                if (IsWhole(n3 / (k * k)) && IsWhole(d3 / k)) {
                    n3 /= k * k;
                    d3 /= k;
                }
            }
            numText = "#SQR(" + PlainNumberText(n3) + "#SQR)";
            const double root = std::sqrt(d3);
            denText = root != 1 ? PlainNumberText(root) : "";
        } else {
            double p = d3;
            double q = d3;
            for (int k = 2; k <= 60; ++k) {
                if (IsWhole(p / (k * k)) && IsWhole(q / k)) {
                    p /= k * k;
                    q /= k;
                }
            }
            if (!SqrtIsWhole(n3)) {
                numText = "#SQR(" + PlainNumberText(p * n3) + "#SQR)";
            } else {
                const double root = std::sqrt(n3);
                numText = (root == 1 ? "" : PlainNumberText(root)) + "#SQR(" + PlainNumberText(p) + "#SQR)";
            }
            denText = q != 1 ? PlainNumberText(q) : "";
        }
    }
    std::string result;
    if (x == 0) result = "0";
    else if (!denText.empty()) result = "#COC(" + numText + "#N)(" + denText + "#COC)";
    else result = numText;
    if (Contains(result, ".")) return NumberToSignificantMarkup(x, 5);
    if (x < 0) result = "-" + result;
    return result;
}

std::string FractionToMarkup(MathWorkspace& ws, double numerator, double denominator) {
    const double g = Gcd(ws, numerator, denominator);
    numerator /= g;
    denominator /= g;
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    if (numerator == 0) denominator = 1;
    if (denominator == 1) return PlainNumberText(numerator);
    const std::string text = "#COC(" + PlainNumberText(numerator) + "#N)(" + PlainNumberText(denominator) + "#COC)";
    return numerator < 0 ? "  " + text : text;
}

std::string RootFractionToMarkup(MathWorkspace& ws, double a, double r, double b) {
    const bool negative = a * b < 0;
    r = std::fabs(r);
    const double root = Int(std::sqrt(r) + 0.1);
    if (root * root == r) return FractionToMarkup(ws, a * std::sqrt(r), b);
    // Every square factor leaves the root, also one that does not divide b (√12 is
    // written 2√3): a root with a square factor under it is not in its simplest form.
    for (double d = 2; d * d <= r && d <= 100000; ++d) {
        while (IsWhole(r / (d * d))) {
            r /= d * d;
            a *= d;
        }
    }
    const double g = Gcd(ws, a, b);
    a = std::fabs(a / g);
    b = std::fabs(b / g);
    std::string text;
    if (a == 0) {
        text = "0";
    } else {
        std::string numerator = (a == 1 && r != 1) ? "" : PlainNumberText(a);
        if (r != 1) numerator += "#SQR(" + PlainNumberText(r) + "#SQR)";
        text = b != 1 ? "#COC(" + numerator + "#N)(" + PlainNumberText(b) + "#COC)" : numerator;
        if (negative) text = "-& " + text;
    }
    return ReplaceAll(text, ".", "&.");
}

std::string SecondsToDegreeMarkup(double seconds) {
    const double a = std::fabs(seconds);
    const double d = Int(a / 3600);
    double rest = a - d * 3600;
    const double m = Int(rest / 60);
    const double s = rest - m * 60;
    std::string text = PlainNumberText(d) + kDegree + "& ";
    if (m != 0) text += PlainNumberText(m) + "'& ";
    if (s != 0) text += PlainNumberText(s) + "\"";
    if (seconds < 0) text = "-" + text;
    return text;
}

std::string AngleToDegreeMarkup(double degrees) {
    if (IsWhole(degrees)) return PlainNumberText(degrees) + kDegree;
    const double a = std::fabs(degrees);
    if (a >= 100000000000000.0) return ReplaceAll(PlainNumberText(degrees), ".", "&.");
    double d = Int(a);
    const double minutesExact = (a - d) * 60;
    double m = Int(minutesExact);
    double s = Int((minutesExact - m) * 100 * 60 + 0.5) / 100;
    if (s >= 60) {
        s -= 60;
        m += 1;
    }
    if (m >= 60) {
        m -= 60;
        d += 1;
    }
    std::string secondsText = PlainNumberText(s);
    if (StartsWith(secondsText, ".")) secondsText = "0" + secondsText;
    std::string text = (degrees < 0 ? "-" : "") + PlainNumberText(d) + kDegree + " " + PlainNumberText(m) + "' " +
                       secondsText + "\"";
    return ReplaceAll(text, ".", "&.");
}

std::string ComplexToMarkup(MathWorkspace& ws, double re, double im) {
    const std::string reText = NumberToExactMarkup(ws, re);
    const std::string imText =
        std::fabs(im) == 1 ? "&+I& i&-I" : NumberToExactMarkup(ws, std::fabs(im)) + "&+I& i&-I";
    if (re == 0 && im == 0) return "0";
    std::string result = re != 0 ? reText : "";
    if (im != 0) {
        if (im < 0) result += "& -& ";
        else if (re != 0) result += "& +& ";
        result += imText;
    }
    return result;
}

std::string ComplexPolarToMarkup(MathWorkspace& ws, double re, double im, int unit) {
    const double square = re * re + im * im;
    const double modulus = std::sqrt(square);
    // A root modulus loses its square factors (5√2, not √50), as every printed root does.
    const std::string modulusText = IsWhole(modulus) ? PlainNumberText(modulus)
                                    : IsWhole(square) ? RootFractionToMarkup(ws, 1, square, 1)
                                                      : "#SQR(" + PlainNumberText(square) + "#SQR)";
    double argument;
    if (re == 0) {
        argument = im > 0 ? kPi / 2 : 3 * kPi / 2;
    } else {
        argument = std::atan(im / re);
        if (re < 0) argument += kPi;
    }
    if (argument < 0) argument += 2 * kPi;
    else if (argument >= 2 * kPi) argument -= 2 * kPi;
    std::string argumentText;
    if (unit == 1) {
        argumentText = NumberToSignificantMarkup(argument * 180 / kPi, 6) + kDegree;
    } else {
        // The argument of whole parts is a rational multiple of pi only on the axes and the
        // diagonals (a multiple of pi/4); any other is written as a decimal, never as a
        // fraction of pi that is merely close to it.
        const bool whole = IsWhole(re) && IsWhole(im);
        const bool exact = !whole || re == 0 || im == 0 || std::fabs(re) == std::fabs(im);
        argumentText = exact ? NumberToExactMarkup(ws, argument) : "";
        if (!Contains(argumentText, "&pi")) argumentText = NumberToSignificantMarkup(argument, 6);
        argumentText += " rad";
    }
    // The argument hangs as a subscript under the right of the modulus: a stacked pair
    // with an empty upper line.
    return modulusText + "#SPB(L #T)(" + argumentText + "#SPB)";
}
