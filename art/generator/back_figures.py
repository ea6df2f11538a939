"""Larger figures on the card backs."""

from math import atan2, cos, degrees, pi, sin

from .style import circle, group, line, num, path


def rose_flower(x, y):
    """Return a full rose with its leaves, seen from above."""
    leaf = ("M0-13C5-16 8-22 6.5-29 3-27 0-26.5 0-22 0-26.5-3-27-6.5-29"
            "-8-22-5-16 0-13Z")
    one = "M0-12C6-15 6.5-23 0-29-6.5-23-6-15 0-12Z"
    drawing = "".join(path(one, "#2f6b4f", transform=f"rotate({turn})")
                      + line("M0-12V-26M0-17 2.6-20M0-17-2.6-20M0-21 2-23.4"
                             "M0-21-2-23.4", "#5d9a74", .8,
                             transform=f"rotate({turn})")
                      for turn in (0, 180, 55, -55, 125, -125))
    rings = ((5, 0, 1.0, "#d9617c", "#ee93a3"), (5, 36, .8, "#cb4a69", "#e57f94"),
             (5, 8, .6, "#b93657", "#d9617c"), (3, 30, .42, "#a32848", "#cb4a69"))
    petal = ("M0 2C-9-1-13-10-9.5-16-6.5-20.5-2.5-19.5 0-17.5"
             " 2.5-19.5 6.5-20.5 9.5-16 13-10 9-1 0 2Z")
    rim = ("M-10.2-12C-10-18-5-20 0-17 5-20 10-18 10.2-12"
           " 8.5-16 4-17 0-14.6-4-17-8.5-16-10.2-12Z")
    for count, offset, size, colour, light in rings:
        for index in range(count):
            place = f"rotate({num(offset + 360 * index / count)}) scale({size})"
            drawing += path(petal, colour, transform=place)
            drawing += path(rim, light, transform=place)
    drawing += circle(0, 0, 3.6, "#8c1f3d")
    drawing += line("M-2 1C-2.5-2.5 2.5-2.8 2.3 .3 2 2.6-.8 2.2-.4.2", "#d9617c", 1)
    return group(drawing, f"translate({num(x)} {num(y)})")


def wreath(x, y):
    """Return a laurel wreath around a column."""
    leaf = "M0 0C2.2-1.4 2.6-4.6 0-7.5-2.6-4.6-2.2-1.4 0 0Z"
    drawing = ""
    for side in (1, -1):
        for index in range(9):
            turn = pi / 2 - side * (.14 + index * .3)
            px, py = 14.5 * cos(turn), 17.5 * sin(turn)
            heading = 90 + degrees(atan2(-side * 17.5 * cos(turn),
                                         side * 14.5 * sin(turn)))
            for lean, colour in ((32, "#4f7a3a"), (-32, "#7fa04e")):
                drawing += path(leaf, colour,
                                transform=f"translate({num(px)} {num(py)})"
                                f" rotate({num(heading + lean)}) scale(.8)")
    drawing += line("M-4 19.5 0 17 4 19.5M-3 21.5 0 17 3 21.5", "#6a2450", 1.6)
    column = (path("M-5-9.5H5V-8H-5ZM-6 9H6V11H-6ZM-5 7.5H5V9H-5Z", "#6a2450")
              + path("M-3.5-6H3.5V7.5H-3.5Z", "#b58a3a")
              + line("M-1.5-5V7.5M1.5-5V7.5", "#f3e8cf", .8)
              + line("M-5.5-5.6A1.2 1.2 0 0 0-3.4-6.6 1.8 1.8 0 0 0-5.2-8H5.2"
                     "A1.8 1.8 0 0 0 3.4-6.6 1.2 1.2 0 0 0 5.5-5.6", "#6a2450", 1.1))
    drawing += group(column, "translate(0 -.5) scale(1.25)")
    return group(drawing, f"translate({num(x)} {num(y)})")
