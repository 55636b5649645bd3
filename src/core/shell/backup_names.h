#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Backups are named after their file and the time of their making: "Province.csv-20260131-170559",
/// with "-2", "-3" and so on behind a name that was taken.
namespace shell {

/// How many of a file's backups stay whatever their age, and for how many days each day's first one
/// stays, today among them.
inline constexpr std::size_t newest_backups = 20;
inline constexpr int days_of_backups = 30;

/// Returns the name of the file's backup; `time` has the form YYYYMMDD-HHMMSS, the first of several
/// names is number 1.
std::string backup_name(std::string_view file, std::string_view time, int number);

/// What a backup's name tells.
struct BackupName {
    std::string file;
    std::string time; // YYYYMMDD-HHMMSS
    int number = 1;
};

/// Returns whether the name is a backup's, and what it tells.
bool read_backup_name(std::string_view name, BackupName& backup);

/// Returns those of the names that are backups of the file and need not stay. Backups later than
/// `now` (YYYYMMDD-HHMMSS) count as the oldest, but the first of each day stays, too: the clock was
/// wrong when they were made, or is wrong now.
std::vector<std::string> superfluous_backups(std::span<const std::string> names,
                                             std::string_view file, std::string_view now);

} // namespace shell
