#include "data/province_file.h"
#include "gfx/sprite_tables.h"
#include "gfx/terrain_art.h"
#include "map/identification.h"
#include "map_writer.h"
#include "positions.h"
#include "sample.h"
#include "shell/configuration.h"
#include "shell/file_check.h"
#include "shell/language.h"
#include "shell/place_check.h"
#include "shell/value_check.h"
#include "support/folder.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QImage>

#include <gtest/gtest.h>
#include <set>

namespace {

namespace column = data::column;

constexpr sample::Size small_map = {300, 150};

void make_small_sample(const support::Folder& folder) {
    sample::make_sample({folder.native().toStdString(), LANGUAGES_FOLDER, small_map});
}

QImage picture(const support::Folder& folder, const char* name) {
    return QImage(folder.native(name));
}

int province_at(const QImage& id_map, int x, int y) {
    return id_map.valid(x, y) ? map::province_of(id_map.pixel(x, y)) : 0;
}

/// A small sample world, made once for all tests.
class SampleWorld : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<support::Folder>();
        make_small_sample(*folder_);
        const auto report = data::read_provinces(folder_->read("Province.csv"), provinces_);
        EXPECT_EQ(report.provinces, data::last_province);
        id_map_ = picture(*folder_, "idmap.bmp");
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static std::string cell(int province, data::FileColumn column) {
        return provinces_.cell(province, data::table_column(column));
    }
    static bool is_sea(int province) { return cell(province, column::terrain) == "5"; }

    static inline std::unique_ptr<support::Folder> folder_;
    static inline data::ProvinceTable provinces_;
    static inline QImage id_map_;
};

TEST_F(SampleWorld, MapsShowEveryProvinceAtTheSamePixels) {
    const QImage political = picture(*folder_, "map2.bmp");
    ASSERT_EQ(id_map_.size(), QSize(small_map.width, small_map.height));
    ASSERT_EQ(political.size(), id_map_.size());
    EXPECT_EQ(picture(*folder_, "map1.bmp").size(), id_map_.size());
    std::set<int> sea_colours;
    for (int y = 0; y < id_map_.height(); ++y) {
        for (int x = 0; x < id_map_.width(); ++x) {
            const int province = province_at(id_map_, x, y);
            if (is_sea(province))
                sea_colours.insert(political.pixelIndex(x, y));
        }
    }
    EXPECT_EQ(sea_colours, (std::set<int>{0, 1, 3})); // with its borders and the coasts
}

TEST_F(SampleWorld, ValuesAgreeWithEachOther) {
    for (int province = 1; province <= data::last_province; ++province) {
        SCOPED_TRACE(province);
        const int x = std::stoi(cell(province, column::port_x));
        const int y = std::stoi(cell(province, column::port_y));
        const int sea = std::stoi(cell(province, column::port_sea));
        const bool has_port = x >= 0;
        EXPECT_EQ(cell(province, column::coast), has_port ? "coastal" : "inland");
        EXPECT_EQ(sea != 0, has_port);
        if (has_port) {
            EXPECT_TRUE(is_sea(sea));
            EXPECT_TRUE(
                province_at(id_map_, x - 1, y) == sea || province_at(id_map_, x + 1, y) == sea ||
                province_at(id_map_, x, y - 1) == sea || province_at(id_map_, x, y + 1) == sea);
        }
        EXPECT_FALSE(cell(province, column::treaty_spain) == "1" &&
                     cell(province, column::treaty_portugal) == "1");
        EXPECT_EQ(cell(province, column::city_x) != "-1", cell(province, column::terrain) < "5");
    }
}

TEST_F(SampleWorld, HasNoProblem) {
    const shell::LanguageTexts language(folder_->read("english.lng"));
    const auto file = shell::check_file(folder_->read("Province.csv"));
    map::ProvinceIndex index;
    for (int y = 0; y < id_map_.height(); ++y) {
        std::vector<map::Pixel> row;
        for (int x = 0; x < id_map_.width(); ++x)
            row.push_back(id_map_.pixel(x, y));
        index.add_row(y, row);
    }
    const map::Maps maps;
    const shell::IdMap id_map{id_map_.width(), id_map_.height(), maps, index,
                              [](int x, int y) { return province_at(id_map_, x, y); }};
    auto problems = file.problems;
    for (const auto& found : {check_values(provinces_, language, file.lines),
                              check_places(provinces_, language, id_map, file.lines)})
        problems.insert(problems.end(), found.begin(), found.end());
    for (const auto& problem : problems)
        ADD_FAILURE() << printed_line(problem, "Province.csv", language);
}

TEST_F(SampleWorld, ConfigurationLoadsSpritesAndTerrainArt) {
    gfx::SpriteTables sprites;
    shell::Configuration configuration;
    shell::read_configuration(
        folder_->read("config.txt"), configuration, [&](const gfx::GraphicsFile& set) {
            sprites.read_descriptor(base::read_file(set.path), set.kind, set.set_name,
                                    configuration.graphics_folder);
        });
    for (const auto& kind : gfx::sprite_kinds) {
        ASSERT_EQ(sprites.of(kind.kind).count, kind.set_limit);
        for (int row = 0; row < kind.set_limit; ++row) {
            const auto& sprite = sprites.of(kind.kind).rows[static_cast<std::size_t>(row)];
            const QImage bitmap(base::native_path(sprite.bitmap_path));
            ASSERT_FALSE(bitmap.isNull()) << sprite.bitmap_path;
            EXPECT_EQ(bitmap.pixel(0, 0), qRgb(255, 0, 255)) << sprite.bitmap_path;
            EXPECT_EQ(sprite.frames, 1);
            EXPECT_NE(bitmap.pixel(sprite.origin_x, sprite.origin_y - 5), bitmap.pixel(0, 0))
                << sprite.bitmap_path << ": nothing stands at the origin";
        }
    }
    std::vector<std::string> art;
    const QDir art_folder(base::native_path(configuration.terrain_art_folder));
    for (const QString& name : art_folder.entryList(QDir::Files))
        art.push_back(name.toStdString());
    EXPECT_TRUE(gfx::is_complete_terrain_art(art));
    EXPECT_EQ(art.size(), 48U); // plains, too
    EXPECT_EQ(configuration.terrain_art_flag, 1);
    EXPECT_EQ(base::read_file(configuration.province_file_path), folder_->read("Province.csv"));
}

/// Compilers and systems differ in the order of a call's arguments, in sorting and in arithmetic.
/// Who changes the world on purpose writes down the new number.
TEST_F(SampleWorld, IsTheSameOnEveryMachine) {
    QStringList names;
    QDirIterator files(folder_->native(), {"*.bmp", "*.csv", "*.spr"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names += files.next();
    names.sort();
    EXPECT_EQ(names.size(), 76);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString& name : names)
        hash.addData(QByteArray::fromStdString(base::read_file(name.toStdString())));
    EXPECT_EQ(hash.result().toHex().toStdString(), "503d329d408780da605acc111bb7120e6e64b821");
}

TEST(SmallSample, KeepsTheSettingsOfTheFolder) {
    const support::Folder folder;
    folder.write("config.txt", "mine");
    make_small_sample(folder);
    EXPECT_EQ(folder.read("config.txt"), "mine");
}

TEST(EnlargedSample, PositionsAndPixelsBelongTogether) {
    const support::Folder folder;
    const sample::World world = sample::make_world(small_map);
    const sample::Size pixels = {1070, 490};
    sample::write_maps(world, pixels, folder.native().toStdString());
    const QImage id_map = picture(folder, "idmap.bmp");
    ASSERT_EQ(id_map.size(), QSize(pixels.width, pixels.height));
    const auto positions = sample::make_positions(world, pixels);
    for (int province = 1; province <= data::last_province; ++province) {
        const auto& own = positions[static_cast<std::size_t>(province)];
        EXPECT_EQ(province_at(id_map, own.army.x, own.army.y), province);
        EXPECT_EQ(province_at(id_map, own.port.x, own.port.y), own.sea == 0 ? 0 : province);
    }
}

TEST(SmallSample, TooSmallAMapIsRefused) {
    const support::Folder folder;
    EXPECT_THROW(sample::make_sample({folder.native().toStdString(), LANGUAGES_FOLDER, {60, 30}}),
                 std::invalid_argument);
}

} // namespace
