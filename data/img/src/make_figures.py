#!/usr/bin/env python3
"""Draws the figures that generators name in their picture tags, as SVG.

Each figure is drawn in millimetres on a canvas with the proportions of its tag (DXmm by
DYmm), with the labels that the statements use. scripts/make_figures.sh turns the SVG
files into the GIF files the program loads.
"""
import math
import os
import re
import subprocess
import tempfile

OUT = os.path.dirname(os.path.abspath(__file__))

INK = "#1a1a1a"
FILL = "#e6eef8"
FILL2 = "#cfdcef"
ACCENT = "#b03030"
STROKE = 0.32
FONT = 3.1
# A line of 12-point text is about 4.9 mm high.
TOP_BAND = 5.5
# Labels print at least 8 points (2.82 mm) high at the narrowest tag; a little more, to be safe.
LABEL_MM = 2.95
# Free paper kept around the ink, so that no stroke is cut at the canvas's edge.
MARGIN = 0.4
# Resolution of the rendering that finds the ink.
PX_PER_MM = 12


class Figure:
    def __init__(self, name, width, height, smallest_tag=None):
        self.name, self.w, self.h = name, width, height
        # The narrowest tag that shows this figure, in mm; its labels must stay readable there.
        self.smallest = (smallest_tag if smallest_tag else width) / width
        self.items = []

    # Shapes -------------------------------------------------------------------
    def polygon(self, pts, fill=FILL, dash=False, width=STROKE):
        d = " ".join(f"{x:.3f},{y:.3f}" for x, y in pts)
        self.items.append(f'<polygon points="{d}" fill="{fill}" stroke="{INK}" stroke-width="{width}"'
                          f' stroke-linejoin="round"{self._dash(dash)}/>')

    def line(self, a, b, dash=False, width=STROKE, color=INK):
        self.items.append(f'<line x1="{a[0]:.3f}" y1="{a[1]:.3f}" x2="{b[0]:.3f}" y2="{b[1]:.3f}"'
                          f' stroke="{color}" stroke-width="{width}" stroke-linecap="round"{self._dash(dash)}/>')

    def circle(self, c, r, fill=FILL, dash=False, width=STROKE):
        self.items.append(f'<circle cx="{c[0]:.3f}" cy="{c[1]:.3f}" r="{r:.3f}" fill="{fill}" stroke="{INK}"'
                          f' stroke-width="{width}"{self._dash(dash)}/>')

    def ellipse(self, c, rx, ry, fill=FILL, dash=False, width=STROKE):
        self.items.append(f'<ellipse cx="{c[0]:.3f}" cy="{c[1]:.3f}" rx="{rx:.3f}" ry="{ry:.3f}" fill="{fill}"'
                          f' stroke="{INK}" stroke-width="{width}"{self._dash(dash)}/>')

    def path(self, d, fill="none", dash=False, width=STROKE, color=INK):
        self.items.append(f'<path d="{d}" fill="{fill}" stroke="{color}" stroke-width="{width}"'
                          f' stroke-linejoin="round"{self._dash(dash)}/>')

    def dot(self, p, r=0.45):
        self.items.append(f'<circle cx="{p[0]:.3f}" cy="{p[1]:.3f}" r="{r}" fill="{INK}"/>')

    def text(self, p, s, size=FONT, anchor="middle", italic=True, color=INK):
        # Kept as a record: the label size is settled when the figure is fitted to its canvas.
        self.items.append((p, s, size, anchor, italic, color))

    # Marks ---------------------------------------------------------------------
    def right_angle(self, corner, toward1, toward2, size=2.0):
        u = _unit(corner, toward1)
        v = _unit(corner, toward2)
        p1 = (corner[0] + u[0] * size, corner[1] + u[1] * size)
        p2 = (p1[0] + v[0] * size, p1[1] + v[1] * size)
        p3 = (corner[0] + v[0] * size, corner[1] + v[1] * size)
        self.path(f"M{p1[0]:.3f},{p1[1]:.3f} L{p2[0]:.3f},{p2[1]:.3f} L{p3[0]:.3f},{p3[1]:.3f}", width=0.22)

    def angle(self, corner, toward1, toward2, radius=3.2, label=None, label_radius=None, color=ACCENT):
        a1 = math.atan2(toward1[1] - corner[1], toward1[0] - corner[0])
        a2 = math.atan2(toward2[1] - corner[1], toward2[0] - corner[0])
        # Always the smaller arc between the two rays.
        delta = (a2 - a1) % (2 * math.pi)
        if delta > math.pi:
            a1, a2 = a2, a1
            delta = 2 * math.pi - delta
        p1 = (corner[0] + radius * math.cos(a1), corner[1] + radius * math.sin(a1))
        p2 = (corner[0] + radius * math.cos(a1 + delta), corner[1] + radius * math.sin(a1 + delta))
        self.path(f"M{p1[0]:.3f},{p1[1]:.3f} A{radius},{radius} 0 0 1 {p2[0]:.3f},{p2[1]:.3f}", width=0.25,
                  color=color)
        if label:
            mid = a1 + delta / 2
            r = label_radius if label_radius else radius + 2.0
            self.text((corner[0] + r * math.cos(mid), corner[1] + r * math.sin(mid)), label, size=FONT * 0.9,
                      color=color)

    def side_label(self, a, b, s, offset=2.0):
        """A label beside segment a-b, on the left of the direction a -> b."""
        mx, my = (a[0] + b[0]) / 2, (a[1] + b[1]) / 2
        u = _unit(a, b)
        n = (u[1], -u[0])
        self.text((mx + n[0] * offset, my + n[1] * offset), s)

    @staticmethod
    def _dash(dash):
        return ' stroke-dasharray="1.0,0.8"' if dash else ""

    def _body(self, least_size):
        out = []
        for item in self.items:
            if isinstance(item, str):
                out.append(item)
                continue
            p, s, size, anchor, italic, color = item
            size = max(size, least_size)
            style = "italic" if italic else "normal"
            out.append(f'<text x="{p[0]:.3f}" y="{p[1] + size * 0.35:.3f}" font-family="Liberation Serif"'
                       f' font-size="{size:.3f}" font-style="{style}" text-anchor="{anchor}" fill="{color}">{s}</text>')
        return "\n    ".join(out)

    def save(self, top_band=TOP_BAND):
        if top_band == 0:
            self._write(self._body(0), 0, 0, 1)
            return
        # A figure hangs from the top of the line above the one that holds it: the height of
        # that line (at the narrowest tag) stays free at the top. Below it the drawing's ink
        # fills the canvas, so that it prints at the size its tag gives, and every label is
        # at least LABEL_MM high at the narrowest tag.
        band = top_band / self.smallest
        room_w, room_h = self.w - 2 * MARGIN, self.h - band - MARGIN
        scale = 1.0
        for _ in range(8):
            least = LABEL_MM / (scale * self.smallest)
            body = self._body(least)
            x0, y0, x1, y1 = ink_box(body, self.w, self.h)
            fitted = min(room_w / (x1 - x0), room_h / (y1 - y0))
            if fitted >= scale * 0.999:
                break
            scale = fitted
        scale = fitted if fitted >= scale else scale
        dx = (self.w - (x1 - x0) * scale) / 2 - x0 * scale
        dy = band + (room_h - (y1 - y0) * scale) / 2 - y0 * scale
        self._write(body, dx, dy, scale)

    def _write(self, body, dx, dy, scale):
        svg = (f'<?xml version="1.0" encoding="UTF-8"?>\n'
               f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.w}mm" height="{self.h}mm"'
               f' viewBox="0 0 {self.w} {self.h}">\n  <rect width="100%" height="100%" fill="white"/>\n'
               f'  <g transform="translate({dx:.3f},{dy:.3f}) scale({scale:.5f})">\n    {body}\n  </g>\n</svg>\n')
        with open(os.path.join(OUT, self.name + ".svg"), "w") as f:
            f.write(svg)


def ink_box(body, w, h):
    """The box (x0, y0, x1, y1) in drawing millimetres that the drawing's ink covers, found by
    rendering it: labels and strokes included, whatever their font."""
    pad = max(w, h)
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{w + 2 * pad}mm" height="{h + 2 * pad}mm"'
           f' viewBox="{-pad} {-pad} {w + 2 * pad} {h + 2 * pad}">\n  {body}\n</svg>\n')
    with tempfile.TemporaryDirectory() as tmp:
        src, png = os.path.join(tmp, "f.svg"), os.path.join(tmp, "f.png")
        with open(src, "w") as f:
            f.write(svg)
        subprocess.run(["rsvg-convert", "--dpi-x", str(PX_PER_MM * 25.4), "--dpi-y", str(PX_PER_MM * 25.4),
                        src, "-o", png], check=True)
        geometry = subprocess.run(["convert", png, "-format", "%@", "info:"], check=True, capture_output=True,
                                  text=True).stdout.strip()
    bw, bh, bx, by = (int(v) for v in re.match(r"(\d+)x(\d+)\+(\d+)\+(\d+)", geometry).groups())
    return (bx / PX_PER_MM - pad, by / PX_PER_MM - pad, (bx + bw) / PX_PER_MM - pad, (by + bh) / PX_PER_MM - pad)


def _unit(a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    n = math.hypot(dx, dy)
    return (dx / n, dy / n)


def foot(p, a, b):
    """The foot of the perpendicular from p to line a-b."""
    u = _unit(a, b)
    t = (p[0] - a[0]) * u[0] + (p[1] - a[1]) * u[1]
    return (a[0] + u[0] * t, a[1] + u[1] * t)


def regular_polygon(center, radius, n, rotation):
    return [(center[0] + radius * math.cos(rotation + 2 * math.pi * k / n),
             center[1] + radius * math.sin(rotation + 2 * math.pi * k / n)) for k in range(n)]


# Basic geometry: right triangles and rectangles ---------------------------------------

def right_triangle():
    f = Figure("m_trianrec", 32, 25.68)
    A, B, C = (4, 21), (28, 21), (4, 4)   # right angle at A
    f.polygon([A, B, C])
    H = foot(A, B, C)
    f.line(A, H, dash=True)
    f.right_angle(A, B, C)
    f.right_angle(H, A, B, size=1.4)
    f.side_label(A, C, "b", 1.8)          # cathetus
    f.side_label(B, A, "c", 2.0)          # cathetus
    f.side_label(C, B, "a", 2.0)          # hypotenuse
    f.text(((A[0] + H[0]) / 2 + 1.4, (A[1] + H[1]) / 2 + 1.2), "h")
    f.save()


def rectangle():
    f = Figure("m_rectangu", 35, 26, smallest_tag=28)
    P = [(4, 4), (31, 4), (31, 21.5), (4, 21.5)]
    f.polygon(P)
    f.line(P[3], P[1], dash=True)
    f.side_label(P[2], P[3], "b", 2.2)
    f.side_label(P[3], P[0], "h", 1.8)
    f.text((16.0, 10.0), "d")
    f.save()


def isosceles_triangle():
    f = Figure("m_tri_isos", 28, 26.81, smallest_tag=22)
    A, B, C = (3.5, 21.5), (24.5, 21.5), (14, 3.0)
    f.polygon([A, B, C])
    M = (14, 21.5)
    f.line(C, M, dash=True)
    f.right_angle(M, B, C, size=1.5)
    f.side_label(B, A, "b", 2.2)
    f.side_label(A, C, "l", 1.8)
    f.side_label(C, B, "l", 1.8)
    f.text((15.6, 14), "h")
    f.save()


# Similarity --------------------------------------------------------------------------

def thales():
    f = Figure("m_tales", 31.36, 22.8)
    A = (2.5, 19.5)
    B, D = (13.5, 11.3), (27.5, 2.5)       # on the upper ray
    C, E = (14.5, 19.5), (29.0, 19.5)      # on the lower ray, BC parallel to DE
    f.polygon([A, D, E], fill=FILL)
    f.polygon([A, B, C], fill=FILL2)
    for p in (A, B, C, D, E):
        f.dot(p, 0.35)
    f.text((A[0] - 0.3, A[1] + 2.2), "A")
    f.text((B[0] - 1.8, B[1] - 1.2), "B")
    f.text((C[0], C[1] + 2.2), "C")
    f.text((D[0] - 2.2, D[1] + 0.8), "D")
    f.text((E[0], E[1] + 2.2), "E")
    f.save()


def two_similar_triangles():
    f = Figure("m_seme2trian", 40, 21.6)
    A, B, C = (2.5, 17.5), (13, 17.5), (6, 11)
    k = 1.8
    D = (18.0, 17.5)
    E = (D[0] + (B[0] - A[0]) * k, 17.5)
    F = (D[0] + (C[0] - A[0]) * k, 17.5 - (17.5 - C[1]) * k)
    f.polygon([A, B, C])
    f.polygon([D, E, F])
    f.angle(A, B, C, 2.2)
    f.angle(D, E, F, 2.8)
    f.text((A[0] - 0.5, A[1] + 2.3), "A")
    f.text((B[0] + 0.5, B[1] + 2.3), "B")
    f.text((C[0], C[1] - 1.9), "C")
    f.text((D[0] - 0.5, D[1] + 2.3), "D")
    f.text((E[0] + 0.5, E[1] + 2.3), "E")
    f.text((F[0], F[1] - 1.9), "F")
    f.save()


# Plane shapes with straight sides ------------------------------------------------------

def square():
    f = Figure("m_cuadrado", 21.056, 20.992)
    P = [(3.5, 3.5), (17.5, 3.5), (17.5, 17.5), (3.5, 17.5)]
    f.polygon(P)
    f.line(P[3], P[1], dash=True)
    f.side_label(P[2], P[3], "l", 2.0)
    f.text((9.0, 8.2), "d")
    f.save()


def rhombus():
    f = Figure("m_rombo", 13.8, 21.72)
    T, R, B, L = (6.9, 2.0), (12.0, 10.86), (6.9, 19.7), (1.8, 10.86)
    f.polygon([T, R, B, L])
    f.line(T, B, dash=True)
    f.line(L, R, dash=True)
    f.text((8.9, 7.4), "D")
    f.text((4.0, 8.9), "d")
    f.side_label(R, B, "l", 1.9)
    f.save()


def regular_polygon_figure(name, w, h, n, rotation):
    f = Figure(name, w, h)
    c = (w / 2, h / 2 - 1.0)
    r = min(w, h) / 2 - 3.4
    P = regular_polygon(c, r, n, rotation)
    f.polygon(P)
    # Side at the bottom, and the apothem to it.
    bottom = max(range(n), key=lambda k: P[k][1] + P[(k + 1) % n][1])
    a, b = P[bottom], P[(bottom + 1) % n]
    m = ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)
    f.line(c, m, dash=True)
    f.dot(c, 0.35)
    f.right_angle(m, a, c, size=1.2)
    f.text((m[0], m[1] + 2.2), "l")
    f.text((c[0] + 1.5, (c[1] + m[1]) / 2), "a", size=2.8)
    f.save()


def equilateral_triangle():
    f = Figure("m_tri_equi", 22.8, 20.976)
    A, B = (3.2, 17.4), (19.6, 17.4)
    C = (11.4, 17.4 - 16.4 * math.sqrt(3) / 2)
    f.polygon([A, B, C])
    M = (11.4, 17.4)
    f.line(C, M, dash=True)
    f.right_angle(M, B, C, size=1.4)
    f.side_label(B, A, "l", 2.0)
    f.side_label(A, C, "l", 1.8)
    f.side_label(C, B, "l", 1.8)
    f.text((12.8, 12.5), "h")
    f.save()


def right_trapezoid():
    f = Figure("m_traperec", 24, 21)
    P = [(3.5, 4), (13.5, 4), (20.5, 17.5), (3.5, 17.5)]
    f.polygon(P)
    f.right_angle(P[3], P[2], P[0])
    f.right_angle(P[0], P[1], P[3])
    f.side_label(P[0], P[1], "b", 1.8)
    f.side_label(P[2], P[3], "B", 2.2)
    f.side_label(P[3], P[0], "h", 1.8)
    f.side_label(P[1], P[2], "l", 1.8)
    f.save()


def trapezoid():
    f = Figure("m_trapecio", 24, 21.06)
    P = [(7.5, 4), (16.5, 4), (21, 17.5), (3, 17.5)]
    f.polygon(P)
    H = (7.5, 17.5)
    f.line(P[0], H, dash=True)
    f.right_angle(H, P[2], P[0], size=1.4)
    f.side_label(P[0], P[1], "b", 1.8)
    f.side_label(P[2], P[3], "B", 2.2)
    f.text((8.8, 11.5), "h")
    f.side_label(P[3], P[0], "l", 2.3)
    f.save()


def parallelogram():
    f = Figure("m_paralelo", 29.52, 20.8)
    P = [(9, 4), (26.5, 4), (20.5, 16.8), (3, 16.8)]
    f.polygon(P)
    H = (9, 16.8)
    f.line(P[0], H, dash=True)
    f.right_angle(H, P[2], P[0], size=1.4)
    f.side_label(P[2], P[3], "b", 2.2)
    f.text((10.3, 11), "h")
    f.side_label(P[3], P[0], "l", 1.8)
    f.save()


def scalene_triangle():
    f = Figure("m_tri_esca", 23.2, 21.112)
    A, B, C = (2.5, 17), (20.7, 17), (7.5, 3.0)
    f.polygon([A, B, C])
    H = (7.5, 17)
    f.line(C, H, dash=True)
    f.right_angle(H, B, C, size=1.4)
    f.side_label(B, A, "b", 2.2)
    f.text((8.8, 11), "h")
    f.save()


# Plane shapes with curved sides ---------------------------------------------------------

def circle():
    f = Figure("m_circulo", 21.808, 21.866)
    c = (10.9, 10.93)
    f.circle(c, 8.6)
    f.dot(c, 0.4)
    p = (c[0] + 8.6 * math.cos(-0.5), c[1] + 8.6 * math.sin(-0.5))
    f.line(c, p)
    f.text(((c[0] + p[0]) / 2 - 0.3, (c[1] + p[1]) / 2 - 1.6), "r")
    f.save()


def sector_path(c, r, a1, a2, r_inner=0.0):
    p1 = (c[0] + r * math.cos(a1), c[1] + r * math.sin(a1))
    p2 = (c[0] + r * math.cos(a2), c[1] + r * math.sin(a2))
    large = 1 if (a2 - a1) % (2 * math.pi) > math.pi else 0
    if r_inner == 0:
        return f"M{c[0]:.3f},{c[1]:.3f} L{p1[0]:.3f},{p1[1]:.3f} A{r},{r} 0 {large} 1 {p2[0]:.3f},{p2[1]:.3f} Z"
    q1 = (c[0] + r_inner * math.cos(a1), c[1] + r_inner * math.sin(a1))
    q2 = (c[0] + r_inner * math.cos(a2), c[1] + r_inner * math.sin(a2))
    return (f"M{q1[0]:.3f},{q1[1]:.3f} L{p1[0]:.3f},{p1[1]:.3f} A{r},{r} 0 {large} 1 {p2[0]:.3f},{p2[1]:.3f}"
            f" L{q2[0]:.3f},{q2[1]:.3f} A{r_inner},{r_inner} 0 {large} 0 {q1[0]:.3f},{q1[1]:.3f} Z")


def sector():
    f = Figure("m_sector", 21, 21)
    c = (5, 17)
    a1, a2 = -math.radians(80), 0.0
    f.path(sector_path(c, 14, a1, a2), fill=FILL)
    f.angle(c, (c[0] + 1, c[1]), (c[0] + math.cos(a1), c[1] + math.sin(a1)), 3.0, "&#945;")
    f.text((12, 19.2), "r")
    f.save()


def circular_trapezoid():
    f = Figure("m_trapecir", 24, 21)
    c = (12, 19.5)
    a1, a2 = -math.radians(140), -math.radians(40)
    f.path(sector_path(c, 14, a1, a2, 7), fill=FILL)
    f.line(c, (c[0] + 7 * math.cos(a1), c[1] + 7 * math.sin(a1)), dash=True)
    f.line(c, (c[0] + 7 * math.cos(a2), c[1] + 7 * math.sin(a2)), dash=True)
    f.angle(c, (c[0] + math.cos(a1), c[1] + math.sin(a1)), (c[0] + math.cos(a2), c[1] + math.sin(a2)), 2.6,
            "&#945;", 4.6)
    p = (c[0] + 14 * math.cos(a2), c[1] + 14 * math.sin(a2))
    f.text((p[0] - 0.6, p[1] - 2.0), "R")
    q = (c[0] + 7 * math.cos(a2), c[1] + 7 * math.sin(a2))
    f.text((q[0] + 1.6, q[1] + 0.8), "r")
    f.save()


def annulus():
    f = Figure("m_corona", 22.04, 21.982, smallest_tag=20.9)
    c = (11.02, 10.99)
    f.circle(c, 9.2, fill=FILL)
    f.circle(c, 4.6, fill="white")
    f.dot(c, 0.35)
    a = -0.6
    f.line(c, (c[0] + 9.2 * math.cos(a), c[1] + 9.2 * math.sin(a)))
    b = 2.3
    f.line(c, (c[0] + 4.6 * math.cos(b), c[1] + 4.6 * math.sin(b)))
    f.text((c[0] + 7.0 * math.cos(a) - 1.2, c[1] + 7.0 * math.sin(a) - 1.9), "R")
    f.text((c[0] + 2.3 * math.cos(b) - 1.9, c[1] + 2.3 * math.sin(b) - 1.4), "r")
    f.save()


# Solids (cavalier view: depth goes up and to the right at half length) --------------------

def box(f, origin, a, b, c, label_edges=True, diagonal=True):
    """A box with width a, depth b, height c; front face bottom-left corner at origin."""
    ox, oy = origin
    dx, dy = b * 0.5 * math.cos(math.radians(40)), -b * 0.5 * math.sin(math.radians(40))
    f0 = [(ox, oy), (ox + a, oy), (ox + a, oy - c), (ox, oy - c)]
    back = [(x + dx, y + dy) for x, y in f0]
    f.polygon([f0[3], f0[2], back[2], back[3]], fill=FILL2)     # top
    f.polygon([f0[1], back[1], back[2], f0[2]], fill=FILL2)     # right side
    f.polygon(f0, fill=FILL)                                     # front
    f.line(f0[0], back[0], dash=True, width=0.22)
    f.line(back[0], back[1], dash=True, width=0.22)
    f.line(back[0], back[3], dash=True, width=0.22)
    if diagonal:
        f.line(f0[0], back[2], dash=True, color=ACCENT, width=0.26)
    return f0, back


def cube():
    f = Figure("m_cubo", 20.898, 21.006)
    f0, back = box(f, (2.5, 16.8), 12.0, 12.0, 12.0)
    f.side_label(f0[1], f0[0], "a", 2.0)
    f.text((9.0, 7.6), "D", color=ACCENT)
    f.save()


def cuboid():
    f = Figure("m_ortoedro", 15.876, 20.952)
    f0, back = box(f, (2.6, 17.2), 8.0, 6.0, 12.8)
    f.side_label(f0[1], f0[0], "a", 2.0)
    f.side_label(f0[1], back[1], "b", -1.6)
    f.side_label(f0[0], f0[3], "c", 1.6)
    f.text((6.8, 7.0), "D", color=ACCENT)
    f.save()


def pyramid():
    f = Figure("m_piramide", 20.304, 21.006)
    a = 12.6
    ox, oy = 2.2, 17.2
    # A shallow depth keeps the slant height g and the altitude h apart, with room for both labels.
    dx, dy = a * 0.25 * math.cos(math.radians(40)), -a * 0.25 * math.sin(math.radians(40))
    base = [(ox, oy), (ox + a, oy), (ox + a + dx, oy + dy), (ox + dx, oy + dy)]
    centre = (ox + a / 2 + dx / 2, oy + dy / 2)
    apex = (centre[0], 2.0)
    f.polygon([base[0], base[1], apex], fill=FILL)
    f.polygon([base[1], base[2], apex], fill=FILL2)
    f.line(base[0], base[3], dash=True, width=0.22)
    f.line(base[3], base[2], dash=True, width=0.22)
    f.line(apex, centre, dash=True, color=ACCENT, width=0.26)
    mid = ((base[0][0] + base[1][0]) / 2, oy)
    f.line(apex, mid, width=0.22)
    f.side_label(base[1], base[0], "a", 2.0)
    f.text((centre[0] + 1.6, 11.0), "h", color=ACCENT)
    f.text((mid[0] - 1.9, 11.0), "g")
    f.save()


def cylinder():
    f = Figure("m_cilindro", 17.766, 20.952)
    cx, top, bottom, rx, ry = 8.9, 4.6, 16.4, 6.8, 3.2
    f.path(f"M{cx - rx},{top} L{cx - rx},{bottom} A{rx},{ry} 0 0 0 {cx + rx},{bottom} L{cx + rx},{top} Z",
           fill=FILL)
    f.path(f"M{cx - rx},{bottom} A{rx},{ry} 0 0 1 {cx + rx},{bottom}", dash=True, width=0.22)
    f.ellipse((cx, top), rx, ry, fill=FILL2)
    f.dot((cx, bottom), 0.3)
    f.line((cx, bottom), (cx + rx, bottom), width=0.26)
    f.line((cx, top), (cx, bottom), dash=True, color=ACCENT, width=0.26)
    f.text((cx + rx * 0.45, bottom - 1.55), "r")
    f.text((cx - 1.3, (top + bottom) / 2), "h", color=ACCENT)
    f.save()


def cone():
    f = Figure("m_cono", 19.215, 20.916)
    cx, apex_y, bottom, rx, ry = 9.6, 2.0, 16.6, 7.2, 3.2
    f.path(f"M{cx},{apex_y} L{cx - rx},{bottom} A{rx},{ry} 0 0 0 {cx + rx},{bottom} Z", fill=FILL)
    f.path(f"M{cx - rx},{bottom} A{rx},{ry} 0 0 1 {cx + rx},{bottom}", dash=True, width=0.22)
    f.line((cx, apex_y), (cx, bottom), dash=True, color=ACCENT, width=0.26)
    f.line((cx, bottom), (cx + rx, bottom), width=0.26)
    f.dot((cx, bottom), 0.3)
    f.text((cx + rx * 0.45, bottom - 1.55), "r")
    f.text((cx - 1.3, (apex_y + bottom) / 2 + 1), "h", color=ACCENT)
    f.text((cx + rx / 2 + 1.8, (apex_y + bottom) / 2 - 0.5), "g")
    f.save()


def sphere():
    f = Figure("m_esfera", 21.147, 20.976)
    c = (10.57, 10.49)
    f.circle(c, 8.8)
    f.path(f"M{c[0] - 8.8},{c[1]} A8.8,2.4 0 0 0 {c[0] + 8.8},{c[1]}", width=0.22)
    f.path(f"M{c[0] - 8.8},{c[1]} A8.8,2.4 0 0 1 {c[0] + 8.8},{c[1]}", dash=True, width=0.22)
    f.dot(c, 0.35)
    p = (c[0] + 8.8 * math.cos(-0.75), c[1] + 8.8 * math.sin(-0.75))
    f.line(c, p)
    f.text(((c[0] + p[0]) / 2 - 0.6, (c[1] + p[1]) / 2 - 1.4), "r")
    f.save()


# Angle figures of the angle problems ---------------------------------------------------

def ray(c, degrees, length):
    a = math.radians(degrees)
    return (c[0] + length * math.cos(a), c[1] - length * math.sin(a))


def angles_on_a_line():
    f = Figure("m_ang_abc180", 46, 23.46)
    c = (23, 20.5)
    f.line((2, c[1]), (44, c[1]))
    r1, r2 = ray(c, 50, 19), ray(c, 118, 19)
    f.line(c, r1)
    f.line(c, r2)
    f.dot(c, 0.45)
    f.angle(c, (44, c[1]), r1, 7.0, "A", 10.0)
    f.angle(c, r1, r2, 5.5, "B", 8.4)
    f.angle(c, r2, (2, c[1]), 7.0, "C", 10.0)
    f.save()


def right_angle_in_parts():
    """A right angle cut by two rays into the angles A, B and C, A on the horizontal side."""
    f = Figure("m_ang_abc90", 23, 21.275)
    c = (3.5, 18.5)
    f.line(c, (21, c[1]))
    f.line(c, (c[0], 2))
    r1, r2 = ray(c, 28, 17), ray(c, 60, 17)
    f.line(c, r1)
    f.line(c, r2)
    f.dot(c, 0.45)
    f.right_angle(c, (21, c[1]), (c[0], 2), 1.6)
    f.angle(c, (21, c[1]), r1, 6.5, "A", 9.2)
    f.angle(c, r1, r2, 5.5, "B", 8.2)
    f.angle(c, r2, (c[0], 2), 6.5, "C", 9.2)
    f.save()


def labelled_triangle(name, w, h, A, B, C, right_at=None):
    f = Figure(name, w, h)
    f.polygon([A, B, C])
    if right_at is not None:
        P = {"A": A, "B": B, "C": C}
        corner = P[right_at]
        others = [P[k] for k in "ABC" if k != right_at]
        f.right_angle(corner, others[0], others[1], 2.0)
    return f


def right_triangle_angles():
    A, B, C = (4, 20), (40, 20), (4, 4)
    f = labelled_triangle("m_trian_recsl", 46, 23.46, A, B, C, right_at="A")
    f.angle(B, A, C, 5.0, "A", 7.6)
    f.angle(C, A, B, 3.8, "B", 6.2)
    f.save()


def triangle_angles():
    A, B, C = (4, 20), (42, 20), (15, 3)
    f = labelled_triangle("m_trian_sl", 46, 23.46, A, B, C)
    f.angle(A, B, C, 4.0, "A", 6.3)
    f.angle(B, C, A, 4.6, "B", 7.0)
    f.angle(C, A, B, 3.2, "C", 5.4)
    f.save()


def parallelogram_angles():
    f = Figure("m_pllg_sl", 46, 23.46)
    P = [(4, 20), (33, 20), (42, 4), (13, 4)]
    f.polygon(P)
    f.angle(P[0], P[1], P[3], 4.2, "A", 6.6)
    f.angle(P[1], P[2], P[0], 3.6, "B", 5.9)
    f.save()


# Trigonometry: plane shapes solved with the ratios ---------------------------------------

def vertex_label(f, p, s, dx, dy):
    f.dot(p, 0.3)
    f.text((p[0] + dx, p[1] + dy), s)


def triangle_with_height():
    """Triangle ABC with its height AD onto BC, the foot D inside BC; angles B and C marked."""
    f = Figure("m_trigo_tria_hch", 46, 30.94)
    B, C, A = (3, 27), (43, 27), (15, 4)
    D = (15, 27)
    f.polygon([A, B, C])
    f.line(A, D, dash=True)
    f.right_angle(D, C, A, 1.8)
    f.angle(B, C, A, 4.5)
    f.angle(C, A, B, 5.5)
    vertex_label(f, A, "A", 0, -2.2)
    vertex_label(f, B, "B", -1.6, 1.4)
    vertex_label(f, C, "C", 1.6, 1.4)
    vertex_label(f, D, "D", 0, 2.3)
    f.save()


def two_right_triangles():
    """Right triangles ABC and ABD, the right angle at B, C between B and D; angles C and D marked."""
    f = Figure("m_trigo_tria_hhc", 37, 26.825)
    D, C, B, A = (3, 23.5), (18, 23.5), (34, 23.5), (34, 3.5)
    f.polygon([D, B, A], fill=FILL)
    f.polygon([C, B, A], fill=FILL2)
    f.right_angle(B, D, A, 1.8)
    f.angle(D, B, A, 5.5)
    f.angle(C, B, A, 3.8)
    vertex_label(f, A, "A", 1.8, -0.6)
    vertex_label(f, B, "B", 1.8, 1.2)
    vertex_label(f, C, "C", 0, 2.3)
    vertex_label(f, D, "D", -1.4, 1.8)
    f.save()


def rhomboid_with_angle():
    """Rhomboid ABCD on the base AB, its height from D, the diagonal BD; angle A marked."""
    f = Figure("m_trigo_romde", 49, 20.59)
    A, B, C, D = (3, 17.5), (33, 17.5), (46, 3), (16, 3)
    f.polygon([A, B, C, D])
    f.line(B, D, dash=True, width=0.24)
    H = (16, 17.5)
    f.line(D, H, dash=True, width=0.24)
    f.right_angle(H, B, D, 1.5)
    f.angle(A, B, D, 4.2)
    vertex_label(f, A, "A", -1.6, 1.2)
    vertex_label(f, B, "B", 1.0, 2.0)
    vertex_label(f, C, "C", 1.6, -0.8)
    vertex_label(f, D, "D", -0.4, -2.0)
    f.save()


def rhombus_with_diagonals():
    """Rhombus ABCD with its diagonals AC and BD meeting at right angles; angle A marked."""
    f = Figure("m_trigo_rombo", 42, 26.985)
    A, B, C, D = (3, 13.5), (21, 3), (39, 13.5), (21, 24)
    f.polygon([A, B, C, D])
    f.line(A, C, dash=True, width=0.24)
    f.line(B, D, dash=True, width=0.24)
    O = (21, 13.5)
    f.right_angle(O, C, B, 1.4)
    f.angle(A, B, D, 5.0)
    vertex_label(f, A, "A", -1.8, 0)
    vertex_label(f, B, "B", 0, -2.0)
    vertex_label(f, C, "C", 1.8, 0)
    vertex_label(f, D, "D", 0, 2.2)
    f.save()


def trapezoid_with_angle():
    """Right trapezoid ABCD: AB the longer base, right angles at B and C, AD slanted; angle A marked."""
    f = Figure("m_trigo_trape", 42, 22.019)
    A, B, C, D = (3, 19), (39, 19), (39, 3.5), (15, 3.5)
    f.polygon([A, B, C, D])
    H = (15, 19)
    f.line(D, H, dash=True, width=0.24)
    f.right_angle(H, B, D, 1.5)
    f.right_angle(B, A, C, 1.8)
    f.right_angle(C, B, D, 1.8)
    f.angle(A, B, D, 4.4)
    vertex_label(f, A, "A", -1.6, 1.2)
    vertex_label(f, B, "B", 1.6, 1.2)
    vertex_label(f, C, "C", 1.6, -1.4)
    vertex_label(f, D, "D", -1.4, -1.6)
    f.save()


# The subject picture of the wizard -----------------------------------------------------

def subject_mathematics():
    f = Figure("mathematics", 40, 30)
    f.items.append('<rect x="0" y="0" width="40" height="30" fill="#f4f7fc"/>')
    f.path("M3,26 L37,26", width=0.25)
    f.path("M6,28 L6,3", width=0.25)
    pts = " ".join(f"L{6 + x * 1.5:.2f},{26 - 10 - 8 * math.sin(x / 3.2):.2f}" for x in range(0, 21))
    f.path("M6,16 " + pts, color="#2a5db0", width=0.5)
    f.circle((28, 9), 4.2, fill="#fde9b8")
    f.polygon([(9, 24), (18, 24), (9, 18)], fill="#d7e8cf")
    f.text((30, 21.5), "&#960;", size=6.0, color="#b03030")
    f.text((15.5, 8.5), "x&#178;", size=4.2)
    f.save(top_band=0)


ALL = [right_triangle, rectangle, isosceles_triangle, thales, two_similar_triangles, square, rhombus,
       lambda: regular_polygon_figure("m_hexagono", 21.72, 21.18, 6, 0.0),
       lambda: regular_polygon_figure("m_octagono", 19.314, 21.75, 8, math.pi / 8),
       equilateral_triangle, right_trapezoid, trapezoid, parallelogram, scalene_triangle, circle, sector,
       circular_trapezoid, annulus, cube, cuboid, pyramid, cylinder, cone, sphere, angles_on_a_line,
       right_angle_in_parts, right_triangle_angles, triangle_angles, parallelogram_angles,
       triangle_with_height, two_right_triangles, rhomboid_with_angle, rhombus_with_diagonals,
       trapezoid_with_angle, subject_mathematics]

if __name__ == "__main__":
    for draw in ALL:
        draw()
