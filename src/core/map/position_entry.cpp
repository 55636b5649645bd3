#include "map/position_entry.h"

#include "data/columns.h"
#include "data/numbers.h"
#include "map/identification.h"
#include "map/position_columns.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace map {

namespace {

constexpr std::string_view none = "-1";

/// Where a press overflows.
data::Phrase sum_of_press() {
    return {data::Text::place_press_and_offset};
}

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

/// Calls the function; an error in it gets the province's column as its place.
template <typename Function>
auto within_column(int province, data::FileColumn column, Function function) {
    try {
        return function();
    } catch (const data::RunTimeError& error) {
        throw error.within(std::string(data::header(column)))
            .within(data::Phrase(data::Text::place_province, province));
    }
}

void write_position(data::ProvinceTable& provinces, const PositionColumns& columns,
                    const Click& click, const Maps& maps) {
    const auto x =
        within_column(click.province, columns.x, [&] { return stored_x(maps, click.press_x); });
    const auto y =
        within_column(click.province, columns.y, [&] { return stored_y(maps, click.press_y); });
    write(provinces, click.province, columns.x, x);
    write(provinces, click.province, columns.y, y);
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

std::string stored_x(const Maps& maps, double press_x) {
    const double x = maps.x_offset + press_x;
    if (!std::isfinite(x))
        throw data::RunTimeError(
            data::ErrorNumber::overflow,
            data::Phrase(data::Text::reason_digits, std::numeric_limits<double>::max_exponent10))
            .within(sum_of_press());
    return data::to_text(x);
}

std::string stored_y(const Maps& maps, std::int16_t press_y) {
    return std::to_string(data::to_int16(maps.y_offset + press_y, sum_of_press()));
}

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
