#!/usr/bin/env python3
"""Do the tests notice when the game is wrong? Changes the program in one place at a time and runs the tests.

    python3 scripts/mutate.py [--only FILE] [--check] [FOLDER]

--only changes one file, as game/undo.cpp; --check only says whether all the places to change are still there. Works on
a copy of the tree in FOLDER (build/mutate unless named), builds it again after each change, and prints which changes the
tests caught. Ends with 1 when one survived.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What is not needed to build the core and its tests.
LEFT_OUT = {".git", "build", "build-debug", "build-sanitizers", "desktop", "art", "help", "docs", "packaging"}
# The store is not what is changed, and its tests take long.
TESTS = ["./core_tests", "--gtest_brief=1", "--gtest_fail_fast", "--gtest_filter=-Killed.*:Damage.*:StoreTest.*"]
EVENTS = "40000"
SECONDS = 60

# By file: the text, which stands there once, what takes its place, and what that means.
MUTATIONS = {
    "board/display.cpp": [
        ("79 * c + 4;", "79 * c + 5;", "columns lie further right"),
        ("column_top_edge = 120", "column_top_edge = 121", "columns begin lower"),
        ("slot_offset = 20", "slot_offset = 21", "cards of a column lie further apart"),
        ("115 * card_scale", "114 * card_scale", "drop zones of columns begin higher"),
        ("470 * card_scale", "460 * card_scale", "drop zones of columns are shorter"),
        ("158 * p + 216", "158 * p + 217", "drop zones of ace piles lie further right"),
        ("if (picture == ace_of_spades_image) begin_twinkle();", "", "an ace of Spades comes without a glint"),
        ("aces(p, picture_field) == plain_ace_image", "false", "an ace of Spades that is alone again stays plain"),
        ("aces(p, beneath_picture_field) == ace_of_spades_image", "false", "an ace of Spades beneath is not plain"),
        ("aces(p, last_used_field) >= third_picture_field && ", "", "a pile of two hides the third card it once had"),
        ("        frmcards.Image1(aces(p, third_picture_field)).hide();", "", "the third card of a pile stays seen"),
        ("    frmcards.Image1(first_ace_zone + p).hide();", "", "the zone of an ace pile stays above its ace"),
        ("        frmcards.Image1(plain_ace_image).hide();", "", "a plain ace stays seen"),
        ("turned_slot() == last_tablet_slot() ? Picture{} : ", "", "the stock shows a back when all is turned"),
    ],
    "board/display.h": [
        ("158 * p + 241", "158 * p + 240", "ace piles lie further left"),
        ("158 * p + 220", "158 * p + 221", "cards beneath on ace piles lie further right"),
        ("turned_card_left = 83", "turned_card_left = 84", "the turned card lies further right"),
    ],
    "board/scaling.cpp": [
        ("frmcards.width() < design_width", "frmcards.width() <= design_width", "cards are scaled at 800 as well"),
        ("i = stock_image; i <= 4;", "i = stock_image; i <= 3;", "the last ace zone is not stretched"),
        ("4 * x_scale", "5 * x_scale", "the stock lies further right"),
        ("- 70;", "- 60;", "the score stands lower"),
    ],
    "board/peek.cpp": [
        ("    if (another_shows) cover(peeked());", "", "two cards are peeked at"),
        ("peek_time = 1500", "peek_time = 1600", "a peek lasts longer"),
    ],
    "board/slide.cpp": [
        ("== no_card ?", "!= no_card ?", "a slide lands as the wrong kind of pile"),
        ("175 * x_scale", "170 * x_scale", "slides take more steps"),
        ("+ 3 +", "+ 2 +", "slides from columns take a step less"),
        ("2 * p + 3", "2 * p + 4", "slides from the tablet take a step more"),
        ("return slide_is_under_way() && image", "return image", "a card that has slid is in flight for ever"),
        ("void reset_slide() { animation(wins_game) = 0; }", "void reset_slide() {}", "a win is carried into the next game"),
    ],
    "board/turn_up.cpp": [("    add_to_score(1);", "    add_to_score(0);", "a card that is turned up earns nothing")],
    "board/twinkle.cpp": [
        ("set_interval(frame_time)", "set_interval(60)", "the glint plays slower"),
        ("frmcards.Timer1.set_interval(idle_time);\n}", "frmcards.Timer1.set_interval(900);\n}", "the idle clock is faster"),
        ("frmcards.Timer1.set_interval(idle_time);\n    ace", "ace", "a glint that is ended leaves its fast clock"),
        ("odds = 45", "odds = 1000", "it hardly twinkles"),
        ("shown_tablet_image() != ace_of_spades_image", "true", "the turned ace twinkles"),
        ("ace_of_spades().top() == static_cast<float>(top_row)", "true", "an ace in a column twinkles"),
    ],
    "game/help_messages.cpp": [
        ("top_rank + 1, pile_suit)", "top_rank, pile_suit)", "the message asks for the rank that lies there"),
        ("top_rank == king && beneath_rank == king", "false", "a complete pile asks for another card"),
        ("!suppress_help && ", "", "automatic moves explain themselves"),
    ],
    "game/ace_moves.cpp": [
        ("legal = card_rank == ace;", "legal = card_rank <= two;", "a two opens an ace pile"),
        ("legal = card_suit == pile_suit && comes", "legal = comes", "an ace pile takes any suit"),
        ("rank == top + 1", "rank >= top + 1", "an ace pile takes a card too high"),
        ("top == ace && rank == two", "top == ace && rank <= two + 1", "a three lies on an ace"),
        ("animate && animation_is_on", "animation_is_on", "a drop slides"),
        ("add_undo(tablet_pile, target, 1)", "add_undo(tablet_pile, target, 0)", "another third number is recorded"),
        ("        add_to_score(1);", "        add_to_score(2);", "an ace pile earns two"),
        ("let_slide_win();", "end_game();", "a game that a slide wins ends before it"),
        ("aces(p, rank_field) == ace && ", "", "the bonus is paid for every card"),
        ("empty_ace_piles() == 0", "empty_ace_piles() == 1", "the bonus is paid for the third ace"),
    ],
    "board/score.h": [("fourth_ace_bonus = 10", "fourth_ace_bonus = 11", "the bonus is eleven")],
    "game/column_moves.cpp": [
        ("card.rank == king", "card.rank >= queen", "a Queen goes on an empty column"),
        (" == king && layout(source, i, face_down_field) == 0;", " == king;", "a face-down King moves"),
        ("layout(c, 0, face_down_field) == 0 && ", "", "an exchange with a column that has face-down cards"),
        ("column_card(c, 0), top_card(source)", "column_card(c, 0), column_card(source, i)", "an exchange is told by the King"),
        ("move.last - move.first)", "move.last - move.first + 1)", "a run is recorded longer"),
        ("source, target_top)", "source, target_top + 1)", "the first half of an exchange is recorded longer"),
        ("c, column_top(c))", "c, column_top(c) + 1)", "the second half of an exchange is recorded longer"),
        ("add_to_score(-1)", "add_to_score(-2)", "a card off an ace pile costs two"),
    ],
    "game/deal.cpp": [
        ("shuffle_passes = 3", "shuffle_passes = 2", "the cards are shuffled twice"),
        ("    undo_count() = 0;", "", "the undo list is carried into the next game"),
        ("    frmcards.mouse().cancel();", "", "a drag is carried into the next game"),
        ("    stop_effects();\n    reset", "    reset", "a slide is carried into a restarted game"),
        ("    resume_after_error = flag_false;", "", "an answer to an error is carried into the next game"),
    ],
    "game/drops.cpp": [
        ("tablet_source_limit = 200", "tablet_source_limit = 80", "the turned card counts as an ace pile"),
        ("tablet_source_limit = 200", "tablet_source_limit = 225", "the card beneath on an ace pile is the tablet"),
        ("tablet_target_limit = 150", "tablet_target_limit = 80", "a click on the turned card is a drop elsewhere"),
        ("tablet_target_limit = 150", "tablet_target_limit = 225", "the card beneath on an ace pile takes no card"),
        ("left_neighbour_limit = 20", "left_neighbour_limit = 21", "the left neighbour is tried from further in"),
        ("right_neighbour_limit = 41", "right_neighbour_limit = 40", "the right neighbour is tried from further in"),
        ("c > 0)", "c > 1)", "column 0 is no neighbour"),
        ("c < last_column)", "c < 8)", "column 9 is no neighbour"),
        ("78 * x_scale", "74 * x_scale", "columns are told by another width"),
        ("if (ace_pile_is_empty(k)) return k;", "if (ace_pile_is_empty(3 - k)) return 3 - k;", "an ace goes to the last pile"),
        ("[] { suppress_help = flag_true; }),\n        when(home, [&] { p = pile_for_ace(turned", "[] {}),\n        when(home, [&] { p = pile_for_ace(turned", "automatic moves explain themselves"),
        (">= two", ">= ace", "an ace comes back from its pile"),
        ("if (pile == from && is_sent_up(from)) return none;", "", "a card that goes up marks its neighbour"),
        ("card_of(from).rank < two", "card_of(from).rank < ace", "an ace that lies on its pile marks a column"),
        ("!is_ace_pile(from) && ace_pile_takes", "ace_pile_takes", "a card from an ace pile marks another one"),
    ],
    "game/statistics.cpp": [
        (" <= points", " < points", "an equal score enters the table below"),
        ("complete && found->place == 1", "complete", "a win below the first place counts"),
        ("if (!found->decided) ", "", "a win that was shown is counted by what the table holds later"),
        ("    add_to_setting(key_average_score, points);", "", "the total stays"),
        ("if (*place == none) tell_beaten(points);", "", "a score that is beaten meanwhile goes without a word"),
    ],
    "game/end_game.cpp": [
        ("if (score != 0) ", "", "a game without a point is counted"),
        ("if (phase == Phase::playing) {", "{", "a game is counted again behind its dialogs"),
        ("    if (slide_cut_short) land_slide();\n", "", "a card hangs in the air behind the win dialog"),
        ("    if (!slide_wins() || !all_ace_piles_complete()) return false;", "    return false;", "a slide cut short loses the win"),
        ("if (frmcards.enabled()) new_game", "new_game", "the next game is dealt behind the win dialog"),
    ],
    "board/display.h": [
        ("cards_per_turn = 5", "cards_per_turn = 4", "four cards are turned"),
    ],
    "game/tablet.cpp": [
        ("face_down > cards_per_turn", "face_down >= cards_per_turn", "five left: the stock stays"),
        ("last_tablet_slot() < cards_per_turn ?", "last_tablet_slot() <= cards_per_turn ?", "a pass of six"),
        ("last_tablet_slot() < cards_per_turn &&", "last_tablet_slot() <= cards_per_turn &&", "six are turned for good"),
        ("    turn_to(cards_per_turn - 1);\n    show_stock();", "    turn_to(cards_per_turn - 1);", "a new pass shows no stock"),
        ("add_undo(turn_record, turn_record, turned_slot())", "add_undo(turn_record, 0, turned_slot())", "another record"),
    ],
    "game/undo.cpp": [
        ("if (slide_is_under_way()) land_slide();", "", "a slide goes on when it is undone"),
        ("undo_count() < 1", "undo_count() < 2", "the last record cannot be taken back"),
        ("undo_count() < 2 || ", "", "an old turned-up record counts"),
        ("empty_ace_piles() == 1", "empty_ace_piles() >= 1", "the bonus is taken back again"),
        ("    add_to_score(1);", "    add_to_score(0);", "a card back on an ace pile earns nothing"),
        ("if (undo_count() == 1) return;", "", "the first turn is taken back"),
        ("last_tablet_slot() > 4", "last_tablet_slot() > 5", "a stock of six does not come back"),
        ("last_tablet_slot() > 4", "last_tablet_slot() > 3", "a stock of five comes back"),
        ("add_to_score(-2)", "add_to_score(-1)", "undo from tablet to ace pile costs one"),
    ],
    "state/piles.cpp": [
        ("aces(p, rank_field) != aces(p, beneath_rank_field)", "true", "the rank beneath never falls"),
        ("k <= aces(p, last_used_field); ++k", "k < aces(p, last_used_field); ++k", "the lowest card does not move up"),
        ("    aces(p, suit_field) = none;", "", "an emptied pile keeps its suit"),
    ],
    "state/undo_list.cpp": [
        ("(turned_up ? 2 : 1)", "1", "a full list keeps half a move"),
        ("undo_count() == most_undo_records) drop", "undo_count() == 298) drop", "the list is full too early"),
    ],
    "ui/mouse_and_keys.cpp": [
        (" && !tablet_is_turned_for_good()", "", "the space bar turns what is turned for good"),
    ],
}


def copy_tree(tree):
    """Brings the copy up to date; files that have not changed keep their time, so that little is built again."""
    for folder, folders, files in os.walk(ROOT):
        folders[:] = [name for name in folders if name not in LEFT_OUT and not name.startswith("build")]
        target = tree / pathlib.Path(folder).relative_to(ROOT)
        target.mkdir(parents=True, exist_ok=True)
        wanted = set(folders) | set(files)
        for old in target.iterdir():
            if old.name not in wanted:
                shutil.rmtree(old) if old.is_dir() else old.unlink()
        for name in files:
            source, copy = pathlib.Path(folder) / name, target / name
            if not copy.exists() or source.read_bytes() != copy.read_bytes():
                shutil.copy(source, copy)


def build(folder):
    return subprocess.run(
        ["cmake", "--build", folder, "-j2", "--target", "core_tests"], capture_output=True, text=True
    )


def run_tests(folder):
    """The name of the first test that fails, or None."""
    environment = dict(os.environ, TARNWICK_EVENTS=EVENTS, TARNWICK_LONG="0")
    try:
        run = subprocess.run(
            TESTS, cwd=folder, env=environment, capture_output=True, text=True, errors="replace", timeout=SECONDS
        )
    except subprocess.TimeoutExpired:
        return "runs for ever"
    if run.returncode == 0:
        return None
    failed = [line.split()[3] for line in run.stdout.splitlines() if line.startswith("[  FAILED  ] ")][:1]
    return failed[0].rstrip(",") if failed else "breaks off"


def check_table():
    faults = []
    for file, rows in MUTATIONS.items():
        text = (ROOT / file).read_text(encoding="utf-8")
        faults += [f"{file}: found {text.count(old)} times: {old}" for old, _, _ in rows if text.count(old) != 1]
    if faults:
        sys.exit("\n".join(faults))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", nargs="?", default=ROOT / "build" / "mutate", type=pathlib.Path)
    parser.add_argument("--only", choices=sorted(MUTATIONS), help="the file to change")
    parser.add_argument("--check", action="store_true", help="look for the places only")
    arguments = parser.parse_args()
    folder = arguments.folder.resolve()
    check_table()
    if arguments.check:
        return 0

    tree, binaries = folder / "tree", folder / "build"
    copy_tree(tree)
    subprocess.run(
        ["cmake", "-G", "Ninja", "-S", tree, "-B", binaries, "-DCMAKE_BUILD_TYPE=", "-DTARNWICK_DESKTOP=OFF"],
        check=True,
        stdout=subprocess.DEVNULL,
    )
    first = build(binaries)
    if first.returncode != 0:
        sys.exit(first.stdout)
    failed = run_tests(binaries)
    if failed:
        sys.exit(f"nothing is changed yet, and {failed} fails")

    survivors = 0
    mutations = [(file, *row) for file, rows in MUTATIONS.items() for row in rows]
    mutations = [row for row in mutations if arguments.only in (None, row[0])]
    for file, old, new, note in mutations:
        original = (tree / file).read_text(encoding="utf-8")
        (tree / file).write_text(original.replace(old, new), encoding="utf-8")
        try:
            built = build(binaries)
            if built.returncode != 0:
                sys.exit(f"{file}: \"{note}\" does not build\n{built.stdout}")
            failed = run_tests(binaries)
        finally:
            (tree / file).write_text(original, encoding="utf-8")
        survivors += failed is None
        print(f"{'caught  ' if failed else 'SURVIVED'}  {file}: {note}{f' ({failed})' if failed else ''}", flush=True)
    print(f"{len(mutations) - survivors} of {len(mutations)} caught, {survivors} survived")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
