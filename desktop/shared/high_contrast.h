#pragma once

#include <QPalette>

namespace tarnwick {

/// Whether windows in these colours are those of a desktop that wants high contrast. All that is drawn asks
/// the palette, wherever that has it from.
bool has_high_contrast(const QPalette& palette);

/// Gives the program's windows the colours of high contrast: white on black where they are dark, else black
/// on white.
void use_high_contrast();

/// Uses high contrast where the environment asks for it, and a little later where the desktop says so on the
/// session's message bus, now and whenever the program is turned to again. Takes no time at the start.
void follow_desktop_contrast();

/// The colours for a control of a dialog whose style draws its outline in a darker shade of the window's
/// colour: in high contrast that could not be seen.
QPalette outlined(QPalette palette);

}  // namespace tarnwick
