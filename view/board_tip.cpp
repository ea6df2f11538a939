#include "view/board_tip.h"

#include "view/spoken_board.h"

namespace tarnwick {

// The labels are read as one, and lie above all cards.
std::optional<BoardTip> tip_at(const Form& form, const BoardScene& scene, Point place) {
    const int down = scene.scrolled();
    const double y = place.y + down;
    const Area labels = scene.plate();
    const bool on_labels = Area{static_cast<int>(place.x), static_cast<int>(y), 1, 1}.meets(labels);
    const Image* image = form.mouse().image_at(static_cast<float>(place.x), static_cast<float>(y));
    for (const BoardItem& item : described_items(form)) {
        const bool is_meant = on_labels ? item.widget->kind() == WidgetKind::label : item.widget == image;
        if (!is_meant || item.tip.empty()) continue;
        const Area area = on_labels ? labels : scene.area_of(*item.widget);
        return BoardTip{item.tip, area.shifted(0, -down)};
    }
    return std::nullopt;
}

}  // namespace tarnwick
