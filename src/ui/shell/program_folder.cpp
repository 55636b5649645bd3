#include "shell/program_folder.h"

#include "base/stored_path.h"
#include "shell/own_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace shell {

namespace {

/// A package puts this file beside the program, whose folder is the system's then.
constexpr const char* package_mark = "installed-by-package";

void give_language_files(const QString& from, const QString& folder) {
    const auto names = QDir(from).entryList({QStringLiteral("*.lng")}, QDir::Files);
    for (const auto& name : names) {
        const QString given = folder + '/' + name;
        if (!QFile::exists(given) && QFile::copy(from + '/' + name, given))
            QFile::setPermissions(given, QFile::permissions(given) | QFile::WriteOwner);
    }
}

} // namespace

std::string program_folder(const std::optional<std::string>& named) {
    if (named)
        return *named;
    const QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside).isWritable() &&
        !QFileInfo::exists(beside + '/' + QLatin1String(package_mark)))
        return base::stored_path(beside);
    std::string own = own_folder();
    give_language_files(beside, base::native_path(own));
    return own;
}

} // namespace shell
