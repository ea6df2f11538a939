// How soon the screen shows what a player's action does: a turn of the tablet, a card sent up to its ace
// pile, an undo. On the display in use; from the press of the button or key to the pixels.

#include <cstdlib>
#include <functional>
#include <iostream>
#include <stdexcept>

#include "bench/screen_watch.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "tools/driver/twin_game.h"
#include "windows/frmcards.h"

namespace {

using namespace tarnwick;

constexpr int rounds = 15;
// The fifth column of this deal ends in an ace.
constexpr std::uint32_t deal = 26;
constexpr int column_of_ace = 4;

// One game whose actions are timed.
class TimedGame {
  public:
    // The part of the screen that shows the inner half of a place on the board.
    XPlace part_of(const Rect& place) {
        const XPlace window = game_.screen().place(game_.window());
        return {window.x + static_cast<int>(place.left + place.width / 4),
                window.y + game_.board().y + static_cast<int>(place.top + place.height / 4),
                static_cast<int>(place.width / 2),
                static_cast<int>(place.height / 2)};
    }

    // Milliseconds from the begin of an action until that part of the screen has changed.
    double time(const std::string& name, const XPlace& part, const std::function<void(TwinGame&)>& act) {
        watch_.wait_for_rest(part);
        watch_.begin(part);
        act(game_);
        const std::optional<double> time = watch_.wait_for_change();
        if (!time) throw std::runtime_error("the " + name + " was not seen");
        return *time;
    }

    void turn_first_card() { game_.click_stock(); }

  private:
    TwinGame game_{{.program = TARNWICK_PROGRAM,
                    .deal = deal,
                    .settings = {{key_anamate, "False"}, {key_show_message, "False"}}}};
    ScreenWatch watch_;
};

void undo(TwinGame& game) {
    game.screen().key("ctrl+u");
    frmcards.mnuUndo.choose();
}

void send_ace_up(TwinGame& game) { game.click(column_of_ace); }
void turn_tablet(TwinGame& game) { game.click_stock(); }

}  // namespace

int main() {
    try {
        TimedGame game;
        std::vector<double> up;
        std::vector<double> turns;
        std::vector<double> undone;
        const XPlace pile = game.part_of(frmcards.Shape1(0).place());
        const XPlace column = game.part_of(top_image(column_of_ace).place());
        const auto waste = [&] { return game.part_of(top_image(tablet_pile).place()); };
        // So that there is a turned card whose place can be watched.
        game.turn_first_card();
        for (int round = 0; round < rounds; ++round) {
            up.push_back(game.time("move up", pile, send_ace_up));
            undone.push_back(game.time("undo", column, undo));
            turns.push_back(game.time("turn", waste(), turn_tablet));
        }
        std::cout << "move_up_ms " << median(up) << '\n'
                  << "turn_ms " << median(turns) << '\n'
                  << "undo_ms " << median(undone) << '\n';
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "moves: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
