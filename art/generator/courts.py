"""Jacks, queens and kings: the frame, the sash and the figures in it."""

from . import black_courts, red_courts
from .faces import index
from .figure import LOWERED
from .style import (GOLD, INK, PINE, SLATE, WINE, card, circle, group, line, num,
                    path, two_way)
from .suits import pip

# The frame leaves room for the corner indices.
FRAME = "M22.5 5.5H65.5V79.5H48.5V90.5H5.5V16.5H22.5Z"
SASH = "M6 37.5 65 53.5V58.5L6 42.5Z"
GROUND = {"hearts": "#fdeeda", "diamonds": "#fdf3d3",
          "spades": "#e7edf3", "clubs": "#e6f1ea"}
BAND = {"hearts": WINE, "diamonds": WINE, "spades": SLATE, "clubs": PINE}

FIGURES = {
    ("hearts", "jack"): red_courts.jack_of_hearts,
    ("hearts", "queen"): red_courts.queen_of_hearts,
    ("hearts", "king"): red_courts.king_of_hearts,
    ("diamonds", "jack"): red_courts.jack_of_diamonds,
    ("diamonds", "queen"): red_courts.queen_of_diamonds,
    ("diamonds", "king"): red_courts.king_of_diamonds,
    ("spades", "jack"): black_courts.jack_of_spades,
    ("spades", "queen"): black_courts.queen_of_spades,
    ("spades", "king"): black_courts.king_of_spades,
    ("clubs", "jack"): black_courts.jack_of_clubs,
    ("clubs", "queen"): black_courts.queen_of_clubs,
    ("clubs", "king"): black_courts.king_of_clubs,
}


def sash(suit, name):
    """Return the band between the two halves, richer for higher ranks."""
    band = (path(SASH, BAND[suit])
            + line("M6 37.5 65 53.5M6 42.5 65 58.5", GOLD, 1))
    if name == "jack":
        return band + line("M6 40 65 56", GOLD, .9)
    size = 1.7 if name == "king" else .95
    for step in range(-4, 5):
        x, y = 35.5 + 6.5 * step, 48 + 6.5 * step * 16 / 59
        if name == "king":
            band += path(f"M{num(x)} {num(y - size)} {num(x + size)} {num(y)}"
                         f" {num(x)} {num(y + size)} {num(x - size)} {num(y)}Z",
                         GOLD)
        else:
            band += circle(x, y, size, GOLD)
    return band


def court(suit, name):
    """Return a court card."""
    figure = group(FIGURES[suit, name](), f"translate(0 {LOWERED})")
    half = [figure, pip(suit, 13.5, 26.5), index(suit, name)]
    return card(path(FRAME, GROUND[suit]) + "\n" + two_way("\n".join(half))
                + "\n" + sash(suit, name) + line(FRAME, INK))
