#include "data/run_time_error.h"
#include "map/decode_image.h"
#include "map/map_image.h"
#include "support/bitmaps.h"
#include "support/folder.h"

#include <QImage>

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
#include <fstream>
#include <sys/resource.h>
#endif

namespace {

/// Returns the place of the error that opening the map leads to.
std::string problem_of(const std::string& path) {
    try {
        const map::MapImage image(path);
    } catch (const data::RunTimeError& error) {
        EXPECT_EQ(error.number(), data::ErrorNumber::path_file_access);
        return error.place().in_english();
    }
    return "none";
}

/// Returns the beginning of a PNG file that promises the size.
std::string png_header(std::uint32_t width, std::uint32_t height) {
    const auto big_endian = [](std::uint32_t number) {
        std::string text = bitmaps::number(number, 4);
        return std::string(text.rbegin(), text.rend());
    };
    const std::string chunk =
        "IHDR" + big_endian(width) + big_endian(height) + std::string("\x08\0\0\0\0", 5);
    std::uint32_t check = 0xFFFFFFFF;
    for (const char byte : chunk) {
        check ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            check = check >> 1 ^ (check & 1 ? 0xEDB88320 : 0);
    }
    return "\x89PNG\r\n\x1A\n" + big_endian(13) + chunk + big_endian(~check) + big_endian(0) +
           "IDAT";
}

TEST(DecodeImage, ImageThatMemoryCannotHoldIsAnError) {
    const support::Folder folder;
    const std::string problem = problem_of(folder.write("huge.png", png_header(60000, 60000)));
    EXPECT_NE(problem.find("huge.png: an image of 60000 x 60000 pixels takes 13732 MB"),
              std::string::npos)
        << problem;
    EXPECT_NE(problem_of(folder.write("cut.png", png_header(60, 60))).find("image was expected"),
              std::string::npos);
}

TEST(DecodeImage, EightBitsStayEightBits) {
    const support::Folder folder;
    QImage grey(30, 20, QImage::Format_Grayscale8);
    QImage indexed(30, 20, QImage::Format_Indexed8);
    QImage two(30, 20, QImage::Format_Mono);
    indexed.setColorTable({0xFF102030, 0x80AA5511}); // the second is half transparent
    two.setColorTable({0xFF102030, 0xFFAA5511});
    for (const auto& [image, seen] :
         {std::pair{&grey, 0x070707U}, {&indexed, 0xAA5511U}, {&two, 0xAA5511U}}) {
        image->fill(image == &grey ? 7 : 0);
        if (image != &grey)
            image->setPixel(29, 19, 1);
        ASSERT_TRUE(image->save(folder.native("map.png"), "PNG"));
        EXPECT_EQ(map::decode_image(folder.path("map.png")).depth(), 8);
        const map::MapImage map(folder.path("map.png"));
        EXPECT_EQ(map::MapReader(map).colour_at({29, 19}), seen);
        std::vector<map::Pixel> pixels(4);
        EXPECT_TRUE(map::MapReader(map).read_row(19, 20, 3, pixels));
        EXPECT_EQ(pixels[3], 0xFF000000U | seen);
        EXPECT_EQ(pixels[2], image == &grey ? 0xFF070707U : 0xFF102030U);
    }
}

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
TEST(DecodeImage, NoMemoryForTheConversionIsAnError) {
    const support::Folder folder;
    QImage drawing(4000, 4000, QImage::Format_Grayscale16); // 32 MB as it is, 64 MB with 32 bits
    drawing.fill(1);
    ASSERT_TRUE(drawing.save(folder.native("map.png"), "PNG"));
    EXPECT_EQ(problem_of(folder.path("map.png")), "none");

    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &before), 0);
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlimit narrow{pages * 4096 + (rlim_t{50} << 20), before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_AS, &narrow), 0);
    const std::string problem = problem_of(folder.path("map.png"));
    ASSERT_EQ(setrlimit(RLIMIT_AS, &before), 0);
    EXPECT_NE(problem.find("4000 x 4000 pixels take more memory than there is"), std::string::npos)
        << problem;
}
#endif

TEST(DecodeImage, RunLengthBitmapThatIsCutShortIsAnError) {
    const support::Folder folder;
    std::string bytes = bitmaps::header({4, 3, 8, "", 256});
    bytes.replace(30, 4, bitmaps::number(1, 4));
    bytes += std::string("\4\1\0\0\4\2\0\0\4\3", 10);
    const map::MapImage whole(folder.write("map.bmp", bytes));
    const map::Colour bottom = map::MapReader(whole).colour_at({0, 2}).value_or(0);
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(bytes)).pixel(0, 2) & 0xFFFFFF, bottom);
    bytes.resize(bytes.size() - 1);
    const std::string problem = problem_of(folder.write("map.bmp", bytes));
    EXPECT_NE(problem.find("map.bmp: the run-length pixels end in row 3"), std::string::npos)
        << problem;
}

} // namespace
