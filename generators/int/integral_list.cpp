#include "generators/int/integral_list.h"

#include <algorithm>
#include <cmath>

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

IntegralList::IntegralList(GeneratorWorkspace& ws, int minimum, ColumnMarks statementColumns)
    : ws_(ws), statementColumns_(std::move(statementColumns)) {
    count_ = std::clamp(static_cast<int>(ws.ItemCount), minimum, 26);
}

bool IntegralList::IsRepeat(const std::string& statementText) const {
    return std::find(statements_.begin(), statements_.end(), statementText) != statements_.end();
}

void IntegralList::AddItem(const std::string& statementText, const std::string& solutionText) {
    statements_.push_back(statementText);
    solutions_.push_back(solutionText);
}

void IntegralList::Write() {
    const int n = static_cast<int>(statements_.size());
    std::vector<std::string> statementItems, solutionItems;
    for (int i = 1; i <= n; ++i) {
        // Item letters are upright: an integrand or an antiderivative may leave italic on.
        statementItems.push_back("&-I&+B" + ItemLetter(i) + ")&-B " + statements_[i - 1]);
        solutionItems.push_back("&-I&+B" + ItemLetter(i) + ")&-B " + solutions_[i - 1]);
    }
    // Integrals too wide for their columns get fewer columns.
    const ColumnMarks& statementColumns = FitColumns(statementItems, statementColumns_, kStatementColumnSets);
    const ColumnMarks& solutionColumns = FitColumns(solutionItems, kIntegralSolutionColumns, kSolutionColumnSets);
    ws_.Statement = "&-ISolve the following integrals:&LF" + ItemRows(statementItems, statementColumns, "&LF&LF");
    ws_.Solution = ItemRows(solutionItems, solutionColumns, "&LF");
}
