#include "platform/form.h"

#include <gtest/gtest.h>

#include "platform/headless.h"

namespace tarnwick {
namespace {

int views = 0;

struct CountedView : FormView {
    CountedView() { ++views; }
    ~CountedView() override { --views; }
    void widget_changed(const Widget&, const Rect&) override {}
    void form_changed() override {}
    void menu_changed() override {}
    void raise() override {}
    void drag_changed() override {}
};

struct CountingDesktop : HeadlessDesktop {
    std::unique_ptr<FormView> make_view(Form&) override { return std::make_unique<CountedView>(); }
};

struct Pane : Form {
    Pane() : Form("pane") {}
    void design() override {}
};

TEST(FormView, GoesWithItsWindowOrWithItsDesktopButNotAfterIt) {
    CountingDesktop desktop;
    FormView* left = nullptr;
    {
        Pane pane;
        pane.load();
        ASSERT_EQ(views, 1);
        pane.unload();
        EXPECT_EQ(views, 0);
        pane.load();
        pane.take_view().reset();
        EXPECT_EQ(views, 0);
        EXPECT_TRUE(pane.loaded());
        pane.unload();
        pane.load();
        left = pane.view();
    }
    EXPECT_EQ(views, 1) << "nothing of a desktop that may be gone is called";
    delete left;
}

}  // namespace
}  // namespace tarnwick
