#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "generators/item_drill.h"

// The lettered items of the powers and roots drills. They differ from the arithmetic
// drills in the look of a row: statement items are upright, and every row of statement
// and solution is followed by a blank line, the last one too, since the items are tall.

inline const ColumnMarks kPowerStatementColumns4 = {"&SP=5:", "&SP=29:", "&SP=53:", "&SP=76:"};
inline const ColumnMarks kPowerSolutionColumns4 = {"&SP=10:", "&SP=32:", "&SP=54:", "&SP=76:"};

class PowerDrill {
public:
    PowerDrill(GeneratorWorkspace& ws, ColumnMarks statementColumns, ColumnMarks solutionColumns,
               int maxAmount = 26);

    int Count() const { return count_; }
    bool IsRepeat(const std::string& statementText) const;
    // Remembers the next item and appends its solution with its column mark and letter.
    void AddItem(const std::string& statementText, const std::string& solutionText);
    // Picks the head line (one range draw when there are several wordings) and writes the
    // statement.
    void WriteStatement(const std::vector<std::string>& headLines);

private:
    GeneratorWorkspace& ws_;
    ColumnMarks statementColumns_;
    ColumnMarks solutionColumns_;
    int count_;
    std::vector<std::string> items_;
};
