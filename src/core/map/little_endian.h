#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

/// Numbers whose lowest byte comes first; all their bytes must be there.
namespace map {

inline std::uint32_t byte_at(std::span<const char> bytes, std::size_t position) {
    return static_cast<unsigned char>(bytes[position]);
}

inline std::uint32_t read_16(std::span<const char> bytes, std::size_t position) {
    return byte_at(bytes, position) | byte_at(bytes, position + 1) << 8;
}

inline std::uint32_t read_24(std::span<const char> bytes, std::size_t position) {
    return read_16(bytes, position) | byte_at(bytes, position + 2) << 16;
}

inline std::uint32_t read_32(std::span<const char> bytes, std::size_t position) {
    if constexpr (std::endian::native == std::endian::little) { // maps are read with it
        std::uint32_t number = 0;
        std::memcpy(&number, &bytes[position], sizeof number);
        return number;
    } else {
        return read_24(bytes, position) | byte_at(bytes, position + 3) << 24;
    }
}

inline std::int32_t read_signed_32(std::span<const char> bytes, std::size_t position) {
    return static_cast<std::int32_t>(read_32(bytes, position));
}

} // namespace map
