#include <gtest/gtest.h>

#include "platform/image.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "view/control_presses.h"
#include "view/dialog_keys.h"
#include "view/dialog_names.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

class DialogControls : public testing::Test {
  protected:
    DialogControls() { play.start(26); }

    // What Tab stops at in a dialog, as it is read out.
    static std::string stops(Form& form) {
        form.show();
        std::string names;
        for (const Widget* widget : form.tab_order()) {
            if (keyboard_use(*widget) == KeyboardUse::by_tab) names += spoken_name(*widget) + "; ";
        }
        return names;
    }

    Play play;
};

TEST_F(DialogControls, AreNamedAndVisitedByTab) {
    EXPECT_EQ(stops(frmFeatures),
              "Background Color; Text Color; Animate cards; Scale Cards To Fit Window; Display Messages; OK; "
              "Cancel; Misty; ")
        << "the options are one stop";
    EXPECT_EQ(keyboard_use(frmFeatures.optCardBack(1)), KeyboardUse::by_click);
    EXPECT_EQ(keyboard_use(frmFeatures.ImgCardBacks(1)), KeyboardUse::none);
    EXPECT_EQ(stops(frmBestScore), "OK; Clear Score; ");
    high_score_place = none;
    EXPECT_EQ(stops(frmyouwin), "Your Name; ");
    EXPECT_EQ(stops(frmError), "Resume Next; Close Game; ");
    EXPECT_EQ(spoken_title(frmyouwin), "Tarnwick");
    EXPECT_EQ(spoken_title(frmError), "Error");
    EXPECT_EQ(spoken_name(frmyouwin.Frame1) + ", " + spoken_name(frmyouwin.imgLogo),
              "Congratulations, Logo of Tarnwick");
    frmBestScore.lblGamesPlayed.set_caption("4");
    EXPECT_EQ(spoken_name(frmBestScore.lblGamesPlayed), "Games Played: 4");
    EXPECT_EQ(naming_label(frmBestScore.lblGamesPlayed), nullptr);
    EXPECT_EQ(naming_label(frmyouwin.txtYourName), &frmyouwin.Label1);
}

TEST_F(DialogControls, ChooseAnOptionWithArrowKeysCountedAround) {
    frmFeatures.show();
    const auto& options = frmFeatures.optCardBack;
    EXPECT_EQ(&option_beside(options(0), -1), &options(5));
    EXPECT_EQ(&option_beside(options(5), 1), &options(0));
    press(option_beside(options(0), 1));
    EXPECT_TRUE(options(1).on() && !options(0).on());
    EXPECT_TRUE(takes_keyboard_from(options(1), &options(0)));
    EXPECT_FALSE(takes_keyboard_from(options(0), &options(1)));
    EXPECT_FALSE(takes_keyboard_from(options(1), nullptr));
}

TEST_F(DialogControls, TakePressesWhileTheirWindowDoes) {
    frmFeatures.show();
    press(frmFeatures.ImgCardBacks(3));
    EXPECT_TRUE(frmFeatures.optCardBack(3).on());
    EXPECT_FALSE(is_pressable(frmyouwin.imgLogo) || is_pressable(frmFeatures.lblBackColor));
    play.desktop.answer_color(7);
    press(frmFeatures.txtBackColor);
    EXPECT_EQ(play.stored("back color"), "7");
    for (const std::string key : {" ", "\r", "\x7F", ""}) {
        EXPECT_FALSE(press_by_typing(frmFeatures.txtTextColor, key)) << "left to the button";
    }
    play.desktop.answer_color(9);
    EXPECT_TRUE(press_by_typing(frmFeatures.txtTextColor, "\u00E4"));
    EXPECT_EQ(play.stored("text color"), "9");

    const auto press_all = [] {
        frmFeatures.chkAnamate.click();
        frmFeatures.ImgCardBacks(1).click();
        for (Widget* widget : {static_cast<Widget*>(&frmFeatures.chkAnamate),
                               static_cast<Widget*>(&frmFeatures.optCardBack(2)),
                               static_cast<Widget*>(&frmFeatures.cmdOk)}) {
            press(*widget);
        }
    };
    frmFeatures.set_enabled(false);
    press_all();
    frmFeatures.set_enabled(true);
    desktop().event([] { press(frmFeatures.cmdOk); });
    EXPECT_TRUE(frmFeatures.loaded() && frmFeatures.chkAnamate.checked() && frmFeatures.optCardBack(3).on());
    press_all();
    EXPECT_FALSE(frmFeatures.loaded());
    EXPECT_FALSE(frmFeatures.chkAnamate.checked() != frmFeatures.optCardBack(2).on()) << "clicked twice";
}

TEST_F(DialogControls, AnswerEscapeEnterAndTheBackground) {
    frmFeatures.show();
    press_escape(frmFeatures);
    EXPECT_FALSE(frmFeatures.loaded());
    EXPECT_EQ(play.stored("card back"), "-");
    frmFeatures.show();
    press_enter(frmFeatures, &frmFeatures.chkAnamate);
    EXPECT_EQ(play.stored("card back"), "0") << "the default button";
    frmFeatures.show();
    press_enter(frmFeatures, &frmFeatures.cmdCancel);
    EXPECT_FALSE(frmFeatures.loaded()) << "the button that has the keyboard";
    frmFeatures.show();
    play.desktop.answer_color(7);
    press_enter(frmFeatures, &frmFeatures.txtBackColor);
    EXPECT_EQ(play.stored("back color"), "7");

    frmyouwin.show();
    int clicks = 0;
    frmyouwin.on_click = [&clicks] { ++clicks; };
    press_escape(frmyouwin);
    press_enter(frmyouwin, &frmyouwin.txtYourName);
    EXPECT_TRUE(frmyouwin.loaded()) << "half a name is not entered";
    BackgroundPress background(frmyouwin);
    for (const auto& [down, up] : {std::pair{true, true}, {true, false}, {false, true}}) {
        background.pressed(down);
        background.released(up);
    }
    background.released(true);
    EXPECT_EQ(clicks, 1);
    frmyouwin.on_click = nullptr;
}

}  // namespace
}  // namespace tarnwick
