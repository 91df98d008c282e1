#include "typesetter/picture_files.h"

#include <filesystem>

namespace {
std::string UpperName(const std::string& name) {
    std::string out = name;
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}
std::string LowerName(const std::string& name) {
    std::string out = name;
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}
} // namespace

std::string FindFileIgnoringCase(const std::string& folder, const std::string& name) {
    if (folder.empty() || name.empty()) return "";
    std::error_code ec;
    // The name as it stands, or in small letters, is found at once; the walk through the
    // folder is for other mixtures of case, and a big folder makes it slow.
    const bool plainName = name.find_first_of("/\\") == std::string::npos && name != "." && name != "..";
    for (const std::string& tried : {name, LowerName(name)}) {
        if (!plainName) break;
        const std::filesystem::path path = std::filesystem::path(folder) / tried;
        if (std::filesystem::is_regular_file(path, ec)) return path.string();
    }
    const std::string wanted = UpperName(name);
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        if (UpperName(it->path().filename().string()) == wanted && it->is_regular_file(ec)) return it->path().string();
    }
    return "";
}
