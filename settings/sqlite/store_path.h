#pragma once

#include <string>

namespace tarnwick {

/// Where the settings are kept unless --store names a file: under the user's XDG data folder. Throws
/// std::runtime_error, in one sentence, where the user has no folder for it.
std::string default_store_path();

/// The file that a name leads to: from the root on, and behind all links, so that what is set aside or made
/// anew lies where the links point. Throws FileError for no name, and for links that lead round in a circle.
std::string resolved_store_path(const std::string& name);

}  // namespace tarnwick
