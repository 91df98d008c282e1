#pragma once
#include <cstdint>

#include "mathservices/poly_work.h"
#include "mathservices/random_stream.h"

// What the maths services share between calls: the random stream, the fault number of
// the last service call and the scratch polynomial. The generator workspace extends it.
struct MathWorkspace {
    RandomStream stream;
    // 0 = no fault, 1 = a range draw gave up, 5 = bad argument to the prime test.
    std::int32_t MathError = 0;
    PolyWork polyWork;
};

inline constexpr double kPi = 3.14159265358979323846;

// A weighted coin: one draw compared with a threshold in single precision, as the
// stored problems were made ("Draw() > 0.9" compares with the single nearest to 0.9).
inline bool Coin(MathWorkspace& ws, float threshold) { return ws.stream.Draw() > threshold; }
inline float Draw(MathWorkspace& ws) { return ws.stream.Draw(); }
