#pragma once
#include <array>
#include <string>

// The table of trigonometric identities of the proof drill, in short-hand.

inline constexpr int kTrigIdentityCount = 34;
extern const std::array<const char*, kTrigIdentityCount> kTrigIdentityTemplates;

// The short-hand made readable with the chosen letters: powers and multiples of the
// variable first, then the bare variable, then the two angles A and B, the degree sign,
// and last the names sin, cos, tan (Z, K, T), since the templates hold words such as
// "sec" and the tags as they are.
std::string ExpandTrigIdentity(const std::string& shorthand, const std::string& letter, const std::string& angleA,
                               const std::string& angleB);
