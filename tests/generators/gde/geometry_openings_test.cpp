#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
// For each routine and type: how the opening begins, how it ends, and its figure tag.
struct OpeningRow {
    int routine;
    int type;
    const char* begins;
    const char* ends;
    const char* figure;
};

const std::vector<OpeningRow> kOpenings = {
    {1, 0, R"~(A right triangle has an altitude of )~", R"~(& cm length. Calculate:&LF)~", R"~(#IMG('m_TRIANREC.GIF'DXmm=32:DYmm=-25.68:#IMG))~"},
    {1, 1, R"~(The diagonal of a rectangle is )~", R"~(& cm length. Find:&LF)~", R"~(#IMG('m_RECTANGU.GIF'DXmm=35:DYmm=-26:#IMG))~"},
    {1, 2, R"~(A right triangle has an area of )~", R"~(& cm length. Determine:&LF)~", R"~(#IMG('m_TRIANREC.GIF'DXmm=32:DYmm=-25.68:#IMG))~"},
    {1, 3, R"~(Consider a rectangle whose height is )~", R"~(& cm length. Calculate:&LF)~", R"~(#IMG('m_RECTANGU.GIF'DXmm=35:DYmm=-26:#IMG))~"},
    {1, 4, R"~(The isosceles triangle shown below has a base of )~", R"~(& cm length. Find:&LF)~", R"~(#IMG('m_TRI_ISOS.GIF'DXmm=28:DYmm=-26.81:#IMG))~"},
    {1, 5, R"~(A rectangle has an area of )~", R"~(& cm length. Determine:&LF)~", R"~(#IMG('m_RECTANGU.GIF'DXmm=35:DYmm=-26:#IMG))~"},
    {1, 6, R"~(The hypotenuse of a right triangle is )~", R"~(& cm length. Calculate:&LF)~", R"~(#IMG('m_TRIANREC.GIF'DXmm=32:DYmm=-25.68:#IMG))~"},
    {1, 7, R"~(A rectangle has a perimeter of )~", R"~(& cm length. Find:&LF)~", R"~(#IMG('m_RECTANGU.GIF'DXmm=35:DYmm=-26:#IMG))~"},
    {1, 8, R"~(A right triangle has a perimeter of )~", R"~(& cm length. Determine:&LF)~", R"~(#IMG('m_TRIANREC.GIF'DXmm=32:DYmm=-25.68:#IMG))~"},
    {1, 9, R"~(The altitude of the isosceles triangle shown below is )~", R"~(& cm length. Calculate:&LF)~", R"~(#IMG('m_TRI_ISOS.GIF'DXmm=28:DYmm=-26.81:#IMG))~"},
    {2, 0, R"~(Consider the line segments shown below: &+IAB&-I& =& )~", R"~(& cm. Calculate:&LF)~", R"~(#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG))~"},
    {2, 1, R"~(Consider the similar triangles shown below with line segments &+IAB&-I& =& )~", R"~(& cm. Find:&LF)~", R"~(#IMG('m_seme2trian.gif'DXmm=40:DYmm=-21.6:#IMG))~"},
    {2, 2, R"~(Consider the line segments shown below: &+IBD&-I& =& )~", R"~(& cm. Determine:&LF)~", R"~(#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG))~"},
    {2, 3, R"~(Consider the line segments shown below: &+IAC&-I& =& )~", R"~(& cm. Calculate:&LF)~", R"~(#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG))~"},
    {2, 4, R"~(Find the area of triangle &+IDEF&-I if the area of similar triangle &+IABC&-I is )~", R"~()~", R"~(#IMG('m_seme2trian.gif'DXmm=40:DYmm=-21.6:#IMG))~"},
    {2, 5, R"~(Consider the similar triangles shown below with line segments: &+IAC&-I& =& )~", R"~(& cm. Determine:&LF)~", R"~(#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG))~"},
    {2, 6, R"~(Consider the similar triangles shown below with line segments: &+IAD&-I& =& )~", R"~(& cm. Calculate:&LF)~", R"~(#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG))~"},
    {2, 7, R"~(Find the length of line segment &+IDF&-I if the area of triangle &+IABC&-I is )~", R"~()~", R"~(#IMG('m_seme2trian.gif'DXmm=40:DYmm=-21.6:#IMG))~"},
    {2, 8, R"~(Consider the similar triangles shown below with line segments:  &+IAC&-I& =& )~", R"~(& cm. Determine:&LF)~", R"~(#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG))~"},
    {3, 0, R"~(A square has a side of )~", R"~( cm length. Calculate:&LF)~", R"~(#IMG('m_CUADRADO.GIF'DXmm=21.056:DYmm=-20.992:#IMG))~"},
    {3, 1, R"~(The side of a rhombus is )~", R"~(& cm length. Find:&LF)~", R"~(#IMG('m_ROMBO.GIF'DXmm=13.8:DYmm=-21.72:#IMG))~"},
    {3, 2, R"~(Consider a regular hexagon whose side is )~", R"~( cm length. Determine:&LF)~", R"~(#IMG('m_HEXAGONO.GIF'DXmm=21.72:DYmm=-21.18:#IMG))~"},
    {3, 3, R"~(An equilateral triangle has a side of )~", R"~( cm length. Calculate:&LF)~", R"~(#IMG('m_TRI_EQUI.GIF'DXmm=22.8:DYmm=-20.976:#IMG))~"},
    {3, 4, R"~(Consider a right trapezoid whose bases are )~", R"~( cm^2. Find:&LF)~", R"~(#IMG('m_TRAPEREC.GIF'DXmm=24:DYmm=-21:#IMG))~"},
    {3, 5, R"~(The area of a square is )~", R"~( cm^2. Determine:&LF)~", R"~(#IMG('m_CUADRADO.GIF'DXmm=21.056:DYmm=-20.992:#IMG))~"},
    {3, 6, R"~(A rhombus has diagonals of )~", R"~(& cm length. Calculate:&LF)~", R"~(#IMG('m_ROMBO.GIF'DXmm=13.8:DYmm=-21.72:#IMG))~"},
    {3, 7, R"~(Consider an isosceles triangle. The base (non-equal side) is )~", R"~(& cm length each. Find:&LF)~", R"~(#IMG('m_TRI_ISOS.GIF'DXmm=22:DYmm=-21.065:#IMG))~"},
    {3, 8, R"~(The area of an equilateral triangle is )~", R"~( cm^2. Determine:&LF)~", R"~(#IMG('m_TRI_EQUI.GIF'DXmm=22.8:DYmm=-20.976:#IMG))~"},
    {3, 9, R"~(A trapezoid has bases of )~", R"~()~", R"~(#IMG('m_TRAPECIO.GIF'DXmm=24:DYmm=-21.06:#IMG))~"},
    {3, 10, R"~(Consider a rectangle whose base is )~", R"~( cm length. Find:&LF)~", R"~(#IMG('m_RECTANGU.GIF'DXmm=28:DYmm=-20.8:#IMG))~"},
    {3, 11, R"~(A rhomboid has a base of )~", R"~()~", R"~(#IMG('m_PARALELO.GIF'DXmm=29.52:DYmm=-20.8:#IMG))~"},
    {3, 12, R"~(An isosceles triangle has a base (non-equal side) of )~", R"~(& cm^2. Calculate:&LF)~", R"~(#IMG('m_TRI_ISOS.GIF'DXmm=22:DYmm=-21.065:#IMG))~"},
    {3, 13, R"~(Consider a right trapezoid whose bases are )~", R"~(& cm. Find:&LF)~", R"~(#IMG('m_TRAPEREC.GIF'DXmm=24:DYmm=-21:#IMG))~"},
    {3, 14, R"~(Consider a trapezoid whose bases are )~", R"~()~", R"~(#IMG('m_TRAPECIO.GIF'DXmm=24:DYmm=-21.06:#IMG))~"},
    {3, 15, R"~(The area of a rectangle is )~", R"~( cm length. Calculate:&LF)~", R"~(#IMG('m_RECTANGU.GIF'DXmm=28:DYmm=-20.8:#IMG))~"},
    {3, 16, R"~(A regular octagon has a side of )~", R"~(& cm length. Find:&LF)~", R"~(#IMG('m_OCTAGONO.GIF'DXmm=19.314:DYmm=-21.75:#IMG))~"},
    {3, 17, R"~(A triangle has a base of )~", R"~()~", R"~(#IMG('m_TRI_ESCA.GIF'DXmm=23.2:DYmm=-21.112:#IMG))~"},
    {4, 0, R"~(The radius of a circle is )~", R"~( cm length. Calculate:&LF)~", R"~(#IMG('m_CIRCULO.GIF'DXmm=21.808:DYmm=-21.866:#IMG))~"},
    {4, 1, R"~(A circular sector has a radius of )~", R"~()~", R"~(#IMG('m_SECTOR.GIF'DXmm=21:DYmm=-21:#IMG))~"},
    {4, 2, R"~(A circular trapezoid has radii of )~", R"~()~", R"~(#IMG('m_TRAPECIR.GIF'DXmm=24:DYmm=-21:#IMG))~"},
    {4, 3, R"~(The perimeter of a circle is )~", R"~( cm. Calculate:&LF)~", R"~(#IMG('m_CIRCULO.GIF'DXmm=21.808:DYmm=-21.866:#IMG))~"},
    {4, 4, R"~(An annulus has radii of )~", R"~()~", R"~(#IMG('m_CORONA.GIF'DXmm=22.04:DYmm=-21.982:#IMG))~"},
    {4, 5, R"~(Consider a circular sector whose area is )~", R"~()~", R"~(#IMG('m_SECTOR.GIF'DXmm=21:DYmm=-21:#IMG))~"},
    {4, 6, R"~(A circle has an area of )~", R"~( cm^2. Calculate:&LF)~", R"~(#IMG('m_CIRCULO.GIF'DXmm=21.808:DYmm=-21.866:#IMG))~"},
    {4, 7, R"~(Consider an annulus whose major radius is )~", R"~()~", R"~(#IMG('m_CORONA.GIF'DXmm=20.9:DYmm=-20.845:#IMG))~"},
    {5, 0, R"~(The edge of a cube is )~", R"~( cm length. Calculate:&LF)~", R"~(#IMG('m_CUBO.GIF'DXmm=20.898:DYmm=-21.006:#IMG))~"},
    {5, 1, R"~(The base of a prism is a square whose edge is )~", R"~( cm^3. Find:&LF)~", R"~()~"},
    {5, 2, R"~(The base of a pyramid is a square whose edge is )~", R"~( cm. Determine:&LF)~", R"~(#IMG('m_PIRAMIDE.GIF'DXmm=20.304:DYmm=-21.006:#IMG))~"},
    {5, 3, R"~(A cube has a volume of )~", R"~( cm^3. Calculate:&LF)~", R"~(#IMG('m_CUBO.GIF'DXmm=20.898:DYmm=-21.006:#IMG))~"},
    {5, 4, R"~(The edges of a right prism are )~", R"~(& cm. Find:&LF)~", R"~(#IMG('m_ORTOEDRO.GIF'DXmm=15.876:DYmm=-20.952:#IMG))~"},
    {5, 5, R"~(A pyramid has a square base, its altitude is )~", R"~( cm^3. Determine:&LF)~", R"~(#IMG('m_PIRAMIDE.GIF'DXmm=20.304:DYmm=-21.006:#IMG))~"},
    {5, 6, R"~(The surface area of a cube is )~", R"~( cm^2. Calculate:&LF)~", R"~(#IMG('m_CUBO.GIF'DXmm=20.898:DYmm=-21.006:#IMG))~"},
    {5, 7, R"~(A right prism has a base whose edges are )~", R"~(& cm^3. Find:&LF)~", R"~(#IMG('m_ORTOEDRO.GIF'DXmm=15.876:DYmm=-20.952:#IMG))~"},
    {5, 8, R"~(The base of a pyramid is a square whose edge is )~", R"~( cm^3. Determine:&LF)~", R"~(#IMG('m_PIRAMIDE.GIF'DXmm=20.304:DYmm=-21.006:#IMG))~"},
    {5, 9, R"~(The base of a prism is a square whose edge is )~", R"~( cm length. Calculate:&LF)~", R"~()~"},
    {5, 10, R"~(The base of a prism is a rectangle whose edges are )~", R"~(& cm length. Find:&LF)~", R"~(#IMG('m_ORTOEDRO.GIF'DXmm=15.876:DYmm=-20.952:#IMG))~"},
    {5, 11, R"~(The base of a prism is a regular hexagon whose edge is )~", R"~( cm. Determine:&LF)~", R"~()~"},
    {6, 0, R"~(A cylinder has a radius of )~", R"~( cm. Calculate:&LF)~", R"~(#IMG('m_CILINDRO.GIF'DXmm=17.766:DYmm=-20.952:#IMG))~"},
    {6, 1, R"~(The radius of a cone is )~", R"~( cm. Find:&LF)~", R"~(#IMG('m_CONO.GIF'DXmm=19.215:DYmm=-20.916:#IMG))~"},
    {6, 2, R"~(A sphere has a radius of )~", R"~( cm. Determine:&LF)~", R"~(#IMG('m_ESFERA.GIF'DXmm=21.147:DYmm=-20.976:#IMG))~"},
    {6, 3, R"~(The radius of a cylinder is )~", R"~( cm^3. Calculate:&LF)~", R"~(#IMG('m_CILINDRO.GIF'DXmm=17.766:DYmm=-20.952:#IMG))~"},
    {6, 4, R"~(A cone has a radius of )~", R"~( cm^3. Find:&LF)~", R"~(#IMG('m_CONO.GIF'DXmm=19.215:DYmm=-20.916:#IMG))~"},
    {6, 5, R"~(The volume of a sphere is )~", R"~( cm^3. Determine:&LF)~", R"~(#IMG('m_ESFERA.GIF'DXmm=21.147:DYmm=-20.976:#IMG))~"},
    {6, 6, R"~(A cylinder has an altitude of )~", R"~( cm^3. Calculate:&LF)~", R"~(#IMG('m_CILINDRO.GIF'DXmm=17.766:DYmm=-20.952:#IMG))~"},
    {6, 7, R"~(The slant height of a cone is )~", R"~( cm. Find:&LF)~", R"~(#IMG('m_CONO.GIF'DXmm=19.215:DYmm=-20.916:#IMG))~"},
    {6, 8, R"~(A sphere has a surface area of )~", R"~( cm^2. Determine:&LF)~", R"~(#IMG('m_ESFERA.GIF'DXmm=21.147:DYmm=-20.976:#IMG))~"},
};

int TypeCount(int routine) {
    static const int counts[] = {0, 10, 9, 18, 8, 12, 9};
    return counts[routine];
}
} // namespace

TEST(BasicGeometryOpenings, EveryTypeOpensWithItsWordsAndShowsItsFigure) {
    GeneratorHub hub;
    ASSERT_EQ(kOpenings.size(), 66u);
    for (const auto& row : kOpenings) {
        for (int round = 0; round < 20; ++round) {
            const int seed = row.type + TypeCount(row.routine) * round * 7;
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_GDE", {row.routine, round, seed, round, 1, 1});
            // A problem whose opening is its only question starts on the mark of a single line.
            const std::string begins = row.begins;
            const bool opens = p.statement.rfind(begins, 0) == 0 || p.statement.rfind("&SP=3:" + begins, 0) == 0;
            EXPECT_TRUE(opens) << p.code << ": " << p.statement;
            EXPECT_NE(p.statement.find(row.ends), std::string::npos) << p.code << ": " << p.statement;
            if (*row.figure != 0) {
                EXPECT_NE(p.statement.find(row.figure), std::string::npos) << p.code << ": " << p.statement;
            } else {
                EXPECT_EQ(p.statement.find("#IMG("), std::string::npos) << p.code;
            }
        }
    }
}
