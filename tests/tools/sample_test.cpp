#include "data/province_file.h"
#include "data/text.h"
#include "gfx/sprite_tables.h"
#include "gfx/terrain_art.h"
#include "map/identification.h"
#include "map/stored_positions.h"
#include "sample.h"
#include "shell/configuration.h"
#include "shell/file_check.h"
#include "shell/language.h"
#include "shell/place_check.h"
#include "shell/value_check.h"
#include "support/folder.h"
#include "text_files.h"

#include <QImage>

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

namespace fs = std::filesystem;

const std::string& cell(const data::ProvinceTable& table, int province, int file_column) {
    return table.cell(province, data::table_column(data::FileColumn{file_column}));
}

/// A small sample world, made once for all tests.
class SampleWorld : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<support::Folder>();
        sample::make_sample({folder(), language_file(), {600, 300}});
        report_ = data::read_provinces(sample::read_file(folder() / "Province.csv"), provinces_);
        id_map_ = QImage(QString::fromStdString((folder() / "idmap.bmp").string()));
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static fs::path folder() { return folder_->native().toStdString(); }
    static fs::path language_file() { return fs::path(LANGUAGES_FOLDER) / "english.lng"; }
    static int province_at(int x, int y) { return map::province_of(id_map_.pixel(x, y)); }
    static bool is_land(int province) {
        return cell(provinces_, province, 14) != "5" && cell(provinces_, province, 14) != "6";
    }

    static inline std::unique_ptr<support::Folder> folder_;
    static inline data::ProvinceTable provinces_;
    static inline data::ReadReport report_;
    static inline QImage id_map_;
};

TEST_F(SampleWorld, EveryProvinceHasPixelsAndALine) {
    EXPECT_EQ(report_.provinces, data::last_province);
    ASSERT_EQ(id_map_.size(), QSize(600, 300));
    std::set<int> seen;
    for (int y = 0; y < id_map_.height(); ++y) {
        for (int x = 0; x < id_map_.width(); ++x)
            seen.insert(province_at(x, y));
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(data::last_province));
    EXPECT_EQ(*seen.begin(), 1);
    EXPECT_EQ(*seen.rbegin(), data::last_province);
}

TEST_F(SampleWorld, MapsArePixelAligned) {
    const QImage relief(QString::fromStdString((folder() / "map1.bmp").string()));
    const QImage political(QString::fromStdString((folder() / "map2.bmp").string()));
    EXPECT_EQ(relief.size(), id_map_.size());
    EXPECT_EQ(political.size(), id_map_.size());
    EXPECT_EQ(political.format(), QImage::Format_Indexed8);
    std::map<QRgb, int> sea_colours;
    int sea_pixels = 0;
    for (int y = 0; y < id_map_.height(); ++y) {
        for (int x = 0; x < id_map_.width(); ++x) {
            if (cell(provinces_, province_at(x, y), 14) == "5") {
                ++sea_colours[political.pixel(x, y)];
                ++sea_pixels;
            }
        }
    }
    // The sea has its own colour, that of its borders, and that of the coasts.
    EXPECT_EQ(sea_colours.size(), 3U);
    EXPECT_GT(sea_pixels, 600 * 300 / 2);
}

TEST_F(SampleWorld, PositionsLieInsideTheirProvinces) {
    std::map<map::Mode, int> found;
    for (const auto& mode : map::modes) {
        for (int province = 1; province <= data::last_province; ++province) {
            for (const auto& position :
                 map::positions_of(provinces_, mode.mode, map::Maps(), province)) {
                ++found[mode.mode];
                EXPECT_EQ(province_at(static_cast<int>(position.x), static_cast<int>(position.y)),
                          province);
            }
        }
    }
    int land = 0;
    for (int province = 1; province <= data::last_province; ++province)
        land += is_land(province) ? 1 : 0;
    EXPECT_EQ(found[map::Mode::ville], land);
    EXPECT_EQ(found[map::Mode::manuf], land);
    EXPECT_EQ(found[map::Mode::armees], data::last_province);
    EXPECT_GT(found[map::Mode::port], 100);
    EXPECT_GT(found[map::Mode::dessin], 100);
}

TEST_F(SampleWorld, ValuesAgreeWithEachOther) {
    for (int province = 1; province <= data::last_province; ++province) {
        const int x = std::atoi(cell(provinces_, province, 33).c_str());
        const int y = std::atoi(cell(provinces_, province, 34).c_str());
        const int sea = std::atoi(cell(provinces_, province, 37).c_str());
        const bool has_port = x >= 0;
        EXPECT_EQ(cell(provinces_, province, 3), has_port ? "coastal" : "inland");
        EXPECT_EQ(sea != 0, has_port);
        if (has_port) {
            EXPECT_EQ(cell(provinces_, sea, 14), "5");
            bool is_beside = false;
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx)
                    is_beside |=
                        id_map_.valid(x + dx, y + dy) && province_at(x + dx, y + dy) == sea;
            }
            EXPECT_TRUE(is_beside) << "province " << province;
        }
        EXPECT_EQ(cell(provinces_, province, 18),
                  cell(provinces_, province, 20) == "gold" ? "1" : "0");
        EXPECT_FALSE(cell(provinces_, province, 15) == "1" &&
                     cell(provinces_, province, 16) == "1");
    }
}

TEST_F(SampleWorld, HasNoProblem) {
    const shell::LanguageTexts language(sample::read_file(language_file()));
    const auto file = shell::check_file(sample::read_file(folder() / "Province.csv"));
    map::ProvinceIndex index;
    for (int y = 0; y < id_map_.height(); ++y) {
        std::vector<map::Pixel> row;
        for (int x = 0; x < id_map_.width(); ++x)
            row.push_back(id_map_.pixel(x, y));
        index.add_row(y, row);
    }
    const map::Maps maps;
    const shell::IdMap id_map{id_map_.width(), id_map_.height(), maps, index, province_at};
    auto problems = file.problems;
    for (const auto& found : {check_values(provinces_, language, file.lines),
                              check_places(provinces_, language, id_map, file.lines)})
        problems.insert(problems.end(), found.begin(), found.end());
    for (const auto& problem : problems)
        ADD_FAILURE() << printed_line(problem, "Province.csv", language);
}

TEST_F(SampleWorld, UsesEveryCodeOfTheLanguageFile) {
    const shell::LanguageTexts language(sample::read_file(language_file()));
    const std::map<std::string, int> columns = {
        {"RELIGION_", 4}, {"CULTURE_", 5},     {"CLIMAT_", 8},  {"TERRAIN_", 14},
        {"SERG_", 17},    {"PRODUCTION_", 20}, {"COT_", 22},    {"DC_", 23},
        {"TOL_", 28},     {"AIRE_", 50},       {"REGION_", 51}, {"CONTINENT_", 52},
    };
    for (const auto& [prefix, file_column] : columns) {
        const auto cells = provinces_.column(data::table_column(data::FileColumn{file_column}));
        const std::set<std::string> used(cells.begin(), cells.end());
        for (const auto& entry : language.list(prefix))
            EXPECT_TRUE(used.contains(entry.code)) << prefix << entry.code;
    }
    for (const int flag : {9, 10, 11, 15, 16, 21}) {
        const auto cells = provinces_.column(data::table_column(data::FileColumn{flag}));
        EXPECT_TRUE(std::set<std::string>(cells.begin(), cells.end()).contains("1")) << flag;
    }
}

TEST_F(SampleWorld, ConfigurationLoadsSpritesAndTerrainArt) {
    gfx::SpriteTables sprites;
    const auto native = [](std::string path) {
        std::replace(path.begin(), path.end(), '\\', '/');
        return path.substr(path.starts_with("c:/") && fs::path::preferred_separator == '/' ? 2 : 0);
    };
    std::string graphics_folder;
    shell::Configuration configuration;
    shell::read_configuration(sample::read_file(folder() / "config.txt"), configuration,
                              [&](const gfx::GraphicsFile& file) {
                                  sprites.read_descriptor(sample::read_file(native(file.path)),
                                                          file.kind, file.set_name,
                                                          (folder() / "gfx").string());
                              });
    for (const auto& kind : gfx::sprite_kinds) {
        ASSERT_EQ(sprites.of(kind.kind).count, kind.set_limit);
        for (int row = 0; row < kind.set_limit; ++row) {
            const auto& sprite = sprites.of(kind.kind).rows[static_cast<std::size_t>(row)];
            const QImage bitmap(QString::fromStdString(native(sprite.bitmap_path)));
            ASSERT_FALSE(bitmap.isNull()) << sprite.bitmap_path;
            EXPECT_EQ(bitmap.width() % sprite.frames, 0);
            EXPECT_LT(sprite.origin_x, bitmap.width() / sprite.frames);
            EXPECT_LT(sprite.origin_y, bitmap.height());
            EXPECT_EQ(bitmap.pixel(0, 0), qRgb(255, 0, 255)) << sprite.bitmap_path;
        }
    }
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(native(configuration.terrain_art_folder)))
        names.push_back(entry.path().filename().string());
    EXPECT_TRUE(gfx::is_complete_terrain_art(names));
    EXPECT_EQ(names.size(), 48U); // plains, too
    EXPECT_EQ(configuration.terrain_art_flag, 1);
    EXPECT_TRUE(fs::exists(native(configuration.province_file_path)));
    EXPECT_TRUE(fs::exists(folder() / configuration.language_file));
}

TEST_F(SampleWorld, IsTheSameAgainAndKeepsTheSettings) {
    const support::Folder again;
    const fs::path other = again.native().toStdString();
    sample::write_file(other / "config.txt", "mine");
    sample::make_sample({other, language_file(), {600, 300}});
    EXPECT_EQ(sample::read_file(other / "config.txt"), "mine");
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder())) {
        const fs::path relative = fs::relative(entry.path(), folder());
        if (!entry.is_regular_file() || relative == "config.txt")
            continue;
        ++files;
        EXPECT_TRUE(sample::read_file(entry.path()) == sample::read_file(other / relative))
            << relative;
    }
    EXPECT_GT(files, 70);
}

/// On a map that is larger than the grid of the world, borders are bent: positions must follow.
TEST(LargeSample, PositionsFollowTheBentBorders) {
    const support::Folder folder;
    const fs::path path = folder.native().toStdString();
    sample::make_sample({path, fs::path(LANGUAGES_FOLDER) / "english.lng", {3800, 1500}});
    data::ProvinceTable provinces;
    data::read_provinces(sample::read_file(path / "Province.csv"), provinces);
    const QImage id_map(QString::fromStdString((path / "idmap.bmp").string()));
    ASSERT_EQ(id_map.size(), QSize(3800, 1500));
    for (const auto& mode : map::modes) {
        for (int province = 1; province <= data::last_province; ++province) {
            for (const auto& position :
                 map::positions_of(provinces, mode.mode, map::Maps(), province))
                EXPECT_EQ(map::province_of(id_map.pixel(static_cast<int>(position.x),
                                                        static_cast<int>(position.y))),
                          province);
        }
    }
}

TEST(SmallSample, TooSmallAMapIsRefused) {
    const support::Folder folder;
    EXPECT_THROW(
        sample::make_sample(
            {folder.native().toStdString(), fs::path(LANGUAGES_FOLDER) / "english.lng", {60, 30}}),
        std::invalid_argument);
}

} // namespace
