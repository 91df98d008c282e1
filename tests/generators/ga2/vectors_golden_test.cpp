#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0010000100000101",
     "Consider the vectors  #VEC(&+Iu&-I#VEC)(28,& & -7)  and  #VEC(&+Iv&-I#VEC)(-15,& & -13).  Find:&LF  "
     "&+Ba)&-B& Magnitude of each vector.  &+Bb)&-B& Scalar product (dot product).  &+Bc)&-B& Angle betwee"
     "n these vectors.&LF",
     "&SP=10:&+Ba)&-B  |#VEC(&+Iu&-I#VEC)|& =& 7#SQR(17#SQR),   |#VEC(&+Iv&-I#VEC)|& =& #SQR(394#SQR)     "
     "&+Bb)&-B  #VEC(&+Iu&-I#VEC)& ·& #VEC(&+Iv&-I#VEC)& =& -329     &+Bc)&-B  125° 2' 57&.74\"&LF"},
    {"0010201234020302",
     "Consider the vectors  #VEC(&+Iu&-I#VEC)(8,& & 21)  and  #VEC(&+Iv&-I#VEC)(2,& & 11).  Find:&LF  &+Ba"
     ")&-B& Magnitude of each vector.  &+Bb)&-B& Scalar product (dot product).  &+Bc)&-B& Angle between th"
     "ese vectors.&LF",
     "&SP=10:&+Ba)&-B  |#VEC(&+Iu&-I#VEC)|& =& #SQR(505#SQR),   |#VEC(&+Iv&-I#VEC)|& =& 5#SQR(5#SQR)     &"
     "+Bb)&-B  #VEC(&+Iu&-I#VEC)& ·& #VEC(&+Iv&-I#VEC)& =& 247     &+Bc)&-B  10° 32' 58&.6\"&LF"},
    {"0014440008090909",
     "Consider the vectors  #VEC(&+Iu&-I#VEC)(23,& & 29)  and  #VEC(&+Iv&-I#VEC)(8,& & 34).  Find a vector"
     " #VEC(&+Iw&-I#VEC) perpendicular (orthogonal) to  #VEC(&+Iu&-I#VEC)  and verifies  #VEC(&+Iw&-I#VEC)"
     "& ·& #VEC(&+Iv&-I#VEC)& =& 2200.&LF",
     "&SP=10:#VEC(&+Iw&-I#VEC)(-116,& & 92)&LF"},
    {"0020000100000101",
     "Determine if the following points are or are not aligned.:&LF&SP=5:&+Ba)&-B &+IA&-I&(14,& & -3),  &+"
     "IB&-I&(11,& & -6),  &+IC&-I&(2,& & -15)&LF&SP=5:&+Bb)&-B &+IA&-I&(-6,& & -3),  &+IB&-I&(-3,& & 4),  "
     "&+IC&-I&(0,& & 12)&LF",
     "&SP=10:&+Ba)&-B Aligned     &+Bb)&-B Non-aligned&LF"},
    {"0020307001000404",
     "Calculate the midpoint  &+IM&-I  of the line segment whose end points are  &+IA&-I&(8,& & 7)  and  &"
     "+IB&-I&(-6,& & 29).&LF",
     "&SP=10:&+IM&-I&(1,& & 18)&LF"},
    {"0021115555000303",
     "We know the points  &+IA&-I&(0,& & 4)  and  &+IB&-I&(12,& & -6).  Calculate vector #VEC(&+IAB&-I#VEC"
     ") and the distance between these points.&LF",
     "&SP=10:#VEC(&+IAB&-I#VEC)(12,& & -10),   &+Id&-I(&+IA&-I,& &+IB&-I)& =& 2#SQR(61#SQR)&LF"},
};
} // namespace

TEST(Ga2VectorsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_GA2", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
