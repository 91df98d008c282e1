// The problem lines of a file's head, read into the records: any block of text must give
// either no collection or at most 500 records whose fields fit their columns.
#include <cstdlib>

#include "core/collection.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ApplicationState app;
    app.ModuleNames.clear();
    REG_To_Var(app, BytesOf(data, size));
    const int n = app.ProblemCount();
    if (n < 0 || n > kMaxProblems) std::abort();
    if (app.ModuleNames.size() > static_cast<std::size_t>(kMaxModuleNames)) std::abort();
    for (int i = 1; i <= n; ++i) {
        const ProblemRecord& r = app.Problems[i];
        if (r.RoutineId < 0 || r.RoutineId > 999 || r.Seed < 0 || r.Seed > 9999) std::abort();
    }
    return 0;
}
