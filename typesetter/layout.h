#pragma once
#include <string>

#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// The typesetter's entry: lays a whole markup text (UTF-8) out on the surface from the top
// of the page, line by line, measuring each line and then drawing it, until the text ends
// or the page is full. baseSize is in points already multiplied by ZoomScale; 0, a negative
// value or not-a-number becomes 5 * ZoomScale, in the variable itself. Results stand in
// state.FlowResult, the mark arrays and MarkCount; the page geometry in state.
//   FlowResult 0: no mark met; n > 0: all placed, n the last mark; -n: a line didn't fit
//   (nothing after it drawn), n the last mark met.
void LayoutText(TypesetterState& state, const std::string& text, double& baseSize, DrawingSurface& surface);

// 16 mm in twips: the screen margin at zoom 1, and the base of the printer margins.
inline constexpr double kPageMargin = 16.0 / 25.4 * 1440.0;
