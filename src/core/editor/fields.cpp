#include "editor/fields.h"

#include "data/numbers.h"
#include "data/text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace editor {

namespace column = data::column;
using data::field_number;

constexpr data::FieldArray<Field> fields = {{{
    {field_number(column::name), Display::text, "nom_province", ""},
    {field_number(column::coast), Display::coast, "cote", "COTE_"},
    {field_number(column::religion), Display::group, "religion", "RELIGION_"},
    {field_number(column::culture), Display::list, "culture", "CULTURE_"},
    {field_number(column::size_modifier), Display::text, "taille", ""},
    {field_number(column::pashas), Display::nowhere, "", ""},
    {field_number(column::climate), Display::group, "climat", "CLIMAT_"},
    {field_number(column::ice), Display::box, "océan(0)", "OCEAN_"},
    {field_number(column::storm), Display::box, "océan(1)", "OCEAN_", 1},
    {field_number(column::galleys), Display::box, "océan(2)", "OCEAN_", 2},
    {field_number(column::manpower), Display::text, "manpower", ""},
    {field_number(column::income), Display::text, "income", ""},
    {field_number(column::terrain), Display::group, "terrain", "TERRAIN_"},
    {field_number(column::treaty_spain), Display::treaty, "tot", "TOT_"},
    {field_number(column::treaty_portugal), Display::nowhere, "",
     ""}, // shown and written together with field 14
    {field_number(column::empire), Display::group, "serge", "SERG_"},
    {field_number(column::mine_flag), Display::nowhere, "", ""},
    {field_number(column::mine_value), Display::text, "mine", ""},
    {field_number(column::goods), Display::group, "production", "PRODUCTION_"},
    {field_number(column::upgradable), Display::box, "production_plus", "PRODUCPLUS_"},
    {field_number(column::trade_centre), Display::group, "cot", "COT_"},
    {field_number(column::colony_difficulty), Display::group, "dc", "DC_"},
    {field_number(column::native_strength), Display::text, "natif", ""},
    {field_number(column::ferocity), Display::slider, "férocité", ""},
    {field_number(column::efficiency), Display::slider, "efficacité", ""},
    {field_number(column::trade_difficulty), Display::group, "dt",
     "DC_"}, // the same scale serves both difficulties
    {field_number(column::tolerance), Display::group, "tol", "TOL_"},
    {field_number(column::city_x), Display::position, "ville(0)", ""},
    {field_number(column::city_y), Display::position, "ville(1)", ""},
    {field_number(column::army_x), Display::position, "armée(0)", ""},
    {field_number(column::army_y), Display::position, "armée(1)", ""},
    {field_number(column::port_x), Display::position, "portc(0)", ""},
    {field_number(column::port_y), Display::position, "portc(1)", ""},
    {field_number(column::manufactory_x), Display::position, "manufacture(0)", ""},
    {field_number(column::manufactory_y), Display::position, "manufacture(1)", ""},
    {field_number(column::port_sea), Display::position, "Port", ""},
    {field_number(column::drawing_x[0]), Display::position, "dessin(0)", ""},
    {field_number(column::drawing_y[0]), Display::position, "dessin(1)", ""},
    {field_number(column::drawing_variant[0]), Display::variant, "dessin_c(39)", ""},
    {field_number(column::drawing_x[1]), Display::position, "dessin(2)", ""},
    {field_number(column::drawing_y[1]), Display::position, "dessin(3)", ""},
    {field_number(column::drawing_variant[1]), Display::variant, "dessin_c(42)", ""},
    {field_number(column::drawing_x[2]), Display::position, "dessin(4)", ""},
    {field_number(column::drawing_y[2]), Display::position, "dessin(5)", ""},
    {field_number(column::drawing_variant[2]), Display::variant, "dessin_c(45)", ""},
    {field_number(column::drawing_x[3]), Display::position, "dessin(6)", ""},
    {field_number(column::drawing_y[3]), Display::position, "dessin(7)", ""},
    {field_number(column::drawing_variant[3]), Display::variant, "dessin_c(48)", ""},
    {field_number(column::area), Display::list, "aire", "AIRE_"},
    {field_number(column::region), Display::list, "région", "REGION_"},
    {field_number(column::continent), Display::group, "continent", "CONTINENT_"},
    {field_number(column::city_name), Display::text, "nom_ville", ""},
    {field_number(column::rivers[0]), Display::text, "rivière0", ""},
    {field_number(column::rivers[1]), Display::text, "rivière1", ""},
    {field_number(column::rivers[2]), Display::text, "rivière2", ""},
    {{56}, Display::nowhere, "", ""},
    {{57}, Display::nowhere, "", ""},
    {{58}, Display::nowhere, "", ""},
}}};

static_assert(
    [] {
        int number = 0;
        return std::all_of(fields.begin(), fields.end(),
                           [&](const Field& field) { return field.number.number == ++number; });
    }(),
    "each field stands at its number");

const NumericField& numeric_field(data::FieldNumber field) {
    const auto* found =
        std::find_if(numeric_fields.begin(), numeric_fields.end(),
                     [&](const NumericField& each) { return each.number == field; });
    if (found == numeric_fields.end())
        throw std::logic_error("field " + std::to_string(field.number) + " has no range");
    return *found;
}

std::optional<std::string> checked_entry(const NumericField& numeric, std::string_view text) {
    const double value = data::leading_number(text);
    if (value < 0 || value > numeric.highest)
        return std::nullopt;
    return data::with_decimal_point(text);
}

namespace {

int whole_position(double position) {
    constexpr double limit = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(position, -limit, limit));
}

} // namespace

int slider_position_shown(const NumericField& numeric, std::string_view text) {
    return whole_position(std::floor(data::leading_number(text) * numeric.slider_factor));
}

int slider_position_entered(const NumericField& numeric, std::string_view text) {
    return whole_position(
        data::round_half_even(data::leading_number(text) * numeric.slider_factor));
}

std::string slider_text(const NumericField& numeric, int position) {
    return data::to_text(static_cast<double>(position) / numeric.slider_factor);
}

} // namespace editor
