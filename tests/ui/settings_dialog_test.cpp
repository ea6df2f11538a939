#include <gtest/gtest.h>

#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmCommon.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

class SettingsDialog : public testing::Test {
  protected:
    void open() {
        if (!frmcards.loaded()) play.start();
        frmcards.mnuSetings.choose();
    }
    // The stored texts of card back, colours, scaling, messages and animation.
    std::string stored() {
        std::string texts;
        for (const char* key :
             {"card back", "back color", "text color", "scale cards", "show message", "anamate"}) {
            texts += play.stored(key) + ' ';
        }
        return texts;
    }
    int bordered_back() {
        int bordered = -1;
        for (int i = 0; i < back_count; ++i) {
            if (frmFeatures.ImgCardBacks(i).bordered()) bordered = bordered == -1 ? i : 99;
            EXPECT_EQ(frmFeatures.optCardBack(i).on(), frmFeatures.ImgCardBacks(i).bordered());
        }
        return bordered;
    }

    Play play;
};

TEST_F(SettingsDialog, ShowsWhatIsStored) {
    play.save("card back", "4");
    play.save("anamate", "False");
    play.save("scale cards", "0");
    play.save("show message", "-1");
    play.save("back color", "255");
    play.save("text color", "16777215");
    open();
    EXPECT_FALSE(frmcards.enabled());
    EXPECT_EQ(bordered_back(), 4);
    EXPECT_FALSE(frmFeatures.chkAnamate.checked() || frmFeatures.chkScaleCards.checked());
    EXPECT_TRUE(frmFeatures.chkDisplayMes.checked());
    EXPECT_EQ(frmFeatures.txtBackColor.back_color(), 255);
    EXPECT_EQ(frmFeatures.txtTextColor.text_color(), 16777215);
    EXPECT_EQ(frmcards.back_color(), 255) << "the table as well, from the start";
    EXPECT_EQ(frmcards.LblScore.text_color(), 16777215);
    EXPECT_EQ(frmcards.Shape1(14).border_color(), 16777215);
    EXPECT_EQ(frmcards.Image1(stock_image).picture(), back_picture(4));
}

TEST_F(SettingsDialog, ConfirmedUntouchedRewritesEverythingButTheScaling) {
    open();
    x_scale = 3;  // a rescaling would measure nothing, but lay out by this
    frmFeatures.cmdOk.click();
    EXPECT_EQ(card_scale, 1);
    EXPECT_EQ(stored(), "0 32768 0 - True True ");
    EXPECT_FALSE(frmFeatures.loaded());
    EXPECT_TRUE(frmcards.enabled());
}

TEST_F(SettingsDialog, SavesAndAppliesTheChoices) {
    play.start();
    frmcards.user_resized({1198, 700});
    open();
    frmFeatures.optCardBack(2).click();
    EXPECT_EQ(bordered_back(), 2);
    // A click on a back chooses it like its option button.
    frmFeatures.ImgCardBacks(5).click();
    EXPECT_EQ(bordered_back(), 5);
    for (CheckBox* box : {&frmFeatures.chkScaleCards, &frmFeatures.chkAnamate, &frmFeatures.chkDisplayMes}) {
        box->click();
    }
    EXPECT_EQ(stored(), "- - - - - - ") << "nothing is saved yet";
    frmFeatures.cmdOk.click();
    EXPECT_EQ(stored(), "5 32768 0 False False False ");
    EXPECT_EQ(card_scale, 1);
    EXPECT_EQ(display_faults(), "");
    open();
    frmFeatures.chkScaleCards.click();
    frmFeatures.cmdOk.click();
    EXPECT_EQ(play.stored("scale cards"), "True");
    EXPECT_EQ(card_scale, 1.5F);
    EXPECT_EQ(display_faults(), "");
}

TEST_F(SettingsDialog, SavesAPickedColorAtOnceButShowsItOnConfirmation) {
    open();
    frmFeatures.txtBackColor.click();
    EXPECT_EQ(play.stored("back color"), "-") << "the picker was cancelled";
    EXPECT_EQ(play.message(), "");
    play.desktop.answer_color(color_of(1, 2, 3));
    frmFeatures.txtBackColor.click();
    EXPECT_EQ(play.stored("back color"), "197121");
    EXPECT_EQ(frmFeatures.txtBackColor.text_color(), 197121);
    EXPECT_FALSE(frmCommon.loaded());
    frmFeatures.cmdCancel.click();
    EXPECT_EQ(frmcards.back_color(), 32768);
    open();
    EXPECT_EQ(frmFeatures.txtBackColor.back_color(), 197121);
    play.desktop.answer_color(7);
    frmFeatures.txtTextColor.type("x");
    EXPECT_EQ(play.stored("text color"), "7") << "typing into the swatch picks too";
    frmFeatures.cmdOk.click();
    EXPECT_EQ(frmcards.back_color(), 197121);
    EXPECT_EQ(frmcards.LblScoreMax.back_color(), 197121);
    EXPECT_EQ(frmcards.lblScoreText.text_color(), 7);
    EXPECT_EQ(frmcards.Shape1(0).border_color(), 7);
}

}  // namespace
}  // namespace tarnwick
