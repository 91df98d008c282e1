#include "generators/shared/trig_equation_templates.h"

#include <vector>

#include "mathservices/number_markup.h"

// The 138 equations in short-hand, each with its solutions in [0°, 360°), grouped by
// their answer. The order is part of the problem codes: a template is drawn by its number.
const std::array<TrigEquationTemplate, kTrigEquationCount> kTrigEquationTemplates = {{
    {"S@  +  1  -  S^2@ =  C^2@", "0º,  180º"},
    {"S@(1  -  S@)  +  1  =  C^2@", "0º,  180º"},
    {"S@ +  1  -  C^2 @ =  S^2@", "0º,  180º"},
    {"C2@ -  C^2@ =  S^2@", "0º,  180º"},
    {"C2@ -  S^2@ =  C^2@", "0º,  180º"},
    {"S2@ +  1  -  S^2@ =  C^2@", "0º,  90º,  180º,  270º"},
    {"S2@ +  1  -  C^2@ =  S^2@", "0º,  90º,  180º,  270º"},
    {"S3@ +  1  -  S^2@ =  C^2@", "0º,  60º,  120º,  180º,  240º,  300º"},
    {"S3@ +  1  -  C^2@ =  S^2@", "0º,  60º,  120º,  180º,  240º,  300º"},
    {"C@ +  1  -  S^2@ =  C^2@", "90º,  270º"},
    {"C@ +  1  -  C^2@ =  S^2@", "90º,  270º"},
    {"C@(1  -  C@)  +  1  =  S^2@", "90º,  270º"},
    {"S^2@ -  1  =  0", "90º,  270º"},
    {"S^2@ -  S^22@  =  C^22@", "90º,  270º"},
    {"C2@ +  C^2@ =  - S^2@", "90º,  270º"},
    {"C2@ +  S^2@ =  - C^2@", "90º,  270º"},
    {"C2@ +  1  -  S^2@ =  C^2@", "45º,  135º,  225º,  315º"},
    {"C2@ +  1  -  C^2@ =  S^2@", "45º,  135º,  225º,  315º"},
    {"2S^2@ -  1  =  0", "45º,  135º,  225º,  315º"},
    {"2S^2@ -  C^22@ =  S^22@", "45º,  135º,  225º,  315º"},
    {"1 -  2C^2@ =  0", "45º,  135º,  225º,  315º"},
    {"S^22@ =  2C^2@ -  C^22@", "45º,  135º,  225º,  315º"},
    {"T^2@ -  1  =  0", "45º,  135º,  225º,  315º"},
    {"T^2@ -  S^22@ =  C^22@", "45º,  135º,  225º,  315º"},
    {"C3@ +  1  -  S^2@ =  C^2@", "30º,  90º,  150º,  210º,  270º,  330º"},
    {"C3@ +  1  -  C^2@ =  S^2@", "30º,  90º,  150º,  210º,  270º,  330º"},
    {"2S@ +  1  =  0", "210º,  330º"},
    {"2S@ +  S^2@ =  - C^2@", "210º,  330º"},
    {"S@(2  +  S@) =  - C^2@", "210º,  330º"},
    {"2S@ +  C^2@ =  - S^2@", "210º,  330º"},
    {"2S2@ +  1  =  0", "105º,  165º,  285º,  345º"},
    {"2S2@ +  S^2@ =  - C^2@", "105º,  165º,  285º,  345º"},
    {"2S2@ +  C^2@ =  - S^2@", "105º,  165º,  285º,  345º"},
    {"2S3@ +  1  =  0", "70º,  110º,  190º,  230º,  310º,  350º"},
    {"2S3@ +  S^2@ =  - C^2@", "70º,  110º,  190º,  230º,  310º,  350º"},
    {"2S3@ +  C^2@ =  - S^2@", "70º,  110º,  190º,  230º,  310º,  350º"},
    {"2C@ +  1  =  0", "120º,  240º"},
    {"2C@ +  C^2@ =  - S^2@", "120º,  240º"},
    {"2C@ +  S^2@ =  - C^2@", "120º,  240º"},
    {"C@(2  +  C@)  =  - S^2@", "120º,  240º"},
    {"2C2@ +  1  =  0", "60º,  120º,  240º,  300º"},
    {"2C2@ +  S^2@ =  - C^2@", "60º,  120º,  240º,  300º"},
    {"2C2@ +  C^2@ =  - S^2@", "60º,  120º,  240º,  300º"},
    {"4C^2@ -  1 =  0", "60º,  120º,  240º,  300º"},
    {"4C^2@ =  S^2@ +  C^2@", "60º,  120º,  240º,  300º"},
    {"4C^2@ -  S^2@ =  C^2@", "60º,  120º,  240º,  300º"},
    {"3C^2@ =  S^2@", "60º,  120º,  240º,  300º"},
    {"4S^2@ -  3  =  0", "60º,  120º,  240º,  300º"},
    {"T^2@ -  3  =  0", "60º,  120º,  240º,  300º"},
    {"2C3@ +  1  =  0", "40º,  80º,  160º,  200º,  280º,  320º"},
    {"2C3@ +  S^2@ =  - C^2@", "40º,  80º,  160º,  200º,  280º,  320º"},
    {"2C3@ +  C^2@ =  - S^2@", "40º,  80º,  160º,  200º,  280º,  320º"},
    {"2S@ -  1  =  0", "30º,  150º"},
    {"2S@ -  S^2@ =  C^2@", "30º,  150º"},
    {"S@(2  -  S@) =  C^2@", "30º,  150º"},
    {"2S@ -  C^2@ =  S^2@", "30º,  150º"},
    {"2S2@ -  1  =  0", "15º,  75º,  195º,  255º"},
    {"2S2@ -  S^2@ =  C^2@", "15º,  75º,  195º,  255º"},
    {"2S2@ -  C^2@ =  S^2@", "15º,  75º,  195º,  255º"},
    {"2S3@ -  1  =  0", "10º,  50º,  130º,  170º,  250º,  290º"},
    {"2S3@ -  S^2@ =  C^2@", "10º,  50º,  130º,  170º,  250º,  290º"},
    {"2S3@ -  C^2@ =  S^2@", "10º,  50º,  130º,  170º,  250º,  290º"},
    {"2C@ -  1  =  0", "60º,  300º"},
    {"2C@ -  S^2@ =  C^2@", "60º,  300º"},
    {"2C@ -  C^2@ =  S^2@", "60º,  300º"},
    {"C@(2  -  C@)  =  S^2@", "60º,  300º"},
    {"2C2@ -  1  =  0", "30º,  150º,  210º,  330º"},
    {"2C2@ -  S^2@ =  C^2@", "30º,  150º,  210º,  330º"},
    {"2C2@ -  C^2@ =  S^2@", "30º,  150º,  210º,  330º"},
    {"4S^2@ -  1 =  0", "30º,  150º,  210º,  330º"},
    {"3T^2@ -  1 =  0", "30º,  150º,  210º,  330º"},
    {"4S^2@ -  C^2@ =  S^2@", "30º,  150º,  210º,  330º"},
    {"3S^2@ =  C^2@", "30º,  150º,  210º,  330º"},
    {"4C^2@ -  3  =  0", "30º,  150º,  210º,  330º"},
    {"2C3@ -  1  =  0", "20º,  100º,  140º,  220º,  260º,  340º"},
    {"2C3@ -  S^2@ =  C^2@", "20º,  100º,  140º,  220º,  260º,  340º"},
    {"2C3@ -  C^2@ =  S^2@", "20º,  100º,  140º,  220º,  260º,  340º"},
    {"2C@ -  #RAD(2#RAD)  =  0", "45º,  315º"},
    {"2C3@ -  #RAD(2#RAD)  =  0", "15º,  105º,  135º,  225º,  255º,  345º"},
    {"2C@ +  #RAD(2#RAD)  =  0", "135º,  225º"},
    {"2C3@ +  #RAD(2#RAD)  =  0", "45º,  75º,  165º,  195º,  285º,  315º"},
    {"2C@ -  #RAD(3#RAD)  =  0", "30º,  330º"},
    {"2C2@ -  #RAD(3#RAD)  =  0", "15º,  165º,  195º,  345º"},
    {"2C3@ -  #RAD(3#RAD)  =  0", "10º,  110º,  130º,  230º,  250º,  350º"},
    {"2C@ +  #RAD(3#RAD)  =  0", "150º,  210º"},
    {"2C2@ +  #RAD(3#RAD)  =  0", "75º,  105º,  255º,  285º"},
    {"2C3@ +  #RAD(3#RAD)  =  0", "50º,  70º,  170º,  190º,  290º,  310º"},
    {"2S@ -  #RAD(2#RAD)  =  0", "45º,  135º"},
    {"2S3@ -  #RAD(2#RAD)  =  0", "15º,  45º,  135º,  165º,  255º,  285º"},
    {"2S@ +  #RAD(2#RAD)  =  0", "225º,  315º"},
    {"2S3@ +  #RAD(2#RAD)  =  0", "75º,  105º,  195º,  225º,  315º,  345º"},
    {"2S@ -  #RAD(3#RAD)  =  0", "60º,  120º"},
    {"2S2@ -  #RAD(3#RAD)  =  0", "30º,  60º,  210º,  240º"},
    {"2S3@ -  #RAD(3#RAD)  =  0", "20º,  40º,  140º,  160º,  260º,  280º"},
    {"2S@ +  #RAD(3#RAD)  =  0", "240º,  300º"},
    {"2S2@ +  #RAD(3#RAD)  =  0", "120º,  150º,  300º,  330º"},
    {"2S3@ +  #RAD(3#RAD)  =  0", "80º,  100º,  200º,  220º,  320º,  340º"},
    {"2S^2@ +  S@ -  1  =  0", "30º,  150º,  270º"},
    {"S@ -  2C^2@ +  1  =  0", "30º,  150º,  270º"},
    {"S3@ -  C^2@ =  S^2@", "30º,  150º,  270º"},
    {"S3@ -  S^2@ =  C^2@", "30º,  150º,  270º"},
    {"2S^2@ +  3S@ +  1  =  0", "210º,  270º,  330º"},
    {"3S@ -  2C^2@ +  3  =  0", "210º,  270º,  330º"},
    {"S@ -  C^2@ =  S^2@", "90º"},
    {"S@ -  S^2@ =  C^2@", "90º"},
    {"S@(1  -  S@)  =  C^2@", "90º"},
    {"S2@ -  C^2@ =  S^2@", "45º,  225º"},
    {"S2@ -  S^2@ =  C^2@", "45º,  225º"},
    {"C@ -  C^2@ =  S^2@", "0º"},
    {"C@ -  S^2@ =  C^2@", "0º"},
    {"C@(1  -  C@)  =  S^2@", "0º"},
    {"C3@ -  C^2@ =  S^2@", "0º,  120º,  240º"},
    {"C3@ -  S^2@ =  C^2@", "0º,  120º,  240º"},
    {"S@ +  C^2@ =  - S^2@", "270º"},
    {"S@ +  S^2@ =  - C^2@", "270º"},
    {"S@(1  +  S@)  +  C^2@ =  0", "270º"},
    {"S2@ +  C^2@ =  - S^2@", "135º,  315º"},
    {"S2@ +  S^2@ =  - C^2@", "135º,  315º"},
    {"S3@ +  C^2@ =  - S^2@", "90º,  210º,  330º"},
    {"S3@ +  S^2@ =  - C^2@", "90º,  210º,  330º"},
    {"2S^2@ -  S@ -  1  =  0", "90º,  210º,  330º"},
    {"1  -  2C^2@ -  S@ =  0", "90º,  210º,  330º"},
    {"C@ +  C^2@ =  - S^2@", "180º"},
    {"C@ +  S^2@ =  - C^2@", "180º"},
    {"C@(1  +  C@)  +  S^2@  =  0", "180º"},
    {"C3@ +  C^2@ =  - S^2@", "60º,  180º,  300º"},
    {"C3@ +  S^2@ =  - C^2@", "60º,  180º,  300º"},
    {"2S^2@ -  S@ =  0", "0º,  30º,  150º,  180º"},
    {"2(1  -  C^2@) -  S@ =  0", "0º,  30º,  150º,  180º"},
    {"2C^2@ +  S@ =  2", "0º,  30º,  150º,  180º"},
    {"2S^2@ +  S@ =  0", "0º,  180º,  210º,  330º"},
    {"2  +  S@ -  2C^2@ =  0", "0º,  180º,  210º,  330º"},
    {"S^2@ -  S@ =  0", "0º,  90º,  180º"},
    {"C^2@ +  S@ =  1", "0º,  90º,  180º"},
    {"S^2@ +  S@ =  0", "0º,  180º,  270º"},
    {"C^2@ -  S@ =  1", "0º,  180º,  270º"},
    {"2S^2@ -  3S@ +  1  =  0", "30º,  90º,  150º"},
    {"3  -  2C^2@ -  3S@ =  0", "30º,  90º,  150º"},
}};

std::string ExpandTrigEquation(const std::string& shorthand, const std::string& squareWith) {
    std::string text = ReplaceAll(shorthand, "^2@", squareWith);
    text = ReplaceAll(text, "2@", " 2&+Ix&-I ");
    text = ReplaceAll(text, "3@", " 3&+Ix&-I ");
    text = ReplaceAll(text, "@", " &+Ix&-I ");
    text = ReplaceAll(text, "\u00BA", "\u00B0");
    text = ReplaceAll(text, "S", "sin");
    text = ReplaceAll(text, "C", "cos");
    return ReplaceAll(text, "T", "tan");
}

namespace {
// A token of the markup: a blank, a style switch (prints nothing), or anything else.
struct BlankToken {
    std::string text;
    bool blank = false;
    bool invisible = false;
};

std::vector<BlankToken> SplitForBlanks(const std::string& text) {
    std::vector<BlankToken> tokens;
    std::size_t p = 0;
    while (p < text.size()) {
        const char c = text[p];
        if (c == '&' && p + 2 < text.size() && (text[p + 1] == '+' || text[p + 1] == '-')) {
            tokens.push_back({text.substr(p, 3), false, true});
            p += 3;
        } else if ((c == '&' || c == '^' || c == '_') && p + 1 < text.size()) {
            // "& " is a hard space and "^ " a raised one: codes, not blanks.
            tokens.push_back({text.substr(p, 2), false, false});
            p += 2;
        } else {
            tokens.push_back({std::string(1, c), c == ' ', false});
            p += 1;
        }
    }
    return tokens;
}

bool IsRelationToken(const std::string& t) { return t == "=" || t == "<" || t == ">"; }
} // namespace

std::string TidyEquationBlanks(const std::string& text) {
    const std::vector<BlankToken> tokens = SplitForBlanks(text);
    // The printed tokens already kept, for looking back past switches and blanks.
    std::vector<std::string> printed;
    std::string out;
    bool pendingBlank = false;
    const auto nextPrinted = [&tokens](std::size_t i) -> std::string {
        for (std::size_t j = i + 1; j < tokens.size(); ++j)
            if (!tokens[j].blank && !tokens[j].invisible) return tokens[j].text;
        return "";
    };
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const BlankToken& t = tokens[i];
        if (t.invisible) {
            out += t.text;
            continue;
        }
        if (t.blank) {
            if (pendingBlank || printed.empty()) continue;
            const std::string next = nextPrinted(i);
            const std::string& last = printed.back();
            const std::string beforeLast = printed.size() >= 2 ? printed[printed.size() - 2] : "";
            const bool unaryMinus = last == "-" && (printed.size() == 1 || beforeLast == "(" || IsRelationToken(beforeLast));
            if (next.empty() || next == ")" || next == "," || last == "(" || unaryMinus) continue;
            out += ' ';
            pendingBlank = true;
            continue;
        }
        out += t.text;
        printed.push_back(t.text);
        pendingBlank = false;
    }
    return out;
}
