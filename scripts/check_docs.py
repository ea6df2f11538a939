#!/usr/bin/env python3
"""Does every command in README.md and CONTRIBUTING.md do what it should?

    python3 scripts/check_docs.py

Runs each of them on a display, in a form that leaves the machine as it is, but for those that ./test runs anyway. A
command that nobody runs is a fault, and so is one that is listed here and stands in neither document.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
VERSION = re.search(r"project\(tarnwick VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))[1]
DOCUMENTS = ["README.md", "CONTRIBUTING.md"]
# What a command begins with.
COMMAND = re.compile(r"(TARNWICK_[A-Z]+=\S+ )?"
                     r"(bench/run|scripts/\S+\.sh.*|(\./|cmake |cpack |tarnwick |build/|python3 |apt )\S.*)")

# How each command is run here; SCRATCH is a folder that goes afterwards.
RUN = {
    "./run": "env -u DISPLAY ./run",
    "cmake --preset release && cmake --build --preset release": None,
    "cmake --preset release -DTARNWICK_ADDRESS=cards.example":
        "cmake --preset release -DTARNWICK_ADDRESS=cards.example -B SCRATCH/build",
    "cmake --install build --prefix /usr/local": "DESTDIR=SCRATCH cmake --install build --prefix /usr/local",
    "cpack --config build/CPackConfig.cmake": "cpack --config build/CPackConfig.cmake -B SCRATCH",
    f"apt install ./tarnwick_{VERSION}_amd64.deb": f"apt-get install --simulate SCRATCH/tarnwick_{VERSION}_*.deb",
    "tarnwick --deal N": "build/tarnwick --deal 5 --version",
    "tarnwick --store FILE": "build/tarnwick --store SCRATCH/settings.sqlite --version",
    "tarnwick --record FILE": "build/tarnwick --record SCRATCH/game.txt --version",
    "tarnwick --four-colors": "build/tarnwick --four-colors --version",
    "tarnwick --high-contrast": "build/tarnwick --high-contrast --version",
    "tarnwick --help": "build/tarnwick --help",
    "tarnwick --version": "build/tarnwick --version",
    "build/core_tests --gtest_filter='Undo*'": None,
    "build/desktop_tests --gtest_filter='Drag*'": "build/desktop_tests --gtest_filter='Drag.Escape*'",
    "TARNWICK_KILLS=1000 build/desktop_tests --gtest_filter='KilledAtItsEnd.*'":
        "TARNWICK_KILLS=1 build/desktop_tests --gtest_filter='KilledAtItsEnd.*'",
    "TARNWICK_PROGRAM=build-sanitizers/tarnwick build/desktop_tests --gtest_filter='Menus.*'":
        "TARNWICK_PROGRAM=build/tarnwick build/desktop_tests --gtest_filter='Menus.Help*'",
    "build/tarnwick-console game.txt": "build/tarnwick-console tests/records/random-01.txt",
    "build/tarnwick-console --signature tests/records/random-*.txt": None,
    "python3 scripts/mutate.py --only game/undo.cpp": "python3 scripts/mutate.py --only game/undo.cpp --check",
    "scripts/screenshot.sh settings settings.png --scale 1.5 --font 12 --dark":
        "scripts/screenshot.sh settings SCRATCH/settings.png --scale 1.5 --font 12 --dark",
    "cmake --build build --target contact_sheet && build/contact_sheet -o sheet.png art/backs/*.svg":
        "cmake --build build --target contact_sheet && build/contact_sheet -o SCRATCH/sheet.png art/backs/*.svg",
    "python3 art/generate.py": "python3 art/generate.py SCRATCH/art && "
        "for folder in SCRATCH/art/*; do diff -r $folder art/${folder##*/} || exit 1; done",
}
# What ./test runs by itself, at least with --long.
TESTED = {"./test", "./test --long", "scripts/lint.sh", "scripts/format.sh", "bench/run", "scripts/check_package.sh",
          "scripts/check_reproducible.sh",
          "scripts/fuzz.sh events 60",
          "cmake --preset sanitizers && cmake --build --preset sanitizers",
          "cmake --preset libcxx && cmake --build --preset libcxx", "python3 scripts/check_docs.py"}


def commands_of(text):
    """The commands of a document: indented lines, without what is said of them, and what stands in backticks."""
    indented = [re.split(r" {2,}", line.strip())[0] for line in re.findall(r"^ {4}\S.*$", text, re.MULTILINE)]
    quoted = re.findall(r"`([^`\n]+)`", text)
    words = indented + quoted
    return {word for word in words if COMMAND.fullmatch(word) and not word.startswith("build/screenshot.")}


def main():
    found = set().union(*(commands_of((ROOT / name).read_text(encoding="utf-8")) for name in DOCUMENTS))
    faults = [f"nothing runs: {command}" for command in sorted(found - RUN.keys() - TESTED)]
    faults += [f"in no document: {command}" for command in sorted((RUN.keys() | TESTED) - found)]
    with tempfile.TemporaryDirectory() as scratch:
        for command, way in RUN.items():
            line = (way or command).replace("SCRATCH", scratch)
            run = subprocess.run(["bash", "-c", line], cwd=ROOT, capture_output=True, text=True, errors="replace")
            if run.returncode != 0:
                faults.append(f"fails: {line}\n{run.stdout[-2000:]}{run.stderr[-2000:]}")
    print("\n".join(faults) or f"{len(found)} commands stand in the documents, and all of them work")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
