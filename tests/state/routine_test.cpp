#include "state/routine.h"

#include <gtest/gtest.h>

#include "board/display.h"
#include "state/undo_list.h"
#include "tests/play/play.h"
#include "windows/frmError.h"
#include "windows/frmcards.h"

// That every routine deals with every failure is the matter of the forced faults.

namespace tarnwick {
namespace {

TEST(Integer, HoldsSixteenBits) {
    Integer number = 32767;
    EXPECT_THROW(number += 1, IntegerOverflow);
    EXPECT_EQ(number, 32767);
    number = -32768;
    EXPECT_THROW(number -= 1, IntegerOverflow);
    EXPECT_THROW(number = 40000, IntegerOverflow);
}

TEST(BoundedArray, HasInclusiveBounds) {
    BoundedArray<9, 22, 3> array;
    array(9, 22, 3) = 7;
    EXPECT_EQ(array(9, 22, 3), 7);
    EXPECT_EQ(array(9, 22, 2), 0) << "each element has a place of its own";
    for (const auto& [a, b, c] :
         {std::array{10, 0, 0}, {0, 23, 0}, {0, 0, 4}, {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}) {
        EXPECT_THROW(array(a, b, c) = 1, SubscriptOutOfRange) << a << ' ' << b << ' ' << c;
    }
}

bool fail() { throw std::runtime_error("failure"); }

// Two steps with a failure between them, a question that fails, and what would come after it.
std::string run_resumable() {
    std::string done;
    resumable(
        "to_ace",
        [&] { done += "one "; },
        [] { fail(); },
        [&] { done += "two "; },
        fail,
        [&] { done += "three "; });
    return done;
}

TEST(Resumable, LeavesUnlessThePlayerHasChosenToResume) {
    Play play;
    play.start();
    EXPECT_EQ(run_resumable(), "one ");
    frmError.Command1.click();
    EXPECT_FALSE(frmError.loaded());
    std::string done;
    reporting("end_game", fail);
    EXPECT_EQ(resume_after_error, flag_true) << "no routine of the other group takes the answer";
    EXPECT_EQ(run_resumable(), "one two ") << "one answer lets one failure pass";
    EXPECT_EQ(run_resumable(), "one ");
    resumable(
        "column_to_column", [&] { done = run_resumable(); }, [&] { done += "outer"; });
    EXPECT_EQ(done, "one outer") << "only the routine that failed is left";
    EXPECT_EQ(frmError.LblError.caption(), "Fatel Error in Subroutine to_ace");
    frmError.Command1.click();
    resumable("take_from_tablet", fail, [&] { done = "went on after a question that failed"; });
    EXPECT_EQ(frmError.LblError.caption(), "Fatel Error in Subroutine take_from_tablet");
    EXPECT_FALSE(resume_after_error) << "the answer is used up";
}

TEST(ErrorDialog, AnswerIsForgottenByANewGameAndARestart) {
    for (MenuEntry* entry : {&frmcards.mnuNew, &frmcards.mnuRestart}) {
        Play play;
        play.start();
        redisplay_column(10);
        frmError.Command1.click();
        entry->choose();
        EXPECT_EQ(run_resumable(), "one ");
    }
}

}  // namespace
}  // namespace tarnwick
