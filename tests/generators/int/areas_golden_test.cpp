#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0030001234000101",
     "Calculate the area between the parabola  &+Iy&-I& =& &+Ix&-I^2& -& 6&+Ix&-I& +& 5 and the &+IX&-I ax"
     "is.&LF",
     "The curve cuts the &+IX&-I axis at  &+Ix&-I& =& 1,  5.&LFArea = #COC(32#N)(3#COC) u^2.&LF"},
    {"0030011235000104",
     "Calculate the area between the curve  &+Iy&-I& =& -&+Ix&-I^3& -& 2&+Ix&-I^2& +& &+Ix&-I& +& 2,  the "
     "&+IX&-I axis and the lines  &+Ix&-I& =& -2  and  &+Ix&-I& =& 1.&LF",
     "The curve cuts the &+IX&-I axis at  &+Ix&-I& =& -2,  -1,  1.&LFArea = #COC(37#N)(12#COC) u^2.&LF"},
    {"0030061240000604",
     "Calculate the area between the curve  &+Iy&-I& =& -2&+Ix&-I^2& +& 2&+Ix&-I& +& 12,  the &+IX&-I axis"
     " and the vertical lines  &+Ix&-I& =& -4  and  &+Ix&-I& =& 4.&LF",
     "The curve cuts the &+IX&-I axis at  &+Ix&-I& =& -2,  3.&LFArea = #COC(218#N)(3#COC) u^2.&LF"},
    {"0040001000000101",
     "Calculate the area between the parabola  &+Iy&-I& =& &+Ix&-I^2& +& &+Ix&-I& -& 3 and the line  &+Iy&"
     "-I& =& 3.&LF",
     "The curves cut at  &+Ix&-I& =& -3  and  &+Ix&-I& =& 2.&LFArea = #COC(125#N)(6#COC) u^2.&LF"},
    {"0040001001000101",
     "Calculate the area between the hyperbola  &+Iy&-I& =& #COC(-7#N)(&+Ix&-I + 1#COC) and the line that "
     "cuts this hyperbola at the points &+Ix&-I& =& 2  and  &+Ix&-I& =& 5.&LF",
     "The line:  &+Iy&-I& =& #COC(7#N)(18#COC)&+Ix&-I - #COC(28#N)(9#COC).&LFArea = #COC(21#N)(4#COC) - 7_"
     " ln_ 2 &iorden 0&.4 u^2.&LF"},
    {"0040001002000101",
     "The area between the parabola  &+Iy&-I& =& &+Ik& x& -& x^2&-I  and the  &+IX&-I  axis is  #COC(343#N"
     ")(6#COC).  Find the value of the parameter  &+Ik&-I  where  &+Ik&-I& >& 0.&LF",
     "&+Ik&-I = 7.&LF"},
    {"0040001003000101",
     "The curve  &+Iy&-I& =& &+Ia& x^2& -& x^3&-I  cuts the &+IX&-I axis at the points (0, 0)  and  (&+Ia&"
     "-I,& 0). Find the value of the parameter  &+Ia&-I  if the area between the curve and the  &+IX&-I ax"
     "is is  #COC(27#N)(4#COC)  and  &+Ia&-I& >& 0.&LF",
     "&+Ia&-I = 3.&LF"},
};
} // namespace

TEST(AreasGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_INT", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
