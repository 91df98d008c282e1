// Any bytes as a .col file: opening must end in a loaded collection or in the
// no-collection state, never in a crash, and pictures land only in the temp folder.
#include <cstdlib>
#include <fstream>

#include "core/col_file.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ApplicationState app;
    ClearScratch();
    const std::string file = ScratchFolder() + "/fuzz.col";
    {
        std::ofstream out(file, std::ios::binary);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    app.ImageFolder = ScratchFolder() + "/img";
    app.TempFolder = ScratchFolder() + "/temp";
    app.CurrentFileName = file;
    const bool opened = OpenFile(app);
    if (opened && (app.ProblemCount() < 1 || app.ProblemCount() > kMaxProblems)) std::abort();
    if (!opened && app.ProblemCount() != 0) std::abort();
    if (app.BlockCount < 0 || app.BlockCount > kMaxBlocks) std::abort();
    return 0;
}
