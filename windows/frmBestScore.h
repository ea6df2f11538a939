#pragma once

#include "platform/controls.h"
#include "platform/family.h"
#include "platform/form.h"

namespace tarnwick {

/// The statistics dialog: the five best scores, games played and won, the average score.
struct FrmBestScore : Form {
    FrmBestScore();

    Frame Frame1{*this};
    Outline shpBestSquare{*this};  ///< frames the row of a new entry
    Label lblScoreText{*this};
    Label lblNameText{*this};
    Label lblHighScoreDateText1{*this};
    Family<Label> place_labels;  ///< "1." to "5."
    Family<Label> lblHighScore;
    Family<Label> lblHighScoreName;
    Family<Label> lblHighScoreDate;
    Label lblGamesPlayedText{*this};
    Label lblGamesPlayed{*this};
    Label lblAverageScoreText{*this};
    Label lblAverageScore{*this};
    Label lblGamesWonText{*this};
    Label lblGamesWon{*this};
    Button cmdClearScore{*this};
    Button cmdOk{*this};

  protected:
    void design() override;

  private:
    void design_table();
    void design_totals();
};

extern FrmBestScore frmBestScore;

}  // namespace tarnwick
