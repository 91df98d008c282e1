#pragma once
#include <string>
#include <vector>

namespace algebra_test {

// Angle text "12°& 3'& 4"" in seconds of arc.
double ReadSeconds(const std::string& text);

// True when no two texts are equal.
bool AllDistinct(const std::vector<std::string>& texts);

} // namespace algebra_test
