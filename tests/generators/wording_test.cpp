#include <functional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"

// What a teacher would correct on a printed sheet, checked over every routine of every
// module: English words, signs and letters as an English maths book writes them.
namespace {
// Runs every routine of every module over a spread of seeds and item counts.
void ForEveryProblem(const std::function<void(const GeneratedProblem&, const std::string& where)>& check) {
    GeneratorHub hub;
    for (const auto& module : hub.Modules()) {
        for (const auto& routine : module.routines) {
            for (int seed = 0; seed < 40; ++seed) {
                const GeneratedProblem p = GenerateProblem(
                    hub, module.name, {routine.number, seed % 900, seed * 7 + 3, 1 + seed % 26, 1 + seed % 4, 1});
                check(p, module.name + " " + std::to_string(routine.number) + " code " + p.code);
            }
        }
    }
}

std::string Both(const GeneratedProblem& p) { return p.statement + "\n" + p.solution; }

bool IsTagName(char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

// Whether the text is set in italics at each position, as the interpreter switches it:
// "&+I" and "&-I" turn it on and off, and a construct ("#COC(" ... "#COC)") gives back
// the state it was entered with.
std::vector<bool> ItalicAt(const std::string& text) {
    std::vector<bool> italicAt(text.size(), false);
    std::vector<std::pair<std::string, bool>> open;  // tag name and the state at its entry
    bool italic = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 3, "&+I") == 0) italic = true;
        if (text.compare(i, 3, "&-I") == 0) italic = false;
        if (text[i] == '#' && i + 4 < text.size() && IsTagName(text[i + 1]) && IsTagName(text[i + 2]) &&
            IsTagName(text[i + 3])) {
            const std::string name = text.substr(i + 1, 3);
            if (text[i + 4] == '(') {
                open.emplace_back(name, italic);
            } else if (text[i + 4] == ')' && !open.empty() && open.back().first == name) {
                italic = open.back().second;
                open.pop_back();
            }
        }
        italicAt[i] = italic;
    }
    return italicAt;
}

bool IsLower(char c) { return c >= 'a' && c <= 'z'; }
bool IsLetter(char c) { return IsLower(c) || (c >= 'A' && c <= 'Z'); }
} // namespace

TEST(Wording, EnglishWordsOnly) {
    // "si" and "de" are Spanish; "Lcm and gcm" is no English school name.
    static const std::regex spanish(R"((^|[^A-Za-z])(si|de|Lcm|gcm)([^A-Za-z]|$))");
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        std::smatch m;
        const std::string text = Both(p);
        EXPECT_FALSE(std::regex_search(text, m, spanish)) << where << ": \"" << m.str() << "\" in " << text;
    });
}

TEST(Wording, OneUnitIsSingular) {
    static const std::regex oneUnits(R"((^|[^0-9.])1 units)");
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        EXPECT_FALSE(std::regex_search(Both(p), oneUnits)) << where << ": " << p.statement;
    });
}

TEST(Wording, DegreesWithTheDegreeSignAndApproximationsWithItsSign) {
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        const std::string text = Both(p);
        // U+00BA is the ordinal sign of Spanish ("1º"), never a degree sign.
        EXPECT_EQ(text.find("\u00BA"), std::string::npos) << where << ": " << text;
        // "&aprox" prints the congruence sign; an approximate value takes "&iorden" (≈).
        EXPECT_EQ(text.find("&aprox"), std::string::npos) << where << ": " << text;
    });
}

TEST(Wording, FunctionNamesAreNeverSetInItalics) {
    static const char* const kNames[] = {"arcsin", "arccos", "arctan", "cosec", "cotan", "lim", "log", "ln",
                                         "sin",    "cos",    "tan",    "sec",   "exp"};
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        for (const std::string* text : {&p.statement, &p.solution}) {
            const std::vector<bool> italic = ItalicAt(*text);
            for (const char* name : kNames) {
                const std::string n = name;
                for (auto at = text->find(n); at != std::string::npos; at = text->find(n, at + 1)) {
                    // A whole word of the text, not part of a longer word or of a code.
                    if (at > 0 && (IsLetter((*text)[at - 1]) || (*text)[at - 1] == '&' || (*text)[at - 1] == '#'))
                        continue;
                    if (at + n.size() < text->size() && IsLower((*text)[at + n.size()])) continue;
                    EXPECT_FALSE(italic[at]) << where << ": italic \"" << n << "\" at " << at << " in " << *text;
                }
            }
        }
    });
}

TEST(Wording, ItemLettersAreBoldAndUpright) {
    static const std::regex letter(R"(&\+B[a-z]\))");
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        for (const std::string* text : {&p.statement, &p.solution}) {
            const std::vector<bool> italic = ItalicAt(*text);
            for (std::sregex_iterator it(text->begin(), text->end(), letter), end; it != end; ++it) {
                const std::size_t at = static_cast<std::size_t>(it->position()) + 3;
                EXPECT_FALSE(italic[at]) << where << ": italic item letter " << it->str() << " in " << *text;
            }
        }
    });
}

TEST(Wording, EveryTextEndsUpright) {
    // Italic left on at the end of a statement or a solution would run on into the next
    // problem of the page.
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        for (const std::string* text : {&p.statement, &p.solution}) {
            if (text->empty()) continue;
            EXPECT_FALSE(ItalicAt(*text).back()) << where << ": ends in italics: " << *text;
        }
    });
}

TEST(Wording, EverySolutionEndsItsLine) {
    // The composition puts the next problem after a solution's own line end: without it no
    // blank line would part the two problems.
    ForEveryProblem([](const GeneratedProblem& p, const std::string& where) {
        if (p.solution.empty()) return;
        EXPECT_GE(p.solution.size(), 3u);
        EXPECT_EQ(p.solution.substr(p.solution.size() - 3), "&LF") << where << ": " << p.solution;
    });
}
