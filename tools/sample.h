#pragma once

#include "grid.h"

#include <filesystem>

namespace sample {

/// What to make: a folder that the editor can use as its own, with everything loaded.
struct Request {
    std::filesystem::path folder;
    std::filesystem::path language; // the other language files of its folder are copied with it
    Size pixels = {2400, 1200};
};

/// Writes the sample world: maps, province file, sprites, terrain art, language files, and the
/// configuration file where there is none yet. Throws std::ios_base::failure,
/// std::filesystem::filesystem_error and data::RunTimeError; std::invalid_argument for maps that
/// are too small for all provinces.
void make_sample(const Request& request);

} // namespace sample
