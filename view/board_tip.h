#pragma once

#include <optional>
#include <string>

#include "platform/form.h"
#include "view/area.h"
#include "view/board_scene.h"

namespace tarnwick {

/// A text about something on the board, and the area that it is about, in pixels of the board's window.
struct BoardTip {
    std::string text;
    Area area;
};

/// What the pointer is told where it rests, a place of the window; nothing where there is nothing to tell.
std::optional<BoardTip> tip_at(const Form& form, const BoardScene& scene, Point place);

}  // namespace tarnwick
