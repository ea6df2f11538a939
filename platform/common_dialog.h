#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include "platform/graphics.h"

namespace tarnwick {

/// What the common dialogs raise on failure; cancelled by the player is one.
class CommonDialogError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The colour picker and the help viewer behind one object, as its callers use it: set it up, show it, read
/// it.
class CommonDialog {
  public:
    /// Whether a cancelled dialog raises an error.
    void set_cancel_error(bool raises) { cancel_error_ = raises; }

    void set_help_command(int command) { help_command_ = command; }
    void set_help_file(std::string name) { help_file_ = std::move(name); }
    /// Shows the help file. Throws CommonDialogError when it is not found or no file is named.
    void show_help();

    void set_flags(int flags) { flags_ = flags; }
    /// The title of the colour dialog: what gets the colour.
    void set_title(const std::string& title) { title_ = title; }
    /// Lets the player pick a colour, and goes on when that is done.
    void show_color(std::function<void()> then);
    /// The colour that was picked last. Throws CommonDialogError when the player has cancelled instead.
    Color color() const;

    /// The object as new.
    void reset() { *this = {}; }

  private:
    std::string help_file_;
    std::string title_;
    int help_command_ = 0;
    int flags_ = 0;
    Color color_ = black;
    bool cancel_error_ = false;
    bool cancelled_ = false;
};

/// The help command that opens the named file at its contents.
inline constexpr int help_contents_command = 9;

}  // namespace tarnwick
