#include "editor/fields.h"

#include "data/numbers.h"
#include "data/text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace editor {

const std::array<Field, data::table_columns> fields = {{
    {{1}, Shown::text, "nom_province", ""},
    {{2}, Shown::coast, "cote", "COTE_"},
    {{3}, Shown::group, "religion", "RELIGION_"},
    {{4}, Shown::list, "culture", "CULTURE_"},
    {{5}, Shown::text, "taille", ""},
    {{6}, Shown::nowhere, "", ""},
    {{7}, Shown::group, "climat", "CLIMAT_"},
    {{8}, Shown::box, "océan(0)", "OCEAN_"},
    {{9}, Shown::box, "océan(1)", "OCEAN_", 1},
    {{10}, Shown::box, "océan(2)", "OCEAN_", 2},
    {{11}, Shown::text, "manpower", ""},
    {{12}, Shown::text, "income", ""},
    {{13}, Shown::group, "terrain", "TERRAIN_"},
    {{14}, Shown::treaty, "tot", "TOT_"},
    {{15}, Shown::nowhere, "", ""}, // shown and written together with field 14
    {{16}, Shown::group, "serge", "SERG_"},
    {{17}, Shown::nowhere, "", ""},
    {{18}, Shown::text, "mine", ""},
    {{19}, Shown::group, "production", "PRODUCTION_"},
    {{20}, Shown::box, "production_plus", "PRODUCPLUS_"},
    {{21}, Shown::group, "cot", "COT_"},
    {{22}, Shown::group, "dc", "DC_"},
    {{23}, Shown::text, "natif", ""},
    {{24}, Shown::slider, "férocité", ""},
    {{25}, Shown::slider, "efficacité", ""},
    {{26}, Shown::group, "dt", "DC_"}, // the same scale serves both difficulties
    {{27}, Shown::group, "tol", "TOL_"},
    {{28}, Shown::position, "ville(0)", ""},
    {{29}, Shown::position, "ville(1)", ""},
    {{30}, Shown::position, "armée(0)", ""},
    {{31}, Shown::position, "armée(1)", ""},
    {{32}, Shown::position, "portc(0)", ""},
    {{33}, Shown::position, "portc(1)", ""},
    {{34}, Shown::position, "manufacture(0)", ""},
    {{35}, Shown::position, "manufacture(1)", ""},
    {{36}, Shown::position, "Port", ""},
    {{37}, Shown::position, "dessin(0)", ""},
    {{38}, Shown::position, "dessin(1)", ""},
    {{39}, Shown::variant, "dessin_c(39)", ""},
    {{40}, Shown::position, "dessin(2)", ""},
    {{41}, Shown::position, "dessin(3)", ""},
    {{42}, Shown::variant, "dessin_c(42)", ""},
    {{43}, Shown::position, "dessin(4)", ""},
    {{44}, Shown::position, "dessin(5)", ""},
    {{45}, Shown::variant, "dessin_c(45)", ""},
    {{46}, Shown::position, "dessin(6)", ""},
    {{47}, Shown::position, "dessin(7)", ""},
    {{48}, Shown::variant, "dessin_c(48)", ""},
    {{49}, Shown::list, "aire", "AIRE_"},
    {{50}, Shown::list, "région", "REGION_"},
    {{51}, Shown::group, "continent", "CONTINENT_"},
    {{52}, Shown::text, "nom_ville", ""},
    {{53}, Shown::text, "rivière0", ""},
    {{54}, Shown::text, "rivière1", ""},
    {{55}, Shown::text, "rivière2", ""},
    {{56}, Shown::nowhere, "", ""},
    {{57}, Shown::nowhere, "", ""},
    {{58}, Shown::nowhere, "", ""},
}};

const Field& field(data::FieldNumber number) {
    return fields.at(static_cast<std::size_t>(number.number - 1));
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
