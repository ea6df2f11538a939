#include "platform/menu.h"

#include "platform/desktop.h"
#include "platform/form.h"

namespace tarnwick {

void MenuEntry::set_visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (FormView* view = form_.view()) view->menu_changed();
}

void MenuEntry::choose() {
    if (!visible_ || !form_.accepts_input() || !on_click) return;
    // What an entry does may change what lies under the pointer: a drag ends with it.
    form_.mouse().cancel();
    desktop().event(on_click);
}

}  // namespace tarnwick
