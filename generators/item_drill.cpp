#include "generators/item_drill.h"

#include <algorithm>
#include <cstdlib>

#include "mathservices/arithmetic.h"
#include "typesetter/width_model.h"

namespace {
const std::string kLetters = "abcdefghijklmnopqrstuvwxyz";
const ColumnMarks kStatementHalves = {"&SP=5:", "&SP=50:"};
const ColumnMarks kSolutionHalves = {"&SP=10:", "&SP=50:"};

const std::string& MarkOf(const ColumnMarks& marks, int i) {
    return marks[static_cast<std::size_t>((i - 1) % static_cast<int>(marks.size()))];
}

bool EndsRow(const ColumnMarks& marks, int i, int n) { return i % static_cast<int>(marks.size()) == 0 || i == n; }

std::string SolutionItem(const ColumnMarks& marks, int i, int n, const std::string& text, const std::string& rowEnd) {
    std::string item = MarkOf(marks, i) + "&-I&+B" + ItemLetter(i) + ")&-B " + text;
    if (EndsRow(marks, i, n)) item += rowEnd;
    return item;
}
} // namespace

double ColumnPercent(const std::string& mark) {
    const std::size_t eq = mark.find('=');
    if (eq == std::string::npos) return 0;
    return std::strtod(mark.c_str() + eq + 1, nullptr);
}

bool ItemsFitColumns(const std::vector<std::string>& items, const ColumnMarks& marks) {
    if (marks.empty()) return false;
    TypesetterState model;
    const int columns = static_cast<int>(marks.size());
    for (std::size_t k = 0; k < items.size(); ++k) {
        const int column = static_cast<int>(k) % columns;
        const double start = ColumnPercent(marks[column]);
        const double end = column + 1 < columns ? ColumnPercent(marks[column + 1]) : 100.0;
        const double room = (end - start) / 100 * kItemTextWidth - (column + 1 < columns ? kItemGap : 0);
        if (ModelMarkupWidth(model, items[k]) > room) return false;
    }
    return true;
}

std::string ItemRows(const std::vector<std::string>& items, const ColumnMarks& marks, const std::string& rowEnd) {
    std::string rows;
    const int n = static_cast<int>(items.size());
    for (int i = 1; i <= n; ++i) {
        rows += MarkOf(marks, i) + items[i - 1];
        if (EndsRow(marks, i, n)) rows += rowEnd;
    }
    return rows;
}

const ColumnMarks& FitColumns(const std::vector<std::string>& items, const ColumnMarks& preferred,
                              const std::vector<const ColumnMarks*>& narrower) {
    if (ItemsFitColumns(items, preferred)) return preferred;
    const ColumnMarks* last = &preferred;
    for (const ColumnMarks* set : narrower) {
        if (set->size() >= preferred.size()) continue;
        last = set;
        if (ItemsFitColumns(items, *set)) return *set;
    }
    return *last;
}

std::string ItemLetter(int i) { return kLetters.substr(static_cast<std::size_t>(i - 1), 1); }

double NextAddOrSubtract(GeneratorWorkspace& ws, double operation) {
    operation += 1;
    if (operation > 2) operation = 1;
    const bool toSubtraction = Coin(ws, 0.9f);
    if (operation == 1 && toSubtraction) operation = 2;
    const bool toAddition = Coin(ws, 0.9f);
    if (operation == 2 && toAddition) operation = 1;
    return operation;
}

int DrillItemCount(const GeneratorWorkspace& ws, int maxAmount) {
    const int limit = std::min(maxAmount, 26);
    return std::clamp(static_cast<int>(ws.ItemCount), 1, limit);
}

ItemDrill::ItemDrill(GeneratorWorkspace& ws, ColumnMarks statementColumns, ColumnMarks solutionColumns,
                     int maxAmount, ItemLook look)
    : ws_(ws), statementColumns_(std::move(statementColumns)), solutionColumns_(std::move(solutionColumns)),
      count_(DrillItemCount(ws, maxAmount)), look_(std::move(look)) {}

bool ItemDrill::IsRepeat(const std::string& statementText) const {
    return std::find(items_.begin(), items_.end(), statementText) != items_.end();
}

void ItemDrill::AddItem(const std::string& statementText, const std::string& solutionText) {
    items_.push_back(statementText);
    solutions_.push_back(solutionText);
    const int i = static_cast<int>(items_.size());
    if (i == 1) solutionStart_ = ws_.Solution.size();
    const std::string item = SolutionItem(solutionColumns_, i, count_, solutionText, look_.rowEnd);
    ws_.Solution += item;
    solutionWritten_ += item;
}

// The solution items were written as they came, in the preferred columns; when one of them
// is too wide for its column they are written again with fewer columns. Wide items in
// narrow columns run into the next item.
void ItemDrill::RefitSolution() {
    if (solutions_.empty()) return;
    std::vector<std::string> measured;
    for (std::size_t k = 0; k < solutions_.size(); ++k)
        measured.push_back("&-I&+B" + ItemLetter(static_cast<int>(k) + 1) + ")&-B " + solutions_[k]);
    const ColumnMarks& fitted = FitColumns(measured, solutionColumns_, kSolutionColumnSets);
    if (&fitted == &solutionColumns_) return;
    // Only when the items still stand where they were written.
    if (solutionStart_ > ws_.Solution.size() ||
        ws_.Solution.compare(solutionStart_, solutionWritten_.size(), solutionWritten_) != 0)
        return;
    std::string rewritten;
    const int n = static_cast<int>(solutions_.size());
    for (int i = 1; i <= n; ++i) rewritten += SolutionItem(fitted, i, count_, solutions_[i - 1], look_.rowEnd);
    ws_.Solution.replace(solutionStart_, solutionWritten_.size(), rewritten);
}

void ItemDrill::WriteStatement(const std::vector<std::string>& headLines) {
    const double form = RandomInRange(ws_, 1, static_cast<double>(headLines.size()), 1, 1);
    ws_.Statement += headLines[static_cast<std::size_t>(form) - 1];
    const int n = static_cast<int>(items_.size());
    std::vector<std::string> measured;
    for (int i = 1; i <= n; ++i) measured.push_back("&+B" + ItemLetter(i) + look_.afterLetter + items_[i - 1] + look_.afterItem);
    // Wide items in narrow columns run into the next item: fewer columns then.
    const ColumnMarks& columns = FitColumns(measured, statementColumns_, kStatementColumnSets);
    for (int i = 1; i <= n; ++i) {
        ws_.Statement += MarkOf(columns, i) + measured[i - 1];
        if (EndsRow(columns, i, n)) ws_.Statement += look_.rowEnd;
    }
    ws_.Statement += look_.statementEnd;
    RefitSolution();
}

void WriteTwoColumnItems(GeneratorWorkspace& ws, const std::vector<std::string>& statementItems,
                         const std::vector<std::string>& solutionItems) {
    ws.Statement += ItemRows(statementItems, FitColumns(statementItems, kStatementHalves, {&kStatementColumns1}), "&LF");
    ws.Solution += ItemRows(solutionItems, FitColumns(solutionItems, kSolutionHalves, {&kSolutionColumns1}), "&LF");
}
