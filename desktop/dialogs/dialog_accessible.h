#pragma once

namespace tarnwick {

class Widget;

/// A widget that the toolkit does not know for a button, although a click presses it.
class Pressable {
  public:
    virtual ~Pressable() = default;
    /// What a click presses, if it does anything.
    virtual Widget& pressed() const = 0;
};

/// Lets screen readers and their like press what is Pressable. Called once for the program; more often does
/// no harm.
void install_dialog_accessibility();

}  // namespace tarnwick
