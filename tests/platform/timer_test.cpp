#include "platform/timer.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "platform/form.h"
#include "platform/headless.h"

namespace tarnwick {
namespace {

struct Clockwork : Form {
    Clockwork() : Form("clockwork") {}
    void design() override {
        timer.set_interval(100);
        timer.set_enabled(true);
    }
    Timer timer{*this};
};

// Timers register for good, so that they must live as long as the program.
Clockwork& clockwork() {
    static Clockwork form;
    return form;
}

class TimerTest : public testing::Test {
  protected:
    TimerTest() {
        clockwork().timer.on_tick = [this] { ticks.push_back(desktop.now()); };
        clockwork().show();
    }
    ~TimerTest() override { clockwork().unload(); }

    using Times = std::vector<std::int64_t>;
    HeadlessDesktop desktop;
    Timer& timer = clockwork().timer;
    Times ticks;
};

TEST_F(TimerTest, TicksAtItsIntervalWhileEnabledAndLoaded) {
    desktop.advance(350);
    timer.set_enabled(false);
    desktop.advance(1000);
    timer.set_enabled(true);
    desktop.advance(150);
    EXPECT_EQ(ticks, (Times{100, 200, 300, 1450})) << "enabling starts a new period";
    clockwork().unload();
    desktop.advance(1000);
    EXPECT_EQ(ticks.size(), 4U);
}

TEST_F(TimerTest, TicksOnceAfterASleepAndNeverWithinAnEvent) {
    desktop.sleep(1050);
    EXPECT_EQ(ticks, Times{1050}) << "missed ticks are not made up for";
    desktop.event([this] {
        desktop.sleep(500);
        EXPECT_EQ(ticks.size(), 1U);
    });
    desktop.sleep(0);
    EXPECT_EQ(ticks, (Times{1050, 1550}));
}

TEST_F(TimerTest, TellsWhenItTicksNextUnlessAQuestionIsOpen) {
    desktop.sleep(99);
    EXPECT_EQ(time_to_next_tick(), 1);
    desktop.event([this] {
        desktop.sleep(5000);
        EXPECT_EQ(time_to_next_tick(), 0) << "late";
        desktop.leave_questions_open();
        desktop.notify({});
        EXPECT_FALSE(time_to_next_tick());
    });
    desktop.answer(MessageAnswer::ok);
    EXPECT_EQ(time_to_next_tick(), 0);
}

TEST(Event, IsFollowedByWhatWasLeftForLaterAndFailsWithAMessage) {
    HeadlessDesktop desktop;
    std::string order;
    desktop.event([&] {
        desktop.after_event([&order] { order += "later "; });
        desktop.event([&order] { order += "inner "; });
        order += "outer ";
        throw std::runtime_error("no such card");
    });
    desktop.after_event([&order] { order += "at once"; });
    EXPECT_EQ(order, "inner outer later at once");
    EXPECT_EQ(desktop.messages().size(), 1U);
}

}  // namespace
}  // namespace tarnwick
