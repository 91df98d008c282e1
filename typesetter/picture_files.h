#pragma once
#include <string>

// The file of that name in the folder, whatever the case of either: tags name pictures in
// capitals, the files may be in lower case. Empty when there is none.
std::string FindFileIgnoringCase(const std::string& folder, const std::string& name);
