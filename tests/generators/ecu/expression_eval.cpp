#include "expression_eval.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace {
const double kNaN = std::numeric_limits<double>::quiet_NaN();

std::string Replace(std::string text, const std::string& what, const std::string& with) {
    std::size_t pos = 0;
    while ((pos = text.find(what, pos)) != std::string::npos) {
        text.replace(pos, what.size(), with);
        pos += with.size();
    }
    return text;
}

// Markup switches and blanks removed; the constructs and symbols kept.
std::string Clean(std::string text) {
    for (const char* drop : {"&+I", "&-I", "&+B", "&-B"}) text = Replace(text, drop, "");
    text = Replace(text, "& ", " ");
    text = Replace(text, "&.", ".");
    text = Replace(text, "\u00B7", "*");
    text = Replace(text, "&pi", "P");
    std::string out;
    for (char c : text) {
        if (c != ' ') out += c;
    }
    return out;
}

class Parser {
public:
    Parser(std::string text, const std::map<char, double>& values) : t_(std::move(text)), v_(values) {}
    double Run() {
        const double value = Expr();
        if (p_ != t_.size()) throw std::runtime_error("left over: " + t_.substr(p_));
        return value;
    }

private:
    bool At(const char* s) const { return t_.compare(p_, std::char_traits<char>::length(s), s) == 0; }
    void Expect(const char* s) {
        if (!At(s)) throw std::runtime_error(std::string("expected ") + s + " at " + t_.substr(p_));
        p_ += std::char_traits<char>::length(s);
    }
    char Peek() const { return p_ < t_.size() ? t_[p_] : '\0'; }
    bool StartsPrimary() const {
        const char c = Peek();
        return std::isdigit(static_cast<unsigned char>(c)) || c == '.' || c == '(' || c == '#' || c == 'P' ||
               (c >= 'a' && c <= 'z');
    }
    double Expr() {
        double sign = 1;
        if (Peek() == '-') {
            sign = -1;
            ++p_;
        } else if (Peek() == '+') {
            ++p_;
        }
        double value = sign * Term();
        while (Peek() == '+' || Peek() == '-') {
            const char op = t_[p_++];
            const double next = Term();
            value = op == '+' ? value + next : value - next;
        }
        return value;
    }
    double Term() {
        double value = Power();
        while (true) {
            if (Peek() == '*') {
                ++p_;
                value *= Power();
            } else if (StartsPrimary() && !At("#N)(") && !At("#COC)") && !At("#SQR)") && !At("#PB)(") &&
                       !At("#POT)") && !At("#NES)")) {
                value *= Power();
            } else {
                return value;
            }
        }
    }
    double Power() {
        double value = Primary();
        while (Peek() == '^') {
            ++p_;
            const char d = t_[p_++];
            if (!std::isdigit(static_cast<unsigned char>(d))) throw std::runtime_error("bad power");
            value = std::pow(value, d - '0');
        }
        return value;
    }
    double Primary() {
        const char c = Peek();
        if (std::isdigit(static_cast<unsigned char>(c)) || c == '.') {
            const std::size_t start = p_;
            while (std::isdigit(static_cast<unsigned char>(Peek())) || Peek() == '.') ++p_;
            return std::stod(t_.substr(start, p_ - start));
        }
        if (c == '(') {
            ++p_;
            const double value = Expr();
            Expect(")");
            return value;
        }
        if (c == 'P') {
            ++p_;
            return 3.14159265358979323846;
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
            const double value = Expr();
            Expect("#SQR)");
            return value < 0 ? kNaN : std::sqrt(value);
        }
        if (At("#POT(")) {
            p_ += 5;
            const double base = Expr();
            Expect("#PB)(");
            const double exponent = Expr();
            Expect("#POT)");
            return std::pow(base, exponent);
        }
        if (At("#NES(")) {
            p_ += 7;
            const double value = Expr();
            Expect("#NES)");
            return value;
        }
        if (At("log")) {
            p_ += 3;
            double base = 10;
            if (Peek() == '_') {
                ++p_;
                base = t_[p_++] - '0';
            }
            const double argument = Power();
            return argument <= 0 ? kNaN : std::log(argument) / std::log(base);
        }
        if (c >= 'a' && c <= 'z') {
            ++p_;
            const auto it = v_.find(c);
            if (it == v_.end()) throw std::runtime_error(std::string("unknown letter ") + c);
            return it->second;
        }
        throw std::runtime_error("unexpected at " + t_.substr(p_));
    }

    std::string t_;
    const std::map<char, double>& v_;
    std::size_t p_ = 0;
};

std::string Trim(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

// The value texts of "name = value" parts; ± makes two.
std::vector<std::string> ValueTexts(const std::string& part) {
    std::string value = part.substr(part.find('=') + 1);
    value = Replace(value, "&pm", "\u00B1");
    const auto pm = value.find("\u00B1");
    if (pm == std::string::npos) return {value};
    std::string plus = value, minus = value;
    plus.replace(pm, 2, "+");
    minus.replace(pm, 2, "-");
    return {plus, minus};
}

std::vector<std::string> SplitOn(const std::string& text, const std::string& separators) {
    std::vector<std::string> out;
    std::string current;
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 5, "#COC(") == 0 || text.compare(i, 5, "#SQR(") == 0) ++depth;
        if (text.compare(i, 5, "#COC)") == 0 || text.compare(i, 5, "#SQR)") == 0) --depth;
        if (depth == 0 && separators.find(text[i]) != std::string::npos) {
            out.push_back(current);
            current.clear();
        } else {
            current += text[i];
        }
    }
    out.push_back(current);
    return out;
}
} // namespace

double EvaluateMarkup(const std::string& markup, const std::map<char, double>& values) {
    return Parser(Clean(markup), values).Run();
}

SplitRelation SplitAtRelation(const std::string& markup) {
    const std::pair<const char*, const char*> relations[] = {
        {"& &<=& ", "<="}, {"& &>=& ", ">="}, {"& =& ", "="}, {"& <& ", "<"}, {"& >& ", ">"}};
    for (const auto& [mark, name] : relations) {
        const auto at = markup.find(mark);
        if (at != std::string::npos) {
            return {markup.substr(0, at), name, markup.substr(at + std::char_traits<char>::length(mark))};
        }
    }
    throw std::runtime_error("no relation in " + markup);
}

std::vector<std::string> SystemRows(const std::string& markup) {
    std::vector<std::string> rows;
    for (int i = 1;; ++i) {
        const std::string open = "#RW" + std::to_string(i) + "(", close = "#RW" + std::to_string(i) + ")";
        const auto a = markup.find(open);
        if (a == std::string::npos) return rows;
        const auto b = markup.find(close, a);
        rows.push_back(markup.substr(a + open.size(), b - a - open.size()));
    }
}

std::vector<double> AnswerValues(const std::string& answer) {
    std::vector<double> out;
    for (const std::string& part : SplitOn(Clean(answer), ";,")) {
        if (part.find('=') == std::string::npos) continue;
        for (const std::string& value : ValueTexts(part)) out.push_back(EvaluateMarkup(value, {}));
    }
    return out;
}

std::vector<std::map<char, double>> AnswerPoints(const std::string& answer) {
    std::vector<std::map<char, double>> out;
    for (const std::string& solution : SplitOn(Clean(answer), ";")) {
        std::map<char, double> point;
        for (const std::string& part : SplitOn(solution, ",")) {
            const auto eq = part.find('=');
            if (eq == std::string::npos) continue;
            const std::string name = Trim(part.substr(0, eq));
            point[name[0]] = EvaluateMarkup(part.substr(eq + 1), {});
        }
        out.push_back(point);
    }
    return out;
}
