#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnwick {

/// What the program was asked for when it was started.
struct CommandLine {
    std::optional<std::uint32_t> deal;
    std::string store;   ///< the settings' file; empty for the usual one
    std::string record;  ///< the file that the game is recorded in; empty for none
    bool four_colors = false;
    bool high_contrast = false;
    bool help = false;
    bool version = false;
};

/// A command line that cannot be understood; what() tells why in one line.
class CommandLineError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name, as getopt_long does: the toolkit's own options are unknown.
/// Throws CommandLineError. Not for two threads at once.
CommandLine parse_command_line(const std::vector<std::string>& arguments);

/// What --help prints.
std::string command_line_help();

}  // namespace tarnwick
