#!/usr/bin/env python3
"""Draws every picture of Zelvo as an SVG file next to this program.

One hand, one palette, one light (from the top left), one outline colour.
The output uses only what the game's renderer draws: plain shapes, solid
fills, strokes, opacity and gradients.  Running the program twice gives the
same bytes.

    python3 make_pictures.py            draws all pictures
    python3 make_pictures.py zelvo ...  draws only the ones named
"""

import math
import sys
from pathlib import Path

# ------------------------------------------------------------------ palette

INK = "#1d2530"
WHITE = "#ffffff"
CREAM, CREAM_DARK = "#f3ead6", "#d9c7a0"
BLUE, BLUE_DARK, BLUE_LIGHT, BLUE_PALE = "#1f5fbf", "#143f80", "#5b95e6", "#d6e6fa"
RED, RED_DARK, RED_LIGHT, RED_PALE = "#a3262a", "#5f1216", "#cf5350", "#f3cfc8"
TEAL, TEAL_DARK, TEAL_LIGHT = "#11807a", "#0a524e", "#58b8ad"
ASPHALT, ASPHALT_DARK, ASPHALT_LIGHT = "#3a3f46", "#23272c", "#6a727c"
GRASS, GRASS_DARK, GRASS_LIGHT = "#4c9a45", "#2c6a31", "#83c46c"
DIRT, DIRT_DARK, DIRT_LIGHT = "#8a5a34", "#5a3820", "#b98656"
GOLD, GOLD_DARK, GOLD_LIGHT = "#e0a92e", "#a06f12", "#f8dc82"
STEEL, STEEL_DARK, STEEL_LIGHT = "#98a4b0", "#66727e", "#d3dae0"
SKIN, SKIN_DARK = "#eebc93", "#cf9166"
WATER, WATER_LIGHT = "#4a9fd0", "#a9d8ee"
FLAME, FLAME_DARK = "#f58220", "#cf3a17"
PLUM, PLUM_DARK, PLUM_LIGHT = "#5d3a86", "#2c1a45", "#9a78c4"
WOOD, WOOD_DARK, WOOD_LIGHT = "#9a6236", "#63391c", "#c48a55"

OUTLINE = 2  # weight of the outline on the 64 grid


# ------------------------------------------------------------ SVG primitives


def num(value):
    text = f"{value:.{1 if abs(value) >= 10 else 2}f}"
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    return "0" if text in ("", "-0") else text


def flatten(parts):
    if parts is None:
        return []
    if isinstance(parts, str):
        return [parts]
    return [line for part in parts for line in flatten(part)]


def attributes(attrs):
    """The attributes as text; no fill is what the document sets for all."""
    out = []
    for key, value in attrs.items():
        if value is None or (key, value) == ("fill", "none"):
            continue
        text = num(value) if isinstance(value, (int, float)) else value
        out.append(f' {key.replace("_", "-")}="{text}"')
    return "".join(out)


def tag(name, **attrs):
    return [f"<{name}{attributes(attrs)}/>"]


def group(*children, **attrs):
    body = ["  " + line for line in flatten(children)]
    return [f"<g{attributes(attrs)}>", *body, "</g>"]


def at(x, y, *children, scale=None, rotate=None):
    """The children moved to (x, y), then turned, then scaled."""
    move = f"translate({num(x)} {num(y)})"
    if rotate:
        move += f" rotate({num(rotate)})"
    if scale:
        move += f" scale({num(scale)})"
    return group(*children, transform=move)


def ink(*children, width=OUTLINE, colour=INK):
    """The children with the outline that all pictures share."""
    return group(*children, stroke=colour, stroke_width=width)


def rect(x, y, w, h, fill, rx=None, **kw):
    return tag("rect", x=x, y=y, width=w, height=h, rx=rx, fill=fill, **kw)


def circle(cx, cy, r, fill, **kw):
    return tag("circle", cx=cx, cy=cy, r=r, fill=fill, **kw)


def ellipse(cx, cy, rx, ry, fill, **kw):
    return tag("ellipse", cx=cx, cy=cy, rx=rx, ry=ry, fill=fill, **kw)


def path(d, fill="none", **kw):
    return tag("path", d=d, fill=fill, **kw)


def polygon(corners, fill, **kw):
    text = " ".join(f"{num(x)},{num(y)}" for x, y in corners)
    return tag("polygon", points=text, fill=fill, **kw)


def stroke(d, colour, width, **kw):
    return path(d, stroke=colour, stroke_width=width, **kw)


def linear(name, x1, y1, x2, y2, *stops):
    return gradient("linearGradient", name, stops, x1=x1, y1=y1, x2=x2, y2=y2)


def radial(name, cx, cy, r, *stops):
    return gradient("radialGradient", name, stops, cx=cx, cy=cy, r=r)


def gradient(kind, name, stops, **where):
    """Each stop is (offset, colour) or (offset, colour, opacity)."""
    marks = [tag("stop", offset=s[0], stop_color=s[1],
                 stop_opacity=s[2] if len(s) > 2 else None) for s in stops]
    head = f'<{kind} id="{name}" gradientUnits="userSpaceOnUse"{attributes(where)}>'
    inner = [head, *("  " + line for line in flatten(marks)), f"</{kind}>"]
    return ["<defs>", *("  " + line for line in inner), "</defs>"]


def document(width, height, *body):
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" '
            f'viewBox="0 0 {width} {height}" width="{width}" height="{height}" '
            f'fill="none" stroke-linecap="round" stroke-linejoin="round">')
    return "\n".join([head, *("  " + line for line in flatten(body)), "</svg>"]) + "\n"


def icon(*body):
    return document(64, 64, *body)


# ------------------------------------------------------------- small devices


def star(cx, cy, r, fill, inner=0.42, tips=5, **kw):
    corners = []
    for i in range(2 * tips):
        radius = r if i % 2 == 0 else r * inner
        angle = math.pi * i / tips - math.pi / 2
        corners.append((cx + radius * math.cos(angle), cy + radius * math.sin(angle)))
    return polygon(corners, fill, **kw)


def diamond(cx, cy, r, fill, **kw):
    return polygon([(cx, cy - r), (cx + r, cy), (cx, cy + r), (cx - r, cy)], fill, **kw)


def panes(x, y, w, h, cols, rows, dx, dy, fill, skip=(), **kw):
    """A grid of equal windows as one path."""
    d = "".join(f"M{num(x + c * dx)} {num(y + r * dy)}h{num(w)}v{num(h)}h{num(-w)}z"
                for r in range(rows) for c in range(cols) if (c, r) not in skip)
    return path(d, fill, **kw)


def dollar(cx, cy, size, colour, width=2.2):
    return at(cx, cy, stroke("M4.5-4C3.5-7-4.5-7-4.5-3C-4.5.5 4.5-.5 4.5 3.2"
                             "C4.5 7-3.8 7-4.8 4M0-8.5V8.5", colour, width), scale=size / 17)


def question(cx, cy, size, colour, width=4):
    return at(cx, cy,
              stroke("M-5-4C-5-11 6-11 6-4.5C6-.5 0-.5 0 4", colour, width),
              circle(0, 9.6, width * 0.6, colour), scale=size / 22)


def cloud(cx, cy, scale, fill, **kw):
    return at(cx, cy, path("M-20 8a8 8 0 0 1 1-16a11 11 0 0 1 20-4a9 9 0 0 1 13 6"
                           "a7 7 0 0 1 4 14z", fill, **kw), scale=scale)


def tree(x, base, size, leaf=GRASS, light=GRASS_LIGHT, dark=GRASS_DARK, line=OUTLINE):
    """A round tree `size` units high whose trunk stands at (x, base)."""
    r = size * 0.34
    top = base - size + r
    return [
        ink(rect(x - size * .06, base - size * .4, size * .12, size * .4, WOOD_DARK),
            circle(x, top, r, leaf), width=line),
        path(f"M{num(x + r * .95)} {num(top)}a{num(r * .95)} {num(r * .95)} 0 0 1 {num(-r * 1.7)} "
             f"{num(r * .55)}a{num(r)} {num(r)} 0 0 0 {num(r * 1.7)} {num(-r * .55)}z", dark, opacity=.55),
        circle(x - r * .35, top - r * .38, r * .32, light, opacity=.85),
    ]


def coin(cx, cy, r, line=1.6):
    return [ink(circle(cx, cy, r, GOLD), width=line),
            circle(cx, cy, r * .7, "none", stroke=GOLD_LIGHT, stroke_width=r * .14),
            dollar(cx, cy, r * 1.05, GOLD_DARK, 2.6)]


def money_bag(cx, base, size):
    s = size / 40
    return at(cx, base,
              ink(path("M-6-31C-14-25-19-15-19-8C-19-1-13 0 0 0C13 0 19-1 19-8"
                       "C19-15 14-25 6-31z", DIRT_LIGHT),
                  path("M-6-31C-11-36-9-40-5-39C-3-41 3-41 5-39C9-40 11-36 6-31z", DIRT_LIGHT),
                  stroke("M-7-31H7", GOLD, 3.4)),
              path("M12-22C16-16 18-10 17-6C16-2 10-1 2-1C12-5 14-14 12-22z", DIRT, opacity=.6),
              dollar(-1, -14, 17, DIRT_DARK, 2.6), scale=s)


def arrow(x, y, length, height, fill, line=OUTLINE):
    """A fat arrow to the right; (x, y) is the middle of its tail."""
    tip, neck, half = x + length, x + length - height * .6, height / 2
    return ink(polygon([(x, y - half * .45), (neck, y - half * .45), (neck, y - half), (tip, y),
                        (neck, y + half), (neck, y + half * .45), (x, y + half * .45)], fill), width=line)


# ------------------------------------------------------------ the two sides


class Side:
    """Everything that sets the player's buildings apart from the computer's."""

    def __init__(self, **kw):
        self.__dict__.update(kw)


def player_frame():
    return [linear("sky", 0, 3, 0, 53, (0, "#9cc6f7"), (1, "#e9f3fe")),
            rect(0, 0, 64, 64, BLUE),
            path("M0 64V0H64L62 2H2V62z", BLUE_LIGHT, opacity=.7),
            path("M64 0V64H0L2 62H62V2z", BLUE_DARK),
            path("M4 18a14 14 0 0 1 14-14H46a14 14 0 0 1 14 14V49a4 4 0 0 1-4 4H8a4 4 0 0 1-4-4z", "url(#sky)",
                 stroke=BLUE_DARK, stroke_width=1)]


def computer_frame():
    return [linear("sky", 0, 3, 0, 53, (0, "#2b080c"), (1, "#7d1d21")),
            rect(0, 0, 64, 64, RED),
            path("M0 64V0H64L62 2H2V62z", RED_LIGHT, opacity=.7),
            path("M64 0V64H0L2 62H62V2z", RED_DARK),
            polygon([(13, 4), (51, 4), (60, 13), (60, 53), (4, 53), (4, 13)], "url(#sky)",
                    stroke=RED_DARK, stroke_width=1)]


def player_badge(cx, cy, r):
    return [ink(circle(cx, cy, r, WHITE), width=r * .2),
            circle(cx, cy, r * .82, BLUE),
            star(cx, cy + r * .04, r * .8, WHITE, inner=.45)]


def computer_badge(cx, cy, r):
    return [ink(diamond(cx, cy, r * 1.1, CREAM), width=r * .2),
            diamond(cx, cy, r * .84, RED_DARK),
            rect(cx - r * .32, cy - r * .32, r * .64, r * .64, CREAM)]


def round_pip(cx, cy):
    return circle(cx, cy, 2.3, WHITE)


def square_pip(cx, cy):
    return rect(cx - 2.1, cy - 2.1, 4.2, 4.2, GOLD_LIGHT)


PLAYER = Side(frame=player_frame, badge=player_badge, pip=round_pip,
              wall="#2f74d4", light="#7fb0f0", dark="#174a99", trim=WHITE, window="#e8f4ff",
              roof="#f4f8fd", roof_dark="#b9cde8", door=BLUE_DARK, pavement="#8d98a6",
              accent=GOLD, line=INK)
COMPUTER = Side(frame=computer_frame, badge=computer_badge, pip=square_pip,
                wall="#cd4740", light="#f2998a", dark="#8a2023", trim="#f2d9b4", window="#ffd765",
                roof="#e9cfa8", roof_dark="#b98f62", door="#2b080c", pavement="#4a2a2c",
                accent=GOLD, line="#16080a")


def block(side, x, y, w, h, facet=5):
    """One wall seen from the front, lit from the left."""
    return [ink(rect(x, y, w, h, side.wall), colour=side.line),
            rect(x + 1, y + 1, 2, h - 2, side.light),
            rect(x + w - facet, y + 1, facet - 1, h - 2, side.dark)]


def slab(side, x, y, w, h):
    return [ink(rect(x, y, w, h, side.roof, rx=.8), colour=side.line),
            rect(x + w - 7, y + 1, 6, h - 2, side.roof_dark)]


def motel(side):
    return [
        block(side, 7, 37, 40, 15),
        ink(polygon([(4, 38), (10, 29), (44, 29), (50, 38)], side.roof), colour=side.line),
        polygon([(38, 37), (36, 30), (43.5, 30), (48.3, 37)], side.roof_dark),
        panes(12, 42, 6, 5, 3, 1, 11.5, 0, side.window),
        panes(19.6, 42, 3, 10, 2, 1, 11.5, 0, side.door),
        ink(rect(53, 27, 2.4, 25, STEEL_LIGHT), width=1.4, colour=side.line),
        ink(rect(47.5, 18, 13, 9.5, side.accent, rx=2), width=1.8, colour=side.line),
        panes(50, 21, 8, 1.6, 1, 2, 0, 2.8, side.line),
    ]


def inn(side):
    return [
        block(side, 9, 28, 44, 24),
        slab(side, 6, 24, 50, 5),
        panes(13, 32, 5, 5, 5, 1, 7.2, 0, side.window),
        panes(13, 43.5, 5, 5, 5, 1, 7.2, 0, side.window, skip=((2, 0),)),
        rect(10, 38.8, 42, 2.2, side.trim),
        rect(26.6, 43, 6.6, 9, side.door),
    ]


def sign_hotel(side):
    return [
        ink(stroke("M22 22V15M42 22V15", side.line, 2)),
        ink(rect(15, 7, 34, 10, side.accent, rx=2), colour=side.line),
        panes(20, 10, 4, 4, 4, 1, 6.6, 0, side.line),
        block(side, 11, 22, 42, 30),
        slab(side, 8, 19, 48, 4),
        panes(15, 26, 5, 4.6, 5, 1, 6.9, 0, side.window),
        panes(15, 33.2, 5, 4.6, 5, 1, 6.9, 0, side.window),
        panes(15, 42.6, 5, 6, 5, 1, 6.9, 0, side.window, skip=((2, 0),)),
        rect(27.4, 43, 7.6, 9, side.door),
        ink(path("M23 43L26 39H36L39 43z", side.trim), width=1.2, colour=side.line),
    ]


def tower_hotel(side):
    return [
        ink(stroke("M31 12V3.5", side.line, 2)),
        path("M32 3L42 5.5L32 8.5z", side.accent, stroke=side.line, stroke_width=1),
        block(side, 19, 14, 26, 28, facet=6),
        slab(side, 16, 11, 32, 4),
        panes(22.5, 18, 3.8, 4, 3, 4, 6, 6, side.window),
        block(side, 8, 41, 48, 11),
        panes(12, 44.5, 5, 4.6, 6, 1, 6.8, 0, side.window, skip=((2, 0), (3, 0))),
        rect(25.5, 44, 13, 8, side.door),
        rect(25.5, 44, 13, 1.8, side.trim),
    ]


def twin_hotel(side):
    def one(x):
        return [block(side, x, 15, 17, 37),
                ink(polygon([(x - 1.5, 15), (x + 8.5, 4.5), (x + 18.5, 15)], side.roof), colour=side.line),
                polygon([(x + 9, 6.5), (x + 16, 14), (x + 10, 14)], side.roof_dark),
                panes(x + 3.8, 19, 3.4, 3.6, 2, 5, 4.9, 5.6, side.window)]
    return [
        ink(rect(25, 25, 14, 6, side.trim), colour=side.line),
        panes(27, 27, 3, 2.2, 3, 1, 3.8, 0, side.dark),
        one(8.5), one(38.5),
        block(side, 25, 41, 14, 11, facet=4),
        rect(28.4, 44, 6, 8, side.door),
        ink(path("M23 42L26 37.5H38L41 42z", side.accent), width=1.4, colour=side.line),
    ]


def grand_hotel(side):
    return [
        ink(polygon([(22.5, 13), (21, 4), (27, 8.5), (32, 1.8), (37, 8.5), (43, 4), (41.5, 13)],
                    side.accent), colour=side.line),
        circle(32, 9.4, 1.7, side.line),
        block(side, 23, 13, 18, 12),
        panes(26, 16, 2.4, 7, 3, 1, 4.1, 0, side.window),
        block(side, 16, 23, 32, 20, facet=6),
        rect(15, 22, 34, 2.6, side.trim, stroke=side.line, stroke_width=1),
        panes(20, 27.5, 2.6, 5.4, 5, 2, 4.9, 7.6, side.window),
        block(side, 7, 41, 50, 11, facet=6),
        rect(6, 40, 52, 2.6, side.trim, stroke=side.line, stroke_width=1),
        panes(11, 45, 3.2, 5, 7, 1, 6, 0, side.window, skip=((3, 0),)),
        path("M27 52V48a5 5 0 0 1 10 0V52z", side.accent, stroke=side.line, stroke_width=1),
    ]


HOTELS = [("super", motel), ("thrifty", inn), ("quality", sign_hotel),
          ("best", tower_hotel), ("ramada", twin_hotel), ("hilton", grand_hotel)]


def hotel_tile(side, building, rank):
    pips = [side.pip(8 + i * 6.2, 58.6) for i in range(rank)]
    return icon(side.frame(), rect(5, 50.6, 54, 2.4, side.pavement), building(side),
                pips, side.badge(53.6, 54, 9))


def fork(x, y, colour):
    return at(x, y, ink(path("M-4-14V-7C-4-3-2-2-1.4-1.6V14H1.4V-1.6C2-2 4-3 4-7V-14"
                             "M-1.3-14V-7M1.3-14V-7", colour), width=1.5))


def knife(x, y, colour):
    return at(x, y, ink(path("M-1.6 14V-14C4-12 4.5-4 3.4 1H1.4V14z", colour), width=1.5))


def awning(side):
    cloth = []
    for i in range(7):
        x = 4 + i * 8
        fill = side.trim if i % 2 else side.wall
        cloth.append(path(f"M{x} 4h8v8a4 4 0 0 1-8 0z", fill))
    return ink(cloth, width=1.4, colour=side.line)


def restaurant_tile(side, plate):
    return icon(side.frame(), awning(side), plate,
                fork(12.5, 34.5, STEEL_LIGHT), knife(51.5, 31.5, STEEL_LIGHT),
                rect(7, 57.4, 34, 2.6, side.trim, rx=1.3, opacity=.8), side.badge(53.6, 54, 9))


def player_plate():
    return [ink(circle(32, 34, 15.5, WHITE)),
            circle(32, 34, 10.5, BLUE_PALE, stroke=BLUE, stroke_width=1.6),
            star(32, 34.3, 8, BLUE)]


def computer_plate():
    return [ink(polygon([(23, 19), (41, 19), (47, 25), (47, 43), (41, 49), (23, 49), (17, 43), (17, 25)],
                        CREAM)),
            polygon([(25, 24), (39, 24), (42, 27), (42, 41), (39, 44), (25, 44), (22, 41), (22, 27)],
                    RED_PALE, stroke=RED, stroke_width=1.6),
            diamond(32, 34, 8, RED), rect(30, 32, 4, 4, CREAM)]


def player_lot():
    return icon(
        player_frame(),
        path("M7 53C14 44 24 47 32 45C42 43 50 46 57 53z", "#a6bfe0"),
        ellipse(24, 51, 10, 2.6, INK, opacity=.25),
        ink(path("M20 51V7H24V51z", WOOD_LIGHT),
            path("M24 9C33 5 40 14 55 9V36C40 41 33 32 24 36z", BLUE)),
        path("M52 10C52.5 20 52.5 28 52 36.5L54.3 35.6V10.2z", BLUE_DARK),
        circle(39, 22.8, 11.2, WHITE),
        star(39, 23.2, 10.6, BLUE),
        ink(circle(22, 6, 3, GOLD), width=1.4),
        panes(7, 57, 8, 3, 4, 1, 12.6, 0, BLUE_LIGHT),
    )


def computer_lot():
    return icon(
        computer_frame(),
        path("M4 53V47L13 44L23 48L34 45L46 48L60 44V53z", "#541318"),
        ellipse(34, 52, 12, 2.4, "#000000", opacity=.35),
        ink(rect(29.5, 38, 5, 14, STEEL),
            diamond(32, 24, 19, CREAM), colour="#16080a"),
        diamond(32, 24, 15.4, RED),
        path("M32 8.6L47.4 24L32 39.4V34L42 24L32 14z", RED_DARK, opacity=.7),
        rect(26.5, 18.5, 11, 11, CREAM),
        rect(29.8, 21.8, 4.4, 4.4, RED_DARK),
        panes(7, 57, 8, 3, 4, 1, 12.6, 0, RED_LIGHT),
    )


def player_emblem():
    leaves = []
    for side in (-1, 1):
        for i in range(5):
            angle = math.radians(20 + i * 32)
            x, y = 32 + side * 24.6 * math.sin(angle), 31 + 24.6 * math.cos(angle)
            turn = side * (math.degrees(-angle) + 62)
            leaves.append(at(x, y, ellipse(0, 0, 6.4, 3.1, GRASS), rotate=turn))
    return icon(
        ink(leaves, width=1.4),
        ink(circle(32, 30, 21.5, WHITE)),
        radial("disc", 25, 21, 30, (0, BLUE_LIGHT), (.55, BLUE), (1, BLUE_DARK)),
        circle(32, 30, 18.2, "url(#disc)"),
        star(32, 30.8, 16, WHITE, stroke=BLUE_DARK, stroke_width=1),
        ink(path("M14 50L9 61L20 57zM50 50L55 61L44 57z", BLUE_DARK),
            path("M14 49C25 54 39 54 50 49V57C39 62 25 62 14 57z", GOLD)),
        path("M18 54.2C27 57.6 37 57.6 46 54.2", stroke=GOLD_LIGHT, stroke_width=1.6),
    )


def computer_emblem():
    legs = []
    for t in (-12, 0, 12):
        legs.append(rect(t - 2.6, -27, 5.2, 54, STEEL_LIGHT, rx=1))
        legs.append(rect(-27, t - 2.6, 54, 5.2, STEEL_LIGHT, rx=1))
    return icon(
        at(32, 32,
           ink(legs, width=1.6),
           linear("chip", -19, -19, 19, 19, (0, RED_LIGHT), (.5, RED), (1, RED_DARK)),
           ink(rect(-20.5, -20.5, 41, 41, CREAM, rx=2)),
           rect(-17, -17, 34, 34, "url(#chip)"), rotate=45),
        ink(rect(24, 24, 16, 16, CREAM), width=1.6),
        rect(28, 28, 8, 8, RED_DARK),
        path("M32 14V24M32 40V50M14 32H24M40 32H50", stroke=GOLD_LIGHT, stroke_width=2),
        [circle(x, y, 2, GOLD_LIGHT) for x, y in ((32, 14), (32, 50), (14, 32), (50, 32))],
    )


# --------------------------------------------------------------- board icons


def edge():
    """The raised rim that makes a full-bleed tile sit on the board."""
    return [path("M0 64V0H64L61.5 2.5H2.5V61.5z", WHITE, opacity=.28),
            path("M64 0V64H0L2.5 61.5H61.5V2.5z", "#000000", opacity=.34)]


def tuft(x, y, colour, width=1.8):
    return stroke(f"M{x} {y}l-4-6M{x} {y}v-8M{x} {y}l4-6", colour, width)


def survey_stake(x, y):
    return [path(f"M{x - 2} {y - 16}h4v14l-2 4l-2-4z", "#59534a"),
            path(f"M{x - 2} {y - 16}h1.6v14.8l-1.6-.8z", "#7a7264"),
            path(f"M{x + 2} {y - 15}l7 2.4l-7 2.6z", "#a8632c")]


def unzoned_lot():
    return icon(
        rect(0, 0, 64, 64, "#101317"),
        path("M0 40C14 34 26 44 40 38C50 34 58 36 64 34V64H0z", "#171b20"),
        stroke("M14 20L48 15L52 44L16 50z", "#59606a", 1.2, stroke_dasharray="3 3"),
        tuft(30, 34, "#2f3a33"), tuft(36, 56, "#2f3a33"), tuft(27, 57, "#26302a"),
        tuft(57, 28, "#26302a"), tuft(7, 37, "#26302a"),
        survey_stake(14, 22), survey_stake(48, 18), survey_stake(52, 48), survey_stake(16, 54),
        edge(),
    )


def open_lot():
    return icon(
        linear("lawn", 0, 0, 64, 64, (0, "#63b356"), (1, "#3c8439")),
        rect(0, 0, 64, 64, "url(#lawn)"),
        path("M0 10L10 0H22L0 22zM0 34L34 0H46L0 46zM0 58L58 0H64V6L6 64H0zM18 64L64 18V30L30 64z"
             "M42 64L64 42V54L54 64z", GRASS_LIGHT, opacity=.28),
        ellipse(28, 56, 15, 3, INK, opacity=.28),
        ink(rect(14, 9, 5, 47, WHITE, rx=1), rect(11, 13, 42, 4.6, WHITE, rx=1)),
        stroke("M27 18V23M47 18V23", INK, 1.8),
        ink(rect(23, 22, 28, 23, CREAM, rx=2)),
        polygon([(37, 25), (46.5, 33), (44, 33), (44, 42), (30, 42), (30, 33), (27.5, 33)], GRASS_DARK),
        rect(35, 36, 4.4, 6, CREAM),
        tuft(52, 57, GRASS_DARK), tuft(8, 60, GRASS_DARK),
        edge(),
    )


def plank(x, y, turn):
    return at(x, y,
              ink(rect(-27, -4.5, 54, 9, WOOD_LIGHT, rx=1)),
              stroke("M-20-1H8M-8 2H20", WOOD, 1.2),
              circle(-22, 0, 1.5, INK), circle(22, 0, 1.5, INK), rotate=turn)


def condemned_lot():
    return icon(
        linear("soil", 0, 0, 64, 64, (0, "#9c693f"), (1, "#6f4526")),
        rect(0, 0, 64, 64, "url(#soil)"),
        path("M4 9h8v4h-8zM50 6h7v5h-7zM6 28h5v4h-5zM55 30h6v5h-6z", DIRT_DARK, opacity=.6),
        plank(32, 26, 32), plank(32, 26, -32),
        ink(path("M4 60L8 49L18 45L24 52L34 48L42 54L52 50L60 60z", DIRT_LIGHT),
            path("M10 60L14 53L24 52L28 60z", STEEL),
            path("M38 60L40 54L50 53L54 60z", "#b5563a"),
            path("M26 60L29 55L37 56L39 60z", CREAM_DARK), width=1.6),
        edge(),
    )


def golf_course():
    return icon(
        linear("fair", 0, 0, 64, 64, (0, GRASS_LIGHT), (1, GRASS)),
        rect(0, 0, 64, 64, "url(#fair)"),
        path("M0 0H30C20 8 30 16 18 22C10 26 6 30 0 30z", GRASS_DARK),
        path("M64 30C56 36 60 48 52 54C48 58 46 62 46 64H64z", GRASS_DARK),
        ellipse(30, 47, 23, 11, "#a8dd84"),
        ink(path("M42 38C40 32 48 28 54 31C60 33 60 40 55 42C50 44 44 43 42 38z", CREAM), width=1.6),
        path("M45 38C46 41 52 41 55 39", stroke=CREAM_DARK, stroke_width=1.8),
        ellipse(26, 50, 5, 2.2, INK),
        ink(path("M25 50V8", stroke_width=3.4)),
        ink(path("M26 7L47 14L26 22z", GOLD)),
        ink(circle(40, 53, 4, WHITE), width=1.6),
        edge(),
    )


def park():
    return icon(
        linear("lawn", 0, 0, 64, 64, (0, "#9ad280"), (1, "#58a650")),
        rect(0, 0, 64, 64, "url(#lawn)"),
        path("M0 41C18 34 40 46 64 36V44C42 53 18 42 0 49z", CREAM),
        ink(ellipse(44, 54, 15, 6, WATER), width=1.6),
        path("M34 53c3-3 12-4 17-2.4", stroke=WATER_LIGHT, stroke_width=2),
        tree(20, 44, 38), tree(47, 36, 30, leaf="#3c8a45"),
        ink(rect(7, 49, 18, 3, WOOD_LIGHT, rx=1), rect(7, 53.6, 18, 3, WOOD_LIGHT, rx=1),
            path("M9.5 57V61M22.5 57V61"), width=1.6),
        edge(),
    )


def die(cx, cy, size, turn, dots, fill=WHITE, dot=INK):
    r = size / 2
    return at(cx, cy, ink(rect(-r, -r, size, size, fill, rx=size * .2)),
              [circle(x * size * .26, y * size * .26, size * .1, dot) for x, y in dots], rotate=turn)


def casino():
    bulbs = []
    for i in range(9):
        a = math.pi * (1 + i / 8)
        bulbs.append(circle(32 + 25 * math.cos(a), 34 + 25 * math.sin(a), 2,
                            GOLD_LIGHT if i % 2 else WHITE))
    return icon(
        linear("night", 0, 0, 0, 64, (0, "#241238"), (1, "#6a2a7c")),
        rect(0, 0, 64, 64, "url(#night)"),
        ink(path("M3 52V34a29 29 0 0 1 58 0V52z", "#d6337c")),
        ink(path("M11 52V34a21 21 0 0 1 42 0V52z", PLUM_DARK), width=1.6),
        bulbs,
        dollar(32, 26, 22, GOLD_LIGHT, 3),
        rect(2.5, 51, 59, 10.5, "#3d1f57"),
        ink(ellipse(32, 57.5, 7, 3.2, RED_LIGHT), ellipse(32, 54.5, 7, 3.2, CREAM),
            ellipse(32, 51.5, 7, 3.2, TEAL_LIGHT), width=1.4),
        die(16, 49, 15, -12, ((-1, -1), (0, 0), (1, 1))),
        die(48, 49, 15, 14, ((-1, -1), (1, -1), (0, 0), (-1, 1), (1, 1))),
        edge(),
    )


def mall():
    stripes = [path(f"M{num(5 + i * 9)} 27h9v5a4.5 4.5 0 0 1-9 0z", CREAM if i % 2 else "#e8792b")
               for i in range(6)]
    return icon(
        linear("sky", 0, 0, 0, 44, (0, "#8cc9e8"), (1, "#e4f3f7")),
        rect(0, 0, 64, 64, "url(#sky)"),
        rect(0, 49, 64, 15, ASPHALT_LIGHT),
        panes(4, 56, 7, 2, 4, 1, 10, 0, CREAM),
        ink(rect(5, 19, 54, 31, CREAM), rect(3, 14, 58, 7, "#e8792b", rx=1)),
        rect(49, 15, 11, 5, "#b5541a"),
        ink(rect(8, 30, 48, 20, WATER_LIGHT), width=1.6),
        path("M9 49L20 31H27L16 49zM33 49L44 31H47L36 49z", WHITE, opacity=.65),
        stroke("M20 31V50M32 31V50M44 31V50", INK, 1.4),
        ink(stripes, width=1.2),
        ink(rect(39, 42, 19, 18, "#e04f7a", rx=1), width=1.8),
        stroke("M44 47V40C44 35 53 35 53 40V47", INK, 2),
        edge(),
    )


def bolt(fill, **kw):
    return path("M37 8L17 36H29L22 58L47 27H34L43 8z", fill, **kw)


def lightning():
    return icon(
        linear("storm", 0, 0, 0, 64, (0, "#17202e"), (1, "#4a6386")),
        rect(0, 0, 64, 64, "url(#storm)"),
        path("M0 56L14 52L32 56L52 52L64 55V64H0z", "#1a2029"),
        ink(path("M32 60V46L44 37L56 46V60z", STEEL_DARK), width=1.6),
        path("M45 39L43 46L47 50L43 59", stroke=INK, stroke_width=1.8),
        ink(bolt(GOLD_LIGHT), colour=WHITE, width=5),
        ink(bolt("#ffd23e")),
        cloud(24, 12, .95, "#8b98a8", stroke=INK, stroke_width=2),
        cloud(46, 9, .8, "#b7c2cd", stroke=INK, stroke_width=2.2),
        stroke("M13 54L8 50M14 59H7M30 45L33 41", GOLD_LIGHT, 2),
        edge(),
    )


def fire():
    return icon(
        radial("glow", 32, 38, 42, (0, "#a83c18"), (1, "#2a0f12")),
        rect(0, 0, 64, 64, "url(#glow)"),
        ink(path("M8 61V34L20 24L31 30V12H57V61z", "#5b3430"), colour="#170c0c"),
        panes(48, 17, 5, 6, 1, 4, 8, 10, GOLD_LIGHT), panes(12, 37, 4, 6, 1, 1, 0, 0, GOLD_LIGHT),
        ink(path("M32 4C36 14 48 18 44 30C50 28 50 22 49 19C57 28 60 38 56 47C53 56 44 61 32 61"
                 "C19 61 9 54 8 44C7 35 13 30 15 22C19 25 20 29 20 32C28 26 24 14 32 4z", FLAME_DARK)),
        path("M32 19C34 28 42 31 40 40C44 39 46 36 46 33C51 40 50 49 45 54C42 57 37 59 32 59"
             "C22 59 15 53 15 46C15 41 18 38 19 35C22 37 24 40 24 42C30 37 28 27 32 19z", FLAME),
        path("M32 36C33 42 39 44 38 51C37 56 35 58 31 58C25 58 23 54 23 50C23 48 24 46 25 45"
             "C28 47 30 42 32 36z", "#ffdf5a"),
        edge(),
    )


def plane_crash():
    return icon(
        linear("sky", 0, 0, 0, 50, (0, "#a9bdcc"), (1, "#f0d8b8")),
        rect(0, 0, 64, 64, "url(#sky)"),
        cloud(50, 14, .6, "#4e565f"), cloud(52, 28, .5, "#6f7881"), cloud(48, 40, .45, "#59616a"),
        path("M0 52C12 48 22 50 30 52L46 50C54 49 60 50 64 51V64H0z", DIRT),
        star(36, 50, 19, FLAME_DARK, inner=.55, tips=9),
        star(36, 50, 13, "#ffc83d", inner=.5, tips=9),
        at(26, 29,
           ink(path("M-20-3L-26-15H-19L-10-5z", RED_LIGHT),
               path("M-24-2C-18-8 14-9 22-3C25 0 24 4 20 6C8 9-14 6-24 2z", WHITE),
               path("M-4 2L-14 19H-6L9 3z", STEEL),
               path("M2-7L-3-18H2L11-6z", STEEL_LIGHT)),
           path("M-22 2C-8 6 10 7 21 4C18 7 10 7.6 4 7.6C-8 7-18 4-22 2z", STEEL),
           path("M13-5C17-4.6 20-3 21-1H14z", WATER),
           circle(-10, -1.6, 1.5, WATER), circle(-4, -2, 1.5, WATER), circle(2, -2.2, 1.5, WATER),
           circle(8, -2.2, 1.5, WATER), rotate=58),
        ink(path("M-2 66V60C8 56 12 60 17 55C22 51 27 55 31 52C35 56 42 49 48 54C53 52 56 58 66 57V66z", DIRT_DARK),
            width=1.6),
        edge(),
    )


def repairs():
    return icon(
        rect(0, 0, 64, 64, "#e9dcc0"),
        path("M0 16H64M0 32H64M0 48H64M16 0V16M44 0V16M30 16V32M58 16V32M16 32V48M44 32V48M30 48V64",
             stroke=CREAM_DARK, stroke_width=1.6),
        rect(8, 5, 30, 38, TEAL_LIGHT),
        path("M8 43v5a3 3 0 0 0 6 0v-3a3 3 0 0 1 6 0v8a3 3 0 0 0 6 0v-8a3 3 0 0 1 6 0v1a3 3 0 0 0 6 0v-3z",
             TEAL_LIGHT),
        stroke("M40 12H52V26H30", INK, 4.6), stroke("M40 12H52V26H30", STEEL, 2),
        ink(rect(6, 6, 34, 13, TEAL, rx=3)),
        rect(8, 8, 30, 3, TEAL_LIGHT, rx=1.5),
        ink(rect(26.5, 26, 7, 19, GOLD, rx=2.5)),
        stroke("M42 43C42 30 60 30 60 43", INK, 2),
        ink(path("M40 42H61L58.6 60H42.4z", STEEL_LIGHT), ellipse(50.5, 42, 10.5, 3.4, TEAL)),
        path("M54 47H59.6L58 59H54z", STEEL),
        path("M43 43.6c1 4 .5 8 2.4 8s1.4-4 2.6-6.6z", TEAL),
        edge(),
    )


def tax_man():
    return icon(
        linear("wall", 0, 0, 64, 64, (0, "#b9c0a6"), (1, "#7c876d")),
        rect(0, 0, 64, 64, "url(#wall)"),
        ink(path("M5 64C5 46 14 41 24 40H36C46 41 55 46 55 64z", ASPHALT)),
        path("M44 43C50 47 54 53 54 63H46z", ASPHALT_DARK),
        ink(path("M23 40L30 53L37 40z", WHITE), width=1.4),
        ink(path("M28.4 42H31.6L33 52L30 57L27 52z", INK), width=1),
        ink(path("M19 20C19 36 24 42 30 42S41 36 41 20z", SKIN)),
        path("M36 20H40C40 33 36 40 31 41C35 36 36 28 36 20z", SKIN_DARK, opacity=.6),
        ink(path("M18 18C18 7 22 4 30 4S42 7 42 18z", ASPHALT),
            path("M11 18C20 14.5 40 14.5 49 18C44 22.5 16 22.5 11 18z", ASPHALT)),
        path("M18.6 15.8C26 13 34 13 41.4 15.8L41 12C34 10 26 10 19 12z", INK),
        path("M19.5 23H29V26C29 30 21 30 20 26zM31 23H40.5L40 26C39 30 31 30 31 26z", INK),
        path("M21 24.4H24L22 27.4zM32.6 24.4H35.6L33.6 27.4z", STEEL_LIGHT),
        stroke("M26.5 36.4H34", INK, 1.8),
        ink(stroke("M43 45V41.6H52V45", INK, 2.4),
            rect(34.5, 45, 26.5, 16, DIRT, rx=2)),
        rect(36, 46.2, 23.5, 4, DIRT_LIGHT), stroke("M34.5 53H61", INK, 1.4),
        ink(rect(45, 50.4, 5.6, 5, GOLD, rx=1), width=1.2),
        edge(),
    )


def bone_head():
    return icon(
        radial("pop", 32, 30, 44, (0, "#ffe27a"), (1, "#e79a2d")),
        rect(0, 0, 64, 64, "url(#pop)"),
        path("M32 30L0 8V0H10zM32 30L28 0H44zM32 30L64 4V20zM32 30L64 44V58zM32 30L52 64H38z"
             "M32 30L20 64H6zM32 30L0 54V40zM32 30L0 28V18z", WHITE, opacity=.35),
        ink(path("M12 12a6 6 0 0 0-7 8a6 6 0 0 0 8 5L51 25a6 6 0 0 0 8-5a6 6 0 0 0-7-8a6 6 0 0 0-9 3H21"
                 "a6 6 0 0 0-9-3z", WHITE)),
        ink(circle(12.5, 36, 5, SKIN), circle(51.5, 36, 5, SKIN),
            path("M14 28C14 20 50 20 50 28V38C50 52 43 60 32 60S14 52 14 38z", SKIN)),
        path("M48 27C52 44 46 57 33 59C42 54 45 42 44 24z", SKIN_DARK, opacity=.55),
        ink(path("M22 21C24 14 28 18 29 14C31 18 35 13 36 18C39 15 40 19 42 21C36 23 28 23 22 21z", WOOD_DARK)),
        ink(circle(25, 33, 7, WHITE), circle(40, 33, 6, WHITE)),
        circle(28.6, 34, 2.5, INK), circle(36.8, 34.4, 2.3, INK),
        stroke("M17 25L25 22.6M38 23L47 25.8", WOOD_DARK, 2.6),
        ink(ellipse(32.5, 42, 4.4, 3.4, "#e58f6b")),
        ink(path("M20 47C27 51 38 51 45 46C45 54 39 57 32 57S21 54 20 47z", "#5c1a1f"),
            path("M32 52C33 49.6 42 49.4 42 53C42 59 40 62 37 62S32 58 32 52z", "#ec6a78")),
        path("M25 48.6L30 49.6V53H25.6z", WHITE),
        edge(),
    )


# -------------------------------------------------- small pictures of windows


def repairs_window():
    return icon(
        ink(rect(5, 4, 4, 57, WOOD_LIGHT, rx=1), rect(37, 4, 4, 40, WOOD_LIGHT, rx=1),
            path("M9 20L37 40M37 20L9 40"), rect(2, 15, 43, 4.6, WOOD, rx=1)),
        stroke("M9 41L37 21M9 21L37 41", WOOD_LIGHT, 1),
        at(24, 33, ink(rect(-2.6, -16, 5.2, 26, GOLD, rx=2),
                       path("M-11-24H7C11-24 12-20 12-15H5V-14H-11z", STEEL)), rotate=-16),
        at(46, 30, ink(path("M-2.8 16V-6C-8-9-8-17-3-20V-13H3V-20C8-17 8-9 2.8-6V16z", STEEL_LIGHT)), rotate=14),
        ink(rect(14, 40, 48, 21, RED_LIGHT, rx=3)),
        rect(15.2, 41.2, 45.6, 4, "#e88a80", rx=2),
        rect(52, 46, 8.8, 13.8, RED, rx=2),
        stroke("M14 48H62", INK, 1.8),
        ink(path("M30 40V36.4H46V40"), width=3),
        ink(rect(21, 45.4, 6, 6, GOLD, rx=1), rect(49, 45.4, 6, 6, GOLD, rx=1), width=1.4),
    )


def go_button():
    lamps = [ink(circle(24, 14, 5.6, "#6b2a2c"), circle(24, 29, 5.6, "#6e5a24"), width=1.4),
             circle(24, 44, 9.6, "#9dff8a", opacity=.4),
             ink(circle(24, 44, 6.4, "#43d43c"), width=1.4), circle(22, 42, 2, WHITE, opacity=.9)]
    return document(
        192, 64,
        linear("go", 0, 8, 0, 48, (0, "#7ed66a"), (1, "#2d8a32")),
        ink(path("M4 62L30 50H168L190 62z", ASPHALT)),
        path("M42 57.4H58L56 54.6H43zM72 57.4H88L87 54.6H73zM102 57.4H118L118 54.6H103z"
             "M132 57.4H148L146 54.6H132zM160 57.4H174L170 54.6H159z", GOLD_LIGHT),
        ink(rect(21, 50, 6, 10, STEEL_DARK), rect(13, 3, 22, 51, ASPHALT_DARK, rx=5)),
        stroke("M16 8V48", ASPHALT_LIGHT, 1.6),
        lamps,
        ink(path("M52 17H130V5L178 27L130 49V37H52C46 37 46 17 52 17z", "url(#go)"), width=2.4),
        stroke("M53 20.6H133.4V11L165 26", "#c9f5b4", 2.2, opacity=.85),
    )


def gear(cx, cy, outer, inner, teeth, fill):
    step = 2 * math.pi / teeth
    corners = []
    for i in range(teeth):
        for part, radius in ((-.30, inner), (-.19, outer), (.19, outer), (.30, inner)):
            a = (i + part) * step - math.pi / 2
            corners.append((cx + radius * math.cos(a), cy + radius * math.sin(a)))
    return polygon(corners, fill)


def setup_button():
    return icon(
        linear("steel", 8, 8, 56, 56, (0, STEEL_LIGHT), (1, STEEL_DARK)),
        ink(gear(32, 32, 29, 22.5, 8, "url(#steel)"), circle(32, 32, 16.5, BLUE)),
        path("M19.6 28a13 13 0 0 1 14-9.4", stroke=BLUE_LIGHT, stroke_width=2.4),
        question(31.6, 31.4, 21, WHITE, 5),
    )


def exit_button():
    return icon(
        ink(rect(6, 4, 34, 56, WOOD, rx=2), rect(11, 9, 24, 51, ASPHALT_DARK)),
        rect(12.4, 10.4, 21.2, 30, "#9fd0ee"),
        path("M12.4 40.4H33.6V59H12.4z", GRASS),
        ink(path("M11 9L25 15V63L11 60z", WOOD_LIGHT)),
        path("M14 17L22 20V34L14 32zM14 37L22 39V54L14 52z", WOOD, opacity=.75),
        circle(21.6, 38.4, 1.9, GOLD_LIGHT, stroke=INK, stroke_width=1),
        arrow(30, 35, 31, 22, "#43b53c"),
    )


def winner_exit_button():
    return icon(
        linear("cup", 12, 0, 46, 0, (0, GOLD_LIGHT), (.5, GOLD), (1, GOLD_DARK)),
        ink(path("M14 10H5C4 22 9 28 17 29M42 10H51C52 22 47 28 39 29"), width=6.4),
        stroke("M14 10H5C4 22 9 28 17 29M42 10H51C52 22 47 28 39 29", GOLD, 2.6),
        ink(path("M13 4H43C43 22 39 33 31 35V43H25V35C17 33 13 22 13 4z", "url(#cup)"),
            path("M19 43H37L40 51H16z", GOLD_DARK), rect(12, 51, 32, 9, WOOD, rx=1.5)),
        star(28, 17, 8, WHITE, stroke=GOLD_DARK, stroke_width=1),
        rect(14, 53, 28, 2, WOOD_LIGHT),
        arrow(38, 47, 24, 21, "#43b53c"),
    )


def help_exit_button():
    return icon(
        ink(path("M50 50H15C7 50 7 60 15 60H50z", CREAM),
            path("M9 55V10C9 6 11 4 15 4H50V50H15C11 50 9 52 9 55z", TEAL)),
        stroke("M15 53.6H49M14 56.6H49", CREAM_DARK, 1.2),
        path("M10 52V10C10 7 12 5 15 5H17V49H15C13 49 11 50 10 52z", TEAL_DARK),
        rect(44, 5, 5, 44, TEAL_DARK, opacity=.5),
        stroke("M19.4 6.6H42", TEAL_LIGHT, 1.4),
        ink(rect(21, 10, 22, 19, CREAM, rx=2), width=1.6),
        question(32, 18.4, 14, TEAL_DARK, 5),
        ink(path("M20 50H26V63L23 60L20 63z", RED_LIGHT), width=1.6),
        arrow(34, 42, 27, 20, "#43b53c"),
    )


# --------------------------------------------------------------- letterforms


# Each letter: its width, where its outline starts, and the outline from there.
LETTERS = {
    "Z": (80, 0, 0, "h80v24l-44 52h44v24h-80v-24l44-52h-44z"),
    "E": (68, 0, 0, "h68v23h-40v15h32v23h-32v16h40v23h-68z"),
    "L": (66, 0, 0, "h28v76h38v24h-66z"),
    "V": (92, 0, 0, "h30l16 60l16-60h30l-31 100h-30z"),
    "O": (98, 49, -2, "c29 0 49 21 49 52s-20 52-49 52s-49-21-49-52s20-52 49-52z"
                      "m0 25c-12 0-21 10-21 27s9 27 21 27s21-10 21-27s-9-27-21-27z"),
}
GAP = 13
KERNING = {"LV": -24, "VO": -7}


def word(text):
    """The outline of the word in capitals 100 units high, from the origin on."""
    x, d = 0, ""
    for letter, following in zip(text, text[1:] + " "):
        width, start_x, start_y, outline = LETTERS[letter]
        d += f"M{x + start_x} {start_y}{outline}"
        x += width + GAP + KERNING.get(letter + following, 0)
    return d


# ------------------------------------------------------------ the title


def far_skyline():
    def row(blocks):
        return "".join(f"M{x} 230V{top}h{w}V230z" for x, top, w in blocks)
    back = [(34, 96, 30), (150, 110, 30), (196, 140, 50), (262, 124, 34), (318, 142, 60), (392, 116, 30),
            (440, 136, 54), (512, 112, 36), (566, 140, 60), (640, 106, 34), (690, 128, 46)]
    front = [(76, 160, 60), (180, 168, 60), (254, 158, 40), (310, 172, 80), (404, 162, 44), (462, 174, 70),
             (548, 156, 34), (596, 170, 60), (668, 152, 60)]
    return [path(row(back) + "M407 116l3-18l3 18zM657 106l3-24l3 24z", "#c48f9c", opacity=.6),
            path(row(front), "#8f6f94", opacity=.75)]


def window_rows(x, y, width, height, rows, dy, pane, gap, fill):
    """Rows of windows, each row one dashed line as thick as its windows are high."""
    d = "".join(f"M{num(x)} {num(y + height / 2 + r * dy)}h{num(width)}" for r in range(rows))
    return path(d, stroke=fill, stroke_width=height, stroke_dasharray=f"{num(pane)} {num(gap)}",
                stroke_linecap="butt")


def tower(x, top, w, wall, light, dark, lit, cols, rows):
    """A hotel tower of the title picture, its sunny edge on the left; it is drawn inside ink()."""
    facet = w * .2
    pane = 6
    gap = (w - facet - 12 - cols * pane) / (cols - 1)
    return [rect(x, top, w, 256 - top, wall),
            path(f"M{x + 1} {top + 1}h3V255h-3z", light, stroke="none"),
            path(f"M{num(x + w - facet)} {top + 1}h{num(facet - 1)}V255h{num(1 - facet)}z", dark, stroke="none"),
            window_rows(x + 7, top + 10, w - facet - 12, 8, rows, (224 - top) / rows, pane, gap, lit),
            rect(x - 3, top - 5, w + 6, 6, light)]


def dots(places, colour, size, **kw):
    """Round dots of one size as one path."""
    return stroke("".join(f"M{num(x)} {num(y)}h.1" for x, y in places), colour, size, **kw)


def cars(*parked):
    """Cars (x, paint, darker paint) on the street, drawn with few strokes."""
    wheels = [(x + dx, 285) for x, _, _ in parked for dx in (11, 37)]
    shades = "".join(f"M{x} 288h48" for x, _, _ in parked)
    glass = "".join(f"M{x + 18} 269h6.5v6h-11zM{x + 27} 269h6l4.6 6h-10.6z" for x, _, _ in parked)
    bodies = [path(f"M{x + 1} 285v-6c0-3 5-4 9-4l6-8h18l7 8c5 0 7 2 7 5v5z", paint) for x, paint, _ in parked]
    return [stroke(shades, "#000000", 5, opacity=.3), ink(bodies), path(glass, WATER_LIGHT),
            [path(f"M{x + 2} 281h45v3h-45z", dark) for x, _, dark in parked],
            dots(wheels, INK, 11), dots(wheels, STEEL, 5)]


def lamps(*places):
    posts = "".join(f"M{x} 258V226c0-7 12-7 12-1" for x in places)
    bulbs = [(x + 12, 227) for x in places]
    return [stroke(posts, INK, 2.4), dots(bulbs, GOLD_LIGHT, 13, opacity=.5), dots(bulbs, "#fff3c4", 6)]


def park_trees(*trees):
    """Round trees (x, height) along the pavement, drawn with few strokes."""
    trunks = "".join(f"M{x} 257v{num(-h * .5)}" for x, h in trees)
    crowns = [(x, 257 - h * .66, h * .34) for x, h in trees]
    shades = "".join(f"M{num(x + r)} {num(y)}a{num(r)} {num(r)} 0 0 1 {num(-r * 1.7)} {num(r * .7)}"
                     f"q{num(r * 1.2)} {num(r * .2)} {num(r * 1.7)} {num(-r * .7)}" for x, y, r in crowns)
    return [stroke(trunks, INK, 7), stroke(trunks, WOOD_DARK, 4),
            ink([circle(x, y, r, GRASS) for x, y, r in crowns]),
            path(shades, GRASS_DARK, opacity=.6),
            dots([(x - r * .35, y - r * .35) for x, y, r in crowns], GRASS_LIGHT, 10)]


def cypresses(*places):
    d = "".join(f"M{x} 257c-9 0-11-8-8-20q3-14 8-24q5 10 8 24c3 12 1 20-8 20z" for x in places)
    light = "".join(f"M{x - 5} 250c-2-10 1-20 4-27" for x in places)
    return [path(d, "#2f7a3a", stroke=INK, stroke_width=2),
            stroke(light, GRASS_LIGHT, 2, opacity=.8)]


def title_sky():
    return [
        linear("sky", 0, 0, 0, 230, (0, "#1d52a0"), (.36, "#74b4ea"), (.54, "#dbe9e6"), (.7, "#fddcab"),
               (1, "#ffc98c")),
        radial("sun", 112, 74, 200, (0, "#fffbe8"), (.2, "#fff3cc", .8), (.42, "#d9eeff", .5), (1, "#d9eeff", 0)),
        rect(0, 0, 841, 300, "url(#sky)"),
        rect(0, 0, 320, 270, "url(#sun)"),
        circle(112, 74, 36, "#fffbe6"),
        cloud(300, 28, 1.4, WHITE, opacity=.8), cloud(676, 32, 1.3, WHITE, opacity=.75),
        stroke("M452 26q5-5 9 0q5-5 9 0M478 36q4-4 7 0q4-4 7 0", "#1b3d73", 1.8),
    ]


def title_word():
    outline = word("ZELVO")
    letters = [
        path(outline, INK, stroke=INK, stroke_width=15, transform="translate(2.8 2.8)"),
        path(outline, RED, stroke=RED, stroke_width=3, transform="translate(5 5)"),
        path(outline, "url(#face)", stroke=WHITE, stroke_width=2.6),
    ]
    return [linear("face", 0, 0, 0, 100, (0, "#fffaf0"), (.5, "#fbe3a6"), (1, GOLD)),
            group(letters, fill_rule="evenodd",
                  transform="translate(152 48) scale(1.25)")]


def title_struts():
    return stroke("M140 178H700M140 186H700M142 196" + "l18-18l18 18" * 15, INK, 2.4)


def title_row():
    """The hotel on whose roof the word stands, with its windows and its door."""
    return [
        ink(rect(126, 196, 590, 60, CREAM)),
        rect(127, 197, 588, 3, WHITE), rect(127, 224, 588, 2, CREAM_DARK),
        window_rows(136, 204, 570, 14, 1, 0, 9, 11, "#5c86b0"),
        window_rows(156, 204, 550, 14, 1, 0, 9, 71, "#ffd765"), window_rows(196, 204, 500, 14, 1, 0, 9, 51, "#ffd765"),
        window_rows(136, 230, 570, 24, 1, 0, 12, 8, "#7fb2cf"),
        ink(rect(118, 191, 606, 6, CREAM_DARK),
            path("M386 226h70v31h-70z", DIRT_LIGHT), path("M398 232h46v25h-46zM421 232v25", GOLD_LIGHT),
            path("M374 228L384 212H458L468 228z", TEAL)),
        path("M391 227L397 213H409L407 227zM421 227V213H433L436 227z", CREAM),
    ]


def title_towers():
    blue = ("#2f74d4", "#9cc4f5", "#174a99", "#ffe9a8")
    red = ("#b83433", "#ee9a83", "#701a1d", "#ffdd7d")
    sand = ("#e7cf9f", "#fff3d6", "#b3905a", "#5c86b0")
    teal = ("#2b948d", "#8fd6cc", "#0d5a55", "#fff0bd")
    return [
        ink(tower(58, 120, 52, *sand, 4, 7),
            tower(6, 48, 60, *blue, 4, 11),
            path("M16 43L13 22L26 32L36 14L46 32L59 22L56 43z", GOLD),
            tower(98, 176, 54, *teal, 4, 3),
            tower(742, 112, 46, *teal, 3, 7),
            tower(776, 66, 58, *red, 4, 10),
            path("M805 26V8M776 61L805 26L834 61z", CREAM),
            tower(694, 168, 62, *sand, 5, 3)),
        path("M806 28L830 60H812z", CREAM_DARK),
        path("M806 8L822 12.5L806 17z", RED),
        player_badge(32, 240, 9), computer_badge(801, 240, 8),
    ]


def title_street():
    def hedge(x, count):
        return f"M{x} 258v-10" + "a9 9 0 0 1 17 0" * count + "v10z"
    return [
        path(hedge(152, 13) + hedge(468, 13), "#2f7a3a", stroke=INK, stroke_width=2),
        rect(0, 256, 841, 9, "#cfc5b2"), rect(0, 256, 841, 2, WHITE, opacity=.6),
        rect(0, 264, 841, 36, ASPHALT), rect(0, 264, 841, 2.4, INK),
        path("M10 283H841", stroke=GOLD_LIGHT, stroke_width=3.4, stroke_dasharray="26 24", stroke_linecap="butt"),
        cypresses(206, 366, 476, 640),
        park_trees((172, 54), (250, 44), (326, 54), (518, 50), (596, 44), (674, 56)),
        lamps(76, 286, 550, 728),
        cars((236, "#3f83dd", BLUE_DARK), (522, RED_LIGHT, RED_DARK), (694, GOLD, GOLD_DARK)),
    ]


def title_picture():
    return document(841, 300, title_sky(), far_skyline(), title_struts(), title_word(), title_row(),
                    title_towers(), title_street())


# --------------------------------------------------------------- characters


def zoning_man():
    return document(
        180, 180,
        linear("wall", 0, 0, 180, 150, (0, "#6f8f78"), (1, "#3f5b4c")),
        rect(0, 0, 180, 180, "url(#wall)"),
        rect(0, 0, 180, 6, WOOD_DARK), rect(0, 96, 180, 5, WOOD_DARK), rect(0, 101, 180, 79, "#3a2a1d", opacity=.45),
        # the block plan on the wall
        ink(rect(8, 16, 46, 58, WOOD_LIGHT), rect(13, 21, 36, 48, CREAM), width=1.8),
        panes(16, 24, 8, 8, 3, 4, 11, 11, GRASS, skip=((1, 1), (2, 2), (0, 3))),
        panes(27, 35, 8, 8, 1, 1, 0, 0, BLUE), panes(38, 46, 8, 8, 1, 1, 0, 0, RED),
        panes(16, 57, 8, 8, 1, 1, 0, 0, INK),
        # the seal of office
        ink(circle(147, 42, 24, GOLD), circle(147, 42, 17.5, CREAM), width=1.8),
        panes(137, 32, 8.6, 8.6, 2, 2, 11, 11, TEAL_DARK),
        # the man
        ink(path("M24 150C24 116 42 106 70 102H104C132 106 150 116 150 150z", "#2d3a4d"), width=2.6),
        path("M122 108C142 114 148 130 148 149H126z", "#1c2634"),
        ink(path("M70 102L87 134L104 102z", WHITE), path("M84 108H90L94 132L87 142L80 132z", RED)),
        ink(path("M70 100L64 112L76 130L87 140L72 108zM104 100L110 112L98 130L87 140L102 108z", "#3b4a60")),
        ink(path("M74 88H100V104C96 112 78 112 74 104z", SKIN_DARK)),
        ink(ellipse(58, 66, 6, 9, SKIN), ellipse(116, 66, 6, 9, SKIN),
            path("M60 52C60 28 114 28 114 52V70C114 92 102 102 87 102S60 92 60 70z", SKIN), width=2.6),
        path("M106 40C114 50 113 60 112.6 70C112 88 102 99 90 100.6C104 92 108 64 106 40z", SKIN_DARK, opacity=.55),
        path("M70 38C76 33 86 32 92 33", stroke="#fbdcc0", stroke_width=4),
        ink(path("M59 60C54 48 56 40 63 36C62 44 66 50 64 60zM115 60C120 48 118 40 111 36C112 44 108 50 110 60z",
                 STEEL)),
        ink(path("M64 51L83 57L82 62L64 57zM110 51L91 57L92 62L110 57z", "#4d5660"), width=1.4),
        ink(circle(75, 67, 9, "#e9f2f4"), circle(99, 67, 9, "#e9f2f4"), path("M84 66Q87 63 90 66")),
        circle(77, 68, 3, INK), circle(97, 68, 3, INK),
        path("M66.6 64H83.4C82 57 68 57 66.6 64zM90.6 64H107.4C106 57 92 57 90.6 64z", SKIN),
        stroke("M66 64H84M90 64H108", INK, 2),
        ink(path("M87 68L82 81C84 84 90 84 92 81z", SKIN)),
        ink(path("M87 84C80 80 70 84 68 91C76 90 82 91 87 89C92 91 98 90 106 91C104 84 94 80 87 84z", STEEL)),
        stroke("M78 95.6C84 92.6 90 92.6 96 95.6", INK, 2.2),
        # the desk
        linear("desk", 0, 138, 0, 180, (0, WOOD_LIGHT), (.2, WOOD), (1, WOOD_DARK)),
        ink(rect(-4, 140, 188, 44, "url(#desk)"), width=2.6),
        rect(0, 141.6, 180, 3, "#dba974"),
        ink(path("M20 158L34 146H94L104 158z", CREAM), width=1.8),
        stroke("M40 149.6H62M37 153H62", STEEL_DARK, 1.4),
        ink(path("M72 149H88L91 155H72z", "none"), width=1.4, colour=RED),
        ink(rect(118, 157, 44, 10, GOLD_DARK, rx=2), rect(122, 153, 36, 6, "#7a2530", rx=1)),
        # his fists: one on the paper, one with the stamp raised
        ink(path("M28 150C26 134 34 126 44 132L58 146L52 154z", "#2d3a4d"),
            path("M48 152C46 144 54 140 62 143C70 146 70 154 62 155C56 156 50 156 48 152z", SKIN), width=2.4),
        ink(path("M112 152C112 138 128 126 144 119L157 125C150 136 142 142 138 152z", "#2d3a4d"), width=2.4),
        ink(path("M142 118L156 112L160 124L146 130z", WHITE)),
        hand_with_stamp(150, 104, -26, RED),
    )


# ------------------------------------------------------------- chance cards


def card(ground, dark, light, ornament, medallion):
    lattice = "".join(f"M{x} {y - 5}l4 5l-4 5l-4-5z"
                      for row, y in enumerate(range(28, 176, 10))
                      for x in range(28 + (row % 2) * 7, 120, 14))
    return document(
        140, 196,
        linear("field", 0, 0, 140, 196, (0, light), (.45, ground), (1, dark)),
        ink(rect(2, 2, 136, 192, CREAM, rx=12), width=2.4),
        rect(9, 9, 122, 178, "url(#field)", rx=7, stroke=dark, stroke_width=1.6),
        path(lattice, light, opacity=.22),
        rect(14, 14, 112, 168, "none", rx=5, stroke=GOLD_LIGHT, stroke_width=1.6),
        rect(18, 18, 104, 160, "none", rx=3, stroke=GOLD, stroke_width=.9),
        [at(x, y, ornament, rotate=turn) for x, y, turn in
         ((27, 27, 0), (113, 27, 90), (113, 169, 180), (27, 169, 270))],
        medallion,
    )


def clover_card():
    leaf = "M0 0C-22-8-20-34-7-32C-2-31 0-27 0-25C0-27 2-31 7-32C20-34 22-8 0 0z"
    medallion = at(
        70, 98,
        ink(circle(0, 0, 42, GOLD), circle(0, 0, 37, CREAM), width=2),
        circle(0, 0, 33, "none", stroke=GOLD, stroke_width=1.4, stroke_dasharray="2 4", stroke_linecap="butt"),
        stroke("M0 2C4 14 6 20 14 30", GRASS_DARK, 4),
        at(0, -1, ink([path(leaf, GRASS, transform=f"rotate({t}) scale(.86)") for t in (0, 90, 180, 270)], width=2)),
        stroke("M0-6V-18M0 5V17M-6-1H-18M6-1H18", GRASS_LIGHT, 2))
    corner = path("M-4-4H10C4-2-2 4-4 10z", GOLD)
    return card("#1c6b52", "#0c3a2d", "#4faa86", corner, medallion)


def wheel_card():
    spokes = [path(f"M0 0L{num(34 * math.cos(a))} {num(34 * math.sin(a))}"
                   f"A34 34 0 0 1 {num(34 * math.cos(a + math.pi / 6))} {num(34 * math.sin(a + math.pi / 6))}z",
                   fill)
              for a, fill in ((i * math.pi / 6 - math.pi / 12 - math.pi / 2,
                               (GOLD, "#8c3b1a", CREAM)[i % 3]) for i in range(12))]
    knobs = [circle(38 * math.cos(i * math.pi / 6), 38 * math.sin(i * math.pi / 6), 2, WHITE) for i in range(12)]
    medallion = at(
        70, 98,
        ink(polygon([(0, -52), (37, -37), (52, 0), (37, 37), (0, 52), (-37, 37), (-52, 0), (-37, -37)], GOLD), width=2),
        ink(circle(0, 0, 42, "#5a2410"), width=2), ink(spokes, width=1.4), knobs,
        ink(circle(0, 0, 9, GOLD_LIGHT), polygon([(-6, -50), (6, -50), (0, -32)], WHITE)),
        star(0, 0, 6, "#8c3b1a"))
    corner = [circle(0, 0, 5, GOLD), circle(0, 0, 2, "#8c3b1a")]
    return card("#b4571f", "#6d2c0c", "#eba04d", corner, medallion)


def moon_card():
    rays = [polygon([(-3, -36), (0, -48), (3, -36)], GOLD_LIGHT, transform=f"rotate({i * 22.5})") for i in range(16)]
    medallion = at(
        70, 98, rays,
        ink(circle(0, 0, 35, PLUM_DARK), width=2),
        circle(0, 0, 31, "none", stroke=GOLD, stroke_width=1.4),
        ink(path("M4-26A26 26 0 1 0 24 11A21 21 0 0 1 4-26z", GOLD_LIGHT), width=2),
        path("M-14-8C-20 4-12 17 0 21C-15 21-24 6-14-8z", GOLD, opacity=.8),
        ink(star(12, -6, 11, WHITE), width=1.6),
        star(2, 12, 3.4, CREAM), star(22, 8, 2.6, CREAM), star(20, -20, 2.6, CREAM))
    corner = star(0, 0, 7, GOLD, inner=.35, tips=4)
    return card(PLUM, PLUM_DARK, PLUM_LIGHT, corner, medallion)


# ------------------------------------------------------------ the bank's show


def clerk_head(cx, cy, scale, pupils=(0, 0), lids=0, mouth="M-5 19C-2 18 2 18 5 19"):
    """The clerk's head; `pupils` shifts his gaze and `lids` lowers his eyes."""
    px, py = pupils
    eyes = [ink(circle(-9, 1, 7.2, WHITE), circle(9, 1, 7.2, WHITE), path("M-2 0Q0-2 2 0"), width=1.8),
            circle(-9 + px, 1 + py, 2.8, INK), circle(9 + px, 1 + py, 2.8, INK)]
    if lids:
        eyes.append([path(f"M{x - 6.4} 1A6.4 6.4 0 0 1 {x + 6.4} 1z", SKIN) for x in (-9, 9)])
        eyes.append(stroke("M-15.4 1.4H-2.6M2.6 1.4H15.4", INK, 1.6))
    return at(
        cx, cy,
        ink(ellipse(-21, 2, 4.5, 7, SKIN), ellipse(21, 2, 4.5, 7, SKIN),
            path("M-20-8C-20-26 20-26 20-8V6C20 20 10 27 0 27S-20 20-20 6z", SKIN), width=2.2),
        path("M15-12C19 4 16 20 2 25.6C12 25 18.6 16 18.8 6V-8z", SKIN_DARK, opacity=.6),
        ink(path("M-20-6C-22-14-20-24 0-25C20-24 22-14 20-6C18-10 16-11 14-12H-14C-16-11-18-10-20-6z", WOOD_DARK),
            path("M-21-10C-12-15 12-15 21-10C25-7 26-4 25-3C14-8-14-8-25-3C-26-4-25-7-21-10z", "#2ea37c"), width=2),
        path("M-17-9C-8-12 8-12 17-9", stroke="#8fe0c0", stroke_width=1.6),
        eyes,
        ink(path("M-1 3C-4 9-4 11 0 11.6S4 9 1 3", SKIN), width=1.6),
        ink(path("M0 12C-6 9-12 12-15 17C-9 18-4 17.4 0 15.4C4 17.4 9 18 15 17C12 12 6 9 0 12z", WOOD_DARK), width=1.4),
        stroke(mouth, INK, 1.8),
        scale=scale)


def clerk_body(cx, cy, scale):
    """Shirt and waistcoat; (cx, cy) is the middle of his head."""
    return at(
        cx, cy,
        ink(path("M-46 84C-46 44-34 34-14 28H14C34 34 46 44 46 84z", WHITE), width=2.2),
        path("M30 40C40 46 45 60 45 83H34z", "#c5d3d8"),
        ink(path("M-27 84L-24 33L-12 28L0 46L12 28L24 33L27 84z", "#14504c"),
            path("M0 32L-11 26V39zM0 32L11 26V39z", GOLD), width=2),
        circle(0, 56, 1.8, GOLD_LIGHT), circle(0, 66, 1.8, GOLD_LIGHT), circle(0, 76, 1.8, GOLD_LIGHT),
        scale=scale)


def fist(cx, cy, r=8):
    return ink(circle(cx, cy, r, SKIN), width=2.2)


def sleeve(d, width=17, shoulder=None):
    """An arm; `shoulder` is a stroke that joins it to the shirt without a seam."""
    return [stroke(d, INK, width + 4), stroke(d, WHITE, width),
            stroke(shoulder, WHITE, width - 2) if shoulder else None]


def hand_with_stamp(x, y, turn, face):
    """A fist round the handle of a rubber stamp, whose foot is `turn` degrees off plumb."""
    return at(
        x, y,
        ink(rect(-5, -24, 10, 20, WOOD_LIGHT, rx=4), rect(-4, 8, 8, 12, WOOD_LIGHT),
            rect(-15, 19, 30, 8, WOOD_DARK, rx=2), rect(-13, 27, 26, 4, face, rx=1),
            path("M-12 2C-14-8-4-10 4-9C13-8 14 4 10 10C2 14-10 13-12 8z", SKIN), width=2.2),
        stroke("M-2-1H10M-3 5H9", SKIN_DARK, 1.8), rotate=turn)


def bank_hall():
    return [
        linear("wall", 0, 0, 0, 160, (0, "#2f9c93"), (1, TEAL_DARK)),
        rect(0, 0, 230, 230, "url(#wall)"),
        panes(0, 26, 230, 1.4, 1, 5, 0, 26, TEAL_DARK, opacity=.5),
        rect(0, 0, 230, 14, CREAM), rect(0, 11, 230, 4, CREAM_DARK),
        panes(4, 3, 7, 6, 16, 1, 14.4, 0, CREAM_DARK),
        [[ink(rect(x, 20, 22, 140, CREAM), rect(x - 4, 14, 30, 8, CREAM, rx=1)),
          rect(x + 15, 23, 6, 134, CREAM_DARK),
          stroke(f"M{x + 6} 26V156M{x + 11} 26V156", CREAM_DARK, 1.4)] for x in (8, 200)],
    ]


def bank_counter():
    return [
        linear("front", 0, 164, 0, 230, (0, WOOD), (1, WOOD_DARK)),
        ink(rect(-4, 164, 238, 70, "url(#front)")),
        ink([rect(x, 176, 48, 60, WOOD_LIGHT, opacity=.5) for x in (12, 68, 124, 180)], width=1.6),
        ink(rect(-4, 152, 238, 13, CREAM)),
        rect(0, 161, 230, 3, CREAM_DARK),
    ]


def wall_safe():
    """The vault seen from the counter, shut."""
    bolts = [circle(172 + 27 * math.cos(i * math.pi / 4), 84 + 27 * math.sin(i * math.pi / 4), 2.4, STEEL_DARK)
             for i in range(8)]
    return [ink(circle(172, 84, 35, STEEL_DARK), circle(172, 84, 31, STEEL_LIGHT)), bolts,
            ink(circle(172, 84, 18, STEEL), path("M172 70V98M158 84H186"), circle(172, 84, 5, GOLD)),
            path("M147 66A31 31 0 0 1 166 54", stroke=WHITE, stroke_width=3)]


def bell(x, y):
    return [ink(path(f"M{x - 12} {y - 3}a12 11 0 0 1 24 0z", GOLD), rect(x - 14, y - 4, 28, 5, WOOD_DARK, rx=1),
                circle(x, y - 16, 2.4, GOLD_LIGHT), width=1.8),
            path(f"M{x - 8} {y - 6}a8 7 0 0 1 5-5", stroke=GOLD_LIGHT, stroke_width=2)]


def customer(x, y):
    """The player at the counter, seen from behind, in the player's blue."""
    return at(
        x, y,
        ink(path("M-44 112C-46 66-36 48-14 42H14C36 48 46 66 44 112z", BLUE), width=2.4),
        path("M26 50C40 60 43 80 43 111H24C30 92 32 68 26 50z", BLUE_DARK),
        stroke("M0 58V110", BLUE_DARK, 2),
        ink(path("M-14 42C-10 36 10 36 14 42C8 50-8 50-14 42z", WHITE), width=1.8),
        ink(ellipse(-20, 16, 4, 7, SKIN), ellipse(20, 16, 4, 7, SKIN),
            path("M-19 8V18C-19 30-12 38 0 38S19 30 19 18V8z", SKIN), width=2.2),
        ink(path("M-19 8V16C-17 28-12 30-10 30C-4 32 4 32 10 30C12 30 17 28 19 16V8z", DIRT_DARK), width=1.8),
        ink(path("M-21 8C-22-22 22-22 21 8z", BLUE), ellipse(0, 8, 29, 5.4, BLUE), width=2.4),
        path("M8-13C16-10 19-5 19.6-2L9 1C11-4 11-9 8-13z", BLUE_DARK, opacity=.7),
        path("M-20.6 3C-10 6 10 6 20.6 3V-3C10 0-10 0-20.6-3z", WHITE))


def bank_waiting():
    bars = "".join(f"M{x} {y}V150" for x, y in ((84, 24), (104, 18), (124, 24)))
    return document(
        230, 230, bank_hall(), wall_safe(),
        clerk_body(104, 88, .92), clerk_head(104, 88, .98),
        bank_counter(),
        sleeve("M69 148C78 146 86 147 92 149", 12, "M74 138L71 146"),
        sleeve("M139 148C130 146 122 147 116 149", 12, "M134 138L137 146"),
        fist(98, 150, 7.5), fist(110, 150, 7.5),
        stroke(bars, INK, 6), stroke(bars, GOLD, 3), stroke("M62 114H146", INK, 7.6), stroke("M62 114H146", GOLD, 4.4),
        stroke("M60 152V44A44 26 0 0 1 148 44V152", INK, 10), stroke("M60 152V44A44 26 0 0 1 148 44V152", GOLD, 6),
        stroke("M58.6 150V44C60 32 72 22 86 19", GOLD_LIGHT, 1.8),
        bell(184, 153),
        ink(rect(22, 132, 30, 18, RED, rx=2), path("M30 150L26 154H48L44 150"), width=1.8),
        rect(27, 138.6, 20, 4.6, WHITE, rx=1),
    )


def bank_asking():
    return document(
        230, 230, bank_hall(), wall_safe(),
        clerk_body(140, 92, .92), clerk_head(140, 92, .98, pupils=(-3, 1), mouth="M-3 20H4"),
        bank_counter(),
        sleeve("M175 150C168 147 160 148 154 151", 12, "M170 140L173 148"), fist(148, 152, 7.5),
        bell(205, 153),
        ink(path("M90 160C92 154 100 152 107 155C113 158 112 164 107 166L92 168z", SKIN)),
        stroke("M74 198C86 196 92 184 96 172L97 169", INK, 20), stroke("M96 172L97 169", WHITE, 16),
        stroke("M74 198C86 196 91 186 94 177", BLUE, 16),
        customer(50, 118),
        ink(path("M32 20H104C112 20 116 24 116 32V60C116 68 112 72 104 72H84L66 90L64 72H32C24 72 20 68 20 60V32"
                 "C20 24 24 20 32 20z", WHITE), width=2.4),
        coin(48, 46, 17, 2), question(90, 45, 36, INK, 4.6),
    )


def bank_reading():
    def rows(x, y, dx, dy, count):
        return "".join(f"M{x + i * dx} {y + i * dy}h{48}" for i in range(count))
    return document(
        230, 230, bank_hall(),
        clerk_body(115, 78, 1.5), clerk_head(115, 76, 1.55, pupils=(-.6, 3.6), lids=1, mouth="M-4 21H4"),
        ink(rect(-4, 192, 238, 42, CREAM)), rect(0, 214, 230, 20, CREAM_DARK),
        ink(path("M18 214L34 156C62 146 94 148 115 160C136 148 168 146 196 156L212 214C180 204 144 206 115 218"
                 "C86 206 50 204 18 214z", TEAL_DARK), width=2.6),
        ink(path("M26 206L40 154C66 146 94 148 115 160V211C88 200 56 198 26 206z", WHITE),
            path("M204 206L190 154C164 146 136 148 115 160V211C142 200 174 198 204 206z", CREAM)),
        stroke(rows(46, 163, -3, 9, 4), STEEL, 2), stroke(rows(134, 163, 2, 9, 4), STEEL, 2),
        stroke("M78 153L72 197M158 153L164 197", RED_LIGHT, 1.6),
        sleeve("M50 146C40 160 48 172 60 175", 20, "M66 140L51 147"),
        ink(path("M56 168C64 164 74 168 78 174L92 178C94 182 92 184 88 184L74 184C66 188 56 184 56 168z", SKIN),
            width=2.2),
        sleeve("M180 146C192 156 188 166 178 170", 20, "M164 140L179 147"),
        fist(174, 170, 11),
        ink(path("M166 174L146 190L149 180L162 166z", GOLD), width=1.8),
    )


def bank_vault():
    shelf = []
    for y in (86, 124, 162):
        shelf.append(rect(96, y, 96, 4, WOOD_DARK))
    bars = [path(f"M{x} {y}l3-9h14l3 9z", GOLD) for x, y in
            ((104, 86), (126, 86), (148, 86), (114, 76), (138, 76), (104, 162), (126, 162), (115, 152))]
    spokes = "".join(f"M0 0L{num(22 * math.cos(i * math.pi / 3))} {num(22 * math.sin(i * math.pi / 3))}"
                     for i in range(6))
    return document(
        230, 230,
        linear("wall", 0, 0, 0, 190, (0, "#2f9c93"), (1, TEAL_DARK)),
        radial("shine", 144, 112, 108, (0, "#fff7cf"), (.6, "#f3c657"), (1, "#9a6412")),
        rect(0, 0, 230, 230, "url(#wall)"),
        panes(0, 26, 230, 1.4, 1, 7, 0, 26, TEAL_DARK, opacity=.5),
        rect(0, 0, 230, 14, CREAM), rect(0, 11, 230, 4, CREAM_DARK),
        path("M0 196H230V230H0z", "#c9bfa8"), path("M60 230L96 196H200L226 230z", "#fbe7a4", opacity=.8),
        ink(circle(144, 112, 84, STEEL_DARK), circle(144, 112, 74, "url(#shine)"), width=2.8),
        shelf, ink(bars, width=1.6),
        money_bag(168, 124, 34), money_bag(118, 124, 30), money_bag(164, 162, 32),
        # the door, swung wide to the left
        ink(ellipse(62, 114, 34, 84, STEEL_DARK), ellipse(52, 114, 33, 82, STEEL),
            ellipse(48, 114, 24, 66, STEEL_LIGHT), width=2.6),
        path("M26 92C28 70 36 56 46 53", stroke=WHITE, stroke_width=4),
        group(stroke(spokes, INK, 8), stroke(spokes, GOLD, 4.4), ink(circle(0, 0, 8, GOLD_LIGHT)),
              transform="translate(46 114) scale(.62 1)"),
        # the clerk goes in
        ellipse(196, 222, 32, 5, INK, opacity=.3),
        clerk_body(190, 146, .74), ink(path("M163 207H217V226H193L190 214L187 226H163z", ASPHALT)),
        clerk_head(190, 146, .84, pupils=(-3.4, -1), mouth="M-4 19C-1 21 3 21 5 19"),
        sleeve("M162 180C150 180 144 172 140 164", 11, "M170 176L163 180"), fist(138, 160, 7),
        ink(circle(136, 146, 7, "none"), width=6), stroke("M136 153V172M136 166H142M136 171H143", INK, 6),
        circle(136, 146, 7, "none", stroke=GOLD, stroke_width=2.8),
        stroke("M136 153V172M136 166H142M136 171H143", GOLD, 2.8),
    )


def bank_decision():
    return document(
        230, 230, bank_hall(), wall_safe(),
        clerk_body(104, 86, .98), clerk_head(104, 84, 1.04, pupils=(0, 0), mouth="M-5 20H5"),
        bank_counter(),
        ink(path("M74 164L84 144H132L142 164z", WHITE), width=2),
        stroke("M90 149H112M87 154H110M85 159H104", STEEL, 1.8),
        ink(path("M116 151H128L131 160H117z", "none"), width=1.6, colour=TEAL),
        sleeve("M66 134C60 146 66 152 74 155", 13, "M74 128L67 135"), fist(78, 156, 8),
        sleeve("M142 134C160 142 168 124 162 106", 14, "M132 130L143 135"),
        hand_with_stamp(160, 96, 40, TEAL),
        ellipse(192, 163, 30, 4, INK, opacity=.3),
        money_bag(194, 162, 52),
        coin(164, 155, 7, 1.4),
        customer(36, 150),
    )


# ------------------------------------------------------------------ emblems


def iso_face(x, y, wide, tall, slope, fill):
    """An upright wall: `slope` is +.5 for the left face, -.5 for the right."""
    drop = wide * slope
    return polygon([(x, y), (x + wide, y + drop), (x + wide, y + drop + tall), (x, y + tall)], fill)


def iso_panes(x, y, slope, cols, rows, dx, dy, w, h, fill):
    d = "".join(f"M{num(x + c * dx)} {num(y + c * dx * slope + r * dy)}l{num(w)} {num(w * slope)}v{num(h)}"
                f"l{num(-w)} {num(-w * slope)}z" for r in range(rows) for c in range(cols))
    return path(d, fill)


def iso_box(cx, cy, half, tall, left, right, top, line=1.8):
    """A box whose roof's middle is (cx, cy)."""
    q = half / 2
    return ink(iso_face(cx - half, cy, half, tall, .5, left),
               iso_face(cx, cy + q, half, tall, -.5, right),
               polygon([(cx, cy - q), (cx + half, cy), (cx, cy + q), (cx - half, cy)], top), width=line)


def about_picture():
    lots = []
    fills = {(0, 0): GRASS, (2, 0): GRASS, (0, 2): GRASS, (2, 2): RED, (1, 0): GRASS_LIGHT, (0, 1): GRASS_LIGHT,
             (1, 1): BLUE, (2, 1): DIRT, (1, 2): ASPHALT_DARK}
    for (i, j), fill in fills.items():
        x, y = 64 + (i - j) * 18, 72 + (i + j) * 9
        lots.append(polygon([(x, y - 8), (x + 16, y), (x, y + 8), (x - 16, y)], fill))
    return document(
        128, 128,
        radial("disc", 48, 40, 80, (0, "#bfe0f7"), (.7, "#5b9bd8"), (1, "#2a66ac")),
        ink(circle(64, 64, 61, GOLD), circle(64, 64, 56, "url(#disc)"), width=2.6),
        cloud(34, 40, .6, WHITE, opacity=.85), cloud(98, 52, .5, WHITE, opacity=.7),
        iso_box(64, 90, 58, 6, ASPHALT_LIGHT, ASPHALT_DARK, ASPHALT),
        ink(lots, width=1.2),
        iso_box(64, 60, 16, 30, "#7fb0f0", "#174a99", BLUE_PALE),
        iso_panes(50.5, 66, .5, 3, 4, 4.6, 6.4, 2.8, 3.8, WHITE),
        iso_panes(66.5, 71.4, -.5, 3, 4, 4.6, 6.4, 2.8, 3.8, GOLD_LIGHT),
        iso_box(64, 40, 11, 20, "#7fb0f0", "#174a99", BLUE_PALE),
        iso_panes(55, 47, .5, 2, 2, 4.6, 6.4, 2.8, 3.8, WHITE),
        iso_panes(66, 50, -.5, 2, 2, 4.6, 6.4, 2.8, 3.8, GOLD_LIGHT),
        ink(polygon([(54, 40), (51, 22), (59, 30), (64, 16), (69, 30), (77, 22), (74, 40), (64, 45)], GOLD)),
        circle(64, 35, 2.6, INK),
        iso_box(64, 99, 9, 10, RED_LIGHT, RED_DARK, RED_PALE, 1.6),
        tree(28, 94, 20, line=1.5), tree(96, 92, 17, line=1.5), tree(105, 95, 20, line=1.5),
    )


def application_icon():
    return document(
        128, 128,
        linear("blue", 0, 0, 96, 96, (0, "#4f8fe6"), (1, "#184c9c")),
        linear("red", 32, 32, 128, 128, (0, "#b83033"), (1, "#741619")),
        linear("face", 0, 22, 0, 106, (0, WHITE), (1, "#f7dfa0")),
        rect(4, 4, 120, 120, "url(#blue)", rx=26),
        path("M116.4 11.6C121 16.4 124 23 124 30V98C124 112.4 112.4 124 98 124H30C23 124 16.4 121 11.6 116.4z",
             "url(#red)"),
        rect(4, 4, 120, 120, "none", rx=26, stroke=INK, stroke_width=5),
        group(path(word("Z"), INK, stroke=INK, stroke_width=15),
              path(word("Z"), "url(#face)", stroke="#fffaf0", stroke_width=2),
              transform="translate(28 22) scale(.9 .84)"),
    )


# -------------------------------------------------------------------- output


def all_pictures():
    pictures = {
        "icf-lund": unzoned_lot, "icf-lopen": open_lot, "icf-ldirt": condemned_lot,
        "icf-player": player_lot, "icf-comp": computer_lot, "icf-golf": golf_course,
        "icf-park": park, "icf-city": casino, "icf-mall": mall,
        "icf-crest": lambda: restaurant_tile(COMPUTER, computer_plate()),
        "icf-elec": lightning, "icf-fire": fire, "icf-plane": plane_crash, "icf-paint": repairs,
        "icf-irs": tax_man, "icf-man1": bone_head,
        "gfm-rest": lambda: restaurant_tile(PLAYER, player_plate()),
        "gfm-image2": player_emblem, "gfm-image3": computer_emblem, "sv-image1": repairs_window,
        "gfm-cmdgo": go_button, "gfm-cmdhelp": setup_button, "gfm-cmdexit": exit_button,
        "winx-cmdexit": winner_exit_button, "hh-cmdexit": help_exit_button,
        "gst-image2": title_picture, "rb-man": zoning_man,
        "chn-image1-0": clover_card, "chn-image1-1": wheel_card, "chn-image1-2": moon_card,
        "bk-image1-0": bank_waiting, "bk-image1-1": bank_asking, "bk-image1-2": bank_reading,
        "bk-image1-3": bank_vault, "bk-image1-4": bank_decision,
        "abt-image1": about_picture, "zelvo": application_icon,
    }
    for rank, (name, building) in enumerate(HOTELS, start=1):
        pictures[f"icf-{name}"] = lambda b=building, r=rank: hotel_tile(COMPUTER, b, r)
        pictures[f"gfm-{name}"] = lambda b=building, r=rank: hotel_tile(PLAYER, b, r)
    return pictures


def main(names):
    folder = Path(__file__).resolve().parent
    pictures = all_pictures()
    unknown = [name for name in names if name not in pictures]
    if unknown:
        sys.exit(f"make_pictures.py: no picture is called {', '.join(unknown)}")
    for name in names or sorted(pictures):
        (folder / f"{name}.svg").write_text(pictures[name](), encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1:])
