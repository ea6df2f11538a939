#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/headless.h"
#include "platform/random.h"
#include "settings/store.h"
#include "ui/program.h"
#include "view/board_stage.h"
#include "view/card_shadow.h"
#include "windows/frmcards.h"

namespace tarnwick {

/// Every character is seven pixels wide and thirteen high, times `scale`.
struct FixedTexts : TextMeasure {
    float scale = 1;
    float desktop_size() const override { return 10 * scale; }
    float width(const std::string& text, const TextFont&) const override {
        return 7 * scale * static_cast<float>(text.size());
    }
    float height(const TextFont&) const override { return 13 * scale; }
    TextSize wrapped(const std::string& text, const TextFont& font, float) const override {
        return {width(text, font), height(font)};
    }
};

/// What a front end without a screen keeps of a board: a number for each pixel, the same only where the same
/// part of the same thing is seen.
class Grid {
  public:
    explicit Grid(PixelSize size) : size_(size), cells_(static_cast<std::size_t>(size.width * size.height)) {}

    void paint(const BoardLayers& layers, int scrolled) {
        clip_ = layers.area.shifted(0, -scrolled);
        scrolled_ = scrolled;
        const auto over = [](unsigned tone) {
            return [tone](unsigned below, unsigned x, unsigned y) { return below * 31 + tone + x + y * 3; };
        };
        const auto flat = [](unsigned tone) { return [tone](unsigned, unsigned, unsigned) { return tone; }; };
        const auto picture = [](const PaintedImage& image) {
            return [number = image.picture.number](unsigned, unsigned x, unsigned y) {
                return (number * 4096U + y * 64U) ^ x;
            };
        };
        const auto shade = [&](const PaintedShadow& shadow) {
            fill(shadow.pile.grown(shadow.reach), over(3));
        };
        const auto paint_all = [&](const std::vector<PaintedImage>& images) {
            for (const PaintedImage& image : images) {
                if (image.shadow) {
                    const Area whole = image.place.grown(card_shadow(image.place).reach);
                    for (const Area& part : shadowed_parts(image)) fill(whole, over(3), part);
                }
                fill(image.place, picture(image));
            }
        };
        const PaintedGround::Sheet& sheet = layers.ground->sheet;
        for (const PaintedGround::Strip& strip : layers.ground->strips) {
            const auto first = static_cast<unsigned>(strip.row * sheet.width + strip.column);
            fill(strip.place, [&](unsigned, unsigned x, unsigned y) {
                return sheet.pixels.at(first + y * static_cast<unsigned>(sheet.width) + x);
            });
        }
        for (const PaintedOutline& outline : layers.outlines) {
            fill(outline.place, over(100 + static_cast<unsigned>(outline.look.sign.lines.size())));
        }
        paint_all(layers.images);
        if (layers.mark) fill(around(layers.mark->middle), over(2));
        if (layers.shadow) shade(*layers.shadow);
        paint_all(layers.lifted);
        for (const PaintedRing& ring : layers.rings) {
            fill(around(ring.middle.grown(ring.line / 2)), over(ring.color));
        }
        if (layers.plate) fill(layers.plate->place, flat(4));
        for (const PaintedLabel& label : layers.labels) {
            fill(around(label.place.grown(label.rim ? label.rim->width : 0)),
                 over(static_cast<unsigned>(std::hash<std::string_view>()(label.text))));
        }
        paint_all(layers.celebration);
    }
    bool operator==(const Grid& other) const { return cells_ == other.cells_; }

  private:
    template <class Tone>
    void fill(const Area& place, Tone tone) {
        fill(place, tone, place);
    }
    template <class Tone>
    void fill(const Area& place, Tone tone, const Area& part) {
        const Area seen = place.shifted(0, -scrolled_);
        const Area clip =
            common(common(clip_, part.shifted(0, -scrolled_)), {0, 0, size_.width, size_.height});
        for (int y = clip.top; y < clip.bottom(); ++y) {
            for (int x = clip.left; x < clip.right(); ++x) {
                std::uint32_t& cell =
                    cells_[static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
                           static_cast<std::size_t>(x)];
                cell = tone(cell, static_cast<unsigned>(x - seen.left), static_cast<unsigned>(y - seen.top));
            }
        }
    }

    PixelSize size_;
    std::vector<std::uint32_t> cells_;
    Area clip_;
    int scrolled_ = 0;
};

/// A window onto the board that paints into a grid, and only what it is told to.
class GridView : public FormView, public BoardFront {
  public:
    explicit GridView(Form& form) : form_(form) {}

    void widget_changed(const Widget& widget, const Rect& before) override {
        if (stage_) stage_->widget_changed(widget, before);
    }
    void drag_changed() override {
        if (stage_) stage_->drag_changed();
    }
    void form_changed() override {
        if (stage_) stage_->form_changed();
    }
    void image_passes(const Image& image, const Image& other) override {
        if (stage_) stage_->image_passes(image, other);
    }
    void dealt(const Image& from) override {
        if (stage_) stage_->dealt(from);
    }
    void game_over(Form& next, const std::vector<std::vector<const Image*>>& piles) override {
        if (stage_) stage_->game_over(next, piles);
    }
    void menu_changed() override {}
    void raise() override {}

    void repaint(const Area& area) override { stale_.push_back(area); }
    void repaint_all() override { all_is_stale_ = true; }
    void scroll_changed() override {}
    void settle_later() override { settles_ = true; }
    void steps_changed() override {}
    bool allows_motion() const override { return motion_allowed; }
    void cursor_moved() override { ++cursor_moves; }
    void pointer_shape_changed() override { shape = stage_->pointer_shape(); }
    bool full_screen() const override { return fills_screen; }
    void set_full_screen(bool on) override { fills_screen = on; }
    bool wants_high_contrast() const override { return high_contrast_wanted; }
    void hold_back(Form& next) override { held_back = &next; }
    void show_held_back() override { held_back = nullptr; }

    void resize(PixelSize size) {
        if (!stage_) stage_.emplace(form_, texts, *this);
        grid_ = Grid(size_ = size);
        stage_->resized(size);
    }
    /// Goes on with what waits.
    void go_on() {
        while (std::exchange(settles_, false)) stage_->settle();
        if (stage_->next_step() && *stage_->next_step() <= desktop().now()) stage_->step();
    }
    /// Goes on and paints. Whether the picture is then what a whole new one would be.
    bool shows_all() {
        go_on();
        const int scrolled = stage_->scroll().offset();
        const Area all{0, 0, size_.width, size_.height};
        if (std::exchange(all_is_stale_, false)) stale_ = {all};
        stage_->begin_painting();
        const auto paint = [&](Grid& grid, const Area& area) {
            grid.paint(stage_->scene().layers(area.shifted(0, scrolled), 1), scrolled);
        };
        for (const Area& area : std::exchange(stale_, {})) paint(grid_, area);
        Grid fresh(size_);
        paint(fresh, all);
        return grid_ == fresh;
    }
    BoardStage& stage() { return *stage_; }

    FixedTexts texts;
    bool motion_allowed = true;
    bool fills_screen = false;
    int cursor_moves = 0;
    PointerShape shape = PointerShape::arrow;
    bool high_contrast_wanted = false;
    const Form* held_back = nullptr;

  private:
    Form& form_;
    std::optional<BoardStage> stage_;
    PixelSize size_;
    Grid grid_{{}};
    std::vector<Area> stale_;
    bool all_is_stale_ = false;
    bool settles_ = false;
};

/// A running game whose table is shown in a grid.
class GridGame {
  public:
    explicit GridGame(std::uint32_t deal) {
        random_generator().replay(deal);
        start_program(store_);
        view().resize(frmcards.client_size());
        view().shows_all();
    }
    ~GridGame() {
        end_program();
        random_generator().stop_replay();
    }
    GridGame(const GridGame&) = delete;
    GridGame& operator=(const GridGame&) = delete;

    GridView& view() { return static_cast<GridView&>(*frmcards.view()); }
    BoardStage& stage() { return view().stage(); }
    /// All that is seen of the board now.
    const BoardLayers& layers() { return stage().scene().layers(1); }

  private:
    struct GridDesktop : HeadlessDesktop {
        std::unique_ptr<FormView> make_view(Form& form) override {
            return form.is_board() ? std::make_unique<GridView>(form) : nullptr;
        }
    };

  public:
    GridDesktop desktop;

  private:
    MemoryStore store_;
};

}  // namespace tarnwick
