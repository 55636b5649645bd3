#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace data {

/// The platform's error numbers that this program reports.
enum class ErrorNumber {
    invalid_procedure_call = 5,
    overflow = 6,
    subscript_out_of_range = 9,
    file_not_found = 53,
    disk_full = 61,
    input_past_end = 62,
    permission_denied = 70,
    path_file_access = 75,
    path_not_found = 76,
};

/// Returns the platform's words for the number, in English.
constexpr std::string_view words(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::invalid_procedure_call:
        return "Invalid procedure call or argument";
    case ErrorNumber::overflow:
        return "Overflow";
    case ErrorNumber::subscript_out_of_range:
        return "Subscript out of range";
    case ErrorNumber::file_not_found:
        return "File not found";
    case ErrorNumber::disk_full:
        return "Disk full";
    case ErrorNumber::input_past_end:
        return "Input past end of file";
    case ErrorNumber::permission_denied:
        return "Permission denied";
    case ErrorNumber::path_file_access:
        return "Path/File access error";
    case ErrorNumber::path_not_found:
        return "Path not found";
    }
    return "Unknown error";
}

/// An error of the platform with the place where it happened in the user's terms: file, line,
/// province, field, and what was expected. All texts are Windows-1252 bytes.
class RunTimeError : public std::runtime_error {
  public:
    RunTimeError(ErrorNumber number, std::string place);

    ErrorNumber number() const { return number_; }
    const std::string& place() const { return place_; }

    /// Returns the same error with `outer` written before its place.
    RunTimeError within(std::string_view outer) const;

  private:
    ErrorNumber number_;
    std::string place_;
};

} // namespace data
