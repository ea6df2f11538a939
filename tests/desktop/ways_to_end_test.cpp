// The ways to end the program that wait for nobody.

#include <signal.h>

#include <QTimer>

#include "tests/desktop/inner_game.h"
#include "tests/desktop/reach.h"
#include "tests/desktop/session_manager.h"
#include "windows/frmCommon.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"

namespace tarnwick {
namespace {

constexpr std::chrono::seconds patience{20};

// What a game is in the middle of, and what its end must leave in the store: games played, their total, the
// best score and its name.
struct Situation {
    const char* name;
    void (*reach)(TwinGame&);
    const char* left;
    bool has_better_scores = false;
    bool slides = false;
};

void open_settings(TwinGame& game) {
    score_two(game);
    open(game, {"alt+s", "c"}, "Select Settings");
}

void pick_a_color(TwinGame& game) {
    open_settings(game);
    open(game, {"space"}, "Background Color");
}

void ask_to_clear(TwinGame& game) {
    score_two(game);
    open(game, {"alt+f", "b"}, "Scores");
    open(game, {"Tab", "space"}, "Clear Scores?");
}

void slide(TwinGame& game) {
    game.click(column_of_ace);
    game.headless().desktop.advance(1000);
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
}

void type_name(TwinGame& game) {
    score_two(game);
    ask_for_name(game, "Ann");
}

const Situation situations[] = {
    {"NoScore", [](TwinGame&) {}, "- - - -"},
    {"Score", score_two, "1 2 190 -", true},
    {"BestScore", score_two, "1 2 2 "},
    {"NameTyped", type_name, "1 2 2 Ann"},
    {"SettingsOpen", open_settings, "1 2 2 "},
    {"SlideUnderWay", slide, "1 2 2 ", false, true},
};

std::map<std::string, std::string> store_before(const Situation& situation) {
    std::map<std::string, std::string> settings;
    if (!situation.slides) settings = without_slides;
    for (int place = 1; place <= 5 && situation.has_better_scores; ++place) {
        settings["high score " + std::to_string(place)] = "190";
    }
    return settings;
}

std::string left_in_store(const TwinGame& game) {
    std::string left;
    for (const char* key : {"games played", "average score", "high score 1", "high score name 1"}) {
        left += (left.empty() ? "" : " ") + game.stored(key);
    }
    return left;
}

// A way to end, and the exit status that tells of it.
struct Way {
    const char* name;
    void (*end)(TwinGame&, SessionManager&);
    int status;
};

template <int number>
void signal_to(TwinGame& game, SessionManager&) {
    kill(game.program().pid(), number);
}

const Way terminated{"Terminated", signal_to<SIGTERM>, 128 + SIGTERM};
const Way cut_off{"CutOff", [](TwinGame& game, SessionManager&) { game.screen().cut_off(game.window()); }, 1};
const Way ways[] = {
    terminated,
    {"Interrupted", signal_to<SIGINT>, 128 + SIGINT},
    {"HungUp", signal_to<SIGHUP>, 128 + SIGHUP},
    cut_off,
    {"LoggedOut",
     [](TwinGame&, SessionManager& session) { ASSERT_TRUE(session.save(true) && session.end()); },
     0},
};

class Ended : public testing::TestWithParam<std::tuple<Way, Situation>> {};

TEST_P(Ended, CountsTheGame) {
    const auto& [way, situation] = GetParam();
    SessionManager session;
    TwinGame game({tested_program(), 26, store_before(situation), {{"SESSION_MANAGER", session.address()}}});
    ASSERT_TRUE(session.joined());
    situation.reach(game);
    ASSERT_FALSE(HasFatalFailure());
    way.end(game, session);
    EXPECT_EQ(game.program().exit_code(patience), way.status);
    EXPECT_EQ(left_in_store(game), situation.left);
    // The toolkit has a word to say about a display that breaks.
    EXPECT_TRUE(way.status == 1 || game.program().errors().empty()) << game.program().errors();
}

INSTANTIATE_TEST_SUITE_P(Ways, Ended,
                         testing::Combine(testing::ValuesIn(ways), testing::ValuesIn(situations)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });

TEST(WaysToEnd, EveryWindowGoesBeforeItsDesktop) {
    TwinGame game({tested_program(), 26, without_slides});
    open(game, {"F1"}, "Help");
    ASSERT_TRUE(game.bring_to_front(game.window()));
    pick_a_color(game);
    leave(game, "Escape", "Background Color", game.wait_for("Select Settings"));
    leave(game, "Escape", "Select Settings", game.window());
    open(game, {"ctrl+q"}, win_title);
    open(game, {"Return"}, "Scores");
    game.screen().key("Return");
    EXPECT_EQ(game.program().exit_code(patience), 0);
    EXPECT_EQ(left_in_store(game), "1 2 2 ");
    EXPECT_EQ(game.program().errors(), "");
}

TEST(WaysToEnd, ADesktopThatGoesLeavesNoViewBehind) {
    MemoryStore store;
    {
        QtDesktop desktop;
        start_program(store);
        frmFeatures.show();
        frmCommon.load();
        desktop.show_help("tarnwick.html");
    }
    for (const Form* form : std::initializer_list<const Form*>{&frmcards, &frmFeatures, &frmCommon}) {
        EXPECT_TRUE(form->loaded() && !form->view()) << form->name();
    }
    EXPECT_TRUE(QApplication::topLevelWidgets().empty());
    const HeadlessDesktop cleaner;
    end_program();
}

TEST(WaysToEnd, QuestionsAreTakenBack) {
    SessionManager nobody;
    for (const auto& ask : {pick_a_color, ask_to_clear}) {
        for (const Way& way : {terminated, cut_off}) {
            TwinGame game({tested_program(), 26, without_slides});
            ask(game);
            ASSERT_FALSE(HasFatalFailure());
            way.end(game, nobody);
            EXPECT_EQ(game.program().exit_code(patience), way.status);
            EXPECT_EQ(left_in_store(game), "1 2 2 ");
            EXPECT_EQ(game.stored("back color"), "-");
        }
    }
}

TEST(WaysToEnd, ASecondSignalChangesNothing) {
    TwinGame game({tested_program(), 26, without_slides});
    score_two(game);
    kill(game.program().pid(), SIGTERM);
    for (int i = 0; i < 200 && game.program().running(); ++i) {
        kill(game.program().pid(), i % 2 == 0 ? SIGINT : SIGTERM);
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
    // Both can arrive at the same moment, in either order.
    const std::optional<int> status = game.program().exit_code(patience);
    EXPECT_TRUE(status == 128 + SIGTERM || status == 128 + SIGINT) << status.value_or(-1);
    EXPECT_EQ(left_in_store(game), "1 2 2 ");
}

TEST(WaysToEnd, ASignalThatIsIgnoredAtTheStartStaysSo) {
    signal(SIGHUP, SIG_IGN);
    TwinGame game({tested_program(), 26, without_slides});
    signal(SIGHUP, SIG_DFL);
    score_two(game);
    kill(game.program().pid(), SIGHUP);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    ASSERT_TRUE(game.program().running());
    EXPECT_EQ(game.stored("games played"), "-");
    kill(game.program().pid(), SIGTERM);
    EXPECT_EQ(game.program().exit_code(patience), 128 + SIGTERM);
    EXPECT_EQ(game.stored("games played"), "1");
}

TEST(WaysToEnd, ASessionThatIsSavedOrGoesOnEndsNoGame) {
    SessionManager session;
    TwinGame game({tested_program(), 26, without_slides, {{"SESSION_MANAGER", session.address()}}});
    ASSERT_TRUE(session.joined());
    score_two(game);
    ASSERT_TRUE(session.save(false));
    ASSERT_TRUE(session.save(true));
    session.call_off();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    ASSERT_TRUE(game.program().running());
    EXPECT_EQ(game.stored("games played"), "-");
    game.screen().key("F2");
    game.wait_for(win_title);
    EXPECT_EQ(game.stored("average score"), "2") << "the same game goes on";
}

TEST(WaysToEnd, AMessageBehindTheLastWindowIsReadBeforeTheProgramEnds) {
    const InnerGame game(26);
    bool seen = false;
    QObject context;
    QTimer::singleShot(300, &context, [&seen] {
        QWidget* message = QApplication::activeModalWidget();
        seen = message && message->isVisible();
        if (seen) message->close();
    });
    frmcards.on_unload = [] {
        desktop().after_event([] { desktop().notify({"Tarnwick", "Something is lost."}); });
    };
    frmcards.close();
    EXPECT_TRUE(seen);
    constexpr int unended = 3;
    QTimer::singleShot(5000, &context, [] { QCoreApplication::exit(unended); });
    EXPECT_EQ(QApplication::exec(), 0) << "the program goes on without a window";
}

}  // namespace
}  // namespace tarnwick
