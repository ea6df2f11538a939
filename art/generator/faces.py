"""Aces and number cards: corner indices and the pips between them."""

from .ranks import rank
from .style import (BROWN, GOLD, INK, OAK, PAPER, SLATE, STEEL, SUIT_COLOUR,
                    TEAL, card, circle, group, line, num, path, two_way)
from .suits import pip, small_pip

LEFT, MIDDLE, RIGHT = 18.5, 35.5, 52.5
CENTRE = 48

# The top twenty units stay visible on a covered card; no pip reaches there.
TOP = 20.2

# The size of the pips; the fewer there are, the larger.
SCALE = {"2": 1.5, "3": 1.27, "4": 1.26, "5": 1.22, "6": 1.18, "7": 1.13,
         "8": 1.08, "9": .95, "10": .92}

# The places of the pips that are repeated upside down in the lower half, and of
# those that are drawn once: the column, and how far down from the uppermost row
# to the middle line.
CORNERS = ((LEFT, 0), (RIGHT, 0))
TWICE = {
    "2": ((MIDDLE, 0),),
    "3": ((MIDDLE, 0),),
    "4": CORNERS,
    "5": CORNERS,
    "6": CORNERS,
    "7": CORNERS,
    "8": (*CORNERS, (MIDDLE, .5)),
    "9": (*CORNERS, (LEFT, .65), (RIGHT, .65)),
    "10": (*CORNERS, (LEFT, .65), (RIGHT, .65), (MIDDLE, 1 / 3)),
}
ONCE = {
    "3": ((MIDDLE, 1),),
    "5": ((MIDDLE, 1),),
    "6": ((LEFT, 1), (RIGHT, 1)),
    "7": ((LEFT, 1), (RIGHT, 1), (MIDDLE, .5)),
    "8": ((LEFT, 1), (RIGHT, 1)),
    "9": ((MIDDLE, 1),),
}


def index(suit, name):
    """Return the corner index: the rank with its suit beside it."""
    return rank(name, 3, 4, SUIT_COLOUR[suit]) + small_pip(suit, 16, 9.5)


def spade_scene():
    """Return the peaks above their tarn; the sun lights the slopes before it."""
    return (circle(44, 44, 2.5, GOLD)
            + path("M22 57 34 38 36 57Z", SLATE)
            + path("M34 38 40 47 42 48 48 57H33L35.5 52 32.5 48 35 44Z", STEEL)
            + path("M34 38 40 47 41 50 38.5 48.5 37 52 35.5 49 33.5 49.3 32.5 48"
                   " 35 44Z", PAPER)
            + path("M20 57 26.5 47.5 32.5 57H26L27.5 53 26 51Z", STEEL)
            + path("M20 57 26.5 47.5 26 51 27.5 53 26 57Z", "#2f3f5e")
            + line("M21 57.5H50", PAPER) + line("M25 59.5H37M28 61.5H33", STEEL)
            + line("M40 59.5H47M41 61.5H44", GOLD))


def heart_scene():
    """Return the candle flame in the great heart."""
    return (path("M36 39.5C37 45 43.5 47 43.5 53 43.5 57.5 40 60 35.5 60"
                 "S27.5 57.5 27.5 53C27.5 49.5 29.5 47.5 30.5 45.5 32 46.5 32.5 47.5"
                 " 33 49 35 47 36.5 44 36 39.5Z", GOLD)
            + path("M36 48C36.5 51 40 52 40 55.5 40 58 38 60 35.5 60"
                   "S31 58 31 55.5C31 52 35 51.5 36 48Z", PAPER)
            + line("M35.5 55V63", INK))


def diamond_scene():
    """Return the facets of the great diamond."""
    upper = "M0-6.5C-1.3-4.2-3.2-1.8-5.4 0H-2.4L0-2.9Z"
    lower = "M0 6.5C1.3 4.2 3.2 1.8 5.4 0H2.4L0 2.9Z"
    return group(path(upper, "#fff", opacity=".35")
                 + path(lower, "#000", opacity=".3")
                 + path("M-2.4 0 0-2.9 2.4 0Z", "#fff", opacity=".5")
                 + line("M0-2.9 2.4 0 0 2.9-2.4 0Z", GOLD, .35),
                 f"translate({MIDDLE} {CENTRE}) scale({GREAT['diamonds']})")


def club_scene():
    """Return the oak leaves and the acorn in the great club."""
    half = "M0 0V-9C1-8 2.4-7 2-5.6 3.2-5.2 3.2-3.6 2-3 2.6-1.8 1.8-.6 0 0Z"
    leaves = ""
    for turn, size in ((0, 1.95), (-107, 1.72), (107, 1.72)):
        place = f"translate(35.5 47.5) rotate({turn}) scale({size})"
        leaves += (path(OAK, "#63ad8e", transform=place)
                   + path(half, TEAL, transform=place))
    return (leaves
            + path("M31 49.5H40C40.4 54.5 38.6 57 36.4 58L35.5 60 34.6 58"
                   "C32.4 57 30.6 54.5 31 49.5Z", GOLD, stroke=INK)
            + path("M29.6 50.5C29.4 46.4 32 44.6 35.5 44.6S41.6 46.4 41.4 50.5"
                   "C38 51.6 33 51.6 29.6 50.5Z", BROWN, stroke=INK))


SCENES = {"hearts": heart_scene, "spades": spade_scene,
          "diamonds": diamond_scene, "clubs": club_scene}
GREAT = {"hearts": 3.3, "spades": 3.5, "diamonds": 3.4, "clubs": 3.4}


def ace(suit):
    """Return an ace with one great pip and its emblem."""
    great = pip(suit, MIDDLE, CENTRE, GREAT[suit])
    return card(two_way(index(suit, "ace")) + "\n" + great + "\n"
                + SCENES[suit]())


def number_card(suit, name):
    """Return a card from two to ten."""
    scale = SCALE[name]
    top = TOP + 6.5 * scale
    x0 = TWICE[name][0][0]

    def again(column, down):
        """Draw the first pip of the card once more, elsewhere."""
        offset = (("x", column - x0), ("y", (CENTRE - top) * down))
        return '<use xlink:href="#p"' + "".join(
            f' {axis}="{num(by)}"' for axis, by in offset if by) + "/>"

    half = [index(suit, name) + pip(suit, x0, top, scale, id="p")]
    half += [again(*place) for place in TWICE[name][1:]]
    once = [again(*place) for place in ONCE.get(name, ())]
    return card(two_way("".join(half)) + "\n" + "".join(once))
