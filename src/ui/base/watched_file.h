#pragma once

#include <QDateTime>

#include <string>

namespace base {

/// A file that was read or saved, and whether another program has changed it since.
class WatchedFile {
  public:
    WatchedFile() = default;

    /// Takes the file with that stored path as it is now.
    explicit WatchedFile(const std::string& path) { watch(path); }

    /// Takes the file with that stored path as it is now.
    void watch(const std::string& path);

    /// Returns whether the file was changed since it was taken; every change once.
    bool has_changed();

    const std::string& path() const { return path_; }

  private:
    struct State {
        qint64 size = -1; // bytes; -1 without the file
        QDateTime modified;
        friend bool operator==(const State&, const State&) = default;
    };
    State present() const;

    std::string path_;
    State state_;
};

} // namespace base
