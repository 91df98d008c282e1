#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0060001234260101",
     "&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(#COC(5&+Ix&-I^7#N)(1 + 64#POT(&+Ix&-I#PB"
     ")(16#POT)#COC)_ &+Idx&-I#INT)&SP=41:&-I&+Bb)&-B #INT(#COC(3&+Ix&-I^4#N)(#SQR(1 - 9#POT(&+Ix&-I#PB)(1"
     "0#POT)#SQR)#COC)_ &+Idx&-I#INT)&SP=72:&-I&+Bc)&-B #INT(#COC(sin_ (arctan_ &+Ix&-I)#N)(1 + &+Ix&-I^2#"
     "COC)_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bd)&-B #INT(#COC(1#N)(&+Ix&-I_ (1 + ln^2_ &+Ix&-I)#COC)_ &+Idx&"
     "-I#INT)&SP=41:&-I&+Be)&-B #INT(1 + tan^2_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bf)&-B #INT(tan^2_ &+Ix&"
     "-I_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bg)&-B #INT(tan_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bh)&-B #INT(#C"
     "OC(1#N)(&+Ix&-I_ #SQR(1 - ln^2_ &+Ix&-I#SQR)#COC)_ &+Idx&-I#INT)&SP=72:&-I&+Bi)&-B #INT(#COC(1#N)(co"
     "s^2_ &+Ix&-I#COC)_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bj)&-B #INT(#SQR(&+Ix&-I#SQR)_ &+Idx&-I#INT)&SP=41"
     ":&-I&+Bk)&-B #INT(#COC(4#N)(8&+Ix&-I& -& 1#COC)_ &+Idx&-I#INT)&SP=72:&-I&+Bl)&-B #INT(#COC(3#N)(1 + "
     "(7&+Ix&-I& +& 9)^2#COC)_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bm)&-B #INT(#COC(4#N)(#SQR(1 - (2&+Ix&-I& -&"
     " 5)^2#SQR)#COC)_ &+Idx&-I#INT)&SP=41:&-I&+Bn)&-B #INT(#COC(6#N)(#SQR(&+Ix&-I#SQR)#COC)_ &+Idx&-I#INT"
     ")&SP=72:&-I&+Bo)&-B #INT(5(4&+Ix&-I& +& 1)^4_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bp)&-B #INT(3#EXP( 8&+I"
     "x&-I& -& 1#EXP)_ &+Idx&-I#INT)&SP=41:&-I&+Bq)&-B #INT(2sin_ (4&+Ix&-I& +& 5)_ &+Idx&-I#INT)&SP=72:&-"
     "I&+Br)&-B #INT(5cos_ (9&+Ix&-I& -& 9)_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bs)&-B #INT(2#RAD(#RI(6#RI)(2&"
     "+Ix&-I& -& 8)^5#RAD)_ &+Idx&-I#INT)&SP=41:&-I&+Bt)&-B #INT(#COC(50&+Ix&-I#N)(5&+Ix&-I^2& -& 2#COC)_ "
     "&+Idx&-I#INT)&SP=72:&-I&+Bu)&-B #INT(cos^7_ &+Ix&-I_ sin_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bv"
     ")&-B #INT(sin^4_ &+Ix&-I_ cos_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bw)&-B #INT(#COC(7#EXP( &+Ix&-I#EXP"
     ")#N)(4 - 8#EXP( &+Ix&-I#EXP)#COC)_ &+Idx&-I#INT)&SP=72:&-I&+Bx)&-B #INT(#COC(ln^4_ &+Ix&-I#N)(&+Ix&-"
     "I#COC)_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+By)&-B #INT(#COC(sin_ (3ln_ &+Ix&-I)#N)(&+Ix&-I#COC)_ &+Idx&-"
     "I#INT)&SP=41:&-I&+Bz)&-B #INT(#COC(cos_ (5ln_ &+Ix&-I)#N)(&+Ix&-I#COC)_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(5arctan_ (8&+Ix&-I^8)#N)(64#COC) + &+IC&-I&SP=55:&-I&+Bb)&-B #COC(arcsin_ (3"
     "&+Ix&-I^5)#N)(5#COC) + &+IC&-I&LF&SP=10:&-I&+Bc)&-B -cos_ (arctan_ &+Ix&-I) + &+IC&-I&SP=55:&-I&+Bd)"
     "&-B arctan_ (ln_ &+Ix&-I) + &+IC&-I&LF&SP=10:&-I&+Be)&-B tan_ &+Ix&-I + &+IC&-I&SP=55:&-I&+Bf)&-B ta"
     "n_ &+Ix&-I - &+Ix&-I + &+IC&-I&LF&SP=10:&-I&+Bg)&-B -ln|cos_ &+Ix&-I| + &+IC&-I&SP=55:&-I&+Bh)&-B ar"
     "csin_ (ln_ &+Ix&-I) + &+IC&-I&LF&SP=10:&-I&+Bi)&-B tan_ &+Ix&-I + &+IC&-I&SP=55:&-I&+Bj)&-B #COC(2#S"
     "QR(&+Ix&-I^3#SQR)#N)(3#COC) + &+IC&-I&LF&SP=10:&-I&+Bk)&-B #COC(ln|8&+Ix&-I& -& 1|#N)(2#COC) + &+IC&"
     "-I&SP=55:&-I&+Bl)&-B #COC(3arctan_ (7&+Ix&-I& +& 9)#N)(7#COC) + &+IC&-I&LF&SP=10:&-I&+Bm)&-B 2arcsin"
     "_ (2&+Ix&-I& -& 5) + &+IC&-I&SP=55:&-I&+Bn)&-B 12#SQR(&+Ix&-I#SQR) + &+IC&-I&LF&SP=10:&-I&+Bo)&-B #C"
     "OC((4&+Ix&-I& +& 1)^5#N)(4#COC) + &+IC&-I&SP=55:&-I&+Bp)&-B #COC(3#EXP( 8&+Ix&-I& -& 1#EXP)#N)(8#COC"
     ") + &+IC&-I&LF&SP=10:&-I&+Bq)&-B #COC(-cos_ (4&+Ix&-I& +& 5)#N)(2#COC) + &+IC&-I&SP=55:&-I&+Br)&-B #"
     "COC(5sin_ (9&+Ix&-I& -& 9)#N)(9#COC) + &+IC&-I&LF&SP=10:&-I&+Bs)&-B #COC(6#RAD(#RI(6#RI)#POT((2&+Ix&"
     "-I& -& 8)#PB)(11#POT)#RAD)#N)(11#COC) + &+IC&-I&SP=55:&-I&+Bt)&-B 5ln|5&+Ix&-I^2& -& 2| + &+IC&-I&LF"
     "&SP=10:&-I&+Bu)&-B -#COC(cos^8_ &+Ix&-I#N)(8#COC) + &+IC&-I&SP=55:&-I&+Bv)&-B #COC(sin^5_ &+Ix&-I#N)"
     "(5#COC) + &+IC&-I&LF&SP=10:&-I&+Bw)&-B #COC(-7ln|4 - 8#EXP( &+Ix&-I#EXP)|#N)(8#COC) + &+IC&-I&SP=55:"
     "&-I&+Bx)&-B #COC(ln^5_ &+Ix&-I#N)(5#COC) + &+IC&-I&LF&SP=10:&-I&+By)&-B #COC(-cos_ (3ln_ &+Ix&-I)#N)"
     "(3#COC) + &+IC&-I&SP=55:&-I&+Bz)&-B #COC(sin_ (5ln_ &+Ix&-I)#N)(5#COC) + &+IC&-I&LF"},
    {"0060200042050301",
     "&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(#COC(5#N)(1 + (4&+Ix&-I& -& 8)^2#COC)_ &"
     "+Idx&-I#INT)&SP=41:&-I&+Bb)&-B #INT(#COC(5#N)(#SQR(1 - (5&+Ix&-I& +& 3)^2#SQR)#COC)_ &+Idx&-I#INT)&S"
     "P=72:&-I&+Bc)&-B #INT(#COC(3#N)(#SQR(&+Ix&-I#SQR)#COC)_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bd)&-B #INT(3"
     "(7&+Ix&-I& +& 7)^6_ &+Idx&-I#INT)&SP=41:&-I&+Be)&-B #INT(3#EXP( 6&+Ix&-I& +& 8#EXP)_ &+Idx&-I#INT)&L"
     "F&LF",
     "&SP=10:&-I&+Ba)&-B #COC(5arctan_ (4&+Ix&-I& -& 8)#N)(4#COC) + &+IC&-I&SP=55:&-I&+Bb)&-B arcsin_ (5&+"
     "Ix&-I& +& 3) + &+IC&-I&LF&SP=10:&-I&+Bc)&-B 6#SQR(&+Ix&-I#SQR) + &+IC&-I&SP=55:&-I&+Bd)&-B #COC(3(7&"
     "+Ix&-I& +& 7)^7#N)(49#COC) + &+IC&-I&LF&SP=10:&-I&+Be)&-B #COC(#EXP( 6&+Ix&-I& +& 8#EXP)#N)(2#COC) +"
     " &+IC&-I&LF"},
    {"0060008888020202",
     "&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(sin^3_ &+Ix&-I_ cos_ &+Ix&-I_ &+Idx&-I#I"
     "NT)&SP=41:&-I&+Bb)&-B #INT(#COC(7#EXP( &+Ix&-I#EXP)#N)(8 - 5#EXP( &+Ix&-I#EXP)#COC)_ &+Idx&-I#INT)&L"
     "F&LF",
     "&SP=10:&-I&+Ba)&-B #COC(sin^4_ &+Ix&-I#N)(4#COC) + &+IC&-I&SP=55:&-I&+Bb)&-B #COC(-7ln|8 - 5#EXP( &+"
     "Ix&-I#EXP)|#N)(5#COC) + &+IC&-I&LF"},
};
} // namespace

TEST(IntegrationBySubstitutionGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_INT", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
