#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "mathservices/faults.h"

// The lettered items of a drill (kind "2"): the item count, the column marks, the
// solution written item by item, the head line drawn after the loop, and the statement.

// The left positions of the columns of a row, as "&SP=..:" marks.
using ColumnMarks = std::vector<std::string>;

inline const ColumnMarks kStatementColumns4 = {"&SP=5:", "&SP=29:", "&SP=53:", "&SP=76:"};
inline const ColumnMarks kStatementColumns3 = {"&SP=5:", "&SP=29:", "&SP=53:"};
inline const ColumnMarks kStatementColumns2 = {"&SP=5:", "&SP=43:"};
inline const ColumnMarks kStatementColumns1 = {"&SP=5:"};
inline const ColumnMarks kSolutionColumns4 = {"&SP=10:", "&SP=30:", "&SP=50:", "&SP=70:"};
inline const ColumnMarks kSolutionColumns3 = {"&SP=10:", "&SP=40:", "&SP=70:"};
inline const ColumnMarks kSolutionColumns2 = {"&SP=10:", "&SP=50:"};
inline const ColumnMarks kSolutionColumns1 = {"&SP=10:"};

// The width of a page's text, twips: A4 paper less two margins of 16 mm (the screen sheet's
// is a little wider).
inline constexpr double kItemTextWidth = (210.0 - 2 * 16.0) / 25.4 * 1440.0;
// The least room between the end of an item and the start of the next column, twips.
inline constexpr double kItemGap = 120;

// The left position of a column mark "&SP=n:", as a percentage of the text width.
double ColumnPercent(const std::string& mark);
// True when each item (its whole markup, letter included), measured on the width model,
// ends at least kItemGap before the next column of its row, or before the right margin in
// the last column.
bool ItemsFitColumns(const std::vector<std::string>& items, const ColumnMarks& marks);
// The column set for these items: the preferred one when they fit it, otherwise the first
// of the narrower sets with fewer columns in which they fit, otherwise the last of those
// (one column: the line may then break, but it overprints nothing).
const ColumnMarks& FitColumns(const std::vector<std::string>& items, const ColumnMarks& preferred,
                              const std::vector<const ColumnMarks*>& narrower);
// The items (their whole markup after the column mark) in rows of the column set: each
// item behind its mark, rowEnd after the last item of a row and after the last of all.
std::string ItemRows(const std::vector<std::string>& items, const ColumnMarks& marks, const std::string& rowEnd);
// Appends items in two columns, the statement's at 5 % and 50 %, the solution's at 10 %
// and 50 %, each row ended by "&LF"; items too wide for half the line get one column.
void WriteTwoColumnItems(GeneratorWorkspace& ws, const std::vector<std::string>& statementItems,
                         const std::vector<std::string>& solutionItems);
// The standard statement and solution sets with four to one columns.
inline const std::vector<const ColumnMarks*> kStatementColumnSets = {&kStatementColumns4, &kStatementColumns3,
                                                                     &kStatementColumns2, &kStatementColumns1};
inline const std::vector<const ColumnMarks*> kSolutionColumnSets = {&kSolutionColumns4, &kSolutionColumns3,
                                                                    &kSolutionColumns2, &kSolutionColumns1};

// How the items are written: what follows the bold letter of a statement item, what
// closes the item, what ends a row (of statement and solution alike), and what follows
// the last row of the statement.
struct ItemLook {
    std::string afterLetter;
    std::string afterItem;
    std::string rowEnd;
    std::string statementEnd;
};
// Statement items in italics, a blank line after the statement.
inline const ItemLook kItalicItems = {")&-B&+I ", "&-I", "&LF", "&LF"};
// Upright statement items, for drills whose items carry their own italics.
inline const ItemLook kUprightItems = {")&-B ", "", "&LF", "&LF"};

// The statement and the solution text of one item.
struct ItemTexts {
    std::string statement;
    std::string solution;
};

// ItemCount clipped into 1 to maxAmount (26 letters at most).
int DrillItemCount(const GeneratorWorkspace& ws, int maxAmount = 26);

class ItemDrill {
public:
    ItemDrill(GeneratorWorkspace& ws, ColumnMarks statementColumns, ColumnMarks solutionColumns,
              int maxAmount = 26, ItemLook look = kItalicItems);

    int Count() const { return count_; }
    // True when an earlier item of this problem has this very statement text.
    bool IsRepeat(const std::string& statementText) const;
    // Remembers the next item and appends its solution, with its column mark and letter.
    void AddItem(const std::string& statementText, const std::string& solutionText);
    // Draws the head line among the wordings (one range draw), then writes the items of
    // the statement and what ends it. Items too wide for their columns get a set with fewer
    // columns, in the statement and in the solution alike (each chosen on its own).
    void WriteStatement(const std::vector<std::string>& headLines);

private:
    GeneratorWorkspace& ws_;
    ColumnMarks statementColumns_;
    ColumnMarks solutionColumns_;
    int count_;
    ItemLook look_;
    std::vector<std::string> items_;
    // The solution items as written with the preferred columns, and where they stand in
    // the solution.
    std::vector<std::string> solutions_;
    std::size_t solutionStart_ = 0;
    std::string solutionWritten_;
    void RefitSolution();
};

// Calls draw() until it gives an item whose statement is neither empty (a refused draw)
// nor a repeat of an earlier item of the list, and adds that item to the list (an
// ItemDrill, or any list with IsRepeat and AddItem).
template <typename List, typename Draw>
void AddNewItem(List& list, Draw draw) {
    RetryBound bound;
    while (true) {
        const auto item = draw();
        if (!item.statement.empty() && !list.IsRepeat(item.statement)) {
            list.AddItem(item.statement, item.solution);
            return;
        }
        bound.Next();
    }
}

// The operation of the next item of an addition and subtraction drill (1 addition, 2
// subtraction): the operations alternate, and two coins, both always drawn, give a small
// chance of a repeat.
double NextAddOrSubtract(GeneratorWorkspace& ws, double operation);

// The letter of item i, counted from 1.
std::string ItemLetter(int i);
