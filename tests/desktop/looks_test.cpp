// The dialogs on desktops that look different: their fonts, their colours, the way their language runs.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <cmath>
#include <functional>

#include "tests/desktop/inner_game.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

// Gives the toolkit its looks back.
class Looks : public testing::Test {
  protected:
    ~Looks() override {
        QApplication::setFont(font_);
        QApplication::setPalette(palette_);
    }

  private:
    QFont font_ = QApplication::font();
    QPalette palette_ = QApplication::palette();
};

// Shows each of the dialogs, one after the other.
void for_each_dialog(const std::function<void(const std::string& name, QWidget& dialog)>& look) {
    const InnerGame game(26);
    for (Form* form : {static_cast<Form*>(&frmFeatures),
                       static_cast<Form*>(&frmBestScore),
                       static_cast<Form*>(&frmyouwin),
                       static_cast<Form*>(&frmError)}) {
        form->show();
        if (form == &frmError) frmError.LblError.set_caption("Fatel Error in Subroutine layout_to_ace");
        QWidget* dialog = shown_widget(form->name());
        ASSERT_NE(dialog, nullptr) << form->name();
        look(form->name(), *dialog);
        form->on_unload = nullptr;
        form->unload();
    }
}

// What of a dialog's texts cannot be read in full.
std::string clipped_texts(const QWidget& dialog) {
    std::string faults;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        // The full text of a shortened label is in its tip.
        const bool shortened = !label->toolTip().isEmpty();
        const QRect needed = label->fontMetrics().boundingRect(
            QRect(0, 0, label->width(), 1000), label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
        const bool fits = needed.width() <= label->width() && needed.height() <= label->height() + 1;
        if (label->isVisible() && (shortened || !fits)) faults += "\"" + label->text().toStdString() + "\" ";
    }
    for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
        const bool marked = button->isCheckable();
        const int needed =
            marked ? button->sizeHint().width() : button->fontMetrics().horizontalAdvance(button->text());
        const bool fits = needed <= button->width() && button->fontMetrics().height() <= button->height();
        if (button->isVisible() && !fits) faults += "\"" + button->text().toStdString() + "\" ";
    }
    for (const QWidget* child : dialog.findChildren<QWidget*>()) {
        if (child->isVisible() && !child->parentWidget()->rect().contains(child->geometry())) {
            faults += "something beyond the edge ";
        }
    }
    return faults;
}

TEST_F(Looks, NoTextIsClippedInFontsOf8To16PointsOrTooLargeForTheScreen) {
    constexpr int dialogs_would_outgrow_the_screen = 28;
    for (const int points : {8, 9, 10, 11, 12, 13, 14, 15, 16, dialogs_would_outgrow_the_screen}) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        for_each_dialog([points](const std::string& name, QWidget& dialog) {
            EXPECT_EQ(clipped_texts(dialog), "") << name << " at " << points << " points";
        });
    }
}

// How well a text stands out, from 1 (not at all) to 21 (black on white).
double contrast(const QColor& text, const QColor& ground) {
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const double a = luminance(text) + 0.05;
    const double b = luminance(ground) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

TEST_F(Looks, EveryLabelStandsOutOnLightAndDarkDesktops) {
    constexpr double well_readable = 4.5;
    for (const QColor& ground :
         {QColor(239, 239, 239), QColor(49, 54, 59), QColor(0, 0, 0), QColor(255, 255, 255)}) {
        QApplication::setPalette(QPalette(ground, ground));
        for_each_dialog([&](const std::string& name, QWidget& dialog) {
            const QImage seen = dialog.grab().toImage();
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                if (!label->isVisible() || label->text().isEmpty()) continue;
                const QPoint corner = label->mapTo(&dialog, QPoint(0, 0));
                const QColor text = label->palette().color(label->foregroundRole());
                EXPECT_GE(contrast(text, seen.pixelColor(corner)), well_readable)
                    << name << ": " << label->text().toStdString() << " on " << ground.name().toStdString();
            }
        });
    }
}

TEST_F(Looks, ALanguageThatRunsFromRightToLeftLeavesTheDialogsInOrder) {
    std::vector<QImage> seen;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        for_each_dialog(
            [&](const std::string&, QWidget& dialog) { seen.push_back(dialog.grab().toImage()); });
    }
    ASSERT_EQ(seen.size(), 8U);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(seen[i], seen[i + 4]);
}

}  // namespace
}  // namespace tarnwick
