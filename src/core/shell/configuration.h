#pragma once

#include "gfx/graphics_file_list.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace shell {

/// Name of the configuration file in the program's folder.
inline constexpr std::string_view configuration_file = "config.txt";

/// What the editor remembers between two runs besides its sprite sets. Paths are stored paths.
struct Configuration {
    std::string graphics_folder = "c:";
    std::string terrain_art_folder = "c:";
    std::int16_t terrain_art_flag = 0;
    std::string province_file_path = "c:";
    std::string province_save_path = "c:";
    std::string map_bitmap_path = "c:";
    std::string language_file = "english.lng";
};

/// Receives the three texts of a record whose key is none of the configuration's own.
using GraphicsRecord = std::function<void(const gfx::GraphicsFile&)>;

/// Reads config.txt record by record into the configuration; what the file lacks stays. Throws what
/// the record reader and the receiver throw, with the line in its place.
void read_configuration(std::string_view bytes, Configuration& configuration,
                        const GraphicsRecord& receive);

/// Returns the bytes of config.txt.
std::string write_configuration(const Configuration& configuration,
                                const gfx::GraphicsFileList& graphics_files);

} // namespace shell
