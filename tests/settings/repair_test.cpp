#include "settings/repair.h"

#include <gtest/gtest.h>

#include "settings/settings.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

TEST(Repair, SetsDamagedValuesBackInOneMessageAndKeepsThem) {
    const std::string megabyte(1000000, '9');
    struct {
        const char* key;
        std::string text;
        const char* usual;  // nullptr: sound
    } const stored[] = {{"card back", "6", "0"},
                        {"back color", "green", "32768"},
                        {"text color", "4294967296", "0"},
                        {"scale cards", "yes", "True"},
                        {"show message", "", "True"},
                        {"anamate", "-1", nullptr},
                        {"games played", megabyte, "0"},
                        {"games won", "one", "0"},
                        {"average score", "1e1", nullptr},
                        {"high score 1", " 7.5 ", nullptr},
                        {"high score 3", "NaN", "0"},
                        {"high score name 1", "card back", nullptr},
                        {"high score date 1", "never", nullptr}};
    Play play;
    for (const auto& [key, text, usual] : stored) play.save(key, text);
    play.save("card back (damaged)", "an earlier one");
    play.start();
    ASSERT_EQ(play.desktop.messages().size(), 1U);
    const std::string message = play.message();
    for (const auto& [key, text, usual] : stored) {
        const bool listed = message.find('"' + std::string(key) + '"') != std::string::npos;
        EXPECT_EQ(listed, usual != nullptr) << key;
        EXPECT_EQ(play.stored(key), usual ? usual : text);
        const std::string kept =
            key == std::string("card back") ? "card back (damaged 2)" : key + std::string(" (damaged)");
        EXPECT_EQ(play.stored(kept) == text, usual != nullptr) << key;
    }
    EXPECT_EQ(play.stored("card back (damaged)"), "an earlier one");
    EXPECT_LT(message.size(), 400U);
    end_program();
    start_program(play.store);
    EXPECT_EQ(play.message(), "") << "told once";
    EXPECT_FALSE(frmError.loaded());
}

TEST(Repair, LeavesADamageOfTheRunningProgramToItsRoutines) {
    Play play;
    play.start("0: 7♠\nscore: 40");
    play.save("card back", "7");
    frmcards.mnuRestart.choose();
    EXPECT_FALSE(frmError.loaded());
    play.save("high score 5", "many");
    score = 40;
    frmcards.mnuNew.choose();
    EXPECT_TRUE(frmError.visible());
    EXPECT_EQ(play.stored("high score 5") + play.stored("card back"), "many7") << "nothing is set back";
}

TEST(Statistics, ShowNoMoreThanTheBeginningOfALongText) {
    Play play;
    std::string longest;
    for (int i = 0; i < 200; ++i) longest += "é";
    play.save("high score name 1", longest + "é");
    play.save("high score name 2", longest);
    play.start();
    frmcards.mnuScore.choose();
    EXPECT_EQ(frmBestScore.lblHighScoreName(1).caption(), longest + "…");
    EXPECT_EQ(frmBestScore.lblHighScoreName(2).caption(), longest);
    EXPECT_EQ(play.stored("high score name 1"), longest + "é");
}

}  // namespace
}  // namespace tarnwick
