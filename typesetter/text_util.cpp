#include "typesetter/text_util.h"

#include <charconv>
#include <system_error>

std::u32string ToU32(const std::string& utf8) {
    std::u32string out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    const std::size_t n = utf8.size();
    while (i < n) {
        const unsigned char b = static_cast<unsigned char>(utf8[i]);
        char32_t c = 0;
        int extra = 0;
        if (b < 0x80) { c = b; }
        else if ((b & 0xE0) == 0xC0) { c = b & 0x1F; extra = 1; }
        else if ((b & 0xF0) == 0xE0) { c = b & 0x0F; extra = 2; }
        else if ((b & 0xF8) == 0xF0) { c = b & 0x07; extra = 3; }
        else { out.push_back(0xFFFD); ++i; continue; }
        bool bad = false;
        for (int k = 1; k <= extra; ++k) {
            if (i + k >= n || (static_cast<unsigned char>(utf8[i + k]) & 0xC0) != 0x80) { bad = true; break; }
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        }
        if (bad) { out.push_back(0xFFFD); ++i; continue; }
        out.push_back(c);
        i += 1 + extra;
    }
    return out;
}

std::string ToUtf8(char32_t c) {
    std::string out;
    if (c < 0x80) out.push_back(static_cast<char>(c));
    else if (c < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (c >> 12)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (c >> 18)));
        out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
    return out;
}

std::string ToUtf8(const std::u32string& text) {
    std::string out;
    out.reserve(text.size());
    for (char32_t c : text) out += ToUtf8(c);
    return out;
}

double LeadingNumber(const std::u32string& text) {
    // Decimal only and independent of the process's locale: markup numbers use a point.
    std::string ascii;
    std::size_t i = 0;
    while (i < text.size() && (text[i] == U' ' || text[i] == U'\t')) ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == U'+' || text[i] == U'-')) negative = text[i++] == U'-';
    for (; i < text.size(); ++i) {
        const char32_t c = text[i];
        if (!((c >= U'0' && c <= U'9') || c == U'.' || c == U'e' || c == U'E' || c == U'+' || c == U'-')) break;
        ascii.push_back(static_cast<char>(c));
    }
    double value = 0;
    const auto result = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value, std::chars_format::general);
    if (result.ec != std::errc() || ascii.empty() || ascii[0] == '+' || ascii[0] == '-') return 0;
    return negative ? -value : value;
}

std::u32string TrimBlanks(const std::u32string& text) {
    std::size_t a = 0, b = text.size();
    while (a < b && (text[a] == U' ' || text[a] == U'\t')) ++a;
    while (b > a && (text[b - 1] == U' ' || text[b - 1] == U'\t')) --b;
    return text.substr(a, b - a);
}

std::u32string UpperAscii(std::u32string text) {
    for (auto& c : text)
        if (c >= U'a' && c <= U'z') c = c - U'a' + U'A';
    return text;
}
