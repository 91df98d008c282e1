#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "generators/hub.h"
#include "calculus_checks.h"
#include "support/generator_sweep.h"

namespace {
using Predicate = std::function<bool(double)>;

// Reads a written domain back as a test of membership.
Predicate ReadDomain(const std::string& text) {
    if (text == "&real") return [](double) { return true; };
    const std::string except = "&real - { ";
    if (text.rfind(except, 0) == 0) {
        std::vector<double> points;
        std::string list = text.substr(except.size(), text.find(" }") - except.size());
        std::size_t pos = 0;
        while (pos < list.size()) {
            auto next = list.find(",  ", pos);
            if (next == std::string::npos) next = list.size();
            points.push_back(std::stod(list.substr(pos, next - pos)));
            pos = next + 3;
        }
        return [points](double x) {
            for (double p : points)
                if (x == p) return false;
            return true;
        };
    }
    std::vector<Predicate> parts;
    std::size_t pos = 0;
    while (pos < text.size()) {
        auto next = text.find(" &union ", pos);
        if (next == std::string::npos) next = text.size();
        const std::string part = text.substr(pos, next - pos);
        const bool closedLow = part[0] == '[';
        const bool closedHigh = part.back() == ']';
        const std::string inner = part.substr(closedLow ? 2 : 3, part.size() - (closedLow ? 2 : 3) - (closedHigh ? 2 : 3));
        const auto comma = inner.find(" ,  ");
        const std::string lowText = inner.substr(0, comma), highText = inner.substr(comma + 4);
        const double low = lowText == "-&oo" ? -HUGE_VAL : std::stod(lowText);
        const double high = highText == "+&oo" ? HUGE_VAL : std::stod(highText);
        parts.push_back([=](double x) {
            return (closedLow ? x >= low : x > low) && (closedHigh ? x <= high : x < high);
        });
        pos = next + 8;
    }
    return [parts](double x) {
        for (const auto& p : parts)
            if (p(x)) return true;
        return false;
    };
}

void CheckDomains(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(items.size(), static_cast<std::size_t>(std::clamp(p.fields.ItemCount, 1, 20))) << p.code;
    ASSERT_EQ(answers.size(), items.size());
    const std::string head = "&+If&-I (&+Ix&-I) = ";
    for (std::size_t i = 0; i < items.size() && i < 4; ++i) {
        ASSERT_EQ(items[i].rfind(head, 0), 0u) << items[i];
        const std::string f = items[i].substr(head.size());
        if (answers[i].find("&perte") != std::string::npos) {
            // The trigonometric denominators: the answer names their zeros.
            const bool cosine = f.find("#N)(&-Icos &+Ix&-I#COC)") != std::string::npos;
            EXPECT_EQ(answers[i], cosine ? "&real - { (&+I2k&-I + 1) &pi/2 },  &+Ik&-I &perte&+I Z&-I"
                                         : "&real - { &+Ik&-I &pi },  &+Ik&-I &perte&+I Z&-I")
                << p.code << " " << items[i];
            continue;
        }
        const Predicate inDomain = ReadDomain(answers[i]);
        const MarkupFormula formula(f);
        // Whole points (every end of these domains is whole) and points between them.
        for (double x = -15; x <= 15; x += 0.5) {
            EXPECT_EQ(std::isfinite(formula.RealAt(x)), inDomain(x))
                << p.code << " at x = " << x << ": " << items[i] << " -> " << answers[i];
        }
    }
}
} // namespace

TEST(Domains, Sweep) { SweepRoutine("KVOL_MATH_LFD", 67, 2000, CheckDomains); }

TEST(Domains, HeadLineAndCount) {
    GeneratorHub hub;
    const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_LFD", {67, 0, 77, 25, 1, 1});
    EXPECT_EQ(p.statement.rfind("Find the domain of the following functions:&LF&SP=5:&+Ba)&-B&+I &+If&-I (&+Ix&-I) = ", 0),
              0u);
    EXPECT_EQ(StatementItems(p.statement).size(), 20u);
}
