#include "markup_expression.h"

#include <cmath>
#include <stdexcept>
#include <vector>

namespace {
std::string ReplaceEvery(std::string text, const std::string& what, const std::string& with) {
    std::size_t pos = 0;
    while ((pos = text.find(what, pos)) != std::string::npos) {
        text.replace(pos, what.size(), with);
        pos += with.size();
    }
    return text;
}

class Reader {
public:
    Reader(std::string text, double x) : s_(std::move(text)), x_(x) {}

    double Whole() {
        const double v = Expr();
        Spaces();
        if (pos_ != s_.size()) Fail("unread text");
        return v;
    }

private:
    std::string s_;
    double x_;
    std::size_t pos_ = 0;
    int absDepth_ = 0;

    [[noreturn]] void Fail(const std::string& why) const {
        throw std::runtime_error(why + " at " + std::to_string(pos_) + " in \"" + s_ + "\"");
    }
    void Spaces() {
        while (pos_ < s_.size() && s_[pos_] == ' ') ++pos_;
    }
    bool At(const std::string& what) const { return s_.compare(pos_, what.size(), what) == 0; }
    bool Take(const std::string& what) {
        Spaces();
        if (!At(what)) return false;
        pos_ += what.size();
        return true;
    }
    void Expect(const std::string& what) {
        if (!Take(what)) Fail("expected " + what);
    }

    static const std::vector<std::string>& Functions() {
        static const std::vector<std::string> names = {"arctan", "arcsin", "arccos", "sin", "cos", "tan", "ln"};
        return names;
    }
    static const std::vector<std::string>& Openers() {
        static const std::vector<std::string> tags = {"#COC(", "#SQR(", "#RAD(", "#EXP(", "#POT(", "#NES("};
        return tags;
    }
    bool AtFunction() const {
        for (const auto& f : Functions()) {
            if (At(f)) return true;
        }
        return false;
    }
    bool CanStartPrimary() {
        Spaces();
        if (pos_ >= s_.size()) return false;
        const char c = s_[pos_];
        if ((c >= '0' && c <= '9') || c == '.' || c == 'x' || c == '(' || c == 'e') return true;
        if (At("\xCF\x80")) return true;  // pi
        if (c == '|') return absDepth_ == 0;
        if (c == '#') {
            for (const auto& t : Openers()) {
                if (At(t)) return true;
            }
            return false;
        }
        return AtFunction();
    }

    double Expr() {
        Spaces();
        double value;
        if (Take("-")) value = -Term();
        else {
            Take("+");
            value = Term();
        }
        while (true) {
            Spaces();
            if (Take("+")) value += Term();
            else if (Take("-")) value -= Term();
            else return value;
        }
    }

    double Term() {
        double value = Factor();
        while (true) {
            Spaces();
            if (Take("*")) value *= Factor();
            else if (Take("/")) value /= Factor();
            else if (CanStartPrimary()) value *= Factor();
            else return value;
        }
    }

    double Power(double base) {
        while (pos_ < s_.size() && s_[pos_] == '^') {
            if (pos_ + 1 >= s_.size()) Fail("bare ^");
            const char d = s_[pos_ + 1];
            if (d < '0' || d > '9') Fail("exponent not a digit");
            base = std::pow(base, d - '0');
            pos_ += 2;
        }
        return base;
    }

    double Factor() { return Power(Primary()); }

    double FunctionArgument() {
        // sin 3x, ln|x + 1|, cos (2x - 1): products up to the next function or operator.
        double value = Power(Primary());
        while (true) {
            Spaces();
            if (AtFunction() || !CanStartPrimary()) return value;
            value *= Power(Primary());
        }
    }

    double Apply(const std::string& f, double a) const {
        if (f == "sin") return std::sin(a);
        if (f == "cos") return std::cos(a);
        if (f == "tan") return std::tan(a);
        if (f == "ln") return std::log(a);
        if (f == "arctan") return std::atan(a);
        if (f == "arcsin") return std::asin(a);
        return std::acos(a);
    }

    double Primary() {
        Spaces();
        if (pos_ >= s_.size()) Fail("expected a value");
        const char c = s_[pos_];
        if ((c >= '0' && c <= '9') || c == '.') {
            const std::size_t start = pos_;
            while (pos_ < s_.size() && ((s_[pos_] >= '0' && s_[pos_] <= '9') || s_[pos_] == '.')) ++pos_;
            return std::stod(s_.substr(start, pos_ - start));
        }
        if (c == 'x') {
            ++pos_;
            return x_;
        }
        if (At("\xCF\x80")) {
            pos_ += 2;
            return 3.14159265358979323846;
        }
        if (c == '(') {
            ++pos_;
            const int saved = absDepth_;
            absDepth_ = 0;
            const double v = Expr();
            absDepth_ = saved;
            Expect(")");
            return v;
        }
        if (c == '|') {
            ++pos_;
            ++absDepth_;
            const double v = Expr();
            --absDepth_;
            Expect("|");
            return std::fabs(v);
        }
        if (Take("#COC(")) {
            const double n = Expr();
            Expect("#N)(");
            const double d = Expr();
            Expect("#COC)");
            return n / d;
        }
        if (Take("#SQR(")) {
            const double v = Expr();
            Expect("#SQR)");
            return std::sqrt(v);
        }
        if (Take("#RAD(")) {
            Expect("#RI(");
            const double n = Expr();
            Expect("#RI)");
            const double v = Expr();
            Expect("#RAD)");
            return std::pow(v, 1.0 / n);
        }
        if (Take("#EXP(")) {
            const double v = Expr();
            Expect("#EXP)");
            return std::exp(v);
        }
        if (Take("#POT(")) {
            const double b = Expr();
            Expect("#PB)(");
            const double e = Expr();
            Expect("#POT)");
            return std::pow(b, e);
        }
        if (Take("#NES(")) {
            if (pos_ + 2 > s_.size()) Fail("short delimiters");
            const std::string pair = s_.substr(pos_, 2);
            pos_ += 2;
            const int saved = absDepth_;
            absDepth_ = 0;
            const double v = Expr();
            absDepth_ = saved;
            Expect("#NES)");
            if (pair == "()" || pair == "[]") return v;
            if (pair == "||") return std::fabs(v);
            Fail("delimiters " + pair);
        }
        for (const auto& f : Functions()) {
            if (At(f)) {
                pos_ += f.size();
                int power = 1;
                if (pos_ + 1 < s_.size() && s_[pos_] == '^' && s_[pos_ + 1] >= '0' && s_[pos_ + 1] <= '9') {
                    power = s_[pos_ + 1] - '0';
                    pos_ += 2;
                }
                return std::pow(Apply(f, FunctionArgument()), power);
            }
        }
        if (c == 'e') {
            ++pos_;
            return std::exp(1.0);
        }
        Fail("unknown text");
    }
};
} // namespace

std::string CleanMarkup(const std::string& markup) {
    std::string t = markup;
    for (const char* code : {"&+I", "&-I", "&+B", "&-B", "&LF"}) t = ReplaceEvery(t, code, "");
    t = ReplaceEvery(t, "& ", " ");
    t = ReplaceEvery(t, "_ ", " ");
    t = ReplaceEvery(t, "&.", ".");
    t = ReplaceEvery(t, "&pi", "\xCF\x80");
    t = ReplaceEvery(t, "\xC2\xB7", "*");  // the middle dot
    return t;
}

double EvaluateMarkup(const std::string& markup, double x) {
    Reader reader(CleanMarkup(markup), x);
    return reader.Whole();
}

std::vector<std::string> LetteredItems(const std::string& text) {
    std::vector<std::size_t> starts, ends;
    std::size_t pos = 0;
    for (char letter : std::string("abcdefghijklmnopqrstuvwxyz")) {
        const std::string mark = std::string("&+B") + letter + ")&-B ";
        const auto at = text.find(mark, pos);
        if (at == std::string::npos) break;
        if (!starts.empty()) ends.push_back(at);
        starts.push_back(at + mark.size());
        pos = at + mark.size();
    }
    ends.push_back(text.size());
    std::vector<std::string> items;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        std::string item = text.substr(starts[i], ends[i] - starts[i]);
        // Drop what belongs to the layout: line breaks and the next column mark.
        bool changed = true;
        while (changed) {
            changed = false;
            for (const std::string tail : {"&LF"}) {
                if (item.size() >= tail.size() && item.compare(item.size() - tail.size(), tail.size(), tail) == 0) {
                    item.erase(item.size() - tail.size());
                    changed = true;
                }
            }
            const auto mark = item.rfind("&SP=");
            if (mark != std::string::npos && item.size() >= 3 && item.compare(item.size() - 3, 3, "&-I") == 0 &&
                item.find(':', mark) == item.size() - 4) {
                item.erase(mark);
                changed = true;
            } else if (mark != std::string::npos && item.find(':', mark) == item.size() - 1) {
                item.erase(mark);
                changed = true;
            }
        }
        items.push_back(item);
    }
    return items;
}

std::string IntegrandOf(const std::string& item) {
    const auto open = item.find("#INT(");
    const auto close = item.rfind("#INT)");
    if (open == std::string::npos || close == std::string::npos) throw std::runtime_error("no integral: " + item);
    std::string body = item.substr(open + 5, close - open - 5);
    const auto dx = body.rfind("dx");
    if (dx == std::string::npos) throw std::runtime_error("no dx: " + item);
    body.erase(dx);
    for (const char* tail : {"&+I", "_ ", " "}) {
        while (body.size() >= std::string(tail).size() &&
               body.compare(body.size() - std::string(tail).size(), std::string::npos, tail) == 0)
            body.erase(body.size() - std::string(tail).size());
    }
    return body;
}

std::string WithoutConstant(const std::string& answer) {
    for (const char* c : {" + &+IC&-I", " + C"}) {
        const std::string tail = c;
        if (answer.size() >= tail.size() && answer.compare(answer.size() - tail.size(), tail.size(), tail) == 0)
            return answer.substr(0, answer.size() - tail.size());
    }
    throw std::runtime_error("no constant of integration: " + answer);
}

namespace {
const double kSamples[] = {-7.31, -2.27, -0.83, -0.41, -0.07, 0.04, 0.09, 0.37, 0.71, 1.3, 2.9, 8.1};

double EvaluateClean(const std::string& clean, double x) {
    Reader reader(clean, x);
    return reader.Whole();
}

std::string CheckPair(const std::string& fMarkup, const std::string& derivativeMarkup, int minPoints,
                      bool fIsPrimitive) {
    const std::string f = CleanMarkup(fMarkup), derivativeOfF = CleanMarkup(derivativeMarkup);
    // fIsPrimitive: f is the function to differentiate numerically; derivativeOfF its claimed derivative.
    int used = 0;
    for (double x : kSamples) {
        double expected, a, b;
        try {
            expected = EvaluateClean(derivativeOfF, x);
            const double h = 1e-5 * std::max(1.0, std::fabs(x));
            a = EvaluateClean(f, x + h);
            b = EvaluateClean(f, x - h);
            if (!std::isfinite(expected) || !std::isfinite(a) || !std::isfinite(b) || std::fabs(expected) > 1e12) continue;
            const double numeric = (a - b) / (2 * h);
            // Skip points next to a pole or a corner of the domain, where differences mislead.
            const double a2 = EvaluateClean(f, x + 2 * h), b2 = EvaluateClean(f, x - 2 * h);
            if (!std::isfinite(a2) || !std::isfinite(b2)) continue;
            const double numeric2 = (a2 - b2) / (4 * h);
            if (std::fabs(numeric - numeric2) > 1e-5 * std::max(1.0, std::fabs(numeric))) continue;
            if (std::fabs(numeric - expected) > 1e-4 * std::max(1.0, std::fabs(expected)))
                return "at x = " + std::to_string(x) + ": numeric " + std::to_string(numeric) + ", written " +
                       std::to_string(expected);
            ++used;
        } catch (const std::exception& e) {
            return e.what();
        }
    }
    (void)fIsPrimitive;
    // A narrow domain (an arcsine of a steep argument) needs a finer scan.
    for (int step = 0; step < 540 && used < minPoints; ++step) {
        const double x = -9.973 + step * 0.0371;
        try {
            const double expected = EvaluateClean(derivativeOfF, x);
            const double h = 1e-6;
            const double a = EvaluateClean(f, x + h), b = EvaluateClean(f, x - h);
            const double a2 = EvaluateClean(f, x + 2 * h), b2 = EvaluateClean(f, x - 2 * h);
            if (!std::isfinite(expected) || !std::isfinite(a) || !std::isfinite(b) || !std::isfinite(a2) ||
                !std::isfinite(b2) || std::fabs(expected) > 1e12)
                continue;
            const double numeric = (a - b) / (2 * h), numeric2 = (a2 - b2) / (4 * h);
            if (std::fabs(numeric - numeric2) > 1e-5 * std::max(1.0, std::fabs(numeric))) continue;
            if (std::fabs(numeric - expected) > 1e-4 * std::max(1.0, std::fabs(expected)))
                return "at x = " + std::to_string(x) + ": numeric " + std::to_string(numeric) + ", written " +
                       std::to_string(expected);
            ++used;
        } catch (const std::exception& e) {
            return e.what();
        }
    }
    if (used < minPoints) return "only " + std::to_string(used) + " usable sample points";
    return "";
}
} // namespace

std::string CheckAntiderivative(const std::string& integrand, const std::string& antiderivative, int minPoints) {
    return CheckPair(antiderivative, integrand, minPoints, true);
}

std::string CheckDerivative(const std::string& function, const std::string& derivative, int minPoints) {
    return CheckPair(function, derivative, minPoints, false);
}
