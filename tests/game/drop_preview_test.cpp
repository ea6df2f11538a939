#include <gtest/gtest.h>

#include "state/variables.h"
#include "tests/play/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

TEST(DropPreview, APointerThatMovesOnTellsTheReceiver) {
    Play play;
    play.start(26);
    Image& jack = top_image(6);
    Mouse& mouse = frmcards.mouse();
    mouse.press(jack.left() + 30, jack.top() + 30);
    EXPECT_EQ(mouse.receiver(), nullptr) << "a press alone marks nothing";
    mouse.move(top_image(2).left() + 30, top_image(2).top() + 30);
    EXPECT_EQ(mouse.receiver(), nullptr) << "a Jack on a King";
    mouse.move(top_image(9).left() + 30, top_image(9).top() + 30);
    EXPECT_EQ(mouse.receiver(), &top_image(9)) << "the Jack of Diamonds on the Queen of Clubs";
    mouse.move(top_image(8).left() + 60, top_image(8).top() + 30);
    EXPECT_EQ(mouse.receiver(), &top_image(9)) << "its neighbour, near the edge";
    mouse.move(top_image(9).left() + 30, top_image(9).top() + 30);
    mouse.cancel();
    EXPECT_EQ(mouse.receiver(), nullptr) << "a drag that was given up";
    const Image& zone = top_image(ace_pile(1));
    mouse.press(top_image(4).left() + 30, top_image(4).top() + 30);
    mouse.move(top_image(4).left() + 60, top_image(4).top() + 30);
    EXPECT_EQ(mouse.receiver(), nullptr) << "the ace goes up and not to its neighbour, the 2 of Hearts";
    mouse.move(zone.left() + 5, zone.top() + 50);
    EXPECT_EQ(mouse.receiver(), &frmcards.Shape1(1))
        << "the ace of Clubs on an empty pile, seen by its outline";
    mouse.cancel();
}

}  // namespace
}  // namespace tarnwick
