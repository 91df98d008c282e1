#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generators/gde/gde_problem.h"
#include "generators/hub.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"
#include "support/generator_sweep.h"

namespace {
const std::string kModule = "KVOL_MATH_GDE";
const double kPiValue = 3.14159265358979323846;

using Shape = std::map<std::string, double>;
using Builder = GeometryProblem (*)(GeneratorWorkspace&);

// What a problem must hold, recomputed from the measures its shape was drawn with: the
// numbers its opening gives (as the text writes them) and the answers of its parts.
struct Expectation {
    std::vector<std::string> givens;
    std::vector<double> answers;
};

// A given number: it must end within two decimals, or the problem would give a rounded
// value and mean another.
std::string Text(double v) {
    EXPECT_LT(std::abs(v * 100 - std::round(v * 100)), 1e-6) << "given " << v << " has more than two decimals";
    GeneratorWorkspace ws;
    return MeasureText(ws, v);
}
std::string Pi(double factor) { return (factor == 1 ? std::string() : NumberToMarkup(factor)) + "&pi"; }
std::string Angle(double degrees) { return PlainNumberText(degrees) + "\u00B0"; }

bool Whole(double v) { return std::abs(v - std::round(v)) < 1e-9; }
// A side that the problem promises to be whole.
double WholeRoot(double square, const std::string& what) {
    const double root = std::sqrt(square);
    EXPECT_TRUE(Whole(root)) << what << " = sqrt(" << square << ") is not whole";
    return std::round(root);
}

// The number of a markup text such as "12&.34".
double ReadNumber(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "&.") == 0) {
            plain += '.';
            ++i;
        } else {
            plain += text[i];
        }
    }
    return std::stod(plain);
}

// True when number stands in text as a whole number text: not inside a longer number.
std::size_t FindNumber(const std::string& text, const std::string& number, std::size_t from) {
    std::size_t pos = from;
    while ((pos = text.find(number, pos)) != std::string::npos) {
        const bool digitBefore = pos > 0 && (std::isdigit(static_cast<unsigned char>(text[pos - 1])) || text[pos - 1] == '.');
        const std::size_t end = pos + number.size();
        const bool digitAfter = end < text.size() && (std::isdigit(static_cast<unsigned char>(text[end])) ||
                                                      text.compare(end, 2, "&.") == 0);
        if (!digitBefore && !digitAfter) return pos;
        ++pos;
    }
    return std::string::npos;
}

// The answers of the solution line, each "number unit", in order.
std::vector<double> SolutionNumbers(const std::string& solution) {
    std::vector<double> out;
    std::size_t pos = 0;
    while ((pos = solution.find(" cm", pos)) != std::string::npos) {
        std::size_t start = pos;
        while (start > 0 && solution[start - 1] != ' ') --start;
        out.push_back(ReadNumber(solution.substr(start, pos - start)));
        pos += 3;
    }
    return out;
}

// The words of the parts, perhaps followed by the figure's label; a segment of the
// similarity figures is asked as "Length of" and its name, a hexagon's apothem by name.
bool KnownQuestion(const std::string& question) {
    static const std::vector<std::string> words = {
        "Hypotenuse", "Perimeter", "Area", "Height", "Diagonal", "Length of the other cathetus",
        "Length of altitude", "Length of the side", "Surface area", "Volume", "Space diagonal", "Slant height",
        "Radius", "Length of its edge", "Length of its altitude", "Length of its base"};
    for (const auto& word : words) {
        if (question == word || question.rfind(word + " &+I", 0) == 0) return true;
    }
    return question.rfind("Length of &+I", 0) == 0 || question == "Apothem &+Ia&-I";
}

void PrepareLikeTheRouter(GeneratorWorkspace& ws, int seed) {
    ws.Seed = seed;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(seed);
    for (int i = 0; i < 4; ++i) ws.stream.Draw();
}

// Builds the record of every seed, checks its mathematics against expect(), then checks
// that the routine writes exactly that record, with each answer rounded correctly.
void CheckRoutine(int routine, int types, Builder build, const std::function<Expectation(int, const Shape&)>& expect,
                  int seedCount = 2500) {
    GeneratorHub hub;
    int failures = 0;
    for (int seed = 0; seed < seedCount && failures < 10; ++seed) {
        const int before = ::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
        GeneratorWorkspace ws;
        PrepareLikeTheRouter(ws, seed);
        const GeometryProblem p = build(ws);
        ASSERT_EQ(p.type, seed % types);
        const Expectation e = expect(p.type, p.shape);
        ASSERT_EQ(p.parts.size(), e.answers.size()) << "seed " << seed << " type " << p.type;
        for (const auto& part : p.parts) EXPECT_TRUE(KnownQuestion(part.question)) << part.question;
        for (std::size_t i = 0; i < e.answers.size(); ++i) {
            EXPECT_NEAR(p.parts[i].value, e.answers[i], 1e-9 * std::max(1.0, std::abs(e.answers[i])))
                << "seed " << seed << " type " << p.type << " part " << i;
            EXPECT_GT(p.parts[i].value, 0) << "seed " << seed;
        }
        std::size_t at = 0;
        for (const auto& given : e.givens) {
            const std::size_t found = FindNumber(p.opening, given, at);
            EXPECT_NE(found, std::string::npos) << "seed " << seed << " type " << p.type << ": " << given
                                                << " not in order in " << p.opening;
            if (found != std::string::npos) at = found + given.size();
        }

        const ProblemCodeFields fields{routine, (seed * 7) % 900, seed, seed % 31, 1 + seed % 10, 1};
        const GeneratedProblem g = GenerateProblem(hub, kModule, fields);
        GeneratorWorkspace written;
        WriteGeometryProblem(written, p,
                             routine <= 2 ? GeometryLayout{"&SP=66:", "&SP=69:", false}
                                          : GeometryLayout{"&SP=75:", "&SP=75:", routine == 4});
        EXPECT_EQ(g.statement, written.Statement) << g.code;
        EXPECT_EQ(g.solution, written.Solution) << g.code;
        const std::vector<double> shown = SolutionNumbers(g.solution);
        ASSERT_EQ(shown.size(), e.answers.size()) << g.code << ": " << g.solution;
        for (std::size_t i = 0; i < shown.size(); ++i) {
            // Whole answers exactly, the others to the nearest hundredth.
            EXPECT_NEAR(shown[i], e.answers[i], Whole(e.answers[i]) ? 1e-9 : 0.005 + 1e-9) << g.code << " part " << i;
        }
        if (::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count() != before) ++failures;
    }
}

// The parts of every type, in the words of the figure's labels.
Expectation Pythagorean(int type, const Shape& s) {
    switch (type) {
    case 0: case 2: case 6: case 8: {
        const double b = s.at("b"), c = s.at("c");
        const double a = WholeRoot(b * b + c * c, "hypotenuse");
        const double h = b * c / a, area = b * c / 2, perimeter = a + b + c;
        if (type == 0) {
            EXPECT_TRUE(Whole(h * 100)) << "the given altitude " << h << " has more than two decimals";
            return {{Text(h), Text(b)}, {c, a, area, perimeter}};
        }
        if (type == 2) return {{Text(area), Text(b)}, {c, a, perimeter, h}};
        if (type == 6) return {{Text(a), Text(b)}, {c, area, perimeter, h}};
        return {{Text(perimeter), Text(b)}, {c, a, area}};
    }
    case 1: case 3: case 5: case 7: {
        const double b = s.at("b"), h = s.at("h");
        const double d = WholeRoot(b * b + h * h, "diagonal");
        if (type == 1) return {{Text(d), Text(b)}, {h, b * h, 2 * (b + h)}};
        if (type == 3) return {{Text(h), Text(d)}, {b, b * h, 2 * (b + h)}};
        if (type == 5) return {{Text(b * h), Text(b)}, {h, d, 2 * (b + h)}};
        return {{Text(2 * (b + h)), Text(b)}, {h, d, b * h}};
    }
    default: {
        const double b = s.at("b"), h = s.at("h");
        const double l = WholeRoot(b * b / 4 + h * h, "equal side");
        if (type == 4) return {{Text(b), Text(l)}, {h, b * h / 2, b + 2 * l}};
        return {{Text(h), Text(b)}, {l, b * h / 2, b + 2 * l}};
    }
    }
}

// Recomputes the unknown segments from the given ones, as the pupil does: by the ratio
// of the corresponding sides (and of the areas, as its square).
Expectation SimilarTriangles(int type, const Shape& s) {
    const double ab = s.at("AB"), ac = s.at("AC"), bc = s.at("BC"), ratio = s.at("ratio"), area = s.at("area");
    // Half centimetres, a true triangle, a ratio of the drawn range.
    EXPECT_TRUE(Whole(ab * 2) && Whole(ac * 2) && Whole(bc * 2));
    EXPECT_LT(bc, ab + ac);
    EXPECT_LT(ab, ac + bc);
    EXPECT_LT(ac, ab + bc);
    EXPECT_GT(ratio, 1.2);
    EXPECT_LT(ratio, 2.4);
    const double ad = ab * ratio, ae = ac * ratio, de = bc * ratio, bd = ad - ab, ce = ae - ac;
    for (double v : {ad, ae, de, bd, ce}) EXPECT_TRUE(Whole(v * 2)) << v;
    switch (type) {
    case 0: return {{Text(ab), Text(bd), Text(ac)}, {ac * bd / ab, ac + ac * bd / ab}};
    case 1: return {{Text(ab), Text(bc), Text(ac), Text(ad)}, {bc * ad / ab, ac * ad / ab}};
    case 2: return {{Text(bd), Text(ab), Text(bc)}, {ab + bd, bc * (ab + bd) / ab}};
    case 3: return {{Text(ac), Text(ce), Text(bc)}, {bc * (ac + ce) / ac, ac + ce}};
    case 4: return {{Text(area), Text(ab), Text(ad)}, {area * (ad / ab) * (ad / ab)}};
    case 5: return {{Text(ac), Text(ae), Text(de)}, {de * ac / ae, ae - ac}};
    case 6: return {{Text(ad), Text(ab), Text(ae)}, {ae * ab / ad, ad - ab, ae - ae * ab / ad}};
    case 7: {
        const double large = area * ratio * ratio;
        EXPECT_TRUE(Whole(large));
        return {{Text(area), Text(large), Text(ac)}, {ac * std::sqrt(large / area)}};
    }
    default: return {{Text(ac), Text(ce), Text(ab)}, {ab * ce / ac, ab + ab * ce / ac}};
    }
}

Expectation StraightShapes(int type, const Shape& s) {
    const double r2 = std::sqrt(2.0), r3 = std::sqrt(3.0);
    switch (type) {
    case 0: { const double l = s.at("l"); return {{Text(l)}, {4 * l, l * l, l * r2}}; }
    case 1: case 6: {
        const double D = s.at("D"), d = s.at("d");
        EXPECT_GE(D, d);
        const double l = WholeRoot(D * D / 4 + d * d / 4, "side of the rhombus");
        if (type == 1) return {{Text(l), Text(D)}, {d, 4 * l, D * d / 2}};
        return {{Text(D), Text(d)}, {l, 4 * l, D * d / 2}};
    }
    case 2: {
        const double l = s.at("l"), apothem = l * r3 / 2;
        return {{Text(l)}, {6 * l, apothem, 6 * l * apothem / 2}};
    }
    case 3: { const double l = s.at("l"); return {{Text(l)}, {l * r3 / 2, 3 * l, l * l * r3 / 4}}; }
    case 5: { const double l = s.at("l"); return {{Text(l * l)}, {l, 4 * l, l * r2}}; }
    case 8: {
        const double l = s.at("l");
        EXPECT_TRUE(Whole(l / 2));
        return {{NumberToMarkup(l * l / 4) + "#SQR(3#SQR)"}, {l, 3 * l, l * r3 / 2}};
    }
    case 7: case 12: {
        const double b = s.at("b"), h = s.at("h");
        const double l = WholeRoot(b * b / 4 + h * h, "equal side");
        if (type == 7) return {{Text(b), Text(l)}, {h, b * h / 2, b + 2 * l}};
        return {{Text(b), Text(b * h / 2)}, {h, l, b + 2 * l}};
    }
    case 4: case 13: {
        const double B = s.at("B"), b = s.at("b"), h = s.at("h");
        EXPECT_GT(B, b);
        const double l = WholeRoot((B - b) * (B - b) + h * h, "slanted side");
        const double area = (B + b) * h / 2;
        if (type == 4) return {{Text(B), Text(b), Text(area)}, {h, l, B + b + h + l}};
        return {{Text(B), Text(b), Text(l)}, {h, area, B + b + h + l}};
    }
    case 9: case 14: {
        const double B = s.at("B"), b = s.at("b"), h = s.at("h");
        EXPECT_GT(B, b);
        const double l = WholeRoot((B - b) * (B - b) / 4 + h * h, "non-parallel side");
        const double area = (B + b) * h / 2;
        if (type == 9) return {{Text(B), Text(b), Text(l)}, {h, area, B + b + 2 * l}};
        return {{Text(B), Text(b), Text(h)}, {l, area, B + b + 2 * l}};
    }
    case 10: case 15: {
        const double b = s.at("b"), h = s.at("h");
        const double d = WholeRoot(b * b + h * h, "diagonal");
        if (type == 10) return {{Text(b), Text(d)}, {h, 2 * (b + h), b * h}};
        return {{Text(b * h), Text(b)}, {h, d, 2 * (b + h)}};
    }
    case 11: {
        const double b = s.at("b"), l = s.at("l"), h = s.at("h");
        EXPECT_LT(h, l);
        return {{Text(b), Text(l), Text(h)}, {b * h, 2 * (b + l)}};
    }
    case 16: {
        const double l = s.at("l"), a = s.at("a");
        EXPECT_NEAR(a, l * (1 + r2) / 2, 0.005 + 1e-9);
        return {{Text(l), Text(a)}, {8 * l, 8 * l * a / 2}};
    }
    default: {
        const double b = s.at("b"), h = s.at("h");
        return {{Text(b), Text(h)}, {b * h / 2}};
    }
    }
}

Expectation CurvedShapes(int type, const Shape& s) {
    const double pi = kPiValue;
    switch (type) {
    case 0: { const double r = s.at("r"); return {{Text(r)}, {2 * pi * r, pi * r * r}}; }
    case 1: {
        const double r = s.at("r"), a = s.at("angle");
        return {{Text(r), Angle(a)}, {pi * r * r * a / 360, 2 * r + 2 * pi * r * a / 360}};
    }
    case 2: {
        const double R = s.at("R"), r = s.at("r"), a = s.at("angle");
        EXPECT_LT(r, R);
        return {{Text(R), Text(r), Angle(a)},
                {pi * (R * R - r * r) * a / 360, 2 * (R - r) + 2 * pi * (R + r) * a / 360}};
    }
    case 3: { const double r = s.at("r"); return {{Pi(2 * r)}, {r, pi * r * r}}; }
    case 4: {
        const double R = s.at("R"), r = s.at("r");
        EXPECT_LT(r, R);
        return {{Text(R), Text(r)}, {pi * (R * R - r * r), 2 * pi * (R + r)}};
    }
    case 5: {
        const double r = s.at("r"), a = s.at("angle");
        EXPECT_TRUE(Whole(r * r * a / 360));
        return {{Pi(r * r * a / 360), Angle(a)}, {r}};
    }
    case 6: { const double r = s.at("r"); return {{Pi(r * r)}, {r, 2 * pi * r}}; }
    default: {
        const double R = s.at("R"), r = s.at("r");
        EXPECT_LT(r, R);
        return {{Text(R), Pi(R * R - r * r)}, {r, 2 * pi * (R + r)}};
    }
    }
}

Expectation PlaneSolids(int type, const Shape& s) {
    switch (type) {
    case 0: case 3: case 6: {
        const double e = s.at("a"), d = e * std::sqrt(3.0);
        if (type == 0) return {{Text(e)}, {6 * e * e, e * e * e, d}};
        if (type == 3) return {{Text(e * e * e)}, {e, 6 * e * e, d}};
        return {{Text(6 * e * e)}, {e, e * e * e, d}};
    }
    case 2: case 5: case 8: {
        const double a = s.at("a"), h = s.at("h");
        const double g = WholeRoot(h * h + a * a / 4, "slant height");
        const double area = a * a + 4 * (a * g / 2), volume = a * a * h / 3;
        if (type == 2) return {{Text(a), Text(g)}, {h, area, volume}};
        EXPECT_TRUE(Whole(volume)) << "given volume " << volume;
        if (type == 5) return {{Text(h), Text(volume)}, {a, g, area}};
        return {{Text(a), Text(volume)}, {h, g, area}};
    }
    case 11: {
        const double l = s.at("l"), h = s.at("h");
        const double base = 6 * (l * (l * std::sqrt(3.0) / 2) / 2);
        return {{Text(l), Text(h)}, {6 * l * h + 2 * base, base * h}};
    }
    default: {
        const double a = s.at("a"), b = s.at("b"), c = s.at("c");
        const double d = WholeRoot(a * a + b * b + c * c, "space diagonal");
        const double area = 2 * (a * b + b * c + c * a), volume = a * b * c;
        if (type == 1 || type == 9) {
            EXPECT_EQ(a, b) << "the base is a square";
        }
        if (type == 1) return {{Text(a), Text(volume)}, {c, d, area}};
        if (type == 9) return {{Text(a), Text(c)}, {d, area, volume}};
        if (type == 4) return {{Text(a), Text(b), Text(c)}, {d, area, volume}};
        if (type == 7) return {{Text(a), Text(b), Text(volume)}, {c, d, area}};
        return {{Text(a), Text(b), Text(d)}, {c, volume, area}};
    }
    }
}

Expectation CurvedSolids(int type, const Shape& s) {
    const double pi = kPiValue;
    const double r = s.at("r");
    switch (type) {
    case 0: case 3: case 6: {
        const double h = s.at("h"), area = 2 * pi * r * r + 2 * pi * r * h, volume = pi * r * r * h;
        if (type == 0) return {{Text(r), Text(h)}, {area, volume}};
        if (type == 3) return {{Text(r), Pi(r * r * h)}, {h, area}};
        return {{Text(h), Pi(r * r * h)}, {r, area}};
    }
    case 1: case 4: case 7: {
        const double h = s.at("h"), g = WholeRoot(r * r + h * h, "slant height");
        const double area = pi * r * r + pi * r * g, volume = pi * r * r * h / 3;
        if (type == 1) return {{Text(r), Text(h)}, {g, area, volume}};
        if (type == 4) {
            EXPECT_TRUE(Whole(r * r * h / 3));
            return {{Text(r), Pi(r * r * h / 3)}, {h, g, area}};
        }
        return {{Text(g), Text(r)}, {h, area, volume}};
    }
    default: {
        const double area = 4 * pi * r * r, volume = 4 * pi * r * r * r / 3;
        if (type == 2) return {{Text(r)}, {area, volume}};
        if (type == 5) {
            EXPECT_TRUE(Whole(4 * r * r * r / 3));
            return {{Pi(4 * r * r * r / 3)}, {r, area}};
        }
        return {{Pi(4 * r * r)}, {r, volume}};
    }
    }
}
} // namespace

TEST(BasicGeometry, PythagoreanTheoremMathematics) { CheckRoutine(1, 10, BuildPythagoreanProblem, Pythagorean); }
TEST(BasicGeometry, SimilarityMathematics) { CheckRoutine(2, 9, BuildSimilarityProblem, SimilarTriangles); }
TEST(BasicGeometry, StraightShapesMathematics) { CheckRoutine(3, 18, BuildStraightShapeProblem, StraightShapes); }
TEST(BasicGeometry, CurvedShapesMathematics) { CheckRoutine(4, 8, BuildCurvedShapeProblem, CurvedShapes); }
TEST(BasicGeometry, PlaneSolidsMathematics) { CheckRoutine(5, 12, BuildPlaneSolidProblem, PlaneSolids); }
TEST(BasicGeometry, CurvedSolidsMathematics) { CheckRoutine(6, 9, BuildCurvedSolidProblem, CurvedSolids); }
