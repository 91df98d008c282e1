#pragma once
#include <functional>
#include <string>
#include <vector>

#include "core/application_state.h"
#include "typesetter/typesetter_state.h"

// A picture that the LaTeX text includes: written beside the .tex file as a PNG.
struct LatexPicture {
    std::string name;    // as the markup names it, in capitals
    std::string file;    // the PNG's name beside the .tex file
    bool mirrored = false; // stored upside down (a picture hung from the line above)
};

// What the conversion needs from outside and what it leaves behind.
struct LatexContext {
    // The entity table (names and glyphs) and the texts of the locale codes.
    const TypesetterState* symbols = nullptr;
    // The size in pixels of a picture named by the markup; false when there is none.
    std::function<bool(const std::string& name, double& width, double& height)> pictureSize;
    // Filled by the conversion: each picture once, in order of first use.
    std::vector<LatexPicture> pictures;
    // Constructs that could not be written as LaTeX, by tag ("#A6V(" and so on).
    std::vector<std::string> leftOut;
};

// One markup text (lines parted by "&LF") as LaTeX paragraphs, in text mode. Whatever the
// markup holds, the result is balanced LaTeX: a construct that has no LaTeX form stands as
// a "%" comment line saying so.
std::string MarkupToLatex(LatexContext& context, const std::string& markup);

// One line of markup (no "&LF") as LaTeX in text mode, without the paragraph around it.
std::string InlineMarkupToLatex(LatexContext& context, const std::string& markup);

// The whole document: an article with amsmath, graphicx and xcolor holding the title, the
// numbered problems and their solutions where the collection places them.
std::string CollectionToLatex(const ApplicationState& app, LatexContext& context);

// Text for LaTeX's text mode: the ten special characters escaped, other characters mapped.
std::string EscapeLatexText(const std::string& text);
