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
    constexpr data::FileColumn variant() const { return {y.number + 1}; }
};

inline constexpr std::array<PositionColumns, 8> position_columns = {{
    {Mode::ville, PositionColumns::no_drawing, {29}, {30}},
    {Mode::armees, PositionColumns::no_drawing, {31}, {32}},
    {Mode::manuf, PositionColumns::no_drawing, {35}, {36}},
    {Mode::dessin, 0, {38}, {39}},
    {Mode::dessin, 1, {41}, {42}},
    {Mode::dessin, 2, {44}, {45}},
    {Mode::dessin, 3, {47}, {48}},
    {Mode::port, PositionColumns::no_drawing, {33}, {34}},
}};

inline constexpr data::FileColumn sea_of_port{37};

} // namespace map
