#include "tools/console/random_game.h"

#include <random>
#include <stdexcept>

#include "notation/position.h"
#include "notation/record_player.h"
#include "state/variables.h"

namespace tarnwick {
namespace {

class RandomGame {
  public:
    RandomGame(std::uint32_t seed, std::ostream& record) : engine_(seed), record_(record) {}

    void begin(std::uint32_t deal) {
        Action action;
        action.kind = ActionKind::deal;
        action.deal = deal;
        play(action);
    }

    /// Writes one more action, or a few refused drags and then one. False when the game is over.
    bool go_on() {
        const int kind = below(100);
        if (kind < 12) return play(plain(ActionKind::undo));
        if (kind == 12 && below(10) == 0) return play(plain(ActionKind::restart));
        if (kind < 30) return play(drag(pile(), pile(), below(71)));
        // Cards that reach an ace pile, or leave the tablet, bring the game on.
        for (int tries = 0; tries < 40; ++tries) {
            const int source = below(2) == 0 ? tablet_pile : pile();
            const int target = below(2) == 0 ? source : pile();
            if (moves(drag(source, target, Action::default_drop_offset))) return true;
        }
        return play(plain(ActionKind::turn));
    }

  private:
    int below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned>(limit)); }

    int pile() {
        const int number = below(16);
        return number > last_column && number < first_ace_pile ? tablet_pile : number;
    }

    static Action plain(ActionKind kind) {
        Action action;
        action.kind = kind;
        return action;
    }

    static Action drag(int source, int target, int offset) {
        Action action;
        action.kind = ActionKind::drag;
        action.source = source;
        action.target = target;
        action.offset = offset;
        return action;
    }

    bool play(const Action& action) {
        try {
            table_.play(action);
        } catch (const std::invalid_argument&) {
            // Nothing to take hold of there; the game itself goes on.
            return true;
        }
        record_ << text_of(action) << '\n';
        return high_score_place == none;
    }

    // Plays a drag, and writes it only when it was a move.
    bool moves(const Action& action) {
        const std::string before = position_text();
        try {
            table_.play(action);
        } catch (const std::invalid_argument&) {
            return false;
        }
        if (position_text() == before) return false;
        record_ << text_of(action) << '\n';
        return true;
    }

    std::mt19937 engine_;
    std::ostream& record_;
    RecordPlayer table_;
};

}  // namespace

void write_random_game(std::uint32_t deal, int actions, std::ostream& record) {
    RandomGame game(deal, record);
    game.begin(deal);
    for (int i = 0; i < actions && record && game.go_on(); ++i) {
    }
}

}  // namespace tarnwick
