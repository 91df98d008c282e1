#include "core/ports.h"

#include "mathservices/utf8_text.h"

std::int32_t FitAllMeasure::MeasurePage(const std::string& text, double, bool) {
    // Line ends inside the text mean nothing; lines are split at "&LF", and a line that
    // begins with a mark takes it.
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            ++i;
            continue;
        }
        plain += text[i];
    }
    std::int32_t flow = 0;
    std::size_t start = 0;
    while (true) {
        const auto end = plain.find("&LF", start);
        if (plain.compare(start, 5, "#MARK") == 0)
            flow = static_cast<std::int32_t>(LeadingNumberSkippingBlanks(plain.substr(start + 6, 4)));
        if (end == std::string::npos) break;
        start = end + 3;
    }
    return flow;
}
