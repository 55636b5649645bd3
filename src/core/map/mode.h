#pragma once

#include "data/indexed_array.h"

#include <string_view>

namespace map {

/// What a click on the map does: select provinces, or place one of the position kinds.
enum class Mode { normal, ville, armees, port, manuf, dessin };

struct ModeInfo {
    Mode mode;
    std::string_view menu_item; // object name of its menu item
    int status_text;            // entry of the language file's status texts, from 1
};

/// The modes, in the order of the enumeration.
inline constexpr data::IndexedArray<Mode, ModeInfo, 6> modes = {{{
    {Mode::normal, "normal", 1},
    {Mode::ville, "ville_menu", 3},
    {Mode::armees, "armées_menu", 4},
    {Mode::port, "port_menu", 2},
    {Mode::manuf, "manuf_menu", 5},
    {Mode::dessin, "dessin_menu", 6},
}}};

/// Returns the mode's row of the table above.
constexpr const ModeInfo& info(Mode mode) {
    return modes[mode];
}

} // namespace map
