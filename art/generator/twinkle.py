"""The glint that passes over the ace of spades."""

from math import pi, sin

from .faces import ace
from .style import group, num

FRAMES = 9

# Each star: its place, its full size, and the frames between which it shows;
# before the first and behind the last frame the plain ace is seen. All stay
# inside the great spade.
STARS = ((35.5, 44.5, 14, -1, 9), (28, 56, 7, 1, 9), (45.5, 57, 6, 2.5, 9),
         (35.5, 32.5, 4.5, -1, 6))
DEFS = """<defs><radialGradient id="g" cx=".5" cy=".5" r=".5">\
<stop offset="0" stop-color="#fff" stop-opacity=".9"/>\
<stop offset=".35" stop-color="#ffe9a8" stop-opacity=".5"/>\
<stop offset="1" stop-color="#ffdf80" stop-opacity="0"/></radialGradient>\
<path id="s" d="M0-1C.07-.2.2-.07 1 0 .2.07.07.2 0 1-.07.2-.2.07-1 0-.2-.07-.07-.2 0-1Z"/>\
</defs>
"""


def star(x, y, size, strength, turn):
    """Draw one star with its halo."""
    return group(
        f'<circle r=".75" fill="url(#g)" opacity="{num(strength)}"/>'
        '<use xlink:href="#s" fill="#ffd65c"'
        f' opacity="{num(min(1, strength * 1.4))}"/>'
        '<use xlink:href="#s" fill="#fff" transform="scale(.72)"'
        f' opacity="{num(min(1, strength * 1.6))}"/>',
        f"translate({num(x)} {num(y)}) rotate({num(turn)}) scale({num(size)})")


def frame(number):
    """Return one frame of the glint, which comes from nothing and goes again."""
    stars = ""
    for x, y, size, first, last in STARS:
        if first < number < last:
            passed = (number - first) / (last - first)
            strength = sin(pi * passed) ** 2
            stars += star(x, y, size * (.2 + .8 * strength), strength,
                          30 * passed - 15)
    return ace("spades").replace("</svg>", DEFS + stars + "\n</svg>")
