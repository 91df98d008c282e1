#pragma once
#include <string>

#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// The handler of each construct tag (the tag table names them), one file of the folder for
// each family.

// Fractions and stacked forms.
void FractionHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void ArrowTextHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void StackedPairHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
// Roots and powers.
void RootHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void PowerHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
// Delimiters and rows.
void DelimiterHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void RowsHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
// Over- and underlines, the integral sign, pictures, headings with sublines.
void MarkHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void IntegralHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void ImageHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void HeadingHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
// Ring figures and the open-chain atom.
void RingHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
void OpenChainHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
// The chemical equation with notes.
void EquationHandler(TypesetterState&, const std::u32string&, DrawingSurface&, std::u32string&);
