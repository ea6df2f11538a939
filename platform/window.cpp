#include "platform/window.h"

#include "platform/desktop.h"

namespace tarnwick {

bool Window::accepts_input() const { return loaded_ && visible_ && enabled_ && !desktop().asking(); }

std::uint64_t Window::add_widget(Widget& widget) {
    widgets_.push_back(&widget);
    return next_stacking();
}

}  // namespace tarnwick
