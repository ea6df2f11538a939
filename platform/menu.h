#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

class Form;

/// One entry of a menu. The ampersand in its caption marks its access key.
class MenuEntry {
  public:
    /// `shortcut` is written as on the menu ("Ctrl+Q", "F2"), or empty.
    MenuEntry(Form& form, std::string caption, std::string shortcut = {})
        : form_(form), caption_(std::move(caption)), shortcut_(std::move(shortcut)) {}
    MenuEntry(const MenuEntry&) = delete;
    MenuEntry& operator=(const MenuEntry&) = delete;

    const std::string& caption() const { return caption_; }
    const std::string& shortcut() const { return shortcut_; }

    bool visible() const { return visible_; }
    void set_visible(bool visible);

    std::function<void()> on_click;
    /// What a desktop calls when the user chooses the entry; a hidden one and one of a disabled window do
    /// nothing.
    void choose();

  private:
    Form& form_;
    std::string caption_;
    std::string shortcut_;
    bool visible_ = true;
};

/// A menu of the menu bar with its entries from top to bottom.
struct Menu {
    std::string caption;
    std::vector<MenuEntry*> entries;
};

}  // namespace tarnwick
