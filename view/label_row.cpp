#include "view/label_row.h"

#include "windows/pictures.h"

namespace tarnwick {

LabelRow::LabelRow(const Form& form, const TextMeasure& texts) {
    const double line_height = static_cast<double>(texts.height({}));
    double outline_width = 0;
    double room = 1;
    for (const Widget* widget : form.widgets()) {
        if (!widget->visible()) continue;
        const Box place = box_of(widget->place());
        // Outlines are as large as the cards.
        if (widget->kind() == WidgetKind::outline) outline_width = std::max(outline_width, place.width);
        if (widget->kind() != WidgetKind::label || place.empty()) continue;
        given_ = united(given_, place);
        const std::string& text = static_cast<const Label&>(*widget).caption();
        if (text.empty()) continue;
        room = std::max(
            {room, static_cast<double>(texts.width(text, {})) / place.width, line_height / place.height});
    }
    // Small cards leave the texts readable.
    font_scale_ = std::max(1.0, outline_width / card_width);
    place_scale_ = room * font_scale_;
}

Box LabelRow::place(const Rect& given) const {
    const Box box = box_of(given);
    const double height = box.height * place_scale_;
    return {given_.left + (box.left - given_.left) * place_scale_,
            box.bottom() - height,
            box.width * place_scale_,
            height};
}

Box LabelRow::surroundings() const {
    if (given_.empty()) return {};
    const double margin = 4 * font_scale_;
    const double height = given_.height * place_scale_;
    return {given_.left - margin,
            given_.bottom() - height - 1,
            given_.width * place_scale_ + 2 * margin,
            height + 2};
}

}  // namespace tarnwick
