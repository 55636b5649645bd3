#pragma once

#include "map/map_image.h"
#include "map/province_index.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <vector>

namespace map {

/// Where the provinces lie on an ID map, from one pass over all its rows: in small slices while
/// the program is idle, or at once for whom needs it.
class ProvincePlaces : public QObject {
    Q_OBJECT

  public:
    /// What the user does never waits longer for a slice; at least a row is read in each.
    static constexpr std::chrono::milliseconds usual_slice{5};

    /// The map must outlive this. Nothing is read yet.
    explicit ProvincePlaces(const MapImage& id_map, std::chrono::milliseconds slice = usual_slice);

    /// Reads on whenever the event loop has nothing else to do.
    void read_while_idle() { idle_.start(); }

    /// Forgets what was read of a file that was changed since, and reads anew while idle.
    void restart();

    /// Returns the index, after reading what it lacks; rows that cannot be read have no provinces.
    const ProvinceIndex& index();

    /// Returns the index; nothing (null) until all rows were read.
    const ProvinceIndex* complete_index() const { return is_complete() ? &index_ : nullptr; }

    /// Returns 0 until all rows were read, then a number that differs after each reading.
    std::uint64_t version() const { return is_complete() ? readings_ : 0; }

    /// Returns why something of the map could not be read, with the file; nothing while all could.
    const std::optional<data::Place>& problem() const { return problem_; }

  signals:
    /// All rows were read.
    void completed();

  private:
    bool is_complete() const { return next_row_ >= id_map_.size().height(); }

    /// Reads row by row until all are read, or until the time is over.
    void read_rows(std::chrono::milliseconds at_most);

    const MapImage& id_map_;
    ProvinceIndex index_;
    int next_row_ = 0;
    std::uint64_t readings_ = 1;
    std::vector<Pixel> row_;
    std::optional<data::Place> problem_;
    QTimer idle_;
};

} // namespace map
