#include "map/field_colours.h"

#include "data/numbers.h"
#include "data/text.h"
#include "editor/coded_choices.h"
#include "map/identification.h"
#include "map/palette.h"
#include "map/province_index.h"
#include "map/run_of_pixels.h"

#include <algorithm>
#include <map>
#include <utility>

namespace map {

namespace {

constexpr Pixel sea_colour = 0xFFB4CADE;
constexpr Pixel neutral_colour = 0xFF9A9A9A;

constexpr std::size_t most_numbers = 12; // that have an entry each
constexpr int ranges = 8;

struct LessIgnoringCase {
    bool operator()(std::string_view left, std::string_view right) const {
        return data::less_ignoring_case(left, right);
    }
};

bool holds_numbers(const editor::Field& field) {
    return field.display == editor::Display::text || field.display == editor::Display::slider;
}

/// Gives the pixels the colour, up to two fifths darker where they are dark.
void colour_over_relief(Pixel colour, std::span<Pixel> shown) {
    const Pixel red_and_blue = colour & 0xFF00FF;
    const Pixel green = colour & 0x00FF00;
    for (Pixel& pixel : shown) { // simple enough for the compiler to take several at once
        const Pixel light = ((pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) * 2 + (pixel & 0xFF)) >> 2;
        const Pixel part = 154 + (light * 102 >> 8); // of 256
        pixel = 0xFF000000 | (red_and_blue * part >> 8 & 0xFF00FF) | (green * part >> 8 & 0x00FF00);
    }
}

} // namespace

FieldColours::FieldColours(const data::ProvinceTable& table, const editor::Field& field,
                           std::span<const std::string> codes, std::string_view sea_code)
    : colours_(ProvinceIndex::identifiers, no_pixel) {
    const bool wants_numbers = holds_numbers(field);
    Values values;
    ColourClass none{ColourClass::Kind::none, {}, {}, neutral_colour, {}};
    ColourClass sea{ColourClass::Kind::sea, {}, {}, sea_colour, {}};
    const auto terrain = table.column(data::table_column(data::column::terrain));
    for (int province = 1; province <= data::last_province; ++province) {
        std::string value = editor::value_of(table, province, field);
        if (data::equal_ignoring_case(terrain[static_cast<std::size_t>(province)], sea_code))
            sea.provinces.push_back(province);
        else if (data::is_blank(value) || (wants_numbers && !data::is_number(value)))
            none.provinces.push_back(province);
        else
            values.emplace_back(province, std::move(value));
    }
    if (wants_numbers)
        take_numbers(values);
    else
        take_codes(values, codes);
    take(std::move(none));
    take(std::move(sea));
}

void FieldColours::take(ColourClass colour_class) {
    if (colour_class.provinces.empty())
        return;
    for (const int province : colour_class.provinces) {
        Pixel& colour = colours_[static_cast<std::size_t>(province)];
        if (colour == no_pixel) // a number has a colour of its own, not its range's
            colour = colour_class.colour;
    }
    classes_.push_back(std::move(colour_class));
}

void FieldColours::take_codes(const Values& values, std::span<const std::string> codes) {
    std::map<std::string_view, std::size_t, LessIgnoringCase> index_of;
    for (std::size_t index = 0; index < codes.size(); ++index)
        index_of.try_emplace(codes[index], index);
    std::map<std::string_view, std::vector<int>, LessIgnoringCase> unknown;
    std::vector<ColourClass> known(codes.size());
    for (const auto& [province, value] : values) {
        const auto found = index_of.find(value);
        auto& provinces = found == index_of.end() ? unknown[value] : known[found->second].provinces;
        provinces.push_back(province);
    }
    for (std::size_t index = 0; index < codes.size(); ++index)
        take({ColourClass::Kind::code,
              codes[index],
              {},
              code_colour(index),
              std::move(known[index].provinces)});
    std::size_t next = codes.size();
    for (auto& [code, provinces] : unknown)
        take({ColourClass::Kind::code,
              std::string(code),
              {},
              code_colour(next++),
              std::move(provinces)});
}

void FieldColours::take_numbers(const Values& values) {
    std::map<double, std::vector<int>> provinces_of;
    for (const auto& [province, value] : values)
        provinces_of[data::leading_number(value)].push_back(province);
    if (provinces_of.empty())
        return;
    const double lowest = provinces_of.begin()->first;
    const double width = provinces_of.rbegin()->first - lowest;
    const auto place = [&](double number) { return width > 0 ? (number - lowest) / width : 0.5; };
    if (provinces_of.size() <= most_numbers) {
        for (auto& [number, provinces] : provinces_of)
            take({ColourClass::Kind::number,
                  data::to_text(number),
                  {},
                  scale_colour(place(number)),
                  std::move(provinces)});
        return;
    }
    auto from = provinces_of.begin();
    for (int range = 0; range < ranges; ++range) {
        ColourClass colour_class{
            ColourClass::Kind::range, {}, {}, scale_colour((range + 0.5) / ranges), {}};
        const double end = (range + 1.0) / ranges;
        for (; from != provinces_of.end() && (place(from->first) < end || range == ranges - 1);
             ++from) {
            const auto& [number, provinces] = *from;
            if (colour_class.provinces.empty())
                colour_class.value = data::to_text(number);
            colour_class.highest = data::to_text(number);
            for (const int province : provinces) {
                colours_[static_cast<std::size_t>(province)] = scale_colour(place(number));
                colour_class.provinces.push_back(province);
            }
        }
        std::sort(colour_class.provinces.begin(), colour_class.provinces.end());
        take(std::move(colour_class));
    }
}

void FieldColours::tint(std::span<const Pixel> ids, std::span<Pixel> shown) const {
    for (std::size_t begin = 0; begin < shown.size();) { // most neighbours lie in one province
        const Pixel id = ids[begin];
        const std::size_t end = end_of_run(ids.first(shown.size()), begin);
        const Pixel colour = id == no_pixel ? no_pixel : this->colour(province_of(id & 0xFFFFFF));
        if (colour != no_pixel)
            colour_over_relief(colour, shown.subspan(begin, end - begin));
        begin = end;
    }
}

} // namespace map
