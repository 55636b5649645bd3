#pragma once

#include "data/columns.h"
#include "data/province_table.h"
#include "editor/fields.h"
#include "shell/language.h"

#include <string>
#include <vector>

/// Finds provinces by their values.
namespace shell {

/// What a search looks at.
struct SearchTarget {
    enum class Kind {
        name_or_city, // either of the two
        treaty,       // the option that both treaty fields together mean
        column,       // what the field's cell holds
    };
    Kind kind = Kind::name_or_city;
    data::FieldNumber field = {1}; // of a column

    friend bool operator==(const SearchTarget&, const SearchTarget&) = default;
};

/// Returns all targets: name or city, the treaty, and the columns that a file fills, in its order.
std::vector<SearchTarget> search_targets();

/// Returns the target that looks at what the panel shows for the field.
SearchTarget target_of(const editor::Field& field);

/// How a value is compared; the first three look at texts.
enum class Comparison { contains, equals, differs, is_empty, less, greater };

struct Search {
    SearchTarget target = {};
    Comparison comparison = Comparison::contains;
    std::string text = {};
};

struct FoundProvince {
    int province;
    std::string value; // "code (text)" where the language has a text for a code; with name or city
                       // the city's name
    friend bool operator==(const FoundProvince&, const FoundProvince&) = default;
};

/// Returns the provinces from 1 on that the search finds, by their identifiers. Letter case does
/// not matter, and a code is found by its text, too. Less and greater compare whole numbers and
/// decimal ones and find no cell that is none. Empty is what is_blank takes for no value.
std::vector<FoundProvince> find_provinces(const data::ProvinceTable& table,
                                          const LanguageTexts& language, const Search& search);

/// Returns the text for which a search for equal values finds the target's value and no other: its
/// text in the panel where no other code has that, too.
std::string text_to_find(const LanguageTexts& language, const SearchTarget& target,
                         const std::string& value);

} // namespace shell
