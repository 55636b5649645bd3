#include "data/run_time_error.h"
#include "shell/configuration.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::string record(int number) {
    return "\"ville\",\"c:\\" + std::to_string(number) + ".spr\",\"set " + std::to_string(number) +
           "\"\r\n";
}

TEST(Configuration, KeepsTwentyFourOfTwentyFiveSets) {
    std::string bytes = shell::write_configuration({}, {});
    std::string kept = bytes;
    for (int number = 1; number <= 25; ++number) {
        bytes += record(number);
        if (number <= 24)
            kept += record(number);
    }
    shell::Configuration configuration;
    gfx::GraphicsFileList sets;
    const auto receive = [&sets](const gfx::GraphicsFile& file) { sets.append(file); };
    read_configuration(bytes, configuration, receive);
    EXPECT_EQ(sets.count(), 25);
    EXPECT_EQ(write_configuration(configuration, sets), kept);
    EXPECT_THROW(read_configuration(record(26), configuration, receive), data::RunTimeError);
}

TEST(Configuration, RecordsAreThreeFieldsWhateverTheirLines) {
    shell::Configuration configuration;
    std::vector<std::string> others;
    read_configuration("gfx , c:\\a b ,0\r\n\"Lan\"\r\n\"x,y.lng\"\r\n7\r\n"
                       "\"gfx2\",\"c:\\art\",\"1.5 and more\"\r\n\"CSV3\",\"\",\"set\"\r\n",
                       configuration, [&others](const gfx::GraphicsFile& file) {
                           others.push_back(file.kind + "|" + file.path + "|" + file.set_name);
                       });
    EXPECT_EQ(configuration.graphics_folder, "c:\\a b");
    EXPECT_EQ(configuration.language_file, "x,y.lng");
    EXPECT_EQ(configuration.terrain_art_folder, "c:\\art");
    EXPECT_EQ(configuration.terrain_art_flag, 2) << "half to even";
    EXPECT_EQ(configuration.province_file_path, "c:") << "absent";
    EXPECT_EQ(others, std::vector<std::string>{"CSV3||set"});
}

} // namespace
