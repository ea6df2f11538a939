"""Parts that the court figures have in common.

A figure is the upper half of a two-way card. It faces us with its head around
(36, 22); its body fills the frame down to the sash, and its hand holds something
at the right-hand side. The card shows it LOWERED by so much, so that a card in a
stack, of which twenty units are seen, shows what its figure wears on the head and
neither eyes nor brows. The middle of the sash then runs from (6, 38.5) to (65, 54.5).
"""

from .style import BROWN, INK, RED, circle, group, line, path

LOWERED = 1.5

# Skin and the shade that models it.
FAIR = ("#fbe0c8", "#e2a683")
RUDDY = ("#f6cba6", "#cf8a62")
TAWNY = ("#d9a070", "#a86c42")
DARK = ("#9a6440", "#6d4128")

# What outlines white, and gold, on the pale ground of a card.
SHADOW = "#7f7565"
RIM = "#96600f"

BODY = "M6 39C13 35 22 33 29 31H43C51 33 60 37 65 43V56L6 40Z"


def body(cloth, shade, *trim):
    """Draw the shoulders with the folds of the cloak, and trimmings on top."""
    folds = path("M23 33C19 35.5 16 39 15 42.5L10.5 41.3C13 37.5 17 34.5 23 33Z"
                 "M65 43V56L61 54.9C63.5 51 64.5 47 62.5 40.6Z", shade)
    return path(BODY, cloth) + folds + "".join(trim)


def head(skin, jaw="round"):
    """Draw the neck and the bare face."""
    chin = {"round": "C43.5 28 40 31.5 36 31.5S28.5 28 28.5 22.5",
            "square": "C43.5 27 42 30 40 31.5H32C30 30 28.5 27 28.5 22.5",
            "fine": "C43.5 27 39 32 36 32S28.5 27 28.5 22.5"}[jaw]
    return (path("M32 26H40V34L36 38 32 34Z", skin[1])
            + path(f"M28.5 17C28.5 11 43.5 11 43.5 17V22.5{chin}Z", skin[0]))


def features(skin, look=0.0, brow=None, mood="calm", mouth=RED, eye=INK):
    """Draw eyes, brows, nose and mouth; look shifts the gaze sideways."""
    brows = {"calm": "M30.5 19.5Q32.2 18.7 34 19.2M38 19.2Q39.8 18.7 41.5 19.5",
             "stern": "M30.3 19 34.3 20.2M41.7 19 37.7 20.2",
             "raised": "M30.3 19.6Q32.4 18.3 34.2 19.2M37.8 19.2Q39.6 18.3 41.7 19.6",
             "gentle": "M30.2 19.9Q32 18.8 34.2 19M37.8 19Q40 18.8 41.8 19.9"}[mood]
    smile = {"calm": "M34.2 28.2C35.4 28.7 36.6 28.7 37.8 28.2",
             "stern": "M34 28.5H38",
             "raised": "M34 27.7C35 29 37.2 29 38.2 27.4",
             "gentle": "M34.4 28C35.4 28.8 36.6 28.8 37.6 28"}[mood]
    parts = [line(brows, brow or BROWN, 1, stroke_linecap="round"),
             circle(32.5, 22, 1.2, eye), circle(39.5, 22, 1.2, eye),
             line("M36.4 20.5V25H34.8", skin[1], 1)]
    if mouth:
        parts += [circle(30.9, 25.8, 1.5, skin[1], opacity=".4"),
                  circle(41.1, 25.8, 1.5, skin[1], opacity=".4")]
        parts.append(line(smile, mouth, 1.1, stroke_linecap="round"))
    return group("".join(parts), f"translate({look:g} 0)" if look else "")


def arm(sleeve, shade, cuff, skin):
    """Draw the forearm and the fist that holds something at x = 56."""
    return (path("M44.5 51 49.5 42H63.6L65 45V56L46 51.5Z", shade)
            + path("M48 52 51.5 44H60.5L62 55.2Z", sleeve)
            + path("M51 43H61V47H51Z", cuff)
            + line("M51 46.5H61", shade, 1)
            + path("M52.5 37.5H58C60.5 37.5 60.5 43 58.5 43H53.5"
                   "C51.5 43 51 37.5 52.5 37.5Z", skin[0])
            + line("M55 39.4H59.5M55 41.2H59.2", skin[1], .8))


def beard(colour, length=38.0, point=0.0, **rim):
    """Draw a full beard that ends at the given height."""
    low = length - 3
    return path(f"M28.5 21C29.5 25 32.5 25.6 36 25.6S42.5 25 43.5 21"
                f"C45.5 27 44.5 {low:g} {36 + 3.5 - point:g} {length - 1:g}"
                f"L36 {length + 1:g} {36 - 3.5 + point:g} {length - 1:g}"
                f"C27.5 {low:g} 26.5 27 28.5 21Z", colour, **rim)


def moustache(colour, lip):
    """Draw a moustache with the lower lip below it."""
    return (line("M34.5 29.2Q36 29.8 37.5 29.2", lip, 1.2)
            + path("M36 25.3C33.8 24.5 31 25.3 29.6 28.7 32.2 29.1 34.6 28.8 36 27.8"
                   " 37.4 28.8 39.8 29.1 42.4 28.7 41 25.3 38.2 24.5 36 25.3Z",
                   colour))
