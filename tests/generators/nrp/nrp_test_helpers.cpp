#include "generators/nrp/nrp_test_helpers.h"

#include "support/markup_reader.h"

#include <algorithm>
#include <cmath>
#include <regex>

bool SameValue(double a, double b) { return NearlyEqual(a, b, 1e-9); }

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
