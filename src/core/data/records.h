#pragma once

#include <string>
#include <string_view>

namespace data {

/// Reads a file of comma-separated fields, the form of config.txt and of the language files:
/// commas and line ends separate fields, a text in double quotes may hold commas, blanks around an
/// unquoted field are dropped, empty lines between two records are passed over.
class RecordReader {
  public:
    /// Passes over a byte order mark. Throws invalid procedure call for a file in UTF-16.
    explicit RecordReader(std::string_view bytes);

    /// Returns whether no further record begins.
    bool at_end();

    /// Returns the next field. Throws input past end of file, or invalid procedure call for a quote
    /// that its line does not close; both with the line in their place.
    std::string next();

    /// Returns the number of the line, from 1, on which the last field began.
    int line() const { return field_line_; }

  private:
    void drop(std::size_t count);
    void drop_blanks();
    void drop_separator();

    std::string_view rest_;
    int line_ = 1;
    int field_line_ = 1;
};

/// Returns the text in double quotes. The form cannot hold a quote or a line end inside a text, so
/// those are left out.
std::string quoted(std::string_view text);

} // namespace data
