#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "generators/hub.h"
#include "mathservices/poly_markup.h"
#include "support/generator_sweep.h"
#include "support/markup_reader.h"

// A line given as the meeting of two planes must be read back as a line: the two
// equations of every two-row brace of a statement have normals that are not parallel.

namespace {
using Row = std::array<long long, 4>;  // a·x + b·y + c·z = d, as printed

// One printed equation "left = right" in x, y, z as whole coefficients; false when the
// text is not a linear equation with whole coefficients.
bool ReadPlaneRow(const std::string& text, Row& row) {
    const auto at = text.find('=');
    if (at == std::string::npos || text.find('=', at + 1) != std::string::npos) return false;
    std::string left = text.substr(0, at), right = text.substr(at + 1);
    while (left.size() >= 2 && left.compare(left.size() - 2, 2, "& ") == 0) left.erase(left.size() - 2);
    while (right.rfind("& ", 0) == 0) right.erase(0, 2);
    try {
        const MarkupFormula l(left), r(right);
        auto value = [&](double x, double y, double z) {
            const RealValues v{{'x', x}, {'y', y}, {'z', z}};
            return l.Real(v) - r.Real(v);
        };
        const double base = value(0, 0, 0);
        const double read[4] = {value(1, 0, 0) - base, value(0, 1, 0) - base, value(0, 0, 1) - base, -base};
        // Linear: the value at (2, 3, 5) follows from the four numbers.
        if (std::fabs(value(2, 3, 5) - (2 * read[0] + 3 * read[1] + 5 * read[2] + base)) > 1e-9) return false;
        for (int i = 0; i < 4; ++i) {
            if (std::fabs(read[i] - std::round(read[i])) > 1e-9) return false;
            row[i] = std::llround(read[i]);
        }
    } catch (const UnreadableMarkup&) {
        return false;
    }
    return true;
}

// Empty when every brace of exactly two rows in the text is two planes with normals that
// are not parallel; otherwise the first brace that is not.
std::string FirstDependentPlanePair(const std::string& text) {
    const std::string open = "#NES({X#RWS(L";
    for (auto at = text.find(open); at != std::string::npos; at = text.find(open, at + 1)) {
        const auto end = text.find("#RWS)#NES)", at);
        if (end == std::string::npos) return text.substr(at);
        const std::string brace = text.substr(at, end + 10 - at);
        if (brace.find("#RW3(") != std::string::npos) continue;
        std::array<Row, 2> rows;
        for (int r = 0; r < 2; ++r) {
            const std::string tag = "#RW" + std::to_string(r + 1);
            const auto from = brace.find(tag + "(");
            const auto to = brace.find(tag + ")");
            if (from == std::string::npos || to == std::string::npos || to < from) return brace;
            if (!ReadPlaneRow(brace.substr(from + 5, to - from - 5), rows[r])) return brace;
        }
        const Row& p = rows[0];
        const Row& q = rows[1];
        const bool parallel = p[1] * q[2] - p[2] * q[1] == 0 && p[2] * q[0] - p[0] * q[2] == 0 &&
                              p[0] * q[1] - p[1] * q[0] == 0;
        if (parallel) return brace;
    }
    return "";
}

std::string PlanePair(const std::string& first, const std::string& second) {
    return "&+IL&-I& :& #NES({X#RWS(L#RW1(" + first + "#RW1)#RW2(" + second + "#RW2)#RWS)#NES)";
}

// The brace of a line through p with direction v in the pair-of-planes form.
std::string GeneralLine(const std::array<double, 3>& p, const std::array<double, 3>& v) {
    MathWorkspace ws;
    LineData line;
    line.dimension = 3;
    line.point = p;
    line.direction = v;
    return VectorFormToMarkup(ws, line, LineForm::General, "");
}

// Every point of the line p + t·v solves both printed planes.
bool PairHoldsLine(const std::string& brace, const std::array<double, 3>& p, const std::array<double, 3>& v) {
    for (int r = 0; r < 2; ++r) {
        const std::string tag = "#RW" + std::to_string(r + 1);
        const auto from = brace.find(tag + "(");
        const auto to = brace.find(tag + ")");
        Row row;
        if (from == std::string::npos || to == std::string::npos) return false;
        if (!ReadPlaneRow(brace.substr(from + 5, to - from - 5), row)) return false;
        for (double t : {0.0, 1.0}) {
            const double value = row[0] * (p[0] + t * v[0]) + row[1] * (p[1] + t * v[1]) + row[2] * (p[2] + t * v[2]);
            if (value != row[3]) return false;
        }
    }
    return true;
}
} // namespace

TEST(LinePlanes, ReadsIndependentAndRefusesRepeatedPlanes) {
    EXPECT_EQ(FirstDependentPlanePair(PlanePair("&+Iy&-I& -& 9& =& 0", "&+Ix&-I& +& &+Iz&-I& -& 5& =& 0")), "");
    // The printed fault: the same plane twice, and a multiple of one plane.
    EXPECT_NE(FirstDependentPlanePair(PlanePair("&+Iy&-I& -& 9& =& 0", "&+Iy&-I& -& 9& =& 0")), "");
    EXPECT_NE(FirstDependentPlanePair(PlanePair("&+Ix&-I& -& &+Iz&-I& =& 1", "2&+Ix&-I& -& 2&+Iz&-I& =& 7")), "");
    // One coefficient changed turns an independent pair into parallel planes.
    EXPECT_EQ(FirstDependentPlanePair(PlanePair("&+Ix&-I& -& &+Iz&-I& =& 1", "2&+Ix&-I& -& 3&+Iz&-I& =& 7")), "");
    EXPECT_NE(FirstDependentPlanePair(PlanePair("&+Ix&-I& -& &+Iz&-I& =& 1", "unreadable")), "");
}

TEST(LinePlanes, EveryDirectionGivesTwoIndependentPlanesThroughTheLine) {
    // All directions with components -2..2 (zeros included) through two points.
    for (const std::array<double, 3> p : {std::array<double, 3>{0, 0, 0}, std::array<double, 3>{3, -9, 5}}) {
        for (int a = -2; a <= 2; ++a)
            for (int b = -2; b <= 2; ++b)
                for (int c = -2; c <= 2; ++c) {
                    if (a == 0 && b == 0 && c == 0) continue;
                    const std::array<double, 3> v{double(a), double(b), double(c)};
                    const std::string brace = GeneralLine(p, v);
                    EXPECT_EQ(FirstDependentPlanePair(brace), "") << a << " " << b << " " << c;
                    EXPECT_TRUE(PairHoldsLine(brace, p, v)) << brace;
                    // A direction one step off is not in both planes.
                    if (b == 0 && c == 0) continue;
                    std::array<double, 3> w = v;
                    w[0] += 1;
                    EXPECT_FALSE(PairHoldsLine(brace, p, w)) << brace;
                }
    }
}

TEST(LinePlanes, ReportedCodesPrintTwoIndependentPlanes) {
    GeneratorHub hub;
    for (const char* code : {"0020050003010101", "0020050022010101", "0030050125010101", "0030050130010101",
                             "0024818523010404", "0026524584030605", "0027895407030606", "0037098435030504",
                             "0033554290010404", "0038584080020302"}) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_GA3", code, statement, solution);
        EXPECT_EQ(FirstDependentPlanePair(statement), "") << code;
    }
}

TEST(LinePlanes, StatementsOfEveryLineRoutineReadAsLines) {
    for (int routine : {2, 3, 5, 6, 7, 8}) {
        SweepRoutine("KVOL_MATH_GA3", routine, 2000, [&](const GeneratedProblem& g) {
            EXPECT_EQ(FirstDependentPlanePair(g.statement), "") << g.code;
        });
    }
}
