#include <gtest/gtest.h>

#include <QMenuBar>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "board/display.h"
#include "notation/position.h"
#include "platform/desktop.h"
#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "tests/store/scratch_folder.h"
#include "tools/driver/child_process.h"
#include "tools/driver/x_driver.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// Lays the last King on its pile, and opens a menu on its way there. The dialog is open then, but not seen.
void win() {
    set_position("ace 0: .. K♠\n2: K♠'\nace 1: .. K♥ K♥'\nace 2: .. K♦ K♦'\nace 3: .. K♣ K♣'");
    const Image& last_king = top_image(2);
    frmcards.mouse().press(last_king.left() + 30, last_king.top() + 30, MouseButton::left);
    frmcards.mouse().release(last_king.left() + 30, last_king.top() + 30, MouseButton::left);
    shown_widget("board")->window()->findChild<QMenu*>()->popup({});
    ASSERT_TRUE(comes_true([] { return frmyouwin.visible(); }));
    settle();
    EXPECT_FALSE(shown_widget("frmyouwin"));
    EXPECT_FALSE(QApplication::activePopupWidget());
}

void click(QWidget& window, const QWidget& widget) {
    QTest::mouseClick(
        window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, widget.rect().center()));
}

TEST(Celebration, IsFollowedByTheDialogWhateverEndsIt) {
    // It would end by itself, but not that soon.
    constexpr std::chrono::milliseconds soon{1000};
    QWidget other;
    const std::vector<std::function<void(QWidget&)>> ends{
        [](QWidget& window) { window.close(); },
        [](QWidget& window) { window.resize(window.width() - 50, window.height() - 50); },
        [](QWidget& window) { window.showMinimized(); },
        [](QWidget& window) {
            auto& bar = *window.findChild<QScrollBar*>();
            bar.show();
            click(window, bar);
        },
        [](QWidget& window) { click(window, *window.findChild<QMenuBar*>()); },
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

TEST(Celebration, LeavesTheKeyboardToAnotherProgram) {
    const ScratchFolder folder("other");
    ChildProcess program(TARNWICK_PROGRAM, {"--store", folder / "store"});
    XDriver screen;
    XWindow other = 0;
    ASSERT_TRUE(eventually([&] {
        const std::vector<XWindow> windows = screen.windows_of(program.pid());
        return !windows.empty() && (other = windows[0]) == screen.active();
    }));
    const InnerGame game(26);
    QWidget& window = *shown_widget("board")->window();
    screen.restore(window.winId());
    ASSERT_TRUE(comes_true([&] { return window.isActiveWindow(); }));
    win();
    screen.restore(other);
    ASSERT_TRUE(comes_true([] { return shown_widget("frmyouwin") != nullptr; }));
    QWidget& dialog = *shown_widget("frmyouwin");
    ASSERT_TRUE(comes_true([&] { return dialog.windowHandle()->isExposed(); }));
    // The window manager has done all it was asked for before.
    screen.resize(other, 850, 650);
    ASSERT_TRUE(comes_true([&] { return screen.place(other).width == 850; }));
    EXPECT_EQ(screen.active(), other);
    screen.restore(window.winId());
    EXPECT_TRUE(comes_true([&] { return dialog.isActiveWindow(); })) << "once the player is back";
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
