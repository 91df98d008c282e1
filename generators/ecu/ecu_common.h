#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "generators/item_drill.h"

// Small pieces that the equation drills share.

// The unknown as the statement shows it: the letter in italics.
std::string Unknown(const std::string& letter);
// "x", or with a coin one of the letters k, m, t, y, z.
std::string DrawUnknownLetter(GeneratorWorkspace& ws);
// p·x + q the way a textbook writes it; letter "x" when empty.
std::string LinearSide(double p, double q, const std::string& letter = "x");
// The relation of an inequation after both sides were divided by a negative number.
std::string FlippedRelation(const std::string& relation);
// One of "<", ">", "&<=", "&>=" by a range draw.
std::string DrawRelation(GeneratorWorkspace& ws);
// "& -& " or "& +& " and the magnitude text, for a term that follows another.
std::string SignedTail(double value, const std::string& magnitudeText);

inline const std::string kEquals = "& =& ";

// The lettered items of an equation drill: make(ws) draws one item (its text and its
// answer), and draws again while the text repeats an earlier item.
template <typename MakeItem>
void EquationDrill(GeneratorWorkspace& ws, MakeItem make, int maxAmount, const ColumnMarks& statementColumns,
                   const ColumnMarks& solutionColumns, const std::vector<std::string>& headLines) {
    ItemDrill drill(ws, statementColumns, solutionColumns, maxAmount);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            const auto item = make(ws);
            return ItemTexts{item.text, item.answer};
        });
    }
    drill.WriteStatement(headLines);
}
