#include "shell/settings.h"

#include "base/stored_path.h"
#include "shell/session.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace shell {

namespace {

constexpr int most_recent = 8;
constexpr const char* file_name = "settings.ini";

// Keys of the file; a list's entries are numbered below its key.
constexpr const char* geometry_key = "window/geometry";
constexpr const char* page_key = "window/page";
constexpr const char* files = "files";
constexpr const char* map_sets = "maps";
constexpr const char* copies = "copies";

QString key_of(const char* list, int number) {
    return QStringLiteral("%1/%2").arg(QLatin1String(list)).arg(number);
}

/// Returns the path in a form in which the same file has the same path whatever the current folder.
QString absolute(const std::string& path) {
    return path.empty() ? QString()
                        : QDir::cleanPath(QFileInfo(base::native_path(path)).absoluteFilePath());
}

std::string stored(const QString& path) {
    return path.isEmpty() ? std::string() : base::stored_path(path);
}

QStringList entry_of(const map::Maps& maps) {
    constexpr int all_digits = 17;
    return {absolute(maps.map_1_path), absolute(maps.map_2_path), absolute(maps.id_map_path),
            QString::number(maps.x_offset, 'g', all_digits), QString::number(maps.y_offset)};
}

map::Maps maps_of(const QStringList& entry) {
    return {stored(entry[0]), stored(entry[1]), stored(entry[2]), entry[3].toDouble(),
            entry[4].toShort()};
}

} // namespace

Settings::Settings(const Session& session) {
    if (!session.unattended)
        file_ = std::make_unique<QSettings>(base::native_path(session.program_folder) + '/' +
                                                QLatin1String(file_name),
                                            QSettings::IniFormat);
}

QByteArray Settings::geometry() const {
    return file_ ? file_->value(QLatin1String(geometry_key)).toByteArray() : QByteArray();
}

int Settings::page() const {
    return file_ ? file_->value(QLatin1String(page_key)).toInt() : 0;
}

void Settings::keep_window(const QByteArray& geometry, int page) {
    if (!file_)
        return;
    file_->setValue(QLatin1String(geometry_key), geometry);
    file_->setValue(QLatin1String(page_key), page);
    file_->sync();
}

std::vector<std::string> Settings::recent_files() const {
    std::vector<std::string> paths;
    for (const auto& entry : entries(files)) {
        if (entry.size() == 1 && !entry[0].isEmpty())
            paths.push_back(stored(entry[0]));
    }
    return paths;
}

void Settings::add_file(const std::string& path) {
    put_first(files, {absolute(path)});
}

void Settings::forget_file(const std::string& path) {
    remove(files, {absolute(path)});
}

std::vector<map::Maps> Settings::recent_maps() const {
    std::vector<map::Maps> sets;
    for (const auto& entry : entries(map_sets)) {
        if (entry.size() == entry_of({}).size())
            sets.push_back(maps_of(entry));
    }
    return sets;
}

void Settings::add_maps(const map::Maps& maps) {
    put_first(map_sets, entry_of(maps));
}

void Settings::forget_maps(const map::Maps& maps) {
    remove(map_sets, entry_of(maps));
}

std::vector<std::string> Settings::new_copies(const std::vector<std::string>& present) {
    const auto told = entries(copies);
    QList<Entry> now;
    std::vector<std::string> unknown;
    for (const auto& path : present) {
        // Another copy may have taken the name of one that was told of.
        const auto time = QFileInfo(base::native_path(path)).lastModified();
        now += Entry{absolute(path), time.toUTC().toString(Qt::ISODateWithMs)};
        if (!told.contains(now.last()))
            unknown.push_back(path);
    }
    set_entries(copies, now);
    return unknown;
}

QList<Settings::Entry> Settings::entries(const char* list) const {
    QList<Entry> found;
    for (int number = 1; file_ && file_->contains(key_of(list, number)); ++number)
        found += file_->value(key_of(list, number)).toStringList();
    return found;
}

void Settings::set_entries(const char* list, const QList<Entry>& entries) {
    if (!file_)
        return;
    file_->remove(QLatin1String(list));
    for (int number = 1; number <= entries.size(); ++number)
        file_->setValue(key_of(list, number), entries[number - 1]);
    file_->sync(); // whatever ends the program
}

void Settings::put_first(const char* list, const Entry& entry) {
    if (file_)
        file_->sync(); // another program may have added to it
    auto present = entries(list);
    present.removeAll(entry);
    present.prepend(entry);
    set_entries(list, present.mid(0, most_recent));
}

void Settings::remove(const char* list, const Entry& entry) {
    auto present = entries(list);
    present.removeAll(entry);
    set_entries(list, present);
}

} // namespace shell
