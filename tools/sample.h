#pragma once

#include "grid.h"

#include <filesystem>

namespace sample {

/// What to make: a folder that the editor can use as its own, with everything loaded.
struct Request {
    std::filesystem::path folder;
    std::filesystem::path languages; // the folder whose language files are copied
    Size pixels = {2400, 1200};
};

/// Writes the sample world: maps, province file, sprites, terrain art, language files, and the
/// configuration file where there is none yet. Throws std::runtime_error for what cannot be written
/// or copied; std::invalid_argument for maps that are too small for all provinces.
void make_sample(const Request& request);

} // namespace sample
