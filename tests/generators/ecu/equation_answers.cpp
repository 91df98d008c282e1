#include "equation_answers.h"

#include "mathservices/number_markup.h"
#include "support/markup_reader.h"

#include <cmath>
#include <stdexcept>

namespace {
// The letter a "name = value" part names: its first character once switches and blanks go.
char NameOf(const std::string& part) {
    std::string name = part.substr(0, part.find('='));
    for (const char* drop : {"&+I", "&-I", "& ", " "}) name = ReplaceAll(name, drop, "");
    if (name.empty()) throw std::runtime_error("no name in " + part);
    return name[0];
}

// The value texts of "name = value" parts; ± makes two.
std::vector<std::string> ValueTexts(const std::string& part) {
    std::string value = part.substr(part.find('=') + 1);
    value = ReplaceAll(value, "&pm", "\u00B1");
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
    for (const std::string& part : SplitOn(answer, ";,")) {
        if (part.find('=') == std::string::npos) continue;
        for (const std::string& value : ValueTexts(part)) out.push_back(ReadMarkupReal(value));
    }
    return out;
}

std::vector<std::map<char, double>> AnswerPoints(const std::string& answer) {
    std::vector<std::map<char, double>> out;
    for (const std::string& solution : SplitOn(answer, ";")) {
        std::map<char, double> point;
        for (const std::string& part : SplitOn(solution, ",")) {
            const auto eq = part.find('=');
            if (eq == std::string::npos) continue;
            point[NameOf(part)] = ReadMarkupReal(part.substr(eq + 1));
        }
        out.push_back(point);
    }
    return out;
}
