#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace gfx {

/// A descriptor file that was loaded: what to load again at the next start.
struct GraphicsFile {
    std::string kind;
    std::string path;
    std::string set_name;
};

/// The loaded descriptor files, in the order of their loading.
class GraphicsFileList {
  public:
    static constexpr std::size_t capacity = 25;
    static constexpr std::size_t saved_records = 24;

    /// Appends a record. Throws subscript out of range when no record is free.
    void append(GraphicsFile file);

    /// Takes the records of that set name out, one of two neighbours only. The count falls by one
    /// whether or not a record matches.
    void remove(std::string_view set_name);

    /// Returns the number of records in use.
    std::int16_t count() const { return count_; }

    /// Returns the records that the configuration file keeps: those before the first empty one.
    std::span<const GraphicsFile> saved() const;

  private:
    std::array<GraphicsFile, capacity> files_;
    std::int16_t count_ = 0;
};

} // namespace gfx
