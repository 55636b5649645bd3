#include "gfx/file_list.h"

#include "base/qt_text.h"
#include "base/stored_path.h"

#include <QDir>
#include <QStyle>

namespace gfx {

namespace {

constexpr QSize icon_size(16, 16);

}

FileList::FileList(QWidget* parent) : ChoiceList(parent) {
    setIconSize(icon_size);
    setUniformItemSizes(true);
}

void FileList::show_files(const QString& native_folder, const QString& pattern) {
    clear();
    const QIcon icon = style()->standardIcon(QStyle::SP_FileIcon);
    const auto names =
        QDir(native_folder).entryList({pattern}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const auto& name : names) {
        if (base::is_storable(name))
            new QListWidgetItem(icon, name, this);
    }
}

std::string FileList::file_name() const {
    const auto selected = selectedItems();
    return selected.isEmpty() ? std::string() : base::to_bytes(selected.front()->text());
}

std::vector<std::string> FileList::names() const {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count()));
    for (int row = 0; row < count(); ++row)
        names.push_back(base::to_bytes(item(row)->text()));
    return names;
}

} // namespace gfx
