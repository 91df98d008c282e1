#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0050001234260101",
     "&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(#EXP( 7&+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx"
     "&-I#INT)&SP=41:&-I&+Bb)&-B #INT(#EXP( &+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bc)&-B #I"
     "NT((8&+Ix&-I& +& 1)_ sin_ 9&+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bd)&-B #INT(arctan_ &+Ix&-I_ &+Id"
     "x&-I#INT)&SP=41:&-I&+Be)&-B #INT(&+Ix&-I_ arctan_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bf)&-B #INT(arcs"
     "in_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bg)&-B #INT(ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bh)&-B"
     " #INT(8&+Ix&-I_ ln_ 10&+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bi)&-B #INT(&+Ix&-I_ #EXP( 5&+Ix&-I#EXP)_ &+"
     "Idx&-I#INT)&LF&LF&SP=10:&-I&+Bj)&-B #INT(&+Ix&-I_ cos_ 4&+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bk)&-B #IN"
     "T(arctan_ 10&+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bl)&-B #INT(&+Ix&-I^2_ #EXP( &+Ix&-I#EXP)_ &+Idx&-I#IN"
     "T)&LF&LF&SP=10:&-I&+Bm)&-B #INT((9&+Ix&-I& -& 3)_ sin_ 6&+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bn)&-B #IN"
     "T(#EXP( &+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bo)&-B #INT(&+Ix&-I_ cos_ &+Ix&-I_ &+Id"
     "x&-I#INT)&LF&LF&SP=10:&-I&+Bp)&-B #INT(&+Ix&-I_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bq)&-B #INT(&+"
     "Ix&-I_ sin_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Br)&-B #INT(&+Ix&-I^3_ ln_ &+Ix&-I_ &+Idx&-I#INT)&LF&L"
     "F&SP=10:&-I&+Bs)&-B #INT(#EXP( 10&+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bt)&-B #INT(&+"
     "Ix&-I^7_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bu)&-B #INT(&+Ix&-I_ cos_ 3&+Ix&-I_ &+Idx&-I#INT)&LF&"
     "LF&SP=10:&-I&+Bv)&-B #INT(&+Ix&-I^5_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bw)&-B #INT(arcsin_ 9&+Ix"
     "&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bx)&-B #INT((4&+Ix&-I& -& 2)_ #EXP( 2&+Ix&-I#EXP)_ &+Idx&-I#INT)&LF&LF"
     "&SP=10:&-I&+By)&-B #INT(#EXP( 4&+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&-I#INT)&SP=41:&-I&+Bz)&-B #INT(7&+I"
     "x&-I_ ln_ 10&+Ix&-I_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(#EXP( 7&+Ix&-I#EXP)_ (7sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(50#COC) + &+IC&-I&SP="
     "55:&-I&+Bb)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&LF&SP=10:&"
     "-I&+Bc)&-B #COC(8sin_ 9&+Ix&-I - (72&+Ix&-I& +& 9)_ cos_ 9&+Ix&-I#N)(81#COC) + &+IC&-I&SP=55:&-I&+Bd"
     ")&-B #COC(2&+Ix&-I_ arctan_ &+Ix&-I - ln|1 + &+Ix&-I^2|#N)(2#COC) + &+IC&-I&LF&SP=10:&-I&+Be)&-B #CO"
     "C((&+Ix&-I^2 + 1)_ arctan_ &+Ix&-I - &+Ix&-I#N)(2#COC) + &+IC&-I&SP=55:&-I&+Bf)&-B &+Ix&-I_ arcsin_ "
     "&+Ix&-I + #SQR(1 - &+Ix&-I^2#SQR) + &+IC&-I&LF&SP=10:&-I&+Bg)&-B &+Ix&-I_ (ln_ &+Ix&-I - 1) + &+IC&-"
     "I&SP=55:&-I&+Bh)&-B 2&+Ix&-I^2_ (2_ ln_ 10&+Ix&-I - 1) + &+IC&-I&LF&SP=10:&-I&+Bi)&-B #COC(#EXP( 5&+"
     "Ix&-I#EXP)_ (5&+Ix&-I - 1)#N)(25#COC) + &+IC&-I&SP=55:&-I&+Bj)&-B #COC(cos_ 4&+Ix&-I + 4&+Ix&-I_ sin"
     "_ 4&+Ix&-I#N)(16#COC) + &+IC&-I&LF&SP=10:&-I&+Bk)&-B #COC(20&+Ix&-I_ arctan_ 10&+Ix&-I - ln|1 + 100&"
     "+Ix&-I^2|#N)(20#COC) + &+IC&-I&SP=55:&-I&+Bl)&-B #EXP( &+Ix&-I#EXP)_ (&+Ix&-I^2 - 2&+Ix&-I + 2) + &+"
     "IC&-I&LF&SP=10:&-I&+Bm)&-B #COC(3sin_ 6&+Ix&-I - (18&+Ix&-I& -& 6)_ cos_ 6&+Ix&-I#N)(12#COC) + &+IC&"
     "-I&SP=55:&-I&+Bn)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I + cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&LF&S"
     "P=10:&-I&+Bo)&-B &+Ix&-I_ sin_ &+Ix&-I + cos_ &+Ix&-I + &+IC&-I&SP=55:&-I&+Bp)&-B #COC(&+Ix&-I^2_ (2"
     "_ ln_ &+Ix&-I - 1)#N)(4#COC) + &+IC&-I&LF&SP=10:&-I&+Bq)&-B -&+Ix&-I_ cos_ &+Ix&-I + sin_ &+Ix&-I + "
     "&+IC&-I&SP=55:&-I&+Br)&-B #COC(&+Ix&-I^4_ (4_ ln_ &+Ix&-I - 1)#N)(16#COC) + &+IC&-I&LF&SP=10:&-I&+Bs"
     ")&-B #COC(#EXP( 10&+Ix&-I#EXP)_ (10sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(101#COC) + &+IC&-I&SP=55:&-I&+Bt)"
     "&-B #COC(&+Ix&-I^8_ (8_ ln_ &+Ix&-I - 1)#N)(64#COC) + &+IC&-I&LF&SP=10:&-I&+Bu)&-B #COC(cos_ 3&+Ix&-"
     "I + 3&+Ix&-I_ sin_ 3&+Ix&-I#N)(9#COC) + &+IC&-I&SP=55:&-I&+Bv)&-B #COC(&+Ix&-I^6_ (6_ ln_ &+Ix&-I - "
     "1)#N)(36#COC) + &+IC&-I&LF&SP=10:&-I&+Bw)&-B #COC(9&+Ix&-I_ arcsin_ 9&+Ix&-I + #SQR(1 - 81&+Ix&-I^2#"
     "SQR)#N)(9#COC) + &+IC&-I&SP=55:&-I&+Bx)&-B #EXP( 2&+Ix&-I#EXP)_ (2&+Ix&-I& -& 2) + &+IC&-I&LF&SP=10:"
     "&-I&+By)&-B #COC(#EXP( 4&+Ix&-I#EXP)_ (4cos_ &+Ix&-I + sin_ &+Ix&-I)#N)(17#COC) + &+IC&-I&SP=55:&-I&"
     "+Bz)&-B #COC(7&+Ix&-I^2_ (2_ ln_ 10&+Ix&-I - 1)#N)(4#COC) + &+IC&-I&LF"},
    {"0050100077030301",
     "&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(#EXP( &+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&"
     "-I#INT)&SP=41:&-I&+Bb)&-B #INT(&+Ix&-I_ arctan_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bc)&-B #INT(&+Ix&-"
     "I^5_ ln_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I + cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&SP=55:"
     "&-I&+Bb)&-B #COC((&+Ix&-I^2 + 1)_ arctan_ &+Ix&-I - &+Ix&-I#N)(2#COC) + &+IC&-I&LF&SP=10:&-I&+Bc)&-B"
     " #COC(&+Ix&-I^6_ (6_ ln_ &+Ix&-I - 1)#N)(36#COC) + &+IC&-I&LF"},
    {"0050008999080202",
     "&-ISolve the following integrals:&LF&SP=10:&-I&+Ba)&-B #INT(#EXP( &+Ix&-I#EXP)_ sin_ &+Ix&-I_ &+Idx&"
     "-I#INT)&SP=41:&-I&+Bb)&-B #INT(#EXP( &+Ix&-I#EXP)_ cos_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bc)&-B #IN"
     "T(&+Ix&-I_ arctan_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bd)&-B #INT((8&+Ix&-I& -& 4)_ cos_ 2&+Ix&"
     "-I_ &+Idx&-I#INT)&SP=41:&-I&+Be)&-B #INT(&+Ix&-I^4_ ln_ &+Ix&-I_ &+Idx&-I#INT)&SP=72:&-I&+Bf)&-B #IN"
     "T((3&+Ix&-I& -& 1)_ sin_ 9&+Ix&-I_ &+Idx&-I#INT)&LF&LF&SP=10:&-I&+Bg)&-B #INT(&+Ix&-I^2_ #EXP( &+Ix&"
     "-I#EXP)_ &+Idx&-I#INT)&SP=41:&-I&+Bh)&-B #INT((&+Ix&-I& +& 5)_ sin_ &+Ix&-I_ &+Idx&-I#INT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I - cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&SP=55:"
     "&-I&+Bb)&-B #COC(#EXP( &+Ix&-I#EXP)_ (sin_ &+Ix&-I + cos_ &+Ix&-I)#N)(2#COC) + &+IC&-I&LF&SP=10:&-I&"
     "+Bc)&-B #COC((&+Ix&-I^2 + 1)_ arctan_ &+Ix&-I - &+Ix&-I#N)(2#COC) + &+IC&-I&SP=55:&-I&+Bd)&-B #COC(("
     "8&+Ix&-I& -& 4)_ sin_ 2&+Ix&-I + 4cos_ 2&+Ix&-I#N)(2#COC) + &+IC&-I&LF&SP=10:&-I&+Be)&-B #COC(&+Ix&-"
     "I^5_ (5_ ln_ &+Ix&-I - 1)#N)(25#COC) + &+IC&-I&SP=55:&-I&+Bf)&-B #COC(sin_ 9&+Ix&-I - (9&+Ix&-I& -& "
     "3)_ cos_ 9&+Ix&-I#N)(27#COC) + &+IC&-I&LF&SP=10:&-I&+Bg)&-B #EXP( &+Ix&-I#EXP)_ (&+Ix&-I^2 - 2&+Ix&-"
     "I + 2) + &+IC&-I&SP=55:&-I&+Bh)&-B sin_ &+Ix&-I - (&+Ix&-I& +& 5)_ cos_ &+Ix&-I + &+IC&-I&LF"},
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
