#include "sample.h"

#include "data/province_file.h"
#include "map_writer.h"
#include "names.h"
#include "positions.h"
#include "province_values.h"
#include "shell/configuration.h"
#include "sprite_sets.h"
#include "terrain_art.h"
#include "text_files.h"

#include <algorithm>
#include <string>

namespace sample {

namespace {

namespace fs = std::filesystem;

/// Returns the form in which the editor keeps paths: drive c: is the whole file system where there
/// are no drives.
std::string stored_path(const fs::path& path) {
    const auto utf8 = fs::absolute(path).lexically_normal().generic_u8string();
    std::string stored = code_page(std::string(utf8.begin(), utf8.end()));
    std::replace(stored.begin(), stored.end(), '/', '\\');
    return stored.starts_with('\\') ? "c:" + stored : stored;
}

void copy_languages(const fs::path& language, const fs::path& folder) {
    const auto from = fs::absolute(language).parent_path();
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
        .language_file = code_page(request.language.filename().string()),
    };
    gfx::GraphicsFileList files;
    for (const auto& set : sets)
        files.append({set.kind, stored_path(request.folder / "gfx" / set.path), set.set_name});
    write_file(path, shell::write_configuration(configuration, files));
}

} // namespace

void make_sample(const Request& request) {
    const shell::LanguageTexts language(read_file(request.language));
    const World world = make_world(world_size(request.pixels));
    const MapView view(world, request.pixels);
    const auto values = make_values(world, make_positions(view), language);

    fs::create_directories(request.folder);
    write_file(request.folder / "Province.csv", data::write_provinces(values));
    write_maps(view, request.folder);
    write_terrain_art(request.folder / "terrain");
    const auto sets = write_sprite_sets(request.folder / "gfx");
    copy_languages(request.language, request.folder);
    write_new_configuration(request, sets);
}

} // namespace sample
