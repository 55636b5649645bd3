#pragma once

#include "map/maps.h"

#include <QByteArray>
#include <QList>
#include <QSettings>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace shell {

struct Session;

/// What one run leaves to the next besides config.txt: the window, the files that were used last,
/// and which recovery copies the user was told of. It is in settings.ini of the program's folder.
/// None of it is needed: where that file cannot be read or written the program goes on without. A
/// run that nobody attends leaves it alone. Paths are stored paths.
class Settings {
  public:
    explicit Settings(const Session& session);

    /// Returns what QWidget::saveGeometry() returned at the last run's end; empty before.
    QByteArray geometry() const;
    /// Returns the panel's page of the last run, counted from 0.
    int page() const;
    void keep_window(const QByteArray& geometry, int page);

    /// Returns the province files that were read or saved, the last one first.
    std::vector<std::string> recent_files() const;
    void add_file(const std::string& path);
    void forget_file(const std::string& path);

    /// Returns the maps that were opened together, the last ones first.
    std::vector<map::Maps> recent_maps() const;
    void add_maps(const map::Maps& maps);
    void forget_maps(const map::Maps& maps);

    /// Returns those of the present copies that are new since the last call, be it in an earlier
    /// run.
    std::vector<std::string> new_copies(const std::vector<std::string>& present);

  private:
    /// A list of the file is a list of these; the parts of an entry are texts.
    using Entry = QStringList;

    QList<Entry> entries(const char* list) const;
    void set_entries(const char* list, const QList<Entry>& entries);
    void put_first(const char* list, const Entry& entry);
    void remove(const char* list, const Entry& entry);

    std::unique_ptr<QSettings> file_; // none in a run that nobody attends
};

} // namespace shell
