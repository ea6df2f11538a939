#include "view/help_page.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

#include "board/table_colors.h"
#include "tests/view/grid_window.h"

namespace tarnwick {
namespace {

std::string help() {
    std::ifstream file(TARNWICK_HELP);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(HelpPage, NamesEveryKeyOfTheMenusAndShowsSignsThatThereAre) {
    const std::string page = help();
    for (const Menu& menu : frmcards.menus()) {
        for (const MenuEntry* entry : menu.entries) {
            EXPECT_NE(page.find("<td>" + entry->shortcut()), std::string::npos) << entry->shortcut();
        }
    }
    const std::regex sign("\"sign:(.*?)\"");
    int signs = 0;
    for (std::sregex_iterator found(page.begin(), page.end(), sign), end; found != end; ++found, ++signs) {
        EXPECT_TRUE(picture_of_place((*found)[1], {71, 96}, 1)) << (*found)[1];
    }
    EXPECT_EQ(signs, 3);
    EXPECT_FALSE(picture_of_place("queen", {71, 96}, 1));
}

TEST(HelpPage, ShowsEmptyPlacesAsTheyAreOnTheTable) {
    GridGame game(26);
    set_table_color(color_of(0, 0, 90));
    set_text_color(color_of(255, 255, 0));
    const auto picture = picture_of_place("ace", {142, 192}, 2);
    EXPECT_EQ(picture->table, frmcards.back_color());
    const PaintedOutline& shown = picture->outline;
    EXPECT_EQ(united(shown.place, Area{1, 1, 140, 190}), (Area{1, 1, 140, 190})) << "with some table around";
    const std::vector<PaintedOutline>& outlines = game.layers().outlines;
    EXPECT_EQ(shown.look.color, outlines.at(0).look.color);
    EXPECT_EQ(shown.look.sign.lines.size(), outlines.at(0).look.sign.lines.size());
}

TEST(HelpPage, IsAsLargeAsItsTextAndTheScreenNeed) {
    const FixedTexts texts;
    const auto height_at = [](int width) { return 600000 / width; };
    EXPECT_EQ(page_size(texts, {4000, 3000}, height_at), (PixelSize{630, 952})) << "90 letters of 7 pixels";
    EXPECT_EQ(page_size(texts, {1280, 800}, height_at), (PixelSize{630, 704}));
    EXPECT_EQ(page_size(texts, {500, 800}, height_at), (PixelSize{440, 704}));
}

}  // namespace
}  // namespace tarnwick
