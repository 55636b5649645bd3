#include "shell/recovery_copies.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/province_file.h"
#include "data/run_time_error.h"
#include "editor/selection.h"
#include "shell/own_folder.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace shell {

namespace {

QString copy_name(int number) {
    return number == 0 ? QStringLiteral("recovered.csv")
                       : QStringLiteral("recovered-%1.csv").arg(number);
}

/// Returns the lock by which a running program holds its copy.
std::unique_ptr<QLockFile> lock_of(const std::string& copy) {
    auto lock = std::make_unique<QLockFile>(base::native_path(copy) + QStringLiteral(".lock"));
    lock->setStaleLockTime(0); // stale once its program is gone, however long that runs
    return lock;
}

/// A lock that can be read and names no program holds nothing: a power cut can leave an empty one,
/// and no program would ever take it away.
bool is_held(const std::string& copy) {
    const auto lock = lock_of(copy);
    return !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError &&
           (lock->getLockInfo(nullptr, nullptr, nullptr) ||
            !QFileInfo(lock->fileName()).isReadable());
}

/// Writes the bytes under the first free name of the folder and returns its stored path; `lock`,
/// where wanted, then holds the copy.
std::string write_new(const std::string& folder, const std::string& bytes,
                      std::unique_ptr<QLockFile>* lock) {
    const QStringList taken =
        QDir(base::native_path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (int number = 0;; ++number) {
        const QString name = copy_name(number);
        if (taken.contains(name, Qt::CaseInsensitive))
            continue;
        std::string path = base::in_folder(folder, name.toStdString());
        auto own_lock = lock_of(path);
        if (!own_lock->tryLock(0) && own_lock->error() == QLockFile::LockFailedError)
            continue;
        if (!base::create_file(path, bytes))
            continue;
        if (lock)
            *lock = std::move(own_lock);
        return path;
    }
}

/// Does the same in the program's folder, or in the user's own where that cannot be written.
std::string write_new_copy(const Session& session, const std::string& bytes,
                           std::unique_ptr<QLockFile>* lock) {
    try {
        return write_new(session.program_folder, bytes, lock);
    } catch (const data::RunTimeError&) {
        return write_new(own_folder(), bytes, lock);
    }
}

} // namespace

RecoveryCopies::State RecoveryCopies::present() const {
    return {session_.provinces.version(), typed_texts_ ? typed_texts_() : decltype(State::typed)()};
}

std::string RecoveryCopies::bytes_of(const State& state) const {
    if (state.typed.empty())
        return data::write_provinces(session_.provinces);
    data::ProvinceTable table = session_.provinces;
    for (const auto& typed : state.typed)
        editor::changement(table, session_.selection, typed.text, typed.field);
    return data::write_provinces(table);
}

bool RecoveryCopies::has_something(const State& state) const {
    const auto changes_a_cell = [this](const editor::TypedText& typed) {
        const auto cells = session_.provinces.column(data::table_column(typed.field));
        const auto selected = session_.selection.provinces();
        return std::any_of(selected.begin(), selected.end(), [&](int province) {
            return cells[static_cast<std::size_t>(province)] != typed.text;
        });
    };
    return session_.provinces.has_unsaved_changes() ||
           std::any_of(state.typed.begin(), state.typed.end(), changes_a_cell);
}

bool RecoveryCopies::is_behind() const {
    const State now = present();
    return now != written_ && (has_something(now) || !own_.empty());
}

void RecoveryCopies::update() {
    State now = present();
    if (now == written_)
        return;
    if (has_something(now))
        write_own(bytes_of(now));
    else
        remove_own();
    written_ = std::move(now);
}

void RecoveryCopies::write_own(const std::string& bytes) {
    if (!own_.empty()) {
        if (bytes == own_bytes_)
            return; // a text that was typed is entered now
        try {
            base::replace_file(own_, bytes, base::Written::by_system);
            own_bytes_ = bytes;
            return;
        } catch (const data::RunTimeError&) {
            // Its folder is gone or full. Another one may have room.
        }
    }
    std::unique_ptr<QLockFile> lock;
    std::string path = write_new_copy(session_, bytes, &lock);
    remove_own();
    own_ = std::move(path);
    own_bytes_ = bytes;
    lock_ = std::move(lock);
}

void RecoveryCopies::keep_another() {
    update();
    if (const State now = present(); has_something(now))
        write_new_copy(session_, bytes_of(now), nullptr);
}

void RecoveryCopies::remove_own() {
    if (!own_.empty())
        QFile::remove(base::native_path(own_));
    let_go();
}

void RecoveryCopies::let_go() {
    own_.clear();
    own_bytes_.clear();
    lock_.reset();
    written_ = {};
}

std::vector<std::string> recovery_copies(const Session& session) {
    static const QRegularExpression name_of_a_copy(
        QRegularExpression::anchoredPattern(QStringLiteral("recovered(-[0-9]+)?\\.csv")));
    std::vector<std::string> folders = {session.program_folder};
    try {
        folders.push_back(own_folder());
    } catch (const data::RunTimeError&) {
        // No copy can be there.
    }
    std::vector<std::string> copies;
    for (const auto& folder : folders) {
        const QStringList names =
            QDir(base::native_path(folder)).entryList(QDir::Files, QDir::Name);
        for (const auto& name : names) {
            std::string path = base::in_folder(folder, name.toStdString());
            if (name_of_a_copy.match(name).hasMatch() && !is_held(path))
                copies.push_back(std::move(path));
        }
    }
    return copies;
}

} // namespace shell
