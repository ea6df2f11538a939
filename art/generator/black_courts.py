"""Jack, queen and king of spades and of clubs."""

from .figure import (FAIR, RIM, RUDDY, TAWNY, arm, beard, body, features, head,
                     moustache)
from .style import (BROWN, GOLD, INK, OAK, OCHRE, PINE, RED, SLATE, SNOW, STEEL,
                    TEAL, WINE, circle, line, path)

NIGHT = "#26334d"
RAVEN = "#1d1f26"
DUSK = "#6f87ad"
ROYAL = "#4468a2"


def king_of_spades():
    """A stern mountain king with a crown of peaks and a sword."""
    collar = (path("M21 33C26 30 29 30 31 29L36 38 41 29C44 30 49 31 52 34"
                   "L48 39 44 38 45 43 40 41 36 46 32 41 27 42 28 38 23 38Z",
                   "#d5dee7")
              + line("M26 34 27 36M30 33 30.5 36M33 36 33.5 39M46 34 45 36"
                     "M42 33 41.5 36M39 36 38.5 39", SLATE, .9))
    crown = (path("M27 17 26.5 11 30 7 32.5 11 36 5 39.5 11 42 7 45.5 11"
                  " 45 17Z", SLATE)
             + path("M30 7 32 10 30 9.2 28 9.5ZM36 5 38.4 9 36.9 8.4"
                    " 35.6 9.6 33.6 9ZM42 7 44 9.5 42 9.2 40 10Z",
                    "#9db0c4")
             + path("M27 14.5H45V18H27Z", GOLD)
             + path("M36 14.2 37.8 16.2 36 18.2 34.2 16.2Z", INK))
    sword = (path("M54 38V12L56 6 58 12V38Z", "#b9c6d2")
             + path("M56 6 58 12V38H56Z", "#7488a0")
             + path("M49.5 35H62.5V37.5H49.5Z", GOLD)
             + path("M55 43H57V49H55Z", BROWN) + circle(56, 49, 1.8, GOLD))
    hair = path("M27.5 17H44.5C46.5 21 46.5 27 45.5 31L43 24V18H29V24L26.5 31"
                "C25.5 27 25.5 21 27.5 17Z", RAVEN)
    return (body(ROYAL, NIGHT, collar) + head(TAWNY, "square") + hair
            + beard(RAVEN, 38, 2.6)
            + features(TAWNY, 0, RAVEN, "stern", None) + moustache("#3b3c46", "#b4604a")
            + crown + sword + arm(ROYAL, NIGHT, STEEL, TAWNY))


def queen_of_spades():
    """A queen of the night with the moon in her hair, and her owl."""
    collar = (path("M22 36 25 24 32 31 36 39 40 31 47 24 50 36 44 40 36 46 28 40Z",
                   SLATE)
              + path("M31 31 36 39 41 31 42 42 36 46 30 42Z", STEEL)
              + circle(36, 42, 1.2, INK))
    back = path("M26 20C24 5 48 5 46 20 47 26 48.5 30 48 36H24"
                "C23.5 30 25 26 26 20Z", RAVEN)
    hair = (path("M28 25C22 7 50 7 44 25 44 20.5 41 19 36 16.5"
                 " 31 19 28 20.5 28 25Z", RAVEN)
            + "".join(circle(x, y, .8, SNOW) for x, y in (
                (26.5, 26), (45.5, 26), (25.8, 31.5), (46.2, 31.5))))
    moon = (path("M36.7 8.2A4.6 4.6 0 1 0 39.8 14.8 3.7 3.7 0 1 1 36.7 8.2Z", GOLD)
            + circle(37.8, 11.6, 1, SNOW))
    owl = (path("M50.5 19 50 13.5 53.5 15H58.5L62 13.5 61.5 19"
                "C63 24 62.5 31 59 35H53C49.5 31 49 24 50.5 19Z", BROWN)
           + path("M53 27C55 25.5 57 25.5 59 27 59 31 57.5 33.5 56 34.5"
                  " 54.5 33.5 53 31 53 27Z", "#e9cfa0")
           + circle(53.5, 19.5, 2.5, SNOW) + circle(58.5, 19.5, 2.5, SNOW)
           + circle(53.8, 19.5, 1.2, INK) + circle(58.2, 19.5, 1.2, INK)
           + path("M55.2 21H56.8L56 23.6Z", GOLD)
           + line("M54.5 35V38M57.5 35V38", GOLD, 1.4)
           + line("M55 28.5H57M55 30.5H57", BROWN, .8))
    return (back + body(INK, NIGHT, collar) + head(FAIR, "fine")
            + features(FAIR, 1, RAVEN, "gentle", RED)
            + hair + moon + arm(INK, NIGHT, GOLD, FAIR) + owl)


def jack_of_spades():
    """A hooded climber with rope and axe."""
    jacket = (path("M29 31 36 38 43 31 45 49.5 26 44.5Z", STEEL)
              + line("M36 38V47", SLATE, 1.2)
              + line("M21 33.5C28 37 36 42 44 50M24 32.5C31 36 39 41 47.5 50.5",
                     "#e9cfa0", 1.8)
              + line("M21 33.5C28 37 36 42 44 50M24 32.5C31 36 39 41 47.5 50.5",
                     BROWN, .6, stroke_dasharray="1 2"))
    hood = (path("M36 7C45 8 49 15 48.5 22 48.3 27 46 32 42 35.5L36 38"
                 " 30 35.5C26 32 23.7 27 23.5 22 23 15 27 8 36 7Z", DUSK)
            + path("M36 12C42 12 45 17 44.6 22 44.4 27 42 31 36 34.5"
                   " 30 31 27.6 27 27.4 22 27 17 30 12 36 12Z", NIGHT))
    axe = (path("M54.5 12H57.5V51H54.5Z", GOLD, stroke=INK)
           + line("M54.5 27.5H57.5M54.5 30H57.5M54.5 32.5H57.5", INK)
           + path("M54 8.6C57.5 8.6 59.5 9.4 61 8.2L63.4 15C61 13.6 59.4 13.4"
                  " 57.8 13.6H54.4C51.6 14.6 50 17.4 48.2 23.2"
                  " 47.2 16.4 48.6 9.4 54 8.6Z", SNOW, stroke=INK,
                  stroke_linejoin="round")
           + path("M48.6 20C48.6 15 51 11.6 56 11.4 58.6 11.4 60 12.2 62 12.4"
                  "L62.6 14C60.6 13 59.4 13 57.8 13.1H54.2C51.4 14.2 50 16.6"
                  " 48.6 20Z", STEEL)
           + circle(56, 11, 1, INK))
    fringe = path("M28.8 20C29 15 32 13 36 13S43 15 43.2 20C40 19 38 17.5 37 15.5"
                  " 35.5 18 32.5 19.5 28.8 20Z", RAVEN)
    return (body(DUSK, SLATE, jacket) + hood + head(TAWNY)
            + features(TAWNY, -1, RAVEN, "calm", WINE) + fringe
            + line("M36 8C45 9 48 15 47.5 22M36 8C27 9 24 15 24.5 22", SLATE, 1)
            + axe + arm(DUSK, SLATE, STEEL, TAWNY))


def king_of_clubs():
    """A woodland king crowned with oak leaves and acorns."""
    robe = (path("M20 33.5 31 30 36 38 41 30 52 34 50 51 22 44Z", PINE)
            + path("M31 30 36 38 41 30 42 48.5 30 45.3Z", "#e9cfa0")
            + line("M30.5 33 29.5 45M41.5 33 42.5 48.5", GOLD, 1.6))
    crown = "".join(path(OAK, colour, transform=f"translate({x} {y}) rotate({turn})")
                    for x, y, turn, colour in (
                        (30, 16.8, -34, PINE), (42, 16.8, 34, PINE),
                        (36, 15.5, 0, PINE), (32, 16.5, -20, TEAL),
                        (40, 16.5, 20, TEAL)))
    crown += path("M27 15.5C33 13.5 39 13.5 45 15.5V18C39 16 33 16 27 18Z", GOLD)
    crown += circle(36, 15.6, 1.6, RED)
    staff = path("M55 26H57V51H55Z", BROWN)
    for turn, colour in ((-50, "#3f8f5c"), (50, "#62ad6b")):
        place = f"translate(56 37.2) rotate({turn})"
        staff += path(OAK, colour, transform=place)
        staff += line("M0 0V-7M0-2.2 1.6-4M0-2.2-1.6-4", PINE, .6,
                      transform=place)
    staff += (path("M50.5 15H61.5C62 21 60 24.5 57 25.8L56 28.4 55 25.8"
                   "C52 24.5 50 21 50.5 15Z", GOLD, stroke=BROWN)
              + path("M52.4 17C52.4 20.5 53.4 22.5 54.8 23.6 54 21 53.8 19"
                     " 53.9 17Z", "#fbe3a4")
              + path("M48.8 16.5C48.4 11 52 8.8 56 8.8S63.6 11 63.2 16.5"
                     "C59 17.8 53 17.8 48.8 16.5Z", BROWN)
              + line("M56.3 9.5C56.2 8 56.6 7.2 57.6 6.4", BROWN, 1.8)
              + line("M50 13.2 53.8 16.8M51.6 10.6 57.8 16.8M55.2 9.6 61.8 16"
                     "M62 13.2 58.2 16.8M60.4 10.6 54.2 16.8M56.8 9.6 50.2 16",
                     "#dba35c", .7))
    hair = path("M27 16H45C47.5 20 48 27 46 32L43 23V18H29V23L26 32"
                "C24 27 24.5 20 27 16Z", BROWN)
    return (body(TEAL, PINE, robe) + head(RUDDY) + hair + beard(BROWN, 41, -1)
            + features(RUDDY, 0, BROWN, mouth=None)
            + line("M32 31C31.5 34 32 37 33.5 39M36 31V40M40 31C40.5 34 40 37 38.5 39",
                   "#53301a", .9) + moustache("#8f5a34", WINE)
            + crown + staff + arm(TEAL, PINE, "#e9cfa0", RUDDY))


def queen_of_clubs():
    """A harvest queen with a garland and a sheaf of wheat."""
    back = path("M26.5 18C25.5 8 46.5 8 45.5 18 48 24 46 28 49 33 49.5 37 47 40"
                " 45 41H27C25 40 22.5 37 23 33 26 28 24 24 26.5 18Z", BROWN)
    gown = (path("M28 33 36 38 44 33 47 50 25 44.5Z", SNOW)
            + path("M28 35.5 34 40V46.5L26.5 44.5ZM44 35.5 38 40V47.5L46.2 49.7Z", PINE)
            + line("M34 40.5 38 42.5M38 40.5 34 42.5M34 44 38 46M38 44 34 46", RED, .9))
    locks = path("M27 19C25 26 27 31 25.5 37 29.5 35 30.5 29 29.5 24ZM45 19"
                 "C47 26 45 31 46.5 37 42.5 35 41.5 29 42.5 24ZM28.5 20"
                 "C29 14 34 14 36 13 38 14 43 14 43.5 20 41 18.5 38 17 36 14.5"
                 " 34 17 31 18.5 28.5 20Z", BROWN)
    garland = line("M28 15C32 10 40 10 44 15", PINE, 5.4, stroke_linecap="round")
    for x, y in ((28, 14.5), (32, 11.8), (36, 10.8), (40, 11.8), (44, 14.5)):
        garland += circle(x, y, 2.1, SNOW) + circle(x, y, .9, GOLD)
    wheat = line("M56 50V20M56 40 51.5 22M56 40 60.5 22", RIM, 1)
    for x, y, turn in ((56, 20, 0), (51.3, 22, -14), (60.7, 22, 14)):
        wheat += path("M0-11C1.4-9.5 1.2-8 0-7-1.2-8-1.4-9.5 0-11ZM0-2"
                      "C.2-4 1-5 2.8-5.4 3-3.4 2-2.2 0-2ZM0-2C-.2-4-1-5-2.8-5.4"
                      "-3-3.4-2-2.2 0-2ZM0 1.6C.2-.4 1-1.4 2.8-1.8 3 .2 2 1.4 0 1.6Z"
                      "M0 1.6C-.2-.4-1-1.4-2.8-1.8-3 .2-2 1.4 0 1.6ZM0-5.4"
                      "C.2-7.4 1-8.4 2.6-8.8 2.8-6.8 2-5.6 0-5.4ZM0-5.4"
                      "C-.2-7.4-1-8.4-2.6-8.8-2.8-6.8-2-5.6 0-5.4Z", GOLD,
                      stroke=RIM, stroke_width=.6,
                      transform=f"translate({x} {y}) rotate({turn})")
    wheat += path("M53.5 32H58.5V35H53.5Z", RED)
    return (back + body(TEAL, PINE, gown) + head(RUDDY, "fine")
            + features(RUDDY, 0, BROWN, "gentle") + locks + garland
            + wheat + arm(TEAL, PINE, SNOW, RUDDY))


def jack_of_clubs():
    """A shepherd in a straw hat with his crook."""
    smock = (path("M29 31 36 37 43 31 46 50 25 44.3Z", "#e9cfa0")
             + line("M30.5 37V46M41.5 37V49", BROWN, .8)
             + path("M28.5 31.5 36 37 43.5 31.5 44 35 37 39 38.5 43 36 41.5"
                    " 33.5 43 35 39 28 35Z", RED))
    hair = path("M28 17H44C45.5 20 45.8 24 45 26.5L42.8 25V19L29.2 19V25"
                "L27 26.5C26.2 24 26.5 20 28 17Z", "#8f5a34")
    hat = (path("M29 16C28 8 31 5.5 36 5.5S44 8 43 16Z", GOLD, stroke=RIM,
                stroke_width=.7)
           + path("M23 17.5C28 13.5 44 13.5 49 17.5 44 20 28 20 23 17.5Z", GOLD,
                  stroke=RIM, stroke_width=.7)
           + path("M23.4 17.5C28 20 44 20 48.6 17.5 44 18.6 28 18.6 23.4 17.5Z", OCHRE)
           + path("M28.9 11.5C33 13 39 13 43.1 11.5V15.3C39 16.8 33 16.8 28.9 15.3Z",
                  PINE))
    crook = (line("M56 51V17C56 12.5 57 9 60 9 62.5 9 63.5 11 63.2 13.5"
                  " 63 15.5 61 16 60 14.8", BROWN, 2.2, stroke_linecap="round"))
    freckles = "".join(circle(x, y, .5, RUDDY[1]) for x, y in (
        (31, 25), (32.4, 25.8), (40.6, 25.8), (42, 25), (33.4, 24.8), (39.2, 24.8)))
    return (body(TEAL, PINE, smock) + head(RUDDY) + freckles + hair
            + features(RUDDY, 1, "#8f5a34", "raised") + hat
            + crook + arm(TEAL, PINE, "#e9cfa0", RUDDY))
