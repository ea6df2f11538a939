#include "notation/game_recorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "notation/position_text.h"
#include "notation/record_player.h"
#include "state/variables.h"
#include "tests/store/scratch_folder.h"
#include "tools/driver/play.h"
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
    const int choice = below(100);
    if (choice < 50) {
        play.drag(any_pile(), any_pile(), static_cast<float>(below(70)) * card_scale);
    } else if (choice < 60) {
        play.click(any_pile());
    } else if (choice < 70) {
        play.click_stock();
    } else if (choice < 80) {
        play.space();
    } else if (choice < 88) {
        play.desktop.advance(below(300));
    } else if (choice < 94) {
        frmcards.mnuUndo.choose();
    } else if (choice < 98) {
        frmcards.user_resized({500 + below(1200), 400 + below(700)});
    } else {
        (choice == 98 ? frmcards.mnuRestart : frmcards.mnuNew).choose();
    }
    if (frmyouwin.visible()) frmyouwin.txtYourName.key_down(13);
    if (frmBestScore.visible()) frmBestScore.cmdOk.click();
}

TEST(GameRecorder, WritesAGameThatComesOutTheSame) {
    const ScratchFolder folder("record");
    const std::string name = folder / "game.txt";
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        std::filesystem::remove(name);
        std::string end;
        {
            GameRecorder recorder(name);
            Play play;
            play.start(seed);
            recorder.begin();
            std::mt19937 random(seed);
            for (int i = 0; i < 600; ++i) play_wildly(play, random);
            play.space();  // A deal of the last moment is written with its first action.
            end = position_text();
        }
        RecordPlayer player;
        for (const Action& action : parse_record(ScratchFolder::contents(name))) player.play(action);
        ASSERT_EQ(position_text(), end) << "seed " << seed;
    }
}

TEST(GameRecorder, TellsOnceWhenTheDiskIsFull) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "this system has no full device";
    GameRecorder recorder("/dev/full");
    Play play;
    play.start();
    recorder.begin();
    play.space();
    EXPECT_NE(play.message().find("could not be written to /dev/full"), std::string::npos);
    play.space();
    EXPECT_EQ(play.message(), "");
}

}  // namespace
}  // namespace tarnwick
