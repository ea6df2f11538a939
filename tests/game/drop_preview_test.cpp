#include "game/drop_preview.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "game/deal.h"
#include "game/drop_dispatch.h"
#include "game/tablet.h"
#include "notation/position_text.h"
#include "state/variables.h"
#include "tools/driver/play.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

std::vector<Image*> visible_images(bool faces_only) {
    std::vector<Image*> images;
    for (Widget* widget : frmcards.widgets()) {
        if (widget->kind() != WidgetKind::image || !widget->visible()) continue;
        Image* image = static_cast<Image*>(widget);
        if (!faces_only || image->drag_mode() == DragMode::automatic) images.push_back(image);
    }
    return images;
}

// The pile that the last drop has brought a card to; none when it was refused.
int receiver_since(int records_before) {
    return undo_count() == records_before ? none : int{undo_list(0, 1)};
}

TEST(DropPreview, ForetellsEveryDropOfRandomGames) {
    Play play({1280, 1024});
    play.save("anamate", "False");
    play.save("show message", "False");
    std::mt19937 random(1);
    const auto one_of = [&](const std::vector<Image*>& images) { return images[random() % images.size()]; };
    int taken = 0;
    int by_neighbour = 0;
    play.start(1);
    for (int drop = 0; drop < 60'000; ++drop) {
        if (drop % 400 == 0) new_game();
        if (drop % 20 == 0) next_tablet_card();
        const Image& source = *one_of(visible_images(true));
        const Image& target = *one_of(visible_images(false));
        const auto x = static_cast<float>(random() % 1065);
        const std::string before = position_text();
        const int foretold = receiver_of_drop(target, source, x);
        ASSERT_EQ(position_text(), before) << "looking ahead has changed the game";
        const Drop asked = drop_of(source, target, x);
        const bool onto_own_pile = asked.first == asked.source || asked.second == asked.source;
        const bool neighbour = foretold != none && foretold == asked.second;
        const int records = undo_count();
        drop_on_image(target.index(), source, x);
        // A card that goes up by itself has no receiver under it.
        if (onto_own_pile && foretold == none) continue;
        ASSERT_EQ(foretold, receiver_since(records)) << before << source.index() << " on " << target.index();
        taken += foretold != none ? 1 : 0;
        by_neighbour += neighbour ? 1 : 0;
    }
    EXPECT_GT(taken, 1000);
    EXPECT_GT(by_neighbour, 50);
}

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
    mouse.move(790, 590);
    EXPECT_EQ(mouse.receiver(), nullptr) << "the bare table";
    mouse.move(top_image(9).left() + 30, top_image(9).top() + 30);
    mouse.cancel();
    EXPECT_EQ(mouse.receiver(), nullptr) << "a drag that was given up";
    const Image& zone = top_image(ace_pile(1));
    mouse.press(top_image(4).left() + 30, top_image(4).top() + 30);
    mouse.move(zone.left() + 5, zone.top() + 50);
    EXPECT_EQ(mouse.receiver(), &frmcards.Shape1(1))
        << "the ace of Clubs on an empty pile, seen by its outline";
    mouse.cancel();
}

}  // namespace
}  // namespace tarnwick
