// What is seen between the last card of a game that is won and the dialog that asks for a name.

#include <gtest/gtest.h>

#include <functional>

#include "board/display.h"
#include "notation/position.h"
#include "platform/key_codes.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "tests/view/grid_window.h"
#include "view/picture_place.h"
#include "windows/frmBestScore.h"
#include "windows/frmyouwin.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

class CelebrationTest : public testing::Test {
  protected:
    /// Puts the last King on its pile; the dialog is open at once.
    void win() {
        set_position("ace 0: .. K♠\n2: K♠'\nace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'");
        EXPECT_TRUE(game.view().shows_all());
        stage.end_motion();
        const Image& last_king = top_image(2);
        king = {last_king.left() + 30, last_king.top() + 30};
        stage.press(king.x, king.y, MouseButton::left);
        stage.release(king.x, king.y, MouseButton::left, false);
        for (int ms = 0; ms < 1000 && !frmyouwin.visible(); ++ms) game.desktop.advance(1);
        ASSERT_TRUE(frmyouwin.visible());
        EXPECT_EQ(read_setting(key_games_won, 0), "1") << "counted first";
        EXPECT_TRUE(game.view().shows_all());
    }
    bool goes_on() { return !game.layers().celebration.empty() || game.view().held_back; }
    void type_on() {
        stage.key_down('A');
        stage.type("a");
        EXPECT_EQ(frmyouwin.txtYourName.text(), "a") << "should the dialog not have the keyboard yet";
    }
    void dismiss() {
        frmyouwin.unload();
        frmBestScore.unload();
        save_setting(key_games_won, "0");
    }

    GridGame game{26};
    BoardStage& stage = game.stage();
    Point king;
};

TEST_F(CelebrationTest, IsOverWithinTwoSecondsAndLeavesTheTableAsItIs) {
    constexpr std::size_t all = 52;
    win();
    ASSERT_EQ(game.view().held_back, &frmyouwin);
    const std::vector<PaintedImage> table = game.layers().images;
    EXPECT_EQ(game.layers().celebration.size(), 4U) << "the first cards, on their piles";
    for (int p = 0; p < 4; ++p) {
        EXPECT_EQ(game.layers().celebration[static_cast<std::size_t>(p)].place,
                  snapped(picture_place(top_image(first_ace_pile + p)), 1));
    }
    std::size_t most = 0;
    int ms = 0;
    for (; ms < 2000 && goes_on(); ms += 5) {
        game.desktop.advance(5);
        EXPECT_TRUE(game.view().shows_all()) << ms;
        most = std::max(most, game.layers().celebration.size());
    }
    EXPECT_EQ(most, all + 1) << "and the emblem";
    EXPECT_GT(ms, 1500);
    EXPECT_FALSE(goes_on() || stage.next_step());
    EXPECT_TRUE(frmyouwin.visible());
    EXPECT_EQ(game.layers().images.size(), table.size());
    type_on();
}

TEST_F(CelebrationTest, EndsWithWhateverHappens) {
    const std::vector<std::pair<const char*, std::function<void()>>> ends{
        {"A", [&] { stage.key_down('A'), stage.type("A"); }},
        {"", [&] { stage.key_down(' '), stage.type(" "); }},
        {"", [&] { stage.key_down(enter_key), stage.type("\r"); }},
        {"", [&] { stage.press(300, 300, MouseButton::other); }},
        {"",
         [&] {
             game.view().resize({900, 650});
         }},
        {"", [&] { stage.end_celebration(); }},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        win();
        game.desktop.advance(400);
        EXPECT_TRUE(game.view().shows_all());
        EXPECT_TRUE(goes_on());
        end();
        EXPECT_FALSE(goes_on() || stage.next_step());
        EXPECT_TRUE(game.view().shows_all());
        EXPECT_TRUE(frmyouwin.visible());
        EXPECT_EQ(frmyouwin.txtYourName.text(), name);
        dismiss();
    }
    stage.type("b");
    EXPECT_TRUE(frmcards.enabled());
}

TEST_F(CelebrationTest, OutlivesAHeldKeyAndTheSecondHalfOfADoubleClick) {
    const auto press = [&](double aside, MouseButton button) { stage.press(king.x + aside, king.y, button); };
    const std::vector<std::function<void()>> other_presses{
        [&] { press(0, MouseButton::left), press(0, MouseButton::left); },
        [&] { press(0, MouseButton::other); },
        [&] { press(90, MouseButton::left); },
        [&] { game.desktop.advance(game.desktop.double_click_time()), press(0, MouseButton::left); }};
    for (const auto& other_press : other_presses) {
        win();
        stage.key_down(enter_key, true);
        stage.key_down('A', true);
        stage.type("A");
        EXPECT_TRUE(goes_on());
        other_press();
        EXPECT_FALSE(goes_on()) << &other_press - other_presses.data();
        EXPECT_EQ(frmyouwin.txtYourName.text(), "");
        dismiss();
    }
    win();
    press(2, MouseButton::left);
    stage.release(king.x, king.y, MouseButton::left, false);
    EXPECT_TRUE(goes_on());
}

TEST_F(CelebrationTest, IsNotSeenWhereNothingIsToMoveOrNothingIsWon) {
    const std::vector<std::function<void()>> reasons{
        [] { save_setting(key_anamate, "False"); },
        [&] { save_setting(key_anamate, "True"), game.view().motion_allowed = false; },
        [&] { game.view().motion_allowed = true, frmcards.user_changed_state(WindowState::minimized); }};
    for (const auto& reason : reasons) {
        reason();
        win();
        EXPECT_FALSE(goes_on() || stage.next_step()) << &reason - reasons.data();
        type_on();
        dismiss();
    }
    frmcards.user_changed_state(WindowState::normal);
    set_position("0: 7♠\nscore: 150");
    frmcards.mnuNew.choose();
    EXPECT_TRUE(frmyouwin.visible() && frmyouwin.lblNewHighScore.visible());
    EXPECT_FALSE(goes_on());
    type_on();
}

}  // namespace
}  // namespace tarnwick
