#include "view/repaints.h"

namespace tarnwick {
namespace {

// Beyond so many areas, painting the whole board costs less than keeping them apart.
constexpr int most_areas = 24;

}  // namespace

void Repaints::add(const Area& area) {
    if (area.empty() || told_ >= most_areas) return;
    if (++told_ == most_areas) {
        front_.repaint_all();
        return;
    }
    front_.repaint(area.shifted(0, -scroll_.offset()));
}

void Repaints::add_all() {
    told_ = most_areas;
    front_.repaint_all();
}

void Repaints::move(Area& place, const Area& now) {
    if (now == place) return;
    add(place);
    add(place = now);
}

}  // namespace tarnwick
