#pragma once
#include <string>

#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// Lays out one string of markup: in the measure pass (state.DrawPass false) it writes the
// box state.BoxTable[state.BoxCounter] and, when the string is wider than the page, the
// part that fits into fittedHead; in the draw pass it draws on the surface from its pen.
void InterpretMarkup(TypesetterState& state, const std::u32string& text, DrawingSurface& surface,
                     std::u32string& fittedHead);

// The first balanced piece of text from openTag through its matching closeTag, tags
// included, or the red error text when a tag is missing.
std::u32string ExtractBalanced(const std::u32string& text, const std::u32string& openTag, const std::u32string& closeTag);
// The same, searching from position from of text on.
std::u32string ExtractBalancedAt(const std::u32string& text, std::size_t from, const std::u32string& openTag,
                                 const std::u32string& closeTag);
// What ExtractBalanced returns when it finds no balanced piece.
std::u32string BalanceErrorText(const std::u32string& openTag);
bool IsBalanceError(const std::u32string& piece);
// The text shown for a piece that is an error text: red "*ERROR*" and the tag, laid out
// without being read as a tag again.
std::u32string ErrorDisplayText(const std::u32string& errorText);

// Splits "REC,w,h": kind is the trimmed text up to the first comma, width and height the
// numbers behind the first and the second comma.
void ParseFillList(const std::u32string& text, std::u32string& kind, double& width, double& height);

// Replaces the locale codes "&." "&," "&(" "&)" "&FA" "&DT" of one line by the page setup's
// number texts.
std::u32string ExpandLocaleCodes(const PageDevices& setup, const std::u32string& line);

// Shared by the constructs.
// The font's ascent in twips.
double AscentTwips(const PageDevices& setup, DrawingSurface& surface);
// Twips per pixel used to turn a stroke thickness into DrawWidth.
double StrokeTwipsPerPixel(const PageDevices& setup, const DrawingSurface& surface);
// DrawWidth for a stroke of t twips: t / twips per pixel, not below 1.
void SetStrokeWidth(const PageDevices& setup, DrawingSurface& surface, double t);
// Takes the next box for piece number place (0..9) of the construct whose box is
// parentBox, records it (measure pass) and interprets text into it. Returns the box
// number, or 0 when the box table is full (the piece is then left out, in both passes).
int InterpretPiece(TypesetterState& state, int parentBox, int place, const std::u32string& text,
                   DrawingSurface& surface, std::u32string& fittedHead);
int InterpretPiece(TypesetterState& state, int parentBox, int place, const std::u32string& text,
                   DrawingSurface& surface);
// The box number of child place of parentBox recorded by the measure pass (0: none).
int ChildBox(const LineBoxes& boxes, int parentBox, int place);
