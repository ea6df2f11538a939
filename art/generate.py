#!/usr/bin/env python3
"""Generate the card pictures.

Writes faces/, backs/ and twinkle/ beside this script, or below the folder
given as the only argument. The output is kept under version control, so this
needs to run only after a change to the drawings; the same sources always give
the same files.
"""

import os
import sys
import tempfile
from pathlib import Path

from generator.backs import BACKS, back
from generator.courts import court
from generator.faces import ace, number_card
from generator.style import RANKS, SUITS
from generator.twinkle import FRAMES, frame


def pictures():
    """Yield the relative file name and the text of every picture."""
    for suit in SUITS:
        for rank in RANKS:
            if rank == "ace":
                text = ace(suit)
            elif rank in ("jack", "queen", "king"):
                text = court(suit, rank)
            else:
                text = number_card(suit, rank)
            yield f"faces/{suit}-{rank}.svg", text
    for name in BACKS:
        yield f"backs/{name}.svg", back(name)
    for number in range(FRAMES):
        yield f"twinkle/frame-{number}.svg", frame(number)


def write(path, text):
    """Replace the file in one step; leave it alone when nothing changed."""
    if path.exists() and path.read_text(encoding="utf-8") == text:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    handle, draft = tempfile.mkstemp(dir=path.parent, suffix=".tmp")
    with os.fdopen(handle, "w", encoding="utf-8", newline="\n") as file:
        file.write(text)
    os.chmod(draft, 0o644)
    os.replace(draft, path)


def main():
    """Write all pictures."""
    root = Path(sys.argv[1] if len(sys.argv) > 1 else __file__).resolve()
    if len(sys.argv) <= 1:
        root = root.parent
    for name, text in list(pictures()):
        write(root / name, text)


if __name__ == "__main__":
    main()
