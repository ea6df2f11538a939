#include "desktop/command_line.h"

#include <charconv>

namespace tarnwick {
namespace {

std::uint32_t deal_number(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end) {
        throw CommandLineError("--deal needs a whole number from 0 to 4294967295, not '" + text + "'");
    }
    return number;
}

}  // namespace

CommandLine parse_command_line(const std::vector<std::string>& arguments) {
    CommandLine result;
    auto argument = arguments.begin();
    const auto value = [&](const std::string& name, const std::string& what) {
        ++argument;
        if (argument == arguments.end() || argument->empty()) {
            throw CommandLineError(name + " needs " + what);
        }
        return *argument;
    };
    for (; argument != arguments.end(); ++argument) {
        if (*argument == "--deal") {
            result.deal = deal_number(value("--deal", "the number of a deal"));
        } else if (*argument == "--store") {
            result.store = value("--store", "the name of a file");
        } else if (*argument == "--record") {
            result.record = value("--record", "the name of a file");
        } else if (*argument == "--help") {
            result.help = true;
        } else if (*argument == "--version") {
            result.version = true;
        } else {
            throw CommandLineError("unknown argument '" + *argument + "' (--help lists the known ones)");
        }
    }
    return result;
}

std::string command_line_help() {
    return "Usage: tarnwick [--deal N] [--store FILE] [--record FILE]\n"
           "A patience card game with two packs.\n"
           "\n"
           "  --deal N       play deal number N (0 to 4294967295), then the deals after it\n"
           "  --store FILE   keep settings and scores in FILE\n"
           "  --record FILE  write down at the end of FILE what is played, for a report of a fault\n"
           "  --help         show this text and exit\n"
           "  --version      show the version and exit\n";
}

}  // namespace tarnwick
