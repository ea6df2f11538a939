#include <string>
#include <vector>

#include "board/peek.h"
#include "game/tablet.h"
#include "platform/random.h"
#include "state/variables.h"
#include "ui/handlers.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Piles are counted from 1 for the player.
std::string column_name(int c) { return "column " + std::to_string(c + 1); }
std::string ace_pile_name(int p) { return "ace pile " + std::to_string(p + 1); }

// The tablet and the ace piles lie in a row above the columns.
constexpr PilePlace stock_place{0, 0};
constexpr PilePlace turned_card_place{0, 1};
PilePlace ace_pile_place(int p) { return {0, 2 + p}; }
PilePlace column_place(int c) { return {1, c}; }
std::string deal_number() { return std::to_string(random_generator().seed()); }

// Collects the images that can be seen, or at least clicked.
class Description {
  public:
    void add(int image, const std::string& name, int clicks, std::optional<PilePlace> place = std::nullopt,
             const Outline* outline = nullptr) {
        const Image& widget = frmcards.Image1(image);
        if (widget.visible()) items_.push_back({&widget, name, clicks, std::nullopt, 0, place, outline});
    }
    // A drop zone is seen by its outline.
    void add_empty(int zone, const std::string& name, PilePlace place, int outline) {
        add(zone, "empty " + name, 0, place, &frmcards.Shape1(outline));
    }

    void add_score() {
        const std::string name = "Score: " + std::to_string(score) + " of " + std::to_string(most_points);
        items_.push_back({&frmcards.LblScore, name, 0, score, most_points});
        set_tip(frmcards.LblScore, "Deal " + deal_number() + " (Ctrl+C copies the number)");
    }

    // Of what was added last, if it could be seen.
    void set_tip(const Widget& widget, const std::string& tip) {
        if (!items_.empty() && items_.back().widget == &widget) items_.back().tip = tip;
    }

    std::vector<BoardItem> items() && { return std::move(items_); }

  private:
    std::vector<BoardItem> items_;
};

int face_down_in_stock() { return last_tablet_slot() - turned_slot(); }

std::string stock_name() {
    const int face_down = face_down_in_stock();
    if (face_down == 0) return "stock, all cards turned";
    return "stock, " + std::to_string(face_down) + (face_down == 1 ? " card" : " cards") + " face down";
}

std::string stock_tip() {
    if (tablet_is_turned_for_good()) return {};
    const int face_down = face_down_in_stock();
    if (face_down == 0) return "No card lies face down: a click turns the cards over";
    return std::to_string(face_down) + (face_down == 1 ? " card lies" : " cards lie") + " face down";
}

void describe_tablet(Description& board) {
    board.add(stock_image, stock_name(), 1, stock_place);
    board.set_tip(frmcards.Image1(stock_image), stock_tip());
    if (turned_slot() == -1) return;
    const Card card = turned_card();
    board.add(card.picture, card_name(card.rank, card.suit) + ", turned card", 1, turned_card_place);
}

void describe_ace_pile(Description& board, int p) {
    if (ace_pile_is_empty(p)) {
        board.add_empty(first_ace_zone + p, ace_pile_name(p), ace_pile_place(p), p);
        return;
    }
    const Card card = ace_pile_card(p);
    const std::string name = card_name(card.rank, card.suit) + ", " + ace_pile_name(p);
    board.add(card.picture, name + ", on top", 0, ace_pile_place(p));
    if (ace_pile_holds_one_card(p)) return;
    board.add(aces(p, beneath_picture_field),
              card_name(aces(p, beneath_rank_field), card.suit) + ", " + ace_pile_name(p),
              0);
}

// While it is peeked at, a face-down card tells what it is.
std::string face_down_name(int c, int slot) {
    const bool shows_face = is_peeked_at(face_down_image(c, slot));
    const Card card = column_card(c, slot);
    return (shows_face ? card_name(card.rank, card.suit) + ", " : "") + "face-down card " +
           std::to_string(slot + 1) + " of " + column_name(c);
}

// From the top card down: what can be played comes first.
void describe_column(Description& board, int c) {
    const PilePlace place = column_place(c);
    if (column_is_empty(c)) {
        board.add_empty(first_column_zone + c, column_name(c), place, first_column_outline + c);
    }
    for (int slot = column_top(c); slot >= 0; --slot) {
        if (layout(c, slot, face_down_field) == 1) {
            board.add(face_down_image(c, slot), face_down_name(c, slot), 2, place);
            continue;
        }
        const Card card = column_card(c, slot);
        const char* on_top = slot == column_top(c) ? ", on top" : "";
        board.add(card.picture, card_name(card.rank, card.suit) + ", " + column_name(c) + on_top, 1, place);
    }
}

std::vector<BoardItem> describe() {
    Description board;
    describe_tablet(board);
    for (int p = 0; p <= 3; ++p) describe_ace_pile(board, p);
    for (int c = 0; c <= last_column; ++c) describe_column(board, c);
    board.add_score();
    return std::move(board).items();
}

}  // namespace

void attach_board_names() {
    frmcards.on_describe = describe;
    frmcards.on_copy = deal_number;
}

}  // namespace tarnwick
