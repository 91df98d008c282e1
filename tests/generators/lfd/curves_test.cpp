#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "generators/hub.h"
#include "calculus_checks.h"
#include "support/generator_sweep.h"

namespace {
const std::string kY = "&+Iy&-I = ";

std::string Strip(const std::string& text, const std::string& head) {
    EXPECT_EQ(text.rfind(head, 0), 0u) << text;
    return text.substr(head.size());
}

double Slope(const MarkupFormula& f, double x) {
    const double h = 1e-6;
    return (f.RealAt(x + h) - f.RealAt(x - h)) / (2 * h);
}

void CheckTangents(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(items.size(), static_cast<std::size_t>(std::clamp(p.fields.ItemCount, 1, 20))) << p.code;
    ASSERT_EQ(answers.size(), items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::string at = ",     &+Ix&-I_0 = ";
        const auto split = items[i].find(at);
        ASSERT_NE(split, std::string::npos) << items[i];
        const MarkupFormula f(Strip(items[i].substr(0, split), kY));
        const double x0 = std::stod(items[i].substr(split + at.size()));
        const double y0 = f.RealAt(x0), m = Slope(f, x0);
        ASSERT_TRUE(std::isfinite(y0)) << p.code << " " << items[i];
        const auto comma = answers[i].find(",     ");
        const std::string tangent = Strip(answers[i].substr(0, comma), kY);
        const std::string second = answers[i].substr(comma + 6);
        EXPECT_NEAR(ReadMarkupAt(tangent, x0), y0, 1e-9) << p.code << " " << items[i] << " -> " << answers[i];
        EXPECT_NEAR(ReadMarkupAt(tangent, x0 + 1) - ReadMarkupAt(tangent, x0), m, 1e-5 * std::max(1.0, std::fabs(m)))
            << p.code << " " << items[i] << " -> " << answers[i];
        if (second.rfind("&+Ix&-I = ", 0) == 0) {
            // A horizontal tangent and a vertical normal through the point.
            EXPECT_NEAR(m, 0, 1e-6) << p.code;
            EXPECT_EQ(std::stod(second.substr(10)), x0) << p.code;
        } else {
            const std::string normal = Strip(second, kY);
            EXPECT_NEAR(ReadMarkupAt(normal, x0), y0, 1e-9) << p.code << " " << answers[i];
            const double n = ReadMarkupAt(normal, x0 + 1) - ReadMarkupAt(normal, x0);
            EXPECT_NEAR(n * m, -1, 1e-5) << p.code << " " << items[i] << " -> " << answers[i];
        }
    }
}

void CheckExtrema(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(items.size(), static_cast<std::size_t>(std::clamp(p.fields.ItemCount, 1, 21))) << p.code;
    ASSERT_EQ(answers.size(), items.size());
    // Two items per problem are plenty over a thousand problems.
    for (std::size_t i = 0; i < items.size() && i < 2; ++i) {
        const MarkupFormula f(Strip(items[i], kY));
        int listed = 0;
        std::size_t pos = 0;
        while ((pos = answers[i].find(" (", pos)) != std::string::npos) {
            const std::string kind = answers[i].substr(pos - 3, 3);
            const auto sep = answers[i].find("&, ", pos);
            const auto close = answers[i].find(")", pos);
            const double x = std::stod(answers[i].substr(pos + 2, sep - pos - 2));
            const double y = std::stod(answers[i].substr(sep + 3, close - sep - 3));
            EXPECT_NEAR(f.RealAt(x), y, 1e-9) << p.code << " " << items[i];
            EXPECT_NEAR(Slope(f, x), 0, 1e-5) << p.code << " " << items[i];
            const double bend = f.RealAt(x + 0.01) + f.RealAt(x - 0.01) - 2 * y;
            EXPECT_EQ(kind, bend > 0 ? "Min" : "Max") << p.code << " " << items[i] << " -> " << answers[i];
            ++listed;
            pos = close;
        }
        // Every change of sign of the slope is listed (the critical points lie in -4..4).
        int changes = 0;
        double previous = Slope(f, -6.0137);
        for (double x = -6.0137 + 0.1; x < 6; x += 0.1) {
            const double s = Slope(f, x);
            if ((s > 0) != (previous > 0)) ++changes;
            previous = s;
        }
        EXPECT_EQ(listed, changes) << p.code << " " << items[i] << " -> " << answers[i];
    }
}
} // namespace

TEST(Curves, SweepTangentAndNormal) { SweepRoutine("KVOL_MATH_LFD", 29, 2000, CheckTangents); }
TEST(Curves, SweepMaximumsAndMinimums) {
    // The scan for changes of slope is dear: every other problem is enough for it.
    SweepRoutine("KVOL_MATH_LFD", 33, 2000, [](const GeneratedProblem& p) {
        if (p.fields.Seed % 2 == 0) CheckExtrema(p);
    });
}

TEST(Curves, HeadLinesAndCounts) {
    GeneratorHub hub;
    const GeneratedProblem t = GenerateProblem(hub, "KVOL_MATH_LFD", {29, 0, 5, 30, 1, 1});
    EXPECT_EQ(t.statement.rfind("Calculate the tangent and normal lines to the following curves at the given "
                                "points:&LF&SP=5:&+Ba)&-B&+I ",
                                0),
              0u);
    EXPECT_EQ(StatementItems(t.statement).size(), 20u);
    const GeneratedProblem m = GenerateProblem(hub, "KVOL_MATH_LFD", {33, 0, 5, 30, 1, 1});
    EXPECT_EQ(m.statement.rfind("Find the maximums and minimums of these functions:&LF&SP=5:&+Ba)&-B&+I ", 0), 0u);
    EXPECT_EQ(StatementItems(m.statement).size(), 21u);
}
