#pragma once

#include "data/province_table.h"
#include "editor/fields.h"
#include "map/bitmap_file.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The map coloured by the provinces' values of a field.
namespace map {

/// The fields that the map can be coloured by, in the order of their menu.
inline constexpr std::array coloured_fields = {
    data::field_number(data::column::religion),
    data::field_number(data::column::culture),
    data::field_number(data::column::continent),
    data::field_number(data::column::region),
    data::field_number(data::column::area),
    data::field_number(data::column::terrain),
    data::field_number(data::column::climate),
    data::field_number(data::column::coast),
    data::field_number(data::column::ice),
    data::field_number(data::column::storm),
    data::field_number(data::column::galleys),
    data::field_number(data::column::goods),
    data::field_number(data::column::upgradable),
    data::field_number(data::column::mine_value),
    data::field_number(data::column::income),
    data::field_number(data::column::manpower),
    data::field_number(data::column::size_modifier),
    data::field_number(data::column::trade_centre),
    data::field_number(data::column::colony_difficulty),
    data::field_number(data::column::trade_difficulty),
    data::field_number(data::column::tolerance),
    data::field_number(data::column::native_strength),
    data::field_number(data::column::ferocity),
    data::field_number(data::column::efficiency),
    data::field_number(data::column::empire),
    data::field_number(data::column::treaty_spain),
};

/// Provinces that have one colour, and what they have in common.
struct ColourClass {
    enum class Kind {
        code,   // the code `value`
        number, // the number `value`
        range,  // numbers from `value` to `highest`
        none,   // no value
        sea,    // whatever the value
    };
    Kind kind = Kind::none;
    std::string value;
    std::string highest;
    Pixel colour = no_pixel; // of a range, its middle's
    std::vector<int> provinces;
};

/// What the map's colours mean when it is coloured by one field.
class FieldColours {
  public:
    /// Colours all provinces. A field with codes has one colour for each of `codes` and for each
    /// further code, any other one a scale from its lowest to its highest number. Provinces that
    /// hold `sea_code` as their terrain are the sea.
    FieldColours(const data::ProvinceTable& table, const editor::Field& field,
                 std::span<const std::string> codes, std::string_view sea_code);

    /// Returns the classes that have provinces: codes in their order or numbers upwards, then the
    /// provinces without a value, then the sea.
    std::span<const ColourClass> classes() const { return classes_; }

    /// Returns the identifier's colour (0 to 4095); no_pixel for one that no province has.
    Pixel colour(int identifier) const { return colours_.at(static_cast<std::size_t>(identifier)); }

    /// Gives the shown pixels their provinces' colours, over the light and shadow that they have.
    /// `ids` are the ID map's pixels at the same places; what is no province stays as it is.
    void tint(std::span<const Pixel> ids, std::span<Pixel> shown) const;

  private:
    using Values = std::vector<std::pair<int, std::string>>; // by province

    void take_codes(const Values& values, std::span<const std::string> codes);
    void take_numbers(const Values& values);
    void take(ColourClass colour_class);

    std::vector<ColourClass> classes_;
    std::vector<Pixel> colours_; // by identifier
};

} // namespace map
