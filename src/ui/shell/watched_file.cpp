#include "shell/watched_file.h"

#include "base/stored_path.h"

#include <QFileInfo>

#include <utility>

namespace shell {

WatchedFile::State WatchedFile::present() const {
    const QFileInfo file(base::native_path(path_));
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

} // namespace shell
