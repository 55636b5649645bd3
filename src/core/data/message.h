#pragma once

namespace data {

/// The messages of a language file that the program shows, by their number: record "mess15" is
/// number 15.
enum class Message {
    efficiency_out_of_range = 1,
    ferocity_out_of_range = 2,
    set_limit_reached = 3,
    name_missing = 4,
    terrain_art_incomplete = 5,
    malformed_selection = 7,
    offset_missing = 14,
    open_question = 15,
    map_missing = 16,
    save_question = 17,
    language_notice = 18,
};

} // namespace data
