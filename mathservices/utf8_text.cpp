#include "mathservices/utf8_text.h"

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
