#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0050001234260101",
     "&-ISolve the following integrals:&LF&SP=10:&+Ba)&-B #INT(#EXP( 7&+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx&-I"
     "#INT)&SP=41:&+Bb)&-B #INT(#EXP( &+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bc)&-B #INT((8&+Ix"
     "&-I& +& 1)_ sin_ 9&+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bd)&-B #INT(arctan_ &+Ix&-I_ &+Idx&-I#INT)&SP"
     "=41:&+Be)&-B #INT(&+Ix&-I_ arctan_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bf)&-B #INT(arcsin_ &+Ix&-I_ &+Idx"
     "&-I#INT)&LF&LF&SP=10:&+Bg)&-B #INT(ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&+Bh)&-B #INT(8&+Ix&-I_ ln_ 10&+"
     "Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bi)&-B #INT(&+Ix&-I_ #EXP( 5&+Ix&-I#EXP)_ &+Idx&-I#INT)&LF&LF&SP=10:&+B"
     "j)&-B #INT(&+Ix&-I_ cos_ 4&+Ix&-I_ &+Idx&-I#INT)&SP=41:&+Bk)&-B #INT(arctan_ 10&+Ix&-I_ &+Idx&-I#INT"
     ")&SP=72:&+Bl)&-B #INT(&+Ix&-I^2_ #EXP( &+Ix&-I#EXP)_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bm)&-B #INT((9&+Ix&"
     "-I& -& 3)_ sin_ 6&+Ix&-I_ &+Idx&-I#INT)&SP=41:&+Bn)&-B #INT(#EXP( &+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&"
     "-I#INT)&SP=72:&+Bo)&-B #INT(&+Ix&-I_ cos_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bp)&-B #INT(&+Ix&-I_ "
     "ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&+Bq)&-B #INT(&+Ix&-I_ sin_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Br)&-B #"
     "INT(&+Ix&-I^3_ ln_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bs)&-B #INT(#EXP( 10&+Ix&-I#EXP)_ sin_ &+Ix&"
     "-I_ &+Idx&-I#INT)&SP=41:&+Bt)&-B #INT(&+Ix&-I^7_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bu)&-B #INT(&+Ix"
     "&-I_ cos_ 3&+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bv)&-B #INT(&+Ix&-I^5_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP"
     "=41:&+Bw)&-B #INT(arcsin_ 9&+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bx)&-B #INT((4&+Ix&-I& -& 2)_ #EXP( 2&+Ix&"
     "-I#EXP)_ &+Idx&-I#INT)&LF&LF&SP=10:&+By)&-B #INT(#EXP( 4&+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&-I#INT)&SP"
     "=41:&+Bz)&-B #INT(7&+Ix&-I_ ln_ 10&+Ix&-I_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&+Ba)&-B #COC(#EXP( 7&+Ix&-I#EXP)_ (7sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(50#COC) + &+IC&-I&SP=55:"
     "&+Bb)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&LF&SP=10:&+Bc)&-"
     "B #COC(8sin_ 9&+Ix&-I - (72&+Ix&-I& +& 9)_ cos_ 9&+Ix&-I#N)(81#COC) + &+IC&-I&SP=55:&+Bd)&-B #COC(2&"
     "+Ix&-I_ arctan_ &+Ix&-I - ln|1 + &+Ix&-I^2|#N)(2#COC) + &+IC&-I&LF&SP=10:&+Be)&-B #COC((&+Ix&-I^2 + "
     "1)_ arctan_ &+Ix&-I - &+Ix&-I#N)(2#COC) + &+IC&-I&SP=55:&+Bf)&-B &+Ix&-I_ arcsin_ &+Ix&-I + #SQR(1 -"
     " &+Ix&-I^2#SQR) + &+IC&-I&LF&SP=10:&+Bg)&-B &+Ix&-I_ (ln_ &+Ix&-I - 1) + &+IC&-I&SP=55:&+Bh)&-B 2&+I"
     "x&-I^2_ (2_ ln_ 10&+Ix&-I - 1) + &+IC&-I&LF&SP=10:&+Bi)&-B #COC(#EXP( 5&+Ix&-I#EXP)_ (5&+Ix&-I - 1)#"
     "N)(25#COC) + &+IC&-I&SP=55:&+Bj)&-B #COC(cos_ 4&+Ix&-I + 4&+Ix&-I_ sin_ 4&+Ix&-I#N)(16#COC) + &+IC&-"
     "I&LF&SP=10:&+Bk)&-B #COC(20&+Ix&-I_ arctan_ 10&+Ix&-I - ln|1 + 100&+Ix&-I^2|#N)(20#COC) + &+IC&-I&SP"
     "=55:&+Bl)&-B #EXP( &+Ix&-I#EXP)_ (&+Ix&-I^2 - 2&+Ix&-I + 2) + &+IC&-I&LF&SP=10:&+Bm)&-B #COC(3sin_ 6"
     "&+Ix&-I - (18&+Ix&-I& -& 6)_ cos_ 6&+Ix&-I#N)(12#COC) + &+IC&-I&SP=55:&+Bn)&-B #COC(#EXP( &+Ix&-I#EX"
     "P)_ (sin_ &+Ix&-I + cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&LF&SP=10:&+Bo)&-B &+Ix&-I_ sin_ &+Ix&-I + cos_"
     " &+Ix&-I + &+IC&-I&SP=55:&+Bp)&-B #COC(&+Ix&-I^2_ (2_ ln_ &+Ix&-I - 1)#N)(4#COC) + &+IC&-I&LF&SP=10:"
     "&+Bq)&-B -&+Ix&-I_ cos_ &+Ix&-I + sin_ &+Ix&-I + &+IC&-I&SP=55:&+Br)&-B #COC(&+Ix&-I^4_ (4_ ln_ &+Ix"
     "&-I - 1)#N)(16#COC) + &+IC&-I&LF&SP=10:&+Bs)&-B #COC(#EXP( 10&+Ix&-I#EXP)_ (10sin_ &+Ix&-I - cos_ &+"
     "Ix&-I)#N)(101#COC) + &+IC&-I&SP=55:&+Bt)&-B #COC(&+Ix&-I^8_ (8_ ln_ &+Ix&-I - 1)#N)(64#COC) + &+IC&-"
     "I&LF&SP=10:&+Bu)&-B #COC(cos_ 3&+Ix&-I + 3&+Ix&-I_ sin_ 3&+Ix&-I#N)(9#COC) + &+IC&-I&SP=55:&+Bv)&-B "
     "#COC(&+Ix&-I^6_ (6_ ln_ &+Ix&-I - 1)#N)(36#COC) + &+IC&-I&LF&SP=10:&+Bw)&-B #COC(9&+Ix&-I_ arcsin_ 9"
     "&+Ix&-I + #SQR(1 - 81&+Ix&-I^2#SQR)#N)(9#COC) + &+IC&-I&SP=55:&+Bx)&-B #EXP( 2&+Ix&-I#EXP)_ (2&+Ix&-"
     "I& -& 2) + &+IC&-I&LF&SP=10:&+By)&-B #COC(#EXP( 4&+Ix&-I#EXP)_ (4cos_ &+Ix&-I + sin_ &+Ix&-I)#N)(17#"
     "COC) + &+IC&-I&SP=55:&+Bz)&-B #COC(7&+Ix&-I^2_ (2_ ln_ 10&+Ix&-I - 1)#N)(4#COC) + &+IC&-I&LF"},
    {"0050100077030301",
     "&-ISolve the following integrals:&LF&SP=10:&+Ba)&-B #INT(#EXP( &+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&-I#"
     "INT)&SP=41:&+Bb)&-B #INT(&+Ix&-I_ arctan_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bc)&-B #INT(&+Ix&-I^5_ ln_ "
     "&+Ix&-I_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&+Ba)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I + cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&SP=55:&+B"
     "b)&-B #COC((&+Ix&-I^2 + 1)_ arctan_ &+Ix&-I - &+Ix&-I#N)(2#COC) + &+IC&-I&LF&SP=10:&+Bc)&-B #COC(&+I"
     "x&-I^6_ (6_ ln_ &+Ix&-I - 1)#N)(36#COC) + &+IC&-I&LF"},
    {"0050008999080202",
     "&-ISolve the following integrals:&LF&SP=10:&+Ba)&-B #INT(#EXP( &+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx&-I#"
     "INT)&SP=41:&+Bb)&-B #INT(#EXP( &+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bc)&-B #INT(&+Ix&-I"
     "_ arctan_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bd)&-B #INT((8&+Ix&-I& -& 4)_ cos_ 2&+Ix&-I_ &+Idx&-I"
     "#INT)&SP=41:&+Be)&-B #INT(&+Ix&-I^4_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&+Bf)&-B #INT((3&+Ix&-I& -& 1)"
     "_ sin_ 9&+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&+Bg)&-B #INT(&+Ix&-I^2_ #EXP( &+Ix&-I#EXP)_ &+Idx&-I#INT"
     ")&SP=41:&+Bh)&-B #INT((&+Ix&-I& +& 5)_ sin_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&+Ba)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&SP=55:&+B"
     "b)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I + cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&LF&SP=10:&+Bc)&-B #"
     "COC((&+Ix&-I^2 + 1)_ arctan_ &+Ix&-I - &+Ix&-I#N)(2#COC) + &+IC&-I&SP=55:&+Bd)&-B #COC((8&+Ix&-I& -&"
     " 4)_ sin_ 2&+Ix&-I + 4cos_ 2&+Ix&-I#N)(2#COC) + &+IC&-I&LF&SP=10:&+Be)&-B #COC(&+Ix&-I^5_ (5_ ln_ &+"
     "Ix&-I - 1)#N)(25#COC) + &+IC&-I&SP=55:&+Bf)&-B #COC(sin_ 9&+Ix&-I - (9&+Ix&-I& -& 3)_ cos_ 9&+Ix&-I#"
     "N)(27#COC) + &+IC&-I&LF&SP=10:&+Bg)&-B #EXP( &+Ix&-I#EXP)_ (&+Ix&-I^2 - 2&+Ix&-I + 2) + &+IC&-I&SP=5"
     "5:&+Bh)&-B sin_ &+Ix&-I - (&+Ix&-I& +& 5)_ cos_ &+Ix&-I + &+IC&-I&LF"},
};
} // namespace

TEST(IntegrationByPartsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_INT", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
