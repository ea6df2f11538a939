#pragma once

#include <memory>
#include <string>

#include "notation/game_recorder.h"

namespace tarnwick {

/// The recorder that writes into this file; none when the name is empty. Throws CommandLineError when that is
/// a file of the store, and std::runtime_error, in one sentence, when it cannot be written.
std::unique_ptr<GameRecorder> recorder_for(const std::string& file, const std::string& store_file);

}  // namespace tarnwick
