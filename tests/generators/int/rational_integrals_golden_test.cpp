#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0010001234030101",
     "&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(-7x& +& 1#N)(x^2& +& 10x& +& 16#C"
     "OC) dx#INT)&-I&SP=35:&-I&+Bb)&-B &+I#INT(#COC(8x& -& 4#N)(x^2& +& 14x& +& 49#COC) dx#INT)&-I&SP=65:&"
     "-I&+Bc)&-B &+I#INT(#COC(3x& +& 6#N)(x& +& 7#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B -#COC(19#N)(2#COC)&-Iln|&+Ix + 8| + #COC(5#N)(2#COC)&-Iln|&+Ix + 2| + C&-I&SP=55:"
     "&-I&+Bb)&-B 8&-Iln|&+Ix + 7| + #COC(60#N)(x + 7#COC) + C&-I&LF&SP=10:&-I&+Bc)&-B 3x - 15&-Iln|&+Ix +"
     " 7| + C&-I&LF"},
    {"0010000042140302",
     "&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(2x& -& 6#N)(x^2& -& 2x& -& 8#COC)"
     " dx#INT)&-I&SP=35:&-I&+Bb)&-B &+I#INT(#COC(3x#N)(x^2& +& 6x& +& 9#COC) dx#INT)&-I&SP=65:&-I&+Bc)&-B "
     "&+I#INT(#COC(-5x& -& 8#N)(x& -& 4#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bd)&-B &+I#INT(#COC(3x& +& 5#N)(x^"
     "2& -& 11x& +& 28#COC) dx#INT)&-I&SP=35:&-I&+Be)&-B &+I#INT(#COC(7x& +& 8#N)(x^2& +& 14x& +& 49#COC) "
     "dx#INT)&-I&SP=65:&-I&+Bf)&-B &+I#INT(#COC(-9x& +& 6#N)(x& +& 1#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bg)&-"
     "B &+I#INT(#COC(2x& +& 9#N)(x^2& -& 36#COC) dx#INT)&-I&SP=35:&-I&+Bh)&-B &+I#INT(#COC(-2x& +& 5#N)(x^"
     "2& -& 12x& +& 36#COC) dx#INT)&-I&SP=65:&-I&+Bi)&-B &+I#INT(#COC(7x#N)(x& +& 6#COC) dx#INT)&-I&LF&LF&"
     "SP=5:&-I&+Bj)&-B &+I#INT(#COC(8x& +& 5#N)(x^2& +& 3x& -& 4#COC) dx#INT)&-I&SP=35:&-I&+Bk)&-B &+I#INT"
     "(#COC(-2x& +& 3#N)(x^2& +& 10x& +& 25#COC) dx#INT)&-I&SP=65:&-I&+Bl)&-B &+I#INT(#COC(2x& -& 1#N)(x& "
     "+& 3#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bm)&-B &+I#INT(#COC(-3x& +& 2#N)(x^2& -& 8x& +& 7#COC) dx#INT)&"
     "-I&SP=35:&-I&+Bn)&-B &+I#INT(#COC(-5x& +& 1#N)(x^2& -& 8x& +& 16#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(1#N)(3#COC)&-Iln|&+Ix - 4| + #COC(5#N)(3#COC)&-Iln|&+Ix + 2| + C&-I&SP=55:&-"
     "I&+Bb)&-B 3&-Iln|&+Ix + 3| + #COC(9#N)(x + 3#COC) + C&-I&LF&SP=10:&-I&+Bc)&-B -5x - 28&-Iln|&+Ix - 4"
     "| + C&-I&SP=55:&-I&+Bd)&-B -#COC(17#N)(3#COC)&-Iln|&+Ix - 4| + #COC(26#N)(3#COC)&-Iln|&+Ix - 7| + C&"
     "-I&LF&SP=10:&-I&+Be)&-B 7&-Iln|&+Ix + 7| + #COC(41#N)(x + 7#COC) + C&-I&SP=55:&-I&+Bf)&-B -9x + 15&-"
     "Iln|&+Ix + 1| + C&-I&LF&SP=10:&-I&+Bg)&-B #COC(7#N)(4#COC)&-Iln|&+Ix - 6| + #COC(1#N)(4#COC)&-Iln|&+"
     "Ix + 6| + C&-I&SP=55:&-I&+Bh)&-B -2&-Iln|&+Ix - 6| + #COC(7#N)(x - 6#COC) + C&-I&LF&SP=10:&-I&+Bi)&-"
     "B 7x - 42&-Iln|&+Ix + 6| + C&-I&SP=55:&-I&+Bj)&-B #COC(27#N)(5#COC)&-Iln|&+Ix + 4| + #COC(13#N)(5#CO"
     "C)&-Iln|&+Ix - 1| + C&-I&LF&SP=10:&-I&+Bk)&-B -2&-Iln|&+Ix + 5| - #COC(13#N)(x + 5#COC) + C&-I&SP=55"
     ":&-I&+Bl)&-B 2x - 7&-Iln|&+Ix + 3| + C&-I&LF&SP=10:&-I&+Bm)&-B -#COC(19#N)(6#COC)&-Iln|&+Ix - 7| + #"
     "COC(1#N)(6#COC)&-Iln|&+Ix - 1| + C&-I&SP=55:&-I&+Bn)&-B -5&-Iln|&+Ix - 4| + #COC(19#N)(x - 4#COC) + "
     "C&-I&LF"},
    {"0010008999260909",
     "&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(8x& -& 9#N)(x^2& -& 10x& +& 21#CO"
     "C) dx#INT)&-I&SP=35:&-I&+Bb)&-B &+I#INT(#COC(x& -& 9#N)(x^2& +& 16x& +& 64#COC) dx#INT)&-I&SP=65:&-I"
     "&+Bc)&-B &+I#INT(#COC(8x& -& 2#N)(x& -& 6#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bd)&-B &+I#INT(#COC(3x& +&"
     " 10#N)(x^2& -& 10x& +& 21#COC) dx#INT)&-I&SP=35:&-I&+Be)&-B &+I#INT(#COC(x& -& 2#N)(x^2& -& 14x& +& "
     "49#COC) dx#INT)&-I&SP=65:&-I&+Bf)&-B &+I#INT(#COC(-2x& +& 8#N)(x& +& 8#COC) dx#INT)&-I&LF&LF&SP=5:&-"
     "I&+Bg)&-B &+I#INT(#COC(-3#N)(x^2& -& 13x& +& 42#COC) dx#INT)&-I&SP=35:&-I&+Bh)&-B &+I#INT(#COC(-6x& "
     "+& 3#N)(x^2& +& 4x& +& 4#COC) dx#INT)&-I&SP=65:&-I&+Bi)&-B &+I#INT(#COC(3x& +& 3#N)(x& +& 4#COC) dx#"
     "INT)&-I&LF&LF&SP=5:&-I&+Bj)&-B &+I#INT(#COC(3x& +& 7#N)(x^2& -& 9x#COC) dx#INT)&-I&SP=35:&-I&+Bk)&-B"
     " &+I#INT(#COC(9x& +& 7#N)(x^2& -& 18x& +& 81#COC) dx#INT)&-I&SP=65:&-I&+Bl)&-B &+I#INT(#COC(4x& +& 1"
     "#N)(x& +& 9#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bm)&-B &+I#INT(#COC(-5x#N)(x^2& +& 4x& -& 5#COC) dx#INT)"
     "&-I&SP=35:&-I&+Bn)&-B &+I#INT(#COC(-4x& +& 2#N)(x^2& +& 6x& +& 9#COC) dx#INT)&-I&SP=65:&-I&+Bo)&-B &"
     "+I#INT(#COC(9x& +& 2#N)(x& +& 5#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bp)&-B &+I#INT(#COC(-9x& -& 7#N)(x^2"
     "& +& x& -& 20#COC) dx#INT)&-I&SP=35:&-I&+Bq)&-B &+I#INT(#COC(-8x& -& 6#N)(x^2& +& 10x& +& 25#COC) dx"
     "#INT)&-I&SP=65:&-I&+Br)&-B &+I#INT(#COC(-9x& +& 8#N)(x& -& 2#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bs)&-B "
     "&+I#INT(#COC(-x& +& 8#N)(x^2& -& x& -& 20#COC) dx#INT)&-I&SP=35:&-I&+Bt)&-B &+I#INT(#COC(8x& -& 6#N)"
     "(x^2& -& 4x& +& 4#COC) dx#INT)&-I&SP=65:&-I&+Bu)&-B &+I#INT(#COC(9x& -& 6#N)(x& +& 5#COC) dx#INT)&-I"
     "&LF&LF&SP=5:&-I&+Bv)&-B &+I#INT(#COC(-6x& -& 2#N)(x^2& +& x& -& 2#COC) dx#INT)&-I&SP=35:&-I&+Bw)&-B "
     "&+I#INT(#COC(-7x& +& 1#N)(x^2& -& 12x& +& 36#COC) dx#INT)&-I&SP=65:&-I&+Bx)&-B &+I#INT(#COC(-4x& -& "
     "3#N)(x& +& 7#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+By)&-B &+I#INT(#COC(-5x& -& 9#N)(x^2& +& x& -& 12#COC) "
     "dx#INT)&-I&SP=35:&-I&+Bz)&-B &+I#INT(#COC(-7x& -& 3#N)(x^2& +& 16x& +& 64#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B -#COC(15#N)(4#COC)&-Iln|&+Ix - 3| + #COC(47#N)(4#COC)&-Iln|&+Ix - 7| + C&-I&SP=55"
     ":&-I&+Bb)&-B &-Iln|&+Ix + 8| + #COC(17#N)(x + 8#COC) + C&-I&LF&SP=10:&-I&+Bc)&-B 8x + 46&-Iln|&+Ix -"
     " 6| + C&-I&SP=55:&-I&+Bd)&-B #COC(31#N)(4#COC)&-Iln|&+Ix - 7| - #COC(19#N)(4#COC)&-Iln|&+Ix - 3| + C"
     "&-I&LF&SP=10:&-I&+Be)&-B &-Iln|&+Ix - 7| - #COC(5#N)(x - 7#COC) + C&-I&SP=55:&-I&+Bf)&-B -2x + 24&-I"
     "ln|&+Ix + 8| + C&-I&LF&SP=10:&-I&+Bg)&-B 3&-Iln|&+Ix - 6| - 3&-Iln|&+Ix - 7| + C&-I&SP=55:&-I&+Bh)&-"
     "B -6&-Iln|&+Ix + 2| - #COC(15#N)(x + 2#COC) + C&-I&LF&SP=10:&-I&+Bi)&-B 3x - 9&-Iln|&+Ix + 4| + C&-I"
     "&SP=55:&-I&+Bj)&-B -#COC(7#N)(9#COC)&-Iln|&+Ix| + #COC(34#N)(9#COC)&-Iln|&+Ix - 9| + C&-I&LF&SP=10:&"
     "-I&+Bk)&-B 9&-Iln|&+Ix - 9| - #COC(88#N)(x - 9#COC) + C&-I&SP=55:&-I&+Bl)&-B 4x - 35&-Iln|&+Ix + 9| "
     "+ C&-I&LF&SP=10:&-I&+Bm)&-B -#COC(5#N)(6#COC)&-Iln|&+Ix - 1| - #COC(25#N)(6#COC)&-Iln|&+Ix + 5| + C&"
     "-I&SP=55:&-I&+Bn)&-B -4&-Iln|&+Ix + 3| - #COC(14#N)(x + 3#COC) + C&-I&LF&SP=10:&-I&+Bo)&-B 9x - 43&-"
     "Iln|&+Ix + 5| + C&-I&SP=55:&-I&+Bp)&-B -#COC(38#N)(9#COC)&-Iln|&+Ix + 5| - #COC(43#N)(9#COC)&-Iln|&+"
     "Ix - 4| + C&-I&LF&SP=10:&-I&+Bq)&-B -8&-Iln|&+Ix + 5| - #COC(34#N)(x + 5#COC) + C&-I&SP=55:&-I&+Br)&"
     "-B -9x - 10&-Iln|&+Ix - 2| + C&-I&LF&SP=10:&-I&+Bs)&-B -#COC(4#N)(3#COC)&-Iln|&+Ix + 4| + #COC(1#N)("
     "3#COC)&-Iln|&+Ix - 5| + C&-I&SP=55:&-I&+Bt)&-B 8&-Iln|&+Ix - 2| - #COC(10#N)(x - 2#COC) + C&-I&LF&SP"
     "=10:&-I&+Bu)&-B 9x - 51&-Iln|&+Ix + 5| + C&-I&SP=55:&-I&+Bv)&-B -#COC(10#N)(3#COC)&-Iln|&+Ix + 2| - "
     "#COC(8#N)(3#COC)&-Iln|&+Ix - 1| + C&-I&LF&SP=10:&-I&+Bw)&-B -7&-Iln|&+Ix - 6| + #COC(41#N)(x - 6#COC"
     ") + C&-I&SP=55:&-I&+Bx)&-B -4x + 25&-Iln|&+Ix + 7| + C&-I&LF&SP=10:&-I&+By)&-B -#COC(11#N)(7#COC)&-I"
     "ln|&+Ix + 4| - #COC(24#N)(7#COC)&-Iln|&+Ix - 3| + C&-I&SP=55:&-I&+Bz)&-B -7&-Iln|&+Ix + 8| - #COC(53"
     "#N)(x + 8#COC) + C&-I&LF"},
    {"0020007777020101",
     "&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(-7x& +& 9#N)(x^2& +& 4x& +& 13#CO"
     "C) dx#INT)&-I&SP=35:&-I&+Bb)&-B &+I#INT(#COC(-x& +& 9#N)(x^2& -& 8x& +& 65#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B -#COC(7#N)(2#COC)&-Iln|&+Ix^2& +& 4x& +& 13| + #COC(23#N)(3#COC)&-Iarctan&+I #COC"
     "(x + 2#N)(3#COC) + C&-I&LF&SP=10:&-I&+Bb)&-B -#COC(1#N)(2#COC)&-Iln|&+Ix^2& -& 8x& +& 65| + #COC(5#N"
     ")(7#COC)&-Iarctan&+I #COC(x - 4#N)(7#COC) + C&-I&LF"},
    {"0020000999100202",
     "&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(-8x& -& 7#N)(x^2& -& 18x& +& 85#C"
     "OC) dx#INT)&-I&SP=35:&-I&+Bb)&-B &+I#INT(#COC(8x& +& 1#N)(x^2& -& 12x& +& 100#COC) dx#INT)&-I&SP=65:"
     "&-I&+Bc)&-B &+I#INT(#COC(9x& -& 6#N)(x^2& -& 8x& +& 52#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bd)&-B &+I#IN"
     "T(#COC(-3x& -& 7#N)(x^2& -& 6x& +& 58#COC) dx#INT)&-I&SP=35:&-I&+Be)&-B &+I#INT(#COC(-6x& +& 3#N)(x^"
     "2& +& 16#COC) dx#INT)&-I&SP=65:&-I&+Bf)&-B &+I#INT(#COC(9x& +& 3#N)(x^2& +& 4x& +& 53#COC) dx#INT)&-"
     "I&LF&LF&SP=5:&-I&+Bg)&-B &+I#INT(#COC(-6#N)(x^2& -& 12x& +& 40#COC) dx#INT)&-I&SP=35:&-I&+Bh)&-B &+I"
     "#INT(#COC(-4x& -& 1#N)(x^2& -& 2x& +& 17#COC) dx#INT)&-I&SP=65:&-I&+Bi)&-B &+I#INT(#COC(-2x& +& 7#N)"
     "(x^2& -& 4x& +& 8#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bj)&-B &+I#INT(#COC(7x& +& 2#N)(x^2& +& 10x& +& 89"
     "#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B -4&-Iln|&+Ix^2& -& 18x& +& 85| - #COC(79#N)(2#COC)&-Iarctan&+I #COC(x - 9#N)(2#CO"
     "C) + C&-I&LF&SP=10:&-I&+Bb)&-B 4&-Iln|&+Ix^2& -& 12x& +& 100| + #COC(49#N)(8#COC)&-Iarctan&+I #COC(x"
     " - 6#N)(8#COC) + C&-I&LF&SP=10:&-I&+Bc)&-B #COC(9#N)(2#COC)&-Iln|&+Ix^2& -& 8x& +& 52| + 5&-Iarctan&"
     "+I #COC(x - 4#N)(6#COC) + C&-I&LF&SP=10:&-I&+Bd)&-B -#COC(3#N)(2#COC)&-Iln|&+Ix^2& -& 6x& +& 58| - #"
     "COC(16#N)(7#COC)&-Iarctan&+I #COC(x - 3#N)(7#COC) + C&-I&LF&SP=10:&-I&+Be)&-B -3&-Iln|&+Ix^2& +& 16|"
     " + #COC(3#N)(4#COC)&-Iarctan&+I #COC(x#N)(4#COC) + C&-I&LF&SP=10:&-I&+Bf)&-B #COC(9#N)(2#COC)&-Iln|&"
     "+Ix^2& +& 4x& +& 53| - #COC(15#N)(7#COC)&-Iarctan&+I #COC(x + 2#N)(7#COC) + C&-I&LF&SP=10:&-I&+Bg)&-"
     "B -3&-Iarctan&+I #COC(x - 6#N)(2#COC) + C&-I&LF&SP=10:&-I&+Bh)&-B -2&-Iln|&+Ix^2& -& 2x& +& 17| - #C"
     "OC(5#N)(4#COC)&-Iarctan&+I #COC(x - 1#N)(4#COC) + C&-I&LF&SP=10:&-I&+Bi)&-B -&-Iln|&+Ix^2& -& 4x& +&"
     " 8| + #COC(3#N)(2#COC)&-Iarctan&+I #COC(x - 2#N)(2#COC) + C&-I&LF&SP=10:&-I&+Bj)&-B #COC(7#N)(2#COC)"
     "&-Iln|&+Ix^2& +& 10x& +& 89| - #COC(33#N)(8#COC)&-Iarctan&+I #COC(x + 5#N)(8#COC) + C&-I&LF"},
    {"0020004321050301",
     "&-ISolve the following integrals:&LF&SP=5:&-I&+Ba)&-B &+I#INT(#COC(-x& +& 9#N)(x^2& +& 12x& +& 85#CO"
     "C) dx#INT)&-I&SP=35:&-I&+Bb)&-B &+I#INT(#COC(-8x& +& 1#N)(x^2& -& 12x& +& 61#COC) dx#INT)&-I&SP=65:&"
     "-I&+Bc)&-B &+I#INT(#COC(-x& +& 2#N)(x^2& +& 8x& +& 32#COC) dx#INT)&-I&LF&LF&SP=5:&-I&+Bd)&-B &+I#INT"
     "(#COC(9x& -& 3#N)(x^2& +& 18x& +& 117#COC) dx#INT)&-I&SP=35:&-I&+Be)&-B &+I#INT(#COC(8x& -& 9#N)(x^2"
     "& +& 6x& +& 34#COC) dx#INT)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B -#COC(1#N)(2#COC)&-Iln|&+Ix^2& +& 12x& +& 85| + #COC(15#N)(7#COC)&-Iarctan&+I #CO"
     "C(x + 6#N)(7#COC) + C&-I&LF&SP=10:&-I&+Bb)&-B -4&-Iln|&+Ix^2& -& 12x& +& 61| - #COC(47#N)(5#COC)&-Ia"
     "rctan&+I #COC(x - 6#N)(5#COC) + C&-I&LF&SP=10:&-I&+Bc)&-B -#COC(1#N)(2#COC)&-Iln|&+Ix^2& +& 8x& +& 3"
     "2| + #COC(3#N)(2#COC)&-Iarctan&+I #COC(x + 4#N)(4#COC) + C&-I&LF&SP=10:&-I&+Bd)&-B #COC(9#N)(2#COC)&"
     "-Iln|&+Ix^2& +& 18x& +& 117| - 14&-Iarctan&+I #COC(x + 9#N)(6#COC) + C&-I&LF&SP=10:&-I&+Be)&-B 4&-Il"
     "n|&+Ix^2& +& 6x& +& 34| - #COC(33#N)(5#COC)&-Iarctan&+I #COC(x + 3#N)(5#COC) + C&-I&LF"},
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
