"""Jack, queen and king of hearts and of diamonds."""

from .figure import (DARK, FAIR, RUDDY, arm, beard, body, features, head,
                     moustache)
from .style import (BROWN, GOLD, INK, OCHRE, PINE, RED, SNOW, TEAL, WINE,
                    circle, line, path)

ASH = "#d9d6cf"
AUBURN = "#a8481f"
STRAW = "#f3d27a"


def king_of_hearts():
    """A white-bearded king who keeps the torch alight."""
    ermine = (path("M22 33C26 31 30 31 32 30L36 38 40 30C43 31 48 32 51 34"
                   "L46 46 36 48 24 44Z", SNOW)
              + line("M26 36V38M29 40V42M24 40V41.5M45 37V39M43 41V43M47 35.5V37",
                     INK, 1))
    crown = (path("M29 12C29 8 43 8 43 12Z", WINE)
             + path("M27.5 16.5 26 8 30.5 11 33 7.5 36 11 39 7.5 41.5 11 46 8"
                    " 44.5 16.5Z", GOLD)
             + path("M27.5 14.5H44.5V17.5H27.5Z", OCHRE)
             + circle(36, 16, 1.3, RED) + circle(31, 16, 1, SNOW)
             + circle(41, 16, 1, SNOW))
    torch = (path("M54 23H58L57 51H55Z", BROWN)
             + path("M52.5 22H59.5V26L58 28H54L52.5 26Z", OCHRE)
             + path("M56 8C57 12 61 15 60.5 19 60.2 21.2 58.5 22 56 22"
                    "S51.8 21 51.5 18.6C51.3 16 53 15.4 53.6 13.4"
                    " 54.6 14 55 15 55 16 56 14 56.4 11 56 8Z", RED)
             + path("M56 14.5C56.6 17 58.6 18 58.4 20 58.2 21.4 57 22 56 22"
                    "S53.8 21.4 53.7 20C53.6 18 55.6 17 56 14.5Z", GOLD))
    hair = path("M27 16H45C46.5 20 46.5 25 45.5 28L43 23V17H29V23L26.5 28"
                "C25.5 25 25.5 20 27 16Z", ASH)
    return (body(RED, WINE, ermine) + head(RUDDY) + hair + beard("#efece4", 40, 1)
            + features(RUDDY, mouth=None, brow=ASH)
            + line("M33 33V37M36 32V38M39 33V37", ASH, 1) + moustache(SNOW)
            + crown + torch + arm(RED, WINE, SNOW, RUDDY))


def queen_of_hearts():
    """A queen with auburn braids and a rose."""
    gown = (path("M27 32 36 40 45 32 48 50 24 44Z", SNOW)
            + path("M31 31 36 40 41 31 43 48 28 45Z", WINE)
            + line("M36 41V47", GOLD, 1.6))
    back = path("M27 18C26 9 46 9 45 18V30H27Z", AUBURN)
    braids = "".join(path(d, AUBURN) for d in (
        "M26.5 20C29 22 30 25 28.5 27 30.5 29.5 30 32 28 34 29.5 36.5 28.5 39"
        " 26.5 41 24 39 23.5 36.5 25 34 23 32 23 29.5 25 27 23.5 24.5 24 21.5"
        " 26.5 20Z",
        "M45.5 20C43 22 42 25 43.5 27 41.5 29.5 42 32 44 34 42.5 36.5 43.5 39"
        " 45.5 41 48 39 48.5 36.5 47 34 49 32 49 29.5 47 27 48.5 24.5 48 21.5"
        " 45.5 20Z"))
    fringe = path("M28 20C28 15 33 15 36 14.5 39 15 44 15 44 20L42 17.5 36 16"
                  " 30 17.5Z", AUBURN)
    crown = (path("M29 14.5 27.5 9 32 11.5 36 7 40 11.5 44.5 9 43 14.5Z", GOLD)
             + path("M36 14.2C35.4 13 34 12.6 34 11.2 34 9.9 35.6 9.9 36 10.9"
                    " 36.4 9.9 38 9.9 38 11.2 38 12.6 36.6 13 36 14.2Z", RED))
    rose = (line("M56 50V22", PINE, 1.6)
            + path("M56 34C52 34 50.5 31.5 50 29 53.5 29 56 31 56 34Z"
                   "M56 30C59.5 30 61.5 28 62 25.5 58.5 25.5 56 27 56 30Z", TEAL)
            + circle(56, 17, 5.6, RED)
            + path("M50.5 16C53 18 55 19 57 22.5 53 22.8 50 20 50.5 16Z"
                   "M61.5 16C60 18 58.5 19.5 57 22.5 60.5 22 62 19 61.5 16Z",
                   WINE)
            + line("M54 16.5C53.5 13.5 58.5 13.5 58 16.5 57.5 18.5 54.5 18"
                   " 55.5 16.4", WINE, 1))
    return (back + body(RED, WINE, gown) + head(FAIR, "fine")
            + features(FAIR, .6, AUBURN, "gentle") + fringe + braids
            + line("M24 37H29M43 37H48", GOLD, 1.6)
            + crown + rose + arm(RED, WINE, GOLD, FAIR))


def jack_of_hearts():
    """A young player of the lute in a feathered cap."""
    doublet = (path("M29 31 36 37 43 31 46 50 25 44Z", GOLD)
               + line("M36 37V47M31.5 36 33 46M40.5 36 40 48", RED, 1.6)
               + path("M29 31 36 37 43 31 45 34 36 40.5 27 34Z", SNOW))
    hair = path("M27.5 17C27 12 45 12 44.5 17 47 21 47 26 46 29 44.5 30 43 29"
                " 42.5 27.5V20L40 16.5 30 18.5 29.5 27.5C29 29 27.5 30 26 29"
                " 25 26 25 21 27.5 17Z", STRAW)
    cap = (path("M26 16.5C25 10 31 7.5 38 7.5 45 7.5 48.5 11 47.5 14.5"
                " 42 13.5 33 14 26 16.5Z", RED)
           + path("M26 17C32 13.5 42 13 47.6 14.5L47.2 17C41 15.5 33 16 26.4 19Z",
                  WINE)
           + path("M29 14.5C24 13 23 10 24 7 28 7.5 30.5 10 31 13.5Z", SNOW)
           + line("M25 8C27 10 28.5 12 30 14.5", INK, .7))
    lute = (path("M54.6 12H58.4L58 34H55Z", BROWN)
            + path("M53.5 7.5H59.5L58.5 13H54.5Z", INK)
            + path("M56.5 29C62 32 64.5 38 64 44 63.5 50 60 52.5 56.5 51.5"
                   " 51 50.5 48.5 47 49 42.5 49.5 37 52 32 56.5 29Z", OCHRE)
            + path("M56.5 32C60.5 35 62.3 39 62 43.5 61.7 48 59 50.5 56.5 50"
                   " 52.5 49 50.8 46 51.2 42.5 51.6 38.5 53.5 35 56.5 32Z", GOLD)
            + circle(56.5, 41, 2.4, INK)
            + line("M55.8 13V47M57.3 13V47", SNOW, .5))
    fist = (path("M53 18.5H58.5C61 18.5 61 24 58.5 24H54C52 24 52 18.5 53 18.5Z",
                 FAIR[0]) + line("M55 20.3H60M55 22.2H60", FAIR[1], .8))
    return (body(RED, WINE, doublet) + head(FAIR)
            + features(FAIR, .8, OCHRE, "raised") + hair + cap + lute + fist)


def king_of_diamonds():
    """A merchant king in a turban, with a jewelled sceptre."""
    robe = (path("M20 33.5C25 31.5 28 31.5 31 30L36 37 41 30 52 34 50 51 22 43.8Z",
                 GOLD)
            + path("M31 30 36 37 41 30 42 48.5 29.5 45Z", TEAL)
            + line("M31 30 29.5 45M41 30 42 48.5", INK, .8)
            + path("M36 39.5 38 42 36 44.5 34 42Z", GOLD))
    turban = (path("M26.5 17C23.5 11 29 7 36 7S48.5 11 45.5 17"
                   "C40 14 32 14 26.5 17Z", SNOW)
              + line("M27 14C31 9 37 8 42 8.5M28 16C34 10 41 10 46 12.5"
                     "M36 14.8C40 13 43.5 13.5 46 15", "#c9c3b4", 1)
              + path("M36 9 38.6 13 36 17 33.4 13Z", RED)
              + line("M36 9 38.6 13 36 17 33.4 13Z", GOLD, .9))
    sceptre = (path("M55 22H57V51H55Z", OCHRE) + path("M52 24H60V26.5H52Z", OCHRE)
               + path("M53.5 20.5H58.5L57.5 24H54.5Z", OCHRE)
               + circle(56, 8.6, 1.8, OCHRE) + circle(56, 15.5, 6.6, "#a06a12")
               + circle(56, 15.5, 5.6, GOLD)
               + line("M52.2 12.8C53 11.5 54.4 10.8 56 10.8", SNOW, 1,
                      stroke_linecap="round")
               + circle(56, 15.5, 3.4, PINE) + circle(56, 15.5, 2.6, TEAL)
               + circle(55.2, 14.6, .9, "#bfe3e0"))
    return (body(WINE, "#7d1a14", robe) + head(DARK, "square")
            + beard("#2a211c", 35, 1.5)
            + features(DARK, 0, INK, mouth=None) + moustache("#3c302a")
            + turban + circle(27.5, 26, 1.3, GOLD) + circle(44.5, 26, 1.3, GOLD)
            + sceptre + arm(WINE, "#7d1a14", GOLD, DARK))


def queen_of_diamonds():
    """A fair queen in a pleated ruff, with a fan."""
    gown = (path("M26 36 36 41 47 36 49 50.5 23 44Z", WINE)
            + line("M30 40 29 45M36 42V47M42 40 43 48", GOLD, 1.2))
    ruff = (path("M24 34 26 29.5 30 30.5 33 31.5H39L42 30.5 46 29.5 48 34"
                 " 46 37.5 43 36.5 41 39 38 37.5 36 40 34 37.5 31 39 29 36.5"
                 " 26 37.5Z", SNOW)
            + line("M33 33 30 36.5M35 34 34 37.5M37 34 38 37.5M39 33 42 36.5"
                   "M31 32 26.5 34M41 32 45.5 34", "#bdb5a4", .8))
    hair = path("M28 22C26 18 27 14 30 12.5 29.5 8 42.5 8 42 12.5"
                " 45 14 46 18 44 22L42.5 18.5C40 16 32 16 29.5 18.5Z", STRAW)
    jewels = (path("M29.5 12.5C33 10.5 39 10.5 42.5 12.5L42 15C39 13 33 13 30 15Z",
                   GOLD) + path("M36 7 38 11.5 36 15.5 34 11.5Z", RED)
              + "".join(circle(x, y, .9, SNOW) for x, y in (
                  (31.2, 13.6), (33.4, 12.8), (38.6, 12.8), (40.8, 13.6))))
    fan = (path("M56 37 47.5 22C49 15 63 15 64.5 22Z", RED)
           + path("M56 37 50.5 27.4C52.5 24.5 59.5 24.5 61.5 27.4Z", GOLD)
           + line("M56 37 49.5 19.6M56 37 53.5 17.5M56 37 58.5 17.5"
                  "M56 37 62.5 19.6", WINE, .8)
           + path("M55 36H57V39H55Z", INK))
    return (body(OCHRE, "#9c6a14", gown) + head(FAIR, "fine") + ruff
            + features(FAIR, 0, OCHRE, "raised")
            + circle(28.5, 26, 1, GOLD) + circle(43.5, 26, 1, GOLD)
            + hair + jewels + fan + arm(OCHRE, "#9c6a14", SNOW, FAIR))


def jack_of_diamonds():
    """An angler with his catch."""
    shirt = (path("M29 31 36 38 43 31 45 49.5 26 44.5Z", SNOW)
             + line("M26.5 36.5 45 37M26 40.5 45.3 41.5M26 44 45.5 46", RED, 1.6)
             + path("M31 30 36 35.5 41 30 43 32.5 36 39.5 29 32.5Z", RED))
    hair = "".join(circle(x, y, r, "#c0501c") for x, y, r in (
        (28, 18, 2.4), (27.3, 21.8, 2.3), (28.3, 25.2, 1.8), (44, 18, 2.4),
        (44.7, 21.8, 2.3), (43.7, 25.2, 1.8), (31.5, 16.5, 2), (40.5, 16.5, 2)))
    hat = (path("M24 17C27 14.5 28 13 29 10.5 31 6.5 41 6.5 43 10.5"
                " 44 13 45 14.5 48 17 40 15 32 15 24 17Z", GOLD)
           + path("M28.6 11.5C33 13 39 13 43.4 11.5L44.4 14C39 15.4 33 15.4 27.6 14Z",
                  TEAL))
    fish = (path("M56 10C59.5 12 61.5 17 61 22 60.6 26.5 58.5 30 57.2 32"
                 "L61 37.5H51L54.8 32C53.5 30 51.4 26.5 51 22"
                 " 50.5 17 52.5 12 56 10Z", TEAL)
            + path("M56 10C58 13 58.5 17 58 22 57.6 26 57 29 56.6 32H54.8"
                   "C53.5 30 51.4 26.5 51 22 50.5 17 52.5 12 56 10Z", "#8fc3c4")
            + line("M51.6 18C54 19.5 58 19.5 60.6 18", INK, .8)
            + circle(54.2, 15, 1, INK)
            + line("M53 23H54.5M56 25H57.5M54 27H55.5", PINE, .8))
    return (body(OCHRE, "#9c6a14", shirt) + head(RUDDY)
            + features(RUDDY, -.6, "#c0501c", "raised") + hair + hat
            + fish + arm(OCHRE, "#9c6a14", SNOW, RUDDY))
