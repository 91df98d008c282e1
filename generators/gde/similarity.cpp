#include "generators/gde/gde_problem.h"
#include "generators/gde/gde_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"

namespace {
const char* const kThales = "#IMG('M_TALES.GIF'DXmm=31.36:DYmm=-22.8:#IMG)";
const char* const kTwoTriangles = "#IMG('m_seme2trian.gif'DXmm=40:DYmm=-21.6:#IMG)";
constexpr int kTypes = 9;
// Every length is a whole number of half centimetres.
constexpr double kUnit = 0.5;

std::string Segment(const std::string& name) { return "Length of " + Label(name); }
} // namespace

// Types: 0, 2, 3, 5, 6, 8 the Thales figure, three segments given and the others asked;
// 1 the two triangles, three sides of one and a side of the other; 4 the area of the
// large triangle from the small one's and two matching sides; 7 a side from the two
// areas and the matching side.
// Two similar triangles in the ratio q : p. In the Thales figure the small triangle is
// ABC and the large one ADE (B, D on one ray from A; C, E on the other; BC parallel to
// DE). In the figure of two triangles, ABC is the small one and DEF the large one, with
// AB, BC, AC matching DE, EF, DF. The sides of the small triangle are m1·p, m2·p, k·p
// units, those of the large one m1·q, m2·q, k·q units (in the second figure DE, DF, EF
// take the values of AD, AE and the Thales DE); areas are given as m2·p² and
// m2·q² square centimetres, in the same ratio (q/p)².
GeometryProblem BuildSimilarityProblem(GeneratorWorkspace& ws) {
    double m1 = 0, m2 = 0, k = 0, p = 0, q = 0;
    RetryBound bound;
    while (true) {
        m1 = RandomInRange(ws, 9, 23, 1, 1);
        m2 = RandomInRange(ws, 9, 23, 1, 1);
        k = RandomInRange(ws, 5, 10, 1, 1);
        p = RandomInRange(ws, 3, 4, 1, 1);
        q = RandomInRange(ws, 5, 7, 1, 1);
        // A true triangle: no side as long as the other two together.
        if (k > std::abs(m1 - m2)) break;
        bound.Next();
    }
    const double ab = m1 * p * kUnit, ac = m2 * p * kUnit, bc = k * p * kUnit;
    const double ad = m1 * q * kUnit, ae = m2 * q * kUnit, de = k * q * kUnit;
    const double bd = ad - ab, ce = ae - ac;
    const double smallArea = m2 * p * p, largeArea = m2 * q * q;
    const auto m = [&](double v) { return MeasureText(ws, v); };
    const auto given = [&](const char* name, double v) { return Label(name) + "& =& " + m(v); };
    GeometryProblem g;
    g.type = ws.Seed % kTypes;
    g.shape = {{"AB", ab}, {"AC", ac}, {"BC", bc}, {"ratio", q / p}, {"area", smallArea}};
    switch (g.type) {
    case 0:
        g.opening = "Consider the line segments shown below: " + given("AB", ab) + "& cm,  " + given("BD", bd) +
                    "& cm,  " + given("AC", ac) + "& cm. Calculate:&LF";
        g.figure = kThales;
        g.parts = {{Segment("CE"), ce, kCm}, {Segment("AE"), ae, kCm}};
        break;
    case 1:
        g.opening = "Consider the similar triangles shown below with line segments " + given("AB", ab) + "& cm,  " +
                    given("BC", bc) + "& cm,  " + given("AC", ac) + "& cm,  " + given("DE", ad) + "& cm. Find:&LF";
        g.figure = kTwoTriangles;
        g.parts = {{Segment("EF"), de, kCm}, {Segment("DF"), ae, kCm}};
        break;
    case 2:
        g.opening = "Consider the line segments shown below: " + given("BD", bd) + "& cm,  " + given("AB", ab) +
                    "& cm,  " + given("BC", bc) + "& cm. Determine:&LF";
        g.figure = kThales;
        g.parts = {{Segment("AD"), ad, kCm}, {Segment("DE"), de, kCm}};
        break;
    case 3:
        g.opening = "Consider the line segments shown below: " + given("AC", ac) + "& cm,  " + given("CE", ce) +
                    "& cm,  " + given("BC", bc) + "& cm. Calculate:&LF";
        g.figure = kThales;
        g.parts = {{Segment("DE"), de, kCm}, {Segment("AE"), ae, kCm}};
        break;
    case 4:
        g.opening = "Find the area of triangle &+IDEF&-I if the area of similar triangle &+IABC&-I is " +
                    GivenCm2(ws, smallArea) + ",  " + given("AB", ab) + "& cm and  " + given("DE", ad) + "& cm";
        g.openingIsQuestion = true;
        g.figure = kTwoTriangles;
        g.parts = {{"Area", largeArea, kCm2}};
        break;
    case 5:
        g.opening = "Consider the similar triangles shown below with line segments: " + given("AC", ac) + "& cm,  " +
                    given("AE", ae) + "& cm,  " + given("DE", de) + "& cm. Determine:&LF";
        g.figure = kThales;
        g.parts = {{Segment("BC"), bc, kCm}, {Segment("CE"), ce, kCm}};
        break;
    case 6:
        g.opening = "Consider the similar triangles shown below with line segments: " + given("AD", ad) + "& cm,  " +
                    given("AB", ab) + "& cm,  " + given("AE", ae) + "& cm. Calculate:&LF";
        g.figure = kThales;
        g.parts = {{Segment("AC"), ac, kCm}, {Segment("BD"), bd, kCm}, {Segment("CE"), ce, kCm}};
        break;
    case 7:
        g.opening = "Find the length of line segment &+IDF&-I if the area of triangle &+IABC&-I is " +
                    GivenCm2(ws, smallArea) + ", the area of triangle &+IDEF&-I is " + GivenCm2(ws, largeArea) +
                    " and  " + given("AC", ac) + "& cm";
        g.openingIsQuestion = true;
        g.figure = kTwoTriangles;
        g.parts = {{Segment("DF"), ae, kCm}};
        break;
    default:
        g.opening = "Consider the similar triangles shown below with line segments:  " + given("AC", ac) + "& cm,  " +
                    given("CE", ce) + "& cm,  " + given("AB", ab) + "& cm. Determine:&LF";
        g.figure = kThales;
        g.parts = {{Segment("BD"), bd, kCm}, {Segment("AD"), ad, kCm}};
        break;
    }
    return g;
}

// Routine 2: similar triangles, in the Thales figure and side by side.
void Similarity(GeneratorWorkspace& ws) {
    WriteGeometryProblem(ws, BuildSimilarityProblem(ws), {"&SP=66:", "&SP=69:", false});
}
