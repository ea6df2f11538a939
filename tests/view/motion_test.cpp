// What is seen of cards on their way, with a clock that moves only when told to.

#include <functional>

#include "settings/settings.h"
#include "state/variables.h"
#include "tests/view/shown_board.h"

namespace tarnwick {
namespace {

class MotionTest : public ShownBoard {
  protected:
    void pass(int milliseconds) {
        for (int i = 0; i < milliseconds; ++i) ShownBoard::pass(1);
    }
    /// Drops the card in front of a column on another, so many pixels to the left of it.
    void drop(int from, int to, float aside = 20) {
        const Image& target = top_image(to);
        ShownBoard::drop(from, {target.left() + 30 - aside, target.place().bottom() - 30});
    }
    void turn() {
        stage.key_down(' ');
        expect_shown();
    }
    void undo() {
        frmcards.mnuUndo.choose();
        expect_shown();
    }
    /// Where an image is seen, and whether it is in front of all others; by its picture.
    const PaintedImage* seen(const Image& image) {
        const PaintedImage* found = nullptr;
        for (const PaintedImage& painted : game.layers().images) {
            if (painted.picture == image.picture()) found = &painted;
        }
        return found;
    }
    int left(const Image& image) { return seen(image)->place.left; }
    bool in_front(const Image& image) { return &game.layers().images.back() == seen(image); }
    bool moves() { return motion.under_way(); }

    const Motion& motion = game.stage().scene().motion();
};

TEST_F(MotionTest, ACardTravelsFromUnderThePointerAndBackAgain) {
    EXPECT_FALSE(moves()) << "nothing has moved yet";
    const Image& jack = top_image(column_of_jack);
    const int home = left(jack);
    drop(column_of_jack, column_of_queen);
    ASSERT_EQ(column_top(column_of_queen), column_of_queen + 1);
    const int arrival = static_cast<int>(jack.left());
    EXPECT_EQ(left(jack), arrival - 20) << "where it was let go";
    EXPECT_TRUE(in_front(jack));
    EXPECT_TRUE(seen(top_image(column_of_jack))) << "turned up, it is there at once";
    pass(60);
    EXPECT_TRUE(left(jack) > arrival - 20 && left(jack) < arrival) << left(jack);
    pass(90);
    EXPECT_FALSE(moves() || stage.next_step());
    EXPECT_EQ(left(jack), arrival);
    undo();
    EXPECT_EQ(left(jack), arrival);
    pass(75);
    EXPECT_NEAR(left(jack), (arrival + home) / 2.0, 30) << "half way";
    EXPECT_TRUE(in_front(jack));
    EXPECT_EQ(jack.left(), static_cast<float>(home)) << "only seen there";
    pass(85);
    EXPECT_FALSE(moves());
    EXPECT_EQ(left(jack), home);
}

TEST_F(MotionTest, ATurnedCardComesFromTheStockAndGoesBackThere) {
    const int stock = static_cast<int>(frmcards.Image1(stock_image).left());
    turn();
    const Image& first = top_image(tablet_pile);
    EXPECT_EQ(left(first), stock);
    pass(160);
    turn();
    const Image& second = top_image(tablet_pile);
    EXPECT_EQ(left(second), stock);
    EXPECT_EQ(left(first), static_cast<int>(second.left())) << "until it is covered";
    pass(160);
    EXPECT_FALSE(seen(first));
    undo();
    EXPECT_EQ(left(first), static_cast<int>(first.left())) << "uncovered";
    pass(60);
    EXPECT_TRUE(left(second) > stock && left(second) < left(first));
    pass(100);
    EXPECT_FALSE(seen(second) || moves());
}

TEST_F(MotionTest, NothingIsSeenToMoveBeforeTheFirstPicture) {
    GridView view(frmcards);
    view.resize(frmcards.client_size());
    for (const bool painted : {false, true}) {
        Image& jack = top_image(column_of_jack);
        const Rect before = jack.place();
        jack.move(before.left - 60, before.top);
        view.widget_changed(jack, before);
        EXPECT_TRUE(view.shows_all());
        EXPECT_EQ(view.stage().scene().motion().under_way(), painted);
    }
}

TEST_F(MotionTest, ADealComesFromTheStockAndARestartFromWhereTheCardsLay) {
    const Image& jack = top_image(column_of_jack);
    drop(column_of_jack, column_of_queen);
    pass(160);
    const int played = left(jack);
    frmcards.mnuRestart.choose();
    expect_shown();
    EXPECT_EQ(left(jack), played);
    pass(160);
    EXPECT_FALSE(moves());
    frmcards.mnuNew.choose();
    expect_shown();
    const Area stock = game.stage().scene().area_of(frmcards.Image1(stock_image));
    const auto lies_elsewhere = [&](const PaintedImage& image) { return !image.place.meets(stock); };
    const std::vector<PaintedImage>& images = game.layers().images;
    EXPECT_LE(std::count_if(images.begin(), images.end(), lies_elsewhere), 2) << "a bare table";
    EXPECT_EQ(game.layers().outlines.size(), 4U) << "no sign where a card is about to lie";
    const Image& last = top_image(column_of_queen);
    EXPECT_FALSE(seen(last) || seen(top_image(0)));
    pass(100);
    EXPECT_TRUE(seen(top_image(0)));
    EXPECT_FALSE(seen(last)) << "face down until it arrives";
    pass(60);
    EXPECT_FALSE(moves());
    EXPECT_EQ(left(last), static_cast<int>(last.left()));
}

TEST_F(MotionTest, ASlideIsFilledInBetweenItsSteps) {
    const Image& card = top_image(column_of_ace);
    click(on(card));
    std::vector<int> tops{static_cast<int>(card.top())};
    int jumps = 0;
    for (int ms = 0; ms < 600 && (ms < 31 || moves()); ++ms) {
        pass(1);
        const int top = seen(card)->place.top;
        if (top != tops.back()) tops.push_back(top);
    }
    EXPECT_EQ(tops.back(), top_row);
    const int way = tops.front() - tops.back();
    for (std::size_t i = 1; i < tops.size(); ++i) jumps = std::max(jumps, tops[i - 1] - tops[i]);
    EXPECT_LE(jumps, way / 6) << "smaller than a step of the slide";
    EXPECT_FALSE(moves());
}

TEST_F(MotionTest, EndsWithAnyPressKeyOrNewSize) {
    const std::vector<std::function<void()>> ends{
        [&] { stage.press(60, 500, MouseButton::left); },
        [&] { stage.key_down(0); },
        [&] {
            game.view().resize({790, 570});
        },
    };
    for (const auto& end : ends) {
        drop(column_of_jack, column_of_queen);
        ASSERT_TRUE(moves());
        end();
        EXPECT_FALSE(moves()) << &end - ends.data();
        expect_shown();
        undo();
        stage.end_motion();
        EXPECT_FALSE(stage.next_step());
    }
    drop(column_of_jack, column_of_queen);
    stage.press_item(frmcards.Image1(stock_image), 1, [] { return false; });
    EXPECT_FALSE(moves()) << "pressed by a screen reader";
    undo();
    undo();
    drop(column_of_jack, column_of_queen);
    frmcards.mnuSetings.choose();
    expect_shown();
    stage.end_motion();
    frmcards.user_resized({1000, 700});
    expect_shown();
    EXPECT_FALSE(moves()) << "behind a dialog";
}

TEST_F(MotionTest, APressInTheSameMomentComesBeforeAnythingSetsOut) {
    const Image& queen = top_image(column_of_queen);
    frmcards.mnuRestart.choose();
    frmcards.mnuNew.choose();
    stage.press(queen.left() + 30, queen.top() + 40, MouseButton::left);
    expect_shown();
    EXPECT_FALSE(moves());
}

TEST_F(MotionTest, ACardIsHeldWhereverItWasSlidingTo) {
    const Image& card = top_image(column_of_ace);
    click(on(card));
    pass(45);
    ASSERT_TRUE(moves());
    stage.press(card.left() + 30, card.top() + 40, MouseButton::left);
    pass(40);
    EXPECT_FALSE(moves()) << "the hand moves it";
    stage.cancel();
    expect_shown();
}

TEST_F(MotionTest, NothingMovesWhereThatIsNotWanted) {
    const auto check = [this] {
        drop(column_of_jack, column_of_queen);
        EXPECT_FALSE(moves());
        undo();
        turn();
        frmcards.mnuRestart.choose();
        expect_shown();
        EXPECT_FALSE(moves() || stage.next_step());
    };
    for (const char* text : {"False", "perhaps"}) {
        save_setting(key_anamate, text);
        check();
    }
    save_setting(key_anamate, "True");
    view.motion_allowed = false;
    check();
    ShownBoard::drop(column_of_jack, bare_table);
    EXPECT_FALSE(stage.next_step()) << "nor does a refused card glide";
}

}  // namespace
}  // namespace tarnwick
