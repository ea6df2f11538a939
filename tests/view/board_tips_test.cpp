// What the board tells of its stock and of its deal.

#include "notation/position.h"
#include "tests/view/shown_board.h"

namespace tarnwick {
namespace {

class TipsOfABoard : public ShownBoard {
  protected:
    std::string tip(Point at) const {
        const std::optional<BoardTip> told = stage.tip_at(at.x, at.y);
        return told ? told->text : "";
    }
    Point on_label() {
        const Area label = around(game.layers().labels[2].place);
        return {label.left + 3.0, label.top + 3.0 - stage.scroll().offset()};
    }
};

TEST_F(TipsOfABoard, TellHowManyCardsAreLeftInTheStockAsItsEdgesDo) {
    const Image& stock = frmcards.Image1(stock_image);
    const auto edges = [&] {
        const Area pile = stage.scene().area_of(stock);
        int cards = 0;
        for (const PaintedImage& image : game.layers().images) {
            if (!image.place.meets(around(box_of(stock.place())))) continue;
            ++cards;
            EXPECT_EQ(united(pile, image.place), pile) << "repainted with the stock";
            EXPECT_LT(image.place.right(), turned_card_left) << "beside the turned card";
        }
        return std::max(0, cards - 1);
    };
    EXPECT_EQ(tip(on(stock)), "45 cards lie face down");
    std::string seen;
    for (int left = 45; left > 0; left -= 5) {
        seen += std::to_string(edges());
        click(on(stock));
        pass(200);
    }
    EXPECT_EQ(seen, "443322110") << "the last five lie flat";
    EXPECT_EQ(edges(), 0);
    EXPECT_EQ(tip(on(stock)), "No card lies face down: a click turns the cards over");
    set_position("0: Q♠\ntablet: (2♣) 3♣");
    EXPECT_EQ(tip(on(stock)), "1 card lies face down");
    frmcards.Image1(stock_image).click();
    EXPECT_EQ(tip(on(stock)), "") << "turned for good";
    EXPECT_EQ(edges(), 0);
    expect_shown();
}

TEST_F(TipsOfABoard, TellTheNumberOfTheDealWhichCanBeCopied) {
    EXPECT_EQ(tip(on_label()), "Deal 26 (Ctrl+C copies the number)");
    EXPECT_EQ(tip(bare_table) + tip(on(column_of_jack)), "");
    resize(800, 300);
    stage.scroll_to(60);
    EXPECT_NE(tip(on_label()), "") << "in its place of the window";
    press(on(column_of_jack));
    EXPECT_EQ(tip(on_label()), "") << "a card is held";
    stage.cancel();
    frmcards.copy();
    EXPECT_EQ(game.desktop.copied(), "26");
    frmcards.mnuNew.choose();
    frmcards.set_enabled(false);
    frmcards.copy();
    EXPECT_EQ(game.desktop.copied(), "26") << "behind a dialog";
    frmcards.set_enabled(true);
    frmcards.copy();
    EXPECT_EQ(game.desktop.copied(), "27");
}

}  // namespace
}  // namespace tarnwick
