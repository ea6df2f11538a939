#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "platform/image.h"
#include "view/area.h"
#include "view/board_layers.h"

namespace tarnwick {

/// The way of images from where they were seen before an event to where they lie after it. It is only seen:
/// the images themselves have moved at once. Times are milliseconds of the desktop's clock, places pixels of
/// the board.
class Motion {
  public:
    explicit Motion(const Form& form) : form_(form) {}

    // What happens in an event.
    void image_changed(const Image& image);
    /// See FormView::image_passes and FormView::dealt.
    void image_passes(const Image& image, const Image& other) { passages_.emplace_back(&image, &other); }
    void dealt(const Image& from) { dealt_from_ = &from; }
    /// These images were seen so far from where they lay.
    void let_go(const std::vector<Image*>& images, Shift offset);

    /// All images rest where they lie; what was told of the event is forgotten.
    void rest();
    /// The event is over: what lies elsewhere now sets out. Without `wanted`, all is where it lies.
    void begin(std::int64_t now, bool wanted);
    /// Goes on to where the images are seen now. False when all have arrived.
    bool step(std::int64_t now);
    /// All are seen where they arrive.
    void land();
    void end() { flights_.clear(); }

    bool under_way() const { return !flights_.empty(); }
    /// Whether an image is seen on its way, and not where it lies.
    bool moves(const Image& image) const { return flight_of(image) != nullptr; }
    /// Whether a card is being dealt to a place, in device pixels, so many to a pixel.
    bool deals_to(const Area& place, double ratio) const;
    /// Where something is seen on its way: areas that do not overlap.
    std::vector<Area> areas() const;
    /// Adds what is on its way, in stacking order, above the images that rest.
    void add_to(BoardLayers& layers, double ratio) const;

  private:
    struct Looks {
        Box box;
        Picture picture;
        bool seen = false;
        bool changed = false;  ///< within the event
        Shift shift = {};      ///< how far from there it was seen
    };
    struct Flight {
        const Image* image = nullptr;
        Looks looks;  ///< where it goes, and how it looks if the image itself is hidden
        Shift from = {};
        Shift offset = {};
        std::int64_t begin = 0;
        int time = 0;
        bool even = false;   ///< a step of several, all at one speed
        bool waits = false;  ///< has not set out yet, and is not seen
        bool dealt = false;  ///< face down until it arrives
    };

    static Looks looks_of(const Image& image);
    const Flight* flight_of(const Image& image) const;
    /// The flight that goes on as it was: the event has not moved its image.
    const Flight* unmoved_flight(const Image& image, const Looks& looks) const;
    const Image* passage_of(const Image& image) const;
    bool is_lifted(const Image& image) const;
    bool is_origin(const Image& image) const;
    std::optional<Box> seen_at(const Image& image) const;
    Box origin_at(const Image& image) const;
    std::optional<Box> start_of(const Image& image) const;
    std::optional<Flight> flight_of_seen(const Image& image, const Looks& looks, std::int64_t now) const;
    std::optional<Flight> flight_of_hidden(const Image& image) const;
    void set_out(std::vector<Flight>& flights, std::int64_t now);
    void forget_event();

    const Form& form_;
    std::unordered_map<const Image*, Looks> known_;  ///< when the last event was over
    std::vector<const Image*> changed_;
    std::vector<std::pair<const Image*, const Image*>> passages_;
    const Image* dealt_from_ = nullptr;
    std::vector<Flight> flights_;  ///< from the lowest one up
    Picture back_ = {};            ///< of the cards that are dealt
};

/// Adds an area; those that it overlaps become one with it.
void add_area(std::vector<Area>& areas, Area area);

}  // namespace tarnwick
