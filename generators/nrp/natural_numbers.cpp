#include "generators/item_drill.h"
#include "generators/nrp/nrp_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

// Routine 12: rows of additions and subtractions of natural numbers of three to six
// digits; the operations alternate, with a small chance of a repeat.
void AdditionAndSubtractionOfNaturalNumbers(GeneratorWorkspace& ws) {
    if (ws.DescribeMode) {
        Describe(ws, {"010", "Natural numbers", "001", "2", "026", "Addition and subtraction of natural numbers",
                      "Exercises to practice addition and subtraction of natural numbers. (2 types)"});
        return;
    }
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns4);
    double operation = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        operation += 1;
        if (operation > 2) operation = 1;
        // Both coins are always drawn, whatever the operation.
        const bool toSubtraction = Coin(ws, 0.9f);
        if (operation == 1 && toSubtraction) operation = 2;
        const bool toAddition = Coin(ws, 0.9f);
        if (operation == 2 && toAddition) operation = 1;
        std::string text;
        double result = 0;
        // An item equal to an earlier one is drawn anew (the numbers too: building the
        // same numbers again could only give the same text).
        RetryBound bound;
        while (true) {
            double a = RandomInRange(ws, 100000, 999999, 1, 1);
            double b = RandomInRange(ws, 100000, 999999, 1, 1);
            for (int coin = 0; coin < 3; ++coin) {
                if (Coin(ws, 0.6f)) b = Int(b / 10);
            }
            for (int coin = 0; coin < 3; ++coin) {
                if (Coin(ws, 0.6f)) a = Int(a / 10);
            }
            if (operation == 2) b = a + b;
            const std::string aText = GroupDigits(PlainNumberText(a));
            const std::string bText = GroupDigits(PlainNumberText(b));
            text = bText + (operation == 1 ? " + " : " - ") + aText;
            result = operation == 1 ? a + b : b - a;
            if (!drill.IsRepeat(text)) break;
            bound.Next();
        }
        drill.AddItem(text, GroupDigits(PlainNumberText(result)));
    }
    drill.WriteStatement({"Calculate the following expressions involving natural numbers.&LF",
                          "Calculate the following expressions.&LF",
                          "Calculate these expressions involving natural numbers.&LF",
                          "Calculate these expressions.&LF"});
}
