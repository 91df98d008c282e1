#include "core_fakes.h"

#include <cstdlib>

#include "core/collection.h"
#include "core/composition.h"

std::int32_t LineMeasure::MeasurePage(const std::string& text, double, bool pageNumberAtFoot) {
    texts.push_back(text);
    numberAtFoot.push_back(pageNumberAtFoot);
    std::int32_t flow = 0;
    int lines = 0;
    std::size_t start = 0;
    while (true) {
        const auto end = text.find("&LF", start);
        if (text.compare(start, 5, "#MARK") == 0)
            flow = static_cast<std::int32_t>(LeadingNumberSkippingBlanks(text.substr(start + 6, 4)));
        ++lines;
        if (lines > capacity) return -flow;
        if (end == std::string::npos) break;
        start = end + 3;
    }
    return flow;
}

TestBench::TestBench(int pageLines) : TestBench(GeneratorHub({TestModule()}), pageLines) {}

TestBench::TestBench(GeneratorHub hub, int pageLines) : app(std::move(hub)), measure(pageLines) {
    app.menus = &menus;
    app.clipboard = &clipboard;
    app.window = &window;
    app.measure = &measure;
    app.ClockSeed = [] { return 4242; };
}

void TestBench::SetProblems(const std::vector<std::pair<std::string, std::string>>& texts) {
    int i = 0;
    for (const auto& [statement, solution] : texts) {
        ProblemRecord& r = app.Problems[++i];
        r = ProblemRecord{};
        r.ModuleName = "KVOL_TEST";
        r.RoutineId = 1;
        r.VariantNumber = i;
        r.Seed = 100 + i;
        r.GroupSize = 1;
        r.GroupIndex = 1;
        r.Statement = statement;
        r.Solution = solution;
    }
    app.Settings.ProblemCount = i;
}

void TestBench::DrawMarks() {
    app.Marks.Clear();
    for (int b = 1; b <= app.BlockCount; ++b)
        if (app.Blocks[b].page == app.CurrentPage) app.Marks.Add(std::atoi(PageMark(b).c_str()), b * 100.0, b * 100.0 + 90);
}

void TestBench::SelectProblem(int p) {
    for (int b = 1; b <= app.BlockCount; ++b) {
        if (app.Blocks[b].problem != p) continue;
        app.CurrentPage = app.Blocks[b].page;
        DrawMarks();
        for (int i = 0; i < app.Marks.MarkCount; ++i)
            if (app.Marks.MarkProblem[i] == b) app.Marks.MarkSelected[i] = true;
        return;
    }
}

CollectionImage ImageOf(const ApplicationState& app) {
    CollectionImage image;
    image.settings = app.Settings;
    image.problems.assign(app.Problems.begin() + 1, app.Problems.begin() + 1 + app.ProblemCount());
    return image;
}

namespace {
std::string Fields(GeneratorWorkspace& ws) {
    return std::to_string(ws.VariantNumber) + "/" + std::to_string(ws.Seed) + "/" + std::to_string(ws.ItemCount) +
           "/" + std::to_string(static_cast<int>(ws.GroupSize)) + "/" + std::to_string(static_cast<int>(ws.GroupIndex));
}

// Routine 1: writes its code fields back, with a solution.
void EchoRoutine(GeneratorWorkspace& ws) {
    ws.Statement = "Echo " + Fields(ws) + "&LF";
    ws.Solution = "Answer " + std::to_string(ws.stream.Draw()) + "&LF";
}

// Routine 2: a problem without solution.
void SilentRoutine(GeneratorWorkspace& ws) {
    ws.Statement = "Silent " + Fields(ws);
    ws.Solution = "";
}

// Routine 3: a theory item in a topic of its own.
void TheoryRoutine(GeneratorWorkspace& ws) {
    ws.Statement = "Theory";
    ws.Solution = "Theory answer";
}
} // namespace

GeneratorModule TestModule() {
    return {"KVOL_TEST",
            3,
            {{1, EchoRoutine, {"020", "Test topic", "001", "2", "010", "Echo", "Writes its fields"}},
             {2, SilentRoutine, {"020", "Test topic", "002", "3", "", "Silent", "No solution"}},
             {3, TheoryRoutine, {"030", "Theory topic", "001", "4", "", "Theory", "Read this"}}}};
}
