#include "settings/on_off_settings.h"

#include "settings/repair.h"
#include "settings/settings.h"

namespace tarnwick {

bool animation_is_on() { return setting_is_on(key_anamate); }
bool messages_are_on() { return setting_is_on(key_show_message); }
bool scaling_is_on() { return stored_flag(key_scale_cards); }

}  // namespace tarnwick
