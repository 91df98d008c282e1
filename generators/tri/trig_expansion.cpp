#include "generators/tri/trig_identity_templates.h"
#include "mathservices/number_markup.h"

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
