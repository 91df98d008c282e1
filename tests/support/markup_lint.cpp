#include "support/markup_lint.h"

#include <cctype>
#include <vector>

namespace {
// Switches and symbols that take no value, longest first where one is a prefix of another.
const std::vector<std::string> kPlainCodes = {
    "&+I", "&-I", "&+B", "&-B", "&+U", "&-U", "&+S", "&-S", "&LF", "&FA", "&DT",
    "& ", "&|", "&Q", "&=", "&#", "&_", "&&", "&.", "&,", "&(", "&)",
    // entities
    "&alfa", "&beta", "&gamma", "&Gamma", "&delta", "&Delta", "&epsilon", "&zeta", "&eta", "&teta", "&Teta",
    "&iota", "&kappa", "&lambda", "&Lambda", "&mu", "&nu", "&xi", "&Xi", "&pi", "&Pi", "&ro", "&sigma",
    "&Sigma", "&tau", "&ypsilon", "&Ypsilon", "&fi", "&Fi", "&ji", "&psi", "&Psi", "&omega", "&Omega",
    "&ald", "&aud", "&ard", "&add", "&alrd", "&als", "&aus", "&ars", "&ads", "&alrs", "&divi", "&!=",
    "&vacio", "&iorden", "&aprox", "&real", "&<=", "&>=", "&oo", "&Vacio", "&theta", "&Theta", "&perte",
    "&nabla", "&perpen", "&todo", "&exist", "&parci", "&itg", "&pm", "&aspa", "&noperte", "&TRE", "&DIA",
    "&COR", "&PIC", "&rho", "&and", "&or", "&union", "&inter", "&mp", "&hbar"};
// Codes with a value that runs to a colon.
const std::vector<std::string> kValueCodes = {"&FS=", "&FN=", "&FC=", "&BC=", "&LC=", "&FF=", "&SP=", "&LSAN=",
                                              "&EC="};
// Inner separators of constructs.
const std::vector<std::string> kSeparators = {"#N)(", "#T)(", "#PB)(", "#TS)(", "#RI(", "#RI)", "#T)"};

bool StartsAt(const std::string& text, std::size_t pos, const std::string& what) {
    return text.compare(pos, what.size(), what) == 0;
}
} // namespace

std::string LintMarkup(const std::string& text) {
    std::vector<std::string> open;
    std::size_t pos = 0;
    while (pos < text.size()) {
        const char c = text[pos];
        if (c == '&') {
            if (StartsAt(text, pos, "&E")) {
                // "&E" with a sign and digits; other codes beginning with E are not in use.
                pos += 2;
                continue;
            }
            bool known = false;
            for (const auto& code : kValueCodes) {
                if (StartsAt(text, pos, code)) {
                    const auto colon = text.find(':', pos + code.size());
                    if (colon == std::string::npos) return "value code without colon at " + std::to_string(pos);
                    pos = colon + 1;
                    known = true;
                    break;
                }
            }
            if (known) continue;
            std::size_t best = 0;
            for (const auto& code : kPlainCodes) {
                if (StartsAt(text, pos, code) && code.size() > best) best = code.size();
            }
            if (best == 0) return "unknown code at " + std::to_string(pos) + ": " + text.substr(pos, 8);
            pos += best;
            continue;
        }
        if (c == '#') {
            if (StartsAt(text, pos, "##")) {
                pos += 2;
                continue;
            }
            if (StartsAt(text, pos, "#MARK=")) {
                pos += 9;
                continue;
            }
            bool separator = false;
            for (const auto& s : kSeparators) {
                if (StartsAt(text, pos, s)) {
                    pos += s.size();
                    separator = true;
                    break;
                }
            }
            if (separator) continue;
            if (pos + 5 > text.size()) return "cut tag at " + std::to_string(pos);
            const std::string name = text.substr(pos + 1, 3);
            const char bracket = text[pos + 4];
            for (char n : name) {
                if (!std::isupper(static_cast<unsigned char>(n)) && !std::isdigit(static_cast<unsigned char>(n)))
                    return "unknown tag at " + std::to_string(pos) + ": " + text.substr(pos, 5);
            }
            if (bracket == '(') {
                open.push_back(name);
            } else if (bracket == ')') {
                if (open.empty() || open.back() != name)
                    return "closer #" + name + ") without its opener at " + std::to_string(pos);
                open.pop_back();
            } else {
                return "unknown tag at " + std::to_string(pos) + ": " + text.substr(pos, 5);
            }
            pos += 5;
            continue;
        }
        if ((c == '_' || c == '^') && pos + 1 >= text.size()) return "script mark at the end";
        if (c == '_' || c == '^') {
            pos += 2;
            continue;
        }
        ++pos;
    }
    if (!open.empty()) return "construct #" + open.back() + "( not closed";
    return "";
}
