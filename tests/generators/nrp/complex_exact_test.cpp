#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdlib>
#include <optional>
#include <string>

#include "generators/hub.h"
#include "support/exact_forms.h"
#include "support/generator_sweep.h"
#include "support/markup_reader.h"

// The polar forms of the complex drills checked exactly: the modulus as a whole number or
// a root, and the argument as a multiple of pi only where it truly is one. A number with
// whole parts has an argument that is a rational multiple of pi only on the axes and the
// diagonals (the only rational multiples of pi with a rational tangent have tangent 0 or
// ±1), so that there the check is a comparison of whole numbers.

namespace {
constexpr double kPi = 3.14159265358979323846;
const std::string kPolarMark = "#SPB(L #T)(";
const std::string kUnit = "&+I& i&-I";

struct Gaussian {
    long long re = 0, im = 0;
    bool operator==(const Gaussian&) const = default;
};

Gaussian Times(const Gaussian& a, const Gaussian& b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

// The whole complex number a text stands for (a polar text read to its rounding).
std::optional<Gaussian> WholeComplex(const std::string& text) {
    try {
        const std::complex<double> z = ReadMarkupComplex(text);
        const double re = std::round(z.real()), im = std::round(z.imag());
        if (std::fabs(z.real() - re) > 0.01 || std::fabs(z.imag() - im) > 0.01) return std::nullopt;
        return Gaussian{static_cast<long long>(re), static_cast<long long>(im)};
    } catch (const UnreadableMarkup&) {
        return std::nullopt;
    }
}

// The argument as a number of eighths of a turn, for the numbers that have one.
std::optional<long long> EighthTurns(const Gaussian& z) {
    if (z.im == 0) return z.re > 0 ? 0 : 4;
    if (z.re == 0) return z.im > 0 ? 2 : 6;
    if (std::llabs(z.re) != std::llabs(z.im)) return std::nullopt;
    if (z.im > 0) return z.re > 0 ? 1 : 3;
    return z.re < 0 ? 5 : 7;
}

// Empty when the polar text "modulus#SPB(L #T)(argument#SPB)" is exactly the number z;
// otherwise what is wrong.
std::string PolarFault(const std::string& polar, const Gaussian& z) {
    const auto at = polar.find(kPolarMark);
    if (at == std::string::npos || polar.size() < at + kPolarMark.size() + 5 ||
        polar.compare(polar.size() - 5, 5, "#SPB)") != 0)
        return "not a polar form: " + polar;
    const auto modulus = ReadRootFraction(polar.substr(0, at));
    const long long square = z.re * z.re + z.im * z.im;
    if (!modulus || modulus->a <= 0) return "modulus not exact: " + polar;
    if (modulus->a * modulus->a * modulus->r != square * modulus->b * modulus->b) return "wrong modulus: " + polar;
    const std::string simplest = FirstUnsimplifiedForm(polar);
    if (!simplest.empty()) return "not in simplest form: " + simplest;
    std::string argument = polar.substr(at + kPolarMark.size(), polar.size() - 5 - at - kPolarMark.size());
    const auto eighths = EighthTurns(z);
    double turn = std::atan2(static_cast<double>(z.im), static_cast<double>(z.re));
    if (turn < 0) turn += 2 * kPi;
    const std::string degree = "\u00B0";
    if (argument.size() > degree.size() && argument.compare(argument.size() - degree.size(), degree.size(), degree) == 0) {
        argument.erase(argument.size() - degree.size());
        const double printed = ReadMarkupReal(argument);
        if (eighths) return printed == 45.0 * static_cast<double>(*eighths) ? "" : "wrong degrees: " + polar;
        return std::fabs(printed - turn * 180 / kPi) <= 5e-6 * turn * 180 / kPi ? "" : "wrong degrees: " + polar;
    }
    if (argument.size() < 4 || argument.compare(argument.size() - 4, 4, " rad") != 0) return "no unit: " + polar;
    argument.erase(argument.size() - 4);
    if (argument.find("&pi") != std::string::npos) {
        const auto m = ReadPiMultiple(argument);
        if (!m) return "unreadable multiple of pi: " + polar;
        if (!eighths) return "a multiple of pi for an argument that is none: " + polar;
        if (WholeGcd(m->n, m->d) != 1) return "not in simplest form: " + polar;
        return m->n * 4 == *eighths * m->d ? "" : "wrong multiple of pi: " + polar;
    }
    if (eighths && *eighths != 0) return "a decimal for a multiple of pi: " + polar;
    const double printed = ReadMarkupReal(argument);
    return std::fabs(printed - turn) <= 5e-6 * std::max(turn, 1.0) ? "" : "wrong radians: " + polar;
}

// cos² of a table angle (multiples of 30° and 45°) as p/q, and the sign of cos.
bool TableCosine(long long degrees, long long& p, long long& q, int& sign) {
    const long long d = ((degrees % 360) + 360) % 360;
    switch (d % 180) {
    case 0: p = 1, q = 1; break;
    case 30: case 150: p = 3, q = 4; break;
    case 45: case 135: p = 1, q = 2; break;
    case 60: case 120: p = 1, q = 4; break;
    case 90: p = 0, q = 1; break;
    default: return false;
    }
    sign = d == 90 || d == 270 ? 0 : (d > 90 && d < 270 ? -1 : 1);
    return true;
}

// x = r·f, with f² = p/q and the sign of f, for x = a√s/b: a²·s·q = r²·p·b².
bool PartIs(const RootFraction& x, long long modulus, long long p, long long q, int sign) {
    const int xSign = (x.a > 0) - (x.a < 0);
    return xSign == sign && x.a * x.a * x.r * q == modulus * modulus * p * x.b * x.b;
}

// Empty when the cartesian text is exactly modulus·(cos D + i·sin D); otherwise what is
// wrong. The text is "re& +& im&+I& i&-I" with either part left out when it is 0, and an
// imaginary factor of 1 not written.
std::string TableCartesianFault(long long modulus, long long degrees, const std::string& text) {
    long long cp, cq, sp, sq;
    int cSign, sSign;
    if (!TableCosine(degrees, cp, cq, cSign) || !TableCosine(degrees - 90, sp, sq, sSign))
        return "not a table angle: " + std::to_string(degrees);
    std::string reText = text, imText;
    int imSign = 0;
    if (text.size() >= kUnit.size() && text.compare(text.size() - kUnit.size(), kUnit.size(), kUnit) == 0) {
        const std::string body = text.substr(0, text.size() - kUnit.size());
        const auto plus = body.rfind("& +& "), minus = body.rfind("& -& ");
        auto cut = std::string::npos;
        if (plus != std::string::npos) cut = plus, imSign = 1;
        if (minus != std::string::npos && (cut == std::string::npos || minus > cut)) cut = minus, imSign = -1;
        if (cut == std::string::npos) {
            reText = "";
            imText = body;
            imSign = 1;
        } else {
            reText = body.substr(0, cut);
            imText = body.substr(cut + 5);
        }
        if (imText.empty()) imText = "1";
    }
    RootFraction re{0, 1, 1}, im{0, 1, 1};
    if (!reText.empty()) {
        const auto r = ReadRootFraction(reText);
        if (!r) return "unreadable real part: " + text;
        re = *r;
    }
    if (!imText.empty()) {
        const auto i = ReadRootFraction(imText);
        if (!i || i->a < 0) return "unreadable imaginary part: " + text;
        im = *i;
        im.a *= imSign;
    }
    if (!PartIs(re, modulus, cp, cq, cSign)) return "wrong real part: " + text;
    if (!PartIs(im, modulus, sp, sq, sSign)) return "wrong imaginary part: " + text;
    const std::string simplest = FirstUnsimplifiedForm(text);
    return simplest.empty() ? "" : "not in simplest form: " + simplest;
}

// "polar = cartesian" split in two.
bool SplitBoth(const std::string& answer, std::string& polar, std::string& cartesian) {
    const auto at = answer.find(" = ");
    if (at == std::string::npos) return false;
    polar = answer.substr(0, at);
    cartesian = answer.substr(at + 3);
    return true;
}

// Empty when an answer "polar = cartesian" is exactly z in both forms.
std::string BothFormsFault(const std::string& answer, const Gaussian& z) {
    std::string polar, cartesian;
    if (!SplitBoth(answer, polar, cartesian)) return "not two forms: " + answer;
    const auto c = WholeComplex(cartesian);
    if (!c || !(*c == z)) return "wrong cartesian form: " + answer;
    return PolarFault(polar, z);
}

std::string StripBrackets(const std::string& text) {
    const std::string open = "#NES(()", close = "#NES)";
    if (text.rfind(open, 0) != 0 || text.size() < open.size() + close.size() ||
        text.compare(text.size() - close.size(), close.size(), close) != 0)
        return text;
    return text.substr(open.size(), text.size() - open.size() - close.size());
}

// Routine 35: one side of each item is polar, the other cartesian.
std::string ConversionFault(const std::string& item, const std::string& answer) {
    if (item.find(kPolarMark) == std::string::npos) {
        const auto z = WholeComplex(item);
        if (!z) return "not a whole complex number: " + item;
        return PolarFault(answer, *z);
    }
    const auto at = item.find(kPolarMark);
    const auto modulus = ReadRootFraction(item.substr(0, at));
    if (!modulus || modulus->r != 1 || modulus->b != 1) return "modulus not whole: " + item;
    std::string angle = item.substr(at + kPolarMark.size(), item.size() - 5 - at - kPolarMark.size());
    long long degrees = 0;
    const std::string degree = "\u00B0";
    if (angle.size() > 4 && angle.compare(angle.size() - 4, 4, " rad") == 0) {
        const std::string radians = angle.substr(0, angle.size() - 4);
        const auto m = radians == "0" ? PiMultiple{0, 1} : ReadPiMultiple(radians);
        if (!m || (180 * m->n) % m->d != 0) return "not a table angle: " + item;
        degrees = 180 * m->n / m->d;
    } else if (angle.size() > degree.size() && angle.compare(angle.size() - degree.size(), degree.size(), degree) == 0) {
        const double d = ReadMarkupReal(angle.substr(0, angle.size() - degree.size()));
        if (d != std::round(d)) return "not a table angle: " + item;
        degrees = std::llround(d);
    } else {
        return "no unit: " + item;
    }
    return TableCartesianFault(modulus->a, degrees, answer);
}

// Routine 36: "(polar)  ·  (polar)" or "(polar)  :  (polar)"; the answer in both forms.
std::string PolarProductFault(const std::string& item, const std::string& answer) {
    const bool product = item.find("#NES)  ·  #NES(()") != std::string::npos;
    const std::string joint = product ? "#NES)  ·  #NES(()" : "#NES)  :  #NES(()";
    const auto at = item.find(joint);
    if (at == std::string::npos) return "not a product or quotient: " + item;
    const std::string first = StripBrackets(item.substr(0, at) + "#NES)");
    const std::string second = StripBrackets("#NES(()" + item.substr(at + joint.size()));
    const auto a = WholeComplex(first), b = WholeComplex(second);
    if (!a || !b) return "not whole complex numbers: " + item;
    for (const auto& [text, z] : {std::pair{first, *a}, std::pair{second, *b}}) {
        const std::string fault = PolarFault(text, z);
        if (!fault.empty()) return fault;
    }
    Gaussian result = Times(*a, *b);
    if (!product) {
        const Gaussian top = Times(*a, {b->re, -b->im});
        const long long n = b->re * b->re + b->im * b->im;
        if (top.re % n != 0 || top.im % n != 0) return "quotient not whole: " + item;
        result = {top.re / n, top.im / n};
    }
    return BothFormsFault(answer, result);
}

// Routine 37: "(cartesian)^n" or "(polar)^n"; the answer in both forms.
std::string PowerFault(const std::string& item, const std::string& answer) {
    if (item.size() < 3 || item[item.size() - 2] != '^') return "not a power: " + item;
    const int n = item.back() - '0';
    std::string base = item.substr(0, item.size() - 2);
    Gaussian z;
    if (base.find(kPolarMark) != std::string::npos) {
        base = StripBrackets(base);
        const auto w = WholeComplex(base);
        if (!w) return "not a whole complex number: " + item;
        z = *w;
        const std::string fault = PolarFault(base, z);
        if (!fault.empty()) return fault;
    } else {
        if (base.size() < 2 || base.front() != '(' || base.back() != ')') return "not a bracket: " + item;
        const auto w = WholeComplex(base.substr(1, base.size() - 2));
        if (!w) return "not a whole complex number: " + item;
        z = *w;
    }
    Gaussian power{1, 0};
    for (int k = 0; k < n; ++k) power = Times(power, z);
    return BothFormsFault(answer, power);
}

std::string ItemFault(int routine, const std::string& item, const std::string& answer) {
    if (routine == 35) return ConversionFault(item, answer);
    if (routine == 36) return PolarProductFault(item, answer);
    return PowerFault(item, answer);
}

void CheckExactItems(const GeneratedProblem& p) {
    const auto items = LetteredItems(p.statement, ")&-B  ");
    const auto answers = SolutionItems(p.solution);
    ASSERT_EQ(items.size(), answers.size()) << p.code;
    for (std::size_t i = 0; i < items.size(); ++i)
        EXPECT_EQ(ItemFault(p.fields.RoutineId, items[i], answers[i]), "") << p.code << " " << char('a' + i);
}
} // namespace

TEST(ComplexExact, PolarCheckRefusesWrongForms) {
    // (8 + i)⁴ = 3713 + 2016i: modulus 4225, argument 4·atan(1/8), which is no multiple of pi.
    const Gaussian z{3713, 2016};
    EXPECT_EQ(PolarFault("4225#SPB(L #T)(0&.49742 rad#SPB)", z), "");
    EXPECT_NE(PolarFault("4225#SPB(L #T)(#COC(19&pi#N)(120#COC) rad#SPB)", z), "");
    EXPECT_NE(PolarFault("4225#SPB(L #T)(0&.49752 rad#SPB)", z), "");
    EXPECT_NE(PolarFault("4224#SPB(L #T)(0&.49742 rad#SPB)", z), "");
    EXPECT_EQ(PolarFault("4225#SPB(L #T)(28&.5001\u00B0#SPB)", z), "");
    EXPECT_NE(PolarFault("4225#SPB(L #T)(28&.5101\u00B0#SPB)", z), "");
    // -3 + 3i: 3√2 at 3π/4.
    EXPECT_EQ(PolarFault("3#SQR(2#SQR)#SPB(L #T)(#COC(3&pi#N)(4#COC) rad#SPB)", {-3, 3}), "");
    EXPECT_NE(PolarFault("3#SQR(2#SQR)#SPB(L #T)(#COC(&pi#N)(4#COC) rad#SPB)", {-3, 3}), "");
    EXPECT_NE(PolarFault("#SQR(18#SQR)#SPB(L #T)(#COC(3&pi#N)(4#COC) rad#SPB)", {-3, 3}), "");
    EXPECT_NE(PolarFault("3#SQR(2#SQR)#SPB(L #T)(2&.35619 rad#SPB)", {-3, 3}), "");
    EXPECT_EQ(PolarFault("3#SQR(2#SQR)#SPB(L #T)(135\u00B0#SPB)", {-3, 3}), "");
    EXPECT_NE(PolarFault("3#SQR(2#SQR)#SPB(L #T)(136\u00B0#SPB)", {-3, 3}), "");
}

TEST(ComplexExact, TableCheckRefusesWrongParts) {
    // 4 at 150°: -2√3 + 2i.
    EXPECT_EQ(TableCartesianFault(4, 150, "-& 2#SQR(3#SQR)& +& 2&+I& i&-I"), "");
    EXPECT_NE(TableCartesianFault(4, 150, "-& 2#SQR(2#SQR)& +& 2&+I& i&-I"), "");
    EXPECT_NE(TableCartesianFault(4, 150, "2#SQR(3#SQR)& +& 2&+I& i&-I"), "");
    EXPECT_NE(TableCartesianFault(4, 150, "-& 2#SQR(3#SQR)& -& 2&+I& i&-I"), "");
    EXPECT_NE(TableCartesianFault(4, 150, "-& #SQR(12#SQR)& +& 2&+I& i&-I"), "");
    // 3 at 270°: -3i; 1 at 90°: i.
    EXPECT_EQ(TableCartesianFault(3, 270, "& -& 3&+I& i&-I"), "");
    EXPECT_NE(TableCartesianFault(3, 270, "& -& 2&+I& i&-I"), "");
    EXPECT_EQ(TableCartesianFault(1, 90, "&+I& i&-I"), "");
}

TEST(ComplexExact, ReportedArgumentsAreRight) {
    GeneratorHub hub;
    for (const char* code : {"0370017124250101", "0372495207070101", "0365745023150101", "0352778758210101",
                             "0356332522250101", "0358152522260101"}) {
        GeneratedProblem p;
        p.code = code;
        p.fields = ReadProblemCode(code);
        hub.RunGenerator("KVOL_MATH_NRP", code, p.statement, p.solution);
        for (const char* wrong : {"#COC(19&pi#N)(120#COC)", "#COC(14&pi#N)(97#COC)", "#COC(&pi#N)(99#COC)",
                                  "#COC(45&pi#N)(88#COC)", "#COC(49&pi#N)(125#COC)"})
            EXPECT_EQ(p.solution.find(wrong), std::string::npos) << code << " " << wrong;
        CheckExactItems(p);
    }
}

TEST(ComplexExact, ConversionsAreExact) { SweepRoutine("KVOL_MATH_NRP", 35, 2000, CheckExactItems); }
TEST(ComplexExact, PolarProductsAndQuotientsAreExact) { SweepRoutine("KVOL_MATH_NRP", 36, 2000, CheckExactItems); }
TEST(ComplexExact, PowersAreExact) { SweepRoutine("KVOL_MATH_NRP", 37, 2000, CheckExactItems); }
