#include "game/statistics.h"

#include <memory>

#include "platform/desktop.h"
#include "settings/settings.h"
#include "state/cards.h"

namespace tarnwick {
namespace {

void add_to_setting(const char* key, int amount) {
    save_setting(key, text_of(to_double(read_setting(key, 0)) + amount));
}

void add_game(int points, bool won) {
    add_to_setting(key_games_played, 1);
    add_to_setting(key_average_score, points);
    if (won) add_to_setting(key_games_won, 1);
}

// The place that a score takes, or none. A score equal to a stored one goes above it.
int place_of(int points) {
    int place = none;
    for (int i = best_score_places; i >= 1 && to_double(read_setting(key_high_score(i), 0)) <= points; --i) {
        place = i;
    }
    return place;
}

void move_entry_down(int place) {
    const std::string best = read_setting(key_high_score(place), 0);
    const std::string name = read_setting(key_high_score_name(place), std::string());
    const std::string date = read_setting(key_high_score_date(place), std::string());
    save_setting(key_high_score(place + 1), best);
    save_setting(key_high_score_name(place + 1), name);
    save_setting(key_high_score_date(place + 1), date);
}

void write_entry(int place, int points, const std::string& name, const std::string& date) {
    for (int i = best_score_places - 1; i >= place; --i) move_entry_down(i);
    save_setting(key_high_score(place), text_of(points));
    save_setting(key_high_score_date(place), date);
    save_setting(key_high_score_name(place), name);
}

void tell_beaten(int points) {
    desktop().after_event([points] {
        desktop().notify({"Tarnwick",
                          "Your score of " + text_of(points) +
                              " is not among the best scores any more: better ones were "
                              "entered in another window meanwhile."});
    });
}

}  // namespace

int count_game(int points, bool complete) {
    // What the player is shown stays true: a game that has won is counted as won whenever that gets written.
    struct Found {
        int place = none;
        bool decided = false;
    };
    const auto found = std::make_shared<Found>();
    settings_transaction([=] {
        if (!found->decided) *found = {place_of(points), true};
        add_game(points, complete && found->place == 1);
    });
    return found->place;
}

void count_and_enter_game(int points, bool complete) {
    settings_transaction([=, date = desktop().short_date()] {
        const int place = place_of(points);
        add_game(points, complete && place == 1);
        if (place != none) write_entry(place, points, "", date);
    });
}

int enter_best_score(int points, const std::string& name) {
    const auto place = std::make_shared<int>(none);
    settings_transaction(
        [=, date = desktop().short_date()] {
            *place = place_of(points);
            if (*place != none) write_entry(*place, points, name, date);
        },
        [=] {
            if (*place == none) tell_beaten(points);
        });
    return *place;
}

}  // namespace tarnwick
