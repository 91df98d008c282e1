#include "core/collection.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "core/composition.h"
#include "generators/catalogue.h"
#include "mathservices/utf8_text.h"

bool LoadTOLISTBOX_BUILT_CODE(ApplicationState& app, const std::string& subject, bool questions, bool exercises,
                              bool problems, bool theory) {
    app.hub.ReadCatalogue();
    const std::string wanted = Upper(TrimBlanks(subject));
    // Each candidate is its catalogue line and its module, kept in the list's order.
    std::vector<std::pair<std::string, CatalogueEntry>> candidates;
    for (const auto& line : app.hub.CatalogueList()) {
        const auto colon = line.find(':');
        if (colon == std::string::npos) continue;
        const CatalogueEntry entry = ReadCatalogueEntry(line);
        if (Upper(TrimBlanks(entry.Subject)) == wanted)
            candidates.emplace_back(line.substr(colon + 1) + entry.moduleName, entry);
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    app.CandidateList.clear();
    for (const auto& candidate : candidates) app.CandidateList.push_back(candidate.first);

    app.TopicTree.clear();
    TopicNode root;
    root.kind = kNodeSubject;
    root.level = 0;
    root.label = subject;
    root.isFolder = true;
    root.expanded = true;
    root.listIndex = 0;
    app.TopicTree.push_back(root);

    const bool typeWanted[5] = {false, questions, exercises, problems, theory};
    bool complete = true;
    for (std::size_t index = 0; index < candidates.size(); ++index) {
        const CatalogueEntry& entry = candidates[index].second;
        const std::string& type = entry.Kind;
        TopicNode node;
        if (type == "5") {
            const std::string label = TrimBlanks(entry.TopicName);
            const TopicNode& lastNode = app.TopicTree.back();
            if (lastNode.kind == kNodeFolder && lastNode.label == label) continue;
            node.kind = kNodeFolder;
            node.level = 1;
            node.isFolder = true;
            node.expanded = false;
            node.label = label;
            node.listIndex = static_cast<int>(index);
        } else if (type.size() == 1 && type[0] >= '1' && type[0] <= '4') {
            const int kind = type[0] - '0';
            if (!typeWanted[kind]) continue;
            node.kind = kind;
            node.level = 2;
            node.isFolder = false;
            node.label = TrimBlanks(entry.Title);
            node.description = TrimBlanks(entry.Description);
            node.routine = static_cast<int>(LeadingNumberSkippingBlanks(entry.RoutineId));
            node.itemsMax = static_cast<int>(LeadingNumberSkippingBlanks(entry.MaxAmount));
            node.module = Utf8PadRight(entry.moduleName, 80);
            node.listIndex = static_cast<int>(index);
        } else {
            continue;
        }
        // The tree's array ends at 256 nodes: keep what fits and say so.
        if (static_cast<int>(app.TopicTree.size()) >= kMaxTopicNodes) {
            complete = false;
            break;
        }
        app.TopicTree.push_back(node);
    }
    return complete;
}

void AppendProblemGroup(ApplicationState& app, const std::string& moduleText, int routine, int amount,
                        int itemsPerProblem) {
    const std::string module = TrimBlanks(moduleText);
    AddModuleName(app, module);
    int count = app.ProblemCount();
    for (int place = 1; place <= amount; ++place) {
        // The record array ends at 500; the wizard refuses more, and so does this.
        if (count >= kMaxProblems) break;
        ProblemRecord& r = app.Problems[++count];
        if (place == 1) {
            r.VariantNumber = static_cast<int>(app.Random() * 900.0);
            r.Seed = static_cast<int>(app.Random() * 9000.0);
        } else {
            const ProblemRecord& before = app.Problems[count - 1];
            r.VariantNumber = before.VariantNumber + 1;
            r.Seed = before.Seed + 1;
        }
        r.GroupSize = amount;
        r.GroupIndex = place;
        r.RoutineId = routine;
        r.ModuleName = module;
        r.ItemCount = itemsPerProblem;
        r.Statement.clear();
        r.Solution.clear();
    }
    app.Settings.ProblemCount = count;
}

void Arbol_to_Var(ApplicationState& app) {
    app.Settings.ProblemCount = 0;
    const int nodes = std::min<int>(static_cast<int>(app.TopicTree.size()), kMaxTopicNodes);
    for (int i = 0; i < nodes; ++i) {
        TopicNode& node = app.TopicTree[i];
        if (!node.selected || node.amount == 0) {
            node.selected = false;
            node.amount = 0;
            continue;
        }
        AppendProblemGroup(app, node.module, node.routine, node.amount, node.itemsPerProblem);
    }
}

void Barajar(ApplicationState& app) {
    const int n = app.ProblemCount();
    for (int k = 1; k <= n + 1; ++k) {
        const int a = static_cast<int>(static_cast<double>(app.Random()) * n * 0.99999) + 1;
        const int b = static_cast<int>(static_cast<double>(app.Random()) * n * 0.99999) + 1;
        ProblemRecord& ra = app.Problems[a];
        ProblemRecord& rb = app.Problems[b];
        std::swap(ra.RoutineId, rb.RoutineId);
        std::swap(ra.VariantNumber, rb.VariantNumber);
        std::swap(ra.Seed, rb.Seed);
        std::swap(ra.GroupSize, rb.GroupSize);
        std::swap(ra.GroupIndex, rb.GroupIndex);
        std::swap(ra.ItemCount, rb.ItemCount);
        std::swap(ra.ModuleName, rb.ModuleName);
    }
}

namespace {
void BeginGeneration(ApplicationState& app) {
    app.window->SetWaitCursor(true);
    app.window->SetBusy(true);
}

void EndGeneration(ApplicationState& app) {
    app.CurrentFileName.clear();
    app.window->SetCaption(app.ApplicationTitle);
    app.Modified = true;
    app.window->SetWaitCursor(false);
}

} // namespace

void GenerateRecord(GeneratorHub& hub, ProblemRecord& r) {
    hub.RunGenerator(r.ModuleName, CodeFieldsOf(r), r.Statement, r.Solution);
}

void CrearColeccion(ApplicationState& app, int problem) {
    if (app.ProblemCount() == 0) return;
    BeginGeneration(app);
    if (!app.Settings.Sorted) Barajar(app);
    for (int i = 1; i <= app.ProblemCount(); ++i) GenerateRecord(app.hub, app.Problems[i]);
    ComposeDocument(app, true, problem);
    EndGeneration(app);
}

void RecreateProblem(ApplicationState& app, int index, int problem) {
    if (index < 1 || index > kMaxProblems) return;
    BeginGeneration(app);
    GenerateRecord(app.hub, app.Problems[index]);
    ComposeDocument(app, true, problem);
    EndGeneration(app);
}

void REG_To_Var(ApplicationState& app, const std::string& params) {
    app.Settings.ProblemCount = 0;
    // The record array ends at 500; a longer block is not a collection of this program.
    std::vector<ProblemRecord> records = ReadProblemLines(params, kMaxProblems);
    for (std::size_t i = 0; i < records.size(); ++i) {
        AddModuleName(app, records[i].ModuleName);
        // The identity only: the texts are the file's to fill.
        ProblemRecord& r = app.Problems[i + 1];
        records[i].Statement = std::move(r.Statement);
        records[i].Solution = std::move(r.Solution);
        r = std::move(records[i]);
    }
    app.Settings.ProblemCount = static_cast<int>(records.size());
}

int WantedProblemCount(const ApplicationState& app) {
    int count = 0;
    for (const auto& node : app.TopicTree)
        if (node.selected && !node.isFolder) count += node.amount;
    return count;
}
