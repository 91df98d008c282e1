#include "algebra_test_helpers.h"

#include <algorithm>
#include <cmath>

namespace algebra_test {

double ReadSeconds(const std::string& text) {
    double total = 0;
    double sign = 1;
    std::size_t pos = 0;
    while (pos < text.size() && text[pos] == ' ') ++pos;
    if (pos < text.size() && text[pos] == '-') {
        sign = -1;
        ++pos;
    }
    while (pos < text.size()) {
        if (text[pos] == ' ' || text[pos] == '&') {
            ++pos;
            continue;
        }
        char* end = nullptr;
        const double value = std::strtod(text.c_str() + pos, &end);
        if (end == text.c_str() + pos) return std::nan("");
        pos = static_cast<std::size_t>(end - text.c_str());
        if (text.compare(pos, 2, "\u00B0") == 0) {
            total += value * 3600;
            pos += 2;
        } else if (text[pos] == '\'') {
            total += value * 60;
            ++pos;
        } else if (text[pos] == '"') {
            total += value;
            ++pos;
        } else {
            return std::nan("");
        }
    }
    return sign * total;
}

bool AllDistinct(const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (texts[i] == texts[j]) return false;
        }
    }
    return true;
}

} // namespace algebra_test
