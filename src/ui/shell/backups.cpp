#include "shell/backups.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "shell/backup_names.h"
#include "shell/own_folder.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace shell {

namespace {

std::string backups_in(const std::string& folder) {
    return base::in_folder(folder, "backups");
}

std::vector<std::string> names_in(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& name : QDir(base::native_path(folder)).entryList(QDir::Files, QDir::Name))
        names.push_back(base::path_bytes(name));
    return names;
}

void write_backup(const std::string& program_folder, const std::string& name,
                  const std::string& time, const std::string& bytes) {
    const std::string folder = backups_in(program_folder);
    if (!QDir().mkpath(base::native_path(folder)))
        throw data::RunTimeError(data::ErrorNumber::path_file_access,
                                 data::Phrase(Text::reason_folder_not_made))
            .within(base::shown_path(folder));
    for (int number = 1;
         !base::create_file(base::in_folder(folder, backup_name(name, time, number)), bytes);)
        ++number;
    for (const auto& old : superfluous_backups(names_in(folder), name, time))
        QFile::remove(base::native_path(base::in_folder(folder, old)));
}

} // namespace

void back_up(const Session& session, std::string_view path) {
    const QFileInfo file(base::native_path(path));
    if (!file.exists())
        return;
    const std::string name = base::path_bytes(file.fileName());
    const std::string time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")).toStdString();
    const std::string bytes = base::read_file(path);
    try {
        write_backup(session.program_folder, name, time, bytes);
    } catch (const data::RunTimeError&) {
        write_backup(own_folder(), name, time, bytes);
    }
}

std::vector<std::string> backups(const Session& session) {
    std::vector<std::string> folders = {session.program_folder};
    try {
        folders.push_back(own_folder());
    } catch (const data::RunTimeError&) {
        // No backup can be there.
    }
    std::vector<std::string> paths;
    for (const auto& folder : folders) {
        const std::string inside = backups_in(folder);
        for (const auto& name : names_in(inside)) {
            BackupName backup;
            if (read_backup_name(name, backup))
                paths.push_back(base::in_folder(inside, name));
        }
    }
    return paths;
}

} // namespace shell
