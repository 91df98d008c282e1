#include <cmath>
#include <string>

#include "generators/lfd/lfd_routines.h"
#include "generators/shared/sum_terms.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
const std::string kX = "&+Ix&-I";

std::string Num(double v) { return PlainNumberText(v); }

// "lim" is a function name, so it stands upright, as log and sin do.
std::string LimitFrom(double x0, const char* side, const std::string& value) {
    return "#TST(lim#TS)(#ST1(&+Ix&-I &ars " + Num(x0) + "^" + side + " #ST1)#TST)&+If&-I (&+Ix&-I) = " + value;
}

// One piece of a function with the value v at x0. The forms: 0 a line, 1 a parabola,
// 2 k/(x - h) with its pole on the other side of x0, 3 a root √(±(x - h)) + q defined on
// its side, 4 e^(x - x0) + q. left says on which side of x0 the piece is used.
std::string Piece(GeneratorWorkspace& ws, int form, bool left, double x0, double v) {
    const double m = RandomInRange(ws, 1, 3, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
    switch (form) {
    case 0: return PolynomialToMarkup(0, 0, 0, m, v - m * x0, kX);
    case 1: {
        const double p = RandomInRange(ws, -3, 5, 1, 0);
        return PolynomialToMarkup(0, 0, 1, p, v - x0 * x0 - p * x0, kX);
    }
    case 2: {
        // k/(x - h) with h = x0 ± 1 away from the piece: its value at x0 is ∓k.
        const double h = left ? x0 + 1 : x0 - 1;
        const double k = left ? -v : v;
        return "#COC(" + Num(k) + "#N)(" + ShiftedVariable(kX, -h) + "#COC)";
    }
    case 3: {
        // √(h - x) on the left, √(x - h) on the right, with the radicand 1 at x0.
        const double h = left ? x0 + 1 : x0 - 1;
        const std::string radicand = left ? (h == 0 ? "-" + kX : Num(h) + " - " + kX) : ShiftedVariable(kX, -h);
        const double q = v - 1;
        return "#SQR(" + radicand + "#SQR)" + (q == 0 ? "" : (q > 0 ? " + " : " - ") + Num(std::fabs(q)));
    }
    default: {
        const double q = v - 1;
        return "#EXP( " + ShiftedVariable(kX, -x0) + "#EXP)" + (q == 0 ? "" : (q > 0 ? " + " : " - ") + Num(std::fabs(q)));
    }
    }
}

std::string Row(int n, const std::string& piece, const std::string& condition) {
    const std::string tag = "#RW" + std::to_string(n);
    return tag + "( " + piece + condition + " " + tag + ")";
}

std::string Braced(const std::string& rows) { return "&+If&-I (&+Ix&-I) = #NES({X#RWS(L" + rows + "#RWS)#NES)&LF"; }
} // namespace

// Routine 68: a function in pieces around a point; continuous, or with a removable, a
// jump or an essential discontinuity there. The form of the pieces by the seed.
void ContinuityOfAFunction(GeneratorWorkspace& ws) {
    const int form = ws.Seed % 5;
    const int verdict = static_cast<int>(RandomInRange(ws, 1, 4, 1, 1));
    const double x0 = RandomInRange(ws, -3, 5, 1, 0);
    double left = RandomInRange(ws, -9, 9, 1, 1);
    double right = left;
    if (verdict == 3 || verdict == 4) {
        right = left + RandomInRange(ws, 1, 9, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
        if (right == 0) right = left + 10;
    }
    // The English condition word is "if" (not the Spanish "si").
    const std::string p = "     &SP=16:if  &+Ix&-I ";
    const std::string at = Num(x0);
    std::string rows, leftValue = Num(left), value;
    if (verdict == 2) {
        // The same limit from both sides, and another value at the point.
        const double other = left + RandomInRange(ws, 1, 3, 1, 1);
        rows = Row(1, Piece(ws, form, true, x0, left), p + "< " + at) + Row(2, Num(other), p + "= " + at) +
               Row(3, Piece(ws, form, false, x0, right), p + "> " + at);
        value = Num(other);
    } else if (verdict == 4) {
        // A pole at the point on the left side.
        const double k = RandomInRange(ws, 1, 9, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
        rows = Row(1, "#COC(" + Num(k) + "#N)(" + ShiftedVariable(kX, -x0) + "#COC)", p + "< " + at) +
               Row(2, Piece(ws, form, false, x0, right), p + "&>= " + at);
        leftValue = k > 0 ? "-&oo" : "+&oo";
        value = Num(right);
    } else {
        rows = Row(1, Piece(ws, form, true, x0, left), p + "< " + at) +
               Row(2, Piece(ws, form, false, x0, right), p + "&>= " + at);
        value = Num(right);
    }
    static const char* const kVerdicts[] = {"Continuous", "Removable discontinuity", "Jump discontinuity",
                                            "Essential discontinuity"};
    ws.Statement = "Study the continuity of the following function at the point &+Ix&-I = " + at + "&LF" + Braced(rows);
    ws.Solution = LimitFrom(x0, "-", leftValue) + ",     " + LimitFrom(x0, "+", Num(right)) + ",     &+If&-I (" + at +
                  ") = " + value + "&LF" + kVerdicts[verdict - 1] + "&LF";
}

namespace {
// a·x² + b·x + c with value v and slope s at x0, or k·e^(x - x0) + q.
std::string SmoothPiece(double lead, bool exponential, double x0, double v, double s) {
    if (exponential) {
        const double q = v - s;
        const std::string e = (s == 1 ? "" : s == -1 ? "-" : Num(s)) + "#EXP( " + ShiftedVariable(kX, -x0) + "#EXP)";
        return e + (q == 0 ? "" : (q > 0 ? " + " : " - ") + Num(std::fabs(q)));
    }
    const double b = s - 2 * lead * x0;
    return PolynomialToMarkup(0, 0, lead, b, v - lead * x0 * x0 - b * x0, kX);
}
} // namespace

// Routine 69: pieces that meet or not, with equal slopes or a corner. The form of the
// pieces by the seed: lines, a parabola and a line, a line and a parabola, two
// parabolas, an exponential and a line.
void DerivabilityOfAFunction(GeneratorWorkspace& ws) {
    const int form = ws.Seed % 5;
    const int verdict = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1));
    const double x0 = RandomInRange(ws, -4, 4, 1, 0);
    const double left = RandomInRange(ws, -10, 10, 1, 0);
    double right = left, slopeLeft, slopeRight;
    double leadLeft = (form == 1 || form == 3) ? RandomInRange(ws, -1, 2, 1, 1) : 0;
    double leadRight = (form == 2 || form == 3) ? RandomInRange(ws, -1, 2, 1, 1) : 0;
    RetryBound bound;
    while (true) {
        slopeLeft = RandomInRange(ws, -4, 4, 1, 1);
        slopeRight = slopeLeft;
        if (verdict == 1) right = left + RandomInRange(ws, 1, 12, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
        if (verdict != 3) slopeRight = slopeLeft + RandomInRange(ws, 1, 4, 1, 1) * (Coin(ws, 0.5f) ? -1 : 1);
        // Equal pieces on both sides would hide the point altogether.
        if (form == 4 || leadLeft != leadRight || slopeLeft != slopeRight || left != right) break;
        leadRight += 1;
        bound.Next();
    }
    const std::string p = "&SP=17:if  &+Ix&-I ";
    const std::string at = Num(x0);
    const std::string rows =
        Row(1, SmoothPiece(leadLeft, form == 4, x0, left, slopeLeft), p + "< " + at) +
        Row(2, SmoothPiece(leadRight, false, x0, right, slopeRight), p + "&>= " + at);
    static const char* const kVerdicts[] = {"Has a jump discontinuity and hasn't derivative.",
                                            "Continuous and hasn't derivative.", "Continuous and has derivative."};
    ws.Statement = "Study the continuity and derivability of the following function at the point &+Ix&-I = " + at +
                   "&LF" + Braced(rows);
    std::string solution = LimitFrom(x0, "-", Num(left)) + ",     " + LimitFrom(x0, "+", Num(right)) + "&LF";
    if (verdict != 1) {
        solution += "&+If&-I_ '_ (" + at + "^-) = " + Num(slopeLeft) + ",     &+If&-I_ '_ (" + at +
                    "^+) = " + Num(slopeRight) + "&LF";
    }
    ws.Solution = solution + kVerdicts[verdict - 1] + "&LF";
}
