#include "map/dots.h"
#include "map/form1.h"
#include "map/lacking_positions.h"
#include "map/map_view.h"
#include "map/selection_places.h"
#include "map/zoomed_rect.h"
#include "shell/place_check.h"

#include <utility>

/// What the map window does with the places of the provinces.
namespace map {

namespace {

QRect rect_of(const Box& box) {
    return {QPoint(box.left, box.top), QPoint(box.right, box.bottom)};
}

Box box_of(const QRect& rectangle) {
    return {rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom()};
}

/// Returns whether the part of the map (pixels) is not larger than the view.
bool fits(const MapView& view, const QRect& part) {
    const QSize room = view.viewport()->size();
    return shown_size(view.level(), part.size()).expandedTo(room) == room;
}

ReadRow rows_of(MapReader& reader) {
    return [&reader](int y, int first_x, int step, std::span<Pixel> pixels) {
        reader.read_row(y, first_x, step, pixels);
    };
}

} // namespace

void Form1::forget_places() {
    outline({});
    places_.restart();
}

// --- moving to provinces

void Form1::bring_into_view(const QRect& part) {
    while (!view_->level().is_smallest() && !fits(*view_, part))
        view_->set_level(ZoomLevel(view_->level().power() - 1));
    view_->centre_on(part.center());
}

void Form1::follow_selection() {
    const auto& selection = session_.selection;
    if (selection.provinces().empty())
        return;
    const auto box = box_of(index(), selection);
    if (!box)
        return;
    MapReader reader(id_map_);
    if (is_in_view(index(), selection, box_of(view_->visible_part()), view_->level().step(),
                   rows_of(reader)))
        return;
    const auto* first = first_place(index(), selection);
    const bool is_whole = fits(*view_, rect_of(*box));
    view_->centre_on(is_whole ? rect_of(*box).center() : QPoint(first->inner_x, first->inner_y));
}

bool Form1::montrer() {
    const auto box = box_of(index(), session_.selection);
    if (box)
        bring_into_view(rect_of(*box));
    return box.has_value();
}

std::optional<int> Form1::suivante() {
    const auto next = next_lacking(session_.provinces, session_.mode,
                                   shell::sea_code(session_.language), index(), shown_last_);
    if (!next) {
        outline({});
        return {};
    }
    shown_last_ = *next;
    const Box& box = index().place(*next)->box;
    MapReader reader(id_map_);
    outline(OutlinedProvince(*next, box, rows_of(reader)));
    bring_into_view(rect_of(box));
    return next;
}

// --- the outline

void Form1::outline(std::optional<OutlinedProvince> province) {
    const auto update = [this] {
        if (outlined_)
            view_->repaint_maps(outlined_->bounds(view_->level()));
    };
    update();
    outlined_ = std::move(province);
    outlined_in_ = session_.mode;
    update();
}

void Form1::drop_needless_outline() {
    if (outlined_ && (session_.mode != outlined_in_ ||
                      !lacks_position(session_.provinces, session_.mode, outlined_->identifier(),
                                      shell::sea_code(session_.language))))
        outline({});
}

// --- the dots of provinces that the grid misses

void Form1::add_missed_dots() {
    tell_place(places_.problem());
    dots_.add_missed(*places_.complete_index());
    for (const Point& point : dots_.single_dots())
        view_->repaint_maps(dot_rect({point.x, point.y}, view_->level()));
}

} // namespace map
