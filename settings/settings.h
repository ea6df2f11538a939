#pragma once

#include <functional>
#include <string>

#include "settings/conversions.h"
#include "settings/store.h"

namespace tarnwick {

// The program's keys, spelt as they have always been stored.
inline constexpr const char* key_card_back = "card back";
inline constexpr const char* key_back_color = "back color";
inline constexpr const char* key_text_color = "text color";
inline constexpr const char* key_scale_cards = "scale cards";
inline constexpr const char* key_show_message = "show message";
inline constexpr const char* key_anamate = "anamate";
inline constexpr const char* key_games_played = "games played";
inline constexpr const char* key_games_won = "games won";
/// Holds the running total of the scores; the average is computed when it is shown.
inline constexpr const char* key_average_score = "average score";

// The best-score table, places 1 (the best) to 5.
inline constexpr int best_score_places = 5;
std::string key_high_score(int place);
std::string key_high_score_name(int place);
std::string key_high_score_date(int place);

/// Defaults that more than one reader needs.
inline constexpr int default_card_back = 0;
inline constexpr int default_back_color = 32768;
inline constexpr int default_text_color = 0;

/// Makes this the store that the settings are read from and saved to; null for none.
void use_store(Store* store);
Store& settings_store();

/// The stored text of a key, or the default as text. Every call asks the store.
std::string read_setting(const std::string& key, const std::string& default_text);
/// Would read as a number or a flag: a text is passed as a std::string.
std::string read_setting(const std::string& key, const char* default_text) = delete;
std::string read_setting(const std::string& key, int default_value);
std::string read_setting(const std::string& key, bool default_value);

/// Whether the last answer about a key was what is stored, and no default that stands in for a value out of
/// reach.
bool setting_is_known(const std::string& key);

/// Saves the text of a key at once.
void save_setting(const std::string& key, const std::string& text);

/// Carries out what `action` reads and saves as one change of the store; see Store::transaction().
void settings_transaction(const std::function<void()>& action, const std::function<void()>& done = {});

/// Whether a setting that is on unless the player has put it off reads as true.
bool setting_is_on(const char* key);

}  // namespace tarnwick
