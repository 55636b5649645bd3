#include "shell/backup_names.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <set>
#include <tuple>

namespace shell {

namespace {

constexpr std::size_t time_size = 15; // YYYYMMDD-HHMMSS
constexpr std::size_t day_size = 8;

bool is_digits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

int number_in(std::string_view digits) {
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

bool is_time(std::string_view text) {
    return text.size() == time_size && text[day_size] == '-' &&
           is_digits(text.substr(0, day_size)) && is_digits(text.substr(day_size + 1));
}

std::chrono::sys_days day_of(std::string_view time) {
    using namespace std::chrono;
    return year_month_day(year(number_in(time.substr(0, 4))),
                          month(static_cast<unsigned>(number_in(time.substr(4, 2)))),
                          day(static_cast<unsigned>(number_in(time.substr(6, 2)))));
}

} // namespace

std::string backup_name(std::string_view file, std::string_view time, int number) {
    std::string name = std::string(file).append("-").append(time);
    return number == 1 ? name : name + "-" + std::to_string(number);
}

bool read_backup_name(std::string_view name, BackupName& backup) {
    const auto whole = name;
    backup.number = 1;
    const auto last = name.rfind('-');
    if (last != std::string_view::npos && last > time_size &&
        is_time(name.substr(last - time_size, time_size)) && is_digits(name.substr(last + 1))) {
        backup.number = number_in(name.substr(last + 1));
        name = name.substr(0, last);
    }
    if (name.size() < time_size + 2 || name[name.size() - time_size - 1] != '-' ||
        !is_time(name.substr(name.size() - time_size)))
        return false;
    backup.time = name.substr(name.size() - time_size);
    backup.file = name.substr(0, name.size() - time_size - 1);
    // Another spelling of the number ("-007") is a file of the user's.
    return backup_name(backup.file, backup.time, backup.number) == whole;
}

std::vector<std::string> superfluous_backups(std::span<const std::string> names,
                                             std::string_view file, std::string_view now) {
    std::vector<BackupName> backups;
    for (const auto& name : names) {
        BackupName backup;
        if (read_backup_name(name, backup) && backup.file == file)
            backups.push_back(std::move(backup));
    }
    const auto age = [now](const BackupName& backup) {
        return std::tuple(backup.time <= now, backup.time, backup.number);
    };
    std::sort(backups.begin(), backups.end(), [&](const BackupName& left, const BackupName& right) {
        return age(left) < age(right);
    });

    const auto first_day = day_of(now) - std::chrono::days(days_of_backups - 1);
    const std::size_t old = backups.size() - std::min(backups.size(), newest_backups);
    std::set<std::string> days_kept;
    std::vector<std::string> superfluous;
    for (std::size_t n = 0; n < old; ++n) {
        const BackupName& backup = backups[n];
        if (day_of(backup.time) < first_day ||
            !days_kept.insert(backup.time.substr(0, day_size)).second)
            superfluous.push_back(backup_name(backup.file, backup.time, backup.number));
    }
    return superfluous;
}

} // namespace shell
