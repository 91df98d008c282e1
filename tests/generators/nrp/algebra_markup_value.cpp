#include "algebra_markup_value.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace algebra_test {

namespace {
using Complex = std::complex<double>;

enum : char {
    kCocOpen = 1, kCocMid = 2, kCocClose = 3, kNesOpen = 4, kNesClose = 5, kSqrOpen = 6, kSqrClose = 7,
    kSpbOpen = 14, kSpbClose = 15, kRadOpen = 16, kRadMid = 17, kRadClose = 18,
};

std::string ReplaceAllText(std::string s, const std::string& what, const std::string& with) {
    std::size_t pos = 0;
    while ((pos = s.find(what, pos)) != std::string::npos) {
        s.replace(pos, what.size(), with);
        pos += with.size();
    }
    return s;
}

class Reader {
public:
    Reader(std::string text, Complex x) : s_(std::move(text)), x_(x) {}

    std::optional<Complex> Whole() {
        const Complex v = Expression();
        Skip();
        if (failed_ || pos_ != s_.size()) return std::nullopt;
        return v;
    }

private:
    void Skip() {
        while (pos_ < s_.size() && s_[pos_] == ' ') ++pos_;
    }
    char Peek() {
        Skip();
        return pos_ < s_.size() ? s_[pos_] : '\0';
    }
    bool Accept(char c) {
        if (Peek() != c) return false;
        ++pos_;
        return true;
    }
    void Expect(char c) {
        if (!Accept(c)) failed_ = true;
    }

    Complex Expression() {
        Complex v = 0;
        if (Accept('-')) v = -Term();
        else {
            Accept('+');
            v = Term();
        }
        while (!failed_) {
            if (Accept('+')) v += Term();
            else if (Accept('-')) v -= Term();
            else break;
        }
        return v;
    }

    static bool StartsPrimary(char c) {
        return (c >= '0' && c <= '9') || c == '.' || c == 'x' || c == 'i' || c == 'P' || c == '(' || c == kCocOpen ||
               c == kNesOpen || c == kSqrOpen || c == kRadOpen;
    }

    Complex Term() {
        Complex v = Power();
        while (!failed_) {
            const char c = Peek();
            if (c == '*') {
                ++pos_;
                v *= Power();
            } else if (c == ':') {
                ++pos_;
                v /= Power();
            } else if (c == kSpbOpen) {
                // A polar form: the modulus so far, its argument as the subscript.
                ++pos_;
                const Complex angle = Expression();
                Expect(kSpbClose);
                v *= std::exp(Complex(0, 1) * angle.real());
            } else if (StartsPrimary(c)) {
                v *= Power();
            } else {
                break;
            }
        }
        return v;
    }

    Complex Power() {
        Complex v = Primary();
        if (Accept('D')) v *= std::acos(-1.0) / 180;
        if (pos_ < s_.size() && s_[pos_] == '^') {
            if (pos_ + 1 >= s_.size() || s_[pos_ + 1] < '0' || s_[pos_ + 1] > '9') {
                failed_ = true;
                return v;
            }
            const int n = s_[pos_ + 1] - '0';
            pos_ += 2;
            Complex p = 1;
            for (int k = 0; k < n; ++k) p *= v;
            v = p;
        }
        return v;
    }

    Complex Primary() {
        const char c = Peek();
        if ((c >= '0' && c <= '9') || c == '.') {
            const char* start = s_.c_str() + pos_;
            char* end = nullptr;
            const double value = std::strtod(start, &end);
            pos_ += static_cast<std::size_t>(end - start);
            return value;
        }
        ++pos_;
        switch (c) {
        case 'x': return x_;
        case 'i': return Complex(0, 1);
        case 'P': return std::acos(-1.0);
        case '(': {
            const Complex v = Expression();
            Expect(')');
            return v;
        }
        case kCocOpen: {
            const Complex top = Expression();
            Expect(kCocMid);
            const Complex bottom = Expression();
            Expect(kCocClose);
            return top / bottom;
        }
        case kNesOpen: {
            const Complex v = Expression();
            Expect(kNesClose);
            return v;
        }
        case kSqrOpen: {
            const Complex v = Expression();
            Expect(kSqrClose);
            return std::sqrt(v);
        }
        case kRadOpen: {
            const Complex index = Expression();
            Expect(kRadMid);
            const Complex v = Expression();
            Expect(kRadClose);
            return std::pow(v, 1.0 / index.real());
        }
        default: failed_ = true; return 0;
        }
    }

    std::string s_;
    Complex x_;
    std::size_t pos_ = 0;
    bool failed_ = false;
};
} // namespace

std::optional<std::complex<double>> MarkupValue(const std::string& markup, std::complex<double> x) {
    std::string s = markup;
    for (const char* code : {"&+I", "&-I", "&+B", "&-B"}) s = ReplaceAllText(s, code, "");
    s = ReplaceAllText(s, "&pi", "P");
    s = ReplaceAllText(s, "&E", "e");
    s = ReplaceAllText(s, "& ", " ");
    s = ReplaceAllText(s, "&.", ".");
    s = ReplaceAllText(s, "_ ", "");
    s = ReplaceAllText(s, " rad", "");
    s = ReplaceAllText(s, "\u00B0", "D");
    s = ReplaceAllText(s, "\u00B7", "*");
    s = ReplaceAllText(s, "\u00D7", "*");
    s = ReplaceAllText(s, "#COC(", std::string(1, kCocOpen));
    s = ReplaceAllText(s, "#N)(", std::string(1, kCocMid));
    s = ReplaceAllText(s, "#COC)", std::string(1, kCocClose));
    s = ReplaceAllText(s, "#NES(()", std::string(1, kNesOpen));
    s = ReplaceAllText(s, "#NES)", std::string(1, kNesClose));
    s = ReplaceAllText(s, "#SQR(", std::string(1, kSqrOpen));
    s = ReplaceAllText(s, "#SQR)", std::string(1, kSqrClose));
    s = ReplaceAllText(s, "#SPB(L #T)(", std::string(1, kSpbOpen));
    s = ReplaceAllText(s, "#SPB)", std::string(1, kSpbClose));
    s = ReplaceAllText(s, "#RAD(#RI(", std::string(1, kRadOpen));
    s = ReplaceAllText(s, " #RI)", std::string(1, kRadMid));
    s = ReplaceAllText(s, "#RAD)", std::string(1, kRadClose));
    if (s.find('&') != std::string::npos || s.find('#') != std::string::npos) return std::nullopt;
    return Reader(s, x).Whole();
}

std::vector<std::string> LetteredTexts(const std::string& text, const std::string& tail) {
    std::vector<std::string> out;
    const std::string letters = "abcdefghijklmnopqrstuvwxyz";
    std::size_t pos = 0;
    for (char letter : letters) {
        const std::string mark = std::string("&+B") + letter + tail;
        const auto at = text.find(mark, pos);
        if (at == std::string::npos) break;
        const auto start = at + mark.size();
        auto end = text.find("&SP=", start);
        end = std::min(end, text.find("&LF", start));
        out.push_back(text.substr(start, end - start));
        pos = start;
    }
    return out;
}

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

bool Near(std::complex<double> a, std::complex<double> b, double relative) {
    const double scale = std::max({1.0, std::abs(a), std::abs(b)});
    return std::abs(a - b) <= relative * scale;
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
