#include "shell/recovery.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/province_file.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <exception>

namespace shell {

namespace {

std::string replace_copy(const std::string& folder, const std::string& bytes) {
    std::string path = base::in_folder(folder, "recovered.csv");
    const QString old = base::native_path(base::in_folder(folder, "recovered-old.csv"));
    if (QFileInfo::exists(base::native_path(path))) {
        QFile::remove(old);
        QFile::rename(base::native_path(path), old);
    }
    base::replace_file(path, bytes);
    return path;
}

} // namespace

std::string write_recovery_copy(Session& session) {
    if (!session.provinces.has_unsaved_changes())
        return {};
    const std::string bytes = data::write_provinces(session.provinces);
    std::string path;
    try {
        path = replace_copy(session.program_folder, bytes);
    } catch (const data::RunTimeError&) {
        path = replace_copy(base::stored_path(QDir::tempPath()), bytes);
    }
    session.provinces.mark_saved();
    return "The unsaved changes are in " + base::shown_path(path);
}

std::string recover(Session& session) {
    try {
        return write_recovery_copy(session);
    } catch (const std::exception& error) {
        return std::string("The unsaved changes could not be written: ") + error.what();
    }
}

} // namespace shell
