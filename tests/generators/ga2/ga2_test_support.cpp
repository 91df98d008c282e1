#include "ga2_test_support.h"

#include "support/markup_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <regex>

namespace {
bool Eat(const std::string& text, std::size_t& pos, const std::string& what) {
    if (text.compare(pos, what.size(), what) == 0) {
        pos += what.size();
        return true;
    }
    return false;
}

// digits with "&." as decimal mark, then an optional root; an empty factor is 1.
bool ReadSimple(const std::string& text, std::size_t& pos, double& value) {
    std::string digits;
    while (pos < text.size()) {
        if (std::isdigit(static_cast<unsigned char>(text[pos]))) digits += text[pos++];
        else if (text.compare(pos, 2, "&.") == 0) { digits += '.'; pos += 2; }
        else break;
    }
    double factor = digits.empty() ? 1 : std::stod(digits);
    if (Eat(text, pos, "#SQR(")) {
        const auto end = text.find("#SQR)", pos);
        if (end == std::string::npos) return false;
        factor *= std::sqrt(std::stod(text.substr(pos, end - pos)));
        pos = end + 5;
    } else if (digits.empty()) {
        return false;
    }
    value = factor;
    return true;
}

bool ReadNumber(const std::string& text, std::size_t& pos, double& value) {
    double sign = 1;
    while (true) {
        if (Eat(text, pos, "-")) sign = -sign;
        else if (Eat(text, pos, "& ") || Eat(text, pos, " ")) continue;
        else break;
    }
    if (Eat(text, pos, "#COC(")) {
        double top = 0, bottom = 0;
        if (!ReadNumber(text, pos, top) || !Eat(text, pos, "#N)(") || !ReadNumber(text, pos, bottom) ||
            !Eat(text, pos, "#COC)"))
            return false;
        value = sign * top / bottom;
        return true;
    }
    if (!ReadSimple(text, pos, value)) return false;
    value *= sign;
    return true;
}
} // namespace

double ReadExact(const std::string& text) {
    // The shape of an exact number: a sign, then a fraction of two such numbers, or a
    // decimal, a square root or a decimal times a square root.
    static const std::string sign = R"((?:-|& | )*)";
    static const std::string decimal = R"(\d+(?:&\.\d+)?)";
    static const std::string simple =
        sign + "(?:" + decimal + "(?:#SQR\\(" + decimal + "#SQR\\))?|#SQR\\(" + decimal + "#SQR\\))";
    static const std::regex kExact("^(?:" + sign + "#COC\\(" + simple + "#N\\)\\(" + simple + "#COC\\)|" + simple + ")$");
    if (std::regex_match(text, kExact)) {
        try {
            return ReadMarkupReal(text);
        } catch (const UnreadableMarkup&) {
        }
    }
    ADD_FAILURE() << "not an exact number: '" << text << "'";
    return std::nan("");
}

std::vector<Point2> PointsIn(const std::string& text) {
    static const std::regex kPoint(
        R"(((?:&\+I([^&]*)&-I)?)(?:&)?\(((?:[-0-9 ]|&\.|& |#COC\(|#N\)\(|#COC\)|#SQR\(|#SQR\))+),& & ((?:[-0-9 ]|&\.|& |#COC\(|#N\)\(|#COC\)|#SQR\(|#SQR\))+)\))");
    std::vector<Point2> points;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), kPoint); it != std::sregex_iterator(); ++it) {
        points.push_back({ReadExact((*it)[3]), ReadExact((*it)[4]), (*it)[2]});
    }
    return points;
}

namespace {
void AddSide(const std::string& side, double sign, General2& g, const std::string& parameter, double value) {
    std::size_t pos = 0;
    bool first = true;
    while (pos < side.size()) {
        double termSign = sign;
        if (Eat(side, pos, "& +& ")) {
        } else if (Eat(side, pos, "& -& ")) {
            termSign = -termSign;
        } else if (first && Eat(side, pos, "-")) {
            termSign = -termSign;
        } else if (!first) {
            ADD_FAILURE() << "bad joiner in '" << side << "' at " << pos;
            return;
        }
        first = false;
        double coefficient = 1;
        std::size_t save = pos;
        if (!ReadNumber(side, pos, coefficient)) {
            pos = save;
            coefficient = 1;
        }
        if (!parameter.empty() && Eat(side, pos, parameter)) coefficient *= value;
        if (Eat(side, pos, "&+Ix&-I^2")) g.A += termSign * coefficient;
        else if (Eat(side, pos, "&+Iy&-I^2")) g.C += termSign * coefficient;
        else if (Eat(side, pos, "&+Ix&-I")) g.D += termSign * coefficient;
        else if (Eat(side, pos, "&+Iy&-I")) g.E += termSign * coefficient;
        else g.F += termSign * coefficient;
        if (pos < side.size() && side.compare(pos, 5, "& +& ") != 0 && side.compare(pos, 5, "& -& ") != 0) {
            ADD_FAILURE() << "cannot read term in '" << side << "' at " << pos;
            return;
        }
    }
}
} // namespace

General2 ReadGeneral(const std::string& equation, const std::string& parameter, double parameterValue) {
    General2 g;
    const auto eq = equation.find("& =& ");
    if (eq == std::string::npos) {
        ADD_FAILURE() << "no equation: " << equation;
        return g;
    }
    AddSide(equation.substr(0, eq), 1, g, parameter, parameterValue);
    AddSide(equation.substr(eq + 5), -1, g, parameter, parameterValue);
    return g;
}

std::string Between(const std::string& text, const std::string& from, const std::string& to, std::size_t start) {
    const auto at = text.find(from, start);
    if (at == std::string::npos) {
        ADD_FAILURE() << "missing: " << from;
        return "";
    }
    const auto end = text.find(to, at + from.size());
    return text.substr(at + from.size(), end == std::string::npos ? std::string::npos : end - at - from.size());
}

namespace {
General2 LineThrough(double px, double py, double vx, double vy) {
    General2 g;
    g.D = vy;
    g.E = -vx;
    g.F = -(vy * px - vx * py);
    return g;
}

// "&+Ix&-I& -& 4" is 4; "&+Ix&-I" is 0.
double ShiftOf(const std::string& text, const std::string& variable) {
    EXPECT_EQ(text.rfind(variable, 0), 0u) << text;
    const std::string rest = text.substr(variable.size());
    if (rest.empty()) return 0;
    if (rest.rfind("& -& ", 0) == 0) return ReadExact(rest.substr(5));
    if (rest.rfind("& +& ", 0) == 0) return -ReadExact(rest.substr(5));
    ADD_FAILURE() << "bad shift: " << text;
    return 0;
}
} // namespace

General2 ReadLine(const std::string& text, const std::string& parameter, double value) {
    const std::string t = "&+It&-I";
    if (text.rfind("(&+Ix,& y&-I)& =& (", 0) == 0) {
        const std::string rest = text.substr(19);
        const auto comma = rest.find(",& ");
        const auto close = rest.find(")& +& ");
        const double px = ReadExact(rest.substr(0, comma)), py = ReadExact(rest.substr(comma + 3, close - comma - 3));
        const std::string dir = Between(rest, t + "& (", ")");
        const auto c2 = dir.find(",& ");
        return LineThrough(px, py, ReadExact(dir.substr(0, c2)), ReadExact(dir.substr(c2 + 3)));
    }
    if (text.rfind("#NES({X#RWS(L#RW1(", 0) == 0) {
        const std::string xRow = Between(text, "#RW1(", "#RW1)");
        const std::string yRow = Between(text, "#RW2(", "#RW2)");
        auto at = [&](const std::string& row, double tv) {
            const General2 g = ReadGeneral(row, t, tv);
            return -(g.F) / (g.D != 0 ? g.D : g.E);
        };
        const double px = at(xRow, 0), py = at(yRow, 0);
        return LineThrough(px, py, at(xRow, 1) - px, at(yRow, 1) - py);
    }
    if (text.rfind("#COC(&+Ix&-I", 0) == 0) {
        const double px = ShiftOf(Between(text, "#COC(", "#N)("), "&+Ix&-I");
        const double vx = ReadExact(Between(text, "#N)(", "#COC)"));
        const std::string second = text.substr(text.find("& =& ") + 5);
        const double py = ShiftOf(Between(second, "#COC(", "#N)("), "&+Iy&-I");
        const double vy = ReadExact(Between(second, "#N)(", "#COC)"));
        return LineThrough(px, py, vx, vy);
    }
    return ReadGeneral(text, parameter, value);
}

General2 ReadSquaredForm(const std::string& equation) {
    General2 g;
    const auto eq = equation.find("& =& ");
    if (eq == std::string::npos) {
        ADD_FAILURE() << "no equation: " << equation;
        return g;
    }
    const std::string left = equation.substr(0, eq);
    std::size_t pos = 0;
    bool first = true;
    while (pos < left.size()) {
        double sign = 1;
        if (Eat(left, pos, "& +& ")) {
        } else if (Eat(left, pos, "& -& ")) {
            sign = -1;
        } else if (first && Eat(left, pos, "-")) {
            sign = -1;
        } else if (!first) {
            ADD_FAILURE() << "bad joiner in '" << left << "' at " << pos;
            return g;
        }
        first = false;
        const bool fraction = Eat(left, pos, "#COC( ");
        double factor = 1;
        std::string digits;
        while (pos < left.size() && std::isdigit(static_cast<unsigned char>(left[pos]))) digits += left[pos++];
        if (!digits.empty()) factor = std::stod(digits);
        double shift = 0;
        bool isX = true;
        const bool bracket = Eat(left, pos, "(");
        if (Eat(left, pos, "&+Ix&-I")) isX = true;
        else if (Eat(left, pos, "&+Iy&-I")) isX = false;
        else {
            ADD_FAILURE() << "no variable in '" << left << "' at " << pos;
            return g;
        }
        if (bracket) {
            const bool minus = Eat(left, pos, "& -& ");
            if (!minus && !Eat(left, pos, "& +& ")) {
                ADD_FAILURE() << "bad shift in '" << left << "'";
                return g;
            }
            const auto close = left.find(")", pos);
            shift = ReadExact(left.substr(pos, close - pos));
            if (!minus) shift = -shift;
            pos = close + 1;
        }
        if (!Eat(left, pos, "^2")) {
            ADD_FAILURE() << "no square in '" << left << "'";
            return g;
        }
        if (fraction) {
            const auto close = left.find("#COC)", pos);
            if (!Eat(left, pos, "#N)(") || close == std::string::npos) {
                ADD_FAILURE() << "bad fraction in '" << left << "'";
                return g;
            }
            factor /= ReadExact(left.substr(pos, close - pos));
            pos = close + 5;
        }
        const double k = sign * factor;
        (isX ? g.A : g.C) += k;
        (isX ? g.D : g.E) += -2 * shift * k;
        g.F += k * shift * shift;
    }
    g.F -= ReadExact(equation.substr(eq + 5));
    return g;
}

double ReadDegrees(const std::string& text) {
    const auto deg = text.find("\u00B0");
    const double d = std::stod(text.substr(0, deg));
    const auto min = text.find("' ");
    if (min == std::string::npos) return d;
    const double m = std::stod(text.substr(deg + 3, min - deg - 3));
    std::string seconds = text.substr(min + 2);
    seconds = seconds.substr(0, seconds.find('"'));
    const auto mark = seconds.find("&.");
    if (mark != std::string::npos) seconds.replace(mark, 2, ".");
    return d + m / 60 + std::stod(seconds) / 3600;
}
