#include <gtest/gtest.h>

#include <cmath>

#include "../lfd/calculus_checks.h"
#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
std::string Between(const std::string& text, const std::string& open, const std::vector<std::string>& closes,
                    std::size_t from = 0) {
    const auto at = text.find(open, from);
    if (at == std::string::npos) return "";
    const auto start = at + open.size();
    std::size_t end = std::string::npos;
    for (const auto& c : closes) end = std::min(end, text.find(c, start));
    return text.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

// The integral of |f - g| over [low, high], by Simpson's rule on each unit step: the
// crossing points of these problems are whole numbers, so no kink falls inside a panel.
double AbsoluteArea(const std::string& f, const std::string& g, double low, double high) {
    double total = 0;
    for (double a = low; a < high - 1e-9; a += 1) {
        const int n = 64;
        const double h = 1.0 / n;
        double s = 0;
        for (int i = 0; i <= n; ++i) {
            const double x = a + i * h;
            const double v = std::fabs(ReadMarkupAt(f, x) - (g.empty() ? 0 : ReadMarkupAt(g, x)));
            s += v * (i == 0 || i == n ? 1 : (i % 2 ? 4 : 2));
        }
        total += s * h / 3;
    }
    return total;
}

const std::string kY = "&+Iy&-I& =& ";
const std::string kXIs = "&+Ix&-I& =& ";

// The exact area of the solution, and its rounded value when there is one.
void CheckAreaAnswer(const GeneratedProblem& p, double numeric) {
    const std::string exact = Between(p.solution, "Area = ", {" &iorden", " u^2"});
    ASSERT_FALSE(exact.empty()) << p.code << " " << p.solution;
    const double value = ReadMarkupAt(exact, 0);
    EXPECT_GT(value, 0) << p.code;
    EXPECT_NEAR(value, numeric, 1e-6 * std::max(1.0, numeric)) << p.code << "\n" << p.statement << "\n" << p.solution;
    const std::string rounded = Between(p.solution, "&iorden ", {" u^2"});
    if (!rounded.empty()) {
        EXPECT_NEAR(ReadMarkupAt(rounded, 0), value, 0.0051) << p.code << " " << p.solution;
    }
    EXPECT_EQ(p.solution.substr(p.solution.size() - 8), " u^2.&LF") << p.code;
}

void CheckOneFunctionArea(const GeneratedProblem& p) {
    const std::string f = Between(p.statement, kY, {",  ", " and the"});
    ASSERT_FALSE(f.empty()) << p.statement;
    double low, high;
    if (p.statement.find("the parabola") != std::string::npos) {
        // Between the parabola and the axis: the limits are its crossing points.
        const std::string roots = Between(p.solution, kXIs, {".&LF"});
        const auto comma = roots.find(",  ");
        low = std::stod(roots.substr(0, comma));
        high = std::stod(roots.substr(comma + 3));
        EXPECT_NEAR(ReadMarkupAt(f, low), 0, 1e-9);
        EXPECT_NEAR(ReadMarkupAt(f, high), 0, 1e-9);
    } else {
        low = std::stod(Between(p.statement, kXIs, {"  and"}));
        high = std::stod(Between(p.statement, "and  " + kXIs, {".&LF"}));
    }
    ASSERT_LT(low, high) << p.code;
    // The crossing points the solution names are roots of the curve.
    const std::string roots = Between(p.solution, "axis at  " + kXIs, {".&LF"});
    if (!roots.empty()) {
        std::size_t pos = 0;
        while (pos < roots.size()) {
            auto next = roots.find(",  ", pos);
            if (next == std::string::npos) next = roots.size();
            EXPECT_NEAR(ReadMarkupAt(f, std::stod(roots.substr(pos, next - pos))), 0, 1e-9) << p.code;
            pos = next + 3;
        }
    }
    CheckAreaAnswer(p, AbsoluteArea(f, "", low, high));
}
} // namespace

TEST(Areas, SweepOneFunction) { SweepRoutine("KVOL_MATH_INT", 3, 2000, CheckOneFunctionArea); }

TEST(Areas, BandsOfDifficultyThroughTheGroup) {
    GeneratorHub hub;
    auto kindOf = [](const GeneratedProblem& p) {
        if (p.statement.find("the parabola") != std::string::npos) return 8;
        if (p.statement.find("ln_") != std::string::npos) return 3;
        if (p.statement.find("#EXP(") != std::string::npos) return 2;
        // p·x + q/x + c has its fraction after a plus; the hyperbola a/(x + b) stands alone.
        if (p.statement.find("#COC(") != std::string::npos)
            return p.statement.find("& +& #COC(") != std::string::npos ? 1 : 7;
        return 0;  // a polynomial between lines: 4, 5 or 6
    };
    for (int seed = 10; seed < SweepSeedCount(8000); seed += 271) {
        // A group of nine: indexes 1-2 (11 %, 22 %), 3 (33 %) first band; 4-6 second; 7-9 third.
        for (int i = 1; i <= 9; ++i) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {3, seed, seed + i, 0, 9, i});
            const int kind = kindOf(p);
            if (i <= 3) EXPECT_TRUE(kind == 0 || kind == 8) << p.code << " " << p.statement;
            else if (i <= 6) EXPECT_TRUE(kind == 0 || kind == 7) << p.code << " " << p.statement;
            else EXPECT_TRUE(kind == 1 || kind == 2 || kind == 3) << p.code << " " << p.statement;
        }
    }
    // Index 3 of 9 gives 4 + 0: a parabola between lines; index 2 of 9 gives 6, read as 8.
    EXPECT_EQ(kindOf(GenerateProblem(hub, "KVOL_MATH_INT", {3, 0, 5, 0, 9, 2})), 8);
}

TEST(Areas, WordingsByTheGroupIndex) {
    GeneratorHub hub;
    // Index 4 of 6 (66 %) is type 6: between lines, with the wording of index mod 4 = 0.
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {3, 0, 5, 0, 6, 4});
    EXPECT_EQ(p.statement.rfind("Calculate the area between the curve  &+Iy&-I& =& ", 0), 0u) << p.statement;
    EXPECT_NE(p.statement.find(",  the &+IX&-I axis and the vertical lines  &+Ix&-I& =& "), std::string::npos);
    const GeneratedProblem q = GenerateProblem(hub, "KVOL_MATH_INT", {3, 1, 5, 0, 6, 5});
    EXPECT_EQ(q.statement.rfind("Let the curve  &+Iy&-I& =& ", 0), 0u) << q.statement;
    EXPECT_NE(q.statement.find(",  find the area between this curve, the &+IX&-I axis and the lines  "),
              std::string::npos);
}

TEST(Areas, GroupSizeZeroIsADivisionByZero) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {3, 0, 5, 0, 0, 1});
    EXPECT_EQ(p.statement.rfind("<ERROR>  Number= 11", 0), 0u) << p.statement;
}

TEST(Areas, SweepTwoFunctions) {
    SweepRoutine("KVOL_MATH_INT", 4, 2000, [](const GeneratedProblem& p) {
        const int type = p.fields.Seed % 4;
        if (type == 0) {
            const std::string parabola = Between(p.statement, kY, {" and the line"});
            const std::string line = Between(p.statement, "the line  " + kY, {".&LF"});
            const double x1 = std::stod(Between(p.solution, kXIs, {"  and"}));
            const double x2 = std::stod(Between(p.solution, "and  " + kXIs, {".&LF"}));
            EXPECT_NEAR(ReadMarkupAt(parabola, x1), ReadMarkupAt(line, x1), 1e-9) << p.code;
            EXPECT_NEAR(ReadMarkupAt(parabola, x2), ReadMarkupAt(line, x2), 1e-9) << p.code;
            CheckAreaAnswer(p, AbsoluteArea(parabola, line, x1, x2));
        } else if (type == 1) {
            const std::string hyperbola = Between(p.statement, kY, {" and the line"});
            const double x1 = std::stod(Between(p.statement, "points " + kXIs, {"  and"}));
            const double x2 = std::stod(Between(p.statement, "and  " + kXIs, {".&LF"}));
            const std::string line = Between(p.solution, kY, {".&LF"});
            EXPECT_NEAR(ReadMarkupAt(hyperbola, x1), ReadMarkupAt(line, x1), 1e-9) << p.code;
            EXPECT_NEAR(ReadMarkupAt(hyperbola, x2), ReadMarkupAt(line, x2), 1e-9) << p.code;
            CheckAreaAnswer(p, AbsoluteArea(hyperbola, line, x1, x2));
        } else {
            // The parameter of the answer gives back the area of the statement.
            const std::string area = Between(p.statement, "axis is  ", {".  Find", "  and  "});
            const double a = std::stod(Between(p.solution, " = ", {".&LF"}));
            EXPECT_GT(a, 0);
            const std::string curve = type == 2 ? "#COC(" + std::to_string(int(a)) + "x - x^2#N)(1#COC)"
                                                : std::to_string(int(a)) + "x^2 - x^3";
            EXPECT_NEAR(AbsoluteArea(curve, "", 0, a), ReadMarkupAt(area, 0), 1e-9) << p.code;
        }
    });
}

TEST(Areas, TwoFunctionTypesFollowTheSeed) {
    GeneratorHub hub;
    const char* openings[] = {"Calculate the area between the parabola  &+Iy&-I& =& ",
                              "Calculate the area between the hyperbola  &+Iy&-I& =& ",
                              "The area between the parabola  &+Iy&-I& =& &+I", "The curve  &+Iy&-I& =& &+I"};
    for (int seed = 40; seed < 60; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_INT", {4, seed, seed, 0, 1, 1});
        EXPECT_EQ(p.statement.rfind(openings[seed % 4], 0), 0u) << p.statement;
    }
}
