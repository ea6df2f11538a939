#include <gtest/gtest.h>

#include "notation/play_action.h"
#include "state/variables.h"
#include "tests/play/known_deal.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

class KeysOfTheWindow : public testing::Test {
  protected:
    // A letter for an arrow (l, r, u, d), * for Enter, ! for Escape.
    void press(const std::string& keys) {
        const std::string letters = "lurd*!";
        constexpr std::array names{"Left", "Up", "Right", "Down", "Return", "Escape"};
        for (const char key : keys) game.screen().key(names.at(letters.find(key)));
    }
    bool shows_another_picture_after(const std::string& keys) {
        const XPixels before = game.board_pixels();
        press(keys);
        return eventually([&] { return game.board_pixels() != before; });
    }
    // What the table shows once a pointer has hidden the cursor.
    std::string faults() {
        aside_ += 40;
        game.move({aside_, 900});
        return board_faults(game);
    }

    int aside_ = 300;
    TwinGame game{{TARNWICK_PROGRAM, known_deal}};
};

TEST_F(KeysOfTheWindow, PlayWithoutThePointer) {
    ASSERT_TRUE(shows_another_picture_after("d")) << "the cursor";
    press("*");
    click_image(frmcards.Image1(stock_image), plain_click_offset);
    EXPECT_EQ(faults(), "") << "turned";
    press("ddllll*rrr*");
    drag_image(top_image(column_of_jack), top_image(column_of_queen));
    EXPECT_EQ(faults(), "") << "the Jack on the Queen";
    press("llllll");
    ASSERT_TRUE(shows_another_picture_after("*"))
        << "a second Enter at once would count as one that is held down";
    press("*");
    click_image(top_image(column_of_ace), plain_click_offset);
    game.headless().desktop.advance(1000);
    EXPECT_EQ(faults(), "") << "the ace on its pile";
    press("d*");
    ASSERT_TRUE(shows_another_picture_after("rr")) << "lifted";
    press("!");
    EXPECT_EQ(faults(), "") << "put back";
}

TEST_F(KeysOfTheWindow, CoverTheScreenWithTheMenusAtHand) {
    const XPlace window = game.screen().place(game.window());
    const int menu_bar = game.board().y;
    const XPlace screen = game.screen().screen();
    const auto fills_screen = [&] {
        const XPlace place = game.screen().place(game.window());
        return place.width == screen.width && place.height == screen.height;
    };
    game.screen().key("F11");
    ASSERT_TRUE(eventually(fills_screen));
    frmcards.user_resized({screen.width, screen.height - menu_bar});
    game.screen().key("alt+f");
    game.screen().key("n");
    frmcards.mnuNew.choose();
    EXPECT_EQ(faults(), "");
    press("!");
    EXPECT_TRUE(eventually([&] { return game.screen().place(game.window()) == window; }));
}

}  // namespace
}  // namespace tarnwick
