#include "windows/frmBestScore.h"

#include <string>

#include "settings/settings.h"

namespace tarnwick {
namespace {

void place_label(Label& label, const std::string& caption, int left, int top, int width, int height) {
    label.set_caption(caption);
    label.move_twips(left, top, width, height);
}

}  // namespace

FrmBestScore frmBestScore;

FrmBestScore::FrmBestScore() : Form("frmBestScore") {
    for (int i = 1; i <= best_score_places; ++i) {
        for (Family<Label>* column : {&place_labels, &lblHighScore, &lblHighScoreName, &lblHighScoreDate}) {
            column->add(i, *this).put_into(Frame1);
        }
    }
    for (Widget* widget : {static_cast<Widget*>(&shpBestSquare),
                           static_cast<Widget*>(&lblScoreText),
                           static_cast<Widget*>(&lblNameText),
                           static_cast<Widget*>(&lblHighScoreDateText1)}) {
        widget->put_into(Frame1);
    }
    for (int i = 1; i <= best_score_places; ++i) {
        lblHighScore(i).label_with(lblScoreText);
        lblHighScoreName(i).label_with(lblNameText);
        lblHighScoreDate(i).label_with(lblHighScoreDateText1);
    }
    lblGamesPlayed.label_with(lblGamesPlayedText);
    lblAverageScore.label_with(lblAverageScoreText);
    lblGamesWon.label_with(lblGamesWonText);
    // Begins with the button that does no harm.
    set_tab_order({&cmdOk, &cmdClearScore});
}

void FrmBestScore::design() {
    set_caption("Scores");
    set_border(FormBorder::fixed_dialog);
    resize_client({5895 / twips_per_pixel, 3405 / twips_per_pixel});
    design_table();
    design_totals();
    cmdClearScore.set_caption("Clear Score");
    cmdClearScore.move_twips(3120, 2760, 1212, 372);
    cmdOk.set_caption("OK");
    cmdOk.set_default(true);
    cmdOk.set_cancel(true);
    cmdOk.move_twips(4560, 2760, 1212, 372);
}

void FrmBestScore::design_table() {
    Frame1.set_caption("Best Scores");
    Frame1.move_twips(120, 0, 5652, 2532);
    place_label(lblScoreText, "Score:", 600, 240, 612, 252);
    place_label(lblNameText, "Name:", 1440, 240, 852, 252);
    place_label(lblHighScoreDateText1, "Date:", 4200, 240, 732, 252);
    for (int i = 1; i <= best_score_places; ++i) {
        const std::string number = std::to_string(i);
        const int top = 600 + 360 * (i - 1);
        place_label(place_labels(i), number + ".", 240, top, 204, 252);
        place_label(lblHighScore(i), "SCORE" + number, 600, top, 732, 252);
        place_label(lblHighScoreName(i), "NAME" + number, 1440, top, 2772, 252);
        place_label(lblHighScoreDate(i), "DATE" + number, 4200, top, 1212, 252);
    }
    shpBestSquare.hide();
    shpBestSquare.move_twips(120, 480, 5412, 372);
}

void FrmBestScore::design_totals() {
    place_label(lblGamesPlayedText, "Games Played:", 240, 2640, 1335, 255);
    place_label(lblGamesPlayed, "PLAYED TEXT", 1560, 2640, 1095, 255);
    place_label(lblAverageScoreText, "Average Score:", 240, 2880, 1335, 255);
    place_label(lblAverageScore, "", 1560, 2880, 1095, 255);
    place_label(lblGamesWonText, "Games Won:", 240, 3120, 1335, 255);
    place_label(lblGamesWon, "", 1560, 3120, 1095, 255);
}

}  // namespace tarnwick
