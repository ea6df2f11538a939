#include "tests/desktop/reach.h"
#include "windows/frmBestScore.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

const char* const program = tested_program();
constexpr const char* settings_title = "Select Settings";

// The middle of a control on the screen, wherever the dialog is and however much it is enlarged.
Spot middle(TwinGame& game, XWindow dialog, const Widget& control) {
    const XPlace place = game.screen().place(dialog);
    const float scale =
        static_cast<float>(place.width) / static_cast<float>(control.form().client_size().width);
    float x = control.left() + control.width() / 2;
    float y = control.top() + control.height() / 2;
    if (control.container()) {
        x += control.container()->left();
        y += control.container()->top();
    }
    return {place.x + static_cast<int>(x * scale), place.y + static_cast<int>(y * scale)};
}

void click_control(TwinGame& game, XWindow dialog, const Widget& control) {
    const Spot spot = middle(game, dialog, control);
    game.screen().click(spot.x, spot.y);
}

// Opens the settings in both games.
XWindow open_settings(TwinGame& game) {
    open(game, {"alt+s", "c"}, settings_title);
    frmcards.mnuSetings.choose();
    return game.wait_for(settings_title);
}

// Chooses the fourth back and unticks two boxes in both games.
void change_settings(TwinGame& game, XWindow dialog) {
    click_control(game, dialog, frmFeatures.ImgCardBacks(3));
    click_control(game, dialog, frmFeatures.chkAnamate);
    click_control(game, dialog, frmFeatures.chkScaleCards);
    frmFeatures.ImgCardBacks(3).click();
    frmFeatures.chkAnamate.click();
    frmFeatures.chkScaleCards.click();
}

TEST(Settings, AreTakenOverAndKept) {
    TwinGame game({program, 26});
    const QImage before = expected_board();
    change_settings(game, open_settings(game));
    game.screen().key("Return");
    frmFeatures.cmdOk.click();
    EXPECT_TRUE(game.goes(settings_title));
    for (const auto& [key, text] : {std::pair{"card back", "3"},
                                    {"anamate", "False"},
                                    {"scale cards", "False"},
                                    {"show message", "True"}}) {
        EXPECT_EQ(game.stored(key), text);
    }
    ASSERT_NE(expected_board(), before);
    EXPECT_EQ(board_faults(game), "");
    game.screen().key("ctrl+q");
    ASSERT_EQ(game.program().exit_code(), 0);
    game.restart({{"card back", "3"}, {"scale cards", "False"}, {"anamate", "False"}});
    EXPECT_EQ(board_faults(game), "") << "after a restart";
}

TEST(Settings, AreLeftAloneByCancelEscapeAndCloseBox) {
    TwinGame game({program, 26});
    for (const std::string way : {"Cancel", "Escape", "close box"}) {
        const XWindow dialog = open_settings(game);
        change_settings(game, dialog);
        if (way == "Cancel") click_control(game, dialog, frmFeatures.cmdCancel);
        if (way == "Escape") game.screen().key("Escape");
        if (way == "close box") game.screen().close(dialog);
        frmFeatures.cmdCancel.click();
        ASSERT_TRUE(game.goes(settings_title)) << way;
        ASSERT_TRUE(game.gets_keyboard(game.window())) << way;
        game.space();
        EXPECT_EQ(game.stored("card back"), "-") << way;
        EXPECT_EQ(game.stored("anamate"), "-") << way;
        EXPECT_EQ(board_faults(game), "") << way;
    }
}

TEST(Settings, AColorIsPickedInADialogOfItsOwn) {
    TwinGame game({program, 26});
    const XWindow dialog = open_settings(game);
    const std::string title = "Background Color";
    click_control(game, dialog, frmFeatures.txtBackColor);
    const XWindow picker = game.wait_for(title);
    ASSERT_TRUE(game.gets_keyboard(picker));
    const XPlace seen = game.screen().place(picker);
    const Spot swatch = middle(game, dialog, frmFeatures.txtBackColor);
    EXPECT_FALSE(swatch.x >= seen.x && swatch.x < seen.x + seen.width && swatch.y >= seen.y &&
                 swatch.y < seen.y + seen.height)
        << "the picker covers the swatch";
    leave(game, "Escape", title, dialog);
    // A swatch has the keys of a button, and takes any character for one.
    for (const char* key : {"space", "Return", "x"}) {
        game.screen().key("BackSpace");
        open(game, {key}, title);
        leave(game, "Escape", title, dialog);
    }
    EXPECT_EQ(game.stored("back color"), "-");
    open(game, {"space"}, title);
    leave(game, "Return", title, dialog);
    EXPECT_TRUE(eventually([&] { return game.stored("back color") == "16777215"; }))
        << "it begins with white";
    open(game, {"Tab", "space"}, "Text Color");
    leave(game, "Escape", "Text Color", dialog);
    leave(game, "Escape", settings_title, game.window());
    frmFeatures.cmdCancel.click();
    EXPECT_EQ(board_faults(game), "") << "cancelled, the table keeps its colour";
}

TEST(Settings, TheBackIsChosenWithArrowKeysFromOneStopOfTab) {
    TwinGame game({program, 26});
    open_settings(game);
    for (const std::string key : {"shift+Tab", "Right", "Down", "Left", "Tab", "shift+Tab", "Up", "Up"}) {
        game.screen().key(key);
    }
    leave(game, "Return", settings_title, game.window());
    frmFeatures.unload();
    EXPECT_EQ(game.stored("card back"), "5");
}

TEST(Settings, OneThatCannotBeUsedIsToldAndReplaced) {
    TwinGame game({program, 26, {{"card back", "7"}}});
    ASSERT_EQ(game.headless().desktop.messages().size(), 1U);
    open(game, {}, "Tarnwick");
    leave(game, "Return", "Tarnwick", game.window());
    EXPECT_EQ(game.stored("card back"), "0");
    game.space();
    EXPECT_EQ(board_faults(game), "") << "with the usual back";
}

TEST(Statistics, AreClearedAfterAQuestion) {
    TwinGame game({program, 26, {{"games played", "3"}, {"games won", "2"}, {"high score 1", "150"}}});
    open(game, {"alt+f", "b"}, "Scores");
    const XWindow dialog = game.wait_for("Scores");
    // The controls are where they are stored, opened here or not.
    frmBestScore.load();
    for (const auto& [key, best] : {std::pair{"Escape", "150"}, {"Return", "0"}}) {
        click_control(game, dialog, frmBestScore.cmdClearScore);
        open(game, {}, "Clear Scores?");
        leave(game, key, "Clear Scores?", dialog);
        EXPECT_TRUE(eventually([&, &wanted = best] { return game.stored("high score 1") == wanted; })) << key;
    }
}

}  // namespace
}  // namespace tarnwick
