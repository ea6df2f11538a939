// Fixed pieces of work of the game, for an instrument that counts the instructions they take.
//
//     counts WORKLOAD     does what must be there first, then the work, in a function called measured_work
//     counts --compiler   says what has compiled it: instruction counts hold for one compiler only

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <string>

#include "bench/table.h"
#include "game/deal.h"
#include "game/undo.h"
#include "state/variables.h"
#include "windows/frmcards.h"

namespace {

using namespace tarnwick;
using Work = std::function<void()>;

constexpr int times = 20;
constexpr int drops = 10000;

// Every piece of work, begun only after the table it needs is there.
const std::map<std::string, std::function<Work(std::unique_ptr<Table>&)>> workloads{
    {"start", [](std::unique_ptr<Table>& table) { return [&] { table = std::make_unique<Table>(); }; }},
    {"drops",
     [](std::unique_ptr<Table>& table) {
         table = std::make_unique<Table>();
         return [] {
             RandomPlay play;
             while (play.drops() < drops) play.drop();
         };
     }},
    {"deal",
     [](std::unique_ptr<Table>& table) {
         table = std::make_unique<Table>();
         return [] {
             for (int i = 0; i < times; ++i) new_game();
         };
     }},
    {"undo",
     [](std::unique_ptr<Table>& table) {
         table = std::make_unique<Table>();
         fill_undo_list();
         return [] {
             while (undo_count() > 0) do_undo();
         };
     }},
    {"relayout",
     [](std::unique_ptr<Table>& table) {
         table = std::make_unique<Table>();
         return [] {
             for (int i = 0; i < times; ++i) frmcards.resize({1200 + i, 1014});
         };
     }},
};

}  // namespace

extern "C" __attribute__((noinline)) void measured_work(const Work& work) { work(); }

int main(int argc, char** argv) {
    const std::string name = argc == 2 ? argv[1] : "";
    if (name == "--compiler") {
#ifdef __clang__
        std::cout << "clang " << __clang_major__ << '\n';
#else
        std::cout << "gcc " << __GNUC__ << '\n';
#endif
        return EXIT_SUCCESS;
    }
    const auto workload = workloads.find(name);
    if (workload == workloads.end()) {
        std::cerr << "usage: counts WORKLOAD | --compiler\n";
        return 2;
    }
    std::unique_ptr<Table> table;
    const Work work = workload->second(table);
    measured_work(work);
    return EXIT_SUCCESS;
}
