#pragma once

#include "base/files.h"
#include "base/stored_path.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace support {

/// A folder of files that lives as long as the test.
class Folder {
  public:
    /// Returns the native path of a name in the folder; that of the folder itself without one.
    QString native(const QString& name = {}) const { return folder_.filePath(name); }
    /// Returns the stored path of the same.
    std::string path(const QString& name = {}) const { return base::stored_path(native(name)); }

    /// Returns the stored path of the file that now has the bytes; its folders are made.
    std::string write(const QString& name, std::string_view bytes = {}) const {
        QFile file(native(name));
        QDir().mkpath(QFileInfo(file).path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << file.fileName().toStdString();
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        return path(name);
    }
    void make_folder(const QString& name) const { EXPECT_TRUE(QDir(native()).mkpath(name)); }

    bool has(const QString& name) const { return QFileInfo::exists(native(name)); }
    std::string read(const QString& name) const { return base::read_file(path(name)); }

    /// Returns the names of all that is in the folder.
    QStringList names() const {
        return QDir(native()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

  private:
    QTemporaryDir folder_;
};

} // namespace support
