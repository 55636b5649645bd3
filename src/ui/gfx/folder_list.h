#pragma once

#include "gfx/choice_list.h"

#include <string>
#include <string_view>

namespace gfx {

/// Shows where a folder lies: the chain of its ancestors from the root down, the folder itself, and
/// below it its subfolders, the hidden ones last. A double-click or Enter on one of them opens it.
class FolderList : public ChoiceList {
    Q_OBJECT

  public:
    explicit FolderList(QWidget* parent);

    /// Opens the folder with that stored path; a drive alone opens the drive's current folder.
    /// Throws path not found with the path in its place.
    void open(std::string_view path);

    /// Opens the folder that is highlighted. Returns false when it is gone; what is left of its
    /// path is open then.
    bool open_highlighted();

    /// Returns whether the open folder is still there; when it is gone, what is left of its path is
    /// open then.
    bool is_still_there();

    /// Returns the stored path of the open folder, absolute and without a separator at its end
    /// unless it is the root.
    std::string folder() const;

    /// Returns the open folder's path in the system's own form.
    const QString& native_folder() const { return folder_; }

    /// Scrolls until the folder's name is seen, deep as it may lie.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  signals:
    /// Another folder was opened.
    void opened();
    /// Enter was pressed on the open folder.
    void entered();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void list(const QString& folder);
    QListWidgetItem* add(const QString& path, int depth, const QIcon& icon);

    QString folder_; // native, absolute
};

} // namespace gfx
