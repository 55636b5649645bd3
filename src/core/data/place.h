#pragma once

#include "data/texts.h"

#include <concepts>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// Returns the words of a text in one language, with its %1, %2 and so on.
using Dictionary = std::function<std::string_view(Text)>;

/// Words for the user that are put into his language when they are shown.
class Phrase {
  public:
    /// The text, with the numbers and names in place of its %1, %2 and so on.
    template <typename... Values>
    Phrase(Text text, const Values&... values) : text_(text), values_{word(values)...} {}

    /// What no language changes: a name, a path, the system's own words.
    Phrase(std::string plain) : values_{std::move(plain)} {}

    /// Returns the words in the dictionary's language.
    std::string in(const Dictionary& dictionary) const;

  private:
    static std::string word(std::integral auto number) { return std::to_string(number); }
    static std::string word(std::string_view name) { return std::string(name); }

    std::optional<Text> text_; // without one the only value is all
    std::vector<std::string> values_;
};

/// What was wrong, and where: file, line, province, field, from the outermost inwards.
class Place {
  public:
    Place(Phrase reason) : reason_(std::move(reason)) {}

    /// Returns the same with `outer` written before.
    Place within(Phrase outer) const;

    /// Returns where, and then what, in the dictionary's language; in English without one.
    std::string in(const Dictionary& dictionary) const;
    std::string in_english() const;

  private:
    std::vector<Phrase> where_; // the innermost first
    Phrase reason_;
};

/// Returns the program's own words, for want of a language file.
std::string_view english(Text text);

} // namespace data
