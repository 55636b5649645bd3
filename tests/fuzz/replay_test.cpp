#include "targets.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

class Replay : public testing::TestWithParam<fuzz::Target> {};

/// Returns the file's bytes without one behind them, so that reading too far is seen.
std::vector<char> bytes_of(const fs::path& path) {
    std::vector<char> bytes(fs::file_size(path));
    std::ifstream(path, std::ios::binary)
        .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

TEST_P(Replay, CorpusHasNoFinding) {
    int inputs = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(CORPUS_FOLDER) / GetParam().name)) {
        std::cout << "input " << entry.path() << std::endl; // a finding ends the process
        const auto bytes = bytes_of(entry.path());
        GetParam().run({bytes.data(), bytes.size()});
        ++inputs;
    }
    EXPECT_GT(inputs, 0);
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Replay, testing::ValuesIn(fuzz::targets),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Replay, EveryFolderOfTheCorpusHasItsTarget) {
    for (const auto& entry : fs::directory_iterator(CORPUS_FOLDER)) {
        const std::string name = entry.path().filename().string();
        EXPECT_TRUE(std::ranges::any_of(fuzz::targets, [&](const fuzz::Target& target) {
            return target.name == name;
        })) << name;
    }
}

} // namespace
