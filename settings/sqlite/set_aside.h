#pragma once

#include <string>

#include "settings/sqlite/sqlite_file.h"

namespace tarnwick {

/// Sets a damaged file aside, beside itself, and puts a new one in its place that holds `values` and what can
/// still be read of the damaged one, which `values` holds as well then. Other programs see one file or the
/// other, never anything between. Returns the name of the file that was set aside, or nothing where another
/// program has been quicker, so that there is a whole file again. Throws FileError where no new file can be
/// made: the damaged one stays in its place then.
std::string replace_damaged_file(const std::string& path, SettingTexts& values, LockPatience& patience);

}  // namespace tarnwick
