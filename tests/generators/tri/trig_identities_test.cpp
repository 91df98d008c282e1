#include <cmath>
#include <map>
#include <random>
#include <stdexcept>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "generators/tri/trig_identity_templates.h"
#include "generators/tri/tri_routines.h"
#include "support/generator_sweep.h"
#include "support/markup_lint.h"

// Every identity of the table is checked as mathematics: both sides, read back from the
// expanded markup, agree at random angles.
namespace {
constexpr double kPi = 3.14159265358979323846;

std::string Replace(std::string text, const std::string& what, const std::string& with) {
    std::size_t pos = 0;
    while ((pos = text.find(what, pos)) != std::string::npos) {
        text.replace(pos, what.size(), with);
        pos += with.size();
    }
    return text;
}

class TrigParser {
public:
    TrigParser(const std::string& markup, std::map<char, double> values) : v_(std::move(values)) {
        std::string t = markup;
        for (const char* drop : {"&+I", "&-I"}) t = Replace(t, drop, "");
        t = Replace(t, "&pi", "P");
        t = Replace(t, "\u00B7", "*");
        t = Replace(t, "\u00B0", "D");
        for (char c : t) {
            if (c != ' ') t_ += c;
        }
    }
    double Run() {
        const double v = Expr();
        if (p_ != t_.size()) throw std::runtime_error("left over " + t_.substr(p_));
        return v;
    }

private:
    bool At(const std::string& s) const { return t_.compare(p_, s.size(), s) == 0; }
    void Expect(const std::string& s) {
        if (!At(s)) throw std::runtime_error("expected " + s + " at " + t_.substr(p_));
        p_ += s.size();
    }
    char Peek() const { return p_ < t_.size() ? t_[p_] : '\0'; }
    bool Closer() const { return At("#N)(") || At("#COC)") || At("#SQR)") || At("#NES)"); }
    double Expr() {
        double sign = 1;
        if (Peek() == '-') {
            sign = -1;
            ++p_;
        }
        double v = sign * Term();
        while (Peek() == '+' || Peek() == '-') {
            const char op = t_[p_++];
            const double next = Term();
            v = op == '+' ? v + next : v - next;
        }
        return v;
    }
    double Term() {
        double v = Power();
        while (true) {
            if (Peek() == '*') {
                ++p_;
                v *= Power();
            } else if (Peek() != '\0' && Peek() != '+' && Peek() != '-' && Peek() != ')' && Peek() != '=' &&
                       !Closer()) {
                v *= Power();
            } else {
                return v;
            }
        }
    }
    double Power() {
        double v = Primary();
        while (Peek() == '^') {
            ++p_;
            v = std::pow(v, t_[p_++] - '0');
        }
        return v;
    }
    double Number() {
        const std::size_t start = p_;
        while (std::isdigit(static_cast<unsigned char>(Peek()))) ++p_;
        double v = std::stod(t_.substr(start, p_ - start));
        if (Peek() == 'D') {
            ++p_;
            v *= kPi / 180;
        }
        return v;
    }
    // The argument of a function: a bracket, delimiters, or a multiple of a letter.
    double Argument() {
        if (Peek() == '(') return Primary();
        if (At("#NES(")) return Primary();
        double v = 1;
        bool any = false;
        if (std::isdigit(static_cast<unsigned char>(Peek()))) {
            v = Number();
            any = true;
        }
        if (Peek() >= 'a' && Peek() <= 'z') {
            v *= Letter();
            any = true;
        }
        if (!any) throw std::runtime_error("no argument at " + t_.substr(p_));
        return v;
    }
    double Letter() {
        const char c = t_[p_++];
        const auto it = v_.find(c);
        if (it == v_.end()) throw std::runtime_error(std::string("unknown letter ") + c);
        return it->second;
    }
    double Primary() {
        if (Peek() == '(') {
            ++p_;
            const double v = Expr();
            Expect(")");
            return v;
        }
        if (At("#COC(")) {
            p_ += 5;
            const double top = Expr();
            Expect("#N)(");
            const double bottom = Expr();
            Expect("#COC)");
            return top / bottom;
        }
        if (At("#SQR(")) {
            p_ += 5;
            const double v = Expr();
            Expect("#SQR)");
            return std::sqrt(v);
        }
        if (At("#NES(")) {
            p_ += 7;
            const double v = Expr();
            Expect("#NES)");
            return v;
        }
        if (Peek() == 'P') {
            ++p_;
            return kPi;
        }
        if (std::isdigit(static_cast<unsigned char>(Peek()))) return Number();
        for (const char* name : {"cosec", "cotan", "sin", "cos", "tan", "sec"}) {
            if (At(name)) {
                p_ += std::char_traits<char>::length(name);
                int power = 1;
                if (Peek() == '^') {
                    ++p_;
                    power = t_[p_++] - '0';
                    if (Peek() == '^') ++p_;  // the superscript blank
                }
                const double a = Argument();
                double v = 0;
                const std::string n = name;
                if (n == "sin") v = std::sin(a);
                else if (n == "cos") v = std::cos(a);
                else if (n == "tan") v = std::tan(a);
                else if (n == "sec") v = 1 / std::cos(a);
                else if (n == "cosec") v = 1 / std::sin(a);
                else v = 1 / std::tan(a);
                return std::pow(v, power);
            }
        }
        if (Peek() >= 'a' && Peek() <= 'z') return Letter();
        throw std::runtime_error("unexpected at " + t_.substr(p_));
    }

    std::string t_;
    std::map<char, double> v_;
    std::size_t p_ = 0;
};

double Side(const std::string& markup, double x, double a, double b) {
    return TrigParser(markup, {{'x', x}, {'a', a}, {'b', b}}).Run();
}
} // namespace

TEST(TrigIdentityTable, EveryIdentityHoldsAtRandomAngles) {
    std::mt19937 random(12345);
    std::uniform_real_distribution<double> angle(-3, 3);
    for (int k = 0; k < kTrigIdentityCount; ++k) {
        const std::string text = ExpandTrigIdentity(kTrigIdentityTemplates[static_cast<std::size_t>(k)], "x", "a", "b");
        const auto eq = text.find('=');
        ASSERT_NE(eq, std::string::npos) << text;
        int checked = 0;
        for (int trial = 0; trial < 40; ++trial) {
            const double x = angle(random), a = angle(random), b = angle(random);
            double left = 0, right = 0;
            ASSERT_NO_THROW(left = Side(text.substr(0, eq), x, a, b)) << text;
            ASSERT_NO_THROW(right = Side(text.substr(eq + 1), x, a, b)) << text;
            // Points near a pole of either side say nothing.
            if (!std::isfinite(left) || !std::isfinite(right) || std::fabs(left) > 1e4 || std::fabs(right) > 1e4) continue;
            ++checked;
            EXPECT_NEAR(left, right, 1e-7 * std::max(1.0, std::fabs(left))) << "row " << k + 1 << ": " << text;
        }
        EXPECT_GT(checked, 20) << text;
    }
}

namespace {
// The items of a two-column list: the text after "&+B<letter>)&-B " up to the next mark.
std::vector<std::string> ListItems(const std::string& text, const std::string& lead) {
    std::vector<std::string> out;
    std::size_t pos = 0;
    for (int i = 0; i < 26; ++i) {
        const std::string open = "&+B" + std::string(1, static_cast<char>('a' + i)) + ")&-B" + lead;
        pos = text.find(open, pos);
        if (pos == std::string::npos) break;
        pos += open.size();
        auto end = text.find("&SP=", pos);
        if (end == std::string::npos) end = text.size();
        std::string item = text.substr(pos, end - pos);
        while (item.size() >= 3 && item.compare(item.size() - 3, 3, "&LF") == 0) item.erase(item.size() - 3);
        out.push_back(item);
    }
    return out;
}
} // namespace

TEST(TrigIdentities, DrillShowsDistinctIdentitiesThatHold) {
    SweepRoutine("KVOL_MATH_TRI", 3, 2000, [](const GeneratedProblem& p) {
        const int n = std::clamp(p.fields.ItemCount, 1, 26);
        const auto items = ListItems(p.statement, " ");
        ASSERT_EQ(static_cast<int>(items.size()), n) << p.code;
        for (std::size_t i = 0; i < items.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) EXPECT_NE(items[i], items[j]) << p.code;
        }
        EXPECT_EQ(p.solution, "&SP=10: -");
        const std::string head = p.statement.substr(0, p.statement.find("&LF") + 3);
        EXPECT_TRUE(head == "&-I&-BGive a proof of the following trigonometric identities.&LF" ||
                    head == "&-I&-BProve the following trigonometric identities.&LF")
            << head;
    });
}

TEST(TrigIdentities, ItemsHoldWhateverTheLetters) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(99);
    std::mt19937 random(7);
    std::uniform_real_distribution<double> angle(-3, 3);
    for (int i = 0; i < 400; ++i) {
        const int k = 1 + i % kTrigIdentityCount;
        std::string text = TrigIdentityItem(ws, k);
        // One letter stands for the variable, two for the angles of a sum.
        text = Replace(Replace(Replace(Replace(text, "&theta", "x"), "&alfa", "a"), "&beta", "b"), "&+It&-I", "&+Ix&-I");
        if (text.find("&+Ib&-I") == std::string::npos) text = Replace(text, "&+Ia&-I", "&+Ix&-I");
        const auto eq = text.find('=');
        for (int trial = 0; trial < 5; ++trial) {
            const double x = angle(random), a = angle(random), b = angle(random);
            const double left = Side(text.substr(0, eq), x, a, b), right = Side(text.substr(eq + 1), x, a, b);
            if (!std::isfinite(left) || !std::isfinite(right) || std::fabs(left) > 1e4 || std::fabs(right) > 1e4) continue;
            EXPECT_NEAR(left, right, 1e-7 * std::max(1.0, std::fabs(left))) << text;
        }
        EXPECT_EQ(LintMarkup(text), "") << text;
    }
}

TEST(TrigIdentities, OneItemStandsAloneOnItsLine) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_TRI", {3, 0, 321, 1, 1, 1});
    const auto at = p.statement.find("&SP=1:&+Ba)&-B ");
    ASSERT_NE(at, std::string::npos) << p.statement;
    EXPECT_EQ(p.statement.find("&SP=48:"), std::string::npos);
    EXPECT_EQ(p.statement.substr(p.statement.size() - 6), "&LF&LF");
    EXPECT_EQ(p.statement.find("&+Bb)"), std::string::npos);
}

TEST(TrigIdentities, TwentySixItemsAreAllDifferentRows) {
    GeneratorHub hub;
    for (int seed : {0, 17, 8999}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_TRI", {3, 0, seed, 26, 1, 1});
        const auto items = ListItems(p.statement, " ");
        ASSERT_EQ(items.size(), 26u);
        EXPECT_EQ(std::set<std::string>(items.begin(), items.end()).size(), 26u);
        // Two to a line: b), d), ... end their line, a blank line after each.
        EXPECT_NE(p.statement.find("&LF&LF&SP=1:&+Bc)&-B "), std::string::npos);
        EXPECT_NE(p.statement.find("&SP=48:&+Bz)&-B "), std::string::npos);
    }
}
