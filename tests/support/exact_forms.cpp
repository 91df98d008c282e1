#include "support/exact_forms.h"

#include <cstdlib>
#include <regex>

namespace {
bool StartsWith(const std::string& s, const std::string& p) { return s.rfind(p, 0) == 0; }

bool TakePrefix(std::string& s, const std::string& p) {
    if (!StartsWith(s, p)) return false;
    s.erase(0, p.size());
    return true;
}

// Whole digits and nothing else.
std::optional<long long> Digits(const std::string& s) {
    if (s.empty() || s.size() > 15) return std::nullopt;
    for (char c : s)
        if (c < '0' || c > '9') return std::nullopt;
    return std::stoll(s);
}

// "k", "#SQR(r#SQR)", "k#SQR(r#SQR)" with an optional "-" in front.
std::optional<RootFraction> ReadRootTerm(std::string s) {
    const bool negative = TakePrefix(s, "-");
    RootFraction f;
    const auto at = s.find("#SQR(");
    if (at == std::string::npos) {
        const auto k = Digits(s);
        if (!k) return std::nullopt;
        f.a = *k;
    } else {
        if (s.size() < at + 10 || s.compare(s.size() - 5, 5, "#SQR)") != 0) return std::nullopt;
        const auto r = Digits(s.substr(at + 5, s.size() - at - 10));
        if (!r) return std::nullopt;
        f.r = *r;
        if (at == 0) {
            f.a = 1;
        } else {
            const auto k = Digits(s.substr(0, at));
            if (!k) return std::nullopt;
            f.a = *k;
        }
    }
    if (negative) f.a = -f.a;
    return f;
}

// The numerator and denominator of "#COC(" top "#N)(" bottom "#COC)", or nothing.
bool SplitFraction(const std::string& s, std::string& top, std::string& bottom) {
    if (!StartsWith(s, "#COC(") || s.size() < 15 || s.compare(s.size() - 5, 5, "#COC)") != 0) return false;
    const auto mid = s.find("#N)(");
    if (mid == std::string::npos || s.find("#N)(", mid + 1) != std::string::npos) return false;
    top = s.substr(5, mid - 5);
    bottom = s.substr(mid + 4, s.size() - 5 - mid - 4);
    return true;
}
} // namespace

long long WholeGcd(long long a, long long b) {
    a = std::llabs(a);
    b = std::llabs(b);
    while (b != 0) {
        const long long t = a % b;
        a = b;
        b = t;
    }
    return a;
}

std::optional<RootFraction> ReadRootFraction(std::string text) {
    while (TakePrefix(text, " ")) {
    }
    bool negative = TakePrefix(text, "-& ");
    if (!negative && StartsWith(text, "-#COC(")) negative = TakePrefix(text, "-");
    std::string top, bottom;
    std::optional<RootFraction> f;
    if (SplitFraction(text, top, bottom)) {
        f = ReadRootTerm(top);
        const auto b = Digits(bottom);
        if (!f || !b || *b == 0) return std::nullopt;
        f->b = *b;
    } else {
        f = ReadRootTerm(text);
        if (!f) return std::nullopt;
    }
    if (negative) {
        if (f->a < 0) return std::nullopt;
        f->a = -f->a;
    }
    return f;
}

std::optional<PiMultiple> ReadPiMultiple(std::string text) {
    const bool negative = TakePrefix(text, "-");
    std::string top = text, bottom = "1";
    SplitFraction(text, top, bottom);
    if (top.size() < 3 || top.compare(top.size() - 3, 3, "&pi") != 0) return std::nullopt;
    top.erase(top.size() - 3);
    PiMultiple m;
    if (top.empty()) {
        m.n = 1;
    } else {
        const auto n = Digits(top);
        if (!n) return std::nullopt;
        m.n = *n;
    }
    const auto d = Digits(bottom);
    if (!d || *d == 0) return std::nullopt;
    m.d = *d;
    if (negative) m.n = -m.n;
    return m;
}

bool SameRootFraction(const RootFraction& x, const RootFraction& y) {
    const auto sign = [](const RootFraction& f) { return (f.a > 0) - (f.a < 0); };
    if (sign(x) != sign(y)) return false;
    // a²·r/b² compared across: every factor is small.
    return x.a * x.a * x.r * y.b * y.b == y.a * y.a * y.r * x.b * x.b;
}

std::string FirstUnsimplifiedForm(const std::string& text) {
    static const std::regex root("#SQR\\(([0-9]+)#SQR\\)");
    for (std::sregex_iterator it(text.begin(), text.end(), root), end; it != end; ++it) {
        const long long r = std::stoll((*it)[1].str());
        if (r < 2) return it->str();
        for (long long d = 2; d * d <= r; ++d)
            if (r % (d * d) == 0) return it->str();
    }
    // A stacked fraction whose upper and lower lines are whole numbers, or a root with a
    // whole factor over a whole number.
    static const std::regex fraction("#COC\\((-?)([0-9]*)(#SQR\\(([0-9]+)#SQR\\))?#N\\)\\(([0-9]+)#COC\\)");
    for (std::sregex_iterator it(text.begin(), text.end(), fraction), end; it != end; ++it) {
        const auto& m = *it;
        const bool hasRoot = m[3].matched && m[3].length() > 0;
        if (m[2].length() == 0 && !hasRoot) continue;
        const long long a = m[2].length() > 0 ? std::stoll(m[2].str()) : 1;
        const long long b = std::stoll(m[5].str());
        if (b < 2 || a == 0 || WholeGcd(a, b) != 1) return m.str();
    }
    return "";
}
