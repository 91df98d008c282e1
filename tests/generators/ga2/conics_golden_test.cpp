#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0050000100000101",
     "Find the center and radius of the given circle:&LF     &+Ix&-I^2& +& &+Iy&-I^2& +& 2&+Ix&-I& -& 8&+I"
     "y&-I& -& 3& =& 0&LF",
     "&SP=10:&+IC&-I&(-1,& & 4);   &+Ir&-I = 2#SQR(5#SQR)&LF"},
    {"0051230102020302",
     "Calculate the values of parameter  &+Ip&-I  for which the line  &+Ix&-I& -& &+Iy&-I& +& &+Ip&-I& =& "
     "0  is tangent to the following circle and find the tangent point.&LF     &+Ix&-I^2& +& &+Iy&-I^2& -&"
     " 2&+Ix&-I& -& 2&+Iy&-I& -& 16& =& 0&LF",
     "&SP=10:&+Ip&-I& =& 6  tangent at  &(-2,& & 4)     &+Ior&-I     &+Ip&-I& =& -6  tangent at  &(4,& & -"
     "2)&LF"},
    {"0050004321000101",
     "Find the center and radius of the given circle:&LF     &+Ix&-I^2& +& &+Iy&-I^2& +& 26&+Ix&-I& -& 22&"
     "+Iy&-I& +& 192& =& 0&LF",
     "&SP=10:&+IC&-I&(-13,& & 11);   &+Ir&-I = 7#SQR(2#SQR)&LF"},
    {"0060001000000101",
     "An ellipse has foci at the points  &+IF&-I(8,& & 22),  &+IF_ '_ &-I(8,& & -26)  and semimajor axis o"
     "f length 30.  Determine the equation of the ellipse.&LF",
     "&SP=10:#COC( (&+Ix&-I& -& 8)^2#N)(324#COC)& +& #COC( (&+Iy&-I& +& 2)^2#N)(900#COC)& =& 1     &+Ior&-"
     "I     25&+Ix&-I^2& +& 9&+Iy&-I^2& -& 400&+Ix&-I& +& 36&+Iy&-I& -& 6464& =& 0&LF"},
    {"0062000003010303",
     "An ellipse has foci at the points  &+IF&-I(16,& & 0),  &+IF_ '_ &-I(-16,& & 0)  and a vertex at the "
     "point &+IA&-I&(20,& & 0).  Determine the equation of the ellipse.&LF",
     "&SP=10:#COC( &+Ix&-I^2#N)(400#COC)& +& #COC( &+Iy&-I^2#N)(144#COC)& =& 1     &+Ior&-I     9&+Ix&-I^2"
     "& +& 25&+Iy&-I^2& -& 3600& =& 0&LF"},
    {"0060107777000101",
     "An ellipse has foci at the points  &+IF&-I(26,& & -7),  &+IF_ '_ &-I(-16,& & -7)  and semimajor axis"
     " of length 29.  Calculate the equation of the ellipse.&LF",
     "&SP=10:#COC( (&+Ix&-I& -& 5)^2#N)(841#COC)& +& #COC( (&+Iy&-I& +& 7)^2#N)(400#COC)& =& 1     &+Ior&-"
     "I     400&+Ix&-I^2& +& 841&+Iy&-I^2& -& 4000&+Ix&-I& +& 11774&+Iy&-I& -& 285191& =& 0&LF"},
    {"0070001000000101",
     "A hyperbola has foci at the points  &+IF&-I(8,& & 28),  &+IF_ '_ &-I(8,& & -32)  and semiaxis of len"
     "gth  18.  Determine the equation of the hyperbola.&LF",
     "&SP=10:#COC( (&+Iy&-I& +& 2)^2#N)(324#COC)& -& #COC( (&+Ix&-I& -& 8)^2#N)(576#COC)& =& 1     &+Ior&-"
     "I     9&+Ix&-I^2& -& 16&+Iy&-I^2& -& 144&+Ix&-I& -& 64&+Iy&-I& +& 5696& =& 0&LF"},
    {"0070500006000303",
     "Consider the hyperbola  9&+Ix&-I^2& -& 16&+Iy&-I^2& =& 2304.  Determine:  &+Ba)&-B& Semiaxes.   &+Bb"
     ")&-B& Foci.   &+Bc)&-B& Center.   &+Bd)&-B& Vertices.   &+Be)&-B& Eccentricity.   &+Bf)&-B& Asymptot"
     "es.&LF",
     "&SP=10:&+Ba)&-B  &+Ia&-I& =& 16,  &+Ib&-I& =& 12&LF&SP=10:&+Bb)&-B  &+IF&-I(20,& & 0),  &+IF_ '_ &-I"
     "(-20,& & 0)&LF&SP=10:&+Bc)&-B  &+IC&-I&(0,& & 0)&LF&SP=10:&+Bd)&-B  &+IA&-I&(16,& & 0),  &+IA_ '_ &-"
     "I&(-16,& & 0)&LF&SP=10:&+Be)&-B  &+Ie&-I& =& #COC(5#N)(4#COC)&LF&SP=10:&+Bf)&-B  &+Iy&-I& =& ±& #COC"
     "(3#N)(4#COC)& &+Ix&-I&LF"},
    {"0070107777000808",
     "A hyperbola has foci at the points  &+IF&-I(34,& & -7),  &+IF_ '_ &-I(-24,& & -7)  and semiaxis of l"
     "ength  20.  Calculate the equation of the hyperbola.&LF",
     "&SP=10:#COC( (&+Ix&-I& -& 5)^2#N)(400#COC)& -& #COC( (&+Iy&-I& +& 7)^2#N)(441#COC)& =& 1     &+Ior&-"
     "I     441&+Ix&-I^2& -& 400&+Iy&-I^2& -& 4410&+Ix&-I& -& 5600&+Iy&-I& -& 184975& =& 0&LF"},
    {"0080001000000101",
     "Consider the parabola  &+Ix&-I^2& -& 2&+Ix&-I& +& 97& =& 16&+Iy&-I.  Determine:  &+Ba)&-B& Focus.   "
     "&+Bb)&-B& Vertex.   &+Bc)&-B& Directrix.&LF",
     "&SP=10:&+Ba)&-B  &+IF&-I(1,& & 10)     &+Bb)&-B  &+IV&-I(1,& & 6)     &+Bc)&-B  &+Iy&-I& =& 2&LF"},
    {"0080400005020403",
     "The focus of a parabola is &+IF&-I(-8,& & 2)  and its vertex is  &+IV&-I(-9,& & 2).  Determine its e"
     "quation and its directrix.&LF",
     "&SP=10:(&+Iy&-I& -& 2)^2& =& 4(&+Ix&-I& +& 9)     &+Ior&-I     &+Iy&-I^2& -& 4&+Ix&-I& -& 4&+Iy&-I& "
     "-& 32& =& 0&LF&SP=10:&+Ix&-I& =& -10&LF"},
    {"0080120999000707",
     "The focus of a parabola is &+IF&-I(3,& & -7)  and its vertex is  &+IV&-I(9,& & -7).  Determine its e"
     "quation and its directrix.&LF",
     "&SP=10:(&+Iy&-I& +& 7)^2& =& -24(&+Ix&-I& -& 9)     &+Ior&-I     &+Iy&-I^2& +& 24&+Ix&-I& +& 14&+Iy&"
     "-I& -& 167& =& 0&LF&SP=10:&+Ix&-I& =& 15&LF"},
};
} // namespace

TEST(Ga2ConicsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_GA2", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
