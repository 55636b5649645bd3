#include "base/new_file.h"

#include "base/stored_path.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace base {

namespace {

using data::ErrorNumber;

ErrorNumber number_of(const std::error_code& error) {
    if (error == std::errc::no_space_on_device || error.value() == EDQUOT)
        return ErrorNumber::disk_full;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return ErrorNumber::permission_denied;
    return ErrorNumber::path_file_access;
}

[[noreturn]] void throw_error(const QString& path, const std::error_code& error) {
    throw data::RunTimeError(number_of(error),
                             data::Phrase(path_bytes(QString::fromLocal8Bit(error.message()))))
        .within(path_bytes(QDir::toNativeSeparators(path)));
}

std::filesystem::path system_path(const QString& path) {
    return path.toStdU16String();
}

} // namespace

NewFile::NewFile(const QString& target) : target_(target) {
    constexpr int most_tries = 100;
    const QDir folder = QFileInfo(target).absoluteDir();
    for (int n = 0; n < most_tries && !file_.isOpen(); ++n) {
        // Short whatever the target's name: the longest names have no room for an ending.
        file_.setFileName(folder.filePath(
            QStringLiteral(".new-%1.tmp").arg(QRandomGenerator::global()->generate64(), 0, 36)));
        errno = 0;
        file_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                   QFile::ReadOwner | QFile::WriteOwner);
        if (!file_.isOpen() && errno != EEXIST)
            break;
    }
    if (!file_.isOpen()) {
        file_.setFileName(QString());
        throw_last_error();
    }
}

NewFile::~NewFile() {
    file_.close();
    if (!file_.fileName().isEmpty())
        file_.remove();
}

void NewFile::throw_last_error() {
    const int reason = errno != 0 ? errno : EIO;
    throw_error(target_, {reason, std::generic_category()});
}

void NewFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        // A disk that fills up takes a part without an error; the next part then fails.
        errno = 0;
        const qint64 written = file_.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (written <= 0)
            throw_last_error();
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void NewFile::take_owner_of([[maybe_unused]] const QString& present) {
#ifdef Q_OS_UNIX
    struct stat information {};
    if (::stat(QFile::encodeName(present).constData(), &information) != 0) {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        information.st_mode = 0666 & ~mask;
    } else if (::fchown(file_.handle(), information.st_uid, information.st_gid) != 0) {
        // Nobody may give files away but the superuser; the group alone may still be possible.
        [[maybe_unused]] const int ignored =
            ::fchown(file_.handle(), static_cast<uid_t>(-1), information.st_gid);
    }
    if (::fchmod(file_.handle(), information.st_mode & 07777) != 0)
        throw_last_error();
#endif
}

void NewFile::sync() {
#ifdef Q_OS_UNIX
    if (::fsync(file_.handle()) != 0)
        throw_last_error();
#endif
}

void NewFile::close() {
    errno = 0;
    file_.close();
    if (file_.error() != QFileDevice::NoError)
        throw_last_error();
}

void NewFile::replace(const QString& target) {
    close();
    std::error_code error;
    std::filesystem::rename(system_path(file_.fileName()), system_path(target), error);
    if (error)
        throw_error(target, error);
    file_.setFileName(QString());
}

bool NewFile::take_free_name(const QString& target) {
    close();
    std::error_code error;
    // A second name never replaces a file, whoever else wants the name at the same moment.
    std::filesystem::create_hard_link(system_path(file_.fileName()), system_path(target), error);
    if (!error)
        return true;
    if (error == std::errc::file_exists)
        return false;
    // Some disks know no second names. Theirs are taken by an empty file.
    QFile reserved(target);
    if (!reserved.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    reserved.close();
    replace(target);
    return true;
}

void NewFile::sync_folder_of([[maybe_unused]] const QString& path) {
#ifdef Q_OS_UNIX
    const auto folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int handle = ::open(folder.constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
#endif
}

} // namespace base
