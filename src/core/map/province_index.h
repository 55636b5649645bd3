#pragma once

#include "map/bitmap_file.h"
#include "map/box.h"

#include <cstdint>
#include <span>
#include <vector>

namespace map {

/// Where the pixels of an identifier lie on the ID map; all in pixels.
struct ProvincePlace {
    Box box;
    int inner_x; // a pixel of the province whatever its form: the middle of its longest row
    int inner_y;
    int longest_row;
    std::uint32_t pixels;
};

/// Where every province lies on the ID map, from one pass over the map's rows.
class ProvinceIndex {
  public:
    /// What a colour can stand for; those above 2018 are no province.
    static constexpr int identifiers = 4096;

    ProvinceIndex() : places_(identifiers) {}

    /// Takes the ID map's row y. Each row is taken once, in any order; pixels that are none are
    /// passed over.
    void add_row(int y, std::span<const Pixel> pixels);

    /// Returns where the identifier lies; nothing (null) when no row so far has a pixel of it.
    const ProvincePlace* place(int identifier) const;

  private:
    void add_run(int identifier, int y, int first_x, int end_x);

    std::vector<ProvincePlace> places_; // by identifier; without a pixel until one is found
};

} // namespace map
