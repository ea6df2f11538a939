#include "notation/game_recorder.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "notation/position.h"
#include "notation/record_player.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmBestScore.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// A player who grabs cards anywhere and drops them anywhere, in a window of changing size, while cards slide.
void play_wildly(Play& play, std::mt19937& random) {
    const auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<std::uint32_t>(limit));
    };
    const auto any_pile = [&] {
        return below(5) == 0 ? tablet_pile : below(4) == 0 ? ace_pile(below(4)) : below(10);
    };
    if (frmyouwin.visible()) frmyouwin.txtYourName.key_down(13);
    if (frmBestScore.visible()) frmBestScore.cmdOk.click();
    const int choice = below(100);
    if (choice < 50) return play.drag(any_pile(), any_pile(), static_cast<float>(below(70)) * card_scale);
    if (choice < 60) return play.click(any_pile());
    if (choice < 70) return play.click_stock();
    if (choice < 80) return play.space();
    if (choice < 88) return play.desktop.advance(below(300));
    if (choice < 94) return frmcards.mnuUndo.choose();
    if (choice < 98) return frmcards.user_resized({500 + below(1200), 400 + below(700)});
    (choice == 98 ? frmcards.mnuRestart : frmcards.mnuNew).choose();
}

TEST(GameRecorder, WritesAGameThatComesOutTheSame) {
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        std::stringstream record;
        std::string end;
        {
            GameRecorder recorder(record);
            Play play;
            play.start(seed);
            recorder.begin();
            std::mt19937 random(seed);
            for (int i = 0; i < 600; ++i) play_wildly(play, random);
            play.space();  // A deal of the last moment is written with its first action.
            end = position_text();
        }
        RecordPlayer player;
        for (const Action& action : parse_record(record.str())) player.play(action);
        ASSERT_EQ(position_text(), end) << "seed " << seed;
    }
}

TEST(GameRecorder, EndsWithItsStream) {
    std::ostream nowhere(nullptr);
    GameRecorder recorder(nowhere);
    Play play;
    play.start();
    recorder.begin();
    EXPECT_EQ(play.message(),
              "The record of the game could not be written: it ends here, and the game goes on without it.");
    play.space();
    EXPECT_EQ(play.message(), "") << "told once";
}

}  // namespace
}  // namespace tarnwick
