#pragma once
#include <array>
#include <cmath>
#include <string>

#include "generators/generator_contract.h"
#include "generators/shared/space_tools.h"

// A workspace whose stream stands where the router leaves it before a routine.
inline void SeedWorkspace(GeneratorWorkspace& ws, int seed) {
    ws.stream.Draw(-1);
    ws.stream.SeedStream(seed);
    for (int i = 0; i < 4; ++i) ws.stream.Draw();
    ws.Seed = seed;
}

using Row4 = std::array<double, 4>;

inline double Det3(const Vec3& a, const Vec3& b, const Vec3& c) { return Triple(a, b, c); }

// Rank of the rows' first three columns (coefficients) or of all four (augmented).
inline int Rank(const std::array<Row4, 3>& m, bool augmented) {
    const int columns = augmented ? 4 : 3;
    auto col = [&](int r, int c) { return m[r][c]; };
    for (int c0 = 0; c0 < columns; ++c0)
        for (int c1 = c0 + 1; c1 < columns; ++c1)
            for (int c2 = c1 + 1; c2 < columns; ++c2) {
                const Vec3 r0{col(0, c0), col(0, c1), col(0, c2)};
                const Vec3 r1{col(1, c0), col(1, c1), col(1, c2)};
                const Vec3 r2{col(2, c0), col(2, c1), col(2, c2)};
                if (Det3(r0, r1, r2) != 0) return 3;
            }
    for (int a = 0; a < 3; ++a)
        for (int b = a + 1; b < 3; ++b)
            for (int c0 = 0; c0 < columns; ++c0)
                for (int c1 = c0 + 1; c1 < columns; ++c1)
                    if (m[a][c0] * m[b][c1] - m[a][c1] * m[b][c0] != 0) return 2;
    for (const auto& r : m)
        for (int c = 0; c < columns; ++c)
            if (r[c] != 0) return 1;
    return 0;
}

inline bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
