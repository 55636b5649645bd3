#include "map/identification.h"

#include "data/province_table.h"

namespace map {

int province_of(Colour colour) {
    const std::uint32_t red = colour >> 16;
    const std::uint32_t green = colour >> 8;
    const std::uint32_t blue = colour;
    // The game's maps are read so: red's low four bits count like its high ones, the others' do
    // not.
    const std::uint32_t merged_red = red | red << 4;

    // The identifier's low bits lie in the high bits of the colours, so that neighbouring
    // identifiers look different.
    std::uint32_t identifier = 0;
    for (unsigned k = 0; k < 4; ++k) {
        const unsigned colour_bit = 7 - k;
        identifier |= (merged_red >> colour_bit & 1) << (3 * k);
        identifier |= (green >> colour_bit & 1) << (3 * k + 1);
        identifier |= (blue >> colour_bit & 1) << (3 * k + 2);
    }
    return static_cast<int>(identifier);
}

data::RunTimeError no_such_province(int identifier) {
    return data::RunTimeError(data::ErrorNumber::subscript_out_of_range,
                              data::Phrase(data::Text::reason_identifier, data::last_province))
        .within(data::Phrase(data::Text::place_province, identifier));
}

data::Phrase place_on_id_map(int x, int y, Colour colour) {
    std::string digits;
    for (int shift = 20; shift >= 0; shift -= 4)
        digits += "0123456789ABCDEF"[colour >> shift & 0xF];
    return {data::Text::place_id_map_point, x, y, digits};
}

} // namespace map
