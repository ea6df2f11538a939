#pragma once

#include <gtest/gtest.h>

#include "state/variables.h"
#include "tests/desktop/tested_program.h"
#include "tools/driver/board_picture.h"
#include "tools/driver/eventually.h"
#include "tools/driver/twin_game.h"

namespace tarnwick {

inline const std::map<std::string, std::string> without_slides{{"anamate", "False"}};
inline constexpr int column_of_ace = 4;

/// Scores a point for the ace, and one for the card under it.
inline void score_two(TwinGame& game) {
    game.click(column_of_ace);
    game.headless().desktop.advance(1000);
    ASSERT_EQ(score, 2);
    ASSERT_EQ(board_faults(game), "");
}

/// Opens a dialog of the real game with keys, and waits until it has the keyboard.
inline void open(TwinGame& game, const std::vector<std::string>& keys, const std::string& title) {
    for (const std::string& key : keys) game.screen().key(key);
    ASSERT_TRUE(game.gets_keyboard(game.wait_for(title))) << title;
}

/// Closes a dialog of the real game with a key; the window behind it then has the keyboard.
inline void leave(TwinGame& game, const std::string& key, const std::string& title, XWindow behind) {
    game.screen().key(key);
    ASSERT_TRUE(game.goes(title)) << title;
    ASSERT_TRUE(game.gets_keyboard(behind)) << title;
}

/// Ends the game, whose score is a best one, and types a name without confirming it.
inline void ask_for_name(TwinGame& game, const std::string& name) {
    open(game, {"F2"}, win_title);
    game.screen().type(name);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
}

}  // namespace tarnwick
