#include "platform/mouse.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/family.h"
#include "platform/form.h"
#include "platform/headless.h"
#include "platform/image.h"

namespace tarnwick {
namespace {

// A window with four images: 0 and 1 overlap, 2 has no picture, 3 is dragged by the press.
struct Window : Form {
    Window() : Form("window") {
        for (int i = 0; i <= 3; ++i) images.add(i, *this, i, events);
        events.click = [this](int index) { log += "click " + std::to_string(index) + ". "; };
        events.double_click = [this](int index) { log += "two clicks " + std::to_string(index) + ". "; };
        events.drop = [this](int index, Image& source, float x, float y) {
            log += "drop " + std::to_string(source.index()) + " on " + std::to_string(index) + " at " +
                   std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)) + ". ";
        };
    }
    void design() override {
        images(0).move(0, 0, 100, 100);
        images(1).move(50, 0, 100, 100);
        images(2).move(0, 200, 100, 100);
        images(3).move(200, 0, 100, 100);
        images(3).set_drag_mode(DragMode::automatic);
        for (const int pictured : {0, 1, 3}) images(pictured).set_picture(Picture{1});
    }
    ImageEvents events;
    Family<Image> images;
    std::string log;
};

class MouseTest : public testing::Test {
  protected:
    MouseTest() { window.show(); }
    ~MouseTest() override { window.unload(); }

    // What a press and a release do.
    std::string drag(float from_x, float to_x, float to_y = 50, MouseButton button = MouseButton::left) {
        window.log.clear();
        window.mouse().press(from_x, 50, button);
        window.mouse().release(to_x, to_y, button);
        return window.log;
    }
    int image_at(float x, float y) {
        const Image* image = window.mouse().image_at(x, y);
        return image ? image->index() : -1;
    }

    HeadlessDesktop desktop;
    Window window;
};

TEST_F(MouseTest, HitsTheTopmostImageThatIsShown) {
    EXPECT_EQ(image_at(75, 50), 1);
    window.images(0).bring_to_front();
    EXPECT_EQ(image_at(75, 50), 0);
    window.images(0).hide();
    EXPECT_EQ(image_at(75, 50), 1);
    EXPECT_EQ(image_at(50, 250), 2) << "an image without a picture is there all the same";
    EXPECT_EQ(image_at(149.5F, 99.5F), 1);
    EXPECT_EQ(image_at(150, 50) + image_at(149.5F, 100), -2) << "the right and lower edges lie outside";
}

TEST_F(MouseTest, RaisesTwoClicksForTheSecondPressOnly) {
    const struct {
        int pause;
        float second_x;
        const char* log;
    } cases[] = {{500, 29, "two clicks 0. click 0. "},
                 {501, 25, "click 0. "},
                 {100, 30, "click 0. "},
                 {100, 125, "click 1. "}};
    for (const auto& [pause, second_x, log] : cases) {
        desktop.advance(10'000);
        EXPECT_EQ(drag(25, 25), "click 0. ");
        desktop.advance(pause);
        EXPECT_EQ(drag(second_x, second_x), log) << pause << " ms";
    }
    desktop.advance(10'000);
    EXPECT_EQ(drag(25, 25) + drag(25, 25) + drag(25, 25), "click 0. two clicks 0. click 0. click 0. ");
    EXPECT_EQ(drag(25, 125), "two clicks 0. ") << "let go over another image";
    EXPECT_EQ(drag(25, 25, 50, MouseButton::other), "");
}

TEST_F(MouseTest, KnowsHowWellAPointerAims) {
    const struct {
        Pointer by;
        float tap;
        float second_click;
    } cases[] = {{Pointer::mouse, 0, 4}, {Pointer::pen, 4, 8}, {Pointer::finger, 10, 24}};
    Mouse& mouse = window.mouse();
    mouse.set_plain_offset(450);
    for (const auto& [by, tap, second_click] : cases) {
        const auto play = [&, by = by](float from, float over, float to) {
            window.log.clear();
            mouse.press(from, 50, MouseButton::left, by);
            mouse.move(over, 50);
            mouse.release(to, 50);
            return window.log;
        };
        const std::string tapped =
            by == Pointer::mouse ? "drop 3 on 3 at 75,750. " : "drop 3 on 3 at 450,750. ";
        EXPECT_EQ(play(205, 205 + tap, 205 + tap), tapped);
        EXPECT_EQ(play(205, 206 + tap, 210), "drop 3 on 3 at 150,750. ") << "not a tap any more";
        EXPECT_EQ(play(205 + tap, 205 + tap, 204), "drop 3 on 3 at 60,750. ") << "without a move";
        EXPECT_EQ(play(100 - tap, 100, 100), "click 1. ") << "let go beside what it pressed";
        desktop.advance(10'000);
        const auto two_clicks = [&](float apart) {
            desktop.advance(10'000);
            const std::string first = play(10, 10, 10);
            return first + play(10 + apart, 0, 10 + apart);
        };
        EXPECT_EQ(two_clicks(second_click), "click 0. two clicks 0. click 0. ");
        EXPECT_EQ(two_clicks(second_click + 1), "click 0. click 0. ");
    }
    window.log.clear();
    mouse.press(205, 50, MouseButton::left, Pointer::keys);
    mouse.move(260, 50);
    mouse.release(260, 50);
    EXPECT_EQ(window.log, "drop 3 on 3 at 450,750. ") << "keys aim at images";
}

TEST_F(MouseTest, DropsADraggedImageWithTheOffsetInTwips) {
    EXPECT_EQ(drag(210, 60, 30), "drop 3 on 1 at 150,450. ");
    EXPECT_EQ(window.images(3).left(), 200) << "the image itself stays";
    EXPECT_EQ(drag(210, 210) + drag(210, 210), "drop 3 on 3 at 150,750. drop 3 on 3 at 150,750. ");
    EXPECT_EQ(drag(210, 180, 180), "") << "no image, no drop";
}

TEST_F(MouseTest, DropsAndClicksOnlyWhereTheBoardIsSeen) {
    window.resize_client({400, 240});
    EXPECT_EQ(drag(210, 60, 230), "drop 3 on 2 at 900,450. ");
    EXPECT_EQ(drag(210, 60, 245), "") << "below the window";
    window.mouse().set_seen_area(Rect{0, 20, 400, 240});
    EXPECT_EQ(drag(210, 60, 245), "drop 3 on 2 at 900,675. ") << "scrolled";
    EXPECT_EQ(drag(210, 60, 10) + drag(25, 25, 10), "") << "above it";
}

TEST_F(MouseTest, HoldsAnImageWhereItWasTakenHoldOfWhenTheLayoutChanges) {
    Mouse& mouse = window.mouse();
    mouse.on_hover = [](const Image&, const Image& target, float) -> const Widget* { return &target; };
    window.on_resize = [this] {
        window.images(3).move(400, 0, 200, 200);
        window.images(1).move(100, 0, 200, 200);
    };
    mouse.press(220, 50);
    mouse.move(90, 60);
    EXPECT_EQ(mouse.receiver(), &window.images(1));
    window.user_resized({800, 600});
    const Image& held = window.images(3);
    EXPECT_EQ(held.left() + mouse.drag_dx() + 0.2F * held.width(), 90) << "under the pointer";
    EXPECT_EQ(held.top() + mouse.drag_dy() + 0.5F * held.height(), 60);
    EXPECT_EQ(mouse.receiver(), &window.images(0)) << "what lies there now";
    mouse.release(90, 60);
    EXPECT_EQ(window.log, "drop 3 on 0 at 1350,900. ");
}

}  // namespace
}  // namespace tarnwick
