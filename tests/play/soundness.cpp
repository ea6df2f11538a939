#include "tests/play/soundness.h"
#include "board/score.h"

#include <array>

#include "state/piles.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// Collects the faults, and counts where each card was seen.
class Inspection {
  public:
    void expect(bool condition, const std::string& fault) {
        if (!condition) faults_ += fault + ". ";
    }

    // A card in a column or in the tablet. Rank and suit must be those of its picture.
    void see(const Card& card, const std::string& where) {
        see_picture(card.picture, where);
        if (!is_picture(card.picture)) return;
        expect(card.suit == suit_of_picture(card.picture), "wrong suit " + where);
        expect(card.rank == rank_of_picture(card.picture), "wrong rank " + where);
    }

    void see_picture(int picture, const std::string& where) {
        expect(is_picture(picture), "picture " + std::to_string(picture) + " " + where);
        if (is_picture(picture)) ++seen_[static_cast<std::size_t>(picture - first_picture)];
    }

    std::string faults() {
        for (int i = 0; i < card_count; ++i) {
            const int times = seen_[static_cast<std::size_t>(i)];
            expect(times == 1,
                   "card " + std::to_string(first_picture + i) + " lies in " + std::to_string(times) +
                       " places");
        }
        return faults_;
    }

  private:
    std::string faults_;
    std::array<int, card_count> seen_{};
};

void inspect_column(Inspection& inspection, int c) {
    const std::string where = "in column " + std::to_string(c);
    const int top = column_top(c);
    inspection.expect(top >= -1 && top < top_slot, "top of range " + where);
    for (int s = 0; s <= top; ++s) {
        const Card card = column_card(c, s);
        const bool face_down = layout(c, s, face_down_field) == 1;
        inspection.see(card, where);
        inspection.expect(!face_down || s < c, "a face-down card where none was dealt " + where);
        inspection.expect(!face_down || s < top, "face-down card on top " + where);
        if (s == 0 || layout(c, s - 1, face_down_field) == 1) continue;
        inspection.expect(!face_down, "face-down card on a face-up one " + where);
        inspection.expect(builds_on(card, column_card(c, s - 1)), "run out of order " + where);
    }
}

void inspect_tablet(Inspection& inspection) {
    const int last = last_tablet_slot();
    const int turned = turned_slot();
    inspection.expect(turned >= -1 && turned <= last && last < tablet_size, "tablet out of range");
    for (int i = 0; i <= last; ++i) {
        inspection.see({tablet(i, rank_field), tablet(i, suit_field), tablet(i, picture_field)},
                       "in the tablet");
    }
    const int shown = turned >= 0 ? int{tablet(turned, picture_field)} : empty_waste_image;
    inspection.expect(shown_tablet_image() == shown, "the tablet shows another card than the turned one");
}

void inspect_ace_pile(Inspection& inspection, int p) {
    const std::string where = "on ace pile " + std::to_string(p);
    const int size = ace_pile_size(p);
    if (size == 0) {
        inspection.expect(aces(p, suit_field) == none && ace_pile_holds_one_card(p),
                          "not quite empty " + where);
        return;
    }
    const int suit = aces(p, suit_field);
    // Ace, two, two, three, three ...: half the number of the card beneath it, rounded up.
    const int rank = size / 2;
    inspection.expect(aces(p, rank_field) == rank, "wrong top rank " + where);
    inspection.see({rank, suit, aces(p, picture_field)}, where);
    inspection.expect(aces(p, beneath_rank_field) == (size == 1 ? none : (size - 1) / 2),
                      "wrong rank beneath the top " + where);
    for (int i = 1; i < size; ++i) {
        const int field = i == 1 ? beneath_picture_field : third_picture_field + i - 2;
        const int picture = aces(p, field) == plain_ace_image ? ace_of_spades_image : int{aces(p, field)};
        inspection.see({(size - i) / 2, suit, picture}, where);
    }
}

}  // namespace

std::string state_faults() {
    Inspection inspection;
    for (int c = 0; c <= last_column; ++c) inspect_column(inspection, c);
    inspect_tablet(inspection);
    for (int p = 0; p <= 3; ++p) inspect_ace_pile(inspection, p);
    inspection.expect(undo_count() >= 0 && undo_count() <= most_undo_records, "undo list out of range");
    inspection.expect(
        score == score_of_state(),
        "the score is " + std::to_string(score) + " and should be " + std::to_string(score_of_state()));
    return inspection.faults();
}

}  // namespace tarnwick
