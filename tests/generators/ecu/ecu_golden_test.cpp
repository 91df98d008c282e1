#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0011230456050101",
     "Solve the following linear equations:&LF&SP=5:&+Ba)&-B&+I 10&+Ix&-I& -& 1& =& 69&-I&SP=29:&+Bb)&-B&+"
     "I -7(&+Ix&-I& +& 3)& =& -84&-I&SP=53:&+Bc)&-B&+I 8(&+Ix&-I& +& 3)& =& -24&-I&LF&SP=5:&+Bd)&-B&+I -2("
     "&+Ix&-I& +& 1)& =& 0&-I&SP=29:&+Be)&-B&+I -3(&+Ix&-I& +& 7)& =& -12&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B&+I x&-I = 7&SP=40:&-I&+Bb)&-B&+I x&-I = 9&SP=70:&-I&+Bc)&-B&+I x&-I = -6&LF&SP=10"
     ":&-I&+Bd)&-B&+I x&-I = -1&SP=40:&-I&+Be)&-B&+I x&-I = -3&LF"},
    {"0010007001120302",
     "Solve the following linear equations:&LF&SP=5:&+Ba)&-B&+I -8(&+Ix&-I& +& 7)& =& -112&-I&SP=43:&+Bb)&"
     "-B&+I 9&+Ix&-I& +& 3& =& 4&+Ix&-I& +& 63&-I&LF&SP=5:&+Bc)&-B&+I 4(&+Ix&-I& -& 1)& =& 12&-I&SP=43:&+B"
     "d)&-B&+I 7&+Ix&-I& -& 3& =& -7&+Ix&-I& -& 17&-I&LF&SP=5:&+Be)&-B&+I 3&+Ix&-I& -& 2& =& -3&+Ix&-I& -&"
     " 62&-I&SP=43:&+Bf)&-B&+I -10(&+Ix&-I& -& 2)& =& -20&-I&LF&SP=5:&+Bg)&-B&+I 3(&+Ix&-I& -& 2)& =& 5&+I"
     "x&-I&-I&SP=43:&+Bh)&-B&+I 7&+Ix&-I& =& 5&+Ix&-I& -& 6&-I&LF&SP=5:&+Bi)&-B&+I 7&+Ix&-I& -& 11& =& &+I"
     "x&-I& -& 35&-I&SP=43:&+Bj)&-B&+I 9(&+Ix&-I& +& 1)& =& -&+Ix&-I& +& 119&-I&LF&SP=5:&+Bk)&-B&+I 7&+Ix&"
     "-I& +& 5& =& -23&-I&SP=43:&+Bl)&-B&+I 8&+Ix&-I& +& 8& =& -&+Ix&-I& +& 89&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B&+I x&-I = 7&SP=40:&-I&+Bb)&-B&+I x&-I = 12&SP=70:&-I&+Bc)&-B&+I x&-I = 4&LF&SP=10"
     ":&-I&+Bd)&-B&+I x&-I = -1&SP=40:&-I&+Be)&-B&+I x&-I = -10&SP=70:&-I&+Bf)&-B&+I x&-I = 4&LF&SP=10:&-I"
     "&+Bg)&-B&+I x&-I = -3&SP=40:&-I&+Bh)&-B&+I x&-I = -3&SP=70:&-I&+Bi)&-B&+I x&-I = -4&LF&SP=10:&-I&+Bj"
     ")&-B&+I x&-I = 11&SP=40:&-I&+Bk)&-B&+I x&-I = -4&SP=70:&-I&+Bl)&-B&+I x&-I = 9&LF"},
    {"0018998999011010",
     "Solve these linear equations:&LF&SP=5:&+Ba)&-B&+I -9&+Ix&-I& +& 11& =& &+Ix&-I& +& 111&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B&+I x&-I = -10&LF"},
    {"0021230456050101",
     "Solve these quadratic equations:&LF&SP=5:&+Ba)&-B&+I &+Ix&-I^2& +& 3&+Ix&-I& -& 10& =& 0&-I&SP=29:&+"
     "Bb)&-B&+I &+Ix&-I^2& +& 9&+Ix&-I& +& 8& =& 0&-I&SP=53:&+Bc)&-B&+I 3&+Ix&-I^2& +& 8&+Ix&-I& +& 3& =& "
     "0&-I&LF&SP=5:&+Bd)&-B&+I &+Ix&-I^2& -& 2&+Ix&-I& -& 9& =& 0&-I&SP=29:&+Be)&-B&+I &+Ix&-I^2& -& 2&+Ix"
     "&-I& -& 15& =& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I = 2;    &+Ix&-I = -5&SP=50:&-I&+Bb)&-B &+Ix&-I = -1;    &+Ix&-I = -8&LF&S"
     "P=10:&-I&+Bc)&-B &+Ix&-I = #COC(-4& &pm& #SQR(7#SQR)#N)(3#COC)&SP=50:&-I&+Bd)&-B &+Ix&-I = 1& &pm& #"
     "SQR(10#SQR)&LF&SP=10:&-I&+Be)&-B &+Ix&-I = -3;    &+Ix&-I = 5&LF"},
    {"0020007001120302",
     "Solve the following quadratic equations:&LF&SP=5:&+Ba)&-B&+I 2&+Ix&-I^2& +& 2&+Ix&-I& +& 6& =& 0&-I&"
     "SP=29:&+Bb)&-B&+I &+Ix&-I^2& +& 9&+Ix&-I& +& 8& =& 0&-I&SP=53:&+Bc)&-B&+I &+Iz&-I^2& +& 10&+Iz&-I& +"
     "& 9& =& 0&-I&LF&SP=5:&+Bd)&-B&+I &+Ix&-I^2& -& 6&+Ix&-I& -& 16& =& 0&-I&SP=29:&+Be)&-B&+I &+Ix&-I^2&"
     " +& 2&+Ix&-I& -& 3& =& 0&-I&SP=53:&+Bf)&-B&+I 7&+Ix&-I^2& +& 25&+Ix&-I& -& 50& =& 0&-I&LF&SP=5:&+Bg)"
     "&-B&+I 2&+Ix&-I^2& +& 7&+Ix&-I& +& 4& =& 0&-I&SP=29:&+Bh)&-B&+I &+Ix&-I^2& -& 10&+Ix&-I& +& 9& =& 0&"
     "-I&SP=53:&+Bi)&-B&+I &+Ix&-I^2& +& 10&+Ix&-I& -& 6& =& 0&-I&LF&SP=5:&+Bj)&-B&+I &+Ix&-I^2& -& 13&+Ix"
     "&-I& +& 30& =& 0&-I&SP=29:&+Bk)&-B&+I &+Ix&-I^2& +& 9&+Ix&-I& +& 4& =& 0&-I&SP=53:&+Bl)&-B&+I 2&+Ix&"
     "-I^2& -& 3&+Ix&-I& -& 3& =& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I No real solution.&-I&SP=50:&-I&+Bb)&-B &+Ix&-I = -8;    &+Ix&-I = -1&LF&SP=10"
     ":&-I&+Bc)&-B &+Iz&-I = -9;    &+Iz&-I = -1&SP=50:&-I&+Bd)&-B &+Ix&-I = -2;    &+Ix&-I = 8&LF&SP=10:&"
     "-I&+Be)&-B &+Ix&-I = -3;    &+Ix&-I = 1&SP=50:&-I&+Bf)&-B &+Ix&-I = #COC(10#N)(7#COC);    &+Ix&-I = "
     "-5&LF&SP=10:&-I&+Bg)&-B &+Ix&-I = #COC(-7& &pm& #SQR(17#SQR)#N)(4#COC)&SP=50:&-I&+Bh)&-B &+Ix&-I = 1"
     ";    &+Ix&-I = 9&LF&SP=10:&-I&+Bi)&-B &+Ix&-I = -5& &pm& #SQR(31#SQR)&SP=50:&-I&+Bj)&-B &+Ix&-I = 3;"
     "    &+Ix&-I = 10&LF&SP=10:&-I&+Bk)&-B &+Ix&-I = #COC(-9& &pm& #SQR(65#SQR)#N)(2#COC)&SP=50:&-I&+Bl)&"
     "-B &+Ix&-I = #COC(3& &pm& #SQR(33#SQR)#N)(4#COC)&LF"},
    {"0028998999011010",
     "Solve the following quadratic equations:&LF&SP=5:&+Ba)&-B&+I &+Ix&-I^2& -& 7&+Ix&-I& -& 30& =& 0&-I&"
     "LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I = -3;    &+Ix&-I = 10&LF"},
    {"0031230456050101",
     "Find all real solutions of these equations:&LF&SP=5:&+Ba)&-B&+I #SQR(-7&+Ix&-I& +& 1#SQR)& =& &+Ix&-"
     "I& +& 1&-I&SP=43:&+Bb)&-B&+I #SQR(8&+Ix&-I& -& 16#SQR)& -& &+Ix&-I& =& 0&-I&LF&SP=5:&+Bc)&-B&+I #SQR"
     "(2&+Ix&-I& +& 19#SQR)& =& &+Ix&-I& +& 2&-I&SP=43:&+Bd)&-B&+I #SQR(&+Ix&-I& +& 7#SQR)& =& &+Ix&-I& +&"
     " 5&-I&LF&SP=5:&+Be)&-B&+I #SQR(-&+Ix&-I& +& 17#SQR)& -& &+Ix&-I& =& 3&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x = &-I0&SP=50:&-I&+Bb)&-B &+I x = &-I4&LF&SP=10:&-I&+Bc)&-B &+I x = &-I3&SP="
     "50:&-I&+Bd)&-B &+I x = &-I-3&LF&SP=10:&-I&+Be)&-B &+I x = &-I1&LF"},
    {"0030007001120302",
     "Solve these equations:&LF&SP=5:&+Ba)&-B&+I #SQR(6&+Ix&-I& +& 13#SQR)& -& &+Ix&-I& =& 3&-I&SP=43:&+Bb"
     ")&-B&+I #SQR(-5&+Ix&-I& +& 16#SQR)& =& &+Ix&-I& -& 2&-I&LF&SP=5:&+Bc)&-B&+I #SQR(&+Ix&-I& +& 10#SQR)"
     "& -& &+Ix&-I& =& 4&-I&SP=43:&+Bd)&-B&+I #SQR(-&+Ix&-I& +& 33#SQR)& =& &+Ix&-I& -& 3&-I&LF&SP=5:&+Be)"
     "&-B&+I #SQR(-6&+Ix&-I& -& 6#SQR)& =& &+Ix&-I& +& 1&-I&SP=43:&+Bf)&-B&+I #SQR(-5&+Ix&-I& +& 94#SQR)& "
     "=& &+Ix&-I& -& 2&-I&LF&SP=5:&+Bg)&-B&+I #SQR(-11&+Ix&-I& +& 97#SQR)& -& &+Ix&-I& =& -5&-I&SP=43:&+Bh"
     ")&-B&+I #SQR(3&+Ix&-I& +& 7#SQR)& -& &+Ix&-I& =& 3&-I&LF&SP=5:&+Bi)&-B&+I #SQR(4&+Ix&-I#SQR)& =& &+I"
     "x&-I&-I&SP=43:&+Bj)&-B&+I #SQR(-7&+Ix&-I& +& 65#SQR)& =& &+Ix&-I& -& 5&-I&LF&SP=5:&+Bk)&-B&+I #SQR(1"
     "2&+Ix&-I& +& 88#SQR)& -& &+Ix&-I& =& 9&-I&SP=43:&+Bl)&-B&+I #SQR(-&+Ix&-I& +& 1#SQR)& =& &+Ix&-I& -&"
     " 1&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x = &-I-2;    &+Ix = &-I2&SP=50:&-I&+Bb)&-B &+I x = &-I3&LF&SP=10:&-I&+Bc)&-B"
     " &+I x = &-I-1&SP=50:&-I&+Bd)&-B &+I x = &-I8&LF&SP=10:&-I&+Be)&-B &+I x = &-I-1&SP=50:&-I&+Bf)&-B &"
     "+I x = &-I9&LF&SP=10:&-I&+Bg)&-B &+I x = &-I8&SP=50:&-I&+Bh)&-B &+I x = &-I-2;    &+Ix = &-I-1&LF&SP"
     "=10:&-I&+Bi)&-B &+I x = &-I0;    &+Ix = &-I4&SP=50:&-I&+Bj)&-B &+I x = &-I8&LF&SP=10:&-I&+Bk)&-B &+I"
     " x = &-I-7;    &+Ix = &-I1&SP=50:&-I&+Bl)&-B &+I x = &-I1&LF"},
    {"0038998999011010",
     "Find all real solutions of the following equations:&LF&SP=5:&+Ba)&-B&+I #SQR(4&+Ix&-I& +& 32#SQR)& ="
     "& &+Ix&-I& +& 8&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x = &-I-8;    &+Ix = &-I-4&LF"},
    {"0041230456050101",
     "Solve these systems of  2×2  linear equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(14&+Ix&-I& -& 7"
     "&+Iy&-I& =& -189#RW1)#RW2(7&+Ix&-I& -& 8&+Iy&-I& =& -126#RW2)#RWS)#NES)&-I&SP=35:&+Bb)&-B&+I #NES(X}"
     "#RWS(R#RW1(-11&+Ix&-I& -& 7&+Iy&-I& =& 42#RW1)#RW2(-&+Ix&-I& -& 7&+Iy&-I& =& 42#RW2)#RWS)#NES)&-I&SP"
     "=65:&+Bc)&-B&+I #NES(X}#RWS(R#RW1(3&+Ix&-I& -& 14&+Iy&-I& =& 45#RW1)#RW2(6&+Ix&-I& -& 4&+Iy&-I& =& 1"
     "8#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bd)&-B&+I #NES(X}#RWS(R#RW1(2&+Ix&-I& +& 6&+Iy&-I& =& 22#RW1)#RW2(3&+I"
     "x&-I& -& 2&+Iy&-I& =& -33#RW2)#RWS)#NES)&-I&SP=35:&+Be)&-B&+I #NES(X}#RWS(R#RW1(9&+Ix&-I& -& 4&+Iy&-"
     "I& =& -20#RW1)#RW2(-&+Ix&-I& -& 7&+Iy&-I& =& 32#RW2)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B&+I  x = &-I-10,   &+Iy = &-I7&SP=38:&-I&+Bb)&-B&+I  x = &-I0,   &+Iy = &-I-6&SP=6"
     "6:&-I&+Bc)&-B&+I  x = &-I1,   &+Iy = &-I-3&LF&SP=10:&-I&+Bd)&-B&+I  x = &-I-7,   &+Iy = &-I6&SP=38:&"
     "-I&+Be)&-B&+I  x = &-I-4,   &+Iy = &-I-4&LF"},
    {"0040007001120302",
     "Solve the following systems of  2×2  linear equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(12&+Ix&"
     "-I& +& 13&+Iy&-I& =& 127#RW1)#RW2(4&+Ix&-I& +& &+Iy&-I& =& 19#RW2)#RWS)#NES)&-I&SP=35:&+Bb)&-B&+I #N"
     "ES(X}#RWS(R#RW1(5&+Ix&-I& +& 2&+Iy&-I& =& 43#RW1)#RW2(-&+Ix&-I& +& 4&+Iy&-I& =& 9#RW2)#RWS)#NES)&-I&"
     "SP=65:&+Bc)&-B&+I #NES(X}#RWS(R#RW1(3&+Ix&-I& +& 8&+Iy&-I& =& -92#RW1)#RW2(3&+Ix&-I& +& 9&+Iy&-I& =&"
     " -102#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bd)&-B&+I #NES(X}#RWS(R#RW1(7&+Ix&-I& +& 14&+Iy&-I& =& 70#RW1)#RW2"
     "(-5&+Ix&-I& -& &+Iy&-I& =& 49#RW2)#RWS)#NES)&-I&SP=35:&+Be)&-B&+I #NES(X}#RWS(R#RW1(11&+Ix&-I& +& 8&"
     "+Iy&-I& =& 57#RW1)#RW2(3&+Ix&-I& -& 6&+Iy&-I& =& -9#RW2)#RWS)#NES)&-I&SP=65:&+Bf)&-B&+I #NES(X}#RWS("
     "R#RW1(-15&+Ix&-I& +& 14&+Iy&-I& =& 291#RW1)#RW2(-5&+Ix&-I& -& 8&+Iy&-I& =& -17#RW2)#RWS)#NES)&-I&LF&"
     "SP=5:&+Bg)&-B&+I #NES(X}#RWS(R#RW1(-14&+Ix&-I& -& 8&+Iy&-I& =& 24#RW1)#RW2(4&+Ix&-I& +& 5&+Iy&-I& =&"
     " 4#RW2)#RWS)#NES)&-I&SP=35:&+Bh)&-B&+I #NES(X}#RWS(R#RW1(11&+Ix&-I& +& 10&+Iy&-I& =& 12#RW1)#RW2(3&+"
     "Ix&-I& -& 7&+Iy&-I& =& -94#RW2)#RWS)#NES)&-I&SP=65:&+Bi)&-B&+I #NES(X}#RWS(R#RW1(7&+Ix&-I& +& 9&+Iy&"
     "-I& =& 14#RW1)#RW2(3&+Ix&-I& +& 9&+Iy&-I& =& 6#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bj)&-B&+I #NES(X}#RWS(R#R"
     "W1(2&+Ix&-I& -& 15&+Iy&-I& =& -84#RW1)#RW2(3&+Ix&-I& -& 6&+Iy&-I& =& -60#RW2)#RWS)#NES)&-I&SP=35:&+B"
     "k)&-B&+I #NES(X}#RWS(R#RW1(6&+Ix&-I& -& 3&+Iy&-I& =& 60#RW1)#RW2(5&+Ix&-I& -& 3&+Iy&-I& =& 50#RW2)#R"
     "WS)#NES)&-I&SP=65:&+Bl)&-B&+I #NES(X}#RWS(R#RW1(3&+Ix&-I& +& 12&+Iy&-I& =& 93#RW1)#RW2(6&+Ix&-I& +& "
     "2&+Iy&-I& =& 32#RW2)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B&+I  x = &-I3,   &+Iy = &-I7&SP=38:&-I&+Bb)&-B&+I  x = &-I7,   &+Iy = &-I4&SP=66:&"
     "-I&+Bc)&-B&+I  x = &-I-4,   &+Iy = &-I-10&LF&SP=10:&-I&+Bd)&-B&+I  x = &-I-12,   &+Iy = &-I11&SP=38:"
     "&-I&+Be)&-B&+I  x = &-I3,   &+Iy = &-I3&SP=66:&-I&+Bf)&-B&+I  x = &-I-11,   &+Iy = &-I9&LF&SP=10:&-I"
     "&+Bg)&-B&+I  x = &-I-4,   &+Iy = &-I4&SP=38:&-I&+Bh)&-B&+I  x = &-I-8,   &+Iy = &-I10&SP=66:&-I&+Bi)"
     "&-B&+I  x = &-I2,   &+Iy = &-I0&LF&SP=10:&-I&+Bj)&-B&+I  x = &-I-12,   &+Iy = &-I4&SP=38:&-I&+Bk)&-B"
     "&+I  x = &-I10,   &+Iy = &-I0&SP=66:&-I&+Bl)&-B&+I  x = &-I3,   &+Iy = &-I7&LF"},
    {"0048998999011010",
     "Solve the following systems of  2×2  linear equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(13&+Ix&"
     "-I& -& 5&+Iy&-I& =& -15#RW1)#RW2(-&+Ix&-I& -& 9&+Iy&-I& =& 95#RW2)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B&+I  x = &-I-5,   &+Iy = &-I-10&LF"},
    {"0051230456050101",
     "Solve these systems of  3×3  linear equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(11&+Ix&-I& -& &"
     "+Iy&-I& +& 2&+Iz&-I& =& -95#RW1)#RW2(7&+Ix&-I& +& 2&+Iy&-I& -& 8&+Iz&-I& =& -144#RW2)#RW3(-4&+Iz&-I&"
     " =& -44#RW3)#RWS)#NES)&-I&SP=43:&+Bb)&-B&+I #NES(X}#RWS(R#RW1(12&+Ix&-I& -& 7&+Iy&-I& -& 3&+Iz&-I& ="
     "& -51#RW1)#RW2(&+Ix&-I& -& 2&+Iy&-I& -& 6&+Iz&-I& =& -7#RW2)#RW3(-8&+Ix&-I& +& 8&+Iy&-I& +& 8&+Iz&-I"
     "& =& 48#RW3)#RWS)#NES)&-I&LF&SP=5:&+Bc)&-B&+I #NES(X}#RWS(R#RW1(-2&+Ix&-I& +& 4&+Iy&-I& -& 8&+Iz&-I&"
     " =& -40#RW1)#RW2(-5&+Ix&-I& -& 3&+Iy&-I& -& 3&+Iz&-I& =& -5#RW2)#RW3(3&+Ix&-I& -& 6&+Iy&-I& -& 2&+Iz"
     "&-I& =& 46#RW3)#RWS)#NES)&-I&SP=43:&+Bd)&-B&+I #NES(X}#RWS(R#RW1(-3&+Ix&-I& +& 5&+Iy&-I& -& &+Iz&-I&"
     " =& 26#RW1)#RW2(&+Ix&-I& -& 7&+Iy&-I& +& 2&+Iz&-I& =& -26#RW2)#RW3(3&+Ix&-I& +& 9&+Iy&-I& -& 7&+Iz&-"
     "I& =& 34#RW3)#RWS)#NES)&-I&LF&SP=5:&+Be)&-B&+I #NES(X}#RWS(R#RW1(-12&+Ix&-I& +& 9&+Iy&-I& +& 5&+Iz&-"
     "I& =& 179#RW1)#RW2(-6&+Iy&-I& +& 4&+Iz&-I& =& -2#RW2)#RW3(3&+Ix&-I& +& 4&+Iy&-I& +& 6&+Iz&-I& =& 3#R"
     "W3)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I  x = &-I-10,  &+I y =&-I 7,  &+I z = &-I11&SP=50:&-I&+Bb)&-B &+I  x = &-I-1, "
     " &+I y =&-I 6,  &+I z = &-I-1&LF&SP=10:&-I&+Bc)&-B &+I  x = &-I4,  &+I y =&-I -6,  &+I z = &-I1&SP=5"
     "0:&-I&+Bd)&-B &+I  x = &-I-4,  &+I y =&-I 2,  &+I z = &-I-4&LF&SP=10:&-I&+Be)&-B &+I  x = &-I-11,  &"
     "+I y =&-I 3,  &+I z = &-I4&LF"},
    {"0050007001120302",
     "Solve the following systems of  3×3  linear equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(-10&+Ix"
     "&-I& +& 7&+Iy&-I& -& 4&+Iz&-I& =& -9#RW1)#RW2(9&+Ix&-I& +& 7&+Iy&-I& -& 2&+Iz&-I& =& 62#RW2)#RW3(&+I"
     "x&-I& +& 2&+Iy&-I& +& 5&+Iz&-I& =& 52#RW3)#RWS)#NES)&-I&SP=43:&+Bb)&-B&+I #NES(X}#RWS(R#RW1(-8&+Ix&-"
     "I& +& 3&+Iy&-I& +& 7&+Iz&-I& =& -55#RW1)#RW2(7&+Ix&-I& -& 2&+Iy&-I& -& 3&+Iz&-I& =& 20#RW2)#RW3(-8&+"
     "Ix&-I& -& 6&+Iy&-I& -& &+Iz&-I& =& 91#RW3)#RWS)#NES)&-I&LF&SP=5:&+Bc)&-B&+I #NES(X}#RWS(R#RW1(-7&+Ix"
     "&-I& -& 9&+Iy&-I& +& 8&+Iz&-I& =& 24#RW1)#RW2(-2&+Ix&-I& -& 6&+Iy&-I& +& 7&+Iz&-I& =& 45#RW2)#RW3(-8"
     "&+Ix&-I& -& 5&+Iy&-I& +& 3&+Iz&-I& =& -19#RW3)#RWS)#NES)&-I&SP=43:&+Bd)&-B&+I #NES(X}#RWS(R#RW1(15&+"
     "Ix&-I& -& 3&+Iz&-I& =& 30#RW1)#RW2(3&+Ix&-I& +& &+Iy&-I& -& 6&+Iz&-I& =& -18#RW2)#RW3(-4&+Ix&-I& -& "
     "8&+Iy&-I& +& 7&+Iz&-I& =& -1#RW3)#RWS)#NES)&-I&LF&SP=5:&+Be)&-B&+I #NES(X}#RWS(R#RW1(-11&+Ix&-I& -& "
     "8&+Iy&-I& -& 9&+Iz&-I& =& 1#RW1)#RW2(-3&+Ix&-I& +& 3&+Iy&-I& +& 8&+Iz&-I& =& -104#RW2)#RW3(4&+Ix&-I&"
     " +& 7&+Iz&-I& =& -9#RW3)#RWS)#NES)&-I&SP=43:&+Bf)&-B&+I #NES(X}#RWS(R#RW1(-2&+Ix&-I& +& 8&+Iy&-I& +&"
     " 4&+Iz&-I& =& 86#RW1)#RW2(-5&+Ix&-I& +& 2&+Iy&-I& -& 5&+Iz&-I& =& 56#RW2)#RW3(-8&+Ix&-I& +& 9&+Iy&-I"
     "& -& 5&+Iz&-I& =& 139#RW3)#RWS)#NES)&-I&LF&SP=5:&+Bg)&-B&+I #NES(X}#RWS(R#RW1(-2&+Ix&-I& +& &+Iy&-I&"
     " =& -4#RW1)#RW2(3&+Ix&-I& -& 6&+Iy&-I& +& 9&+Iz&-I& =& -3#RW2)#RW3(-9&+Ix&-I& -& 9&+Iy&-I& +& 3&+Iz&"
     "-I& =& -21#RW3)#RWS)#NES)&-I&SP=43:&+Bh)&-B&+I #NES(X}#RWS(R#RW1(14&+Ix&-I& -& 9&+Iy&-I& -& 6&+Iz&-I"
     "& =& 109#RW1)#RW2(-2&+Ix&-I& +& 8&+Iy&-I& =& 18#RW2)#RW3(-3&+Ix&-I& -& 3&+Iy&-I& -& 6&+Iz&-I& =& -48"
     "#RW3)#RWS)#NES)&-I&LF&SP=5:&+Bi)&-B&+I #NES(X}#RWS(R#RW1(-9&+Ix&-I& +& 2&+Iy&-I& +& 5&+Iz&-I& =& -94"
     "#RW1)#RW2(-7&+Ix&-I& -& &+Iy&-I& +& 5&+Iz&-I& =& -79#RW2)#RW3(-4&+Ix&-I& +& 6&+Iy&-I& -& 6&+Iz&-I& ="
     "& -12#RW3)#RWS)#NES)&-I&SP=43:&+Bj)&-B&+I #NES(X}#RWS(R#RW1(4&+Ix&-I& +& 4&+Iy&-I& +& 7&+Iz&-I& =& -"
     "51#RW1)#RW2(-3&+Ix&-I& +& 3&+Iy&-I& -& 3&+Iz&-I& =& 54#RW2)#RW3(3&+Iy&-I& +& 4&+Iz&-I& =& -18#RW3)#R"
     "WS)#NES)&-I&LF&SP=5:&+Bk)&-B&+I #NES(X}#RWS(R#RW1(-5&+Ix&-I& +& 8&+Iy&-I& =& 54#RW1)#RW2(7&+Ix&-I& -"
     "& 2&+Iy&-I& -& 3&+Iz&-I& =& -15#RW2)#RW3(-3&+Ix&-I& -& &+Iy&-I& +& 7&+Iz&-I& =& -62#RW3)#RWS)#NES)&-"
     "I&SP=43:&+Bl)&-B&+I #NES(X}#RWS(R#RW1(-8&+Ix&-I& +& 7&+Iy&-I& +& 5&+Iz&-I& =& -35#RW1)#RW2(3&+Ix&-I&"
     " +& 5&+Iy&-I& +& 4&+Iz&-I& =& -21#RW2)#RW3(5&+Ix&-I& -& 7&+Iz&-I& =& 82#RW3)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I  x = &-I3,  &+I y =&-I 7,  &+I z = &-I7&SP=50:&-I&+Bb)&-B &+I  x = &-I-3,  &+"
     "I y =&-I -10,  &+I z = &-I-7&LF&SP=10:&-I&+Bc)&-B &+I  x = &-I4,  &+I y =&-I 4,  &+I z = &-I11&SP=50"
     ":&-I&+Bd)&-B &+I  x = &-I3,  &+I y =&-I 3,  &+I z = &-I5&LF&SP=10:&-I&+Be)&-B &+I  x = &-I10,  &+I y"
     " =&-I -6,  &+I z = &-I-7&SP=50:&-I&+Bf)&-B &+I  x = &-I-9,  &+I y =&-I 8,  &+I z = &-I1&LF&SP=10:&-I"
     "&+Bg)&-B &+I  x = &-I2,  &+I y =&-I 0,  &+I z = &-I-1&SP=50:&-I&+Bh)&-B &+I  x = &-I11,  &+I y =&-I "
     "5,  &+I z = &-I0&LF&SP=10:&-I&+Bi)&-B &+I  x = &-I9,  &+I y =&-I 1,  &+I z = &-I-3&SP=50:&-I&+Bj)&-B"
     " &+I  x = &-I-3,  &+I y =&-I 6,  &+I z = &-I-9&LF&SP=10:&-I&+Bk)&-B &+I  x = &-I-6,  &+I y =&-I 3,  "
     "&+I z = &-I-11&SP=50:&-I&+Bl)&-B &+I  x = &-I1,  &+I y =&-I 4,  &+I z = &-I-11&LF"},
    {"0058998999011010",
     "Solve these systems of  3×3  linear equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(-14&+Ix&-I& -& "
     "4&+Iy&-I& +& 8&+Iz&-I& =& 182#RW1)#RW2(-&+Ix&-I& -& 7&+Iy&-I& -& 9&+Iz&-I& =& -6#RW2)#RW3(-8&+Ix&-I&"
     " -& 6&+Iy&-I& -& 4&+Iz&-I& =& 64#RW3)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I  x = &-I-5,  &+I y =&-I -10,  &+I z = &-I9&LF"},
    {"0061230456050101",
     "Solve the following linear equations:&LF&SP=5:&+Ba)&-B&+I #COC(6&+Ix&-I& +& 5#N)(7#COC)& -& #COC(-8&"
     "+Ix&-I& -& 6#N)(7#COC)& =& -1&-I&SP=43:&+Bb)&-B&+I #COC(2#N)(7#COC)(&+Ix&-I& -& 7)& =& #COC(-2&+Ix&-"
     "I& +& 6#N)(5#COC)& +& 1&-I&LF&SP=5:&+Bc)&-B&+I #COC(-8&+Ix&-I& +& 6#N)(7#COC)& -& #COC(&+Ix&-I& -& 8"
     "#N)(7#COC)& =& 4&-I&SP=43:&+Bd)&-B&+I #COC(-9&+Ix&-I& -& 3#N)(7#COC)& =& #COC(-6&+Ix&-I& +& 1#N)(7#C"
     "OC)&-I&LF&SP=5:&+Be)&-B&+I -#COC(19#N)(3#COC)(&+Ix&-I& -& 6)& =& #COC(-5&+Ix&-I& -& 6#N)(3#COC)& +& "
     "6&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I = #COC(-9#N)(7#COC)&SP=50:&-I&+Bb)&-B &+I x&-I = #COC(49#N)(8#COC)&LF&SP"
     "=10:&-I&+Bc)&-B &+I x&-I = #COC(-14#N)(9#COC)&SP=50:&-I&+Bd)&-B &+I x&-I = #COC(-4#N)(3#COC)&LF&SP=1"
     "0:&-I&+Be)&-B &+I x&-I = #COC(51#N)(7#COC)&LF"},
    {"0060007001120302",
     "Solve the following linear equations:&LF&SP=5:&+Ba)&-B&+I #COC(7#N)(5#COC)(&+Ix&-I& -& 3)& =& #COC(-"
     "7&+Ix&-I& -& 5#N)(6#COC)& +& #COC(7#N)(5#COC)&-I&SP=43:&+Bb)&-B&+I #COC(8&+Ix&-I& -& 2#N)(3#COC)& =&"
     " #COC(7&+Ix&-I& -& 7#N)(4#COC)&-I&LF&SP=5:&+Bc)&-B&+I #COC(2&+Ix&-I& +& 3#N)(6#COC)& -& #COC(-3&+Ix&"
     "-I& +& 2#N)(6#COC)& =& -4&-I&SP=43:&+Bd)&-B&+I #COC(4&+Ix&-I& +& 6#N)(5#COC)& =& #COC(3&+Ix&-I& -& 2"
     "#N)(6#COC)&-I&LF&SP=5:&+Be)&-B&+I #COC(-2&+Ix&-I& +& 7#N)(6#COC)& =& #COC(5&+Ix&-I& -& 4#N)(3#COC)&-"
     "I&SP=43:&+Bf)&-B&+I -#COC(14#N)(9#COC)(&+Ix&-I& +& 1)& =& #COC(-2&+Ix&-I& +& 2#N)(7#COC)& +& 4&-I&LF"
     "&SP=5:&+Bg)&-B&+I #COC(-6&+Ix&-I& +& 6#N)(7#COC)& -& #COC(-9&+Ix&-I& -& 8#N)(5#COC)& =& -1&-I&SP=43:"
     "&+Bh)&-B&+I #COC(-2&+Ix&-I& -& 6#N)(7#COC)& -& #COC(-2&+Ix&-I& -& 3#N)(10#COC)& =& -#COC(7#N)(5#COC)"
     "&-I&LF&SP=5:&+Bi)&-B&+I #COC(7#N)(4#COC)(&+Ix&-I& -& 7)& =& #COC(9&+Ix&-I& -& 5#N)(2#COC)& +& 1&-I&S"
     "P=43:&+Bj)&-B&+I #COC(4&+Ix&-I& -& 6#N)(7#COC)& -& #COC(7&+Ix&-I& +& 3#N)(9#COC)& =& -8&-I&LF&SP=5:&"
     "+Bk)&-B&+I #COC(4&+Ix&-I& -& 5#N)(3#COC)& =& #COC(9&+Ix&-I& +& 3#N)(2#COC)&-I&SP=43:&+Bl)&-B&+I #COC"
     "(-5&+Ix&-I& +& 1#N)(9#COC)& -& #COC(&+Ix&-I& +& 8#N)(3#COC)& =& -5&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I = #COC(13#N)(7#COC)&SP=50:&-I&+Bb)&-B &+I x&-I = #COC(-13#N)(11#COC)&LF&"
     "SP=10:&-I&+Bc)&-B &+I x&-I = -5&SP=50:&-I&+Bd)&-B &+I x&-I = #COC(-46#N)(9#COC)&LF&SP=10:&-I&+Be)&-B"
     " &+I x&-I = #COC(5#N)(4#COC)&SP=50:&-I&+Bf)&-B &+I x&-I = #COC(-23#N)(5#COC)&LF&SP=10:&-I&+Bg)&-B &+"
     "I x&-I = #COC(-11#N)(3#COC)&SP=50:&-I&+Bh)&-B &+I x&-I = #COC(59#N)(6#COC)&LF&SP=10:&-I&+Bi)&-B &+I "
     "x&-I = #COC(-43#N)(11#COC)&SP=50:&-I&+Bj)&-B &+I x&-I = 33&LF&SP=10:&-I&+Bk)&-B &+I x&-I = -1&SP=50:"
     "&-I&+Bl)&-B &+I x&-I = #COC(11#N)(4#COC)&LF"},
    {"0068998999011010",
     "Solve these linear equations:&LF&SP=5:&+Ba)&-B&+I #COC(&+Ix&-I& +& 6#N)(7#COC)& -& #COC(-6&+Ix&-I& -"
     "& 8#N)(3#COC)& =& 4&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I = #COC(2#N)(9#COC)&LF"},
    {"0071230456050101",
     "Solve these linear inequations:&LF&SP=5:&+Ba)&-B&+I #COC(6&+Ix&-I& +& 5#N)(7#COC)& -& #COC(-8&+Ix&-I"
     "& -& 6#N)(7#COC)& <& -1&-I&SP=43:&+Bb)&-B&+I #COC(2#N)(7#COC)(&+Ix&-I& -& 7)& &<=& #COC(-2&+Ix&-I& +"
     "& 6#N)(5#COC)& +& 1&-I&LF&SP=5:&+Bc)&-B&+I #COC(-6&+Ix&-I& -& 5#N)(3#COC)& &<=& #COC(-7&+Ix&-I& -& 8"
     "#N)(9#COC)&-I&SP=43:&+Bd)&-B&+I #COC(-&+Ix&-I& -& 3#N)(8#COC)& &>=& #COC(-&+Ix&-I& -& 7#N)(5#COC)&-I"
     "&LF&SP=5:&+Be)&-B&+I #COC(4&+Ix&-I& +& 5#N)(7#COC)& -& #COC(5&+Ix&-I& +& 4#N)(8#COC)& &<=& #COC(1#N)"
     "(3#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I < #COC(-9#N)(7#COC)&SP=50:&-I&+Bb)&-B &+I x&-I &<= #COC(49#N)(8#COC)&LF&"
     "SP=10:&-I&+Bc)&-B &+I x&-I &>= #COC(-7#N)(11#COC)&SP=50:&-I&+Bd)&-B &+I x&-I &>= #COC(-41#N)(3#COC)&"
     "LF&SP=10:&-I&+Be)&-B &+I x&-I &>= #COC(-20#N)(9#COC)&LF"},
    {"0070007001120302",
     "Solve these linear inequations:&LF&SP=5:&+Ba)&-B&+I #COC(-5&+Ix&-I& -& 2#N)(8#COC)& -& #COC(-7&+Ix&-"
     "I& -& 6#N)(8#COC)& &<=& -#COC(3#N)(5#COC)&-I&SP=43:&+Bb)&-B&+I #COC(1#N)(4#COC)(&+Ix&-I& -& 2)& >& #"
     "COC(5&+Ix&-I& +& 1#N)(2#COC)& +& 8&-I&LF&SP=5:&+Bc)&-B&+I #COC(3&+Ix&-I& -& 3#N)(10#COC)& -& #COC(&+"
     "Ix&-I& -& 5#N)(2#COC)& <& 2&-I&SP=43:&+Bd)&-B&+I #COC(-4&+Ix&-I& +& 2#N)(7#COC)& >& #COC(-6&+Ix&-I& "
     "+& 1#N)(9#COC)&-I&LF&SP=5:&+Be)&-B&+I #COC(2&+Ix&-I& +& 5#N)(9#COC)& &<=& #COC(5&+Ix&-I& -& 3#N)(6#C"
     "OC)&-I&SP=43:&+Bf)&-B&+I #COC(3&+Ix&-I& -& 4#N)(9#COC)& -& #COC(2&+Ix&-I& +& 1#N)(9#COC)& >& #COC(2#"
     "N)(3#COC)&-I&LF&SP=5:&+Bg)&-B&+I #COC(-6&+Ix&-I& +& 6#N)(7#COC)& -& #COC(-9&+Ix&-I& -& 8#N)(5#COC)& "
     "&<=& -1&-I&SP=43:&+Bh)&-B&+I #COC(-2&+Ix&-I& -& 6#N)(7#COC)& -& #COC(-2&+Ix&-I& -& 3#N)(10#COC)& &<="
     "& -#COC(7#N)(5#COC)&-I&LF&SP=5:&+Bi)&-B&+I #COC(-4&+Ix&-I& +& 8#N)(3#COC)& >& #COC(-8&+Ix&-I& +& 3#N"
     ")(9#COC)&-I&SP=43:&+Bj)&-B&+I #COC(7&+Ix&-I& +& 3#N)(9#COC)& -& #COC(&+Ix&-I& -& 7#N)(3#COC)& <& 4&-"
     "I&LF&SP=5:&+Bk)&-B&+I #COC(-4&+Ix&-I& +& 1#N)(4#COC)& -& #COC(-8&+Ix&-I& -& 1#N)(4#COC)& <& #COC(3#N"
     ")(5#COC)&-I&SP=43:&+Bl)&-B&+I #COC(3&+Ix&-I& +& 2#N)(9#COC)& -& #COC(7&+Ix&-I& -& 8#N)(9#COC)& <& #C"
     "OC(5#N)(9#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I &<= #COC(-22#N)(5#COC)&SP=50:&-I&+Bb)&-B &+I x&-I < -4&LF&SP=10:&-I&+Bc)"
     "&-B &+I x&-I > 1&SP=50:&-I&+Bd)&-B &+I x&-I > #COC(-11#N)(6#COC)&LF&SP=10:&-I&+Be)&-B &+I x&-I &>= #"
     "COC(19#N)(11#COC)&SP=50:&-I&+Bf)&-B &+I x&-I > 11&LF&SP=10:&-I&+Bg)&-B &+I x&-I &<= #COC(-11#N)(3#CO"
     "C)&SP=50:&-I&+Bh)&-B &+I x&-I &>= #COC(59#N)(6#COC)&LF&SP=10:&-I&+Bi)&-B &+I x&-I < #COC(21#N)(4#COC"
     ")&SP=50:&-I&+Bj)&-B &+I x&-I < 3&LF&SP=10:&-I&+Bk)&-B &+I x&-I < #COC(1#N)(10#COC)&SP=50:&-I&+Bl)&-B"
     " &+I x&-I > #COC(5#N)(4#COC)&LF"},
    {"0078998999011010",
     "Solve these linear inequations:&LF&SP=5:&+Ba)&-B&+I #COC(&+Ix&-I& +& 6#N)(7#COC)& -& #COC(-6&+Ix&-I&"
     " -& 8#N)(3#COC)& >& 4&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I > #COC(2#N)(9#COC)&LF"},
    {"0081230456050101",
     "Solve these linear inequations:&LF&SP=5:&+Ba)&-B&+I 5(&+Ix&-I& +& 4)& <& 75&-I&SP=29:&+Bb)&-B&+I 6(&"
     "+Ix&-I& +& 1)& &>=& -60&-I&SP=53:&+Bc)&-B&+I 8(&+Ix&-I& -& 2)& &<=& -24&-I&LF&SP=5:&+Bd)&-B&+I -5&+I"
     "x&-I& +& 11& <& -&+Ix&-I& +& 7&-I&SP=29:&+Be)&-B&+I -7(&+Ix&-I& +& 4)& &>=& -98&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I < 11&SP=40:&-I&+Bb)&-B &+I x&-I &>= -11&SP=70:&-I&+Bc)&-B &+I x&-I &<= -"
     "1&LF&SP=10:&-I&+Bd)&-B &+I x&-I > 1&SP=40:&-I&+Be)&-B &+I x&-I &<= 10&LF"},
    {"0080007001120302",
     "Solve these linear inequations:&LF&SP=5:&+Ba)&-B&+I 4(&+Ix&-I& +& 1)& &<=& 32&-I&SP=29:&+Bb)&-B&+I 7"
     "(&+Ix&-I& +& 6)& &>=& 5&+Ix&-I& +& 38&-I&SP=53:&+Bc)&-B&+I 4&+Ix&-I& +& 10& >& 5&+Ix&-I& +& 20&-I&LF"
     "&SP=5:&+Bd)&-B&+I -3&+Ix&-I& +& 1& &>=& 3&+Ix&-I& +& 25&-I&SP=29:&+Be)&-B&+I -10(&+Ix&-I& -& 2)& >& "
     "-20&-I&SP=53:&+Bf)&-B&+I -9&+Ix&-I& -& 2& &>=& 5&+Ix&-I& +& 110&-I&LF&SP=5:&+Bg)&-B&+I 8(&+Ix&-I& +&"
     " 3)& >& 48&-I&SP=29:&+Bh)&-B&+I 3(&+Ix&-I& -& 2)& >& -3&-I&SP=53:&+Bi)&-B&+I -9(&+Ix&-I& +& 1)& &>=&"
     " -&+Ix&-I& -& 73&-I&LF&SP=5:&+Bj)&-B&+I 10&+Ix&-I& +& 9& <& 3&+Ix&-I& +& 37&-I&SP=29:&+Bk)&-B&+I 9(&"
     "+Ix&-I& +& 7)& &<=& -18&-I&SP=53:&+Bl)&-B&+I -4&+Ix&-I& -& 7& &<=& 8&+Ix&-I& -& 43&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I &<= 7&SP=40:&-I&+Bb)&-B &+I x&-I &>= -2&SP=70:&-I&+Bc)&-B &+I x&-I < -10"
     "&LF&SP=10:&-I&+Bd)&-B &+I x&-I &<= -4&SP=40:&-I&+Be)&-B &+I x&-I < 4&SP=70:&-I&+Bf)&-B &+I x&-I &<= "
     "-8&LF&SP=10:&-I&+Bg)&-B &+I x&-I > 3&SP=40:&-I&+Bh)&-B &+I x&-I > 1&SP=70:&-I&+Bi)&-B &+I x&-I &<= 8"
     "&LF&SP=10:&-I&+Bj)&-B &+I x&-I < 4&SP=40:&-I&+Bk)&-B &+I x&-I &<= -9&SP=70:&-I&+Bl)&-B &+I x&-I &>= "
     "3&LF"},
    {"0088998999011010",
     "Solve these linear inequations:&LF&SP=5:&+Ba)&-B&+I -2&+Ix&-I& +& 11& >& -7&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I x&-I < 9&LF"},
    {"0091230456050101",
     "Solve the following nonlinear systems of  2×2  equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(&+Ix"
     "&-I& +& &+Iy&-I& =& 6#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& 5#RW2)#RWS)#NES)&-I&SP=43:&+Bb)&-B&+I #NES(X}#RWS"
     "(R#RW1(&+Ix&-I& +& &+Iy&-I& =& 0#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& -25#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bc)&-B"
     "&+I #NES(X}#RWS(R#RW1(&+Ix&-I& -& &+Iy&-I& =& 2#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 74#RW2)#RWS)#NE"
     "S)&-I&SP=43:&+Bd)&-B&+I #NES(X}#RWS(R#RW1(&+Iy&-I& =& &+Ix&-I^2& -& 5&+Ix&-I& +& 4#RW1)#RW2(-7&+Ix&-"
     "I& -& &+Iy&-I& =& -7#RW2)#RWS)#NES)&-I&LF&SP=5:&+Be)&-B&+I #NES(X}#RWS(R#RW1(&+Ix&-I& -& &+Iy&-I& =&"
     " -7#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 49#RW2)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I_1 = 1,   &+Iy&-I_1 = 5;    &+Ix&-I_2 = 5,   &+Iy&-I_2 = 1&LF&SP=10:&-I&+B"
     "b)&-B &+Ix&-I_1 = -5,   &+Iy&-I_1 = 5;    &+Ix&-I_2 = 5,   &+Iy&-I_2 = -5&LF&SP=10:&-I&+Bc)&-B &+Ix&"
     "-I_1 = 7,   &+Iy&-I_1 = 5;    &+Ix&-I_2 = -5,   &+Iy&-I_2 = -7&LF&SP=10:&-I&+Bd)&-B &+Ix&-I_1 = -3, "
     "  &+Iy&-I_1 = 28;    &+Ix&-I_2 = 1,   &+Iy&-I_2 = 0&LF&SP=10:&-I&+Be)&-B &+Ix&-I_1 = 0,   &+Iy&-I_1 "
     "= 7;    &+Ix&-I_2 = -7,   &+Iy&-I_2 = 0&LF"},
    {"0090007001120302",
     "Solve the following nonlinear systems of  2×2  equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(&+Ix"
     "&-I& +& &+Iy&-I& =& 7#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& -8#RW2)#RWS)#NES)&-I&SP=43:&+Bb)&-B&+I #NES(X}#RW"
     "S(R#RW1(&+Ix&-I& +& &+Iy&-I& =& 7#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& 6#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bc)&-B&"
     "+I #NES(X}#RWS(R#RW1(&+Ix&-I& +& &+Iy&-I& =& 3#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& -4#RW2)#RWS)#NES)&-I&SP="
     "43:&+Bd)&-B&+I #NES(X}#RWS(R#RW1(&+Ix&-I& -& &+Iy&-I& =& -2#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 100"
     "#RW2)#RWS)#NES)&-I&LF&SP=5:&+Be)&-B&+I #NES(X}#RWS(R#RW1(&+Iy&-I& =& &+Ix&-I^2& -& 2&+Ix&-I& +& 3#RW"
     "1)#RW2(-3&+Ix&-I& -& &+Iy&-I& =& -3#RW2)#RWS)#NES)&-I&SP=43:&+Bf)&-B&+I #NES(X}#RWS(R#RW1(&+Ix&-I& +"
     "& &+Iy&-I& =& 3#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& -54#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bg)&-B&+I #NES(X}#RWS(R"
     "#RW1(&+Ix&-I& +& &+Iy&-I& =& -2#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 34#RW2)#RWS)#NES)&-I&SP=43:&+Bh"
     ")&-B&+I #NES(X}#RWS(R#RW1(&+Ix&-I& -& &+Iy&-I& =& -1#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 61#RW2)#RW"
     "S)#NES)&-I&LF&SP=5:&+Bi)&-B&+I #NES(X}#RWS(R#RW1(&+Iy&-I& =& &+Ix&-I^2& -& 8&+Ix&-I& -& 9#RW1)#RW2(-"
     "14&+Ix&-I& -& &+Iy&-I& =& 17#RW2)#RWS)#NES)&-I&SP=43:&+Bj)&-B&+I #NES(X}#RWS(R#RW1(&+Ix&-I& +& &+Iy&"
     "-I& =& 12#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& 35#RW2)#RWS)#NES)&-I&LF&SP=5:&+Bk)&-B&+I #NES(X}#RWS(R#RW1(&+"
     "Ix&-I& +& &+Iy&-I& =& 4#RW1)#RW2(&+Ix&-I·&+Iy&-I& =& -45#RW2)#RWS)#NES)&-I&SP=43:&+Bl)&-B&+I #NES(X}"
     "#RWS(R#RW1(&+Ix&-I& -& &+Iy&-I& =& -1#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 41#RW2)#RWS)#NES)&-I&LF&L"
     "F",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I_1 = -1,   &+Iy&-I_1 = 8;    &+Ix&-I_2 = 8,   &+Iy&-I_2 = -1&LF&SP=10:&-I&"
     "+Bb)&-B &+Ix&-I_1 = 1,   &+Iy&-I_1 = 6;    &+Ix&-I_2 = 6,   &+Iy&-I_2 = 1&LF&SP=10:&-I&+Bc)&-B &+Ix&"
     "-I_1 = -1,   &+Iy&-I_1 = 4;    &+Ix&-I_2 = 4,   &+Iy&-I_2 = -1&LF&SP=10:&-I&+Bd)&-B &+Ix&-I_1 = 6,  "
     " &+Iy&-I_1 = 8;    &+Ix&-I_2 = -8,   &+Iy&-I_2 = -6&LF&SP=10:&-I&+Be)&-B &+Ix&-I_1 = -1,   &+Iy&-I_1"
     " = 6;    &+Ix&-I_2 = 0,   &+Iy&-I_2 = 3&LF&SP=10:&-I&+Bf)&-B &+Ix&-I_1 = -6,   &+Iy&-I_1 = 9;    &+I"
     "x&-I_2 = 9,   &+Iy&-I_2 = -6&LF&SP=10:&-I&+Bg)&-B &+Ix&-I_1 = -5,   &+Iy&-I_1 = 3;    &+Ix&-I_2 = 3,"
     "   &+Iy&-I_2 = -5&LF&SP=10:&-I&+Bh)&-B &+Ix&-I_1 = 5,   &+Iy&-I_1 = 6;    &+Ix&-I_2 = -6,   &+Iy&-I_"
     "2 = -5&LF&SP=10:&-I&+Bi)&-B &+Ix&-I_1 = -4,   &+Iy&-I_1 = 39;    &+Ix&-I_2 = -2,   &+Iy&-I_2 = 11&LF"
     "&SP=10:&-I&+Bj)&-B &+Ix&-I_1 = 7,   &+Iy&-I_1 = 5;    &+Ix&-I_2 = 5,   &+Iy&-I_2 = 7&LF&SP=10:&-I&+B"
     "k)&-B &+Ix&-I_1 = -5,   &+Iy&-I_1 = 9;    &+Ix&-I_2 = 9,   &+Iy&-I_2 = -5&LF&SP=10:&-I&+Bl)&-B &+Ix&"
     "-I_1 = 4,   &+Iy&-I_1 = 5;    &+Ix&-I_2 = -5,   &+Iy&-I_2 = -4&LF"},
    {"0098998999011010",
     "Solve these nonlinear systems of  2×2  equations:&LF&SP=5:&+Ba)&-B&+I #NES(X}#RWS(R#RW1(&+Ix&-I& +& "
     "&+Iy&-I& =& -2#RW1)#RW2(&+Ix&-I^2& +& &+Iy&-I^2& =& 34#RW2)#RWS)#NES)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I_1 = -5,   &+Iy&-I_1 = 3;    &+Ix&-I_2 = 3,   &+Iy&-I_2 = -5&LF"},
    {"0101230456050101",
     "Solve these exponential equations:&LF&SP=5:&+Ba)&-B&+I #POT(4#PB)(2&+Ix&-I& -& 6#POT)& =& 16&-I&SP=4"
     "3:&+Bb)&-B&+I #POT(3#PB)(2&+Ix&-I#POT)& -& 10·#POT(3#PB)(&+Ix&-I#POT)& +& 9& =& 0&-I&LF&SP=5:&+Bc)&-"
     "B&+I #POT(3#PB)(&+Ix&-I^2& -& &+Ix&-I#POT)& =& 9&-I&SP=43:&+Bd)&-B&+I #POT(2#PB)(&+Ix&-I& +& 1#POT)&"
     " -& #POT(2#PB)(&+Ix&-I#POT)& =& 16&-I&LF&SP=5:&+Be)&-B&+I #POT(4#PB)(&+Ix&-I& +& 6#POT)& =& 64&-I&LF"
     "&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix = &-I4&SP=50:&-I&+Bb)&-B &+Ix_1 = &-I0,   &+Ix_2 = &-I2&LF&SP=10:&-I&+Bc)&-B"
     " &+Ix_1 = &-I-1,   &+Ix_2 = &-I2&SP=50:&-I&+Bd)&-B &+Ix = &-I4&LF&SP=10:&-I&+Be)&-B &+Ix = &-I-3&LF"},
    {"0100007001120302",
     "Solve these exponential equations:&LF&SP=5:&+Ba)&-B&+I #POT(4#PB)(&+Ix&-I& +& 1#POT)& -& #POT(4#PB)("
     "&+Ix&-I#POT)& =& 192&-I&SP=43:&+Bb)&-B&+I #POT(5#PB)(2&+Ix&-I#POT)& -& 6·#POT(5#PB)(&+Ix&-I#POT)& +&"
     " 5& =& 0&-I&LF&SP=5:&+Bc)&-B&+I #POT(4#PB)(&+Ix&-I& +& 1#POT)& -& #POT(4#PB)(&+Ix&-I#POT)& =& 3&-I&S"
     "P=43:&+Bd)&-B&+I #POT(3#PB)(&+Ix&-I^2& +& 5&+Ix&-I#POT)& =& #COC(1#N)(729#COC)&-I&LF&SP=5:&+Be)&-B&+"
     "I #POT(3#PB)(&+Ix&-I& +& 1#POT)& -& #POT(3#PB)(&+Ix&-I#POT)& =& 162&-I&SP=43:&+Bf)&-B&+I #POT(5#PB)("
     "&+Ix&-I& +& 4#POT)& =& 625&-I&LF&SP=5:&+Bg)&-B&+I #POT(4#PB)(&+Ix&-I^2& -& 2&+Ix&-I#POT)& =& 1&-I&SP"
     "=43:&+Bh)&-B&+I #POT(3#PB)(&+Ix&-I^2& -& &+Ix&-I#POT)& =& 729&-I&LF&SP=5:&+Bi)&-B&+I #POT(3#PB)(2&+I"
     "x&-I#POT)& -& 10·#POT(3#PB)(&+Ix&-I#POT)& +& 9& =& 0&-I&SP=43:&+Bj)&-B&+I #POT(4#PB)(2&+Ix&-I& -& 3#"
     "POT)& =& 64&-I&LF&SP=5:&+Bk)&-B&+I #POT(5#PB)(&+Ix&-I^2& -& 4&+Ix&-I#POT)& =& #COC(1#N)(125#COC)&-I&"
     "SP=43:&+Bl)&-B&+I #POT(3#PB)(&+Ix&-I^2& -& 3&+Ix&-I#POT)& =& 1&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix = &-I3&SP=50:&-I&+Bb)&-B &+Ix_1 = &-I0,   &+Ix_2 = &-I1&LF&SP=10:&-I&+Bc)&-B"
     " &+Ix = &-I0&SP=50:&-I&+Bd)&-B &+Ix_1 = &-I-3,   &+Ix_2 = &-I-2&LF&SP=10:&-I&+Be)&-B &+Ix = &-I4&SP="
     "50:&-I&+Bf)&-B &+Ix = &-I0&LF&SP=10:&-I&+Bg)&-B &+Ix_1 = &-I0,   &+Ix_2 = &-I2&SP=50:&-I&+Bh)&-B &+I"
     "x_1 = &-I-2,   &+Ix_2 = &-I3&LF&SP=10:&-I&+Bi)&-B &+Ix_1 = &-I0,   &+Ix_2 = &-I2&SP=50:&-I&+Bj)&-B &"
     "+Ix = &-I3&LF&SP=10:&-I&+Bk)&-B &+Ix_1 = &-I1,   &+Ix_2 = &-I3&SP=50:&-I&+Bl)&-B &+Ix_1 = &-I0,   &+"
     "Ix_2 = &-I3&LF"},
    {"0108998999011010",
     "Solve the following exponential equations:&LF&SP=5:&+Ba)&-B&+I #POT(2#PB)(&+Ix&-I^2& +& 3&+Ix&-I#POT"
     ")& =& #COC(1#N)(4#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix_1 = &-I-2,   &+Ix_2 = &-I-1&LF"},
    {"0111230456050101",
     "Solve these incomplete quadratic equations:&LF&SP=5:&+Ba)&-B&+I 10&+Ix&-I^2& +& 9& =& 0&-I&SP=29:&+B"
     "b)&-B&+I 9&+Ix&-I^2& -& 1& =& 0&-I&SP=53:&+Bc)&-B&+I 7&+Ix&-I^2& +& 9&+Ix&-I& =& 0&-I&LF&SP=5:&+Bd)&"
     "-B&+I 5&+Ix&-I^2& +& 2& =& 0&-I&SP=29:&+Be)&-B&+I 4&+Ix&-I^2& +& 4& =& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I No real solution.&-I&SP=50:&-I&+Bb)&-B &+Ix&-I = #COC(1#N)(3#COC);    &+Ix&-I"
     " = #COC(-1#N)(3#COC)&LF&SP=10:&-I&+Bc)&-B &+Ix&-I = 0;    &+Ix&-I = #COC(-9#N)(7#COC)&SP=50:&-I&+Bd)"
     "&-B &+I No real solution.&-I&LF&SP=10:&-I&+Be)&-B &+I No real solution.&-I&LF"},
    {"0110007001120302",
     "Solve the following incomplete quadratic equations:&LF&SP=5:&+Ba)&-B&+I -8&+Ix&-I^2& -& 6& =& 0&-I&S"
     "P=29:&+Bb)&-B&+I 16&+Ix&-I^2& -& 25& =& 0&-I&SP=53:&+Bc)&-B&+I 7&+Ix&-I^2& +& 7& =& 0&-I&LF&SP=5:&+B"
     "d)&-B&+I 5&+Ix&-I^2& +& 7&+Ix&-I& =& 0&-I&SP=29:&+Be)&-B&+I 4&+Iz&-I^2& -& 17&+Iz&-I& =& 0&-I&SP=53:"
     "&+Bf)&-B&+I 6&+Ix&-I^2& -& 4&+Ix&-I& =& 0&-I&LF&SP=5:&+Bg)&-B&+I 10&+Ix&-I^2& +& 2& =& 0&-I&SP=29:&+"
     "Bh)&-B&+I 9&+It&-I^2& -& 9& =& 0&-I&SP=53:&+Bi)&-B&+I -5&+Ix&-I^2& -& 8& =& 0&-I&LF&SP=5:&+Bj)&-B&+I"
     " 6&+Ix&-I^2& +& 10& =& 0&-I&SP=29:&+Bk)&-B&+I 3&+Ix&-I^2& +& 7& =& 0&-I&SP=53:&+Bl)&-B&+I 9&+Iz&-I^2"
     "& +& 5& =& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I No real solution.&-I&SP=50:&-I&+Bb)&-B &+Ix&-I = #COC(5#N)(4#COC);    &+Ix&-I"
     " = #COC(-5#N)(4#COC)&LF&SP=10:&-I&+Bc)&-B &+I No real solution.&-I&SP=50:&-I&+Bd)&-B &+Ix&-I = 0;   "
     " &+Ix&-I = #COC(-7#N)(5#COC)&LF&SP=10:&-I&+Be)&-B &+Iz&-I = 0;    &+Iz&-I = #COC(17#N)(4#COC)&SP=50:"
     "&-I&+Bf)&-B &+Ix&-I = 0;    &+Ix&-I = #COC(2#N)(3#COC)&LF&SP=10:&-I&+Bg)&-B &+I No real solution.&-I"
     "&SP=50:&-I&+Bh)&-B &+It&-I = 1;    &+It&-I = -1&LF&SP=10:&-I&+Bi)&-B &+I No real solution.&-I&SP=50:"
     "&-I&+Bj)&-B &+I No real solution.&-I&LF&SP=10:&-I&+Bk)&-B &+I No real solution.&-I&SP=50:&-I&+Bl)&-B"
     " &+I No real solution.&-I&LF"},
    {"0118998999011010",
     "Solve the following incomplete quadratic equations:&LF&SP=5:&+Ba)&-B&+I 9&+Ix&-I^2& -& 9& =& 0&-I&LF"
     "&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I = 1;    &+Ix&-I = -1&LF"},
    {"0121230456050101",
     "Solve the following biquadratic equations:&LF&SP=5:&+Ba)&-B&+I &+Ix&-I^4& -& 38&+Ix&-I^2& +& 325& =&"
     " 0&-I&SP=43:&+Bb)&-B&+I &+Ix&-I^4& -& 61&+Ix&-I^2& +& 900& =& 0&-I&LF&SP=5:&+Bc)&-B&+I 5&+Ix&-I^4& +"
     "& 10&+Ix&-I^2& -& 15& =& 0&-I&SP=43:&+Bd)&-B&+I &+Ix&-I^4& -& 82&+Ix&-I^2& +& 81& =& 0&-I&LF&SP=5:&+"
     "Be)&-B&+I &+Ix&-I^4& -& 41&+Ix&-I^2& +& 180& =& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I = ± 5;    &+Ix&-I = ± #SQR(13#SQR)&SP=50:&-I&+Bb)&-B &+Ix&-I = ± 5;    &+"
     "Ix&-I = ± 6&LF&SP=10:&-I&+Bc)&-B &+Ix&-I = ± 1&SP=50:&-I&+Bd)&-B &+Ix&-I = ± 1;    &+Ix&-I = ± 9&LF&"
     "SP=10:&-I&+Be)&-B &+Ix&-I = ± 6;    &+Ix&-I = ± #SQR(5#SQR)&LF"},
    {"0120007001120302",
     "Solve the following biquadratic equations:&LF&SP=5:&+Ba)&-B&+I &+Ix&-I^4& -& 37&+Ix&-I^2& +& 300& =&"
     " 0&-I&SP=43:&+Bb)&-B&+I 4&+Ix&-I^4& -& 52&+Ix&-I^2& -& 192& =& 0&-I&LF&SP=5:&+Bc)&-B&+I 4&+Ix&-I^4& "
     "-& 72&+Ix&-I^2& +& 128& =& 0&-I&SP=43:&+Bd)&-B&+I 3&+Ix&-I^4& +& 54&+Ix&-I^2& -& 57& =& 0&-I&LF&SP=5"
     ":&+Be)&-B&+I &+Ik&-I^4& -& 52&+Ik&-I^2& +& 576& =& 0&-I&SP=43:&+Bf)&-B&+I &+Ix&-I^4& -& 3&+Ix&-I^2& "
     "-& 208& =& 0&-I&LF&SP=5:&+Bg)&-B&+I 4&+Ix&-I^4& -& 80&+Ix&-I^2& +& 256& =& 0&-I&SP=43:&+Bh)&-B&+I &+"
     "Ix&-I^4& -& 23&+Ix&-I^2& +& 76& =& 0&-I&LF&SP=5:&+Bi)&-B&+I &+Ix&-I^4& -& 7&+Ix&-I^2& -& 18& =& 0&-I"
     "&SP=43:&+Bj)&-B&+I &+Ix&-I^4& -& 52&+Ix&-I^2& +& 576& =& 0&-I&LF&SP=5:&+Bk)&-B&+I 4&+Ix&-I^4& -& 92&"
     "+Ix&-I^2& +& 304& =& 0&-I&SP=43:&+Bl)&-B&+I &+Ix&-I^4& -& 34&+Ix&-I^2& +& 225& =& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I = ± 5;    &+Ix&-I = ± 2#SQR(3#SQR)&SP=50:&-I&+Bb)&-B &+Ix&-I = ± 4&LF&SP="
     "10:&-I&+Bc)&-B &+Ix&-I = ± 4;    &+Ix&-I = ± #SQR(2#SQR)&SP=50:&-I&+Bd)&-B &+Ix&-I = ± 1&LF&SP=10:&-"
     "I&+Be)&-B &+Ik&-I = ± 4;    &+Ik&-I = ± 6&SP=50:&-I&+Bf)&-B &+Ix&-I = ± 4&LF&SP=10:&-I&+Bg)&-B &+Ix&"
     "-I = ± 4;    &+Ix&-I = ± 2&SP=50:&-I&+Bh)&-B &+Ix&-I = ± 2;    &+Ix&-I = ± #SQR(19#SQR)&LF&SP=10:&-I"
     "&+Bi)&-B &+Ix&-I = ± 3&SP=50:&-I&+Bj)&-B &+Ix&-I = ± 4;    &+Ix&-I = ± 6&LF&SP=10:&-I&+Bk)&-B &+Ix&-"
     "I = ± 2;    &+Ix&-I = ± #SQR(19#SQR)&SP=50:&-I&+Bl)&-B &+Ix&-I = ± 3;    &+Ix&-I = ± 5&LF"},
    {"0128998999011010",
     "Solve the following biquadratic equations:&LF&SP=5:&+Ba)&-B&+I 7&+Ix&-I^4& -& 574&+Ix&-I^2& +& 567& "
     "=& 0&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix&-I = ± 9;    &+Ix&-I = ± 1&LF"},
    {"0131230456050101",
     "Solve the following logarithmic equations:&LF&SP=5:&+Ba)&-B&+I &-Ilog_7(2&+Ix&-I& -& 7)& =& 1&-I&SP="
     "43:&+Bb)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 59)& =& log& 536&-I&LF&SP=5:&+Bc)&-B&+I &-Ilog_5("
     "3&+Ix&-I& -& 10)& =& 1&-I&SP=43:&+Bd)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 76)& =& log& 405&-I&"
     "LF&SP=5:&+Be)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 9)& =& log& 10&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix =&-I 7&SP=50:&-I&+Bb)&-B &+Ix =&-I 8&LF&SP=10:&-I&+Bc)&-B &+Ix =&-I 5&SP=50:"
     "&-I&+Bd)&-B &+Ix =&-I 5&LF&SP=10:&-I&+Be)&-B &+Ix =&-I 1&LF"},
    {"0130007001120302",
     "Solve these logarithmic equations:&LF&SP=5:&+Ba)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 77)& =& l"
     "og& 588&-I&SP=43:&+Bb)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 30)& =& log& 304&-I&LF&SP=5:&+Bc)&-"
     "B&+I &-I2& log& &+Ix&-I& =& log(4&+Ix&-I& +& 32)&-I&SP=43:&+Bd)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-"
     "I& +& 78)& =& log& 504&-I&LF&SP=5:&+Be)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 37)& =& log& 120&-"
     "I&SP=43:&+Bf)&-B&+I &-Ilog_4(3&+Ix&-I& +& 7)& =& 2&-I&LF&SP=5:&+Bg)&-B&+I &-I2& log& &+Ix&-I& =& log"
     "(-2&+Ix&-I& +& 24)&-I&SP=43:&+Bh)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 7)& =& log& 144&-I&LF&SP"
     "=5:&+Bi)&-B&+I &-Ilog_4(3&+Ix&-I& -& 26)& =& 0&-I&SP=43:&+Bj)&-B&+I &-Ilog_5(2&+Ix&-I& -& 1)& =& 1&-"
     "I&LF&SP=5:&+Bk)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 71)& =& log& 462&-I&SP=43:&+Bl)&-B&+I &-Il"
     "og& &+Ix&-I& +& log(&+Ix&-I& +& 35)& =& log& 200&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix =&-I 7&SP=50:&-I&+Bb)&-B &+Ix =&-I 8&LF&SP=10:&-I&+Bc)&-B &+Ix =&-I 8&SP=50:"
     "&-I&+Bd)&-B &+Ix =&-I 6&LF&SP=10:&-I&+Be)&-B &+Ix =&-I 3&SP=50:&-I&+Bf)&-B &+Ix =&-I 3&LF&SP=10:&-I&"
     "+Bg)&-B &+Ix =&-I 4&SP=50:&-I&+Bh)&-B &+Ix =&-I 9&LF&SP=10:&-I&+Bi)&-B &+Ix =&-I 9&SP=50:&-I&+Bj)&-B"
     " &+Ix =&-I 3&LF&SP=10:&-I&+Bk)&-B &+Ix =&-I 6&SP=50:&-I&+Bl)&-B &+Ix =&-I 5&LF"},
    {"0138998999011010",
     "Solve the following logarithmic equations:&LF&SP=5:&+Ba)&-B&+I &-Ilog& &+Ix&-I& +& log(&+Ix&-I& +& 8"
     "7)& =& log& 178&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Ix =&-I 2&LF"},
    {"0141230456050101",
     "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0°,& 360°).&LF&SP"
     "=5:&+Ba)&-B  cos &+Ix&-I + 1 - sin^2 &+Ix&-I = cos^2 &+Ix&-I&SP=50:&+Bb)&-B  cos &+Ix&-I - cos^2 &+I"
     "x&-I = sin^2 &+Ix&-I&LF&SP=5:&+Bc)&-B  2sin^2 &+Ix&-I + sin &+Ix&-I = 0&SP=50:&+Bd)&-B  sin &+Ix&-I "
     "(2 - sin &+Ix&-I) = cos^2 &+Ix&-I&LF&SP=5:&+Be)&-B  2sin 3&+Ix&-I - sin^2 &+Ix&-I = cos^2 &+Ix&-I&LF"
     "&LF",
     "&SP=10:&+Ba)&-B  90°,  270°&SP=50:&+Bb)&-B  0°&LF&SP=10:&+Bc)&-B  0°,  180°,  210°,  330°&SP=50:&+Bd"
     ")&-B  30°,  150°&LF&SP=10:&+Be)&-B  10°,  50°,  130°,  170°,  250°,  290°&LF"},
    {"0140007001120302",
     "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0°,& 360°).&LF&SP"
     "=5:&+Ba)&-B  2cos 3&+Ix&-I + #RAD(3#RAD) = 0&SP=50:&+Bb)&-B  cos 3&+Ix&-I - cos^2 &+Ix&-I = sin^2 &+"
     "Ix&-I&LF&SP=5:&+Bc)&-B  sin 2&+Ix&-I - cos^2 &+Ix&-I = sin^2 &+Ix&-I&SP=50:&+Bd)&-B  2cos &+Ix&-I + "
     "1 = 0&LF&SP=5:&+Be)&-B  sin 3&+Ix&-I + cos^2 &+Ix&-I = -sin^2 &+Ix&-I&SP=50:&+Bf)&-B  2cos 2&+Ix&-I "
     "+ 1 = 0&LF&SP=5:&+Bg)&-B  cos^2 &+Ix&-I - sin &+Ix&-I = 1&SP=50:&+Bh)&-B  cos &+Ix&-I + sin^2 &+Ix&-"
     "I = -cos^2 &+Ix&-I&LF&SP=5:&+Bi)&-B  2sin 2&+Ix&-I - 1 = 0&SP=50:&+Bj)&-B  2cos 3&+Ix&-I + #RAD(2#RA"
     "D) = 0&LF&SP=5:&+Bk)&-B  2cos &+Ix&-I + #RAD(3#RAD) = 0&SP=50:&+Bl)&-B  cos &+Ix&-I - cos^2 &+Ix&-I "
     "= sin^2 &+Ix&-I&LF&LF",
     "&SP=10:&+Ba)&-B  50°,  70°,  170°,  190°,  290°,  310°&SP=50:&+Bb)&-B  0°,  120°,  240°&LF&SP=10:&+B"
     "c)&-B  45°,  225°&SP=50:&+Bd)&-B  120°,  240°&LF&SP=10:&+Be)&-B  90°,  210°,  330°&SP=50:&+Bf)&-B  6"
     "0°,  120°,  240°,  300°&LF&SP=10:&+Bg)&-B  0°,  180°,  270°&SP=50:&+Bh)&-B  180°&LF&SP=10:&+Bi)&-B  "
     "15°,  75°,  195°,  255°&SP=50:&+Bj)&-B  45°,  75°,  165°,  195°,  285°,  315°&LF&SP=10:&+Bk)&-B  150"
     "°,  210°&SP=50:&+Bl)&-B  0°&LF"},
    {"0148998999011010",
     "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0°,& 360°).&LF&SP"
     "=5:&+Ba)&-B  2cos 2&+Ix&-I + cos^2 &+Ix&-I = -sin^2 &+Ix&-I&LF&LF",
     "&SP=10:&+Ba)&-B  60°,  120°,  240°,  300°&LF"},
};
} // namespace

TEST(EcuGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_ECU", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
