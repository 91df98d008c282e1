#include <algorithm>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <regex>

#include "generators/hub.h"
#include "generators/shared/trig_equation_templates.h"
#include "mathservices/number_markup.h"
#include "support/generator_sweep.h"

// The equation lists of both modules draw rows of one table; each item must show a row's
// equation and its own answers, and no row twice in one problem.
namespace {
// The expanded rows of the table, for finding an item's row.
struct ExpandedRows {
    std::map<std::string, int> scriptBlank, blank;
    ExpandedRows() {
        for (int k = 0; k < kTrigEquationCount; ++k) {
            const char* equation = kTrigEquationTemplates[static_cast<std::size_t>(k)].equation;
            scriptBlank[TidyEquationBlanks(ExpandTrigEquation(equation, kTrigSquareWithScriptBlank))] = k;
            blank[TidyEquationBlanks(ExpandTrigEquation(equation, kTrigSquareWithBlank))] = k;
        }
    }
};
const ExpandedRows kRows;

int RowOf(const std::string& item, const std::string& squareWith) {
    const auto& rows = squareWith == kTrigSquareWithBlank ? kRows.blank : kRows.scriptBlank;
    const auto it = rows.find(item);
    return it == rows.end() ? -1 : it->second;
}

void CheckList(const GeneratedProblem& p, const std::string& lead, const std::string& squareWith) {
    const int n = std::clamp(p.fields.ItemCount, 1, 26);
    const auto items = LetteredItems(p.statement, ")&-B" + lead);
    const auto answers = LetteredItems(p.solution, ")&-B" + lead);
    ASSERT_EQ(static_cast<int>(items.size()), n) << p.code;
    ASSERT_EQ(static_cast<int>(answers.size()), n) << p.code;
    std::set<int> rows;
    for (int i = 0; i < n; ++i) {
        const int row = RowOf(items[static_cast<std::size_t>(i)], squareWith);
        ASSERT_GE(row, 0) << p.code << " " << items[static_cast<std::size_t>(i)];
        EXPECT_TRUE(rows.insert(row).second) << p.code << " repeats row " << row + 1;
        const std::string expected =
            ReplaceAll(kTrigEquationTemplates[static_cast<std::size_t>(row)].solutions, "\u00BA", "\u00B0");
        EXPECT_EQ(answers[static_cast<std::size_t>(i)], expected) << p.code;
        // Every item stands at a column mark: two to a line, or one where an item is too
        // wide for half of it.
        const std::string letter(1, static_cast<char>('a' + i));
        const std::regex atColumn("&SP=(5|10|50):&\\+B" + letter + "\\)&-B");
        EXPECT_TRUE(std::regex_search(p.statement, atColumn)) << p.statement;
        EXPECT_TRUE(std::regex_search(p.solution, atColumn)) << p.solution;
    }
    EXPECT_EQ(p.solution.find("\u00BA"), std::string::npos);
}
} // namespace

TEST(TrigEquations, ListOfTheTrigonometryModule) {
    SweepRoutine("KVOL_MATH_TRI", 4, 2000, [](const GeneratedProblem& p) {
        CheckList(p, " ", kTrigSquareWithScriptBlank);
        EXPECT_EQ(p.statement.rfind("&-I&-BSolve the following equations. Give the &+Ix&-I values within the "
                                    "interval& [0\u00B0,& 360\u00B0).&LF",
                                    0),
                  0u);
        EXPECT_EQ(p.statement.substr(p.statement.size() - 3), "&LF");
        EXPECT_NE(p.statement.substr(p.statement.size() - 6), "&LF&LF");
    });
}

TEST(TrigEquations, ListOfTheEquationsModule) {
    SweepRoutine("KVOL_MATH_ECU", 14, 2000, [](const GeneratedProblem& p) {
        CheckList(p, "  ", kTrigSquareWithBlank);
        EXPECT_EQ(p.statement.rfind("&-I&-BSolve the following equations. Give the &+Ix&-I values within the "
                                    "interval& [0\u00B0,& 360\u00B0).&LF",
                                    0),
                  0u);
        EXPECT_EQ(p.statement.find("^2^"), std::string::npos);
    });
}

TEST(TrigEquations, TwentySixDistinctRowsAndTheClip) {
    GeneratorHub hub;
    for (int count : {26, 27, 30, 99}) {
        const GeneratedProblem a = GenerateProblem(hub, "KVOL_MATH_ECU", {14, 5, 1234, count, 1, 1});
        const GeneratedProblem b = GenerateProblem(hub, "KVOL_MATH_TRI", {4, 5, 1234, count, 1, 1});
        EXPECT_EQ(LetteredItems(a.statement, ")&-B  ").size(), 26u);
        EXPECT_EQ(LetteredItems(b.statement).size(), 26u);
    }
}

TEST(TrigEquations, SameCodeSameTemplates) {
    GeneratorHub hub;
    const GeneratedProblem first = GenerateProblem(hub, "KVOL_MATH_TRI", {4, 10, 555, 8, 3, 2});
    GenerateProblem(hub, "KVOL_MATH_ECU", {14, 10, 556, 8, 3, 3});
    const GeneratedProblem again = GenerateProblem(hub, "KVOL_MATH_TRI", {4, 10, 555, 8, 3, 2});
    EXPECT_EQ(first.statement, again.statement);
    EXPECT_EQ(first.solution, again.solution);
}

TEST(TrigEquations, TheTwoListsDifferOnlyInTheSquare) {
    // The same seed draws the same rows in both modules.
    GeneratorHub hub;
    const GeneratedProblem e = GenerateProblem(hub, "KVOL_MATH_ECU", {14, 0, 2024, 12, 1, 1});
    const GeneratedProblem t = GenerateProblem(hub, "KVOL_MATH_TRI", {4, 0, 2024, 12, 1, 1});
    const auto ei = LetteredItems(e.statement, ")&-B  ");
    const auto ti = LetteredItems(t.statement);
    ASSERT_EQ(ei.size(), ti.size());
    for (std::size_t i = 0; i < ei.size(); ++i) {
        EXPECT_EQ(RowOf(ei[i], kTrigSquareWithBlank), RowOf(ti[i], kTrigSquareWithScriptBlank));
        EXPECT_EQ(ReplaceAll(ti[i], "^2^ ", "^2 "), ei[i]);
    }
}
