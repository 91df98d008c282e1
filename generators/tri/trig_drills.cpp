#include <algorithm>
#include <vector>

#include "generators/item_drill.h"
#include "generators/shared/trig_equation_templates.h"
#include "generators/tri/tri_routines.h"
#include "generators/tri/trig_identity_templates.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/utf8_text.h"

namespace {
// n distinct template numbers in 1..size; a number already taken is drawn again.
int DrawNewTemplate(GeneratorWorkspace& ws, int size, std::vector<int>& used) {
    RetryBound bound;
    while (true) {
        const int k = static_cast<int>(RandomInRange(ws, 1, size, 1, 1));
        if (std::find(used.begin(), used.end(), k) == used.end()) {
            used.push_back(k);
            return k;
        }
        bound.Next();
    }
}
} // namespace

std::string TrigIdentityItem(GeneratorWorkspace& ws, int templateNumber) {
    std::string letter = "x";
    if (Coin(ws, 0.5f)) letter = "t";
    if (Coin(ws, 0.96f)) letter = "&theta";
    if (Coin(ws, 0.7f)) letter = "&alfa";
    std::string angleA = "a", angleB = "b";
    if (Coin(ws, 0.8f)) {
        angleA = "&alfa";
        angleB = "&beta";
    }
    std::string text = ExpandTrigIdentity(kTrigIdentityTemplates[static_cast<std::size_t>(templateNumber - 1)],
                                          letter, angleA, angleB);
    if (Coin(ws, 0.7f)) {
        const auto eq = text.find('=');
        text = TrimBlanks(text.substr(eq + 1)) + " = " + TrimBlanks(text.substr(0, eq));
    }
    return text;
}

const ColumnMarks kIdentityColumns = {"&SP=1:", "&SP=48:"};
const ColumnMarks kIdentityColumn = {"&SP=1:"};

// Routine 3: identities to prove, two to a line; no proof is given.
void TrigonometricIdentities(GeneratorWorkspace& ws) {
    const int n = DrillItemCount(ws);
    ws.Statement = Coin(ws, 0.5f) ? "&-I&-BProve the following trigonometric identities.&LF"
                                  : "&-I&-BGive a proof of the following trigonometric identities.&LF";
    std::vector<int> used;
    std::vector<std::string> items;
    for (int i = 1; i <= n; ++i) {
        const int k = DrawNewTemplate(ws, kTrigIdentityCount, used);
        items.push_back("&+B" + ItemLetter(i) + ")&-B " + TrigIdentityItem(ws, k));
    }
    // An identity too wide for half the line gets a line of its own.
    ws.Statement += ItemRows(items, FitColumns(items, kIdentityColumns, {&kIdentityColumn}), "&LF&LF");
    // The line ends like every other solution's, so that a blank line parts this problem
    // from the next one.
    ws.Solution = "&SP=10: -&LF";
}

// Routine 4: equations whose solutions in [0°, 360°) come from the shared table.
void TrigonometricEquationsList(GeneratorWorkspace& ws) {
    const int n = DrillItemCount(ws);
    ws.Statement = "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0\u00B0,& "
                   "360\u00B0).&LF";
    std::vector<int> used;
    std::vector<std::string> equations, answers;
    for (int i = 1; i <= n; ++i) {
        const int k = DrawNewTemplate(ws, kTrigEquationCount, used);
        const TrigEquationTemplate& row = kTrigEquationTemplates[static_cast<std::size_t>(k - 1)];
        const std::string lead = "&+B" + ItemLetter(i) + ")&-B ";
        equations.push_back(lead + TidyEquationBlanks(ExpandTrigEquation(row.equation, kTrigSquareWithScriptBlank)));
        std::string answer = ExpandTrigEquation(row.solutions, kTrigSquareWithScriptBlank);
        if (!answer.empty() && answer[0] >= 'a' && answer[0] <= 'z') answer[0] = static_cast<char>(answer[0] - 32);
        answers.push_back(lead + answer);
    }
    WriteTwoColumnItems(ws, equations, answers);
}
