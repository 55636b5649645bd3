#include "sample.h"

#include "data/province_file.h"
#include "files.h"
#include "map_writer.h"
#include "names.h"
#include "positions.h"
#include "province_values.h"
#include "shell/configuration.h"
#include "sprites.h"
#include "terrain_art.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace sample {

namespace {

namespace fs = std::filesystem;

/// Returns the grid on which the world of such maps is made: larger maps show one of this many
/// cells enlarged.
Size size_of_world(Size pixels) {
    constexpr double most_cells = 2400.0 * 1200.0;
    const double area = static_cast<double>(pixels.width) * pixels.height;
    const double shrink = std::sqrt(std::min(1.0, most_cells / area));
    return {static_cast<int>(std::lround(pixels.width * shrink)),
            static_cast<int>(std::lround(pixels.height * shrink))};
}

/// Returns the form in which the editor keeps paths: drive c: is the whole file system where there
/// are no drives.
std::string stored_path(const fs::path& path) {
    const auto utf8 = fs::absolute(path).lexically_normal().generic_u8string();
    std::string stored = code_page(std::string(utf8.begin(), utf8.end()));
    std::replace(stored.begin(), stored.end(), '/', '\\');
    return stored.starts_with('\\') ? "c:" + stored : stored;
}

void copy_languages(const fs::path& from, const fs::path& folder) {
    if (!fs::exists(from / shell::Configuration().language_file))
        throw std::runtime_error(from.string() + " holds no language files");
    if (fs::equivalent(from, folder))
        return;
    for (const auto& entry : fs::directory_iterator(from)) {
        if (entry.path().extension() == ".lng")
            fs::copy_file(entry.path(), folder / entry.path().filename(),
                          fs::copy_options::overwrite_existing);
    }
}

/// An existing file holds settings of the user's own.
void write_new_configuration(const Request& request, std::span<const gfx::GraphicsFile> sets) {
    const fs::path path = request.folder / "config.txt";
    if (fs::exists(path))
        return;
    const std::string provinces = stored_path(request.folder / "Province.csv");
    const shell::Configuration configuration{
        .graphics_folder = stored_path(request.folder / "gfx"),
        .terrain_art_folder = stored_path(request.folder / "terrain"),
        .terrain_art_flag = 1,
        .province_file_path = provinces,
        .province_save_path = provinces,
        .map_bitmap_path = stored_path(request.folder / "map1.bmp"),
    };
    gfx::GraphicsFileList files;
    for (const auto& set : sets)
        files.append({set.kind, stored_path(request.folder / "gfx" / set.path), set.set_name});
    write_file(path, shell::write_configuration(configuration, files));
}

} // namespace

void make_sample(const Request& request) {
    fs::create_directories(request.folder);
    copy_languages(request.languages, request.folder);

    const World world = make_world(size_of_world(request.pixels));
    const auto values = make_values(world, make_positions(world, request.pixels));
    write_file(request.folder / "Province.csv", data::write_provinces(values));
    write_maps(world, request.pixels, request.folder);
    write_terrain_art(request.folder / "terrain");
    const auto sets = write_sprite_sets(request.folder / "gfx");
    write_new_configuration(request, sets);
}

} // namespace sample
