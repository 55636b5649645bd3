#pragma once

#include "data/indexed_array.h"
#include "gfx/chooser_kind.h"
#include "shell/configuration.h"

#include <string>
#include <string_view>

namespace gfx {

/// What the location chooser needs to know of a kind.
struct Location {
    std::string_view name; // as config.txt calls it
    std::string shell::Configuration::*path;
    std::string_view pattern; // of the files that are listed
    bool is_folder;           // a folder is chosen, not one of the files
    std::string_view command; // key of the caption of the command that chooses it
    std::string_view wanted;  // the heading where the language file lacks that caption
};

/// The locations, in the order of the kinds.
inline constexpr data::IndexedArray<ChooserKind, Location, 5> locations = {{{
    {"GFX", &shell::Configuration::graphics_folder, "*.spr", true, "Form3.Command2",
     "Graphics folder"},
    {"GFX2", &shell::Configuration::terrain_art_folder, "*.bmp", true, "Form3.Command1",
     "Terrain art folder"},
    {"CSV", &shell::Configuration::province_file_path, "*.csv", false, "MDIForm1.ouvrir_csv",
     "Open province file"},
    {"CSV2", &shell::Configuration::province_save_path, "*.csv", false, "MDIForm1.enregister",
     "Save province file"},
    {"BMP", &shell::Configuration::map_bitmap_path, "*.bmp", false, "MDIForm1.ouvrir_cartes",
     "Open maps"},
}}};

} // namespace gfx
