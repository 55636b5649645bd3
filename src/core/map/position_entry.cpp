#include "map/position_entry.h"

#include "data/columns.h"
#include "data/numbers.h"
#include "map/identification.h"
#include "map/position_columns.h"

#include <algorithm>
#include <cmath>
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

/// Returns the column of the clicked province as the place of an error in a sum.
std::string place_of_sum(int province, data::FileColumn column) {
    return "province " + std::to_string(province) + ", " + std::string(data::header(column)) +
           ", map offset and press added";
}

void write_position(data::ProvinceTable& provinces, const PositionColumns& columns,
                    const Click& click, const Maps& maps) {
    const double x = maps.x_offset + click.press_x;
    if (!std::isfinite(x))
        throw data::RunTimeError(data::ErrorNumber::overflow,
                                 place_of_sum(click.province, columns.x) +
                                     ": a number of at most 308 digits was expected");
    const auto y =
        data::to_int16(maps.y_offset + click.press_y, place_of_sum(click.province, columns.y));
    write(provinces, click.province, columns.x, data::to_text(x));
    write(provinces, click.province, columns.y, std::to_string(y));
}

void press_left(const PositionColumns& columns, const Click& click, const Maps& maps,
                PortPlacement& port, data::ProvinceTable& provinces) {
    if (columns.mode == Mode::port && port.stage == 1) {
        write(provinces, port.province, data::column::port_sea, std::to_string(click.province));
        port.stage = 0;
        return;
    }
    write_position(provinces, columns, click, maps);
    if (columns.mode == Mode::dessin)
        step_variant(provinces, click.province, columns.variant());
    if (columns.mode == Mode::port)
        port = {1, click.province};
}

void press_right(const PositionColumns& columns, const Click& click, PortPlacement& port,
                 data::ProvinceTable& provinces) {
    if (columns.mode == Mode::port) {
        write(provinces, click.province, data::column::port_sea, "0");
        port.stage = 0;
    }
    write(provinces, click.province, columns.x, none);
    write(provinces, click.province, columns.y, none);
}

} // namespace

void enter_position(Mode mode, const Click& click, const Maps& maps, PortPlacement& port,
                    data::ProvinceTable& provinces) {
    const auto* columns = std::find_if(
        position_columns.begin(), position_columns.end(), [&](const PositionColumns& row) {
            return row.mode == mode &&
                   (row.drawing == PositionColumns::no_drawing || row.drawing == click.shift);
        });
    if (columns == position_columns.end() || click.button == Button::other)
        return;
    if (click.province > data::last_province)
        throw no_such_province(click.province);
    if (click.button == Button::left)
        press_left(*columns, click, maps, port, provinces);
    else
        press_right(*columns, click, port, provinces);
}

} // namespace map
