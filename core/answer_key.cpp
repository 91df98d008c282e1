#include "core/answer_key.h"

#include "core/col_file.h"
#include "core/composition.h"
#include "generators/item_drill.h"

std::string AnswerKeyTitle(const std::string& title) {
    if (title.empty()) return "Answer key";
    const std::string tail = " \u2014 Answer key";
    return AsFileText(title, kMaxTitleBytes - tail.size()) + tail;
}

namespace {
// The columns of a row of short answers: each starts at the left of its share of the line.
const ColumnMarks kKeyColumns4 = {"&SP=0:", "&SP=25:", "&SP=50:", "&SP=75:"};
const ColumnMarks kKeyColumns3 = {"&SP=0:", "&SP=34:", "&SP=67:"};
const ColumnMarks kKeyColumns2 = {"&SP=0:", "&SP=50:"};
const ColumnMarks* const kKeyColumnSets[] = {&kKeyColumns4, &kKeyColumns3, &kKeyColumns2};

bool EndsWith(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

// The solution without the line ends and blanks that close it.
std::string WithoutClosingLines(std::string text) {
    while (true) {
        if (EndsWith(text, "&LF")) text.resize(text.size() - 3);
        else if (!text.empty() && (text.back() == ' ' || text.back() == '\r' || text.back() == '\n')) text.pop_back();
        else break;
    }
    return text;
}

// A one-line answer of a drill stands behind its own column mark: where that is the only
// column of the answer, the mark goes, so that the answer can take a column of the key.
std::string WithoutOwnColumn(const std::string& text) {
    if (text.rfind("&SP=", 0) != 0) return text;
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos || text.find("&SP=", colon) != std::string::npos) return text;
    return text.substr(colon + 1);
}

struct KeyEntry {
    std::string markup;
    bool isShort = false;
    int problem = 0;
};

// The column set that every entry of a run fits, widest first; none when some entry
// needs a line of its own.
const ColumnMarks* RunColumns(const std::vector<std::string>& run) {
    for (const ColumnMarks* marks : kKeyColumnSets)
        if (ItemsFitColumns(run, *marks)) return marks;
    return nullptr;
}
} // namespace

std::string AnswerKeyEntry(const CollectionSettings& settings, long long number, const std::string& solution) {
    const std::string text = WithoutClosingLines(solution);
    return "&+B" + NumberBox(settings, number) + "&-B& " + (IsShortAnswer(solution) ? WithoutOwnColumn(text) : text);
}

bool IsShortAnswer(const std::string& solution) {
    const std::string text = WithoutOwnColumn(WithoutClosingLines(solution));
    for (const char* code : {"&LF", "&SP=", "&LSAN=", "#IMG(", "#MARK"})
        if (text.find(code) != std::string::npos) return false;
    return true;
}

std::vector<std::string> AnswerKeyBlocks(const ApplicationState& app) {
    std::vector<KeyEntry> entries;
    long long number = static_cast<long long>(app.Settings.FirstProblemNumber) - 1;
    for (int p = 1; p <= app.ProblemCount() && p <= kMaxProblems; ++p) {
        ++number;
        const std::string& solution = app.Problems[p].Solution;
        if (WithoutClosingLines(solution).empty()) continue;
        entries.push_back({AnswerKeyEntry(app.Settings, number, solution), IsShortAnswer(solution), p});
    }
    // An answer shares its line when it fits a column of two at least; a run of such
    // answers takes the most columns that every one of them fits.
    for (KeyEntry& entry : entries)
        if (entry.isShort && !RunColumns({entry.markup})) entry.isShort = false;
    std::vector<std::string> blocks;
    std::size_t i = 0;
    while (i < entries.size()) {
        if (!entries[i].isShort) {
            blocks.push_back(entries[i].markup + "&LF");
            ++i;
            continue;
        }
        std::vector<std::string> run;
        while (i < entries.size() && entries[i].isShort) run.push_back(entries[i++].markup);
        const ColumnMarks& marks = *RunColumns(run);
        const std::size_t columns = marks.size();
        for (std::size_t k = 0; k < run.size(); k += columns) {
            std::string row;
            for (std::size_t c = 0; c < columns && k + c < run.size(); ++c) row += marks[c] + run[k + c];
            blocks.push_back(row + "&LF");
        }
    }
    return blocks;
}

void ComposeAnswerKey(ApplicationState& app) {
    const std::vector<std::string> blocks = AnswerKeyBlocks(app);
    app.Settings.Title = AnswerKeyTitle(app.Settings.Title);
    // The key is the teacher's: nobody writes a name on it.
    app.Page.nameLine = NameLinePlace::None;
    app.BlockCount = 0;
    for (const std::string& text : blocks) {
        if (app.BlockCount >= kMaxBlocks) break;
        DocumentBlock& block = app.Blocks[++app.BlockCount];
        block.text = "#MARK=" + PageMark(app.BlockCount) + text;
        block.page = 0;
        block.problem = app.BlockCount;
    }
    PaginateDocument(app, 0);
}
