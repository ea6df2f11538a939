#include <gtest/gtest.h>

#include <functional>

#include "state/variables.h"
#include "tests/desktop/tested_program.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

const char* const program = tested_program();

using Keys = std::vector<std::string>;

void press_keys(TwinGame& game, const Keys& keys) {
    for (const std::string& key : keys) game.screen().key(key);
}

class EntryForTheGame : public testing::TestWithParam<std::pair<Keys, MenuEntry*>> {};

TEST_P(EntryForTheGame, IsChosenWithKeys) {
    const auto& [keys, entry] = GetParam();
    TwinGame game({program, 26});
    game.space();
    game.space();
    const QImage before = expected_board();
    press_keys(game, keys);
    entry->choose();
    ASSERT_NE(expected_board(), before);
    EXPECT_EQ(board_faults(game), "");
    game.space();
    EXPECT_EQ(board_faults(game), "") << "the next key";
}

INSTANTIATE_TEST_SUITE_P(Menus, EntryForTheGame,
                         testing::Values(std::pair{Keys{"F2"}, &frmcards.mnuNew},
                                         std::pair{Keys{"alt+f", "n"}, &frmcards.mnuNew},
                                         std::pair{Keys{"F3"}, &frmcards.mnuRestart},
                                         std::pair{Keys{"alt+f", "r"}, &frmcards.mnuRestart},
                                         std::pair{Keys{"ctrl+u"}, &frmcards.mnuUndo},
                                         std::pair{Keys{"alt+s", "u"}, &frmcards.mnuUndo}));

TEST(Menus, HelpOpensByKeysAndClosesByEscape) {
    TwinGame game({program, 26});
    for (const Keys& keys : {Keys{"F1"}, Keys{"alt+h", "h"}}) {
        press_keys(game, keys);
        ASSERT_TRUE(game.gets_keyboard(game.wait_for("Help")));
        game.screen().key("Escape");
        ASSERT_TRUE(game.goes("Help"));
        ASSERT_TRUE(game.gets_keyboard(game.window()));
        game.space();
        EXPECT_EQ(board_faults(game), "") << keys[0];
    }
}

TEST(Menus, TheProgramEndsByMenuAndCloseBox) {
    const std::vector<std::function<void(TwinGame&)>> ways{
        [](TwinGame& game) {
            press_keys(game, {"alt+f", "e"});
        },
        [](TwinGame& game) { game.screen().close(game.window()); },
    };
    for (const auto& leave : ways) {
        TwinGame game({program, 26});
        leave(game);
        EXPECT_EQ(game.program().exit_code(), 0);
        EXPECT_EQ(game.program().errors(), "");
    }
}

// A user who pokes at everything of the main window while a dialog waits in front of it.
void poke_main_window(TwinGame& game, XWindow dialog) {
    XDriver& screen = game.screen();
    const XPlace main = game.screen().place(game.window());
    const Spot stock = TwinGame::spot_on(frmcards.Image1(stock_image));
    for (const auto& [x, y] : {Spot{stock.x, stock.y + game.board().y}, {20, game.board().y / 2}}) {
        screen.click(main.x + x, main.y + y);
        // The dialog may have the keyboard back by now: only keys that mean nothing to it.
        for (const char* key : {"F2", "F3", "ctrl+q"}) screen.key(key);
        ASSERT_TRUE(game.gets_keyboard(dialog)) << "the dialog keeps the keyboard";
    }
    screen.close(game.window());
}

TEST(Menus, AreDeadWhileADialogIsOpen) {
    TwinGame game({program, 26});
    const std::vector<std::pair<Keys, std::string>> dialogs{{{"alt+f", "b"}, "Scores"},
                                                            {{"alt+s", "c"}, "Select Settings"}};
    for (const auto& [keys, title] : dialogs) {
        game.space();
        press_keys(game, keys);
        const XWindow dialog = game.wait_for(title);
        ASSERT_TRUE(game.gets_keyboard(dialog));
        poke_main_window(game, dialog);
        EXPECT_EQ(game.screen().windows_of(game.program().pid()).size(), 2U);
        EXPECT_EQ(game.screen().stacking().back(), dialog);
        // The clicks make the keyboard wander to the main window and back, for a moment yet.
        const auto escape_closes = [&game, &name = title] {
            game.screen().key("Escape");
            return !game.has(name);
        };
        ASSERT_TRUE(eventually(escape_closes)) << title;
        ASSERT_TRUE(game.gets_keyboard(game.window()));
        game.space();
        EXPECT_EQ(board_faults(game), "") << title;
    }
}

}  // namespace
}  // namespace tarnwick
