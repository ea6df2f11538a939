#include <gtest/gtest.h>

#include <algorithm>

#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

// The names of all items in their order, with a star before each for every click that acts.
std::string names() {
    std::string text;
    for (const BoardItem& item : frmcards.on_describe())
        text += std::string(static_cast<std::size_t>(item.clicks), '*') + item.name + "; ";
    return text;
}

const BoardItem* item_of(const std::vector<BoardItem>& items, const Widget& widget) {
    const auto item =
        std::find_if(items.begin(), items.end(), [&](const BoardItem& i) { return i.widget == &widget; });
    return item == items.end() ? nullptr : &*item;
}

TEST(BoardNames, TellEveryPileInReadingOrder) {
    Play play;
    play.start(
        "0: K♠ Q♥ J♠\n2: [..] 7♦\nace 0: A♠\nace 2: A♥ 2♥ 2♥' 3♥\ntablet: 4♣ (5♦) 6♠ 8♣ 9♦\nscore: 12");
    EXPECT_EQ(
        names(),
        "*stock, 3 cards face down; *5 of Diamonds, turned card; "
        "Ace of Spades, ace pile 1, on top; empty ace pile 2; "
        "3 of Hearts, ace pile 3, on top; 2 of Hearts, ace pile 3; empty ace pile 4; "
        "*Jack of Spades, column 1, on top; *Queen of Hearts, column 1; *King of Spades, column 1; "
        "empty column 2; "
        "*7 of Diamonds, column 3, on top; **face-down card 2 of column 3; **face-down card 1 of column 3; "
        "empty column 4; empty column 5; empty column 6; empty column 7; empty column 8; "
        "empty column 9; empty column 10; Score: 12 of 200; ");
    play.click_stock();
    EXPECT_TRUE(names().starts_with("*stock, all cards turned; "));
    play.double_click(frmcards.Image1(face_down_image(2, 1)));
    EXPECT_NE(names().find("of Hearts, face-down card 2 of column 3"), std::string::npos) << "peeked at";
}

// Whatever happens in a game, an item is told for each image that the player sees, and for no other.
TEST(BoardNames, BelongToWhatIsSeen) {
    Play play;
    play.start(26);
    const auto faults = [] {
        const std::vector<BoardItem> items = frmcards.on_describe();
        std::string text;
        frmcards.Image1.for_each([&](const Image& image) {
            const bool zone = image.index() >= first_column_zone && image.index() < first_face_down_image;
            const bool pile_zone = image.index() >= first_ace_zone && image.index() < empty_waste_image;
            if (zone || pile_zone) return;
            const bool told = item_of(items, image) != nullptr;
            if (told != image.visible())
                text += std::to_string(image.index()) + (told ? " told " : " untold ");
        });
        return text;
    };
    for (int turn = 0; turn <= 10; ++turn, play.click_stock()) EXPECT_EQ(faults(), "") << "turn " << turn;
    play.click(4);
    EXPECT_EQ(faults(), "") << "a card slides";
    play.desktop.advance(1000);
    EXPECT_EQ(faults(), "") << "and has arrived";
    play.drag(6, 9);
    EXPECT_EQ(faults(), "") << "a card was turned up";
}

}  // namespace
}  // namespace tarnwick
