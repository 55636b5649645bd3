#pragma once

#include "data/columns.h"
#include "data/message.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

/// What the panel shows of each of the 58 fields, and what entering a value means.
namespace editor {

/// How a merged value is put into its control.
enum class Display {
    nowhere,
    text,     // text field
    slider,   // text field with a slider beside it
    group,    // the option whose code is the value
    treaty,   // the option that both treaty fields together mean
    list,     // the item whose code is the value
    box,      // checked for the number 1
    coast,    // checked for "coastal"
    position, // read-only label
    variant,  // label that copies its variant to all selected provinces when clicked
};

struct Field {
    data::FieldNumber number;
    Display display;
    std::string_view control;     // object name in UTF-8, with its index where it has one
    std::string_view list_prefix; // prefix of the language file's value list, if any
    std::size_t list_entry = 0;   // of a box: the list's entry that captions it
};

/// The fields by their number.
extern const data::FieldArray<Field> fields;

/// A text field with a slider: what may be entered, and how the slider stands for it.
struct NumericField {
    data::FieldNumber number;
    std::string_view slider; // object name in UTF-8
    double highest;          // 0 is the lowest value
    int slider_factor;       // slider position = value x factor
    data::Message message;   // for a value outside the range
};

inline constexpr std::array<NumericField, 2> numeric_fields = {{
    {data::field_number(data::column::ferocity), "férocité_s", 5, 4,
     data::Message::ferocity_out_of_range},
    {data::field_number(data::column::efficiency), "efficacité_s", 2, 10,
     data::Message::efficiency_out_of_range},
}};

/// Returns the range and the slider of the field. Throws std::logic_error for a field without.
const NumericField& numeric_field(data::FieldNumber field);

/// Returns the text as it is stored (decimal point for comma); nothing when its number is outside
/// the field's range.
std::optional<std::string> checked_entry(const NumericField& numeric, std::string_view text);

/// Returns where the slider stands for a shown value: the largest position not above it.
int slider_position_shown(const NumericField& numeric, std::string_view text);

/// Returns where the slider is asked to stand for an entered value: the nearest position, a half to
/// the even one.
int slider_position_entered(const NumericField& numeric, std::string_view text);

/// Returns the text that a slider position stands for.
std::string slider_text(const NumericField& numeric, int position);

} // namespace editor
