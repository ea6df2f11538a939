#pragma once

#include <algorithm>

#include "platform/controls.h"
#include "platform/form.h"
#include "view/area.h"
#include "view/text_measure.h"

namespace tarnwick {

/// How the labels of a board are seen, which keep their stored places: as one row that grows upwards and to
/// the right from the lower left corner of its first one. Its texts are as much larger as the cards, and its
/// places as large again where the desktop's font needs more room. True until a widget or the font changes.
class LabelRow {
  public:
    LabelRow(const Form& form, const TextMeasure& texts);

    /// How much larger than the desktop's font the texts are, and than given their places; 1 or more.
    double font_scale() const { return font_scale_; }
    double place_scale() const { return place_scale_; }
    /// Where a label that lies at `given` is seen, in pixels of the window.
    Box place(const Rect& given) const;
    /// What surrounds all that are seen, in pixels of the window.
    Box surroundings() const;

  private:
    double font_scale_ = 1;
    double place_scale_ = 1;
    Box given_;  ///< of all labels
};

}  // namespace tarnwick
