#pragma once

#include "platform/graphics.h"

namespace tarnwick {

/// The colour of the table, and of the score labels on it.
void set_table_color(Color color);
/// The colour of the score labels' text and of the outlines.
void set_text_color(Color color);

}  // namespace tarnwick
