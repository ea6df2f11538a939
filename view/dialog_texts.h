#pragma once

#include <limits>
#include <string>

#include "platform/graphics.h"
#include "platform/widget.h"
#include "view/text_measure.h"

namespace tarnwick {

/// How much room the texts of a dialog take, and what a front end draws around them; in pixels.
class DialogMeasure : public TextMeasure {
  public:
    /// The width of a check box or an option button: its mark, and its text beside it.
    virtual float marked_width(WidgetKind kind, const std::string& text, const TextFont& font) const = 0;
    /// The least height of a box that a text is typed into.
    virtual int box_height() const = 0;
};

/// Whether the text of a control can be read in full in a place of this size, in the font that it has in a
/// layout that is not enlarged. What has no text always fits.
bool text_fits(const Widget& widget, PixelSize place, const DialogMeasure& measure);

/// The text of a control as it is shown.
struct ShownText {
    TextFont font;
    std::string text;  ///< ends in an ellipsis where it is too wide; a centred one may hold line breaks
    /// In lines, from the upper edge on; else one line, in the middle of the height. The title of a frame
    /// lies on its upper edge.
    bool wraps = false;
    /// The whole of a text that cannot be seen in full; empty for any other. A front end can break it into
    /// lines of a readable length, even where it has no spaces.
    std::string tip;
};

/// How a control shows its text in a place of this size in a layout enlarged by `scale`: smaller where it
/// does not fit, but not so small that it could not be read, and cut where that is not enough. Never larger
/// than `most` pixels.
ShownText fitted_text(const Widget& widget, PixelSize place, double scale, const DialogMeasure& measure,
                      float most = std::numeric_limits<float>::infinity());

/// Whether a text is shown no larger than that of `other`, so that texts that mean the same look the same:
/// those with a size of their own keep to those that have it too, and all others to the dialog's captions.
/// Values keep to those under the same title as well.
bool keeps_to(const Widget& widget, const Widget& other);

/// The least height that a control can be used at, in pixels.
int least_height(const Widget& widget, const DialogMeasure& measure);

}  // namespace tarnwick
