#include <exception>
#include <map>
#include <string>

#include "board/display.h"
#include "board/scaling.h"
#include "board/table_colors.h"
#include "settings/repair.h"
#include "settings/settings.h"
#include "ui/handlers.h"
#include "windows/frmCommon.h"
#include "windows/frmFeatures.h"
#include "windows/frmcards.h"
#include "windows/pictures.h"

namespace tarnwick {
namespace {

constexpr PixelSize dialog_size{540, 350};

// What was shown for a value that could not be read. It must not be saved over that value unseen.
std::map<std::string, std::string> stand_ins;

// The text that a control shows for the setting `key`, right after that was read.
void note_shown(const char* key, const std::string& text) {
    if (!setting_is_known(key)) stand_ins[key] = text;
}

bool is_stand_in(const char* key, const std::string& text) {
    const auto shown = stand_ins.find(key);
    return shown != stand_ins.end() && shown->second == text;
}

void save_shown(const char* key, const std::string& text) {
    if (!is_stand_in(key, text)) save_setting(key, text);
}

void load_flag(CheckBox& box, const char* key) {
    box.set_checked(stored_flag(key));
    note_shown(key, text_of(box.checked()));
}

void load_color(TextBox& swatch, const char* key, Color color) {
    swatch.set_colors(color, color);
    note_shown(key, text_of(color));
}

// The backs stand in the frame in two rows of three, each with its option button below.
void place_backs() {
    constexpr int backs_in_row = 3;
    frmFeatures.Frame1.move(10, 0, 291, 310);
    for (int i = 0; i < back_count; ++i) {
        const auto left = static_cast<float>(18 + 90 * (i % backs_in_row));
        const float top = i < backs_in_row ? 30 : 170;
        frmFeatures.ImgCardBacks(i).move(left, top, card_width, card_height);
        frmFeatures.optCardBack(i).move(left, top + 110, 85, 21);
    }
}

void choose_back(int index) {
    for (int i = 0; i < back_count; ++i) {
        frmFeatures.ImgCardBacks(i).set_bordered(i == index);
        frmFeatures.optCardBack(i).set_on(i == index);
    }
}

void load() {
    frmFeatures.resize(dialog_size);
    for (int i = 0; i < back_count; ++i) {
        frmFeatures.ImgCardBacks(i).set_picture(frmcards.ImgCardBacks(i).picture());
    }
    place_backs();
    stand_ins.clear();
    const int back = stored_card_back(back_count);
    note_shown(key_card_back, text_of(back));
    choose_back(back);
    frmFeatures.chkAnamate.move(320, 110, 200, 35);
    load_flag(frmFeatures.chkAnamate, key_anamate);
    frmFeatures.chkScaleCards.move(320, 170, 200, 35);
    load_flag(frmFeatures.chkScaleCards, key_scale_cards);
    frmFeatures.chkDisplayMes.move(320, 230, 200, 35);
    load_flag(frmFeatures.chkDisplayMes, key_show_message);
    load_color(frmFeatures.txtBackColor, key_back_color, stored_back_color());
    frmFeatures.txtBackColor.move(320, 10, 41, 24);
    frmFeatures.lblBackColor.move(380, 10, 121, 24);
    load_color(frmFeatures.txtTextColor, key_text_color, stored_text_color());
    frmFeatures.txtTextColor.move(320, 60, 41, 24);
    frmFeatures.lblTextColor.move(380, 60, 121, 24);
    frmFeatures.cmdOk.move(320, 280, 81, 31);
    frmFeatures.cmdCancel.move(420, 280, 81, 31);
}

// A colour that is picked is saved at once; cancelling, or any failure, leaves everything as it is.
void take_color(TextBox& swatch, const char* key) {
    try {
        const Color color = frmCommon.CommonDialog1.color();
        save_setting(key, text_of(color));
        swatch.set_colors(color, color);
        frmCommon.unload();
    } catch (const std::exception&) {
        // Nothing was picked.
    }
    // What was typed into the swatch has done its work.
    swatch.set_text("");
}

void pick_color(TextBox& swatch, const char* key) {
    frmCommon.load();
    CommonDialog& dialog = frmCommon.CommonDialog1;
    dialog.set_title(swatch.label()->caption());
    dialog.set_cancel_error(true);
    constexpr int start_with_color = 1;
    dialog.set_flags(start_with_color);
    try {
        dialog.show_color([&swatch, key] { take_color(swatch, key); });
    } catch (const std::exception&) {
        // Without its dialog nothing can be picked.
    }
}

void attach_swatch(TextBox& swatch, const char* key) {
    const auto pick = [&swatch, key] { pick_color(swatch, key); };
    swatch.on_click = pick;
    swatch.on_change = pick;
}

void save_back() {
    for (int i = 0; i < back_count; ++i) {
        if (!frmFeatures.optCardBack(i).on()) continue;
        save_shown(key_card_back, text_of(i));
        change_back(i);
    }
}

void save_colors() {
    const Color back = frmFeatures.txtBackColor.back_color();
    save_shown(key_back_color, text_of(back));
    set_table_color(back);
    const Color text = frmFeatures.txtTextColor.back_color();
    save_shown(key_text_color, text_of(text));
    set_text_color(text);
}

bool scaling_reads_as(bool wanted) {
    try {
        return setting_is_on(key_scale_cards) == wanted;
    } catch (const ConversionError&) {
        // What cannot be read agrees with nothing: saving the box repairs it.
        return false;
    }
}

void save_scaling() {
    const bool wanted = frmFeatures.chkScaleCards.checked();
    if (is_stand_in(key_scale_cards, text_of(wanted)) || scaling_reads_as(wanted)) return;
    save_setting(key_scale_cards, text_of(wanted));
    stretch_cards();
}

void save_and_close() {
    save_back();
    save_colors();
    save_scaling();
    save_shown(key_show_message, text_of(frmFeatures.chkDisplayMes.checked()));
    save_shown(key_anamate, text_of(frmFeatures.chkAnamate.checked()));
    frmFeatures.unload();
}

}  // namespace

void attach_settings_dialog() {
    frmFeatures.on_load = load;
    frmFeatures.on_unload = [] { frmcards.set_enabled(true); };
    frmFeatures.back_events.click = choose_back;
    for (int i = 0; i < back_count; ++i) {
        frmFeatures.optCardBack(i).on_click = [i] { choose_back(i); };
    }
    attach_swatch(frmFeatures.txtBackColor, key_back_color);
    attach_swatch(frmFeatures.txtTextColor, key_text_color);
    frmFeatures.cmdOk.on_click = save_and_close;
    frmFeatures.cmdCancel.on_click = [] { frmFeatures.unload(); };
}

}  // namespace tarnwick
