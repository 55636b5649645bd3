#include "gfx/folder_list.h"

#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QKeyEvent>
#include <QStyle>
#include <QStyledItemDelegate>

namespace gfx {

namespace {

constexpr int path_role = Qt::UserRole;
constexpr int depth_role = Qt::UserRole + 1;
constexpr int indentation = 12; // pixels for each level
constexpr QSize icon_size(16, 16);

class IndentingDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem indented(option);
        indented.rect.adjust(indent(index), 0, 0, 0);
        QStyledItemDelegate::paint(painter, indented, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(indent(index), 0);
    }

  private:
    static int indent(const QModelIndex& index) {
        return index.data(depth_role).toInt() * indentation;
    }
};

/// Returns the paths from the root down to the folder.
QStringList chain_to(const QString& folder) {
    QStringList chain;
    QString path = folder;
    for (; !QDir(path).isRoot(); path = QFileInfo(path).path())
        chain.prepend(path);
    chain.prepend(path);
    return chain;
}

std::string to_stored(const QString& path) {
    return base::stored_path(QDir::toNativeSeparators(path));
}

} // namespace

FolderList::FolderList(QWidget* parent) : QListWidget(parent) {
    setIconSize(icon_size);
    setItemDelegate(new IndentingDelegate(this));
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { open_item(*item); });
}

void FolderList::open(std::string_view path) {
    open_native(QDir::cleanPath(QDir(base::native_path(path)).absolutePath()));
}

std::string FolderList::folder() const {
    return to_stored(folder_);
}

void FolderList::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter && currentItem() != nullptr)
        open_item(*currentItem());
    else
        QListWidget::keyPressEvent(event);
}

void FolderList::open_native(const QString& folder) {
    const QDir dir(folder);
    if (!dir.exists())
        throw data::RunTimeError(data::ErrorNumber::path_not_found,
                                 base::to_bytes(QDir::toNativeSeparators(folder)) +
                                     ": the folder does not exist");
    folder_ = folder;
    clear();
    int depth = 0;
    const QIcon opened_icon = style()->standardIcon(QStyle::SP_DirOpenIcon);
    for (const auto& path : chain_to(folder))
        setCurrentItem(add(path, depth++, opened_icon));
    const QIcon closed_icon = style()->standardIcon(QStyle::SP_DirIcon);
    const auto names =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const auto& name : names) {
        if (base::is_storable(name))
            add(dir.filePath(name), depth, closed_icon);
    }
    scrollToItem(currentItem());
    emit opened();
}

void FolderList::open_item(const QListWidgetItem& item) {
    open_native(item.data(path_role).toString());
}

QListWidgetItem* FolderList::add(const QString& path, int depth, const QIcon& icon) {
    const QString name =
        depth == 0 ? base::to_qstring(to_stored(path)) : QFileInfo(path).fileName();
    auto* item = new QListWidgetItem(icon, name, this);
    item->setData(path_role, path);
    item->setData(depth_role, depth);
    return item;
}

} // namespace gfx
