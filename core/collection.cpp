#include "core/collection.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "core/composition.h"
#include "core/editing.h"
#include "generators/generator_contract.h"
#include "mathservices/utf8_text.h"

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

double LeadingNumber(const std::string& text) {
    // Blanks are passed over anywhere in the number: "1 2" reads as 12.
    std::size_t i = 0;
    auto skipBlanks = [&] {
        while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    };
    skipBlanks();
    double sign = 1;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        if (text[i] == '-') sign = -1;
        ++i;
    }
    double value = 0;
    bool fraction = false;
    double scale = 1;
    while (true) {
        skipBlanks();
        if (i >= text.size()) break;
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            if (fraction) {
                scale /= 10;
                value += (c - '0') * scale;
            } else {
                value = value * 10 + (c - '0');
            }
        } else if (c == '.' && !fraction) {
            fraction = true;
        } else {
            break;
        }
        ++i;
    }
    return sign * value;
}

std::string ZeroFilled(long long value, int width) {
    const std::string padded = std::string(static_cast<std::size_t>(width), '0') + std::to_string(value);
    return padded.substr(padded.size() - static_cast<std::size_t>(width));
}

std::string ProblemCodeOf(const ProblemRecord& r) {
    ProblemCodeFields fields;
    fields.RoutineId = r.RoutineId;
    fields.VariantNumber = r.VariantNumber;
    fields.Seed = r.Seed;
    fields.ItemCount = r.ItemCount;
    fields.GroupSize = r.GroupSize;
    fields.GroupIndex = r.GroupIndex;
    return MakeProblemCode(fields);
}

std::string ProblemIdentity(const ProblemRecord& r) { return Utf8PadRight(r.ModuleName, 80) + ProblemCodeOf(r); }

void ReadProblemIdentity(const std::string& columns, ProblemRecord& r) {
    r.ModuleName = TrimBlanks(Utf8Left(columns, 80));
    const std::string code = Utf8Mid(columns, 80, 16);
    // A damaged line may hold a sign, an exponent or junk in a column: the field keeps what
    // its digits can say (0 up to all nines), so the code written back is still 16 digits.
    auto field = [&](std::size_t start, std::size_t width) {
        const double value = LeadingNumber(start < code.size() ? code.substr(start, width) : "");
        const double greatest = std::pow(10.0, static_cast<double>(width)) - 1;
        if (!(value >= 0)) return 0;
        return static_cast<int>(std::min(value, greatest));
    };
    r.RoutineId = field(0, 3);
    r.VariantNumber = field(3, 3);
    r.Seed = field(6, 4);
    r.ItemCount = field(10, 2);
    r.GroupSize = field(12, 2);
    r.GroupIndex = field(14, 2);
}

namespace {
// The character offsets of a text, so that fixed columns are cut by characters.
std::vector<std::size_t> CharacterStarts(const std::string& text) {
    std::vector<std::size_t> starts;
    starts.reserve(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) starts.push_back(i);
    starts.push_back(text.size());
    return starts;
}

// Characters first..first+count-1 (1-based) of a text whose starts are known.
std::string Columns(const std::string& text, const std::vector<std::size_t>& starts, std::size_t first,
                    std::size_t count) {
    const std::size_t chars = starts.size() - 1;
    if (first < 1 || first > chars) return "";
    const std::size_t last = std::min(chars, first - 1 + count);
    return text.substr(starts[first - 1], starts[last] - starts[first - 1]);
}
} // namespace

bool LoadTOLISTBOX_BUILT_CODE(ApplicationState& app, const std::string& subject, bool questions, bool exercises,
                              bool problems, bool theory) {
    app.hub.ReadCatalogue();
    app.CandidateList.clear();
    const std::string wanted = Upper(TrimBlanks(subject));
    for (const auto& line : app.hub.CatalogueList()) {
        const auto colon = line.find(':');
        if (colon == std::string::npos) continue;
        const std::string module = line.substr(0, colon);
        const std::string body = line.substr(colon + 1);
        if (Upper(TrimBlanks(Utf8Mid(body, 6, 65))) == wanted) app.CandidateList.push_back(body + module);
    }
    std::sort(app.CandidateList.begin(), app.CandidateList.end());

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
    for (std::size_t index = 0; index < app.CandidateList.size(); ++index) {
        const std::string& text = app.CandidateList[index];
        const auto starts = CharacterStarts(text);
        const std::string type = Columns(text, starts, 232, 1);
        const std::string names = Columns(text, starts, 72, 160);
        TopicNode node;
        if (type == "5") {
            const std::string label = TrimBlanks(Utf8Left(names, 80));
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
            node.label = TrimBlanks(Utf8Mid(names, 80, 80));
            node.description = TrimBlanks(Columns(text, starts, 239, 160));
            node.routine = static_cast<int>(LeadingNumber(Columns(text, starts, 233, 3)));
            node.itemsMax = static_cast<int>(LeadingNumber(Columns(text, starts, 236, 3)));
            node.module = Utf8PadRight(Columns(text, starts, 401, 80), 80);
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

void Arbol_to_Var(ApplicationState& app) {
    int count = 0;
    const int nodes = std::min<int>(static_cast<int>(app.TopicTree.size()), kMaxTopicNodes);
    for (int i = 0; i < nodes; ++i) {
        TopicNode& node = app.TopicTree[i];
        if (!node.selected || node.amount == 0) {
            node.selected = false;
            node.amount = 0;
            continue;
        }
        const std::string module = TrimBlanks(node.module);
        AddModuleName(app, module);
        for (int place = 1; place <= node.amount; ++place) {
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
            r.GroupSize = node.amount;
            r.GroupIndex = place;
            r.RoutineId = node.routine;
            r.ModuleName = module;
            r.ItemCount = node.itemsPerProblem;
            r.Statement.clear();
            r.Solution.clear();
        }
    }
    app.Settings.ProblemCount = count;
    ActualizaMenusCheckeados(app);
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

void Generate(ApplicationState& app, ProblemRecord& r) {
    app.hub.RunGenerator(r.ModuleName, ProblemCodeOf(r), r.Statement, r.Solution);
}
} // namespace

void CrearColeccion(ApplicationState& app, int problem) {
    if (app.ProblemCount() == 0) return;
    BeginGeneration(app);
    if (!app.Settings.Sorted) Barajar(app);
    for (int i = 1; i <= app.ProblemCount(); ++i) Generate(app, app.Problems[i]);
    ComposeDocument(app, true, problem);
    EndGeneration(app);
}

void RecreateProblem(ApplicationState& app, int index, int problem) {
    if (index < 1 || index > kMaxProblems) return;
    BeginGeneration(app);
    Generate(app, app.Problems[index]);
    ComposeDocument(app, true, problem);
    EndGeneration(app);
}

void REG_To_Var(ApplicationState& app, const std::string& params) {
    app.Settings.ProblemCount = 0;
    const auto starts = CharacterStarts(params);
    const std::size_t length = starts.size() - 1;
    const std::size_t n = static_cast<std::size_t>(std::lround(static_cast<double>(length) / 102.0));
    if (n * 102 != length || n == 0) return;
    // The record array ends at 500; a longer block is not a collection of this program.
    if (n > static_cast<std::size_t>(kMaxProblems)) return;
    for (std::size_t i = 0; i < n; ++i) {
        ProblemRecord& r = app.Problems[i + 1];
        const std::string line = Columns(params, starts, i * 102 + 1, 96);
        ReadProblemIdentity(line, r);
        AddModuleName(app, r.ModuleName);
    }
    app.Settings.ProblemCount = static_cast<int>(n);
}

int WantedProblemCount(const ApplicationState& app) {
    int count = 0;
    for (const auto& node : app.TopicTree)
        if (node.selected && !node.isFolder) count += node.amount;
    return count;
}

void NewCollectionCommand(ApplicationState& app) {
    app.SettingsAccepted = false;
    app.Reseed();
    const UndoHistory history = SaveHistory(app);
    SetUNDO(app, "new collection");
    app.SettingsAccepted = app.window->ShowWizard();
    if (!app.SettingsAccepted || WantedProblemCount(app) < 1) {
        // Nothing was made: the settings and the undo and redo points stay as they were.
        app.Settings = app.UndoSnapshot.settings;
        RestoreHistory(app, history);
        return;
    }
    app.ModuleNames.clear();
    Arbol_to_Var(app);
    CrearColeccion(app, 1);
    HayColeccion(app);
    app.menus->ActualizarBotones();
}
