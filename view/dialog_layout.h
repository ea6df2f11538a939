#pragma once

#include <vector>

#include "platform/form.h"
#include "view/area.h"
#include "view/dialog_texts.h"

namespace tarnwick {

/// The widgets of a dialog in the order in which controls are made for them: frames come before what they
/// hold; apart from that, who comes later lies above.
std::vector<Widget*> making_order(const Form& form);

/// How much a dialog is enlarged, evenly and at the least by 1, for its texts to fit. A text of unusual
/// length does not blow it up, and it does not outgrow the screen, of which this is the free part, in pixels.
double fitting_scale(const Form& form, PixelSize screen, const DialogMeasure& measure);

/// The size inside the window's frame, in pixels.
PixelSize dialog_size(const Form& form, double scale);

/// The place of a control, in pixels from the corner of the dialog or of the frame that holds it. Where it is
/// too low to be used, it grows evenly above and below.
Area control_place(const Widget& widget, double scale, const DialogMeasure& measure);

/// How a control shows its text in a layout enlarged by `scale`.
ShownText shown_text(const Widget& widget, double scale, const DialogMeasure& measure);

/// The place for a window of this size beside another one, on the side where it covers the least of it,
/// within the room for windows. Of one that is larger than the room, the upper left corner is seen.
Area place_beside(const Area& other, PixelSize size, const Area& room);

}  // namespace tarnwick
