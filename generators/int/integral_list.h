#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "generators/item_drill.h"

// The lettered lists of indefinite integrals: the items are kept, then laid out in rows
// of three in the statement and of two in the solution.

inline const ColumnMarks kIntegralStatementColumns = {"&SP=10:", "&SP=41:", "&SP=72:"};
inline const ColumnMarks kRationalStatementColumns = {"&SP=5:", "&SP=35:", "&SP=65:"};
inline const ColumnMarks kIntegralSolutionColumns = {"&SP=10:", "&SP=55:"};

class IntegralList {
public:
    // The item count is ItemCount clipped into minimum to 26.
    IntegralList(GeneratorWorkspace& ws, int minimum, ColumnMarks statementColumns);

    int Count() const { return count_; }
    bool IsRepeat(const std::string& statementText) const;
    void AddItem(const std::string& statementText, const std::string& solutionText);
    // Writes the heading and both lists into the workspace.
    void Write();

private:
    GeneratorWorkspace& ws_;
    ColumnMarks statementColumns_;
    int count_;
    std::vector<std::string> statements_;
    std::vector<std::string> solutions_;
};
