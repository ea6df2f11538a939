#include <gtest/gtest.h>

#include "tests/store/scratch_folder.h"
#include "tools/driver/child_process.h"

// The console as a process: how it treats files, pipes and what does not belong into a record.

namespace tarnwick {
namespace {

// What the console does in a line of the shell, in which "$0" stands for it. It is stopped when it never
// ends.
struct ConsoleRun {
    explicit ConsoleRun(const std::string& line)
        : shell("/bin/sh", {"-c", "ulimit -t 20; " + line, TARNWICK_CONSOLE}) {
        code = shell.exit_code(std::chrono::seconds(60)).value_or(-1);
    }
    ChildProcess shell;
    int code;
};

TEST(Console, PlaysWhatItReads) {
    const ConsoleRun play(R"(printf '\357\273\277deal 1\n\nturn\n' | "$0")");
    EXPECT_EQ(play.code, 0) << play.shell.errors();
    EXPECT_EQ(play.shell.output().substr(0, 10), "deal 1\n0: ");
    EXPECT_NE(play.shell.output().find("\nturn\n0: "), std::string::npos);
    const ConsoleRun last_deal(R"("$0" --random 4294967295 2)");
    EXPECT_EQ(last_deal.shell.output().substr(0, 16), "deal 4294967295\n");
}

TEST(Console, TellsInOneSentenceWhatItCannotRead) {
    const ScratchFolder folder("console");
    const std::string name = folder / "game.txt";
    std::string forty_zeros;
    while (forty_zeros.size() < 40 * std::string_view(R"(\x00)").size()) forty_zeros += R"(\x00)";
    const auto refuses = [&](const std::string& line, const std::string& sentence) {
        const ConsoleRun run(line);
        EXPECT_EQ(run.code, 1) << line;
        EXPECT_EQ(run.shell.errors(), "tarnwick-console: " + sentence + '\n');
    };
    refuses("\"$0\" " + name, name + " cannot be read");
    refuses("\"$0\" /tmp", "/tmp is a directory, not the record of a game");
    refuses("\"$0\" --signature /tmp", "/tmp is a directory, not the record of a game");
    refuses("\"$0\" < /tmp", "standard input cannot be read to its end");
    refuses("\"$0\" /proc/self/mem", "/proc/self/mem cannot be read to its end");
    refuses("\"$0\" \"$(printf 'x\\033[31m\\ny')\"", R"(x\x1b[31m\x0ay cannot be read)");
    refuses("\"$0\" --random 4294967296 1", "\"4294967296\" is not a number from 0 to 4294967295");
    refuses("\"$0\" --random 1 \"$(printf '\\033')\"", R"("\x1b" is not a number from 0 to 2147483647)");
    refuses(R"({ printf 'deal 1\n'; cat /dev/zero; } | "$0")",
            "line 2: more than 4,096 characters in the line that begins with \"" + forty_zeros + "...\"");
    ScratchFolder::write(name, "deal 1\n\x1b[31mturn\n");
    refuses("\"$0\" " + name,
            name + R"(, line 2: "\x1b[31mturn" is none of deal, turn, drag, undo and restart)");
}

TEST(Console, TellsInOneSentenceThatItsOutputIsNotWritten) {
    for (const std::string line : {R"("$0" --help)",
                                   R"("$0" --random 3 5)",
                                   R"("$0" --signature /dev/null)",
                                   R"(printf 'deal 1\nturn\n' | "$0")"}) {
        for (const auto& [output, reason] : {std::pair{" > /dev/full", "No space left on device"},
                                             std::pair{" >&-", "Bad file descriptor"}}) {
            const ConsoleRun run(line + output);
            EXPECT_EQ(run.code, 1) << line;
            EXPECT_EQ(run.shell.errors(),
                      std::string("tarnwick-console: the output cannot be written: ") + reason + '\n');
        }
    }
    const ConsoleRun pipe(R"({ "$0" --random 3 2000000000; echo $? >&2; } | true)");
    EXPECT_EQ(pipe.shell.errors(), "tarnwick-console: the output cannot be written: Broken pipe\n1\n");
}

}  // namespace
}  // namespace tarnwick
