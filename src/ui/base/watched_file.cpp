#include "base/watched_file.h"

#include "base/stored_path.h"

#include <QFileInfo>

#include <utility>

namespace base {

WatchedFile::State WatchedFile::present() const {
    const QFileInfo file(native_path(path_));
    if (!file.exists())
        return {};
    return {file.size(), file.lastModified()};
}

void WatchedFile::watch(const std::string& path) {
    path_ = path;
    state_ = present();
}

bool WatchedFile::has_changed() {
    if (path_.empty())
        return false;
    const State before = std::exchange(state_, present());
    return before != state_;
}

} // namespace base
