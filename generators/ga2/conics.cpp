#include <cmath>
#include <string>

#include "generators/ga2/ga2_common.h"
#include "generators/ga2/ga2_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// The forms of the equation in the four "Consider the ..." types, by remainder 0, 2, 4, 6.
ConicStyle StyleOfRemainder(int remainder) {
    switch (remainder) {
    case 2: return ConicStyle::General;
    case 4: return ConicStyle::Cleared;
    case 6: return ConicStyle::ConstantRight;
    default: return ConicStyle::Reduced;
    }
}

std::string Focus(MathWorkspace& ws, bool second, double x, double y) {
    return std::string(second ? "&+IF_ '_ &-I(" : "&+IF&-I(") + NumberToExactMarkup(ws, x) + ",& & " +
           NumberToExactMarkup(ws, y) + ")";
}

// The solution that gives the equation, in reduced form or the general one, and on a line
// of its own what else the statement asks for, if anything.
std::string EquationSolution(MathWorkspace& ws, const ConicData& conic, const std::string& alsoAsked = "") {
    std::string text = "&SP=10:" + ConicToMarkup(ws, conic, ConicStyle::Reduced) + kOr +
                       ConicToMarkup(ws, conic, ConicStyle::General) + "&LF";
    if (!alsoAsked.empty()) text += "&SP=10:" + alsoAsked + "&LF";
    return text;
}

// Remainders 0, 3, 6 and 7 of the ellipse and the hyperbola keep the centre at the
// origin; the others draw it.
void DrawCentre(GeneratorWorkspace& ws, int type, double& h, double& k) {
    if (type == 0 || type == 3 || type == 6 || type == 7) return;
    h = RandomInRange(ws, -9, 9, 1, 1);
    k = RandomInRange(ws, -9, 9, 1, 1);
}

// The two foci at distance c from the centre (h, k) along the unit step (ux, uy).
std::string FociText(MathWorkspace& ws, double h, double k, double c, double ux, double uy) {
    return Focus(ws, false, h + c * ux, k + c * uy) + ",  " + Focus(ws, true, h - c * ux, k - c * uy);
}
} // namespace

// Routine 6: ellipses built on a Pythagorean triple a² = b² + c² (a the semimajor axis,
// c the distance from centre to focus), 30 % with a vertical major axis. Remainders 0, 2,
// 4, 6: the equation in four forms, asking axes, foci, centre, vertices, eccentricity;
// 1, 3, 5: the equation from the foci and the semimajor axis, a vertex or the
// eccentricity; 7, 8: the equation and foci from the centre and two vertices.
void Ellipse(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 9;
    double b = 0, c = 0, a = 0;
    PlaneTriple(ws, type == 4 || type == 6 ? 20 : 30, b, c, a);
    const bool vertical = Coin(ws, 0.7f);
    double h = 0, k = 0;
    DrawCentre(ws, type, h, k);
    const std::string verb = DrawVerb(ws);
    const ConicData conic{ConicKind::Ellipse, h, k, vertical ? b * b : a * a, vertical ? a * a : b * b, false};
    // Unit steps along the major axis (ux, uy) and the minor axis (vx, vy).
    const double ux = vertical ? 0 : 1, uy = vertical ? 1 : 0;
    const double vx = uy, vy = ux;
    const std::string foci = FociText(ws, h, k, c, ux, uy);
    const std::string majorVertex = PointMarkup(ws, "A", h + a * ux, k + a * uy);
    const std::string minorVertex = PointMarkup(ws, "B", h + b * vx, k + b * vy);
    const std::string eccentricity = FractionToMarkup(ws, c, a);
    const std::string ask = ".  " + verb + " the equation of the ellipse.&LF";
    const std::string askFoci = ".  " + verb + " the equation and the foci of the ellipse.&LF";
    switch (type) {
    case 1:
        ws.Statement = "An ellipse has foci at the points  " + foci + "  and semimajor axis of length " +
                       NumberToMarkup(a) + ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    case 3:
        ws.Statement = "An ellipse has foci at the points  " + foci + "  and a vertex at the point " +
                       (Coin(ws, 0.5f) ? majorVertex : PointMarkup(ws, "A", h - a * ux, k - a * uy)) + ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    case 5:
        ws.Statement = "An ellipse has foci at the points  " + foci + "  and its eccentricity is " + eccentricity + ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    case 7:
        ws.Statement = "An ellipse is centered at origin and has vertices at the points  " + majorVertex + "  and  " +
                       minorVertex + askFoci;
        ws.Solution = EquationSolution(ws, conic, foci);
        break;
    case 8:
        ws.Statement = "An ellipse is centered at  " + PointMarkup(ws, "C", h, k) + "  with vertices at the points  " +
                       majorVertex + "  and  " + minorVertex + askFoci;
        ws.Solution = EquationSolution(ws, conic, foci);
        break;
    default:
        ws.Statement = "Consider the ellipse  " + ConicToMarkup(ws, conic, StyleOfRemainder(type)) + ".  " + verb +
                       ":  &+Ba)&-B& Semimajor and semiminor axis.   &+Bb)&-B& Foci.   &+Bc)&-B& Center.   "
                       "&+Bd)&-B& Vertices.   &+Be)&-B& Eccentricity .&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  &+Ia&-I& =& " + NumberToMarkup(a) + ",  &+Ib&-I& =& " + NumberToMarkup(b) +
                      "&LF&SP=10:&+Bb)&-B  " + foci + "&LF&SP=10:&+Bc)&-B  " + PointMarkup(ws, "C", h, k) +
                      "&LF&SP=10:&+Bd)&-B  " + majorVertex + ",  " +
                      PointMarkup(ws, "A_ '_ ", h - a * ux, k - a * uy) + ",  " + minorVertex + ",  " +
                      PointMarkup(ws, "B_ '_ ", h - b * vx, k - b * vy) + "&LF&SP=10:&+Be)&-B  &+Ie&-I& =& " +
                      eccentricity + "&LF";
        break;
    }
}

// Routine 7: hyperbolas built on a Pythagorean triple c² = a² + b² (a the semiaxis on
// the focal axis), 30 % opening up and down. Remainders 0 and 6 ask six items with the
// asymptotes, 2 and 4 five; the others ask the equation from foci, vertices,
// eccentricity or asymptotes.
void Hyperbola(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 9;
    double a = 0, b = 0, c = 0;
    PlaneTriple(ws, type == 4 || type == 6 ? 20 : 30, a, b, c);
    const bool vertical = Coin(ws, 0.7f);
    double h = 0, k = 0;
    DrawCentre(ws, type, h, k);
    const std::string verb = DrawVerb(ws);
    const ConicData conic{ConicKind::Hyperbola, h, k, a * a, b * b, vertical};
    const double ux = vertical ? 0 : 1, uy = vertical ? 1 : 0;
    const std::string foci = FociText(ws, h, k, c, ux, uy);
    const std::string vertex = PointMarkup(ws, "A", h + a * ux, k + a * uy);
    const std::string vertices = vertex + ",  " + PointMarkup(ws, "A_ '_ ", h - a * ux, k - a * uy);
    const std::string eccentricity = FractionToMarkup(ws, c, a);
    // y - k = ±(b/a)(x - h), or ±(a/b) opening up and down.
    const std::string slope = vertical ? FractionToMarkup(ws, a, b) : FractionToMarkup(ws, b, a);
    const std::string xPart = ShiftedMarkup(ws, kItalicX, h);
    const std::string asymptotes = ShiftedMarkup(ws, kItalicY, k) + "& =& ±& " + slope + "& " +
                                   (h == 0 ? xPart : "(" + xPart + ")");
    const std::string ask = ".  " + verb + " the equation of the hyperbola.&LF";
    switch (type) {
    case 1:
        ws.Statement = "A hyperbola has foci at the points  " + foci + "  and semiaxis of length  " + NumberToMarkup(a) +
                       ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    case 3:
        ws.Statement = "A hyperbola has foci at the points  " + foci + "  and a vertex at " + vertex + ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    case 5:
        ws.Statement = "A hyperbola has foci at  " + foci + "  and its eccentricity is " + eccentricity + ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    case 7:
        ws.Statement = "A hyperbola is centered at origin and has a vertex at the point  " + vertex +
                       "  and its asymptotes are  " + asymptotes + ".  " + verb +
                       " the equation and the foci of the hyperbola.&LF";
        ws.Solution = EquationSolution(ws, conic, foci);
        break;
    case 8:
        ws.Statement = "The eccentricity of a hyperbola is " + eccentricity + "  and has vertices at the points  " +
                       vertices + ask;
        ws.Solution = EquationSolution(ws, conic);
        break;
    default: {
        const bool six = type == 0 || type == 6;
        ws.Statement = "Consider the hyperbola  " + ConicToMarkup(ws, conic, StyleOfRemainder(type)) + ".  " + verb +
                       ":  &+Ba)&-B& Semiaxes.   &+Bb)&-B& Foci.   &+Bc)&-B& Center.   &+Bd)&-B& Vertices.   " +
                       (six ? "&+Be)&-B& Eccentricity.   &+Bf)&-B& Asymptotes.&LF" : "&+Be)&-B& Eccentricity.&LF");
        ws.Solution = "&SP=10:&+Ba)&-B  &+Ia&-I& =& " + NumberToMarkup(a) + ",  &+Ib&-I& =& " + NumberToMarkup(b) +
                      "&LF&SP=10:&+Bb)&-B  " + foci + "&LF&SP=10:&+Bc)&-B  " + PointMarkup(ws, "C", h, k) +
                      "&LF&SP=10:&+Bd)&-B  " + vertices + "&LF&SP=10:&+Be)&-B  &+Ie&-I& =& " + eccentricity + "&LF";
        if (six) ws.Solution += "&SP=10:&+Bf)&-B  " + asymptotes + "&LF";
        break;
    }
    }
}

// Routine 8: parabolas with a whole vertex and a whole signed distance p from vertex to
// focus, so that focus and directrix are whole; the equation carries 4p. Remainders 0, 2,
// 4, 6: the equation in four forms, asking focus, vertex, directrix; 1, 3, 5: the
// equation from focus and directrix, vertex and directrix, focus and vertex.
void Parabola(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 7;
    const double h = RandomInRange(ws, -9, 9, 1, 1);
    const double k = RandomInRange(ws, -9, 9, 1, 1);
    double p = RandomInRange(ws, -9, 9, 1, 1);
    const bool vertical = Coin(ws, 0.5f);
    if (Coin(ws, 0.5f)) p = -p;
    const std::string verb = DrawVerb(ws);
    const ConicData conic{ConicKind::Parabola, h, k, 4 * p, 0, vertical};
    const std::string focus = "&+IF&-I(" + NumberToExactMarkup(ws, vertical ? h : h + p) + ",& & " +
                              NumberToExactMarkup(ws, vertical ? k + p : k) + ")";
    const std::string vertex = "&+IV&-I(" + NumberToExactMarkup(ws, h) + ",& & " + NumberToExactMarkup(ws, k) + ")";
    const std::string directrix = vertical ? kItalicY + "& =& " + NumberToExactMarkup(ws, k - p)
                                           : kItalicX + "& =& " + NumberToExactMarkup(ws, h - p);
    switch (type) {
    case 1:
        ws.Statement = "A parabola has its focus at the point  " + focus + "  and its directrix is  " + directrix +
                       ".  " + verb + " its equation and its vertex.&LF";
        ws.Solution = EquationSolution(ws, conic, vertex);
        break;
    case 3:
        ws.Statement = "The point  " + vertex + "  is the vertex of a parabola whose directrix is  " + directrix +
                       ".  " + verb + " its equation and its focus.&LF";
        ws.Solution = EquationSolution(ws, conic, focus);
        break;
    case 5:
        ws.Statement = "The focus of a parabola is " + focus + "  and its vertex is  " + vertex + ".  " + verb +
                       " its equation and its directrix.&LF";
        ws.Solution = EquationSolution(ws, conic, directrix);
        break;
    default:
        ws.Statement = "Consider the parabola  " + ConicToMarkup(ws, conic, StyleOfRemainder(type)) + ".  " + verb +
                       ":  &+Ba)&-B& Focus.   &+Bb)&-B& Vertex.   &+Bc)&-B& Directrix.&LF";
        ws.Solution = "&SP=10:&+Ba)&-B  " + focus + "     &+Bb)&-B  " + vertex + "     &+Bc)&-B  " + directrix + "&LF";
        break;
    }
}
