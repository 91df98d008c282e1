#include <string>

#include <gtest/gtest.h>

#include "generators/hub.h"

// Whole texts of chosen codes, checked by hand once: any change to a draw, a wording or
// the layout shows here.
namespace {
void ExpectText(const std::string& code, const std::string& statement, const std::string& solution) {
    GeneratorHub hub;
    std::string s, t;
    hub.RunGenerator("KVOL_MATH_GDE", code, s, t);
    EXPECT_EQ(s, statement) << code;
    EXPECT_EQ(t, solution) << code;
}
} // namespace

TEST(BasicGeometryGolden, PythagoreanTheorem) {
    ExpectText("0011230045070301",
               R"~(A rectangle has an area of 60& cm^2 and a base of 12& cm length. Determine:&LF&SP=5:&+Ba)&-B  Height &+Ih&-I.&SP=66:#IMG('m_RECTANGU.GIF'DXmm=35:DYmm=-26:#IMG)&LF&SP=5:&+Bb)&-B  Diagonal &+Id&-I.&LF&SP=5:&+Bc)&-B  Perimeter.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  5 cm;    &+Bb)&-B  13 cm;    &+Bc)&-B  34 cm.&LF)~");
    ExpectText("0010011234010201",
               R"~(The isosceles triangle shown below has a base of 30& cm and equal sides of 25& cm length. Find:&LF&SP=5:&+Ba)&-B  Length of altitude &+Ih&-I.&SP=66:#IMG('m_TRI_ISOS.GIF'DXmm=28:DYmm=-26.81:#IMG)&LF&SP=5:&+Bb)&-B  Area.&LF&SP=5:&+Bc)&-B  Perimeter.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  20 cm;    &+Bb)&-B  300 cm^2;    &+Bc)&-B  80 cm.&LF)~");
    ExpectText("0012220008260505",
               R"~(A right triangle has a perimeter of 48& cm and one of its catheti is 16& cm length. Determine:&LF&SP=5:&+Ba)&-B  Length of the other cathetus &+Ic&-I.&SP=66:#IMG('m_TRIANREC.GIF'DXmm=32:DYmm=-25.68:#IMG)&LF&SP=5:&+Bb)&-B  Hypotenuse &+Ia&-I.&LF&SP=5:&+Bc)&-B  Area.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  12 cm;    &+Bb)&-B  20 cm;    &+Bc)&-B  96 cm^2.&LF)~");
}

TEST(BasicGeometryGolden, Similarity) {
    ExpectText("0020450123000101",
               R"~(Consider the similar triangles shown below with line segments: &+IAD&-I& =& 70& cm,  &+IAB&-I& =& 40& cm,  &+IAE&-I& =& 66&.5& cm. Calculate:&LF&SP=5:&+Ba)&-B  Length of &+IAC&-I.&SP=66:#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG)&LF&SP=5:&+Bb)&-B  Length of &+IBD&-I.&LF&SP=5:&+Bc)&-B  Length of &+ICE&-I.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  38 cm;    &+Bb)&-B  30 cm;    &+Bc)&-B  28&.5 cm.&LF)~");
    ExpectText("0028990004040302",
               R"~(&SP=3:Find the area of triangle &+IDEF&-I if the area of similar triangle &+IABC&-I is 144& cm^2,  &+IAB&-I& =& 18& cm and  &+IDE&-I& =& 30& cm.&SP=69:#IMG('m_seme2trian.gif'DXmm=40:DYmm=-21.6:#IMG)&LF&LF&LF&LF&LF)~",
               R"~(&SP=10: 400 cm^2.&LF)~");
    ExpectText("0021238887120303",
               R"~(&SP=3:Find the area of triangle &+IDEF&-I if the area of similar triangle &+IABC&-I is 352& cm^2,  &+IAB&-I& =& 34& cm and  &+IDE&-I& =& 51& cm.&SP=69:#IMG('m_seme2trian.gif'DXmm=40:DYmm=-21.6:#IMG)&LF&LF&LF&LF&LF)~",
               R"~(&SP=10: 792 cm^2.&LF)~");
}

TEST(BasicGeometryGolden, StraightShapes) {
    ExpectText("0030172017000101",
               R"~(The side of a rhombus is 15& cm and its diagonal &+ID&-I is 24& cm length. Find:&LF&SP=5:&+Ba)&-B  Diagonal &+Id&-I.&SP=75:#IMG('m_ROMBO.GIF'DXmm=13.8:DYmm=-21.72:#IMG)&LF&SP=5:&+Bb)&-B  Perimeter.&LF&SP=5:&+Bc)&-B  Area.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  18 cm;    &+Bb)&-B  60 cm;    &+Bc)&-B  216 cm^2.&LF)~");
    ExpectText("0032001234030201",
               R"~(Consider a rectangle whose base is 15& cm and whose diagonal is 25 cm length. Find:&LF&SP=5:&+Ba)&-B  Height &+Ih&-I.&SP=75:#IMG('m_RECTANGU.GIF'DXmm=28:DYmm=-20.8:#IMG)&LF&SP=5:&+Bb)&-B  Perimeter.&LF&SP=5:&+Bc)&-B  Area.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  20 cm;    &+Bb)&-B  70 cm;    &+Bc)&-B  300 cm^2.&LF)~");
    ExpectText("0035550203100908",
               R"~(The area of a square is 49 cm^2. Determine:&LF&SP=5:&+Ba)&-B  Length of the side &+Il&-I.&SP=75:#IMG('m_CUADRADO.GIF'DXmm=21.056:DYmm=-20.992:#IMG)&LF&SP=5:&+Bb)&-B  Perimeter.&LF&SP=5:&+Bc)&-B  Diagonal &+Id&-I.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  7 cm;    &+Bb)&-B  28 cm;    &+Bc)&-B  9&.9 cm.&LF)~");
}

TEST(BasicGeometryGolden, CurvedShapes) {
    ExpectText("0041230005000101",
               R"~(Consider a circular sector whose area is 10&pi& cm^2 and whose angle &alfa is 25°. Calculate:&LF&SP=3:Radius &+Ir&-I.&SP=75:#IMG('m_SECTOR.GIF'DXmm=21:DYmm=-21:#IMG)&LF&LF&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  12 cm.&LF)~");
    ExpectText("0040011117020201",
               R"~(Consider a circular sector whose area is 365&pi& cm^2 and whose angle &alfa is 146°. Calculate:&LF&SP=3:Radius &+Ir&-I.&SP=75:#IMG('m_SECTOR.GIF'DXmm=21:DYmm=-21:#IMG)&LF&LF&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  30 cm.&LF)~");
    ExpectText("0048998883150707",
               R"~(The perimeter of a circle is 58&pi cm. Calculate:&LF&SP=5:&+Ba)&-B  Radius &+Ir&-I.&SP=75:#IMG('m_CIRCULO.GIF'DXmm=21.808:DYmm=-21.866:#IMG)&LF&SP=5:&+Bb)&-B  Area.&LF&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  29 cm;    &+Bb)&-B  2642&.08 cm^2.&LF)~");
}

TEST(BasicGeometryGolden, PlaneSolids) {
    ExpectText("0050001200010101",
               R"~(The edge of a cube is 24 cm length. Calculate:&LF&SP=5:&+Ba)&-B  Surface area.&SP=75:#IMG('m_CUBO.GIF'DXmm=20.898:DYmm=-21.006:#IMG)&LF&SP=5:&+Bb)&-B  Volume.&LF&SP=5:&+Bc)&-B  Space diagonal &+ID&-I.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  3456 cm^2;    &+Bb)&-B  13824 cm^3;    &+Bc)&-B  41&.57 cm.&LF)~");
    ExpectText("0052223333060403",
               R"~(The base of a prism is a square whose edge is 12& cm and its altitude is 6 cm length. Calculate:&LF&SP=5:&+Ba)&-B  Space diagonal.&LF&SP=5:&+Bb)&-B  Surface area.&LF&SP=5:&+Bc)&-B  Volume.&LF)~",
               R"~(&SP=10: &+Ba)&-B  18 cm;    &+Bb)&-B  576 cm^2;    &+Bc)&-B  864 cm^3.&LF)~");
    ExpectText("0058000011080808",
               R"~(The base of a prism is a regular hexagon whose edge is 8& cm and its altitude is 15 cm. Determine:&LF&SP=5:&+Ba)&-B  Surface area.&LF&SP=5:&+Bb)&-B  Volume.&LF)~",
               R"~(&SP=10: &+Ba)&-B  1052&.55 cm^2;    &+Bb)&-B  2494&.15 cm^3.&LF)~");
}

TEST(BasicGeometryGolden, CurvedSolids) {
    ExpectText("0060007000010101",
               R"~(The slant height of a cone is 15& cm and its radius is 9 cm. Find:&LF&SP=5:&+Ba)&-B  Length of its altitude &+Ih&-I.&SP=75:#IMG('m_CONO.GIF'DXmm=19.215:DYmm=-20.916:#IMG)&LF&SP=5:&+Bb)&-B  Surface area.&LF&SP=5:&+Bc)&-B  Volume.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  12 cm;    &+Bb)&-B  678&.58 cm^2;    &+Bc)&-B  1017&.88 cm^3.&LF)~");
    ExpectText("0063331234020201",
               R"~(The radius of a cone is 20& cm and its altitude is 15 cm. Find:&LF&SP=5:&+Ba)&-B  Slant height &+Ig&-I.&SP=75:#IMG('m_CONO.GIF'DXmm=19.215:DYmm=-20.916:#IMG)&LF&SP=5:&+Bb)&-B  Surface area.&LF&SP=5:&+Bc)&-B  Volume.&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  25 cm;    &+Bb)&-B  2827&.43 cm^2;    &+Bc)&-B  6283&.19 cm^3.&LF)~");
    ExpectText("0064445678250505",
               R"~(A sphere has a surface area of 900&pi cm^2. Determine:&LF&SP=5:&+Ba)&-B  Radius &+Ir&-I.&SP=75:#IMG('m_ESFERA.GIF'DXmm=21.147:DYmm=-20.976:#IMG)&LF&SP=5:&+Bb)&-B  Volume.&LF&LF&LF&LF)~",
               R"~(&SP=10: &+Ba)&-B  15 cm;    &+Bb)&-B  14137&.17 cm^3.&LF)~");
}
