#include "ui/stored_settings.h"

#include <string>

#include "platform/desktop.h"
#include "settings/settings.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

template <class Value, class Convert>
Value converted(const char* key, Value default_value, Convert convert) {
    try {
        return convert(read_setting(key, default_value));
    } catch (const ConversionError& failure) {
        const std::string sentence = std::string("The stored setting \"") + key + "\" cannot be used: " +
                                     failure.what() +
                                     ". The usual one stands in for it until you change it under Settings.";
        desktop().after_event([sentence] { desktop().message_box({"Tarnwick", sentence}); });
        return default_value;
    }
}

int to_card_back(const std::string& text) {
    const int back = to_integer(text);
    if (back < 0 || back >= back_count) throw ConversionError(text, "a card back");
    return back;
}

}  // namespace

int stored_card_back() { return converted(key_card_back, default_card_back, to_card_back); }
Color stored_back_color() { return converted(key_back_color, default_back_color, to_long); }
Color stored_text_color() { return converted(key_text_color, default_text_color, to_long); }
bool stored_flag(const char* key) { return converted(key, true, to_boolean); }

}  // namespace tarnwick
