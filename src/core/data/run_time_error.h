#pragma once

#include "data/place.h"

#include <stdexcept>
#include <string>

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

/// An error of the platform with the place where it happened in the user's terms: file, line,
/// province, field, and what was expected. All texts are Windows-1252 bytes.
class RunTimeError : public std::runtime_error {
  public:
    RunTimeError(ErrorNumber number, Place place);

    ErrorNumber number() const { return number_; }
    const Place& place() const { return place_; }

    /// Returns the platform's words for the number.
    Text words() const;

    /// Returns the number, the platform's words for it and the place on the next line; `what` is
    /// the same in English.
    std::string in(const Dictionary& dictionary) const;

    /// Returns the same error with `outer` written before its place.
    RunTimeError within(Phrase outer) const;

  private:
    ErrorNumber number_;
    Place place_;
};

} // namespace data
