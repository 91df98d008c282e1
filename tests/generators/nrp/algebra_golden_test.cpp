#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes of the polynomial, algebraic-fraction, angle and complex-number routines
// with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0030001234030101",
     "Simplify the following expressions:&LF&SP=5:&+Ba)&-B&+I #COC(&+Ix&-I^2& -& 36#N)(&+Ix&-I& -& 1#COC) "
     "· #COC(&+Ix&-I& -& 1#N)(&+Ix&-I^2& +& 3&+Ix&-I& -& 18#COC)&-I&SP=37.5:&+Bb)&-B&+I #COC(3&+Ix&-I& -& "
     "21#N)((&+Ix&-I& -& 8)^2#COC) · #COC(&+Ix&-I& -& 8#N)(5&+Ix&-I& -& 35#COC)&-I&LF&SP=5:&+Bc)&-B&+I #CO"
     "C((&+Ix&-I& -& 8)^2#N)(-& 7&+Ix&-I& -& 14#COC) · #COC(8&+Ix&-I& +& 16#N)(&+Ix&-I& -& 8#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(&+Ix&-I& -& 6#N)(&+Ix&-I& -& 3#COC)&SP=30:&-I&+Bb)&-B #COC(3#N)(5&+Ix&-I& -&"
     " 40#COC)&SP=50:&-I&+Bc)&-B #COC(-& 8&+Ix&-I& +& 64#N)(7#COC)&LF"},
    {"0035174071070402",
     "Simplify the following expressions with algebraic fractions:&LF&SP=5:&+Ba)&-B&+I #COC((&+Ix&-I& +& 3"
     ")^2#N)(&+Ix&-I^2& -& 25#COC) : #COC(&+Ix&-I& +& 3#N)(&+Ix&-I& -& 5#COC)&-I&SP=37.5:&+Bb)&-B&+I #COC("
     "-& 9&+Ix&-I& +& 18#N)(&+Ix&-I& +& 6#COC) · #COC(&+Ix&-I^2& +& 9&+Ix&-I& +& 18#N)(&+Ix&-I^2& -& 9&+Ix"
     "&-I& +& 14#COC)&-I&LF&SP=5:&+Bc)&-B&+I #COC(&+Ix&-I^2& -& 64#N)(3&+Ix&-I& -& 3#COC) : #COC(&+Ix&-I& "
     "-& 8#N)(7&+Ix&-I& -& 7#COC)&-I&SP=37.5:&+Bd)&-B&+I #COC(&+Ix&-I^2& -& 12&+Ix&-I& +& 27#N)(&+Ix&-I^2&"
     " -& 7&+Ix&-I& +& 12#COC) · #COC(&+Ix&-I& -& 4#N)(&+Ix&-I& -& 6#COC)&-I&LF&SP=5:&+Be)&-B&+I #COC(&+Ix"
     "&-I^2& -& 4#N)(&+Ix&-I& -& 1#COC) · #COC(&+Ix&-I& -& 1#N)(&+Ix&-I^2& +& 8&+Ix&-I& +& 12#COC)&-I&SP=3"
     "7.5:&+Bf)&-B&+I #COC(3&+Ix&-I& -& 6#N)((&+Ix&-I& +& 1)^2#COC) · #COC(&+Ix&-I& +& 1#N)(8&+Ix&-I& -& 1"
     "6#COC)&-I&LF&SP=5:&+Bg)&-B&+I #COC(&+Ix&-I^2& +& &+Ix&-I& -& 30#N)(&+Ix&-I& -& 1#COC) : #COC(&+Ix&-I"
     "& +& 6#N)(&+Ix&-I^2& -& 8&+Ix&-I& +& 7#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(&+Ix&-I& +& 3#N)(&+Ix&-I& +& 5#COC)&SP=30:&-I&+Bb)&-B #COC(-& 9&+Ix&-I& -& 2"
     "7#N)(&+Ix&-I& -& 7#COC)&SP=50:&-I&+Bc)&-B #COC(7&+Ix&-I& +& 56#N)(3#COC)&SP=70:&-I&+Bd)&-B #COC(&+Ix"
     "&-I& -& 9#N)(&+Ix&-I& -& 6#COC)&LF&SP=10:&-I&+Be)&-B #COC(&+Ix&-I& -& 2#N)(&+Ix&-I& +& 6#COC)&SP=30:"
     "&-I&+Bf)&-B #COC(3#N)(8&+Ix&-I& +& 8#COC)&SP=50:&-I&+Bg)&-B &+Ix&-I^2& -& 12&+Ix&-I& +& 35&LF"},
    {"0038998999011010",
     "Simplify the following expressions:&LF&SP=5:&+Ba)&-B&+I #COC((&+Ix&-I& -& 7)_ (&+Ix&-I& +& 8)#N)((&+"
     "Ix&-I& +& 4)_ (&+Ix&-I& +& 1)#COC) · #COC(&+Ix&-I& +& 4#N)(&+Ix&-I& -& 7#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(&+Ix&-I& +& 8#N)(&+Ix&-I& +& 1#COC)&LF"},
    {"0040001234030101",
     "Simplify the following expressions with algebraic fractions:&LF&SP=5:&+Ba)&-B&+I #COC(6#N)(&+Ix&-I& "
     "-& 6#COC) + #COC(8#N)(&+Ix&-I& -& 1#COC)&-I&SP=37.5:&+Bb)&-B&+I #COC(4#N)(&+Ix&-I& -& 7#COC) - #COC("
     "7#N)((&+Ix&-I& -& 7)^2#COC)&-I&LF&SP=5:&+Bc)&-B&+I #COC(8&+Ix&-I#N)(&+Ix&-I^2& -& 64#COC) - #COC(5#N"
     ")(&+Ix&-I& -& 8#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(14&+Ix&-I& -& 54#N)((&+Ix&-I& -& 6)_ (&+Ix&-I& -& 1)#COC)&SP=30:&-I&+Bb)&-B "
     "#COC(4&+Ix&-I& -& 35#N)((&+Ix&-I& -& 7)^2#COC)&SP=50:&-I&+Bc)&-B #COC(3&+Ix&-I& -& 40#N)((&+Ix&-I& -"
     "& 8)_ (&+Ix&-I& +& 8)#COC)&LF"},
    {"0045174071070402",
     "Simplify the following expressions:&LF&SP=5:&+Ba)&-B&+I #COC(&+Ix&-I& -& 1#N)(&+Ix&-I& -& 3#COC) - #"
     "COC(&+Ix&-I& -& 3#N)(&+Ix&-I& -& 6#COC)&-I&SP=37.5:&+Bb)&-B&+I #COC(8#N)(&+Ix&-I#COC) - #COC(9#N)(&+"
     "Ix&-I& +& 6#COC)&-I&LF&SP=5:&+Bc)&-B&+I #COC(8#N)(&+Ix&-I& -& 8#COC) + #COC(6#N)(&+Ix&-I& -& 1#COC)&"
     "-I&SP=37.5:&+Bd)&-B&+I #COC(&+Ix&-I& +& 6#N)(&+Ix&-I^2& -& 4#COC) + #COC(9#N)(&+Ix&-I& -& 2#COC)&-I&"
     "LF&SP=5:&+Be)&-B&+I #COC(3&+Ix&-I#N)(&+Ix&-I^2& -& 4#COC) - #COC(3#N)(&+Ix&-I& -& 2#COC)&-I&SP=37.5:"
     "&+Bf)&-B&+I #COC(&+Ix&-I& +& 3#N)(&+Ix&-I& -& 2#COC) - #COC(&+Ix&-I& -& 7#N)(&+Ix&-I& +& 1#COC)&-I&L"
     "F&SP=5:&+Bg)&-B&+I #COC(7#N)(&+Ix&-I& +& 2#COC) + #COC(6#N)(&+Ix&-I& +& 6#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(-& &+Ix&-I& -& 3#N)((&+Ix&-I& -& 3)_ (&+Ix&-I& -& 6)#COC)&SP=30:&-I&+Bb)&-B "
     "#COC(-& &+Ix&-I& +& 48#N)(&+Ix&-I_ (&+Ix&-I& +& 6)#COC)&SP=50:&-I&+Bc)&-B #COC(14&+Ix&-I& -& 56#N)(("
     "&+Ix&-I& -& 8)_ (&+Ix&-I& -& 1)#COC)&SP=70:&-I&+Bd)&-B #COC(10&+Ix&-I& +& 24#N)((&+Ix&-I& +& 2)_ (&+"
     "Ix&-I& -& 2)#COC)&LF&SP=10:&-I&+Be)&-B #COC(-& 6#N)((&+Ix&-I& -& 2)_ (&+Ix&-I& +& 2)#COC)&SP=30:&-I&"
     "+Bf)&-B #COC(13&+Ix&-I& -& 11#N)((&+Ix&-I& -& 2)_ (&+Ix&-I& +& 1)#COC)&SP=50:&-I&+Bg)&-B #COC(13&+Ix"
     "&-I& +& 54#N)((&+Ix&-I& +& 2)_ (&+Ix&-I& +& 6)#COC)&LF"},
    {"0048998999011010",
     "Simplify the following expressions:&LF&SP=5:&+Ba)&-B&+I #COC(3&+Ix&-I#N)(&+Ix&-I^2& -& 49#COC) - #CO"
     "C(9#N)(&+Ix&-I& -& 7#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(-& 6&+Ix&-I& -& 63#N)((&+Ix&-I& -& 7)_ (&+Ix&-I& +& 7)#COC)&LF"},
    {"0160001234030101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I ( 26&+Ix&-I^3& +& 3&+Ix&-I )  +  ( 4&+Ix&-I"
     "^2& +& 22&+Ix&-I& -& 3 )&-I&LF&SP=5:&+Bb)&-B&+I ( 26&+Ix&-I^4& +& 8&+Ix&-I^3 )  -  ( 11&+Ix&-I^2& -&"
     " 2 )&-I&LF&SP=5:&+Bc)&-B&+I ( 12&+Ix&-I )  +  ( 29&+Ix&-I^3& +& 7&+Ix&-I^2& -& 8&+Ix&-I& +& 5 )&-I&L"
     "F&LF",
     "&SP=10:&-I&+Ba)&-B 26&+Ix&-I^3& +& 4&+Ix&-I^2& +& 25&+Ix&-I& -& 3&SP=50:&-I&+Bb)&-B 26&+Ix&-I^4& +& "
     "8&+Ix&-I^3& -& 11&+Ix&-I^2& +& 2&LF&SP=10:&-I&+Bc)&-B 29&+Ix&-I^3& +& 7&+Ix&-I^2& +& 4&+Ix&-I& +& 5&"
     "LF"},
    {"0165174071070402",
     "Calculate these expressions involving polynomials.&LF&SP=5:&+Ba)&-B&+I ( 20&+Ix&-I^3& -& 6&+Ix&-I^2&"
     " +& 15&+Ix&-I& +& 17 )  +  ( 22&+Ix&-I^2& +& 9 )&-I&LF&SP=5:&+Bb)&-B&+I ( 4&+Ix&-I )  -  ( 19&+Ix&-I"
     "^3& -& 7&+Ix&-I^2& -& 8&+Ix&-I& +& 28 )&-I&LF&SP=5:&+Bc)&-B&+I ( -& 4&+Ix&-I^2& +& 19&+Ix&-I )  -  ("
     " 19&+Ix&-I& +& 23 )&-I&LF&SP=5:&+Bd)&-B&+I ( 13&+Ix&-I^3& -& 2&+Ix&-I^2& -& 4 )  +  ( 15&+Ix&-I^2& +"
     "& 7&+Ix&-I& +& 7 )&-I&LF&SP=5:&+Be)&-B&+I ( -& 3&+Ix&-I^3& +& 20&+Ix&-I^2& +& 7 )  -  ( 5&+Ix&-I^2& "
     "+& 15&+Ix&-I& +& 26 )&-I&LF&SP=5:&+Bf)&-B&+I ( 15&+Ix&-I& +& 9 )  +  ( 4&+Ix&-I^2& +& 29&+Ix&-I )&-I"
     "&LF&SP=5:&+Bg)&-B&+I ( 14&+Ix&-I^3& -& 8&+Ix&-I )  -  ( 10&+Ix&-I^3& +& 3&+Ix&-I& +& 27 )&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 20&+Ix&-I^3& +& 16&+Ix&-I^2& +& 15&+Ix&-I& +& 26&SP=50:&-I&+Bb)&-B -& 19&+Ix&-I^3"
     "& +& 7&+Ix&-I^2& +& 12&+Ix&-I& -& 28&LF&SP=10:&-I&+Bc)&-B -& 4&+Ix&-I^2& -& 23&SP=50:&-I&+Bd)&-B 13&"
     "+Ix&-I^3& +& 13&+Ix&-I^2& +& 7&+Ix&-I& +& 3&LF&SP=10:&-I&+Be)&-B -& 3&+Ix&-I^3& +& 15&+Ix&-I^2& -& 1"
     "5&+Ix&-I& -& 19&SP=50:&-I&+Bf)&-B 4&+Ix&-I^2& +& 44&+Ix&-I& +& 9&LF&SP=10:&-I&+Bg)&-B 4&+Ix&-I^3& -&"
     " 11&+Ix&-I& -& 27&LF"},
    {"0168998999011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I ( 28&+Ix&-I& +& 8 )  -  ( -& 8&+Ix&-I^2& -&"
     " 7&+Ix&-I )&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 8&+Ix&-I^2& +& 35&+Ix&-I& +& 8&LF"},
    {"0170001234030101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I (&+Ix&-I^2& +& 4)(7&+Ix&-I^2& -& 2)&-I&SP=2"
     "9:&+Bb)&-B&+I (&+Ix&-I^2& +& 6)^2&-I&SP=53:&+Bc)&-B&+I (&+Ix&-I& +& 5)(&+Ix&-I& -& 5)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 7&+Ix&-I^4& +& 26&+Ix&-I^2& -& 8&SP=50:&-I&+Bb)&-B &+Ix&-I^4& +& 12&+Ix&-I^2& +& "
     "36&LF&SP=10:&-I&+Bc)&-B &+Ix&-I^2& -& 25&LF"},
    {"0175174071070402",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B&+I (&+Ix&-I& -& 1)^3&-I&SP=29:&+Bb)&-B&+I (&+Ix&-I& +&"
     " 4)(&+Ix&-I& +& 4)&-I&SP=53:&+Bc)&-B&+I (2&+Ix&-I^2& +& 2)^2&-I&LF&SP=5:&+Bd)&-B&+I (8&+Ix&-I& +& 7)"
     "(8&+Ix&-I& -& 7)&-I&SP=29:&+Be)&-B&+I (&+Ix&-I& -& 4)^3&-I&SP=53:&+Bf)&-B&+I (&+Ix&-I^2& +& 7)(&+Ix&"
     "-I& -& 3)&-I&LF&SP=5:&+Bg)&-B&+I (&+Ix&-I^2& +& 4)^2&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I^3& -& 3&+Ix&-I^2& +& 3&+Ix&-I& -& 1&SP=50:&-I&+Bb)&-B &+Ix&-I^2& +& 8&+Ix"
     "&-I& +& 16&LF&SP=10:&-I&+Bc)&-B 4&+Ix&-I^4& +& 8&+Ix&-I^2& +& 4&SP=50:&-I&+Bd)&-B 64&+Ix&-I^2& -& 49"
     "&LF&SP=10:&-I&+Be)&-B &+Ix&-I^3& -& 12&+Ix&-I^2& +& 48&+Ix&-I& -& 64&SP=50:&-I&+Bf)&-B &+Ix&-I^3& -&"
     " 3&+Ix&-I^2& +& 7&+Ix&-I& -& 21&LF&SP=10:&-I&+Bg)&-B &+Ix&-I^4& +& 8&+Ix&-I^2& +& 16&LF"},
    {"0178998999011010",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B&+I (&+Ix&-I^2& -& 1)(&+Ix&-I^2& +& 1)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I^4& -& 1&LF"},
    {"0180001234030101",
     "Factorize the following polynomials:&LF&SP=5:&+Ba)&-B&+I 3&+Ix&-I^3& -& 30&+Ix&-I^2& +& 96&+Ix&-I& -"
     "& 96&-I&LF&SP=5:&+Bb)&-B&+I &+Ix&-I^4& +& 4&+Ix&-I^3& -& &+Ix&-I^2& -& 16&+Ix&-I& -& 12&-I&LF&SP=5:&"
     "+Bc)&-B&+I &+Ix&-I^3& -& 6&+Ix&-I^2& +& 11&+Ix&-I& -& 6&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 3 ( &+Ix&-I& -& 2 ) ( &+Ix&-I& -& 4 )^2&LF&SP=10:&-I&+Bb)&-B ( &+Ix&-I& -& 2 ) ( "
     "&+Ix&-I& +& 3 ) ( &+Ix&-I& +& 2 ) ( &+Ix&-I& +& 1 )&LF&SP=10:&-I&+Bc)&-B ( &+Ix&-I& -& 3 ) ( &+Ix&-I"
     "& -& 2 ) ( &+Ix&-I& -& 1 )&LF"},
    {"0185174071070402",
     "Factorize the following polynomials:&LF&SP=5:&+Ba)&-B&+I &+Ix&-I^3& +& 3&+Ix&-I^2& -& 10&+Ix&-I& -& "
     "24&-I&LF&SP=5:&+Bb)&-B&+I &+Ix&-I^3& -& 4&+Ix&-I^2& +& 3&+Ix&-I&-I&LF&SP=5:&+Bc)&-B&+I 4&+Ix&-I^4& -"
     "& 20&+Ix&-I^2& +& 16&-I&LF&SP=5:&+Bd)&-B&+I &+Ix&-I^2& -& 6&+Ix&-I& +& 9&-I&LF&SP=5:&+Be)&-B&+I &+Ix"
     "&-I^3& -& &+Ix&-I&-I&LF&SP=5:&+Bf)&-B&+I &+Ix&-I^4& -& 3&+Ix&-I^3& -& 9&+Ix&-I^2& +& 23&+Ix&-I& -& 1"
     "2&-I&LF&SP=5:&+Bg)&-B&+I &+Ix&-I^3& +& &+Ix&-I^2& -& 6&+Ix&-I&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B ( &+Ix&-I& +& 2 ) ( &+Ix&-I& -& 3 ) ( &+Ix&-I& +& 4 )&LF&SP=10:&-I&+Bb)&-B &+Ix&-"
     "I ( &+Ix&-I& -& 1 ) ( &+Ix&-I& -& 3 )&LF&SP=10:&-I&+Bc)&-B 4 ( &+Ix&-I& -& 1 ) ( &+Ix&-I& +& 2 ) ( &"
     "+Ix&-I& -& 2 ) ( &+Ix&-I& +& 1 )&LF&SP=10:&-I&+Bd)&-B ( &+Ix&-I& -& 3 )^2&LF&SP=10:&-I&+Be)&-B &+Ix&"
     "-I ( &+Ix&-I& -& 1 ) ( &+Ix&-I& +& 1 )&LF&SP=10:&-I&+Bf)&-B ( &+Ix&-I& +& 3 ) ( &+Ix&-I& -& 4 ) ( &+"
     "Ix&-I& -& 1 )^2&LF&SP=10:&-I&+Bg)&-B &+Ix&-I ( &+Ix&-I& +& 3 ) ( &+Ix&-I& -& 2 )&LF"},
    {"0188998999011010",
     "Factorize these polynomials:&LF&SP=5:&+Ba)&-B&+I &+Ix&-I^2& -& 2&+Ix&-I& -& 3&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B ( &+Ix&-I& +& 1 ) ( &+Ix&-I& -& 3 )&LF"},
    {"0190001234030101",
     "Calculate quotient and remainder of these divisions:&LF&SP=5:&+Ba)&-B&+I ( 4&+Ix&-I^4& -& 9&+Ix&-I^3"
     "& -& 15&+Ix&-I^2& -& 40&+Ix&-I& -& 10 ) : ( &+Ix&-I& -& 4 )&-I&LF&SP=5:&+Bb)&-B&+I ( -& &+Ix&-I^4& +"
     "& 16&+Ix&-I^3& -& 74&+Ix&-I^2& +& 106&+Ix&-I& -& 66 ) : ( &+Ix&-I^2& -& 6&+Ix&-I& +& 7 )&-I&LF&SP=5:"
     "&+Bc)&-B&+I ( 14&+Ix&-I^3& -& 70&+Ix&-I^2& +& 13&+Ix&-I& -& 71 ) : ( &+Ix&-I& -& 5 )&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B  &+Iq&-I = 4&+Ix&-I^3& +& 7&+Ix&-I^2& +& 13&+Ix&-I& +& 12,  &+Ir&-I = 38&SP=50:&-"
     "I&+Bb)&-B  &+Iq&-I = -& &+Ix&-I^2& +& 10&+Ix&-I& -& 7,  &+Ir&-I = -& 6&+Ix&-I& -& 17&LF&SP=10:&-I&+B"
     "c)&-B  &+Iq&-I = 14&+Ix&-I^2& +& 13,  &+Ir&-I = -& 6&LF"},
    {"0195174071070402",
     "Calculate quotient and remainder of these divisions:&LF&SP=5:&+Ba)&-B&+I ( 9&+Ix&-I^3& -& 52&+Ix&-I^"
     "2& +& 31&+Ix&-I& +& 34 ) : ( &+Ix&-I& -& 5 )&-I&LF&SP=5:&+Bb)&-B&+I ( 6&+Ix&-I^4& +& 28&+Ix&-I^3& +&"
     " 50&+Ix&-I^2& +& 33&+Ix&-I& +& 3 ) : ( &+Ix&-I^2& +& 3&+Ix&-I& +& 3 )&-I&LF&SP=5:&+Bc)&-B&+I ( 11&+I"
     "x&-I^3& -& 45&+Ix&-I^2& +& 17&+Ix&-I& -& 8 ) : ( &+Ix&-I& -& 4 )&-I&LF&SP=5:&+Bd)&-B&+I ( 3&+Ix&-I^3"
     "& -& 10&+Ix&-I^2& -& 102&+Ix&-I& +& 109 ) : ( &+Ix&-I^2& -& 8&+Ix&-I& +& 3 )&-I&LF&SP=5:&+Be)&-B&+I "
     "( -& 7&+Ix&-I^3& +& 22&+Ix&-I^2& +& 32&+Ix&-I& -& 43 ) : ( &+Ix&-I& -& 4 )&-I&LF&SP=5:&+Bf)&-B&+I ( "
     "-& 4&+Ix&-I^4& -& 24&+Ix&-I^3& +& 98&+Ix&-I^2& +& 104&+Ix&-I& +& 42 ) : ( &+Ix&-I^2& +& 9&+Ix&-I& +&"
     " 4 )&-I&LF&SP=5:&+Bg)&-B&+I ( -& 3&+Ix&-I^3& +& 38&+Ix&-I& -& 70 ) : ( &+Ix&-I& -& 3 )&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B  &+Iq&-I = 9&+Ix&-I^2& -& 7&+Ix&-I& -& 4,  &+Ir&-I = 14&SP=50:&-I&+Bb)&-B  &+Iq&-"
     "I = 6&+Ix&-I^2& +& 10&+Ix&-I& +& 2,  &+Ir&-I = -& 3&+Ix&-I& -& 3&LF&SP=10:&-I&+Bc)&-B  &+Iq&-I = 11&"
     "+Ix&-I^2& -& &+Ix&-I& +& 13,  &+Ir&-I = 44&SP=50:&-I&+Bd)&-B  &+Iq&-I = 3&+Ix&-I& +& 14,  &+Ir&-I = "
     "&+Ix&-I& +& 67&LF&SP=10:&-I&+Be)&-B  &+Iq&-I = -& 7&+Ix&-I^2& -& 6&+Ix&-I& +& 8,  &+Ir&-I = -& 11&SP"
     "=50:&-I&+Bf)&-B  &+Iq&-I = -& 4&+Ix&-I^2& +& 12&+Ix&-I& +& 6,  &+Ir&-I = 2&+Ix&-I& +& 18&LF&SP=10:&-"
     "I&+Bg)&-B  &+Iq&-I = -& 3&+Ix&-I^2& -& 9&+Ix&-I& +& 11,  &+Ir&-I = -& 37&LF"},
    {"0198998999011010",
     "Calculate the quotient and the remainder of the following divisions:&LF&SP=5:&+Ba)&-B&+I ( 14&+Ix&-I"
     "^3& +& 100&+Ix&-I^2& -& 105&+Ix&-I& -& 92 ) : ( &+Ix&-I^2& +& 7&+Ix&-I& -& 8 )&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B  &+Iq&-I = 14&+Ix&-I& +& 2,  &+Ir&-I = -& 7&+Ix&-I& -& 76&LF"},
    {"0200001240030101",
     "Find the value of parameter  &+Ih&-I  for which the following division is exact (remainder is zero)."
     "&LF&SP=10:( -& 4&+Ix&-I^4& +& 3&+Ix&-I^3& +& &+Ih&-I&+Ix&-I^2& +& 10 ) : ( &+Ix&-I& -& 1 )&LF",
     "&SP=10:&+IP&-I(1) = &+Ih&-I& +& 9 = 0&LF&SP=10:&+Ih&-I = -9&LF"},
    {"0205174077070402",
     "Calculate the value of parameter  &+Ia&-I  for which the following division is exact (remainder is z"
     "ero).&LF&SP=10:( &+Ia&-I&+Ix&-I^4& -& 8&+Ix&-I^2& +& 640 ) : ( &+Ix&-I& -& 4 )&LF",
     "&SP=10:&+IP&-I(4) = 256&+Ia&-I& +& 512 = 0&LF&SP=10:&+Ia&-I = -2&LF"},
    {"0208999005011010",
     "Calculate the value of parameter  &+Ip&-I  for which the following division is exact (remainder is z"
     "ero).&LF&SP=10:( 10&+Ix&-I^3& +& 4&+Ix&-I^2& +& &+Ip&-I&+Ix&-I& -& 100 ) : ( &+Ix&-I& -& 2 )&LF",
     "&SP=10:&+IP&-I(2) = 2&+Ip&-I& -& 4 = 0&LF&SP=10:&+Ip&-I = 2&LF"},
    {"0260001234030101",
     "Simplify the following algebraic fractions:&LF&SP=5:&+Ba)&-B&+I #COC(&+Ix&-I^2& -& 7&+Ix&-I& +& 6#N)"
     "(&+Ix&-I^2& -& 9&+Ix&-I& +& 18#COC)&-I&SP=29:&+Bb)&-B&+I #COC(&+Ix&-I^2& -& 9#N)((&+Ix&-I& +& 3)^2#C"
     "OC)&-I&SP=53:&+Bc)&-B&+I #COC(5&+Ix&-I^2& +& 70&+Ix&-I& +& 240#N)(6&+Ix&-I& +& 48#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(&+Ix&-I& -& 1#N)(&+Ix&-I& -& 3#COC)&SP=30:&-I&+Bb)&-B #COC(&+Ix&-I& -& 3#N)("
     "&+Ix&-I& +& 3#COC)&SP=50:&-I&+Bc)&-B #COC(5&+Ix&-I& +& 30#N)(6#COC)&LF"},
    {"0265174071070402",
     "Simplify the following algebraic fractions:&LF&SP=5:&+Ba)&-B&+I #COC(-2&+Ix&-I^2& +& 4&+Ix&-I& +& 30"
     "#N)(3&+Ix&-I& +& 9#COC)&-I&SP=29:&+Bb)&-B&+I #COC(&+Ix&-I^2& -& 9#N)(&+Ix&-I^2& -& 3&+Ix&-I& -& 18#C"
     "OC)&-I&SP=53:&+Bc)&-B&+I #COC(&+Ix&-I^2& +& 4&+Ix&-I& -& 12#N)(&+Ix&-I^2& +& &+Ix&-I& -& 6#COC)&-I&S"
     "P=76:&+Bd)&-B&+I #COC(&+Ix&-I^2& -& 64#N)((&+Ix&-I& +& 8)^2#COC)&-I&LF&SP=5:&+Be)&-B&+I #COC(&+Ix&-I"
     "^3& +& 7&+Ix&-I^2#N)(&+Ix&-I^2& +& 3&+Ix&-I& -& 28#COC)&-I&SP=29:&+Bf)&-B&+I #COC(&+Ix&-I^2& -& 36#N"
     ")(&+Ix&-I^2& +& 11&+Ix&-I& +& 30#COC)&-I&SP=53:&+Bg)&-B&+I #COC(&+Ix&-I^2& +& 5&+Ix&-I& -& 6#N)(&+Ix"
     "&-I^2& +& 4&+Ix&-I& -& 5#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(-2&+Ix&-I& +& 10#N)(3#COC)&SP=30:&-I&+Bb)&-B #COC(&+Ix&-I& -& 3#N)(&+Ix&-I& "
     "-& 6#COC)&SP=50:&-I&+Bc)&-B #COC(&+Ix&-I& +& 6#N)(&+Ix&-I& +& 3#COC)&SP=70:&-I&+Bd)&-B #COC(&+Ix&-I&"
     " -& 8#N)(&+Ix&-I& +& 8#COC)&LF&SP=10:&-I&+Be)&-B #COC(&+Ix&-I^2#N)(&+Ix&-I& -& 4#COC)&SP=30:&-I&+Bf)"
     "&-B #COC(&+Ix&-I& -& 6#N)(&+Ix&-I& +& 5#COC)&SP=50:&-I&+Bg)&-B #COC(&+Ix&-I& +& 6#N)(&+Ix&-I& +& 5#C"
     "OC)&LF"},
    {"0268998999011010",
     "Simplify the following algebraic fractions:&LF&SP=5:&+Ba)&-B&+I #COC(&+Ix&-I^3& -& 7&+Ix&-I^2#N)(&+I"
     "x&-I^2& +& &+Ix&-I& -& 56#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(&+Ix&-I^2#N)(&+Ix&-I& +& 8#COC)&LF"},
    {"0270001234030101",
     "Calculate the following expressions involving angles.&LF&SP=3:&+Ba)&-B 80°& 4'& 43\"  +  52°& 39'& 42"
     "\"&SP=35:&+Bb)&-B 69°& 25'& 45\"  +  44°& 50'& 54\"&SP=67:&+Bc)&-B 56°& 56'& 49\"  +  76°& 14'& 32\"&LF&L"
     "F",
     "&SP=10:&-I&+Ba)&-B 132°& 44'& 25\"&SP=35:&-I&+Bb)&-B 114°& 16'& 39\"&SP=67:&-I&+Bc)&-B 133°& 11'& 21\"&"
     "LF"},
    {"0275174071070402",
     "Calculate the following expressions.&LF&SP=3:&+Ba)&-B 48°& 44'& 7\"  +  23°& 49'& 9\"&SP=35:&+Bb)&-B 2"
     "7°& 54'& 37\"  +  56°& 52'& 45\"&SP=67:&+Bc)&-B 27°& 19'& 16\"  +  62°& 56'& 27\"&LF&SP=3:&+Bd)&-B 6°& 3"
     "6'& 2\"  +  18°& 53'& 31\"&SP=35:&+Be)&-B 53°& 50'& 12\"  +  18°& 5'& 38\"&SP=67:&+Bf)&-B 57°& 44'& 13\" "
     " +  53°& 36'& 44\"&LF&SP=3:&+Bg)&-B 68°& 12'& 15\"  +  53°& 59'& 25\"&LF&LF",
     "&SP=10:&-I&+Ba)&-B 72°& 33'& 16\"&SP=35:&-I&+Bb)&-B 84°& 47'& 22\"&SP=67:&-I&+Bc)&-B 90°& 15'& 43\"&LF&"
     "SP=10:&-I&+Bd)&-B 25°& 29'& 33\"&SP=35:&-I&+Be)&-B 71°& 55'& 50\"&SP=67:&-I&+Bf)&-B 111°& 20'& 57\"&LF&"
     "SP=10:&-I&+Bg)&-B 122°& 11'& 40\"&LF"},
    {"0278998999011010",
     "Calculate the following expressions involving angles.&LF&SP=3:&+Ba)&-B 26°& 10'& 53\"  +  8°& 42'& 9\""
     "&LF&LF",
     "&SP=10:&-I&+Ba)&-B 34°& 53'& 2\"&LF"},
    {"0280001234030101",
     "Calculate the following expressions involving angles.&LF&SP=5:&+Ba)&-B 80°& 4'& 43\"  -  (52°& 39'& 4"
     "2\")&SP=43:&+Bb)&-B 69°& 25'& 45\"  -  (44°& 50'& 54\")&LF&SP=5:&+Bc)&-B 76°& 14'& 32\"  -  (56°& 56'& 4"
     "9\")&LF&LF",
     "&SP=10:&-I&+Ba)&-B 27°& 25'& 1\"&SP=35:&-I&+Bb)&-B 24°& 34'& 51\"&SP=67:&-I&+Bc)&-B 19°& 17'& 43\"&LF"},
    {"0285174071070402",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B 48°& 44'& 7\"  -  (23°& 49'& 9\")&SP=43:&+Bb)&-B"
     " 56°& 52'& 45\"  -  (27°& 54'& 37\")&LF&SP=5:&+Bc)&-B 62°& 56'& 27\"  -  (27°& 19'& 16\")&SP=43:&+Bd)&-B"
     " 18°& 53'& 31\"  -  (6°& 36'& 2\")&LF&SP=5:&+Be)&-B 53°& 50'& 12\"  -  (18°& 5'& 38\")&SP=43:&+Bf)&-B 57"
     "°& 44'& 13\"  -  (53°& 36'& 44\")&LF&SP=5:&+Bg)&-B 68°& 12'& 15\"  -  (53°& 59'& 25\")&LF&LF",
     "&SP=10:&-I&+Ba)&-B 24°& 54'& 58\"&SP=35:&-I&+Bb)&-B 28°& 58'& 8\"&SP=67:&-I&+Bc)&-B 35°& 37'& 11\"&LF&S"
     "P=10:&-I&+Bd)&-B 12°& 17'& 29\"&SP=35:&-I&+Be)&-B 35°& 44'& 34\"&SP=67:&-I&+Bf)&-B 4°& 7'& 29\"&LF&SP=1"
     "0:&-I&+Bg)&-B 14°& 12'& 50\"&LF"},
    {"0288998999011010",
     "Calculate the following expressions involving angles.&LF&SP=3:&+Ba)&-B 26°& 10'& 53\"  -  (8°& 42'& 9"
     "\")&LF&LF",
     "&SP=10:&-I&+Ba)&-B 17°& 28'& 44\"&LF"},
    {"0290001234030101",
     "Calculate these expressions.&LF&SP=3:&+Ba)&-B 4  ×  (80°& 4'& 43\")&SP=35:&+Bb)&-B 5  ×  (44°& 50'& 5"
     "4\")&SP=67:&+Bc)&-B 3  ×  (74°& 2'& 53\")&LF&LF",
     "&SP=10:&-I&+Ba)&-B 320°& 18'& 52\"&SP=35:&-I&+Bb)&-B 224°& 14'& 30\"&SP=67:&-I&+Bc)&-B 222°& 8'& 39\"&L"
     "F"},
    {"0295174071070402",
     "Calculate these expressions involving angles.&LF&SP=3:&+Ba)&-B 3  ×  (48°& 44'& 7\")&SP=35:&+Bb)&-B 4"
     "  ×  (56°& 52'& 45\")&SP=67:&+Bc)&-B 4  ×  (6°& 36'& 2\")&LF&SP=3:&+Bd)&-B 4  ×  (18°& 5'& 38\")&SP=35:"
     "&+Be)&-B 4  ×  (68°& 12'& 15\")&SP=67:&+Bf)&-B 3  ×  (39°& 37'& 37\")&LF&SP=3:&+Bg)&-B 5  ×  (51°& 54'"
     "& 56\")&LF&LF",
     "&SP=10:&-I&+Ba)&-B 146°& 12'& 21\"&SP=35:&-I&+Bb)&-B 227°& 31'& &SP=67:&-I&+Bc)&-B 26°& 24'& 8\"&LF&SP"
     "=10:&-I&+Bd)&-B 72°& 22'& 32\"&SP=35:&-I&+Be)&-B 272°& 49'& &SP=67:&-I&+Bf)&-B 118°& 52'& 51\"&LF&SP=1"
     "0:&-I&+Bg)&-B 259°& 34'& 40\"&LF"},
    {"0298998999011010",
     "Calculate these expressions.&LF&SP=3:&+Ba)&-B 5  ×  (26°& 10'& 53\")&LF&LF",
     "&SP=10:&-I&+Ba)&-B 130°& 54'& 25\"&LF"},
    {"0300001234030101",
     "Calculate these expressions.&LF&SP=3:&+Ba)&-B (80°& 4'& 40\")  :  4&SP=35:&+Bb)&-B (44°& 50'& 50\")  :"
     "  5&SP=67:&+Bc)&-B (74°& 2'& 51\")  :  3&LF&LF",
     "&SP=10:&-I&+Ba)&-B 20°& 1'& 10\"&SP=35:&-I&+Bb)&-B 8°& 58'& 10\"&SP=67:&-I&+Bc)&-B 24°& 40'& 57\"&LF"},
    {"0305174071070402",
     "Calculate these expressions involving angles.&LF&SP=3:&+Ba)&-B (48°& 44'& 6\")  :  3&SP=35:&+Bb)&-B ("
     "56°& 52'& 44\")  :  4&SP=67:&+Bc)&-B (6°& 36'& )  :  4&LF&SP=3:&+Bd)&-B (18°& 5'& 36\")  :  4&SP=35:&+"
     "Be)&-B (68°& 12'& 12\")  :  4&SP=67:&+Bf)&-B (39°& 37'& 36\")  :  3&LF&SP=3:&+Bg)&-B (51°& 54'& 55\")  "
     ":  5&LF&LF",
     "&SP=10:&-I&+Ba)&-B 16°& 14'& 42\"&SP=35:&-I&+Bb)&-B 14°& 13'& 11\"&SP=67:&-I&+Bc)&-B 1°& 39'& &LF&SP=1"
     "0:&-I&+Bd)&-B 4°& 31'& 24\"&SP=35:&-I&+Be)&-B 17°& 3'& 3\"&SP=67:&-I&+Bf)&-B 13°& 12'& 32\"&LF&SP=10:&-"
     "I&+Bg)&-B 10°& 22'& 59\"&LF"},
    {"0308998999011010",
     "Calculate these expressions.&LF&SP=3:&+Ba)&-B (26°& 10'& 50\")  :  5&LF&LF",
     "&SP=10:&-I&+Ba)&-B 5°& 14'& 10\"&LF"},
    {"0310001234030101",
     "Calculate the complementary and supplementary angle of the following angles:&LF&SP=5:&+Ba)&-B 80°& 4"
     "'& 43\"&SP=29:&+Bb)&-B 52°& 39'& 42\"&SP=53:&+Bc)&-B 69°& 25'& 45\"&LF&LF",
     "&SP=10:&-I&+Ba)&-B 9°& 55'& 17\",  99°& 55'& 17\"&SP=50:&-I&+Bb)&-B 37°& 20'& 18\",  127°& 20'& 18\"&LF&"
     "SP=10:&-I&+Bc)&-B 20°& 34'& 15\",  110°& 34'& 15\"&LF"},
    {"0315174071070402",
     "Calculate the complementary and supplementary angle of the following angles:&LF&SP=5:&+Ba)&-B 48°& 4"
     "4'& 7\"&SP=29:&+Bb)&-B 23°& 49'& 9\"&SP=53:&+Bc)&-B 27°& 54'& 37\"&SP=76:&+Bd)&-B 56°& 52'& 45\"&LF&SP=5"
     ":&+Be)&-B 27°& 19'& 16\"&SP=29:&+Bf)&-B 62°& 56'& 27\"&SP=53:&+Bg)&-B 6°& 36'& 2\"&LF&LF",
     "&SP=10:&-I&+Ba)&-B 41°& 15'& 53\",  131°& 15'& 53\"&SP=50:&-I&+Bb)&-B 66°& 10'& 51\",  156°& 10'& 51\"&L"
     "F&SP=10:&-I&+Bc)&-B 62°& 5'& 23\",  152°& 5'& 23\"&SP=50:&-I&+Bd)&-B 33°& 7'& 15\",  123°& 7'& 15\"&LF&S"
     "P=10:&-I&+Be)&-B 62°& 40'& 44\",  152°& 40'& 44\"&SP=50:&-I&+Bf)&-B 27°& 3'& 33\",  117°& 3'& 33\"&LF&SP"
     "=10:&-I&+Bg)&-B 83°& 23'& 58\",  173°& 23'& 58\"&LF"},
    {"0318998999011010",
     "Calculate the complementary and supplementary angle of the following angles:&LF&SP=5:&+Ba)&-B 26°& 1"
     "0'& 53\"&LF&LF",
     "&SP=10:&-I&+Ba)&-B 63°& 49'& 7\",  153°& 49'& 7\"&LF"},
    {"0320001247030101",
     "Calculate the value of  &+IA&-I angle of the right triangle if &+IB&-I is 32°& 54'& 57\".&LF&SP=60:#I"
     "MG('m_trian_recsl.gif'DXmm=46:DYmm=-23.46:#IMG)&LF",
     "&SP=10:&-I&-B  &+IA&-I = 57°& 5'& 3\"&LF"},
    {"0325174084070402",
     "Calculate the measure of  &+IA&-I angle of the parallelogram if &+IB&-I angle is 82°& 28'& 44\".&LF&S"
     "P=60:#IMG('m_pllg_sl.gif'DXmm=46:DYmm=-23.46:#IMG)&LF",
     "&SP=10:&-I&-B  &+IA&-I = 97°& 31'& 16\"&LF"},
    {"0328999012011010",
     "Calculate the value of  &+IA&-I angle of the right triangle if &+IB&-I is 48°& 25'& 20\".&LF&SP=60:#I"
     "MG('m_trian_recsl.gif'DXmm=46:DYmm=-23.46:#IMG)&LF",
     "&SP=10:&-I&-B  &+IA&-I = 41°& 34'& 40\"&LF"},
    {"0330001234030101",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  #NES(()21 + #COC(15#N)(11#COC) &+Ii&-I#NES)  -  #NES("
     "()23 - #COC(5#N)(11#COC) &+Ii&-I#NES)&SP=43:&+Bb)&-B  #NES(()-9 - 5 &+Ii&-I#NES)  -  #NES(()4 + 16 &"
     "+Ii&-I#NES)&LF&SP=5:&+Bc)&-B  #NES(()4 + 25 &+Ii&-I#NES)  -  #NES(()6 + 7 &+Ii&-I#NES)&LF&LF",
     "&SP=10:&-I&+Ba)&-B -2& +& #COC(20#N)(11#COC)&+I& i&-I&SP=32:&-I&+Bb)&-B -13& -& 21&+I& i&-I&SP=54:&-"
     "I&+Bc)&-B -2& +& 18&+I& i&-I&LF"},
    {"0335174071070402",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B  #NES(()1 + 15 &+Ii&-I#NES)  +  #NES(()1 + 18 "
     "&+Ii&-I#NES)&SP=43:&+Bb)&-B  #NES(()14 - 4 &+Ii&-I#NES)  +  #NES(()16 + 14 &+Ii&-I#NES)&LF&SP=5:&+Bc"
     ")&-B  #NES(()19 + #COC(7#N)(3#COC) &+Ii&-I#NES)  -  #NES(()22 + #COC(8#N)(3#COC) &+Ii&-I#NES)&SP=43:"
     "&+Bd)&-B  #NES(()-11 + 9 &+Ii&-I#NES)  -  #NES(()27 + 10 &+Ii&-I#NES)&LF&SP=5:&+Be)&-B  #NES(()3 - #"
     "COC(7#N)(5#COC) &+Ii&-I#NES)  -  #NES(()#COC(15#N)(11#COC) + 21 &+Ii&-I#NES)&SP=43:&+Bf)&-B  #NES(()"
     "#COC(13#N)(9#COC) - 4 &+Ii&-I#NES)  -  #NES(()  #COC(-11#N)(3#COC) + #COC(7#N)(6#COC) &+Ii&-I#NES)&L"
     "F&SP=5:&+Bg)&-B  #NES(()14 - 7 &+Ii&-I#NES)  +  #NES(()4 + 21 &+Ii&-I#NES)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 2& +& 33&+I& i&-I&SP=32:&-I&+Bb)&-B 30& +& 10&+I& i&-I&SP=54:&-I&+Bc)&-B -3& -& #"
     "COC(1#N)(3#COC)&+I& i&-I&SP=76:&-I&+Bd)&-B -38& -& &+I& i&-I&LF&SP=10:&-I&+Be)&-B #COC(18#N)(11#COC)"
     "& -& #COC(112#N)(5#COC)&+I& i&-I&SP=32:&-I&+Bf)&-B #COC(46#N)(9#COC)& -& #COC(31#N)(6#COC)&+I& i&-I&"
     "SP=54:&-I&+Bg)&-B 18& +& 14&+I& i&-I&LF"},
    {"0338998999011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B  #NES(()23 - 11 &+Ii&-I#NES)  +  #NES(()-2 + 2"
     "6 &+Ii&-I#NES)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 21& +& 15&+I& i&-I&LF"},
    {"0340001234030101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B  (25& +& 6&+I& i&-I)  ·  (2& +& 10&+I& i&-I)&S"
     "P=43:&+Bb)&-B  (23& -& 8&+I& i&-I)  ·  (-3& +& 12&+I& i&-I)&LF&SP=5:&+Bc)&-B  (-5& -& 10&+I& i&-I)  "
     "·  (10& -& 3&+I& i&-I)&LF&LF",
     "&SP=10:&-I&+Ba)&-B -10& +& 262&+I& i&-I&SP=32:&-I&+Bb)&-B 27& +& 300&+I& i&-I&SP=54:&-I&+Bc)&-B -80&"
     " -& 85&+I& i&-I&LF"},
    {"0345174071070402",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B  (18& -& 3&+I& i&-I)  ·  (6& -& 3&+I& i&-I)&SP"
     "=43:&+Bb)&-B  #COC(-22& +& 6&+I& i&-I#N)(2& +& 4&+I& i&-I#COC)&LF&SP=5:&+Bc)&-B  (22& -& 8&+I& i&-I)"
     "  ·  (5& +& &+I& i&-I)&SP=43:&+Bd)&-B  #COC(54& -& 42&+I& i&-I#N)(6& -& 6&+I& i&-I#COC)&LF&SP=5:&+Be"
     ")&-B  (17& -& 9&+I& i&-I)  ·  (-9& -& 2&+I& i&-I)&SP=43:&+Bf)&-B  #COC(21& +& 8&+I& i&-I#N)(15& +& 6"
     "&+I& i&-I#COC)&LF&SP=5:&+Bg)&-B  #COC(11& +& 4&+I& i&-I#N)(5& +& 5&+I& i&-I#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 99& -& 72&+I& i&-I&SP=32:&-I&+Bb)&-B -1& +& 5&+I& i&-I&SP=54:&-I&+Bc)&-B 118& -& "
     "18&+I& i&-I&SP=76:&-I&+Bd)&-B 8& +& &+I& i&-I&LF&SP=10:&-I&+Be)&-B -171& +& 47&+I& i&-I&SP=32:&-I&+B"
     "f)&-B #COC(121#N)(87#COC)& -& #COC(2#N)(87#COC)&+I& i&-I&SP=54:&-I&+Bg)&-B #COC(3#N)(2#COC)& -& #COC"
     "(7#N)(10#COC)&+I& i&-I&LF"},
    {"0348998999011010",
     "Calculate the following expressions with complex numbers.&LF&SP=5:&+Ba)&-B  #COC(26& -& 5&+I& i&-I#N"
     ")(-11& +& 12&+I& i&-I#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B   #COC(-346#N)(265#COC)& -& #COC(257#N)(265#COC)&+I& i&-I&LF"},
    {"0350001234030101",
     "Calculate these expressions involving complex numbers.&LF&SP=5:&+Ba)&-B  9& +& 15&+I& i&-I&SP=29:&+B"
     "b)&-B  23& +& &+I& i&-I&SP=53:&+Bc)&-B  11#SPB(L #T)(120°#SPB)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 3#SQR(34#SQR)#SPB(L #T)(59&.0362°#SPB)&SP=50:&-I&+Bb)&-B #SQR(530#SQR)#SPB(L #T)("
     "2&.48955°#SPB)&LF&SP=10:&-I&+Bc)&-B   #COC(-11#N)(2#COC)& +& #COC(11#SQR(3#SQR)#N)(2#COC)&+I& i&-I&L"
     "F"},
    {"0355174071070402",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  15& +& &+I& i&-I&SP=29:&+Bb)&-B  3#SPB(L #T)(#COC(5&p"
     "i#N)(4#COC) rad#SPB)&SP=53:&+Bc)&-B  14& +& 21&+I& i&-I&SP=76:&+Bd)&-B  6#SPB(L #T)(120°#SPB)&LF&SP="
     "5:&+Be)&-B  -6& +& 22&+I& i&-I&SP=29:&+Bf)&-B  11#SPB(L #T)(240°#SPB)&SP=53:&+Bg)&-B  -11& +& 9&+I& "
     "i&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #SQR(226#SQR)#SPB(L #T)(0&.0665682 rad#SPB)&SP=50:&-I&+Bb)&-B -& #COC(3#SQR(2#SQR"
     ")#N)(2#COC)& -& #COC(3#SQR(2#SQR)#N)(2#COC)&+I& i&-I&LF&SP=10:&-I&+Bc)&-B 7#SQR(13#SQR)#SPB(L #T)(56"
     "&.3099°#SPB)&SP=50:&-I&+Bd)&-B -3& +& 3#SQR(3#SQR)&+I& i&-I&LF&SP=10:&-I&+Be)&-B 2#SQR(130#SQR)#SPB("
     "L #T)(105&.255°#SPB)&SP=50:&-I&+Bf)&-B   #COC(-11#N)(2#COC)& -& #COC(11#SQR(3#SQR)#N)(2#COC)&+I& i&-"
     "I&LF&SP=10:&-I&+Bg)&-B #SQR(202#SQR)#SPB(L #T)(140&.711°#SPB)&LF"},
    {"0358998999011010",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  1#SPB(L #T)(90°#SPB)&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I& i&-I&LF"},
    {"0360001234030101",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  #NES(()#SQR(65#SQR)#SPB(L #T)(1&.05165 rad#SPB)#NES) "
     " ·  #NES(()#SQR(221#SQR)#SPB(L #T)(0&.737815 rad#SPB)#NES)&LF&SP=5:&+Bb)&-B  #NES(()2#SQR(26#SQR)#SP"
     "B(L #T)(101&.31°#SPB)#NES)  ·  #NES(()#SQR(122#SQR)#SPB(L #T)(5&.19443°#SPB)#NES)&LF&SP=5:&+Bc)&-B  "
     "#NES(()2#SQR(2#SQR)#SPB(L #T)(135°#SPB)#NES)  ·  #NES(()#SQR(58#SQR)#SPB(L #T)(23&.1986°#SPB)#NES)&L"
     "F&LF",
     "&SP=10:&-I&+Ba)&-B 13#SQR(85#SQR)#SPB(L #T)(1&.78947 rad#SPB) = -26& +& 117&+I& i&-I&SP=50:&-I&+Bb)&"
     "-B 4#SQR(793#SQR)#SPB(L #T)(106&.504°#SPB) = -32& +& 108&+I& i&-I&LF&SP=10:&-I&+Bc)&-B 4#SQR(29#SQR)"
     "#SPB(L #T)(158&.199°#SPB) = -20& +& 8&+I& i&-I&LF"},
    {"0365174071070402",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  #NES(()7#SPB(L #T)(0°#SPB)#NES)  ·  #NES(()4#SQR(5#SQ"
     "R)#SPB(L #T)(333&.435°#SPB)#NES)&SP=43:&+Bb)&-B  #NES(()15#SQR(26#SQR)#SPB(L #T)(154&.44°#SPB)#NES) "
     " :  #NES(()3#SQR(13#SQR)#SPB(L #T)(56&.3099°#SPB)#NES)&LF&SP=5:&+Bc)&-B  #NES(()3#SPB(L #T)(0°#SPB)#"
     "NES)  ·  #NES(()3#SQR(5#SQR)#SPB(L #T)(63&.4349°#SPB)#NES)&SP=43:&+Bd)&-B  #NES(()#SQR(18685#SQR)#SP"
     "B(L #T)(2&.09992 rad#SPB)#NES)  :  #NES(()#SQR(185#SQR)#SPB(L #T)(0&.628796 rad#SPB)#NES)&LF&SP=5:&+"
     "Be)&-B  #NES(()#SQR(41#SQR)#SPB(L #T)(141&.34°#SPB)#NES)  ·  #NES(()#SQR(137#SQR)#SPB(L #T)(19&.9831"
     "°#SPB)#NES)&SP=43:&+Bf)&-B  #NES(()#SQR(13#SQR)#SPB(L #T)(303&.69°#SPB)#NES)  ·  #NES(()#SQR(58#SQR)"
     "#SPB(L #T)(113&.199°#SPB)#NES)&LF&SP=5:&+Bg)&-B  #NES(()#SQR(15826#SQR)#SPB(L #T)(23&.9162°#SPB)#NES"
     ")  :  #NES(()#SQR(82#SQR)#SPB(L #T)(353&.66°#SPB)#NES)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 28#SQR(5#SQR)#SPB(L #T)(333&.435°#SPB) = 56& -& 28&+I& i&-I&SP=50:&-I&+Bb)&-B 5#S"
     "QR(2#SQR)#SPB(L #T)(98&.1301°#SPB) = -1& +& 7&+I& i&-I&LF&SP=10:&-I&+Bc)&-B 9#SQR(5#SQR)#SPB(L #T)(6"
     "3&.4349°#SPB) = 9& +& 18&+I& i&-I&SP=50:&-I&+Bd)&-B #SQR(101#SQR)#SPB(L #T)(1&.47113 rad#SPB) = 1& +"
     "& 10&+I& i&-I&LF&SP=10:&-I&+Be)&-B #SQR(5617#SQR)#SPB(L #T)(161&.323°#SPB) = -71& +& 24&+I& i&-I&SP="
     "50:&-I&+Bf)&-B #SQR(754#SQR)#SPB(L #T)(56&.8887°#SPB) = 15& +& 23&+I& i&-I&LF&SP=10:&-I&+Bg)&-B #SQR"
     "(193#SQR)#SPB(L #T)(30&.2564°#SPB) = 12& +& 7&+I& i&-I&LF"},
    {"0368998999011010",
     "Calculate the following expressions with complex numbers.&LF&SP=5:&+Ba)&-B  #NES(()#SQR(2210#SQR)#SP"
     "B(L #T)(3&.65282 rad#SPB)#NES)  :  #NES(()#SQR(130#SQR)#SPB(L #T)(0&.266252 rad#SPB)#NES)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #SQR(17#SQR)#SPB(L #T)(3&.38657 rad#SPB) = -4& -& &+I& i&-I&LF"},
    {"0370001234030101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B  (4& +& 7&+I& i&-I)^5&SP=29:&+Bb)&-B  (& -& 2&"
     "+I& i&-I)^5&SP=53:&+Bc)&-B  (9& -& 4&+I& i&-I)^3&LF&LF",
     "&SP=10:&-I&+Ba)&-B 4225#SQR(65#SQR)#SPB(L #T)(5&.25825 rad#SPB) = 17684& -& 29113&+I& i&-I&LF&SP=10:"
     "&-I&+Bb)&-B 32#SPB(L #T)(#COC(3&pi#N)(2#COC) rad#SPB) = -32&+I& i&-I&LF&SP=10:&-I&+Bc)&-B 97#SQR(97#"
     "SQR)#SPB(L #T)(288&.113°#SPB) = 297& -& 908&+I& i&-I&LF"},
    {"0375174071070402",
     "Calculate these expressions involving complex numbers.&LF&SP=5:&+Ba)&-B  (7& +& 8&+I& i&-I)^2&SP=29:"
     "&+Bb)&-B  #NES(()5#SQR(2#SQR)#SPB(L #T)(98&.1301°#SPB)#NES)^4&SP=53:&+Bc)&-B  #NES(()#SQR(73#SQR)#SP"
     "B(L #T)(20&.556°#SPB)#NES)^3&SP=76:&+Bd)&-B  (-2& +& 9&+I& i&-I)^3&LF&SP=5:&+Be)&-B  (8& -& 4&+I& i&"
     "-I)^4&SP=29:&+Bf)&-B  #NES(()2#SQR(10#SQR)#SPB(L #T)(18&.4349°#SPB)#NES)^2&SP=53:&+Bg)&-B  (2& +& 6&"
     "+I& i&-I)^5&LF&LF",
     "&SP=10:&-I&+Ba)&-B 113#SPB(L #T)(97&.6281°#SPB) = -15& +& 112&+I& i&-I&SP=50:&-I&+Bb)&-B 2500#SPB(L "
     "#T)(32&.5204°#SPB) = 2108& +& 1344&+I& i&-I&LF&SP=10:&-I&+Bc)&-B 73#SQR(73#SQR)#SPB(L #T)(61&.6681°#"
     "SPB) = 296& +& 549&+I& i&-I&SP=50:&-I&+Bd)&-B 85#SQR(85#SQR)#SPB(L #T)(307&.586°#SPB) = 478& -& 621&"
     "+I& i&-I&LF&SP=10:&-I&+Be)&-B 6400#SPB(L #T)(4&.42859 rad#SPB) = -1792& -& 6144&+I& i&-I&SP=50:&-I&+"
     "Bf)&-B 40#SPB(L #T)(36&.8699°#SPB) = 32& +& 24&+I& i&-I&LF&SP=10:&-I&+Bg)&-B 3200#SQR(10#SQR)#SPB(L "
     "#T)(357&.825°#SPB) = 10112& -& 384&+I& i&-I&LF"},
    {"0378998999011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B  #NES(()#SQR(17#SQR)#SPB(L #T)(3&.38657 rad#SP"
     "B)#NES)^5&LF&LF",
     "&SP=10:&-I&+Ba)&-B 289#SQR(17#SQR)#SPB(L #T)(4&.36649 rad#SPB) = -404& -& 1121&+I& i&-I&LF"},
    {"0380001234030101",
     "Calculate these expressions involving complex numbers.&LF&SP=5:&+Ba)&-B  #RAD(#RI(4 #RI)9& +& 4&+I& "
     "i&-I#RAD)&SP=29:&+Bb)&-B  #RAD(#RI(3 #RI)10& +& 10&+I& i&-I#RAD)&SP=53:&+Bc)&-B  #RAD(#RI(3 #RI)#SQR"
     "(221#SQR)#SPB(L #T)(47&.7263°#SPB)#RAD)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #RAD(#RI(8 #RI)97#RAD)#SPB(L #T)(5&.99062°#SPB),   #RAD(#RI(8 #RI)97#RAD)#SPB(L #"
     "T)(95&.9906°#SPB),   #RAD(#RI(8 #RI)97#RAD)#SPB(L #T)(185&.991°#SPB),   #RAD(#RI(8 #RI)97#RAD)#SPB(L"
     " #T)(275&.991°#SPB)&LF&SP=10:&-I&+Bb)&-B #RAD(#RI(6 #RI)200#RAD)#SPB(L #T)(15°#SPB),   #RAD(#RI(6 #R"
     "I)200#RAD)#SPB(L #T)(135°#SPB),   #RAD(#RI(6 #RI)200#RAD)#SPB(L #T)(255°#SPB)&LF&SP=10:&-I&+Bc)&-B #"
     "RAD(#RI(6 #RI)221#RAD)#SPB(L #T)(15&.9088°#SPB),   #RAD(#RI(6 #RI)221#RAD)#SPB(L #T)(135&.909°#SPB),"
     "   #RAD(#RI(6 #RI)221#RAD)#SPB(L #T)(255&.909°#SPB)&LF"},
    {"0385174071070402",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  #RAD(#RI(3 #RI)1& +& 7&+I& i&-I#RAD)&SP=29:&+Bb)&-B  "
     "#RAD(#RI(4 #RI)-4& -& &+I& i&-I#RAD)&SP=53:&+Bc)&-B  #RAD(#RI(4 #RI)#SQR(85#SQR)#SPB(L #T)(40&.6013°"
     "#SPB)#RAD)&SP=76:&+Bd)&-B  #RAD(#RI(3 #RI)8& +& 3&+I& i&-I#RAD)&LF&SP=5:&+Be)&-B  #RAD(#RI(5 #RI)2#S"
     "QR(10#SQR)#SPB(L #T)(341&.565°#SPB)#RAD)&SP=29:&+Bf)&-B  #RAD(#RI(4 #RI)10& +& 11&+I& i&-I#RAD)&SP=5"
     "3:&+Bg)&-B  #RAD(#RI(4 #RI)#SQR(74#SQR)#SPB(L #T)(324&.462°#SPB)#RAD)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #RAD(#RI(6 #RI)50#RAD)#SPB(L #T)(27&.29°#SPB),   #RAD(#RI(6 #RI)50#RAD)#SPB(L #T)"
     "(147&.29°#SPB),   #RAD(#RI(6 #RI)50#RAD)#SPB(L #T)(267&.29°#SPB)&LF&SP=10:&-I&+Bb)&-B #RAD(#RI(8 #RI"
     ")17#RAD)#SPB(L #T)(48&.5091°#SPB),   #RAD(#RI(8 #RI)17#RAD)#SPB(L #T)(138&.509°#SPB),   #RAD(#RI(8 #"
     "RI)17#RAD)#SPB(L #T)(228&.509°#SPB),   #RAD(#RI(8 #RI)17#RAD)#SPB(L #T)(318&.509°#SPB)&LF&SP=10:&-I&"
     "+Bc)&-B #RAD(#RI(8 #RI)85#RAD)#SPB(L #T)(10&.1503°#SPB),   #RAD(#RI(8 #RI)85#RAD)#SPB(L #T)(100&.15°"
     "#SPB),   #RAD(#RI(8 #RI)85#RAD)#SPB(L #T)(190&.15°#SPB),   #RAD(#RI(8 #RI)85#RAD)#SPB(L #T)(280&.15°"
     "#SPB)&LF&SP=10:&-I&+Bd)&-B #RAD(#RI(6 #RI)73#RAD)#SPB(L #T)(6&.85202°#SPB),   #RAD(#RI(6 #RI)73#RAD)"
     "#SPB(L #T)(126&.852°#SPB),   #RAD(#RI(6 #RI)73#RAD)#SPB(L #T)(246&.852°#SPB)&LF&SP=10:&-I&+Be)&-B #R"
     "AD(#RI(10 #RI)40#RAD)#SPB(L #T)(68&.313°#SPB),   #RAD(#RI(10 #RI)40#RAD)#SPB(L #T)(140&.313°#SPB),  "
     " #RAD(#RI(10 #RI)40#RAD)#SPB(L #T)(212&.313°#SPB),   #RAD(#RI(10 #RI)40#RAD)#SPB(L #T)(284&.313°#SPB"
     "),   #RAD(#RI(10 #RI)40#RAD)#SPB(L #T)(356&.313°#SPB)&LF&SP=10:&-I&+Bf)&-B #RAD(#RI(8 #RI)221#RAD)#S"
     "PB(L #T)(11&.9316°#SPB),   #RAD(#RI(8 #RI)221#RAD)#SPB(L #T)(101&.932°#SPB),   #RAD(#RI(8 #RI)221#RA"
     "D)#SPB(L #T)(191&.932°#SPB),   #RAD(#RI(8 #RI)221#RAD)#SPB(L #T)(281&.932°#SPB)&LF&SP=10:&-I&+Bg)&-B"
     " #RAD(#RI(8 #RI)74#RAD)#SPB(L #T)(81&.1156°#SPB),   #RAD(#RI(8 #RI)74#RAD)#SPB(L #T)(171&.116°#SPB),"
     "   #RAD(#RI(8 #RI)74#RAD)#SPB(L #T)(261&.116°#SPB),   #RAD(#RI(8 #RI)74#RAD)#SPB(L #T)(351&.116°#SPB"
     ")&LF"},
    {"0388998999011010",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B  #RAD(#RI(3 #RI)2#SQR(29#SQR)#SPB(L #T)(338&.199°#SPB)"
     "#RAD)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #RAD(#RI(6 #RI)116#RAD)#SPB(L #T)(112&.733°#SPB),   #RAD(#RI(6 #RI)116#RAD)#SPB(L"
     " #T)(232&.733°#SPB),   #RAD(#RI(6 #RI)116#RAD)#SPB(L #T)(352&.733°#SPB)&LF"},
    {"0390001254030101",
     "Let the complex numbers  &+Iz&-I& =& 18& -& 13&+I& i&-I& ,  &+Iw&-I& =& &+Ik&-I& -& 13&+I& i&-I. Fin"
     "d the value of &+Ik&-I so that the product &+Iz&-I& ·& &+Iw&-I gives a real number.&LF",
     "&SP=10: &+Ik&-I = -18&LF"},
    {"0395174091070402",
     "Let the complex numbers  &+Iz&-I& =& 17& +& &+Ib&-I&+I& i&-I& ,  &+Iw&-I& =& -16& +& 17&+I& i&-I. Fi"
     "nd the value of &+Ib&-I so that the product &+Iz&-I& ·& &+Iw&-I gives a pure imaginary number.&LF",
     "&SP=10: &+Ib&-I = -16&LF"},
    {"0398999019011010",
     "Let the complex numbers  &+Iz&-I& =& -12& +& 21&+I& i&-I& ,  &+Iw&-I& =& &+Ir&-I& +& 14&+I& i&-I. Fi"
     "nd the value of &+Ir&-I so that the product &+Iz&-I& ·& &+Iw&-I gives a real number.&LF",
     "&SP=10: &+Ir&-I = 8&LF"},
};
} // namespace

TEST(AlgebraGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_NRP", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
