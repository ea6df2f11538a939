"""The glint that passes over the ace of spades."""

from math import pi, sin

from .faces import ace
from .style import num, path

FRAMES = 9

# Each star: its place, its full size, and the frames between which it shows.
STARS = ((39.5, 42, 17, -1, 8), (28, 56, 8, 1, 9), (46, 58, 7, 2.5, 9),
         (35.5, 31, 6, -1, 5.5))
STAR = "M0-1C.07-.2.2-.07 1 0 .2.07.07.2 0 1-.07.2-.2.07-1 0-.2-.07-.07-.2 0-1Z"
HALO = """<defs><radialGradient id="g" cx=".5" cy=".5" r=".5">
<stop offset="0" stop-color="#fff" stop-opacity=".9"/>
<stop offset=".35" stop-color="#ffe9a8" stop-opacity=".5"/>
<stop offset="1" stop-color="#ffdf80" stop-opacity="0"/>
</radialGradient></defs>
"""


def star(x, y, size, strength, turn):
    """Draw one star with its halo."""
    place = f"translate({num(x)} {num(y)})"
    halo = (f'<circle r="{num(size * .75)}" fill="url(#g)"'
            f' opacity="{num(strength)}" transform="{place}"/>')
    rim = path(STAR, "#ffd65c", transform=f"{place} rotate({num(turn)})"
               f" scale({num(size)})", opacity=num(min(1, strength * 1.4)))
    core = path(STAR, "#fff", transform=f"{place} rotate({num(turn)})"
                f" scale({num(size * .72)})", opacity=num(min(1, strength * 1.6)))
    return halo + rim + core


def frame(number):
    """Return one frame of the glint; the last is nearly the plain ace."""
    stars = ""
    for x, y, size, first, last in STARS:
        if first < number < last:
            passed = (number - first) / (last - first)
            strength = sin(pi * passed) ** 1.3
            stars += star(x, y, size * (.25 + .75 * strength), strength,
                          30 * passed - 15)
    return ace("spades").replace("</svg>", HALO + stars + "\n</svg>")
