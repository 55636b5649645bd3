#include "shell/recovery.h"

#include "data/province_file.h"
#include "data/run_time_error.h"
#include "shell/files.h"
#include "shell/stored_path.h"

#include <QDir>

namespace shell {

std::optional<std::string> write_recovery_copy(Session& session) {
    if (!session.provinces.has_unsaved_changes())
        return std::nullopt;
    constexpr auto name = "recovered.csv";
    const std::string bytes = data::write_provinces(session.provinces);
    std::string path = in_folder(session.program_folder, name);
    try {
        replace_file(path, bytes);
    } catch (const data::RunTimeError&) {
        path = in_folder(stored_path(QDir::tempPath()), name);
        replace_file(path, bytes);
    }
    session.provinces.mark_saved();
    return shown_path(path);
}

} // namespace shell
