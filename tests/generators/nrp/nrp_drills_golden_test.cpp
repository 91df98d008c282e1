#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes of the drills with their exact texts: a change here changes every stored
// problem. Three codes a routine, with different seeds, item counts and group sizes.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0010170043040101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 8469 : 41&-I&SP=29:&+Bb)&-B&+I 62_ 672 "
     ": 227&-I&SP=53:&+Bc)&-B&+I 481_ 157 : 779&-I&SP=76:&+Bd)&-B&+I 98_ 364 : 85&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I q = 206,  r = &-I23&SP=40:&-I&+Bb)&-B &+I q = 276,  r = &-I20&SP=70:&-I&+"
     "Bc)&-B &+I q = 617,  r = &-I514&LF&SP=10:&-I&+Bd)&-B &+I q = 1157,  r = &-I19&LF"},
    {"0013454007090502",
     "Calculate these expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 837_ 405 : 612&-I&SP="
     "29:&+Bb)&-B&+I 179_ 746 : 161&-I&SP=53:&+Bc)&-B&+I 36_ 574 : 844&-I&SP=76:&+Bd)&-B&+I 6223 : 982"
     "&-I&LF&SP=5:&+Be)&-B&+I 550_ 637 : 42&-I&SP=29:&+Bf)&-B&+I 890_ 833 : 307&-I&SP=53:&+Bg)&-B&+I 5"
     "06_ 999 : 29&-I&SP=76:&+Bh)&-B&+I 178_ 939 : 839&-I&LF&SP=5:&+Bi)&-B&+I 60_ 137 : 40&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I q = 1368,  r = &-I189&SP=40:&-I&+Bb)&-B &+I q = 1116,  r = &-I70&SP=70:&-"
     "I&+Bc)&-B &+I q = 43,  r = &-I282&LF&SP=10:&-I&+Bd)&-B &+I q = 6,  r = &-I331&SP=40:&-I&+Be)&-B "
     "&+I q = 13_ 110,  r = &-I17&SP=70:&-I&+Bf)&-B &+I q = 2901,  r = &-I226&LF&SP=10:&-I&+Bg)&-B &+I"
     " q = 17_ 482,  r = &-I21&SP=40:&-I&+Bh)&-B &+I q = 213,  r = &-I232&SP=70:&-I&+Bi)&-B &+I q = 15"
     "03,  r = &-I17&LF"},
    {"0018998998011010",
     "Calculate the following expressions involving natural numbers.&LF&SP=5:&+Ba)&-B&+I 76_ 164 : 431"
     "&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+I q = 176,  r = &-I308&LF"},
    {"0020170044040101",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B&+I 79543&.4 : 463&-I&SP=29:&+Bb)&-B&+I 1443423&.6 "
     ": 439&.8&-I&SP=53:&+Bc)&-B&+I 128412&.9 : 187&-I&SP=76:&+Bd)&-B&+I 3207837 : 6906&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 171&.8&SP=30:&-I&+Bb)&-B 3282&SP=50:&-I&+Bc)&-B 686&.7&SP=70:&-I&+Bd)&-B 464&"
     ".5&LF"},
    {"0023454014090502",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B&+I 6080&.168 : 85&.6&-I&SP=29:&+Bb)&-B&+I 458439 :"
     " 606&-I&SP=53:&+Bc)&-B&+I 2749799 : 7982&-I&SP=76:&+Bd)&-B&+I 5969&.88 : 84&-I&LF&SP=5:&+Be)&-B&"
     "+I 1023317&.6 : 6632&-I&SP=29:&+Bf)&-B&+I 213452&.8 : 379&-I&SP=53:&+Bg)&-B&+I 130620 : 525&-I&S"
     "P=76:&+Bh)&-B&+I 784028&.5 : 449&.3&-I&LF&SP=5:&+Bi)&-B&+I 54034&.162 : 755&.3&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 71&.03&SP=30:&-I&+Bb)&-B 756&.5&SP=50:&-I&+Bc)&-B 344&.5&SP=70:&-I&+Bd)&-B 71"
     "&.07&LF&SP=10:&-I&+Be)&-B 154&.3&SP=30:&-I&+Bf)&-B 563&.2&SP=50:&-I&+Bg)&-B 248&.8&SP=70:&-I&+Bh"
     ")&-B 1745&LF&SP=10:&-I&+Bi)&-B 71&.54&LF"},
    {"0028998997011010",
     "Calculate the following expressions involving decimal numbers.&LF&SP=5:&+Ba)&-B&+I 164626&.8 : 2"
     "44&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 674&.7&LF"},
    {"0050170047040101",
     "Simplify these expressions into a single root:&LF&SP=5:&+Ba)&-B #RAD(#RI(3#RI)#RAD(#RI(4#RI)#POT"
     "(2#PB)(3#POT)#RAD)#RAD)&SP=29:&+Bb)&-B #COC(#RAD(#RI(7#RI)#POT(3#PB)(4#POT)#RAD)#N)(#RAD(#RI(3#R"
     "I)3#RAD)#COC)&SP=53:&+Bc)&-B #SQR(#RAD(#RI(4#RI)7#RAD)#SQR)&SP=76:&+Bd)&-B #POT(#NES(()#RAD(#RI("
     "5#RI)#POT(13#PB)(4#POT)#RAD)#NES)#PB)(3#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #RAD(#RI(4#RI)2#RAD)&SP=32:&-I&+Bb)&-B #RAD(#RI(21#RI)#POT(3#PB)(5#POT)#RAD)&"
     "SP=54:&-I&+Bc)&-B #RAD(#RI(8#RI)7#RAD)&SP=76:&-I&+Bd)&-B #RAD(#RI(5#RI)#POT(13#PB)(12#POT)#RAD)&"
     "LF&LF"},
    {"0053454035090502",
     "Simplify these expressions into a single root:&LF&SP=5:&+Ba)&-B #RAD(#RI(5#RI)#POT(3#PB)(4#POT)#"
     "RAD) × #RAD(#RI(4#RI)3#RAD)&SP=29:&+Bb)&-B #POT(17#PB)(3#POT) × #RAD(#RI(5#RI)#POT(17#PB)(4#POT)"
     "#RAD)&SP=53:&+Bc)&-B #SQR(#POT(13#PB)(3#POT) × #RAD(#RI(5#RI)#POT(13#PB)(2#POT)#RAD)#SQR)&SP=76:"
     "&+Bd)&-B #RAD(#RI(5#RI)#POT(11#PB)(4#POT)#RAD) × #RAD(#RI(8#RI)11#RAD)&LF&LF&SP=5:&+Be)&-B #COC("
     "#RAD(#RI(5#RI)#POT(19#PB)(2#POT)#RAD)#N)(#RAD(#RI(3#RI)19#RAD)#COC)&SP=29:&+Bf)&-B #SQR(#RAD(#RI"
     "(7#RI)#POT(17#PB)(3#POT)#RAD)#SQR)&SP=53:&+Bg)&-B #POT(#NES(()#RAD(#RI(5#RI)#POT(3#PB)(2#POT)#RA"
     "D)#NES)#PB)(3#POT)&SP=76:&+Bh)&-B #SQR(#POT(3#PB)(3#POT) × #RAD(#RI(3#RI)#POT(3#PB)(2#POT)#RAD)#"
     "SQR)&LF&LF&SP=5:&+Bi)&-B #RAD(#RI(5#RI)#POT(11#PB)(2#POT)#RAD) × #RAD(#RI(3#RI)#POT(11#PB)(2#POT"
     ")#RAD)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #RAD(#RI(20#RI)#POT(3#PB)(21#POT)#RAD)&SP=32:&-I&+Bb)&-B #RAD(#RI(5#RI)#POT(1"
     "7#PB)(19#POT)#RAD)&SP=54:&-I&+Bc)&-B #RAD(#RI(10#RI)#POT(13#PB)(17#POT)#RAD)&SP=76:&-I&+Bd)&-B #"
     "RAD(#RI(40#RI)#POT(11#PB)(37#POT)#RAD)&LF&LF&SP=10:&-I&+Be)&-B #RAD(#RI(15#RI)19#RAD)&SP=32:&-I&"
     "+Bf)&-B #RAD(#RI(14#RI)#POT(17#PB)(3#POT)#RAD)&SP=54:&-I&+Bg)&-B #RAD(#RI(5#RI)#POT(3#PB)(6#POT)"
     "#RAD)&SP=76:&-I&+Bh)&-B #RAD(#RI(6#RI)#POT(3#PB)(11#POT)#RAD)&LF&LF&SP=10:&-I&+Bi)&-B #RAD(#RI(1"
     "5#RI)#POT(11#PB)(16#POT)#RAD)&LF&LF"},
    {"0058998994011010",
     "Simplify the following expressions into a single root:&LF&SP=5:&+Ba)&-B #POT(#NES(()#RAD(#RI(7#R"
     "I)#POT(7#PB)(3#POT)#RAD)#NES)#PB)(4#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #RAD(#RI(7#RI)#POT(7#PB)(12#POT)#RAD)&LF&LF"},
    {"0060170048040101",
     "Simplify these expressions into a single power:&LF&SP=5:&+Ba)&-B #POT((#POT(11#PB)(5#POT) : #POT"
     "(11#PB)(4#POT))#PB)(3#POT)&SP=29:&+Bb)&-B #POT((#POT(7#PB)(9#POT) : #POT(7#PB)(4#POT))#PB)(4#POT"
     ")&SP=53:&+Bc)&-B #POT(3#PB)(7#POT) × #POT(3#PB)(6#POT)&SP=76:&+Bd)&-B #POT(3#PB)(8#POT) : #POT(3"
     "#PB)(3#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #POT(11#PB)(3#POT)&SP=20:&-I&+Bb)&-B #POT(7#PB)(20#POT)&SP=30:&-I&+Bc)&-B #PO"
     "T(3#PB)(13#POT)&SP=40:&-I&+Bd)&-B #POT(3#PB)(5#POT)&LF&LF"},
    {"0063454042090502",
     "Simplify the following expressions into a single power:&LF&SP=5:&+Ba)&-B #POT(5#PB)(7#POT) × #PO"
     "T(5#PB)(3#POT)&SP=29:&+Bb)&-B #POT(2#PB)(7#POT) : #POT(2#PB)(4#POT)&SP=53:&+Bc)&-B #POT((#POT(2#"
     "PB)(3#POT))#PB)(2#POT)&SP=76:&+Bd)&-B #POT(13#PB)(4#POT) × #POT(13#PB)(8#POT) × #POT(13#PB)(3#PO"
     "T)&LF&LF&SP=5:&+Be)&-B #POT((#POT(5#PB)(4#POT) × #POT(5#PB)(2#POT))#PB)(3#POT)&SP=29:&+Bf)&-B #C"
     "OC(#POT((#POT(2#PB)(5#POT))#PB)(3#POT) × #POT(2#PB)(4#POT)#N)(#POT(2#PB)(4#POT)#COC)&SP=53:&+Bg)"
     "&-B #POT((#POT(2#PB)(5#POT) : #POT(2#PB)(3#POT))#PB)(3#POT)&SP=76:&+Bh)&-B #POT(7#PB)(8#POT) × #"
     "POT(7#PB)(7#POT)&LF&LF&SP=5:&+Bi)&-B #POT((#POT(2#PB)(6#POT))#PB)(3#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #POT(5#PB)(10#POT)&SP=20:&-I&+Bb)&-B #POT(2#PB)(3#POT)&SP=30:&-I&+Bc)&-B #POT"
     "(2#PB)(6#POT)&SP=40:&-I&+Bd)&-B #POT(13#PB)(15#POT)&SP=50:&-I&+Be)&-B #POT(5#PB)(18#POT)&SP=60:&"
     "-I&+Bf)&-B #POT(2#PB)(15#POT)&SP=70:&-I&+Bg)&-B #POT(2#PB)(6#POT)&SP=80:&-I&+Bh)&-B #POT(7#PB)(1"
     "5#POT)&LF&LF&SP=10:&-I&+Bi)&-B #POT(2#PB)(18#POT)&LF&LF"},
    {"0068998993011010",
     "Simplify the following expressions into a single power:&LF&SP=5:&+Ba)&-B #POT(11#PB)(7#POT) : #P"
     "OT(11#PB)(3#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #POT(11#PB)(4#POT)&LF&LF"},
    {"0070170049040101",
     "Simplify these expressions into a single power with positive exponent:&LF&SP=5:&+Ba)&-B #POT(#NE"
     "S([]#POT(#NES(()#COC(11#N)(5#COC)#NES)#PB)(5#POT)#NES)#PB)(-2#POT)&SP=37:&+Bb)&-B #POT(#NES(()#C"
     "OC(7#N)(5#COC)#NES)#PB)(-9#POT) × #POT(#NES(()#COC(7#N)(5#COC)#NES)#PB)(9#POT) × #POT(#NES(()#CO"
     "C(7#N)(5#COC)#NES)#PB)(3#POT)&SP=69:&+Bc)&-B #POT(#NES([]#POT(#NES(()#COC(13#N)(3#COC)#NES)#PB)("
     "2#POT) × #POT(#NES(()#COC(13#N)(3#COC)#NES)#PB)(-6#POT)#NES)#PB)(3#POT)&LF&LF&SP=5:&+Bd)&-B #POT"
     "(#NES(()#COC(7#N)(5#COC)#NES)#PB)(-8#POT) : #POT(#NES(()#COC(7#N)(5#COC)#NES)#PB)(-3#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #POT(#NES(()#COC(5#N)(11#COC)#NES)#PB)(10#POT)&SP=24:&-I&+Bb)&-B #POT(#NES(()"
     "#COC(7#N)(5#COC)#NES)#PB)(3#POT)&SP=38:&-I&+Bc)&-B #POT(#NES(()#COC(3#N)(13#COC)#NES)#PB)(12#POT"
     ")&SP=52:&-I&+Bd)&-B #POT(#NES(()#COC(5#N)(7#COC)#NES)#PB)(5#POT)&LF&LF"},
    {"0073454049090502",
     "Simplify these expressions into a single power with positive exponent:&LF&SP=5:&+Ba)&-B #POT(#NE"
     "S(()#COC(5#N)(2#COC)#NES)#PB)(-3#POT) × #POT(#NES(()#COC(2#N)(5#COC)#NES)#PB)(-5#POT)&SP=37:&+Bb"
     ")&-B #POT(#NES(()#COC(2#N)(7#COC)#NES)#PB)(3#POT) : #POT(#NES(()#COC(2#N)(7#COC)#NES)#PB)(8#POT)"
     "&SP=69:&+Bc)&-B #POT(#NES(()#COC(13#N)(3#COC)#NES)#PB)(-6#POT) × #POT(#NES(()#COC(3#N)(13#COC)#N"
     "ES)#PB)(-2#POT) × #POT(#NES(()#COC(13#N)(3#COC)#NES)#PB)(-2#POT)&LF&LF&SP=5:&+Bd)&-B #POT(#NES(["
     "]#POT(#NES(()#COC(7#N)(5#COC)#NES)#PB)(5#POT)#NES)#PB)(4#POT)&SP=37:&+Be)&-B #POT(#NES(()#COC(3#"
     "N)(7#COC)#NES)#PB)(8#POT) × #POT(#NES(()#COC(3#N)(7#COC)#NES)#PB)(3#POT) × #POT(#NES(()#COC(3#N)"
     "(7#COC)#NES)#PB)(-4#POT)&SP=69:&+Bf)&-B #POT(#NES(()#COC(13#N)(3#COC)#NES)#PB)(3#POT) × #POT(#NE"
     "S(()#COC(3#N)(13#COC)#NES)#PB)(-8#POT) × #POT(#NES(()#COC(3#N)(13#COC)#NES)#PB)(3#POT)&LF&LF&SP="
     "5:&+Bg)&-B #POT(#NES([]#POT(#NES(()#COC(7#N)(13#COC)#NES)#PB)(9#POT) × #POT(#NES(()#COC(7#N)(13#"
     "COC)#NES)#PB)(-6#POT)#NES)#PB)(-4#POT)&SP=37:&+Bh)&-B #COC(#POT(#NES(()#COC(5#N)(3#COC)#NES)#PB)"
     "(-9#POT) × #POT(#NES(()#COC(5#N)(3#COC)#NES)#PB)(3#POT)#N)(#POT(#NES(()#COC(5#N)(3#COC)#NES)#PB)"
     "(4#POT)#COC)&SP=69:&+Bi)&-B #COC(#POT(#NES([]#POT(#NES(()#COC(11#N)(7#COC)#NES)#PB)(-8#POT)#NES)"
     "#PB)(-3#POT)#N)(#POT(#NES(()#COC(11#N)(7#COC)#NES)#PB)(8#POT)#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #POT(#NES(()#COC(5#N)(2#COC)#NES)#PB)(2#POT)&SP=24:&-I&+Bb)&-B #POT(#NES(()#C"
     "OC(7#N)(2#COC)#NES)#PB)(5#POT)&SP=38:&-I&+Bc)&-B #POT(#NES(()#COC(3#N)(13#COC)#NES)#PB)(6#POT)&S"
     "P=52:&-I&+Bd)&-B #POT(#NES(()#COC(7#N)(5#COC)#NES)#PB)(20#POT)&SP=66:&-I&+Be)&-B #POT(#NES(()#CO"
     "C(3#N)(7#COC)#NES)#PB)(7#POT)&SP=80:&-I&+Bf)&-B #POT(#NES(()#COC(13#N)(3#COC)#NES)#PB)(8#POT)&LF"
     "&LF&SP=10:&-I&+Bg)&-B #POT(#NES(()#COC(13#N)(7#COC)#NES)#PB)(12#POT)&SP=24:&-I&+Bh)&-B #POT(#NES"
     "(()#COC(3#N)(5#COC)#NES)#PB)(10#POT)&SP=38:&-I&+Bi)&-B #POT(#NES(()#COC(11#N)(7#COC)#NES)#PB)(16"
     "#POT)&LF&LF"},
    {"0078998992011010",
     "Simplify the following expressions into a single power with positive exponent:&LF&SP=5:&+Ba)&-B "
     "#POT(#NES([]#POT(#NES(()#COC(3#N)(13#COC)#NES)#PB)(-5#POT) × #POT(#NES(()#COC(13#N)(3#COC)#NES)#"
     "PB)(-8#POT)#NES)#PB)(3#POT)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #POT(#NES(()#COC(3#N)(13#COC)#NES)#PB)(9#POT)&LF&LF"},
    {"0080170050040101",
     "Calculate the following rational expressions.&LF&SP=5:&+Ba)&-B&+I #COC(6#N)(13#COC) - #COC(6#N)("
     "5#COC)&-I&SP=29:&+Bb)&-B&+I #COC(7#N)(6#COC) - #COC(8#N)(7#COC)&-I&SP=53:&+Bc)&-B&+I #COC(23#N)("
     "8#COC) + #COC(5#N)(2#COC)&-I&SP=76:&+Bd)&-B&+I #COC(23#N)(6#COC) + 1&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B   #COC(-48#N)(65#COC)&SP=29:&-I&+Bb)&-B #COC(1#N)(42#COC)&SP=53:&-I&+Bc)&-B #"
     "COC(43#N)(8#COC)&SP=76:&-I&+Bd)&-B #COC(29#N)(6#COC)&LF"},
    {"0083454056090502",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I #COC(1#N)(15#COC) + #COC(20#N)(7#COC)&-"
     "I&SP=29:&+Bb)&-B&+I #COC(9#N)(10#COC) + #COC(1#N)(7#COC)&-I&SP=53:&+Bc)&-B&+I #COC(27#N)(14#COC)"
     " + #COC(17#N)(6#COC)&-I&SP=76:&+Bd)&-B&+I - #COC(3#N)(4#COC) + 2&-I&LF&SP=5:&+Be)&-B&+I #COC(23#"
     "N)(8#COC) + 5&-I&SP=29:&+Bf)&-B&+I - #COC(2#N)(7#COC) + #COC(14#N)(11#COC)&-I&SP=53:&+Bg)&-B&+I "
     "#COC(17#N)(7#COC) + #COC(21#N)(4#COC)&-I&SP=76:&+Bh)&-B&+I 2 + #COC(9#N)(10#COC)&-I&LF&SP=5:&+Bi"
     ")&-B&+I #COC(5#N)(12#COC) + #COC(7#N)(11#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(307#N)(105#COC)&SP=29:&-I&+Bb)&-B #COC(73#N)(70#COC)&SP=53:&-I&+Bc)&-B #"
     "COC(100#N)(21#COC)&SP=76:&-I&+Bd)&-B #COC(5#N)(4#COC)&LF&SP=10:&-I&+Be)&-B #COC(63#N)(8#COC)&SP="
     "29:&-I&+Bf)&-B #COC(76#N)(77#COC)&SP=53:&-I&+Bg)&-B #COC(215#N)(28#COC)&SP=76:&-I&+Bh)&-B #COC(2"
     "9#N)(10#COC)&LF&SP=10:&-I&+Bi)&-B #COC(139#N)(132#COC)&LF"},
    {"0088998991011010",
     "Calculate these rational expressions.&LF&SP=5:&+Ba)&-B&+I - #COC(2#N)(11#COC) - #COC(3#N)(4#COC)"
     " + #COC(8#N)(7#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(65#N)(308#COC)&LF"},
    {"0090170051040101",
     "Calculate these rational expressions.&LF&SP=5:&+Ba)&-B&+I - #COC(5#N)(4#COC) × #NES(() 3 - #COC("
     "10#N)(11#COC) #NES)&-I&SP=35:&+Bb)&-B&+I - #COC(5#N)(3#COC) : #NES(() 3 - #COC(7#N)(4#COC) #NES)"
     "&-I&SP=65:&+Bc)&-B&+I #COC(5#N)(3#COC) × #COC(7#N)(3#COC) - #COC(1#N)(2#COC) : #COC(11#N)(7#COC)"
     "&-I&LF&SP=5:&+Bd)&-B&+I - #COC(6#N)(11#COC) × #COC(17#N)(2#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B   #COC(-115#N)(44#COC)&SP=27:&-I&+Bb)&-B   #COC(-4#N)(3#COC)&SP=44:&-I&+Bc)&-"
     "B #COC(707#N)(198#COC)&SP=61:&-I&+Bd)&-B   #COC(-51#N)(11#COC)&LF"},
    {"0093454063090502",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I #COC(4#N)(9#COC) × #COC(21#N)(8#COC)&-I"
     "&SP=35:&+Bb)&-B&+I 4 : #NES(()-#COC(9#N)(4#COC)#NES)&-I&SP=65:&+Bc)&-B&+I #COC(7#N)(6#COC) × 4 +"
     " #COC(19#N)(3#COC)&-I&LF&SP=5:&+Bd)&-B&+I #COC(21#N)(11#COC) : #NES(()-#COC(4#N)(7#COC)#NES) - #"
     "COC(1#N)(4#COC)&-I&SP=35:&+Be)&-B&+I 2 × #NES(() #COC(11#N)(9#COC) - #COC(7#N)(6#COC) #NES)&-I&S"
     "P=65:&+Bf)&-B&+I #COC(9#N)(2#COC) : #NES(() - #COC(1#N)(3#COC) + #COC(2#N)(3#COC) #NES)&-I&LF&SP"
     "=5:&+Bg)&-B&+I #COC(13#N)(4#COC) × #NES(()-#COC(2#N)(3#COC)#NES) - #COC(5#N)(2#COC) : #COC(20#N)"
     "(7#COC)&-I&SP=35:&+Bh)&-B&+I #COC(8#N)(3#COC) × #NES(()-#COC(1#N)(2#COC)#NES)&-I&SP=65:&+Bi)&-B&"
     "+I - #COC(1#N)(9#COC) : #COC(17#N)(10#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(7#N)(6#COC)&SP=27:&-I&+Bb)&-B   #COC(-16#N)(9#COC)&SP=44:&-I&+Bc)&-B 11&"
     "SP=61:&-I&+Bd)&-B   #COC(-79#N)(22#COC)&SP=78:&-I&+Be)&-B #COC(1#N)(9#COC)&LF&SP=10:&-I&+Bf)&-B "
     "#COC(27#N)(2#COC)&SP=27:&-I&+Bg)&-B   #COC(-73#N)(24#COC)&SP=44:&-I&+Bh)&-B   #COC(-4#N)(3#COC)&"
     "SP=61:&-I&+Bi)&-B   #COC(-10#N)(153#COC)&LF"},
    {"0098998990011010",
     "Calculate the following rational expressions.&LF&SP=5:&+Ba)&-B&+I #COC(4#N)(5#COC) × #COC(7#N)(1"
     "1#COC) + #COC(9#N)(8#COC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(719#N)(440#COC)&LF"},
    {"0100170052040101",
     "Calculate these expressions.&LF&SP=5:&+Ba)&-B&+I 13 + 7&-I&SP=29:&+Bb)&-B&+I 8 + (-7) + 8&-I&SP="
     "53:&+Bc)&-B&+I (-3) - ( (-11) - 15 )&-I&LF&SP=5:&+Bd)&-B&+I ( 9 - 2 ) - (-13)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 20&SP=30:&-I&+Bb)&-B 9&SP=50:&-I&+Bc)&-B 23&SP=70:&-I&+Bd)&-B 20&LF"},
    {"0103454070090502",
     "Calculate the following expressions involving integer numbers.&LF&SP=5:&+Ba)&-B&+I 2 + 11 + 14&-"
     "I&SP=43:&+Bb)&-B&+I 8 + ( 12 - 1 )&-I&LF&SP=5:&+Bc)&-B&+I ( 9 + 1 ) + 9&-I&SP=43:&+Bd)&-B&+I - ["
     " 7 + ( (-6) + (-1) ) ]&-I&LF&SP=5:&+Be)&-B&+I (-12) + (-12)&-I&SP=43:&+Bf)&-B&+I 5 + 13 - (-8)&-"
     "I&LF&SP=5:&+Bg)&-B&+I (-2) + ( 9 - 7 )&-I&SP=43:&+Bh)&-B&+I ( (-11) - (-14) ) + 3&-I&LF&SP=5:&+B"
     "i)&-B&+I [ 12 + ( (-12) - 7 ) ]&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 27&SP=30:&-I&+Bb)&-B 19&SP=50:&-I&+Bc)&-B 19&SP=70:&-I&+Bd)&-B 0&LF&SP=10:&-I"
     "&+Be)&-B -24&SP=30:&-I&+Bf)&-B 26&SP=50:&-I&+Bg)&-B 0&SP=70:&-I&+Bh)&-B 6&LF&SP=10:&-I&+Bi)&-B -"
     "7&LF"},
    {"0108998989011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I - ( 9 + (-4) ) + 9&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 4&LF"},
    {"0110170053040101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 2 × (-4) + (-4) × 1&-I&SP=43:&+Bb)&-B&+"
     "I 136 : (-8) + (-5) × (-5)&-I&LF&SP=5:&+Bc)&-B&+I (-8) × [ 4 - 2 × (-6) ]&-I&SP=43:&+Bd)&-B&+I 4"
     "0 : [ (-8) + (-6) × (-3) ]&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B -12&SP=30:&-I&+Bb)&-B 8&SP=50:&-I&+Bc)&-B -128&SP=70:&-I&+Bd)&-B 4&LF"},
    {"0113454077090502",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 3 × (-7) × (-8)&-I&SP=43:&+Bb)&-B&+I 75"
     " : 5&-I&LF&SP=5:&+Bc)&-B&+I 7 × ( (-4) - 2 )&-I&SP=43:&+Bd)&-B&+I 84 : ( (-8) - (-1) )&-I&LF&SP="
     "5:&+Be)&-B&+I (-6) : 3 × (-5)&-I&SP=43:&+Bf)&-B&+I (-2) × 3 + 1 × (-2)&-I&LF&SP=5:&+Bg)&-B&+I (-"
     "114) : 6 - 5 × 5&-I&SP=43:&+Bh)&-B&+I 9 × [ (-6) - (-5) × (-6) ]&-I&LF&SP=5:&+Bi)&-B&+I (-6) : ["
     " 9 + (-2) × 3 ]&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 168&SP=30:&-I&+Bb)&-B 15&SP=50:&-I&+Bc)&-B -42&SP=70:&-I&+Bd)&-B -12&LF&SP=10"
     ":&-I&+Be)&-B 10&SP=30:&-I&+Bf)&-B -8&SP=50:&-I&+Bg)&-B -44&SP=70:&-I&+Bh)&-B -324&LF&SP=10:&-I&+"
     "Bi)&-B -2&LF"},
    {"0118998988011010",
     "Calculate the following expressions involving integer numbers.&LF&SP=5:&+Ba)&-B&+I (-9) × 8&-I&L"
     "F&LF",
     "&SP=10:&-I&+Ba)&-B -72&LF"},
    {"0130170055040101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 7506 × 19&-I&SP=29:&+Bb)&-B&+I 897 × 9016&-"
     "I&SP=53:&+Bc)&-B&+I 121 × 108&-I&SP=76:&+Bd)&-B&+I 321 × 48&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 142_ 614&SP=40:&-I&+Bb)&-B 8_ 087_ 352&SP=70:&-I&+Bc)&-B 13_ 068&LF&SP=10:&-I&+Bd"
     ")&-B 15_ 408&LF"},
    {"0133454091090502",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 8906 × 16_ 334&-I&SP=29:&+Bb)&-B&+I 238 × 2"
     "41&-I&SP=53:&+Bc)&-B&+I 24_ 678 × 8880&-I&SP=76:&+Bd)&-B&+I 8821 × 959&-I&LF&SP=5:&+Be)&-B&+I 2611 ×"
     " 137&-I&SP=29:&+Bf)&-B&+I 7795 × 21&-I&SP=53:&+Bg)&-B&+I 10_ 436 × 17&-I&SP=76:&+Bh)&-B&+I 1681 × 41"
     "2&-I&LF&SP=5:&+Bi)&-B&+I 7934 × 137&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 145_ 470_ 604&SP=40:&-I&+Bb)&-B 57_ 358&SP=70:&-I&+Bc)&-B 219_ 140_ 640&LF&SP=10:"
     "&-I&+Bd)&-B 8_ 459_ 339&SP=40:&-I&+Be)&-B 357_ 707&SP=70:&-I&+Bf)&-B 163_ 695&LF&SP=10:&-I&+Bg)&-B 1"
     "77_ 412&SP=40:&-I&+Bh)&-B 692_ 572&SP=70:&-I&+Bi)&-B 1_ 086_ 958&LF"},
    {"0138998986011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 8579 × 649&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 5_ 567_ 771&LF"},
    {"0140170056040101",
     "Calculate these expressions involving decimal numbers.&LF&SP=5:&+Ba)&-B&+I 808&.42 - 416&.8&-I&S"
     "P=29:&+Bb)&-B&+I 124&.3 + 93&.62&-I&SP=53:&+Bc)&-B&+I 39651&.4 - 8894&.37&-I&SP=76:&+Bd)&-B&+I 8"
     "1&.74 + 7381&.65&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 391&.62&SP=30:&-I&+Bb)&-B 217&.92&SP=50:&-I&+Bc)&-B 30757&.03&SP=70:&-I&+Bd)&"
     "-B 7463&.39&LF"},
    {"0143454098090502",
     "Calculate these expressions involving decimal numbers.&LF&SP=5:&+Ba)&-B&+I 33529&.66 - 33&.26&-I"
     "&SP=29:&+Bb)&-B&+I 478&.95 - 22&.74&-I&SP=53:&+Bc)&-B&+I 2320&.9 - 1629&.3&-I&SP=76:&+Bd)&-B&+I "
     "917&.86 + 78894&.9&-I&LF&SP=5:&+Be)&-B&+I 15915&.19 - 903&.49&-I&SP=29:&+Bf)&-B&+I 31494&.26 - 1"
     "09&.36&-I&SP=53:&+Bg)&-B&+I 1768&.3 + 60328&-I&SP=76:&+Bh)&-B&+I 47151&.85 - 46162&.5&-I&LF&SP=5"
     ":&+Bi)&-B&+I 9163&.2 + 12537&.7&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 33496&.4&SP=30:&-I&+Bb)&-B 456&.21&SP=50:&-I&+Bc)&-B 691&.6&SP=70:&-I&+Bd)&-B"
     " 79812&.76&LF&SP=10:&-I&+Be)&-B 15011&.7&SP=30:&-I&+Bf)&-B 31384&.9&SP=50:&-I&+Bg)&-B 62096&.3&S"
     "P=70:&-I&+Bh)&-B 989&.35&LF&SP=10:&-I&+Bi)&-B 21700&.9&LF"},
    {"0148998985011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 89675 - 990&.9&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 88684&.1&LF"},
    {"0150170057040101",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 8845 × 6&.113&-I&SP=29:&+Bb)&-B&+I 985&"
     ".5 × 673&.7&-I&SP=53:&+Bc)&-B&+I 5&.032 × 4279&-I&SP=76:&+Bd)&-B&+I 82&.71 × 57&.52&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 54069&.485&SP=30:&-I&+Bb)&-B 663931&.35&SP=50:&-I&+Bc)&-B 21531&.928&SP=70:&-"
     "I&+Bd)&-B 4757&.4792&LF"},
    {"0153454105090502",
     "Calculate the following expressions involving decimal numbers.&LF&SP=5:&+Ba)&-B&+I 201&.2 × 6981"
     "&-I&SP=29:&+Bb)&-B&+I 475&.3 × 368&.2&-I&SP=53:&+Bc)&-B&+I 33&.23 × 531&.5&-I&SP=76:&+Bd)&-B&+I "
     "586&.3 × 52&.66&-I&LF&SP=5:&+Be)&-B&+I 333&.5 × 955&.5&-I&SP=29:&+Bf)&-B&+I 922&.6 × 4231&-I&SP="
     "53:&+Bg)&-B&+I 76&.14 × 279&.3&-I&SP=76:&+Bh)&-B&+I 289&.9 × 187&.8&-I&LF&SP=5:&+Bi)&-B&+I 2985 "
     "× 21&.53&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 1404577&.2&SP=30:&-I&+Bb)&-B 175005&.46&SP=50:&-I&+Bc)&-B 17661&.745&SP=70:&-"
     "I&+Bd)&-B 30874&.558&LF&SP=10:&-I&+Be)&-B 318659&.25&SP=30:&-I&+Bf)&-B 3903520&.6&SP=50:&-I&+Bg)"
     "&-B 21265&.902&SP=70:&-I&+Bh)&-B 54443&.22&LF&SP=10:&-I&+Bi)&-B 64267&.05&LF"},
    {"0158998984011010",
     "Calculate the following expressions.&LF&SP=5:&+Ba)&-B&+I 7239 × 23&.53&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 170333&.67&LF"},
    {"0210170063040101",
     "Calculate the least common multiple and the greatest common divisor (LCM and GCD) of the following n"
     "umbers:&LF&SP=5:&+Ba)&-B&+I 200,  504&-I&SP=29:&+Bb)&-B&+I 420,  945&-I&SP=53:&+Bc)&-B&+I 96,  324&-"
     "I&SP=76:&+Bd)&-B&+I 300,  810&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 12600,  8&SP=30:&-I&+Bb)&-B 3780,  105&SP=50:&-I&+Bc)&-B 2592,  12&SP=70:&-I&+Bd)"
     "&-B 8100,  30&LF"},
    {"0213454147090502",
     "Calculate the least common multiple and the greatest common divisor (LCM and GCD) of the following n"
     "umbers:&LF&SP=5:&+Ba)&-B&+I 720,  420&-I&SP=29:&+Bb)&-B&+I 448,  900&-I&SP=53:&+Bc)&-B&+I 320,  900&"
     "-I&SP=76:&+Bd)&-B&+I 720,  540&-I&LF&SP=5:&+Be)&-B&+I 600,  630&-I&SP=29:&+Bf)&-B&+I 576,  450&-I&SP"
     "=53:&+Bg)&-B&+I 672,  540&-I&SP=76:&+Bh)&-B&+I 420,  540&-I&LF&SP=5:&+Bi)&-B&+I 720,  600&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 5040,  60&SP=30:&-I&+Bb)&-B 100800,  4&SP=50:&-I&+Bc)&-B 14400,  20&SP=70:&-I&+Bd"
     ")&-B 2160,  180&LF&SP=10:&-I&+Be)&-B 12600,  30&SP=30:&-I&+Bf)&-B 14400,  18&SP=50:&-I&+Bg)&-B 30240"
     ",  12&SP=70:&-I&+Bh)&-B 3780,  60&LF&SP=10:&-I&+Bi)&-B 3600,  120&LF"},
    {"0218998978011010",
     "Find the least common multiple and the greatest common divisor (LCM and GCD) of the following number"
     "s:&LF&SP=5:&+Ba)&-B&+I 630,  810&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B 5670,  90&LF"},
    {"0220170064040101",
     "Convert the following values to fractions:&LF&SP=5:&+Ba)&-B&+I 2&.2&-I&SP=29:&+Bb)&-B&+I 9&.#ARC"
     "(83#ARC)&-I&SP=53:&+Bc)&-B&+I 12&.06#ARC(39#ARC)&-I&SP=76:&+Bd)&-B&+I 9&.36#ARC(604#ARC)&-I&LF&L"
     "F",
     "&SP=10:&-I&+Ba)&-B #COC(11#N)(5#COC)&SP=30:&-I&+Bb)&-B #COC(974#N)(99#COC)&SP=50:&-I&+Bc)&-B #CO"
     "C(39811#N)(3300#COC)&SP=70:&-I&+Bd)&-B #COC(233917#N)(24975#COC)&LF"},
    {"0223454154090502",
     "Convert the following values to fractions:&LF&SP=5:&+Ba)&-B&+I 10&.13#ARC(094#ARC)&-I&SP=29:&+Bb"
     ")&-B&+I 2&.25&-I&SP=53:&+Bc)&-B&+I 1&.#ARC(4#ARC)&-I&SP=76:&+Bd)&-B&+I 8&.3#ARC(64#ARC)&-I&LF&SP"
     "=5:&+Be)&-B&+I 10&.57&-I&SP=29:&+Bf)&-B&+I 8&.75#ARC(82#ARC)&-I&SP=53:&+Bg)&-B&+I 9&.985&-I&SP=7"
     "6:&+Bh)&-B&+I 5&.#ARC(43#ARC)&-I&LF&SP=5:&+Bi)&-B&+I 5&.4#ARC(80#ARC)&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(1012081#N)(99900#COC)&SP=30:&-I&+Bb)&-B #COC(9#N)(4#COC)&SP=50:&-I&+Bc)&"
     "-B #COC(13#N)(9#COC)&SP=70:&-I&+Bd)&-B #COC(8281#N)(990#COC)&LF&SP=10:&-I&+Be)&-B #COC(1057#N)(1"
     "00#COC)&SP=30:&-I&+Bf)&-B #COC(86707#N)(9900#COC)&SP=50:&-I&+Bg)&-B #COC(1997#N)(200#COC)&SP=70:"
     "&-I&+Bh)&-B #COC(538#N)(99#COC)&LF&SP=10:&-I&+Bi)&-B #COC(2713#N)(495#COC)&LF"},
    {"0228998977011010",
     "Convert the following values to fractions:&LF&SP=5:&+Ba)&-B&+I 3&.39&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(339#N)(100#COC)&LF"},
    {"0230170065040101",
     "Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(6#N)(#SQR(37#SQR) + 9#COC)&SP=29:&+Bb)&"
     "-B #COC(15#N)(#SQR(42#SQR) - 7#COC)&SP=53:&+Bc)&-B #COC(#SQR(46#SQR)#N)(#SQR(46#SQR) - 5#COC)&SP=76:"
     "&+Bd)&-B #COC(8#N)(#SQR(7#SQR)#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(-3_ #SQR(37#SQR) + 27#N)(22#COC)&SP=32:&-I&+Bb)&-B #COC(-15_ #SQR(42#SQR) - "
     "105#N)(7#COC)&SP=54:&-I&+Bc)&-B #COC(46 + 5_ #SQR(46#SQR)#N)(21#COC)&SP=76:&-I&+Bd)&-B #COC(8_ #SQR("
     "7#SQR)#N)(7#COC)&LF&LF"},
    {"0233454161090502",
     "Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(#SQR(47#SQR)#N)(#SQR(47#SQR) - 5#COC)&S"
     "P=29:&+Bb)&-B #COC(11#N)(#SQR(7#SQR)#COC)&SP=53:&+Bc)&-B #COC(21#N)(#SQR(39#SQR)#COC)&SP=76:&+Bd)&-B"
     " #COC(#SQR(19#SQR)#N)(#SQR(3#SQR)#COC)&LF&LF&SP=5:&+Be)&-B #COC(13#N)(#SQR(13#SQR) + 5#COC)&SP=29:&+"
     "Bf)&-B #COC(8#N)(#SQR(46#SQR) - 5#COC)&SP=53:&+Bg)&-B #COC(#SQR(3#SQR)#N)(#SQR(11#SQR)#COC)&SP=76:&+"
     "Bh)&-B #COC(17#N)(#SQR(29#SQR) + 9#COC)&LF&LF&SP=5:&+Bi)&-B #COC(10#N)(#SQR(29#SQR) - 1#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(47 + 5_ #SQR(47#SQR)#N)(22#COC)&SP=32:&-I&+Bb)&-B #COC(11_ #SQR(7#SQR)#N)(7#"
     "COC)&SP=54:&-I&+Bc)&-B #COC(7_ #SQR(39#SQR)#N)(13#COC)&SP=76:&-I&+Bd)&-B #COC(#SQR(57#SQR)#N)(3#COC)"
     "&LF&LF&SP=10:&-I&+Be)&-B #COC(-13_ #SQR(13#SQR) + 65#N)(12#COC)&SP=32:&-I&+Bf)&-B #COC(8_ #SQR(46#SQ"
     "R) + 40#N)(21#COC)&SP=54:&-I&+Bg)&-B #COC(#SQR(33#SQR)#N)(11#COC)&SP=76:&-I&+Bh)&-B #COC(-17_ #SQR(2"
     "9#SQR) + 153#N)(52#COC)&LF&LF&SP=10:&-I&+Bi)&-B #COC(5_ #SQR(29#SQR) + 5#N)(14#COC)&LF&LF"},
    {"0238998976011010",
     "Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(10#N)(#SQR(6#SQR)#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(5_ #SQR(6#SQR)#N)(3#COC)&LF&LF"},
    {"0240170066040101",
     "Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(2#N)(#RAD(#RI(4#RI)343#RAD)#COC)&SP"
     "=29:&+Bb)&-B #COC(24#N)(#RAD(#RI(7#RI)13^3#RAD)#COC)&SP=53:&+Bc)&-B #COC(28#N)(#RAD(#RI(8#RI)31^"
     "3#RAD)#COC)&SP=76:&+Bd)&-B #COC(11#N)(#RAD(#RI(5#RI)37^2#RAD)#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(2_ #RAD(#RI(4#RI)7#RAD)#N)(7#COC)&SP=32:&-I&+Bb)&-B #COC(24_ #RAD(#RI(7#"
     "RI)13^4#RAD)#N)(13#COC)&SP=54:&-I&+Bc)&-B #COC(28_ #RAD(#RI(8#RI)31^5#RAD)#N)(31#COC)&SP=76:&-I&"
     "+Bd)&-B #COC(11_ #RAD(#RI(5#RI)37^3#RAD)#N)(37#COC)&LF&LF"},
    {"0243454168090502",
     "Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(12#N)(#RAD(#RI(5#RI)49#RAD)#COC)&SP"
     "=29:&+Bb)&-B #COC(31#N)(#RAD(#RI(3#RI)841#RAD)#COC)&SP=53:&+Bc)&-B #COC(25#N)(#RAD(#RI(8#RI)27#R"
     "AD)#COC)&SP=76:&+Bd)&-B #COC(7#N)(#RAD(#RI(5#RI)343#RAD)#COC)&LF&LF&SP=5:&+Be)&-B #COC(18#N)(#RA"
     "D(#RI(3#RI)49#RAD)#COC)&SP=29:&+Bf)&-B #COC(9#N)(#RAD(#RI(7#RI)31^3#RAD)#COC)&SP=53:&+Bg)&-B #CO"
     "C(6#N)(#RAD(#RI(7#RI)125#RAD)#COC)&SP=76:&+Bh)&-B #COC(14#N)(#RAD(#RI(9#RI)5^5#RAD)#COC)&LF&LF&S"
     "P=5:&+Bi)&-B #COC(9#N)(#RAD(#RI(8#RI)8#RAD)#COC)&LF&LF",
     "&SP=10:&-I&+Ba)&-B #COC(12_ #RAD(#RI(5#RI)343#RAD)#N)(7#COC)&SP=32:&-I&+Bb)&-B #COC(31_ #RAD(#RI"
     "(3#RI)29#RAD)#N)(29#COC)&SP=54:&-I&+Bc)&-B #COC(25_ #RAD(#RI(8#RI)243#RAD)#N)(3#COC)&SP=76:&-I&+"
     "Bd)&-B #RAD(#RI(5#RI)49#RAD)&LF&LF&SP=10:&-I&+Be)&-B #COC(18_ #RAD(#RI(3#RI)7#RAD)#N)(7#COC)&SP="
     "32:&-I&+Bf)&-B #COC(9_ #RAD(#RI(7#RI)31^4#RAD)#N)(31#COC)&SP=54:&-I&+Bg)&-B #COC(6_ #RAD(#RI(7#R"
     "I)625#RAD)#N)(5#COC)&SP=76:&-I&+Bh)&-B #COC(14_ #RAD(#RI(9#RI)5^4#RAD)#N)(5#COC)&LF&LF&SP=10:&-I"
     "&+Bi)&-B #COC(9_ #RAD(#RI(8#RI)32#RAD)#N)(2#COC)&LF&LF"},
    {"0248998975011010",
     "Rationalize the following expressions:&LF&SP=5:&+Ba)&-B #COC(26#N)(#RAD(#RI(7#RI)5^3#RAD)#COC)&L"
     "F&LF",
     "&SP=10:&-I&+Ba)&-B #COC(26_ #RAD(#RI(7#RI)5^4#RAD)#N)(5#COC)&LF&LF"},
    {"0250170067040101",
     "Calculate the following expressions:&LF&SP=5:&+Ba)&-B -5#SQR(20#SQR) + 2#SQR(45#SQR) + 2#SQR(5#S"
     "QR) - 4#SQR(5#SQR)&SP=43:&+Bb)&-B #SQR(45#SQR) - #SQR(20#SQR)&LF&LF&SP=5:&+Bc)&-B 3#SQR(5#SQR) -"
     " 4#SQR(80#SQR) - 4#SQR(20#SQR)&SP=43:&+Bd)&-B #SQR(75#SQR) + 5#SQR(75#SQR) - 6#SQR(12#SQR) - 5#S"
     "QR(27#SQR)&LF&LF",
     "&SP=10:&-I&+Ba)&-B -& 6#SQR(5#SQR)&SP=32:&-I&+Bb)&-B #SQR(5#SQR)&SP=54:&-I&+Bc)&-B -& 21#SQR(5#S"
     "QR)&SP=76:&-I&+Bd)&-B 3#SQR(3#SQR)&LF&LF"},
    {"0253454175090502",
     "Calculate the following expressions:&LF&SP=5:&+Ba)&-B #SQR(12#SQR) + 3#SQR(3#SQR) - #SQR(3#SQR) "
     "+ 4#SQR(12#SQR)&SP=43:&+Bb)&-B 4#SQR(12#SQR) + 5#SQR(48#SQR)&LF&LF&SP=5:&+Bc)&-B #SQR(27#SQR) + "
     "#SQR(12#SQR) + 3#SQR(3#SQR)&SP=43:&+Bd)&-B 4#SQR(48#SQR) - 2#SQR(75#SQR) - 3#SQR(12#SQR) - 5#SQR"
     "(3#SQR)&LF&LF&SP=5:&+Be)&-B #SQR(125#SQR) + #SQR(20#SQR)&SP=43:&+Bf)&-B 3#SQR(3#SQR) - 2#SQR(48#"
     "SQR) + 2#SQR(3#SQR)&LF&LF&SP=5:&+Bg)&-B #SQR(80#SQR) + 6#SQR(125#SQR) - #SQR(5#SQR) - #SQR(45#SQ"
     "R)&SP=43:&+Bh)&-B 3#SQR(20#SQR) + #SQR(5#SQR)&LF&LF&SP=5:&+Bi)&-B #SQR(27#SQR) - 5#SQR(3#SQR) + "
     "#SQR(3#SQR)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 12#SQR(3#SQR)&SP=32:&-I&+Bb)&-B 28#SQR(3#SQR)&SP=54:&-I&+Bc)&-B 8#SQR(3#SQR)&"
     "SP=76:&-I&+Bd)&-B -& 5#SQR(3#SQR)&LF&LF&SP=10:&-I&+Be)&-B 7#SQR(5#SQR)&SP=32:&-I&+Bf)&-B -& 3#SQ"
     "R(3#SQR)&SP=54:&-I&+Bg)&-B 30#SQR(5#SQR)&SP=76:&-I&+Bh)&-B 7#SQR(5#SQR)&LF&LF&SP=10:&-I&+Bi)&-B "
     "-& #SQR(3#SQR)&LF&LF"},
    {"0258998974011010",
     "Calculate the following expressions:&LF&SP=5:&+Ba)&-B 3#SQR(125#SQR) + 5#SQR(5#SQR)&LF&LF",
     "&SP=10:&-I&+Ba)&-B 20#SQR(5#SQR)&LF&LF"},
};
} // namespace

TEST(NrpDrillsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_NRP", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
