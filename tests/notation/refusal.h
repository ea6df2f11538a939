#pragma once

#include <exception>
#include <string>

namespace tarnwick {

/// The words in which something is refused; "accepted" when it is not.
template <class Attempt>
std::string refusal(const Attempt& attempt) {
    try {
        attempt();
    } catch (const std::exception& refused) {
        return refused.what();
    }
    return "accepted";
}

}  // namespace tarnwick
