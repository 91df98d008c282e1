#include <algorithm>
#include <cmath>
#include <vector>

#include "generators/pes/pes_routines.h"
#include "generators/pes/pes_tables.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// The draws of one row of the regression problems: the first value and the step of x
// and of y, and the range of the noise added to each step.
struct RegressionRow {
    double xLow, xHigh, xStepLow, xStepHigh;
    double yLow, yHigh, yStepLow, yStepHigh, yStepGrid;
    double noiseLow, noiseHigh;
    double grid;  // 0: drawn with a step of 0 and rounded to a whole number
    const char* words;
    const char* verbA;
    const char* partB;
    const char* partC;
    const char* partCEnd;
    const char* unit;
};

const RegressionRow kRows[] = {
    // Abstract pairs; a coin makes the y values fall.
    {0, 50, 1, 10, 0, 60, 4, 10, 1, 1, 6, 1, "Below is a table of  &+Ix&-I  and  &+Iy&-I values.&LF",
     "Calculate",
     "&+Bb)&-B Find the coefficient of correlation and the regression line  &+Iy = f (x)&-I  (least squares "
     "method).&LF",
     "&+Bc)&-B Estimate the value of  #AND(&+Iy&-I#AND)  if  #AND(&+Ix&-I#AND) = ", ".&LF", ""},
    // Height (cm) and body mass (kg) of people.
    {120, 160, 5, 8, 40, 60, 4, 10, 0, 0, 6, 0,
     "The table shows the height &+Ix&-I  in centimeters for a sample of people and their body mass  &+Iy&-I  "
     "in kilograms.&LF",
     "Find", "&+Bb)&-B Calculate the coefficient of correlation and the regression line (least squares method).&LF",
     "&+Bc)&-B Estimate the body mass  #AND(&+Iy&-I#AND)  when the height  #AND(&+Ix&-I#AND)  is ", "& cm.&LF",
     " kg"},
    // Age (years) and height (cm) of trees.
    {0, 6, 2, 8, 20, 90, 30, 100, 5, 0, 6, 0,
     "In the following table  &+Ix&-I  denotes the age (in years) of a sample of trees; and  &+Iy&-I  denotes "
     "their height in centimeters.&LF",
     "Calculate", "&+Bb)&-B Find the coefficient of correlation and the regression line (least squares method).&LF",
     "&+Bc)&-B Estimate the height  #AND(&+Iy&-I#AND)  if a tree is ", " years old.&LF", " cm"},
    // Age (days) and body mass (g) of birds.
    {2, 15, 2, 8, 20, 90, 4, 40, 0, 0, 6, 0,
     "The table shows the age &+Ix&-I  in days for a sample of wild birds and their body mass  &+Iy&-I  in "
     "grams.&LF",
     "Find", "&+Bb)&-B Calculate the coefficient of correlation and the regression line (least squares method).&LF",
     "&+Bc)&-B Estimate the body mass  #AND(&+Iy&-I#AND)  for a bird that is ", " days old.&LF", " g"},
};

double DrawValue(GeneratorWorkspace& ws, double low, double high, double grid, bool nonZero) {
    if (grid > 0) return RandomInRange(ws, low, high, grid, nonZero ? 1 : 0);
    return RoundAtPosition(ws, RandomInRange(ws, low, high, 0, 0), -1);
}
} // namespace

// Routine 3: pairs (x, y) that grow together with noise; means, standard deviations,
// covariance (population), correlation, least-squares line of y on x, and an estimate.
// Type = Seed mod 4: abstract pairs, people, trees, birds.
void LinearRegression(GeneratorWorkspace& ws) {
    const int n = static_cast<int>(RandomInRange(ws, 4, 6, 1, 1));
    const int type = ws.Seed % 4;
    const RegressionRow& row = kRows[type];
    const bool nonZero = type == 0;
    std::vector<double> xs, ys;
    double x = DrawValue(ws, row.xLow, row.xHigh, row.grid, false);
    const double xStep = DrawValue(ws, row.xStepLow, row.xStepHigh, row.grid, nonZero);
    double y = DrawValue(ws, row.yLow, row.yHigh, row.yStepGrid > 0 ? row.yStepGrid : row.grid, false);
    const double yStep = DrawValue(ws, row.yStepLow, row.yStepHigh, row.yStepGrid > 0 ? row.yStepGrid : row.grid, nonZero);
    const double direction = type == 0 && Coin(ws, 0.5f) ? -1 : 1;
    for (int i = 0; i < n; ++i) {
        // y is moved off the line a little: the correlation is strong but not perfect.
        xs.push_back(x);
        ys.push_back(y + RandomInRange(ws, -3, 3, 1, 0));
        x += xStep + DrawValue(ws, row.noiseLow, row.noiseHigh, row.grid, nonZero);
        y += direction * (yStep + DrawValue(ws, row.noiseLow, row.noiseHigh, row.grid, nonZero));
    }
    const double estimateAt = DrawValue(ws, xs.front(), xs.back(), row.grid, false);

    double sx = 0, sy = 0, sxx = 0, syy = 0, sxy = 0;
    for (int i = 0; i < n; ++i) {
        sx += xs[i];
        sy += ys[i];
        sxx += xs[i] * xs[i];
        syy += ys[i] * ys[i];
        sxy += xs[i] * ys[i];
    }
    const double meanX = sx / n, meanY = sy / n;
    const double devX = std::sqrt(std::fabs(sxx / n - meanX * meanX));
    const double devY = std::sqrt(std::fabs(syy / n - meanY * meanY));
    const double covariance = sxy / n - meanX * meanY;
    const double correlation = covariance / (devX * devY);
    const double slope = covariance / (devX * devX);
    const double intercept = meanY - slope * meanX;
    const double estimate = intercept + slope * estimateAt;

    std::vector<TableRow> rows;
    for (int i = 0; i < n; ++i) rows.push_back({NumberToMarkup(xs[i]), NumberToMarkup(ys[i])});
    ws.Statement = std::string(row.words) + TableMarkup(kPairTableLook, rows) + "&+Ba)&-B " + row.verbA +
                   " the means and standard deviations of  &+Ix&-I  and  &+Iy&-I  and the covariance.&LF" +
                   row.partB + row.partC + NumberToMarkup(estimateAt) + row.partCEnd;
    const std::string line =
        PolynomialToMarkup(0, 0, 0, RoundAtPosition(ws, slope, -5), RoundAtPosition(ws, intercept, -5), "");
    ws.Solution = "&SP=10:&+Ba)&-B  #SED(&+Ix&-I#SED) = " + RoundedMarkup(ws, meanX, 2) +
                  "    #SED(&+Iy&-I#SED) = " + RoundedMarkup(ws, meanY, 2) + "    &+I&DT_x&-I = " +
                  RoundedMarkup(ws, devX, 2) + "    &+I&DT_y&-I = " + RoundedMarkup(ws, devY, 2) +
                  "    &+I&DT_x_y&-I = " + RoundedMarkup(ws, covariance, 2) + "&LF" +
                  "&SP=10:&+Bb)&-B  &+Ir&-I = " + RoundedMarkup(ws, correlation, 4) + "    &+Iy&-I& =& " + line +
                  "&LF" + "&SP=10:&+Bc)&-B  #AND(&+Iy&-I#AND) = " + RoundedMarkup(ws, estimate, 2) + row.unit +
                  "&LF";
}
