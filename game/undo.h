#pragma once

namespace tarnwick {

/// Takes back the newest record of the undo list and removes it; a card that slides to its ace pile lands
/// first. The list must not be empty.
void do_undo();

}  // namespace tarnwick
