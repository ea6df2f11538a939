// Any stream of events: presses, moves and releases anywhere, keys, menus, dialogs, sizes, time. The state is
// sound after every one of them, and the table shows it.

#include <cstdint>

#include "board/slide.h"
#include "fuzz/byte_source.h"
#include "platform/headless.h"
#include "platform/random.h"
#include "tests/play/display_check.h"
#include "ui/program.h"
#include "windows/frmBestScore.h"
#include "windows/frmError.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/frmyouwin.h"

namespace {

using namespace tarnwick;

MouseButton button_of(int number) { return number % 8 == 7 ? MouseButton::other : MouseButton::left; }

// A place on the window, or a little outside of it.
float place(ByteSource& source, int extent) { return static_cast<float>(source.word() % (extent + 40) - 20); }

void send_mouse_event(ByteSource& source, int kind) {
    const PixelSize client = frmcards.client_size();
    const float x = place(source, client.width);
    const float y = place(source, client.height);
    Mouse& mouse = frmcards.mouse();
    switch (kind) {
        case 0:
            mouse.press(x, y, button_of(source.byte()));
            break;
        case 1:
            mouse.move(x, y);
            break;
        case 2:
            mouse.release(x, y, button_of(source.byte()));
            break;
        default:
            mouse.press(x, y);
            mouse.release(x, y);
            break;
    }
}

// A drag from one visible card to another image, which random places hit too seldom.
void send_drag(ByteSource& source) {
    const auto& widgets = frmcards.widgets();
    const Widget* from = widgets[static_cast<std::size_t>(source.word()) % widgets.size()];
    const Widget* to = widgets[static_cast<std::size_t>(source.word()) % widgets.size()];
    if (!from->visible() || !to->visible()) return;
    frmcards.mouse().press(from->left() + 2, from->top() + 2);
    frmcards.mouse().release(to->left() + static_cast<float>(source.byte() % 71), to->top() + 2);
}

void choose_menu(int number) {
    MenuEntry* const entries[] = {&frmcards.mnuNew,
                                  &frmcards.mnuRestart,
                                  &frmcards.mnuScore,
                                  &frmcards.mnuUndo,
                                  &frmcards.mnuSetings,
                                  &frmcards.mnuAbout,
                                  &frmcards.mnuUndo,
                                  &frmcards.mnuUndo};
    entries[number % 8]->choose();
}

void answer_dialogs(int number) {
    switch (number % 6) {
        case 0:
            frmyouwin.txtYourName.key_down(13);
            break;
        case 1:
            frmyouwin.close();
            break;
        case 2:
            frmBestScore.cmdOk.click();
            break;
        case 3:
            frmFeatures.chkScaleCards.click();
            break;
        case 4:
            frmFeatures.cmdOk.click();
            break;
        default:
            frmError.close();
            break;
    }
}

void change_window(ByteSource& source) {
    const int kind = source.byte();
    if (kind % 4 == 0) {
        frmcards.user_changed_state(kind % 8 == 0 ? WindowState::minimized : WindowState::normal);
    } else {
        frmcards.user_resized({source.word() % 5000, source.word() % 3000});
    }
}

void send_event(ByteSource& source, HeadlessDesktop& table) {
    const int kind = source.byte() % 16;
    switch (kind) {
        case 0:
        case 1:
        case 2:
        case 3:
            send_mouse_event(source, kind);
            break;
        case 4:
            frmcards.key_down(source.byte() % 2 == 0 ? 32 : source.byte());
            break;
        case 5:
            table.advance(source.word() % 3000);
            break;
        case 6:
            table.sleep(source.word());
            break;
        case 7:
            choose_menu(source.byte());
            break;
        case 8:
            answer_dialogs(source.byte());
            break;
        case 9:
            change_window(source);
            break;
        case 10:
            frmcards.mouse().cancel();
            break;
        case 11:
            table.advance(30);
            break;
        default:
            send_drag(source);
            break;
    }
}

// While a card slides, and behind a dialog, the table may show what it likes.
void demand_true_display() {
    if (slide_is_under_way() || !frmcards.enabled()) return;
    const std::string faults = display_faults();
    if (faults.empty()) return;
    std::cerr << "after an event: " << faults << '\n';
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteSource source(data, size);
    HeadlessDesktop table({1000, 700});
    MemoryStore store;
    random_generator().replay(static_cast<std::uint32_t>(source.word()));
    start_program(store);
    constexpr int most_events = 2000;
    for (int i = 0; i < most_events && !source.empty(); ++i) {
        send_event(source, table);
        demand_sound_state("an event");
        demand_true_display();
    }
    end_program();
    random_generator().stop_replay();
    return 0;
}
