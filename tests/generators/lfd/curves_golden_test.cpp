#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0290001234080101",
     "Calculate the tangent and normal lines to the following curves at the given points:&LF&SP=5:&+Ba)&-B"
     "&+I &+Iy&-I = &+Ix&-I^2& +& 5&+Ix&-I& +& 4,     &+Ix&-I_0 = 1&-I&SP=43:&+Bb)&-B&+I &+Iy&-I = -&+Ix&-"
     "I^3& +& 7&+Ix&-I& -& 5,     &+Ix&-I_0 = -1&-I&LF&SP=5:&+Bc)&-B&+I &+Iy&-I = #COC(1#N)(&+Ix&-I - 6#CO"
     "C),     &+Ix&-I_0 = 7&-I&SP=43:&+Bd)&-B&+I &+Iy&-I = #SQR(&+Ix&-I + 1#SQR),     &+Ix&-I_0 = 8&-I&LF&"
     "SP=5:&+Be)&-B&+I &+Iy&-I = 2#EXP( &+Ix&-I - 6#EXP),     &+Ix&-I_0 = 6&-I&SP=43:&+Bf)&-B&+I &+Iy&-I ="
     " -ln_ (&+Ix&-I - 3),     &+Ix&-I_0 = 4&-I&LF&SP=5:&+Bg)&-B&+I &+Iy&-I = &+Ix&-I^2& +& 5&+Ix&-I& +& 5"
     ",     &+Ix&-I_0 = -5&-I&SP=43:&+Bh)&-B&+I &+Iy&-I = -&+Ix&-I^3& -& &+Ix&-I& -& 8,     &+Ix&-I_0 = 2&"
     "-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Iy&-I = 7&+Ix&-I + 3,     &+Iy&-I = -#COC(1#N)(7#COC)&+Ix&-I + #COC(71#N)(7#COC"
     ")&LF&SP=10:&-I&+Bb)&-B &+Iy&-I = 4&+Ix&-I - 7,     &+Iy&-I = -#COC(1#N)(4#COC)&+Ix&-I - #COC(45#N)(4"
     "#COC)&LF&SP=10:&-I&+Bc)&-B &+Iy&-I = -&+Ix&-I + 8,     &+Iy&-I = &+Ix&-I - 6&LF&SP=10:&-I&+Bd)&-B &+"
     "Iy&-I = #COC(1#N)(6#COC)&+Ix&-I + #COC(5#N)(3#COC),     &+Iy&-I = -6&+Ix&-I + 51&LF&SP=10:&-I&+Be)&-"
     "B &+Iy&-I = 2&+Ix&-I - 10,     &+Iy&-I = -#COC(1#N)(2#COC)&+Ix&-I + 5&LF&SP=10:&-I&+Bf)&-B &+Iy&-I ="
     " -&+Ix&-I + 4,     &+Iy&-I = &+Ix&-I - 4&LF&SP=10:&-I&+Bg)&-B &+Iy&-I = -5&+Ix&-I - 20,     &+Iy&-I "
     "= #COC(1#N)(5#COC)&+Ix&-I + 6&LF&SP=10:&-I&+Bh)&-B &+Iy&-I = -13&+Ix&-I + 8,     &+Iy&-I = #COC(1#N)"
     "(13#COC)&+Ix&-I - #COC(236#N)(13#COC)&LF"},
    {"0290300042030302",
     "Calculate the tangent and normal lines to the following curves at the given points:&LF&SP=5:&+Ba)&-B"
     "&+I &+Iy&-I = #COC(-3#N)(&+Ix&-I - 4#COC),     &+Ix&-I_0 = 5&-I&SP=43:&+Bb)&-B&+I &+Iy&-I = #SQR(&+I"
     "x&-I + 15#SQR),     &+Ix&-I_0 = 1&-I&LF&SP=5:&+Bc)&-B&+I &+Iy&-I = 5#EXP( &+Ix&-I - 1#EXP),     &+Ix"
     "&-I_0 = 1&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Iy&-I = 3&+Ix&-I - 18,     &+Iy&-I = -#COC(1#N)(3#COC)&+Ix&-I - #COC(4#N)(3#COC"
     ")&LF&SP=10:&-I&+Bb)&-B &+Iy&-I = #COC(1#N)(8#COC)&+Ix&-I + #COC(31#N)(8#COC),     &+Iy&-I = -8&+Ix&-"
     "I + 12&LF&SP=10:&-I&+Bc)&-B &+Iy&-I = 5&+Ix&-I,     &+Iy&-I = -#COC(1#N)(5#COC)&+Ix&-I + #COC(26#N)("
     "5#COC)&LF"},
    {"0290008999010101",
     "Calculate the tangent and normal lines to the following curves at the given points:&LF&SP=5:&+Ba)&-B"
     "&+I &+Iy&-I = #SQR(&+Ix&-I + 5#SQR),     &+Ix&-I_0 = -1&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B &+Iy&-I = #COC(1#N)(4#COC)&+Ix&-I + #COC(9#N)(4#COC),     &+Iy&-I = -4&+Ix&-I - 2"
     "&LF"},
    {"0330001234080101",
     "Find the maximums and minimums of these functions:&LF&SP=5:&+Ba)&-B&+I &+Iy&-I = &+Ix&-I^4& -& 2&+Ix"
     "&-I^2& +& 7&-I&SP=43:&+Bb)&-B&+I &+Iy&-I = -&+Ix&-I^4& +& 8&+Ix&-I^2& +& 7&-I&LF&SP=5:&+Bc)&-B&+I &+"
     "Iy&-I = -2&+Ix&-I^4& +& 16&+Ix&-I^2& -& 6&-I&SP=43:&+Bd)&-B&+I &+Iy&-I = 2&+Ix&-I^3& -& 12&+Ix&-I^2&"
     " -& 2&-I&LF&SP=5:&+Be)&-B&+I &+Iy&-I = &+Ix&-I^4& -& 8&+Ix&-I^2& +& 4&-I&SP=43:&+Bf)&-B&+I &+Iy&-I ="
     " 2&+Ix&-I^3& -& 6&+Ix&-I& +& 1&-I&LF&SP=5:&+Bg)&-B&+I &+Iy&-I = -&+Ix&-I^3& +& 3&+Ix&-I^2& -& 8&-I&S"
     "P=43:&+Bh)&-B&+I &+Iy&-I = &+Ix&-I^4& -& 8&+Ix&-I^2& +& 8&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B Min (-1&, 6),   Max (0&, 7),   Min (1&, 6)&LF&SP=10:&-I&+Bb)&-B Max (-2&, 23),   "
     "Min (0&, 7),   Max (2&, 23)&LF&SP=10:&-I&+Bc)&-B Max (-2&, 26),   Min (0&, -6),   Max (2&, 26)&LF&SP"
     "=10:&-I&+Bd)&-B Max (0&, -2),   Min (4&, -66)&LF&SP=10:&-I&+Be)&-B Min (-2&, -12),   Max (0&, 4),   "
     "Min (2&, -12)&LF&SP=10:&-I&+Bf)&-B Max (-1&, 5),   Min (1&, -3)&LF&SP=10:&-I&+Bg)&-B Min (0&, -8),  "
     " Max (2&, -4)&LF&SP=10:&-I&+Bh)&-B Min (-2&, -8),   Max (0&, 8),   Min (2&, -8)&LF"},
    {"0330300042030302",
     "Find the maximums and minimums of these functions:&LF&SP=5:&+Ba)&-B&+I &+Iy&-I = -&+Ix&-I^3& -& 3&+I"
     "x&-I^2& +& 24&+Ix&-I& -& 8&-I&SP=43:&+Bb)&-B&+I &+Iy&-I = &+Ix&-I^3& -& 3&+Ix&-I& +& 6&-I&LF&SP=5:&+"
     "Bc)&-B&+I &+Iy&-I = -&+Ix&-I^4& +& 8&+Ix&-I^2& +& 8&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B Min (-4&, -88),   Max (2&, 20)&LF&SP=10:&-I&+Bb)&-B Max (-1&, 8),   Min (1&, 4)&L"
     "F&SP=10:&-I&+Bc)&-B Max (-2&, 24),   Min (0&, 8),   Max (2&, 24)&LF"},
    {"0330008999010101",
     "Find the maximums and minimums of these functions:&LF&SP=5:&+Ba)&-B&+I &+Iy&-I = -2&+Ix&-I^3& +& 6&+"
     "Ix&-I^2& +& 18&+Ix&-I& -& 9&-I&LF&LF",
     "&SP=10:&-I&+Ba)&-B Min (-1&, -19),   Max (3&, 45)&LF"},
};
} // namespace

TEST(CurvesGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_LFD", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
