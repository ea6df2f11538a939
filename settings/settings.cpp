#include "settings/settings.h"

#include <stdexcept>
#include <utility>

namespace tarnwick {
namespace {

constexpr const char* application = "Tarnwick";
constexpr const char* section = "setting";

Store* in_use = nullptr;

}  // namespace

std::string key_high_score(int place) { return "high score " + text_of(place); }
std::string key_high_score_name(int place) { return "high score name " + text_of(place); }
std::string key_high_score_date(int place) { return "high score date " + text_of(place); }

void use_store(Store* store) { in_use = store; }

Store& settings_store() {
    if (!in_use) throw std::logic_error("there is no settings store");
    return *in_use;
}

std::string read_setting(const std::string& key, const std::string& default_text) {
    return settings_store().read(application, section, key).value_or(default_text);
}

std::string read_setting(const std::string& key, int default_value) {
    return read_setting(key, text_of(default_value));
}

std::string read_setting(const std::string& key, bool default_value) {
    return read_setting(key, text_of(default_value));
}

bool setting_is_known(const std::string& key) { return settings_store().knows(application, section, key); }

void save_setting(const std::string& key, const std::string& text) {
    settings_store().save(application, section, key, text);
}

void settings_transaction(const std::function<void()>& action, const std::function<void()>& done) {
    Store& store = settings_store();
    // An action that has to wait is about the store of its time.
    store.transaction(
        [&store, action] {
            Store* const before = std::exchange(in_use, &store);
            try {
                action();
            } catch (...) {
                in_use = before;
                throw;
            }
            in_use = before;
        },
        done);
}

bool setting_is_on(const char* key) { return to_boolean(read_setting(key, true)); }

}  // namespace tarnwick
