"""The four suit symbols: large pips and small ones for the corners."""

from .style import SUIT_COLOUR, num, path

# Outlines around the origin, about 11 units wide and 13 high.
PIPS = {
    "hearts": "M0 6.5C-1 4.2-5.5 1.4-5.5-2.4-5.5-4.8-4.2-6-2.7-6"
              "-1.4-6-.4-5.2 0-3.8.4-5.2 1.4-6 2.7-6 4.2-6 5.5-4.8 5.5-2.4"
              " 5.5 1.4 1 4.2 0 6.5Z",
    "diamonds": "M0-6.5C1.3-4.2 3.2-1.8 5.4 0 3.2 1.8 1.3 4.2 0 6.5"
                "-1.3 4.2-3.2 1.8-5.4 0-3.2-1.8-1.3-4.2 0-6.5Z",
    "spades": "M0-6.5C1-4.3 5.5-1.6 5.5 1.8 5.5 3.8 4.3 5 2.9 5"
              " 2 5 1.1 4.6.6 3.8.7 5 1.4 6 2.4 6.5H-2.4"
              "C-1.4 6-.7 5-.6 3.8-1.1 4.6-2 5-2.9 5"
              "-4.3 5-5.5 3.8-5.5 1.8-5.5-1.6-1-4.3 0-6.5Z",
    "clubs": "M0-6.2A2.9 2.9 0 0 1 1.8-1 2.8 2.8 0 1 1 .6 3.4"
             "C.7 4.7 1.4 5.7 2.4 6.2H-2.4C-1.4 5.7-.7 4.7-.6 3.4"
             "A2.8 2.8 0 1 1-1.8-1 2.9 2.9 0 0 1 0-6.2Z",
}

# The scale of the corner symbols.
SMALL = {"hearts": .72, "spades": .72, "diamonds": .74, "clubs": .71}


def pip(suit, x, y, scale=1.0, **attributes):
    """Return a pip centred on (x, y)."""
    place = f"translate({num(x)} {num(y)})"
    if scale != 1:
        place += f" scale({num(scale)})"
    return path(PIPS[suit], SUIT_COLOUR[suit], transform=place, **attributes)


def small_pip(suit, x, y):
    """Return the corner symbol centred on (x, y)."""
    return pip(suit, x, y, SMALL[suit])
