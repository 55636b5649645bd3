#include "map/lacking_positions.h"

#include "data/text.h"
#include "map/position_columns.h"
#include "map/stored_positions.h"

#include <algorithm>

namespace map {

namespace {

constexpr std::string_view coastal = "coastal";

bool needs_position(const data::ProvinceTable& provinces, Mode mode, int province,
                    std::string_view sea_code) {
    const auto holds = [&](data::FileColumn column, std::string_view text) {
        return data::equal_ignoring_case(provinces.cell(province, data::table_column(column)),
                                         text);
    };
    return mode == Mode::port ? holds(data::column::coast, coastal)
                              : !holds(data::column::terrain, sea_code);
}

} // namespace

bool lacks_position(const data::ProvinceTable& provinces, Mode mode, int province,
                    std::string_view sea_code) {
    return needs_position(provinces, mode, province, sea_code) &&
           std::none_of(position_columns.begin(), position_columns.end(), [&](const auto& columns) {
               return columns.mode == mode && has_position(provinces, columns, province);
           });
}

int lacking_positions(const data::ProvinceTable& provinces, Mode mode, std::string_view sea_code,
                      const ProvinceIndex* index) {
    int count = 0;
    for (int province = 1; province <= data::last_province; ++province) {
        const bool is_on_map = index == nullptr || index->place(province) != nullptr;
        count += is_on_map && lacks_position(provinces, mode, province, sea_code) ? 1 : 0;
    }
    return count;
}

std::optional<int> next_lacking(const data::ProvinceTable& provinces, Mode mode,
                                std::string_view sea_code, const ProvinceIndex& index, int after) {
    for (int way = 0; way < data::last_province; ++way) {
        const int province = (after + way) % data::last_province + 1;
        if (index.place(province) != nullptr && lacks_position(provinces, mode, province, sea_code))
            return province;
    }
    return {};
}

} // namespace map
