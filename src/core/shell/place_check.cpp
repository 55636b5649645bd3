#include "shell/place_check.h"

#include "data/numbers.h"
#include "data/text.h"
#include "map/position_columns.h"
#include "map/stored_positions.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace shell {

namespace {

using data::FileColumn;
using data::table_column;

constexpr double farthest_port = 50; // pixels between a port and its sea's bounding box

/// Returns how far the point lies from the bounding box, in pixels; 0 inside.
double distance(const map::ProvincePlace& place, double x, double y) {
    const double dx = std::max({place.box.left - x, x - place.box.right, 0.0});
    const double dy = std::max({place.box.top - y, y - place.box.bottom, 0.0});
    return std::hypot(dx, dy);
}

class PlaceChecker {
  public:
    PlaceChecker(const data::ProvinceTable& table, const LanguageTexts& language,
                 const IdMap& id_map, const ProvinceLines& lines)
        : table_(table), id_map_(id_map), lines_(lines), sea_(sea_code(language)) {}

    std::vector<Problem> run() {
        for (int province = 1; province <= data::last_province; ++province) {
            check_presence(province);
            for (const auto& mode : map::modes) {
                for (const auto& position :
                     map::positions_of(table_, mode.mode, id_map_.maps, province))
                    check_position(mode.mode, position);
            }
        }
        for (int identifier = data::last_province + 1; identifier < map::ProvinceIndex::identifiers;
             ++identifier) {
            if (const auto* place = id_map_.index.place(identifier))
                add({.what = Text::problem_colour,
                     .value = std::to_string(identifier),
                     .detail = std::to_string(place->pixels)});
        }
        return std::move(problems_);
    }

  private:
    void add(Problem problem) {
        problem.line = lines_.at(static_cast<std::size_t>(problem.province));
        problem.is_hint = true;
        problems_.push_back(std::move(problem));
    }

    const std::string& cell(int province, FileColumn column) const {
        return table_.cell(province, table_column(column));
    }

    bool has_values(int province) const {
        for (data::TableColumn column{0}; column.index < data::first_unread.index; ++column.index) {
            if (!table_.cell(province, column).empty())
                return true;
        }
        return false;
    }

    void check_presence(int province) {
        const auto* place = id_map_.index.place(province);
        const bool exists = has_values(province);
        if (exists && !place)
            add({.what = Text::problem_not_on_map, .province = province});
        if (place && !exists)
            add({.what = Text::problem_not_in_file,
                 .province = province,
                 .value = std::to_string(place->pixels)});
    }

    void add(Text what, const map::PositionColumns& columns, int province, int other_province = 0) {
        add({.what = what,
             .province = province,
             .column = columns.x,
             .value = cell(province, columns.x) + ", " + cell(province, columns.y),
             .detail = std::to_string(other_province)});
    }

    void check_position(map::Mode mode, const map::StoredPosition& position) {
        const auto& columns = *std::find_if(
            map::position_columns.begin(), map::position_columns.end(),
            [&](const auto& row) { return row.mode == mode && row.drawing == position.drawing; });
        const bool is_inside = position.x >= 0 && position.x < id_map_.width && position.y >= 0 &&
                               position.y < id_map_.height;
        if (!is_inside)
            add(Text::problem_outside_map, columns, position.province);
        if (mode == map::Mode::port)
            check_sea(columns, position, is_inside);
        else if (is_inside)
            check_province(columns, position);
    }

    void check_province(const map::PositionColumns& columns, const map::StoredPosition& position) {
        const int there =
            id_map_.province_at(static_cast<int>(position.x), static_cast<int>(position.y));
        if (there != position.province)
            add(Text::problem_other_province, columns, position.province, there);
    }

    void check_sea(const map::PositionColumns& columns, const map::StoredPosition& port,
                   bool is_inside) {
        const std::string& name = cell(port.province, data::column::port_sea);
        const double number = data::round_half_even(data::leading_number(name));
        const bool is_province = number >= 1 && number <= data::last_province;
        const int sea = is_province ? static_cast<int>(number) : 0;
        if (!data::equal_ignoring_case(cell(sea, data::column::terrain), sea_)) {
            add({.what = Text::problem_port_sea,
                 .province = port.province,
                 .column = data::column::port_sea,
                 .value = name});
            return;
        }
        const auto* place = id_map_.index.place(sea);
        if (is_inside && place && distance(*place, port.x, port.y) > farthest_port)
            add(Text::problem_port_far, columns, port.province, sea);
    }

    const data::ProvinceTable& table_;
    const IdMap& id_map_;
    const ProvinceLines& lines_;
    std::string sea_;
    std::vector<Problem> problems_;
};

} // namespace

std::string sea_code(const LanguageTexts& language) {
    constexpr std::size_t sea_option = 5;
    const auto terrains = language.list("TERRAIN_");
    return terrains.size() > sea_option ? terrains[sea_option].code : "5";
}

std::vector<Problem> check_places(const data::ProvinceTable& table, const LanguageTexts& language,
                                  const IdMap& id_map, const ProvinceLines& lines) {
    return PlaceChecker(table, language, id_map, lines).run();
}

} // namespace shell
