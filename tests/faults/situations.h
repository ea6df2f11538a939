#pragma once

#include <string>
#include <vector>

#include "state/undo_list.h"
#include "state/variables.h"
#include "tests/play/play.h"

namespace tarnwick {

// Where a situation is made to fail: at the steps of the routines that may be resumed; at every point of
// every routine too; or there while it is taken back as well.
enum class Fails { at_steps, everywhere, also_undone };

inline constexpr int turned_stock = -1;  // in place of a pile: cards are turned

/// A position, and the move that is made in it.
struct Situation {
    const char* name;
    std::string position;
    int from;
    int to = turned_stock;
    Fails fails = Fails::at_steps;
    bool slides = false;
    int sent_up_before = turned_stock;  // the column whose card is sliding already
};

inline std::vector<Situation> situations() {
    using enum Fails;
    constexpr int stock = turned_stock;
    const std::string complete = "ace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'\n";
    return {
        {"a turn", "tablet: (2♣) 3♣ 4♣ 5♣ 6♣ 7♣ 8♣", stock, stock, everywhere},
        {"the last turn of a pass", "tablet: 2♣ (3♣) 4♣", stock, stock, everywhere},
        {"a new pass", "tablet: 2♣ 3♣ 4♣ 5♣ 6♣ (7♣)", stock, stock, everywhere},
        {"a new pass of four", "tablet: 2♣ 3♣ 4♣ 5♣", stock},
        {"no card to turn", "tablet: -", stock},
        {"tablet to column", "0: 7♠\ntablet: 3♣ (6♥) 9♣ 10♣", tablet_pile, 0, also_undone},
        {"tablet to column, refused", "0: 7♠\ntablet: 3♣ (6♠) 9♣", tablet_pile, 0},
        {"the last card of the tablet", "tablet: (K♥)", tablet_pile, 0, everywhere},
        {"tablet to ace pile", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", tablet_pile, ace_pile(0), also_undone},
        {"tablet sent to ace pile", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", tablet_pile, tablet_pile},
        {"ace of the tablet sent up", "tablet: 9♣ (A♥) 9♥", tablet_pile, tablet_pile},
        {"tablet slides", "ace 0: A♠\ntablet: 9♣ (2♠) 9♥", tablet_pile, tablet_pile, at_steps, true},
        {"column to column", "0: 7♠\n4: [2♣] 6♥ 5♠", 4, 0, also_undone},
        {"column to column, refused", "0: 7♠\n4: [2♣] 8♥ 7♣", 4, 0},
        {"a King's run", "4: [2♣] K♥ Q♠", 4, 0},
        {"an exchange", "1: [2♦] K♠ Q♥\n5: J♣ 10♦", 1, 5, everywhere},
        {"ace pile to column", "0: 7♠\nace 0: .. 6♥", ace_pile(0), 0, also_undone},
        {"second card of its rank to column", "0: 7♠\nace 0: .. 6♥ 6♥'", ace_pile(0), 0},
        {"a King off its ace pile", "ace 0: .. K♥", ace_pile(0), 0},
        {"a two off its ace", "0: 3♥\nace 0: A♠ 2♠", ace_pile(0), 0, everywhere},
        {"ace pile to column, refused", "0: 8♠\nace 0: .. 6♥", ace_pile(0), 0},
        {"an ace stays", "0: 2♥\nace 0: A♠", ace_pile(0), 0},
        {"column to ace pile", "4: [2♣] A♥", 4, ace_pile(1), also_undone},
        {"column to ace pile, covering", "4: [2♣] 2♥'\nace 1: A♥ 2♥", 4, ace_pile(1)},
        {"an ace sent up", "4: [2♣] A♥", 4, 4},
        {"refused with a message", "4: 9♥\nace 1: A♥", 4, ace_pile(1), everywhere},
        {"refused for its suit", "4: 2♠\nace 1: A♥", 4, ace_pile(1)},
        {"column slides", "ace 0: A♠\n3: [9♣] 2♠", 3, 3, everywhere, true},
        {"a drop while a card slides", "0: 7♠\nace 0: A♠\n3: [9♣] 2♠\n4: 6♥", 4, 0, at_steps, true, 3},
        {"the fourth ace", "0: A♣\nace 0: A♠\nace 1: A♥\nace 2: A♦", 0, ace_pile(3), everywhere},
        {"the winning card", "2: K♠'\nace 0: .. K♠\n" + complete, 2, ace_pile(0), everywhere},
    };
}

}  // namespace tarnwick
