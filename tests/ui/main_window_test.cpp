#include <gtest/gtest.h>

#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

TEST(MainWindow, TakesItsSizeFromTheScreen) {
    const struct {
        PixelSize screen, window;
    } cases[] = {{{1024, 768}, {1014, 758}}, {{800, 600}, {790, 590}}, {{799, 900}, {800, 600}}};
    for (const auto& [screen, window] : cases) {
        Play play(screen);
        play.start();
        EXPECT_EQ(frmcards.outer_size(), window);
        EXPECT_EQ(frmcards.LblScore.top(), static_cast<float>(window.height - 70));
        EXPECT_EQ(state_faults() + display_faults(), "");
        frmcards.user_resized({900, 500});
        EXPECT_EQ(frmcards.LblScore.top(), 480);
    }
}

TEST(Drag, LiftsTheRunThatLiesOnTheCard) {
    Play play;
    play.start("0: K♠ Q♥ J♠\n4: 2♠\nace 0: A♠\nace 1: A♥ 2♥ 2♥'");
    const auto lifted_at = [](const Image& image) {
        frmcards.mouse().press(image.left() + 9, image.top() + 5);
        std::vector<int> lifted;
        for (const Image* card : frmcards.mouse().lifted()) lifted.push_back(card->index());
        frmcards.mouse().cancel();
        return lifted;
    };
    EXPECT_EQ(lifted_at(frmcards.Image1(211)), (std::vector<int>{211, 235}));
    EXPECT_EQ(lifted_at(frmcards.Image1(201)), std::vector<int>{213}) << "the pile's top card is what moves";
    frmcards.mnuUndo.choose();
    EXPECT_EQ(undo_count(), 0) << "an entry that is hidden cannot be chosen";
    play.drag(4, ace_pile(0));
    ASSERT_TRUE(frmcards.Image1(plain_ace_image).visible());
    EXPECT_EQ(lifted_at(frmcards.Image1(plain_ace_image)), std::vector<int>{}) << "it stays where it is";
}

}  // namespace
}  // namespace tarnwick
