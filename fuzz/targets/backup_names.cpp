#include "shell/backup_names.h"

#include "targets.h"

#include <algorithm>
#include <map>
#include <set>

/// A file name on each line, as a folder may hold them.
void fuzz::backup_names(std::string_view bytes) {
    std::set<std::string> folder;
    while (!bytes.empty()) {
        const auto name = bytes.substr(0, bytes.find('\n'));
        folder.emplace(name);
        bytes.remove_prefix(std::min(name.size() + 1, bytes.size()));
    }
    const std::vector<std::string> names(folder.begin(), folder.end());
    std::map<std::string, std::size_t> backups;
    for (const auto& name : names) {
        shell::BackupName backup;
        if (shell::read_backup_name(name, backup))
            ++backups[backup.file];
    }
    for (const auto& [file, count] : backups) {
        const auto superfluous = shell::superfluous_backups(names, file, "20260131-170559");
        assert(count - superfluous.size() >= std::min(count, shell::newest_backups));
        for (const auto& name : superfluous)
            assert(folder.erase(name) == 1); // no other file goes, and none twice
    }
}
