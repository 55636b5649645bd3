#pragma once

#include <QFile>
#include <QString>

#include <string_view>

namespace base {

/// A file that is written beside the one that it becomes, under a name that nobody else takes; what
/// never became one is removed. Every function throws disk full, permission denied or path/file
/// access error with the file that it was to become.
class NewFile {
  public:
    /// Makes an empty file, for the owner only, in the folder of the system's path `target`.
    explicit NewFile(const QString& target);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void write(std::string_view bytes);

    /// Gives it the permissions and, where the system lets it, the owner and the group of the
    /// present file; those of any new file where there is none.
    void take_owner_of(const QString& present);

    /// Returns once the disk has all bytes.
    void sync();

    /// Becomes the target in one step, in the place of a file that may be there.
    void replace(const QString& target);

    /// Becomes the target, or returns false where something of that name is there.
    bool take_free_name(const QString& target);

    /// Returns once the disk knows the folder's names; a system that cannot tell is trusted.
    static void sync_folder_of(const QString& path);

  private:
    [[noreturn]] void throw_last_error();
    void close();

    QString target_; // the system's path
    QFile file_;
};

} // namespace base
