#pragma once

#include "data/province_table.h"
#include "map/maps.h"
#include "map/mode.h"
#include "map/port_placement.h"

#include <cstdint>
#include <string>

namespace map {

enum class Button { left, right, other };

/// The modifier keys held, as a sum: 0 to 3 chooses one of the four terrain drawings.
using ShiftState = int;
inline constexpr ShiftState shift_key = 1;
inline constexpr ShiftState ctrl_key = 2;
inline constexpr ShiftState alt_key = 4;

/// A click on the map. Where it was pressed is what is stored, where it was released says for which
/// province.
struct Click {
    Button button;
    ShiftState shift;
    double press_x; // pixels
    std::int16_t press_y;
    int province; // identifier at the release
};

/// Returns what a press at that X of the map, in pixels, stores. Throws overflow where the sum with
/// the map offset is no decimal number.
std::string stored_x(const Maps& maps, double press_x);

/// Returns what a press at that Y of the map, in pixels, stores. Throws overflow where the sum with
/// the map offset is outside 16 bits.
std::string stored_y(const Maps& maps, std::int16_t press_y);

/// Does what a click does in a position-entry mode. Throws overflow for a Y outside 16 bits and for
/// an X that is no decimal number, subscript out of range for a province above 2018; nothing is
/// written then.
void enter_position(Mode mode, const Click& click, const Maps& maps, PortPlacement& port,
                    data::ProvinceTable& provinces);

} // namespace map
