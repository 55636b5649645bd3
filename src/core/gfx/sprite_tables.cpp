#include "gfx/sprite_tables.h"

#include "data/numbers.h"
#include "data/run_time_error.h"
#include "data/text.h"

#include <algorithm>

namespace gfx {

namespace {

using data::ErrorNumber;
using data::find_ignoring_case;
using data::Phrase;
using data::RunTimeError;
using data::Text;
constexpr auto npos = std::string_view::npos;

/// A line of a descriptor file, and what the file is loaded under.
struct Line {
    std::string_view text;
    int number;
    std::string_view set_name;
    std::string_view graphics_folder;

    Phrase place() const { return {Text::place_line, number}; }
};

std::string bitmap_name(const Line& line, std::size_t key_end) {
    const auto open = line.text.find('"', key_end);
    const auto close = open == npos ? npos : line.text.find('"', open + 1);
    if (close == npos)
        throw RunTimeError(ErrorNumber::invalid_procedure_call, Phrase(Text::reason_bitmap_name))
            .within(line.place());
    return std::string(line.text.substr(open + 1, close - open - 1));
}

/// Returns the number behind the first "=" at or after `from`; without one the whole line is read.
std::int16_t number_from(const Line& line, std::size_t from) {
    const auto equals = line.text.find('=', from);
    const auto text = equals == npos ? line.text : line.text.substr(equals + 1);
    return data::to_int16(data::leading_number(text), line.place());
}

/// Returns the number of a coordinate of the key "origin". Without the coordinate's letter the
/// first "=" of the line leads to the number.
std::int16_t coordinate(const Line& line, std::size_t key_end, std::string_view letter) {
    const auto found = find_ignoring_case(line.text, letter, key_end);
    return number_from(line, found == npos ? 0 : found);
}

void take_bitmap(const Line& line, std::size_t key_end, Sprite& sprite) {
    sprite.bitmap_path = std::string(line.graphics_folder) + "\\bmp\\" + bitmap_name(line, key_end);
    sprite.set_name = line.set_name;
}

void take_origin(const Line& line, std::size_t key_end, Sprite& sprite) {
    const auto x = coordinate(line, key_end, "x");
    sprite.origin_y = coordinate(line, key_end, "y");
    sprite.origin_x = x; // a sprite has both or none
}

void take_frames(const Line& line, std::size_t key_end, Sprite& sprite) {
    sprite.frames = number_from(line, key_end);
}

struct Key {
    std::string_view word;
    void (*take)(const Line&, std::size_t key_end, Sprite&);
};

constexpr std::array<Key, 3> keys = {{
    {"Bitmap", take_bitmap},
    {"origin", take_origin},
    {"frames", take_frames},
}};

/// Returns the row that is filled next. Throws subscript out of range behind the last one.
Sprite& current_row(SpriteTable& table, const Line& line) {
    if (table.count < 0 || static_cast<std::size_t>(table.count) >= table.rows.size())
        throw RunTimeError(
            ErrorNumber::subscript_out_of_range,
            Phrase(Text::reason_too_many_sprites, table.count + 1, table.rows.size()))
            .within(line.place());
    return table.rows[static_cast<std::size_t>(table.count)];
}

} // namespace

SpriteTables::SpriteTables() {
    for (const auto& kind : sprite_kinds)
        of(kind.kind).rows.resize(static_cast<std::size_t>(kind.capacity));
}

void SpriteTables::read_descriptor(std::string_view bytes, std::string_view kind,
                                   std::string_view set_name, std::string_view graphics_folder) {
    const auto known_kind = sprite_kind(kind);
    int keys_of_this_sprite = 0;
    for (int number = 1; !bytes.empty(); ++number) {
        const auto end = bytes.find_first_of("\r\n");
        const Line line{bytes.substr(0, end), number, set_name, graphics_folder};
        bytes.remove_prefix(end == npos ? bytes.size() : end);
        bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, bytes.size()));

        for (const auto& key : keys) {
            const auto found = find_ignoring_case(line.text, key.word);
            if (found == npos)
                continue;
            Sprite unused; // a malformed line is an error for an unknown kind, too
            key.take(line, found + key.word.size(),
                     known_kind ? current_row(of(*known_kind), line) : unused);
            if (known_kind && ++keys_of_this_sprite == static_cast<int>(keys.size())) {
                ++of(*known_kind).count;
                keys_of_this_sprite = 0;
            }
        }
    }
}

void SpriteTables::take_rows_out(SpriteKind kind, std::string_view set_name) {
    auto& rows = of(kind).rows;
    const auto limit = info(kind).set_limit;
    for (int row = 0; row < limit; ++row) {
        const auto current = rows.begin() + row;
        if (current->set_name.empty())
            return;
        // The row below the limit moves up, too, and is not cleared.
        if (current->set_name == set_name)
            std::copy(current + 1, rows.begin() + limit + 1, current);
    }
}

} // namespace gfx
