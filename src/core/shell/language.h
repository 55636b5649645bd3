#pragma once

#include "data/indexed_array.h"
#include "data/message.h"
#include "data/place.h"
#include "data/text.h"
#include "data/texts.h"

#include <array>
#include <exception>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace shell {

using data::Text;

/// A record of a value list: what stands behind the list's prefix in the key, and the text.
struct Entry {
    std::string code;
    std::string text;
};

struct ListInfo {
    std::string_view prefix;
    std::size_t capacity;
    bool keeps_last = false; // a further record replaces the entry instead of overflowing
};

/// The value lists, in the order in which a key is compared with their prefixes.
inline constexpr std::array<ListInfo, 19> value_lists = {{
    {"CULTURE_", 109},
    {"PRODUCTION_", 21},
    {"RELIGION_", 11},
    {"CONTINENT_", 5},
    {"REGION_", 58},
    {"TOT_", 3},
    {"TERRAIN_", 7},
    {"COTE_", 1, true},
    {"OCEAN_", 3},
    {"CLIMAT_", 9},
    {"PRODUCPLUS_", 1, true},
    {"COT_", 9},
    {"DC_", 10},
    {"TOL_", 10},
    {"MENU_", 94},
    {"MESSAGE_", 18},
    {"SERG_", 2},
    {"AIRE_", 150},
    {"MESS_", 7},
}};

/// Every text that the user sees, as one language file gives it.
class LanguageTexts {
  public:
    /// The texts without a language file: no captions and lists, and the program's English texts.
    LanguageTexts();

    /// Reads a language file. Throws subscript out of range for a record beyond its list's
    /// capacity, and what the record reader throws; each with the line in its place.
    explicit LanguageTexts(std::string_view bytes);

    /// Returns the entries that the file has for the prefix, at most the list's capacity.
    std::span<const Entry> list(std::string_view prefix) const;

    /// Returns the caption of a main frame key, letter case aside; of several the first.
    std::optional<std::string> caption(std::string_view key) const;

    /// Returns the caption of a dialog's key, spelled exactly so; of several the last.
    std::optional<std::string> exact_caption(std::string_view key) const;

    /// Returns the message's text; empty when the file lacks it.
    const std::string& message(data::Message message) const;

    /// Returns status text 1 to 7; empty when the file lacks it.
    const std::string& status(int number) const;

    /// Returns the file's text, or the program's English one where the file lacks it.
    const std::string& text(Text text) const { return own_texts_[text]; }

    /// Returns the text with %1, %2 and so on replaced by the values.
    std::string text(Text text, std::initializer_list<std::string_view> values) const {
        return data::filled(own_texts_[text], {values.begin(), values.end()});
    }

    /// Returns the error's words: those of a run-time error in this language.
    std::string text(const std::exception& error) const;

    /// Returns in this language where something was wrong, and what.
    std::string text(const data::Place& place) const;

  private:
    data::Dictionary dictionary() const;
    void take_own_text(std::string_view key, std::string text);

    std::array<std::vector<Entry>, value_lists.size()> lists_;
    data::IndexedArray<data::Message, std::string, 18> message_texts_;
    std::array<std::string, 7> status_texts_;
    data::IndexedArray<Text, std::string, data::text_count> own_texts_;
};

/// Returns the code whose text is the given one, letter case aside; of several the first, and empty
/// entries up to the list's capacity count. Throws subscript out of range when none is.
std::string code_of_text(std::span<const Entry> list, std::size_t capacity, std::string_view text);

/// Returns the index of the first entry with the code, letter case aside; -1 when none has it.
int index_of_code(std::span<const Entry> list, std::string_view code);

/// Returns the capacity of the value list with the prefix. Throws subscript out of range.
std::size_t capacity(std::string_view prefix);

} // namespace shell
