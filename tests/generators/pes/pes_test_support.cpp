#include "pes_test_support.h"

#include <gtest/gtest.h>

double ReadMarkupNumber(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "&.") == 0) {
            plain += '.';
            ++i;
        } else if ((text[i] >= '0' && text[i] <= '9') || (text[i] == '-' && plain.empty())) {
            plain += text[i];
        } else {
            break;
        }
    }
    if (plain.empty() || plain == "-") {
        ADD_FAILURE() << "no number at: " << text.substr(0, 20);
        return 0;
    }
    return std::stod(plain);
}

double NumberAfter(const std::string& text, const std::string& marker, std::size_t from) {
    const auto at = text.find(marker, from);
    if (at == std::string::npos) {
        ADD_FAILURE() << "missing: " << marker;
        return 0;
    }
    return ReadMarkupNumber(text.substr(at + marker.size()));
}

std::vector<std::pair<std::string, std::string>> TableCells(const std::string& text, const std::string& first,
                                                            const std::string& second) {
    std::vector<std::pair<std::string, std::string>> cells;
    // The rows begin behind the header band, whose heads stand at the same tabs.
    const auto band = text.find("&FF=REC,");
    std::size_t at = band == std::string::npos ? 0 : text.find("&LF", band);
    if (at == std::string::npos) at = 0;
    while ((at = text.find(first, at)) != std::string::npos) {
        const auto middle = text.find(second, at);
        const auto end = text.find("&LF", at);
        if (middle == std::string::npos || end == std::string::npos || middle > end) break;
        cells.emplace_back(text.substr(at + first.size(), middle - at - first.size()),
                           text.substr(middle + second.size(), end - middle - second.size()));
        at = end;
    }
    return cells;
}
