#include "gfx/folder_list.h"

#include "base/qt_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"

#include <QDir>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>

namespace gfx {

namespace {

constexpr int path_role = Qt::UserRole;
constexpr int depth_role = Qt::UserRole + 1;
constexpr int indentation = 12; // pixels for each level
constexpr QSize icon_size(16, 16);

int indent(const QModelIndex& index) {
    return index.data(depth_role).toInt() * indentation;
}

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

/// Returns the folder, or the nearest one above it that is still there.
QString what_is_left_of(QString folder) {
    while (!QDir(folder).exists() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).path();
    return folder;
}

/// Returns the names of the subfolders that can be stored, sorted, the hidden ones last.
QStringList subfolders(const QString& folder) {
    auto found = QDir(folder).entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                                            QDir::Name | QDir::IgnoreCase);
    std::stable_partition(found.begin(), found.end(),
                          [](const QFileInfo& subfolder) { return !subfolder.isHidden(); });
    QStringList names;
    for (const auto& subfolder : found) {
        if (base::is_storable(subfolder.fileName()))
            names += subfolder.fileName();
    }
    return names;
}

std::string to_stored(const QString& path) {
    return base::stored_path(QDir::toNativeSeparators(path));
}

} // namespace

FolderList::FolderList(QWidget* parent) : ChoiceList(parent) {
    setIconSize(icon_size);
    setItemDelegate(new IndentingDelegate(this));
    setHorizontalScrollMode(ScrollPerPixel);
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { open_highlighted(); });
}

void FolderList::open(std::string_view path) {
    const QString folder = QDir::cleanPath(QDir(base::native_path(path)).absolutePath());
    // A current folder that was deleted has no path, so that none can be made absolute.
    const bool is_absolute = QDir::isAbsolutePath(folder);
    if (!is_absolute || !QDir(folder).exists())
        throw data::RunTimeError(data::ErrorNumber::path_not_found,
                                 data::Phrase(data::Text::reason_no_folder))
            .within(is_absolute ? base::path_bytes(QDir::toNativeSeparators(folder))
                                : std::string(path));
    list(folder);
}

bool FolderList::open_highlighted() {
    const QString folder =
        currentItem() == nullptr ? folder_ : currentItem()->data(path_role).toString();
    list(what_is_left_of(folder));
    return folder_ == folder;
}

bool FolderList::is_still_there() {
    if (QDir(folder_).exists())
        return true;
    list(what_is_left_of(folder_));
    return false;
}

std::string FolderList::folder() const {
    return to_stored(folder_);
}

void FolderList::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!is_enter) {
        ChoiceList::keyPressEvent(event);
        return;
    }
    const QString before = folder_;
    if (!event->isAutoRepeat() && open_highlighted() && folder_ == before)
        emit entered();
}

void FolderList::resizeEvent(QResizeEvent* event) {
    ChoiceList::resizeEvent(event);
    scrollTo(currentIndex());
}

void FolderList::scrollTo(const QModelIndex& index, ScrollHint hint) {
    ChoiceList::scrollTo(index, hint);
    // The base class takes the indentation for a part of the name.
    const int hidden = sizeHintForIndex(index).width() - viewport()->width();
    horizontalScrollBar()->setValue(std::clamp(hidden, 0, indent(index)));
}

void FolderList::list(const QString& folder) {
    folder_ = folder;
    clear();
    int depth = 0;
    const QIcon opened_icon = style()->standardIcon(QStyle::SP_DirOpenIcon);
    for (const auto& path : chain_to(folder))
        setCurrentItem(add(path, depth++, opened_icon));
    const QIcon closed_icon = style()->standardIcon(QStyle::SP_DirIcon);
    for (const auto& name : subfolders(folder))
        add(QDir(folder).filePath(name), depth, closed_icon);
    scrollToItem(currentItem());
    emit opened();
}

QListWidgetItem* FolderList::add(const QString& path, int depth, const QIcon& icon) {
    const QString name =
        depth == 0 ? base::to_qstring(to_stored(path)) : QFileInfo(path).fileName();
    auto* item = new QListWidgetItem(icon, name, this);
    item->setData(path_role, path);
    item->setData(depth_role, depth);
    item->setToolTip(QDir::toNativeSeparators(path));
    return item;
}

} // namespace gfx
