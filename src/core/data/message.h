#pragma once

#include <cstddef>

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

/// Returns where the message stands in an array of all messages, which are counted from 1.
constexpr std::size_t position_of(Message message) {
    return static_cast<std::size_t>(message) - 1;
}

} // namespace data
