#include <gtest/gtest.h>

#include <cmath>

#include "generators/hub.h"
#include "calculus_checks.h"
#include "mathservices/number_markup.h"
#include "support/generator_sweep.h"

#include <set>

namespace {
struct PieceRow {
    std::string expression;
    std::string relation;  // "<", "&>=", "=", ">"
    double point;
};

std::vector<PieceRow> ReadRows(const std::string& statement, const std::string& condition) {
    std::vector<PieceRow> rows;
    for (int n = 1; n <= 3; ++n) {
        const std::string open = "#RW" + std::to_string(n) + "( ", close = " #RW" + std::to_string(n) + ")";
        const auto at = statement.find(open);
        if (at == std::string::npos) break;
        const std::string row = statement.substr(at + open.size(), statement.find(close) - at - open.size());
        const auto split = row.find(condition);
        EXPECT_NE(split, std::string::npos) << row;
        const std::string rest = row.substr(split + condition.size());
        const auto blank = rest.find(' ');
        rows.push_back({row.substr(0, split), rest.substr(0, blank), std::stod(rest.substr(blank + 1))});
    }
    return rows;
}

bool Holds(const PieceRow& r, double x) {
    if (r.relation == "<") return x < r.point;
    if (r.relation == "&>=") return x >= r.point;
    if (r.relation == ">") return x > r.point;
    return x == r.point;
}

double Value(const std::vector<PieceRow>& rows, double x) {
    for (const auto& r : rows)
        if (Holds(r, x)) return ReadMarkupAt(r.expression, x);
    ADD_FAILURE() << "no row holds at " << x;
    return NAN;
}

std::string LastLine(const std::string& solution) {
    const std::string body = solution.substr(0, solution.size() - 3);
    return body.substr(body.rfind("&LF") + 3);
}

void CheckContinuity(const GeneratedProblem& p) {
    const auto rows = ReadRows(p.statement, "     &SP=16:if  &+Ix&-I ");
    ASSERT_GE(rows.size(), 2u) << p.statement;
    const double x0 = rows[0].point;
    EXPECT_NE(p.statement.find("at the point &+Ix&-I = " + PlainNumberText(x0)), std::string::npos);
    const double left = Value(rows, x0 - 1e-8), right = Value(rows, x0 + 1e-8), value = Value(rows, x0);
    std::string expected;
    if (std::fabs(left) > 1e6 || std::fabs(right) > 1e6) expected = "Essential discontinuity";
    else if (std::fabs(left - right) > 1e-5) expected = "Jump discontinuity";
    else if (std::fabs(value - left) > 1e-5) expected = "Removable discontinuity";
    else expected = "Continuous";
    EXPECT_EQ(LastLine(p.solution), expected) << p.code << "\n" << p.statement << "\n" << p.solution;
}

void CheckDerivability(const GeneratedProblem& p) {
    const auto rows = ReadRows(p.statement, "&SP=17:if  &+Ix&-I ");
    ASSERT_EQ(rows.size(), 2u) << p.statement;
    const double x0 = rows[0].point, h = 1e-6;
    const double left = Value(rows, x0 - 1e-9), right = Value(rows, x0);
    std::string expected;
    if (std::fabs(left - right) > 1e-5) {
        expected = "Has a jump discontinuity and hasn't derivative.";
    } else {
        const double dl = (ReadMarkupAt(rows[0].expression, x0) - ReadMarkupAt(rows[0].expression, x0 - h)) / h;
        const double dr = (Value(rows, x0 + h) - Value(rows, x0)) / h;
        expected = std::fabs(dl - dr) > 1e-3 ? "Continuous and hasn't derivative." : "Continuous and has derivative.";
        // The one-sided derivatives of the solution are those of the pieces.
        const std::string marker = "&+If&-I_ '_ (";
        const auto at = p.solution.find(marker);
        ASSERT_NE(at, std::string::npos) << p.solution;
        const auto eq = p.solution.find(") = ", at);
        const double written = std::stod(p.solution.substr(eq + 4));
        EXPECT_NEAR(written, dl, 1e-3) << p.code << " " << p.solution;
    }
    EXPECT_EQ(LastLine(p.solution), expected) << p.code << "\n" << p.statement << "\n" << p.solution;
}
} // namespace

TEST(Continuity, SweepContinuity) { SweepRoutine("KVOL_MATH_LFD", 68, 2500, CheckContinuity); }
TEST(Continuity, SweepDerivability) { SweepRoutine("KVOL_MATH_LFD", 69, 2500, CheckDerivability); }

TEST(Continuity, EveryVerdictOccurs) {
    GeneratorHub hub;
    std::set<std::string> continuity, derivability;
    for (int seed = 0; seed < 200; ++seed) {
        continuity.insert(LastLine(GenerateProblem(hub, "KVOL_MATH_LFD", {68, 0, seed, 0, 1, 1}).solution));
        derivability.insert(LastLine(GenerateProblem(hub, "KVOL_MATH_LFD", {69, 0, seed, 0, 1, 1}).solution));
    }
    EXPECT_EQ(continuity, (std::set<std::string>{"Continuous", "Removable discontinuity", "Jump discontinuity",
                                                  "Essential discontinuity"}));
    EXPECT_EQ(derivability, (std::set<std::string>{"Has a jump discontinuity and hasn't derivative.",
                                                    "Continuous and hasn't derivative.",
                                                    "Continuous and has derivative."}));
}
