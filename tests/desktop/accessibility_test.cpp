#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <chrono>

#include "desktop/board_accessible.h"
#include "desktop/qt_convert.h"
#include "desktop/qt_desktop.h"
#include "platform/random.h"
#include "settings/store.h"
#include "state/variables.h"
#include "tools/driver/eventually.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// The columns of this deal end in Q♦ 10♥ K♦ 6♠ A♣ 2♥ J♦ 9♣ 6♦ Q♣.
constexpr std::uint32_t deal = 26;
constexpr int column_of_ace = 4;

// Longer than changes are collected before they are told.
constexpr std::chrono::milliseconds news_time{400};

// Lets the program go on until the condition holds.
template <class Condition>
bool comes_true(Condition condition) {
    return eventually([&] {
        QApplication::processEvents();
        return condition();
    });
}

void wait(std::chrono::milliseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    comes_true([end] { return std::chrono::steady_clock::now() > end; });
}

void let_everything_happen() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
}

QWidget* find_widget(const QString& name) {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == name && widget->isVisible()) return widget;
    }
    return nullptr;
}

// The program in this process, while somebody listens who cannot see it.
class AccessibleBoard : public testing::Test {
  protected:
    AccessibleBoard() {
        random_generator().replay(deal);
        start_program(store_);
        widget_ = find_widget("board");
        comes_true([this] { return widget_->window()->windowHandle()->isExposed(); });
    }

    ~AccessibleBoard() override {
        end_program();
        random_generator().stop_replay();
        let_everything_happen();
    }

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

    void press(QAccessibleInterface& child) const {
        child.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    // What the board has to tell, in words.
    std::string changes() const {
        std::string text;
        for (const auto& [event, subject] : dynamic_cast<BoardAccessible&>(board()).take_changes()) {
            if (event == QAccessible::ObjectReorder) text += "reorder";
            if (event == QAccessible::NameChanged) text += "name";
            if (event == QAccessible::ValueChanged) text += "value";
            text += " of " + subject->text(QAccessible::Name).toStdString() + "; ";
        }
        return text;
    }

    // Where a widget that the board shows whole lies on the screen.
    QRect seen_at(const Widget& widget, int scrolled = 0) const {
        const QRect place = to_qt(widget.place()).toAlignedRect();
        return place.translated(widget_->mapToGlobal(QPoint(0, -scrolled)));
    }

    QWidget& widget() const { return *widget_; }

    void save(const std::string& key, const std::string& text) {
        store_.save("Tarnwick", "setting", key, text);
    }

  private:
    QtDesktop desktop_;
    MemoryStore store_;
    QWidget* widget_ = nullptr;
};

TEST_F(AccessibleBoard, HasAChildForEverythingThatIsSeen) {
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
    for (int c = 0; c <= last_column; ++c) {
        const QString column = "column " + QString::number(c + 1);
        EXPECT_TRUE(top_of(c).text(QAccessible::Name).endsWith(column + ", on top")) << c;
        for (int slot = 0; slot < column_top(c); ++slot) {
            EXPECT_EQ(image(face_down_image(c, slot)).text(QAccessible::Name),
                      "face-down card " + QString::number(slot + 1) + " of " + column);
        }
    }
    EXPECT_EQ(top_of(0).text(QAccessible::Name), "Queen of Diamonds, column 1, on top");
    EXPECT_EQ(top_of(9).text(QAccessible::Name), "Queen of Clubs, column 10, on top");
}

TEST_F(AccessibleBoard, KnowsWhereItsChildrenLie) {
    for (const BoardItem& item : frmcards.on_describe()) {
        QAccessibleInterface& child = *child_of(*item.widget);
        const std::string& name = item.name;
        if (item.widget->kind() == WidgetKind::image) {
            EXPECT_EQ(child.rect(), seen_at(*item.widget)) << name;
        } else {
            EXPECT_TRUE(child.rect().contains(seen_at(*item.widget).center())) << name;
        }
        // The upper edge is what the next card of a column leaves free.
        const QPoint spot(child.rect().center().x(), child.rect().top() + 6);
        EXPECT_EQ(board().childAt(spot.x(), spot.y()), &child) << name;
        EXPECT_FALSE(child.state().focusable || child.state().disabled || child.state().invisible ||
                     child.state().offscreen)
            << name;
    }
    const QRect zone = seen_at(frmcards.Image1(first_column_zone));
    EXPECT_EQ(board().childAt(zone.center().x(), zone.bottom() - 20), nullptr) << "the bare table";
    EXPECT_EQ(board().childAt(zone.left() - 1000, zone.top()), nullptr);
}

TEST_F(AccessibleBoard, ScrollsItsChildren) {
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
    const QPoint spot = lowest.rect().center();
    EXPECT_EQ(board().childAt(spot.x(), spot.y()), &lowest);
    press(image(stock_image));
    EXPECT_TRUE(comes_true([] { return turned_slot() == 4; })) << "pressed where it cannot be seen";
}

TEST_F(AccessibleBoard, PlaysByPresses) {
    press(image(stock_image));
    EXPECT_TRUE(comes_true([] { return turned_slot() == 4; }));
    press(image(stock_image));
    EXPECT_TRUE(comes_true([] { return turned_slot() == 9; }));

    press(image(face_down_image(5, 2)));
    EXPECT_TRUE(comes_true([] { return peek_is_showing(); })) << "two clicks on a face-down card";

    press(top_of(column_of_ace));
    EXPECT_TRUE(comes_true([] { return !ace_pile_is_empty(0); }));
    ASSERT_TRUE(comes_true([] { return !frmcards.Timer3.enabled(); })) << "the ace has arrived";
    QAccessibleInterface& ace_of_clubs = image(ace_pile_card(0).picture);
    EXPECT_EQ(ace_of_clubs.text(QAccessible::Name), "Ace of Clubs, ace pile 1, on top");
    EXPECT_EQ(ace_of_clubs.actionInterface(), nullptr);
}

TEST_F(AccessibleBoard, RefusesPressesThatTheMouseCouldNotMake) {
    QAccessibleInterface& stock = image(stock_image);
    press(stock);
    frmcards.mnuSetings.choose();
    ASSERT_TRUE(frmFeatures.visible());
    EXPECT_TRUE(stock.state().disabled);
    let_everything_happen();
    EXPECT_EQ(turned_slot(), -1) << "asked for before the dialog opened";
    press(stock);
    let_everything_happen();
    EXPECT_EQ(turned_slot(), -1) << "and while it is open";
    frmFeatures.cmdCancel.click();
    let_everything_happen();

    const Image& ace = frmcards.Image1(top_card(column_of_ace).picture);
    frmcards.mouse().press(ace.left() + 30, ace.top() + 40);
    ASSERT_TRUE(frmcards.mouse().dragged());
    press(stock);
    let_everything_happen();
    EXPECT_EQ(turned_slot(), -1) << "during a drag";
    EXPECT_EQ(frmcards.mouse().dragged(), &ace);
    frmcards.mouse().cancel();

    press(stock);
    EXPECT_TRUE(comes_true([] { return turned_slot() == 4; })) << "free again";
}

TEST_F(AccessibleBoard, TellsWhatChanges) {
    QAccessibleInterface& score = *child_of(frmcards.LblScore);
    EXPECT_EQ(score.text(QAccessible::Name), "Score: 0 of 200");
    ASSERT_TRUE(score.valueInterface());
    EXPECT_EQ(score.valueInterface()->currentValue(), 0);
    EXPECT_EQ(score.valueInterface()->maximumValue(), 200);
    press(image(stock_image));
    ASSERT_TRUE(comes_true([] { return turned_slot() == 4; }));
    EXPECT_EQ(changes(), "reorder of Card table; name of stock, 40 cards face down; ");
    press(image(stock_image));
    ASSERT_TRUE(comes_true([] { return turned_slot() == 9; }));
    EXPECT_EQ(changes(), "reorder of Card table; name of stock, 35 cards face down; ");

    // A point for the ace, and one for the card that it lay on.
    press(top_of(column_of_ace));
    ASSERT_TRUE(comes_true([] { return !ace_pile_is_empty(0); }));
    EXPECT_EQ(changes(),
              "reorder of Card table; name of Ace of Clubs, ace pile 1, on top; "
              "name of Score: 2 of 200; value of Score: 2 of 200; ");
    EXPECT_EQ(score.valueInterface()->currentValue(), 2);
    EXPECT_EQ(score.text(QAccessible::Value), "2");
    EXPECT_EQ(changes(), "") << "they are told once";
}

// What was told meanwhile is not told again.
TEST_F(AccessibleBoard, TellsChangesOnlyWhileSomebodyListens) {
    board();
    press(image(stock_image));
    ASSERT_TRUE(comes_true([] { return turned_slot() == 4; }));
    wait(news_time);
    EXPECT_NE(changes(), "") << "nobody listens";
    QAccessible::setActive(true);
    press(image(stock_image));
    ASSERT_TRUE(comes_true([] { return turned_slot() == 9; }));
    wait(news_time);
    EXPECT_EQ(changes(), "") << "told already";
    QAccessible::setActive(false);
}

TEST_F(AccessibleBoard, IsGoneWithItsWindow) {
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
    let_everything_happen();
    EXPECT_EQ(find_widget("board"), nullptr);
}

// Everything in a dialog that takes the keyboard, by its name.
QStringList keyboard_names(const Form& form) {
    QStringList names;
    for (const QWidget* control : find_widget(to_qt(form.name()))->findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || !control->isVisible()) continue;
        names +=
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control))->text(QAccessible::Name);
    }
    names.sort();
    return names;
}

// What can be read out in a dialog, in its order.
QString read_out(QAccessibleInterface& part) {
    QString text = part.role() == QAccessible::StaticText ? part.text(QAccessible::Name) + "; " : QString();
    for (int i = 0; i < part.childCount(); ++i) {
        if (!part.child(i)->state().invisible) text += read_out(*part.child(i));
    }
    return text;
}

QAccessibleInterface* find_child(QAccessibleInterface& part, const QString& name) {
    if (part.text(QAccessible::Name) == name) return &part;
    for (int i = 0; i < part.childCount(); ++i) {
        if (QAccessibleInterface* found = find_child(*part.child(i), name)) return found;
    }
    return nullptr;
}

class AccessibleDialog : public AccessibleBoard {
  protected:
    QAccessibleInterface& dialog(const Form& form) const {
        return *QAccessible::queryAccessibleInterface(find_widget(to_qt(form.name())));
    }
};

TEST_F(AccessibleDialog, NamesWhatTakesTheKeyboard) {
    high_score_place = none;
    for (Form* form : {static_cast<Form*>(&frmFeatures), static_cast<Form*>(&frmBestScore),
                       static_cast<Form*>(&frmyouwin), static_cast<Form*>(&frmError)}) {
        form->show();
    }
    EXPECT_EQ(
        keyboard_names(frmFeatures).join(", "),
        "Animate cards, Background Color, Cancel, Display Messages, Mid-Earth, Misty, OK, Pedal, Roman, "
        "Rose, Scale Cards To Fit Window, Stained, Text Color");
    EXPECT_EQ(keyboard_names(frmBestScore).join(", "), "Clear Score, OK");
    EXPECT_EQ(keyboard_names(frmyouwin).join(", "), "Your Name");
    EXPECT_EQ(keyboard_names(frmError).join(", "), "Close Game, Resume Next");
    for (const char* name : {"Congratulations", "Logo of Tarnwick"}) {
        EXPECT_TRUE(find_child(dialog(frmyouwin), name)) << name;
    }
    // The label beside a field is known for one.
    const QAccessibleInterface* name_box = find_child(dialog(frmyouwin), "Your Name");
    ASSERT_EQ(name_box->role(), QAccessible::StaticText);
    const auto tied = name_box->relations(QAccessible::Labelled);
    ASSERT_EQ(tied.size(), 1);
    EXPECT_EQ(tied.front().first->role(), QAccessible::EditableText);
}

TEST_F(AccessibleDialog, ReadsStatisticsInFull) {
    const std::string name = "Wilhelmina Featherstonehaugh-Cholmondeley of Upper Tarnwick by the Water";
    save("high score 1", "150");
    save("high score name 1", name);
    save("games played", "3");
    frmBestScore.show();
    const QString text = read_out(dialog(frmBestScore));
    const QString row = "1.; Score: 150; Name: " + to_qt(name) + "; Date: ; 2.; Score: 0; ";
    EXPECT_TRUE(text.contains(row)) << text.toStdString();
    EXPECT_TRUE(text.contains("Games Played: 3; ")) << text.toStdString();
    frmBestScore.lblGamesPlayed.set_caption("4");
    EXPECT_TRUE(read_out(dialog(frmBestScore)).contains("Games Played: 4; "));
}

TEST_F(AccessibleDialog, PressesPicturesAndSwatches) {
    frmFeatures.show();
    press(*find_child(dialog(frmFeatures), "Card back Roman"));
    EXPECT_TRUE(comes_true([] { return frmFeatures.optCardBack(3).on(); }));

    QAccessibleInterface& swatch = *find_child(dialog(frmFeatures), "Background Color");
    EXPECT_EQ(swatch.text(QAccessible::Description), "#008000");
    bool opened = false;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&opened] {
        QWidget* picker = QApplication::activeModalWidget();
        if (!picker) return;
        opened = true;
        picker->close();
    });
    closer.start(10);
    press(swatch);
    EXPECT_TRUE(comes_true([&opened] { return opened; })) << "the colour picker";
}

}  // namespace
}  // namespace tarnwick
