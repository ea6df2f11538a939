#pragma once

namespace tarnwick {

/// A widget that the toolkit does not know for a button, although a click presses it.
class Pressable {
  public:
    virtual ~Pressable() = default;
    /// Whether a click does anything.
    virtual bool takes_presses() const = 0;
    virtual void press() = 0;
};

/// Lets screen readers and their like press what is Pressable. Called once for the program; more often does
/// no harm.
void install_dialog_accessibility();

}  // namespace tarnwick
