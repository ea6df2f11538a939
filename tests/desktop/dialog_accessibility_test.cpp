#include <gtest/gtest.h>

#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

#include "state/variables.h"
#include "tests/desktop/inner_game.h"
#include "windows/frmBestScore.h"
#include "windows/frmFeatures.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

QAccessibleInterface* find_child(QAccessibleInterface& part, const QString& name) {
    if (part.text(QAccessible::Name) == name) return &part;
    for (int i = 0; i < part.childCount(); ++i) {
        if (QAccessibleInterface* found = find_child(*part.child(i), name)) return found;
    }
    return nullptr;
}

QAccessibleInterface& accessible(const Form& form) {
    return *QAccessible::queryAccessibleInterface(shown_widget(form.name()));
}

TEST(DialogAccessibility, NamesControls) {
    InnerGame game(26);
    high_score_place = none;
    frmBestScore.show();
    frmBestScore.lblGamesPlayed.set_caption("4");
    EXPECT_TRUE(find_child(accessible(frmBestScore), "Games Played: 4"));
    frmyouwin.show();
    EXPECT_EQ(accessible(frmyouwin).text(QAccessible::Name), "Tarnwick");
    EXPECT_EQ(find_child(accessible(frmyouwin), "Congratulations")->role(), QAccessible::Grouping);
    EXPECT_TRUE(find_child(accessible(frmyouwin), "Logo of Tarnwick"));
    // The label beside a field is known for one.
    const QAccessibleInterface* name_box = find_child(accessible(frmyouwin), "Your Name");
    ASSERT_EQ(name_box->role(), QAccessible::StaticText);
    const auto tied = name_box->relations(QAccessible::Labelled);
    ASSERT_EQ(tied.size(), 1);
    EXPECT_EQ(tied.front().first->role(), QAccessible::EditableText);
    EXPECT_EQ(tied.front().first->text(QAccessible::Name), "Your Name");
}

TEST(DialogAccessibility, PressesPicturesAndDescribesSwatches) {
    InnerGame game(26);
    frmFeatures.show();
    press(*find_child(accessible(frmFeatures), "Card back Roman"));
    EXPECT_TRUE(comes_true([] { return frmFeatures.optCardBack(3).on(); }));

    QAccessibleInterface& swatch = *find_child(accessible(frmFeatures), "Background Color");
    EXPECT_EQ(swatch.role(), QAccessible::Button);
    EXPECT_EQ(swatch.text(QAccessible::Description), "green");
    frmFeatures.txtBackColor.set_colors(color_of(1, 2, 254), color_of(1, 2, 254));
    EXPECT_EQ(swatch.text(QAccessible::Description), "#0102fe");
}

TEST(DialogAccessibility, EntersANameOfAnyLength) {
    InnerGame game(26);
    frmyouwin.show();
    QAccessibleInterface& spoken =
        *QAccessible::queryAccessibleInterface(shown_widget("frmyouwin")->findChild<QLineEdit*>());
    spoken.setText(QAccessible::Value, QString(100000, 'a'));
    EXPECT_EQ(frmyouwin.txtYourName.text(), std::string(100000, 'a'));
    spoken.editableTextInterface()->replaceText(0, 100000, "Grace");
    EXPECT_EQ(frmyouwin.txtYourName.text(), "Grace");
}

TEST(DialogAccessibility, PressesNoButtonBehindAMessage) {
    InnerGame game(26);
    frmBestScore.show();
    QAccessibleInterface& clear = *find_child(accessible(frmBestScore), "Clear Score");
    int questions = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, &answer, [&] {
        QWidget* const question = QApplication::activeModalWidget();
        if (!question) return;
        if (++questions == 1) press(clear);
        if (questions < 20) return;
        answer.stop();
        question->close();
    });
    answer.start(20);
    press(clear);
    ASSERT_TRUE(comes_true([&] { return questions == 20; }));
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "one question was asked";
}

TEST(DialogAccessibility, ShowsNoOptionAsChosenBehindAMessage) {
    InnerGame game(26);
    frmFeatures.show();
    QRadioButton& option = *shown_widget("frmFeatures")->findChildren<QRadioButton*>().last();
    QTimer::singleShot(0, &option, [&option] {
        option.click();
        QApplication::activeModalWidget()->close();
    });
    desktop().notify({});
    EXPECT_FALSE(option.isChecked());
    option.click();
    EXPECT_TRUE(option.isChecked());
}

}  // namespace
}  // namespace tarnwick
