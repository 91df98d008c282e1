#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "ga2_test_support.h"
#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
constexpr double kEps = 1e-9;

// Centre and the two squared semi-axes (signed: a hyperbola has one negative) of an
// ellipse or hyperbola without xy term: A(x - h)² + C(y - k)² = R.
struct Central {
    double h, k, sx, sy;
};
Central CentralOf(const General2& g) {
    const double h = -g.D / (2 * g.A), k = -g.E / (2 * g.C);
    const double r = g.A * h * h + g.C * k * k - g.F;
    return {h, k, r / g.A, r / g.C};
}

std::string AfterOr(const std::string& solution) { return Between(solution, "&+Ior&-I     "); }

// (x - h)² + (y - k)² = r², read back into the general form.
General2 ReadReducedCircle(const std::string& text) {
    General2 g;
    auto shift = [&](const std::string& variable, std::size_t& pos) {
        // "(var& -& c)^2", "(var& +& c)^2" or "var^2"
        if (text.compare(pos, variable.size() + 2, variable + "^2") == 0) {
            pos += variable.size() + 2;
            return 0.0;
        }
        EXPECT_EQ(text.compare(pos, 1 + variable.size(), "(" + variable), 0) << text;
        pos += 1 + variable.size();
        const bool minus = text.compare(pos, 5, "& -& ") == 0;
        pos += 5;
        const auto close = text.find(")^2", pos);
        const double c = ReadExact(text.substr(pos, close - pos));
        pos = close + 3;
        return minus ? c : -c;
    };
    std::size_t pos = 0;
    const double h = shift("&+Ix&-I", pos);
    EXPECT_EQ(text.compare(pos, 5, "& +& "), 0) << text;
    pos += 5;
    const double k = shift("&+Iy&-I", pos);
    EXPECT_EQ(text.compare(pos, 5, "& =& "), 0) << text;
    const double r2 = ReadExact(text.substr(pos + 5));
    g.A = 1;
    g.C = 1;
    g.D = -2 * h;
    g.E = -2 * k;
    g.F = h * h + k * k - r2;
    return g;
}

// The conic's squared focal distance c² and the squared semi-axis a² on the focal axis.
void FocalData(const Central& c, bool ellipse, double& focal2, double& a2, bool& horizontal) {
    if (ellipse) {
        horizontal = c.sx > c.sy;
        a2 = std::max(c.sx, c.sy);
        focal2 = std::fabs(c.sx - c.sy);
    } else {
        horizontal = c.sx > 0;
        a2 = horizontal ? c.sx : c.sy;
        focal2 = std::fabs(c.sx) + std::fabs(c.sy);
    }
}

// A parabola in its reduced form "(y - k)^2 = 4p(x - h)" or its cleared form
// "x - h = (y - k)^2 / 4p", as square - factor·linear = 0.
General2 ReadParabola(const std::string& equation) {
    const auto eq = equation.find("& =& ");
    std::string square, linear, right = equation.substr(eq + 5);
    double factor = 1;
    if (right.rfind("#COC( ", 0) == 0 || right.rfind("-#COC( ", 0) == 0) {
        linear = equation.substr(0, eq);
        const double sign = right[0] == '-' ? -1 : 1;
        square = Between(right, "#COC( ", "#N)(");
        factor = sign * ReadExact(Between(right, "#N)(", "#COC)"));
    } else {
        square = equation.substr(0, eq);
        const auto open = std::min(right.find('('), right.find("&+I"));
        const std::string prefix = right.substr(0, open);
        factor = prefix.empty() ? 1 : prefix == "-" ? -1 : ReadExact(prefix);
        linear = right.substr(open);
        if (linear.front() == '(') linear = linear.substr(1, linear.size() - 2);
    }
    const General2 s = ReadSquaredForm(square + "& =& 0");
    const General2 l = ReadGeneral(linear + "& =& 0");
    General2 g = s;
    g.D -= factor * l.D;
    g.E -= factor * l.E;
    g.F -= factor * l.F;
    return g;
}

// Checks the labelled points of a text against the conic: foci, centre and vertices.
int CheckPoints(const std::string& text, const General2& g, bool ellipse, const std::string& code) {
    int checked = 0;
    const Central c = CentralOf(g);
    double focal2 = 0, a2 = 0;
    bool horizontal = true;
    FocalData(c, ellipse, focal2, a2, horizontal);
    for (const Point2& p : PointsIn(text)) {
        const double dx = p.x - c.h, dy = p.y - c.k;
        ++checked;
        if (p.label == "F" || p.label == "F_ '_ ") {
            EXPECT_NEAR(horizontal ? dy : dx, 0, kEps) << code;
            EXPECT_NEAR(dx * dx + dy * dy, focal2, 1e-6) << code;
        } else if (p.label == "C") {
            EXPECT_NEAR(dx, 0, kEps) << code;
            EXPECT_NEAR(dy, 0, kEps) << code;
        } else if (p.label == "A" || p.label == "A_ '_ " || p.label == "B" || p.label == "B_ '_ ") {
            EXPECT_NEAR(g.At(p.x, p.y), 0, 1e-6) << code << " " << p.label;
        } else {
            --checked;
        }
    }
    return checked;
}
} // namespace

TEST(Ga2Conics, EllipseSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 6, 2500, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 9;
        types.insert(type);
        if (type % 2 == 0 && type != 8) {
            // a, b, foci, centre, vertices, eccentricity agree among themselves.
            const double a = ReadExact(Between(p.solution, "&+Ia&-I& =& ", ","));
            const double b = ReadExact(Between(p.solution, "&+Ib&-I& =& ", "&LF"));
            const auto points = PointsIn(p.solution);
            ASSERT_EQ(points.size(), 7u) << p.code;
            const Point2 f1 = points[0], f2 = points[1], centre = points[2];
            const double c = std::hypot(f1.x - centre.x, f1.y - centre.y);
            EXPECT_NEAR(a * a, b * b + c * c, kEps) << p.code;
            EXPECT_NEAR(f1.x + f2.x, 2 * centre.x, kEps);
            EXPECT_NEAR(f1.y + f2.y, 2 * centre.y, kEps);
            EXPECT_NEAR(std::hypot(points[3].x - centre.x, points[3].y - centre.y), a, kEps);
            EXPECT_NEAR(std::hypot(points[5].x - centre.x, points[5].y - centre.y), b, kEps);
            EXPECT_NEAR(ReadExact(Between(p.solution, "&+Ie&-I& =& ")), c / a, kEps) << p.code;
            const std::string equation = Between(p.statement, "Consider the ellipse  ", ".  ");
            const General2 g = type == 2 || type == 6 ? ReadGeneral(equation) : ReadSquaredForm(equation);
            EXPECT_EQ(CheckPoints(p.solution, g, true, p.code), 7) << p.code;
            EXPECT_EQ(type == 0, equation.ends_with("& =& 1")) << p.code;
            if (type == 0 || type == 6) {
                EXPECT_EQ(centre.x, 0);
                EXPECT_EQ(centre.y, 0);
            }
            return;
        }
        const General2 g = ReadGeneral(AfterOr(p.solution));
        ASSERT_GT(g.A * g.C, 0) << p.code;
        EXPECT_GE(CheckPoints(p.statement, g, true, p.code) + CheckPoints(p.solution, g, true, p.code), 2) << p.code;
        const Central c = CentralOf(g);
        double focal2 = 0, a2 = 0;
        bool horizontal = true;
        FocalData(c, true, focal2, a2, horizontal);
        if (type == 1) {
            EXPECT_NEAR(ReadExact(Between(p.statement, "semimajor axis of length ", ".  ")), std::sqrt(a2), kEps)
                << p.code;
        }
        if (type == 5) {
            EXPECT_NEAR(ReadExact(Between(p.statement, "its eccentricity is ", ".  ")), std::sqrt(focal2 / a2), kEps)
                << p.code;
        }
        if (type == 3 || type == 7) {
            EXPECT_EQ(c.h, 0);
            EXPECT_EQ(c.k, 0);
        }
    });
    EXPECT_EQ(types.size(), 9u);
}

TEST(Ga2Conics, HyperbolaSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 7, 2500, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 9;
        types.insert(type);
        if (type == 0 || type == 2 || type == 4 || type == 6) {
            const double a = ReadExact(Between(p.solution, "&+Ia&-I& =& ", ","));
            const double b = ReadExact(Between(p.solution, "&+Ib&-I& =& ", "&LF"));
            const auto points = PointsIn(p.solution);
            ASSERT_EQ(points.size(), 5u) << p.code;
            const Point2 f1 = points[0], centre = points[2], v1 = points[3];
            const double c = std::hypot(f1.x - centre.x, f1.y - centre.y);
            EXPECT_NEAR(c * c, a * a + b * b, kEps) << p.code;
            EXPECT_NEAR(std::hypot(v1.x - centre.x, v1.y - centre.y), a, kEps);
            EXPECT_NEAR(ReadExact(Between(p.solution, "&+Ie&-I& =& ")), c / a, kEps) << p.code;
            const std::string equation = Between(p.statement, "Consider the hyperbola  ", ".  ");
            const General2 g = type == 2 || type == 6 ? ReadGeneral(equation) : ReadSquaredForm(equation);
            EXPECT_EQ(CheckPoints(p.solution, g, false, p.code), 5) << p.code;
            if (type == 0 || type == 6) {
                // y = ±(slope) x: the slope is b/a on a horizontal focal axis, a/b on a vertical one.
                const double slope = ReadExact(Between(p.solution, "&+Iy&-I& =& ±& ", "& &+Ix&-I"));
                EXPECT_NEAR(slope, f1.y == 0 ? b / a : a / b, kEps) << p.code;
            }
            return;
        }
        const General2 g = ReadGeneral(AfterOr(p.solution));
        ASSERT_LT(g.A * g.C, 0) << p.code;
        EXPECT_GE(CheckPoints(p.statement, g, false, p.code) + CheckPoints(p.solution, g, false, p.code), 1)
            << p.code;
        const Central c = CentralOf(g);
        double focal2 = 0, a2 = 0;
        bool horizontal = true;
        FocalData(c, false, focal2, a2, horizontal);
        if (type == 1) {
            EXPECT_NEAR(ReadExact(Between(p.statement, "semiaxis of length  ", ".  ")), std::sqrt(a2), kEps);
        }
        if (type == 5 || type == 8) {
            EXPECT_NEAR(ReadExact(Between(p.statement, type == 5 ? "its eccentricity is " : "hyperbola is ",
                                          type == 5 ? ".  " : "  and")),
                        std::sqrt(focal2 / a2), kEps) << p.code;
        }
        if (type == 7) {
            const double b2 = focal2 - a2;
            const double slope = ReadExact(Between(p.statement, "&+Iy&-I& =& ±& ", "& &+Ix&-I"));
            EXPECT_NEAR(slope * slope, horizontal ? b2 / a2 : a2 / b2, 1e-9) << p.code;
        }
    });
    EXPECT_EQ(types.size(), 9u);
}

TEST(Ga2Conics, ParabolaSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 8, 2500, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 7;
        types.insert(type);
        const std::string all = p.statement + p.solution;
        Point2 focus{0, 0, ""}, vertex{0, 0, ""};
        for (const Point2& q : PointsIn(all)) {
            if (q.label == "F") focus = q;
            if (q.label == "V") vertex = q;
        }
        ASSERT_TRUE(focus.label == "F" && vertex.label == "V") << p.code;
        // The directrix is the mirror of the focus in the vertex.
        const bool vertical = focus.x == vertex.x;
        ASSERT_TRUE(vertical || focus.y == vertex.y) << p.code;
        const std::string directrix = vertical ? "&+Iy&-I& =& " : "&+Ix&-I& =& ";
        std::size_t at = std::string::npos;
        std::string prefix;
        for (const char* before : {"directrix is  ", "&+Bc)&-B  ", "&LF&SP=10:"}) {
            at = all.find(before + directrix);
            if (at != std::string::npos) {
                prefix = before;
                break;
            }
        }
        ASSERT_NE(at, std::string::npos) << p.code;
        std::string value = all.substr(at + prefix.size() + directrix.size());
        value = value.substr(0, value.find_first_not_of("-0123456789"));
        const double d = std::stod(value);
        EXPECT_EQ(d, vertical ? 2 * vertex.y - focus.y : 2 * vertex.x - focus.x) << p.code;
        // The equation: the set of points as far from the focus as from the directrix.
        std::string equation;
        if (type % 2 == 1) equation = AfterOr(p.solution);
        else equation = Between(p.statement, "Consider the parabola  ", ".  ");
        const General2 g = type == 0 || type == 4 ? ReadParabola(equation) : ReadGeneral(equation);
        // Exactly one squared variable, and the other variable to the first power.
        EXPECT_TRUE((g.A == 0) != (g.C == 0)) << p.code;
        EXPECT_TRUE(g.A != 0 ? g.E != 0 : g.D != 0) << p.code;
        for (double t = -3; t <= 3; t += 1) {
            // Points of the parabola: vertex + (t, t²/4p) along its axis.
            const double pp = vertical ? focus.y - vertex.y : focus.x - vertex.x;
            const double x = vertical ? vertex.x + t : vertex.x + t * t / (4 * pp);
            const double y = vertical ? vertex.y + t * t / (4 * pp) : vertex.y + t;
            const double scale = std::max({std::fabs(g.A), std::fabs(g.C)});
            EXPECT_NEAR(g.At(x, y) / scale, 0, 1e-9) << p.code;
        }
    });
    EXPECT_EQ(types.size(), 7u);
}

TEST(Ga2Conics, CircleSweep) {
    std::set<int> types;
    SweepRoutine("KVOL_MATH_GA2", 5, 2500, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 9;
        types.insert(type);
        auto centreOf = [](const General2& g, double& h, double& k, double& r2) {
            EXPECT_EQ(g.A, g.C);
            h = -g.D / (2 * g.A);
            k = -g.E / (2 * g.A);
            r2 = h * h + k * k - g.F / g.A;
        };
        double h = 0, k = 0, r2 = 0;
        switch (type) {
        case 0: case 4: case 5: {
            centreOf(ReadGeneral(AfterOr(p.solution)), h, k, r2);
            const auto points = PointsIn(p.statement);
            if (type == 0) {
                EXPECT_EQ(points[0].x, h);
                EXPECT_EQ(points[0].y, k);
                const double r = ReadExact(Between(p.statement, " and radius ", ".&LF"));
                EXPECT_NEAR(r * r, r2, 1e-9) << p.code;
            } else {
                for (const Point2& q : points) EXPECT_NEAR((q.x - h) * (q.x - h) + (q.y - k) * (q.y - k), r2, 1e-9);
                if (type == 5) {
                    EXPECT_EQ(points[0].x + points[1].x, 2 * h);
                    EXPECT_EQ(points[0].y + points[1].y, 2 * k);
                }
            }
            if (type != 0) {
                const double r = ReadExact(Between(p.solution, "&+Ir&-I = "));
                EXPECT_NEAR(r * r, r2, 1e-9) << p.code;
            }
            break;
        }
        case 1: {
            centreOf(ReadGeneral(Between(p.statement, "&LF     ")), h, k, r2);
            const auto points = PointsIn(p.solution);
            EXPECT_EQ(points[0].x, h);
            EXPECT_EQ(points[0].y, k);
            const double r = ReadExact(Between(p.solution, "&+Ir&-I = "));
            EXPECT_NEAR(r * r, r2, 1e-9) << p.code;
            break;
        }
        case 2: {
            centreOf(ReadReducedCircle(Between(p.statement, "Consider the circle  ", ".  ")), h, k, r2);
            int kinds = 0;
            for (char letter : std::string("abc")) {
                const std::string label = std::string("&+B") + letter + ")&-B ";
                const General2 line = ReadGeneral(Between(p.statement, label));
                const double distance2 = std::pow(line.D * h + line.E * k + line.F, 2) / (line.D * line.D + line.E * line.E);
                const std::string answer = Between(p.solution, label);
                const auto points = PointsIn(answer);
                for (const Point2& q : points) {
                    EXPECT_NEAR(line.At(q.x, q.y), 0, 1e-9) << p.code;
                    EXPECT_NEAR((q.x - h) * (q.x - h) + (q.y - k) * (q.y - k), r2, 1e-9) << p.code;
                }
                if (answer.rfind("Tangent", 0) == 0) {
                    EXPECT_NEAR(distance2, r2, 1e-9) << p.code;
                    kinds |= 1;
                } else if (answer.rfind("Intersection", 0) == 0) {
                    EXPECT_EQ(points.size(), 2u);
                    EXPECT_LT(distance2, r2) << p.code;
                    kinds |= 2;
                } else {
                    EXPECT_EQ(answer, "No intersection");
                    EXPECT_GT(distance2, r2) << p.code;
                    kinds |= 4;
                }
            }
            EXPECT_EQ(kinds, 7) << p.code;
            break;
        }
        case 3: {
            centreOf(ReadGeneral(Between(p.statement, "&LF     ")), h, k, r2);
            const std::string letter = Between(p.statement, "parameter  ", "  for");
            const std::string family = Between(p.statement, "the line  ", "  is tangent");
            const std::string answer = Between(p.solution, "&SP=10:");
            for (const std::string& part : {answer.substr(0, answer.find("&+Ior&-I")),
                                            answer.substr(answer.find("&+Ior&-I"))}) {
                const double value = ReadExact(Between(part, letter + "& =& ", "  tangent"));
                const General2 line = ReadGeneral(family, letter, value);
                const auto points = PointsIn(part);
                ASSERT_EQ(points.size(), 1u) << p.code;
                EXPECT_NEAR(line.At(points[0].x, points[0].y), 0, 1e-9) << p.code;
                EXPECT_NEAR(std::pow(line.D * h + line.E * k + line.F, 2) / (line.D * line.D + line.E * line.E), r2,
                            1e-9) << p.code;
            }
            break;
        }
        case 6: {
            double h2 = 0, k2 = 0, s2 = 0;
            centreOf(ReadGeneral(Between(p.statement, "&+IC_1:  &-I")), h, k, r2);
            centreOf(ReadGeneral(Between(p.statement, "&+IC_2:  &-I")), h2, k2, s2);
            const auto points = PointsIn(p.solution);
            ASSERT_EQ(points.size(), 2u);
            EXPECT_FALSE(points[0].x == points[1].x && points[0].y == points[1].y);
            EXPECT_FALSE(h == h2 && k == k2) << p.code;
            for (const Point2& q : points) {
                EXPECT_NEAR((q.x - h) * (q.x - h) + (q.y - k) * (q.y - k), r2, 1e-9) << p.code;
                EXPECT_NEAR((q.x - h2) * (q.x - h2) + (q.y - k2) * (q.y - k2), s2, 1e-9) << p.code;
            }
            break;
        }
        case 7: {
            const std::string equation = Between(p.statement, "circle:&LF     ");
            centreOf(ReadReducedCircle(equation), h, k, r2);
            const auto points = PointsIn(p.statement);
            ASSERT_EQ(points.size(), 2u);
            EXPECT_GT((points[0].x - h) * (points[0].x - h) + (points[0].y - k) * (points[0].y - k), r2) << p.code;
            EXPECT_LT((points[1].x - h) * (points[1].x - h) + (points[1].y - k) * (points[1].y - k), r2) << p.code;
            EXPECT_NE(p.solution.find("&+IP&-I is outside"), std::string::npos);
            EXPECT_NE(p.solution.find("&+IQ&-I is inside"), std::string::npos);
            break;
        }
        default: {
            centreOf(ReadGeneral(Between(p.statement, "The circle  ", "  passes")), h, k, r2);
            const Point2 a = PointsIn(p.statement).at(0);
            EXPECT_NEAR((a.x - h) * (a.x - h) + (a.y - k) * (a.y - k), r2, 1e-9) << p.code;
            const General2 line = ReadGeneral(Between(p.solution, "&SP=10:"));
            EXPECT_NEAR(line.At(a.x, a.y), 0, 1e-9) << p.code;
            EXPECT_NEAR(std::pow(line.D * h + line.E * k + line.F, 2) / (line.D * line.D + line.E * line.E), r2, 1e-9);
            break;
        }
        }
        EXPECT_GT(r2, 0) << p.code;
    });
    EXPECT_EQ(types.size(), 9u);
}

TEST(Ga2Conics, SameCodeSameText) {
    GeneratorHub hub;
    const GeneratedProblem a = GenerateProblem(hub, "KVOL_MATH_GA2", {6, 12, 345, 0, 3, 2});
    GenerateProblem(hub, "KVOL_MATH_GA2", {5, 1, 999, 0, 1, 1});
    const GeneratedProblem b = GenerateProblem(hub, "kvol_math_ga2", {6, 12, 345, 0, 3, 2});
    EXPECT_EQ(a.statement, b.statement);
    EXPECT_EQ(a.solution, b.solution);
}

// "Determine" half of the time, "Calculate" and "Find" a quarter each; 30 % of the
// ellipses have a vertical major axis.
TEST(Ga2Conics, VerbsAndOrientation) {
    GeneratorHub hub;
    int calculate = 0, find = 0, determine = 0, vertical = 0, horizontal = 0;
    for (int seed = 0; seed < 2000; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_GA2", {6, 0, seed, 0, 1, 1});
        if (p.statement.find(".  Calculate") != std::string::npos) ++calculate;
        if (p.statement.find(".  Find") != std::string::npos) ++find;
        if (p.statement.find(".  Determine") != std::string::npos) ++determine;
        for (const Point2& q : PointsIn(p.statement + p.solution)) {
            if (q.label != "F") continue;
            const Point2 other = PointsIn(p.statement + p.solution).at(1);
            (q.x == other.x ? vertical : horizontal) += 1;
            break;
        }
    }
    EXPECT_EQ(calculate + find + determine, 2000);
    EXPECT_NEAR(determine / 2000.0, 0.5, 0.05);
    EXPECT_NEAR(find / 2000.0, 0.25, 0.05);
    EXPECT_NEAR(calculate / 2000.0, 0.25, 0.05);
    EXPECT_NEAR(vertical / double(vertical + horizontal), 0.3, 0.05);
}
