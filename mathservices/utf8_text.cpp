#include "mathservices/utf8_text.h"

#include <algorithm>
#include <cctype>

namespace {
bool IsContinuation(unsigned char c) { return (c & 0xC0) == 0x80; }

// Byte offset of the 0-based character index, or the text's size past its end.
std::size_t ByteOffset(const std::string& text, std::size_t index) {
    std::size_t chars = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsContinuation(static_cast<unsigned char>(text[i]))) continue;
        if (chars == index) return i;
        ++chars;
    }
    return text.size();
}
} // namespace

std::size_t Utf8Length(const std::string& text) {
    std::size_t count = 0;
    for (unsigned char c : text) {
        if (!IsContinuation(c)) ++count;
    }
    return count;
}

std::string Utf8Left(const std::string& text, std::size_t count) { return text.substr(0, ByteOffset(text, count)); }

std::string Utf8Mid(const std::string& text, std::size_t start, std::size_t count) {
    const std::size_t from = ByteOffset(text, start);
    if (count == std::string::npos) return text.substr(from);
    const std::size_t to = ByteOffset(text, start + count);
    return text.substr(from, to - from);
}

std::string Utf8PadRight(const std::string& text, std::size_t width) {
    std::string out = Utf8Left(text, width);
    const std::size_t length = Utf8Length(out);
    if (length < width) out.append(width - length, ' ');
    return out;
}

std::string TrimBlanks(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

double LeadingNumberSkippingBlanks(const std::string& text) {
    std::size_t i = 0;
    auto skipBlanks = [&] {
        while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    };
    skipBlanks();
    double sign = 1;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        if (text[i] == '-') sign = -1;
        ++i;
    }
    double value = 0;
    bool fraction = false;
    double scale = 1;
    while (true) {
        skipBlanks();
        if (i >= text.size()) break;
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            if (fraction) {
                scale /= 10;
                value += (c - '0') * scale;
            } else {
                value = value * 10 + (c - '0');
            }
        } else if (c == '.' && !fraction) {
            fraction = true;
        } else {
            break;
        }
        ++i;
    }
    return sign * value;
}

std::string ZeroFilled(long long value, int width) {
    const std::string padded = std::string(static_cast<std::size_t>(width), '0') + std::to_string(value);
    return padded.substr(padded.size() - static_cast<std::size_t>(width));
}
