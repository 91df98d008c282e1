#include <gtest/gtest.h>

#include "mathservices/poly_markup.h"

TEST(PolynomialToMarkup, TextbookForm) {
    EXPECT_EQ(PolynomialToMarkup(0, 0, 0, 0, 0, ""), "0");
    EXPECT_EQ(PolynomialToMarkup(0, 0, 0, 1, 0, ""), "&+Ix&-I");
    EXPECT_EQ(PolynomialToMarkup(0, 0, 0, 0, 1, ""), "1");
    EXPECT_EQ(PolynomialToMarkup(0, 0, 1, -1, 0, ""), "&+Ix&-I^2& -& &+Ix&-I");
    EXPECT_EQ(PolynomialToMarkup(0, 0, 0, 1.5, 0, ""), "1&.5&+Ix&-I");
    EXPECT_EQ(PolynomialToMarkup(0, 0, -1, 0, 0, ""), "-&+Ix&-I^2");
    EXPECT_EQ(PolynomialToMarkup(0, -1, 0, 2, -1, ""), "-&+Ix&-I^3& +& 2&+Ix&-I& -& 1");
    EXPECT_EQ(PolynomialToMarkup(3, 0, 0, 0, 0, "&+It&-I"), "3&+It&-I^4");
}

TEST(PolyWorkToMarkup, FromDegreeNineDown) {
    PolyWork p;
    EXPECT_EQ(PolyWorkToMarkup(p, "&+Ix&-I"), "0");
    p.coefficients[5] = 2;
    p.coefficients[1] = -1;
    p.coefficients[0] = 1;
    EXPECT_EQ(PolyWorkToMarkup(p, "&+Ix&-I"), "2&+Ix&-I^5& -& &+Ix&-I& +& 1");
    p.Clear();
    p.coefficients[2] = -3;
    p.texts[1] = "&+Ia&-I";
    // A negative first term keeps its leading "- ".
    EXPECT_EQ(PolyWorkToMarkup(p, "&+Ix&-I"), "-& 3&+Ix&-I^2& +& &+Ia&-I&+Ix&-I");
}

TEST(LinearFormToMarkup, GeneralAndExplicit) {
    EXPECT_EQ(LinearFormToMarkup(2, -1, 0, 3, true), "2&+Ix&-I& -& &+Iy&-I& +& 3& =& 0");
    EXPECT_EQ(LinearFormToMarkup(0, 1, -4, 0, true), "&+Iy&-I& -& 4&+Iz&-I& =& 0");
    EXPECT_EQ(LinearFormToMarkup(-1, 2, 1, 5, false), "-&+Ix&-I& +& 2&+Iy&-I& +& &+Iz&-I& =& 5");
    EXPECT_EQ(LinearFormToMarkup(Coefficient(0, "-&+Ia&-I"), 1, 0, 1, true),
              "-&+Ia&-I&+Ix&-I& +& &+Iy&-I& +& 1& =& 0");
    EXPECT_EQ(LinearFormToMarkup(1.5, 0, 0, -1, true), "1&.5&+Ix&-I& -& 1& =& 0");
}

TEST(VectorFormToMarkup, FormsOfAPlaneLine) {
    MathWorkspace ws;
    LineData line;
    line.point = {1, -2, 0};
    line.direction = {3, 4, 0};
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::Vector, "&lambda"),
              "(&+Ix,& y&-I)& =& (1,& -2)& +& &lambda& (3,& 4)");
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::Parametric, "&lambda"),
              "#NES({X#RWS(L#RW1(&+Ix&-I& =& 1& +& 3&lambda#RW1)#RW2(&+Iy&-I& =& -2& +& 4&lambda#RW2)#RWS)#NES)");
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::Continuous, "&lambda"),
              "#COC(&+Ix&-I& -& 1#N)(3#COC)& =& #COC(&+Iy&-I& +& 2#N)(4#COC)");
    // 4x - 3y - 10 = 0 passes through (1, -2) with direction (3, 4).
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::General, "&lambda"),
              "4&+Ix&-I& -& 3&+Iy&-I& -& 10& =& 0");
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::SlopeIntercept, "&lambda"),
              "&+Iy&-I& =& #COC(4#N)(3#COC)&+Ix&-I& -& #COC(10#N)(3#COC)");
    line.direction = {0, 1, 0};
    // A vertical line has no slope: the general form stands instead.
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::SlopeIntercept, "t"), "&+Ix&-I& -& 1& =& 0");
}

TEST(VectorFormToMarkup, SpaceLineHasThreeRows) {
    MathWorkspace ws;
    LineData line;
    line.dimension = 3;
    line.point = {1, 0, 2};
    line.direction = {1, -1, 2};
    const std::string parametric = VectorFormToMarkup(ws, line, LineForm::Parametric, "t");
    EXPECT_NE(parametric.find("#RW3(&+Iz&-I& =& 2& +& 2t#RW3)"), std::string::npos) << parametric;
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::Vector, "t"),
              "(&+Ix,& y,& z&-I)& =& (1,& 0,& 2)& +& t& (1,& -1,& 2)");
}

TEST(ConicToMarkup, CircleAndEllipse) {
    MathWorkspace ws;
    ConicData circle{ConicKind::Circle, 2, -3, 16, 0, false};
    EXPECT_EQ(ConicToMarkup(ws, circle, ConicStyle::Reduced),
              "(&+Ix&-I& -& 2)^2& +& (&+Iy&-I& +& 3)^2& =& 16");
    EXPECT_EQ(ConicToMarkup(ws, circle, ConicStyle::General),
              "&+Ix&-I^2& +& &+Iy&-I^2& -& 4&+Ix&-I& +& 6&+Iy&-I& -& 3& =& 0");
    ConicData ellipse{ConicKind::Ellipse, 0, 0, 25, 9, false};
    EXPECT_EQ(ConicToMarkup(ws, ellipse, ConicStyle::Reduced),
              "#COC( &+Ix&-I^2#N)(25#COC)& +& #COC( &+Iy&-I^2#N)(9#COC)& =& 1");
}

namespace {
// The left side minus the right side of a conic's general form at a point.
double GeneralValue(const ConicGeneral& g, double x, double y) {
    return g.A * x * x + g.C * y * y + g.D * x + g.E * y + g.F;
}
} // namespace

TEST(ConicToMarkup, GeneralFormVanishesOnTheCurve) {
    MathWorkspace ws;
    for (int h = -3; h <= 3; h += 3) {
        for (int k = -2; k <= 2; k += 2) {
            const ConicData circle{ConicKind::Circle, double(h), double(k), 25, 0, false};
            const ConicGeneral c = ConicGeneralCoefficients(ws, circle);
            EXPECT_EQ(GeneralValue(c, h + 3, k + 4), 0);
            EXPECT_EQ(GeneralValue(c, h - 5, k), 0);
            const ConicData ellipse{ConicKind::Ellipse, double(h), double(k), 25, 9, false};
            const ConicGeneral e = ConicGeneralCoefficients(ws, ellipse);
            EXPECT_EQ(GeneralValue(e, h + 5, k), 0);
            EXPECT_EQ(GeneralValue(e, h, k - 3), 0);
            EXPECT_GT(e.A, 0);
            for (bool vertical : {false, true}) {
                const ConicData hyperbola{ConicKind::Hyperbola, double(h), double(k), 9, 16, vertical};
                const ConicGeneral g = ConicGeneralCoefficients(ws, hyperbola);
                // A vertex, and the point 5, 16/3 off the centre: 25/9 - 16/9 = 1.
                if (!vertical) {
                    EXPECT_EQ(GeneralValue(g, h + 3, k), 0);
                    EXPECT_NEAR(GeneralValue(g, h + 5, k + 16.0 / 3), 0, 1e-9);
                } else {
                    EXPECT_EQ(GeneralValue(g, h, k - 3), 0);
                    EXPECT_NEAR(GeneralValue(g, h + 16.0 / 3, k + 5), 0, 1e-9);
                }
                const ConicData parabola{ConicKind::Parabola, double(h), double(k), 8, 0, vertical};
                const ConicGeneral p = ConicGeneralCoefficients(ws, parabola);
                // (y - k)² = 8(x - h) holds at (h + 2, k ± 4).
                if (!vertical) EXPECT_EQ(GeneralValue(p, h + 2, k + 4), 0);
                else EXPECT_EQ(GeneralValue(p, h + 4, k + 2), 0);
            }
        }
    }
}

TEST(ConicToMarkup, FourStyles) {
    MathWorkspace ws;
    const ConicData ellipse{ConicKind::Ellipse, 1, -2, 25, 9, false};
    EXPECT_EQ(ConicToMarkup(ws, ellipse, ConicStyle::Reduced),
              "#COC( (&+Ix&-I& -& 1)^2#N)(25#COC)& +& #COC( (&+Iy&-I& +& 2)^2#N)(9#COC)& =& 1");
    EXPECT_EQ(ConicToMarkup(ws, ellipse, ConicStyle::Cleared),
              "9(&+Ix&-I& -& 1)^2& +& 25(&+Iy&-I& +& 2)^2& =& 225");
    // 9x² + 25y² - 18x + 100y + 9 + 100 - 225 = 0
    EXPECT_EQ(ConicToMarkup(ws, ellipse, ConicStyle::General),
              "9&+Ix&-I^2& +& 25&+Iy&-I^2& -& 18&+Ix&-I& +& 100&+Iy&-I& -& 116& =& 0");
    EXPECT_EQ(ConicToMarkup(ws, ellipse, ConicStyle::ConstantRight),
              "9&+Ix&-I^2& +& 25&+Iy&-I^2& -& 18&+Ix&-I& +& 100&+Iy&-I& =& 116");
    const ConicData hyperbola{ConicKind::Hyperbola, 0, 0, 16, 9, true};
    EXPECT_EQ(ConicToMarkup(ws, hyperbola, ConicStyle::Reduced),
              "#COC( &+Iy&-I^2#N)(16#COC)& -& #COC( &+Ix&-I^2#N)(9#COC)& =& 1");
    // 9y² - 16x² = 144, the lead made positive: 16x² - 9y² + 144 = 0.
    EXPECT_EQ(ConicToMarkup(ws, hyperbola, ConicStyle::General), "16&+Ix&-I^2& -& 9&+Iy&-I^2& +& 144& =& 0");
    const ConicData parabola{ConicKind::Parabola, 2, 0, -12, 0, false};
    EXPECT_EQ(ConicToMarkup(ws, parabola, ConicStyle::Reduced), "&+Iy&-I^2& =& -12(&+Ix&-I& -& 2)");
    EXPECT_EQ(ConicToMarkup(ws, parabola, ConicStyle::Cleared), "&+Ix&-I& -& 2& =& -#COC( &+Iy&-I^2#N)(12#COC)");
    EXPECT_EQ(ConicToMarkup(ws, parabola, ConicStyle::General), "&+Iy&-I^2& +& 12&+Ix&-I& -& 24& =& 0");
    EXPECT_EQ(ConicToMarkup(ws, parabola, ConicStyle::ConstantRight), "&+Iy&-I^2& -& 24& =& -12&+Ix&-I");
    const ConicData vertical{ConicKind::Parabola, 0, 3, 4, 0, true};
    EXPECT_EQ(ConicToMarkup(ws, vertical, ConicStyle::Reduced), "&+Ix&-I^2& =& 4(&+Iy&-I& -& 3)");
}

TEST(VectorFormToMarkup, PlaneLineAlongAnAxisHasNoDivisionByZero) {
    MathWorkspace ws;
    LineData line;
    line.point = {2, -1, 0};
    line.direction = {3, 0, 0};
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::Continuous, "t"), "&+Iy&-I& +& 1& =& 0");
    line.direction = {0, -2, 0};
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::Continuous, "t"), "&+Ix&-I& -& 2& =& 0");
}

TEST(VectorFormToMarkup, SlopeInterceptKeepsFractions) {
    MathWorkspace ws;
    LineData line;
    // Through (1, -3) with direction (10, -25): y = -5/2 x - 1/2.
    line.point = {1, -3, 0};
    line.direction = {10, -25, 0};
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::SlopeIntercept, "t"),
              "&+Iy&-I& =& -#COC(5#N)(2#COC)&+Ix&-I& -& #COC(1#N)(2#COC)");
    // An intercept of 71/2 = 35.5 is a fraction, not a multiple of pi.
    line.point = {1, 37, 0};
    line.direction = {2, 3, 0};
    EXPECT_EQ(VectorFormToMarkup(ws, line, LineForm::SlopeIntercept, "t"),
              "&+Iy&-I& =& #COC(3#N)(2#COC)&+Ix&-I& +& #COC(71#N)(2#COC)");
}

TEST(PolynomialToMarkup, DecimalsHaveTheirLeadingZero) {
    EXPECT_EQ(PolynomialToMarkup(0, 0, 0, 0.8778, -90.8213, ""), "0&.8778&+Ix&-I& -& 90&.8213");
    EXPECT_EQ(PolynomialToMarkup(0, 0, -0.5, 0, 0.25, ""), "-0&.5&+Ix&-I^2& +& 0&.25");
    EXPECT_EQ(LinearFormToMarkup(0.5, 0, 0, -0.5, false), "0&.5&+Ix&-I& =& -0&.5");
}
