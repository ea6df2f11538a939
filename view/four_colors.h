#pragma once

#include <string>

namespace tarnwick {

/// A drawing with the suits in four colours, so that each is told from the others by more than its sign:
/// hearts red and spades black as ever, diamonds blue and clubs green.
/// @param name     the drawing's, as drawing_of() gives it
/// @param drawing  its text
std::string in_four_colors(const std::string& name, std::string drawing);

}  // namespace tarnwick
