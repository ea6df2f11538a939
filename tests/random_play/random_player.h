#pragma once

#include <map>
#include <random>
#include <string>

#include "notation/position.h"
#include "tests/support/play.h"

namespace tarnwick {

/// Plays with random events through mouse, keys, menus and clock, and checks the game after each of them.
class RandomPlayer {
  public:
    /// How often each kind of move has happened, by its name.
    using Counts = std::map<std::string, long>;

    RandomPlayer(std::uint32_t seed, Counts& counts);

    /// One event. The result says what was wrong after it; empty when all was well.
    std::string step();

  private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    void count(const char* kind) { ++counts_[kind]; }

    void act();
    void make_legal_move();
    void try_any_move();
    void drag_anywhere();
    void click_any_top_card();
    void peek();
    void undo();
    void undo_everything();
    void change_window();
    void change_settings();
    void begin_position();
    void game_begins();
    void finish_dialogs();

    void count_records(int records_before);
    void check_undo(int records_before, const std::string& before);
    void check();
    void expect(bool condition, const std::string& fault);

    Counts& counts_;
    std::mt19937 random_;
    Play play_;
    std::string faults_;
    std::string deal_;
    /// Where undoing everything leads to.
    std::string beginning_;
    bool overflowed_ = false;
    /// Every third player keeps to one deal and seldom looks back: the undo list fills up.
    bool patient_;
    /// Whether the running event was a move that can be taken back to where it began.
    bool undoable_ = false;
    /// Whether the running event may end a slide that wins the game.
    bool won_by_slide_ = false;
};

}  // namespace tarnwick
