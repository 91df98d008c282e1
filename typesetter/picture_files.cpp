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
    // The name as written and in lower case, as the figure files are stored, are tried
    // first: a page of figures would otherwise read the whole folder for each of them.
    for (const std::string& direct : {name, LowerName(name)}) {
        const std::filesystem::path path = std::filesystem::path(folder) / direct;
        if (direct.find_first_of("/\\") == std::string::npos && std::filesystem::is_regular_file(path, ec))
            return path.string();
    }
    const std::string wanted = UpperName(name);
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        if (UpperName(it->path().filename().string()) == wanted && it->is_regular_file(ec)) return it->path().string();
    }
    return "";
}
