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

    void click(float x, float y) {
        window.mouse().press(x, y);
        window.mouse().release(x, y);
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
    EXPECT_EQ(image_at(25, 50), -1);
    EXPECT_EQ(image_at(50, 250), 2) << "an image without a picture is there all the same";
    EXPECT_EQ(image_at(150, 50), -1) << "the right edge lies outside";
    EXPECT_EQ(image_at(149.5F, 99.5F), 1);
    EXPECT_EQ(image_at(149.5F, 100), -1);
}

TEST_F(MouseTest, ClicksOnPressAndReleaseOverTheSameImage) {
    click(25, 50);
    EXPECT_EQ(window.log, "click 0. ");
    window.log.clear();
    desktop.advance(1000);
    window.mouse().press(25, 50);
    window.mouse().release(120, 50);
    window.mouse().press(25, 50, MouseButton::other);
    window.mouse().release(25, 50, MouseButton::other);
    EXPECT_EQ(window.log, "");
}

TEST_F(MouseTest, RaisesTwoClicksForTheSecondPressOnly) {
    const struct {
        int pause;
        float dx;
        const char* log;
    } cases[] = {
        {100, 0, "click 0. two clicks 0. click 0. "},
        {100, 4, "click 0. two clicks 0. click 0. "},
        {500, 0, "click 0. two clicks 0. click 0. "},
        {501, 0, "click 0. click 0. "},
        {100, 5, "click 0. click 0. "},
        {100, 100, "click 0. click 1. "},
    };
    for (const auto& [pause, dx, log] : cases) {
        desktop.advance(10'000);
        window.log.clear();
        click(25, 50);
        desktop.advance(pause);
        click(25 + dx, 50);
        EXPECT_EQ(window.log, log) << pause << " ms, " << dx << " pixels";
    }
    desktop.advance(10'000);
    window.log.clear();
    for (int i = 0; i < 5; ++i) click(25, 50);
    EXPECT_EQ(window.log, "click 0. two clicks 0. click 0. click 0. two clicks 0. click 0. click 0. ")
        << "every fast click counts";
}

TEST_F(MouseTest, DropsADraggedImageWithTheOffsetInTwips) {
    window.mouse().press(210, 10);
    EXPECT_EQ(window.mouse().dragged(), &window.images(3));
    window.mouse().move(60, 30);
    EXPECT_EQ(window.mouse().drag_dx(), -150);
    window.mouse().release(60, 30);
    EXPECT_EQ(window.log, "drop 3 on 1 at 150,450. ");
    EXPECT_EQ(window.images(3).left(), 200) << "the image itself stays";
    window.log.clear();
    click(210, 10);
    click(210, 10);
    EXPECT_EQ(window.log, "drop 3 on 3 at 150,150. drop 3 on 3 at 150,150. ") << "never a click";
    window.log.clear();
    window.mouse().press(210, 10);
    window.mouse().release(180, 180);
    EXPECT_EQ(window.log, "") << "no image, no drop";
}

TEST_F(MouseTest, EndsADragWithoutADropOnCancelAndWhenTheWindowIsDisabled) {
    const auto expect_no_drop = [this](const char* what) {
        EXPECT_EQ(window.mouse().dragged(), nullptr) << what;
        window.mouse().release(60, 30);
        EXPECT_EQ(window.log, "") << what;
    };
    window.mouse().press(210, 10);
    window.mouse().cancel();
    expect_no_drop("cancelled");
    window.mouse().press(210, 10);
    window.set_enabled(false);
    expect_no_drop("disabled");
    click(25, 50);
    EXPECT_EQ(window.log, "") << "a disabled window takes no input";
    window.close();
    EXPECT_TRUE(window.loaded()) << "not even its close box";
    window.set_enabled(true);
    click(25, 50);
    EXPECT_EQ(window.log, "click 0. ");
}

TEST_F(MouseTest, LiftsWhatItIsToldTo) {
    window.mouse().on_lift = [this](Image& dragged) {
        return std::vector<Image*>{&dragged, &window.images(0)};
    };
    window.mouse().press(210, 10);
    EXPECT_EQ(window.mouse().lifted().size(), 2U);
    window.mouse().release(210, 10);
    EXPECT_TRUE(window.mouse().lifted().empty());
}

}  // namespace
}  // namespace tarnwick
