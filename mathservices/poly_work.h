#pragma once
#include <array>
#include <string>

// The shared scratch polynomial: numeric coefficients by degree 0..18, and coefficient
// texts by degree 0..9. A text, when not empty, wins over the number of its degree, so
// that a parameter letter can stand as a coefficient.
struct PolyWork {
    std::array<double, 19> coefficients{};
    std::array<std::string, 10> texts{};

    void Clear() {
        coefficients.fill(0.0);
        for (auto& t : texts) t.clear();
    }
};
