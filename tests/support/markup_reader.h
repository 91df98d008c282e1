#pragma once
#include <complex>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

// Reads the markup of a formula back as a number, so that a test checks the text a reader
// sees rather than the numbers the generator built it from.
//
// It reads: numbers with grouped digits ("1_ 000"), the decimal point "&.", a repeating
// block "#ARC(", a power of ten "&E"; + - and the products · × or none, the quotients
// ":" and "/"; ( ) [ ], absolute bars and "#NES(" delimiters "()", "[]", "||"; stacked
// fractions "#COC(", roots "#SQR(" and "#RAD(", powers "^" with one digit and "#POT(",
// "#EXP(" for a power of e; pi ("&pi" or the letter), e, i; sin cos tan cotan sec cosec
// ln log (a base after "_"), arcsin arccos arctan, each with an optional power after its
// name ("sin^2 x") and as argument a bracket, bars or a construct, or a run of numbers and
// letters ("sin 3x cos x", "sin x (1 + cos x)"); degrees "°", the word "rad", polar forms
// "r#SPB(L #T)(angle#SPB)". Switches and spacing carry no value and are passed over:
// "&+I" "&-I" "&+B" "&-B" "&LF", "& ", "_ ", "^ ", "&SP=n:". An odd root of a negative
// number is the negative root.
//
// Text it cannot read throws UnreadableMarkup; it never guesses: two numbers side by side,
// a number before a fraction (a mixed number?) or a digit after a one-digit power ("x^12")
// are refused as well as unknown codes and unbalanced constructs. A value that does not
// exist (a zero denominator; in a real reading also a root of a negative number, a
// logarithm of one that is not positive, an arcsine out of range) is NaN.
class UnreadableMarkup : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

using RealValues = std::map<char, double>;
using ComplexValues = std::map<char, std::complex<double>>;

// A formula read once and evaluated at many values of its letters. A letter takes its
// value from the map; e and i not in the map are Euler's number and the imaginary unit
// (i only in a complex reading); any other letter throws when evaluated.
class MarkupFormula {
public:
    explicit MarkupFormula(const std::string& markup);

    double Real(const RealValues& values = {}) const;
    // The real value of a formula in x alone at x.
    double RealAt(double x) const;
    std::complex<double> Complex(const ComplexValues& values = {}) const;

    // One operation of the parsed formula, its operands by index.
    struct Node {
        int kind = 0;
        int a = -1, b = -1;
        double number = 0;
        char letter = 0;
    };

private:
    std::string markup_;
    std::vector<Node> nodes_;
    int root_ = -1;
};

double ReadMarkupReal(const std::string& markup, const RealValues& values = {});
// The real value of a formula in x at x.
double ReadMarkupAt(const std::string& markup, double x);
std::complex<double> ReadMarkupComplex(const std::string& markup, const ComplexValues& values = {});

// The complex value; NaN and a failure of the running test, naming the text and the
// context, when the text cannot be read.
std::complex<double> ExpectComplexValue(const std::string& markup, const ComplexValues& values,
                                        const std::string& context);

// True when a and b agree to the given part of the larger of 1, |a| and |b|.
bool NearlyEqual(std::complex<double> a, std::complex<double> b, double relative = 1e-9);
