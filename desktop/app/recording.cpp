#include "desktop/app/recording.h"

#include "desktop/app/command_line.h"
#include "notation/record_file.h"

namespace tarnwick {

std::unique_ptr<GameRecorder> recorder_for(const std::string& file, const std::string& store_file) {
    if (file.empty()) return nullptr;
    // What stands in its journal SQLite plays into the store.
    if (names_one_file(file, store_file) || names_one_file(file, store_file + "-journal")) {
        throw CommandLineError("--record must not name the file of the settings, " + store_file);
    }
    return std::make_unique<GameRecorder>(file);
}

}  // namespace tarnwick
