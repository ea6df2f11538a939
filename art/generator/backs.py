"""The card backs: a panel inside the same pale margin, and what fills it."""

from math import cos, pi, sin

from .back_figures import rose_flower, rose_use, wreath
from .style import card, circle, group, line, num, path, two_way

# The panel, its edges on whole units.
LEFT, TOP, RIGHT, BOTTOM = 4, 4, 67, 92
CX, CY = 35.5, 48


def gradient(name, *stops, radial=False):
    """Return a gradient from top to bottom, or from the middle outwards."""
    marks = "".join(f'<stop offset="{num(at)}" stop-color="{colour}"/>'
                    for at, colour in stops)
    if radial:
        return (f'<radialGradient id="{name}" cx=".5" cy=".5" r=".5">{marks}'
                "</radialGradient>")
    return (f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1">{marks}'
            "</linearGradient>")


def panel(fill, inset=0):
    """Return the panel, or a smaller one inside it."""
    return (f'<rect x="{LEFT + inset}" y="{TOP + inset}"'
            f' width="{RIGHT - LEFT - 2 * inset}"'
            f' height="{BOTTOM - TOP - 2 * inset}"'
            f' rx="{2 if inset == 0 else 1}" fill="{fill}"/>')


def outline(colour):
    """Return a thin line around the panel."""
    return ('<rect x="4.5" y="4.5" width="62" height="87" rx="1.5"'
            f' fill="none" stroke="{colour}"/>')


def misty():
    """Ridge behind ridge in the mist, mirrored by a still lake."""
    mist, glow, lake = "#edf1ed", "#f8e7cd", "#a9c9d5"
    defs = "<defs>" + gradient("s", (0, "#3f7d9f"), (.14, "#8fbccb"), (.28, "#fae3c0"),
                               (.38, mist), (.6, glow), (.8, glow), (1, lake))
    for name, top, down, foot in (
            ("a", "#7ba3b6", 0, mist), ("b", "#23536e", .3, mist),
            ("c", "#3a7089", .2, glow), ("d", "#123f52", .5, lake)):
        defs += gradient(name, (down, top), (1, foot))
    defs += "</defs>"
    firs = "".join(f"M{num(x - h / 4.5)} 46 {x} {num(46 - h)} {num(x + h / 4.5)} 46Z"
                   for x, h in ((6.5, 10), (10.5, 14), (14.5, 11), (18, 13), (22, 8),
                                (46, 7), (50.5, 10), (54.5, 12), (58.5, 16), (63, 12)))
    half = (path("M4 48V6Q4 4 6 4H65Q67 4 67 6V48Z", "url(#s)")
            + circle(47.5, 10.5, 3.6, "#fffbe9")
            + path("M4 20V13L10 9 15 12 38 13 43 11 49 15 57 9 62 12 67 9.5V20Z",
                   "url(#a)")
            + path("M4 21V17L9 14.5 14 16 25 5.5 33 12.5 37 11 46 17 51 15 55 16.5"
                   " 61 13.5 67 17V21Z", "url(#b)")
            + path("M25 5.5 30.5 10.3 28 9.8 26.5 12 23.5 10 20.4 10Z", "#fff")
            + path("M4 36V27L13 22 22 28 31 24.5 40 30 53 22.5 67 29V36Z", "url(#c)")
            + path(firs, "url(#d)"))
    water = line("M10 46.5H30M41 46.5H56M24 48.5H47M61 49.5H41M30 49.5H15", mist, 1)
    return defs + two_way(half) + water + outline("#23536e")


def frieze(fill, rule):
    """Return the band that is seen of a covered back, with a rule at its foot."""
    return (path("M4 20V6Q4 4 6 4H65Q67 4 67 6V20Z", fill)
            + path("M4 18H67V19H4Z", rule))


def rose():
    """A garden rose before a trellis, below a garland of others."""
    trellis = ""
    for start in range(-70, 71, 14):
        # Both diagonals of the trellis, from edge to edge of the panel.
        for slope in (1, -1):
            low, high = sorted((start - 30 * slope, start + 30 * slope))
            low, high = max(low, -31), min(high, 31)
            if high - low > 1:
                trellis += "M" + "L".join(
                    f"{num(CX + x)} {num(CY + slope * (x - start))}"
                    for x in (low, high))
    garland = (frieze("#7c1f41", "#f3c3c9")
               + line("M6 14C12 6 20 6 25.5 11S40 16 46 11 59 6 65 14", "#5d9a74", 1)
               + "".join(rose_use(x, y, size, 90) for x, y, size in (
                   (15.5, 11, .25), (35.5, 11.2, .28), (55.5, 11, .25))))
    return ("<defs>" + rose_flower() + "</defs>" + panel("#a83355")
            + line(trellis, "#bd4c6b", 1.4) + two_way(garland)
            + rose_use(CX, CY, .92) + outline("#611030"))


def mid_earth():
    """Woods above, layers of soil and rock, and the glowing middle of the earth."""
    defs = "<defs>" + gradient("m", (0, "#fff6cc"), (.3, "#ffcf57"), (.6, "#f07a22"),
                               (.83, "#8e2a14"), (.85, "#ffb347"), (.89, "#ffb347"),
                               (.91, "#b03a18"),
                               (1, "#43211b"), radial=True) + "</defs>"
    half = path("M4 48V6Q4 4 6 4H65Q67 4 67 6V48Z", "#a8d8d8")
    half += path("M4 20V12C12 8 20 9 28 12S46 8 54 9 64 12 67 11V20Z", "#5f9a4a")
    for x, y, r in ((12, 8.5, 2.7), (16.5, 9.5, 2), (47, 8.2, 2), (52, 8, 2.8),
                    (57, 9, 2.2)):
        half += line(f"M{num(x)} {num(y)}v4", "#5b3a22", 1)
        half += circle(x, y, r, "#2a6638")
    layers = ((15, 1, "#9cc653"), (17, 1, "#3f2517"), (22, 1.4, "#7a4a27"),
              (28, 2, "#b57a3c"), (34, 2.2, "#74402b"), (41, 2, "#43211b"))
    for top, swing, colour in layers:
        half += path(f"M4 48V{top}C12 {num(top - 2 * swing)} 20 {num(top + 2 * swing)}"
                     f" 30 {top}S50 {num(top - 2 * swing)} 67 {num(top + swing)}V48Z",
                     colour)
    # An ammonite, seams of crystals, and stones that nobody has found.
    half += line("M12 32A1 1 0 0 1 14 32 2 2 0 0 1 10 32 3 3 0 0 1 16 32",
                 "#f3d9a4", 1.1)
    half += path("M52 31 53.4 27 55 31ZM55.4 31 57.4 25.6 59 31Z"
                 "M59.2 31 60.6 28 62 31Z", "#f6e3b8")
    for x, y, colour in ((24, 23.5, "#5fb8ae"), (9, 40, "#e2574c"), (45, 24, "#e2574c"),
                         (63, 38, "#5fb8ae")):
        half += path(f"M{x} {y - 2}l2 2-2 2-2-2Z", colour)
    return defs + two_way(half) + circle(CX, CY, 22, "url(#m)") + outline("#2b1a12")


def roman():
    """A mosaic floor with a meander border and a laurel wreath."""
    purple, ivory, brass = "#5f1d49", "#f3e8cf", "#f0c96c"
    # The Greek key runs from both sides to a tile in the middle.
    key = "".join(f"M{x + 1} 16V9H{x + 6}V13H{x + 3.5:g}" for x in (4, 13, 22))
    key += "".join(f"M{x - 1} 16V9H{x - 6}V13H{x - 3.5:g}" for x in (67, 58, 49))
    border = (line(key, brass, 2) + path("M4 16H67V18H4Z", brass)
              + path("M35.5 7.5 39.5 11.5 35.5 15.5 31.5 11.5Z", "#d9573a"))
    tiles = ("".join(f"M{x} 22V74" for x in range(10, 62, 3))
             + "".join(f"M8 {y}H63" for y in range(24, 73, 3)))
    return (panel(purple) + path("M7 21H64V75H7Z", brass)
            + path("M8 22H63V74H8Z", ivory) + line(tiles, "#e2d3b2", .7)
            + two_way(border) + wreath(CX, CY))


def chain(dark, steel, light):
    """Return a run of chain: narrow links of steel between wide dark ones."""
    pins = "".join(f"M{num(8.5 + 9 * index)} 11.5h.01" for index in range(7))
    wide = "M8.5 11.5h9M26.5 11.5h9M44.5 11.5h9"
    narrow = "M17.5 11.5h9M35.5 11.5h9M53.5 11.5h9"
    return (line(narrow, dark, 6) + line(pins, dark, 8.6, stroke_linecap="round")
            + line(narrow, steel, 4)
            + line(wide, dark, 6) + line(pins, dark, 6.4, stroke_linecap="round")
            + line(pins, light, 2.6, stroke_linecap="round"))


def polar(radius, turn, x=CX, y=CY):
    """Return a point on a circle as path text."""
    return f"{num(x + radius * cos(turn))} {num(y + radius * sin(turn))}"


def wheel():
    """Return the tyre and the crossed spokes behind the chainring."""
    spokes = "".join(f"M{polar(4, turn + lean)}L{polar(22, turn)}"
                     for turn in (pi * index / 9 for index in range(18))
                     for lean in (1.25, -1.25))
    return (circle(CX, CY, 25.4, "#b97d17") + circle(CX, CY, 22.8, "#f6d27a")
            + circle(CX, CY, 21.9, "url(#g)")
            + circle(CX, CY, 24.2, "none", stroke="#e3ac32",
                     **{"stroke-width": 1.6, "stroke-dasharray": "1 1.53"})
            + line(spokes, "#cf9424", .6))


def pedal():
    """A chainring with its cranks and pedals between two runs of chain."""
    dark, light, steel = "#2c2a2b", "#6d6763", "#f7ecd0"
    defs = ("<defs>"
            + gradient("g", (0, "#ffe08c"), (.6, "#f0bd4a"), (1, "#e3ac32"),
                       radial=True)
            + gradient("d", (0, "#1c1a1b"), (.75, "#2c2a2b"), (.86, "#5a5552"),
                       (1, "#242223"), radial=True) + "</defs>")
    spider = "".join(f"M35.5 48L{polar(15, pi * index / 3)}" for index in range(6))
    bolts = "".join(circle(CX + 14.9 * cos(turn), CY + 14.9 * sin(turn), .9, "#e3ac32")
                    for turn in (pi * index / 3 for index in range(6)))
    ring = (circle(CX, CY, 17.6, "none", stroke=dark,
                   **{"stroke-width": 2.4, "stroke-dasharray": "1.8 1.886"})
            + circle(CX, CY, 16.8, "url(#d)") + circle(CX, CY, 13.2, "#eab440")
            + line(f"M{polar(12.8, pi)}A12.8 12.8 0 0 1 {polar(12.8, 0)}",
                   "#b97d17", .8)
            + line(spider, dark, 2.6) + line(spider, light, .7)
            + bolts + circle(CX, CY, 5.5, dark))
    # The end of the crank, where its pedal turns.
    x, y = CX + 25 * sin(.55), CY - 25 * cos(.55)
    lean = f"rotate({num(.55 * 180 / pi)} {CX} {CY})"
    place = f"translate({num(x)} {num(y)})"
    crank = (path("M33.1 48 34.1 22.5Q35.5 20.9 36.9 22.5L37.9 48Z", steel,
                  transform=lean)
             + path("M35.9 48 35.9 22Q36.5 22 36.9 22.5L37.9 48Z", "#c9b58a",
                    transform=lean)
             + path("M-8-3H8Q9.5-3 9.5-1.5V1.5Q9.5 3 8 3H-8Q-9.5 3-9.5 1.5V-1.5"
                    "Q-9.5-3-8-3Z", dark, transform=place)
             + line("M-8.5-2.5H8.5", light, .7, transform=place)
             + line("M-7-1.2H-2M-7 1.2H-2M2-1.2H7M2 1.2H7", "#f2b93f", 1,
                    transform=place)
             + circle(x, y, 1.4, steel))
    return (defs + panel("#e3ac32") + wheel()
            + two_way(frieze("#f0bd4a", dark) + chain(dark, "#a39c95", steel), "k")
            + ring + two_way(crank, "c")
            + circle(CX, CY, 3.4, steel) + circle(CX, CY, 2.2, "#c9b58a")
            + circle(CX, CY, 1.4, dark) + outline("#8a5d10"))


def cut(points, left, top, right, bottom):
    """Return the part of a convex polygon that lies inside a rectangle."""
    for axis, limit, sign in ((0, left, 1), (0, right, -1),
                              (1, top, 1), (1, bottom, -1)):
        kept = []
        for index, here in enumerate(points):
            there = points[index - 1]
            inside = [(point[axis] - limit) * sign for point in (there, here)]
            if inside[0] * inside[1] < 0:
                share = inside[0] / (inside[0] - inside[1])
                kept.append(tuple(a + share * (b - a)
                                  for a, b in zip(there, here)))
            if inside[1] >= 0:
                kept.append(here)
        points = kept
    return points


def stained():
    """A leaded window of coloured glass with a rosette."""
    lead = "#10151f"
    blues = ("#1f4d92", "#2759a2", "#1b437f", "#2f69b0", "#235089")
    glass = {}
    # Lozenge panes within a border of small ones.
    for row in range(-5, 6):
        for column in range(-4, 5):
            if (row + column) % 2:
                continue
            x, y = CX + column * 7, CY + row * 9
            pane = cut([(x, y - 9), (x + 7, y), (x, y + 9), (x - 7, y)],
                       11, 11, 60, 85)
            if len(pane) > 2:
                tint = blues[(3 * row * row + 2 * abs(row * column) + abs(column)) % 5]
                glass[tint] = glass.get(tint, "") + "M" + "L".join(
                    f"{num(a)} {num(b)}" for a, b in pane) + "Z"
    window = "".join(path(d, tint) for tint, d in glass.items())
    return (panel(lead) + group(window, stroke=lead, stroke_width=1.2)
            + window_border() + rosette(lead))


def window_border():
    """Return the row of small panes around the window."""
    panes = {"#8e2238": "", "#c98f2b": "", "#2b6f63": ""}
    tints = list(panes)
    for index in range(9):
        for y in (5, 86):
            tint = tints[1] if index in (0, 8) else tints[index % 2 * 2]
            panes[tint] += f"M{5 + index * 7} {y}h5v5h-5Z"
    for index in range(10):
        for x in (5, 61):
            panes[tints[(index + 1 + index // 5) % 2 * 2]] += (
                f"M{x} {num(12 + index * 7.4)}h5v6.2h-5Z")
    return "".join(path(d, tint) for tint, d in panes.items())


def rosette(lead):
    """Return the round light in the middle of the window."""
    drawing = circle(CX, CY, 21, lead)
    ring = ["", ""]
    for index in range(16):
        a, b = (pi / 8 * (index + side) for side in (-.5, .5))
        ring[index % 2] += (f"M{polar(16, a)}L{polar(20.2, a)}A20.2 20.2 0 0 1"
                            f" {polar(20.2, b)}L{polar(16, b)}A16 16 0 0 0"
                            f" {polar(16, a)}Z")
    petals, darts = "", ""
    for index in range(8):
        turn = pi / 4 * index
        petals += (f"M{polar(5, turn)}C{polar(8, turn - .62)} {polar(14, turn - .42)}"
                   f" {polar(15.6, turn)}C{polar(14, turn + .42)}"
                   f" {polar(8, turn + .62)} {polar(5, turn)}Z")
        side = turn + pi / 8
        darts += (f"M{polar(8.5, side)}L{polar(16, side - .33)}A16 16 0 0 1"
                  f" {polar(16, side + .33)}Z")
    return group(drawing + path(ring[0], "#2f7f8c") + path(ring[1], "#1d4f77")
                 + path(darts, "#e0a02f") + path(petals, "#b5263c")
                 + circle(CX, CY, 5, "#f0c65a"), stroke=lead, stroke_width=1)


BACKS = {"misty": misty, "rose": rose, "mid-earth": mid_earth,
         "roman": roman, "pedal": pedal, "stained": stained}


def back(name):
    """Return a card back."""
    return card(BACKS[name]())
