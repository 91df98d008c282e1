#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0011230042000101",
     "Solve the matricial equation  &+IX·A + B = C.&-I&LF      Where   &+IA&-I = #NES(()#RWS(C#RW1(-5&|-8 "
     "#RW1)#RW2(0&|1 #RW2)#RWS)#NES),    &+IB&-I = #NES(()#RWS(C#RW1(-7&|0 #RW1)#RWS)#NES),    &+IC&-I = #"
     "NES(()#RWS(C#RW1(8&|28 #RW1)#RWS)#NES)&LF",
     "&SP=10:&+IX&-I = #NES(()#RWS(C#RW1(-3&|4 #RW1)#RWS)#NES)&LF"},
    {"0014565555050302",
     "Solve the matricial equation  &+IX·A - B = C.&-I&LF      Where   &+IA&-I = #NES(()#RWS(C#RW1(-1&|2&|"
     "1 #RW1)#RW2(-2&|8&|-1 #RW2)#RW3(0&|-3&|5 #RW3)#RWS)#NES),    &+IB&-I = #NES(()#RWS(C#RW1(-8&|-2&|-2 "
     "#RW1)#RW2(-1&|0&|8 #RW2)#RW3(-1&|-8&|0 #RW3)#RWS)#NES),    &+IC&-I = #NES(()#RWS(C#RW1(8&|11&|-13 #R"
     "W1)#RW2(6&|-12&|-17 #RW2)#RW3(-5&|19&|15 #RW3)#RWS)#NES)&LF",
     "&SP=10:&+IX&-I = #NES(()#RWS(C#RW1(0&|0&|-3 #RW1)#RW2(-1&|-2&|-2 #RW2)#RW3(2&|2&|3 #RW3)#RWS)#NES)&L"
     "F"},
    {"0018998999261010",
     "Solve the matricial equation  &+IX·A - B = C.&-I&LF      Where   &+IA&-I = #NES(()#RWS(C#RW1(0&|-1 #"
     "RW1)#RW2(-8&|7 #RW2)#RWS)#NES),    &+IB&-I = #NES(()#RWS(C#RW1(-1&|-6 #RW1)#RW2(-3&|-1 #RW2)#RWS)#NE"
     "S),    &+IC&-I = #NES(()#RWS(C#RW1(-71&|76 #RW1)#RW2(3&|-1 #RW2)#RWS)#NES)&LF",
     "&SP=10:&+IX&-I = #NES(()#RWS(C#RW1(-7&|9 #RW1)#RW2(2&|0 #RW2)#RWS)#NES)&LF"},
    {"0021230042000101",
     "Solve this system of matricial equations  #NES(X}#RWS(R#RW1(-2&+IX&-I + &+IY&-I = &+IA&-I#RW1)#RW2(-"
     "2&+IX&-I - 2&+IY&-I = &+IB&-I#RW2)#RWS)#NES)&LF      Where  &+IA&-I = #NES(()#RWS(C#RW1(3&|1 #RW1)#R"
     "W2(1&|6 #RW2)#RWS)#NES),   &+IB&-I = #NES(()#RWS(C#RW1(6&|22 #RW1)#RW2(4&|0 #RW2)#RWS)#NES)&LF",
     "&SP=10:&+IX&-I = #NES(()#RWS(C#RW1(-2&|-4 #RW1)#RW2(-1&|-2 #RW2)#RWS)#NES),    &+IY&-I = #NES(()#RWS"
     "(C#RW1(-1&|-7 #RW1)#RW2(-1&|2 #RW2)#RWS)#NES)&LF"},
    {"0024565555050302",
     "Solve this system of matricial equations  #NES(X}#RWS(R#RW1(-4&+IX&-I - &+IY&-I = &+IA&-I#RW1)#RW2(&"
     "+IX&-I + 2&+IY&-I = &+IB&-I#RW2)#RWS)#NES)&LF      Where  &+IA&-I = #NES(()#RWS(C#RW1(18&|12&|-13 #R"
     "W1)#RW2(-24&|-24&|11 #RW2)#RW3(29&|-45&|-12 #RW3)#RWS)#NES),   &+IB&-I = #NES(()#RWS(C#RW1(-15&|-17&"
     "|-2 #RW1)#RW2(20&|6&|-8 #RW2)#RW3(-2&|27&|17 #RW3)#RWS)#NES)&LF",
     "&SP=10:&+IX&-I = #NES(()#RWS(C#RW1(-3&|-1&|4 #RW1)#RW2(4&|6&|-2 #RW2)#RW3(-8&|9&|1 #RW3)#RWS)#NES), "
     "   &+IY&-I = #NES(()#RWS(C#RW1(-6&|-8&|-3 #RW1)#RW2(8&|0&|-3 #RW2)#RW3(3&|9&|8 #RW3)#RWS)#NES)&LF"},
    {"0028998999261010",
     "Solve this system of matricial equations  #NES(X}#RWS(R#RW1(-2&+IX&-I - 3&+IY&-I = &+IA&-I#RW1)#RW2("
     "3&+IX&-I - 4&+IY&-I = &+IB&-I#RW2)#RWS)#NES)&LF      Where  &+IA&-I = #NES(()#RWS(C#RW1(23&|17&|0 #R"
     "W1)#RW2(1&|-9&|43 #RW2)#RW3(26&|-13&|-13 #RW3)#RWS)#NES),   &+IB&-I = #NES(()#RWS(C#RW1(25&|-17&|0 #"
     "RW1)#RW2(-10&|-12&|12 #RW2)#RW3(-5&|-6&|-6 #RW3)#RWS)#NES)&LF",
     "&SP=10:&+IX&-I = #NES(()#RWS(C#RW1(-1&|-7&|0 #RW1)#RW2(-2&|0&|-8 #RW2)#RW3(-7&|2&|2 #RW3)#RWS)#NES),"
     "    &+IY&-I = #NES(()#RWS(C#RW1(-7&|-1&|0 #RW1)#RW2(1&|3&|-9 #RW2)#RW3(-4&|3&|3 #RW3)#RWS)#NES)&LF"},
    {"0031230042000101",
     "Find the values of the parameter  &+Ip&-I  for which the following determinant is null:&LF&SP=10:#NE"
     "S(||#RWS(C#RW1(&+Ip&-I&|0&|0 #RW1)#RW2(-2&|3&|-3 #RW2)#RW3(-2&|3&|&+Ip&-I #RW3)#RWS)#NES)&LF",
     "&SP=10:&+Ip&-I_1 = -3   and   &+Ip&-I_2 = 0&LF"},
    {"0034565555050302",
     "For  &+IA&-I  matrix, calculate: &+Ba)&-B& The values of the parameter  &+Ik&-I  for which this matr"
     "ix isn't invertible. &+Bb)&-B& The inverse matrix when the parameter &+Ik&-I = 2.&LF     &+IA&-I = #"
     "NES(()#RWS(C#RW1(&+Ik&-I&|1&|-2 #RW1)#RW2(1&|1&|1 #RW2)#RW3(-2&|0&|&+Ik&-I #RW3)#RWS)#NES)&LF",
     "&SP=10:&+Ba)&-B& &+Ik&-I_1 = -2   and   &+Ik&-I_2 = 3&LF&SP=10:&+Bb)&-B& &+IA&-I^ ^-^1 = #NES(()#RWS"
     "(C#RW1(  #COC(-1#N)(2#COC)&|#COC(1#N)(2#COC)&|  #COC(-3#N)(4#COC) #RW1)#RW2(1&|0&|1 #RW2)#RW3(  #COC"
     "(-1#N)(2#COC)&|#COC(1#N)(2#COC)&|  #COC(-1#N)(4#COC) #RW3)#RWS)#NES)&LF"},
    {"0038998999261010",
     "For  &+IA&-I  matrix, calculate: &+Ba)&-B& The values of the parameter  &+Ip&-I  for which this matr"
     "ix isn't invertible. &+Bb)&-B& The inverse matrix when the parameter &+Ip&-I = 3.&LF     &+IA&-I = #"
     "NES(()#RWS(C#RW1(&+Ip&-I&|-6&|-4 #RW1)#RW2(0&|&+Ip&-I&|0 #RW2)#RW3(-3&|1&|3 #RW3)#RWS)#NES)&LF",
     "&SP=10:&+Ba)&-B& &+Ip&-I_1 = 0   and   &+Ip&-I_2 = 4&LF&SP=10:&+Bb)&-B& &+IA&-I^ ^-^1 = #NES(()#RWS("
     "C#RW1(-1&|  #COC(-14#N)(9#COC)&|  #COC(-4#N)(3#COC) #RW1)#RW2(0&|#COC(1#N)(3#COC)&|0 #RW2)#RW3(-1&| "
     " #COC(-5#N)(3#COC)&|-1 #RW3)#RWS)#NES)&LF"},
    {"0041230042000101",
     "Discuss and solve the following system of linear equations:&LF&SP=10:#NES(X}#RWS(R#RW1(-4&+Ix&-I& +&"
     " 2&+Iy&-I& -& 3&+Iz&-I& =& 32#RW1)#RW2(2&+Iy&-I& -& 2&+Iz&-I& =& 12#RW2)#RW3(-2&+Ix&-I& +& &+Iy&-I& "
     "-& 5&+Iz&-I& =& 30#RW3)#RWS)#NES)&LF",
     "&SP=10:&-ICompatible determinate system.  &+I x = -4,   y = 2,   z = &-I-4&LF"},
    {"0044565555050302",
     "Discuss and solve the following system of linear equations:&LF&SP=10:#NES(X}#RWS(R#RW1(-2&+Ix&-I& +&"
     " 2&+Iy&-I& =& 6#RW1)#RW2(-4&+Ix&-I& +& 4&+Iy&-I& -& 5&+Iz&-I& =& -28#RW2)#RW3(5&+Iz&-I& =& 35#RW3)#R"
     "WS)#NES)&LF",
     "&SP=10:&-IIncompatible (contradictory) system.&LF"},
    {"0048998999261010",
     "Discuss and solve the following system of linear equations:&LF&SP=10:#NES(X}#RWS(R#RW1(2&+Ix&-I& -& "
     "4&+Iy&-I& -& 6&+Iz&-I& =& 2#RW1)#RW2(7&+Ix&-I& -& 4&+Iy&-I& -& 11&+Iz&-I& =& -41#RW2)#RW3(-5&+Ix&-I&"
     " +& 5&+Iz&-I& =& 45#RW3)#RWS)#NES)&LF",
     "&SP=10:&-IIncompatible (contradictory) system.&LF"},
    {"0051230042000101",
     "Discuss and solve the following system of linear equations according to the values of parameter  &+I"
     "k&-I.  Solve it when parameter is  2.&LF&SP=10:#NES(X}#RWS(R#RW1(&+Ix&-I& +& 2&+Iy&-I& -& &+Iz&-I& ="
     "& -24#RW1)#RW2(-7&+Ix&-I& +& &+Ik&-I&+Iy&-I& +& &+Iz&-I& =& 22#RW2)#RW3(-5&+Ix&-I& -& &+Iz&-I& =& 22"
     "#RW3)#RWS)#NES)&LF",
     "&SP=10:&-IIncompatible if  &+Ik&-I = -4.   Compatible determinate if  &+Ik&-I &!= -4.&LF&SP=10:When "
     " &+Ik&-I = 2:  &+I x = -5,   y = -8,   z = &-I3&LF"},
    {"0054565555050302",
     "Discuss the following system of linear equations according to the values of parameter  &+Ia&-I  and "
     "solve the system if possible.&LF&SP=10:#NES(X}#RWS(R#RW1(-3&+Iy&-I& +& 4&+Iz&-I& =& -20#RW1)#RW2(-4&"
     "+Ix&-I& +& &+Ia&-I&+Iy&-I& +& 2&+Iz&-I& =& -26#RW2)#RW3(-2&+Ix&-I& -& 4&+Iy&-I& +& 3&+Iz&-I& =& -23#"
     "RW3)#RWS)#NES)&LF",
     "&SP=10:&-ICompatible indeterminate if  &+Ia&-I = -5:  &+I x = 4 + 7&lambda,   y = -8&lambda,   z = -"
     "5 - 6&lambda,     &lambda &-I&perte &real.&LF&SP=10:&-ICompatible determinate if  &+Ia&-I &!= -5:  &"
     "+I x = 4,   y = 0,   z = &-I-5&LF"},
    {"0058998999261010",
     "Discuss the following system of linear equations according to the values of parameter  &+Im&-I  and "
     "solve the system if possible.&LF&SP=10:#NES(X}#RWS(R#RW1(3&+Ix&-I& -& 4&+Iy&-I& -& 2&+Iz&-I& =& 6#RW"
     "1)#RW2(&+Im&-I&+Ix&-I& +& 7&+Iy&-I& +& &+Iz&-I& =& 7#RW2)#RW3(-&+Ix&-I& +& 3&+Iy&-I& -& &+Iz&-I& =& "
     "13#RW3)#RWS)#NES)&LF",
     "&SP=10:&-ICompatible indeterminate if  &+Im&-I = -4:  &+I x = 2&lambda,   y = 2 + &lambda,   z = -7 "
     "+ &lambda,     &lambda &-I&perte &real.&LF&SP=10:&-ICompatible determinate if  &+Im&-I &!= -4:  &+I "
     "x = 0,   y = 2,   z = &-I-7&LF"},
};
} // namespace

TEST(MatricesGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_ALG", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
