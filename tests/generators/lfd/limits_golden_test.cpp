#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0270011234000101",
     "Calculate  #TST(lim#TS)(#ST1(&+Ix&-I &ars -6 #ST1)#TST)#NES(()#COC(-&+Ix&-I^2& -& 3&+Ix&-I& +& 18#N)"
     "(&+Ix&-I^2& +& 7&+Ix&-I& +& 6#COC)#NES)&LF",
     "&SP=10:  #COC(-9#N)(5#COC)&LF"},
    {"0270021235000102",
     "Find the value of this limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo #ST1)#TST)#NES(()#COC(-&+Ix&-I^2& "
     "-& 5&+Ix&-I& +& 1#N)(3&+Ix&-I^2& +& 6#COC)#NES)&LF",
     "&SP=10:  #COC(-1#N)(3#COC)&LF"},
    {"0270031236000303",
     "Calculate the limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars -7 #ST1)#TST)#NES(()#COC(&+Ix&-I^3& +& 9&+Ix&-I"
     "^2& +& 15&+Ix&-I& +& 7#N)(&+Ix&-I^2& -& 2&+Ix&-I& -& 63#COC)#NES)&LF",
     "&SP=10:  #COC(-9#N)(4#COC)&LF"},
    {"0260011234000101",
     "Calculate  #TST(lim#TS)(#ST1(&+Ix&-I &ars 3 #ST1)#TST)#NES(()#COC(#SQR(&+Ix&-I& +& 13#SQR)& -& 4#N)("
     "&+Ix&-I^2& -& 9&+Ix&-I& +& 18#COC)#NES)&LF",
     "&SP=10:  #COC(-1#N)(24#COC)&LF"},
    {"0260021235000102",
     "Find the value of this limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars -1 #ST1)#TST)#NES(()#COC(&+Ix&-I^2& +&"
     " 3&+Ix&-I& +& 2#N)(#SQR(&+Ix&-I& +& 10#SQR)& -& 3#COC)#NES)&LF",
     "&SP=10:6&LF"},
    {"0260031236000303",
     "Calculate the limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars -5 #ST1)#TST)#NES(()#COC(#SQR(&+Ix&-I& +& 6#SQR"
     ")& -& 1#N)(&+Ix&-I^2& -& 25#COC)#NES)&LF",
     "&SP=10:  #COC(-1#N)(20#COC)&LF"},
    {"0770011234000101",
     "Calculate  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo#ST1)#TST)#NES(()#SQR(&+Ix&-I^2& +& 14&+Ix&-I& +& 2#SQR"
     ") - (&+Ix&-I& +& 1)#NES)&LF",
     "&SP=10:6&LF"},
    {"0770021235000102",
     "Find the value of this limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo#ST1)#TST)#NES(()#SQR(&+Ix&-I^2& +&"
     " 4&+Ix&-I& -& 3#SQR) - (&+Ix&-I& -& 4)#NES)&LF",
     "&SP=10:6&LF"},
    {"0770031236000303",
     "Calculate the limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo#ST1)#TST)#NES(()#SQR(&+Ix&-I^2& -& 6&+Ix&-I"
     "& -& 7#SQR) - (&+Ix&-I& +& 9)#NES)&LF",
     "&SP=10:-12&LF"},
    {"0250011234000101",
     "Calculate  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo #ST1)#TST)#POT(#NES(()#COC(&+Ix&-I& +& 6#N)(&+Ix&-I#CO"
     "C)#NES)#PB)(3&+Ix&-I& +& 2#POT)&LF",
     "&SP=10:#EXP( 18#EXP)&LF"},
    {"0250021235000102",
     "Find the value of this limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo #ST1)#TST)#POT(#NES(()#COC(2&+Ix&-"
     "I& -& 4#N)(2&+Ix&-I& -& 2#COC)#NES)#PB)(2&+Ix&-I& +& 3#POT)&LF",
     "&SP=10:#EXP( -2#EXP)&LF"},
    {"0250031236000303",
     "Calculate the limit:  #TST(lim#TS)(#ST1(&+Ix&-I &ars &oo #ST1)#TST)#POT(#NES(()1 - #COC(5#N)(&+Ix&-I"
     "#COC)#NES)#PB)(4&+Ix&-I& +& 4#POT)&LF",
     "&SP=10:#EXP( -20#EXP)&LF"},
};
} // namespace

TEST(LimitsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_LFD", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
