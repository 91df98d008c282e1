#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0121234567050101",
     "Calculate the following expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 23_ 506 - 4027&-I"
     "&SP=29:&+Bb)&-B&+I 601 + 6719&-I&SP=53:&+Bc)&-B&+I 320_ 347 - 44_ 346&-I&SP=76:&+Bd)&-B&+I 7935 + 76"
     "99&-I&LF&SP=5:&+Be)&-B&+I 94_ 693 - 1289&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 19_ 479&SP=30:&-I&+Bb)&-B 7320&SP=50:&-I&+Bc)&-B 276_ 001&SP=70:&-I&+Bd)&-B 15_ 6"
     "34&LF&SP=10:&-I&+Be)&-B 93_ 404&LF"},
    {"0120000000261203",
     "Calculate these expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 348_ 910 - 7711&-I&SP=29:"
     "&+Bb)&-B&+I 502_ 450 + 70_ 954&-I&SP=53:&+Bc)&-B&+I 199_ 319 - 99_ 488&-I&SP=76:&+Bd)&-B&+I 2600 + 1"
     "274&-I&LF&SP=5:&+Be)&-B&+I 134_ 490 - 83_ 881&-I&SP=29:&+Bf)&-B&+I 699_ 163 + 5896&-I&SP=53:&+Bg)&-B"
     "&+I 344_ 132 - 9567&-I&SP=76:&+Bh)&-B&+I 47_ 608 + 837_ 793&-I&LF&SP=5:&+Bi)&-B&+I 727_ 387 - 727_ 0"
     "08&-I&SP=29:&+Bj)&-B&+I 87_ 051 + 539_ 103&-I&SP=53:&+Bk)&-B&+I 733_ 224 - 68_ 568&-I&SP=76:&+Bl)&-B"
     "&+I 8498 + 13_ 152&-I&LF&SP=5:&+Bm)&-B&+I 125_ 100 - 68_ 404&-I&SP=29:&+Bn)&-B&+I 45_ 795 + 89_ 415&"
     "-I&SP=53:&+Bo)&-B&+I 979_ 208 - 9715&-I&SP=76:&+Bp)&-B&+I 82_ 968 + 7424&-I&LF&SP=5:&+Bq)&-B&+I 114_"
     " 080 - 80_ 353&-I&SP=29:&+Br)&-B&+I 829_ 500 + 14_ 877&-I&SP=53:&+Bs)&-B&+I 9190 + 87_ 423&-I&SP=76:"
     "&+Bt)&-B&+I 40_ 307 - 18_ 731&-I&LF&SP=5:&+Bu)&-B&+I 77_ 380 + 5743&-I&SP=29:&+Bv)&-B&+I 41_ 020 - 8"
     "047&-I&SP=53:&+Bw)&-B&+I 4223 + 8741&-I&SP=76:&+Bx)&-B&+I 26_ 642 - 21_ 546&-I&LF&SP=5:&+By)&-B&+I 7"
     "46_ 950 - 23_ 081&-I&SP=29:&+Bz)&-B&+I 1298 + 821_ 749&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 341_ 199&SP=30:&-I&+Bb)&-B 573_ 404&SP=50:&-I&+Bc)&-B 99_ 831&SP=70:&-I&+Bd)&-B 3"
     "874&LF&SP=10:&-I&+Be)&-B 50_ 609&SP=30:&-I&+Bf)&-B 705_ 059&SP=50:&-I&+Bg)&-B 334_ 565&SP=70:&-I&+Bh"
     ")&-B 885_ 401&LF&SP=10:&-I&+Bi)&-B 379&SP=30:&-I&+Bj)&-B 626_ 154&SP=50:&-I&+Bk)&-B 664_ 656&SP=70:&"
     "-I&+Bl)&-B 21_ 650&LF&SP=10:&-I&+Bm)&-B 56_ 696&SP=30:&-I&+Bn)&-B 135_ 210&SP=50:&-I&+Bo)&-B 969_ 49"
     "3&SP=70:&-I&+Bp)&-B 90_ 392&LF&SP=10:&-I&+Bq)&-B 33_ 727&SP=30:&-I&+Br)&-B 844_ 377&SP=50:&-I&+Bs)&-"
     "B 96_ 613&SP=70:&-I&+Bt)&-B 21_ 576&LF&SP=10:&-I&+Bu)&-B 83_ 123&SP=30:&-I&+Bv)&-B 32_ 973&SP=50:&-I"
     "&+Bw)&-B 12_ 964&SP=70:&-I&+Bx)&-B 5096&LF&SP=10:&-I&+By)&-B 723_ 869&SP=30:&-I&+Bz)&-B 823_ 047&LF"},
    {"0124568999010101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 166_ 039 - 133_ 179&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 32_ 860&LF"},
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
