#pragma once

#include "data/province_table.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace editor {

/// Which provinces are selected.
class Selection {
  public:
    Selection();

    /// Returns whether the province is selected. Throws subscript out of range.
    bool contains(int province) const;

    /// Returns the selected provinces' identifiers in increasing order.
    std::span<const int> provinces() const { return provinces_; }

    /// Returns a number that grows with every selection.
    std::uint64_t version() const { return version_; }

    /// Selects what the text names: identifiers and ranges of two, separated by ";". The text is
    /// taken as far as it reads; identifier 0 is never selected. Throws subscript out of range at
    /// an identifier above 2018; what was named before it is selected then.
    void apply(std::string_view text);

  private:
    void mark(double first, double last);
    void list_provinces();

    std::vector<char> flags_;
    std::vector<int> provinces_;
    std::uint64_t version_ = 0;
};

/// Returns whether the text keeps to the form of a selection: digits, with each "-" and ";" right
/// behind a digit.
bool is_well_formed(std::string_view selection_text);

/// Returns the selection text with one more province.
std::string with_province(std::string_view selection_text, int province);

struct FieldValue {
    data::FieldNumber field;
    std::string_view value;
};

/// Writes the values into their fields of every selected province. Returns in how many provinces
/// that changed something.
int write_values(data::ProvinceTable& table, const Selection& selection,
                 std::span<const FieldValue> values);

/// Writes the value into the field of every selected province. Returns how many of them held
/// another one.
int changement(data::ProvinceTable& table, const Selection& selection, std::string_view value,
               data::FieldNumber field);

} // namespace editor
