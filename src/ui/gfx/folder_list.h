#pragma once

#include <QListWidget>

#include <string>
#include <string_view>

namespace gfx {

/// Shows where a folder lies: the chain of its ancestors from the root down, the folder itself, and
/// below it its subfolders. A double-click or Enter on one of them opens it.
class FolderList : public QListWidget {
    Q_OBJECT

  public:
    explicit FolderList(QWidget* parent);

    /// Opens the folder with that stored path; a drive alone opens the drive's current folder.
    /// Throws path not found with the path in its place.
    void open(std::string_view path);

    /// Returns the stored path of the open folder, absolute and without a separator at its end
    /// unless it is the root.
    std::string folder() const;

    /// Returns the open folder's path in the system's own form.
    const QString& native_folder() const { return folder_; }

  signals:
    /// Another folder was opened.
    void opened();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void open_native(const QString& folder);
    void open_item(const QListWidgetItem& item);
    QListWidgetItem* add(const QString& path, int depth, const QIcon& icon);

    QString folder_;
};

} // namespace gfx
