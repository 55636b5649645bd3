#include "map/bitmap_file.h"

#include "map/bitmap_header.h"
#include "map/image_error.h"
#include "map/little_endian.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace map {

namespace {

constexpr Pixel opaque = 0xFF000000;

void check_has_pixels(const BitmapLayout& layout, std::uint64_t file_size) {
    const auto last_row = static_cast<std::uint64_t>(layout.height) - 1;
    const auto bytes_of_last = // its padding may be missing
        (static_cast<std::uint64_t>(layout.width) * layout.bits_per_pixel + 7) / 8;
    const auto bytes_of_rows = last_row * layout.bytes_per_row + bytes_of_last;
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    const auto needed = bytes_of_rows + std::min(layout.pixels_begin, most - bytes_of_rows);
    if (needed > file_size)
        throw image_error(data::Text::reason_too_few_bytes, layout.width, layout.height,
                          layout.bits_per_pixel, needed, file_size);
}

std::vector<Pixel> read_palette(std::span<const char> head, const BitmapHeader& header) {
    const auto possible = std::size_t{1} << header.bits_per_pixel;
    const auto given =
        header.colours == 0 ? possible : std::min<std::size_t>(header.colours, possible);
    std::vector<Pixel> palette(possible, opaque);
    for (std::size_t i = 0; i < given; ++i) {
        const auto position = header.palette_begin + i * header.palette_step;
        if (position + 3 > head.size())
            break;
        palette[i] = opaque | read_24(head, position);
    }
    return palette;
}

constexpr std::array<Channel, 3> channels_of_16_bits = {{{10, 5}, {5, 5}, {0, 5}}};
constexpr std::array<Channel, 3> channels_of_32_bits = {{{16, 8}, {8, 8}, {0, 8}}};

/// Returns the channels that the header's masks name; nothing for a mask with holes in it.
std::optional<std::array<Channel, 3>> read_channels(std::span<const char> head,
                                                    std::size_t position) {
    std::array<Channel, 3> channels;
    for (Channel& channel : channels) {
        if (position + 4 > head.size())
            throw image_error(data::Text::reason_header_ends);
        const std::uint32_t mask = read_32(head, position);
        if (mask == 0)
            return {};
        channel.shift = static_cast<unsigned>(std::countr_zero(mask));
        channel.bits = static_cast<unsigned>(std::countr_one(mask >> channel.shift));
        if (std::popcount(mask) != static_cast<int>(channel.bits))
            return {};
        position += 4;
    }
    return channels;
}

/// Returns the channel's value within the pixel in eight bits. Low bits that it lacks are 0, since
/// identification would take others for a part of the identifier.
std::uint32_t channel_value(std::uint32_t pixel, Channel channel) {
    const std::uint32_t value = pixel >> channel.shift;
    if (channel.bits >= 8)
        return value >> (channel.bits - 8) & 0xFF;
    return value << (8 - channel.bits) & 0xFF;
}

Pixel from_channels(std::uint32_t pixel, const std::array<Channel, 3>& channels) {
    return opaque | channel_value(pixel, channels[0]) << 16 |
           channel_value(pixel, channels[1]) << 8 | channel_value(pixel, channels[2]);
}

/// Fills `pixels` with what `pixel_at` returns for the positions 0, step, 2 step, and so on.
template <class PixelAt>
void fill(std::span<Pixel> pixels, std::size_t first, std::size_t step, PixelAt pixel_at) {
    for (std::size_t position = first; Pixel & pixel : pixels) {
        pixel = pixel_at(position);
        position += step;
    }
}

} // namespace

std::optional<BitmapLayout> read_bitmap_layout(std::string_view head_bytes,
                                               std::uint64_t file_size) {
    const std::span<const char> head(head_bytes);
    if (!is_bitmap(head))
        return {};
    const BitmapHeader header = read_bitmap_header(head);
    if (header.compression != Compression::none && header.compression != Compression::bit_fields)
        return {};

    BitmapLayout layout;
    layout.width = header.width;
    layout.height = header.height;
    layout.bits_per_pixel = header.bits_per_pixel;
    layout.top_down = header.top_down;
    layout.pixels_begin = header.pixels_begin;
    layout.bytes_per_row =
        (static_cast<std::uint64_t>(layout.width) * layout.bits_per_pixel + 31) / 32 * 4;

    switch (layout.bits_per_pixel) {
    case 1:
    case 4:
    case 8:
        layout.palette = read_palette(head, header);
        break;
    case 16:
        layout.channels = channels_of_16_bits;
        break;
    case 24:
        break;
    case 32:
        layout.channels = channels_of_32_bits;
        break;
    default:
        throw image_error(data::Text::reason_bits, layout.bits_per_pixel);
    }
    if (header.compression == Compression::bit_fields) {
        if (layout.bits_per_pixel != 16 && layout.bits_per_pixel != 32)
            return {};
        const auto channels = read_channels(head, header.masks_begin);
        if (!channels)
            return {};
        layout.channels = *channels;
    }
    check_has_pixels(layout, file_size);
    return layout;
}

FilePart part_of_row(const BitmapLayout& layout, int y, int first_x, int last_x) {
    const auto row = static_cast<std::uint64_t>(layout.top_down ? y : layout.height - 1 - y);
    const auto first_byte = static_cast<std::uint64_t>(first_x) * layout.bits_per_pixel / 8;
    const auto end = (static_cast<std::uint64_t>(last_x) + 1) * layout.bits_per_pixel;
    return {layout.pixels_begin + row * layout.bytes_per_row + first_byte,
            static_cast<std::size_t>((end + 7) / 8 - first_byte)};
}

void decode_pixels(const BitmapLayout& layout, std::span<const char> bytes, int first_x, int step,
                   std::span<Pixel> pixels) {
    const auto stride = static_cast<std::size_t>(step);
    if (layout.bits_per_pixel <= 8) {
        const unsigned bits = layout.bits_per_pixel;
        const std::size_t per_byte = 8 / bits;
        const std::uint32_t mask = (1U << bits) - 1;
        const std::span<const Pixel> palette(layout.palette);
        fill(pixels, static_cast<std::size_t>(first_x) % per_byte, stride, [=](std::size_t at) {
            const auto shift = (per_byte - 1 - at % per_byte) * bits;
            return palette[byte_at(bytes, at / per_byte) >> shift & mask];
        });
    } else if (layout.bits_per_pixel == 24) {
        if (pixels.empty())
            return;
        // A byte too many is read at once with the others, and lost in what makes it opaque.
        fill(pixels.first(pixels.size() - 1), 0, 3 * stride,
             [=](std::size_t at) { return opaque | read_32(bytes, at); });
        pixels.back() = opaque | read_24(bytes, 3 * stride * (pixels.size() - 1));
    } else if (layout.bits_per_pixel == 16) {
        fill(pixels, 0, 2 * stride,
             [&](std::size_t at) { return from_channels(read_16(bytes, at), layout.channels); });
    } else {
        fill(pixels, 0, 4 * stride,
             [&](std::size_t at) { return from_channels(read_32(bytes, at), layout.channels); });
    }
}

} // namespace map
