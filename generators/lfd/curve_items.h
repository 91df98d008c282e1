#pragma once
#include <string>

#include "generators/generator_contract.h"
#include "generators/item_drill.h"

using CurveItem = ItemTexts;

inline constexpr int kTangentTypes = 6;

// A curve and a point on it (types 1 to 6); the answer is the tangent and the normal line.
CurveItem MakeTangentItem(GeneratorWorkspace& ws, int type);
// A cubic (type 1) or a biquadratic quartic (type 2) with whole critical points; the
// answer lists its maximums and minimums.
CurveItem MakeExtremaItem(GeneratorWorkspace& ws, int type);
