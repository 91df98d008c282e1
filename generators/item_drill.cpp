#include "generators/item_drill.h"

#include <algorithm>

#include "mathservices/arithmetic.h"

namespace {
const std::string kLetters = "abcdefghijklmnopqrstuvwxyz";

const std::string& MarkOf(const ColumnMarks& marks, int i) {
    return marks[static_cast<std::size_t>((i - 1) % static_cast<int>(marks.size()))];
}

bool EndsRow(const ColumnMarks& marks, int i, int n) { return i % static_cast<int>(marks.size()) == 0 || i == n; }
} // namespace

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
    const int i = static_cast<int>(items_.size());
    ws_.Solution += MarkOf(solutionColumns_, i) + "&-I&+B" + ItemLetter(i) + ")&-B " + solutionText;
    if (EndsRow(solutionColumns_, i, count_)) ws_.Solution += look_.rowEnd;
}

void ItemDrill::WriteStatement(const std::vector<std::string>& headLines) {
    const double form = RandomInRange(ws_, 1, static_cast<double>(headLines.size()), 1, 1);
    ws_.Statement += headLines[static_cast<std::size_t>(form) - 1];
    const int n = static_cast<int>(items_.size());
    for (int i = 1; i <= n; ++i) {
        ws_.Statement +=
            MarkOf(statementColumns_, i) + "&+B" + ItemLetter(i) + look_.afterLetter + items_[i - 1] + look_.afterItem;
        if (EndsRow(statementColumns_, i, n)) ws_.Statement += look_.rowEnd;
    }
    ws_.Statement += look_.statementEnd;
}
