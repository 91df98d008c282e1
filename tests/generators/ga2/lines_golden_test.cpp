#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0030000100000101",
     "Let a triangle whose vertices are  &+IA&-I&(4,& & 17),  &+IB&-I&(-2,& & -6)  and  &+IC&-I&(-5,& & 10"
     "),  calculate:&LF    &+Ba)&-B The general equation of the line of each side.   &+Bb)&-B Area.&LF",
     "&SP=10:&+Ba)&-B  &+IAB&-I:& 23&+Ix&-I& -& 6&+Iy&-I& +& 10& =& 0     &+IBC&-I:& 16&+Ix&-I& +& 3&+Iy&-"
     "I& +& 50& =& 0     &+ICA&-I:& 7&+Ix&-I& -& 9&+Iy&-I& +& 125& =& 0&LF&SP=10:&+Bb)&-B  Area& =& #COC(1"
     "65#N)(2#COC)&LF"},
    {"0030201234020302",
     "Find the general equation of the penpendicular bisector to the line segment whose end points are &+I"
     "A&-I&(18,& & 6)  and  &+IB&-I&(28,& & 8).&LF",
     "&SP=10:5&+Ix&-I& +& &+Iy&-I& -& 122& =& 0&LF"},
    {"0034440008111111",
     "A triangle has the vertices  &+IA&-I&(10,& & 12),  &+IB&-I&(13,& & 4)  and  &+IC&-I&(19,& & 18),  ca"
     "lculate the equation of the altitude that passes through  &+IA&-I and its length.&LF",
     "&SP=10:3&+Ix&-I& +& 7&+Iy&-I& -& 114& =& 0     &+Ih&-I& =& #COC(45#SQR(58#SQR)#N)(58#COC)&LF"},
    {"0040000100000101",
     "Consider the lines  &+IL&-I_1:& 9&+Ix&-I& -& &+Iy&-I& -& 102& =& 0  and  &+IL&-I_2:& &+Ip&-I&+Ix&-I&"
     " +& 9&+Iy&-I& -& 5& =& 0.   Find the value of parameter  &+Ip&-I  for each of the following cases:  "
     "&+Ba)&-B& Lines are parallel.   &+Bb)&-B& Lines are perpendicular (orthogonal).   &+Bc)&-B& Line  &+"
     "IL_2&-I  passes through the point  &+IP&-I&(-2,& & 3).&LF",
     "&SP=10:&+Ba)&-B  &+Ip&-I& =& -81     &+Bb)&-B  &+Ip&-I& =& 1     &+Bc)&-B  &+Ip&-I& =& 11&LF"},
    {"0040307001000404",
     "Calculate the value(s) of parameter  &+Ip&-I  for which the distance between the line  4&+Ix&-I& +& "
     "3&+Iy&-I& +& &+Ip&-I& =& 0   and the point  &+IP&-I&(2,& & -9)  is 11.&LF",
     "&SP=10:&+Ip&-I& =& 74     &+Ior&-I     &+Ip&-I& =& -36&LF"},
    {"0041115555000303",
     "Find the value of parameter  &+Ih&-I  for which the line  &+Ih&-I&+Ix&-I& -& 2&+Iy&-I& +& 4& =& 0   "
     "passes through the point  &+IP&-I&(6,& & -5).&LF",
     "&SP=10:&+Ih&-I& =& #COC(-7#N)(3#COC)&LF"},
};
} // namespace

TEST(Ga2LinesGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_GA2", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
