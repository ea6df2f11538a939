"""Larger figures on the card backs."""

from math import atan2, cos, degrees, pi, sin

from .style import circle, group, line, num, path


def use(name, transform):
    """Return a copy of a named drawing."""
    return f'<use xlink:href="#{name}" transform="{transform}"/>'


def rose_use(x, y, size=1.0, turn=0):
    """Return the rose of rose_flower() at a place."""
    place = f"translate({num(x)} {num(y)}) scale({num(size)})"
    return use("r", place + (f" rotate({turn})" if turn else ""))


def rose_flower():
    """Name a full rose with its leaves, seen from above, as r."""
    leaf = (path("M0-12C6-15 6.5-23 0-29-6.5-23-6-15 0-12Z", "#5fa077")
            + line("M0-12V-26M0-17 2.6-20M0-17-2.6-20M0-21 2-23.4M0-21-2-23.4",
                   "#2a6346", .8))
    # A petal takes the colour of its ring; light falls on its rim.
    petal = ('<path d="M0 2C-9-1-13-10-9.5-16-6.5-20.5-2.5-19.5 0-17.5'
             ' 2.5-19.5 6.5-20.5 9.5-16 13-10 9-1 0 2Z"/>'
             + path("M-10.2-12C-10-18-5-20 0-17 5-20 10-18 10.2-12"
                    " 8.5-16 4-17 0-14.6-4-17-8.5-16-10.2-12Z", "#fff",
                    fill_opacity=".32"))
    drawing = "".join(use("f", f"rotate({turn})")
                      for turn in (0, 180, 55, -55, 125, -125))
    for count, offset, size, colour in ((5, 0, 1, "#e98ba0"), (5, 36, .8, "#d96a85"),
                                        (5, 8, .6, "#c64667"), (3, 30, .42, "#ab2f50")):
        scale = f" scale({num(size)})" if size != 1 else ""
        drawing += group("".join(use("p", f"rotate({num(offset + 360 * index / count)})"
                                     + scale) for index in range(count)), fill=colour)
    drawing += circle(0, 0, 3.6, "#8c1f3d")
    drawing += line("M-2 1C-2.5-2.5 2.5-2.8 2.3 .3 2 2.6-.8 2.2-.4.2", "#d9617c", 1)
    return (f'<g id="f">{leaf}</g><g id="p">{petal}</g><g id="r">{drawing}</g>')


def wreath(x, y):
    """Return a laurel wreath around a column, the same turned upside down."""
    leaf = "M0 0C2.2-1.4 2.6-4.6 0-7.5-2.6-4.6-2.2-1.4 0 0Z"
    half = ""
    for index in range(10):
        turn = pi / 2 + .12 + index * .3
        px, py = 19.5 * cos(turn), 20.5 * sin(turn)
        heading = 90 + degrees(atan2(20.5 * cos(turn), -19.5 * sin(turn)))
        for lean, colour in ((32, "#4f7a3a"), (-32, "#7fa04e")):
            half += path(leaf, colour, transform=f"translate({num(px)} {num(py)})"
                         f" rotate({num(heading + lean)})")
    half += (path("M-7.5-14.5H7.5V-12.5H-7.5ZM-5 0V-8H5V0Z", "#6a2450")
             + path("M-4 0V-9H4V0Z", "#c39a4a")
             + line("M-2 0V-9M0 0V-9M2 0V-9", "#f3e8cf", .8)
             + line("M-5.8-8.6A1.6 1.6 0 0 0-3.6-10.4 2.2 2.2 0 0 0-5.8-12.4H5.8"
                    "A2.2 2.2 0 0 0 3.6-10.4 1.6 1.6 0 0 0 5.8-8.6", "#6a2450", 1.5))
    bows = path("M-2.5 18 2.5 23V18L-2.5 23ZM-2.5-18 2.5-23V-18L-2.5-23Z", "#d9573a")
    return group(f'<g id="w">{half}</g>' + use("w", "rotate(180)") + bows,
                 f"translate({num(x)} {num(y)})")
