#include "base/files.h"

#include "base/new_file.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace base {

namespace {

using data::ErrorNumber;
using data::Phrase;
using data::RunTimeError;
using data::Text;

[[noreturn]] void throw_error(ErrorNumber number, const QString& path, const Phrase& reason) {
    throw RunTimeError(number, reason).within(path_bytes(QDir::toNativeSeparators(path)));
}

/// Throws what an access to the path fails with before the file itself is opened.
void check_place(const QString& path) {
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        throw_error(ErrorNumber::path_file_access, path, Text::reason_not_a_file);
    if (!file.absoluteDir().exists())
        throw_error(ErrorNumber::path_not_found, path, Text::reason_no_folder);
}

/// Returns where the last of a chain of links leads, be there a file or not.
QString link_target(QString path) {
    constexpr int most_links = 40; // as many as the system follows
    for (int link = 0; link < most_links && QFileInfo(path).isSymLink(); ++link)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

} // namespace

std::string read_file(std::string_view path, std::size_t at_most) {
    const QString native = native_path(path);
    check_place(native);
    if (!QFileInfo::exists(native))
        throw_error(ErrorNumber::file_not_found, native, Text::reason_no_file);
    QFile file(native);
    if (!file.open(QIODevice::ReadOnly))
        throw_error(ErrorNumber::permission_denied, native, path_bytes(file.errorString()));
    const auto wanted = std::min(static_cast<std::size_t>(file.size()), at_most);
    // An empty file is asked for a byte, too: an error of the disk looks like the end until then.
    std::string bytes(std::max<std::size_t>(wanted, 1), '\0');
    std::size_t count = 0;
    for (qint64 got = 1; got > 0 && count < bytes.size();) {
        got = file.read(bytes.data() + count, static_cast<qint64>(bytes.size() - count));
        count += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
    if (file.error() != QFileDevice::NoError || count < wanted)
        throw_error(ErrorNumber::path_file_access, native,
                    {Text::reason_not_whole, count, wanted, path_bytes(file.errorString())});
    bytes.resize(wanted);
    return bytes;
}

void replace_file(std::string_view path, std::string_view bytes, Written written) {
    const QString native = link_target(native_path(path));
    check_place(native);
    NewFile file(native);
    file.write(bytes);
    file.take_owner_of(native);
    if (written == Written::on_disk)
        file.sync();
    file.replace(native);
    if (written == Written::on_disk)
        NewFile::sync_folder_of(native);
}

bool create_file(std::string_view path, std::string_view bytes) {
    const QString native = native_path(path);
    const QFileInfo there(native);
    if (there.exists() || there.isSymLink())
        return false;
    check_place(native);
    NewFile file(native);
    file.write(bytes);
    return file.take_free_name(native);
}

std::string shown_path(std::string_view path) {
    return path_bytes(QDir::toNativeSeparators(native_path(path)));
}

} // namespace base
