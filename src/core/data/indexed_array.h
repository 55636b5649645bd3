#pragma once

#include <array>
#include <cstddef>
#include <type_traits>

namespace data {

/// Returns where an enumerator stands in an array of one value for each of them.
template <typename Enumeration>
requires(std::is_enum_v<Enumeration>) constexpr std::size_t position_of(Enumeration enumerator) {
    return static_cast<std::size_t>(enumerator);
}

/// An array that only its own kind of index reaches; `position_of` turns the index into a place.
template <typename Index, typename Value, std::size_t count>
class IndexedArray {
  public:
    /// Returns the value. Throws std::out_of_range for an index that the array does not have.
    constexpr Value& operator[](Index index) { return values.at(position_of(index)); }
    constexpr const Value& operator[](Index index) const { return values.at(position_of(index)); }

    static constexpr std::size_t size() { return count; }
    constexpr auto begin() { return values.begin(); }
    constexpr auto end() { return values.end(); }
    constexpr auto begin() const { return values.begin(); }
    constexpr auto end() const { return values.end(); }

    std::array<Value, count> values; // in the order of the indices
};

} // namespace data
