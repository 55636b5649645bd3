#pragma once

#include "data/columns.h"
#include "map/mode.h"

#include <array>

namespace map {

/// Where the province table keeps a position that a mode places.
struct PositionColumns {
    static constexpr int no_drawing = -1;

    Mode mode;
    int drawing; // 0 to 3 for the four terrain drawings
    data::FileColumn x;
    data::FileColumn y;

    /// Returns the column of a terrain drawing's variant.
    constexpr data::FileColumn variant() const {
        return data::column::drawing_variant.at(static_cast<std::size_t>(drawing));
    }
};

inline constexpr std::array<PositionColumns, 8> position_columns = {{
    {Mode::ville, PositionColumns::no_drawing, data::column::city_x, data::column::city_y},
    {Mode::armees, PositionColumns::no_drawing, data::column::army_x, data::column::army_y},
    {Mode::manuf, PositionColumns::no_drawing, data::column::manufactory_x,
     data::column::manufactory_y},
    {Mode::dessin, 0, data::column::drawing_x[0], data::column::drawing_y[0]},
    {Mode::dessin, 1, data::column::drawing_x[1], data::column::drawing_y[1]},
    {Mode::dessin, 2, data::column::drawing_x[2], data::column::drawing_y[2]},
    {Mode::dessin, 3, data::column::drawing_x[3], data::column::drawing_y[3]},
    {Mode::port, PositionColumns::no_drawing, data::column::port_x, data::column::port_y},
}};

} // namespace map
