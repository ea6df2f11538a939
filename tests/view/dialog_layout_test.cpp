#include "view/dialog_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/play/play.h"
#include "view/chosen_ring.h"
#include "view/dialog_texts.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmyouwin.h"

namespace tarnwick {
namespace {

constexpr PixelSize large_screen{4000, 3000};

// Every letter is half as wide as its font is large, and a line a quarter higher.
class EvenLetters : public DialogMeasure {
  public:
    explicit EvenLetters(float desktop_size) : desktop_size_(desktop_size) {}

    float desktop_size() const override { return desktop_size_; }
    float width(const std::string& text, const TextFont& font) const override {
        const auto letters =
            std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; });
        return static_cast<float>(letters) * height(font) / 2.5F;
    }
    float height(const TextFont& font) const override {
        return (font.pixels > 0 ? font.pixels : desktop_size_) * 1.25F;
    }
    // The texts of these tests have a place to break at wherever one is needed.
    TextSize wrapped(const std::string& text, const TextFont& font, float width) const override {
        const float whole = this->width(text, font);
        return {std::min(whole, width), std::ceil(whole / width) * height(font)};
    }
    float marked_width(WidgetKind, const std::string& text, const TextFont& font) const override {
        return 24 + width(text, font);
    }
    int box_height() const override { return static_cast<int>(height({})) + 6; }

  private:
    float desktop_size_;
};

const EvenLetters usual{12};

struct SmallDialog : Form {
    SmallDialog() : Form("small") {
        left.put_into(frame);
        right.put_into(frame);
    }
    Label left{*this};
    Label right{*this};
    TextBox box{*this};
    Frame frame{*this};

    void design() override {}
};

TEST(DialogLayout, IsEnlargedForALargerFontAsFarAsTheScreenLets) {
    Play play;
    play.start();
    for (Form* form : std::initializer_list<Form*>{&frmFeatures, &frmBestScore, &frmyouwin, &frmError}) {
        form->show();
        EXPECT_EQ(fitting_scale(*form, large_screen, EvenLetters(10)), 1) << form->name();
        EXPECT_GT(fitting_scale(*form, large_screen, EvenLetters(24)), 1.2) << form->name();
        EXPECT_EQ(fitting_scale(*form, form->client_size(), EvenLetters(24)), 1) << form->name();
    }
    EXPECT_NEAR(fitting_scale(frmError, large_screen, EvenLetters(24)), 1.44, 0.001) << "for \"Resume Next\"";
    frmBestScore.lblHighScoreName(1).set_caption(std::string(200, 'W'));
    EXPECT_EQ(fitting_scale(frmBestScore, large_screen, EvenLetters(10)), 1) << "a name does not blow it up";
}

TEST(DialogLayout, RoundsEdgesAndLeavesRoomToWrite) {
    SmallDialog dialog;
    dialog.left.move(0, 0, 33.3F, 15);
    dialog.right.move(33.3F, 0, 20, 15);
    for (const double scale : {1.0, 1.02, 1.1, 1.24, 1.38, 1.5, 1.66, 1.8}) {
        EXPECT_EQ(control_place(dialog.left, scale, usual).right(),
                  control_place(dialog.right, scale, usual).left);
    }
    dialog.box.move(10, 40, 80, 10);
    EXPECT_EQ(control_place(dialog.box, 1, usual), (Area{10, 35, 80, 21}));
    EXPECT_EQ(control_place(dialog.box, 2.5, usual), (Area{25, 100, 200, 25}));
    dialog.box.set_colors(black, black);
    EXPECT_EQ(control_place(dialog.box, 1, usual).height, 10) << "nothing is written into a swatch";
    dialog.left.bring_to_front();
    EXPECT_EQ(making_order(dialog),
              (std::vector<Widget*>{&dialog.box, &dialog.frame, &dialog.right, &dialog.left}));
}

TEST(DialogLayout, LeavesAirBeforeAValueAndRoomForTheRingOfTheChosenBack) {
    Play play;
    play.start();
    frmBestScore.show();
    frmFeatures.show();
    for (int size = 8; size <= 20; ++size) {
        const EvenLetters letters(static_cast<float>(size));
        for (const PixelSize screen : {large_screen, frmBestScore.client_size()}) {
            const double scale = fitting_scale(frmBestScore, screen, letters);
            const Label& label = frmBestScore.lblAverageScoreText;
            const ShownText text = shown_text(label, scale, letters);
            const float end = static_cast<float>(control_place(label, scale, letters).left) +
                              letters.width(text.text, text.font);
            const int value = control_place(frmBestScore.lblAverageScore, scale, letters).left;
            EXPECT_GE(static_cast<float>(value) - end, 4) << size;
        }
    }
    for (const double scale : {1.0, 1.3, 2.0}) {
        const auto place_of = [&](const Widget& widget) { return control_place(widget, scale, usual); };
        const Area back = place_of(frmFeatures.ImgCardBacks(4));
        const ChosenRing ring = chosen_ring({back.width, back.height}, scale);
        EXPECT_GE(-ring.middle.left - ring.line / 2, 1) << "air";
        const Area around_ring =
            around(ring.middle.grown(ring.line / 2)).shifted(back.left, back.top).grown(1);
        for (Widget* widget : frmFeatures.widgets()) {
            const bool beside = widget->container() && widget != &frmFeatures.ImgCardBacks(4);
            EXPECT_FALSE(beside && place_of(*widget).meets(around_ring)) << scale;
        }
    }
    EXPECT_EQ(ring_color(color_of(48, 140, 198), black, color_of(239, 239, 239)), color_of(48, 140, 198));
    EXPECT_EQ(ring_color(color_of(200, 200, 200), black, color_of(239, 239, 239)), black);
}

TEST(DialogTexts, ThatMeanTheSameHaveOneSize) {
    Play play;
    play.start();
    frmBestScore.show();
    frmyouwin.show();
    const EvenLetters large(24);
    const auto size = [&](const Widget& widget) { return shown_text(widget, 1, large).font.pixels; };
    EXPECT_LT(size(frmBestScore.cmdOk), 24) << "there is room for more";
    for (const Widget* widget : std::initializer_list<const Widget*>{&frmBestScore.cmdClearScore,
                                                                     &frmBestScore.lblNameText,
                                                                     &frmBestScore.lblGamesWonText,
                                                                     &frmBestScore.lblGamesWon}) {
        EXPECT_EQ(size(*widget), size(frmBestScore.cmdOk));
    }
    frmBestScore.lblHighScoreName(2).set_caption(std::string(34, 'a'));
    const auto name_size = [](int place) {
        return shown_text(frmBestScore.lblHighScoreName(place), 1, usual).font.pixels;
    };
    EXPECT_LT(name_size(2), shown_text(frmBestScore.lblNameText, 1, usual).font.pixels);
    EXPECT_EQ(name_size(1), name_size(2)) << "a column";
    EXPECT_EQ(shown_text(frmBestScore.lblHighScore(2), 1, usual).font,
              shown_text(frmBestScore.lblNameText, 1, usual).font)
        << "no other";
    const ShownText high_score = shown_text(frmyouwin.lblNewHighScore, 1, usual);
    EXPECT_EQ(high_score.font, shown_text(frmyouwin.lblComgrats, 1, usual).font);
    EXPECT_EQ(high_score.text, "You have a new\nhigh score!") << "even lines";
}

TEST(DialogTexts, BecomeSmallerAndAreCutOnlyWhereTheyMust) {
    SmallDialog dialog;
    Label& label = dialog.left;
    const auto shown = [&](const std::string& text, PixelSize place) {
        label.set_caption(text);
        return fitted_text(label, place, 1, usual);
    };
    EXPECT_EQ(shown(std::string(10, 'a'), {62, 15}).font, (TextFont{"", 0, false})) << "the desktop's own";
    EXPECT_EQ(shown(std::string(10, 'a'), {61, 15}).font.pixels, 11);
    EXPECT_EQ(shown(std::string(10, 'a'), {32, 15}).font.pixels, 6) << "as far as it can be read";
    EXPECT_TRUE(shown(std::string(18, 'a'), {60, 30}).wraps);
    label.label_with(dialog.right);
    EXPECT_EQ(shown(std::string(10, 'a'), {47, 15}).font.pixels, 9) << "a value not far";
    const ShownText cut = shown(std::string(10, 'a'), {46, 15});
    EXPECT_EQ(cut.font.pixels, 0) << "not smaller for nothing";
    EXPECT_EQ(cut.text, "aaaaaa\u2026");
    EXPECT_EQ(cut.tip, std::string(10, 'a'));
    EXPECT_EQ(shown("e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301", {28, 15}).text, "e\u0301\u2026")
        << "an accent stays with its letter";
    const std::string line(30, 'W');
    EXPECT_EQ(shown(line + line + "WW & 1", {46, 15}).tip, line + "\u200B" + line + "\u200BWW & 1");
    label.set_font({"Arial", 18, true});
    label.set_caption(std::string(10, 'a'));
    EXPECT_EQ(fitted_text(label, {500, 45}, 1.5, usual).font, (TextFont{"Arial", 36, true}));
    EXPECT_EQ(fitted_text(label, {22, 11}, 1.5, usual).font, (TextFont{"Arial", 4, true})) << "gives way";
    EXPECT_TRUE(text_fits(label, {22, 11}, usual)) << "and enlarges no dialog";
}

}  // namespace
}  // namespace tarnwick
