#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0670001234200101",
     "Find the domain of the following functions:&LF&SP=5:&+Ba)&-B&+I &+If&-I (&+Ix&-I) = #COC(-3#N)(&+Ix&"
     "-I^2& +& 20#COC)&-I&SP=43:&+Bb)&-B&+I &+If&-I (&+Ix&-I) = &+Ix&-I^3& +& 4&+Ix&-I^2& +& 7&+Ix&-I& +& "
     "27&-I&LF&SP=5:&+Bc)&-B&+I &+If&-I (&+Ix&-I) = #COC(-2#N)(&+Ix&-I - 4#COC)&-I&SP=43:&+Bd)&-B&+I &+If&"
     "-I (&+Ix&-I) = #COC(2#N)(&+Ix&-I^2& -& 19&+Ix&-I& +& 78#COC)&-I&LF&SP=5:&+Be)&-B&+I &+If&-I (&+Ix&-I"
     ") = #COC(-3#N)(#SQR(7 - &+Ix&-I#SQR)#COC)&-I&SP=43:&+Bf)&-B&+I &+If&-I (&+Ix&-I) = ln_ (&+Ix&-I - 1)"
     "&-I&LF&SP=5:&+Bg)&-B&+I &+If&-I (&+Ix&-I) = ln_ (-5 - &+Ix&-I)&-I&SP=43:&+Bh)&-B&+I &+If&-I (&+Ix&-I"
     ") = ln_ (&+Ix&-I^2& -& 21&+Ix&-I& +& 108)&-I&LF&SP=5:&+Bi)&-B&+I &+If&-I (&+Ix&-I) = #COC(&+Ix&-I& -"
     "& 3#N)(&-Icos &+Ix&-I#COC)&-I&SP=43:&+Bj)&-B&+I &+If&-I (&+Ix&-I) = #COC(&+Ix&-I& +& 2#N)(&-Isin &+I"
     "x&-I#COC)&-I&LF&SP=5:&+Bk)&-B&+I &+If&-I (&+Ix&-I) = #COC(#SQR(&+Ix&-I - 3#SQR)#N)(&+Ix&-I - 5#COC)&"
     "-I&SP=43:&+Bl)&-B&+I &+If&-I (&+Ix&-I) = #COC(3#N)(&+Ix&-I^2& +& 29#COC)&-I&LF&SP=5:&+Bm)&-B&+I &+If"
     "&-I (&+Ix&-I) = &+Ix&-I^3& -& &+Ix&-I^2& -& &+Ix&-I& +& 7&-I&SP=43:&+Bn)&-B&+I &+If&-I (&+Ix&-I) = #"
     "COC(-1#N)(&+Ix&-I - 1#COC)&-I&LF&SP=5:&+Bo)&-B&+I &+If&-I (&+Ix&-I) = #COC(-2#N)(&+Ix&-I^2& -& 12&+I"
     "x&-I& +& 35#COC)&-I&SP=43:&+Bp)&-B&+I &+If&-I (&+Ix&-I) = #SQR(&+Ix&-I + 2#SQR)&-I&LF&SP=5:&+Bq)&-B&"
     "+I &+If&-I (&+Ix&-I) = #SQR(-3 - &+Ix&-I#SQR)&-I&SP=43:&+Br)&-B&+I &+If&-I (&+Ix&-I) = #SQR(&+Ix&-I^"
     "2& -& 13&+Ix&-I& +& 36#SQR)&-I&LF&SP=5:&+Bs)&-B&+I &+If&-I (&+Ix&-I) = #SQR(-&+Ix&-I^2& +& 4&+Ix&-I#"
     "SQR)&-I&SP=43:&+Bt)&-B&+I &+If&-I (&+Ix&-I) = #COC(-2#N)(#SQR(&+Ix&-I - 3#SQR)#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &real&SP=50:&-I&+Bb)&-B &real&LF&SP=10:&-I&+Bc)&-B &real - { 4 }&SP=50:&-I&+Bd)&-"
     "B &real - { 6,  13 }&LF&SP=10:&-I&+Be)&-B &( -&oo ,  7 &)&SP=50:&-I&+Bf)&-B &( 1 ,  +&oo &)&LF&SP=10"
     ":&-I&+Bg)&-B &( -&oo ,  -5 &)&SP=50:&-I&+Bh)&-B &( -&oo ,  9 &) &union &( 12 ,  +&oo &)&LF&SP=10:&-I"
     "&+Bi)&-B &real - { (&+I2k&-I + 1) &pi/2 },  &+Ik&-I &perte&+I Z&-I&SP=50:&-I&+Bj)&-B &real - { &+Ik&"
     "-I &pi },  &+Ik&-I &perte&+I Z&-I&LF&SP=10:&-I&+Bk)&-B [ 3 ,  5 &) &union &( 5 ,  +&oo &)&SP=50:&-I&"
     "+Bl)&-B &real&LF&SP=10:&-I&+Bm)&-B &real&SP=50:&-I&+Bn)&-B &real - { 1 }&LF&SP=10:&-I&+Bo)&-B &real "
     "- { 5,  7 }&SP=50:&-I&+Bp)&-B [ -2 ,  +&oo &)&LF&SP=10:&-I&+Bq)&-B &( -&oo ,  -3 ]&SP=50:&-I&+Br)&-B"
     " &( -&oo ,  4 ] &union [ 9 ,  +&oo &)&LF&SP=10:&-I&+Bs)&-B [ 0 ,  4 ]&SP=50:&-I&+Bt)&-B &( 3 ,  +&oo"
     " &)&LF"},
    {"0670300042030302",
     "Find the domain of the following functions:&LF&SP=5:&+Ba)&-B&+I &+If&-I (&+Ix&-I) = #SQR(&+Ix&-I^2& "
     "+& 4&+Ix&-I& -& 5#SQR)&-I&SP=43:&+Bb)&-B&+I &+If&-I (&+Ix&-I) = #SQR(-&+Ix&-I^2& -& 3&+Ix&-I& +& 4#S"
     "QR)&-I&LF&SP=5:&+Bc)&-B&+I &+If&-I (&+Ix&-I) = #COC(2#N)(#SQR(&+Ix&-I - 5#SQR)#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &( -&oo ,  -5 ] &union [ 1 ,  +&oo &)&SP=50:&-I&+Bb)&-B [ -4 ,  1 ]&LF&SP=10:&-I&"
     "+Bc)&-B &( 5 ,  +&oo &)&LF"},
    {"0670008999010101",
     "Find the domain of the following functions:&LF&SP=5:&+Ba)&-B&+I &+If&-I (&+Ix&-I) = #SQR(-&+Ix&-I^2&"
     " -& 7&+Ix&-I& +& 8#SQR)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B [ -8 ,  1 ]&LF"},
};
} // namespace

TEST(DomainsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_LFD", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
