#include "settings/repair.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "settings/settings.h"

namespace tarnwick {
namespace {

struct CheckedSetting {
    std::string key;
    std::string usual;
    /// Throws ConversionError, as the key's readers do.
    std::function<void(const std::string&)> convert;
};

std::vector<CheckedSetting> checked_settings(int card_backs) {
    const auto back = [card_backs](const std::string& text) {
        const int number = to_integer(text);
        if (number < 0 || number >= card_backs) throw ConversionError(text, "a card back");
    };
    std::vector<CheckedSetting> settings{{key_card_back, text_of(default_card_back), back},
                                         {key_back_color, text_of(default_back_color), to_long},
                                         {key_text_color, text_of(default_text_color), to_long}};
    for (const char* key : {key_scale_cards, key_show_message, key_anamate}) {
        settings.push_back({key, text_of(true), to_boolean});
    }
    for (const char* key : {key_games_played, key_games_won, key_average_score}) {
        settings.push_back({key, text_of(0), to_double});
    }
    for (int place = 1; place <= best_score_places; ++place) {
        settings.push_back({key_high_score(place), text_of(0), to_double});
    }
    return settings;
}

bool is_damaged(const CheckedSetting& setting) {
    try {
        setting.convert(read_setting(setting.key, setting.usual));
        return false;
    } catch (const ConversionError&) {
        return true;
    }
}

// An earlier damaged text is not lost for a later one.
std::string free_key_for(const std::string& key, const std::string& text) {
    std::string name = key + " (damaged)";
    for (int number = 2;; ++number) {
        const std::string kept = read_setting(name, std::string());
        if (kept.empty() || kept == text) return name;
        name = key + " (damaged " + text_of(number) + ")";
    }
}

void set_back(const CheckedSetting& setting) {
    const std::string text = read_setting(setting.key, setting.usual);
    save_setting(free_key_for(setting.key, text), text);
    save_setting(setting.key, setting.usual);
}

// Where the file cannot be written, nothing is set back, but the usual values hold all the same.
void tell(const std::vector<std::string>& keys, bool stored) {
    std::string list;
    for (const std::string& key : keys) list += (list.empty() ? "\"" : ", \"") + key + '"';
    const std::string text =
        stored ? "These stored values could not be read and were set back to the usual ones: " + list +
                     "; what was there is kept in the same file, marked as damaged."
               : "These stored values cannot be read, and the usual ones stand in for them: " + list + ".";
    desktop().after_event([text] { desktop().notify({"Tarnwick", text}); });
}

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

void repair_settings(int card_backs) {
    const std::vector<CheckedSetting> settings = checked_settings(card_backs);
    bool sound = true;
    for (const CheckedSetting& setting : settings) {
        sound = !is_damaged(setting) && setting_is_known(setting.key) && sound;
    }
    if (sound) return;
    // What cannot be read now may be damaged, or not: that turns out when it can.
    const auto damaged = std::make_shared<std::vector<std::string>>();
    const auto told = std::make_shared<bool>(false);
    const auto tell_once = [=](bool stored) {
        if (damaged->empty() || *told) return;
        *told = true;
        tell(*damaged, stored);
    };
    settings_transaction(
        [=] {
            damaged->clear();
            for (const CheckedSetting& setting : settings) {
                if (!is_damaged(setting)) continue;
                set_back(setting);
                damaged->push_back(setting.key);
            }
        },
        [=] { tell_once(true); });
    tell_once(false);
}

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
