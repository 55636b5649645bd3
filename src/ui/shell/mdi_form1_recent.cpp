#include "base/captions.h"
#include "base/files.h"
#include "base/messages.h"
#include "base/qt_text.h"
#include "base/shown_text.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "editor/panneau.h"
#include "shell/mdi_form1.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

#include <utility>

/// The files that were used last.
namespace shell {

namespace {

QString shown(const std::string& path) {
    return base::path_text(base::shown_path(path));
}

QString name_of(const std::string& path) {
    return QFileInfo(base::native_path(path)).fileName();
}

/// Returns the maps as an item shows them: all names, the folder of the first, and the offset.
QString caption_of(const map::Maps& maps) {
    QString names = name_of(maps.map_1_path);
    if (!maps.map_2_path.empty())
        names += QStringLiteral(", ") + name_of(maps.map_2_path);
    names += QStringLiteral(", ") + name_of(maps.id_map_path);
    if (maps.x_offset != 0 || maps.y_offset != 0)
        names += QStringLiteral(" (%1, %2)").arg(maps.x_offset).arg(maps.y_offset);
    return names + QStringLiteral(" - ") +
           QFileInfo(base::native_path(maps.map_1_path)).absolutePath();
}

QString tip_of(const map::Maps& maps) {
    QString tip;
    for (const auto& path : {maps.map_1_path, maps.map_2_path, maps.id_map_path}) {
        if (!path.empty())
            tip += shown(path) + '\n';
    }
    return tip + QStringLiteral("%1, %2").arg(maps.x_offset).arg(maps.y_offset);
}

/// Empties the menu of an item and returns it; it can be opened only with something in it.
QMenu& emptied(QAction& item, bool will_have_items) {
    item.setEnabled(will_have_items);
    item.menu()->clear();
    return *item.menu();
}

/// Adds an item with its number in the menu, which is its letter, too.
QAction* add_numbered(QMenu& menu, const char* name, const QString& caption, const QString& tip) {
    constexpr int widest = 500; // pixels
    const auto number = menu.actions().size() + 1;
    const QString fitting = menu.fontMetrics().elidedText(caption, Qt::ElideMiddle, widest);
    auto* item =
        menu.addAction(QStringLiteral("&%1  %2").arg(number).arg(base::item_text(fitting)));
    item->setObjectName(QStringLiteral("%1(%2)").arg(base::from_utf8(name)).arg(number - 1));
    item->setToolTip(QStringLiteral("<p style='white-space:pre'>%1</p>").arg(tip.toHtmlEscaped()));
    return item;
}

} // namespace

void MDIForm1::fill_recent_menus() {
    const auto files = settings_.recent_files();
    QMenu& file_menu = emptied(*action("fichiers_récents"), !files.empty());
    for (const auto& path : files) {
        connect(add_numbered(file_menu, "fichier_récent", shown(path), shown(path)),
                &QAction::triggered, this, [this, path] {
                    panel_->write_typed_text();
                    open_recent_file(path);
                });
    }
    const auto sets = settings_.recent_maps();
    QMenu& map_menu = emptied(*action("cartes_récentes"), !sets.empty());
    for (const auto& maps : sets) {
        connect(add_numbered(map_menu, "carte_récente", caption_of(maps), tip_of(maps)),
                &QAction::triggered, this, [this, maps] {
                    panel_->write_typed_text();
                    open_recent_maps(maps);
                });
    }
}

bool MDIForm1::can_be_read(const std::string& path) {
    try {
        base::read_file(path, 1);
        return true;
    } catch (const data::RunTimeError& error) {
        base::show_error(session_, this, error);
        return false;
    }
}

void MDIForm1::open_recent_file(const std::string& path) {
    if (can_be_read(path))
        open_after_question(path);
    else
        settings_.forget_file(path);
}

void MDIForm1::open_recent_maps(const map::Maps& maps) {
    for (const auto& path : {maps.map_1_path, maps.map_2_path, maps.id_map_path}) {
        if (!path.empty() && !can_be_read(path)) {
            settings_.forget_maps(maps);
            return;
        }
    }
    session_.maps = maps;
    open_maps();
}

} // namespace shell
