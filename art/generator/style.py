"""Palette, card outline and the few SVG helpers every picture shares.

All card pictures use a canvas of 71 x 96 user units, which is also their
natural size in pixels. Edges that matter lie on whole units so that they stay
crisp at whole-number zoom factors. Only features of SVG Tiny 1.2 are used.
"""

WIDTH, HEIGHT = 71, 96

# The red is light and warm, the black nearly black with a touch of blue: they
# differ in lightness as much as in hue, so that they can be told apart without
# seeing red.
RED = "#e03a1e"
INK = "#141c28"
PAPER = "#fffdf7"
EDGE = "#22201d"

WINE = "#a3241a"
GOLD = "#f2b93f"
OCHRE = "#c98a1e"
TEAL = "#2f8088"
PINE = "#1c5058"
SLATE = "#41557a"
STEEL = "#b9c6d2"
SNOW = "#fbf8ef"
BROWN = "#744527"

# An oak leaf, its stalk at the origin.
OAK = ("M0 0C-1.8-.6-2.6-1.8-2-3-3.2-3.6-3.2-5.2-2-5.6-2.4-7-1-8 0-9"
       " 1-8 2.4-7 2-5.6 3.2-5.2 3.2-3.6 2-3 2.6-1.8 1.8-.6 0 0Z")

SUITS = ("hearts", "spades", "diamonds", "clubs")
RANKS = ("ace", "2", "3", "4", "5", "6", "7", "8", "9", "10",
         "jack", "queen", "king")
# A shade that nobody sees tells the signs of diamonds and clubs from all else
# on the card: where four colours are asked for, the program changes these
# (view/four_colors.cpp) and no other.
SUIT_COLOUR = {"hearts": RED, "diamonds": "#e03a1f",
               "spades": INK, "clubs": "#141c29"}


def num(value):
    """Return a number as short SVG text, rounded to a hundredth."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    if text in ("-0", "0"):
        return "0"
    return text.replace("0.", ".", 1) if abs(value) < 1 else text


def svg(body, width=WIDTH, height=HEIGHT):
    """Wrap a drawing in a document of the given canvas size."""
    return ('<svg xmlns="http://www.w3.org/2000/svg"'
            ' xmlns:xlink="http://www.w3.org/1999/xlink"'
            f' width="{width}" height="{height}"'
            f' viewBox="0 0 {width} {height}">\n{body.strip()}\n</svg>\n')


def card(body, paper=PAPER):
    """Draw the blank card, then the body on it."""
    blank = (f'<rect x=".5" y=".5" width="70" height="95" rx="4"'
             f' fill="{paper}" stroke="{EDGE}"/>')
    return svg(blank + "\n" + body)


def path(d, fill="none", **attributes):
    """Return a path element; underscores in names stand for hyphens."""
    extra = "".join(f' {name.replace("_", "-")}="{value}"'
                    for name, value in attributes.items())
    return f'<path d="{d}" fill="{fill}"{extra}/>'


def line(d, stroke, width=1, **attributes):
    """Return a stroked path without a fill."""
    return path(d, stroke=stroke, stroke_width=num(width), **attributes)


def circle(x, y, r, fill, **attributes):
    """Return a filled circle."""
    extra = "".join(f' {name}="{value}"' for name, value in attributes.items())
    return (f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(r)}" fill="{fill}"'
            f'{extra}/>')


def group(body, transform="", **attributes):
    """Return a group holding the body."""
    extra = "".join(f' {name.replace("_", "-")}="{value}"'
                    for name, value in attributes.items())
    if transform:
        extra += f' transform="{transform}"'
    return f"<g{extra}>{body}</g>"


def two_way(half, name="h"):
    """Draw one half and the same half again, turned upside down."""
    return (f'<g id="{name}">{half}</g>\n'
            f'<use xlink:href="#{name}" transform="rotate(180 35.5 48)"/>')
