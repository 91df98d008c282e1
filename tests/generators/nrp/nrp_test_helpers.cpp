#include "generators/nrp/nrp_test_helpers.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <stdexcept>

namespace {
class Reader {
public:
    explicit Reader(const std::string& text) : s_(text) {}

    double Whole() {
        const double v = Expr();
        Skip();
        if (pos_ != s_.size()) Fail("trailing text");
        return v;
    }

private:
    const std::string& s_;
    std::size_t pos_ = 0;

    [[noreturn]] void Fail(const std::string& what) const {
        throw std::runtime_error(what + " at " + std::to_string(pos_) + " in: " + s_);
    }
    bool At(const std::string& t) const { return s_.compare(pos_, t.size(), t) == 0; }
    bool AtDigit() const { return pos_ < s_.size() && std::isdigit(static_cast<unsigned char>(s_[pos_])); }
    void Expect(const std::string& t) {
        Skip();
        if (!At(t)) Fail("expected " + t);
        pos_ += t.size();
    }
    void Skip() {
        while (pos_ < s_.size()) {
            if (s_[pos_] == ' ') ++pos_;
            else if (At("&+I") || At("&-I")) pos_ += 3;
            else if (At("& ") || At("_ ")) pos_ += 2;
            else break;
        }
    }
    bool AtPrimary() const {
        return AtDigit() || At("(") || At("[") || At("#COC(") || At("#SQR(") || At("#RAD(") || At("#POT(") ||
               At("#NES(");
    }

    double Expr() {
        Skip();
        double v = 0;
        if (At("-")) {
            ++pos_;
            v = -Term();
        } else {
            v = Term();
        }
        while (true) {
            Skip();
            if (At("+")) {
                ++pos_;
                v += Term();
            } else if (At("-")) {
                ++pos_;
                v -= Term();
            } else {
                return v;
            }
        }
    }

    double Term() {
        double v = Factor();
        while (true) {
            Skip();
            if (At("×")) {
                pos_ += std::string("×").size();
                v *= Factor();
            } else if (At(":")) {
                ++pos_;
                const double d = Factor();
                if (d == 0) Fail("division by zero");
                v /= d;
            } else if (AtPrimary()) {
                v *= Factor();
            } else {
                return v;
            }
        }
    }

    double Factor() {
        double v = Primary();
        while (At("^")) {
            ++pos_;
            if (!AtDigit()) Fail("power without digit");
            v = std::pow(v, s_[pos_] - '0');
            ++pos_;
        }
        return v;
    }

    double Primary() {
        Skip();
        if (At("#COC(")) {
            pos_ += 5;
            const double n = Expr();
            Expect("#N)(");
            const double d = Expr();
            Expect("#COC)");
            if (d == 0) Fail("zero denominator");
            return n / d;
        }
        if (At("#SQR(")) {
            pos_ += 5;
            const double x = Expr();
            Expect("#SQR)");
            return std::sqrt(x);
        }
        if (At("#RAD(")) {
            pos_ += 5;
            Expect("#RI(");
            const double index = Expr();
            Expect("#RI)");
            const double x = Expr();
            Expect("#RAD)");
            return std::pow(x, 1 / index);
        }
        if (At("#POT(")) {
            pos_ += 5;
            const double b = Expr();
            Expect("#PB)(");
            const double e = Expr();
            Expect("#POT)");
            return std::pow(b, e);
        }
        if (At("#NES(")) {
            pos_ += 5;
            const char left = s_[pos_];
            pos_ += 2;
            const double x = Expr();
            Expect("#NES)");
            return left == '|' ? std::fabs(x) : x;
        }
        if (At("(")) {
            ++pos_;
            const double x = Expr();
            Expect(")");
            return x;
        }
        if (At("[")) {
            ++pos_;
            const double x = Expr();
            Expect("]");
            return x;
        }
        if (AtDigit()) return Number();
        Fail("unexpected text");
    }

    // Digits, with "_ " between groups.
    std::string Digits() {
        std::string d;
        while (true) {
            while (AtDigit()) d += s_[pos_++];
            if (At("_ ") && pos_ + 2 < s_.size() && std::isdigit(static_cast<unsigned char>(s_[pos_ + 2]))) {
                pos_ += 2;
                continue;
            }
            return d;
        }
    }

    double Number() {
        const std::string whole = Digits();
        double v = std::stod(whole);
        if (At("&.")) {
            pos_ += 2;
            const std::string fixed = Digits();
            const double scale = std::pow(10.0, static_cast<double>(fixed.size()));
            if (!fixed.empty()) v += std::stod(fixed) / scale;
            if (At("#ARC(")) {
                pos_ += 5;
                const std::string period = Digits();
                if (period.empty()) Fail("empty repeating block");
                Expect("#ARC)");
                const double nines = std::pow(10.0, static_cast<double>(period.size())) - 1;
                v += std::stod(period) / nines / scale;
            }
        }
        return v;
    }
};
} // namespace

double MarkupValue(const std::string& markup) { return Reader(markup).Whole(); }

bool SameValue(double a, double b) { return std::fabs(a - b) <= 1e-9 * std::max({1.0, std::fabs(a), std::fabs(b)}); }

std::vector<std::string> UprightItems(const std::string& statement) { return SolutionItems(statement); }

bool ReadFraction(const std::string& text, long long& numerator, long long& denominator) {
    static const std::regex stacked(R"(^ *#COC\((-?\d+)#N\)\((\d+)#COC\)$)");
    static const std::regex plain(R"(^(-?\d+)$)");
    std::smatch m;
    if (std::regex_match(text, m, stacked)) {
        numerator = std::stoll(m[1]);
        denominator = std::stoll(m[2]);
        return true;
    }
    if (std::regex_match(text, m, plain)) {
        numerator = std::stoll(m[1]);
        denominator = 1;
        return true;
    }
    return false;
}

std::vector<long long> WholeNumbers(const std::string& text) {
    std::vector<long long> out;
    std::string digits;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const char c = i < text.size() ? text[i] : ' ';
        if (std::isdigit(static_cast<unsigned char>(c))) {
            digits += c;
        } else if (c == '_' && !digits.empty() && i + 2 < text.size() && text[i + 1] == ' ' &&
                   std::isdigit(static_cast<unsigned char>(text[i + 2]))) {
            ++i;
        } else if (!digits.empty()) {
            out.push_back(std::stoll(digits));
            digits.clear();
        }
    }
    return out;
}

int ExpectedItems(const GeneratedProblem& p, int maxAmount) { return std::clamp(p.fields.ItemCount, 1, maxAmount); }
