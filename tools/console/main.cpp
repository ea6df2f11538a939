// Plays records of games, headless: reads actions from a file or from standard input, and answers each with
// the position after it.

#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "notation/position_text.h"
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
void play_stream(std::istream& lines, RecordPlayer& player, std::ostream* answers, Signature& signature) {
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        std::string answer;
        try {
            Action action;
            if (!parse_action(line, action)) continue;
            player.play(action);
            answer = text_of(action) + '\n';
        } catch (const std::invalid_argument& fault) {
            throw std::invalid_argument("line " + std::to_string(number) + ": " + fault.what());
        }
        for (const std::string& message : player.messages()) answer += "message: " + message + '\n';
        answer += position_text() + '\n';
        signature.add(answer);
        if (answers) *answers << answer << std::flush;
    }
}

void play_file(const std::string& name, RecordPlayer& player, std::ostream* answers, Signature& signature) {
    std::ifstream file(name);
    if (!file) throw std::invalid_argument(name + " cannot be read");
    try {
        play_stream(file, player, answers, signature);
    } catch (const std::invalid_argument& fault) {
        throw std::invalid_argument(name + ", " + fault.what());
    }
}

int number_from(const std::string& text) {
    int number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || stop != text.data() + text.size() || number < 0) {
        throw std::invalid_argument("\"" + text + "\" is not a number");
    }
    return number;
}

int run(const std::vector<std::string>& arguments) {
    const std::string first = arguments.empty() ? "" : arguments[0];
    Signature signature;
    if (first == "--help") {
        std::cout << usage;
    } else if (first == "--random" && arguments.size() == 3) {
        write_random_game(static_cast<std::uint32_t>(number_from(arguments[1])), number_from(arguments[2]),
                          std::cout);
    } else if (first == "--signature" && arguments.size() > 1) {
        RecordPlayer player;
        for (std::size_t i = 1; i < arguments.size(); ++i)
            play_file(arguments[i], player, nullptr, signature);
        std::cout << signature.text() << '\n';
    } else if (arguments.empty()) {
        RecordPlayer player;
        play_stream(std::cin, player, &std::cout, signature);
    } else if (arguments.size() == 1 && first.rfind("--", 0) != 0) {
        RecordPlayer player;
        play_file(first, player, &std::cout, signature);
    } else {
        std::cerr << usage;
        return bad_usage;
    }
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& fault) {
        std::cerr << "tarnwick-console: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}
