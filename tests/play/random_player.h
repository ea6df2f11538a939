#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <string>

#include "board/peek.h"
#include "board/slide.h"
#include "game/drops.h"
#include "notation/position.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/rules.h"
#include "tests/play/soundness.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {

/// A position without which card of the tablet is turned: that does not come back when the only record left
/// is its turn.
inline std::string without_turned_card(std::string text) {
    std::erase_if(text, [](char c) { return c == '(' || c == ')'; });
    return text;
}

inline const char* kind_of_record(int a, int b) {
    if (a == turn_record) return "turn";
    if (a == tablet_pile) return b >= first_ace_pile ? "tablet to ace pile" : "tablet to column";
    if (a >= first_ace_pile) return "ace pile to column";
    return b >= first_ace_pile ? "column to ace pile" : "column to column";
}

inline bool slides() { return slide_is_under_way(); }

/// How often each kind of move has happened, by its name.
using Counts = std::map<std::string, long>;

/// Plays with random events through mouse, keys, menus and clock, and checks the game after each of them.
class RandomPlayer {
  public:
    RandomPlayer(std::uint32_t seed, Counts& counts)
        : counts_(counts), random_(seed), patient_(seed % 3 == 0) {
        play_.start(seed);
        game_begins();
    }

    /// One event. The result says what was wrong after it; empty when all was well.
    std::string step() {
        const int records = undo_count();
        const bool compare_undo =
            !patient_ && records > 0 && records < most_undo_records - 3 && below(6) == 0;
        const std::string before = compare_undo ? position_text() : "";
        undoable_ = false;
        won_by_slide_ = slide_wins();
        act();
        if (undoable_) count_records(records);
        if (undoable_ && compare_undo && !frmyouwin.visible()) check_undo(records, before);
        check();
        return faults_;
    }

  private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    // The tablet as often as any two others.
    int any_pile() {
        const int number = below(16);
        return number <= last_column ? number : std::min(number + 2, tablet_pile);
    }
    void count(const char* kind) { ++counts_[kind]; }
    void expect(bool condition, const std::string& fault) { faults_ += condition ? "" : fault + ". "; }

    void act() {
        // A slide is given the time to end, more often than not.
        if (slides() && below(2) == 0) return play_.desktop.advance(400);
        const int choice = below(patient_ ? 980 : 1000);
        undoable_ = choice < 800;
        if (choice < 350) return make_legal_move();
        if (choice < 450) return try_any_move();
        if (choice < 500) return drag_anywhere();
        if (choice < 650) return play_.click(any_pile(), static_cast<float>(below(70)) * card_scale);
        if (choice < 750) return play_.click_stock();
        if (choice < 800) return play_.space();
        if (choice < (patient_ ? 802 : 850)) return undo();
        if (choice < 940) return play_.desktop.advance(below(8) == 0 ? below(60000) : below(200));
        if (choice < 960) return peek();
        if (choice < 980) return change_window();
        if (choice < 990) return change_settings();
        if (choice < 993) return undo_everything();
        if (choice < 994) return restart();
        if (choice < 995) return begin_new_game();
        if (choice < 998) return begin_position();
    }

    // From now on, undoing everything leads there.
    void begins_at(const std::string& position) {
        beginning_ = position;
        overflowed_ = false;
    }

    // The card that is on its way wins the game: whatever cuts it short ends that.
    static bool wins_by_slide() { return slide_wins(); }

    void restart() {
        const bool won = wins_by_slide();
        frmcards.mnuRestart.choose();
        if (won) return end_won_game();
        expect(position_text() == deal_, "the restart has another deal");
        count("restart");
        begins_at(deal_);
    }

    void begin_new_game() {
        frmcards.mnuNew.choose();
        count("new game");
        frmyouwin.visible() ? finish_dialogs() : game_begins();
    }

    void make_legal_move() {
        const Position position = current_position();
        std::vector<Move> moves = legal_moves(position);
        if (below(2) == 0) std::erase_if(moves, [](const Move& move) { return move.to <= last_column; });
        if (moves.empty()) return;
        const Move move = moves[static_cast<std::size_t>(below(static_cast<int>(moves.size())))];
        const std::string before = text_of(position);
        const bool slid = slides();
        if (slid) count("drop during a slide");
        const bool clicked = move.to > last_column && below(2) == 0;
        clicked ? play_.click(move.from) : drag(move.from, move.to);
        if (slides() && !slid) count("slide");
        // A card in flight may be in the way.
        expect(slid || frmyouwin.visible() || position_text() != before,
               "the move " + std::to_string(move.from) + " to " + std::to_string(move.to) + " was refused");
    }

    // A drop in the middle of what lies on top there; what is foretold of it must come true.
    void drag(int from, int to) {
        const Image& source = top_image(from);
        const int foretold = receiver_of_drop(top_image(to), source, middle * twips_per_pixel);
        const std::string before = position_text();
        const int records = undo_count();
        // An empty pile has only its zone to take hold of.
        const bool foretells =
            !slides() && source.drag_mode() == DragMode::automatic && records < most_undo_records - 3;
        play_.drag(from, to);
        if (!foretells || frmyouwin.visible()) return;
        const int receiver = undo_count() == records ? none : int{undo_list(0, 1)};
        if (receiver != none) count("foretold");
        expect(receiver == foretold,
               "foretold " + std::to_string(foretold) + " of a drop on " + std::to_string(to) + " in\n" +
                   before);
    }

    void try_any_move() {
        const int from = any_pile();
        const int to = any_pile();
        if (from == to) return;
        bool legal = slides();  // A card in flight may land first.
        for (const Move& move : legal_moves(current_position())) {
            legal = legal || (move.from == from && move.to == to);
        }
        const std::string before = position_text();
        drag(from, to);
        if (!legal) count("refused");
        expect(legal || position_text() == before, "an illegal move was made");
    }

    void drag_anywhere() {
        const auto x = [this] { return static_cast<float>(below(frmcards.outer_size().width)); };
        const auto y = [this] { return static_cast<float>(below(700)); };
        frmcards.mouse().press(x(), y());
        frmcards.mouse().move(x(), y());
        below(4) == 0 ? frmcards.mouse().cancel() : frmcards.mouse().release(x(), y());
    }

    void peek() {
        const int c = 1 + below(9);
        const Image& back = frmcards.Image1(face_down_image(c, below(c)));
        if (!back.visible()) return;
        play_.double_click(back);
        if (peek_is_under_way()) count("peek");
    }

    void undo() {
        if (!frmcards.mnuUndo.visible()) return;
        if (slides()) count("undo during a slide");
        counts_[std::string("undo of ") + kind_of_record(undo_list(0, 0), undo_list(0, 1))]++;
        const bool won = wins_by_slide();
        play_.undo();
        if (won) end_won_game();
    }

    void end_won_game() {
        count("game won by a slide cut short");
        frmyouwin.visible() ? finish_dialogs() : game_begins();
    }

    void undo_everything() {
        while (frmcards.mnuUndo.visible() && faults_.empty()) {
            undo();
            check();
        }
        if (overflowed_) begins_at(position_text());
        expect(without_turned_card(position_text()) == without_turned_card(beginning_),
               "undoing everything does not lead back");
        count("everything undone");
    }

    void change_window() {
        constexpr std::array sizes{798, 550, 797, 550, 638, 430, 1012, 700, 1598, 1150, 458, 300};
        if (below(5) == 0) {
            frmcards.user_changed_state(WindowState::minimized);
            frmcards.user_changed_state(WindowState::normal);
            return;
        }
        if (slides()) count("resize during a slide");
        const int* size = &sizes[std::size_t{2} * static_cast<std::size_t>(below(6))];
        frmcards.user_resized({size[0], size[1]});
    }

    void change_settings() {
        const auto flag = [this] { return below(2) == 0 ? "True" : "False"; };
        play_.save("anamate", below(4) == 0 ? "False" : "True");
        play_.save("show message", flag());
        play_.save("scale cards", flag());
    }

    void begin_position() {
        set_position(random_position(random_, below(4) == 0 ? below(26) : 23 + below(3)));
        begins_at(position_text());
    }

    void game_begins() {
        begins_at(deal_ = position_text());
        if (!patient_ && below(2) == 0) begin_position();
    }

    void finish_dialogs() {
        // The score has entered the best five: the next game is dealt after the two dialogs.
        if (frmyouwin.lblYouWin.visible()) count("game won");
        if (won_by_slide_) count("game won by a slide");
        frmyouwin.txtYourName.type("Random");
        frmyouwin.txtYourName.key_down(13);
        frmBestScore.cmdOk.click();
        expect(frmcards.enabled() && undo_count() == 0 && score == 0, "no new game after the dialogs");
        game_begins();
    }

    void count_records(int records_before) {
        if (undo_count() == most_undo_records) overflowed_ = true;
        const int added = undo_count() - records_before;
        if (records_before == most_undo_records) count("move beyond a full undo list");
        if (added <= 0) return;
        count(kind_of_record(undo_list(0, 0), undo_list(0, 1)));
        if (added >= 2 && undo_list(1, 0) == turned_up_record) count("card turned up");
        const bool exchanged =
            undo_list(added - 1, 0) == undo_list(0, 1) && undo_list(added - 1, 1) == undo_list(0, 0);
        if (added >= 2 && exchanged) count("exchange");
    }

    // What was just done can be taken back to the last card.
    void check_undo(int records_before, const std::string& before) {
        if (undo_count() <= records_before || wins_by_slide()) return;
        check();
        for (int most = 3; most > 0 && undo_count() > records_before; --most) undo();
        expect(position_text() == before, "undo does not lead back to\n" + before);
    }

    void check() {
        if (frmyouwin.visible()) finish_dialogs();
        faults_ += state_faults();
        if (!slides()) faults_ += display_faults();
        expect(!frmError.visible(), frmError.LblError.caption());
        expect(play_.message().find("Something") != 0, "an event has failed");
        const float width = static_cast<float>(frmcards.outer_size().width);
        expect(x_scale == width / 800 && (card_scale == x_scale || card_scale == 1), "wrong scale");
    }

    Counts& counts_;
    std::mt19937 random_;
    Play play_;
    std::string faults_;
    std::string deal_;
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
