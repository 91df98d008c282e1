#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0680001234000101",
     "Study the continuity of the following function at the point &+Ix&-I = 2&LF&+If&-I (&+Ix&-I) = #NES({"
     "X#RWS(L#RW1( #COC(-8#N)(&+Ix&-I - 2#COC)     &SP=16:if  &+Ix&-I < 2 #RW1)#RW2( #EXP( &+Ix&-I - 2#EXP"
     ")     &SP=16:if  &+Ix&-I &>= 2 #RW2)#RWS)#NES)&LF",
     "#TST(lim#TS)(#ST1(&+Ix&-I &ars 2^- #ST1)#TST)&+If&-I (&+Ix&-I) = +&oo,     #TST(lim#TS)(#ST1(&+Ix&-I"
     " &ars 2^+ #ST1)#TST)&+If&-I (&+Ix&-I) = 1,     &+If&-I (2) = 1&LFEssential discontinuity&LF"},
    {"0680001237000101",
     "Study the continuity of the following function at the point &+Ix&-I = 4&LF&+If&-I (&+Ix&-I) = #NES({"
     "X#RWS(L#RW1( #COC(6#N)(&+Ix&-I - 5#COC)     &SP=16:if  &+Ix&-I < 4 #RW1)#RW2( #COC(1#N)(&+Ix&-I - 3#"
     "COC)     &SP=16:if  &+Ix&-I &>= 4 #RW2)#RWS)#NES)&LF",
     "#TST(lim#TS)(#ST1(&+Ix&-I &ars 4^- #ST1)#TST)&+If&-I (&+Ix&-I) = -6,     #TST(lim#TS)(#ST1(&+Ix&-I &"
     "ars 4^+ #ST1)#TST)&+If&-I (&+Ix&-I) = 1,     &+If&-I (4) = 1&LFJump discontinuity&LF"},
    {"0680001238000101",
     "Study the continuity of the following function at the point &+Ix&-I = 1&LF&+If&-I (&+Ix&-I) = #NES({"
     "X#RWS(L#RW1( #SQR(2 - &+Ix&-I#SQR) + 1     &SP=16:if  &+Ix&-I < 1 #RW1)#RW2( 4     &SP=16:if  &+Ix&-"
     "I = 1 #RW2)#RW3( #SQR(&+Ix&-I#SQR) + 1     &SP=16:if  &+Ix&-I > 1 #RW3)#RWS)#NES)&LF",
     "#TST(lim#TS)(#ST1(&+Ix&-I &ars 1^- #ST1)#TST)&+If&-I (&+Ix&-I) = 2,     #TST(lim#TS)(#ST1(&+Ix&-I &a"
     "rs 1^+ #ST1)#TST)&+If&-I (&+Ix&-I) = 2,     &+If&-I (1) = 4&LFRemovable discontinuity&LF"},
    {"0690001234000101",
     "Study the continuity and derivability of the following function at the point &+Ix&-I = 1&LF&+If&-I ("
     "&+Ix&-I) = #NES({X#RWS(L#RW1( #EXP( &+Ix&-I - 1#EXP) + 6&SP=17:if  &+Ix&-I < 1 #RW1)#RW2( &+Ix&-I& +"
     "& 6&SP=17:if  &+Ix&-I &>= 1 #RW2)#RWS)#NES)&LF",
     "#TST(lim#TS)(#ST1(&+Ix&-I &ars 1^- #ST1)#TST)&+If&-I (&+Ix&-I) = 7,     #TST(lim#TS)(#ST1(&+Ix&-I &a"
     "rs 1^+ #ST1)#TST)&+If&-I (&+Ix&-I) = 7&LF&+If&-I_ '_ (1^-) = 1,     &+If&-I_ '_ (1^+) = 1&LFContinuo"
     "us and has derivative.&LF"},
    {"0690001235000101",
     "Study the continuity and derivability of the following function at the point &+Ix&-I = -1&LF&+If&-I "
     "(&+Ix&-I) = #NES({X#RWS(L#RW1( -2&+Ix&-I& -& 6&SP=17:if  &+Ix&-I < -1 #RW1)#RW2( -4&+Ix&-I& -& 8&SP="
     "17:if  &+Ix&-I &>= -1 #RW2)#RWS)#NES)&LF",
     "#TST(lim#TS)(#ST1(&+Ix&-I &ars -1^- #ST1)#TST)&+If&-I (&+Ix&-I) = -4,     #TST(lim#TS)(#ST1(&+Ix&-I "
     "&ars -1^+ #ST1)#TST)&+If&-I (&+Ix&-I) = -4&LF&+If&-I_ '_ (-1^-) = -2,     &+If&-I_ '_ (-1^+) = -4&LF"
     "Continuous and hasn't derivative.&LF"},
    {"0690001236000101",
     "Study the continuity and derivability of the following function at the point &+Ix&-I = -3&LF&+If&-I "
     "(&+Ix&-I) = #NES({X#RWS(L#RW1( 2&+Ix&-I^2& +& 15&+Ix&-I& +& 32&SP=17:if  &+Ix&-I < -3 #RW1)#RW2( 7&+"
     "Ix&-I& +& 36&SP=17:if  &+Ix&-I &>= -3 #RW2)#RWS)#NES)&LF",
     "#TST(lim#TS)(#ST1(&+Ix&-I &ars -3^- #ST1)#TST)&+If&-I (&+Ix&-I) = 5,     #TST(lim#TS)(#ST1(&+Ix&-I &"
     "ars -3^+ #ST1)#TST)&+If&-I (&+Ix&-I) = 15&LFHas a jump discontinuity and hasn't derivative.&LF"},
};
} // namespace

TEST(ContinuityGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_LFD", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
