#pragma once
#include <string>

#include "generators/generator_contract.h"

// Small pieces that the equation drills share.

// The unknown as the statement shows it: the letter in italics.
std::string Unknown(const std::string& letter);
// "x", or with a coin one of the letters k, m, t, y, z.
std::string DrawUnknownLetter(GeneratorWorkspace& ws);
// p·x + q the way a textbook writes it; letter "x" when empty.
std::string LinearSide(double p, double q, const std::string& letter = "x");
// The relation of an inequation after both sides were divided by a negative number.
std::string FlippedRelation(const std::string& relation);
// One of "<", ">", "&<=", "&>=" by a range draw.
std::string DrawRelation(GeneratorWorkspace& ws);
// "& -& " or "& +& " and the magnitude text, for a term that follows another.
std::string SignedTail(double value, const std::string& magnitudeText);

inline const std::string kEquals = "& =& ";
