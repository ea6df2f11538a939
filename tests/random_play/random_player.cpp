#include "tests/random_play/random_player.h"

#include <array>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/undo_list.h"
#include "state/variables.h"
#include "tests/random_play/rules.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr int enter_key = 13;

// Which card of the tablet is turned does not come back when the only record left is its turn.
std::string without_turned_card(std::string text) {
    std::erase_if(text, [](char c) { return c == '(' || c == ')'; });
    return text;
}

const char* kind_of_record(int a, int b) {
    if (a == turn_record) return "turn";
    if (a == tablet_pile) return b >= first_ace_pile ? "tablet to ace pile" : "tablet to column";
    if (a >= first_ace_pile) return "ace pile to column";
    return b >= first_ace_pile ? "column to ace pile" : "column to column";
}

bool slides() { return frmcards.Timer3.enabled(); }

}  // namespace

RandomPlayer::RandomPlayer(std::uint32_t seed, Counts& counts)
    : counts_(counts), random_(seed), patient_(seed % 3 == 0) {
    play_.start(seed);
    game_begins();
}

void RandomPlayer::expect(bool condition, const std::string& fault) {
    if (!condition) faults_ += fault + ". ";
}

std::string RandomPlayer::step() {
    const int records = undo_count();
    const bool compare_undo = !patient_ && records > 0 && records < most_undo_records - 3 && below(6) == 0;
    const std::string before = compare_undo ? position_text() : "";
    undoable_ = false;
    won_by_slide_ = slides() && animation(slide_wins_game) == 1;
    act();
    if (undoable_) count_records(records);
    if (frmyouwin.visible()) {
        finish_dialogs();
    } else if (undoable_ && compare_undo) {
        check_undo(records, before);
    }
    check();
    return faults_;
}

void RandomPlayer::act() {
    // A slide is given the time to end, more often than not.
    if (slides() && below(2) == 0) {
        play_.desktop.advance(400);
        return;
    }
    const int choice = below(patient_ ? 980 : 1000);
    undoable_ = choice < 800;
    if (choice < 350) {
        make_legal_move();
    } else if (choice < 450) {
        try_any_move();
    } else if (choice < 500) {
        drag_anywhere();
    } else if (choice < 650) {
        click_any_top_card();
    } else if (choice < 750) {
        play_.click_stock();
    } else if (choice < 800) {
        play_.space();
    } else if (choice < (patient_ ? 802 : 850)) {
        undo();
    } else if (choice < 940) {
        play_.desktop.advance(below(8) == 0 ? below(60000) : below(200));
    } else if (choice < 960) {
        peek();
    } else if (choice < 980) {
        change_window();
    } else if (choice < 990) {
        change_settings();
    } else if (choice < 993) {
        undo_everything();
    } else if (choice < 994) {
        frmcards.mnuRestart.choose();
        expect(position_text() == deal_, "the restart has another deal");
        count("restart");
        beginning_ = deal_;
        overflowed_ = false;
    } else if (choice < 995) {
        frmcards.mnuNew.choose();
        count("new game");
        frmyouwin.visible() ? finish_dialogs() : game_begins();
    } else if (choice < 998) {
        begin_position();
    }
}

void RandomPlayer::make_legal_move() {
    const Position position = current_position();
    std::vector<Move> moves = legal_moves(position);
    if (below(2) == 0) {
        std::erase_if(moves, [](const Move& move) { return move.to <= last_column; });
    }
    if (moves.empty()) return;
    const Move move = moves[static_cast<std::size_t>(below(static_cast<int>(moves.size())))];
    const std::string before = text_of(position);
    const bool slid = slides();
    if (slid) count("drop during a slide");
    if (move.to > last_column && below(2) == 0) {
        play_.click(move.from);
    } else {
        play_.drag(move.from, move.to);
    }
    if (slides() && !slid) count("slide");
    // A card in flight may be in the way.
    expect(slid || frmyouwin.visible() || position_text() != before,
           "the move " + std::to_string(move.from) + " to " + std::to_string(move.to) + " was refused");
}

void RandomPlayer::try_any_move() {
    const std::array<int, 15> piles{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 14, 15, 16};
    const int from = piles.at(static_cast<std::size_t>(below(15)));
    const int to = piles.at(static_cast<std::size_t>(below(15)));
    if (from == to) return;
    const Position position = current_position();
    bool legal = false;
    for (const Move& move : legal_moves(position)) legal = legal || (move.from == from && move.to == to);
    const std::string before = text_of(position);
    const bool slid = slides();
    play_.drag(from, to);
    if (slid) return;
    if (!legal) count("refused");
    expect(legal || position_text() == before, "an illegal move was made");
}

void RandomPlayer::drag_anywhere() {
    const auto x = [this] { return static_cast<float>(below(frmcards.outer_size().width)); };
    const auto y = [this] { return static_cast<float>(below(700)); };
    Mouse& mouse = frmcards.mouse();
    mouse.press(x(), y());
    mouse.move(x(), y());
    if (below(4) == 0) {
        mouse.cancel();
    } else {
        mouse.release(x(), y());
    }
}

void RandomPlayer::click_any_top_card() {
    const std::array<int, 16> piles{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 14, 15, 16, 16};
    const int pile = piles.at(static_cast<std::size_t>(below(16)));
    play_.click(pile, static_cast<float>(below(70)) * card_scale);
}

void RandomPlayer::peek() {
    const int c = 1 + below(9);
    const Image& back = frmcards.Image1(face_down_image(c, below(c)));
    if (!back.visible()) return;
    play_.double_click(back);
    if (peek_is_showing()) count("peek");
}

void RandomPlayer::undo() {
    if (!frmcards.mnuUndo.visible()) return;
    if (slides()) count("undo during a slide");
    counts_[std::string("undo of ") + kind_of_record(undo_list(0, 0), undo_list(0, 1))]++;
    play_.undo();
}

void RandomPlayer::undo_everything() {
    while (frmcards.mnuUndo.visible() && faults_.empty()) {
        undo();
        check();
    }
    if (overflowed_) {
        beginning_ = position_text();
        overflowed_ = false;
    }
    expect(without_turned_card(position_text()) == without_turned_card(beginning_),
           "undoing everything does not lead back");
    count("everything undone");
}

void RandomPlayer::change_window() {
    const std::array<PixelSize, 6> sizes{PixelSize{792, 550}, {791, 550},   {632, 430},
                                         {1006, 700},         {1592, 1150}, {452, 300}};
    if (below(5) == 0) {
        frmcards.user_changed_state(WindowState::minimized);
        frmcards.user_changed_state(WindowState::normal);
    } else {
        if (slides()) count("resize during a slide");
        frmcards.user_resized(sizes.at(static_cast<std::size_t>(below(6))));
    }
}

void RandomPlayer::change_settings() {
    const auto flag = [this] { return below(2) == 0 ? "True" : "False"; };
    play_.save("anamate", below(4) == 0 ? "False" : "True");
    play_.save("show message", flag());
    play_.save("scale cards", flag());
}

void RandomPlayer::begin_position() {
    set_position(random_position(random_, below(4) == 0 ? below(26) : 23 + below(3)));
    beginning_ = position_text();
    overflowed_ = false;
}

void RandomPlayer::game_begins() {
    deal_ = beginning_ = position_text();
    overflowed_ = false;
    if (!patient_ && below(2) == 0) begin_position();
}

// The score has entered the best five: the next game is dealt after the two dialogs.
void RandomPlayer::finish_dialogs() {
    if (frmyouwin.lblYouWin.visible()) count("game won");
    if (won_by_slide_) count("game won by a slide");
    frmyouwin.txtYourName.type("Random");
    frmyouwin.txtYourName.key_down(enter_key);
    frmBestScore.cmdOk.click();
    expect(frmcards.enabled() && undo_count() == 0 && score == 0, "no new game after the dialogs");
    game_begins();
}

void RandomPlayer::count_records(int records_before) {
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
void RandomPlayer::check_undo(int records_before, const std::string& before) {
    if (undo_count() <= records_before) return;
    check();
    while (undo_count() > records_before && faults_.empty()) undo();
    expect(position_text() == before, "undo does not lead back to\n" + before);
}

void RandomPlayer::check() {
    if (frmyouwin.visible()) finish_dialogs();
    faults_ += state_faults();
    if (!slides()) faults_ += display_faults();
    expect(!frmError.visible(), frmError.LblError.caption());
    expect(play_.message().find("Something") != 0, "an event has failed");
    const float width = static_cast<float>(frmcards.outer_size().width);
    expect(x_scale == width / 800 && (card_scale == x_scale || card_scale == 1), "wrong scale");
}

}  // namespace tarnwick
