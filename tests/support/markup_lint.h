#pragma once
#include <string>

// Checks that a generated markup text is well formed: every "&" code is one the
// typesetter knows, every value code has its colon, and every construct tag is closed
// by its own closer in the right nesting. Returns "" when all is well, else what is wrong.
std::string LintMarkup(const std::string& text);
