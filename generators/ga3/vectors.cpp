#include <cmath>

#include "generators/ga3/ga3_routines.h"
#include "generators/ga3/space_problems.h"
#include "mathservices/arithmetic.h"
#include "mathservices/faults.h"
#include "mathservices/number_markup.h"

namespace {
bool IsSquare(double n) {
    const double r = std::round(std::sqrt(n));
    return r * r == n;
}

// √n / denominator with the square factors of n taken out of the root.
std::string RootText(GeneratorWorkspace& ws, double n, double denominator = 1) {
    double outside = 1;
    for (double d = 2; d * d <= n; ++d) {
        while (IsWhole(n / (d * d))) {
            n /= d * d;
            outside *= d;
        }
    }
    return RootFractionToMarkup(ws, outside, n, denominator);
}

// The angle between two vectors: its cosine exactly and the angle in degrees.
std::string AngleText(GeneratorWorkspace& ws, const Vec3& u, const Vec3& v) {
    const double dot = Dot(u, v);
    const double n = Norm2(u) * Norm2(v);
    double degrees = dot == 0 ? 90 : std::acos(dot / std::sqrt(n)) * 180 / kPi;
    degrees = std::round(degrees * 360000) / 360000;
    return "cos& &alfa& =& " + RootFractionToMarkup(ws, dot, n, n) + "&,  &alfa& =& " + AngleToDegreeMarkup(degrees);
}

std::string UnitText(GeneratorWorkspace& ws, const Vec3& v) {
    const double n = Norm2(v);
    return "#NES(()" + RootFractionToMarkup(ws, v.x, n, n) + ",& " + RootFractionToMarkup(ws, v.y, n, n) + ",& " +
           RootFractionToMarkup(ws, v.z, n, n) + "#NES)";
}

std::string Pair(GeneratorWorkspace& ws, const std::string& n1, const Vec3& a, const std::string& n2, const Vec3& b) {
    return VectorMarkup(ws, n1, a) + "  and  " + VectorMarkup(ws, n2, b);
}

std::string Name(const std::string& n) { return "#VED(&+I" + n + "&-I#VED)"; }
} // namespace

VectorsProblem BuildVectorsProblem(GeneratorWorkspace& ws, int type) {
    VectorsProblem p;
    p.type = type;
    p.h = DrawParameterLetter(ws, "hkmnpqrt");
    RetryBound letters;
    while (true) {
        p.k = DrawParameterLetter(ws, "hkmnpqrt");
        if (p.k != p.h) break;
        letters.Next();
    }
    RetryBound bound;
    while (true) {
        bool ok = true;
        switch (type) {
        case 5: {
            // Answer first: a normal of whole length, and u, v across it.
            p.w = DrawVector(ws, -9, 12, 1);
            p.a = DrawVector(ws, -3, 3, 0);
            p.b = DrawVector(ws, -3, 3, 0);
            p.u = Reduced(ws, Cross(p.w, p.a), false);
            p.v = Reduced(ws, Cross(p.w, p.b), false);
            auto within = [](const Vec3& x) { return std::fabs(x.x) <= 15 && std::fabs(x.y) <= 15 && std::fabs(x.z) <= 15; };
            ok = IsSquare(Norm2(p.w)) && !IsNull(p.u) && !IsNull(p.v) && !AreParallel(p.u, p.v) && within(p.u) &&
                 within(p.v);
            break;
        }
        case 0:
        case 2:
        case 8:
        case 9:
        case 10:
            p.u = DrawVector(ws, -9, 9, 1);
            p.v = DrawVector(ws, -9, 9, 1);
            p.a = DrawVector(ws, -9, 9, 1);
            p.b = DrawVector(ws, -9, 9, 1);
            ok = !AreParallel(p.u, p.v) && !AreParallel(p.a, p.b) && !(p.u == p.a);
            break;
        case 1:
            p.u = DrawVector(ws, -10, 20, 1);
            p.v = DrawVector(ws, -20, 20, 1);
            p.a = DrawVector(ws, -10, 20, 1);
            p.b = DrawVector(ws, -20, 20, 1);
            ok = !AreParallel(p.u, p.v) && !AreParallel(p.a, p.b);
            break;
        case 3:
            p.u = DrawVector(ws, -9, 9, 1);
            p.v = DrawVector(ws, -9, 9, 1);
            p.w = DrawVector(ws, -9, 9, 1);
            for (double& x : p.answers) x = RandomInRange(ws, -4, 8, 1, 1);
            p.s = p.answers[0] * p.u + p.answers[1] * p.v + p.answers[2] * p.w;
            ok = Triple(p.u, p.v, p.w) != 0;
            break;
        case 4: {
            // |u| whole: u0² + h² + u2² a square.
            p.u = DrawVector(ws, -15, 19, 1);
            p.u.y = std::fabs(p.u.y);
            p.v = DrawVector(ws, -15, 19, 1);
            p.magnitude = std::round(std::sqrt(Norm2(p.u)));
            p.v.z = -(p.u.x * p.v.x + p.u.y * p.v.y) / p.u.z;
            p.answers[0] = p.u.y;
            p.answers[1] = p.v.z;
            ok = IsSquare(Norm2(p.u)) && IsWhole(p.v.z) && p.v.z != 0 && std::fabs(p.v.z) <= 40;
            break;
        }
        case 6: {
            p.factor = RandomInRange(ws, 2, 5, 1, 1);
            p.u = DrawVector(ws, -9, 15, 1);
            p.column = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1)) - 1;
            p.v = p.factor * p.u;
            double rest = 0;  // Σ u_i² off the letter's column
            for (int i = 0; i < 3; ++i) rest += i == p.column ? 0 : p.u[i] * p.u[i];
            p.answers[0] = p.v[p.column];
            p.answers[1] = -p.factor * rest / p.u[p.column];
            p.answers[2] = RandomInRange(ws, 1, 9, 1, 1);
            p.magnitude2 = p.factor * p.factor * rest + p.answers[2] * p.answers[2];
            ok = IsWhole(p.answers[1]) && std::fabs(p.answers[1]) <= 60 && p.answers[2] != std::fabs(p.answers[0]);
            break;
        }
        case 7: {
            p.u = DrawVector(ws, -9, 15, 1);
            p.v = DrawVector(ws, -9, 15, 1);
            const double alpha = RandomInRange(ws, -3, 3, 1, 1);
            const double beta = RandomInRange(ws, -3, 3, 1, 1);
            p.column = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1)) - 1;
            p.w = alpha * p.u + beta * p.v;
            p.answers[0] = p.w[p.column];
            // The determinant is linear in the letter, with the cofactor as its slope.
            ok = Cross(p.u, p.v)[p.column] != 0 && std::fabs(p.answers[0]) <= 40;
            for (int i = 0; i < 3; ++i) ok = ok && (i == p.column || (p.w[i] != 0 && std::fabs(p.w[i]) <= 40));
            break;
        }
        default:
            p.u = DrawVector(ws, -9, 9, 1);
            p.v = DrawVector(ws, -9, 9, 1);
            p.w = DrawVector(ws, -9, 9, 1);
            ok = Triple(p.u, p.v, p.w) != 0;
            break;
        }
        if (ok) break;
        bound.Next();
    }
    return p;
}

// Routine 1: twelve kinds of vector calculations, by the seed.
void SpaceVectors(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 12;
    const VectorsProblem p = BuildVectorsProblem(ws, type);
    const std::string& h = p.h;
    const std::string& k = p.k;
    auto number = [](double x) { return PlainNumberText(x); };
    switch (type) {
    case 0:
        ws.Statement = "If  " + Pair(ws, "u", p.u, "v", p.v) + ".  Calculate:&LF" +
                       "  &+Ba)&-B& Magnitude of each vector.  &+Bb)&-B& Scalar product (dot product)." +
                       "  &+Bc)&-B& Angle between these vectors.&LF";
        ws.Solution = "&SP=10:&+Ba)&-B& |" + Name("u") + "|& =& " + RootText(ws, Norm2(p.u)) + ",   |" + Name("v") +
                      "|& =& " + RootText(ws, Norm2(p.v)) + "&LF&SP=10:&+Bb)&-B& " + Name("u") + "\u00B7" + Name("v") +
                      "& =& " + number(Dot(p.u, p.v)) + "&LF&SP=10:&+Bc)&-B& " + AngleText(ws, p.u, p.v) + "&LF";
        break;
    case 1:
        ws.Statement = "Calculate the angle between the following pairs of vectors:&LF&SP=5:&+Ba)&-B& " +
                       Pair(ws, "u", p.u, "v", p.v) + "&LF&SP=5:&+Bb)&-B& " + Pair(ws, "a", p.a, "b", p.b) + "&LF";
        ws.Solution = "&SP=10:&+Ba)&-B& " + AngleText(ws, p.u, p.v) + "&LF&SP=10:&+Bb)&-B& " +
                      AngleText(ws, p.a, p.b) + "&LF";
        break;
    case 2:
        ws.Statement = "Find the unit vector of each of the following vectors:&LF&SP=5:&+Ba)&-B& " +
                       VectorMarkup(ws, "u", p.u) + "&LF&SP=5:&+Bb)&-B& " + VectorMarkup(ws, "a", p.a) + "&LF";
        ws.Solution = "&SP=10:&+Ba)&-B& " + UnitText(ws, p.u) + "&LF&SP=10:&+Bb)&-B& " + UnitText(ws, p.a) + "&LF";
        break;
    case 3:
        ws.Statement = "If  " + VectorMarkup(ws, "u", p.u) + ",  " + VectorMarkup(ws, "v", p.v) + ",  " +
                       VectorMarkup(ws, "w", p.w) + "  and  " + VectorMarkup(ws, "s", p.s) +
                       ".&LFFind the values of  &+Ix,  y,  z&-I  for which verify this linear combination:  " + Name("s") +
                       "& =& &+Ix&-I" + Name("u") + "& +& &+Iy&-I" + Name("v") + "& +& &+Iz&-I" + Name("w") + "&LF";
        ws.Solution = "&SP=10:&+Ix&-I = " + number(p.answers[0]) + ",   &+Iy&-I = " + number(p.answers[1]) +
                      ",   &+Iz&-I = " + number(p.answers[2]) + "&LF";
        break;
    case 4:
        ws.Statement = "Find the values of parameters  " + h + "  and  " + k + "  for which the vectors  " +
                       VectorMarkup(ws, "u", p.u, {"", h, ""}) + "  and  " + VectorMarkup(ws, "v", p.v, {"", "", k}) +
                       "  are perpendicular, the magnitude of  " + Name("u") + "  is  " + number(p.magnitude) +
                       "  and  " + h + "& >& 0.&LF";
        ws.Solution = "&SP=10:" + h + " = " + number(p.answers[0]) + ",   " + k + " = " + number(p.answers[1]) + "&LF";
        break;
    case 5: {
        const Vec3 n = Reduced(ws, Cross(p.u, p.v), false);
        ws.Statement = "Find a unit vector perpendicular to  " + VectorMarkup(ws, "u", p.u) + "  and  " +
                       VectorMarkup(ws, "v", p.v) + ".&LF";
        ws.Solution = "&SP=10:" + Name("u") + " \u00D7 " + Name("v") + "& =& " + TupleMarkup(ws, Cross(p.u, p.v)) +
                      ",    " + Name("w") + "& =& &pm" + UnitText(ws, n) + "&LF";
        break;
    }
    case 6: {
        std::array<std::string, 3> texts;
        texts[p.column] = h;
        ws.Statement = "If  " + VectorMarkup(ws, "u", p.u) + "  and  " + VectorMarkup(ws, "v", p.v, texts) +
                       ",  find the value of parameter  " + h + "  for each of the following cases:&LF" +
                       "    &+Ba)&-B& Vectors are parallel.&LF" + "    &+Bb)&-B& Vectors are orthogonal (perpendicular).&LF" +
                       "    &+Bc)&-B& Magnitude of  " + Name("v") + "  is  " + RootText(ws, p.magnitude2) + ".&LF";
        ws.Solution = "&SP=10:&+Ba)&-B& " + h + " = " + number(p.answers[0]) + "    &+Bb)&-B& " + h + " = " +
                      number(p.answers[1]) + "    &+Bc)&-B& " + h + " = &pm" + number(p.answers[2]) + "&LF";
        break;
    }
    case 7: {
        std::array<std::string, 3> texts;
        texts[p.column] = h;
        ws.Statement = "Find the value of parameter  " + h + "  for which vectors  " + VectorMarkup(ws, "u", p.u) +
                       ",  " + VectorMarkup(ws, "v", p.v) + "  and  " + VectorMarkup(ws, "w", p.w, texts) +
                       "  are linearly independent.&LF";
        ws.Solution = "&SP=10:" + h + " &!= " + number(p.answers[0]) + "&LF";
        break;
    }
    case 8:
        ws.Statement = "Calculate the vector product (cross product) for the following pairs of vectors:&LF&SP=5:"
                       "&+Ba)&-B& " + Pair(ws, "u", p.u, "v", p.v) + "&LF&SP=5:&+Bb)&-B& " +
                       Pair(ws, "a", p.a, "b", p.b) + "&LF";
        ws.Solution = "&SP=10:&+Ba)&-B& " + Name("u") + " \u00D7 " + Name("v") + "& =& " +
                      TupleMarkup(ws, Cross(p.u, p.v)) + "&LF&SP=10:&+Bb)&-B& " + Name("a") + " \u00D7 " + Name("b") +
                      "& =& " + TupleMarkup(ws, Cross(p.a, p.b)) + "&LF";
        break;
    case 9:
        ws.Statement = "The vectors  " + VectorMarkup(ws, "u", p.u) + "  and  " + VectorMarkup(ws, "v", p.v) +
                       "  form two sides of a parallelogram. Find its area.&LF";
        ws.Solution = "&SP=10:&+IArea&-I& =& |" + Name("u") + " \u00D7 " + Name("v") + "|& =& " +
                      RootText(ws, Norm2(Cross(p.u, p.v))) + " u^2.&LF";
        break;
    case 10:
        ws.Statement = "If the vectors  " + VectorMarkup(ws, "u", p.u) + "  and  " + VectorMarkup(ws, "v", p.v) +
                       "  form two sides of a triangle, calculate its area.&LF";
        ws.Solution = "&SP=10:&+IArea&-I& =& #COC(1#N)(2#COC)|" + Name("u") + " \u00D7 " + Name("v") + "|& =& " +
                      RootText(ws, Norm2(Cross(p.u, p.v)), 2) + " u^2.&LF";
        break;
    default:
        ws.Statement = "Use the triple product to find the volume of the parallelepiped determined by the vectors  " +
                       VectorMarkup(ws, "u", p.u) + ",  " + VectorMarkup(ws, "v", p.v) + "  and  " +
                       VectorMarkup(ws, "w", p.w) + ".&LF";
        ws.Solution = "&SP=10:&+IV&-I& =& |" + Name("u") + "\u00B7(" + Name("v") + " \u00D7 " + Name("w") + ")|& =& " +
                      number(std::fabs(Triple(p.u, p.v, p.w))) + " u^3.&LF";
        break;
    }
}
