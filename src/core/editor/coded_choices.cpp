#include "editor/coded_choices.h"

#include "data/numbers.h"
#include "data/text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace editor {

namespace {

constexpr std::string_view gold = "gold";
constexpr std::string_view coastal = "coastal";
constexpr std::string_view inland = "inland";

constexpr auto treaty_spain = data::field_number(data::column::treaty_spain);
constexpr auto treaty_portugal = data::field_number(data::column::treaty_portugal);

struct Treaty {
    std::string_view code;
    std::string_view portugal;
    std::string_view spain;
};

constexpr std::array<Treaty, 3> treaties = {{
    {"0", "0", "0"},
    {"PORTUGAL", "1", "0"},
    {"ESPAGNE", "0", "1"},
}};

std::string_view treaty_code(std::string_view spain, std::string_view portugal) {
    const bool of_spain = data::leading_number(spain) == 1;
    const bool of_portugal = data::leading_number(portugal) == 1;
    // A province that both claim shows no treaty.
    if (of_spain == of_portugal)
        return treaties[0].code;
    return of_portugal ? treaties[1].code : treaties[2].code;
}

} // namespace

int choose(data::ProvinceTable& table, const Selection& selection, const Field& field,
           std::string_view code) {
    std::vector<FieldValue> values;
    if (field.display == Display::treaty) {
        for (const auto& treaty : treaties) {
            if (data::equal_ignoring_case(treaty.code, code))
                values = {{treaty_portugal, treaty.portugal}, {treaty_spain, treaty.spain}};
        }
    } else {
        values = {{field.number, code}};
        if (field.number == data::field_number(data::column::goods))
            values.push_back({data::field_number(data::column::mine_flag),
                              data::equal_ignoring_case(code, gold) ? "1" : "0"});
    }
    return write_values(table, selection, values);
}

std::string_view value_after_press(const Field& field, bool checked) {
    if (field.display == Display::coast)
        return checked ? inland : coastal;
    return checked ? "0" : "1";
}

bool is_checked(const Field& field, std::string_view value) {
    return field.display == Display::coast ? data::equal_ignoring_case(value, coastal)
                                           : data::leading_number(value) == 1;
}

std::string value_of(const data::ProvinceTable& table, int province, const Field& field) {
    const auto cell = [&](data::FieldNumber number) -> const std::string& {
        return table.cell(province, data::table_column(number));
    };
    if (field.display == Display::treaty)
        return std::string(treaty_code(cell(treaty_spain), cell(treaty_portugal)));
    return cell(field.number);
}

MergedValue shown_value(const data::ProvinceTable& table, const Selection& selection,
                        const Field& field) {
    if (field.display != Display::treaty || selection.provinces().empty())
        return merged_value(table, selection, field.number);
    const auto merged = [&](data::FieldNumber number) {
        return merged_value(table, selection, number).text;
    };
    const std::string shown(treaty_code(merged(treaty_spain), merged(treaty_portugal)));
    const auto provinces = selection.provinces();
    const bool is_everyones = std::all_of(provinces.begin(), provinces.end(), [&](int province) {
        return value_of(table, province, field) == shown;
    });
    return {is_everyones ? MergedValue::State::common : MergedValue::State::differing, shown};
}

} // namespace editor
