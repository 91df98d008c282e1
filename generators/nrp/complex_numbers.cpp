#include <cmath>
#include <complex>
#include <string>
#include <vector>

#include "generators/item_drill.h"
#include "generators/nrp/algebra_items.h"
#include "generators/nrp/nrp_routines.h"
#include "generators/nrp/polynomial_tools.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
using Complex = std::complex<double>;

const std::string kDegreeSign = "\u00B0";
const std::string kImaginaryUnit = "&+I& i&-I";
const ColumnMarks kComplexSolutionColumns4 = {"&SP=10:", "&SP=32:", "&SP=54:", "&SP=76:"};
const std::vector<std::string> kComplexHeads = {
    "Calculate the following expressions with complex numbers.&LF", "Calculate the following expressions.&LF",
    "Calculate these expressions involving complex numbers.&LF", "Calculate these expressions.&LF"};
// Complex items are not in italics; the imaginary unit carries its own.
const ItemLook kComplexItems = {")&-B  ", "", "&LF", "&LF"};

// A complex number whose parts are fractions, each part reduced and written stacked.
std::string ComplexFractionText(GeneratorWorkspace& ws, double reN, double reD, double imN, double imD) {
    if (reN == 0 && imN == 0) return "0";
    std::string text = reN != 0 ? FractionToMarkup(ws, reN, reD) : "";
    if (imN != 0) {
        const bool negative = (imN < 0) != (imD < 0);
        if (negative) text += "& -& ";
        else if (reN != 0) text += "& +& ";
        const double n = std::fabs(imN), d = std::fabs(imD);
        if (n != d) text += FractionToMarkup(ws, n, d);
        text += kImaginaryUnit;
    }
    return text;
}

// a·√r with the square factors of r taken out: 3√34 rather than √306.
std::string SimplifiedRoot(GeneratorWorkspace& ws, double a, double r) {
    for (double d = 2; d * d <= r; ++d) {
        while (FractionalPart(ws, r / (d * d)) == 0) {
            r /= d * d;
            a *= d;
        }
    }
    return RootFractionToMarkup(ws, a, r, 1);
}

// The modulus √m of a polar form, simplified.
// The cartesian form after "= ": a number without a real part begins with the spaced sign
// and the spaced unit of a term ("& -& 4&+I& i&-I"); there it is "-4 i", "i" or "-i", with
// one blank after "=" and none after the unary minus.
std::string CartesianAfterEquals(std::string text) {
    if (text.rfind("& -& ", 0) == 0) text = "-" + text.substr(5);
    const std::size_t sign = text.rfind('-', 0) == 0 ? 1 : 0;
    if (text.compare(sign, 6, "&+I& i") == 0) text.replace(sign, 6, "&+Ii");
    return text;
}

std::string ModulusText(GeneratorWorkspace& ws, double modulusSquared) { return SimplifiedRoot(ws, 1, modulusSquared); }

// A polar form whose modulus is written from the square of the modulus given exactly
// (large powers would lose it in the floating root).
std::string PolarText(GeneratorWorkspace& ws, const std::string& modulus, double re, double im, int unit) {
    const std::string polar = ComplexPolarToMarkup(ws, re, im, unit);
    return modulus + polar.substr(polar.find("#SPB("));
}

std::string PolarText(GeneratorWorkspace& ws, double re, double im, int unit) {
    return PolarText(ws, ModulusText(ws, re * re + im * im), re, im, unit);
}

bool IsPerfectSquare(double m) {
    const double r = std::floor(std::sqrt(m) + 0.5);
    return r * r == m;
}

// Two kinds of item walk in turn from a drawn start; a coin now and then keeps the kind.
void NextKind(GeneratorWorkspace& ws, double& kind) {
    if (!Coin(ws, 0.7f)) kind = kind == 1 ? 2 : 1;
}

// A whole part in low to high, and a second one, not both zero.
Complex DrawComplex(GeneratorWorkspace& ws, double low, double high) {
    RetryBound bound;
    while (true) {
        const double re = RandomInRange(ws, low, high, 1, 0);
        const double im = RandomInRange(ws, low, high, 1, 0);
        if (re != 0 || im != 0) return {re, im};
        bound.Next();
    }
}
} // namespace

// Routine 33: sums and differences of two complex numbers in cartesian form; most parts
// are whole, some are fractions.
void AddingAndSubtractingComplexNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns2, kComplexSolutionColumns4, 27, kComplexItems);
    for (int i = 1; i <= drill.Count(); ++i) {
        const bool fractions = Coin(ws, 0.7f);
        const double operation = RandomInRange(ws, 1, 2, 1, 1);
        AddNewItem(drill, [&] {
            double n[4], d[4];
            for (int k = 0; k < 4; ++k) {
                n[k] = RandomInRange(ws, -12, 28, 1, 1);
                d[k] = fractions && Coin(ws, 0.6f) ? RandomInRange(ws, 1, k % 2 == 0 ? 15 : 12, 1, 1) : 1;
                const double g = Gcd(ws, n[k], d[k]);
                n[k] /= g;
                d[k] /= g;
            }
            auto numberText = [&ws, &n, &d](int at) {
                const double imN = n[at + 1];
                std::string im = std::fabs(imN) == 1 && d[at + 1] == 1 ? "&+Ii&-I"
                                                                       : FractionToMarkup(ws, std::fabs(imN), d[at + 1]) + " &+Ii&-I";
                return "#NES(()" + FractionToMarkup(ws, n[at], d[at]) + (imN < 0 ? " - " : " + ") + im + "#NES)";
            };
            const std::string text = numberText(0) + (operation == 1 ? "  +  " : "  -  ") + numberText(2);
            const double sign = operation == 1 ? 1 : -1;
            return ItemTexts{text, ComplexFractionText(ws, n[0] * d[2] + sign * n[2] * d[0], d[0] * d[2],
                                                       n[1] * d[3] + sign * n[3] * d[1], d[1] * d[3])};
        });
    }
    drill.WriteStatement(kComplexHeads);
}

// Routine 34: products, and quotients as a stacked fraction; about four quotients in ten
// are made from a whole quotient, the others come out in fractions.
void MultiplyingAndDividingComplexNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns2, kComplexSolutionColumns4, 27, kComplexItems);
    double kind = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextKind(ws, kind);
        AddNewItem(drill, [&] {
            Complex b(RandomInRange(ws, -12, 15, 1, 1), RandomInRange(ws, -12, 15, 1, 1));
            Complex a(RandomInRange(ws, -12, 28, 1, 1), RandomInRange(ws, -12, 15, 1, 1));
            if (kind == 2 && Coin(ws, 0.6f)) {
                b = Complex(RandomInRange(ws, -6, 6, 1, 1), RandomInRange(ws, -6, 6, 1, 1));
                a = Complex(RandomInRange(ws, -9, 9, 1, 1), RandomInRange(ws, -9, 9, 1, 1)) * b;
            }
            const std::string aText = ComplexToMarkup(ws, a.real(), a.imag());
            const std::string bText = ComplexToMarkup(ws, b.real(), b.imag());
            const std::string text = kind == 1 ? "(" + aText + ")  ·  (" + bText + ")"
                                               : "#COC(" + aText + "#N)(" + bText + "#COC)";
            if (kind == 1) {
                const Complex p = a * b;
                return ItemTexts{text, ComplexFractionText(ws, p.real(), 1, p.imag(), 1)};
            }
            // a / b = a · conj(b) / |b|²
            const Complex p = a * std::conj(b);
            const double m = std::norm(b);
            return ItemTexts{text, ComplexFractionText(ws, p.real(), m, p.imag(), m)};
        });
    }
    drill.WriteStatement(kComplexHeads);
}

namespace {
// cos and sin of the angles of a textbook table, as a·√r / b.
struct ExactValue {
    double a, r, b;
};
struct TableAngle {
    double degrees;
    ExactValue cosine, sine;
};
const TableAngle kTableAngles[] = {
    {0, {1, 1, 1}, {0, 1, 1}},       {30, {1, 3, 2}, {1, 1, 2}},      {45, {1, 2, 2}, {1, 2, 2}},
    {60, {1, 1, 2}, {1, 3, 2}},      {90, {0, 1, 1}, {1, 1, 1}},      {120, {-1, 1, 2}, {1, 3, 2}},
    {135, {-1, 2, 2}, {1, 2, 2}},    {150, {-1, 3, 2}, {1, 1, 2}},    {180, {-1, 1, 1}, {0, 1, 1}},
    {210, {-1, 3, 2}, {-1, 1, 2}},   {225, {-1, 2, 2}, {-1, 2, 2}},   {240, {-1, 1, 2}, {-1, 3, 2}},
    {270, {0, 1, 1}, {-1, 1, 1}},    {300, {1, 1, 2}, {-1, 3, 2}},    {315, {1, 2, 2}, {-1, 2, 2}},
    {330, {1, 3, 2}, {-1, 1, 2}},
};

// r·(a√s / b) written exactly.
std::string ExactPartText(GeneratorWorkspace& ws, double modulus, const ExactValue& v) {
    return RootFractionToMarkup(ws, modulus * v.a, v.r, v.b);
}
} // namespace

// Routine 35: cartesian to polar (with the argument in degrees or radians), and polar to
// cartesian (a modulus with an angle of the table of 30° and 45°, so that the parts are
// exact).
void CartesianPolarConversions(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns2, 27, kComplexItems);
    double direction = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        if (!Coin(ws, 0.8f)) direction = direction == 1 ? 2 : 1;
        const int unit = Coin(ws, 0.4f) ? 1 : 0;
        AddNewItem(drill, [&] {
            std::string text, answer;
            if (direction == 1) {
                const Complex z = DrawComplex(ws, -12, 28);
                text = ComplexToMarkup(ws, z.real(), z.imag());
                answer = PolarText(ws, z.real(), z.imag(), unit);
            } else {
                const double modulus = RandomInRange(ws, 1, 12, 1, 1);
                const TableAngle& t = kTableAngles[static_cast<int>(RandomInRange(ws, 1, 16, 1, 1)) - 1];
                const double radians = t.degrees * kPi / 180;
                const std::string angle = unit == 1 ? PlainNumberText(t.degrees) + kDegreeSign
                                                    : NumberToExactMarkup(ws, radians) + " rad";
                text = PlainNumberText(modulus) + "#SPB(L #T)(" + angle + "#SPB)";
                const std::string re = ExactPartText(ws, modulus, t.cosine);
                const ExactValue absSine{std::fabs(t.sine.a), t.sine.r, t.sine.b};
                std::string im = ExactPartText(ws, modulus, absSine);
                if (im == "1") im = "";
                answer = t.cosine.a != 0 ? re : "";
                if (t.sine.a < 0) answer += "& -& " + im + kImaginaryUnit;
                else if (t.sine.a > 0) answer += (t.cosine.a != 0 ? "& +& " : "") + im + kImaginaryUnit;
            }
            return ItemTexts{text, answer};
        });
    }
    drill.WriteStatement(kComplexHeads);
}

// Routine 36: products and quotients of complex numbers in polar form; a quotient is
// made from a whole quotient. The answer in both forms.
void MultiplyingAndDividingComplexNumbersInPolarForm(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns2, kSolutionColumns2, 27, kComplexItems);
    double kind = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextKind(ws, kind);
        const int unit = Coin(ws, 0.8f) ? 0 : 1;
        AddNewItem(drill, [&] {
            const Complex a = DrawComplex(ws, -5, 12);
            const Complex b = DrawComplex(ws, -5, 12);
            // A quotient: the dividend is the product, so that the quotient is a.
            const Complex first = kind == 1 ? a : a * b;
            const Complex result = kind == 1 ? a * b : a;
            const std::string text = "#NES(()" + ComplexPolarToMarkup(ws, first.real(), first.imag(), unit) +
                                     (kind == 1 ? "#NES)  ·  #NES(()" : "#NES)  :  #NES(()") +
                                     ComplexPolarToMarkup(ws, b.real(), b.imag(), unit) + "#NES)";
            return ItemTexts{text, PolarText(ws, result.real(), result.imag(), unit) + " = " +
                                       CartesianAfterEquals(ComplexToMarkup(ws, result.real(), result.imag()))};
        });
    }
    drill.WriteStatement(kComplexHeads);
}

// Routine 37: a power 2 to 5 of a complex number given in cartesian or polar form; the
// answer in both forms.
void PowersOfComplexNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns2, 27, kComplexItems);
    double kind = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextKind(ws, kind);
        const int unit = Coin(ws, 0.8f) ? 0 : 1;
        AddNewItem(drill, [&] {
            const double re = RandomInRange(ws, -5, 12, 1, 0);
            const double im = RandomInRange(ws, -5, 12, 1, 1);
            const int n = static_cast<int>(RandomInRange(ws, 2, 5, 1, 1));
            const double m = re * re + im * im;
            // Parts of the power stay below 100000.
            if (std::pow(m, n / 2.0) > 100000) return ItemTexts{};
            const std::string exponent = "^" + std::to_string(n);
            const std::string text = kind == 1 ? "(" + ComplexToMarkup(ws, re, im) + ")" + exponent
                                               : "#NES(()" + ComplexPolarToMarkup(ws, re, im, unit) + "#NES)" + exponent;
            Complex p(1, 0);
            for (int k = 0; k < n; ++k) p *= Complex(re, im);
            const double half = std::floor(n / 2.0);
            const std::string modulus = n % 2 == 0 ? PlainNumberText(std::pow(m, half))
                                                   : SimplifiedRoot(ws, std::pow(m, half), m);
            return ItemTexts{text, PolarText(ws, modulus, p.real(), p.imag(), unit) + " = " +
                                       CartesianAfterEquals(ComplexToMarkup(ws, p.real(), p.imag()))};
        });
    }
    drill.WriteStatement(kComplexHeads);
}

// Routine 38: the n-th roots (n from 2 to 5) of a complex number given in cartesian or
// polar form, each root in polar form with the argument in degrees.
void RootsOfComplexNumbers(GeneratorWorkspace& ws) {
    ItemDrill drill(ws, kStatementColumns4, kSolutionColumns1, 27, kComplexItems);
    double kind = RandomInRange(ws, 1, 2, 1, 1);
    for (int i = 1; i <= drill.Count(); ++i) {
        NextKind(ws, kind);
        AddNewItem(drill, [&] {
            const Complex z = DrawComplex(ws, -5, 12);
            const int n = static_cast<int>(RandomInRange(ws, 2, 5, 1, 1));
            const std::string number = kind == 1 ? ComplexToMarkup(ws, z.real(), z.imag())
                                                 : ComplexPolarToMarkup(ws, z.real(), z.imag(), 1);
            const std::string text = "#RAD(#RI(" + std::to_string(n) + " #RI)" + number + "#RAD)";
            // The modulus of the roots is the 2n-th root of |z|²: taken down while the
            // radicand is a square, whole when the index reaches 1.
            double index = 2.0 * n;
            double radicand = std::norm(z);
            while (FractionalPart(ws, index / 2) == 0 && IsPerfectSquare(radicand)) {
                radicand = std::floor(std::sqrt(radicand) + 0.5);
                index /= 2;
            }
            std::string modulus;
            if (index == 1) modulus = PlainNumberText(radicand);
            else if (index == 2) modulus = SimplifiedRoot(ws, 1, radicand);
            else modulus = "#RAD(#RI(" + PlainNumberText(index) + " #RI)" + PlainNumberText(radicand) + "#RAD)";
            double argument = std::atan2(z.imag(), z.real()) * 180 / kPi;
            if (argument < 0) argument += 360;
            std::string answer;
            for (int k = 0; k < n; ++k) {
                const double angle = argument / n + 360.0 * k / n;
                if (k > 0) answer += ",   ";
                answer += modulus + "#SPB(L #T)(" + NumberToSignificantMarkup(angle, 6) + kDegreeSign + "#SPB)";
            }
            return ItemTexts{text, answer};
        });
    }
    drill.WriteStatement(kComplexHeads);
}

// The five problems of routine 39 (k the parameter, z = a + b·i, w = c + d·i):
//   0  z = a + k·i: z·w real            a·d + k·c = 0
//   1  z = a + k·i: z·w pure imaginary  a·c - k·d = 0
//   2  z = a + k·i: z / w real          k·c - a·d = 0
//   3  z = a + k·i: z / w pure imaginary  a·c + k·d = 0
//   4  w = k + d·i: z·w real            a·d + b·k = 0
// The parameter's value is drawn first; the part that the condition fixes must come out
// whole, nonzero and in range, and the other part of the result nonzero.
ComplexParameterProblem MakeComplexParameterProblem(GeneratorWorkspace& ws, int type) {
    static const std::string kLetters = "abcdhkmnpqrst";
    ComplexParameterProblem p;
    p.type = type;
    p.letter = kLetters.substr(static_cast<std::size_t>(RandomInRange(ws, 1, 13, 1, 1)) - 1, 1);
    RetryBound bound;
    while (true) {
        p.value = RandomInRange(ws, -25, 32, 1, 1);
        const double u = RandomInRange(ws, -25, 32, 1, 1);
        const double v = RandomInRange(ws, -25, 32, 1, 1);
        double fixed = 0;
        switch (type) {
        case 0: p.wRe = u; p.wIm = v; p.zIm = p.value; fixed = -p.value * u / v; p.zRe = fixed; break;
        case 1: p.wRe = u; p.wIm = v; p.zIm = p.value; fixed = p.value * v / u; p.zRe = fixed; break;
        case 2: p.wRe = u; p.wIm = v; p.zIm = p.value; fixed = p.value * u / v; p.zRe = fixed; break;
        case 3: p.wRe = u; p.wIm = v; p.zIm = p.value; fixed = -p.value * v / u; p.zRe = fixed; break;
        default: p.zRe = u; p.wIm = v; p.wRe = p.value; fixed = -u * v / p.value; p.zIm = fixed; break;
        }
        if (IsWhole(fixed) && fixed != 0 && std::fabs(fixed) <= 32) {
            const Complex z(p.zRe, p.zIm), w(p.wRe, p.wIm);
            const Complex r = type == 2 || type == 3 ? z * std::conj(w) : z * w;
            const bool wantReal = type == 0 || type == 2 || type == 4;
            if ((wantReal ? r.real() : r.imag()) != 0) break;
        }
        bound.Next();
    }
    return p;
}

// Routine 39: the value of a parameter for which a product or a quotient of two complex
// numbers is real or pure imaginary.
void ComplexNumberParameter(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 5;
    const ComplexParameterProblem p = MakeComplexParameterProblem(ws, type);
    const std::string letter = "&+I" + p.letter + "&-I";
    auto withParameterIm = [&](double re) { return NumberToMarkup(re) + "& +& " + letter + kImaginaryUnit; };
    std::string zText, wText;
    if (type == 4) {
        zText = ComplexToMarkup(ws, p.zRe, p.zIm);
        const std::string im = std::fabs(p.wIm) == 1 ? "" : NumberToMarkup(std::fabs(p.wIm));
        wText = letter + (p.wIm < 0 ? "& -& " : "& +& ") + im + kImaginaryUnit;
    } else {
        zText = withParameterIm(p.zRe);
        wText = ComplexToMarkup(ws, p.wRe, p.wIm);
    }
    const bool quotient = type == 2 || type == 3;
    const bool real = type == 0 || type == 2 || type == 4;
    ws.Statement = "Let the complex numbers  &+Iz&-I& =& " + zText + "& ,  &+Iw&-I& =& " + wText +
                   ". Find the value of " + letter + " so that " +
                   (quotient ? "the quotient #COC(&+Iz&-I#N)(&+Iw&-I#COC)" : "the product &+Iz&-I& ·& &+Iw&-I") +
                   (real ? " gives a real number.&LF" : " gives a pure imaginary number.&LF");
    ws.Solution = "&SP=10: " + letter + " = " + NumberToMarkup(p.value) + "&LF";
}
