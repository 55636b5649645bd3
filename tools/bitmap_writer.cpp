#include "bitmap_writer.h"

#include <vector>

namespace sample {

namespace {

constexpr std::uint32_t header_bytes = 54;
constexpr std::uint32_t palette_colours = 256;

void append(std::vector<std::uint8_t>& bytes, std::uint32_t number, int count) {
    for (int byte = 0; byte < count; ++byte, number >>= 8U)
        bytes.push_back(static_cast<std::uint8_t>(number));
}

} // namespace

BitmapWriter::BitmapWriter(const std::filesystem::path& path, Size pixels,
                           std::span<const Colour> palette)
    : row_bytes_((static_cast<std::size_t>(pixels.width) * (palette.empty() ? 3 : 1) + 3) / 4 * 4) {
    file_.exceptions(std::ios::failbit | std::ios::badbit);
    file_.open(path, std::ios::binary | std::ios::trunc);

    const std::uint32_t colours = palette.empty() ? 0 : palette_colours;
    const std::uint32_t start = header_bytes + colours * 4;
    const auto image =
        static_cast<std::uint32_t>(row_bytes_) * static_cast<std::uint32_t>(pixels.height);
    std::vector<std::uint8_t> header = {'B', 'M'};
    append(header, start + image, 4);
    append(header, 0, 4);
    append(header, start, 4);
    append(header, 40, 4);
    append(header, static_cast<std::uint32_t>(pixels.width), 4);
    append(header, static_cast<std::uint32_t>(pixels.height), 4);
    append(header, 1, 2);
    append(header, palette.empty() ? 24 : 8, 2);
    append(header, 0, 4); // not compressed
    append(header, image, 4);
    append(header, 2835, 4); // 72 pixels per inch
    append(header, 2835, 4);
    append(header, colours, 4);
    append(header, 0, 4);
    for (std::size_t index = 0; index < colours; ++index) {
        const Colour colour = index < palette.size() ? palette[index] : Colour{};
        header.insert(header.end(), {colour.blue, colour.green, colour.red, 0});
    }
    write_rows(header);
}

void BitmapWriter::write_rows(std::span<const std::uint8_t> bytes) {
    file_.write(reinterpret_cast<const char*>(bytes.data()),
                static_cast<std::streamsize>(bytes.size()));
}

} // namespace sample
