"""Aces and number cards: corner indices and the pips between them."""

from .ranks import rank
from .style import (BROWN, FACET_DARK, FACET_LIGHT, GOLD, INK, OAK, PAPER, SLATE,
                    STEEL, SUIT_COLOUR, TEAL, card, circle, line, path, two_way)
from .suits import pip, small_pip

LEFT, MIDDLE, RIGHT = 20.5, 35.5, 50.5
CENTRE = 48

# The size of the pips; the fewer there are, the larger.
SCALE = {"2": 1.45, "3": 1.15, "4": 1.3, "5": 1.2, "6": 1.15, "7": 1.1, "8": 1.1,
         "9": .86, "10": .86}

# The pips of each rank: those above the middle, which are repeated upside
# down below it, and those on the middle line, which stand upright. None
# reaches into the top twenty units, which stay visible on a covered card.
ABOVE = {
    "2": [(MIDDLE, 30)],
    "3": [(MIDDLE, 27.9)],
    "4": [(LEFT, 29), (RIGHT, 29)],
    "5": [(LEFT, 28.3), (RIGHT, 28.3)],
    "6": [(LEFT, 27.9), (RIGHT, 27.9)],
    "7": [(LEFT, 27.5), (RIGHT, 27.5)],
    "8": [(LEFT, 27.5), (RIGHT, 27.5), (MIDDLE, 37.7)],
    "9": [(LEFT, 26), (RIGHT, 26), (LEFT, 40.7), (RIGHT, 40.7)],
    "10": [(LEFT, 26), (RIGHT, 26), (LEFT, 40.7), (RIGHT, 40.7),
           (MIDDLE, 33.3)],
}
ON_MIDDLE = {
    "3": [(MIDDLE, CENTRE)],
    "5": [(MIDDLE, CENTRE)],
    "6": [(LEFT, CENTRE), (RIGHT, CENTRE)],
    "7": [(LEFT, CENTRE), (RIGHT, CENTRE), (MIDDLE, 37.7)],
    "8": [(LEFT, CENTRE), (RIGHT, CENTRE)],
    "9": [(MIDDLE, CENTRE)],
}


def index(suit, name):
    """Return the corner index: the rank with its suit beside it."""
    return rank(name, 3, 4, SUIT_COLOUR[suit]) + small_pip(suit, 16.2, 9.5)


def spade_scene():
    """Return the tarn below its peaks, set into the great spade."""
    return (circle(41.5, 43.5, 3, GOLD)
            + path("M23 57 30 46.5 33 50 37 43 47.5 57Z", STEEL)
            + path("M30 46.5 33 50 37 43 37.5 57H23L28.5 55Z", PAPER)
            + path("M30 46.5 31.4 51 29.5 53.5 29.5 57 31 57 33 50ZM37 43 38 48.5"
                   " 36.6 51.5 39 57H47.5Z", SLATE)
            + line("M21.5 58.5H49.5", PAPER, 1)
            + line("M25 61H36M39 61H46", STEEL, 1)
            + line("M29.5 63.2H33.5", STEEL, 1))


def heart_scene():
    """Return the candle flame in the great heart."""
    return (path("M35.5 33.5C37 39 43.5 43 43.5 49.5 43.5 54 40 57 35.5 57"
                 "S27.5 54 27.5 49.5C27.5 46 30 44 31.2 41.5 32.6 42.6 33.2 44"
                 " 33.2 45.6 35 42 35.8 38 35.5 33.5Z", GOLD)
            + path("M35.5 44C36.6 47.5 40 49 40 52.6 40 55.4 38 57 35.5 57"
                   "S31 55.4 31 52.6C31 49 35 47.5 35.5 44Z", PAPER)
            + line("M35.5 52V59", INK, 1.2))


def diamond_scene():
    """Return the facets of the great diamond."""
    return (path("M35.5 31.5 29 48 35.5 64.5C32.5 59 28.5 52.5 23.5 48"
                 " 28.5 43.5 32.5 37 35.5 31.5Z", FACET_LIGHT)
            + path("M35.5 31.5 42 48 35.5 64.5C38.5 59 42.5 52.5 47.5 48"
                   " 42.5 43.5 38.5 37 35.5 31.5Z", FACET_DARK)
            + line("M23.5 48H47.5M35.5 31.5 29 48 35.5 64.5 42 48Z", GOLD, 1))


def club_scene():
    """Return the oak leaves and the acorn in the great club."""
    half = "M0 0V-9C1-8 2.4-7 2-5.6 3.2-5.2 3.2-3.6 2-3 2.6-1.8 1.8-.6 0 0Z"
    vein = "M0 0V-7.6M0-2 1.5-3.4M0-2-1.5-3.4M0-4.4 1.6-5.8M0-4.4-1.6-5.8"
    leaves = ""
    for turn, size in ((0, 1.95), (-107, 1.72), (107, 1.72)):
        place = f"translate(35.5 47.5) rotate({turn}) scale({size})"
        leaves += (path(OAK, "#63ad8e", transform=place)
                   + path(half, TEAL, transform=place)
                   + line(vein, PAPER, .45, transform=place,
                          stroke_linecap="round"))
    return (leaves
            + path("M31 49.5H40C40.4 54.5 38.6 57 36.4 58L35.5 60 34.6 58"
                   "C32.4 57 30.6 54.5 31 49.5Z", GOLD, stroke=INK)
            + path("M32.6 51C32.6 54 33.4 55.6 34.6 56.4 34 54.4 33.8 52.6"
                   " 33.9 51Z", PAPER)
            + path("M29.6 50.5C29.4 46.4 32 44.6 35.5 44.6S41.6 46.4 41.4 50.5"
                   "C38 51.6 33 51.6 29.6 50.5Z", BROWN, stroke=INK)
            + line("M31 47.6 34 50.6M33 45.8 37.6 50.6M36 45.4 40.4 49.4"
                   "M40 47.6 37 50.6M38 45.8 33.4 50.6M35 45.4 30.6 49.4",
                   "#dba35c", .7))


SCENES = {"hearts": heart_scene, "spades": spade_scene,
          "diamonds": diamond_scene, "clubs": club_scene}
GREAT = {"hearts": 3.1, "spades": 3.5, "diamonds": 3.1, "clubs": 3.2}


def ace(suit):
    """Return an ace with one great pip and its emblem."""
    great = pip(suit, MIDDLE, CENTRE, GREAT[suit])
    return card(two_way(index(suit, "ace")) + "\n" + great + "\n"
                + SCENES[suit]())


def number_card(suit, name):
    """Return a card from two to ten."""
    scale = SCALE[name]
    half = [index(suit, name)]
    half += [pip(suit, x, y, scale) for x, y in ABOVE[name]]
    middle = [pip(suit, x, y, scale) for x, y in ON_MIDDLE.get(name, [])]
    return card(two_way("\n".join(half)) + "\n" + "\n".join(middle))
