#include "generators/nrp/power_drill.h"

#include <algorithm>

#include "mathservices/arithmetic.h"

namespace {
const std::string& MarkOf(const ColumnMarks& marks, int i) {
    return marks[static_cast<std::size_t>((i - 1) % static_cast<int>(marks.size()))];
}

bool EndsRow(const ColumnMarks& marks, int i, int n) { return i % static_cast<int>(marks.size()) == 0 || i == n; }
} // namespace

PowerDrill::PowerDrill(GeneratorWorkspace& ws, ColumnMarks statementColumns, ColumnMarks solutionColumns,
                       int maxAmount)
    : ws_(ws), statementColumns_(std::move(statementColumns)), solutionColumns_(std::move(solutionColumns)),
      count_(DrillItemCount(ws, maxAmount)) {}

bool PowerDrill::IsRepeat(const std::string& statementText) const {
    return std::find(items_.begin(), items_.end(), statementText) != items_.end();
}

void PowerDrill::AddItem(const std::string& statementText, const std::string& solutionText) {
    items_.push_back(statementText);
    const int i = static_cast<int>(items_.size());
    ws_.Solution += MarkOf(solutionColumns_, i) + "&-I&+B" + ItemLetter(i) + ")&-B " + solutionText;
    if (EndsRow(solutionColumns_, i, count_)) ws_.Solution += "&LF&LF";
}

void PowerDrill::WriteStatement(const std::vector<std::string>& headLines) {
    const double form = RandomInRange(ws_, 1, static_cast<double>(headLines.size()), 1, 1);
    ws_.Statement += headLines[static_cast<std::size_t>(form) - 1];
    const int n = static_cast<int>(items_.size());
    for (int i = 1; i <= n; ++i) {
        ws_.Statement += MarkOf(statementColumns_, i) + "&+B" + ItemLetter(i) + ")&-B " + items_[i - 1];
        if (EndsRow(statementColumns_, i, n)) ws_.Statement += "&LF&LF";
    }
}
