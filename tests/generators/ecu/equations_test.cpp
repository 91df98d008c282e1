#include <algorithm>
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "equation_answers.h"
#include "generators/ecu/ecu_items.h"
#include "generators/hub.h"
#include "mathservices/number_markup.h"
#include "support/exact_forms.h"
#include "support/generator_sweep.h"
#include "support/markup_reader.h"

// The equation drills are checked by substitution: every statement item is read back
// as numbers and the answers are put into it.
namespace {
constexpr const char* kEcu = "KVOL_MATH_ECU";

bool Near(double a, double b) { return std::fabs(a - b) <= 1e-7 * std::max(1.0, std::fabs(b)); }

// Left minus right of an equation item at x.
double Difference(const SplitRelation& eq, double x) {
    const std::map<char, double> v = {{'x', x}, {'k', x}, {'m', x}, {'t', x}, {'y', x}, {'z', x}};
    return ReadMarkupReal(eq.left, v) - ReadMarkupReal(eq.right, v);
}

bool Holds(const std::string& relation, double left, double right) {
    if (relation == "<") return left < right - 1e-9;
    if (relation == ">") return left > right + 1e-9;
    if (relation == "<=") return left <= right + 1e-9;
    if (relation == ">=") return left >= right - 1e-9;
    return Near(left, right);
}

// The coefficients c0..c4 of a polynomial equation, by interpolation at -2..2.
std::array<double, 5> Coefficients(const SplitRelation& eq) {
    double f[5];
    for (int i = 0; i < 5; ++i) f[i] = Difference(eq, i - 2);
    // Newton's forward differences at the nodes -2..2, expanded into powers of x.
    std::array<double, 5> c{};
    double d[5];
    std::copy(f, f + 5, d);
    double coef[5];
    for (int k = 0; k < 5; ++k) {
        coef[k] = d[0];
        for (int i = 0; i < 4 - k; ++i) d[i] = (d[i + 1] - d[i]) / (k + 1);
    }
    // p(x) = Σ coef[k]·Π_{j<k}(x - (j - 2))
    std::array<double, 5> basis = {1, 0, 0, 0, 0};
    for (int k = 0; k < 5; ++k) {
        for (int i = 0; i < 5; ++i) c[i] += coef[k] * basis[i];
        std::array<double, 5> next{};
        const double node = k - 2;
        for (int i = 0; i < 4; ++i) {
            next[i + 1] += basis[i];
            next[i] -= node * basis[i];
        }
        basis = next;
    }
    for (double& v : c) v = std::round(v * 1e6) / 1e6;
    return c;
}

// Real roots of c2·x² + c1·x + c0 (or of the biquadratic c4·x⁴ + c2·x² + c0).
std::vector<double> RealRoots(const std::array<double, 5>& c) {
    std::vector<double> roots;
    auto quadratic = [](double a, double b, double cc) {
        std::vector<double> r;
        if (a == 0) {
            if (b != 0) r.push_back(-cc / b);
            return r;
        }
        const double d = b * b - 4 * a * cc;
        if (d < -1e-9) return r;
        const double s = std::sqrt(std::max(0.0, d));
        r.push_back((-b + s) / (2 * a));
        if (d > 1e-9) r.push_back((-b - s) / (2 * a));
        return r;
    };
    if (c[4] != 0) {
        EXPECT_EQ(c[3], 0);
        EXPECT_EQ(c[1], 0);
        for (double t : quadratic(c[4], c[2], c[0])) {
            if (t > 1e-12) {
                roots.push_back(std::sqrt(t));
                roots.push_back(-std::sqrt(t));
            } else if (std::fabs(t) <= 1e-12) {
                roots.push_back(0);
            }
        }
    } else {
        roots = quadratic(c[2], c[1], c[0]);
    }
    std::sort(roots.begin(), roots.end());
    return roots;
}

std::vector<double> Sorted(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v;
}

void ExpectSameValues(std::vector<double> a, std::vector<double> b, const std::string& where) {
    a = Sorted(a);
    b = Sorted(b);
    ASSERT_EQ(a.size(), b.size()) << where;
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i], b[i], 1e-7) << where;
}

int ExpectedCount(const GeneratedProblem& p, int maxAmount = 26) { return std::clamp(p.fields.ItemCount, 1, maxAmount); }

// Checks a linear equation or inequation item against its answer "x REL value".
void CheckLinearItem(const std::string& item, const std::string& answer, const std::string& where) {
    const SplitRelation eq = SplitAtRelation(item);
    const SplitRelation ans = SplitAtRelation(
        // The answer is "x REL value" with plain blanks: bring it to the item's marks.
        [&] {
            std::string a = answer;
            for (const char* r : {"&<=", "&>=", "=", "<", ">"}) {
                const auto at = a.find(std::string(" ") + r + " ");
                if (at != std::string::npos) {
                    return a.substr(0, at) + "& " + r + "& " + a.substr(at + 2 + std::char_traits<char>::length(r));
                }
            }
            return a;
        }());
    const double v = ReadMarkupReal(ans.right);
    // The boundary solves the equation, and the line is not constant.
    EXPECT_NEAR(Difference(eq, v), 0, 1e-9) << where;
    EXPECT_GT(std::fabs(Difference(eq, v + 1) - Difference(eq, v)), 1e-9) << where;
    if (eq.relation == "=") {
        EXPECT_EQ(ans.relation, "=") << where;
        return;
    }
    // The answer's half-line is exactly where the inequation holds.
    for (double x : {v - 3.5, v - 0.25, v, v + 0.25, v + 3.5}) {
        const std::map<char, double> at = {{'x', x}};
        const bool statement = Holds(eq.relation, ReadMarkupReal(eq.left, at), ReadMarkupReal(eq.right, at));
        const bool answerHolds = Holds(ans.relation, x, v);
        EXPECT_EQ(statement, answerHolds) << where << " at x = " << x;
    }
}

// The answers of a drill; those of routines 1 and 4 follow the letter without a blank.
std::vector<std::string> Answers(const GeneratedProblem& p) {
    return SolutionItems(ReplaceAll(p.solution, ")&-B&+I", ")&-B &+I"));
}

void CheckLinearProblem(const GeneratedProblem& p, int maxAmount) {
    const auto items = StatementItems(p.statement);
    const auto answers = Answers(p);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedCount(p, maxAmount)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) CheckLinearItem(items[i], answers[i], p.code + " " + items[i]);
}
} // namespace

TEST(EcuLinear, IntegerEquationsSolveBySubstitution) {
    SweepRoutine(kEcu, 1, 2000, [](const GeneratedProblem& p) {
        CheckLinearProblem(p, 26);
        for (const auto& a : Answers(p)) {
            EXPECT_EQ(a.find("#COC("), std::string::npos) << p.code << " the solution is whole: " << a;
        }
        EXPECT_NE(p.solution.find(")&-B&+I x&-I = "), std::string::npos) << p.solution;
    });
}

TEST(EcuLinear, IntegerInequations) {
    SweepRoutine(kEcu, 8, 2000, [](const GeneratedProblem& p) { CheckLinearProblem(p, 26); });
}

TEST(EcuLinear, RationalEquations) {
    SweepRoutine(kEcu, 6, 2000, [](const GeneratedProblem& p) { CheckLinearProblem(p, 24); });
}

TEST(EcuLinear, RationalInequations) {
    SweepRoutine(kEcu, 7, 2000, [](const GeneratedProblem& p) { CheckLinearProblem(p, 26); });
}

TEST(EcuLinear, ItemRecordsAgreeWithTheirText) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(77);
    for (int i = 0; i < 3000; ++i) {
        const bool rational = i % 2 == 1;
        const std::string relation = i % 3 == 0 ? "=" : (i % 3 == 1 ? "<" : "&>=");
        const LinearItem item = rational ? RationalLinearItem(ws, relation) : IntegerLinearItem(ws, relation);
        ASSERT_NE(item.p, 0) << item.text;
        EXPECT_GT(item.denominator, 0);
        EXPECT_NEAR(item.p * item.numerator / item.denominator + item.q, 0, 1e-9) << item.text;
        if (!rational) {
            EXPECT_EQ(item.denominator, 1) << item.text;
        }
        const SplitRelation eq = SplitAtRelation(item.text);
        const double x = item.numerator / item.denominator;
        EXPECT_NEAR(Difference(eq, x), 0, 1e-9) << item.text;
        // p·x + q is the left side minus the right side times a positive number.
        const double slope = Difference(eq, x + 1) - Difference(eq, x);
        EXPECT_GT(slope * item.p, 0) << item.text;
    }
}

TEST(EcuLinear, ADenominatorOfOneIsNotWritten) {
    GeneratorHub hub;
    int whole = 0;
    for (int seed = 0; seed < 400; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, kEcu, {6, 0, seed, 10, 1, 1});
        EXPECT_EQ(p.statement.find("#N)(1#COC)"), std::string::npos) << p.code;
        EXPECT_EQ(p.solution.find("#N)(1#COC)"), std::string::npos) << p.code;
        for (const auto& a : SolutionItems(p.solution)) whole += a.find("#COC(") == std::string::npos;
    }
    EXPECT_GT(whole, 0);
}

namespace {
void CheckPolynomialProblem(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedCount(p)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const SplitRelation eq = SplitAtRelation(items[i]);
        const std::vector<double> roots = RealRoots(Coefficients(eq));
        const std::vector<double> listed = AnswerValues(answers[i]);
        ExpectSameValues(listed, roots, p.code + " " + items[i] + " -> " + answers[i]);
        if (roots.empty()) {
            EXPECT_NE(answers[i].find("No real solution."), std::string::npos) << p.code;
        }
    }
}

// Equations whose true solutions are whole numbers: every whole x in a wide range solves
// the equation exactly when the answer lists it (a root of a squared equation that is not
// a solution of the given one is left out).
void CheckWholeSolutionsProblem(const GeneratedProblem& p, int range) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedCount(p)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const SplitRelation eq = SplitAtRelation(items[i]);
        const std::vector<double> listed = AnswerValues(answers[i]);
        std::vector<double> found;
        for (int x = -range; x <= range; ++x) {
            const double d = Difference(eq, x);
            const double scale = std::max(1.0, std::fabs(ReadMarkupReal(eq.right, {{'x', static_cast<double>(x)}})));
            if (!std::isnan(d) && std::fabs(d) <= 1e-9 * scale) found.push_back(x);
        }
        ExpectSameValues(listed, found, p.code + " " + items[i] + " -> " + answers[i]);
    }
}
} // namespace

namespace {
// p(v) for v = a·√r / b, times b⁴, in whole numbers: with r > 1 only an even polynomial
// (the odd terms would leave a root behind) is checked.
bool IsExactRoot(const std::array<long long, 5>& c, const RootFraction& v) {
    if (v.r == 1) {
        long long sum = 0, aPower = 1;
        for (int k = 0; k <= 4; ++k) {
            long long bPower = 1;
            for (int j = 0; j < 4 - k; ++j) bPower *= v.b;
            sum += c[k] * aPower * bPower;
            aPower *= v.a;
        }
        return sum == 0;
    }
    if (c[1] != 0 || c[3] != 0) return false;
    const long long t = v.a * v.a * v.r, b2 = v.b * v.b;
    return c[4] * t * t + c[2] * t * b2 + c[0] * b2 * b2 == 0;
}

// Empty when every value of an answer "x = v;    x = ± w" is an exact root of the
// polynomial with the whole coefficients c (c0 first) and is written in its simplest
// form; otherwise what is wrong.
std::string ExactRootsFault(const std::array<double, 5>& coefficients, const std::string& answer) {
    std::array<long long, 5> c{};
    for (int k = 0; k < 5; ++k) {
        if (coefficients[k] != std::round(coefficients[k])) return "coefficients not whole";
        c[k] = std::llround(coefficients[k]);
    }
    if (answer.find("No real solution.") != std::string::npos) return "";
    const std::string simplest = FirstUnsimplifiedForm(answer);
    if (!simplest.empty()) return "not in simplest form: " + simplest;
    std::size_t from = 0;
    while (from < answer.size()) {
        auto end = answer.find(';', from);
        if (end == std::string::npos) end = answer.size();
        std::string part = answer.substr(from, end - from);
        from = end + 1;
        const auto eq = part.find(" = ");
        if (eq == std::string::npos) return "no value in " + part;
        std::string value = part.substr(eq + 3);
        if (value.rfind("± ", 0) == 0) value.erase(0, std::string("± ").size());
        while (!value.empty() && value.back() == ' ') value.pop_back();
        const auto v = ReadRootFraction(value);
        if (!v) return "not an exact value: " + value;
        if (!IsExactRoot(c, *v)) return "not a root: " + value;
    }
    return "";
}

void CheckExactRoots(const GeneratedProblem& p) {
    const auto items = StatementItems(p.statement);
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(ExactRootsFault(Coefficients(SplitAtRelation(items[i])), answers[i]), "")
            << p.code << " " << items[i] << " -> " << answers[i];
    }
}
} // namespace

TEST(EcuQuadratic, ExactRootCheckRefusesWrongAnswers) {
    // x⁴ − 16x² + 48 = 0: x² = 4 or 12.
    const std::array<double, 5> c = {48, 0, -16, 0, 1};
    EXPECT_EQ(ExactRootsFault(c, "&+Ix&-I = ± 2;    &+Ix&-I = ± 2#SQR(3#SQR)"), "");
    EXPECT_NE(ExactRootsFault(c, "&+Ix&-I = ± 2;    &+Ix&-I = ± #SQR(12#SQR)"), "");
    EXPECT_NE(ExactRootsFault(c, "&+Ix&-I = ± 2;    &+Ix&-I = ± 3#SQR(3#SQR)"), "");
    EXPECT_NE(ExactRootsFault(c, "&+Ix&-I = ± 3;    &+Ix&-I = ± 2#SQR(3#SQR)"), "");
    // 4x² − 9 = 0 and a reduced fraction.
    EXPECT_EQ(ExactRootsFault({-9, 0, 4, 0, 0}, "&+Ix&-I = #COC(3#N)(2#COC);    &+Ix&-I = #COC(-3#N)(2#COC)"), "");
    EXPECT_NE(ExactRootsFault({-9, 0, 4, 0, 0}, "&+Ix&-I = #COC(6#N)(4#COC)"), "");
    EXPECT_NE(ExactRootsFault({-9, 0, 4, 0, 0}, "&+Ix&-I = #COC(3#N)(4#COC)"), "");
}

TEST(EcuQuadratic, ReportedBiquadraticRootsAreSimplest) {
    GeneratorHub hub;
    for (const char* code : {"0120017455220101", "0120013804090101"}) {
        GeneratedProblem p;
        p.code = code;
        hub.RunGenerator(kEcu, code, p.statement, p.solution);
        EXPECT_EQ(p.solution.find("#SQR(12#SQR)"), std::string::npos) << code;
        EXPECT_EQ(p.solution.find("#SQR(18#SQR)"), std::string::npos) << code;
        CheckExactRoots(p);
    }
}

TEST(EcuQuadratic, IncompleteQuadraticRoots) {
    SweepRoutine(kEcu, 11, 2000, [](const GeneratedProblem& p) {
        CheckPolynomialProblem(p);
        CheckExactRoots(p);
        for (const auto& item : StatementItems(p.statement)) {
            const auto c = Coefficients(SplitAtRelation(item));
            EXPECT_NE(c[2], 0) << item;
            EXPECT_TRUE(c[1] == 0 || c[0] == 0) << "incomplete: " << item;
        }
    });
}

TEST(EcuQuadratic, CompleteQuadraticRoots) {
    std::set<int> kinds;
    SweepRoutine(kEcu, 2, 2000, [&](const GeneratedProblem& p) {
        CheckPolynomialProblem(p);
        for (const auto& item : StatementItems(p.statement)) {
            const auto c = Coefficients(SplitAtRelation(item));
            EXPECT_TRUE(c[2] != 0 && c[1] != 0 && c[0] != 0) << "complete: " << item;
        }
        for (const auto& a : SolutionItems(p.solution)) {
            kinds.insert(a.find("No real") != std::string::npos ? 0 : a.find("#SQR(") != std::string::npos ? 1 : 2);
        }
    });
    EXPECT_EQ(kinds, (std::set<int>{0, 1, 2}));
}

TEST(EcuQuadratic, BiquadraticRoots) {
    SweepRoutine(kEcu, 12, 2000, [](const GeneratedProblem& p) {
        CheckPolynomialProblem(p);
        CheckExactRoots(p);
    });
}

TEST(EcuQuadratic, UnknownLetterIsXOrOneOfKmtyz) {
    GeneratorHub hub;
    std::set<char> letters;
    for (int seed = 0; seed < 300; ++seed) {
        const GeneratedProblem p = GenerateProblem(hub, kEcu, {11, 0, seed, 6, 1, 1});
        for (const auto& item : StatementItems(p.statement)) {
            const auto at = item.find("&+I");
            ASSERT_NE(at, std::string::npos) << item;
            letters.insert(item[at + 3]);
        }
    }
    EXPECT_EQ(letters, (std::set<char>{'x', 'k', 'm', 't', 'y', 'z'}));
}

TEST(EcuRoots, EquationsInvolvingRoots) {
    SweepRoutine(kEcu, 3, 2000, [](const GeneratedProblem& p) { CheckWholeSolutionsProblem(p, 14); });
}

TEST(EcuRoots, ExponentialEquations) {
    SweepRoutine(kEcu, 10, 2000, [](const GeneratedProblem& p) { CheckWholeSolutionsProblem(p, 8); });
}

TEST(EcuRoots, LogarithmicEquations) {
    SweepRoutine(kEcu, 13, 2000, [](const GeneratedProblem& p) { CheckWholeSolutionsProblem(p, 14); });
}

namespace {
void CheckSystemProblem(const GeneratedProblem& p, int unknowns, bool linear, int maxAmount) {
    const auto items = StatementItems(p.statement);
    const auto answers = Answers(p);
    ASSERT_EQ(static_cast<int>(items.size()), ExpectedCount(p, maxAmount)) << p.code;
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto rows = SystemRows(items[i]);
        ASSERT_EQ(static_cast<int>(rows.size()), unknowns) << items[i];
        const auto points = AnswerPoints(answers[i]);
        ASSERT_FALSE(points.empty()) << answers[i];
        for (const auto& point : points) {
            ASSERT_EQ(static_cast<int>(point.size()), unknowns) << answers[i];
            for (const auto& row : rows) {
                const SplitRelation eq = SplitAtRelation(row);
                EXPECT_NEAR(ReadMarkupReal(eq.left, point), ReadMarkupReal(eq.right, point), 1e-9)
                    << p.code << " " << row << " at " << answers[i];
            }
        }
        if (linear) {
            // The determinant of the coefficients, read from the rows, is not zero.
            double m[3][3] = {};
            for (int r = 0; r < unknowns; ++r) {
                const SplitRelation eq = SplitAtRelation(rows[static_cast<std::size_t>(r)]);
                const std::map<char, double> origin = {{'x', 0}, {'y', 0}, {'z', 0}};
                const double base = ReadMarkupReal(eq.left, origin);
                for (int c = 0; c < unknowns; ++c) {
                    std::map<char, double> unit = origin;
                    unit["xyz"[c]] = 1;
                    m[r][c] = ReadMarkupReal(eq.left, unit) - base;
                }
            }
            const double det = unknowns == 2 ? m[0][0] * m[1][1] - m[0][1] * m[1][0]
                                             : m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
                                                   m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
                                                   m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
            EXPECT_NE(det, 0) << p.code << " " << items[i];
            EXPECT_EQ(points.size(), 1u);
        } else {
            // A line meets a conic in two points at most; both are given and differ.
            ASSERT_EQ(points.size(), 2u) << answers[i];
            EXPECT_NE(points[0], points[1]) << answers[i];
        }
    }
}
} // namespace

TEST(EcuSystems, TwoByTwoLinear) {
    SweepRoutine(kEcu, 4, 2000, [](const GeneratedProblem& p) {
        CheckSystemProblem(p, 2, true, 26);
        EXPECT_NE(p.statement.find("#NES(X}#RWS(R#RW1("), std::string::npos);
        EXPECT_NE(p.solution.find(")&-B&+I  x = &-I"), std::string::npos) << p.solution;
    });
}

TEST(EcuSystems, ThreeByThreeLinear) {
    SweepRoutine(kEcu, 5, 2000, [](const GeneratedProblem& p) { CheckSystemProblem(p, 3, true, 26); });
}

TEST(EcuSystems, NonlinearTwoByTwo) {
    SweepRoutine(kEcu, 9, 2000, [](const GeneratedProblem& p) { CheckSystemProblem(p, 2, false, 21); });
}

TEST(EcuSystems, ZeroDeterminantNeverReachesTheStatement) {
    GeneratorWorkspace ws;
    ws.stream.Draw(-1);
    ws.stream.SeedStream(4242);
    for (int i = 0; i < 5000; ++i) {
        const SystemItem item = LinearSystem2Item(ws);
        const auto& c = item.coefficients;
        EXPECT_NE(c[0][0] * c[1][1] - c[1][0] * c[0][1], 0);
        for (const auto& row : c) {
            EXPECT_EQ(row[0] * item.solutions[0][0] + row[1] * item.solutions[0][1], row[3]);
            EXPECT_NE(row[0], 0);
            EXPECT_NE(row[1], 0);
        }
        EXPECT_GE(std::fabs(c[0][0]), 1);
        EXPECT_LE(std::fabs(c[0][0]), 15);
        EXPECT_LE(std::fabs(c[1][0]), 9);
        EXPECT_LE(std::fabs(item.solutions[0][0]), 12);
    }
}
