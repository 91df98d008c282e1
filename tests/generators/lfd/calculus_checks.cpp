#include "calculus_checks.h"

#include <cmath>
#include <stdexcept>

std::string IntegrandOf(const std::string& item) {
    const auto open = item.find("#INT(");
    const auto close = item.rfind("#INT)");
    if (open == std::string::npos || close == std::string::npos) throw std::runtime_error("no integral: " + item);
    std::string body = item.substr(open + 5, close - open - 5);
    const auto dx = body.rfind("dx");
    if (dx == std::string::npos) throw std::runtime_error("no dx: " + item);
    body.erase(dx);
    for (const char* tail : {"&+I", "_ ", " "}) {
        while (body.size() >= std::string(tail).size() &&
               body.compare(body.size() - std::string(tail).size(), std::string::npos, tail) == 0)
            body.erase(body.size() - std::string(tail).size());
    }
    return body;
}

std::string WithoutConstant(const std::string& answer) {
    for (const char* c : {" + &+IC&-I", " + C&-I", " + C"}) {
        const std::string tail = c;
        if (answer.size() >= tail.size() && answer.compare(answer.size() - tail.size(), tail.size(), tail) == 0)
            return answer.substr(0, answer.size() - tail.size());
    }
    throw std::runtime_error("no constant of integration: " + answer);
}

namespace {
const double kSamples[] = {-7.31, -2.27, -0.83, -0.41, -0.07, 0.04, 0.09, 0.37, 0.71, 1.3, 2.9, 8.1};

struct Sample {
    bool usable = false;
    std::string failure;
};

// The written derivative against central differences of f at x. Points where either is
// undefined, or next to a pole or a corner of the domain where differences mislead, are
// not usable.
Sample CheckAt(const MarkupFormula& f, const MarkupFormula& derivative, double x, double h) {
    const double expected = derivative.RealAt(x);
    const double a = f.RealAt(x + h), b = f.RealAt(x - h);
    const double a2 = f.RealAt(x + 2 * h), b2 = f.RealAt(x - 2 * h);
    if (!std::isfinite(expected) || !std::isfinite(a) || !std::isfinite(b) || !std::isfinite(a2) ||
        !std::isfinite(b2) || std::fabs(expected) > 1e12)
        return {};
    const double numeric = (a - b) / (2 * h), numeric2 = (a2 - b2) / (4 * h);
    if (std::fabs(numeric - numeric2) > 1e-5 * std::max(1.0, std::fabs(numeric))) return {};
    if (std::fabs(numeric - expected) > 1e-4 * std::max(1.0, std::fabs(expected)))
        return {false, "at x = " + std::to_string(x) + ": numeric " + std::to_string(numeric) + ", written " +
                           std::to_string(expected)};
    return {true, ""};
}

// f is differentiated numerically; derivativeMarkup is its claimed derivative.
std::string CheckPair(const std::string& fMarkup, const std::string& derivativeMarkup, int minPoints) {
    int used = 0;
    try {
        const MarkupFormula f(fMarkup), derivative(derivativeMarkup);
        for (double x : kSamples) {
            const Sample s = CheckAt(f, derivative, x, 1e-5 * std::max(1.0, std::fabs(x)));
            if (!s.failure.empty()) return s.failure;
            used += s.usable ? 1 : 0;
        }
        // A narrow domain (an arcsine of a steep argument) needs a finer scan.
        for (int step = 0; step < 540 && used < minPoints; ++step) {
            const Sample s = CheckAt(f, derivative, -9.973 + step * 0.0371, 1e-6);
            if (!s.failure.empty()) return s.failure;
            used += s.usable ? 1 : 0;
        }
    } catch (const std::exception& e) {
        return e.what();
    }
    if (used < minPoints) return "only " + std::to_string(used) + " usable sample points";
    return "";
}
} // namespace

std::string CheckAntiderivative(const std::string& integrand, const std::string& antiderivative, int minPoints) {
    return CheckPair(antiderivative, integrand, minPoints);
}

std::string CheckDerivative(const std::string& function, const std::string& derivative, int minPoints) {
    return CheckPair(function, derivative, minPoints);
}
