#pragma once
#include "generators/item_drill.h"

// The lettered items of the powers and roots drills. They differ from the arithmetic
// drills in the look of a row: statement items are upright, and every row of statement
// and solution is followed by a blank line, the last one too, since the items are tall.

inline const ColumnMarks kPowerStatementColumns4 = {"&SP=5:", "&SP=29:", "&SP=53:", "&SP=76:"};
inline const ColumnMarks kPowerSolutionColumns4 = {"&SP=10:", "&SP=32:", "&SP=54:", "&SP=76:"};
inline const ItemLook kPowerItems = {")&-B ", "", "&LF&LF", ""};
