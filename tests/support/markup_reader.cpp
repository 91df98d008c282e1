#include "support/markup_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <unordered_map>

namespace {
using Complex = std::complex<double>;
constexpr double kPi = 3.14159265358979323846;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

enum Kind {
    kNumber, kLetter, kNegate, kAdd, kSubtract, kMultiply, kDivide, kPowerDigit, kPower, kSquareRoot, kRoot,
    kExponential, kAbsolute, kDegrees, kPolar, kLogarithm,
    // Functions: a is the argument, number the power written after the name.
    kSin, kCos, kTan, kCotan, kSec, kCosec, kLn, kArcsin, kArccos, kArctan,
};

struct FunctionName {
    const char* text;
    Kind kind;
};
// Longer names first, so that "arcsin" is not read as "sin" and "cosec" not as "cos".
const FunctionName kFunctions[] = {{"arcsin", kArcsin}, {"arccos", kArccos}, {"arctan", kArctan},
                                   {"cosec", kCosec},   {"cotan", kCotan},   {"sin", kSin},
                                   {"cos", kCos},       {"tan", kTan},       {"sec", kSec},
                                   {"ln", kLn},         {"log", kLogarithm}};

// The constructs with a value: opener, what must follow it, the separator of a second
// part, closer. a is the first part, b the second.
struct Construct {
    const char* open;
    const char* lead;
    const char* middle;
    const char* close;
    Kind kind;
};
const Construct kConstructs[] = {{"#COC(", nullptr, "#N)(", "#COC)", kDivide},
                                 {"#SQR(", nullptr, nullptr, "#SQR)", kSquareRoot},
                                 {"#RAD(", "#RI(", "#RI)", "#RAD)", kRoot},
                                 {"#POT(", nullptr, "#PB)(", "#POT)", kPower},
                                 {"#EXP(", nullptr, nullptr, "#EXP)", kExponential}};

const char kMiddleDot[] = "\u00B7";
const char kTimes[] = "\u00D7";
const char kDegreeSign[] = "\u00B0";
const char kPiLetter[] = "\u03C0";

class Parser {
public:
    Parser(const std::string& text, std::vector<MarkupFormula::Node>& nodes) : s_(text), nodes_(nodes) {}

    int Whole() {
        const int root = Expression();
        Skip();
        if (pos_ != s_.size()) Fail("unread text");
        return root;
    }

private:
    const std::string& s_;
    std::vector<MarkupFormula::Node>& nodes_;
    std::size_t pos_ = 0;
    int barDepth_ = 0;

    [[noreturn]] void Fail(const std::string& why) const {
        throw UnreadableMarkup(why + " at " + std::to_string(pos_) + " in \"" + s_ + "\"");
    }
    bool At(const char* what) const { return s_.compare(pos_, std::char_traits<char>::length(what), what) == 0; }
    bool Take(const char* what) {
        Skip();
        if (!At(what)) return false;
        pos_ += std::char_traits<char>::length(what);
        return true;
    }
    void Expect(const char* what) {
        if (!Take(what)) Fail(std::string("expected ") + what);
    }
    bool DigitAt(std::size_t at) const { return at < s_.size() && s_[at] >= '0' && s_[at] <= '9'; }
    bool LetterAt(std::size_t at) const { return at < s_.size() && s_[at] >= 'a' && s_[at] <= 'z'; }

    // Passes over what carries no value: blanks, switches, line breaks, the column mark.
    void Skip() {
        while (pos_ < s_.size()) {
            const char c = s_[pos_];
            if (c == ' ') ++pos_;
            else if ((c == '_' || c == '^') && pos_ + 1 < s_.size() && s_[pos_ + 1] == ' ') pos_ += 2;
            else if (c != '&') return;
            else if (At("& ") || At("&|")) pos_ += 2; // a space, or the cell mark of a row
            else if (At("&+I") || At("&-I") || At("&+B") || At("&-B") || At("&LF")) pos_ += 3;
            else if (At("&SP=")) {
                std::size_t end = pos_ + 4;
                while (DigitAt(end)) ++end;
                if (end == pos_ + 4 || end >= s_.size() || s_[end] != ':') return;
                pos_ = end + 1;
            } else return;
        }
    }

    int Add(int kind, int a = -1, int b = -1, double number = 0, char letter = 0) {
        nodes_.push_back({kind, a, b, number, letter});
        return static_cast<int>(nodes_.size()) - 1;
    }

    bool AtFunction() const {
        for (const auto& f : kFunctions) {
            if (At(f.text)) return true;
        }
        return false;
    }
    bool CanStartFactor() {
        Skip();
        if (pos_ >= s_.size()) return false;
        const char c = s_[pos_];
        if ((c >= '0' && c <= '9') || c == '(' || c == '[' || LetterAt(pos_)) return !At("rad");
        if (c == '|') return barDepth_ == 0;
        for (const auto& construct : kConstructs) {
            if (At(construct.open)) return true;
        }
        return At("&.") || At("&pi") || At(kPiLetter) || At("#NES(");
    }

    int Expression() {
        int value;
        if (Take("-")) value = Add(kNegate, Term());
        else {
            Take("+");
            value = Term();
        }
        while (true) {
            if (Take("+")) value = Add(kAdd, value, Term());
            else if (Take("-")) value = Add(kSubtract, value, Term());
            else return value;
        }
    }

    int Term() {
        int value = Factor();
        while (true) {
            if (Take(kMiddleDot) || Take(kTimes)) value = Add(kMultiply, value, Factor());
            else if (Take(":") || Take("/")) value = Add(kDivide, value, Factor());
            else if (Take("#SPB(L #T)(")) {
                // A polar form: the modulus so far, its argument hanging below it.
                const int angle = Expression();
                Expect("#SPB)");
                value = Add(kPolar, value, angle);
            } else if (CanStartFactor()) {
                // Two numbers side by side, or a number before a fraction (a mixed number?),
                // are not a product anyone writes.
                if (DigitAt(pos_) || At("&.") ||
                    (At("#COC(") && nodes_[static_cast<std::size_t>(value)].kind == kNumber))
                    Fail("a number after a number");
                value = Add(kMultiply, value, Factor());
            } else return value;
        }
    }

    int Powers(int base) {
        while (pos_ < s_.size() && s_[pos_] == '^' && DigitAt(pos_ + 1)) {
            base = Add(kPowerDigit, base, -1, s_[pos_ + 1] - '0');
            pos_ += 2;
        }
        if (pos_ < s_.size() && s_[pos_] == '^' && !At("^ ")) Fail("a power that is not one digit");
        // "x^12" shows a two-digit exponent that the one-digit power does not have.
        if (DigitAt(pos_) && pos_ >= 2 && s_[pos_ - 2] == '^') Fail("a digit after a one-digit power");
        return base;
    }

    int Factor() {
        int value = Primary();
        if (At(kDegreeSign)) {
            pos_ += std::char_traits<char>::length(kDegreeSign);
            value = Add(kDegrees, value);
        } else if (Take("rad") && LetterAt(pos_)) {
            Fail("a word after a number");
        }
        return Powers(value);
    }

    // sin 3x, ln|x + 1|, cos (2x - 1), sin x (1 + cos x): a bracket, bars or a construct
    // alone, or a run of numbers and letters, which ends at a function, an operator or
    // a bracket.
    int FunctionArgument() {
        Skip();
        const bool run = DigitAt(pos_) || LetterAt(pos_) || At("&.") || At("&pi") || At(kPiLetter);
        int value = Factor();
        while (run && StartsRun() && !AtFunction()) value = Add(kMultiply, value, Factor());
        return value;
    }
    bool StartsRun() {
        Skip();
        return DigitAt(pos_) || (LetterAt(pos_) && !At("rad")) || At("&.") || At("&pi") || At(kPiLetter);
    }

    std::string Digits() {
        std::string digits;
        while (true) {
            while (DigitAt(pos_)) digits += s_[pos_++];
            if (!digits.empty() && At("_ ") && DigitAt(pos_ + 2)) {
                pos_ += 2;
                continue;
            }
            return digits;
        }
    }

    int Number() {
        std::string whole = Digits();
        double value = whole.empty() ? 0 : std::stod(whole);
        if (At("&.")) {
            pos_ += 2;
            const std::string fixed = Digits();
            if (whole.empty() && fixed.empty() && !At("#ARC(")) Fail("a decimal point without digits");
            const double scale = std::pow(10.0, static_cast<double>(fixed.size()));
            if (!fixed.empty()) value += std::stod(fixed) / scale;
            if (At("#ARC(")) {
                pos_ += 5;
                const std::string period = Digits();
                if (period.empty()) Fail("an empty repeating block");
                if (!At("#ARC)")) Fail("expected #ARC)");
                pos_ += 5;
                const double nines = std::pow(10.0, static_cast<double>(period.size())) - 1;
                value += std::stod(period) / nines / scale;
            }
        } else if (whole.empty()) {
            Fail("expected a number");
        }
        if (At("&E")) {
            pos_ += 2;
            double sign = 1;
            if (At("-")) sign = -1;
            if (At("-") || At("+")) ++pos_;
            const std::string exponent = Digits();
            if (exponent.empty()) Fail("a power of ten without digits");
            value *= std::pow(10.0, sign * std::stod(exponent));
        }
        return Add(kNumber, -1, -1, value);
    }

    int Primary() {
        Skip();
        if (pos_ >= s_.size()) Fail("expected a value");
        if (DigitAt(pos_) || At("&.")) return Number();
        if (At("&pi")) {
            pos_ += 3;
            return Add(kNumber, -1, -1, kPi);
        }
        if (At(kPiLetter)) {
            pos_ += std::char_traits<char>::length(kPiLetter);
            return Add(kNumber, -1, -1, kPi);
        }
        if (Take("(")) return Enclosed(")");
        if (Take("[")) return Enclosed("]");
        if (s_[pos_] == '|') {
            if (barDepth_ > 0) Fail("a bar inside bars");
            ++pos_;
            ++barDepth_;
            const int value = Expression();
            --barDepth_;
            Expect("|");
            return Add(kAbsolute, value);
        }
        for (const auto& c : kConstructs) {
            if (!Take(c.open)) continue;
            if (c.lead) Expect(c.lead);
            const int first = Expression();
            int second = -1;
            if (c.middle) {
                Expect(c.middle);
                second = Expression();
            }
            Expect(c.close);
            return Add(c.kind, first, second);
        }
        if (Take("#NES(")) {
            const std::string pair = s_.substr(pos_, 2);
            if (pair != "()" && pair != "[]" && pair != "||") Fail("delimiters " + pair);
            pos_ += 2;
            const int saved = barDepth_;
            barDepth_ = 0;
            const int value = Expression();
            barDepth_ = saved;
            Expect("#NES)");
            return pair == "||" ? Add(kAbsolute, value) : value;
        }
        for (const auto& f : kFunctions) {
            if (!At(f.text)) continue;
            pos_ += std::char_traits<char>::length(f.text);
            int base = -1;
            if (f.kind == kLogarithm) {
                base = Add(kNumber, -1, -1, 10);
                if (pos_ + 1 < s_.size() && s_[pos_] == '_' && s_[pos_ + 1] != ' ') {
                    if (!DigitAt(pos_ + 1)) Fail("a base that is not one digit");
                    base = Add(kNumber, -1, -1, s_[pos_ + 1] - '0');
                    pos_ += 2;
                }
            }
            double power = 1;
            if (pos_ + 1 < s_.size() && s_[pos_] == '^' && DigitAt(pos_ + 1)) {
                power = s_[pos_ + 1] - '0';
                pos_ += 2;
            }
            const int argument = FunctionArgument();
            return Add(f.kind, argument, base, power);
        }
        if (LetterAt(pos_)) return Add(kLetter, -1, -1, 0, s_[pos_++]);
        Fail("unknown text");
    }

    int Enclosed(const char* closer) {
        const int saved = barDepth_;
        barDepth_ = 0;
        const int value = Expression();
        barDepth_ = saved;
        Expect(closer);
        return value;
    }
};

// The operations whose value leaves the real numbers are NaN in a real reading and the
// principal value in a complex one.
double SquareRoot(double v) { return v < 0 ? kNaN : std::sqrt(v); }
Complex SquareRoot(Complex v) { return std::sqrt(v); }
double Root(double v, double index) {
    if (v >= 0) return std::pow(v, 1 / index);
    // An odd root of a negative number is the negative root.
    if (index == std::floor(index) && std::fmod(index, 2) != 0) return -std::pow(-v, 1 / index);
    return kNaN;
}
Complex Root(Complex v, Complex index) { return std::pow(v, 1.0 / index.real()); }
double Power(double b, double e) { return std::pow(b, e); }
Complex Power(Complex b, Complex e) {
    // Whole powers by products, so that (1 + i)^2 is exactly 2i.
    if (e.imag() == 0 && e.real() == std::floor(e.real()) && std::fabs(e.real()) <= 64) {
        Complex p = 1;
        for (int k = 0; k < static_cast<int>(std::fabs(e.real())); ++k) p *= b;
        return e.real() < 0 ? 1.0 / p : p;
    }
    return std::pow(b, e);
}
double Log(double v) { return v <= 0 ? kNaN : std::log(v); }
Complex Log(Complex v) { return std::log(v); }
double Arcsin(double v) { return std::fabs(v) > 1 ? kNaN : std::asin(v); }
Complex Arcsin(Complex v) { return std::asin(v); }
double Arccos(double v) { return std::fabs(v) > 1 ? kNaN : std::acos(v); }
Complex Arccos(Complex v) { return std::acos(v); }
double Magnitude(double v) { return std::fabs(v); }
Complex Magnitude(Complex v) { return std::abs(v); }
double RealPart(double v) { return v; }
double RealPart(Complex v) { return v.real(); }
bool IsZero(double v) { return v == 0; }
bool IsZero(Complex v) { return v == Complex(0, 0); }

template <typename T>
class Evaluator {
public:
    using Values = std::map<char, T>;
    Evaluator(const std::vector<MarkupFormula::Node>& nodes, const Values& values, const std::string& text)
        : nodes_(nodes), values_(values), text_(text) {}
    // The letter x alone, without a map to build at each of many points.
    Evaluator(const std::vector<MarkupFormula::Node>& nodes, T x, const std::string& text)
        : nodes_(nodes), values_(NoValues()), text_(text), x_(x), hasX_(true) {}

    T At(int index) const {
        const MarkupFormula::Node& n = nodes_[static_cast<std::size_t>(index)];
        switch (n.kind) {
        case kNumber: return n.number;
        case kLetter: return Letter(n.letter);
        case kNegate: return T(0) - At(n.a);  // no negative zero to cross a branch cut
        case kAdd: return At(n.a) + At(n.b);
        case kSubtract: return At(n.a) - At(n.b);
        case kMultiply: return At(n.a) * At(n.b);
        case kDivide: {
            const T bottom = At(n.b);
            if (IsZero(bottom)) return kNaN;
            return At(n.a) / bottom;
        }
        case kPowerDigit: return Power(At(n.a), T(n.number));
        case kPower: return Power(At(n.a), At(n.b));
        case kSquareRoot: return SquareRoot(At(n.a));
        case kRoot: return Root(At(n.b), At(n.a));
        case kExponential: return std::exp(At(n.a));
        case kAbsolute: return Magnitude(At(n.a));
        case kDegrees: return At(n.a) * (kPi / 180);
        case kPolar: return Polar(At(n.a), RealPart(At(n.b)));
        default: return Function(n);
        }
    }

private:
    const std::vector<MarkupFormula::Node>& nodes_;
    const Values& values_;
    const std::string& text_;
    T x_ = 0;
    bool hasX_ = false;

    static const Values& NoValues() {
        static const Values none;
        return none;
    }

    T Letter(char letter) const {
        if (hasX_ && letter == 'x') return x_;
        const auto it = values_.find(letter);
        if (it != values_.end()) return it->second;
        if (letter == 'e') return std::exp(1.0);
        if constexpr (!std::is_same_v<T, double>) {
            if (letter == 'i') return Complex(0, 1);
        }
        throw UnreadableMarkup(std::string("no value for the letter ") + letter + " in \"" + text_ + "\"");
    }

    T Polar(T modulus, double angle) const {
        if constexpr (std::is_same_v<T, double>) {
            throw UnreadableMarkup("a polar form in a real reading: \"" + text_ + "\"");
        } else {
            return modulus * std::exp(Complex(0, angle));
        }
    }

    T Function(const MarkupFormula::Node& n) const {
        const T a = At(n.a);
        T v;
        switch (n.kind) {
        case kSin: v = std::sin(a); break;
        case kCos: v = std::cos(a); break;
        case kTan: v = std::tan(a); break;
        case kCotan: v = T(1) / std::tan(a); break;
        case kSec: v = T(1) / std::cos(a); break;
        case kCosec: v = T(1) / std::sin(a); break;
        case kLn: v = Log(a); break;
        case kLogarithm: v = Log(a) / Log(At(n.b)); break;
        case kArcsin: v = Arcsin(a); break;
        case kArccos: v = Arccos(a); break;
        default: v = std::atan(a); break;
        }
        return n.number == 1 ? v : Power(v, T(n.number));
    }
};
} // namespace

MarkupFormula::MarkupFormula(const std::string& markup) : markup_(markup) {
    root_ = Parser(markup_, nodes_).Whole();
}

double MarkupFormula::Real(const RealValues& values) const {
    return Evaluator<double>(nodes_, values, markup_).At(root_);
}

double MarkupFormula::RealAt(double x) const { return Evaluator<double>(nodes_, x, markup_).At(root_); }

std::complex<double> MarkupFormula::Complex(const ComplexValues& values) const {
    return Evaluator<std::complex<double>>(nodes_, values, markup_).At(root_);
}

namespace {
// The sweeps read the same few texts at many points: each is parsed once. The tests run
// on one thread.
const MarkupFormula& Parsed(const std::string& markup) {
    static std::unordered_map<std::string, MarkupFormula> parsed;
    const auto it = parsed.find(markup);
    if (it != parsed.end()) return it->second;
    if (parsed.size() > 4096) parsed.clear();
    return parsed.emplace(markup, MarkupFormula(markup)).first->second;
}
} // namespace

double ReadMarkupReal(const std::string& markup, const RealValues& values) { return Parsed(markup).Real(values); }

double ReadMarkupAt(const std::string& markup, double x) { return Parsed(markup).RealAt(x); }

std::complex<double> ReadMarkupComplex(const std::string& markup, const ComplexValues& values) {
    return Parsed(markup).Complex(values);
}

std::complex<double> ExpectComplexValue(const std::string& markup, const ComplexValues& values,
                                        const std::string& context) {
    try {
        return ReadMarkupComplex(markup, values);
    } catch (const UnreadableMarkup& e) {
        ADD_FAILURE() << context << ": " << e.what();
        return kNaN;
    }
}

bool NearlyEqual(std::complex<double> a, std::complex<double> b, double relative) {
    return std::abs(a - b) <= relative * std::max({1.0, std::abs(a), std::abs(b)});
}
