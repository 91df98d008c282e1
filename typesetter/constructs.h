#pragma once
#include <string>
#include <vector>

#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// A construct's handler: piece is the construct's whole text from its opening tag through
// its closer; its box is state.BoxCounter at entry. fittedHead is the caller's, for the
// one construct that hands it down to its body.
using ConstructHandler = void (*)(TypesetterState& state, const std::u32string& piece, DrawingSurface& surface,
                                  std::u32string& fittedHead);

struct ConstructTag {
    std::u32string open;
    std::u32string close;
    ConstructHandler handler;
    bool axisAligned;
};

// Every construct tag the interpreter knows, five characters each.
const std::vector<ConstructTag>& ConstructTags();
// The tag that opens at position pos (0-based) of text, or nullptr.
const ConstructTag* FindConstructTag(const std::u32string& text, std::size_t pos);
