#include <gtest/gtest.h>

#include "notation/position_text.h"
#include "state/soundness.h"
#include "state/variables.h"
#include "tests/support/play.h"
#include "windows/frmCommon.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

TEST(MainWindow, TakesItsSizeFromTheScreen) {
    const struct {
        PixelSize screen, window;
    } cases[] = {{{1024, 768}, {1014, 758}},
                 {{800, 600}, {790, 590}},
                 {{799, 900}, {800, 600}},
                 {{640, 480}, {800, 600}}};
    for (const auto& [screen, window] : cases) {
        Play play(screen);
        play.start();
        EXPECT_EQ(frmcards.outer_size(), window);
        EXPECT_EQ(x_scale, static_cast<float>(window.width) / 800);
        EXPECT_EQ(frmcards.LblScore.top(), static_cast<float>(window.height - 70));
        EXPECT_LT(frmcards.LblScore.place().bottom(), static_cast<float>(frmcards.client_size().height));
        EXPECT_EQ(state_faults(), "");
        EXPECT_EQ(display_faults(), "");
        frmcards.user_resized({900, 500});
        EXPECT_EQ(frmcards.LblScore.top(), 480);
    }
}

TEST(MainWindow, GivesTheSecondPackTheFacesOfTheFirst) {
    Play play;
    play.start();
    for (const auto& [picture, like] :
         {std::pair{213, 201}, {224, 212}, {238, 226}, {274, 262}, {299, 287}}) {
        EXPECT_EQ(frmcards.Image1(picture).picture(), frmcards.Image1(like).picture()) << picture;
    }
    EXPECT_EQ(frmcards.Image1(299).picture(), face_picture(clubs, king));
}

TEST(MainWindow, HasTheMenusItIsKnownFor) {
    std::string text;
    for (const Menu& menu : frmcards.menus()) {
        text += menu.caption + ": ";
        for (const MenuEntry* entry : menu.entries) text += entry->caption() + " " + entry->shortcut() + ", ";
    }
    EXPECT_EQ(text,
              "&File: &New Game F2, &Restart Game F3, &Best Score , &Exit Ctrl+Q, "
              "&Settings: &Undo Ctrl+U, &Change Settings , &Help: &Help F1, ");
}

TEST(MainWindow, StartsWithAStoreThatNoOneCanRead) {
    Play play;
    for (const char* key : {"card back", "back color", "text color", "scale cards"})
        play.save(key, "rubbish");
    play.start();
    EXPECT_TRUE(frmcards.visible());
    EXPECT_FALSE(play.desktop.messages().empty()) << "the player is told";
}

TEST(Help, OpensTheHelpFileAndSaysNothingWhenThereIsNone) {
    Play play;
    play.start();
    frmcards.mnuAbout.choose();
    EXPECT_EQ(play.desktop.help_shown(), std::vector<std::string>{"Tarnwick.hlp"});
    play.desktop.set_help_found(false);
    frmcards.mnuAbout.choose();
    EXPECT_EQ(play.message(), "");
    EXPECT_FALSE(frmCommon.visible());
}

TEST(Menu, EntryThatIsHiddenCannotBeChosen) {
    Play play;
    play.start();
    const std::string deal = position_text();
    frmcards.mnuUndo.choose();
    EXPECT_EQ(position_text(), deal);
    EXPECT_EQ(undo_count(), 0);
}

TEST(Drag, LiftsTheRunThatLiesOnTheCard) {
    Play play;
    play.start("0: K♠ Q♥ J♠\nace 0: A♠ 2♠");
    const Image& queen_image = frmcards.Image1(211);
    frmcards.mouse().press(queen_image.left() + 9, queen_image.top() + 5);
    std::vector<int> lifted;
    for (const Image* image : frmcards.mouse().lifted()) lifted.push_back(image->index());
    EXPECT_EQ(lifted, (std::vector<int>{211, 235}));
    frmcards.mouse().cancel();
    // Of an ace pile the top card moves, also when the card beneath was taken hold of.
    frmcards.mouse().press(225, 30);
    ASSERT_EQ(frmcards.mouse().dragged(), nullptr) << "the plain ace cannot be dragged";
    EXPECT_EQ(display_faults(), "");
}

}  // namespace
}  // namespace tarnwick
