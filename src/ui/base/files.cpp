#include "base/files.h"

#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace base {

namespace {

using data::ErrorNumber;
using data::RunTimeError;

[[noreturn]] void fail(ErrorNumber number, const QString& path, const QString& reason) {
    throw RunTimeError(number, to_bytes(QDir::toNativeSeparators(path) + ": " + reason));
}

/// Throws what an access to the path fails with before the file itself is opened.
void check_place(const QString& path) {
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        fail(ErrorNumber::path_file_access, path, QStringLiteral("a file was expected here"));
    if (!file.absoluteDir().exists())
        fail(ErrorNumber::path_not_found, path, QStringLiteral("the folder does not exist"));
}

ErrorNumber number_of(const QFileDevice& file) {
    switch (file.error()) {
    case QFileDevice::ResourceError:
        return ErrorNumber::disk_full;
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError:
        return ErrorNumber::permission_denied;
    default:
        return ErrorNumber::path_file_access;
    }
}

} // namespace

std::string read_file(std::string_view path, std::size_t at_most) {
    const QString native = native_path(path);
    check_place(native);
    if (!QFileInfo::exists(native))
        fail(ErrorNumber::file_not_found, native, QStringLiteral("there is no such file"));
    QFile file(native);
    if (!file.open(QIODevice::ReadOnly))
        fail(number_of(file), native, file.errorString());
    std::string bytes(std::min(static_cast<std::size_t>(file.size()), at_most), '\0');
    const qint64 read = file.read(bytes.data(), static_cast<qint64>(bytes.size()));
    if (read < 0)
        fail(number_of(file), native, file.errorString());
    bytes.resize(static_cast<std::size_t>(read));
    return bytes;
}

void replace_file(std::string_view path, std::string_view bytes) {
    const QString native = native_path(path);
    check_place(native);
    QSaveFile file(native);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(number_of(file), native, file.errorString());
    while (!bytes.empty()) {
        // A disk that fills up takes a part without an error; the next part then fails.
        const qint64 written = file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (written <= 0)
            fail(number_of(file), native, file.errorString());
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    if (!file.commit())
        fail(number_of(file), native, file.errorString());
}

std::string shown_path(std::string_view path) {
    return to_bytes(QDir::toNativeSeparators(native_path(path)));
}

} // namespace base
