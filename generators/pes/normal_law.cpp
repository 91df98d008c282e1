#include "generators/pes/normal_law.h"

#include <cmath>

#include "mathservices/math_workspace.h"

double NormalCDF(double x) {
    if (x > 30) return 1;
    if (x < -30) return 0;
    // The power series cancels away all its digits once |x| passes about 6 (its largest
    // term grows like e^(x²/2)); out there the complementary error function is exact
    // where the series is noise.
    if (std::fabs(x) > 5) return 0.5 * std::erfc(-x / std::sqrt(2.0));
    double sum = std::sqrt(kPi / 2);
    double divisor = 1;
    double power = x;  // x^(2k+1)
    for (int k = 0; k < 70; ++k) {
        if (k > 0) {
            divisor = -divisor * 2 * k;
            power *= x * x;
        }
        const double term = power / (2 * k + 1) / divisor;
        sum += term;
        if (std::fabs(term) < 1e-9) break;
    }
    return sum / std::sqrt(2 * kPi);
}

double NormalInverse(double p) {
    if (p <= 2e-197) return -30;
    if (p >= 0.999999999999999) return 9;
    if (p == 0.5) return 0;
    double x = p < 0.5 ? -29.9999 : 0;
    const double upper = p < 0.5 ? 0 : 9;
    double step = 0.08;
    while (true) {
        // Walk up to the first point at which the law reaches p; the point before it is
        // below p. Walk again from there with a tenth of the step.
        while (x < upper && NormalCDF(x) < p) x += step;
        x -= step;
        if (step < 1e-6) return x + step / 2;
        step /= 10;
    }
}
