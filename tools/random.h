#pragma once

#include <cstddef>
#include <cstdint>

namespace sample {

/// Returns the number with its bits thoroughly mixed; the same for the same number everywhere.
constexpr std::uint64_t mixed(std::uint64_t number) {
    number += 0x9E3779B97F4A7C15U;
    number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9U;
    number = (number ^ (number >> 27U)) * 0x94D049BB133111EBU;
    return number ^ (number >> 31U);
}

/// Random numbers that are the same on every system: the standard distributions are not.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(mixed(seed)) {}

    std::uint64_t next() { return mixed(state_ += 0x9E3779B97F4A7C15U); }

    /// Returns a number from 0 to `count` - 1; `count` is 1 or more.
    int below(int count) { return static_cast<int>(next() % static_cast<std::uint64_t>(count)); }

    /// Returns a number from `lowest` to `highest`.
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }

    /// Returns whether something of that probability, in percent, happens.
    bool chance(int percent) { return below(100) < percent; }

    /// Returns an element of the container, which is not empty.
    template <class Container>
    const auto& pick(const Container& container) {
        return container[static_cast<std::size_t>(below(static_cast<int>(container.size())))];
    }

  private:
    std::uint64_t state_;
};

} // namespace sample
