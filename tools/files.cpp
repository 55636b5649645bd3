#include "files.h"

#include <array>
#include <fstream>
#include <stdexcept>
#include <string>

namespace sample {

namespace {

constexpr std::size_t header_bytes = 54;
constexpr std::size_t palette_colours = 256;

template <class Write>
void create(const std::filesystem::path& path, Write write) {
    std::ofstream file(path, std::ios::binary);
    write(file);
    file.close();
    if (!file)
        throw std::runtime_error(path.string() + " cannot be written");
}

std::array<char, 3> in_file(Colour colour) {
    return {static_cast<char>(colour.blue), static_cast<char>(colour.green),
            static_cast<char>(colour.red)};
}

std::array<char, 1> in_file(std::uint8_t index) {
    return {static_cast<char>(index)};
}

void append(std::string& bytes, std::size_t number, int count) {
    for (int byte = 0; byte < count; ++byte, number >>= 8U)
        bytes += static_cast<char>(number);
}

/// Returns all that stands before the pixels. A row takes `row_bytes` in the file.
std::string header(Size pixels, std::size_t row_bytes, std::span<const Colour> palette) {
    const std::size_t colours = palette.empty() ? 0 : palette_colours;
    const std::size_t start = header_bytes + colours * 4;
    const std::size_t image = row_bytes * static_cast<std::size_t>(pixels.height);
    std::string bytes = "BM";
    append(bytes, start + image, 4);
    append(bytes, 0, 4);
    append(bytes, start, 4);
    append(bytes, 40, 4);
    append(bytes, static_cast<std::size_t>(pixels.width), 4);
    append(bytes, static_cast<std::size_t>(pixels.height), 4);
    append(bytes, 1, 2);
    append(bytes, palette.empty() ? 24 : 8, 2);
    append(bytes, 0, 4); // not compressed
    append(bytes, image, 4);
    append(bytes, 2835, 4); // 72 pixels per inch
    append(bytes, 2835, 4);
    append(bytes, colours, 4);
    append(bytes, 0, 4);
    for (const Colour colour : palette) {
        const auto channels = in_file(colour);
        bytes.append(channels.data(), channels.size()) += '\0';
    }
    bytes.resize(start);
    return bytes;
}

/// Row by row, so that a map of any size needs no memory.
template <class Pixel>
void write_enlarged(const std::filesystem::path& path, const Grid<Pixel>& picture, Size pixels,
                    std::span<const Colour> palette) {
    const std::size_t pixel_bytes = in_file(Pixel()).size();
    const std::size_t row_bytes =
        (static_cast<std::size_t>(pixels.width) * pixel_bytes + 3) / 4 * 4;
    create(path, [&](std::ofstream& file) {
        file << header(pixels, row_bytes, palette);
        std::string bytes;
        int row_of_bytes = -1;
        for (int y = pixels.height - 1; y >= 0; --y) { // the bottom row comes first
            const int row = at_same_place(y, pixels.height, picture.size.height);
            if (row != row_of_bytes) {
                bytes.clear();
                for (int x = 0; x < pixels.width; ++x) {
                    const int column = at_same_place(x, pixels.width, picture.size.width);
                    const auto pixel = in_file(picture[row * picture.size.width + column]);
                    bytes.append(pixel.data(), pixel.size());
                }
                bytes.resize(row_bytes);
                row_of_bytes = row;
            }
            file << bytes;
        }
    });
}

} // namespace

void write_file(const std::filesystem::path& path, std::string_view bytes) {
    create(path, [&](std::ofstream& file) { file << bytes; });
}

void write_bitmap(const std::filesystem::path& path, const Grid<Colour>& picture, Size pixels) {
    write_enlarged(path, picture, pixels, {});
}

void write_bitmap(const std::filesystem::path& path, const Grid<std::uint8_t>& picture, Size pixels,
                  std::span<const Colour> palette) {
    write_enlarged(path, picture, pixels, palette);
}

} // namespace sample
