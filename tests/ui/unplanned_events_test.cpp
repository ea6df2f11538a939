// What no one plans: drags, slides and dialogs that get in each other's way, odd sizes, odd clocks.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "notation/position.h"
#include "state/variables.h"
#include "tests/play/play.h"
#include "tests/play/soundness.h"
#include "windows/frmBestScore.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr const char* table = "0: 7♠\n3: 2♠\n4: [2♣] 6♥\n7: K♥\nace 0: A♠\ntablet: ..";

void close_dialogs() {
    frmFeatures.cmdCancel.click();
    frmBestScore.cmdOk.click();
}

struct Interruption {
    const char* name;
    std::function<void(Play&)> action;
    /// Whether it ends a drag.
    bool ends_drag = true;
};

const std::vector<Interruption>& interruptions() {
    static const std::vector<Interruption> all{
        {"a dialog opens", [](Play&) { frmcards.mnuSetings.choose(); }},
        {"the window is disabled",
         [](Play&) {
             frmcards.set_enabled(false);
             frmcards.set_enabled(true);
         }},
        {"the window is minimised",
         [](Play&) {
             frmcards.user_changed_state(WindowState::minimized);
             frmcards.user_changed_state(WindowState::normal);
         }},
        {"help that is missing", [](Play&) { frmcards.mnuAbout.choose(); }},
        {"a restart", [](Play&) { frmcards.mnuRestart.choose(); }},
        {"an undo", [](Play& play) { play.undo(); }, false},
        {"the window shrinks to nothing",
         [](Play&) {
             frmcards.user_resized({0, 0});
             frmcards.user_resized({798, 550});
         },
         false},
        {"the window grows without end",
         [](Play&) {
             frmcards.user_resized({16000, 9000});
             frmcards.user_resized({798, 550});
         },
         false},
        {"the space bar", [](Play& play) { play.space(3); }, false},
        {"the other button",
         [](Play&) {
             frmcards.mouse().press(300, 300, MouseButton::other);
             frmcards.mouse().release(300, 300, MouseButton::other);
         },
         false},
        {"the computer sleeps", [](Play& play) { play.desktop.sleep(3'600'000); }, false},
    };
    return all;
}

TEST(Unplanned, InterruptionOfADrag) {
    for (const Interruption& interruption : interruptions()) {
        SCOPED_TRACE(interruption.name);
        Play play;
        play.start(table);
        const Image& card = top_image(4);
        frmcards.mouse().press(card.left() + 30, card.top() + 5);
        frmcards.mouse().move(200, 200);
        interruption.action(play);
        EXPECT_EQ(frmcards.mouse().dragged() == nullptr, interruption.ends_drag);
        close_dialogs();
        const Image& target = top_image(0);
        frmcards.mouse().release(target.left() + 30, target.top() + 5);
        EXPECT_TRUE(frmcards.mouse().lifted().empty());
        EXPECT_EQ(shows("4: 2♣"), !interruption.ends_drag) << "a drag that goes on ends in its move";
        EXPECT_EQ(state_faults().find("lies in 2"), std::string::npos);
        EXPECT_EQ(play.message(), "");
        EXPECT_TRUE(frmcards.accepts_input());
    }
}

TEST(Unplanned, ClosingDuringEverything) {
    for (const bool dialog : {false, true}) {
        Play play;
        play.start(table);
        play.save("anamate", "True");
        play.double_click(frmcards.Image1(face_down_image(4, 0)));
        play.click(3);
        const Image& card = top_image(4);
        frmcards.mouse().press(card.left() + 30, card.top() + 5);
        if (dialog) frmcards.mnuScore.choose();
        frmcards.close();
        EXPECT_EQ(frmcards.loaded(), dialog) << "a window that waits for a dialog does not close";
        close_dialogs();
        frmcards.close();
        EXPECT_FALSE(frmcards.loaded());
        EXPECT_EQ(play.stored("games played"), "1");
        play.desktop.advance(10000);
    }
}

}  // namespace
}  // namespace tarnwick
