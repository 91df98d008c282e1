#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0121234567050101",
     "Calculate these expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 41_ 534 - 1256&-I&SP=29:&"
     "+Bb)&-B&+I 4635 + 725&-I&SP=53:&+Bc)&-B&+I 1054_ 240 - 984_ 596&-I&SP=76:&+Bd)&-B&+I 1801 - 1587&-I&"
     "LF&SP=5:&+Be)&-B&+I 3568 + 7449&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 40_ 278&SP=30:&-I&+Bb)&-B 5360&SP=50:&-I&+Bc)&-B 69_ 644&SP=70:&-I&+Bd)&-B 214&LF"
     "&SP=10:&-I&+Be)&-B 11_ 017&LF"},
    {"0120000000261203",
     "Calculate these expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 771_ 169 + 3637&-I&SP=29:"
     "&+Bb)&-B&+I 171_ 381 - 86_ 440&-I&SP=53:&+Bc)&-B&+I 3670 + 44_ 282&-I&SP=76:&+Bd)&-B&+I 316_ 983 - 9"
     "976&-I&LF&SP=5:&+Be)&-B&+I 1335 + 74_ 423&-I&SP=29:&+Bf)&-B&+I 1016_ 317 - 34_ 697&-I&SP=53:&+Bg)&-B"
     "&+I 2218 + 39_ 490&-I&SP=76:&+Bh)&-B&+I 40_ 970 - 4929&-I&LF&SP=5:&+Bi)&-B&+I 826_ 619 + 476_ 080&-I"
     "&SP=29:&+Bj)&-B&+I 727_ 387 - 727_ 008&-I&SP=53:&+Bk)&-B&+I 5391 + 522_ 150&-I&SP=76:&+Bl)&-B&+I 811"
     "_ 070 - 805_ 972&-I&LF&SP=5:&+Bm)&-B&+I 90_ 580 + 4512&-I&SP=29:&+Bn)&-B&+I 131_ 897 - 125_ 016&-I&S"
     "P=53:&+Bo)&-B&+I 457 + 30_ 538&-I&SP=76:&+Bp)&-B&+I 4889 - 873&-I&LF&SP=5:&+Bq)&-B&+I 3997 + 3038&-I"
     "&SP=29:&+Br)&-B&+I 48_ 759 - 46_ 278&-I&SP=53:&+Bs)&-B&+I 2803 + 33_ 727&-I&SP=76:&+Bt)&-B&+I 844_ 3"
     "77 - 14_ 877&-I&LF&SP=5:&+Bu)&-B&+I 8742 + 95_ 583&-I&SP=29:&+Bv)&-B&+I 382_ 172 - 27_ 742&-I&SP=53:"
     "&+Bw)&-B&+I 25_ 195 + 93_ 009&-I&SP=76:&+Bx)&-B&+I 59_ 674 - 53_ 134&-I&LF&SP=5:&+By)&-B&+I 721 + 18"
     "68&-I&SP=29:&+Bz)&-B&+I 93_ 876 + 360_ 457&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 774_ 806&SP=30:&-I&+Bb)&-B 84_ 941&SP=50:&-I&+Bc)&-B 47_ 952&SP=70:&-I&+Bd)&-B 30"
     "7_ 007&LF&SP=10:&-I&+Be)&-B 75_ 758&SP=30:&-I&+Bf)&-B 981_ 620&SP=50:&-I&+Bg)&-B 41_ 708&SP=70:&-I&+"
     "Bh)&-B 36_ 041&LF&SP=10:&-I&+Bi)&-B 1302_ 699&SP=30:&-I&+Bj)&-B 379&SP=50:&-I&+Bk)&-B 527_ 541&SP=70"
     ":&-I&+Bl)&-B 5098&LF&SP=10:&-I&+Bm)&-B 95_ 092&SP=30:&-I&+Bn)&-B 6881&SP=50:&-I&+Bo)&-B 30_ 995&SP=7"
     "0:&-I&+Bp)&-B 4016&LF&SP=10:&-I&+Bq)&-B 7035&SP=30:&-I&+Br)&-B 2481&SP=50:&-I&+Bs)&-B 36_ 530&SP=70:"
     "&-I&+Bt)&-B 829_ 500&LF&SP=10:&-I&+Bu)&-B 104_ 325&SP=30:&-I&+Bv)&-B 354_ 430&SP=50:&-I&+Bw)&-B 118_"
     " 204&SP=70:&-I&+Bx)&-B 6540&LF&SP=10:&-I&+By)&-B 2589&SP=30:&-I&+Bz)&-B 454_ 333&LF"},
    {"0124568999010101",
     "Calculate the following expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 903_ 795 - 890_ 4"
     "78&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 13_ 317&LF"},
};
} // namespace

TEST(NaturalNumbersGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_NRP", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
