#include "tools/driver/headless_game.h"

#include "platform/random.h"
#include "ui/program.h"

namespace tarnwick {

HeadlessGame::~HeadlessGame() {
    end_program();
    random_generator().stop_replay();
}

void HeadlessGame::start(std::uint32_t deal) {
    random_generator().replay(deal);
    start_program(store);
}

}  // namespace tarnwick
