// A clipboard text from elsewhere, pasted into a collection of three problems: either it
// is refused or it becomes one more problem, and the composition after it holds.
#include <cstdlib>

#include "core/col_file.h"
#include "core/editing.h"
#include "tests/fuzz/fuzz_support.h"

namespace {
class TextClipboard : public ClipboardPort {
public:
    bool HasText() override { return true; }
    std::string Text() override { return text; }
    void Clear() override { text.clear(); }
    void SetText(const std::string& t) override { text = t; }
    std::string text;
};

void ThreeProblems(ApplicationState& app) {
    for (int i = 1; i <= 3; ++i) {
        ProblemRecord& r = app.Problems[i];
        r = ProblemRecord{};
        r.ModuleName = "KVOL_MATH_NRP";
        r.RoutineId = 12;
        r.Seed = i;
        r.Statement = "Problem " + std::to_string(i) + "&LF";
        r.Solution = "Answer&LF";
    }
    app.Settings.ProblemCount = 3;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ApplicationState app;
    static TextClipboard clipboard;
    app.clipboard = &clipboard;
    ThreeProblems(app);
    clipboard.text = BytesOf(data, size);
    PasteCommand(app);
    const int n = app.ProblemCount();
    if (n != 3 && n != 4) std::abort();
    if (n == 4 && !IsProblemClipboardText(clipboard.text)) std::abort();
    if (n == 4 && app.Problems[4].Solution != "Answer&LF") std::abort();
    if (app.BlockCount < 0 || app.BlockCount > kMaxBlocks) std::abort();
    return 0;
}
