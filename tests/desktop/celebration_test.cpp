#include <gtest/gtest.h>

#include <QTimer>

#include "board/display.h"
#include "notation/position.h"
#include "platform/desktop.h"
#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// Lays the last King on its pile. The dialog is open then, but not seen.
void win() {
    set_position("ace 0: .. K♠\n2: K♠'\nace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'");
    const Image& last_king = top_image(2);
    frmcards.mouse().press(last_king.left() + 30, last_king.top() + 30, MouseButton::left);
    frmcards.mouse().release(last_king.left() + 30, last_king.top() + 30, MouseButton::left);
    ASSERT_TRUE(comes_true([] { return frmyouwin.visible(); }));
    settle();
    EXPECT_FALSE(shown_widget("frmyouwin"));
}

TEST(Celebration, IsFollowedByTheDialogWhateverEndsIt) {
    // It would end by itself, but not that soon.
    constexpr std::chrono::milliseconds soon{1000};
    QWidget other;
    const std::vector<std::function<void(QWidget&)>> ends{
        [](QWidget& window) { window.close(); },
        [](QWidget& window) { window.resize(window.width() - 50, window.height() - 50); },
        [](QWidget& window) { window.showMinimized(); },
        [&other](QWidget&) {
            other.show();
            other.activateWindow();
        },
        [](QWidget&) {
            // Before the message is answered, and under it.
            QTimer::singleShot(300, qApp, [] {
                QWidget* message = QApplication::activeModalWidget();
                EXPECT_TRUE(message && shown_widget("frmyouwin") &&
                            message->parentWidget() == shown_widget("frmyouwin"));
                if (message) message->close();
            });
            desktop().notify({"Tarnwick", "This is told meanwhile."});
        },
    };
    for (std::size_t i = 0; i < ends.size(); ++i) {
        const InnerGame game(26);
        win();
        const auto begin = std::chrono::steady_clock::now();
        ends[i](*shown_widget("board")->window());
        EXPECT_TRUE(comes_true([] { return shown_widget("frmyouwin") != nullptr; })) << i;
        EXPECT_LT(std::chrono::steady_clock::now() - begin, soon) << i;
        EXPECT_TRUE(frmcards.loaded() && !frmcards.enabled());
        other.hide();
    }
}

TEST(Celebration, EndsWithTheProgram) {
    InnerGame game(26);
    win();
    shut_down_program();
    EXPECT_FALSE(frmcards.loaded() || frmyouwin.loaded());
    settle();
    EXPECT_FALSE(shown_widget("board") || shown_widget("frmyouwin"));
}

}  // namespace
}  // namespace tarnwick
