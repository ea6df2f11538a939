#include "settings/stored_settings.h"

#include <set>
#include <string>

#include "platform/desktop.h"
#include "settings/settings.h"

namespace tarnwick {
namespace {

std::set<std::string>& told() {
    static std::set<std::string> sentences;
    return sentences;
}

void tell_once(const std::string& sentence) {
    if (!told().insert(sentence).second) return;
    desktop().after_event([sentence] { desktop().notify({"Tarnwick", sentence}); });
}

template <class Value, class Convert>
Value converted(const char* key, Value default_value, Convert convert) {
    try {
        return convert(read_setting(key, default_value));
    } catch (const ConversionError& failure) {
        tell_once(std::string("The stored setting \"") + key + "\" cannot be used: " + failure.what() +
                  ". The usual one stands in for it until you change it under Settings.");
        return default_value;
    }
}

}  // namespace

int stored_card_back(int count) {
    return converted(key_card_back, default_card_back, [count](const std::string& text) -> int {
        const int back = to_integer(text);
        if (back < 0 || back >= count) throw ConversionError(text, "a card back");
        return back;
    });
}
Color stored_back_color() { return converted(key_back_color, default_back_color, to_long); }
Color stored_text_color() { return converted(key_text_color, default_text_color, to_long); }
bool stored_flag(const char* key) { return converted(key, true, to_boolean); }

void forget_told_settings() { told().clear(); }

}  // namespace tarnwick
