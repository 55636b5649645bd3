#include "data/run_time_error.h"
#include "map/map_image.h"
#include "support/bitmaps.h"
#include "support/folder.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using bitmaps::Format;
using data::ErrorNumber;

constexpr QRgb grey = 0xFF808080;

/// Returns the image with the high five bits of every colour, all that 16 bits hold.
QImage coarse(QImage image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, image.pixel(x, y) & 0xFFF8F8F8);
    }
    return image;
}

/// Returns the whole image as the surfaces read it.
QImage read_all(const map::MapImage& image) {
    QImage all(image.size(), QImage::Format_RGB32);
    map::MapReader(image).read(all.rect(), {}, all);
    return all;
}

std::string masks(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return bitmaps::number(red, 4) + bitmaps::number(green, 4) + bitmaps::number(blue, 4);
}

TEST(MapImage, ReadsEveryUncompressedForm) {
    const support::Folder folder;
    const Format formats[] = {
        {37, 11, 1, "", 2},
        {37, 11, 4, "", 16},
        {37, -11, 4, "", 7},
        {37, 11, 8, "", 256},
        {37, -11, 8, "", 256},
        {37, 11, 16},
        {37, -11, 16, masks(0xF800, 0x07E0, 0x001F)},
        {37, 11, 24},
        {37, -11, 24},
        {37, 11, 32},
        {37, 11, 32, masks(0xFF, 0xFF00, 0xFF0000)},
        {37, 11, 32, masks(0xFF0000, 0, 0xFF)},
        {37, 11, 24, "", 0, true},
        {37, 11, 8, "", 256, true},
    };
    for (const auto& format : formats) {
        const std::string bytes = bitmaps::noise(format);
        SCOPED_TRACE(std::to_string(format.bits_per_pixel) + " bits, " +
                     std::to_string(format.height) + " rows");
        const auto expected = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                               static_cast<int>(bytes.size()), "BMP")
                                  .convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(expected.size(), QSize(37, 11));

        const map::MapImage image(folder.write("map.bmp", bytes));
        const QImage all = read_all(image);
        if (format.bits_per_pixel == 16)
            EXPECT_EQ(coarse(all), coarse(expected));
        else
            EXPECT_EQ(all, expected);
        // A part that begins and ends inside a byte, and every third pixel of it.
        map::MapReader reader(image);
        for (const int step : {1, 3}) {
            std::vector<map::Pixel> pixels(7);
            EXPECT_TRUE(reader.read_row(4, 13, step, pixels));
            for (int i = 0; i < 7; ++i)
                EXPECT_EQ(pixels[static_cast<std::size_t>(i)], all.pixel(13 + i * step, 4));
        }
        EXPECT_EQ(map::MapReader(image).colour_at({36, 10}), all.pixel(36, 10) & 0xFFFFFF);
    }
}

TEST(MapImage, IdentifiesWithSixteenBits) {
    const support::Folder folder;
    std::string bytes = bitmaps::header({4, 1, 16});
    for (const std::uint32_t pixel : {0x4000U, 0x0200U, 0x0010U, 0x7FFFU})
        bytes += bitmaps::number(pixel, 2);
    const map::MapImage image(folder.write("map.bmp", bytes));
    const int provinces[] = {1, 2, 4, 4095};
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(map::province_of(map::MapReader(image).colour_at({x, 0}).value_or(0)),
                  provinces[x]);
}

TEST(MapImage, HasNoColourOutside) {
    const support::Folder folder;
    const map::MapImage image(folder.write("map.bmp", bitmaps::noise({5, 4, 24})));
    for (const QPoint point : {QPoint(-1, 0), QPoint(0, -1), QPoint(5, 0), QPoint(0, 4)})
        EXPECT_FALSE(map::MapReader(image).colour_at(point));
    std::vector<map::Pixel> pixels(4, 1);
    EXPECT_TRUE(map::MapReader(image).read_row(0, 3, 1, pixels));
    EXPECT_NE(pixels[1], map::no_pixel);
    EXPECT_EQ(pixels[2], map::no_pixel) << "beyond the right edge";
    EXPECT_FALSE(map::MapReader(image).read_row(4, 0, 1, pixels));
    EXPECT_EQ(pixels[0], map::no_pixel);
}

TEST(MapImage, RefusesWhatIsNoMap) {
    struct Row {
        const char* name;
        std::string bytes;
        const char* reason;
    };
    const std::string whole = bitmaps::noise({8, 8, 24});
    std::string old_header = whole;
    old_header[14] = 20;
    const auto sized = [](int width, int height) {
        return bitmaps::header({width, height, 24}) + std::string(1000, 'x');
    };
    constexpr int smallest = std::numeric_limits<int>::min();
    constexpr int largest = std::numeric_limits<int>::max();
    const Row rows[] = {
        {"empty", "", "the file is empty"},
        {"text", "Id;Name;Religion\r\n", "a bitmap or another image was expected"},
        {"text BM", "BM is how this text begins, and it goes on for some lines of text.\r\n",
         "a bitmap or another image was expected"},
        {"two letters", "BM", "ends inside the bitmap header"},
        {"half a header", whole.substr(0, 40), "ends inside the bitmap header"},
        {"header", old_header, "a bitmap header of 20 bytes"},
        {"truncated", whole.substr(0, whole.size() - 1), "needs 246 bytes, the file has 245"},
        {"width 0", sized(0, 5), "0 x 5 pixels"},
        {"height 0", sized(5, 0), "5 x 0 pixels"},
        {"width -5", sized(-5, 5), "-5 x 5 pixels"},
        {"width 2^31", sized(smallest, 5), "-2147483648 x 5 pixels"},
        {"height 2^31", sized(5, smallest), "5 x -2147483648 pixels"},
        {"promises", sized(largest, largest), "the file has 1054"},
        {"promises", sized(largest, -largest), "the file has 1054"},
        {"2 bits", bitmaps::header({5, 5, 2}) + std::string(1000, 'x'), "2 bits per pixel"},
    };
    const support::Folder folder;
    for (const auto& row : rows) {
        try {
            const map::MapImage image(folder.write("refused.bmp", row.bytes));
            ADD_FAILURE() << row.name;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), ErrorNumber::path_file_access) << row.name;
            EXPECT_NE(error.place().in_english().find(row.reason), std::string::npos)
                << error.what();
            EXPECT_NE(error.place().in_english().find("refused.bmp"), std::string::npos)
                << error.what();
        }
    }
}

TEST(MapImage, MissingPaddingOfTheLastRowIsNoLoss) {
    const support::Folder folder;
    const std::string bytes = bitmaps::noise({5, -4, 24}); // 15 bytes a row and one idle
    const map::MapImage whole(folder.write("whole.bmp", bytes));
    const map::MapImage short_one(
        folder.write("short.bmp", std::string_view(bytes).substr(0, bytes.size() - 1)));
    EXPECT_EQ(read_all(short_one), read_all(whole));
}

TEST(MapImage, FollowsItsFile) {
    const support::Folder folder;
    const auto red = bitmaps::painted(40, 30, [](int, int) { return 0xFF0000U; });
    const auto blue = bitmaps::painted(40, 30, [](int, int) { return 0x0000FFU; });
    const map::MapImage image(folder.write("map.bmp", red));
    EXPECT_EQ(read_all(image).pixel(7, 7), 0xFFFF0000);

    folder.write("new.bmp", blue);
    ASSERT_TRUE(QFile::remove(folder.native("map.bmp")));
    EXPECT_EQ(read_all(image).pixel(7, 7), grey) << "deleted";
    EXPECT_FALSE(map::MapReader(image).colour_at({7, 7}));
    ASSERT_TRUE(QFile::rename(folder.native("new.bmp"), folder.native("map.bmp")));
    EXPECT_EQ(read_all(image).pixel(7, 7), 0xFF0000FF) << "replaced";

    folder.write("map.bmp", bitmaps::noise({40, 30, 8, "", 256}));
    EXPECT_EQ(read_all(image), read_all(map::MapImage(folder.path("map.bmp")))) << "another form";

    folder.write("map.bmp", red);
    ASSERT_TRUE(QFile::resize(folder.native("map.bmp"), 54 + 10 * 120));
    const QImage shortened = read_all(map::MapImage(image));
    EXPECT_EQ(shortened.pixel(39, 9), 0xFFFF0000) << "the rows that are left";
    EXPECT_EQ(shortened.pixel(0, 10), grey) << "the others";

    folder.write("map.bmp", bitmaps::painted(41, 30, [](int, int) { return 0xFFU; }));
    EXPECT_EQ(read_all(image).pixel(7, 7), grey) << "another size";
    folder.write("map.bmp", "BM");
    EXPECT_EQ(read_all(image).pixel(7, 7), grey) << "no header";
}

} // namespace
