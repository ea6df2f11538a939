#pragma once

#include <string>

namespace tarnwick {

enum class MessageButtons { ok, ok_cancel };
enum class MessageAnswer { ok, cancel };

/// A question or a notice in a small window that waits for an answer. OK is the default button.
struct Message {
    std::string title;
    std::string text;
    MessageButtons buttons = MessageButtons::ok;
};

}  // namespace tarnwick
