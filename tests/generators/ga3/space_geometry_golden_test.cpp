#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0011230042000101",
     "If  #VED(&+Iu&-I#VED)(3&,& 10&,& 11)  and  #VED(&+Iv&-I#VED)(9&,& &+Im&-I&,& 33),  find the value of"
     " parameter  &+Im&-I  for each of the following cases:&LF    &+Ba)&-B& Vectors are parallel.&LF    &+"
     "Bb)&-B& Vectors are orthogonal (perpendicular).&LF    &+Bc)&-B& Magnitude of  #VED(&+Iv&-I#VED)  is "
     " 3#SQR(134#SQR).&LF",
     "&SP=10:&+Ba)&-B& &+Im&-I = 30    &+Bb)&-B& &+Im&-I = -39    &+Bc)&-B& &+Im&-I = &pm6&LF"},
    {"0014565555050302",
     "Use the triple product to find the volume of the parallelepiped determined by the vectors  #VED(&+Iu"
     "&-I#VED)(2&,& 4&,& -3),  #VED(&+Iv&-I#VED)(-5&,& -3&,& -1)  and  #VED(&+Iw&-I#VED)(-6&,& -7&,& 4).&L"
     "F",
     "&SP=10:&+IV&-I& =& |#VED(&+Iu&-I#VED)·(#VED(&+Iv&-I#VED) × #VED(&+Iw&-I#VED))|& =& 15 u^3.&LF"},
    {"0018998999261010",
     "Use the triple product to find the volume of the parallelepiped determined by the vectors  #VED(&+Iu"
     "&-I#VED)(7&,& -8&,& -4),  #VED(&+Iv&-I#VED)(8&,& -1&,& -7)  and  #VED(&+Iw&-I#VED)(-9&,& -8&,& -6).&"
     "LF",
     "&SP=10:&+IV&-I& =& |#VED(&+Iu&-I#VED)·(#VED(&+Iv&-I#VED) × #VED(&+Iw&-I#VED))|& =& 946 u^3.&LF"},
    {"0021230042000101",
     "Find the equation of the plane that passes through the point  &+IA&-I(4&,& -4&,& -5)  and is paralle"
     "l to the plane  &+I&pi&-I& :& 18&+Ix&-I& +& 19&+Iy&-I& -& 21&+Iz&-I& +& 36& =& 0.&LF",
     "&SP=10:&+I&pi&-I& :& 18&+Ix&-I& +& 19&+Iy&-I& -& 21&+Iz&-I& -& 101& =& 0&LF"},
    {"0024565555050302",
     "Find the equation of the plane that passes through the point  &+IA&-I(-9&,& 0&,& 4)  and is perpendi"
     "cular to the line  &+IL&-I& :& #NES({X#RWS(L#RW1(5&+Ix&-I& +& 4&+Iy&-I& +& 41& =& 0#RW1)#RW2(2&+Iy&-"
     "I& -& 15&+Iz&-I& +& 73& =& 0#RW2)#RWS)#NES).&LF",
     "&SP=10:&+I&pi&-I& :& 12&+Ix&-I& -& 15&+Iy&-I& -& 2&+Iz&-I& +& 116& =& 0&LF"},
    {"0028998999261010",
     "Find the equation of the plane that contains the points  &+IA&-I(-3&,& 6&,& 5)  and  &+IB&-I(0&,& 11"
     "&,& 5)  and is perpendicular to the plane  &+I&pi&-I& :& 7&+Ix&-I& +& 8&+Iy&-I& +& 3&+Iz&-I& -& 48& "
     "=& 0.&LF",
     "&SP=10:&+I&pi&-I& :& 15&+Ix&-I& -& 9&+Iy&-I& -& 11&+Iz&-I& +& 154& =& 0&LF"},
    {"0031230042000101",
     "Find the symmetric form equation of the line that contains the point  &+IP&-I(4&,& -4&,& -5)  and is"
     " parallel to the line  &+IL&-I:& #NES({X#RWS(L#RW1(&+Ix&-I& =& 4& -& 5&+I&lambda&-I#RW1)#RW2(&+Iy&-I"
     "& =& -4& +& 2&+I&lambda&-I#RW2)#RW3(&+Iz&-I& =& -6& -& 5&+I&lambda&-I#RW3)#RWS)#NES).&LF",
     "&SP=10:&+IL&-I& :& #COC(&+Ix&-I& -& 4#N)(5#COC)& =& #COC(&+Iy&-I& +& 4#N)(-2#COC)& =& #COC(&+Iz&-I& "
     "+& 5#N)(5#COC)&LF"},
    {"0034565555050302",
     "Find the symmetric form equation of the line that passes through the point  &+IP&-I(-9&,& 0&,& 4)  a"
     "nd is perpendicular to the plane  &+I&pi&-I& :& 3&+Ix&-I& -& 2&+Iy&-I& -& 3&+Iz&-I& +& 29& =& 0  and"
     " cuts the line  &+IL&-I:& #NES({X#RWS(L#RW1(&+Iy&-I& -& 2& =& 0#RW1)#RW2(&+Ix&-I& -& &+Iz&-I& +& 19&"
     " =& 0#RW2)#RWS)#NES).&LF",
     "&SP=10:&+IL&-I& :& #COC(&+Ix&-I& +& 9#N)(3#COC)& =& #COC(&+Iy&-I#N)(-2#COC)& =& #COC(&+Iz&-I& -& 4#N"
     ")(-3#COC)&LF"},
    {"0038998999261010",
     "Find the symmetric form equation of the line that is perpendicular to the line  &+IL&-I:& #COC(&+Ix&"
     "-I& +& 6#N)(-8#COC)& =& #COC(&+Iy&-I& +& 8#N)(10#COC)& =& #COC(&+Iz&-I& -& 6#N)(-3#COC)  and is para"
     "llel to the plane  &+I&pi&-I& :& 3&+Ix&-I& +& 4&+Iy&-I& +& 5&+Iz&-I& +& 20& =& 0,  through the point"
     "  &+IP&-I(-2&,& -7&,& 9).&LF",
     "&SP=10:&+IL&-I& :& #COC(&+Ix&-I& +& 2#N)(2#COC)& =& #COC(&+Iy&-I& +& 7#N)(1#COC)& =& #COC(&+Iz&-I& -"
     "& 9#N)(-2#COC)&LF"},
    {"0041230042000101",
     "Calculate the value of parameter  &+Ik&-I  for which the distance between the point  &+IP&-I(-7&,& &"
     "+Ik&-I&,& -6)  and the plane &+I&pi&-I& :& & 6&+Ix&-I& -& 3&+Iy&-I& -& 2&+Iz&-I& +& 42& =& 0  is  3 "
     "units.&LF",
     "&SP=10: &+Ik&-I_1 = -3,    &+Ik&-I_2 = 11&LF"},
    {"0044565555050302",
     "Find the value of parameter  &+Ia&-I  for which the distance between the point  &+IP&-I(11&,& &+Ia&-"
     "I&,& 1)  and the plane &+I&pi&-I& :& & 2&+Ix&-I& +& 6&+Iy&-I& +& 9&+Iz&-I& -& 28& =& 0  is  3 units,"
     " with  &+Ia&-I& >& 0.&LF",
     "&SP=10: &+Ia&-I = 5&LF"},
    {"0048998999261010",
     "Find the value of parameter  &+Ik&-I  for which the distance between the point  &+IP&-I(&+Ik&-I&,& 2"
     "&,& 6)  and the plane &+I&pi&-I& :& & 2&+Ix&-I& -& 3&+Iy&-I& -& 6&+Iz&-I& +& 65& =& 0  is  5 units, "
     "with  &+Ik&-I& >& 0.&LF",
     "&SP=10: &+Ik&-I = 6&LF"},
    {"0051230042000101",
     "Discuss the intersection of the following plane and line. Find the intersection point if possible.&LF"
     "&SP=10: &+I&pi&-I :  -2&+Ix&-I& +& &+Iy&-I& -& 5&+Iz&-I& =& 30,           &+IL&-I& :  #NES({X#RWS(L#"
     "RW1(-4&+Ix&-I& +& 2&+Iy&-I& -& 3&+Iz&-I& =& 32#RW1)#RW2(2&+Iy&-I& -& 2&+Iz&-I& =& 12#RW2)#RWS)#NES)&"
     "LF",
     "&SP=10:&-IThey intersect at the point  &+IP&-I (-4,  2,  -4)&LF"},
    {"0054565555050302",
     "Discuss the intersection of the following plane and line. Find the intersection point if possible.&LF"
     "&SP=10: &+I&pi&-I :  -4&+Ix&-I& +& 4&+Iy&-I& -& 5&+Iz&-I& =& -28,           &+IL&-I& :  #NES({X#RWS("
     "L#RW1(5&+Iz&-I& =& 35#RW1)#RW2(-2&+Ix&-I& +& 2&+Iy&-I& =& 6#RW2)#RWS)#NES)&LF",
     "&SP=10:&-IThe line is parallel to the plane.&LF"},
    {"0058998999261010",
     "Discuss the intersection of the following plane and line. Find the intersection point if possible.&LF"
     "&SP=10: &+I&pi&-I :  7&+Ix&-I& -& 4&+Iy&-I& -& 11&+Iz&-I& =& -41,           &+IL&-I& :  #NES({X#RWS("
     "L#RW1(-5&+Ix&-I& +& 5&+Iz&-I& =& 45#RW1)#RW2(2&+Ix&-I& -& 4&+Iy&-I& -& 6&+Iz&-I& =& 2#RW2)#RWS)#NES)"
     "&LF",
     "&SP=10:&-IThe line is parallel to the plane.&LF"},
    {"0061230042000101",
     "Discuss the intersection of the following plane and line according to the values of parameter  &+Ik&"
     "-I.  Find the intersection point (if possible) when parameter is  2.&LF&SP=10: &+I&pi&-I :  -7&+Ix&-I"
     "& +& &+Ik&-I&+Iy&-I& +& &+Iz&-I& =& 22,           &+IL&-I& :  #NES({X#RWS(L#RW1(-5&+Ix&-I& -& &+Iz&-"
     "I& =& 22#RW1)#RW2(&+Ix&-I& +& 2&+Iy&-I& -& &+Iz&-I& =& -24#RW2)#RWS)#NES)&LF",
     "&SP=10:&-ILine parallel to the plane if &+Ik&-I = -4.   They intersect at a point if  &+Ik&-I &!= -4"
     ".&LF&SP=10:When  &+Ik&-I = 2  they intersect at the point  &+IP&-I (-5,  -8,  3)&LF"},
    {"0064565555050302",
     "Discuss the intersection of the following plane and line according to the values of parameter  &+Ia&"
     "-I.  Find the intersection point (if possible) when parameter is  3.&LF&SP=10: &+I&pi&-I :  -4&+Ix&-I"
     "& +& &+Ia&-I&+Iy&-I& +& 2&+Iz&-I& =& -26,           &+IL&-I& :  #NES({X#RWS(L#RW1(-2&+Ix&-I& -& 4&+I"
     "y&-I& +& 3&+Iz&-I& =& -23#RW1)#RW2(-3&+Iy&-I& +& 4&+Iz&-I& =& -20#RW2)#RWS)#NES)&LF",
     "&SP=10:&-ILine lies in the plane if  &+Ia&-I = -5.   They intersect at a point if  &+Ia&-I &!= -5.&L"
     "F&SP=10:When  &+Ia&-I = 3  they intersect at the point  &+IP&-I (4,  0,  -5)&LF"},
    {"0068998999261010",
     "Discuss the intersection of the following plane and line according to the values of parameter  &+Ik&"
     "-I.  Find the intersection point (if possible) when parameter is  5.&LF&SP=10: &+I&pi&-I :  &+Ik&-I&+"
     "Ix&-I& +& 7&+Iy&-I& +& &+Iz&-I& =& 7,           &+IL&-I& :  #NES({X#RWS(L#RW1(-&+Ix&-I& +& 3&+Iy&-I&"
     " -& &+Iz&-I& =& 13#RW1)#RW2(3&+Ix&-I& -& 4&+Iy&-I& -& 2&+Iz&-I& =& 6#RW2)#RWS)#NES)&LF",
     "&SP=10:&-ILine lies in the plane if  &+Ik&-I = -4.   They intersect at a point if  &+Ik&-I &!= -4.&L"
     "F&SP=10:When  &+Ik&-I = 5  they intersect at the point  &+IP&-I (0,  2,  -7)&LF"},
    {"0071230042000101",
     "Discuss the relative position of the following lines. Find the intersection point if possible.&LF&SP"
     "=10:&+IL&-I_1& :& & #COC(&+Ix&-I& +& 4#N)(-4#COC)& =& #COC(&+Iy&-I& +& 6#N)(3#COC)& =& #COC(&+Iz&-I&"
     " -& 7#N)(-5#COC),        &+IL&-I_2& :& & (&+Ix,& y,& z&-I)& =& (-13,& -11,& 5)& +& &+I&mu&-I& (-5,& "
     "-8,& 3)&LF",
     "&SP=10:Intersect at the point  &+IP&-I (-8,  -3,  2)&LF"},
    {"0074565555050302",
     "Discuss the relative position of the following lines. Find the intersection point if possible.&LF&SP"
     "=10:&+IL&-I_1& :& & #COC(&+Ix&-I& +& 2#N)(-9#COC)& =& #COC(&+Iy&-I#N)(-1#COC)& =& #COC(&+Iz&-I& +& 6"
     "#N)(3#COC),        &+IL&-I_2& :& & #COC(&+Ix&-I& +& 7#N)(5#COC)& =& #COC(&+Iy&-I& -& 6#N)(-3#COC)& ="
     "& #COC(&+Iz&-I#N)(-5#COC)&LF",
     "&SP=10:Don't intersect and not parallel.&LF"},
    {"0078998999261010",
     "Discuss the relative position of the following lines. Find the intersection point if possible.&LF&SP"
     "=10:&+IL&-I_1& :& & #NES({X#RWS(L#RW1(7&+Ix&-I& -& 3&+Iy&-I& -& 21& =& 0#RW1)#RW2(8&+Iy&-I& +& 7&+Iz"
     "&-I& +& 112& =& 0#RW2)#RWS)#NES),        &+IL&-I_2& :& & #NES({X#RWS(L#RW1(&+Ix&-I& =& -8& -& 8&+I&m"
     "u&-I#RW1)#RW2(&+Iy&-I& =& -6& -& 4&+I&mu&-I#RW2)#RW3(&+Iz&-I& =& -3& +& 9&+I&mu&-I#RW3)#RWS)#NES)&LF",
     "&SP=10:Don't intersect and not parallel.&LF"},
    {"0081230042000101",
     "Calculate the relative position of the following lines according to the values of parameter  &+Ip&-I"
     ".&LF&SP=10:&+IL&-I_1& :& & #COC(&+Ix&-I& +& 8#N)(-5#COC)& =& #COC(&+Iy&-I& +& 3#N)(-8#COC)& =& #COC("
     "&+Iz&-I& -& 2#N)(3#COC),        &+IL&-I_2& :& & (&+Ix,& y,& z&-I)& =& (-13,& -11,& 5)& +& &+Is&-I& ("
     "&+Ip&-I,& 8,& -3)&LF",
     "&SP=10:Coincident if  &+Ip&-I = 5.&LF&SP=10:Intersect if  &+Ip&-I &!= 5.   Intersect at the point &+"
     "IP&-I (-13,  -11,  5)&LF&SP=10:&+IL&-I_1 : #COC(&+Ix&-I& +& 8#N)(-5#COC)& =& #COC(&+Iy&-I& +& 3#N)(-"
     "8#COC)& =& #COC(&+Iz&-I& -& 2#N)(3#COC),     &+IL&-I_2 : (&+Ix,& y,& z&-I)& =& (-13,& -11,& 5)& +& &"
     "+Is&-I& (5,& 8,& -3)     (&+Ip&-I = 5)&LF"},
    {"0084565555050302",
     "Discuss the relative position of the following lines according to the values of parameter  &+Im&-I  "
     "and calculate the intersection point if possible.&LF&SP=10:&+IL&-I_1& :& & (&+Ix,& y,& z&-I)& =& (-2"
     ",& 3,& -5)& +& &+It&-I& (5,& -3,& -5),        &+IL&-I_2& :& & #COC(&+Ix&-I& +& 4#N)(-3#COC)& =& #COC"
     "(&+Iy&-I& -& &+Im&-I#N)(-1#COC)& =& #COC(&+Iz&-I& -& 6#N)(-6#COC)&LF",
     "&SP=10:Intersect if  &+Im&-I = 7.   Intersect at the point &+IP&-I (-7,  6,  0)&LF&SP=10:Don't inter"
     "sect and not parallel if  &+Im&-I &!= 7.&LF&SP=10:&+IL&-I_1 : (&+Ix,& y,& z&-I)& =& (-2,& 3,& -5)& +"
     "& &+It&-I& (5,& -3,& -5),     &+IL&-I_2 : #COC(&+Ix&-I& +& 4#N)(-3#COC)& =& #COC(&+Iy&-I& -& 7#N)(-1"
     "#COC)& =& #COC(&+Iz&-I& -& 6#N)(-6#COC)     (&+Im&-I = 7)&LF"},
    {"0088998999261010",
     "Discuss the relative position of the following lines according to the values of parameter  &+Ih&-I  "
     "and calculate the intersection point if possible.&LF&SP=10:&+IL&-I_1& :& & #NES({X#RWS(L#RW1(&+Ix&-I"
     "& =& 2& -& 8&+It&-I#RW1)#RW2(&+Iy&-I& =& 1& -& 4&+It&-I#RW2)#RW3(&+Iz&-I& =& 1& +& 9&+It&-I#RW3)#RWS"
     ")#NES),        &+IL&-I_2& :& & #COC(&+Ix&-I& -& 1#N)(-7#COC)& =& #COC(&+Iy&-I& -& 5#N)(-8#COC)& =& #"
     "COC(&+Iz&-I& -& &+Ih&-I#N)(-8#COC)&LF",
     "&SP=10:Intersect if  &+Ih&-I = 18.   Intersect at the point &+IP&-I (-6,  -3,  10)&LF&SP=10:Don't in"
     "tersect and not parallel if  &+Ih&-I &!= 18.&LF&SP=10:&+IL&-I_1 : #NES({X#RWS(L#RW1(&+Ix&-I& =& 2& -"
     "& 8&+It&-I#RW1)#RW2(&+Iy&-I& =& 1& -& 4&+It&-I#RW2)#RW3(&+Iz&-I& =& 1& +& 9&+It&-I#RW3)#RWS)#NES),  "
     "   &+IL&-I_2 : #COC(&+Ix&-I& -& 1#N)(-7#COC)& =& #COC(&+Iy&-I& -& 5#N)(-8#COC)& =& #COC(&+Iz&-I& -& "
     "18#N)(-8#COC)     (&+Ih&-I = 18)&LF"},
};
} // namespace

TEST(SpaceGeometryGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_GA3", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
