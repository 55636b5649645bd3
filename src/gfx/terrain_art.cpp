#include "gfx/terrain_art.h"

#include "data/text.h"

#include <algorithm>
#include <array>

namespace gfx {

namespace {

constexpr std::array<std::string_view, 5> types = {"desert", "forest", "ice", "marsh", "mountain"};
constexpr int variants = 8;

bool is_terrain_art(std::string_view name) {
    return std::any_of(types.begin(), types.end(), [&](std::string_view type) {
        if (!data::starts_with_ignoring_case(name, type) || name.size() <= type.size())
            return false;
        const char digit = name[type.size()];
        return digit >= '0' && digit < '0' + variants &&
               data::equal_ignoring_case(name.substr(type.size() + 1), ".bmp");
    });
}

} // namespace

bool is_complete_terrain_art(std::span<const std::string> names) {
    return std::count_if(names.begin(), names.end(), is_terrain_art) ==
           static_cast<std::ptrdiff_t>(types.size()) * variants;
}

} // namespace gfx
