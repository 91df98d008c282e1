#include "generators/tri/trig_equation_templates.h"
#include "generators/tri/trig_identity_templates.h"
#include "mathservices/number_markup.h"

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

std::string ExpandTrigIdentity(const std::string& shorthand, const std::string& letter, const std::string& angleA,
                               const std::string& angleB) {
    const std::string variable = "&+I" + letter + "&-I ";
    std::string text = shorthand;
    for (const char* power : {"^2", "^3", "^4"}) {
        text = ReplaceAll(text, std::string(power) + "@", std::string(power) + "^ " + variable);
    }
    for (const char* digit : {"2", "3", "4", "5", "6", "9"}) {
        text = ReplaceAll(text, std::string(digit) + "@", " " + std::string(digit) + variable);
    }
    text = ReplaceAll(text, "@", " " + variable);
    text = ReplaceAll(text, "A", "&+I" + angleA + "&-I");
    text = ReplaceAll(text, "B", "&+I" + angleB + "&-I");
    text = ReplaceAll(text, "\u00BA", "\u00B0");
    text = ReplaceAll(text, "Z", "sin");
    text = ReplaceAll(text, "K", "cos");
    return ReplaceAll(text, "T", "tan");
}
