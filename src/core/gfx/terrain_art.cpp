#include "gfx/terrain_art.h"

#include "data/numbers.h"
#include "data/text.h"

#include <algorithm>

namespace gfx {

namespace {

constexpr auto required_types = std::span(terrain_types).first<terrain_types.size() - 1>();

/// The types by `Terrain` code; every further code is the first one's.
constexpr std::array<std::string_view, 5> types_by_code = {"plains", "forest", "mountain", "desert",
                                                           "marsh"};
constexpr double coldest_climate = 8;

bool is_terrain_art(std::string_view name) {
    return std::any_of(required_types.begin(), required_types.end(), [&](std::string_view type) {
        if (!data::starts_with_ignoring_case(name, type) || name.size() <= type.size())
            return false;
        const char digit = name[type.size()];
        return digit >= '0' && digit < '0' + terrain_variants &&
               data::equal_ignoring_case(name.substr(type.size() + 1), ".bmp");
    });
}

std::string_view terrain_type(std::string_view terrain, std::string_view climate) {
    const double code = data::leading_number(terrain);
    for (std::size_t i = 1; i < types_by_code.size(); ++i) {
        if (code == static_cast<double>(i))
            return types_by_code[i];
    }
    return data::leading_number(climate) == coldest_climate ? "ice" : types_by_code.front();
}

std::string file_name(std::string_view type, std::string_view variant) {
    return std::string(type).append(variant).append(".bmp");
}

} // namespace

std::string terrain_art_file(std::string_view type, int variant) {
    return file_name(type, std::to_string(variant));
}

std::string terrain_art_file(std::string_view terrain, std::string_view climate,
                             std::string_view variant) {
    return file_name(terrain_type(terrain, climate), data::to_text(data::leading_number(variant)));
}

bool is_complete_terrain_art(std::span<const std::string> names) {
    return std::count_if(names.begin(), names.end(), is_terrain_art) ==
           static_cast<std::ptrdiff_t>(required_types.size()) * terrain_variants;
}

} // namespace gfx
