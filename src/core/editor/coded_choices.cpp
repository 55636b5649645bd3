#include "editor/coded_choices.h"

#include "data/numbers.h"
#include "data/text.h"

#include <array>

namespace editor {

namespace {

constexpr std::string_view gold = "gold";
constexpr std::string_view coastal = "coastal";
constexpr std::string_view inland = "inland";

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

void choose(data::ProvinceTable& table, const Selection& selection, const Field& field,
            std::string_view code) {
    if (field.display == Display::treaty) {
        for (const auto& treaty : treaties) {
            if (!data::equal_ignoring_case(treaty.code, code))
                continue;
            changement(table, selection, treaty.portugal,
                       data::field_number(data::column::treaty_portugal));
            changement(table, selection, treaty.spain,
                       data::field_number(data::column::treaty_spain));
        }
        return;
    }
    changement(table, selection, code, field.number);
    if (field.number == data::field_number(data::column::goods))
        changement(table, selection, data::equal_ignoring_case(code, gold) ? "1" : "0",
                   data::field_number(data::column::mine_flag));
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

MergedValue shown_value(const data::ProvinceTable& table, const Selection& selection,
                        const Field& field) {
    if (field.display != Display::treaty || selection.provinces().empty())
        return merged_value(table, selection, field.number);
    const auto text = [&](data::FileColumn column) {
        return merged_value(table, selection, data::field_number(column)).text;
    };
    return {MergedValue::State::common,
            std::string(treaty_code(text(data::column::treaty_spain),
                                    text(data::column::treaty_portugal)))};
}

} // namespace editor
