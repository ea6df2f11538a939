#include "tests/play/display_check.h"

#include <array>
#include <cmath>
#include <sstream>

#include "board/peek.h"
#include "board/twinkle.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

// Collects what is wrong, and remembers which images are meant to be seen.
class Table {
  public:
    // Placed whole or not: the table is laid out in both ways, so half a pixel either way is right.
    void expect_at(int index, float left, float top) {
        const Image& image = frmcards.Image1(index);
        expected_.at(static_cast<std::size_t>(index)) = true;
        if (!image.visible()) fault(index, "is hidden");
        const auto near = [](float a, float b) { return std::abs(a - b) <= 0.502F; };
        if (!near(image.left(), left) || !near(image.top(), top)) fault(index, "lies elsewhere");
        if (!near(image.width(), card_width * card_scale) ||
            !near(image.height(), card_height * card_scale)) {
            fault(index, "has another size");
        }
        expect_face(image);
    }

    void expect_back(int index) {
        if (!is_peeked_at(index) && frmcards.Image1(index).picture() != back_)
            fault(index, "shows another back");
    }

    void expect_above(int upper, int lower) {
        if (frmcards.Image1(upper).stacking() <= frmcards.Image1(lower).stacking())
            fault(upper, "lies beneath");
    }

    void expect_shown(int index) {
        expected_.at(static_cast<std::size_t>(index)) = true;
        if (!frmcards.Image1(index).visible()) fault(index, "is hidden");
    }

    void expect_nothing_else() {
        frmcards.Image1.for_each([this](const Image& image) {
            if (image.visible() && !expected_.at(static_cast<std::size_t>(image.index()))) {
                fault(image.index(), "is seen");
            }
        });
    }

    void fault(int index, const char* what) { faults_ << "image " << index << ' ' << what << ". "; }
    std::string faults() const { return faults_.str(); }

  private:
    void expect_face(const Image& image) {
        const int index = image.index();
        if (index < first_face_image || index > last_face_image) return;
        const bool twinkles = index == ace_of_spades_image && twinkle_is_under_way();
        const Picture face = face_picture(suit_of_picture(index), rank_of_picture(index));
        if (!twinkles && image.picture() != face) fault(index, "shows another face");
    }

    Picture back_ = back_picture(to_integer(read_setting(key_card_back, default_card_back)));
    std::array<bool, plain_ace_image + 1> expected_{};
    std::ostringstream faults_;
};

void check_column(Table& table, int c) {
    table.expect_shown(first_column_zone + c);
    int below = first_column_zone + c;
    for (int s = 0; s <= column_top(c); ++s) {
        const bool face_down = layout(c, s, face_down_field) == 1;
        const int image = face_down ? face_down_image(c, s) : int{layout(c, s, column_picture_field)};
        table.expect_at(
            image, static_cast<float>(79 * c + 4) * x_scale, static_cast<float>(120 + 20 * s) * card_scale);
        if (face_down) table.expect_back(image);
        table.expect_above(image, below);
        below = image;
    }
}

void check_ace_pile(Table& table, int p) {
    if (ace_pile_is_empty(p)) {
        table.expect_shown(first_ace_zone + p);
        return;
    }
    const int top = aces(p, picture_field);
    table.expect_at(top, static_cast<float>(241 + 158 * p) * x_scale, 10);
    if (ace_pile_holds_one_card(p)) return;
    const int beneath = aces(p, beneath_picture_field);
    table.expect_at(beneath, static_cast<float>(220 + 158 * p) * x_scale, 10);
    table.expect_above(top, beneath);
}

void check_tablet(Table& table) {
    const bool all_turned = turned_slot() == last_tablet_slot();
    const Image& stock = frmcards.Image1(stock_image);
    // With five cards or fewer, all turned, the stock is hidden or an empty place: either way nothing is
    // seen.
    const bool for_good = all_turned && last_tablet_slot() < 5;
    if (!for_good || (stock.visible() && stock.picture().none())) table.expect_shown(stock_image);
    if (stock.visible() && stock.picture().none() != all_turned) table.fault(stock_image, "is not the stock");
    const int turns_left = (last_tablet_slot() - turned_slot() + 4) / 5;
    if (stock.visible() && stock.depth() != std::max(0, turns_left - 1)) {
        table.fault(stock_image, "has another depth");
    }
    const Sign sign = stock.visible() && all_turned && !for_good ? Sign::turn : Sign::none;
    if (frmcards.Shape1(stock_outline).sign() != sign) table.fault(stock_image, "has another sign");
    if (turned_slot() >= 0) table.expect_at(tablet(turned_slot(), picture_field), 83 * x_scale, 10);
}

}  // namespace

std::string display_faults() {
    Table table;
    for (int c = 0; c <= last_column; ++c) check_column(table, c);
    for (int p = 0; p <= 3; ++p) check_ace_pile(table, p);
    check_tablet(table);
    table.expect_nothing_else();
    if (frmcards.LblScore.caption() != std::to_string(score)) table.fault(0, "has another score beside it");
    if (frmcards.mnuUndo.visible() != (undo_count() > 0)) table.fault(0, "is seen with a wrong menu");
    return table.faults();
}

}  // namespace tarnwick
