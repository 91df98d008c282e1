#include "typesetter/picture_files.h"

#include <filesystem>

namespace {
std::string UpperName(const std::string& name) {
    std::string out = name;
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}
} // namespace

std::string FindFileIgnoringCase(const std::string& folder, const std::string& name) {
    if (folder.empty() || name.empty()) return "";
    std::error_code ec;
    const std::string wanted = UpperName(name);
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        if (UpperName(it->path().filename().string()) == wanted && it->is_regular_file(ec)) return it->path().string();
    }
    return "";
}
