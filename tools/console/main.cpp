// Plays records of games, headless: reads actions from a file or from standard input, and answers each with
// the position after it.

#include <charconv>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "notation/outside_text.h"
#include "notation/position.h"
#include "notation/record_player.h"
#include "tools/console/random_game.h"

namespace {

using namespace tarnwick;

constexpr const char* usage =
    "Usage: tarnwick-console [FILE]              play a record (standard input without FILE)\n"
    "       tarnwick-console --signature FILE... one number for the course of all these games\n"
    "       tarnwick-console --random DEAL COUNT write the record of a random game\n"
    "       tarnwick-console --help              this text\n";

constexpr int bad_usage = 2;

// Plays line by line, so that a program at the other end can wait for each answer.
void play_stream(std::istream& lines, RecordPlayer& player, bool answering, Signature& signature) {
    std::string line;
    for (int number = 1; read_line(lines, line); ++number) {
        std::string answer;
        try {
            Action action;
            if (!parse_action(number == 1 ? without_byte_order_mark(line) : line, action)) continue;
            player.play(action);
            answer = text_of(action) + '\n';
        } catch (const std::invalid_argument& fault) {
            throw std::invalid_argument("line " + std::to_string(number) + ": " + fault.what());
        }
        for (const std::string& message : player.messages()) answer += "message: " + message + '\n';
        answer += position_text() + '\n';
        signature.add(answer);
        if (!answering) continue;
        std::cout << answer;
        flush_standard_output();
    }
}

void play_file(const std::string& name, RecordPlayer& player, bool answering, Signature& signature) {
    std::error_code unknown;
    if (std::filesystem::is_directory(name, unknown)) {
        throw std::invalid_argument(name + " is a directory, not the record of a game");
    }
    std::ifstream file(name);
    if (!file) throw std::invalid_argument(name + " cannot be read");
    try {
        play_stream(file, player, answering, signature);
    } catch (const std::invalid_argument& fault) {
        throw std::invalid_argument(name + ", " + fault.what());
    }
    if (file.bad()) throw std::runtime_error(name + " cannot be read to its end");
}

std::uint32_t number_from(const std::string& text, std::uint32_t most) {
    std::uint32_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || stop != text.data() + text.size() || number > most) {
        throw std::invalid_argument("\"" + excerpt(text) + "\" is not a number from 0 to " +
                                    std::to_string(most));
    }
    return number;
}

int run(const std::vector<std::string>& arguments) {
    const std::string first = arguments.empty() ? "" : arguments[0];
    Signature signature;
    if (first == "--help") {
        std::cout << usage;
    } else if (first == "--random" && arguments.size() == 3) {
        constexpr std::uint32_t most_actions = std::numeric_limits<int>::max();
        write_random_game(number_from(arguments[1], std::numeric_limits<std::uint32_t>::max()),
                          static_cast<int>(number_from(arguments[2], most_actions)),
                          std::cout);
    } else if (first == "--signature" && arguments.size() > 1) {
        RecordPlayer player;
        for (std::size_t i = 1; i < arguments.size(); ++i) play_file(arguments[i], player, false, signature);
        std::cout << signature.text() << '\n';
    } else if (arguments.empty()) {
        RecordPlayer player;
        play_stream(std::cin, player, true, signature);
        if (std::cin.bad()) throw std::runtime_error("standard input cannot be read to its end");
    } else if (arguments.size() == 1 && first.rfind("--", 0) != 0) {
        RecordPlayer player;
        play_file(first, player, true, signature);
    } else {
        std::cerr << usage;
        return bad_usage;
    }
    flush_standard_output();
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    // A pipe that nobody reads any more is told like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    // The streams of C do not tell when standard input cannot be read.
    std::ios::sync_with_stdio(false);
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& fault) {
        std::cerr << "tarnwick-console: " << printable(fault.what()) << '\n';
        return EXIT_FAILURE;
    }
}
