"""The rank signs of the corner indices, drawn 2 units thick.

All end at the right edge of a box 8 units wide and 11 high, so that the suit
beside them keeps the same distance from each, and stand on its lower edge.
Stems and bars lie on whole units.
"""

from .style import num, path

# Outlines of the signs that consist of straight lines.
STRAIGHT = {
    "ace": "M2.1 0H5.9L8 11H6L5.6 8H2.4L2 11H0ZM2.6 6H5.4L4.6 2H3.4Z",
    "4": "M4.6 0H7V7H8V9H7V11H5V9H0V7.2ZM5 7V3.2L2.4 7Z",
    "7": "M0 0H8V1.8L4.2 11H2L5.6 2H0Z",
    "king": "M0 0H2V4.6L5.4 0H7.9L4.4 4.7 8 11H5.6L3 6.5 2 7.8V11H0Z",
}

# Centre lines of the others.
ROUND = {
    "2": "M1 3.8C1 2 2.2 1 4 1S7 2 7 3.7C7 6.2 1 7 1 10H8",
    "3": "M.4 1H6.6V1.8L4 4.7C5.9 4.7 7 5.7 7 7.4S5.7 10 3.8 10"
         "C2.3 10 1.2 9.4.7 8.3",
    "5": "M7.5 1H2V5H4C5.9 5 7 5.9 7 7.5S5.8 10 4 10C2.6 10 1.4 9.5.8 8.5",
    "6": "M6.8 2.6C6.3 1.6 5.4 1 4.2 1 2.1 1 1 2.7 1 5.6V7.2C1 9 2.2 10 4 10"
         "S7 9.1 7 7.5 5.8 5 4 5 1 6 1 7.2",
    "8": "M4 5C2.4 5 1.4 4.3 1.4 3S2.4 1 4 1 6.6 1.7 6.6 3 5.6 5 4 5"
         "C2.2 5 1 6 1 7.5S2.2 10 4 10 7 9.1 7 7.5 5.8 5 4 5Z",
    "9": "M1.2 8.4C1.7 9.4 2.6 10 3.8 10 5.9 10 7 8.3 7 5.4V3.8C7 2 5.8 1 4 1"
         "S1 1.9 1 3.5 2.2 6 4 6 7 5 7 3.8",
    "10": "M-.5 2.3.12 1.8V11M5 1C3.6 1 2.88 1.9 2.88 3.6V7.4C2.88 9.1 3.6 10 5 10"
          "S7.12 9.1 7.12 7.4V3.6C7.12 1.9 6.4 1 5 1Z",
    "jack": "M3 1H7V7.2C7 9 6 10 4.2 10 2.5 10 1.5 9.1 1.2 7.4",
    "queen": "M4 1C2.1 1 1 2.2 1 4.4V6.6C1 8.8 2.1 10 4 10S7 8.8 7 6.6V4.4"
             "C7 2.2 5.9 1 4 1ZM4.2 7 6.8 10H8",
}


def rank(name, x, y, colour):
    """Return the rank sign with the top left of its box at (x, y)."""
    place = f"translate({num(x)} {num(y)})"
    if name in STRAIGHT:
        return path(STRAIGHT[name], colour, transform=place)
    return path(ROUND[name], stroke=colour,
                stroke_width=num(1.75 if name == "10" else 2), transform=place)
