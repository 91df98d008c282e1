#pragma once
#include <string>

// The seven texts with which numbers are written, set once at start-up and plain text
// (UTF-8) from then on: the generators and the number services write with them, and the
// typesetter puts them in place of the locale codes.
struct NumberTexts {
    std::string timesTen = "\u00B710"; // the mark before a power of ten
    std::string decimalSeparator = ".";
    std::string listSeparator = ",";
    std::string openBracket = "(";
    std::string closeBracket = ")";
    std::string functionName = "f";
    std::string deviationMarkup = "&sigma"; // markup of a standard deviation
};
