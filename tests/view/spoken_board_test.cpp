#include "view/spoken_board.h"
#include "board/peek.h"

#include <gtest/gtest.h>

#include <utility>

#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// The columns of this deal end in Q♦ 10♥ K♦ 6♠ A♣ 2♥ J♦ 9♣ 6♦ Q♣.
constexpr std::uint32_t deal = 26;
constexpr int column_of_ace = 4;

class SpokenBoard : public testing::Test {
  protected:
    SpokenBoard() {
        play.start(deal);
        told_ = frmcards.on_describe();
    }

    // Presses what is described of a widget, as often as makes it act.
    void press(const Widget& widget) {
        const std::vector<BoardItem> items = frmcards.on_describe();
        press_item(widget,
                   find_item(items, &widget)->clicks,
                   {[this] { return busy; }, [this](Spot) { ++revealed; }});
    }
    const Image& top_of(int column) const { return frmcards.Image1(top_card(column).picture); }

    // What there is to tell since the last time, in words.
    std::string changes() {
        const std::vector<BoardItem> before = std::exchange(told_, frmcards.on_describe());
        std::string text;
        for (const auto& [kind, widget] : spoken_changes(before, told_)) {
            constexpr std::array kinds{"gone", "new", "name", "value", "order"};
            const BoardItem* item = find_item(told_, widget);
            text += kinds.at(static_cast<std::size_t>(kind)) + (item ? ": " + item->name : "") + "; ";
        }
        return text;
    }

    Play play;
    bool busy = false;
    int revealed = 0;

  private:
    std::vector<BoardItem> told_;
};

TEST_F(SpokenBoard, TellsWhatChangesOnce) {
    press(frmcards.Image1(stock_image));
    EXPECT_EQ(changes(), "name: stock, 40 cards face down; new: 10 of Spades, turned card; ");
    press(frmcards.Image1(stock_image));
    EXPECT_EQ(changes(), "gone; name: stock, 35 cards face down; new: 4 of Spades, turned card; ");
    press(top_of(column_of_ace));
    play.desktop.advance(1000);
    // A point for the ace, and one for the card that it lay on. Its back and the empty pile are gone.
    EXPECT_EQ(changes(),
              "gone; gone; name: Ace of Clubs, ace pile 1, on top; new: Queen of Spades, column 5, on top; "
              "name: Score: 2 of 200; value: Score: 2 of 200; order; ");
    EXPECT_EQ(changes(), "");
}

TEST_F(SpokenBoard, IsPlayedByPressesWhenNothingElseIsUnderWay) {
    const Image& stock = frmcards.Image1(stock_image);
    busy = true;
    press(stock);
    busy = false;
    const Image& ace = top_of(column_of_ace);
    frmcards.mouse().press(ace.left() + 30, ace.top() + 40);
    press(stock);
    EXPECT_TRUE(frmcards.mouse().dragged()) << "no press comes between a drag and its drop";
    frmcards.mouse().cancel();
    desktop().event([&] { press(stock); });
    frmcards.set_enabled(false);
    press(stock);
    EXPECT_EQ(turned_slot(), -1);
    frmcards.set_enabled(true);
    press(stock);
    EXPECT_EQ(turned_slot(), 4);
    press(frmcards.Image1(face_down_image(5, 2)));
    EXPECT_TRUE(peek_is_under_way()) << "two clicks on a face-down card, most of which is covered";
    EXPECT_EQ(revealed, 3);
    frmcards.Image1(first_column_zone + column_of_ace).bring_to_front();
    press(ace);
    EXPECT_TRUE(ace_pile_is_empty(0)) << "no click reaches what is covered";
}

}  // namespace
}  // namespace tarnwick
