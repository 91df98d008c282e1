#include <algorithm>
#include <string>
#include <vector>

#include "generators/item_drill.h"
#include "generators/nrp/algebra_items.h"
#include "generators/nrp/nrp_routines.h"
#include "generators/nrp/polynomial_tools.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
const ColumnMarks kAngleStatementColumns = {"&SP=3:", "&SP=35:", "&SP=67:"};
const ColumnMarks kAngleSolutionColumns = {"&SP=10:", "&SP=35:", "&SP=67:"};
const std::vector<std::string> kAngleHeads = {
    "Calculate these expressions.&LF", "Calculate these expressions involving angles.&LF",
    "Calculate the following expressions.&LF", "Calculate the following expressions involving angles.&LF"};

constexpr double kRightAngle = 324000;     // 90° in seconds
constexpr double kStraightAngle = 648000;  // 180° in seconds

// The shared body of the four angle drills: one operation for all items.
void AngleDrill(GeneratorWorkspace& ws, int operation) {
    ItemDrill drill(ws, kAngleStatementColumns, kAngleSolutionColumns, 27, kUprightItems);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            const AngleItem item = MakeAngleItem(ws, operation);
            return ItemTexts{AngleItemText(item, operation), SecondsToDegreeMarkup(item.result)};
        });
    }
    drill.WriteStatement(kAngleHeads);
}
} // namespace

AngleItem MakeAngleItem(GeneratorWorkspace& ws, int operation) {
    AngleItem item;
    item.first = RandomInRange(ws, 2000, 300000, 1, 1);
    item.second = RandomInRange(ws, 2000, 300000, 1, 1);
    if (operation >= 3) item.factor = RandomInRange(ws, 2, 5, 1, 1);
    switch (operation) {
    case 1: item.result = item.first + item.second; break;
    case 2:
        // The larger first: a difference of angles is never negative.
        if (item.second > item.first) std::swap(item.first, item.second);
        item.result = item.first - item.second;
        break;
    case 3: item.result = item.first * item.factor; break;
    default:
        // A multiple of the factor, so that the quotient is whole seconds.
        item.first = Int(item.first / item.factor) * item.factor;
        item.result = item.first / item.factor;
        break;
    }
    return item;
}

std::string AngleItemText(const AngleItem& item, int operation) {
    const std::string a = SecondsToDegreeMarkup(item.first);
    switch (operation) {
    case 1: return a + "  +  " + SecondsToDegreeMarkup(item.second);
    case 2: return a + "  -  (" + SecondsToDegreeMarkup(item.second) + ")";
    case 3: return PlainNumberText(item.factor) + "  ×  (" + a + ")";
    default: return "(" + a + ")  :  " + PlainNumberText(item.factor);
    }
}

// Routine 27.
void AddingAngleMeasures(GeneratorWorkspace& ws) {
    AngleDrill(ws, 1);
}

// Routine 28.
void SubtractingAngleMeasures(GeneratorWorkspace& ws) {
    AngleDrill(ws, 2);
}

// Routine 29.
void MultiplyingAngleMeasures(GeneratorWorkspace& ws) {
    AngleDrill(ws, 3);
}

// Routine 30.
void DividingAngleMeasures(GeneratorWorkspace& ws) {
    AngleDrill(ws, 4);
}

// Routine 31: the complement (to 90°) and the supplement (to 180°) of an angle.
void ComplementaryAndSupplementaryAngles(GeneratorWorkspace& ws) {
    const ColumnMarks statementColumns = {"&SP=5:", "&SP=29:", "&SP=53:", "&SP=76:"};
    const ColumnMarks solutionColumns = {"&SP=10:", "&SP=39:", "&SP=68:"};
    ItemDrill drill(ws, statementColumns, solutionColumns, 27, kUprightItems);
    for (int i = 1; i <= drill.Count(); ++i) {
        AddNewItem(drill, [&] {
            const double angle = RandomInRange(ws, 2000, 300000, 1, 1);
            return ItemTexts{SecondsToDegreeMarkup(angle), SecondsToDegreeMarkup(kRightAngle - angle) + ",  " +
                                                               SecondsToDegreeMarkup(kStraightAngle - angle)};
        });
    }
    drill.WriteStatement({"Calculate the complementary and supplementary angle of the following angles:&LF"});
}

// The figures of routine 32, by Seed modulo 5:
//   0  three angles A, B, C on a straight line: A = 180° - B - C
//   1  a right angle cut into A, B, C: A = 90° - B - C
//   2  a right triangle with acute angles A, B: A = 90° - B
//   3  a triangle with angles A, B, C: A = 180° - B - C
//   4  a parallelogram with adjacent angles A, B: A = 180° - B
ShapeAngles MakeShapeAngles(GeneratorWorkspace& ws, int shape) {
    ShapeAngles s;
    s.shape = shape;
    switch (shape) {
    case 0:
        s.total = kStraightAngle;
        s.given = {RandomInRange(ws, 6000, 200000, 1, 1), RandomInRange(ws, 32000, 400000, 1, 1)};
        break;
    case 1: {
        s.total = kRightAngle;
        // The two given parts must leave a third one of at least 6000 seconds.
        RetryBound bound;
        while (true) {
            s.given = {RandomInRange(ws, 6000, 150000, 1, 1), RandomInRange(ws, 60000, 190000, 1, 1)};
            if (s.given[0] + s.given[1] <= kRightAngle - 6000) break;
            bound.Next();
        }
        break;
    }
    case 2:
        s.total = kRightAngle;
        s.given = {RandomInRange(ws, 50000, 210000, 1, 1)};
        break;
    case 3:
        s.total = kStraightAngle;
        s.given = {RandomInRange(ws, 100000, 300000, 1, 1), RandomInRange(ws, 50000, 210000, 1, 1)};
        break;
    default:
        s.total = kStraightAngle;
        s.given = {RandomInRange(ws, 290000, 430000, 1, 1)};
        break;
    }
    s.answer = s.total;
    for (double g : s.given) s.answer -= g;
    return s;
}

// Routine 32: the missing angle of a figure, from the sum that its angles make.
void AnglesInTrianglesAndShapes(GeneratorWorkspace& ws) {
    struct Figure {
        const char* lead;
        const char* picture;
    };
    static const Figure kFigures[5] = {
        {"Calculate the measure of &+IA&-I angle if &+IB&-I angle is ",
         "&SP=60:#IMG('m_ang_abc180.gif'DXmm=46:DYmm=-23.46:#IMG)&LF"},
        {"Find the value of &+IA&-I angle if &+IB&-I is ",
         "&SP=60:#IMG('m_ang_abc90.gif'DXmm=23:DYmm=-21.275:#IMG)&LF"},
        {"Calculate the value of  &+IA&-I angle of the right triangle if &+IB&-I is ",
         "&SP=60:#IMG('m_trian_recsl.gif'DXmm=46:DYmm=-23.46:#IMG)&LF"},
        {"Find the value of  &+IA&-I angle of the triangle if &+IB&-I angle is ",
         "&SP=60:#IMG('m_trian_sl.gif'DXmm=46:DYmm=-23.46:#IMG)&LF"},
        {"Calculate the measure of  &+IA&-I angle of the parallelogram if &+IB&-I angle is ",
         "&SP=60:#IMG('m_pllg_sl.gif'DXmm=46:DYmm=-23.46:#IMG)&LF"},
    };
    const int shape = ws.Seed % 5;
    const ShapeAngles s = MakeShapeAngles(ws, shape);
    const Figure& f = kFigures[shape];
    ws.Statement = std::string(f.lead) + SecondsToDegreeMarkup(s.given[0]);
    if (s.given.size() > 1) ws.Statement += " and &+IC&-I is " + SecondsToDegreeMarkup(s.given[1]);
    ws.Statement += ".&LF" + std::string(f.picture);
    ws.Solution = "&SP=10:&-I&-B  &+IA&-I = " + SecondsToDegreeMarkup(s.answer) + "&LF";
}
