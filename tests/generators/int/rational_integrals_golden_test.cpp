#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0010001234030101",
     "&-ISolve the following integrals:&LF&SP=5:&+Ba)&-B &+I#INT(#COC(-7x& +& 1#N)(x^2& +& 10x& +& 16#COC)"
     " dx#INT)&-I&SP=35:&+Bb)&-B &+I#INT(#COC(8x& -& 4#N)(x^2& +& 14x& +& 49#COC) dx#INT)&-I&SP=65:&+Bc)&-"
     "B &+I#INT(#COC(3x& +& 6#N)(x& +& 7#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&+Ba)&-B -#COC(19#N)(2#COC)&-Iln|&+Ix + 8| + #COC(5#N)(2#COC)&-Iln|&+Ix + 2| + C&SP=55:&+Bb)&"
     "-B 8&-Iln|&+Ix + 7| + #COC(60#N)(x + 7#COC) + C&LF&SP=10:&+Bc)&-B 3x - 15&-Iln|&+Ix + 7| + C&LF"},
    {"0010000042140302",
     "&-ISolve the following integrals:&LF&SP=5:&+Ba)&-B &+I#INT(#COC(2x& -& 6#N)(x^2& -& 2x& -& 8#COC) dx"
     "#INT)&-I&SP=35:&+Bb)&-B &+I#INT(#COC(3x#N)(x^2& +& 6x& +& 9#COC) dx#INT)&-I&SP=65:&+Bc)&-B &+I#INT(#"
     "COC(-5x& -& 8#N)(x& -& 4#COC) dx#INT)&-I&LF&LF&SP=5:&+Bd)&-B &+I#INT(#COC(3x& +& 5#N)(x^2& -& 11x& +"
     "& 28#COC) dx#INT)&-I&SP=35:&+Be)&-B &+I#INT(#COC(7x& +& 8#N)(x^2& +& 14x& +& 49#COC) dx#INT)&-I&SP=6"
     "5:&+Bf)&-B &+I#INT(#COC(-9x& +& 6#N)(x& +& 1#COC) dx#INT)&-I&LF&LF&SP=5:&+Bg)&-B &+I#INT(#COC(2x& +&"
     " 9#N)(x^2& -& 36#COC) dx#INT)&-I&SP=35:&+Bh)&-B &+I#INT(#COC(-2x& +& 5#N)(x^2& -& 12x& +& 36#COC) dx"
     "#INT)&-I&SP=65:&+Bi)&-B &+I#INT(#COC(7x#N)(x& +& 6#COC) dx#INT)&-I&LF&LF&SP=5:&+Bj)&-B &+I#INT(#COC("
     "8x& +& 5#N)(x^2& +& 3x& -& 4#COC) dx#INT)&-I&SP=35:&+Bk)&-B &+I#INT(#COC(-2x& +& 3#N)(x^2& +& 10x& +"
     "& 25#COC) dx#INT)&-I&SP=65:&+Bl)&-B &+I#INT(#COC(2x& -& 1#N)(x& +& 3#COC) dx#INT)&-I&LF&LF&SP=5:&+Bm"
     ")&-B &+I#INT(#COC(-3x& +& 2#N)(x^2& -& 8x& +& 7#COC) dx#INT)&-I&SP=35:&+Bn)&-B &+I#INT(#COC(-5x& +& "
     "1#N)(x^2& -& 8x& +& 16#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&+Ba)&-B #COC(1#N)(3#COC)&-Iln|&+Ix - 4| + #COC(5#N)(3#COC)&-Iln|&+Ix + 2| + C&SP=55:&+Bb)&-B"
     " 3&-Iln|&+Ix + 3| + #COC(9#N)(x + 3#COC) + C&LF&SP=10:&+Bc)&-B -5x - 28&-Iln|&+Ix - 4| + C&SP=55:&+B"
     "d)&-B -#COC(17#N)(3#COC)&-Iln|&+Ix - 4| + #COC(26#N)(3#COC)&-Iln|&+Ix - 7| + C&LF&SP=10:&+Be)&-B 7&-"
     "Iln|&+Ix + 7| + #COC(41#N)(x + 7#COC) + C&SP=55:&+Bf)&-B -9x + 15&-Iln|&+Ix + 1| + C&LF&SP=10:&+Bg)&"
     "-B #COC(7#N)(4#COC)&-Iln|&+Ix - 6| + #COC(1#N)(4#COC)&-Iln|&+Ix + 6| + C&SP=55:&+Bh)&-B -2&-Iln|&+Ix"
     " - 6| + #COC(7#N)(x - 6#COC) + C&LF&SP=10:&+Bi)&-B 7x - 42&-Iln|&+Ix + 6| + C&SP=55:&+Bj)&-B #COC(27"
     "#N)(5#COC)&-Iln|&+Ix + 4| + #COC(13#N)(5#COC)&-Iln|&+Ix - 1| + C&LF&SP=10:&+Bk)&-B -2&-Iln|&+Ix + 5|"
     " - #COC(13#N)(x + 5#COC) + C&SP=55:&+Bl)&-B 2x - 7&-Iln|&+Ix + 3| + C&LF&SP=10:&+Bm)&-B -#COC(19#N)("
     "6#COC)&-Iln|&+Ix - 7| + #COC(1#N)(6#COC)&-Iln|&+Ix - 1| + C&SP=55:&+Bn)&-B -5&-Iln|&+Ix - 4| + #COC("
     "19#N)(x - 4#COC) + C&LF"},
    {"0010008999260909",
     "&-ISolve the following integrals:&LF&SP=5:&+Ba)&-B &+I#INT(#COC(8x& -& 9#N)(x^2& -& 10x& +& 21#COC) "
     "dx#INT)&-I&SP=35:&+Bb)&-B &+I#INT(#COC(x& -& 9#N)(x^2& +& 16x& +& 64#COC) dx#INT)&-I&SP=65:&+Bc)&-B "
     "&+I#INT(#COC(8x& -& 2#N)(x& -& 6#COC) dx#INT)&-I&LF&LF&SP=5:&+Bd)&-B &+I#INT(#COC(3x& +& 10#N)(x^2& "
     "-& 10x& +& 21#COC) dx#INT)&-I&SP=35:&+Be)&-B &+I#INT(#COC(x& -& 2#N)(x^2& -& 14x& +& 49#COC) dx#INT)"
     "&-I&SP=65:&+Bf)&-B &+I#INT(#COC(-2x& +& 8#N)(x& +& 8#COC) dx#INT)&-I&LF&LF&SP=5:&+Bg)&-B &+I#INT(#CO"
     "C(-3#N)(x^2& -& 13x& +& 42#COC) dx#INT)&-I&SP=35:&+Bh)&-B &+I#INT(#COC(-6x& +& 3#N)(x^2& +& 4x& +& 4"
     "#COC) dx#INT)&-I&SP=65:&+Bi)&-B &+I#INT(#COC(3x& +& 3#N)(x& +& 4#COC) dx#INT)&-I&LF&LF&SP=5:&+Bj)&-B"
     " &+I#INT(#COC(3x& +& 7#N)(x^2& -& 9x#COC) dx#INT)&-I&SP=35:&+Bk)&-B &+I#INT(#COC(9x& +& 7#N)(x^2& -&"
     " 18x& +& 81#COC) dx#INT)&-I&SP=65:&+Bl)&-B &+I#INT(#COC(4x& +& 1#N)(x& +& 9#COC) dx#INT)&-I&LF&LF&SP"
     "=5:&+Bm)&-B &+I#INT(#COC(-5x#N)(x^2& +& 4x& -& 5#COC) dx#INT)&-I&SP=35:&+Bn)&-B &+I#INT(#COC(-4x& +&"
     " 2#N)(x^2& +& 6x& +& 9#COC) dx#INT)&-I&SP=65:&+Bo)&-B &+I#INT(#COC(9x& +& 2#N)(x& +& 5#COC) dx#INT)&"
     "-I&LF&LF&SP=5:&+Bp)&-B &+I#INT(#COC(-9x& -& 7#N)(x^2& +& x& -& 20#COC) dx#INT)&-I&SP=35:&+Bq)&-B &+I"
     "#INT(#COC(-8x& -& 6#N)(x^2& +& 10x& +& 25#COC) dx#INT)&-I&SP=65:&+Br)&-B &+I#INT(#COC(-9x& +& 8#N)(x"
     "& -& 2#COC) dx#INT)&-I&LF&LF&SP=5:&+Bs)&-B &+I#INT(#COC(-x& +& 8#N)(x^2& -& x& -& 20#COC) dx#INT)&-I"
     "&SP=35:&+Bt)&-B &+I#INT(#COC(8x& -& 6#N)(x^2& -& 4x& +& 4#COC) dx#INT)&-I&SP=65:&+Bu)&-B &+I#INT(#CO"
     "C(9x& -& 6#N)(x& +& 5#COC) dx#INT)&-I&LF&LF&SP=5:&+Bv)&-B &+I#INT(#COC(-6x& -& 2#N)(x^2& +& x& -& 2#"
     "COC) dx#INT)&-I&SP=35:&+Bw)&-B &+I#INT(#COC(-7x& +& 1#N)(x^2& -& 12x& +& 36#COC) dx#INT)&-I&SP=65:&+"
     "Bx)&-B &+I#INT(#COC(-4x& -& 3#N)(x& +& 7#COC) dx#INT)&-I&LF&LF&SP=5:&+By)&-B &+I#INT(#COC(-5x& -& 9#"
     "N)(x^2& +& x& -& 12#COC) dx#INT)&-I&SP=35:&+Bz)&-B &+I#INT(#COC(-7x& -& 3#N)(x^2& +& 16x& +& 64#COC)"
     " dx#INT)&-I&LF&LF",
     "&SP=10:&+Ba)&-B -#COC(15#N)(4#COC)&-Iln|&+Ix - 3| + #COC(47#N)(4#COC)&-Iln|&+Ix - 7| + C&SP=55:&+Bb)"
     "&-B &-Iln|&+Ix + 8| + #COC(17#N)(x + 8#COC) + C&LF&SP=10:&+Bc)&-B 8x + 46&-Iln|&+Ix - 6| + C&SP=55:&"
     "+Bd)&-B #COC(31#N)(4#COC)&-Iln|&+Ix - 7| - #COC(19#N)(4#COC)&-Iln|&+Ix - 3| + C&LF&SP=10:&+Be)&-B &-"
     "Iln|&+Ix - 7| - #COC(5#N)(x - 7#COC) + C&SP=55:&+Bf)&-B -2x + 24&-Iln|&+Ix + 8| + C&LF&SP=10:&+Bg)&-"
     "B 3&-Iln|&+Ix - 6| - 3&-Iln|&+Ix - 7| + C&SP=55:&+Bh)&-B -6&-Iln|&+Ix + 2| - #COC(15#N)(x + 2#COC) +"
     " C&LF&SP=10:&+Bi)&-B 3x - 9&-Iln|&+Ix + 4| + C&SP=55:&+Bj)&-B -#COC(7#N)(9#COC)&-Iln|&+Ix| + #COC(34"
     "#N)(9#COC)&-Iln|&+Ix - 9| + C&LF&SP=10:&+Bk)&-B 9&-Iln|&+Ix - 9| - #COC(88#N)(x - 9#COC) + C&SP=55:&"
     "+Bl)&-B 4x - 35&-Iln|&+Ix + 9| + C&LF&SP=10:&+Bm)&-B -#COC(5#N)(6#COC)&-Iln|&+Ix - 1| - #COC(25#N)(6"
     "#COC)&-Iln|&+Ix + 5| + C&SP=55:&+Bn)&-B -4&-Iln|&+Ix + 3| - #COC(14#N)(x + 3#COC) + C&LF&SP=10:&+Bo)"
     "&-B 9x - 43&-Iln|&+Ix + 5| + C&SP=55:&+Bp)&-B -#COC(38#N)(9#COC)&-Iln|&+Ix + 5| - #COC(43#N)(9#COC)&"
     "-Iln|&+Ix - 4| + C&LF&SP=10:&+Bq)&-B -8&-Iln|&+Ix + 5| - #COC(34#N)(x + 5#COC) + C&SP=55:&+Br)&-B -9"
     "x - 10&-Iln|&+Ix - 2| + C&LF&SP=10:&+Bs)&-B -#COC(4#N)(3#COC)&-Iln|&+Ix + 4| + #COC(1#N)(3#COC)&-Iln"
     "|&+Ix - 5| + C&SP=55:&+Bt)&-B 8&-Iln|&+Ix - 2| - #COC(10#N)(x - 2#COC) + C&LF&SP=10:&+Bu)&-B 9x - 51"
     "&-Iln|&+Ix + 5| + C&SP=55:&+Bv)&-B -#COC(10#N)(3#COC)&-Iln|&+Ix + 2| - #COC(8#N)(3#COC)&-Iln|&+Ix - "
     "1| + C&LF&SP=10:&+Bw)&-B -7&-Iln|&+Ix - 6| + #COC(41#N)(x - 6#COC) + C&SP=55:&+Bx)&-B -4x + 25&-Iln|"
     "&+Ix + 7| + C&LF&SP=10:&+By)&-B -#COC(11#N)(7#COC)&-Iln|&+Ix + 4| - #COC(24#N)(7#COC)&-Iln|&+Ix - 3|"
     " + C&SP=55:&+Bz)&-B -7&-Iln|&+Ix + 8| - #COC(53#N)(x + 8#COC) + C&LF"},
    {"0020007777020101",
     "&-ISolve the following integrals:&LF&SP=5:&+Ba)&-B &+I#INT(#COC(-7x& +& 9#N)(x^2& +& 4x& +& 13#C"
     "OC) dx#INT)&-I&SP=35:&+Bb)&-B &+I#INT(#COC(-x& +& 9#N)(x^2& -& 8x& +& 65#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&+Ba)&-B -#COC(7#N)(2#COC)&-Iln|&+Ix^2& +& 4x& +& 13| + #COC(23#N)(3#COC)&-Iarctan&+I #CO"
     "C(x + 2#N)(3#COC) + C&LF&SP=10:&+Bb)&-B -#COC(1#N)(2#COC)&-Iln|&+Ix^2& -& 8x& +& 65| + #COC(5#N)"
     "(7#COC)&-Iarctan&+I #COC(x - 4#N)(7#COC) + C&LF"},
    {"0020000999100202",
     "&-ISolve the following integrals:&LF&SP=5:&+Ba)&-B &+I#INT(#COC(-8x& -& 7#N)(x^2& -& 18x& +& 85#"
     "COC) dx#INT)&-I&SP=35:&+Bb)&-B &+I#INT(#COC(8x& +& 1#N)(x^2& -& 12x& +& 100#COC) dx#INT)&-I&SP=6"
     "5:&+Bc)&-B &+I#INT(#COC(9x& -& 6#N)(x^2& -& 8x& +& 52#COC) dx#INT)&-I&LF&LF&SP=5:&+Bd)&-B &+I#IN"
     "T(#COC(-3x& -& 7#N)(x^2& -& 6x& +& 58#COC) dx#INT)&-I&SP=35:&+Be)&-B &+I#INT(#COC(-6x& +& 3#N)(x"
     "^2& +& 16#COC) dx#INT)&-I&SP=65:&+Bf)&-B &+I#INT(#COC(9x& +& 3#N)(x^2& +& 4x& +& 53#COC) dx#INT)"
     "&-I&LF&LF&SP=5:&+Bg)&-B &+I#INT(#COC(-6#N)(x^2& -& 12x& +& 40#COC) dx#INT)&-I&SP=35:&+Bh)&-B &+I"
     "#INT(#COC(-4x& -& 1#N)(x^2& -& 2x& +& 17#COC) dx#INT)&-I&SP=65:&+Bi)&-B &+I#INT(#COC(-2x& +& 7#N"
     ")(x^2& -& 4x& +& 8#COC) dx#INT)&-I&LF&LF&SP=5:&+Bj)&-B &+I#INT(#COC(7x& +& 2#N)(x^2& +& 10x& +& "
     "89#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&+Ba)&-B -4&-Iln|&+Ix^2& -& 18x& +& 85| - #COC(79#N)(2#COC)&-Iarctan&+I #COC(x - 9#N)(2#C"
     "OC) + C&LF&SP=10:&+Bb)&-B 4&-Iln|&+Ix^2& -& 12x& +& 100| + #COC(49#N)(8#COC)&-Iarctan&+I #COC(x "
     "- 6#N)(8#COC) + C&LF&SP=10:&+Bc)&-B #COC(9#N)(2#COC)&-Iln|&+Ix^2& -& 8x& +& 52| + 5&-Iarctan&+I "
     "#COC(x - 4#N)(6#COC) + C&LF&SP=10:&+Bd)&-B -#COC(3#N)(2#COC)&-Iln|&+Ix^2& -& 6x& +& 58| - #COC(1"
     "6#N)(7#COC)&-Iarctan&+I #COC(x - 3#N)(7#COC) + C&LF&SP=10:&+Be)&-B -3&-Iln|&+Ix^2& +& 16| + #COC"
     "(3#N)(4#COC)&-Iarctan&+I #COC(x#N)(4#COC) + C&LF&SP=10:&+Bf)&-B #COC(9#N)(2#COC)&-Iln|&+Ix^2& +&"
     " 4x& +& 53| - #COC(15#N)(7#COC)&-Iarctan&+I #COC(x + 2#N)(7#COC) + C&LF&SP=10:&+Bg)&-B -3&-Iarct"
     "an&+I #COC(x - 6#N)(2#COC) + C&LF&SP=10:&+Bh)&-B -2&-Iln|&+Ix^2& -& 2x& +& 17| - #COC(5#N)(4#COC"
     ")&-Iarctan&+I #COC(x - 1#N)(4#COC) + C&LF&SP=10:&+Bi)&-B -&-Iln|&+Ix^2& -& 4x& +& 8| + #COC(3#N)"
     "(2#COC)&-Iarctan&+I #COC(x - 2#N)(2#COC) + C&LF&SP=10:&+Bj)&-B #COC(7#N)(2#COC)&-Iln|&+Ix^2& +& "
     "10x& +& 89| - #COC(33#N)(8#COC)&-Iarctan&+I #COC(x + 5#N)(8#COC) + C&LF"},
    {"0020004321050301",
     "&-ISolve the following integrals:&LF&SP=5:&+Ba)&-B &+I#INT(#COC(-x& +& 9#N)(x^2& +& 12x& +& 85#C"
     "OC) dx#INT)&-I&SP=35:&+Bb)&-B &+I#INT(#COC(-8x& +& 1#N)(x^2& -& 12x& +& 61#COC) dx#INT)&-I&SP=65"
     ":&+Bc)&-B &+I#INT(#COC(-x& +& 2#N)(x^2& +& 8x& +& 32#COC) dx#INT)&-I&LF&LF&SP=5:&+Bd)&-B &+I#INT"
     "(#COC(9x& -& 3#N)(x^2& +& 18x& +& 117#COC) dx#INT)&-I&SP=35:&+Be)&-B &+I#INT(#COC(8x& -& 9#N)(x^"
     "2& +& 6x& +& 34#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&+Ba)&-B -#COC(1#N)(2#COC)&-Iln|&+Ix^2& +& 12x& +& 85| + #COC(15#N)(7#COC)&-Iarctan&+I #C"
     "OC(x + 6#N)(7#COC) + C&LF&SP=10:&+Bb)&-B -4&-Iln|&+Ix^2& -& 12x& +& 61| - #COC(47#N)(5#COC)&-Iar"
     "ctan&+I #COC(x - 6#N)(5#COC) + C&LF&SP=10:&+Bc)&-B -#COC(1#N)(2#COC)&-Iln|&+Ix^2& +& 8x& +& 32| "
     "+ #COC(3#N)(2#COC)&-Iarctan&+I #COC(x + 4#N)(4#COC) + C&LF&SP=10:&+Bd)&-B #COC(9#N)(2#COC)&-Iln|"
     "&+Ix^2& +& 18x& +& 117| - 14&-Iarctan&+I #COC(x + 9#N)(6#COC) + C&LF&SP=10:&+Be)&-B 4&-Iln|&+Ix^"
     "2& +& 6x& +& 34| - #COC(33#N)(5#COC)&-Iarctan&+I #COC(x + 3#N)(5#COC) + C&LF"},
};
} // namespace

TEST(RationalIntegralsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_INT", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
