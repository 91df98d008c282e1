#include <cmath>
#include <map>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "support/markup_reader.h"
#include "generators/hub.h"
#include "generators/tri/tri_records.h"
#include "mathservices/arithmetic.h"
#include "support/generator_sweep.h"

namespace {
constexpr const char* kTri = "KVOL_MATH_TRI";
constexpr double kDeg = 3.14159265358979323846 / 180;

std::string Plain(std::string s) {
    for (const char* drop : {"&+I", "&-I"}) {
        for (auto p = s.find(drop); p != std::string::npos; p = s.find(drop)) s.erase(p, 3);
    }
    for (auto p = s.find("&."); p != std::string::npos; p = s.find("&.")) s.replace(p, 2, ".");
    for (auto p = s.find("& "); p != std::string::npos; p = s.find("& ")) s.replace(p, 2, " ");
    return s;
}

// The six values of routine 1, read from "name &alfa = value" parts of a text.
std::map<std::string, double> NamedValues(const std::string& text) {
    std::map<std::string, double> out;
    for (const char* name : {"cosec", "cotan", "sin", "cos", "tan", "sec"}) {
        const std::string key = std::string(name) + " &alfa";
        const std::string key2 = std::string(name) + "& &alfa";
        std::size_t at = 0;
        while ((at = text.find(name, at)) != std::string::npos) {
            const bool wordStart = at == 0 || text[at - 1] == ' ' || text[at - 1] == ':';
            const bool exact = text.compare(at, key.size(), key) == 0 || text.compare(at, key2.size(), key2) == 0;
            if (wordStart && exact) {
                const auto eq = text.find('=', at);
                auto end = text.find(';', eq);
                for (const char* stop : {"  and  ", "&LF", ","}) {
                    const auto s = text.find(stop, eq);
                    if (s != std::string::npos && (end == std::string::npos || s < end)) end = s;
                }
                std::string value = text.substr(eq + 1, end - eq - 1);
                if (value.rfind("& ", 0) == 0) value.erase(0, 2);
                out[name] = ReadMarkupReal(value);
            }
            at += 1;
        }
    }
    return out;
}
} // namespace

TEST(TrigValues, AllSixAgreeWithTheGivenOneAndItsSign) {
    SweepRoutine(kTri, 1, 2000, [](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 3;
        const auto given = NamedValues(p.statement.substr(0, p.statement.find("  and  ")));
        const auto asked = NamedValues(p.solution);
        ASSERT_EQ(given.size(), 1u) << p.statement;
        ASSERT_EQ(asked.size(), 5u) << p.solution;
        std::map<std::string, double> all = asked;
        all.insert(given.begin(), given.end());
        ASSERT_EQ(all.size(), 6u);
        const char* givenName = type == 0 ? "sin" : type == 1 ? "cos" : "tan";
        EXPECT_TRUE(given.count(givenName)) << p.statement;
        const double s = all["sin"], c = all["cos"];
        EXPECT_NEAR(s * s + c * c, 1, 1e-12) << p.code;
        EXPECT_NEAR(all["tan"], s / c, 1e-12) << p.code;
        EXPECT_NEAR(all["cosec"], 1 / s, 1e-12) << p.code;
        EXPECT_NEAR(all["sec"], 1 / c, 1e-12) << p.code;
        EXPECT_NEAR(all["cotan"], c / s, 1e-12) << p.code;
        // The stated sign of the second function holds.
        const std::string condition = p.statement.substr(p.statement.find("  and  ") + 7, 16);
        const double second = condition.rfind("sin", 0) == 0 ? s : c;
        EXPECT_EQ(condition.find("< 0") != std::string::npos, second < 0) << p.statement;
    });
}

TEST(TrigValues, AGroupOfThreeGivesSinCosTanInTurn) {
    GeneratorHub hub;
    const char* expected[5] = {"sin &alfa = ", "cos &alfa = ", "tan &alfa = ", "sin &alfa = ", "cos &alfa = "};
    for (int start : {0, 3, 4000, 8998}) {
        for (int i = 0; i < 3; ++i) {
            const GeneratedProblem p = GenerateProblem(hub, kTri, {1, 100 + i, start + i, 0, 3, i + 1});
            const auto at = p.statement.find("that  ");
            ASSERT_NE(at, std::string::npos);
            const char* e = expected[start % 3 + i];
            EXPECT_EQ(p.statement.compare(at + 6, std::string(e).size(), e), 0) << p.statement;
        }
    }
}

TEST(TrigValues, PresetPairsGiveRationalValues) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(3);
    int rational = 0;
    for (int i = 0; i < 2000; ++i) {
        const TrigValuesRecord r = MakeTrigValues(ws, i % 3);
        const bool preset = (r.p == 9 && r.q == 41) || (r.p == 40 && r.q == 41) || (r.p == 8 && r.q == 17) ||
                            (r.p == 15 && r.q == 17) || (r.p == 5 && r.q == 13) || (r.p == 12 && r.q == 13) ||
                            (r.p == 3 && r.q == 5) || (r.p == 4 && r.q == 5);
        if (!preset) {
            EXPECT_LT(r.q * r.q - r.p * r.p, 300);
        }
        EXPECT_GT(r.q, r.p);
        bool anyRoot = false;
        for (const auto& t : r.texts) anyRoot = anyRoot || t.find("#SQR(") != std::string::npos;
        const double m = std::sqrt(r.q * r.q - r.p * r.p);
        EXPECT_EQ(anyRoot, m != std::floor(m)) << r.p << "/" << r.q;
        rational += !anyRoot;
    }
    // About four draws in ten take a preset, and a few draws are rational by chance.
    EXPECT_GT(rational, 600);
    EXPECT_LT(rational, 1100);
}

TEST(TrigRelatedAngles, AnswersFollowFromTheGivenValues) {
    SweepRoutine(kTri, 2, 2000, [](const GeneratedProblem& p) {
        // Every "sin_ X° = v" or "cos_ X° = v" of both texts is the true value, rounded.
        const std::regex pair("(sin|cos)_ ([0-9]+)\u00B0 = (-?[0-9.]+)");
        int count = 0;
        for (const std::string& text : {Plain(p.statement), Plain(p.solution)}) {
            for (std::sregex_iterator it(text.begin(), text.end(), pair), end; it != end; ++it) {
                const double angle = std::stod((*it)[2]) * kDeg;
                const double value = std::stod((*it)[3]);
                const double exact = (*it)[1] == "sin" ? std::sin(angle) : std::cos(angle);
                EXPECT_NEAR(value, exact, 0.00005 + 1e-12) << p.code << " " << (*it)[0];
                ++count;
            }
        }
        const int type = p.fields.Seed % 5;
        EXPECT_EQ(count, (type == 2 || type == 4 ? 4 : 2) + 3) << p.statement << p.solution;
    });
}

TEST(TrigRelatedAngles, AskedValuesComeFromTheGivenOnesAlone) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(11);
    for (int i = 0; i < 3000; ++i) {
        const RelatedAnglesRecord r = MakeRelatedAngles(ws, i % 5);
        for (double a : {r.a, r.b}) {
            if (a == 0) continue;
            EXPECT_GE(a, 20);
            EXPECT_LE(a, 70);
            EXPECT_EQ(std::fmod(a, 2), 0);
            EXPECT_TRUE(a != 30 && a != 45 && a != 60);
        }
        for (const AskedValue& v : r.asked) EXPECT_NEAR(v.value, v.exact, 0.0005) << i % 5 << " " << v.degrees;
    }
}

namespace {
// Reads "&+Ia&-I = 12" and "&+Ia&-I has a length of 12" style parts of both texts.
std::map<char, double> TriangleParts(const GeneratedProblem& p) {
    std::map<char, double> out;
    const std::regex part("([A-Ca-c]) (= |has a length of )([0-9.]+)");
    for (const std::string& text : {Plain(p.statement), Plain(p.solution)}) {
        for (std::sregex_iterator it(text.begin(), text.end(), part), end; it != end; ++it) {
            out[(*it)[1].str()[0]] = std::stod((*it)[3]);
        }
    }
    return out;
}
} // namespace

TEST(TrigTriangles, PartsFormOneTriangle) {
    SweepRoutine(kTri, 5, 2000, [](const GeneratedProblem& p) {
        const auto parts = TriangleParts(p);
        ASSERT_EQ(parts.size(), 6u) << p.statement << p.solution;
        const double A = parts.at('A'), B = parts.at('B'), C = parts.at('C');
        EXPECT_NEAR(A + B + C, 180, 0.02) << p.code;
        const double ka = parts.at('a') / std::sin(A * kDeg), kb = parts.at('b') / std::sin(B * kDeg),
                     kc = parts.at('c') / std::sin(C * kDeg);
        EXPECT_NEAR(ka / kb, 1, 2e-3) << p.code;
        EXPECT_NEAR(ka / kc, 1, 2e-3) << p.code;
        for (const auto& [name, value] : parts) EXPECT_GT(value, 0) << name;
    });
}

TEST(TrigTriangles, RecordsSolveTheTriangleExactly) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(5);
    for (int i = 0; i < 2000; ++i) {
        const TriangleRecord t = MakeTriangle(ws, i % 4);
        const auto& s = t.sides;
        const auto& a = t.angles;
        EXPECT_NEAR(a[0] + a[1] + a[2], 180, 1e-9);
        for (int k = 0; k < 3; ++k) {
            const double x = s[static_cast<std::size_t>(k)], y = s[static_cast<std::size_t>((k + 1) % 3)],
                         z = s[static_cast<std::size_t>((k + 2) % 3)];
            EXPECT_NEAR(x * x, y * y + z * z - 2 * y * z * std::cos(a[static_cast<std::size_t>(k)] * kDeg), 1e-7 * x * x);
            EXPECT_GT(a[static_cast<std::size_t>(k)], 0);
        }
        if (t.type == 3) {
            EXPECT_LT(a[1], 90);
        }
        // The letters are a shuffle of the three, sides moving with their vertices.
        EXPECT_EQ(std::set<std::string>(t.vertexNames.begin(), t.vertexNames.end()).size(), 3u);
        for (int k = 0; k < 3; ++k) {
            std::string lower = t.vertexNames[static_cast<std::size_t>(k)];
            lower[3] = static_cast<char>(lower[3] + 32);
            EXPECT_EQ(lower, t.sideNames[static_cast<std::size_t>(k)]);
        }
    }
}

namespace {
struct Point {
    double x, y;
};
double Dist(Point p, Point q) { return std::hypot(p.x - q.x, p.y - q.y); }
double AngleAt(Point v, Point p, Point q) {
    const double a = std::atan2(p.y - v.y, p.x - v.x), b = std::atan2(q.y - v.y, q.x - v.x);
    double d = std::fabs(a - b) / kDeg;
    return d > 180 ? 360 - d : d;
}
double Area(const std::vector<Point>& poly) {
    double s = 0;
    for (std::size_t i = 0; i < poly.size(); ++i) {
        const Point p = poly[i], q = poly[(i + 1) % poly.size()];
        s += p.x * q.y - q.x * p.y;
    }
    return std::fabs(s) / 2;
}
Point Polar(Point from, double length, double degrees) {
    return {from.x + length * std::cos(degrees * kDeg), from.y + length * std::sin(degrees * kDeg)};
}

// Each figure is built with coordinates from the given data and measured.
std::array<double, 3> Measure(const ShapeRecord& r) {
    const auto& g = r.given;
    switch (r.type) {
    case 0: {  // AD, B, DC
        // D, the foot of the height, at the origin.
        const Point A{0, g[0]}, C{g[2], 0}, B{-g[0] / std::tan(g[1] * kDeg), 0};
        return {Dist(A, B), Dist(B, C), AngleAt(C, A, B)};
    }
    case 1:
    case 9: {  // CD (or AB), D, ACB
        // B at the origin, A above it; C and D on the x axis with the given angles.
        const double ab = r.type == 9 ? g[0] : g[0] / (1 / std::tan(g[1] * kDeg) - 1 / std::tan(g[2] * kDeg));
        const Point B{0, 0}, A{0, ab}, C{ab / std::tan(g[2] * kDeg), 0}, D{ab / std::tan(g[1] * kDeg), 0};
        EXPECT_NEAR(AngleAt(C, A, B), g[2], 1e-9);
        if (r.type == 1) {
            EXPECT_NEAR(Dist(C, D), g[0], 1e-9);
            return {Dist(A, B), Dist(B, C), Dist(A, D)};
        }
        return {Dist(B, C), Dist(B, D), Dist(C, D)};
    }
    case 2: {  // AB, AD, A
        const Point A{0, 0}, B{g[0], 0}, D = Polar(A, g[1], g[2]), C{B.x + D.x, D.y};
        return {D.y, Area({A, B, C, D}), Dist(B, D)};
    }
    case 3: {  // side, A
        const Point A{0, 0}, B{g[0], 0}, D = Polar(A, g[0], g[1]), C{B.x + D.x, D.y};
        return {Dist(B, D), Dist(A, C), Area({A, B, C, D})};
    }
    case 4: {  // AB, A, AD; right angles at B and C
        const Point A{0, 0}, B{g[0], 0}, D = Polar(A, g[2], g[1]), C{g[0], D.y};
        return {D.y, Dist(D, C), Area({A, B, C, D})};
    }
    case 5: {  // area, BC, B
        const double h = 2 * g[0] / g[1];
        const Point B{0, 0}, C{g[1], 0}, A{h / std::tan(g[2] * kDeg), h};
        EXPECT_NEAR(Area({A, B, C}), g[0], 1e-9);
        return {A.y, Dist(A, B), AngleAt(C, A, B)};
    }
    case 6: {  // AB base, area, A: the height from D onto AB, as in the figure
        const double h = g[1] / g[0];
        const Point A{0, 0}, B{g[0], 0}, D = Polar(A, h / std::sin(g[2] * kDeg), g[2]), C{B.x + D.x, D.y};
        EXPECT_NEAR(Area({A, B, C, D}), g[1], 1e-9);
        return {D.y, Dist(A, D), Dist(B, D)};
    }
    case 7: {  // AC, BD
        const Point A{-g[0] / 2, 0}, C{g[0] / 2, 0}, B{0, -g[1] / 2}, D{0, g[1] / 2};
        return {Dist(A, B), AngleAt(A, B, D), Area({A, B, C, D})};
    }
    case 8: {  // area, AB, DC
        const double h = 2 * g[0] / (g[1] + g[2]);
        const Point A{0, 0}, B{g[1], 0}, C{g[1], h}, D{g[1] - g[2], h};
        EXPECT_NEAR(Area({A, B, C, D}), g[0], 1e-9);
        return {h, AngleAt(A, B, D), Dist(A, D)};
    }
    default: {  // BD minor, side: AC is the longer diagonal, as in the figure
        const double half = std::sqrt(g[1] * g[1] - g[0] * g[0] / 4);
        const Point A{-half, 0}, C{half, 0}, B{0, -g[0] / 2}, D{0, g[0] / 2};
        EXPECT_NEAR(Dist(A, B), g[1], 1e-9);
        EXPECT_LT(g[0], 2 * half);
        return {Dist(A, C), AngleAt(A, B, D), Area({A, B, C, D})};
    }
    }
}
} // namespace

TEST(TrigPlaneShapes, AnswersMatchTheFigureBuiltFromTheData) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(21);
    for (int i = 0; i < 2200; ++i) {
        const ShapeRecord r = MakeShape(ws, i % 11);
        const auto measured = Measure(r);
        for (int k = 0; k < 3; ++k) {
            EXPECT_NEAR(r.answers[static_cast<std::size_t>(k)], measured[static_cast<std::size_t>(k)],
                        1e-9 * std::max(1.0, measured[static_cast<std::size_t>(k)]))
                << "type " << r.type << " part " << k;
            EXPECT_GT(r.answers[static_cast<std::size_t>(k)], 0);
        }
        // Areas given in a statement are whole.
        if (r.type == 5 || r.type == 6 || r.type == 8) {
            EXPECT_TRUE(IsWhole(r.given[r.type == 6 ? 1 : 0]));
        }
    }
}

TEST(TrigPlaneShapes, TextsShowTheFigureAndThreeParts) {
    const char* figures[11] = {"m_trigo_tria_hch.gif", "m_trigo_tria_hhc.gif", "m_trigo_romde.gif", "m_trigo_rombo.gif",
                               "m_trigo_trape.gif",    "m_trigo_tria_hch.gif", "m_trigo_romde.gif", "m_trigo_rombo.gif",
                               "m_trigo_trape.gif",    "m_trigo_tria_hhc.gif", "m_trigo_rombo.gif"};
    SweepRoutine(kTri, 6, 1100, [&](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 11;
        EXPECT_NE(p.statement.find(std::string(type == 9 ? "&SP=71:" : "&SP=66:") + "#IMG('" + figures[type] + "'"),
                  std::string::npos)
            << p.statement;
        for (const char* part : {"&SP=5:a) ", "&SP=5:b) ", "&SP=5:c) "}) EXPECT_NE(p.statement.find(part), std::string::npos);
        EXPECT_EQ(p.solution.rfind("&SP=10: a) ", 0), 0u);
        EXPECT_NE(p.solution.find(";    b) "), std::string::npos);
        EXPECT_NE(p.solution.find(";    c) "), std::string::npos);
    });
}

TEST(TrigPlaneShapes, QuestionsAskForWhatTheFigureDraws) {
    // The segments each figure draws, and the height it draws (from a vertex onto a side).
    struct Drawn {
        std::set<std::string> segments;
        std::string heightOnto;  // the side the height falls on, or empty
    };
    const std::map<std::string, Drawn> drawn = {
        {"m_trigo_tria_hch.gif", {{"AB", "BC", "CA", "AD", "BD", "DC"}, "BC"}},
        {"m_trigo_tria_hhc.gif", {{"AB", "BC", "CA", "AD", "BD", "CD"}, ""}},
        {"m_trigo_romde.gif", {{"AB", "BC", "CD", "DA", "BD"}, "AB"}},
        {"m_trigo_rombo.gif", {{"AB", "BC", "CD", "DA", "AC", "BD"}, ""}},
        {"m_trigo_trape.gif", {{"AB", "BC", "CD", "DA", "DC"}, "AB"}},
    };
    static const std::regex segment(R"(&\+I([A-D])([A-D])&-I)");
    static const std::regex figure(R"(#IMG\('([^']+)')");
    SweepRoutine(kTri, 6, 1100, [&](const GeneratedProblem& p) {
        std::smatch m;
        ASSERT_TRUE(std::regex_search(p.statement, m, figure)) << p.statement;
        const Drawn& d = drawn.at(m[1]);
        for (std::sregex_iterator it(p.statement.begin(), p.statement.end(), segment), end; it != end; ++it) {
            const std::string ab = (*it)[1].str() + (*it)[2].str(), ba = (*it)[2].str() + (*it)[1].str();
            EXPECT_TRUE(d.segments.count(ab) || d.segments.count(ba)) << ab << " is not drawn in " << m[1];
        }
        const auto onto = p.statement.find("height onto the side &+I");
        if (onto != std::string::npos) {
            EXPECT_EQ(p.statement.substr(onto + 24, 2), d.heightOnto) << p.statement;
        }
        // The rhombus figure draws AC as the longer diagonal.
        if (p.statement.find("minor diagonal") != std::string::npos) {
            EXPECT_NE(p.statement.find("minor diagonal &+IBD&-I"), std::string::npos) << p.statement;
            EXPECT_NE(p.statement.find("major diagonal &+IAC&-I"), std::string::npos) << p.statement;
        }
    });
}
