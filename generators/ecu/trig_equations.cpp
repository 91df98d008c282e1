#include <algorithm>
#include <vector>

#include "generators/ecu/ecu_routines.h"
#include "generators/item_drill.h"
#include "generators/shared/trig_equation_templates.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

// Routine 14: equations drawn from the shared table of trigonometric equations, two to a
// row. This list writes the square of the unknown with a plain blank.
void TrigonometricEquations(GeneratorWorkspace& ws) {
    const int n = DrillItemCount(ws);
    // The interval's bounds carry the degree sign, as the answers do (not the ordinal sign).
    ws.Statement = "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& "
                   "[0\u00B0,& 360\u00B0).&LF";
    std::vector<int> used;
    std::vector<std::string> equations, answers;
    for (int i = 1; i <= n; ++i) {
        int k = 0;
        RetryBound bound;
        while (true) {
            k = static_cast<int>(RandomInRange(ws, 1, kTrigEquationCount, 1, 1));
            if (std::find(used.begin(), used.end(), k) == used.end()) break;
            bound.Next();
        }
        used.push_back(k);
        const TrigEquationTemplate& row = kTrigEquationTemplates[static_cast<std::size_t>(k - 1)];
        const std::string lead = "&+B" + ItemLetter(i) + ")&-B  ";
        equations.push_back(lead + TidyEquationBlanks(ExpandTrigEquation(row.equation, kTrigSquareWithBlank)));
        std::string answer = row.solutions;
        if (!answer.empty() && answer[0] >= 'a' && answer[0] <= 'z') answer[0] = static_cast<char>(answer[0] - 32);
        answers.push_back(ReplaceAll(ReplaceAll(lead + answer, "\u00BA", "\u00B0"), "@", "&+Ix&-I"));
    }
    WriteTwoColumnItems(ws, equations, answers);
    ws.Statement += "&LF";
}
