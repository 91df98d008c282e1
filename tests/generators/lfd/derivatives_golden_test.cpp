#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0010001234200101",
     "Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I 4&+Ix&-I^4& +& 8&+Ix&-I^"
     "3& +& 5&+Ix&-I& -& 11&SP=50:&+Bb)&-B  &+Iy =&-I cos_ (&+Ix&-I^2& +& &+Ix&-I& +& 7)&LF&SP=5:&+Bc)&-B "
     " &+Iy =&-I ln_ (7&+Ix&-I& +& 8)&SP=50:&+Bd)&-B  &+Iy =&-I #RAD(#RI(8#RI)2&+Ix&-I^2& +& 7&+Ix&-I& -& "
     "1#RAD)&LF&SP=5:&+Be)&-B  &+Iy =&-I #COC(3&+Ix&-I^2& +& 8&+Ix&-I& +& 12#N)(&+Ix&-I& -& 2#COC)&SP=50:&"
     "+Bf)&-B  &+Iy =&-I &+Ix&-I^9_ sin_ &+Ix&-I&LF&SP=5:&+Bg)&-B  &+Iy =&-I &+Ix&-I^5_ cos_ &+Ix&-I&SP=50"
     ":&+Bh)&-B  &+Iy =&-I &+Ix&-I^5_ #EXP( &+Ix&-I#EXP)&LF&SP=5:&+Bi)&-B  &+Iy =&-I &+Ix&-I^5_ ln_ &+Ix&-"
     "I&SP=50:&+Bj)&-B  &+Iy =&-I #COC(1#N)(2&+Ix&-I#COC)&LF&SP=5:&+Bk)&-B  &+Iy =&-I #RAD(#RI(4#RI)4&+Ix&"
     "-I& +& 2#RAD)&SP=50:&+Bl)&-B  &+Iy =&-I #COC(1#N)(&+Ix&-I& +& 3#COC)&LF&SP=5:&+Bm)&-B  &+Iy =&-I #CO"
     "C(1#N)((6&+Ix&-I& +& 12)^5#COC)&SP=50:&+Bn)&-B  &+Iy =&-I sin_ (2&+Ix&-I^2& +& 4&+Ix&-I)&LF&SP=5:&+B"
     "o)&-B  &+Iy =&-I cos_ (2&+Ix&-I^2& +& 3&+Ix&-I& +& 4)&SP=50:&+Bp)&-B  &+Iy =&-I ln_ (-&+Ix&-I& +& 2)"
     "&LF&SP=5:&+Bq)&-B  &+Iy =&-I #RAD(#RI(5#RI)6&+Ix&-I& -& 1#RAD)&SP=50:&+Br)&-B  &+Iy =&-I #COC(1#N)(&"
     "+Ix&-I^2& -& 2&+Ix&-I#COC)&LF&SP=5:&+Bs)&-B  &+Iy =&-I #COC(1#N)((&+Ix&-I^2& +& 3&+Ix&-I)^3#COC)&SP="
     "50:&+Bt)&-B  &+Iy =&-I #COC(#RAD(#RI(5#RI)&+Ix&-I^2& +& 3&+Ix&-I& +& 11#RAD)#N)(2#COC)&LF&LF",
     "&SP=10:&+Ba)&-B  &+Iy&-I_ ' = 16&+Ix&-I^3& +& 24&+Ix&-I^2& +& 5&SP=55:&+Bb)&-B  &+Iy&-I_ ' = (-2&+Ix"
     "&-I& -& 1)_ sin_ (&+Ix&-I^2& +& &+Ix&-I& +& 7)&LF&SP=10:&+Bc)&-B  &+Iy&-I_ ' = #COC(7#N)(7&+Ix&-I& +"
     "& 8#COC)&SP=55:&+Bd)&-B  &+Iy&-I_ ' = #COC(4&+Ix&-I& +& 7#N)(8_ #RAD(#RI(8#RI)(2&+Ix&-I^2& +& 7&+Ix&"
     "-I& -& 1)^7#RAD)#COC)&LF&SP=10:&+Be)&-B  &+Iy&-I_ ' = #COC(3&+Ix&-I^2& -& 12&+Ix&-I& -& 28#N)((&+Ix&"
     "-I& -& 2)^2#COC)&SP=55:&+Bf)&-B  &+Iy&-I_ ' = 9&+Ix&-I^8_ sin_ &+Ix&-I + &+Ix&-I^9_ cos_ &+Ix&-I&LF&"
     "SP=10:&+Bg)&-B  &+Iy&-I_ ' = 5&+Ix&-I^4_ cos_ &+Ix&-I - &+Ix&-I^5_ sin_ &+Ix&-I&SP=55:&+Bh)&-B  &+Iy"
     "&-I_ ' = #EXP( &+Ix&-I#EXP)_ (&+Ix&-I^5 + 5&+Ix&-I^4)&LF&SP=10:&+Bi)&-B  &+Iy&-I_ ' = 5&+Ix&-I^4_ ln"
     "_ &+Ix&-I + &+Ix&-I^4&SP=55:&+Bj)&-B  &+Iy&-I_ ' = #COC(-2#N)((2&+Ix&-I)^2#COC)&LF&SP=10:&+Bk)&-B  &"
     "+Iy&-I_ ' = #COC(1#N)(#RAD(#RI(4#RI)(4&+Ix&-I& +& 2)^3#RAD)#COC)&SP=55:&+Bl)&-B  &+Iy&-I_ ' = #COC(-"
     "1#N)((&+Ix&-I& +& 3)^2#COC)&LF&SP=10:&+Bm)&-B  &+Iy&-I_ ' = #COC(-30#N)((6&+Ix&-I& +& 12)^6#COC)&SP="
     "55:&+Bn)&-B  &+Iy&-I_ ' = (4&+Ix&-I& +& 4)_ cos_ (2&+Ix&-I^2& +& 4&+Ix&-I)&LF&SP=10:&+Bo)&-B  &+Iy&-"
     "I_ ' = (-4&+Ix&-I& -& 3)_ sin_ (2&+Ix&-I^2& +& 3&+Ix&-I& +& 4)&SP=55:&+Bp)&-B  &+Iy&-I_ ' = #COC(1#N"
     ")(&+Ix&-I& -& 2#COC)&LF&SP=10:&+Bq)&-B  &+Iy&-I_ ' = #COC(6#N)(5_ #RAD(#RI(5#RI)(6&+Ix&-I& -& 1)^4#R"
     "AD)#COC)&SP=55:&+Br)&-B  &+Iy&-I_ ' = #COC(-2&+Ix&-I& +& 2#N)((&+Ix&-I^2& -& 2&+Ix&-I)^2#COC)&LF&SP="
     "10:&+Bs)&-B  &+Iy&-I_ ' = #COC(-6&+Ix&-I& -& 9#N)((&+Ix&-I^2& +& 3&+Ix&-I)^4#COC)&SP=55:&+Bt)&-B  &+"
     "Iy&-I_ ' = #COC(2&+Ix&-I& +& 3#N)(10_ #RAD(#RI(5#RI)(&+Ix&-I^2& +& 3&+Ix&-I& +& 11)^4#RAD)#COC)&LF"},
    {"0010300042050302",
     "Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I #COC(1#N)(&+Ix&-I^2& -& "
     "3&+Ix&-I& +& 6#COC)&SP=50:&+Bb)&-B  &+Iy =&-I #COC(1#N)((3&+Ix&-I& -& 3)^4#COC)&LF&SP=5:&+Bc)&-B  &+"
     "Iy =&-I ln_ (-3&+Ix&-I& +& 1)&SP=50:&+Bd)&-B  &+Iy =&-I ln_ 3&+Ix&-I^7&LF&SP=5:&+Be)&-B  &+Iy =&-I #"
     "RAD(#RI(4#RI)4&+Ix&-I^2& -& 2&+Ix&-I& -& 1#RAD)&LF&LF",
     "&SP=10:&+Ba)&-B  &+Iy&-I_ ' = #COC(-2&+Ix&-I& +& 3#N)((&+Ix&-I^2& -& 3&+Ix&-I& +& 6)^2#COC)&SP=55:&+"
     "Bb)&-B  &+Iy&-I_ ' = #COC(-12#N)((3&+Ix&-I& -& 3)^5#COC)&LF&SP=10:&+Bc)&-B  &+Iy&-I_ ' = #COC(3#N)(3"
     "&+Ix&-I& -& 1#COC)&SP=55:&+Bd)&-B  &+Iy&-I_ ' = #COC(7#N)(_ &+Ix&-I#COC)&LF&SP=10:&+Be)&-B  &+Iy&-I_"
     " ' = #COC(4&+Ix&-I& -& 1#N)(2_ #RAD(#RI(4#RI)(4&+Ix&-I^2& -& 2&+Ix&-I& -& 1)^3#RAD)#COC)&LF"},
    {"0010008999010101",
     "Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I #EXP( -4&+Ix&-I#EXP)&LF&"
     "LF",
     "&SP=10:&+Ba)&-B  &+Iy&-I_ ' = -4_ #EXP( -4&+Ix&-I#EXP)&LF"},
    {"0020001234200101",
     "Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I tan_ (-6&+Ix&-I& +& 7)&S"
     "P=50:&+Bb)&-B  &+Iy =&-I #COC(&+Ix&-I#N)(ln_ &+Ix&-I#COC)&LF&SP=5:&+Bc)&-B  &+Iy =&-I #COC(sin_ &+Ix"
     "&-I#N)(1 + cos_ &+Ix&-I#COC)&SP=50:&+Bd)&-B  &+Iy =&-I ln_ (&+Ix&-I + #SQR(&+Ix&-I^2& +& 17#SQR))&LF"
     "&SP=5:&+Be)&-B  &+Iy =&-I arctan_ (8&+Ix&-I& -& 4)&SP=50:&+Bf)&-B  &+Iy =&-I arcsin_ 5&+Ix&-I&LF&SP="
     "5:&+Bg)&-B  &+Iy =&-I arccos_ 3&+Ix&-I&SP=50:&+Bh)&-B  &+Iy =&-I ln sin_ (9&+Ix&-I& -& 5)&LF&SP=5:&+"
     "Bi)&-B  &+Iy =&-I ln cos_ (5&+Ix&-I& +& 1)&SP=50:&+Bj)&-B  &+Iy =&-I arctan_ &+Ix&-I^4&LF&SP=5:&+Bk)"
     "&-B  &+Iy =&-I arcsin_ #SQR(&+Ix&-I#SQR)&SP=50:&+Bl)&-B  &+Iy =&-I #EXP( 9&+Ix&-I#EXP)_ sin_ 7&+Ix&-"
     "I&LF&SP=5:&+Bm)&-B  &+Iy =&-I #EXP( 2&+Ix&-I#EXP)_ cos_ 4&+Ix&-I&SP=50:&+Bn)&-B  &+Iy =&-I arccos_ 7"
     "&+Ix&-I&LF&SP=5:&+Bo)&-B  &+Iy =&-I ln sin_ (6&+Ix&-I& -& 6)&SP=50:&+Bp)&-B  &+Iy =&-I #EXP( 6&+Ix&-"
     "I#EXP)_ sin_ 6&+Ix&-I&LF&SP=5:&+Bq)&-B  &+Iy =&-I #EXP( 10&+Ix&-I#EXP)_ cos_ 9&+Ix&-I&SP=50:&+Br)&-B"
     "  &+Iy =&-I arctan_ (6&+Ix&-I& -& 8)&LF&SP=5:&+Bs)&-B  &+Iy =&-I #EXP( 3&+Ix&-I#EXP)_ sin_ 4&+Ix&-I&"
     "SP=50:&+Bt)&-B  &+Iy =&-I #EXP( 11&+Ix&-I#EXP)_ cos_ 8&+Ix&-I&LF&LF",
     "&SP=10:&+Ba)&-B  &+Iy&-I_ ' = #COC(-6#N)(cos^2_ (-6&+Ix&-I& +& 7)#COC)&SP=55:&+Bb)&-B  &+Iy&-I_ ' = "
     "#COC(ln_ &+Ix&-I - 1#N)(ln^2_ &+Ix&-I#COC)&LF&SP=10:&+Bc)&-B  &+Iy&-I_ ' = #COC(1#N)(1 + cos_ &+Ix&-"
     "I#COC)&SP=55:&+Bd)&-B  &+Iy&-I_ ' = #COC(1#N)(#SQR(&+Ix&-I^2& +& 17#SQR)#COC)&LF&SP=10:&+Be)&-B  &+I"
     "y&-I_ ' = #COC(8#N)(1 + (8&+Ix&-I& -& 4)^2#COC)&SP=55:&+Bf)&-B  &+Iy&-I_ ' = #COC(5#N)(#SQR(1 - 25&+"
     "Ix&-I^2#SQR)#COC)&LF&SP=10:&+Bg)&-B  &+Iy&-I_ ' = #COC(-3#N)(#SQR(1 - 9&+Ix&-I^2#SQR)#COC)&SP=55:&+B"
     "h)&-B  &+Iy&-I_ ' = #COC(9cos_ (9&+Ix&-I& -& 5)#N)(sin_ (9&+Ix&-I& -& 5)#COC)&LF&SP=10:&+Bi)&-B  &+I"
     "y&-I_ ' = #COC(-5sin_ (5&+Ix&-I& +& 1)#N)(cos_ (5&+Ix&-I& +& 1)#COC)&SP=55:&+Bj)&-B  &+Iy&-I_ ' = #C"
     "OC(4&+Ix&-I^3#N)(1 + &+Ix&-I^8#COC)&LF&SP=10:&+Bk)&-B  &+Iy&-I_ ' = #COC(1#N)(2#SQR(&+Ix&-I#SQR)_ #S"
     "QR(1 - &+Ix&-I#SQR)#COC)&SP=55:&+Bl)&-B  &+Iy&-I_ ' = #EXP( 9&+Ix&-I#EXP)_ (9_ sin_ 7&+Ix&-I + 7_ co"
     "s_ 7&+Ix&-I)&LF&SP=10:&+Bm)&-B  &+Iy&-I_ ' = #EXP( 2&+Ix&-I#EXP)_ (2_ cos_ 4&+Ix&-I - 4_ sin_ 4&+Ix&"
     "-I)&SP=55:&+Bn)&-B  &+Iy&-I_ ' = #COC(-7#N)(#SQR(1 - 49&+Ix&-I^2#SQR)#COC)&LF&SP=10:&+Bo)&-B  &+Iy&-"
     "I_ ' = #COC(6cos_ (6&+Ix&-I& -& 6)#N)(sin_ (6&+Ix&-I& -& 6)#COC)&SP=55:&+Bp)&-B  &+Iy&-I_ ' = #EXP( "
     "6&+Ix&-I#EXP)_ (6_ sin_ 6&+Ix&-I + 6_ cos_ 6&+Ix&-I)&LF&SP=10:&+Bq)&-B  &+Iy&-I_ ' = #EXP( 10&+Ix&-I"
     "#EXP)_ (10_ cos_ 9&+Ix&-I - 9_ sin_ 9&+Ix&-I)&SP=55:&+Br)&-B  &+Iy&-I_ ' = #COC(6#N)(1 + (6&+Ix&-I& "
     "-& 8)^2#COC)&LF&SP=10:&+Bs)&-B  &+Iy&-I_ ' = #EXP( 3&+Ix&-I#EXP)_ (3_ sin_ 4&+Ix&-I + 4_ cos_ 4&+Ix&"
     "-I)&SP=55:&+Bt)&-B  &+Iy&-I_ ' = #EXP( 11&+Ix&-I#EXP)_ (11_ cos_ 8&+Ix&-I - 8_ sin_ 8&+Ix&-I)&LF"},
    {"0020300042050302",
     "Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I ln cos_ (&+Ix&-I& -& 8)&"
     "SP=50:&+Bb)&-B  &+Iy =&-I arctan_ &+Ix&-I^4&LF&SP=5:&+Bc)&-B  &+Iy =&-I arcsin_ #SQR(&+Ix&-I#SQR)&SP"
     "=50:&+Bd)&-B  &+Iy =&-I #EXP( 11&+Ix&-I#EXP)_ cos_ 6&+Ix&-I&LF&SP=5:&+Be)&-B  &+Iy =&-I ln_ #COC(&+I"
     "x&-I& +& 12#N)(&+Ix&-I& -& 6#COC)&LF&LF",
     "&SP=10:&+Ba)&-B  &+Iy&-I_ ' = #COC(-sin_ (&+Ix&-I& -& 8)#N)(cos_ (&+Ix&-I& -& 8)#COC)&SP=55:&+Bb)&-B"
     "  &+Iy&-I_ ' = #COC(4&+Ix&-I^3#N)(1 + &+Ix&-I^8#COC)&LF&SP=10:&+Bc)&-B  &+Iy&-I_ ' = #COC(1#N)(2#SQR"
     "(&+Ix&-I#SQR)_ #SQR(1 - &+Ix&-I#SQR)#COC)&SP=55:&+Bd)&-B  &+Iy&-I_ ' = #EXP( 11&+Ix&-I#EXP)_ (11_ co"
     "s_ 6&+Ix&-I - 6_ sin_ 6&+Ix&-I)&LF&SP=10:&+Be)&-B  &+Iy&-I_ ' = #COC(-18#N)((&+Ix&-I& +& 12)_ (&+Ix&"
     "-I& -& 6)#COC)&LF"},
    {"0020008999010101",
     "Find the derivative of the following functions:&LF&SP=5:&+Ba)&-B  &+Iy =&-I #EXP( 11&+Ix&-I#EXP)_ si"
     "n_ &+Ix&-I&LF&LF",
     "&SP=10:&+Ba)&-B  &+Iy&-I_ ' = #EXP( 11&+Ix&-I#EXP)_ (11_ sin_ &+Ix&-I + cos_ &+Ix&-I)&LF"},
};
} // namespace

TEST(DerivativesGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_LFD", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
