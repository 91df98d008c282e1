#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0011230456050101",
     "If we know that  sin &alfa = #COC(2#N)(5#COC)  and  cos &alfa > 0, calculate the trigonometric funct"
     "ions cos, tan, cosec, sec and cotan.&LF",
     "&SP=10:cos &alfa = #COC(#SQR(21#SQR)#N)(5#COC);    tan &alfa = #COC(2#SQR(21#SQR)#N)(21#COC);    cos"
     "ec &alfa = #COC(5#N)(2#COC);    sec &alfa = #COC(5#SQR(21#SQR)#N)(21#COC);    cotan& &alfa& =& #COC("
     "#SQR(21#SQR)#N)(2#COC)&LF"},
    {"0010007001120302",
     "We know that  tan &alfa = -& #COC(13#SQR(30#SQR)#N)(60#COC)  and  cos &alfa < 0, calculate the trigo"
     "nometric functions sin, cos, cosec, sec and cotan.&LF",
     "&SP=10:sin &alfa = #COC(13#N)(17#COC);    cos &alfa = -& #COC(2#SQR(30#SQR)#N)(17#COC);    cosec &al"
     "fa = #COC(17#N)(13#COC);    sec &alfa = -& #COC(17#SQR(30#SQR)#N)(60#COC);    cotan& &alfa& =& -& #C"
     "OC(2#SQR(30#SQR)#N)(13#COC)&LF"},
    {"0018998999011010",
     "If we know that  tan &alfa = #COC(3#SQR(7#SQR)#N)(7#COC)  and  cos &alfa > 0, calculate the trigonom"
     "etric functions sin, cos, cosec, sec and cotan.&LF",
     "&SP=10:sin &alfa = #COC(3#N)(4#COC);    cos &alfa = #COC(#SQR(7#SQR)#N)(4#COC);    cosec &alfa = #CO"
     "C(4#N)(3#COC);    sec &alfa = #COC(4#SQR(7#SQR)#N)(7#COC);    cotan& &alfa& =& #COC(#SQR(7#SQR)#N)(3"
     "#COC)&LF"},
    {"0021230456050101",
     "We know that  sin_ 22° = 0&.3746,  cos_ 22° = 0&.9272,  find the value of  sin_ 112°,  cos_ 158°  an"
     "d  cos& 44°.&LF",
     "&SP=10:sin_ 112° = 0&.9272;    cos_ 158° = -0&.9272;    cos_ 44° = 0&.7193&LF"},
    {"0020007001120302",
     "We know that  sin_ 50° = 0&.766,  cos_ 50° = 0&.6428,  find the value of  sin_ 140°,  cos_ 130°  and"
     "  cos& 100°.&LF",
     "&SP=10:sin_ 140° = 0&.6428;    cos_ 130° = -0&.6428;    cos_ 100° = -0&.1736&LF"},
    {"0028998999011010",
     "Knowing that  sin_ 34° = 0&.5592,  cos_ 34° = 0&.829,  sin_ 24° = 0&.4067,  cos_ 24° = 0&.9135,  cal"
     "culate the value of sin_ 58°,  cos_ 10°  and  sin& 148°.&LF",
     "&SP=10:sin_ 58° = 0&.848;    cos_ 10° = 0&.9848;    sin_ 148° = 0&.5299&LF"},
    {"0031230456050101",
     "&-I&-BGive a proof of the following trigonometric identities.&LF&SP=1:&+Ba)&-B 4cos &+It&-I = #COC(s"
     "in 2&+It&-I #N)(1 - cos^2^ &+It&-I #COC)·#COC(sin 2&+It&-I #N)(cos &+It&-I #COC)&LF&LF&SP=1:&+Bb)&-B"
     " cotan^2^ &+Ix&-I = cos^2^ &+Ix&-I + (cotan &+Ix&-I · cos &+Ix&-I )^2&LF&LF&SP=1:&+Bc)&-B sin &+Ib&-"
     "I · cos(&+Ia&-I-&+Ib&-I) + cos &+Ib&-I · sin(&+Ia&-I-&+Ib&-I) = sin &+Ia&-I&LF&LF&SP=1:&+Bd)&-B 1 + "
     "2cos 2&+It&-I = #COC(sin 5&+It&-I + sin &+It&-I #N)(sin 3&+It&-I - sin &+It&-I #COC)&LF&LF&SP=1:&+Be"
     ")&-B #COC(cosec &+It&-I #N)(1 + cosec &+It&-I #COC) - #COC(cosec &+It&-I #N)(1 - cosec &+It&-I #COC)"
     " = 2sec^2^ &+It&-I &LF&LF",
     "&SP=10: -&LF"},
    {"0030007001120302",
     "&-I&-BProve the following trigonometric identities.&LF&SP=1:&+Ba)&-B -tan &+I&alfa&-I = #COC(sin 3&+"
     "I&alfa&-I - sin 5&+I&alfa&-I #N)(cos 3&+I&alfa&-I + cos 5&+I&alfa&-I #COC)&LF&LF&SP=1:&+Bb)&-B #COC("
     "cosec &+Ix&-I #N)(1 + cosec &+Ix&-I #COC) - #COC(cosec &+Ix&-I #N)(1 - cosec &+Ix&-I #COC) = 2sec^2^"
     " &+Ix&-I &LF&LF&SP=1:&+Bc)&-B #COC(sin 9&+Ix&-I + sin 3&+Ix&-I #N)(cos 9&+Ix&-I + cos 3&+Ix&-I #COC)"
     " = tan 6&+Ix&-I &LF&LF&SP=1:&+Bd)&-B sin &+Ix&-I + cos &+Ix&-I · cotan &+Ix&-I = cosec &+Ix&-I &LF&L"
     "F&SP=1:&+Be)&-B 1 + 2tan^2^ &+Ix&-I + tan^4^ &+Ix&-I = sec^4^ &+Ix&-I &LF&LF&SP=1:&+Bf)&-B (cos &+It"
     "&-I + sin &+It&-I )^2 = 1 + sin 2&+It&-I &LF&LF&SP=1:&+Bg)&-B #COC(sin 6&+It&-I + sin 2&+It&-I #N)(c"
     "os 6&+It&-I + cos 2&+It&-I #COC) = tan 4&+It&-I &LF&LF&SP=1:&+Bh)&-B cotan &+It&-I · sec &+It&-I = c"
     "osec &+It&-I &LF&LF&SP=1:&+Bi)&-B tan^2#NES(()#COC(&+I&alfa&-I+&+I&beta&-I#N)(2#COC)#NES) = #COC(sin"
     " &+I&alfa&-I + sin &+I&beta&-I#N)(sin &+I&alfa&-I - sin &+I&beta&-I#COC) · #COC(cos &+I&beta&-I - co"
     "s &+I&alfa&-I#N)(cos &+I&alfa&-I + cos &+I&beta&-I#COC)&LF&LF&SP=1:&+Bj)&-B #COC(cotan &+Ix&-I + tan"
     " &+Ix&-I #N)(cotan &+Ix&-I - tan &+Ix&-I #COC) = sec 2&+Ix&-I &LF&LF&SP=1:&+Bk)&-B #COC(cos^2^ &+I&a"
     "lfa&-I #N)(1 - sin &+I&alfa&-I #COC) = 1 + sin &+I&alfa&-I &LF&LF&SP=1:&+Bl)&-B tan &+It&-I = #COC(s"
     "in 2&+It&-I #N)(1 + cos 2&+It&-I #COC)&LF&LF",
     "&SP=10: -&LF"},
    {"0038998999011010",
     "&-I&-BGive a proof of the following trigonometric identities.&LF&SP=1:&+Ba)&-B #COC(cos &+It&-I - co"
     "s 3&+It&-I #N)(sin 3&+It&-I - sin &+It&-I #COC) = tan 2&+It&-I &LF&LF",
     "&SP=10: -&LF"},
    {"0041230456050101",
     "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0°,& 360°).&LF&SP"
     "=5:&+Ba)&-B cos &+Ix&-I + 1 - sin^2^ &+Ix&-I = cos^2^ &+Ix&-I&SP=50:&+Bb)&-B cos &+Ix&-I - cos^2^ &+"
     "Ix&-I = sin^2^ &+Ix&-I&LF&SP=5:&+Bc)&-B 2sin^2^ &+Ix&-I + sin &+Ix&-I = 0&SP=50:&+Bd)&-B sin &+Ix&-I"
     " (2 - sin &+Ix&-I) = cos^2^ &+Ix&-I&LF&SP=5:&+Be)&-B 2sin 3&+Ix&-I - sin^2^ &+Ix&-I = cos^2^ &+Ix&-I"
     "&LF",
     "&SP=10:&+Ba)&-B 90°,  270°&SP=50:&+Bb)&-B 0°&LF&SP=10:&+Bc)&-B 0°,  180°,  210°,  330°&SP=50:&+Bd)&-"
     "B 30°,  150°&LF&SP=10:&+Be)&-B 10°,  50°,  130°,  170°,  250°,  290°&LF"},
    {"0040007001120302",
     "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0°,& 360°).&LF&SP"
     "=5:&+Ba)&-B 2cos 3&+Ix&-I + #RAD(3#RAD) = 0&SP=50:&+Bb)&-B cos 3&+Ix&-I - cos^2^ &+Ix&-I = sin^2^ &+"
     "Ix&-I&LF&SP=5:&+Bc)&-B sin 2&+Ix&-I - cos^2^ &+Ix&-I = sin^2^ &+Ix&-I&SP=50:&+Bd)&-B 2cos &+Ix&-I + "
     "1 = 0&LF&SP=5:&+Be)&-B sin 3&+Ix&-I + cos^2^ &+Ix&-I = -sin^2^ &+Ix&-I&SP=50:&+Bf)&-B 2cos 2&+Ix&-I "
     "+ 1 = 0&LF&SP=5:&+Bg)&-B cos^2^ &+Ix&-I - sin &+Ix&-I = 1&SP=50:&+Bh)&-B cos &+Ix&-I + sin^2^ &+Ix&-"
     "I = -cos^2^ &+Ix&-I&LF&SP=5:&+Bi)&-B 2sin 2&+Ix&-I - 1 = 0&SP=50:&+Bj)&-B 2cos 3&+Ix&-I + #RAD(2#RAD"
     ") = 0&LF&SP=5:&+Bk)&-B 2cos &+Ix&-I + #RAD(3#RAD) = 0&SP=50:&+Bl)&-B cos &+Ix&-I - cos^2^ &+Ix&-I = "
     "sin^2^ &+Ix&-I&LF",
     "&SP=10:&+Ba)&-B 50°,  70°,  170°,  190°,  290°,  310°&SP=50:&+Bb)&-B 0°,  120°,  240°&LF&SP=10:&+Bc)"
     "&-B 45°,  225°&SP=50:&+Bd)&-B 120°,  240°&LF&SP=10:&+Be)&-B 90°,  210°,  330°&SP=50:&+Bf)&-B 60°,  1"
     "20°,  240°,  300°&LF&SP=10:&+Bg)&-B 0°,  180°,  270°&SP=50:&+Bh)&-B 180°&LF&SP=10:&+Bi)&-B 15°,  75°"
     ",  195°,  255°&SP=50:&+Bj)&-B 45°,  75°,  165°,  195°,  285°,  315°&LF&SP=10:&+Bk)&-B 150°,  210°&SP"
     "=50:&+Bl)&-B 0°&LF"},
    {"0048998999011010",
     "&-I&-BSolve the following equations. Give the &+Ix&-I values within the interval& [0°,& 360°).&LF&SP"
     "=5:&+Ba)&-B 2cos 2&+Ix&-I + cos^2^ &+Ix&-I = -sin^2^ &+Ix&-I&LF",
     "&SP=10:&+Ba)&-B 60°,  120°,  240°,  300°&LF"},
    {"0051230456050101",
     "Triangle &+IABC&-I, has sides &+Ic&-I = 45& cm,  &+Ib&-I = 70& cm  and angle &+IA&-I = 55°. Calculat"
     "e side &+Ia&-I and angles  &+IC&-I  and  &+IB&-I.&LF",
     "&SP=10:&+Ia&-I = 57&.55& cm;    &+IC&-I = 39&.83°;    &+IB&-I = 85&.17°&LF"},
    {"0050007001120302",
     "Triangle &+IABC&-I has sides  &+Ia&-I = 95& cm,  &+Ib&-I = 65& cm  and  &+Ic&-I = 75& cm.  Find all "
     "angles of the triangle.&LF",
     "&SP=10:&+IA&-I = 85&.15°;    &+IB&-I = 42&.98°;    &+IC&-I = 51&.87°&LF"},
    {"0058998999011010",
     "Triangle &+IABC&-I has angle &+IA&-I = 37°,  sides  &+Ia&-I = 30& cm  and  &+Ib&-I = 27& cm. If angl"
     "e  &+IB&-I  is acute, find angles  &+IB&-I  and  &+IC&-I  and length of side  &+Ic&-I.&LF",
     "&SP=10:&+IB&-I = 32&.79°;    &+IC&-I = 110&.21°;    &+Ic&-I = 46&.78& cm&LF"},
    {"0061230456050101",
     "The triangle  &+IABC&-I shown below has an area of 56& cm^2, the side &+IBC&-I& =& 14& cm and the an"
     "gle &+IB&-I& =& 41°.&LF&SP=5:a) Find the height &+IAD&-I.&SP=66:#IMG('m_trigo_tria_hch.gif'DXmm=46:D"
     "Ymm=-30.94:#IMG)&LF&SP=5:b) Find the side &+IAB&-I.&LF&SP=5:c) Find the angle &+IC&-I.&LF",
     "&SP=10: a) 8 cm;    b) 12&.19 cm;    c) 59&.05°&LF"},
    {"0060007001120302",
     "The triangle  &+IABC&-I shown below has an area of 504& cm^2, the side &+IBC&-I& =& 48& cm and the a"
     "ngle &+IB&-I& =& 37°.&LF&SP=5:a) Find the height &+IAD&-I.&SP=66:#IMG('m_trigo_tria_hch.gif'DXmm=46:"
     "DYmm=-30.94:#IMG)&LF&SP=5:b) Find the side &+IAB&-I.&LF&SP=5:c) Find the angle &+IC&-I.&LF",
     "&SP=10: a) 21 cm;    b) 34&.89 cm;    c) 46&.21°&LF"},
    {"0068998999011010",
     "Consider the right triangles &+IABC&-I  and  &+IABD&-I shown below. The line segment  &+ICD&-I  has "
     "a length of 12& cm, the angle &+ID&-I& =& 39° and the angle &+IACB&-I& =& 49°.&LF&SP=5:a) Find the a"
     "ltitude &+IAB&-I.&SP=66:#IMG('m_trigo_tria_hhc.gif'DXmm=37:DYmm=-26.825:#IMG)&LF&SP=5:b) Find the se"
     "gment &+IBC&-I.&LF&SP=5:c) Find the hypotenuse &+IAD&-I.&LF",
     "&SP=10: a) 32&.82 cm;    b) 28&.53 cm;    c) 52&.15 cm&LF"},
};
} // namespace

TEST(TriGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_TRI", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
