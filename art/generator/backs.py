"""The card backs: a panel inside the same pale margin, and what fills it."""

from math import cos, pi, sin

from .back_figures import rose_flower, wreath
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
    defs = "<defs>" + gradient("s", (0, "#8fb0c1"), (1, "#eff3ee"))
    for name, top in (("a", "#7598ab"), ("b", "#4b748a"), ("c", "#1d4658")):
        defs += gradient(name, (0, top), (1, "#e6eeee"))
    defs += "</defs>"
    firs = "".join(f"L{num(x - 1.6)} {num(y)} {num(x)} {num(y - h)}"
                   f" {num(x + 1.6)} {num(y)}"
                   for x, y, h in ((7, 38.5, 6), (10, 39, 8), (13.5, 40, 6),
                                   (17, 41, 5), (50, 41.5, 5), (53.5, 40.5, 7),
                                   (57, 39.5, 9), (60.5, 38.8, 7), (64, 38, 8)))
    half = (path("M4 48V6Q4 4 6 4H65Q67 4 67 6V48Z", "url(#s)")
            + circle(48, 17, 4.5, "#f6f5ea")
            + path("M4 48V25L12 20 18 24 29 13.5 37 21 43 18.5 52 26 60 22 67 27"
                   "V48Z", "url(#a)")
            + path("M29 13.5 37 21 34 20.5 32 23 29.5 19.5 27 22 24.5 18Z",
                   "#f2f6f5")
            + path("M4 48V33L14 27.5 22 33 31 29 41 35.5 53 26.5 67 34V48Z",
                   "url(#b)")
            + path(f"M4 48V38.5{firs}L67 38V48Z", "url(#c)"))
    lake = (path("M4 45.5H67V50.5H4Z", "#e6eeee")
            + line("M12 47H34M44 47H58M59 49H37M27 49H13", "#6f94a5", .8))
    return defs + two_way(half) + lake + outline("#3f6678")


def rose():
    """A garden rose before a trellis."""
    trellis = ""
    for start in range(-70, 71, 14):
        # Both diagonals of the trellis, from edge to edge of the panel.
        for slope in (1, -1):
            low, high = sorted((start - 41 * slope, start + 41 * slope))
            low, high = max(low, -28.5), min(high, 28.5)
            if high - low > 1:
                trellis += "M" + "L".join(
                    f"{num(CX + x)} {num(CY + slope * (x - start))}"
                    for x in (low, high))
    return (panel("#b23a5a") + line(trellis, "#c35270", 1.4)
            + '<rect x="6.5" y="6.5" width="58" height="83" rx="1"'
              ' fill="none" stroke="#f3c3c9"/>'
            + rose_flower(CX, CY))


def mid_earth():
    """Layers of soil and rock around the glowing middle of the earth."""
    defs = "<defs>" + gradient("m", (0, "#fff1b0"), (.3, "#ffc54a"),
                               (.62, "#ee6f1f"), (1, "#8e2a14"),
                               radial=True) + "</defs>"
    layers = ((4, 0, "#4c5a2a"), (7, .8, "#3a271b"), (15, 1.6, "#6e4a2c"),
              (24, 2, "#9a6b3d"), (32, 2.2, "#5d3a2a"), (40, 2, "#43211b"))
    half = path("M4 48V6Q4 4 6 4H65Q67 4 67 6V48Z", layers[0][2])
    for top, swing, colour in layers[1:]:
        half += path(f"M4 48V{top}C12 {num(top - 2 * swing)} 20 {num(top + 2 * swing)}"
                     f" 30 {top}S50 {num(top - 2 * swing)} 67 {num(top + swing)}V48Z",
                     colour)
    stones = ((11, 11.5, 1.4), (24, 12.4, 1), (44, 11, 1.5), (58, 12.2, 1.1),
              (51, 13.2, .8), (17, 20, 1.8), (53, 19.5, 1.6), (38, 20.5, 1.1))
    half += "".join(f'<ellipse cx="{x}" cy="{y}" rx="{num(r * 1.5)}" ry="{r}"'
                    ' fill="#8d6a4a"/>' for x, y, r in stones)
    half += line("M31 7C31 10 28.5 11 29 14.5M31 9.5C33 11 33.5 12 33 13.5"
                 "M63 7C62 9 63.5 11 62 13", "#6f7a3c", .8)
    # An ammonite and a seam of crystals.
    half += line("M13 28A1 1 0 0 1 15 28 2 2 0 0 1 11 28 3 3 0 0 1 17 28",
                 "#e0bd86", 1.1)
    half += path("M52 30 53.4 26 55 30ZM55.4 30 57.4 24.6 59 30Z"
                 "M59.2 30 60.6 27 62 30Z", "#e8cf9d")
    rings = circle(CX, CY, 19, "url(#m)")
    rings += line("M35.5 35.5A12.5 12.5 0 0 1 35.5 60.5 12.5 12.5 0 0 1 35.5 35.5Z",
                  "#ffdf8a", .7)
    rings += line("M35.5 29A19 19 0 0 1 35.5 67 19 19 0 0 1 35.5 29Z",
                  "#2b1512", 1.6)
    return defs + two_way(half) + rings + outline("#2b1a12")


def meander(x, y, count, turn):
    """Return a run of the Greek key, eight units a turn."""
    d = "".join(f"M{at + 1} 7V1H{at + 6}V5H{at + 3.5:g}V3"
                for at in range(0, 8 * count, 8))
    return path(d, transform=f"translate({num(x)} {num(y)}) rotate({turn})")


def roman():
    """A mosaic floor with a meander border and a laurel wreath."""
    purple, ivory, brass = "#6a2450", "#f3e8cf", "#efcd7c"
    keys = group(meander(15.5, 6.5, 5, 0) + meander(64.5, 16.5, 8, 90)
                 + path("M7.5 7.5H12.5V12.5H7.5ZM58.5 7.5H63.5V12.5H58.5Z"),
                 stroke=brass)
    tiles = ("".join(f"M{x} 17V79" for x in range(17, 55, 3))
             + "".join(f"M17 {y}H54" for y in range(18, 79, 3)))
    return (panel(purple) + two_way(keys)
            + f'<rect x="13.5" y="13.5" width="44" height="69" fill="none"'
              f' stroke="{brass}"/>'
            + f'<rect x="16" y="16" width="39" height="64" fill="{ivory}"/>'
            + line(tiles, "#e2d3b2", .7) + wreath(CX, CY))


def chain(dark, ground):
    """Return the chain that frames the chainring."""
    links = "".join(f"M{num(11.2 + 6.6 * index)} 8H{num(13.8 + 6.6 * index)}"
                    for index in range(8))
    links += "".join(f"M63 {num(11.2 + 6.6 * index)}V{num(13.6 + 6.6 * index)}"
                     for index in range(12))
    return (line("M10.5 8H60.5Q63 8 63 10.5V85.5Q63 88 60.5 88H10.5Q8 88 8 85.5"
                 "V10.5Q8 8 10.5 8Z", dark, 1.2)
            + two_way(line(links, dark, 3.6, stroke_linecap="round")
                      + line(links, ground, 1.2, stroke_linecap="round"), "k"))


def polar(radius, turn, x=CX, y=CY):
    """Return a point on a circle as path text."""
    return f"{num(x + radius * cos(turn))} {num(y + radius * sin(turn))}"


def wheel():
    """Return the tyre and the crossed spokes behind the chainring."""
    spokes = "".join(f"M{polar(4, turn + lean)}L{polar(22, turn)}"
                     for turn in (pi * index / 9 for index in range(18))
                     for lean in (1.25, -1.25))
    tread = "".join(f"M{polar(23.2, turn)}L{polar(25.4, turn + .06)}"
                    for turn in (pi * index / 30 for index in range(60)))
    return (circle(CX, CY, 25.4, "#b97d17") + circle(CX, CY, 22.8, "#f6d27a")
            + circle(CX, CY, 21.9, "url(#g)") + line(tread, "#e3ac32", .9)
            + line(spokes, "#cf9424", .6))


def pedal():
    """A chainring with its cranks and pedals, framed by the chain."""
    dark, light, steel = "#2c2a2b", "#6d6763", "#f7ecd0"
    defs = ("<defs>"
            + gradient("g", (0, "#ffe08c"), (.6, "#f0bd4a"), (1, "#e3ac32"),
                       radial=True)
            + gradient("d", (0, "#1c1a1b"), (.75, "#2c2a2b"), (.86, "#5a5552"),
                       (1, "#242223"), radial=True) + "</defs>")
    teeth = "L".join(f"{polar(16.8, turn - .075)}L{polar(18.8, turn)}"
                     f"L{polar(16.8, turn + .075)}"
                     for turn in (2 * pi * index / 30 for index in range(30)))
    spider = "".join(f"M35.5 48L{polar(15, pi * index / 3)}" for index in range(6))
    bolts = "".join(circle(CX + 14.9 * cos(turn), CY + 14.9 * sin(turn), .9, "#e3ac32")
                    for turn in (pi * index / 3 for index in range(6)))
    ring = (path(f"M{teeth}Z", "url(#d)") + circle(CX, CY, 13.2, "#eab440")
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
    return (defs + panel("#e3ac32") + panel("url(#g)", 5) + wheel()
            + chain(dark, "#e3ac32") + ring + two_way(crank, "c")
            + circle(CX, CY, 3.4, steel) + circle(CX, CY, 2.2, "#c9b58a")
            + circle(CX, CY, 1.4, dark) + outline("#a06f14"))


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
