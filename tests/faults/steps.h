#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarnwick {

/// The steps of every routine that may be resumed, in their order, in a few words each.
using StepList = std::map<std::string, std::vector<std::string>>;
const StepList& listed_steps();

}  // namespace tarnwick
