"""Jack, queen and king of hearts and of diamonds."""

from .figure import (DARK, FAIR, RIM, RUDDY, SHADOW, TAWNY, arm, beard, body,
                     features, head, moustache)
from .style import (BROWN, GOLD, INK, OCHRE, PINE, RED, SNOW, TEAL, WINE,
                    circle, line, path)

ASH = "#d5d1c8"
AUBURN = "#a8481f"
HONEY = "#c4832a"
CHESTNUT = "#5a2c1b"
CURLS = "#33231d"
COAT = "#9c6a14"


def king_of_hearts():
    """A white-bearded king who keeps the torch alight."""
    stole = (path("M31 31 28.5 45 19.5 42.5 21 35ZM41 31 45.5 49.3 54 51.5 51 35Z",
                  SNOW)
             + line("M27 33V35M24 36.5V38.5M27.5 40V42M22.5 40.5V42M45.5 33V35"
                    "M48.5 36.5V38.5M44.8 38.5V40.5", INK, 1))
    crown = (path("M29 11.5C29 7 43 7 43 11.5Z", WINE)
             + path("M27.5 16.5 26 7 30.5 10.5 33 6.5 36 10 39 6.5 41.5 10.5 46 7"
                    " 44.5 16.5Z", GOLD, stroke=RIM, stroke_width=.7)
             + path("M27.2 14H44.8V17.5H27.2Z", OCHRE)
             + circle(36, 15.7, 1.4, RED) + circle(31, 15.7, 1, SNOW)
             + circle(41, 15.7, 1, SNOW))
    torch = (path("M54 23H58L57 51H55Z", BROWN)
             + path("M52.5 22H59.5V26L58 28H54L52.5 26Z", OCHRE)
             + path("M56 7C57 11 61 14.5 60.5 19 60.2 21.2 58.5 22 56 22"
                    "S51.8 21 51.5 18.6C51.3 16 53 15.4 53.6 13"
                    " 54.6 13.5 55 14.5 55 15.5 56 13.5 56.4 10 56 7Z", RED)
             + path("M56 14.5C56.6 17 58.6 18 58.4 20 58.2 21.4 57 22 56 22"
                    "S53.8 21.4 53.7 20C53.6 18 55.6 17 56 14.5Z", GOLD))
    hair = path("M27 16H45C47 20 47 25 45.8 29L43 25V17H29V25L26.2 29"
                "C25 25 25 20 27 16Z", ASH, stroke=SHADOW, stroke_width=.9)
    return (body(RED, WINE, path("M28 31H44L45.5 49.5 28 45Z", WINE), stole)
            + head(RUDDY) + hair
            + beard("#f1eee6", 40, 1, stroke=SHADOW, stroke_width=.9)
            + features(RUDDY, mouth=None, brow=SHADOW)
            + line("M33 33V37M36 32V38M39 33V37", SHADOW, .8)
            + moustache(SNOW, "#c8533a")
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
    crown = (path("M29 14.5 27.5 8 32 11 36 6 40 11 44.5 8 43 14.5Z", GOLD,
                  stroke=RIM, stroke_width=.7)
             + path("M36 14.2C35.4 13 34 12.6 34 11.2 34 9.9 35.6 9.9 36 10.9"
                    " 36.4 9.9 38 9.9 38 11.2 38 12.6 36.6 13 36 14.2Z", RED))
    rose = (line("M56 50V22", PINE, 1.6)
            + path("M56 34C52 34 50.5 31.5 50 29 53.5 29 56 31 56 34Z"
                   "M56 30C59.5 30 61.5 28 62 25.5 58.5 25.5 56 27 56 30Z", TEAL)
            + circle(56, 15, 6, RED)
            + path("M50.5 14C53 16 55 17 57 21 53 21.3 50 18 50.5 14Z"
                   "M61.5 14C60 16 58.5 18 57 21 60.5 20.5 62 17.5 61.5 14Z",
                   WINE)
            + line("M54 14.5C53.5 11.5 58.5 11.5 58 14.5 57.5 16.5 54.5 16"
                   " 55.5 14.4", WINE, 1))
    return (back + body(RED, WINE, gown) + head(FAIR, "fine")
            + features(FAIR, 1, AUBURN, "gentle") + fringe + braids
            + line("M24 37H29M43 37H48", GOLD, 1.6)
            + crown + rose + arm(RED, WINE, GOLD, FAIR))


def jack_of_hearts():
    """A young player of the lute in a feathered cap."""
    doublet = (path("M29 31 36 37 43 31 46 50 25 44Z", GOLD)
               + line("M36 37V47M31.5 36 33 46M40.5 36 40 48", RED, 1.6)
               + path("M29 31 36 37 43 31 45 34 36 40.5 27 34Z", SNOW))
    hair = path("M27.5 17C27 12 45 12 44.5 17 47 21 47 26 46 29 44.5 30 43 29"
                " 42.5 27.5V20L40 16.5 30 18.5 29.5 27.5C29 29 27.5 30 26 29"
                " 25 26 25 21 27.5 17Z", HONEY)
    cap = (path("M26 16.5C24 9 31 6 38 6 45.5 6 49.5 10.5 47.6 14.5"
                " 42 13.5 33 14 26 16.5Z", RED)
           + path("M26 16.5C32 13 42 12.5 47.6 14L47.2 17C41 15.5 33 16 26.4 19Z",
                  WINE)
           + path("M30 15.5C24 14 22.5 9.5 24.2 5.5 28.5 6 32 10 32 14.5Z", SNOW,
                  stroke=SHADOW)
           + line("M25 7C27 10 28.5 12.5 30.5 15", SHADOW, .7))
    lute = (path("M54.6 12H58.4L58 34H55Z", BROWN)
            + path("M53.5 5.5H59.5L58.5 12H54.5Z", INK)
            + path("M56.5 29C62 32 64.5 38 64 44 63.5 50 60 52.5 56.5 51.5"
                   " 51 50.5 48.5 47 49 42.5 49.5 37 52 32 56.5 29Z", COAT)
            + path("M56.5 32C60.5 35 62.3 39 62 43.5 61.7 48 59 50.5 56.5 50"
                   " 52.5 49 50.8 46 51.2 42.5 51.6 38.5 53.5 35 56.5 32Z", GOLD)
            + circle(56.5, 41, 2.4, INK)
            + line("M55.8 13V47M57.3 13V47", SNOW, .5))
    # The forearm rises behind the lute to the fist on its neck.
    sleeve = (path("M65 48V37L61.8 24H54L50 43Z", RED)
              + path("M65 48V37L61.8 24H59.4L61.5 44Z", WINE)
              + path("M53 22H62.5V26H53Z", SNOW))
    fist = (path("M53 16.5H59C61.5 16.5 61.5 22.5 59 22.5H54C52 22.5 52 16.5 53 16.5Z",
                 FAIR[0]) + line("M55 18.5H60.3M55 20.5H60", FAIR[1], .8))
    return (body(RED, WINE, doublet) + head(FAIR)
            + features(FAIR, 1, HONEY, "raised") + hair + cap + sleeve + lute
            + fist)


def king_of_diamonds():
    """A merchant king in a turban, with a jewelled sceptre."""
    robe = (path("M20 33.5C25 31.5 28 31.5 31 30L36 37 41 30 52 34 50 51 22 43.8Z",
                 GOLD)
            + path("M31 30 36 37 41 30 42 48.5 29.5 45Z", TEAL)
            + line("M31 30 29.5 45M41 30 42 48.5", INK, .8)
            + path("M36 39.5 38 42 36 44.5 34 42Z", GOLD))
    turban = (path("M26.5 17C23 10 29 5.5 36 5.5S49 10 45.5 17"
                   "C40 14 32 14 26.5 17Z", SNOW, stroke=SHADOW)
              + line("M27 14C31 8.5 37 7 42.5 7.5M28 16C34 9.5 41 9.5 46.5 12"
                     "M36 14.8C40 12.5 43.5 13 46 15", "#b7ae9b", 1)
              + path("M36 7.5 39 12 36 16.5 33 12Z", RED, stroke=GOLD))
    sceptre = (path("M55 22H57V51H55Z", OCHRE) + path("M52 24H60V26.5H52Z", OCHRE)
               + path("M53.5 20.5H58.5L57.5 24H54.5Z", OCHRE)
               + circle(56, 7.6, 1.8, OCHRE) + circle(56, 14.5, 6.6, "#a06a12")
               + circle(56, 14.5, 5.6, GOLD)
               + line("M52.2 11.8C53 10.5 54.4 9.8 56 9.8", SNOW, 1,
                      stroke_linecap="round")
               + circle(56, 14.5, 3.4, PINE) + circle(56, 14.5, 2.6, TEAL)
               + circle(55.2, 13.6, .9, "#bfe3e0"))
    return (body(WINE, "#7d1a14", robe) + head(DARK, "square")
            + beard("#2a211c", 35, 1.5)
            + features(DARK, 0, INK, mouth=None) + moustache("#3c302a", "#a8523c")
            + turban + circle(27.5, 26, 1.3, GOLD) + circle(44.5, 26, 1.3, GOLD)
            + sceptre + arm(WINE, "#7d1a14", GOLD, DARK))


def queen_of_diamonds():
    """A queen with dressed chestnut hair above a pleated ruff, and a fan."""
    gown = (path("M26 36 36 41 47 36 49 50.5 23 44Z", WINE)
            + line("M30 40 29 45M36 42V47M42 40 43 48", GOLD, 1.2))
    ruff = (path("M23 35.5 24.5 33 30 32.5 36 34.5 42 32.5 47.5 33 49 35.5"
                 " 47.5 38 45 37.5 43 39.5 40 38.5 38 40.5 36 39.2 34 40.5"
                 " 32 38.5 29 39.5 27 37.5 24.5 38Z", SNOW)
            + line("M30 33 27.5 37M33 34 31 38M36 35V39M39 34 41 38M42 33 44.5 37",
                   SHADOW, .8))
    hair = path("M27.5 29C25 24 25 20 26 17 23.5 11 27.5 7 32 7.5 34 7.5 35.5 8.5 36 10"
                " 36.5 8.5 38 7.5 40 7.5 44.5 7 48.5 11 46 17 47 20 47 24 44.5 29"
                "L43.2 20.5C43 18 38 17 36 14.5 34 17 29 18 28.8 20.5Z", CHESTNUT)
    jewels = (line("M28.5 14.5 36 13 43.5 14.5", GOLD, 1.6)
              + path("M36 7.5 38.5 12 36 16.5 33.5 12Z", RED, stroke=GOLD,
                     stroke_width=.8)
              + "".join(circle(x, y, 1.1, SNOW) for x, y in (
                  (28.2, 27.5), (43.8, 27.5), (30.5, 14), (41.5, 14))))
    fan = (path("M56 37 46.5 20C48.5 12 63.5 12 65 20Z", RED)
           + path("M56 37 50 26.2C52 23 60 23 61.8 26.2Z", GOLD)
           + line("M56 37 49.5 17M56 37 53.5 14.5M56 37 58.5 14.5"
                  "M56 37 62.5 17", WINE, .8)
           + path("M55 36H57V39H55Z", INK))
    return (body(OCHRE, COAT, gown) + head(FAIR, "fine") + ruff
            + features(FAIR, 0, CHESTNUT, "gentle")
            + hair + jewels + fan + arm(OCHRE, COAT, SNOW, FAIR))


def jack_of_diamonds():
    """An angler in a knotted scarf, with his catch."""
    shirt = (path("M29 31 36 38 43 31 45 49.5 26 44.5Z", SNOW)
             + line("M26.5 36.5 45 37M26 40.5 45.3 41.5M26 44 45.5 46", RED, 1.6)
             + path("M31 30 36 35.5 41 30 43 32.5 36 39.5 29 32.5Z", RED))
    hair = "".join(circle(x, y, r, CURLS) for x, y, r in (
        (28, 18, 2.4), (27.8, 21.8, 2), (44, 18, 2.4), (44.3, 21.8, 2.2),
        (31, 17, 1.8), (34.2, 16.6, 1.8), (37.8, 16.6, 1.8), (41, 17, 1.8)))
    scarf = (path("M28.5 14 23 17 25 18.2 22.5 23 24.8 22.3 26 24 28.5 17.5Z", PINE)
             + path("M27 17.5C24.5 8.5 30 5.5 36 5.5S47.5 8.5 45 17.5"
                    "C40 14.5 32 14.5 27 17.5Z", TEAL)
             + line("M27 17C32 14.2 40 14.2 45 17", PINE, 1.4)
             + "".join(circle(x, y, 1, SNOW) for x, y in (
                 (30.5, 11.5), (36, 8.5), (41.5, 11.5), (36, 12.5)))
             + circle(43.8, 25.8, 1.2, GOLD))
    fish = (path("M56 8C59.5 10 61.5 15 61 21 60.6 25.5 58.5 30 57.2 32"
                 "L61 37.5H51L54.8 32C53.5 30 51.4 25.5 51 21"
                 " 50.5 15 52.5 10 56 8Z", TEAL)
            + path("M56 8C58 11 58.5 16 58 21 57.6 26 57 29 56.6 32H54.8"
                   "C53.5 30 51.4 25.5 51 21 50.5 15 52.5 10 56 8Z", "#8fc3c4")
            + line("M51.6 16C54 17.5 58 17.5 60.6 16", INK, .8)
            + circle(54.2, 13, 1, INK)
            + line("M53 22H54.5M56 24H57.5M54 26H55.5", PINE, .8))
    return (body(OCHRE, COAT, shirt) + head(TAWNY, "square")
            + features(TAWNY, -1, CURLS, "raised", "#8a4630") + hair + scarf
            + fish + arm(OCHRE, COAT, SNOW, TAWNY))
