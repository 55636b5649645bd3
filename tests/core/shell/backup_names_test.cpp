#include "shell/backup_names.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using shell::backup_name;
using Names = std::vector<std::string>;

TEST(BackupNames, AreReadAsTheyAreMade) {
    shell::BackupName backup;
    for (const int number : {1, 2, 13}) {
        ASSERT_TRUE(read_backup_name(backup_name("a-b.csv", "20260131-170559", number), backup));
        EXPECT_EQ(backup.file + " " + backup.time, "a-b.csv 20260131-170559");
        EXPECT_EQ(backup.number, number);
    }
    for (const char* other : {"", "a.csv", "-20260131-170559", "a.csv-2026013-170559",
                              "a.csv-20260131-170559-", "a.csv-20260131-170559-x"})
        EXPECT_FALSE(read_backup_name(other, backup)) << other;
}

TEST(BackupNames, TheNewestAndTheFirstOfEachDayStay) {
    Names names = {"b.csv-20260101-000000", "a.csv", backup_name("a.csv", "20270101-000000", 1),
                   backup_name("a.csv", "20270101-000001", 1)};
    for (int day = 1; day <= 31; ++day) {
        const std::string date = "202601" + std::string(day < 10 ? "0" : "") + std::to_string(day);
        for (const char* time : {"-080000", "-090000", "-100000"})
            names.push_back(backup_name("a.csv", date + time, 1));
        names.push_back(backup_name("a.csv", date + "-100000", 2));
    }
    const auto gone = shell::superfluous_backups(names, "a.csv", "20260131-235959");
    // 31 days x 4 and two from the future; the newest 20 are the last five days. Of the 26 days
    // before, the first of the month lies 30 days back.
    EXPECT_EQ(gone.size(), 1U + 4U + 25U * 3U);
    const auto is_gone = [&](const std::string& name) {
        return std::find(gone.begin(), gone.end(), name) != gone.end();
    };
    EXPECT_TRUE(is_gone("a.csv-20270101-000001"));
    EXPECT_FALSE(is_gone("a.csv-20270101-000000")) << "the clock may have jumped back";
    EXPECT_TRUE(is_gone("a.csv-20260101-080000"));
    EXPECT_FALSE(is_gone("a.csv-20260102-080000"));
    EXPECT_TRUE(is_gone("a.csv-20260126-100000-2"));
    EXPECT_FALSE(is_gone("a.csv-20260127-090000"));
}

} // namespace
