#pragma once
#include <string>
#include <vector>

#include "mathservices/math_workspace.h"

// Pieces shared by the statistics problems: the tables and charts drawn in markup, and
// the rounded writing of a result.

// A result rounded to the given number of decimals, with the decimal mark of markup.
std::string RoundedMarkup(MathWorkspace& ws, double x, int decimals);

// One row of a two-column table: the texts of the two cells.
struct TableRow {
    std::string first;
    std::string second;
};

// The look of a two-column table: band width in mm, the two column heads, the two
// column positions.
struct TableLook {
    std::string bandWidth;
    std::string firstHead;
    std::string secondHead;
    std::string firstColumn;
    std::string secondColumn;
};
extern const TableLook kFrequencyTableLook;  // value and absolute frequency
extern const TableLook kClassTableLook;      // interval and absolute frequency
extern const TableLook kPairTableLook;       // x and y

std::string TableMarkup(const TableLook& look, const std::vector<TableRow>& rows);

// A bar chart drawn with filled rectangles: heights are frequencies, labels stand under
// the bars. barWidth in mm (the bars of a histogram touch), barStep in percent of the text
// width, colour 1..3.
struct BarChart {
    std::vector<double> heights;
    std::vector<std::string> labels;
    double barWidth = 3;
    double barStep = 5;
    int colour = 1;
};
std::string BarChartMarkup(const BarChart& chart);

// 1st, 2nd, 3rd, 4th ... 11th, 12th, 13th ... 21st.
std::string OrdinalText(int n);
