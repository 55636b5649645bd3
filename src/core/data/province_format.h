#pragma once

#include "data/columns.h"

#include <array>
#include <string>
#include <string_view>

/// The province file's form, as it is read, written and checked.
namespace data {

inline constexpr char separator = ';';
inline constexpr std::string_view line_end = "\r\n";

/// A line that every province file has and that no province owns.
struct FixedRow {
    int identifier;
    std::string_view name;
    std::string_view line; // without its line end
};

inline constexpr FixedRow terra_incognita = {
    0, "Terra Incognita",
    "0;Terra Incognita;inland;exotic;none;0;0;0;0;0;0;0;0;8;0;0;0;0;0;nothing;0;-3;0;0;0;0;0;0;"
    "9472;3647;5740;4104;0;0;9472;3647;0;-100;-100;0;-100;-100;0;-100;-100;0;-100;-100;0;-;-;-;"
    "#N/A;0;0;0;#N/A;-1;-1"};
inline constexpr FixedRow filler = {
    -1, "Filler",
    "-1;Filler;inland;exotic;none;-1;-1;-1;-1;-1;0;-1;-1;9;0;0;0;0;-1;nothing;0;-1;-1;-1;-1;"
    "-1;-1;-1;-1;-1;-1;-1;-1;-1;-1;-1;0;0;0;0;0;0;0;0;0;0;0;0;0;;;;#N/A;0;0;0;0;0;0"};

/// Returns the file's first line, without its line end.
std::string header_line();

/// Takes the next line from the bytes. A line ends at a carriage return only; the line feed behind
/// it belongs to the line end.
std::string_view take_line(std::string_view& bytes);

/// Takes the next field from the line: what stands before the next separator, or the rest.
std::string_view take_field(std::string_view& line);

} // namespace data
