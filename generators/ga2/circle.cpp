#include <cmath>
#include <string>

#include "generators/ga2/ga2_common.h"
#include "generators/ga2/ga2_routines.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"
#include "mathservices/poly_markup.h"

namespace {
// The general equation of the line through a point with a direction.
std::string LineThrough(MathWorkspace& ws, double px, double py, double dx, double dy) {
    LineData line;
    line.point = {px, py, 0};
    line.direction = {dx, dy, 0};
    return VectorFormToMarkup(ws, line, LineForm::General, "");
}
} // namespace

// Routine 5: one circle is built first: a diameter from A to B = A + 2d with whole d, so
// that the centre M = A + d is whole and r² = |d|²; its lattice points M ± d and
// M ± (-dy, dx) give tangents, secants and chords with whole points. Types by Seed mod 9:
// equation from centre and radius; centre and radius from the equation; tangent,
// secant and missing line; the parameter of the tangents of a family of parallel lines;
// the circle through three points; the circle on a diameter; two circles meeting; points
// inside and outside; the tangent at a point.
void Circle(GeneratorWorkspace& ws) {
    const int type = ws.Seed % 9;
    const double ax = RandomInRange(ws, -9, 9, 1, 0);
    const double ay = RandomInRange(ws, -9, 9, 1, 0);
    const double dx = RandomInRange(ws, -8, 8, 1, 1);
    const double dy = RandomInRange(ws, -8, 8, 1, 1);
    const double bx = ax + 2 * dx, by = ay + 2 * dy;
    const double mx = ax + dx, my = ay + dy;
    const double r2 = dx * dx + dy * dy;
    // The tangent families: how far off the missing line lies, how far the second
    // circle's centre stands.
    const double family = RandomInRange(ws, 3, 6, 1, 0);
    const ConicData circle{ConicKind::Circle, mx, my, r2, 0, false};
    const std::string reduced = ConicToMarkup(ws, circle, ConicStyle::Reduced);
    const std::string general = ConicToMarkup(ws, circle, ConicStyle::General);
    const std::string both = reduced + kOr + general;
    const std::string centre = PointMarkup(ws, "C", mx, my);
    const std::string radius = RootMarkup(ws, r2);
    // The lattice point a quarter turn from A round the centre.
    const double cx = mx - dy, cy = my + dx;
    switch (type) {
    case 0:
        ws.Statement = "Find the equation of the circle with center &+IC&-I" + PointMarkup(ws, "", mx, my) +
                       " and radius " + radius + ".&LF";
        ws.Solution = "&SP=10:" + both + "&LF";
        break;
    case 1:
        ws.Statement = "Find the center and radius of the given circle:&LF     " + general + "&LF";
        ws.Solution = "&SP=10:" + centre + ";   &+Ir&-I = " + radius + "&LF";
        break;
    case 2: {
        // Tangent at A, secant through B and the quarter-turn point, and a parallel to the
        // tangent family lines off the centre, which misses.
        const std::string lines[3] = {LineThrough(ws, ax, ay, -dy, dx), LineThrough(ws, bx, by, cx - bx, cy - by),
                                      LineThrough(ws, mx - family * dx, my - family * dy, -dy, dx)};
        const std::string answers[3] = {
            "Tangent at " + PointMarkup(ws, "", ax, ay),
            "Intersection at " + PointMarkup(ws, "", bx, by) + "  and  " + PointMarkup(ws, "", cx, cy),
            "No intersection"};
        const int start = static_cast<int>(RandomInRange(ws, 1, 3, 1, 1)) - 1;
        ws.Statement = "Consider the circle  " + reduced +
                       ".  Calculate the line-circle intersection for each of the following lines and calculate the "
                       "intersection point(s) if possible.&LF";
        ws.Solution.clear();
        for (int i = 0; i < 3; ++i) {
            const int which = (start + i) % 3;
            const std::string label = std::string("&+B") + char('a' + i) + ")&-B ";
            ws.Statement += "&SP=5:" + label + lines[which] + "&LF";
            ws.Solution += "&SP=10:" + label + answers[which] + "&LF";
        }
        break;
    }
    case 3: {
        // The lines n·(x, y) + m = 0 with n along the diameter touch the circle at M ± d.
        const std::string letter = DrawParameterLetter(ws);
        const double g = std::fabs(Gcd(ws, dx, dy));
        // The lead of the line's form positive.
        const double sign = dx < 0 ? -1 : 1;
        const double nx = sign * dx / g, ny = sign * dy / g;
        const double m1 = -(nx * bx + ny * by), m2 = -(nx * ax + ny * ay);
        ws.Statement = "Calculate the values of parameter  " + letter + "  for which the line  " +
                       LinearFormToMarkup(nx, ny, 0, Coefficient(0, letter), true) +
                       "  is tangent to the following circle and find the tangent point.&LF     " + general + "&LF";
        ws.Solution = "&SP=10:" + letter + "& =& " + NumberToMarkup(m1) + "  tangent at  " +
                      PointMarkup(ws, "", bx, by) + kOr + letter + "& =& " + NumberToMarkup(m2) + "  tangent at  " +
                      PointMarkup(ws, "", ax, ay) + "&LF";
        break;
    }
    case 4:
        ws.Statement = "Find the center, radius and equation of the circle that passes through the points  &+IA&-I" +
                       PointMarkup(ws, "", ax, ay) + ",  &+IB&-I" + PointMarkup(ws, "", bx, by) + "  and  &+IC&-I" +
                       PointMarkup(ws, "", cx, cy) + ".&LF";
        ws.Solution = "&SP=10:" + PointMarkup(ws, "M", mx, my) + ";   &+Ir&-I = " + radius + "&LF&SP=10:" + both +
                      "&LF";
        break;
    case 5:
        ws.Statement = "A circle has a diameter whose end points are  &+IA&-I" + PointMarkup(ws, "", ax, ay) +
                       "  and  &+IB&-I" + PointMarkup(ws, "", bx, by) +
                       ". Calculate center, radius and equation of the circle.&LF";
        ws.Solution = "&SP=10:" + centre + ";   &+Ir&-I = " + radius + "&LF&SP=10:" + both + "&LF";
        break;
    case 6: {
        // The second centre lies on the perpendicular bisector of the chord from A to
        // the quarter-turn point, so the two circles meet at those two points.
        const double s = family - 2;
        const double nx = mx + s * ((ax - mx) + (cx - mx)), ny = my + s * ((ay - my) + (cy - my));
        const double n2 = (ax - nx) * (ax - nx) + (ay - ny) * (ay - ny);
        const ConicData second{ConicKind::Circle, nx, ny, n2, 0, false};
        ws.Statement = "Calculate the intersection points of the following pairs of circles:&LF     &+IC_1:  &-I" +
                       general + "&LF     &+IC_2:  &-I" + ConicToMarkup(ws, second, ConicStyle::General) + "&LF";
        ws.Solution = "&SP=10:" + PointMarkup(ws, "P", ax, ay) + "  and  " + PointMarkup(ws, "Q", cx, cy) + "&LF";
        break;
    }
    case 7: {
        // P lies 2 or 3 radii off the centre, Q inside at less than half the radius.
        const double far = RandomInRange(ws, 2, 3, 1, 0);
        const double near = RandomInRange(ws, 1, 3, 1, 0);
        const double px = mx + far * dx, py = my + far * dy;
        double qx = mx + std::trunc(dx / (near + 1)), qy = my + std::trunc(dy / (near + 1));
        // Not the centre itself: one step off it is inside too, as r² >= 2.
        if (qx == mx && qy == my) qx += dx > 0 ? 1 : -1;
        const double p2 = (px - mx) * (px - mx) + (py - my) * (py - my);
        const double q2 = (qx - mx) * (qx - mx) + (qy - my) * (qy - my);
        ws.Statement = "Determine if the points &+IP&-I" + PointMarkup(ws, "", px, py) + ",  &+IQ&-I" +
                       PointMarkup(ws, "", qx, qy) + "  are inside or outside to the following circle:&LF     " +
                       reduced + "&LF";
        ws.Solution = "&SP=10:" + centre + ",  &+Ir&-I = " + radius + "&LF&SP=10:&+Id&-I(&+IP&-I,& &+IC&-I)& =& " +
                      RootMarkup(ws, p2) + "& >& &+Ir&-I:  &+IP&-I is outside.     &+Id&-I(&+IQ&-I,& &+IC&-I)& =& " +
                      RootMarkup(ws, q2) + "& <& &+Ir&-I:  &+IQ&-I is inside.&LF";
        break;
    }
    default:
        ws.Statement = "The circle  " + general + "  passes through the point  &+IA&-I" + PointMarkup(ws, "", ax, ay) +
                       ".  Find the equation of the tangent line to the circle at this point.&LF";
        ws.Solution = "&SP=10:" + LineThrough(ws, ax, ay, -dy, dx) + "&LF";
        break;
    }
}
