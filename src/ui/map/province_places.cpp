#include "map/province_places.h"

#include "map/wait_cursor.h"

#include <QElapsedTimer>

namespace map {

namespace {

constexpr auto no_limit = std::chrono::milliseconds::max();

} // namespace

ProvincePlaces::ProvincePlaces(const MapImage& id_map, std::chrono::milliseconds slice)
    : id_map_(id_map) {
    idle_.setInterval(0);
    connect(&idle_, &QTimer::timeout, this, [this, slice] { read_rows(slice); });
}

void ProvincePlaces::restart() {
    index_ = {};
    next_row_ = 0;
    ++readings_;
    problem_.reset();
    read_while_idle();
}

const ProvinceIndex& ProvincePlaces::index() {
    if (!is_complete()) {
        const WaitCursor wait; // a cold disk takes seconds
        read_rows(no_limit);
    }
    return index_;
}

void ProvincePlaces::read_rows(std::chrono::milliseconds at_most) {
    QElapsedTimer time;
    time.start();
    MapReader reader(id_map_); // one look at the file for each slice: it may be replaced in between
    row_.resize(static_cast<std::size_t>(id_map_.size().width()));
    do {
        if (reader.read_row(next_row_, 0, 1, row_))
            index_.add_row(next_row_, row_);
        ++next_row_;
    } while (!is_complete() && time.elapsed() < at_most.count());
    if (!problem_)
        problem_ = reader.problem();
    if (!is_complete())
        return;
    idle_.stop();
    row_ = {};
    emit completed();
}

} // namespace map
