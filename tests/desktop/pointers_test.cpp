// What the toolkit tells of touch, pens and the pointer, and what the board makes of it.

#include <gtest/gtest.h>

#include <QCursor>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabletEvent>
#include <QTest>

#include "board/display.h"
#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "tests/play/known_deal.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

class Pointers : public testing::Test {
  protected:
    static QPoint on(const Image& image) {
        return (to_qt(image.place()).topLeft() + QPointF(30, 40)).toPoint();
    }
    auto touch() { return QTest::touchEvent(&board_, screen_); }
    template <class Event, class... Parts>
    void send(Parts... parts) {
        Event event(parts...);
        QCoreApplication::sendEvent(&board_, &event);
    }
    bool pen(QEvent::Type type, QPoint place, bool down) {
        const Qt::MouseButton button = type == QEvent::TabletMove ? Qt::NoButton : Qt::LeftButton;
        QTabletEvent event(type,
                           QPointingDevice::primaryPointingDevice(),
                           place,
                           global(place),
                           1,
                           0,
                           0,
                           0,
                           0,
                           0,
                           Qt::NoModifier,
                           button,
                           down ? Qt::LeftButton : Qt::NoButton);
        QCoreApplication::sendEvent(&board_, &event);
        return event.isAccepted();
    }
    QPoint global(QPoint place) { return board_.mapToGlobal(place); }
    Qt::CursorShape shape() { return board_.cursor().shape(); }

    const Image& stock() { return frmcards.Image1(stock_image); }

    static inline QPointingDevice* const screen_ = QTest::createTouchDevice();
    InnerGame game_{known_deal};
    QWidget& board_ = *shown_widget("board");
};

TEST_F(Pointers, FingersTapAndDrag) {
    touch().press(0, on(stock()));
    touch().release(0, on(stock()));
    settle();
    EXPECT_EQ(turned_slot(), 4) << "once, and not by a mouse that the toolkit makes of it as well";
    touch().press(7, on(top_image(column_of_jack)));
    ASSERT_TRUE(frmcards.mouse().dragged());
    touch().move(7, on(top_image(column_of_queen))).press(8, on(stock()));
    touch().stationary(7).release(8, on(stock()));
    EXPECT_EQ(frmcards.mouse().receiver(), &top_image(column_of_queen)) << "a second finger disturbs nothing";
    touch().release(7, on(top_image(column_of_queen)));
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
    EXPECT_EQ(turned_slot(), 4);
    touch().press(1, on(top_image(column_of_ace)));
    send<QTouchEvent>(QEvent::TouchCancel, screen_);
    EXPECT_FALSE(frmcards.mouse().dragged()) << "it was something else";
    touch().release(1, on(top_image(column_of_ace)));
    settle();
    EXPECT_TRUE(ace_pile_is_empty(0));
}

TEST_F(Pointers, PensTapAndDrag) {
    const QPoint ace = on(top_image(column_of_ace));
    pen(QEvent::TabletMove, ace, false);
    EXPECT_EQ(shape(), Qt::OpenHandCursor);
    pen(QEvent::TabletPress, ace, true);
    pen(QEvent::TabletMove, ace + QPoint(3, -3), true);
    pen(QEvent::TabletRelease, ace + QPoint(3, -3), false);
    EXPECT_FALSE(ace_pile_is_empty(0));
    pen(QEvent::TabletPress, on(top_image(column_of_jack)), true);
    EXPECT_EQ(shape(), Qt::ClosedHandCursor);
    pen(QEvent::TabletMove, on(top_image(column_of_queen)), true);
    pen(QEvent::TabletRelease, on(top_image(column_of_queen)), false);
    EXPECT_EQ(column_top(column_of_queen), column_of_queen + 1);
}

TEST_F(Pointers, CanScroll) {
    board_.window()->resize(900, 340);
    auto* bar = board_.findChild<QScrollBar*>();
    ASSERT_TRUE(comes_true([&] { return bar->maximum() > 0; }));
    const QPoint lower_end = bar->geometry().center() + QPoint(0, bar->height() / 2 - 6);
    touch().press(0, lower_end);
    touch().release(0, lower_end);
    EXPECT_TRUE(comes_true([&] { return bar->value() > 0; }))
        << "with the mouse that the toolkit makes of it";
    EXPECT_FALSE(pen(QEvent::TabletPress, lower_end, true));
    EXPECT_FALSE(pen(QEvent::TabletMove, lower_end - QPoint(50, 0), true));
    EXPECT_FALSE(pen(QEvent::TabletRelease, lower_end - QPoint(50, 0), false));
    EXPECT_TRUE(pen(QEvent::TabletMove, lower_end - QPoint(50, 0), false));
}

TEST_F(Pointers, AreSeenAsHandsOverWhatTheyCanPlay) {
    const auto move_mouse = [this](QPoint place) {
        send<QMouseEvent>(QEvent::MouseMove,
                          QPointF(place),
                          QPointF(global(place)),
                          Qt::NoButton,
                          Qt::NoButton,
                          Qt::NoModifier);
        return shape();
    };
    EXPECT_EQ(move_mouse(on(top_image(column_of_jack))), Qt::OpenHandCursor);
    EXPECT_EQ(move_mouse(on(stock())), Qt::PointingHandCursor);
    EXPECT_EQ(move_mouse({20, board_.height() - 5}), Qt::ArrowCursor);
}

}  // namespace
}  // namespace tarnwick
