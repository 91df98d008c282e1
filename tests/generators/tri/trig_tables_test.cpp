#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "generators/shared/trig_equation_templates.h"
#include "generators/tri/trig_identity_templates.h"

// The tables are checked as mathematics: each equation's short-hand is evaluated in
// degrees, and its zeros in [0°, 360°) must be exactly the listed solutions.
namespace {
constexpr double kDegree = 3.14159265358979323846 / 180;

class ShorthandEquation {
public:
    explicit ShorthandEquation(std::string text) : text_(std::move(text)) {}

    // Left side minus right side at x degrees; sets pole when a tangent is undefined.
    double Evaluate(double xDegrees, bool& pole) {
        x_ = xDegrees;
        pole_ = false;
        pos_ = 0;
        const double left = Expr();
        Skip();
        if (Peek() != '=') throw std::runtime_error("no '=' in " + text_);
        ++pos_;
        const double right = Expr();
        Skip();
        if (pos_ != text_.size()) throw std::runtime_error("left over in " + text_);
        pole = pole_;
        return left - right;
    }

private:
    char Peek() const { return pos_ < text_.size() ? text_[pos_] : '\0'; }
    void Skip() {
        while (Peek() == ' ') ++pos_;
    }
    bool StartsFactor() {
        Skip();
        const char c = Peek();
        return std::isdigit(static_cast<unsigned char>(c)) || c == 'S' || c == 'C' || c == 'T' || c == '(' ||
               text_.compare(pos_, 5, "#RAD(") == 0;
    }
    double Expr() {
        Skip();
        double sign = 1;
        if (Peek() == '-') {
            sign = -1;
            ++pos_;
        }
        double value = sign * Term();
        while (true) {
            Skip();
            if (Peek() == '+') {
                ++pos_;
                value += Term();
            } else if (Peek() == '-') {
                ++pos_;
                value -= Term();
            } else {
                return value;
            }
        }
    }
    double Term() {
        double value = Factor();
        while (StartsFactor()) value *= Factor();
        return value;
    }
    double Number() {
        double value = 0;
        while (std::isdigit(static_cast<unsigned char>(Peek()))) value = value * 10 + (text_[pos_++] - '0');
        return value;
    }
    double Factor() {
        Skip();
        const char c = Peek();
        if (std::isdigit(static_cast<unsigned char>(c))) return Number();
        if (c == '(') {
            ++pos_;
            const double value = Expr();
            Skip();
            if (Peek() != ')') throw std::runtime_error("no ')' in " + text_);
            ++pos_;
            return value;
        }
        if (text_.compare(pos_, 5, "#RAD(") == 0) {
            pos_ += 5;
            const double value = std::sqrt(Number());
            if (text_.compare(pos_, 5, "#RAD)") != 0) throw std::runtime_error("bad root in " + text_);
            pos_ += 5;
            return value;
        }
        ++pos_;
        double power = 1;
        if (Peek() == '^') {
            ++pos_;
            power = text_[pos_++] - '0';
        }
        Skip();
        double multiple = 1;
        if (std::isdigit(static_cast<unsigned char>(Peek()))) multiple = Number();
        if (Peek() != '@') throw std::runtime_error("no '@' in " + text_);
        ++pos_;
        const double angle = multiple * x_ * kDegree;
        double value = 0;
        if (c == 'S') value = std::sin(angle);
        else if (c == 'C') value = std::cos(angle);
        else {
            if (std::fabs(std::cos(angle)) < 1e-9) pole_ = true;
            value = std::tan(angle);
        }
        return std::pow(value, power);
    }

    std::string text_;
    std::size_t pos_ = 0;
    double x_ = 0;
    bool pole_ = false;
};

std::set<int> ReadSolutions(const std::string& text) {
    std::set<int> out;
    std::size_t pos = 0;
    while (pos < text.size()) {
        if (std::isdigit(static_cast<unsigned char>(text[pos]))) {
            int v = 0;
            while (pos < text.size() && std::isdigit(static_cast<unsigned char>(text[pos]))) v = v * 10 + (text[pos++] - '0');
            out.insert(v);
        } else {
            ++pos;
        }
    }
    return out;
}
} // namespace

TEST(TrigEquationTable, EveryRowHasExactlyItsListedSolutions) {
    for (int k = 0; k < kTrigEquationCount; ++k) {
        const auto& row = kTrigEquationTemplates[static_cast<std::size_t>(k)];
        ShorthandEquation equation(row.equation);
        const std::set<int> listed = ReadSolutions(row.solutions);
        std::set<int> found;
        for (int d = 0; d < 360; ++d) {
            bool pole = false;
            const double value = equation.Evaluate(d, pole);
            if (!pole && std::fabs(value) < 1e-9) found.insert(d);
        }
        EXPECT_EQ(found, listed) << "row " << k + 1 << ": " << row.equation;
        // No zero between whole degrees either: a sign change away from the listed
        // solutions and away from a pole would be a solution the table forgot.
        bool pole = false;
        double previous = equation.Evaluate(0.005, pole);
        bool previousPole = pole;
        for (double d = 0.025; d < 360; d += 0.02) {
            const double value = equation.Evaluate(d, pole);
            if (!pole && !previousPole && std::fabs(value) < 5 && std::fabs(previous) < 5 &&
                (value > 0) != (previous > 0)) {
                const int nearest = static_cast<int>(std::lround(d)) % 360;
                EXPECT_TRUE(listed.count(nearest) && std::fabs(d - std::lround(d)) < 0.03)
                    << "row " << k + 1 << " changes sign near " << d;
            }
            previous = value;
            previousPole = pole;
        }
    }
}

TEST(TrigEquationTable, ExpansionOrderAndBothSquareForms) {
    EXPECT_EQ(ExpandTrigEquation("2S^2@ -  1  =  0", kTrigSquareWithScriptBlank),
              "2sin^2^ &+Ix&-I  -  1  =  0");
    EXPECT_EQ(ExpandTrigEquation("2S^2@ -  1  =  0", kTrigSquareWithBlank), "2sin^2 &+Ix&-I  -  1  =  0");
    // "^22@" is the square of a double angle: the power is not taken for "^2@".
    EXPECT_EQ(ExpandTrigEquation("S^22@ =  2C^2@ -  C^22@", kTrigSquareWithBlank),
              "sin^2 2&+Ix&-I  =  2cos^2 &+Ix&-I  -  cos^2 2&+Ix&-I ");
    EXPECT_EQ(ExpandTrigEquation("2C3@ -  #RAD(2#RAD)  =  0", kTrigSquareWithBlank),
              "2cos 3&+Ix&-I  -  #RAD(2#RAD)  =  0");
    EXPECT_EQ(ExpandTrigEquation("T^2@ -  3  =  0", kTrigSquareWithBlank), "tan^2 &+Ix&-I  -  3  =  0");
    EXPECT_EQ(ExpandTrigEquation("30\u00BA,  150\u00BA", kTrigSquareWithBlank), "30\u00B0,  150\u00B0");
}

TEST(TrigEquationTable, TidiedBlanks) {
    // One blank between terms and signs; none inside brackets, after a unary minus or at
    // the ends; a hard space and a raised blank are left as they are.
    EXPECT_EQ(TidyEquationBlanks(ExpandTrigEquation("S@  +  C^2@ =  - S^2@", kTrigSquareWithBlank)),
              "sin &+Ix&-I + cos^2 &+Ix&-I = -sin^2 &+Ix&-I");
    EXPECT_EQ(TidyEquationBlanks(ExpandTrigEquation("C@(2  -  C@)  =  S^2@", kTrigSquareWithScriptBlank)),
              "cos &+Ix&-I (2 - cos &+Ix&-I) = sin^2^ &+Ix&-I");
    EXPECT_EQ(TidyEquationBlanks("  -  2x& +  1  =  0 "), "-2x& + 1 = 0");
    EXPECT_EQ(TidyEquationBlanks("2C@ -  #RAD(2#RAD)  =  0"), "2C@ - #RAD(2#RAD) = 0");
    for (const auto& row : kTrigEquationTemplates) {
        const std::string tidy = TidyEquationBlanks(ExpandTrigEquation(row.equation, kTrigSquareWithBlank));
        EXPECT_EQ(tidy.find("  "), std::string::npos) << tidy;
        EXPECT_EQ(tidy.find("= - "), std::string::npos) << tidy;
        // Only blanks go.
        std::string a = ExpandTrigEquation(row.equation, kTrigSquareWithBlank), b = tidy;
        a.erase(std::remove(a.begin(), a.end(), ' '), a.end());
        b.erase(std::remove(b.begin(), b.end(), ' '), b.end());
        EXPECT_EQ(a, b);
    }
}

TEST(TrigIdentityTable, ExpansionWithLetters) {
    // (cos x + sin x)² = 1 + sin 2x, read as the table's short-hand says.
    EXPECT_EQ(ExpandTrigIdentity(kTrigIdentityTemplates[0], "x", "a", "b"),
              "(cos &+Ix&-I + sin &+Ix&-I )^2 = 1 + sin 2&+Ix&-I ");
    EXPECT_EQ(ExpandTrigIdentity(kTrigIdentityTemplates[15], "t", "&alfa", "&beta"),
              "cos(&+I&alfa&-I + &+I&beta&-I) · cos(&+I&alfa&-I - &+I&beta&-I) = cos^2&+I&alfa&-I - "
              "sin^2&+I&beta&-I");
    EXPECT_EQ(ExpandTrigIdentity("Z^3@ K4@", "&theta", "a", "b"), "sin^3^ &+I&theta&-I  cos 4&+I&theta&-I ");
    EXPECT_EQ(ExpandTrigIdentity("#COC(Z(45\u00BA +@)#N)(K45\u00BA · K@#COC)", "x", "a", "b"),
              "#COC(sin(45\u00B0 + &+Ix&-I )#N)(cos45\u00B0 · cos &+Ix&-I #COC)");
}
