#pragma once
#include <array>
#include <string>

// The table of trigonometric equations that the equation drill of both modules draws
// from: each row is an equation in short-hand and its solutions in degrees.

struct TrigEquationTemplate {
    const char* equation;
    const char* solutions;
};

inline constexpr int kTrigEquationCount = 138;
extern const std::array<TrigEquationTemplate, kTrigEquationCount> kTrigEquationTemplates;

// The square of the unknown as the trigonometry drill writes it (a superscript blank
// before the letter) and as the equations drill writes it (a plain blank).
inline constexpr const char* kTrigSquareWithScriptBlank = "^2^ &+Ix&-I ";
inline constexpr const char* kTrigSquareWithBlank = "^2 &+Ix&-I ";

// The short-hand made readable: "^2@" becomes squareWith, "2@" and "3@" multiples of x,
// "@" the unknown x, "º" the degree sign, and S, C, T the names sin, cos, tan. The
// order matters: the longer patterns go first.
std::string ExpandTrigEquation(const std::string& shorthand, const std::string& squareWith);

// An expanded equation with its blanks as a maths book sets them: one blank between terms
// and signs, none after "(", before ")" or ",", after a unary minus, or at either end.
// The short-hand pads its signs, and "@" brings a blank of its own on each side.
std::string TidyEquationBlanks(const std::string& text);
