#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmCommon.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

struct Question : testing::Test {
    Question() {
        play.start("0: 9♦\n1: 10♠\n2: K♥\ntablet: ..");
        frmcards.Timer1.on_tick = [this] { ++ticks; };
        frmcards.Timer1.set_interval(10);
        frmcards.Timer1.set_enabled(true);
        play.desktop.leave_questions_open();
    }
    Play play;
    int ticks = 0;
};

TEST_F(Question, KeepsEverythingElseWaitingUntilItIsAnswered) {
    frmcards.mouse().press(top_image(0).left() + 9, top_image(0).top() + 9);
    const Image& target = top_image(1);
    play.desktop.after_event([this] {
        play.desktop.notify({"Tarnwick", "first"});
        play.desktop.notify({"Tarnwick", "second"});
    });
    const std::string before = position_text();
    for (const char* open : {"first", "second"}) {
        frmcards.mouse().release(target.left() + 9, target.top() + 9);
        play.act("turn, drag 0 1, undo, restart");
        play.space();
        frmcards.mnuScore.choose();
        frmcards.click_background();
        frmcards.close();
        play.desktop.advance(1000);
        play.desktop.sleep(1000);
        EXPECT_TRUE(frmcards.visible() && !frmBestScore.visible());
        EXPECT_EQ(position_text(), before);
        EXPECT_EQ(ticks, 0);
        EXPECT_EQ(play.message(), open) << "one at a time";
        play.desktop.answer(MessageAnswer::ok);
    }
    EXPECT_FALSE(play.desktop.in_event());
    play.act("drag 0 1");
    EXPECT_TRUE(shows("0: -\n1: 10♠ 9♦"));
    play.desktop.advance(10);
    EXPECT_GE(ticks, 1);
}

TEST_F(Question, GoesOnWithItsAnswerInAnEventOfItsOwn) {
    std::string heard;
    play.desktop.event([&] {
        play.desktop.ask({"Tarnwick", "sure?", MessageButtons::ok_cancel}, [&](MessageAnswer answer) {
            heard += answer == MessageAnswer::ok ? "ok" : "cancel";
            EXPECT_TRUE(play.desktop.in_event() && !play.desktop.asking());
            throw std::runtime_error("no such card");
        });
        heard += "asked ";
    });
    EXPECT_EQ(play.message(), "sure?");
    play.desktop.answer(MessageAnswer::ok);
    EXPECT_EQ(heard, "asked ok");
    EXPECT_NE(play.message().find("no such card"), std::string::npos);
    play.desktop.answer(MessageAnswer::ok);
    play.desktop.answer(MessageAnswer::ok);
    EXPECT_EQ(heard, "asked ok") << "nothing is open any more";
}

TEST_F(Question, OfTheDialogsIsAnsweredLater) {
    play.save("games played", "3");
    frmcards.mnuScore.choose();
    frmBestScore.cmdClearScore.click();
    frmBestScore.cmdOk.click();
    EXPECT_TRUE(frmBestScore.visible());
    EXPECT_EQ(play.stored("games played"), "3");
    play.desktop.answer(MessageAnswer::ok);
    EXPECT_EQ(play.stored("games played"), "0");
    frmBestScore.cmdOk.click();
    frmcards.mnuSetings.choose();
    frmFeatures.txtBackColor.type("x");
    frmFeatures.cmdCancel.click();
    play.desktop.answer(MessageAnswer::ok, 7);
    EXPECT_EQ(play.stored("back color"), "7");
    EXPECT_EQ(frmFeatures.txtBackColor.text(), "");
    EXPECT_TRUE(frmFeatures.visible() && !frmCommon.loaded());
}

TEST_F(Question, IsCancelledWhenTheProgramEnds) {
    for (const bool at_once : {false, true}) {
        std::string answers;
        if (at_once) play.desktop.leave_unattended();
        play.desktop.ask({"Tarnwick", "sure?"}, [&](MessageAnswer answer) {
            answers += answer == MessageAnswer::cancel ? "cancelled " : "answered ";
        });
        play.desktop.pick_color("Text Color",
                                [&](std::optional<Color> color) { answers += color ? "picked" : "none"; });
        EXPECT_EQ(answers, at_once ? "cancelled none" : "");
        if (!at_once) end_program();
        EXPECT_EQ(answers, "cancelled none");
        EXPECT_FALSE(play.desktop.in_event());
    }
}

}  // namespace
}  // namespace tarnwick
