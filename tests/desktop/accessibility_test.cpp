#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QScrollBar>

#include "board/peek.h"
#include "board/slide.h"
#include "desktop/board/board_accessible.h"
#include "desktop/shared/qt_texts.h"
#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "tests/play/known_deal.h"
#include "view/board_scene.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

class BoardAccessibility : public testing::Test {
  protected:
    QAccessibleInterface& board() const { return *QAccessible::queryAccessibleInterface(widget_); }

    // The child that stands for a widget; null when there is none.
    QAccessibleInterface* child_of(const Widget& widget) const {
        const std::vector<BoardItem> items = frmcards.on_describe();
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i].widget == &widget) return board().child(static_cast<int>(i));
        }
        return nullptr;
    }
    QAccessibleInterface& image(int index) const { return *child_of(frmcards.Image1(index)); }
    QAccessibleInterface& top_of(int column) const { return image(top_card(column).picture); }

    // Where a widget that the board shows whole lies on the screen.
    QRect seen_at(const Widget& widget, int scrolled = 0) const {
        const QRect place = to_qt(widget.place()).toAlignedRect();
        return place.translated(widget_->mapToGlobal(QPoint(0, -scrolled)));
    }

    // The same of a label, which is painted larger than it is placed.
    QRect painted_at(const Widget& label) const {
        BoardScene scene(frmcards, qt_texts());
        for (const PaintedLabel& painted : scene.layers(1).labels) {
            if (painted.text != static_cast<const Label&>(label).caption()) continue;
            return to_qt(around(painted.place)).translated(widget_->mapToGlobal(QPoint(0, 0)));
        }
        return {};
    }

    QWidget& widget() const { return *widget_; }

  private:
    InnerGame game_{known_deal};
    QWidget* widget_ = shown_widget("board");
};

TEST_F(BoardAccessibility, HasAChildForEverythingThatIsSeen) {
    const std::vector<BoardItem> items = frmcards.on_describe();
    ASSERT_EQ(static_cast<std::size_t>(board().childCount()), items.size() + 1) << "and the scroll bar";
    for (int i = 0; i < board().childCount(); ++i) {
        QAccessibleInterface* child = board().child(i);
        ASSERT_TRUE(child && child->isValid()) << i;
        EXPECT_EQ(child->parent(), &board()) << i;
        EXPECT_EQ(board().indexOfChild(child), i);
        EXPECT_EQ(board().child(i), child) << "asked for again";
    }
    EXPECT_EQ(board().child(board().childCount()), nullptr);
    EXPECT_EQ(board().child(-1), nullptr);

    EXPECT_EQ(image(stock_image).text(QAccessible::Name), "stock, 45 cards face down");
}

TEST_F(BoardAccessibility, KnowsWhereItsChildrenLie) {
    for (const BoardItem& item : frmcards.on_describe()) {
        QAccessibleInterface& child = *child_of(*item.widget);
        const std::string& name = item.name;
        if (item.widget->kind() == WidgetKind::image) {
            EXPECT_EQ(child.rect(), seen_at(*item.widget)) << name;
        } else {
            EXPECT_TRUE(child.rect().contains(painted_at(*item.widget))) << name;
            EXPECT_GT(child.rect().height(), seen_at(*item.widget).height()) << name << " has grown";
        }
        // The upper edge is what the next card of a column leaves free.
        const QPoint spot(child.rect().center().x(), child.rect().top() + 6);
        EXPECT_EQ(board().childAt(spot.x(), spot.y()), &child) << name;
        EXPECT_EQ(child.state().focusable, item.place.has_value()) << name;
        EXPECT_FALSE(child.state().disabled || child.state().invisible || child.state().offscreen) << name;
    }
    const QRect zone = seen_at(frmcards.Image1(first_column_zone));
    EXPECT_EQ(board().childAt(zone.center().x(), zone.bottom() - 20), nullptr) << "the bare table";
    EXPECT_EQ(board().childAt(zone.left() - 1000, zone.top()), nullptr);
}

TEST_F(BoardAccessibility, ScrollsItsChildren) {
    widget().window()->resize(900, 340);
    auto* bar = widget().findChild<QScrollBar*>();
    ASSERT_TRUE(comes_true([&] { return widget().height() < 340 && bar->maximum() > 0; }));
    QAccessibleInterface& stock = image(stock_image);
    QAccessibleInterface& lowest = top_of(9);
    EXPECT_EQ(stock.rect(), seen_at(frmcards.Image1(stock_image)));
    EXPECT_TRUE(lowest.state().offscreen || lowest.rect().bottom() > board().rect().bottom());
    bar->setValue(bar->maximum());
    const int scrolled = bar->value() / 4 * 4;
    ASSERT_GT(scrolled, 0);
    EXPECT_EQ(stock.rect(), seen_at(frmcards.Image1(stock_image), scrolled));
    EXPECT_FALSE(lowest.state().offscreen);
    EXPECT_LE(lowest.rect().bottom(), board().rect().bottom());
    QAccessibleInterface& covered = image(face_down_image(9, 8));
    const QPoint strip(covered.rect().center().x(), covered.rect().top() + 6);
    EXPECT_EQ(board().childAt(strip.x(), strip.y()), &covered);
    const QPoint at_bar = bar->mapToGlobal(bar->rect().center());
    EXPECT_EQ(board().childAt(at_bar.x(), at_bar.y()), QAccessible::queryAccessibleInterface(bar));
    press(image(stock_image));
    EXPECT_TRUE(comes_true([] { return turned_slot() == 4; })) << "pressed where it cannot be seen";
}

TEST_F(BoardAccessibility, SaysWhatCanBePressedAndWhatHasAValue) {
    EXPECT_TRUE(image(stock_image).actionInterface());
    EXPECT_EQ(child_of(frmcards.Image1(first_ace_zone))->actionInterface(), nullptr);
    frmcards.set_enabled(false);
    EXPECT_TRUE(image(stock_image).state().disabled) << "behind a dialog";
    frmcards.set_enabled(true);

    QAccessibleInterface& score_label = *child_of(frmcards.LblScore);
    ASSERT_TRUE(score_label.valueInterface());
    EXPECT_EQ(score_label.valueInterface()->maximumValue(), 200);
    score = 7;
    EXPECT_EQ(score_label.valueInterface()->currentValue(), 7);
    EXPECT_EQ(score_label.text(QAccessible::Value), "7");
    EXPECT_EQ(score_label.text(QAccessible::Description), "Deal 26 (Ctrl+C copies the number)");
}

TEST_F(BoardAccessibility, GivesTheFocusToWhatTheKeyboardsCursorIsOn) {
    ASSERT_TRUE(comes_true([this] { return widget().hasFocus(); }));
    // What has the focus after a key, and what is told of it.
    const auto focus_after = [this](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget(), &event);
        QAccessibleInterface& item = *board().focusChild();
        EXPECT_TRUE(item.state().focused);
        return (item.text(QAccessible::Name) + '|' + item.text(QAccessible::Description)).toStdString();
    };
    EXPECT_EQ(board().focusChild(), &board());
    EXPECT_EQ(focus_after(Qt::Key_Down), "stock, 45 cards face down|");
    EXPECT_EQ(focus_after(Qt::Key_Down), "Queen of Diamonds, column 1, on top|");
    EXPECT_FALSE(image(stock_image).state().focused);
    EXPECT_EQ(focus_after(Qt::Key_Enter), "Queen of Diamonds, column 1, on top|lifted");
    EXPECT_EQ(focus_after(Qt::Key_Right), "10 of Hearts, column 2, on top|does not take the lifted card");
    EXPECT_EQ(image(stock_image).text(QAccessible::Description), "");
    EXPECT_EQ(focus_after(Qt::Key_F11), "10 of Hearts, column 2, on top|does not take the lifted card");
    ASSERT_TRUE(comes_true([this] { return widget().window()->isFullScreen(); }));
    frmcards.mouse().cancel();
    settle();
    EXPECT_EQ(focus_after(Qt::Key_Escape), "Queen of Diamonds, column 1, on top|");
}

TEST_F(BoardAccessibility, IsGoneWithItsWindow) {
    QAccessibleInterface& whole = board();
    QAccessibleInterface& stock = image(stock_image);
    QAccessibleInterface& back = image(face_down_image(4, 3));
    press(top_of(column_of_ace));
    ASSERT_TRUE(comes_true([] { return !ace_pile_is_empty(0); }));
    EXPECT_TRUE(back.state().invisible) << "it is turned up";
    EXPECT_EQ(back.text(QAccessible::Name), "");
    EXPECT_EQ(whole.indexOfChild(&back), -1);

    press(stock);
    frmcards.unload();
    EXPECT_FALSE(whole.isValid() || stock.isValid());
    EXPECT_LE(whole.childCount(), 1) << "no more than the scroll bar";
    EXPECT_EQ(stock.text(QAccessible::Name), "");
    EXPECT_EQ(stock.rect(), QRect());
    EXPECT_EQ(whole.childAt(100, 100), nullptr);
    settle();
    EXPECT_EQ(shown_widget("board"), nullptr);
}

}  // namespace
}  // namespace tarnwick
