#include "map/bitmap_header.h"

#include "map/image_error.h"
#include "map/little_endian.h"

namespace map {

namespace {

constexpr std::size_t file_header_size = 14;
constexpr std::size_t core_header_size = 12; // the oldest header, with 16-bit sizes
constexpr std::size_t info_header_size = 40; // longer ones begin alike and hold the masks, too
constexpr std::size_t masks_size = 12;

void set_size(BitmapHeader& header, std::int64_t width, std::int64_t height) {
    constexpr std::int64_t largest = 0x7FFFFFFF;
    if (width < 1 || height == 0 || height < -largest)
        throw image_error(data::Text::reason_image_size, width, height);
    header.width = static_cast<int>(width);
    header.height = static_cast<int>(height < 0 ? -height : height);
    header.top_down = height < 0;
}

/// Returns where the pixels begin: where the file says, or behind header, masks and palette when
/// it names a byte of the header, as files do that leave the number 0.
std::uint64_t pixels_begin(const BitmapHeader& header, std::uint32_t named) {
    if (named >= header.palette_begin)
        return named;
    std::uint64_t colours = header.colours;
    if (colours == 0 && header.bits_per_pixel <= 8)
        colours = std::uint64_t{1} << header.bits_per_pixel;
    return header.palette_begin + colours * header.palette_step;
}

void read_core_header(std::span<const char> head, BitmapHeader& header) {
    set_size(header, read_16(head, 18), read_16(head, 20));
    header.bits_per_pixel = read_16(head, 24);
    header.palette_begin = file_header_size + core_header_size;
    header.palette_step = 3;
}

void read_info_header(std::span<const char> head, BitmapHeader& header) {
    set_size(header, read_signed_32(head, 18), read_signed_32(head, 22));
    header.bits_per_pixel = read_16(head, 28);
    header.compression = static_cast<Compression>(read_32(head, 30));
    header.colours = read_32(head, 46);
    header.masks_begin = file_header_size + info_header_size;
    header.palette_begin = file_header_size + header.size;
    if (header.size == info_header_size && header.compression == Compression::bit_fields)
        header.palette_begin += masks_size;
    header.palette_step = 4;
}

} // namespace

bool is_bitmap(std::span<const char> head) {
    return head.size() >= 2 && head[0] == 'B' && head[1] == 'M';
}

BitmapHeader read_bitmap_header(std::span<const char> head) {
    const auto expect_bytes = [&](std::size_t count) {
        if (head.size() < count)
            throw image_error(data::Text::reason_header_ends);
    };
    expect_bytes(file_header_size + core_header_size);
    BitmapHeader header;
    header.size = read_32(head, file_header_size);
    if (header.size == core_header_size) {
        read_core_header(head, header);
    } else if (header.size >= info_header_size) {
        expect_bytes(file_header_size + info_header_size);
        read_info_header(head, header);
    } else {
        throw image_error(data::Text::reason_header_size, header.size);
    }
    header.pixels_begin = pixels_begin(header, read_32(head, 10));
    return header;
}

} // namespace map
