// Any texts under the program's keys: the program starts, plays, opens its dialogs and ends, whatever they
// are.

#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/byte_source.h"
#include "platform/headless.h"
#include "platform/random.h"
#include "settings/settings.h"
#include "state/variables.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace {

using namespace tarnwick;

std::vector<std::string> all_keys() {
    std::vector<std::string> keys{key_card_back,
                                  key_back_color,
                                  key_text_color,
                                  key_scale_cards,
                                  key_show_message,
                                  key_anamate,
                                  key_games_played,
                                  key_games_won,
                                  key_average_score};
    for (int place = 1; place <= 5; ++place) {
        keys.push_back(key_high_score(place));
        keys.push_back(key_high_score_name(place));
        keys.push_back(key_high_score_date(place));
    }
    return keys;
}

void fill_store(ByteSource& source) {
    const std::vector<std::string> keys = all_keys();
    while (!source.empty()) {
        const std::string& key = keys[static_cast<std::size_t>(source.byte()) % keys.size()];
        save_setting(key, source.text(source.byte() % 16));
    }
}

void play_a_little(HeadlessDesktop& table) {
    frmcards.key_down(32);
    // The first face-down card of column 9, twice.
    const Image& back = frmcards.Image1(face_down_image(9, 0));
    for (int i = 0; i < 2; ++i) {
        frmcards.mouse().press(back.left() + 5, back.top() + 5);
        frmcards.mouse().release(back.left() + 5, back.top() + 5);
    }
    table.advance(2000);
    for (int c = 0; c <= 9; ++c) {
        const Image& top = frmcards.Image1(layout(c, column_top(c), column_picture_field));
        frmcards.mouse().press(top.left() + 30, top.top() + 30);
        frmcards.mouse().release(top.left() + 30, top.top() + 30);
        table.advance(500);
        demand_sound_state("a click");
        if (column_is_empty(c)) break;
    }
}

void open_dialogs() {
    frmcards.mnuSetings.choose();
    frmFeatures.cmdOk.click();
    frmFeatures.close();
    frmcards.mnuScore.choose();
    frmBestScore.cmdClearScore.click();
    frmBestScore.close();
    frmcards.mnuNew.choose();
    frmyouwin.txtYourName.key_down(13);
    frmBestScore.cmdOk.click();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteSource source(data, size);
    HeadlessDesktop table;
    MemoryStore store;
    use_store(&store);
    fill_store(source);
    random_generator().replay(1);
    start_program(store);
    demand_sound_state("the start");
    if (!frmcards.visible()) std::abort();
    play_a_little(table);
    open_dialogs();
    demand_sound_state("the dialogs");
    frmcards.close();
    end_program();
    random_generator().stop_replay();
    return 0;
}
