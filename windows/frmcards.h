#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/family.h"
#include "platform/form.h"
#include "platform/image.h"
#include "platform/timer.h"

namespace tarnwick {

/// The numbers of the images in Image1: each has one fixed role.
inline constexpr int stock_image = 0;        ///< the face-down stock of the tablet
inline constexpr int first_ace_zone = 1;     ///< drop zones of the ace piles 0 to 3
inline constexpr int empty_waste_image = 5;  ///< "no card turned up"
inline constexpr int first_column_zone =
    20;  ///< drop zones of columns 0 to 9, under their cards and on below them
inline constexpr int first_face_down_image = 100;  ///< 100 + 10c + k: face-down card k of column c
inline constexpr int first_face_image = 200;       ///< 200 to 299: the faces; the index is the picture number
inline constexpr int last_face_image = 299;
inline constexpr int first_twinkle_image = 625;  ///< 625 to 634: frames of the twinkle
inline constexpr int plain_ace_image = 634;      ///< the last frame: the plain ace of Spades
inline constexpr int ace_of_spades_image = 225;

/// The image that shows the face-down card in slot k of column c.
constexpr int face_down_image(int c, int k) { return first_face_down_image + 10 * c + k; }

/// Top of the stock, the turned card and the cards on the ace piles, in pixels.
inline constexpr int top_row = 10;

/// What a won game scores, as the label beside the score says.
inline constexpr int most_points = 200;

/// The outlines in Shape1: ace piles from 0, columns from 4, then the stock.
inline constexpr int first_column_outline = 4;
inline constexpr int stock_outline = 14;

/// The main window: the table with its cards, three score labels, a menu bar and three timers.
/// Its drawing scale is pixels.
struct Frmcards : Form {
    Frmcards();

    ImageEvents image_events;
    ImageEvents no_events;

    Family<Outline> Shape1;
    Label lblScoreText{*this};
    Label LblScore{*this};
    Label LblScoreMax{*this};
    /// All three.
    std::array<Label*, 3> score_labels() { return {&lblScoreText, &LblScore, &LblScoreMax}; }
    Family<Image> Image1;
    Family<Image> ImgCardBacks;

    Timer Timer1{*this};  ///< the twinkle of the ace of Spades
    Timer Timer2{*this};  ///< the end of a peek at a face-down card
    Timer Timer3{*this};  ///< the slide of a card to its ace pile

    MenuEntry mnuNew{*this, "&New Game", "F2"};
    MenuEntry mnuRestart{*this, "&Restart Game", "F3"};
    MenuEntry mnuScore{*this, "&Best Score"};
    MenuEntry mnuExit{*this, "&Exit", "Ctrl+Q"};
    MenuEntry mnuUndo{*this, "&Undo", "Ctrl+U"};
    MenuEntry mnuSetings{*this, "&Change Settings"};
    MenuEntry mnuAbout{*this, "&Help", "F1"};

  protected:
    void design() override;

  private:
    void design_images();
    void design_labels();
    void design_timers();
};

extern Frmcards frmcards;

}  // namespace tarnwick
