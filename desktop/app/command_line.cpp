#include "desktop/app/command_line.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <charconv>

namespace tarnwick {
namespace {

// Only h and v are short options as well; the other letters are numbers for the long ones.
constexpr std::array<option, 8> options{{{"deal", required_argument, nullptr, 'd'},
                                         {"store", required_argument, nullptr, 's'},
                                         {"record", required_argument, nullptr, 'r'},
                                         {"four-colors", no_argument, nullptr, 'f'},
                                         {"high-contrast", no_argument, nullptr, 'c'},
                                         {"help", no_argument, nullptr, 'h'},
                                         {"version", no_argument, nullptr, 'v'},
                                         {nullptr, 0, nullptr, 0}}};
// "-" gives back other arguments where they stand, ":" tells a missing value from an unknown option.
constexpr const char* short_options = "-:hv";
constexpr int other_argument = 1;

std::string name_of(int letter) {
    const auto* const found = std::find_if(
        options.begin(), options.end(), [letter](const option& known) { return known.val == letter; });
    return std::string("--") + found->name;
}

std::string value_of(int letter, const std::string& text, bool is_given_before) {
    if (text.empty()) {
        throw CommandLineError(name_of(letter) + " needs " +
                               (letter == 'd' ? "the number of a deal" : "the name of a file"));
    }
    if (is_given_before) throw CommandLineError(name_of(letter) + " is given twice");
    return text;
}

std::uint32_t deal_number(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end) {
        throw CommandLineError("--deal needs a whole number from 0 to 4294967295, not '" + text + "'");
    }
    return number;
}

[[noreturn]] void refuse_unknown(const std::string& argument) {
    throw CommandLineError("unknown argument '" + argument + "' (--help lists the known ones)");
}

}  // namespace

CommandLine parse_command_line(const std::vector<std::string>& arguments) {
    std::vector<std::string> words{"tarnwick"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers(words.size() + 1, nullptr);
    std::transform(
        words.begin(), words.end(), pointers.begin(), [](std::string& word) { return word.data(); });
    const int count = static_cast<int>(words.size());

    CommandLine result;
    opterr = 0;
    optind = 0;
    while (true) {
        const auto at = static_cast<std::size_t>(std::max(optind, 1));
        const int found = getopt_long(count, pointers.data(), short_options, options.data(), nullptr);
        if (found == -1) break;
        switch (found) {
            case 'd':
                result.deal = deal_number(value_of('d', optarg, result.deal.has_value()));
                break;
            case 's':
                result.store = value_of('s', optarg, !result.store.empty());
                break;
            case 'r':
                result.record = value_of('r', optarg, !result.record.empty());
                break;
            case 'f':
                result.four_colors = true;
                break;
            case 'c':
                result.high_contrast = true;
                break;
            case 'h':
                result.help = true;
                break;
            case 'v':
                result.version = true;
                break;
            case ':':
                value_of(optopt, "", false);
                break;
            case other_argument:
            default:
                refuse_unknown(words[at]);
        }
    }
    // What stands behind "--".
    if (optind < count) refuse_unknown(words[static_cast<std::size_t>(optind)]);
    return result;
}

std::string command_line_help() {
    return "Usage: tarnwick [--deal N] [--store FILE] [--record FILE] [--four-colors] [--high-contrast]\n"
           "A patience card game with two packs.\n"
           "\n"
           "  --deal N         play deal number N (0 to 4294967295), then the deals after it\n"
           "  --store FILE     keep settings and scores in FILE\n"
           "  --record FILE    write down at the end of FILE what is played, for a report of a fault\n"
           "  --four-colors    draw diamonds blue and clubs green\n"
           "  --high-contrast  draw lines and windows in black and white\n"
           "  -h, --help       show this text and exit\n"
           "  -v, --version    show the version and exit\n"
           "\n"
           "A value may be joined to its option (--deal=5), and the name of an option cut short (--dea 5).\n";
}

}  // namespace tarnwick
