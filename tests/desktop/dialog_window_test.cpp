#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <algorithm>

#include "desktop/shared/high_contrast.h"
#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

TEST(DialogWindow, ShowsALongNameInATipThatHasLines) {
    InnerGame game(26);
    frmBestScore.show();
    const std::string name = "<Featherstonehaugh> & Upper &lt; Tarnwick " + std::string(200, 'W');
    frmBestScore.lblHighScoreName(1).set_caption(name);
    const auto labels = shown_widget(frmBestScore.name())->findChildren<QLabel*>();
    const auto label = std::find_if(
        labels.begin(), labels.end(), [](const QLabel* each) { return !each->toolTip().isEmpty(); });
    ASSERT_NE(label, labels.end());
    EXPECT_EQ((*label)->font(), shown_widget(frmBestScore.name())->font()) << "cut at full size";
    QTextDocument tip;
    tip.setHtml((*label)->toolTip());
    EXPECT_EQ(tip.toPlainText().remove(QChar(0x200b)).toStdString(), name);
    constexpr qreal screen_width = 1000;
    tip.setTextWidth(screen_width / 2);
    EXPECT_LE(tip.size().width(), screen_width);
}

TEST(DialogWindow, ShowsWhichBackIsChosenAndWhatEnterDoes) {
    InnerGame game(26);
    frmFeatures.show();
    QWidget& dialog = *shown_widget("frmFeatures");
    const auto is_ringed = [&](int index) {
        const Rect& frame = frmFeatures.Frame1.place();
        const Rect& back = frmFeatures.ImgCardBacks(index).place();
        const double scale = dialog.width() / static_cast<double>(frmFeatures.client_size().width);
        const QPointF upper_edge(static_cast<double>(frame.left + back.left + back.width / 2),
                                 static_cast<double>(frame.top + back.top) - 3.5);
        return dialog.grab().toImage().pixelColor((upper_edge * scale).toPoint()) ==
               dialog.palette().color(QPalette::Highlight);
    };
    for (const int chosen : {3, 0, 5}) {
        frmFeatures.ImgCardBacks(chosen).click();
        for (int i = 0; i < 6; ++i) EXPECT_EQ(is_ringed(i), i == chosen) << i;
    }
    frmyouwin.show();
    EXPECT_EQ(shown_widget("frmyouwin")->findChild<QLineEdit*>()->placeholderText(),
              "Press Enter to record it");
}

TEST(DialogWindow, DrawsWholeLinesInHighContrast) {
    const QPalette usual = QApplication::palette();
    use_high_contrast();
    InnerGame game(26);
    frmFeatures.show();
    auto& frame = *shown_widget("frmFeatures")->findChild<QGroupBox*>();
    const QImage seen = frame.grab().toImage();
    const auto color_at = [&](int x) { return seen.pixelColor(x, seen.height() / 2); };
    for (const int edge : {0, 1, seen.width() - 2, seen.width() - 1})
        EXPECT_EQ(color_at(edge), Qt::black) << edge;
    EXPECT_EQ(color_at(2), Qt::white);
    QApplication::setPalette(usual);
}

TEST(DialogWindow, IsNotAnsweredByAHeldEnter) {
    InnerGame game(26);
    const auto press_enter_in = [](const Form& form, bool again) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", again);
        QCoreApplication::sendEvent(shown_widget(form.name())->focusWidget(), &event);
    };
    high_score_place = 1;
    for (Form* const form : {static_cast<Form*>(&frmyouwin), static_cast<Form*>(&frmBestScore)}) {
        form->show();
        press_enter_in(*form, true);
        EXPECT_TRUE(form->loaded());
        press_enter_in(*form, false);
        EXPECT_FALSE(form->loaded());
    }
    frmFeatures.show();
    auto& box = *shown_widget("frmFeatures")->findChild<QCheckBox*>();
    for (const bool again : {true, false}) {
        box.setFocus();
        press_enter_in(frmFeatures, again);
        EXPECT_EQ(frmFeatures.loaded(), again);
    }
}

TEST(DialogWindow, ToldOfAnErrorIsAToolWindowThatOutlivesTheMainWindow) {
    InnerGame game(26);
    frmError.show();
    EXPECT_TRUE(shown_widget("frmError")->testAttribute(Qt::WA_X11NetWmWindowTypeUtility));
    frmcards.unload();
    settle();
    QWidget* const dialog = shown_widget("frmError");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowType(), Qt::Dialog) << "not hidden while another program is in use";
    EXPECT_FALSE(dialog->windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_TRUE(comes_true([&] { return dialog->isActiveWindow(); }));
    const QPoint button = dialog->mapToGlobal(QPoint(30, 75));
    press(*QAccessible::queryAccessibleInterface(dialog)->childAt(button.x(), button.y()));
    EXPECT_TRUE(comes_true([] { return !frmError.loaded(); })) << "its buttons work";
}

TEST(DialogWindow, KeepsPlainLabelsPlainWhereTheDesktopWritesBold) {
    const QFont own = QApplication::font();
    QFont bold = own;
    bold.setBold(true);
    QApplication::setFont(bold);
    InnerGame game(26);
    frmBestScore.show();
    for (const QLabel* label : shown_widget(frmBestScore.name())->findChildren<QLabel*>()) {
        EXPECT_FALSE(label->font().bold()) << label->text().toStdString();
    }
    EXPECT_TRUE(shown_widget(frmBestScore.name())->findChild<QPushButton*>()->font().bold());
    QApplication::setFont(own);
}

}  // namespace
}  // namespace tarnwick
