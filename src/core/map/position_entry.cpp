#include "map/position_entry.h"

#include "data/columns.h"
#include "data/numbers.h"
#include "map/identification.h"
#include "map/position_columns.h"

#include <algorithm>
#include <string>

namespace map {

namespace {

constexpr std::string_view none = "-1";

void write(data::ProvinceTable& provinces, int province, data::FileColumn column,
           std::string_view text) {
    provinces.write(province, data::table_column(column), text);
}

/// Turns the drawing to its next variant, behind the last one to the first.
void step_variant(data::ProvinceTable& provinces, int province, data::FileColumn column) {
    constexpr double last_variant = 7;
    const double variant =
        data::leading_number(provinces.cell(province, data::table_column(column)));
    write(provinces, province, column, data::to_text(variant >= last_variant ? 0 : variant + 1));
}

void place(data::ProvinceTable& provinces, const PositionColumns& columns, const Click& click,
           const Maps& maps) {
    const auto x = data::to_text(maps.x_offset + click.press_x);
    const auto y =
        data::to_int16(maps.y_offset + click.press_y,
                       "province " + std::to_string(click.province) + ", " +
                           std::string(data::header(columns.y)) + ", map offset and press added");
    write(provinces, click.province, columns.x, x);
    write(provinces, click.province, columns.y, std::to_string(y));
}

bool press_left(const PositionColumns& columns, const Click& click, const Maps& maps,
                PortPlacement& port, data::ProvinceTable& provinces) {
    if (columns.mode == Mode::port && port.stage == 1) {
        write(provinces, port.province, data::column::port_sea, std::to_string(click.province));
        port.stage = 0;
        return true;
    }
    place(provinces, columns, click, maps);
    if (columns.mode == Mode::dessin)
        step_variant(provinces, click.province, columns.variant());
    if (columns.mode == Mode::port) {
        port = {1, click.province};
        return false; // redrawn once its sea is known
    }
    return true;
}

bool press_right(const PositionColumns& columns, const Click& click, PortPlacement& port,
                 data::ProvinceTable& provinces) {
    if (columns.mode == Mode::port) {
        write(provinces, click.province, data::column::port_sea, "0");
        port.stage = 0;
    }
    write(provinces, click.province, columns.x, none);
    write(provinces, click.province, columns.y, none);
    return true;
}

} // namespace

bool enter_position(Mode mode, const Click& click, const Maps& maps, PortPlacement& port,
                    data::ProvinceTable& provinces) {
    const auto* columns = std::find_if(
        position_columns.begin(), position_columns.end(), [&](const PositionColumns& row) {
            return row.mode == mode &&
                   (row.drawing == PositionColumns::no_drawing || row.drawing == click.shift);
        });
    if (columns == position_columns.end() || click.button == Button::other)
        return false;
    if (click.province > data::last_province)
        throw no_such_province(click.province);
    if (click.button == Button::left)
        return press_left(*columns, click, maps, port, provinces);
    return press_right(*columns, click, port, provinces);
}

} // namespace map
