#include "tests/fuzz/fuzz_support.h"

#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

const std::string& ScratchFolder() {
    static const std::string folder = [] {
        const fs::path base = fs::exists("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
        const fs::path f = base / ("sumforge_fuzz_" + std::to_string(::getpid()));
        fs::create_directories(f);
        return f.string();
    }();
    return folder;
}

void ClearScratch() {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(ScratchFolder(), ec)) fs::remove_all(entry.path(), ec);
}
