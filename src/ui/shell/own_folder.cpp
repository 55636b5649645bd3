#include "shell/own_folder.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace shell {

namespace {

bool is_the_users_alone(const QString& folder) {
#ifdef Q_OS_UNIX
    const QFileInfo information(folder);
    return information.ownerId() == ::geteuid() &&
           !(information.permissions() & (QFile::WriteGroup | QFile::WriteOther));
#else
    return QFileInfo(folder).isDir();
#endif
}

} // namespace

std::string own_folder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    std::string path = base::stored_path(folder);
    if (!QFileInfo(folder).isDir()) {
        if (folder.isEmpty() || !QDir().mkpath(folder))
            throw data::RunTimeError(data::ErrorNumber::path_file_access,
                                     data::Phrase(data::Text::reason_folder_not_made))
                .within(base::shown_path(path));
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    if (!is_the_users_alone(folder))
        throw data::RunTimeError(data::ErrorNumber::permission_denied,
                                 data::Phrase(data::Text::reason_folder_not_own))
            .within(base::shown_path(path));
    return path;
}

} // namespace shell
